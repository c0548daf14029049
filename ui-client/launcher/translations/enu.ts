<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Enable Sharing</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>A newer version of Lumora is already installed.\nDo you want to continue?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Upgrading Lumora. Please wait...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] Setup</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Select the operation you want to perform.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Connecting to the server...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Connection Unstable</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>The shared folder is not mounted. Please mount it and try again.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download completed.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Your changes have not been saved. Do you want to save them now?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Removes [ProductName] from your computer.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Lumora could not be upgraded. Please try again later.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>A shared folder with the same name already exists. Please choose a different folder.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>You have read-only access to this folder. Changes you make here will not be synced.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Sync Stopped</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Connect to a New Server</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Download Only</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Selective Sync for Files</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Select Files to Sync</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Mount Point Error</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Computer Name</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>All files are up to date.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloading...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>An error occurred (error code: %1). Please contact Quennet Online Support for help.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Lumora is starting...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>The proxy server requires authentication</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finish</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>The sync folder on the server has changed. Please relink this connection.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Manage</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remove</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Install</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Detecting the connection mode...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Recently Updated Files</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>The user name or password is incorrect.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>A secure connection to the server could not be established. The server certificate may not be trusted.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Transfer Statistics</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Unable to reach the connection service. Please try again later.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Security Warning</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Select what Lumora should do when setup is finished.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>The selected folder is not empty. Its contents will be merged with the files on the server.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>%1 cannot be synced due to access permission denied, or it is in use.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Retry</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Copy Sharing Link</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Storage Full</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>Sync is paused.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Folder Name</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>The remote folder is not available. Please make sure the volume on the server is mounted.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>Your local disk is full. Please free up some space to continue syncing.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Download History</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>The program features you selected are being installed.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Next &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maximum file size:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Change Folder</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Sync Tasks</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Sharing Status</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>Updated %1 files.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>User Name</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Management Page</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Close the applications automatically and try to restart them.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>View connection and sync information.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Click the Finish button to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>About Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Manual proxy configuration</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Show sync status icons on files and folders</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>File conflicts occurred. The file is now renamed as %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Change, repair, or remove installation</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Stop Sharing</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>File Name</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Lets you change the way features are installed.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Authentication Failed</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Share Not Found</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Launch [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Downloading</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>A protocol error occurred while communicating with the server.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>Selective sync requires a newer version of the server package. Please update the package on your server.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Repair the installation</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>The following applications are using files that need to be updated by this setup:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Your files, in sync on every computer.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Show icons on files that are excluded from sync</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Please restart %1 to apply the new language settings.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Checking user name and password...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Monitoring file changes...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>New Share</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] has no features that can be selected separately.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>A new version is available. Click to update.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Select Folders to Sync</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Service Disabled</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Relink</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Back</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Created</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>The server version is too old. Please update the Lumora server package.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>I &amp;accept the terms in the License Agreement</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>The sync service on the server is disabled. Please ask your administrator to enable it.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Browse Previous Versions</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>No proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>No settings have been changed.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Show desktop notifications</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>This version of Lumora is already installed.\nDo you want to reinstall it?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Files in Use</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Network Settings</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Edit Exclusion List</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Merge existing files when linking a folder</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Download canceled.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Indexing the folder. Please wait...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>An unexpected error occurred. Please try again later.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>Sharing %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>The server ID is invalid or does not exist.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Keep your files up to date on all your computers.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>General Options</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Unlink</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Unable to connect to the server. Please check your network connection.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Read Only</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>The selected folder is a mount point. Please choose a different folder.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Checking data...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Are you sure you want to stop sharing this folder?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Language:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignore</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>System Default</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Start Lumora automatically when I sign in</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Ready to install [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Sharing enabled</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Re&amp;pair</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Please enter a valid port number (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Please read the following license agreement carefully.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>The local sync folder cannot be found. It may have been moved or deleted.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Direct Connection</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Selective Sync for Folders</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Share Name</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>File names to exclude:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>No previous versions are available for this file.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>The server is out of disk space. Please free up space on the server to continue syncing.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>A system error occurred while connecting to the server.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>The file sharing link for %1 has been copied to your clipboard.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Use system proxy settings</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Are you sure you want to delete this share?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>You have used up your storage quota on the server. Please delete some files or contact your administrator.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Change Local Folder</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Connection Mode</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Version Mismatch</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connected successfully.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Some files that need to be updated are currently in use.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applying settings...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Permission Denied</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continue Anyway</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>Setup is complete. Lumora will now start syncing your files.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Folder Not Empty</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Unable to retrieve the previous versions of this file.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Connection Information</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>The SSL certificate of the server could not be verified.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP Address</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>The sync folder on the server does not match the folder that this connection was linked to.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Local Storage</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Uploading</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>This version of Lumora is too old to connect to the server. Please update Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>User name:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Use a monochrome tray icon</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Ready to remove [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Processing %1 file(s)...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>The selected folder is read-only. Please choose a folder that you can write to.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Choose a Local Folder</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Unlink Connection</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Use a secure connection (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Files that match these rules will not be synced.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Choose Another Folder</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Selective Sync</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Start Now</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>You have chosen to remove the program from your computer.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Lumora failed to initialize. Please restart the application.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Authentication failed. Please check your user name and password.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finish</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Set up Lumora to start syncing your files.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>The share could not be deleted. Please try again.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>This file cannot be downloaded.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Server ID</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>This server folder is already linked to another sync folder on this computer.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>IP Address Details</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Double-Click Action</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Sync Error</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Synchronization Mode</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Separate multiple names with commas. Use * to match any characters.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Please enter the address and port of the proxy server.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Remove the installation</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Advanced Settings</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testing the connection...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Read-Only Folder</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Change the installation</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Server Folder Changed</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Sharing links are not available while you are connected through the relay service.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Excluded Files</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Overview</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Open Lumora Folder</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>The connection to the server was lost. Lumora will try to reconnect.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Secure Connection</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>A database error occurred. Please restart Lumora.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]End-User License Agreement</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Sharing</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Sync direction:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Currently syncing %1 files.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Folder Path</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Welcome to %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>A sharing link cannot be created for this item.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Status Information</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Choose a local folder to sync with the server.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Are you sure you want to cancel the [ProductName] installation?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Installing [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>The sync folder is on a drive that is not connected. Please connect the drive and try again.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Address:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Please enter a user name.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Sharing could not be enabled. Please try again later.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Local Network (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora is ready.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>The Setup Wizard is ready to begin the repair of [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Do not sync files larger than the maximum size</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Download failed.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;move</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Edit Connection</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Retry Sync</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>A new folder has been shared with you.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] has been installed successfully.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>[ProductName] setup was interrupted. Your system has not been modified.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Change</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>I &amp;do not accept the terms in the License Agreement</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Local Sync Folder</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Updating...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Do you want to unlink this computer from the server? Your local files will not be deleted.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Sync files and folders with the prefix %1.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>You have reached the maximum number of shares.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Add Connection</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>When a conflict occurs:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>The Setup Wizard is ready to begin the [ProductName] installation.</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Exclusion list:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>This connection is inactive.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora is already running.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Open Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora is initializing...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Relay Connection</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Ready to repair [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Repair</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>File extensions:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>&amp;Do not close the applications. A restart will be required.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</translation>
    </message>
</context>
</TS>
