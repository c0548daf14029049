<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora 因發生未預期的問題而停止同步。請檢查連線狀態。</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>啟用共用</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待機</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>已安裝較新版本的 Lumora。\n是否要繼續？</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>正在升級 Lumora，請稍候...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 安裝程式</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>請選取要執行的作業。</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>正在連線至伺服器...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>連線不穩定</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}[ProductName] 安裝精靈提前結束</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>共用資料夾尚未掛載。請掛載後再試一次。</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>下載完成。</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>您的變更尚未儲存。是否要立即儲存？</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>從您的電腦中移除 [ProductName]。</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>無法升級 Lumora。請稍後再試。</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>已存在同名的共用資料夾。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>您對此資料夾只有唯讀權限。您在此所做的變更將不會同步。</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>同步已停止</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>連線至新的伺服器</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>連接埠：</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>僅下載</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>檔案選擇性同步</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>列印(&amp;P)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢復</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>選取要同步的檔案</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>掛載點錯誤</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>請關閉這些應用程式並按一下「重試」繼續，或按一下「略過」在不關閉應用程式的情況下繼續。</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>電腦名稱</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>所有檔案皆為最新狀態。</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>網際網路 (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下載...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>發生錯誤（錯誤碼：%1）。請聯絡 Quennet 線上支援以取得協助。</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Lumora 正在啟動...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>確定要解除此連線的連結嗎？檔案將不再與伺服器同步。</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>結束(&amp;X)</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>代理伺服器需要驗證</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升級</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>伺服器上的同步資料夾已變更。請重新連結此連線。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>您可以稍後再次執行安裝精靈來安裝 [ProductName]。按一下「完成」結束。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>移除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安裝(&amp;I)</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>正在偵測連線模式...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>最近更新的檔案</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>使用者名稱或密碼不正確。</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>無法與伺服器建立安全連線。伺服器憑證可能不受信任。</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>傳輸統計</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>無法連上連線服務。請稍後再試。</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>安全性警告</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>請選擇設定完成後 Lumora 要執行的動作。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>選取的資料夾不是空的。其內容將與伺服器上的檔案合併。</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>%1 無法同步，因為存取權限遭拒或其正在使用中。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重試(&amp;R)</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>複製共用連結</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>儲存空間已滿</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>同步已暫停。</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>資料夾名稱</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>遠端資料夾無法使用。請確認伺服器上的磁碟區已掛載。</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>本機磁碟已滿。請釋放一些空間以繼續同步。</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>下載記錄</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>正在安裝您選取的程式功能。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>下一步(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>檔案大小上限：</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>變更資料夾</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>同步工作</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理伺服器</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>共用狀態</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>已更新 %1 個檔案。</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora 讓您電腦上的檔案與伺服器保持同步。版權所有 (C) Quennet。保留所有權利。</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>管理頁面</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>自動關閉應用程式並嘗試重新啟動(&amp;C)。</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>檢視連線與同步資訊。</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>按一下「完成」按鈕結束安裝精靈。</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>關於 Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手動設定代理伺服器</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>在檔案和資料夾上顯示同步狀態圖示</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>發生檔案衝突。檔案已重新命名為 %1。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]變更、修復或移除安裝</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>停止共用</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>檔案名稱</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>可讓您變更功能的安裝方式。</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>驗證失敗</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>找不到共用資料夾</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>啟動 [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>下載中</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密碼：</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>與伺服器通訊時發生通訊協定錯誤。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>選擇性同步需要較新版本的伺服器套件。請更新伺服器上的套件。</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>修復安裝</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>下列應用程式正在使用此安裝程式需要更新的檔案：</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>您的檔案，在每部電腦上保持同步。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>在排除同步的檔案上顯示圖示</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>請重新啟動 %1 以套用新的語言設定。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>正在檢查使用者名稱和密碼...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>正在監控檔案變更...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>新的共用資料夾</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] 沒有可個別選取的功能。</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>有新版本可用。按一下以更新。</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>選取要同步的資料夾</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>服務已停用</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>重新連結</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>無法即時偵測網路磁碟機上的變更。Lumora 會定期進行檢查。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}歡迎使用 [ProductName] 安裝維護程式</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 上一步(&amp;B)</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>建立時間</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>伺服器版本過舊。請更新 Lumora 伺服器套件。</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>我接受授權合約中的條款(&amp;A)</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>伺服器上的同步服務已停用。請要求系統管理員啟用此服務。</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>瀏覽先前版本</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>不使用代理伺服器</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>未變更任何設定。</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>顯示桌面通知</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>已安裝此版本的 Lumora。\n是否要重新安裝？</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>[ProductName] 安裝精靈因發生錯誤而提前結束。您的系統並未遭到修改。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]檔案使用中</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>網路設定</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>編輯排除清單</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>連結資料夾時合併現有檔案</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>已取消下載。</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>正在為資料夾建立索引，請稍候...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>發生未預期的錯誤。請稍後再試。</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>共用 %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>伺服器 ID 無效或不存在。</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>讓您所有電腦上的檔案保持最新狀態。</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>一般選項</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>解除連結</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>無法連線至伺服器。請檢查您的網路連線。</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非作用中</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>選取的資料夾是掛載點。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>正在檢查資料...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>確定要停止共用此資料夾嗎？</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>語言：</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>略過(&amp;I)</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>系統預設</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>登入時自動啟動 Lumora</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]準備安裝 [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>已啟用共用</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>修復(&amp;P)</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>請輸入有效的連接埠號碼（1-65535）。</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>請仔細閱讀下列授權合約。</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>安裝 Lumora 需要系統管理員權限。\n仍要繼續嗎？</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>找不到本機同步資料夾。該資料夾可能已被移動或刪除。</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>直接連線</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>資料夾選擇性同步</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>共用名稱</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>要排除的檔案名稱：</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>此檔案沒有可用的先前版本。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>伺服器磁碟空間不足。請釋放伺服器上的空間以繼續同步。</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>連線至伺服器時發生系統錯誤。</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>%1 的檔案共用連結已複製到剪貼簿。</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>使用系統代理伺服器設定</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>確定要刪除此共用項目嗎？</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>您已用完伺服器上的儲存配額。請刪除部分檔案或聯絡系統管理員。</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>變更本機資料夾</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}[ProductName] 安裝精靈已中斷</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>按一下「修復」以修復 [ProductName] 的安裝。按一下「上一步」檢閱或變更任何安裝設定。按一下「取消」結束精靈。</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>連線模式</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>您取消選取的資料夾將從此電腦中移除，但仍會保留在伺服器上。是否要繼續？</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>版本不符</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>連線成功。</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>部分需要更新的檔案目前正在使用中。</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在套用設定...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>權限遭拒</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>仍要繼續</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在準備...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>設定完成。Lumora 現在將開始同步您的檔案。</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>資料夾不是空的</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>無法取得此檔案的先前版本。</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>連線資訊</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>無法驗證伺服器的 SSL 憑證。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP 位址</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>伺服器上的同步資料夾與此連線所連結的資料夾不符。</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>本機儲存空間</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>上傳中</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>此版本的 Lumora 過舊，無法連線至伺服器。請更新 Lumora。</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>使用者名稱：</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>使用單色系統匣圖示</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>選取的資料夾不是空的。請選擇空的資料夾，或將其內容與伺服器合併。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]準備移除 [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>正在處理 %1 個檔案...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合併</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>選取的資料夾為唯讀。請選擇您可寫入的資料夾。</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>選擇本機資料夾</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>解除連線連結</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>使用安全連線 (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>符合這些規則的檔案將不會同步。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>按一下「移除」從您的電腦中移除 [ProductName]。按一下「上一步」檢閱或變更任何安裝設定。按一下「取消」結束精靈。</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>選擇其他資料夾</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>選擇性同步</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>立即開始</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>您已選擇從電腦中移除此程式。</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Lumora 初始化失敗。請重新啟動應用程式。</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>驗證失敗。請檢查您的使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>設定 Lumora 以開始同步您的檔案。</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>無法刪除共用項目。請再試一次。</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>此資料夾中的檔案將與伺服器上的檔案合併。若兩個檔案名稱相同，兩者都會保留，並將其中一個重新命名。</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>無法下載此檔案。</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>伺服器 ID</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>此伺服器資料夾已連結至此電腦上的另一個同步資料夾。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>IP 位址詳細資料</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>按兩下時的動作</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>同步錯誤</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>以逗號 (,) 分隔多個名稱。使用 * 比對任意字元。</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>請輸入代理伺服器的位址和連接埠。</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>移除安裝</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安裝精靈可讓您變更 [ProductName] 功能在電腦上的安裝方式，或將其從電腦中移除。按一下「下一步」繼續，或按一下「取消」結束安裝精靈。</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>進階設定</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在測試連線...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>唯讀資料夾</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>變更安裝</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>伺服器資料夾已變更</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>透過中繼服務連線時無法使用共用連結。</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目的地</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>排除的檔案</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概觀</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>開啟 Lumora 資料夾</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>與伺服器的連線已中斷。Lumora 將嘗試重新連線。</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>安全連線</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>發生資料庫錯誤。請重新啟動 Lumora。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}歡迎使用 [ProductName] 安裝精靈</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]使用者授權合約</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>共用</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>同步方向：</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>正在同步 %1 個檔案。</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>資料夾路徑</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>狀態：</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>歡迎使用 %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>無法為此項目建立共用連結。</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>狀態資訊</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>選擇要與伺服器同步的本機資料夾。</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>確定要取消 [ProductName] 安裝嗎？</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]正在安裝 [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>同步資料夾所在的磁碟機未連接。請連接該磁碟機後再試一次。</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>位址：</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>請輸入使用者名稱。</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>無法啟用共用。請稍後再試。</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>區域網路 (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora 準備完成</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>安裝精靈已準備好開始修復 [ProductName]。</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>按一下「安裝」開始安裝。按一下「上一步」檢閱或變更任何安裝設定。按一下「取消」結束精靈。</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>不同步超過大小上限的檔案</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>下載失敗。</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>移除(&amp;M)</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>編輯連線</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>重試同步</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>已有新的資料夾與您共用。</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] 已成功安裝。</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>若要稍後安裝此程式，請再次執行安裝精靈。按一下「完成」按鈕關閉此精靈。</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>[ProductName] 安裝已中斷。您的系統並未遭到修改。</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>變更(&amp;C)</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>我不接受授權合約中的條款(&amp;D)</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>本機同步資料夾</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>正在更新...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>要解除此電腦與伺服器的連結嗎？您的本機檔案不會被刪除。</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>同步名稱以 %1 開頭的檔案和資料夾。</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>已達到共用項目數量上限。</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>新增連線</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>發生衝突時：</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>安裝精靈已準備好開始安裝 [ProductName]。</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>排除清單：</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安裝精靈將在您的電腦上安裝 [ProductName]。按一下「下一步」繼續，或按一下「取消」結束安裝精靈。</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>此連線處於非作用中狀態。</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora 已在執行中。</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>開啟 Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora 準備中...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>中繼連線</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]準備修復 [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>安裝精靈正在安裝 [ProductName]，請稍候。這可能需要幾分鐘的時間。</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修復(&amp;R)</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>副檔名：</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>以取代遺失或損毀的檔案與捷徑的方式，修正最近一次安裝中的錯誤。</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>不要關閉應用程式(&amp;D)。之後將需要重新開機。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}已完成 [ProductName] 安裝精靈</translation>
    </message>
</context>
</TS>
