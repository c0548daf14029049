<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Aplikacja Lumora zatrzymała synchronizację z powodu nieoczekiwanego problemu. Sprawdź stan połączenia.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Włącz udostępnianie</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Tryb gotowości</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>Nowsza wersja aplikacji Lumora jest już zainstalowana.\nCzy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Trwa uaktualnianie aplikacji Lumora. Proszę czekać...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalator aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Wybierz operację, którą chcesz wykonać.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Łączenie z serwerem...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Niestabilne połączenie</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}Kreator instalacji aplikacji [ProductName] zakończył działanie przedwcześnie</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>Folder udostępniony nie jest zamontowany. Zamontuj go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Pobieranie zakończone.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Zmiany nie zostały zapisane. Czy chcesz je teraz zapisać?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Usuwa aplikację [ProductName] z komputera.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Nie można uaktualnić aplikacji Lumora. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Folder udostępniony o tej samej nazwie już istnieje. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>Masz dostęp do tego folderu tylko do odczytu. Wprowadzone tu zmiany nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Synchronizacja zatrzymana</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Połącz z nowym serwerem</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Tylko pobieranie</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Synchronizacja selektywna plików</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Drukuj</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Wybierz pliki do synchronizacji</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Błąd punktu montowania</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Zamknij te aplikacje i kliknij przycisk Ponów próbę, aby kontynuować, lub kliknij przycisk Ignoruj, aby kontynuować bez ich zamykania.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Nazwa komputera</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Wszystkie pliki są aktualne.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Wystąpił błąd (kod błędu: %1). Skontaktuj się z pomocą techniczną online firmy Quennet.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Uruchamianie aplikacji Lumora...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Czy na pewno chcesz odłączyć to połączenie? Pliki nie będą już synchronizowane z serwerem.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Wyjdź</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Serwer proxy wymaga uwierzytelnienia</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Uaktualnienie</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>Folder synchronizacji na serwerze został zmieniony. Powiąż ponownie to połączenie.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Zarządzaj</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>Możesz później ponownie uruchomić Kreatora instalacji, aby zainstalować aplikację [ProductName]. Kliknij przycisk Zakończ, aby wyjść.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instaluj</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Wykrywanie trybu połączenia...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Ostatnio zaktualizowane pliki</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Nazwa użytkownika lub hasło są nieprawidłowe.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Nie można nawiązać bezpiecznego połączenia z serwerem. Certyfikat serwera może nie być zaufany.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Statystyki transferu</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Nie można połączyć się z usługą połączeń. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Ostrzeżenie o zabezpieczeniach</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Wybierz, co aplikacja Lumora ma zrobić po zakończeniu instalacji.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>Wybrany folder nie jest pusty. Jego zawartość zostanie scalona z plikami na serwerze.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>Nie można zsynchronizować elementu %1, ponieważ odmówiono dostępu lub element jest w użyciu.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Ponów próbę</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Kopiuj link udostępniania</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Magazyn jest pełny</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>Synchronizacja jest wstrzymana.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Nazwa folderu</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>Folder zdalny jest niedostępny. Upewnij się, że wolumin na serwerze jest zamontowany.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>Dysk lokalny jest pełny. Zwolnij trochę miejsca, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Historia pobierania</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>Trwa instalowanie wybranych funkcji aplikacji.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Dalej &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maksymalny rozmiar pliku:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Zmień folder</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Zadania synchronizacji</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Stan udostępniania</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>Zaktualizowane pliki: %1.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Aplikacja Lumora synchronizuje pliki na komputerze z serwerem. Copyright (C) Quennet. Wszelkie prawa zastrzeżone.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Strona zarządzania</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Zamknij aplikacje automatycznie i spróbuj je ponownie uruchomić.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Wyświetl informacje o połączeniu i synchronizacji.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kliknij przycisk Zakończ, aby zamknąć Kreatora instalacji.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Informacje o aplikacji Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Ręczna konfiguracja serwera proxy</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Pokaż ikony stanu synchronizacji na plikach i folderach</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Wystąpił konflikt plików. Nazwa pliku została zmieniona na %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Zmień, napraw lub usuń instalację</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Zatrzymaj udostępnianie</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Umożliwia zmianę sposobu instalacji funkcji.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Uwierzytelnianie nie powiodło się</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Nie znaleziono udziału</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Uruchom aplikację [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Pobieranie</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Wystąpił błąd protokołu podczas komunikacji z serwerem.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>Synchronizacja selektywna wymaga nowszej wersji pakietu serwera. Zaktualizuj pakiet na serwerze.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Napraw instalację</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Ładowanie...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>Następujące aplikacje używają plików, które muszą zostać zaktualizowane przez ten instalator:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Twoje pliki zsynchronizowane na każdym komputerze.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Pokaż ikony na plikach wykluczonych z synchronizacji</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Uruchom ponownie %1, aby zastosować nowe ustawienia języka.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Sprawdzanie nazwy użytkownika i hasła...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Monitorowanie zmian plików...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nowy udział</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>Aplikacja [ProductName] nie ma funkcji, które można wybrać osobno.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Dostępna jest nowa wersja. Kliknij, aby zaktualizować.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Wybierz foldery do synchronizacji</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Usługa wyłączona</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Powiąż ponownie</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akcja</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Zmian na dyskach sieciowych nie można wykryć natychmiast. Aplikacja Lumora będzie sprawdzać je w regularnych odstępach czasu.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Witamy w trybie konserwacji instalacji aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Wstecz</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Utworzono</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>Wersja serwera jest zbyt stara. Zaktualizuj pakiet Lumora na serwerze.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Akceptuję warunki umowy licencyjnej</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>Usługa synchronizacji na serwerze jest wyłączona. Poproś administratora o jej włączenie.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Przeglądaj poprzednie wersje</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Bez serwera proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Nie zmieniono żadnych ustawień.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Pokaż powiadomienia na pulpicie</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Ta wersja aplikacji Lumora jest już zainstalowana.\nCzy chcesz ją zainstalować ponownie?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Kreator instalacji aplikacji [ProductName] zakończył działanie przedwcześnie z powodu błędu. System nie został zmodyfikowany.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Pliki w użyciu</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Ustawienia sieci</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Edytuj listę wykluczeń</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Scalaj istniejące pliki podczas powiązywania folderu</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Pobieranie anulowane.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Indeksowanie folderu. Proszę czekać...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Wystąpił nieoczekiwany błąd. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>Udostępnianie: %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>Identyfikator serwera jest nieprawidłowy lub nie istnieje.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Utrzymuj aktualne pliki na wszystkich swoich komputerach.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Opcje ogólne</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Odłącz</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Nie można połączyć się z serwerem. Sprawdź połączenie sieciowe.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Nieaktywne</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>Wybrany folder jest punktem montowania. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Sprawdzanie danych...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Czy na pewno chcesz zatrzymać udostępnianie tego folderu?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Język:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignoruj</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Ustawienie domyślne systemu</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Uruchamiaj aplikację Lumora automatycznie po zalogowaniu</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Gotowość do instalacji aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Udostępnianie włączone</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Napra&amp;w</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Wprowadź prawidłowy numer portu (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Przeczytaj uważnie poniższą umowę licencyjną.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>Instalacja aplikacji Lumora wymaga uprawnień administratora.\nCzy mimo to chcesz kontynuować?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Nie można znaleźć lokalnego folderu synchronizacji. Mógł zostać przeniesiony lub usunięty.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Połączenie bezpośrednie</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Synchronizacja selektywna folderów</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Nazwa udziału</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Nazwy plików do wykluczenia:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Brak poprzednich wersji tego pliku.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>Na serwerze brakuje miejsca na dysku. Zwolnij miejsce na serwerze, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Wystąpił błąd systemowy podczas łączenia z serwerem.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>Link udostępniania dla elementu %1 został skopiowany do schowka.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Użyj systemowych ustawień serwera proxy</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Czy na pewno chcesz usunąć ten udział?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Wykorzystano limit miejsca na serwerze. Usuń niektóre pliki lub skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Zmień folder lokalny</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Działanie Kreatora instalacji aplikacji [ProductName] zostało przerwane</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknij przycisk Napraw, aby naprawić instalację aplikacji [ProductName]. Kliknij przycisk Wstecz, aby przejrzeć lub zmienić ustawienia instalacji. Kliknij przycisk Anuluj, aby zamknąć kreatora.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Tryb połączenia</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Odznaczone foldery zostaną usunięte z tego komputera, ale pozostaną na serwerze. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Niezgodność wersji</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Połączono pomyślnie.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Niektóre pliki, które muszą zostać zaktualizowane, są obecnie w użyciu.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Stosowanie ustawień...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Odmowa dostępu</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Kontynuuj mimo to</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Przygotowywanie...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>Instalacja została zakończona. Aplikacja Lumora rozpocznie teraz synchronizację plików.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Folder nie jest pusty</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Nie można uzyskać listy poprzednich wersji tego pliku.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Informacje o połączeniu</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>Nie można zweryfikować certyfikatu SSL serwera.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Adres IP</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>Folder synchronizacji na serwerze nie odpowiada folderowi, z którym powiązano to połączenie.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Magazyn lokalny</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Wysyłanie</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Ta wersja aplikacji Lumora jest zbyt stara, aby połączyć się z serwerem. Zaktualizuj aplikację Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Użyj monochromatycznej ikony w zasobniku systemowym</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>Wybrany folder nie jest pusty. Wybierz pusty folder lub scal jego zawartość z serwerem.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Gotowość do usunięcia aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Przetwarzanie plików: %1...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Wybrany folder jest tylko do odczytu. Wybierz folder, w którym możesz zapisywać.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Wybierz folder lokalny</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Odłącz połączenie</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Użyj bezpiecznego połączenia (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Pliki zgodne z tymi regułami nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknij przycisk Usuń, aby usunąć aplikację [ProductName] z komputera. Kliknij przycisk Wstecz, aby przejrzeć lub zmienić ustawienia instalacji. Kliknij przycisk Anuluj, aby zamknąć kreatora.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Wybierz inny folder</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Synchronizacja selektywna</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Rozpocznij teraz</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Wybrano usunięcie aplikacji z komputera.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Nie można zainicjować aplikacji Lumora. Uruchom ponownie aplikację.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Uwierzytelnianie nie powiodło się. Sprawdź nazwę użytkownika i hasło.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Skonfiguruj aplikację Lumora, aby rozpocząć synchronizację plików.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>Nie można usunąć udziału. Spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Pliki w tym folderze zostaną scalone z plikami na serwerze. Jeśli dwa pliki mają tę samą nazwę, oba zostaną zachowane, a nazwa jednego z nich zostanie zmieniona.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Nie można pobrać tego pliku.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Identyfikator serwera</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Ten folder serwera jest już powiązany z innym folderem synchronizacji na tym komputerze.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>Szczegóły adresu IP</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Działanie po dwukrotnym kliknięciu</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Błąd synchronizacji</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Tryb synchronizacji</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Oddziel wiele nazw przecinkami. Użyj znaku *, aby dopasować dowolne znaki.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Wprowadź adres i port serwera proxy.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Usuń instalację</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kreator instalacji umożliwia zmianę sposobu instalacji funkcji aplikacji [ProductName] na komputerze lub usunięcie jej z komputera. Kliknij przycisk Dalej, aby kontynuować, lub przycisk Anuluj, aby zamknąć Kreatora instalacji.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Ustawienia zaawansowane</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testowanie połączenia...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Folder tylko do odczytu</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Zmień instalację</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Folder serwera został zmieniony</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Linki udostępniania są niedostępne, gdy połączenie jest realizowane przez usługę przekaźnikową.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Wykluczone pliki</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Przegląd</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Otwórz folder Lumora</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>Utracono połączenie z serwerem. Aplikacja Lumora spróbuje połączyć się ponownie.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Bezpieczne połączenie</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Wystąpił błąd bazy danych. Uruchom ponownie aplikację Lumora.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Witamy w Kreatorze instalacji aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Umowa licencyjna użytkownika końcowego</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Udostępnianie</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Kierunek synchronizacji:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Trwa synchronizacja plików: %1.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Ścieżka folderu</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Stan:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Witamy w aplikacji %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Nie można utworzyć linku udostępniania dla tego elementu.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Informacje o stanie</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Wybierz folder lokalny do synchronizacji z serwerem.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Czy na pewno chcesz anulować instalację aplikacji [ProductName]?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Instalowanie aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>Folder synchronizacji znajduje się na dysku, który nie jest podłączony. Podłącz dysk i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Wprowadź nazwę użytkownika.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Nie można włączyć udostępniania. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Sieć lokalna (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Aplikacja Lumora jest gotowa.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>Kreator instalacji jest gotowy do rozpoczęcia naprawy aplikacji [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Kliknij przycisk Instaluj, aby rozpocząć instalację. Kliknij przycisk Wstecz, aby przejrzeć lub zmienić ustawienia instalacji. Kliknij przycisk Anuluj, aby zamknąć kreatora.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Nie synchronizuj plików większych niż maksymalny rozmiar</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Pobieranie nie powiodło się.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>U&amp;suń</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Edytuj połączenie</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Ponów synchronizację</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>Udostępniono Ci nowy folder.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>Aplikacja [ProductName] została pomyślnie zainstalowana.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Aby zainstalować aplikację później, uruchom ponownie Kreatora instalacji. Kliknij przycisk Zakończ, aby zamknąć tego kreatora.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Instalacja aplikacji [ProductName] została przerwana. System nie został zmodyfikowany.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Zmień</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Nie akceptuję warunków umowy licencyjnej</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Lokalny folder synchronizacji</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizowanie...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Czy chcesz odłączyć ten komputer od serwera? Pliki lokalne nie zostaną usunięte.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Synchronizuj pliki i foldery z prefiksem %1.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Osiągnięto maksymalną liczbę udziałów.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Dodaj połączenie</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>W przypadku konfliktu:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Identyfikator</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Kreator instalacji jest gotowy do rozpoczęcia instalacji aplikacji [ProductName].</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Lista wykluczeń:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kreator instalacji zainstaluje aplikację [ProductName] na komputerze. Kliknij przycisk Dalej, aby kontynuować, lub przycisk Anuluj, aby zamknąć Kreatora instalacji.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>To połączenie jest nieaktywne.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Aplikacja Lumora jest już uruchomiona.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Otwórz aplikację Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Aplikacja Lumora jest inicjowana...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Połączenie przez przekaźnik</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Gotowość do naprawy aplikacji [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Poczekaj, aż Kreator instalacji zainstaluje aplikację [ProductName]. Może to potrwać kilka minut.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Napraw</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Rozszerzenia plików:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Naprawia błędy w ostatniej instalacji przez zastąpienie brakujących lub uszkodzonych plików i skrótów.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>&amp;Nie zamykaj aplikacji. Wymagane będzie ponowne uruchomienie komputera.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Zakończono działanie Kreatora instalacji aplikacji [ProductName]</translation>
    </message>
</context>
</TS>
