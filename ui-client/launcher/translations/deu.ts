<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora hat die Synchronisierung aufgrund eines unerwarteten Problems angehalten. Bitte überprüfen Sie den Verbindungsstatus.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Freigabe aktivieren</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>Eine neuere Version von Lumora ist bereits installiert.\nMöchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Lumora wird aktualisiert. Bitte warten ...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation von [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Wählen Sie den gewünschten Vorgang aus.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Verbindung mit dem Server wird hergestellt ...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Verbindung instabil</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}Der Setup-Assistent für [ProductName] wurde vorzeitig beendet</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>Der freigegebene Ordner ist nicht eingehängt. Bitte hängen Sie ihn ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download abgeschlossen.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Ihre Änderungen wurden nicht gespeichert. Möchten Sie sie jetzt speichern?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Entfernt [ProductName] von Ihrem Computer.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Lumora konnte nicht aktualisiert werden. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Es ist bereits ein freigegebener Ordner mit demselben Namen vorhanden. Bitte wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>Sie haben nur Lesezugriff auf diesen Ordner. Änderungen, die Sie hier vornehmen, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Synchronisierung angehalten</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Mit einem neuen Server verbinden</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Nur herunterladen</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Selektive Synchronisierung für Dateien</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Zu synchronisierende Dateien auswählen</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Einhängepunktfehler</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Schließen Sie diese Anwendungen und klicken Sie auf „Wiederholen“, um fortzufahren, oder klicken Sie auf „Ignorieren“, um fortzufahren, ohne sie zu schließen.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Computername</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle Dateien sind auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Wird heruntergeladen ...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Ein Fehler ist aufgetreten (Fehlercode: %1). Bitte wenden Sie sich an den Onlinesupport von Quennet.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Lumora wird gestartet ...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Möchten Sie die Verknüpfung dieser Verbindung wirklich aufheben? Die Dateien werden dann nicht mehr mit dem Server synchronisiert.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Der Proxyserver erfordert eine Authentifizierung</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertig stellen</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>Der Synchronisierungsordner auf dem Server wurde geändert. Bitte verknüpfen Sie diese Verbindung erneut.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>Sie können den Setup-Assistenten später erneut ausführen, um [ProductName] zu installieren. Klicken Sie auf „Fertig stellen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Verbindungsmodus wird ermittelt ...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Zuletzt aktualisierte Dateien</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Der Benutzername oder das Kennwort ist falsch.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Es konnte keine sichere Verbindung zum Server hergestellt werden. Das Serverzertifikat ist möglicherweise nicht vertrauenswürdig.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Übertragungsstatistik</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Der Verbindungsdienst ist nicht erreichbar. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Sicherheitswarnung</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Wählen Sie aus, was Lumora nach Abschluss der Einrichtung tun soll.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>Der ausgewählte Ordner ist nicht leer. Sein Inhalt wird mit den Dateien auf dem Server zusammengeführt.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>%1 kann nicht synchronisiert werden, da der Zugriff verweigert wurde oder die Datei gerade verwendet wird.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Freigabelink kopieren</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Speicher voll</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>Die Synchronisierung ist pausiert.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Ordnername</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>Der Remoteordner ist nicht verfügbar. Bitte stellen Sie sicher, dass das Volume auf dem Server eingehängt ist.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>Ihr lokaler Datenträger ist voll. Bitte geben Sie Speicherplatz frei, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Downloadverlauf</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>Die ausgewählten Programmfunktionen werden installiert.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Weiter &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximale Dateigröße:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Ordner ändern</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Synchronisierungsaufgaben</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Freigabestatus</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>%1 Dateien aktualisiert.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora hält die Dateien auf Ihrem Computer mit Ihrem Server synchron. Copyright (C) Quennet. Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Verwaltungsseite</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>Anwendungen automatisch &amp;schließen und versuchen, sie neu zu starten.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Verbindungs- und Synchronisierungsinformationen anzeigen.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Klicken Sie auf „Fertig stellen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Über Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manuelle Proxykonfiguration</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Synchronisierungsstatussymbole auf Dateien und Ordnern anzeigen</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Es ist ein Dateikonflikt aufgetreten. Die Datei wurde in %1 umbenannt.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Installation ändern, reparieren oder entfernen</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Freigabe beenden</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Hiermit können Sie ändern, wie die Funktionen installiert werden.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Authentifizierung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Freigabe nicht gefunden</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] starten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausieren</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Download läuft</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Kennwort:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Bei der Kommunikation mit dem Server ist ein Protokollfehler aufgetreten.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>Die selektive Synchronisierung erfordert eine neuere Version des Serverpakets. Bitte aktualisieren Sie das Paket auf Ihrem Server.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Installation reparieren</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen ...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>Die folgenden Anwendungen verwenden Dateien, die von diesem Setup aktualisiert werden müssen:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Ihre Dateien – synchron auf jedem Computer.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Symbole auf Dateien anzeigen, die von der Synchronisierung ausgeschlossen sind</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Bitte starten Sie %1 neu, um die neuen Spracheinstellungen zu übernehmen.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Benutzername und Kennwort werden überprüft ...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Dateiänderungen werden überwacht ...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Neue Freigabe</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] enthält keine Funktionen, die separat ausgewählt werden können.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Eine neue Version ist verfügbar. Klicken Sie hier, um zu aktualisieren.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Zu synchronisierende Ordner auswählen</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Dienst deaktiviert</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Erneut verknüpfen</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Änderungen auf Netzlaufwerken können nicht sofort erkannt werden. Lumora überprüft sie in regelmäßigen Abständen.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Willkommen bei der Setup-Wartung von [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>Die Serverversion ist zu alt. Bitte aktualisieren Sie das Lumora-Serverpaket.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Ich &amp;akzeptiere die Bedingungen der Lizenzvereinbarung</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>Der Synchronisierungsdienst auf dem Server ist deaktiviert. Bitte wenden Sie sich an Ihren Administrator, um ihn aktivieren zu lassen.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Vorherige Versionen durchsuchen</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Kein Proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Es wurden keine Einstellungen geändert.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Desktopbenachrichtigungen anzeigen</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Diese Version von Lumora ist bereits installiert.\nMöchten Sie sie erneut installieren?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Der Setup-Assistent für [ProductName] wurde aufgrund eines Fehlers vorzeitig beendet. Ihr System wurde nicht geändert.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Dateien in Verwendung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Netzwerkeinstellungen</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Ausschlussliste bearbeiten</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Vorhandene Dateien beim Verknüpfen eines Ordners zusammenführen</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Download abgebrochen.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Der Ordner wird indiziert. Bitte warten ...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Ein unerwarteter Fehler ist aufgetreten. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>Freigabe von %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>Die Server-ID ist ungültig oder existiert nicht.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Halten Sie Ihre Dateien auf allen Ihren Computern auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Allgemeine Optionen</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Verknüpfung aufheben</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Es kann keine Verbindung zum Server hergestellt werden. Bitte überprüfen Sie Ihre Netzwerkverbindung.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>Der ausgewählte Ordner ist ein Einhängepunkt. Bitte wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Daten werden überprüft ...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Möchten Sie die Freigabe dieses Ordners wirklich beenden?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorieren</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Systemstandard</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Lumora bei der Anmeldung automatisch starten</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Bereit zur Installation von [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Freigabe aktiviert</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Reparieren</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Bitte geben Sie eine gültige Portnummer ein (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Bitte lesen Sie die folgende Lizenzvereinbarung sorgfältig durch.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>Für die Installation von Lumora sind Administratorrechte erforderlich.\nMöchten Sie trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Der lokale Synchronisierungsordner wurde nicht gefunden. Er wurde möglicherweise verschoben oder gelöscht.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Direktverbindung</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Selektive Synchronisierung für Ordner</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Freigabename</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Auszuschließende Dateinamen:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Für diese Datei sind keine vorherigen Versionen verfügbar.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>Auf dem Server ist kein Speicherplatz mehr verfügbar. Bitte geben Sie Speicherplatz auf dem Server frei, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Beim Herstellen der Verbindung zum Server ist ein Systemfehler aufgetreten.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>Der Freigabelink für %1 wurde in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Proxyeinstellungen des Systems verwenden</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Möchten Sie diese Freigabe wirklich löschen?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Sie haben Ihr Speicherkontingent auf dem Server aufgebraucht. Bitte löschen Sie einige Dateien oder wenden Sie sich an Ihren Administrator.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Lokalen Ordner ändern</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Der Setup-Assistent für [ProductName] wurde unterbrochen</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicken Sie auf „Reparieren“, um die Installation von [ProductName] zu reparieren. Klicken Sie auf „Zurück“, um Ihre Installationseinstellungen zu überprüfen oder zu ändern. Klicken Sie auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Verbindungsmodus</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Ordner, deren Auswahl Sie aufheben, werden von diesem Computer entfernt, bleiben aber auf dem Server erhalten. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Versionskonflikt</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Verbindung erfolgreich hergestellt.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Einige Dateien, die aktualisiert werden müssen, werden zurzeit verwendet.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Einstellungen werden übernommen ...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Trotzdem fortfahren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Wird vorbereitet ...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>Die Einrichtung ist abgeschlossen. Lumora beginnt jetzt mit der Synchronisierung Ihrer Dateien.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Ordner nicht leer</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Die vorherigen Versionen dieser Datei konnten nicht abgerufen werden.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Verbindungsinformationen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>Das SSL-Zertifikat des Servers konnte nicht überprüft werden.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>Der Synchronisierungsordner auf dem Server stimmt nicht mit dem Ordner überein, mit dem diese Verbindung verknüpft wurde.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Lokaler Speicher</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Upload läuft</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Diese Version von Lumora ist zu alt, um eine Verbindung zum Server herzustellen. Bitte aktualisieren Sie Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Einfarbiges Symbol im Infobereich verwenden</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>Der ausgewählte Ordner ist nicht leer. Bitte wählen Sie einen leeren Ordner aus oder führen Sie seinen Inhalt mit dem Server zusammen.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Bereit zum Entfernen von [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>%1 Datei(en) werden verarbeitet ...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Der ausgewählte Ordner ist schreibgeschützt. Bitte wählen Sie einen Ordner, in den Sie schreiben können.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Lokalen Ordner auswählen</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Verknüpfung der Verbindung aufheben</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Sichere Verbindung (SSL) verwenden</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Dateien, die diesen Regeln entsprechen, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicken Sie auf „Entfernen“, um [ProductName] von Ihrem Computer zu entfernen. Klicken Sie auf „Zurück“, um Ihre Installationseinstellungen zu überprüfen oder zu ändern. Klicken Sie auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Anderen Ordner auswählen</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selektive Synchronisierung</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Jetzt starten</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Sie haben sich entschieden, das Programm von Ihrem Computer zu entfernen.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Lumora konnte nicht initialisiert werden. Bitte starten Sie die Anwendung neu.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Authentifizierung fehlgeschlagen. Bitte überprüfen Sie Ihren Benutzernamen und Ihr Kennwort.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertig stellen</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Richten Sie Lumora ein, um mit der Synchronisierung Ihrer Dateien zu beginnen.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>Die Freigabe konnte nicht gelöscht werden. Bitte versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Dateien in diesem Ordner werden mit den Dateien auf dem Server zusammengeführt. Wenn zwei Dateien denselben Namen haben, werden beide beibehalten und eine davon wird umbenannt.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Diese Datei kann nicht heruntergeladen werden.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Server-ID</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Dieser Serverordner ist bereits mit einem anderen Synchronisierungsordner auf diesem Computer verknüpft.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>IP-Adressdetails</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Aktion bei Doppelklick</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Synchronisierungsfehler</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Synchronisierungsmodus</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Trennen Sie mehrere Namen durch Kommas. Verwenden Sie * als Platzhalter für beliebige Zeichen.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Bitte geben Sie die Adresse und den Port des Proxyservers ein.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Installation entfernen</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Mit dem Setup-Assistenten können Sie ändern, wie die Funktionen von [ProductName] auf Ihrem Computer installiert werden, oder das Programm von Ihrem Computer entfernen. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbindung wird getestet ...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Schreibgeschützter Ordner</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Installation ändern</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Serverordner geändert</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Freigabelinks sind nicht verfügbar, solange Sie über den Relay-Dienst verbunden sind.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Ausgeschlossene Dateien</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Lumora-Ordner öffnen</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>Die Verbindung zum Server wurde unterbrochen. Lumora versucht, die Verbindung wiederherzustellen.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Sichere Verbindung</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Ein Datenbankfehler ist aufgetreten. Bitte starten Sie Lumora neu.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Willkommen beim Setup-Assistenten für [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Endbenutzer-Lizenzvereinbarung</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Freigabe</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Synchronisierungsrichtung:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>%1 Dateien werden gerade synchronisiert.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Ordnerpfad</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Willkommen bei %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Für dieses Element kann kein Freigabelink erstellt werden.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Statusinformationen</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Wählen Sie einen lokalen Ordner aus, der mit dem Server synchronisiert werden soll.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Möchten Sie die Installation von [ProductName] wirklich abbrechen?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] wird installiert</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>Der Synchronisierungsordner befindet sich auf einem Laufwerk, das nicht angeschlossen ist. Bitte schließen Sie das Laufwerk an und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Bitte geben Sie einen Benutzernamen ein.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Die Freigabe konnte nicht aktiviert werden. Bitte versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Lokales Netzwerk (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora ist bereit.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>Der Setup-Assistent ist bereit, mit der Reparatur von [ProductName] zu beginnen.</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Klicken Sie auf „Installieren“, um die Installation zu starten. Klicken Sie auf „Zurück“, um Ihre Installationseinstellungen zu überprüfen oder zu ändern. Klicken Sie auf „Abbrechen“, um den Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Keine Dateien synchronisieren, die größer als die maximale Größe sind</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Download fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Verbindung bearbeiten</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Synchronisierung wiederholen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>Ein neuer Ordner wurde für Sie freigegeben.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] wurde erfolgreich installiert.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Um das Programm später zu installieren, führen Sie den Setup-Assistenten erneut aus. Klicken Sie auf „Fertig stellen“, um diesen Assistenten zu schließen.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Die Installation von [ProductName] wurde unterbrochen. Ihr System wurde nicht geändert.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Ändern</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Ich akzeptiere die Bedingungen der Lizenzvereinbarung &amp;nicht</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Lokaler Synchronisierungsordner</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Wird aktualisiert ...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Möchten Sie die Verknüpfung dieses Computers mit dem Server aufheben? Ihre lokalen Dateien werden nicht gelöscht.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Dateien und Ordner mit dem Präfix %1 synchronisieren.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Sie haben die maximale Anzahl an Freigaben erreicht.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Verbindung hinzufügen</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>Bei einem Konflikt:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Der Setup-Assistent ist bereit, mit der Installation von [ProductName] zu beginnen.</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Ausschlussliste:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Der Setup-Assistent installiert [ProductName] auf Ihrem Computer. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um den Setup-Assistenten zu beenden.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Diese Verbindung ist inaktiv.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora wird bereits ausgeführt.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Lumora öffnen</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora wird initialisiert ...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Relay-Verbindung</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Bereit zur Reparatur von [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Bitte warten Sie, während der Setup-Assistent [ProductName] installiert. Dies kann einige Minuten dauern.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparieren</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Dateierweiterungen:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Behebt Fehler in der letzten Installation, indem fehlende oder beschädigte Dateien und Verknüpfungen ersetzt werden.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>Anwendungen &amp;nicht schließen. Ein Neustart ist erforderlich.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Der Setup-Assistent für [ProductName] wurde abgeschlossen</translation>
    </message>
</context>
</TS>
