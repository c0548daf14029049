<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora ha interrotto la sincronizzazione a causa di un problema imprevisto. Controllare lo stato della connessione.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Abilita condivisione</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>Una versione più recente di Lumora è già installata.\nContinuare?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Aggiornamento di Lumora in corso. Attendere...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Selezionare l'operazione da eseguire.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Connessione al server in corso...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Connessione instabile</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}Installazione guidata di [ProductName] terminata prematuramente</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>La cartella condivisa non è montata. Montarla e riprovare.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download completato.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Le modifiche non sono state salvate. Salvarle ora?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Rimuove [ProductName] dal computer.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Impossibile aggiornare Lumora. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Esiste già una cartella condivisa con lo stesso nome. Scegliere una cartella diversa.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>Si dispone dell'accesso in sola lettura a questa cartella. Le modifiche apportate qui non verranno sincronizzate.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Sincronizzazione interrotta</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Connetti a un nuovo server</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Solo download</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Sincronizzazione selettiva dei file</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Stampa</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Seleziona i file da sincronizzare</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Errore del punto di montaggio</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Chiudere queste applicazioni e fare clic su Riprova per continuare oppure su Ignora per continuare senza chiuderle.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Nome computer</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tutti i file sono aggiornati.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download in corso...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Si è verificato un errore (codice errore: %1). Contattare il supporto online di Quennet per assistenza.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Avvio di Lumora in corso...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Scollegare questa connessione? I file non verranno più sincronizzati con il server.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Il server proxy richiede l'autenticazione</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fine</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>La cartella di sincronizzazione sul server è cambiata. Ricollegare questa connessione.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>È possibile eseguire di nuovo l'installazione guidata in un secondo momento per installare [ProductName]. Fare clic su Fine per uscire.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installa</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Rilevamento della modalità di connessione in corso...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>File aggiornati di recente</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Nome utente o password non corretti.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Impossibile stabilire una connessione protetta con il server. Il certificato del server potrebbe non essere attendibile.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Statistiche di trasferimento</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Impossibile raggiungere il servizio di connessione. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Avviso di sicurezza</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Selezionare l'operazione che Lumora deve eseguire al termine dell'installazione.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>La cartella selezionata non è vuota. Il suo contenuto verrà unito ai file presenti sul server.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>Impossibile sincronizzare %1: accesso negato oppure l'elemento è in uso.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Riprova</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Copia link di condivisione</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Spazio di archiviazione esaurito</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>La sincronizzazione è in pausa.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Nome cartella</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>La cartella remota non è disponibile. Verificare che il volume sul server sia montato.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>Il disco locale è pieno. Liberare spazio per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Cronologia download</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>Installazione delle funzionalità del programma selezionate in corso.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Guida</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Avanti &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Dimensione massima file:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Cambia cartella</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Stato condivisione</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>%1 file aggiornati.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora mantiene i file del computer sincronizzati con il server. Copyright (C) Quennet. Tutti i diritti riservati.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Pagina di gestione</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Chiudi automaticamente le applicazioni e prova a riavviarle.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Visualizza le informazioni sulla connessione e sulla sincronizzazione.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Fare clic sul pulsante Fine per uscire dall'installazione guidata.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Informazioni su Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configurazione manuale del proxy</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostra le icone di stato della sincronizzazione su file e cartelle</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Si sono verificati conflitti tra file. Il file è stato rinominato in %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Modifica, ripara o rimuovi l'installazione</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Interrompi condivisione</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Consente di modificare la modalità di installazione delle funzionalità.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Autenticazione non riuscita</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Condivisione non trovata</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Avvia [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sospendi</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Download in corso</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Si è verificato un errore di protocollo durante la comunicazione con il server.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>La sincronizzazione selettiva richiede una versione più recente del pacchetto server. Aggiornare il pacchetto sul server.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Ripara l'installazione</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>Le seguenti applicazioni utilizzano file che devono essere aggiornati dall'installazione:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Tutti i file, sincronizzati su ogni computer.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Mostra icone sui file esclusi dalla sincronizzazione</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Riavviare %1 per applicare le nuove impostazioni della lingua.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Verifica di nome utente e password in corso...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Monitoraggio delle modifiche ai file in corso...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nuova condivisione</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] non dispone di funzionalità selezionabili separatamente.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>È disponibile una nuova versione. Fare clic per aggiornare.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Seleziona le cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Servizio disabilitato</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Ricollega</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Le modifiche sulle unità di rete non possono essere rilevate immediatamente. Lumora le controllerà a intervalli regolari.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Benvenuti nella manutenzione dell'installazione di [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Indietro</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Data creazione</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>La versione del server è obsoleta. Aggiornare il pacchetto server di Lumora.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>A&amp;ccetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>Il servizio di sincronizzazione sul server è disabilitato. Chiedere all'amministratore di abilitarlo.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Sfoglia versioni precedenti</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Nessun proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Nessuna impostazione è stata modificata.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostra notifiche sul desktop</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Questa versione di Lumora è già installata.\nReinstallarla?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>L'installazione guidata di [ProductName] è terminata prematuramente a causa di un errore. Il sistema non è stato modificato.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]File in uso</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Impostazioni di rete</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Modifica elenco di esclusione</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Unisci i file esistenti quando si collega una cartella</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Download annullato.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Indicizzazione della cartella in corso. Attendere...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Si è verificato un errore imprevisto. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>Condivisione di %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>L'ID del server non è valido o non esiste.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>File sempre aggiornati su tutti i computer.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Opzioni generali</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Impossibile connettersi al server. Controllare la connessione di rete.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inattivo</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>La cartella selezionata è un punto di montaggio. Scegliere una cartella diversa.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Verifica dei dati in corso...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Interrompere la condivisione di questa cartella?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Lingua:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignora</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Predefinita di sistema</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Avvia Lumora automaticamente all'accesso</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Pronto per l'installazione di [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Condivisione abilitata</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Ri&amp;para</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Immettere un numero di porta valido (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leggere attentamente il seguente contratto di licenza.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>L'installazione di Lumora richiede privilegi di amministratore.\nContinuare comunque?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Impossibile trovare la cartella di sincronizzazione locale. Potrebbe essere stata spostata o eliminata.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Connessione diretta</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Sincronizzazione selettiva delle cartelle</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Nome condivisione</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Nomi di file da escludere:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Non sono disponibili versioni precedenti per questo file.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>Spazio su disco esaurito sul server. Liberare spazio sul server per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Si è verificato un errore di sistema durante la connessione al server.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>Il link di condivisione di %1 è stato copiato negli Appunti.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Usa le impostazioni proxy di sistema</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Eliminare questa condivisione?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>La quota di archiviazione sul server è esaurita. Eliminare alcuni file o contattare l'amministratore.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Cambia cartella locale</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Installazione guidata di [ProductName] interrotta</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Fare clic su Ripara per riparare l'installazione di [ProductName]. Fare clic su Indietro per rivedere o modificare le impostazioni di installazione. Fare clic su Annulla per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Modalità di connessione</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Le cartelle deselezionate verranno rimosse da questo computer, ma resteranno sul server. Continuare?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Versioni incompatibili</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connessione riuscita.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alcuni file da aggiornare sono attualmente in uso.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applicazione delle impostazioni in corso...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Autorizzazione negata</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continua comunque</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione in corso...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>Installazione completata. Lumora inizierà ora a sincronizzare i file.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Cartella non vuota</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Impossibile recuperare le versioni precedenti di questo file.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Informazioni sulla connessione</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>Impossibile verificare il certificato SSL del server.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Indirizzo IP</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>La cartella di sincronizzazione sul server non corrisponde alla cartella a cui era collegata questa connessione.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Archiviazione locale</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Upload in corso</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabilitato</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Questa versione di Lumora è troppo vecchia per connettersi al server. Aggiornare Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Usa un'icona monocromatica nell'area di notifica</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>La cartella selezionata non è vuota. Scegliere una cartella vuota o unirne il contenuto a quello del server.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Pronto per la rimozione di [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Elaborazione di %1 file in corso...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>La cartella selezionata è di sola lettura. Scegliere una cartella in cui si dispone dell'accesso in scrittura.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Scegli una cartella locale</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Scollega connessione</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Usa una connessione protetta (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>I file che corrispondono a queste regole non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Fare clic su Rimuovi per rimuovere [ProductName] dal computer. Fare clic su Indietro per rivedere o modificare le impostazioni di installazione. Fare clic su Annulla per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Scegli un'altra cartella</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Avvia ora</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>È stata scelta la rimozione del programma dal computer.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Impossibile inizializzare Lumora. Riavviare l'applicazione.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Autenticazione non riuscita. Controllare nome utente e password.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Configurare Lumora per iniziare a sincronizzare i file.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>Impossibile eliminare la condivisione. Riprovare.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>I file di questa cartella verranno uniti a quelli presenti sul server. Se due file hanno lo stesso nome, vengono mantenuti entrambi e uno viene rinominato.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Impossibile scaricare questo file.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID server</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Questa cartella del server è già collegata a un'altra cartella di sincronizzazione su questo computer.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>Dettagli indirizzo IP</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Azione al doppio clic</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Errore di sincronizzazione</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Modalità di sincronizzazione</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Separare più nomi con virgole. Usare * per indicare qualsiasi sequenza di caratteri.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Immettere l'indirizzo e la porta del server proxy.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Rimuovi l'installazione</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L'installazione guidata consente di modificare la modalità di installazione delle funzionalità di [ProductName] nel computer o di rimuovere il programma dal computer. Fare clic su Avanti per continuare o su Annulla per uscire dall'installazione guidata.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Impostazioni avanzate</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test della connessione in corso...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Cartella di sola lettura</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Modifica l'installazione</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Cartella del server modificata</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Abilitato</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>I link di condivisione non sono disponibili durante la connessione tramite il servizio di inoltro.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>File esclusi</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Apri cartella Lumora</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>La connessione al server è stata interrotta. Lumora tenterà di riconnettersi.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Connessione protetta</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Si è verificato un errore del database. Riavviare Lumora.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Benvenuti nell'installazione guidata di [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Contratto di licenza con l'utente finale</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Condivisione</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Direzione di sincronizzazione:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Sincronizzazione di %1 file in corso.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Percorso cartella</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stato:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Benvenuti in %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Impossibile creare un link di condivisione per questo elemento.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Informazioni sullo stato</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Scegliere una cartella locale da sincronizzare con il server.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Annullare l'installazione di [ProductName]?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Installazione di [ProductName] in corso</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>La cartella di sincronizzazione si trova su un'unità non connessa. Connettere l'unità e riprovare.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Indirizzo:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Immettere un nome utente.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Impossibile abilitare la condivisione. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Rete locale (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora pronta.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>L'installazione guidata è pronta per avviare la riparazione di [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Fare clic su Installa per avviare l'installazione. Fare clic su Indietro per rivedere o modificare le impostazioni di installazione. Fare clic su Annulla per uscire dalla procedura guidata.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Non sincronizzare i file che superano la dimensione massima</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Download non riuscito.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ri&amp;muovi</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Modifica connessione</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Riprova sincronizzazione</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>È stata condivisa una nuova cartella.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>Installazione di [ProductName] completata correttamente.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Per installare il programma in un secondo momento, eseguire di nuovo l'installazione guidata. Fare clic sul pulsante Fine per chiudere la procedura guidata.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Installazione di [ProductName] interrotta. Il sistema non è stato modificato.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Non accetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Cartella di sincronizzazione locale</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aggiornamento in corso...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Scollegare questo computer dal server? I file locali non verranno eliminati.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Sincronizza file e cartelle con prefisso %1.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>È stato raggiunto il numero massimo di condivisioni.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Aggiungi connessione</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>In caso di conflitto:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>L'installazione guidata è pronta per avviare l'installazione di [ProductName].</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Elenco di esclusione:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L'installazione guidata installerà [ProductName] nel computer. Fare clic su Avanti per continuare o su Annulla per uscire dall'installazione guidata.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Questa connessione non è attiva.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora è già in esecuzione.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Apri Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora sta inizializzando...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Connessione tramite inoltro</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Pronto per la riparazione di [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Attendere mentre l'installazione guidata installa [ProductName]. L'operazione potrebbe richiedere alcuni minuti.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Ripara</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Estensioni file:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Ripara gli errori dell'installazione più recente sostituendo i file e i collegamenti mancanti o danneggiati.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>&amp;Non chiudere le applicazioni. Sarà necessario riavviare il sistema.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Completamento dell'installazione guidata di [ProductName]</translation>
    </message>
</context>
</TS>
