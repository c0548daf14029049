<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora har stoppet synkroniseringen på grunn av et uventet problem. Kontroller tilkoblingsstatusen.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Aktiver deling</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ventemodus</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>En nyere versjon av Lumora er allerede installert.\nVil du fortsette?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Oppgraderer Lumora. Vent litt...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fremdrift</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installasjon av [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Velg operasjonen du vil utføre.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Kobler til serveren...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Ustabil tilkobling</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}Installasjonsveiviseren for [ProductName] ble avsluttet for tidlig</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>Den delte mappen er ikke montert. Monter den og prøv på nytt.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Nedlastingen er fullført.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Endringene er ikke lagret. Vil du lagre dem nå?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Fjerner [ProductName] fra datamaskinen.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Lumora kunne ikke oppgraderes. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Det finnes allerede en delt mappe med samme navn. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>Du har bare lesetilgang til denne mappen. Endringer du gjør her, blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Synkronisering stoppet</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Koble til en ny server</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Bare nedlasting</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Selektiv synkronisering for filer</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Skriv ut</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Gjenoppta</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Velg filer som skal synkroniseres</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Feil med monteringspunkt</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Lukk disse programmene og klikk Prøv igjen for å fortsette, eller klikk Ignorer for å fortsette uten å lukke dem.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Datamaskinnavn</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle filer er oppdatert.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internett (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laster ned...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Det oppstod en feil (feilkode: %1). Kontakt nettstøtten til Quennet for å få hjelp.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Starter Lumora...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Er du sikker på at du vil koble fra denne tilkoblingen? Filene blir ikke lenger synkronisert med serveren.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Avslutt</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxyserveren krever godkjenning</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fullfør</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Oppgradering</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>Synkroniseringsmappen på serveren er endret. Koble denne tilkoblingen til på nytt.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>Du kan kjøre installasjonsveiviseren på nytt senere for å installere [ProductName]. Klikk Fullfør for å avslutte.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Fjern</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Registrerer tilkoblingsmodus...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Nylig oppdaterte filer</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Brukernavnet eller passordet er feil.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Kan ikke opprette en sikker tilkobling til serveren. Serversertifikatet er kanskje ikke klarert.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Overføringsstatistikk</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Kan ikke nå tilkoblingstjenesten. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Sikkerhetsadvarsel</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Velg hva Lumora skal gjøre når installasjonen er ferdig.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>Den valgte mappen er ikke tom. Innholdet blir slått sammen med filene på serveren.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>%1 kan ikke synkroniseres fordi tilgang ble nektet, eller fordi elementet er i bruk.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Prøv igjen</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Kopier delingskobling</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Lagringsplassen er full</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>Synkroniseringen er satt på pause.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>Den eksterne mappen er ikke tilgjengelig. Kontroller at volumet på serveren er montert.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>Den lokale disken er full. Frigjør litt plass for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Nedlastingslogg</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>Programfunksjonene du valgte, blir installert.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Neste &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maksimal filstørrelse:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Endre mappe</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synkroniseringsoppgaver</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Delingsstatus</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>%1 filer er oppdatert.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora holder filene på datamaskinen synkronisert med serveren. Copyright (C) Quennet. Med enerett.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Administrasjonsside</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Lukk programmene automatisk og prøv å starte dem på nytt.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Vis tilkoblings- og synkroniseringsinformasjon.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klikk Fullfør for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Om Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuell proxykonfigurasjon</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Vis ikoner for synkroniseringsstatus på filer og mapper</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Det oppstod en filkonflikt. Filen har fått nytt navn: %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Endre, reparer eller fjern installasjonen</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Stopp deling</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Lar deg endre hvordan funksjonene installeres.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Godkjenning mislyktes</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Finner ikke delingen</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Start [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sett på pause</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Laster ned</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passord:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Det oppstod en protokollfeil under kommunikasjon med serveren.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nei</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>Selektiv synkronisering krever en nyere versjon av serverpakken. Oppdater pakken på serveren.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparer installasjonen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laster inn...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>Følgende programmer bruker filer som må oppdateres av dette installasjonsprogrammet:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Filene dine, synkronisert på alle datamaskiner.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Vis ikoner på filer som er utelatt fra synkronisering</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Start %1 på nytt for å ta i bruk de nye språkinnstillingene.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Kontrollerer brukernavn og passord...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Overvåker filendringer...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Ny deling</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] har ingen funksjoner som kan velges separat.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>En ny versjon er tilgjengelig. Klikk for å oppdatere.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Velg mapper som skal synkroniseres</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Tjenesten er deaktivert</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Koble til på nytt</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Endringer på nettverksstasjoner kan ikke oppdages umiddelbart. Lumora kontrollerer dem med jevne mellomrom.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Velkommen til installasjonsvedlikehold for [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Tilbake</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Opprettet</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>Serverversjonen er for gammel. Oppdater serverpakken for Lumora.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Jeg &amp;godtar vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>Synkroniseringstjenesten på serveren er deaktivert. Be administratoren om å aktivere den.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Bla gjennom tidligere versjoner</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Ingen innstillinger er endret.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsvarsler</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Denne versjonen av Lumora er allerede installert.\nVil du installere den på nytt?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Installasjonsveiviseren for [ProductName] ble avsluttet for tidlig på grunn av en feil. Systemet er ikke endret.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Filer i bruk</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Nettverksinnstillinger</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Rediger unntaksliste</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Slå sammen eksisterende filer når en mappe kobles til</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Nedlastingen ble avbrutt.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Indekserer mappen. Vent litt...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Det oppstod en uventet feil. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>Deler %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>Server-ID-en er ugyldig eller finnes ikke.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Hold filene dine oppdatert på alle datamaskinene dine.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Generelle alternativer</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koble fra</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Kan ikke koble til serveren. Kontroller nettverkstilkoblingen.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>Den valgte mappen er et monteringspunkt. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrollerer data...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Er du sikker på at du vil slutte å dele denne mappen?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Språk:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Start Lumora automatisk når jeg logger på</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Klar til å installere [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Deling er aktivert</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Re&amp;parer</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Angi et gyldig portnummer (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Les følgende lisensavtale nøye.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>Installasjon av Lumora krever administratorrettigheter.\nVil du fortsette likevel?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Finner ikke den lokale synkroniseringsmappen. Den kan ha blitt flyttet eller slettet.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Direkte tilkobling</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Selektiv synkronisering for mapper</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Delingsnavn</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Filnavn som skal utelates:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Det finnes ingen tidligere versjoner av denne filen.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>Serveren er tom for diskplass. Frigjør plass på serveren for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Det oppstod en systemfeil under tilkobling til serveren.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>Delingskoblingen for %1 er kopiert til utklippstavlen.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Bruk systemets proxyinnstillinger</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Er du sikker på at du vil slette denne delingen?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Du har brukt opp lagringskvoten din på serveren. Slett noen filer, eller kontakt administratoren.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Endre lokal mappe</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Installasjonsveiviseren for [ProductName] ble avbrutt</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klikk Reparer for å reparere installasjonen av [ProductName]. Klikk Tilbake for å se gjennom eller endre installasjonsinnstillingene. Klikk Avbryt for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Tilkoblingsmodus</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Mapper du fjerner merket for, blir fjernet fra denne datamaskinen, men beholdes på serveren. Vil du fortsette?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Versjonene samsvarer ikke</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Tilkoblingen var vellykket.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Noen filer som må oppdateres, er i bruk.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Tar i bruk innstillinger...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Tilgang nektet</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Fortsett likevel</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>Installasjonen er fullført. Lumora begynner nå å synkronisere filene dine.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Kan ikke hente tidligere versjoner av denne filen.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Tilkoblingsinformasjon</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>SSL-sertifikatet til serveren kunne ikke bekreftes.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-adresse</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>Synkroniseringsmappen på serveren samsvarer ikke med mappen som denne tilkoblingen ble koblet til.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Lokal lagring</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Laster opp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktivert</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Denne versjonen av Lumora er for gammel til å koble til serveren. Oppdater Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Brukernavn:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammendrag</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Bruk et monokromt ikon i systemstatusfeltet</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>Den valgte mappen er ikke tom. Velg en tom mappe, eller slå sammen innholdet med serveren.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Klar til å fjerne [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Behandler %1 fil(er)...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativer</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå sammen</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Den valgte mappen er skrivebeskyttet. Velg en mappe du kan skrive til.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Velg en lokal mappe</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Koble fra tilkobling</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Bruk en sikker tilkobling (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Filer som samsvarer med disse reglene, blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klikk Fjern for å fjerne [ProductName] fra datamaskinen. Klikk Tilbake for å se gjennom eller endre installasjonsinnstillingene. Klikk Avbryt for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Velg en annen mappe</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Start nå</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Du har valgt å fjerne programmet fra datamaskinen.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Lumora kunne ikke initialiseres. Start programmet på nytt.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Godkjenningen mislyktes. Kontroller brukernavnet og passordet.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fullfør</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Konfigurer Lumora for å begynne å synkronisere filene dine.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>Delingen kunne ikke slettes. Prøv på nytt.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Filene i denne mappen blir slått sammen med filene på serveren. Hvis to filer har samme navn, beholdes begge, og den ene får nytt navn.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Denne filen kan ikke lastes ned.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Server-ID</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Denne servermappen er allerede koblet til en annen synkroniseringsmappe på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>IP-adressedetaljer</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Handling ved dobbeltklikk</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Synkroniseringsfeil</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Synkroniseringsmodus</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informasjon</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Skill flere navn med komma. Bruk * for å representere vilkårlige tegn.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Angi adressen og porten til proxyserveren.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Fjern installasjonen</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Med installasjonsveiviseren kan du endre hvordan funksjonene i [ProductName] installeres på datamaskinen, eller fjerne programmet fra datamaskinen. Klikk Neste for å fortsette eller Avbryt for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Avanserte innstillinger</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester tilkoblingen...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Endre installasjonen</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Servermappen er endret</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktivert</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Delingskoblinger er ikke tilgjengelige når du er tilkoblet via relétjenesten.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Utelatte filer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Oversikt</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Åpne Lumora-mappen</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>Tilkoblingen til serveren ble brutt. Lumora prøver å koble til på nytt.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Sikker tilkobling</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Det oppstod en databasefeil. Start Lumora på nytt.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Velkommen til installasjonsveiviseren for [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Lisensavtale for sluttbrukere</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Deling</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Synkroniseringsretning:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Synkroniserer %1 filer.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Mappebane</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Velkommen til %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Kan ikke opprette en delingskobling for dette elementet.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Statusinformasjon</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Velg en lokal mappe som skal synkroniseres med serveren.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Er du sikker på at du vil avbryte installasjonen av [ProductName]?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Installerer [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>Synkroniseringsmappen ligger på en stasjon som ikke er tilkoblet. Koble til stasjonen og prøv på nytt.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Angi et brukernavn.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Deling kunne ikke aktiveres. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Lokalt nettverk (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora er klar.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>Installasjonsveiviseren er klar til å starte reparasjonen av [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klikk Installer for å starte installasjonen. Klikk Tilbake for å se gjennom eller endre installasjonsinnstillingene. Klikk Avbryt for å avslutte veiviseren.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Ikke synkroniser filer som er større enn maksimal størrelse</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Nedlastingen mislyktes.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>F&amp;jern</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Rediger tilkobling</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Prøv synkronisering på nytt</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Legg til</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>En ny mappe er delt med deg.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] er installert.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Hvis du vil installere programmet senere, kjører du installasjonsveiviseren på nytt. Klikk Fullfør for å lukke denne veiviseren.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Installasjonen av [ProductName] ble avbrutt. Systemet er ikke endret.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Endre</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Jeg godtar &amp;ikke vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Lokal synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Oppdaterer...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Vil du koble denne datamaskinen fra serveren? De lokale filene dine blir ikke slettet.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Synkroniser filer og mapper med prefikset %1.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Du har nådd maksimalt antall delinger.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Legg til tilkobling</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>Når det oppstår en konflikt:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Installasjonsveiviseren er klar til å starte installasjonen av [ProductName].</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Unntaksliste:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Installasjonsveiviseren installerer [ProductName] på datamaskinen. Klikk Neste for å fortsette eller Avbryt for å avslutte installasjonsveiviseren.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Denne tilkoblingen er inaktiv.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora kjører allerede.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Åpne Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora starter opp...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Relétilkobling</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Klar til å reparere [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Vent mens installasjonsveiviseren installerer [ProductName]. Dette kan ta flere minutter.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparer</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Filetternavn:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Reparerer feil i den nyeste installasjonen ved å erstatte manglende eller skadede filer og snarveier.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>&amp;Ikke lukk programmene. Datamaskinen må startes på nytt.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Installasjonsveiviseren for [ProductName] er fullført</translation>
    </message>
</context>
</TS>
