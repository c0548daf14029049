<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora er stoppet med at synkronisere på grund af et uventet problem. Kontrollér forbindelsesstatus.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Aktivér deling</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>En nyere version af Lumora er allerede installeret.\nVil du fortsætte?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Lumora opgraderes. Vent et øjeblik...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fremskridt</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation af [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Vælg den handling, du vil udføre.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Opretter forbindelse til serveren...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Ustabil forbindelse</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}Installationsguiden til [ProductName] blev afsluttet før tid</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>Den delte mappe er ikke monteret. Montér den, og prøv igen.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download fuldført.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Dine ændringer er ikke gemt. Vil du gemme dem nu?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Fjerner [ProductName] fra computeren.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Lumora kunne ikke opgraderes. Prøv igen senere.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Der findes allerede en delt mappe med samme navn. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>Du har kun læseadgang til denne mappe. Ændringer, du foretager her, bliver ikke synkroniseret.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Synkronisering stoppet</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Opret forbindelse til en ny server</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Kun download</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Selektiv synkronisering af filer</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Udskriv</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Vælg filer, der skal synkroniseres</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Fejl ved monteringspunkt</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Luk disse programmer, og klik på Prøv igen for at fortsætte, eller klik på Ignorer for at fortsætte uden at lukke dem.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Computernavn</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle filer er opdaterede.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloader...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Der opstod en fejl (fejlkode: %1). Kontakt onlinesupporten hos Quennet for at få hjælp.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Lumora starter...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Er du sikker på, at du vil fjerne tilknytningen af denne forbindelse? Filerne bliver ikke længere synkroniseret med serveren.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Afslut</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxyserveren kræver godkendelse</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Udfør</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Opgradering</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>Synkroniseringsmappen på serveren er ændret. Tilknyt denne forbindelse igen.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>Du kan køre installationsguiden igen senere for at installere [ProductName]. Klik på Udfør for at afslutte.</translation>
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
        <translation>Registrerer forbindelsestilstanden...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Senest opdaterede filer</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Brugernavnet eller adgangskoden er forkert.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Der kunne ikke oprettes en sikker forbindelse til serveren. Serverens certifikat er muligvis ikke pålideligt.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Overførselsstatistik</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Forbindelsestjenesten kan ikke nås. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Sikkerhedsadvarsel</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Vælg, hvad Lumora skal gøre, når konfigurationen er færdig.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>Den valgte mappe er ikke tom. Indholdet bliver flettet sammen med filerne på serveren.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>%1 kan ikke synkroniseres, fordi adgang blev nægtet, eller fordi filen er i brug.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Prøv igen</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Kopiér delingslink</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Lageret er fuldt</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>Synkroniseringen er sat på pause.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>Fjernmappen er ikke tilgængelig. Kontrollér, at diskenheden på serveren er monteret.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>Din lokale disk er fuld. Frigør plads for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Downloadhistorik</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>De programfunktioner, du har valgt, bliver installeret.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Næste &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maksimal filstørrelse:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Skift mappe</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synkroniseringsopgaver</translation>
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
        <translation>%1 filer blev opdateret.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Brugernavn</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora holder filerne på din computer synkroniseret med din server. Copyright (C) Quennet. Alle rettigheder forbeholdes.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Administrationsside</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Luk programmerne automatisk, og forsøg at genstarte dem.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Vis oplysninger om forbindelse og synkronisering.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klik på knappen Udfør for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Om Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuel proxykonfiguration</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Vis ikoner for synkroniseringsstatus på filer og mapper</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Der opstod en filkonflikt. Filen er nu omdøbt til %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Ændr, reparer eller fjern installationen</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Stop deling</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Giver dig mulighed for at ændre den måde, funktionerne installeres på.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Godkendelse mislykkedes</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Delt mappe blev ikke fundet</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Start [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Downloader</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Adgangskode:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Der opstod en protokolfejl under kommunikationen med serveren.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>Selektiv synkronisering kræver en nyere version af serverpakken. Opdater pakken på din server.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparer installationen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>Følgende programmer bruger filer, der skal opdateres af denne installation:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Dine filer – synkroniseret på alle computere.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Vis ikoner på filer, der er udelukket fra synkronisering</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Genstart %1 for at anvende de nye sprogindstillinger.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Kontrollerer brugernavn og adgangskode...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Overvåger filændringer...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] har ingen funktioner, der kan vælges separat.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Der er en ny version tilgængelig. Klik for at opdatere.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Vælg mapper, der skal synkroniseres</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Tjenesten er deaktiveret</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Tilknyt igen</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Ændringer på netværksdrev kan ikke registreres med det samme. Lumora kontrollerer dem med jævne mellemrum.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Velkommen til vedligeholdelse af installationen af [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Tilbage</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oprettet</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>Serverversionen er for gammel. Opdater Lumora-serverpakken.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Jeg &amp;accepterer betingelserne i licensaftalen</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>Synkroniseringstjenesten på serveren er deaktiveret. Bed din administrator om at aktivere den.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Gennemse tidligere versioner</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ingen proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Ingen indstillinger er ændret.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsmeddelelser</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Denne version af Lumora er allerede installeret.\nVil du geninstallere den?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Installationsguiden til [ProductName] blev afsluttet før tid på grund af en fejl. Dit system er ikke blevet ændret.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Filer i brug</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Netværksindstillinger</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Rediger udelukkelsesliste</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Flet eksisterende filer, når en mappe tilknyttes</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Download annulleret.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Mappen indekseres. Vent et øjeblik...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Der opstod en uventet fejl. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>Deler %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>Server-id'et er ugyldigt eller findes ikke.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Hold dine filer opdateret på alle dine computere.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Generelle indstillinger</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Fjern tilknytning</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Der kan ikke oprettes forbindelse til serveren. Kontrollér din netværksforbindelse.</translation>
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
        <translation>Den valgte mappe er et monteringspunkt. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrollerer data...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Er du sikker på, at du vil stoppe delingen af denne mappe?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprog:</translation>
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
        <translation>Start Lumora automatisk, når jeg logger på</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Klar til at installere [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Deling aktiveret</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Reparer</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Angiv et gyldigt portnummer (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Læs følgende licensaftale omhyggeligt.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>Installation af Lumora kræver administratorrettigheder.\nVil du fortsætte alligevel?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Den lokale synkroniseringsmappe blev ikke fundet. Den kan være flyttet eller slettet.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Direkte forbindelse</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Selektiv synkronisering af mapper</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Delingsnavn</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Filnavne, der skal udelukkes:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Der er ingen tidligere versioner tilgængelige for denne fil.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>Serveren mangler diskplads. Frigør plads på serveren for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Der opstod en systemfejl under forbindelsen til serveren.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>Delingslinket til %1 er kopieret til udklipsholderen.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Brug systemets proxyindstillinger</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Er du sikker på, at du vil slette denne deling?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Du har brugt hele din lagerkvote på serveren. Slet nogle filer, eller kontakt din administrator.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Skift lokal mappe</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Installationsguiden til [ProductName] blev afbrudt</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik på Reparer for at reparere installationen af [ProductName]. Klik på Tilbage for at gennemse eller ændre dine installationsindstillinger. Klik på Annuller for at afslutte guiden.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Forbindelsestilstand</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Mapper, du fravælger, fjernes fra denne computer, men forbliver på serveren. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Versionerne stemmer ikke overens</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Forbindelsen blev oprettet.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Nogle af de filer, der skal opdateres, er i brug i øjeblikket.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Anvender indstillinger...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Adgang nægtet</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Fortsæt alligevel</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
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
        <translation>Næste</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>Konfigurationen er fuldført. Lumora begynder nu at synkronisere dine filer.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Mappen er ikke tom</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>De tidligere versioner af denne fil kunne ikke hentes.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Forbindelsesoplysninger</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>Serverens SSL-certifikat kunne ikke bekræftes.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-adresse</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>Synkroniseringsmappen på serveren svarer ikke til den mappe, som denne forbindelse blev tilknyttet.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Lokalt lager</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Uploader</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiveret</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Denne version af Lumora er for gammel til at oprette forbindelse til serveren. Opdater Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Brugernavn:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumé</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Brug et monokromt ikon i meddelelsesområdet</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>Den valgte mappe er ikke tom. Vælg en tom mappe, eller flet indholdet sammen med serveren.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Klar til at fjerne [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Behandler %1 fil(er)...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Valgmuligheder</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flet</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Den valgte mappe er skrivebeskyttet. Vælg en mappe, du kan skrive til.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Vælg en lokal mappe</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Fjern tilknytning af forbindelse</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Brug en sikker forbindelse (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Filer, der matcher disse regler, bliver ikke synkroniseret.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik på Fjern for at fjerne [ProductName] fra computeren. Klik på Tilbage for at gennemse eller ændre dine installationsindstillinger. Klik på Annuller for at afslutte guiden.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Vælg en anden mappe</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Du har valgt at fjerne programmet fra computeren.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Lumora kunne ikke initialiseres. Genstart programmet.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Godkendelsen mislykkedes. Kontrollér dit brugernavn og din adgangskode.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Udfør</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Konfigurer Lumora for at begynde at synkronisere dine filer.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>Delingen kunne ikke slettes. Prøv igen.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Filer i denne mappe bliver flettet sammen med filerne på serveren. Hvis to filer har samme navn, bevares begge, og den ene omdøbes.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Denne fil kan ikke downloades.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Server-id</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Denne servermappe er allerede tilknyttet en anden synkroniseringsmappe på denne computer.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>Oplysninger om IP-adresse</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Handling ved dobbeltklik</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Synkroniseringsfejl</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Synkroniseringstilstand</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Oplysninger</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Adskil flere navne med kommaer. Brug * som jokertegn for vilkårlige tegn.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Angiv proxyserverens adresse og port.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Fjern installationen</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Med installationsguiden kan du ændre den måde, funktionerne i [ProductName] er installeret på computeren, eller fjerne programmet fra computeren. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Avancerede indstillinger</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester forbindelsen...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Skrivebeskyttet mappe</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Ændr installationen</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Servermappen er ændret</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiveret</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Delingslinks er ikke tilgængelige, mens du er forbundet via relætjenesten.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Udelukkede filer</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Oversigt</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Åbn Lumora-mappen</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>Forbindelsen til serveren blev afbrudt. Lumora forsøger at genoprette forbindelsen.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Sikker forbindelse</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Der opstod en databasefejl. Genstart Lumora.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Velkommen til installationsguiden til [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Licensaftale for slutbrugere</translation>
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
        <translation>Synkroniserer i øjeblikket %1 filer.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Mappesti</translation>
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
        <translation>Der kan ikke oprettes et delingslink til dette element.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Statusoplysninger</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Vælg en lokal mappe, der skal synkroniseres med serveren.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Er du sikker på, at du vil annullere installationen af [ProductName]?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Installerer [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>Synkroniseringsmappen ligger på et drev, der ikke er tilsluttet. Tilslut drevet, og prøv igen.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Angiv et brugernavn.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Deling kunne ikke aktiveres. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Lokalt netværk (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora er klar.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>Installationsguiden er klar til at reparere [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik på Installer for at starte installationen. Klik på Tilbage for at gennemse eller ændre dine installationsindstillinger. Klik på Annuller for at afslutte guiden.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Synkroniser ikke filer, der er større end den maksimale størrelse</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Download mislykkedes.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Fjern</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Rediger forbindelse</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Prøv synkronisering igen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>En ny mappe er blevet delt med dig.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] er installeret.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Hvis du vil installere programmet senere, skal du køre installationsguiden igen. Klik på Udfør for at lukke denne guide.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Installationen af [ProductName] blev afbrudt. Dit system er ikke blevet ændret.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Ændr</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Jeg accepterer &amp;ikke betingelserne i licensaftalen</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Lokal synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Opdaterer...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Vil du fjerne tilknytningen mellem denne computer og serveren? Dine lokale filer bliver ikke slettet.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Synkroniser filer og mapper med præfikset %1.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Du har nået det maksimale antal delinger.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Tilføj forbindelse</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>Når der opstår en konflikt:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Installationsguiden er klar til at starte installationen af [ProductName].</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Udelukkelsesliste:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Installationsguiden installerer [ProductName] på computeren. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsguiden.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Denne forbindelse er inaktiv.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora kører allerede.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Åbn Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora initialiserer...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Relæforbindelse</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Klar til at reparere [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Vent, mens installationsguiden installerer [ProductName]. Dette kan tage flere minutter.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparer</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Filtypenavne:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Retter fejl i den seneste installation ved at erstatte manglende eller beskadigede filer og genveje.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>Luk &amp;ikke programmerne. Der kræves en genstart.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Installationsguiden til [ProductName] er fuldført</translation>
    </message>
</context>
</TS>
