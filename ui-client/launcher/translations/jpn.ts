<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>予期しない問題が発生したため、Lumora は同期を停止しました。接続状態を確認してください。</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>共有を有効にする</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>スタンバイ</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>新しいバージョンの Lumora が既にインストールされています。\n続行しますか？</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Lumora をアップグレードしています。しばらくお待ちください...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] セットアップ</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>実行する操作を選択してください。</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>サーバーに接続しています...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>接続が不安定</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}[ProductName] セットアップ ウィザードが途中で終了しました</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>共有フォルダーがマウントされていません。マウントしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>ダウンロードが完了しました。</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>変更が保存されていません。今すぐ保存しますか？</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>[ProductName] をコンピューターから削除します。</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Lumora をアップグレードできませんでした。しばらくしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>同じ名前の共有フォルダーが既に存在します。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>このフォルダーに対するアクセス権は読み取り専用です。ここで行った変更は同期されません。</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>同期停止</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>新しいサーバーに接続</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>ポート:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>ダウンロードのみ</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>ファイルの選択同期</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>同期するファイルの選択</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>マウント ポイント エラー</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>これらのアプリケーションを閉じてから [再試行] をクリックして続行するか、アプリケーションを閉じずに続行する場合は [無視] をクリックしてください。</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>コンピューター名</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>すべてのファイルは最新の状態です。</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>インターネット (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>ダウンロードしています...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>エラーが発生しました (エラー コード: %1)。Quennet オンライン サポートにお問い合わせください。</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Lumora を起動しています...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>この接続のリンクを解除してもよろしいですか？ファイルはサーバーと同期されなくなります。</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>プロキシ サーバーで認証が必要</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>完了(&amp;F)</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>アップグレード</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>サーバー上の同期フォルダーが変更されました。この接続を再リンクしてください。</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>後でセットアップ ウィザードを再度実行して [ProductName] をインストールできます。[完了] をクリックして終了してください。</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>削除(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>インストール(&amp;I)</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>接続モードを検出しています...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>最近更新されたファイル</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>ユーザー名またはパスワードが正しくありません。</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>サーバーとの安全な接続を確立できませんでした。サーバー証明書が信頼されていない可能性があります。</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>転送統計</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>接続サービスにアクセスできません。しばらくしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>セキュリティの警告</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>セットアップ完了後の Lumora の動作を選択してください。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>選択したフォルダーは空ではありません。フォルダーの内容はサーバー上のファイルと統合されます。</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>アクセス許可が拒否されたか、使用中のため、%1 を同期できません。</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>共有リンクをコピー</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>ストレージ容量不足</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>同期は一時停止中です。</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>フォルダー名</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>リモート フォルダーを利用できません。サーバー上のボリュームがマウントされていることを確認してください。</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>ローカル ディスクの空き容量がありません。同期を続行するには、空き容量を確保してください。</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>ダウンロード履歴</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>選択したプログラム機能をインストールしています。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>次へ(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>最大ファイル サイズ:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>フォルダーの変更</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>共有状態</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>%1 個のファイルを更新しました。</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora は、コンピューター上のファイルをサーバーと同期された状態に保ちます。Copyright (C) Quennet. All rights reserved.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>管理ページ</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>アプリケーションを自動的に閉じて、再起動を試みる(&amp;C)</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>接続と同期の情報を表示します。</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>セットアップ ウィザードを終了するには、[完了] ボタンをクリックしてください。</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Lumora について</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>プロキシを手動で設定する</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>ファイルとフォルダーに同期状態アイコンを表示する</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>ファイルの競合が発生しました。ファイルの名前は %1 に変更されました。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]インストールの変更、修復、または削除</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>共有を停止</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>機能のインストール方法を変更します。</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>認証失敗</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>共有が見つかりません</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] を起動する</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>ダウンロード中</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>サーバーとの通信中にプロトコル エラーが発生しました。</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>選択同期を使用するには、新しいバージョンのサーバー パッケージが必要です。サーバー上のパッケージを更新してください。</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>インストールの修復</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込んでいます...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>次のアプリケーションが、このセットアップで更新する必要があるファイルを使用しています:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>あなたのファイルを、すべてのコンピューターで同期。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>同期対象から除外されたファイルにアイコンを表示する</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>新しい言語設定を適用するには、%1 を再起動してください。</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>ユーザー名とパスワードを確認しています...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>ファイルの変更を監視しています...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>新しい共有</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] には、個別に選択できる機能はありません。</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>新しいバージョンが利用可能です。クリックして更新してください。</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>同期するフォルダーの選択</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>サービス無効</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>再リンク</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>ネットワーク ドライブ上の変更はすぐには検出できません。Lumora は一定の間隔で変更を確認します。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}[ProductName] セットアップ メンテナンスへようこそ</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 戻る(&amp;B)</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>サーバーのバージョンが古すぎます。Lumora サーバー パッケージを更新してください。</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>使用許諾契約書に同意します(&amp;A)</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>サーバー上の同期サービスが無効になっています。管理者に有効化を依頼してください。</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>以前のバージョンを参照</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>プロキシを使用しない</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>変更された設定はありません。</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>デスクトップ通知を表示する</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>このバージョンの Lumora は既にインストールされています。\n再インストールしますか？</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>エラーのため、[ProductName] セットアップ ウィザードが途中で終了しました。システムは変更されていません。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]使用中のファイル</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>ネットワーク設定</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>除外リストの編集</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>フォルダーのリンク時に既存のファイルを統合する</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>ダウンロードがキャンセルされました。</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>フォルダーのインデックスを作成しています。しばらくお待ちください...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>予期しないエラーが発生しました。しばらくしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>%1 を共有中</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>サーバー ID が無効であるか、存在しません。</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>すべてのコンピューターで、ファイルを常に最新の状態に。</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>全般オプション</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>リンク解除</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>サーバーに接続できません。ネットワーク接続を確認してください。</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非アクティブ</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>選択したフォルダーはマウント ポイントです。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>データを確認しています...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>このフォルダーの共有を停止してもよろしいですか？</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>言語:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>無視(&amp;I)</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>システムの既定</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>サインイン時に Lumora を自動的に起動する</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] のインストール準備完了</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>共有が有効です</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>修復(&amp;P)</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>有効なポート番号 (1-65535) を入力してください。</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>次の使用許諾契約書をよくお読みください。</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>Lumora をインストールするには管理者権限が必要です。\nこのまま続行しますか？</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>ローカル同期フォルダーが見つかりません。移動または削除された可能性があります。</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>直接接続</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>フォルダーの選択同期</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>共有名</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>除外するファイル名:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>このファイルには以前のバージョンがありません。</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>サーバーのディスク容量が不足しています。同期を続行するには、サーバーの空き容量を確保してください。</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>サーバーへの接続中にシステム エラーが発生しました。</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>%1 のファイル共有リンクをクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>システムのプロキシ設定を使用する</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>この共有を削除してもよろしいですか？</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>サーバー上のストレージ クォータを使い切りました。一部のファイルを削除するか、管理者にお問い合わせください。</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>ローカル フォルダーの変更</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}[ProductName] セットアップ ウィザードは中断されました</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>[ProductName] のインストールを修復するには、[修復] をクリックしてください。インストール設定を確認または変更するには、[戻る] をクリックしてください。ウィザードを終了するには、[キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>接続モード</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>選択を解除したフォルダーはこのコンピューターから削除されますが、サーバー上には残ります。続行しますか？</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>バージョンの不一致</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>接続に成功しました。</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>更新が必要な一部のファイルが現在使用中です。</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>設定を適用しています...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>アクセス拒否</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>このまま続行</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備しています...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>セットアップが完了しました。これより Lumora はファイルの同期を開始します。</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>フォルダーが空ではありません</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>このファイルの以前のバージョンを取得できません。</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>接続情報</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>サーバーの SSL 証明書を検証できませんでした。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>サーバー上の同期フォルダーが、この接続のリンク先フォルダーと一致しません。</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>ローカル ストレージ</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>アップロード中</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>この Lumora のバージョンは古すぎるため、サーバーに接続できません。Lumora を更新してください。</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>ユーザー名:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>サマリー</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>モノクロのトレイ アイコンを使用する</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>選択したフォルダーは空ではありません。空のフォルダーを選択するか、フォルダーの内容をサーバーと統合してください。</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] の削除準備完了</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>%1 個のファイルを処理しています...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>統合</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>選択したフォルダーは読み取り専用です。書き込み可能なフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>ローカル フォルダーの選択</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>接続のリンク解除</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>安全な接続 (SSL) を使用する</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>これらのルールに一致するファイルは同期されません。</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>[ProductName] をコンピューターから削除するには、[削除] をクリックしてください。インストール設定を確認または変更するには、[戻る] をクリックしてください。ウィザードを終了するには、[キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>別のフォルダーを選択</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>選択同期</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>今すぐ開始</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>プログラムをコンピューターから削除することを選択しました。</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Lumora の初期化に失敗しました。アプリケーションを再起動してください。</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>認証に失敗しました。ユーザー名とパスワードを確認してください。</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Lumora をセットアップして、ファイルの同期を開始しましょう。</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>共有を削除できませんでした。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>このフォルダー内のファイルは、サーバー上のファイルと統合されます。同じ名前のファイルがある場合は両方とも保持され、一方の名前が変更されます。</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>このファイルはダウンロードできません。</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>サーバー ID</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>このサーバー フォルダーは、このコンピューター上の別の同期フォルダーに既にリンクされています。</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>IP アドレスの詳細</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>ダブルクリック時の動作</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>同期エラー</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>同期モード</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>複数の名前はコンマで区切ります。* は任意の文字列に一致します。</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>プロキシ サーバーのアドレスとポートを入力してください。</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>インストールの削除</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>セットアップ ウィザードでは、[ProductName] の機能のインストール方法を変更したり、コンピューターから削除したりできます。続行するには [次へ] を、セットアップ ウィザードを終了するには [キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>接続をテストしています...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>読み取り専用フォルダー</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>インストールの変更</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>サーバー フォルダーが変更されました</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>中継サービス経由で接続している間は、共有リンクを使用できません。</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>除外されたファイル</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Lumora フォルダーを開く</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>サーバーとの接続が切断されました。Lumora は再接続を試みます。</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>安全な接続</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>データベース エラーが発生しました。Lumora を再起動してください。</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] セットアップ ウィザードへようこそ</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]使用許諾契約書</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>同期方向:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>%1 個のファイルを同期しています。</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>フォルダー パス</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状態:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>%1 へようこそ</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>この項目の共有リンクは作成できません。</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>状態情報</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>サーバーと同期するローカル フォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>[ProductName] のインストールをキャンセルしてもよろしいですか？</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] をインストールしています</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>同期フォルダーは接続されていないドライブ上にあります。ドライブを接続してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>アドレス:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>ユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>共有を有効にできませんでした。しばらくしてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>ローカル ネットワーク (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora は準備完了です。</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>セットアップ ウィザードは [ProductName] の修復を開始する準備ができました。</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>インストールを開始するには、[インストール] をクリックしてください。インストール設定を確認または変更するには、[戻る] をクリックしてください。ウィザードを終了するには、[キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>最大サイズを超えるファイルを同期しない</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>ダウンロードに失敗しました。</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>削除(&amp;M)</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>接続の編集</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>同期を再試行</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>新しいフォルダーが共有されました。</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] は正常にインストールされました。</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>後でプログラムをインストールするには、セットアップ ウィザードを再度実行してください。このウィザードを閉じるには、[完了] ボタンをクリックしてください。</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>[ProductName] のセットアップは中断されました。システムは変更されていません。</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>変更(&amp;C)</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>使用許諾契約書に同意しません(&amp;D)</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>ローカル同期フォルダー</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>更新しています...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>このコンピューターとサーバーのリンクを解除しますか？ローカル ファイルは削除されません。</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>プレフィックスが %1 のファイルとフォルダーを同期します。</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>共有数が上限に達しました。</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>接続の追加</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>競合が発生した場合:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>セットアップ ウィザードは [ProductName] のインストールを開始する準備ができました。</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>除外リスト:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>セットアップ ウィザードは、[ProductName] をコンピューターにインストールします。続行するには [次へ] を、セットアップ ウィザードを終了するには [キャンセル] をクリックしてください。</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>この接続は非アクティブです。</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora は既に実行中です。</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Lumora を開く</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora は初期化中です。</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>中継接続</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] の修復準備完了</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>セットアップ ウィザードが [ProductName] をインストールしています。しばらくお待ちください。数分かかる場合があります。</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修復(&amp;R)</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>ファイル拡張子:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>見つからないファイルや破損したファイル、ショートカットを置き換えて、最新のインストールのエラーを修復します。</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>アプリケーションを閉じない (再起動が必要になります)(&amp;D)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] セットアップ ウィザードが完了しました</translation>
    </message>
</context>
</TS>
