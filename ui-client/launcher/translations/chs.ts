<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora 因出现意外问题已停止同步。请检查连接状态。</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>启用共享</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待机</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>已安装较新版本的 Lumora。\n是否继续？</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>正在升级 Lumora，请稍候...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 安装程序</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>请选择要执行的操作。</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>正在连接服务器...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>连接不稳定</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}[ProductName] 安装向导提前结束</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>共享文件夹未挂载。请挂载后重试。</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>下载完成。</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>您的更改尚未保存。是否立即保存？</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>从您的计算机中删除 [ProductName]。</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>无法升级 Lumora。请稍后重试。</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>已存在同名的共享文件夹。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>您对此文件夹只有只读权限。您在此处所做的更改将不会同步。</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>同步已停止</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>连接到新服务器</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>端口：</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>仅下载</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>文件选择性同步</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>选择要同步的文件</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>挂载点错误</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>请关闭这些应用程序，然后单击“重试”继续；或单击“忽略”，不关闭应用程序而直接继续。</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>计算机名</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>所有文件均为最新。</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>互联网 (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下载...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>发生错误（错误代码：%1）。请联系 Quennet 在线支持以获取帮助。</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Lumora 正在启动...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>确定要解除此连接的链接吗？文件将不再与服务器同步。</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>代理服务器需要身份验证</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>升级</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>服务器上的同步文件夹已更改。请重新链接此连接。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>您可以稍后再次运行安装向导来安装 [ProductName]。单击“完成”退出。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>删除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>安装(&amp;I)</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>正在检测连接模式...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>最近更新的文件</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>用户名或密码不正确。</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>无法与服务器建立安全连接。服务器证书可能不受信任。</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>传输统计</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>无法访问连接服务。请稍后重试。</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>安全警告</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>请选择设置完成后 Lumora 要执行的操作。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>所选文件夹不为空。其内容将与服务器上的文件合并。</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>无法同步 %1，因为访问权限被拒绝或其正在使用中。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重试(&amp;R)</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>复制共享链接</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>存储空间已满</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>同步已暂停。</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>文件夹名称</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>远程文件夹不可用。请确保服务器上的卷已挂载。</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>本地磁盘已满。请释放一些空间以继续同步。</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>下载历史记录</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>正在安装您选择的程序功能。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>下一步(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>最大文件大小：</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>更改文件夹</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>共享状态</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>已更新 %1 个文件。</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora 使您计算机上的文件与服务器保持同步。版权所有 (C) Quennet。保留所有权利。</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>管理页面</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>自动关闭应用程序并尝试重新启动它们(&amp;C)。</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>查看连接和同步信息。</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>单击“完成”按钮退出安装向导。</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>关于 Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>手动配置代理</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>在文件和文件夹上显示同步状态图标</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>发生文件冲突。文件已重命名为 %1。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]更改、修复或删除安装</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>停止共享</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>允许您更改功能的安装方式。</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>身份验证失败</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>找不到共享文件夹</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>启动 [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>下载中</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>与服务器通信时发生协议错误。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>选择性同步需要更新版本的服务器套件。请更新服务器上的套件。</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>修复安装</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>以下应用程序正在使用此安装程序需要更新的文件：</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>您的文件，在每台计算机上保持同步。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>在排除同步的文件上显示图标</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>请重新启动 %1 以应用新的语言设置。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>正在检查用户名和密码...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>正在监视文件更改...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>新的共享文件夹</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] 没有可单独选择的功能。</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>有新版本可用。单击以更新。</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>选择要同步的文件夹</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>服务已禁用</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>重新链接</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>无法立即检测网络驱动器上的更改。Lumora 将定期进行检查。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}欢迎使用 [ProductName] 安装维护程序</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 上一步(&amp;B)</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>服务器版本过旧。请更新 Lumora 服务器套件。</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>我接受许可协议中的条款(&amp;A)</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>服务器上的同步服务已禁用。请联系管理员启用该服务。</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>浏览以前的版本</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>不使用代理</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>未更改任何设置。</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>显示桌面通知</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>已安装此版本的 Lumora。\n是否重新安装？</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>[ProductName] 安装向导因出错而提前结束。您的系统未被修改。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]文件正在使用</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
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
        <translation>网络设置</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>编辑排除列表</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>链接文件夹时合并现有文件</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>下载已取消。</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>正在为文件夹建立索引，请稍候...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>发生意外错误。请稍后重试。</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>共享 %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>服务器 ID 无效或不存在。</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>让您所有计算机上的文件保持最新。</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>常规选项</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>解除链接</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>无法连接到服务器。请检查您的网络连接。</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非活动</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>所选文件夹是挂载点。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>正在检查数据...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>确定要停止共享此文件夹吗？</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>语言：</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>忽略(&amp;I)</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>系统默认</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>登录时自动启动 Lumora</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]准备安装 [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>已启用共享</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>修复(&amp;P)</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>请输入有效的端口号（1-65535）。</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>请仔细阅读以下许可协议。</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>安装 Lumora 需要管理员权限。\n是否仍要继续？</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>找不到本地同步文件夹。该文件夹可能已被移动或删除。</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>直接连接</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>文件夹选择性同步</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>共享名称</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>要排除的文件名：</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>此文件没有可用的以前版本。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>服务器磁盘空间不足。请释放服务器上的空间以继续同步。</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>连接服务器时发生系统错误。</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>%1 的文件共享链接已复制到剪贴板。</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>使用系统代理设置</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>确定要删除此共享项目吗？</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>您已用完服务器上的存储配额。请删除部分文件或联系管理员。</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>更改本地文件夹</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}[ProductName] 安装向导已中断</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>单击“修复”以修复 [ProductName] 的安装。单击“上一步”查看或更改任何安装设置。单击“取消”退出向导。</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>连接模式</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>您取消选择的文件夹将从此计算机中删除，但仍会保留在服务器上。是否继续？</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>版本不匹配</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>连接成功。</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>部分需要更新的文件正在使用中。</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在应用设置...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>权限被拒绝</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>仍然继续</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在准备...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>设置完成。Lumora 现在将开始同步您的文件。</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>文件夹不为空</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>无法获取此文件的以前版本。</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>连接信息</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>无法验证服务器的 SSL 证书。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>服务器上的同步文件夹与此连接所链接的文件夹不匹配。</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>本地存储</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>上传中</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>此版本的 Lumora 过旧，无法连接到服务器。请更新 Lumora。</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>用户名：</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>使用单色托盘图标</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>所选文件夹不为空。请选择一个空文件夹，或将其内容与服务器合并。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]准备删除 [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>正在处理 %1 个文件...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>所选文件夹为只读。请选择您可以写入的文件夹。</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>选择本地文件夹</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>解除连接链接</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>使用安全连接 (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>符合这些规则的文件将不会同步。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>单击“删除”从您的计算机中删除 [ProductName]。单击“上一步”查看或更改任何安装设置。单击“取消”退出向导。</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>选择其他文件夹</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>选择性同步</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>您已选择从计算机中删除此程序。</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Lumora 初始化失败。请重新启动应用程序。</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>身份验证失败。请检查您的用户名和密码。</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>设置 Lumora 以开始同步您的文件。</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>无法删除共享项目。请重试。</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>此文件夹中的文件将与服务器上的文件合并。如果两个文件同名，则两个文件都会保留，其中一个将被重命名。</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>无法下载此文件。</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>服务器 ID</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>此服务器文件夹已链接到此计算机上的另一个同步文件夹。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>IP 地址详细信息</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>双击操作</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>同步错误</translation>
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
        <translation>信息</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>用逗号 (,) 分隔多个名称。使用 * 匹配任意字符。</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>请输入代理服务器的地址和端口。</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>删除安装</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安装向导允许您更改 [ProductName] 功能在计算机上的安装方式，或将其从计算机中删除。单击“下一步”继续，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在测试连接...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>只读文件夹</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>更改安装</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>服务器文件夹已更改</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>通过中继服务连接时无法使用共享链接。</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标位置</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>排除的文件</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>打开 Lumora 文件夹</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>与服务器的连接已断开。Lumora 将尝试重新连接。</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>安全连接</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>发生数据库错误。请重新启动 Lumora。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}欢迎使用 [ProductName] 安装向导</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]最终用户许可协议</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>共享</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>同步方向：</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>正在同步 %1 个文件。</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>文件夹路径</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>欢迎使用 %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>无法为此项目创建共享链接。</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>状态信息</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>选择要与服务器同步的本地文件夹。</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>确定要取消 [ProductName] 的安装吗？</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]正在安装 [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>同步文件夹所在的驱动器未连接。请连接该驱动器后重试。</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>地址：</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>请输入用户名。</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>无法启用共享。请稍后重试。</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>局域网 (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora 已就绪。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>安装向导已准备好开始修复 [ProductName]。</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>单击“安装”开始安装。单击“上一步”查看或更改任何安装设置。单击“取消”退出向导。</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>不同步超过最大大小的文件</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>下载失败。</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>删除(&amp;M)</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>编辑连接</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>重试同步</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>已有新的文件夹与您共享。</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] 已成功安装。</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>若要稍后安装此程序，请再次运行安装向导。单击“完成”按钮关闭此向导。</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>[ProductName] 安装已中断。您的系统未被修改。</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>更改(&amp;C)</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>我不接受许可协议中的条款(&amp;D)</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>本地同步文件夹</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>正在更新...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>是否要解除此计算机与服务器的链接？您的本地文件不会被删除。</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>同步名称以 %1 开头的文件和文件夹。</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>已达到共享项目数量上限。</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>添加连接</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>发生冲突时：</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>安装向导已准备好开始安装 [ProductName]。</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>排除列表：</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>安装向导将在您的计算机上安装 [ProductName]。单击“下一步”继续，或单击“取消”退出安装向导。</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>此连接处于非活动状态。</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora 已在运行。</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>打开 Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora 正在初始化...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>中继连接</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]准备修复 [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>安装向导正在安装 [ProductName]，请稍候。这可能需要几分钟时间。</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修复(&amp;R)</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>文件扩展名：</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>通过替换丢失或损坏的文件和快捷方式，修复最近一次安装中的错误。</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>不关闭应用程序(&amp;D)。之后需要重新启动计算机。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}已完成 [ProductName] 安装向导</translation>
    </message>
</context>
</TS>
