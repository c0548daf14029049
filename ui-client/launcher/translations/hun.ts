<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>A Lumora váratlan hiba miatt leállította a szinkronizálást. Ellenőrizze a kapcsolat állapotát.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Megosztás engedélyezése</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Készenlét</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>A Lumora egy újabb verziója már telepítve van.\nSzeretné folytatni?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>A Lumora frissítése folyamatban. Kérjük, várjon...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Folyamat</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] telepítő</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Válassza ki a végrehajtandó műveletet.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Csatlakozás a kiszolgálóhoz...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Instabil kapcsolat</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}A(z) [ProductName] telepítővarázsló idő előtt befejeződött</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>A megosztott mappa nincs csatlakoztatva. Csatlakoztassa, majd próbálja újra.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>A letöltés befejeződött.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>A módosítások nincsenek mentve. Szeretné most menteni őket?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Eltávolítja a(z) [ProductName] terméket a számítógépről.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>A Lumora frissítése nem sikerült. Próbálja újra később.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Már létezik azonos nevű megosztott mappa. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>Ehhez a mappához csak olvasási hozzáféréssel rendelkezik. Az itt végzett módosítások nem lesznek szinkronizálva.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Szinkronizálás leállítva</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Csatlakozás új kiszolgálóhoz</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Csak letöltés</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Szelektív szinkronizálás fájlokhoz</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Nyomtatás</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Szinkronizálandó fájlok kiválasztása</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Csatlakoztatási pont hibája</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Zárja be ezeket az alkalmazásokat, és a folytatáshoz kattintson az Újra gombra, vagy kattintson a Kihagyás gombra, ha bezárásuk nélkül szeretné folytatni.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Számítógépnév</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Minden fájl naprakész.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Hiba történt (hibakód: %1). Segítségért forduljon a Quennet online ügyfélszolgálatához.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>A Lumora indul...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Biztosan megszünteti ennek a kapcsolatnak a társítását? A fájlok ezután nem lesznek szinkronizálva a kiszolgálóval.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Kilépés</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>A proxykiszolgáló hitelesítést igényel</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Befejezés</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Frissítés</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>A kiszolgálón lévő szinkronizálási mappa megváltozott. Társítsa újra ezt a kapcsolatot.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Kezelés</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>A(z) [ProductName] telepítéséhez később újra futtathatja a telepítővarázslót. A kilépéshez kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Eltávolítás</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Telepítés</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Kapcsolati mód észlelése...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Nemrég frissített fájlok</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>A felhasználónév vagy a jelszó helytelen.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Nem sikerült biztonságos kapcsolatot létesíteni a kiszolgálóval. Lehet, hogy a kiszolgáló tanúsítványa nem megbízható.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Átviteli statisztika</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>A kapcsolódási szolgáltatás nem érhető el. Próbálja újra később.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Biztonsági figyelmeztetés</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Válassza ki, mit tegyen a Lumora a beállítás befejezése után.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>A kijelölt mappa nem üres. A tartalma egyesítve lesz a kiszolgálón lévő fájlokkal.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>A(z) %1 nem szinkronizálható, mert a hozzáférés meg van tagadva, vagy használatban van.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Újra</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Megosztási hivatkozás másolása</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>A tárhely megtelt</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>A szinkronizálás szünetel.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Mappanév</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>A távoli mappa nem érhető el. Győződjön meg arról, hogy a kötet csatlakoztatva van a kiszolgálón.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>A helyi lemez megtelt. A szinkronizálás folytatásához szabadítson fel helyet.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Letöltési előzmények</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>A kiválasztott programszolgáltatások telepítése folyamatban van.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Tovább &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximális fájlméret:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Mappa módosítása</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Szinkronizálási feladatok</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Megosztás állapota</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>%1 fájl frissítve.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>A Lumora szinkronban tartja a számítógépén lévő fájlokat a kiszolgálóval. Copyright (C) Quennet. Minden jog fenntartva.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Kezelőoldal</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>Az alkalmazások &amp;automatikus bezárása és újraindításuk megkísérlése.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Kapcsolati és szinkronizálási információk megtekintése.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>A telepítővarázslóból való kilépéshez kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>A Lumora névjegye</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Kézi proxybeállítás</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Szinkronizálási állapotikonok megjelenítése a fájlokon és mappákon</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Fájlütközés történt. A fájl új neve: %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Telepítés módosítása, javítása vagy eltávolítása</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Megosztás leállítása</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Fájlnév</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Lehetővé teszi a szolgáltatások telepítési módjának módosítását.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Sikertelen hitelesítés</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>A megosztás nem található</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>A(z) [ProductName] indítása</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Letöltés</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Jelszó:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Protokollhiba történt a kiszolgálóval folytatott kommunikáció során.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nem</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>A szelektív szinkronizáláshoz a kiszolgálócsomag újabb verziója szükséges. Frissítse a csomagot a kiszolgálón.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>A telepítés javítása</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>A következő alkalmazások olyan fájlokat használnak, amelyeket ennek a telepítőnek frissítenie kell:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Fájljai minden számítógépen szinkronban.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Ikonok megjelenítése a szinkronizálásból kizárt fájlokon</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Az új nyelvi beállítások érvénybe léptetéséhez indítsa újra a(z) %1 alkalmazást.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Idő</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Felhasználónév és jelszó ellenőrzése...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Fájlváltozások figyelése...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Új megosztás</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>A(z) [ProductName] nem rendelkezik külön kiválasztható szolgáltatásokkal.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Új verzió érhető el. Kattintson ide a frissítéshez.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Szinkronizálandó mappák kiválasztása</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Szolgáltatás letiltva</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Újratársítás</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>A hálózati meghajtókon történt változások nem észlelhetők azonnal. A Lumora rendszeres időközönként ellenőrzi őket.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Üdvözöljük a(z) [ProductName] telepítésének karbantartásában</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Vissza</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Létrehozva</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>A kiszolgáló verziója túl régi. Frissítse a Lumora kiszolgálócsomagot.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Elfogadom a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>A kiszolgálón a szinkronizálási szolgáltatás le van tiltva. Kérje meg a rendszergazdát, hogy engedélyezze.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Korábbi verziók tallózása</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Nincs proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Egyetlen beállítás sem módosult.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Asztali értesítések megjelenítése</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>A Lumora ezen verziója már telepítve van.\nSzeretné újratelepíteni?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>A(z) [ProductName] telepítővarázsló hiba miatt idő előtt befejeződött. A rendszer nem módosult.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Használatban lévő fájlok</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Igen</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Hálózati beállítások</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Kizárási lista szerkesztése</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Meglévő fájlok egyesítése mappa társításakor</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>A letöltés megszakítva.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>A mappa indexelése folyamatban. Kérjük, várjon...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Váratlan hiba történt. Próbálja újra később.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>%1 megosztása</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>A kiszolgálóazonosító érvénytelen, vagy nem létezik.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Tartsa naprakészen a fájljait az összes számítógépén.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Általános beállítások</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Társítás megszüntetése</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Nem lehet csatlakozni a kiszolgálóhoz. Ellenőrizze a hálózati kapcsolatot.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktív</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Csak olvasható</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>A kijelölt mappa egy csatlakoztatási pont. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Adatok ellenőrzése...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Biztosan leállítja a mappa megosztását?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Nyelv:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Kihagyás</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Rendszer alapértelmezése</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>A Lumora automatikus indítása bejelentkezéskor</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]A(z) [ProductName] telepítésre kész</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Megosztás engedélyezve</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Javítás</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Adjon meg érvényes portszámot (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Figyelmesen olvassa el a következő licencszerződést.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>A Lumora telepítéséhez rendszergazdai jogosultság szükséges.\nMégis folytatja?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>A helyi szinkronizálási mappa nem található. Lehet, hogy áthelyezték vagy törölték.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Közvetlen kapcsolat</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Szelektív szinkronizálás mappákhoz</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Megosztás neve</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Kizárandó fájlnevek:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Ehhez a fájlhoz nem érhetők el korábbi verziók.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verzió</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>A kiszolgálón elfogyott a lemezterület. A szinkronizálás folytatásához szabadítson fel helyet a kiszolgálón.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Rendszerhiba történt a kiszolgálóhoz való csatlakozás közben.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>A(z) %1 fájlmegosztási hivatkozása a vágólapra került.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>A rendszer proxybeállításainak használata</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Biztosan törli ezt a megosztást?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Elhasználta a kiszolgálón rendelkezésére álló tárhelykvótát. Töröljön néhány fájlt, vagy forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Helyi mappa módosítása</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}A(z) [ProductName] telepítővarázsló megszakadt</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>A(z) [ProductName] telepítésének javításához kattintson a Javítás gombra. A telepítési beállítások áttekintéséhez vagy módosításához kattintson a Vissza gombra. A varázslóból való kilépéshez kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Kapcsolati mód</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>A kijelölésből eltávolított mappák törlődnek erről a számítógépről, de a kiszolgálón megmaradnak. Szeretné folytatni?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Verzióeltérés</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Sikeres csatlakozás.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Néhány frissítendő fájl jelenleg használatban van.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Beállítások alkalmazása...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Hozzáférés megtagadva</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Folytatás mindenképp</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Előkészítés...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>A beállítás befejeződött. A Lumora most megkezdi a fájlok szinkronizálását.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>A mappa nem üres</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Nem sikerült lekérni a fájl korábbi verzióit.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Kapcsolatadatok</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>A kiszolgáló SSL-tanúsítványát nem sikerült ellenőrizni.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-cím</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>A kiszolgálón lévő szinkronizálási mappa nem egyezik azzal a mappával, amelyhez ez a kapcsolat társítva lett.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Helyi tárhely</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Feltöltés</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Letiltva</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>A Lumora ezen verziója túl régi a kiszolgálóhoz való csatlakozáshoz. Frissítse a Lumora alkalmazást.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Felhasználónév:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Összegzés</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Egyszínű tálcaikon használata</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>A kijelölt mappa nem üres. Válasszon üres mappát, vagy egyesítse a tartalmát a kiszolgálóval.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]A(z) [ProductName] eltávolításra kész</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>%1 fájl feldolgozása...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Egyesítés</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>A kijelölt mappa csak olvasható. Válasszon olyan mappát, amelybe írni tud.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Helyi mappa kiválasztása</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Kapcsolat társításának megszüntetése</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Biztonságos kapcsolat használata (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Az ezeknek a szabályoknak megfelelő fájlok nem lesznek szinkronizálva.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>A(z) [ProductName] számítógépről való eltávolításához kattintson az Eltávolítás gombra. A telepítési beállítások áttekintéséhez vagy módosításához kattintson a Vissza gombra. A varázslóból való kilépéshez kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Másik mappa választása</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Szelektív szinkronizálás</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Indítás most</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Ön a program eltávolítását választotta a számítógépről.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Nem sikerült inicializálni a Lumora alkalmazást. Indítsa újra az alkalmazást.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>A hitelesítés sikertelen. Ellenőrizze a felhasználónevet és a jelszót.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Befejezés</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>A fájlok szinkronizálásának megkezdéséhez állítsa be a Lumora alkalmazást.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>A megosztást nem sikerült törölni. Próbálja újra.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>A mappában lévő fájlok egyesítve lesznek a kiszolgálón lévő fájlokkal. Ha két fájlnak azonos a neve, mindkettő megmarad, és az egyik át lesz nevezve.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Ez a fájl nem tölthető le.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Kiszolgálóazonosító</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Ez a kiszolgálómappa már társítva van egy másik szinkronizálási mappához ezen a számítógépen.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>IP-cím részletei</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Dupla kattintás művelete</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Szinkronizálási hiba</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Szinkronizálási mód</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Információ</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Több nevet vesszővel válasszon el. A * tetszőleges karakterekre illeszkedik.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Adja meg a proxykiszolgáló címét és portját.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>A telepítés eltávolítása</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>A telepítővarázsló segítségével módosíthatja a(z) [ProductName] szolgáltatásainak telepítési módját a számítógépen, vagy eltávolíthatja a terméket a számítógépről. A folytatáshoz kattintson a Tovább gombra, a telepítővarázslóból való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Speciális beállítások</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Kapcsolat tesztelése...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Csak olvasható mappa</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>A telepítés módosítása</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>A kiszolgálómappa megváltozott</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Engedélyezve</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>A megosztási hivatkozások nem érhetők el, amíg közvetítőszolgáltatáson keresztül csatlakozik.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cél</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Kizárt fájlok</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Áttekintés</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>A Lumora-mappa megnyitása</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>Megszakadt a kapcsolat a kiszolgálóval. A Lumora megpróbál újra csatlakozni.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Biztonságos kapcsolat</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Adatbázishiba történt. Indítsa újra a Lumora alkalmazást.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Üdvözli a(z) [ProductName] telepítővarázsló</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Végfelhasználói licencszerződés</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Megosztás</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Szinkronizálás iránya:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Jelenleg %1 fájl szinkronizálása folyamatban.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Mappa elérési útja</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Állapot:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Üdvözli a(z) %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Ehhez az elemhez nem hozható létre megosztási hivatkozás.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Állapotinformációk</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Válasszon egy helyi mappát a kiszolgálóval való szinkronizáláshoz.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Biztosan megszakítja a(z) [ProductName] telepítését?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]A(z) [ProductName] telepítése</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>A szinkronizálási mappa egy nem csatlakoztatott meghajtón található. Csatlakoztassa a meghajtót, majd próbálja újra.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Cím:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Adjon meg egy felhasználónevet.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Nem sikerült engedélyezni a megosztást. Próbálja újra később.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Helyi hálózat (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>A Lumora készen áll.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>A telepítővarázsló készen áll a(z) [ProductName] javításának megkezdésére.</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>A telepítés megkezdéséhez kattintson a Telepítés gombra. A telepítési beállítások áttekintéséhez vagy módosításához kattintson a Vissza gombra. A varázslóból való kilépéshez kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>A maximális méretnél nagyobb fájlok kihagyása a szinkronizálásból</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>A letöltés sikertelen.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Eltávolítás</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Kapcsolat szerkesztése</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Szinkronizálás újrapróbálása</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>Megosztottak Önnel egy új mappát.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>A(z) [ProductName] telepítése sikeresen befejeződött.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>A program későbbi telepítéséhez futtassa újra a telepítővarázslót. A varázsló bezárásához kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>A(z) [ProductName] telepítése megszakadt. A rendszer nem módosult.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Módosítás</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Nem fogadom el a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Helyi szinkronizálási mappa</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Frissítés...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Megszünteti a számítógép társítását a kiszolgálóval? A helyi fájlok nem törlődnek.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>A(z) %1 előtagú fájlok és mappák szinkronizálása.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Elérte a megosztások maximális számát.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Kapcsolat hozzáadása</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>Ütközés esetén:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Azonosító</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>A telepítővarázsló készen áll a(z) [ProductName] telepítésének megkezdésére.</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Kizárási lista:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>A telepítővarázsló telepíti a(z) [ProductName] terméket a számítógépre. A folytatáshoz kattintson a Tovább gombra, a telepítővarázslóból való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Ez a kapcsolat inaktív.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>A Lumora már fut.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>A Lumora megnyitása</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>A Lumora inicializálása folyamatban...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Közvetített kapcsolat</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]A(z) [ProductName] javításra kész</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Várjon, amíg a telepítővarázsló telepíti a(z) [ProductName] terméket. Ez több percig is eltarthat.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Javítás</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Fájlkiterjesztések:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Kijavítja a legutóbbi telepítés hibáit a hiányzó vagy sérült fájlok és parancsikonok pótlásával.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>&amp;Ne zárja be az alkalmazásokat. Újraindításra lesz szükség.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}A(z) [ProductName] telepítővarázsló befejeződött</translation>
    </message>
</context>
</TS>
