<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora прекратил синхронизацию из-за непредвиденной проблемы. Проверьте состояние подключения.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Включить общий доступ</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Режим ожидания</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>Уже установлена более новая версия Lumora.\nПродолжить?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Обновление Lumora. Подождите...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Установка [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Выберите операцию, которую требуется выполнить.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Подключение к серверу...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Нестабильное подключение</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}Мастер установки [ProductName] преждевременно завершил работу</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>Общая папка не смонтирована. Смонтируйте ее и повторите попытку.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Скачивание завершено.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Изменения не сохранены. Сохранить их сейчас?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Удаляет [ProductName] с компьютера.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Не удалось обновить Lumora. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Общая папка с таким именем уже существует. Выберите другую папку.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>У вас есть доступ к этой папке только для чтения. Внесенные здесь изменения не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Синхронизация остановлена</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Подключиться к новому серверу</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Порт:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Только скачивание</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Выборочная синхронизация файлов</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Печать</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Выберите файлы для синхронизации</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Ошибка точки монтирования</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Закройте эти приложения и нажмите «Повторить», чтобы продолжить, или нажмите «Пропустить», чтобы продолжить, не закрывая их.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Имя компьютера</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Все файлы актуальны.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Интернет (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Скачивание...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Произошла ошибка (код ошибки: %1). Обратитесь за помощью в онлайн-службу поддержки Quennet.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Запуск Lumora...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Вы действительно хотите отвязать это подключение? Файлы больше не будут синхронизироваться с сервером.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Прокси-сервер требует проверки подлинности</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Готово</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>Папка синхронизации на сервере изменилась. Привяжите это подключение заново.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>Чтобы установить [ProductName], можно позже снова запустить мастер установки. Нажмите «Готово», чтобы выйти.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Установить</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Определение режима подключения...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Недавно обновленные файлы</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Неверное имя пользователя или пароль.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Не удалось установить защищенное подключение к серверу. Возможно, сертификат сервера не является доверенным.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Статистика передачи</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Служба подключения недоступна. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Предупреждение системы безопасности</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Выберите, что должен сделать Lumora после завершения установки.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>Выбранная папка не пуста. Ее содержимое будет объединено с файлами на сервере.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>Не удается синхронизировать %1: отказано в доступе или объект используется.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Копировать ссылку для общего доступа</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Хранилище заполнено</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>Синхронизация приостановлена.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Имя папки</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>Удаленная папка недоступна. Убедитесь, что том на сервере смонтирован.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>Локальный диск заполнен. Освободите место, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Журнал скачиваний</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>Выполняется установка выбранных компонентов программы.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Далее &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Максимальный размер файла:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Изменить папку</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Задачи синхронизации</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси-сервер</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Состояние общего доступа</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>Обновлено файлов: %1.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora синхронизирует файлы на вашем компьютере с сервером. Copyright (C) Quennet. Все права защищены.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Страница управления</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Автоматически закрыть приложения и попытаться перезапустить их.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Просмотр сведений о подключении и синхронизации.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Нажмите кнопку «Готово», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>О программе Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Настройка прокси-сервера вручную</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Показывать значки состояния синхронизации на файлах и папках</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Обнаружен конфликт файлов. Файл переименован в %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Изменение, исправление или удаление установки</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Закрыть общий доступ</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Позволяет изменить способ установки компонентов.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Ошибка проверки подлинности</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Общий ресурс не найден</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Запустить [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Скачивание</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>При обмене данными с сервером произошла ошибка протокола.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>Для выборочной синхронизации требуется более новая версия серверного пакета. Обновите пакет на сервере.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Исправить установку</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>Следующие приложения используют файлы, которые должна обновить программа установки:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Ваши файлы синхронизированы на всех компьютерах.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Показывать значки на файлах, исключенных из синхронизации</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Перезапустите %1, чтобы применить новые языковые настройки.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Проверка имени пользователя и пароля...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Отслеживание изменений файлов...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Новый общий ресурс</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>В [ProductName] нет компонентов, которые можно выбрать по отдельности.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Доступна новая версия. Щелкните, чтобы обновить.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Выберите папки для синхронизации</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Служба отключена</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Привязать заново</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Изменения на сетевых дисках невозможно обнаружить сразу. Lumora будет периодически проверять их.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Добро пожаловать в режим обслуживания установки [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Назад</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Дата создания</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>Версия сервера устарела. Обновите серверный пакет Lumora.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Я &amp;принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>Служба синхронизации на сервере отключена. Попросите администратора включить ее.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Просмотреть предыдущие версии</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Без прокси-сервера</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Настройки не изменялись.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Показывать уведомления на рабочем столе</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Эта версия Lumora уже установлена.\nПереустановить ее?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>Мастер установки [ProductName] преждевременно завершил работу из-за ошибки. Система не была изменена.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Используемые файлы</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Настройки сети</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Изменить список исключений</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Объединять существующие файлы при привязке папки</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Скачивание отменено.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Индексирование папки. Подождите...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Произошла непредвиденная ошибка. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>Общий доступ к %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>ИД сервера недействителен или не существует.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Поддерживайте актуальность файлов на всех своих компьютерах.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Общие параметры</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Отвязать</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Не удается подключиться к серверу. Проверьте сетевое подключение.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Неактивно</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>Выбранная папка является точкой монтирования. Выберите другую папку.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Проверка данных...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Вы действительно хотите закрыть общий доступ к этой папке?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Язык:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Пропустить</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Автоматически запускать Lumora при входе в систему</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Все готово к установке [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Общий доступ включен</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Исправить</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Введите допустимый номер порта (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Внимательно прочтите следующее лицензионное соглашение.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>Для установки Lumora требуются права администратора.\nВсе равно продолжить?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Не удается найти локальную папку синхронизации. Возможно, она была перемещена или удалена.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Прямое подключение</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Выборочная синхронизация папок</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Имя общего ресурса</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Исключаемые имена файлов:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Для этого файла нет предыдущих версий.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>На сервере недостаточно места на диске. Освободите место на сервере, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>При подключении к серверу произошла системная ошибка.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>Ссылка для общего доступа к %1 скопирована в буфер обмена.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Использовать системные настройки прокси-сервера</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Вы действительно хотите удалить этот общий ресурс?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Вы израсходовали квоту хранилища на сервере. Удалите часть файлов или обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Изменить локальную папку</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Работа мастера установки [ProductName] прервана</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Нажмите «Исправить», чтобы исправить установку [ProductName]. Нажмите «Назад», чтобы просмотреть или изменить параметры установки. Нажмите «Отмена», чтобы выйти из мастера.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Режим подключения</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Папки, с которых снят флажок, будут удалены с этого компьютера, но останутся на сервере. Продолжить?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Несоответствие версий</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Подключение выполнено.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Некоторые файлы, которые необходимо обновить, сейчас используются.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Применение настроек...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Доступ запрещен</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Все равно продолжить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Подготовка...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>Установка завершена. Lumora начнет синхронизацию ваших файлов.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Папка не пуста</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Не удалось получить предыдущие версии этого файла.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Сведения о подключении</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>Не удалось проверить SSL-сертификат сервера.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-адрес</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>Папка синхронизации на сервере не совпадает с папкой, к которой было привязано это подключение.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Локальное хранилище</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Отправка</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Отключено</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Эта версия Lumora устарела и не может подключиться к серверу. Обновите Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Имя пользователя:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Использовать монохромный значок в области уведомлений</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>Выбранная папка не пуста. Выберите пустую папку или объедините ее содержимое с данными на сервере.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Все готово к удалению [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Обработка файлов: %1...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Выбранная папка доступна только для чтения. Выберите папку, в которую разрешена запись.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Выберите локальную папку</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Отвязать подключение</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Использовать защищенное подключение (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Файлы, соответствующие этим правилам, не будут синхронизироваться.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Нажмите «Удалить», чтобы удалить [ProductName] с компьютера. Нажмите «Назад», чтобы просмотреть или изменить параметры установки. Нажмите «Отмена», чтобы выйти из мастера.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Выбрать другую папку</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Выборочная синхронизация</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Начать сейчас</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Вы решили удалить программу с компьютера.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Не удалось инициализировать Lumora. Перезапустите приложение.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Ошибка проверки подлинности. Проверьте имя пользователя и пароль.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Настройте Lumora, чтобы начать синхронизацию файлов.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>Не удалось удалить общий ресурс. Повторите попытку.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Файлы в этой папке будут объединены с файлами на сервере. Если у двух файлов одинаковые имена, сохраняются оба, а один из них переименовывается.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Этот файл невозможно скачать.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ИД сервера</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Эта папка сервера уже привязана к другой папке синхронизации на этом компьютере.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>Сведения об IP-адресе</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Действие при двойном щелчке</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Ошибка синхронизации</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Режим синхронизации</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Сведения</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Разделяйте имена запятыми. Символ * соответствует любым символам.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Введите адрес и порт прокси-сервера.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Удалить установку</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Мастер установки позволяет изменить способ установки компонентов [ProductName] на компьютере или удалить программу с компьютера. Нажмите «Далее», чтобы продолжить, или «Отмена», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Дополнительные настройки</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Проверка подключения...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Папка только для чтения</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Изменить установку</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Папка сервера изменена</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Включено</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Ссылки для общего доступа недоступны при подключении через службу ретрансляции.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Назначение</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Исключенные файлы</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Открыть папку Lumora</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>Подключение к серверу потеряно. Lumora попытается подключиться повторно.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Защищенное подключение</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Произошла ошибка базы данных. Перезапустите Lumora.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Вас приветствует мастер установки [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Лицензионное соглашение с конечным пользователем</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Общий доступ</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Направление синхронизации:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Синхронизируется файлов: %1.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Путь к папке</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Состояние:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Добро пожаловать в %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Невозможно создать ссылку для общего доступа к этому объекту.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Сведения о состоянии</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Выберите локальную папку для синхронизации с сервером.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Вы действительно хотите отменить установку [ProductName]?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Установка [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>Папка синхронизации находится на диске, который не подключен. Подключите диск и повторите попытку.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Адрес:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Введите имя пользователя.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Не удалось включить общий доступ. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Локальная сеть (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora готов.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>Мастер установки готов начать исправление [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Нажмите «Установить», чтобы начать установку. Нажмите «Назад», чтобы просмотреть или изменить параметры установки. Нажмите «Отмена», чтобы выйти из мастера.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Не синхронизировать файлы, размер которых превышает максимальный</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Ошибка скачивания.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Изменить подключение</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Повторить синхронизацию</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>Вам предоставлен доступ к новой папке.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>Установка [ProductName] успешно завершена.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Чтобы установить программу позже, снова запустите мастер установки. Нажмите кнопку «Готово», чтобы закрыть мастер.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Установка [ProductName] прервана. Система не была изменена.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Изменить</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Я &amp;не принимаю условия лицензионного соглашения</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Локальная папка синхронизации</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Обновление...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Отвязать этот компьютер от сервера? Локальные файлы не будут удалены.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Синхронизировать файлы и папки с префиксом %1.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Достигнуто максимальное количество общих ресурсов.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Добавить подключение</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>При возникновении конфликта:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ИД</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Мастер установки готов начать установку [ProductName].</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Список исключений:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Мастер установит [ProductName] на компьютер. Нажмите «Далее», чтобы продолжить, или «Отмена», чтобы выйти из мастера установки.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Это подключение неактивно.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora уже запущен.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Открыть Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora выполняет инициализацию...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Подключение через ретранслятор</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Все готово к исправлению [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Подождите, пока мастер установки установит [ProductName]. Это может занять несколько минут.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Исправить</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Расширения файлов:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Исправляет ошибки последней установки, заменяя отсутствующие или поврежденные файлы и ярлыки.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>&amp;Не закрывать приложения. Потребуется перезагрузка.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Завершение работы мастера установки [ProductName]</translation>
    </message>
</context>
</TS>
