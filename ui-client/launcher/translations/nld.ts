<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora heeft de synchronisatie gestopt vanwege een onverwacht probleem. Controleer de verbindingsstatus.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Delen inschakelen</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>Er is al een nieuwere versie van Lumora geïnstalleerd.\nWilt u doorgaan?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Lumora wordt bijgewerkt. Even geduld...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installatie van [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Selecteer de bewerking die u wilt uitvoeren.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Verbinding maken met de server...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Verbinding instabiel</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}De installatiewizard van [ProductName] is voortijdig beëindigd</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>De gedeelde map is niet aangekoppeld. Koppel de map aan en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download voltooid.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Uw wijzigingen zijn niet opgeslagen. Wilt u ze nu opslaan?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Verwijdert [ProductName] van uw computer.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Lumora kan niet worden bijgewerkt. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Er bestaat al een gedeelde map met dezelfde naam. Kies een andere map.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>U hebt alleen leestoegang tot deze map. Wijzigingen die u hier aanbrengt, worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Synchronisatie gestopt</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Verbinding maken met een nieuwe server</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Poort:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Alleen downloaden</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Selectieve synchronisatie voor bestanden</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Af&amp;drukken</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Te synchroniseren bestanden selecteren</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Fout met koppelpunt</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Sluit deze toepassingen en klik op Opnieuw om door te gaan, of klik op Negeren om door te gaan zonder ze te sluiten.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Computernaam</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle bestanden zijn up-to-date.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Bezig met downloaden...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Er is een fout opgetreden (foutcode: %1). Neem contact op met de online ondersteuning van Quennet voor hulp.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Lumora wordt gestart...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Weet u zeker dat u deze verbinding wilt ontkoppelen? Bestanden worden dan niet meer met de server gesynchroniseerd.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>De proxyserver vereist verificatie</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Voltooien</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Bijwerken</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>De synchronisatiemap op de server is gewijzigd. Koppel deze verbinding opnieuw.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Beheren</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>U kunt de installatiewizard later opnieuw uitvoeren om [ProductName] te installeren. Klik op Voltooien om af te sluiten.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installeren</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Verbindingsmodus detecteren...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Recent bijgewerkte bestanden</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>De gebruikersnaam of het wachtwoord is onjuist.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Er kan geen beveiligde verbinding met de server tot stand worden gebracht. Het servercertificaat is mogelijk niet vertrouwd.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Overdrachtsstatistieken</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>De verbindingsservice is niet bereikbaar. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Beveiligingswaarschuwing</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Selecteer wat Lumora moet doen wanneer het instellen is voltooid.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>De geselecteerde map is niet leeg. De inhoud ervan wordt samengevoegd met de bestanden op de server.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>%1 kan niet worden gesynchroniseerd omdat de toegang is geweigerd of omdat het bestand in gebruik is.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Opnieuw</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Deellink kopiëren</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Opslag vol</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>Synchronisatie is gepauzeerd.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Mapnaam</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>De externe map is niet beschikbaar. Zorg ervoor dat het volume op de server is aangekoppeld.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>Uw lokale schijf is vol. Maak ruimte vrij om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Downloadgeschiedenis</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>De geselecteerde programmaonderdelen worden geïnstalleerd.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Volgende &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximale bestandsgrootte:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Map wijzigen</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synchronisatietaken</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Deelstatus</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>%1 bestanden bijgewerkt.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora houdt de bestanden op uw computer gesynchroniseerd met uw server. Copyright (C) Quennet. Alle rechten voorbehouden.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Beheerpagina</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>De toepassingen automatisch &amp;sluiten en proberen ze opnieuw te starten.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Verbindings- en synchronisatiegegevens weergeven.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klik op Voltooien om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Over Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Handmatige proxyconfiguratie</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Synchronisatiestatuspictogrammen weergeven op bestanden en mappen</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Er is een bestandsconflict opgetreden. Het bestand is hernoemd naar %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Installatie wijzigen, herstellen of verwijderen</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Delen stoppen</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Hiermee kunt u wijzigen hoe onderdelen worden geïnstalleerd.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Verificatie mislukt</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Gedeelde map niet gevonden</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] starten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Downloaden</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Er is een protocolfout opgetreden tijdens de communicatie met de server.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>Selectieve synchronisatie vereist een nieuwere versie van het serverpakket. Werk het pakket op uw server bij.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>De installatie herstellen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laden...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>De volgende toepassingen gebruiken bestanden die door deze installatie moeten worden bijgewerkt:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Uw bestanden, gesynchroniseerd op elke computer.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Pictogrammen weergeven op bestanden die van synchronisatie zijn uitgesloten</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Start %1 opnieuw om de nieuwe taalinstellingen toe te passen.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Gebruikersnaam en wachtwoord controleren...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Bestandswijzigingen bewaken...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nieuwe gedeelde map</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] heeft geen onderdelen die afzonderlijk kunnen worden geselecteerd.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Er is een nieuwe versie beschikbaar. Klik om bij te werken.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Te synchroniseren mappen selecteren</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Service uitgeschakeld</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Opnieuw koppelen</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Wijzigingen op netwerkstations kunnen niet direct worden gedetecteerd. Lumora controleert ze met regelmatige tussenpozen.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Welkom bij het installatieonderhoud van [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; V&amp;orige</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Gemaakt</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>De serverversie is te oud. Werk het Lumora-serverpakket bij.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Ik &amp;ga akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>De synchronisatieservice op de server is uitgeschakeld. Vraag uw beheerder om deze in te schakelen.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Vorige versies bekijken</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Geen proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Er zijn geen instellingen gewijzigd.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Bureaubladmeldingen weergeven</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Deze versie van Lumora is al geïnstalleerd.\nWilt u deze opnieuw installeren?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>De installatiewizard van [ProductName] is voortijdig beëindigd vanwege een fout. Uw systeem is niet gewijzigd.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Bestanden in gebruik</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Netwerkinstellingen</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Uitsluitingslijst bewerken</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Bestaande bestanden samenvoegen bij het koppelen van een map</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Download geannuleerd.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>De map wordt geïndexeerd. Even geduld...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Er is een onverwachte fout opgetreden. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>%1 wordt gedeeld</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>De server-ID is ongeldig of bestaat niet.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Houd uw bestanden up-to-date op al uw computers.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Algemene opties</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Ontkoppelen</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Kan geen verbinding maken met de server. Controleer uw netwerkverbinding.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactief</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Alleen-lezen</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>De geselecteerde map is een koppelpunt. Kies een andere map.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Gegevens controleren...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Weet u zeker dat u het delen van deze map wilt stoppen?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Taal:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Negeren</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Systeemstandaard</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Lumora automatisch starten wanneer ik me aanmeld</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Klaar om [ProductName] te installeren</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Delen ingeschakeld</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Herstellen</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Voer een geldig poortnummer in (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lees de volgende licentieovereenkomst zorgvuldig door.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>Voor de installatie van Lumora zijn beheerdersrechten vereist.\nWilt u toch doorgaan?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>De lokale synchronisatiemap kan niet worden gevonden. Deze is mogelijk verplaatst of verwijderd.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Directe verbinding</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Selectieve synchronisatie voor mappen</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Sharenaam</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Uit te sluiten bestandsnamen:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Er zijn geen vorige versies van dit bestand beschikbaar.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>De server heeft geen schijfruimte meer. Maak ruimte vrij op de server om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Er is een systeemfout opgetreden bij het verbinden met de server.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>De deellink voor %1 is naar het klembord gekopieerd.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Proxyinstellingen van het systeem gebruiken</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Weet u zeker dat u deze share wilt verwijderen?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>U hebt uw opslagquotum op de server opgebruikt. Verwijder enkele bestanden of neem contact op met uw beheerder.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Lokale map wijzigen</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}De installatiewizard van [ProductName] is onderbroken</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik op Herstellen om de installatie van [ProductName] te herstellen. Klik op Vorige om uw installatie-instellingen te controleren of te wijzigen. Klik op Annuleren om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Verbindingsmodus</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Mappen die u deselecteert, worden van deze computer verwijderd maar blijven op de server staan. Wilt u doorgaan?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Versies komen niet overeen</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Verbinding geslaagd.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Sommige bestanden die moeten worden bijgewerkt, zijn momenteel in gebruik.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Instellingen toepassen...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Toegang geweigerd</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Toch doorgaan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Voorbereiden...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>Het instellen is voltooid. Lumora begint nu met het synchroniseren van uw bestanden.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Map niet leeg</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Kan de vorige versies van dit bestand niet ophalen.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Verbindingsgegevens</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>Het SSL-certificaat van de server kan niet worden geverifieerd.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-adres</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>De synchronisatiemap op de server komt niet overeen met de map waaraan deze verbinding is gekoppeld.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Lokale opslag</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Uploaden</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Deze versie van Lumora is te oud om verbinding te maken met de server. Werk Lumora bij.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Gebruikersnaam:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Samenvatting</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Een monochroom pictogram in het systeemvak gebruiken</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>De geselecteerde map is niet leeg. Kies een lege map of voeg de inhoud ervan samen met de server.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Klaar om [ProductName] te verwijderen</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>%1 bestand(en) verwerken...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Samenvoegen</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>De geselecteerde map is alleen-lezen. Kies een map waarnaar u kunt schrijven.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Een lokale map kiezen</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Verbinding ontkoppelen</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Een beveiligde verbinding (SSL) gebruiken</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Bestanden die aan deze regels voldoen, worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik op Verwijderen om [ProductName] van uw computer te verwijderen. Klik op Vorige om uw installatie-instellingen te controleren of te wijzigen. Klik op Annuleren om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Andere map kiezen</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selectieve synchronisatie</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Nu starten</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>U hebt ervoor gekozen het programma van uw computer te verwijderen.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Lumora kan niet worden geïnitialiseerd. Start de toepassing opnieuw.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Verificatie mislukt. Controleer uw gebruikersnaam en wachtwoord.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Stel Lumora in om te beginnen met het synchroniseren van uw bestanden.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>De share kan niet worden verwijderd. Probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Bestanden in deze map worden samengevoegd met de bestanden op de server. Als twee bestanden dezelfde naam hebben, worden beide bewaard en wordt een ervan hernoemd.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Dit bestand kan niet worden gedownload.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Server-ID</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Deze servermap is al gekoppeld aan een andere synchronisatiemap op deze computer.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>IP-adresgegevens</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Actie bij dubbelklikken</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Synchronisatiefout</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Synchronisatiemodus</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Scheid meerdere namen met komma's. Gebruik * als jokerteken voor willekeurige tekens.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Voer het adres en de poort van de proxyserver in.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>De installatie verwijderen</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Met de installatiewizard kunt u wijzigen hoe onderdelen van [ProductName] op uw computer worden geïnstalleerd, of het programma van uw computer verwijderen. Klik op Volgende om door te gaan of op Annuleren om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Geavanceerde instellingen</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbinding testen...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Map is alleen-lezen</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>De installatie wijzigen</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Servermap gewijzigd</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ingeschakeld</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Deellinks zijn niet beschikbaar wanneer u verbonden bent via de relayservice.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Bestemming</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Uitgesloten bestanden</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Lumora-map openen</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>De verbinding met de server is verbroken. Lumora probeert opnieuw verbinding te maken.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Beveiligde verbinding</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Er is een databasefout opgetreden. Start Lumora opnieuw.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Welkom bij de installatiewizard van [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Licentieovereenkomst voor eindgebruikers</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Delen</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Synchronisatierichting:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Er worden momenteel %1 bestanden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Mappad</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Welkom bij %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Voor dit item kan geen deellink worden gemaakt.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Statusinformatie</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Kies een lokale map om met de server te synchroniseren.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Weet u zeker dat u de installatie van [ProductName] wilt annuleren?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] installeren</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>De synchronisatiemap bevindt zich op een station dat niet is aangesloten. Sluit het station aan en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Voer een gebruikersnaam in.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Delen kan niet worden ingeschakeld. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Lokaal netwerk (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora is gereed.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>De installatiewizard is klaar om te beginnen met het herstellen van [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klik op Installeren om de installatie te starten. Klik op Vorige om uw installatie-instellingen te controleren of te wijzigen. Klik op Annuleren om de wizard af te sluiten.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Geen bestanden synchroniseren die groter zijn dan de maximale grootte</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Downloaden mislukt.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Verbinding bewerken</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Synchronisatie opnieuw proberen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>Er is een nieuwe map met u gedeeld.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] is geïnstalleerd.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Voer de installatiewizard opnieuw uit om het programma later te installeren. Klik op Voltooien om deze wizard te sluiten.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>De installatie van [ProductName] is onderbroken. Uw systeem is niet gewijzigd.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Wijzigen</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Ik ga &amp;niet akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Lokale synchronisatiemap</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Bijwerken...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Wilt u deze computer ontkoppelen van de server? Uw lokale bestanden worden niet verwijderd.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Bestanden en mappen met het voorvoegsel %1 synchroniseren.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>U hebt het maximumaantal shares bereikt.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Verbinding toevoegen</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>Als er een conflict optreedt:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>De installatiewizard is klaar om te beginnen met de installatie van [ProductName].</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Uitsluitingslijst:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>De installatiewizard installeert [ProductName] op uw computer. Klik op Volgende om door te gaan of op Annuleren om de installatiewizard af te sluiten.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Deze verbinding is inactief.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora wordt al uitgevoerd.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Lumora openen</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora is bezig met initialisatie...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Relayverbinding</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Klaar om [ProductName] te herstellen</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Even geduld terwijl de installatiewizard [ProductName] installeert. Dit kan enkele minuten duren.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Herstellen</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Bestandsextensies:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Herstelt fouten in de meest recente installatie door ontbrekende of beschadigde bestanden en snelkoppelingen te vervangen.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>De toepassingen &amp;niet sluiten. Opnieuw opstarten is dan vereist.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}De installatiewizard van [ProductName] is voltooid</translation>
    </message>
</context>
</TS>
