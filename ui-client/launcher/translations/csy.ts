<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora kvůli neočekávanému problému zastavila synchronizaci. Zkontrolujte prosím stav připojení.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Povolit sdílení</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Pohotovostní režim</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>Novější verze aplikace Lumora je již nainstalována.\nChcete pokračovat?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Probíhá aktualizace aplikace Lumora. Čekejte prosím...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalace produktu [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Vyberte operaci, kterou chcete provést.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Připojování k serveru...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Nestabilní připojení</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}Průvodce instalací produktu [ProductName] byl předčasně ukončen</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>Sdílená složka není připojena. Připojte ji a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Stahování bylo dokončeno.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Změny nebyly uloženy. Chcete je nyní uložit?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Odebere produkt [ProductName] z počítače.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Aplikaci Lumora se nepodařilo aktualizovat. Zkuste to prosím později.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Sdílená složka se stejným názvem již existuje. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>K této složce máte přístup jen pro čtení. Změny, které zde provedete, nebudou synchronizovány.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Synchronizace zastavena</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Připojit k novému serveru</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Pouze stahování</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Selektivní synchronizace souborů</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Tisk</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Vyberte soubory k synchronizaci</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Chyba přípojného bodu</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Zavřete tyto aplikace a pokračujte kliknutím na tlačítko Opakovat, nebo klikněte na tlačítko Ignorovat a pokračujte bez jejich zavření.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Název počítače</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Všechny soubory jsou aktuální.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Došlo k chybě (kód chyby: %1). Požádejte o pomoc online podporu společnosti Quennet.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Lumora se spouští...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Opravdu chcete zrušit toto propojení? Soubory již nebudou synchronizovány se serverem.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Konec</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Proxy server vyžaduje ověření</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Dokončit</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aktualizace</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>Synchronizační složka na serveru se změnila. Znovu propojte toto připojení.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Spravovat</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>Průvodce instalací můžete později spustit znovu a nainstalovat produkt [ProductName]. Kliknutím na tlačítko Dokončit průvodce ukončíte.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Odebrat</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalovat</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Zjišťování režimu připojení...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Nedávno aktualizované soubory</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Uživatelské jméno nebo heslo je nesprávné.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Nepodařilo se navázat zabezpečené připojení k serveru. Certifikát serveru možná není důvěryhodný.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Statistika přenosů</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Služba připojení není dostupná. Zkuste to prosím později.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Upozornění zabezpečení</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Vyberte, co má Lumora udělat po dokončení nastavení.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>Vybraná složka není prázdná. Její obsah bude sloučen se soubory na serveru.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>Položku %1 nelze synchronizovat, protože k ní byl odepřen přístup nebo je používána.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Opakovat</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Kopírovat odkaz pro sdílení</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Úložiště je plné</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>Synchronizace je pozastavena.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Název složky</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>Vzdálená složka není k dispozici. Ujistěte se, že je svazek na serveru připojen.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>Místní disk je plný. Chcete-li pokračovat v synchronizaci, uvolněte na něm místo.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Historie stahování</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>Probíhá instalace vybraných funkcí programu.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Další &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximální velikost souboru:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Změnit složku</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Úlohy synchronizace</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Stav sdílení</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>Aktualizované soubory: %1.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Uživatelské jméno</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora udržuje soubory ve vašem počítači synchronizované se serverem. Copyright (C) Quennet. Všechna práva vyhrazena.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Stránka správy</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Automaticky zavřít aplikace a pokusit se je znovu spustit.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Zobrazit informace o připojení a synchronizaci.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kliknutím na tlačítko Dokončit ukončíte průvodce instalací.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>O aplikaci Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Ruční konfigurace proxy</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Zobrazovat ikony stavu synchronizace u souborů a složek</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Došlo ke konfliktu souborů. Soubor byl přejmenován na %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Změnit, opravit nebo odebrat instalaci</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Zastavit sdílení</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Umožňuje změnit způsob instalace funkcí.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Ověření se nezdařilo</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Sdílená složka nebyla nalezena</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Spustit produkt [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Stahování</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Při komunikaci se serverem došlo k chybě protokolu.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ne</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>Selektivní synchronizace vyžaduje novější verzi serverového balíčku. Aktualizujte balíček na serveru.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Opravit instalaci</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>Následující aplikace používají soubory, které musí tato instalace aktualizovat:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Vaše soubory synchronizované na všech počítačích.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Zobrazovat ikony u souborů vyloučených ze synchronizace</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Chcete-li použít nové nastavení jazyka, restartujte aplikaci %1.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Ověřování uživatelského jména a hesla...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Sledování změn souborů...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nové sdílení</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>Produkt [ProductName] nemá žádné funkce, které by bylo možné vybrat samostatně.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Je k dispozici nová verze. Klikněte sem a proveďte aktualizaci.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Vyberte složky k synchronizaci</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Služba je zakázána</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Znovu propojit</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Změny na síťových jednotkách nelze zjistit okamžitě. Lumora je bude kontrolovat v pravidelných intervalech.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Vítá vás údržba instalace produktu [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Zpět</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Vytvořeno</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>Verze serveru je příliš stará. Aktualizujte serverový balíček Lumora.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Přijímám podmínky licenční smlouvy</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>Synchronizační služba na serveru je zakázána. Požádejte správce, aby ji povolil.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Procházet předchozí verze</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Bez proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Žádná nastavení nebyla změněna.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Zobrazovat oznámení na ploše</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Tato verze aplikace Lumora je již nainstalována.\nChcete ji přeinstalovat?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Průvodce instalací produktu [ProductName] byl kvůli chybě předčasně ukončen. Systém nebyl změněn.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Používané soubory</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ano</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Nastavení sítě</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Upravit seznam vyloučení</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Při propojení složky sloučit existující soubory</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Stahování bylo zrušeno.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Probíhá indexování složky. Čekejte prosím...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Došlo k neočekávané chybě. Zkuste to prosím později.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>Sdílení: %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>ID serveru je neplatné nebo neexistuje.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Mějte své soubory aktuální na všech svých počítačích.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Obecné možnosti</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Zrušit propojení</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Nelze se připojit k serveru. Zkontrolujte síťové připojení.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Neaktivní</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>Vybraná složka je přípojný bod. Zvolte jinou složku.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Kontrola dat...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Opravdu chcete zastavit sdílení této složky?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Jazyk:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorovat</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Výchozí nastavení systému</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Spouštět aplikaci Lumora automaticky po přihlášení</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Připraveno k instalaci produktu [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Sdílení povoleno</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Opravit</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Zadejte platné číslo portu (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Pečlivě si přečtěte následující licenční smlouvu.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>Instalace aplikace Lumora vyžaduje oprávnění správce.\nChcete přesto pokračovat?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Místní synchronizační složku nelze najít. Mohla být přesunuta nebo odstraněna.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Přímé připojení</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Selektivní synchronizace složek</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Název sdílení</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Vyloučené názvy souborů:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Pro tento soubor nejsou k dispozici žádné předchozí verze.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>Na serveru došlo místo na disku. Chcete-li pokračovat v synchronizaci, uvolněte místo na serveru.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Při připojování k serveru došlo k systémové chybě.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>Odkaz pro sdílení souboru %1 byl zkopírován do schránky.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Použít systémové nastavení proxy</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Opravdu chcete odstranit toto sdílení?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Vyčerpali jste kvótu úložiště na serveru. Odstraňte některé soubory nebo se obraťte na správce.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Změnit místní složku</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Průvodce instalací produktu [ProductName] byl přerušen</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknutím na tlačítko Opravit opravíte instalaci produktu [ProductName]. Chcete-li zkontrolovat nebo změnit nastavení instalace, klikněte na tlačítko Zpět. Kliknutím na tlačítko Storno průvodce ukončíte.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Režim připojení</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Složky, jejichž výběr zrušíte, budou z tohoto počítače odebrány, ale na serveru zůstanou. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Neshoda verzí</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Připojení proběhlo úspěšně.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Některé soubory, které je třeba aktualizovat, se právě používají.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Použití nastavení...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Přístup odepřen</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Přesto pokračovat</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Storno</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Příprava...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>Nastavení je dokončeno. Lumora nyní začne synchronizovat vaše soubory.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Složka není prázdná</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Předchozí verze tohoto souboru nelze načíst.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Informace o připojení</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>Certifikát SSL serveru nelze ověřit.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Adresa IP</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>Synchronizační složka na serveru neodpovídá složce, se kterou bylo toto připojení propojeno.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Místní úložiště</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Nahrávání</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Zakázáno</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Tato verze aplikace Lumora je pro připojení k serveru příliš stará. Aktualizujte aplikaci Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Uživatelské jméno:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Použít jednobarevnou ikonu v oznamovací oblasti</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>Vybraná složka není prázdná. Zvolte prázdnou složku nebo slučte její obsah se serverem.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Připraveno k odebrání produktu [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Zpracování souborů (%1)...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Možnosti</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sloučit</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Vybraná složka je jen pro čtení. Zvolte složku, do které můžete zapisovat.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Zvolte místní složku</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Zrušení propojení</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Použít zabezpečené připojení (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Soubory, které odpovídají těmto pravidlům, nebudou synchronizovány.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknutím na tlačítko Odebrat odeberete produkt [ProductName] z počítače. Chcete-li zkontrolovat nebo změnit nastavení instalace, klikněte na tlačítko Zpět. Kliknutím na tlačítko Storno průvodce ukončíte.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Zvolit jinou složku</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektivní synchronizace</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Spustit nyní</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Zvolili jste odebrání programu z počítače.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Inicializace aplikace Lumora se nezdařila. Restartujte aplikaci.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Ověření se nezdařilo. Zkontrolujte uživatelské jméno a heslo.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Dokončit</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Nastavte aplikaci Lumora a začněte synchronizovat soubory.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>Sdílení nelze odstranit. Zkuste to znovu.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Soubory v této složce budou sloučeny se soubory na serveru. Pokud mají dva soubory stejný název, zachovají se oba a jeden z nich bude přejmenován.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Tento soubor nelze stáhnout.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID serveru</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Tato složka serveru je již propojena s jinou synchronizační složkou v tomto počítači.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Konec</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>Podrobnosti o adrese IP</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Akce při dvojitém kliknutí</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Chyba synchronizace</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Režim synchronizace</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Více názvů oddělte čárkami. Znak * zastupuje libovolné znaky.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Zadejte adresu a port proxy serveru.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Odebrat instalaci</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Průvodce instalací umožňuje změnit způsob instalace funkcí produktu [ProductName] v počítači nebo produkt z počítače odebrat. Pokračujte kliknutím na tlačítko Další, průvodce instalací ukončíte kliknutím na tlačítko Storno.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Pokročilá nastavení</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testování připojení...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Složka jen pro čtení</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Změnit instalaci</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Složka serveru se změnila</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Povoleno</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Odkazy pro sdílení nejsou k dispozici, pokud jste připojeni přes předávací službu.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cíl</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Vyloučené soubory</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Přehled</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Otevřít složku Lumora</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>Připojení k serveru bylo ztraceno. Lumora se pokusí znovu připojit.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Zabezpečené připojení</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Došlo k chybě databáze. Restartujte aplikaci Lumora.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Vítá vás průvodce instalací produktu [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Licenční smlouva s koncovým uživatelem</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Sdílení</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Směr synchronizace:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Probíhá synchronizace souborů: %1.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Cesta ke složce</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stav:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Vítá vás aplikace %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Pro tuto položku nelze vytvořit odkaz pro sdílení.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Informace o stavu</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Zvolte místní složku, která se bude synchronizovat se serverem.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Opravdu chcete zrušit instalaci produktu [ProductName]?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Instalace produktu [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>Synchronizační složka je na jednotce, která není připojena. Připojte jednotku a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresa:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Zadejte uživatelské jméno.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Sdílení nelze povolit. Zkuste to prosím později.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Místní síť (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora je připravena.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>Průvodce instalací je připraven zahájit opravu produktu [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknutím na tlačítko Instalovat zahájíte instalaci. Chcete-li zkontrolovat nebo změnit nastavení instalace, klikněte na tlačítko Zpět. Kliknutím na tlačítko Storno průvodce ukončíte.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Nesynchronizovat soubory větší než maximální velikost</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Stahování se nezdařilo.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>O&amp;debrat</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Upravit připojení</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Zkusit znovu synchronizovat</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>Byla s vámi sdílena nová složka.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>Produkt [ProductName] byl úspěšně nainstalován.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Chcete-li program nainstalovat později, spusťte průvodce instalací znovu. Kliknutím na tlačítko Dokončit tohoto průvodce zavřete.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Instalace produktu [ProductName] byla přerušena. Systém nebyl změněn.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Změnit</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Nepřijímám podmínky licenční smlouvy</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Místní synchronizační složka</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizace...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Chcete zrušit propojení tohoto počítače se serverem? Místní soubory nebudou odstraněny.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Synchronizovat soubory a složky s předponou %1.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Dosáhli jste maximálního počtu sdílení.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Přidat připojení</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>Při konfliktu:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Průvodce instalací je připraven zahájit instalaci produktu [ProductName].</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Seznam vyloučení:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Průvodce instalací nainstaluje produkt [ProductName] do počítače. Pokračujte kliknutím na tlačítko Další, průvodce instalací ukončíte kliknutím na tlačítko Storno.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Toto připojení je neaktivní.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora je již spuštěna.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Otevřít aplikaci Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora se inicializuje...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Připojení přes předávací službu</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Připraveno k opravě produktu [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Počkejte, než průvodce instalací nainstaluje produkt [ProductName]. Může to trvat několik minut.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Opravit</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Přípony souborů:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Opraví chyby v poslední instalaci nahrazením chybějících nebo poškozených souborů a zástupců.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>&amp;Nezavírat aplikace. Bude vyžadován restart.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Průvodce instalací produktu [ProductName] byl dokončen</translation>
    </message>
</context>
</TS>
