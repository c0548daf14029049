<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora har slutat synkronisera på grund av ett oväntat problem. Kontrollera anslutningsstatusen.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Aktivera delning</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Vänteläge</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>En nyare version av Lumora är redan installerad.\nVill du fortsätta?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Uppgraderar Lumora. Vänta...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation av [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Välj den åtgärd du vill utföra.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Ansluter till servern...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Instabil anslutning</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}Installationsguiden för [ProductName] avslutades i förtid</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>Den delade mappen är inte monterad. Montera den och försök igen.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Nedladdningen är klar.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Ändringarna har inte sparats. Vill du spara dem nu?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Tar bort [ProductName] från datorn.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Lumora kunde inte uppgraderas. Försök igen senare.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Det finns redan en delad mapp med samma namn. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>Du har endast läsbehörighet till den här mappen. Ändringar som du gör här synkroniseras inte.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Synkroniseringen stoppades</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Anslut till en ny server</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Endast nedladdning</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Selektiv synkronisering för filer</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Skriv &amp;ut</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Välj filer att synkronisera</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Fel i monteringspunkt</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Stäng programmen och klicka på Försök igen för att fortsätta, eller klicka på Ignorera för att fortsätta utan att stänga dem.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Datornamn</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alla filer är uppdaterade.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laddar ned...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Ett fel uppstod (felkod: %1). Kontakta onlinesupporten hos Quennet för att få hjälp.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Lumora startar...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Vill du verkligen koppla från den här anslutningen? Filerna synkroniseras inte längre med servern.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Avsluta</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxyservern kräver autentisering</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Slutför</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Uppgradering</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>Synkroniseringsmappen på servern har ändrats. Koppla den här anslutningen igen.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Hantera</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>Du kan köra installationsguiden igen senare för att installera [ProductName]. Klicka på Slutför för att avsluta.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installera</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Identifierar anslutningsläget...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Nyligen uppdaterade filer</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Användarnamnet eller lösenordet är felaktigt.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Det gick inte att upprätta en säker anslutning till servern. Servercertifikatet kanske inte är betrott.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Överföringsstatistik</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Det går inte att nå anslutningstjänsten. Försök igen senare.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Säkerhetsvarning</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Välj vad Lumora ska göra när installationen är klar.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>Den valda mappen är inte tom. Innehållet sammanfogas med filerna på servern.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>%1 kan inte synkroniseras eftersom åtkomst nekades eller för att objektet används.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Försök igen</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Kopiera delningslänk</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Lagringsutrymmet är fullt</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>Synkroniseringen har pausats.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Mappnamn</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>Fjärrmappen är inte tillgänglig. Kontrollera att volymen på servern är monterad.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>Den lokala disken är full. Frigör utrymme för att fortsätta synkroniseringen.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Nedladdningshistorik</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>De programfunktioner som du valde installeras.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Nästa &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximal filstorlek:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Byt mapp</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synkroniseringsuppgifter</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Delningsstatus</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>%1 filer har uppdaterats.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora håller filerna på datorn synkroniserade med servern. Copyright (C) Quennet. Med ensamrätt.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Hanteringssida</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Stäng programmen automatiskt och försök starta om dem.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Visa information om anslutning och synkronisering.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klicka på Slutför för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Om Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuell proxykonfiguration</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Visa ikoner för synkroniseringsstatus på filer och mappar</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>En filkonflikt uppstod. Filen har bytt namn till %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Ändra, reparera eller ta bort installationen</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Sluta dela</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Låter dig ändra hur funktionerna installeras.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Autentiseringen misslyckades</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Delningen hittades inte</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Starta [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Laddar ned</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Lösenord:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Ett protokollfel uppstod vid kommunikationen med servern.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>Selektiv synkronisering kräver en nyare version av serverpaketet. Uppdatera paketet på servern.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparera installationen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>Följande program använder filer som måste uppdateras av installationsprogrammet:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Dina filer, synkroniserade på alla datorer.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Visa ikoner på filer som är undantagna från synkronisering</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Starta om %1 för att tillämpa de nya språkinställningarna.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Kontrollerar användarnamn och lösenord...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Övervakar filändringar...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Ny delning</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] har inga funktioner som kan väljas separat.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>En ny version är tillgänglig. Klicka för att uppdatera.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Välj mappar att synkronisera</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Tjänsten är inaktiverad</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Koppla igen</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Ändringar på nätverksenheter kan inte identifieras omedelbart. Lumora kontrollerar dem med jämna mellanrum.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Välkommen till installationsunderhållet för [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Bakåt</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Skapad</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>Serverversionen är för gammal. Uppdatera serverpaketet för Lumora.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Jag &amp;godkänner villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>Synkroniseringstjänsten på servern är inaktiverad. Be administratören att aktivera den.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Bläddra bland tidigare versioner</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Inga inställningar har ändrats.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Visa skrivbordsaviseringar</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Den här versionen av Lumora är redan installerad.\nVill du installera om den?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Installationsguiden för [ProductName] avslutades i förtid på grund av ett fel. Systemet har inte ändrats.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Filer som används</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Nätverksinställningar</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Redigera undantagslista</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Sammanfoga befintliga filer när en mapp kopplas</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Nedladdningen avbröts.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Indexerar mappen. Vänta...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Ett oväntat fel uppstod. Försök igen senare.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>Delar %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>Server-ID:t är ogiltigt eller finns inte.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Håll dina filer uppdaterade på alla dina datorer.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Allmänna alternativ</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koppla från</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Det går inte att ansluta till servern. Kontrollera nätverksanslutningen.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>Den valda mappen är en monteringspunkt. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrollerar data...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Vill du verkligen sluta dela den här mappen?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Språk:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorera</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Starta Lumora automatiskt när jag loggar in</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Klar att installera [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Delning är aktiverad</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Re&amp;parera</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Ange ett giltigt portnummer (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Läs följande licensavtal noggrant.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>Installation av Lumora kräver administratörsbehörighet.\nVill du fortsätta ändå?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Det går inte att hitta den lokala synkroniseringsmappen. Den kan ha flyttats eller tagits bort.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Direktanslutning</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Selektiv synkronisering för mappar</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Delningsnamn</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Filnamn som ska undantas:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Det finns inga tidigare versioner av den här filen.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>Servern har slut på diskutrymme. Frigör utrymme på servern för att fortsätta synkroniseringen.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Ett systemfel uppstod vid anslutningen till servern.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>Delningslänken för %1 har kopierats till Urklipp.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Använd systemets proxyinställningar</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Vill du verkligen ta bort den här delningen?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Du har förbrukat din lagringskvot på servern. Ta bort några filer eller kontakta administratören.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Byt lokal mapp</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Installationsguiden för [ProductName] avbröts</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicka på Reparera för att reparera installationen av [ProductName]. Klicka på Bakåt om du vill granska eller ändra installationsinställningarna. Klicka på Avbryt för att avsluta guiden.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Anslutningsläge</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Mappar som du avmarkerar tas bort från den här datorn men finns kvar på servern. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Versionskonflikt</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Anslutningen lyckades.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Vissa filer som måste uppdateras används för närvarande.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Tillämpar inställningar...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Åtkomst nekad</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Fortsätt ändå</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Förbereder...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>Installationen är klar. Lumora börjar nu synkronisera dina filer.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Mappen är inte tom</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Det gick inte att hämta tidigare versioner av den här filen.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Anslutningsinformation</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>Serverns SSL-certifikat kunde inte verifieras.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-adress</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>Synkroniseringsmappen på servern matchar inte mappen som den här anslutningen kopplades till.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Lokal lagring</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Laddar upp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiverad</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Den här versionen av Lumora är för gammal för att ansluta till servern. Uppdatera Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Användarnamn:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammanfattning</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Använd en monokrom ikon i meddelandefältet</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>Den valda mappen är inte tom. Välj en tom mapp eller sammanfoga innehållet med servern.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Klar att ta bort [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Bearbetar %1 fil(er)...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativ</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sammanfoga</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Den valda mappen är skrivskyddad. Välj en mapp som du kan skriva till.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Välj en lokal mapp</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Koppla från anslutning</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Använd en säker anslutning (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Filer som matchar dessa regler synkroniseras inte.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicka på Ta bort för att ta bort [ProductName] från datorn. Klicka på Bakåt om du vill granska eller ändra installationsinställningarna. Klicka på Avbryt för att avsluta guiden.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Välj en annan mapp</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Starta nu</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Du har valt att ta bort programmet från datorn.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Lumora kunde inte initieras. Starta om programmet.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Autentiseringen misslyckades. Kontrollera användarnamnet och lösenordet.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Slutför</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Konfigurera Lumora för att börja synkronisera dina filer.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>Delningen kunde inte tas bort. Försök igen.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Filerna i den här mappen sammanfogas med filerna på servern. Om två filer har samma namn behålls båda och den ena byter namn.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Den här filen kan inte laddas ned.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Server-ID</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Den här servermappen är redan kopplad till en annan synkroniseringsmapp på den här datorn.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>Information om IP-adress</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Åtgärd vid dubbelklick</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Synkroniseringsfel</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Synkroniseringsläge</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Avgränsa flera namn med kommatecken. Använd * för att matcha valfria tecken.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Ange proxyserverns adress och port.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Ta bort installationen</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Med installationsguiden kan du ändra hur funktionerna i [ProductName] installeras på datorn eller ta bort programmet från datorn. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Avancerade inställningar</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testar anslutningen...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Skrivskyddad mapp</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Ändra installationen</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Servermappen har ändrats</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiverad</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Delningslänkar är inte tillgängliga när du är ansluten via relätjänsten.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Undantagna filer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Översikt</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Öppna Lumora-mappen</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>Anslutningen till servern bröts. Lumora försöker återansluta.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Säker anslutning</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Ett databasfel uppstod. Starta om Lumora.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Välkommen till installationsguiden för [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Licensavtal för slutanvändare</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Delning</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Synkroniseringsriktning:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Synkroniserar %1 filer.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Mappsökväg</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Välkommen till %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Det går inte att skapa en delningslänk för det här objektet.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Statusinformation</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Välj en lokal mapp som ska synkroniseras med servern.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Vill du verkligen avbryta installationen av [ProductName]?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Installerar [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>Synkroniseringsmappen finns på en enhet som inte är ansluten. Anslut enheten och försök igen.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adress:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Ange ett användarnamn.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Delning kunde inte aktiveras. Försök igen senare.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Lokalt nätverk (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora är klar.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>Installationsguiden är redo att påbörja reparationen av [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicka på Installera för att påbörja installationen. Klicka på Bakåt om du vill granska eller ändra installationsinställningarna. Klicka på Avbryt för att avsluta guiden.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Synkronisera inte filer som är större än maxstorleken</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Nedladdningen misslyckades.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ta &amp;bort</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Redigera anslutning</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Försök synkronisera igen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>En ny mapp har delats med dig.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] har installerats.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Om du vill installera programmet senare kör du installationsguiden igen. Klicka på Slutför för att stänga guiden.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Installationen av [ProductName] avbröts. Systemet har inte ändrats.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Ändra</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Jag godkänner &amp;inte villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Lokal synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Uppdaterar...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Vill du koppla bort den här datorn från servern? Dina lokala filer tas inte bort.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Synkronisera filer och mappar med prefixet %1.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Du har nått det maximala antalet delningar.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Lägg till anslutning</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>När en konflikt uppstår:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Installationsguiden är redo att påbörja installationen av [ProductName].</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Undantagslista:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Installationsguiden installerar [ProductName] på datorn. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsguiden.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Den här anslutningen är inaktiv.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora körs redan.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Öppna Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora initialiserar...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Reläanslutning</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Klar att reparera [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Vänta medan installationsguiden installerar [ProductName]. Det kan ta flera minuter.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparera</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Filnamnstillägg:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Reparerar fel i den senaste installationen genom att ersätta filer och genvägar som saknas eller är skadade.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>Stäng &amp;inte programmen. Datorn måste startas om.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Installationsguiden för [ProductName] har slutförts</translation>
    </message>
</context>
</TS>
