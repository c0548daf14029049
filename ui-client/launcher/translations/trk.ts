<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora beklenmeyen bir sorun nedeniyle eşitlemeyi durdurdu. Lütfen bağlantı durumunu kontrol edin.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Paylaşımı Etkinleştir</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Beklemede</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>Lumora'nın daha yeni bir sürümü zaten yüklü.\nDevam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Lumora yükseltiliyor. Lütfen bekleyin...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] Kurulumu</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Gerçekleştirmek istediğiniz işlemi seçin.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Sunucuya bağlanılıyor...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Bağlantı Kararsız</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}[ProductName] Kurulum Sihirbazı erken sona erdi</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>Paylaşılan klasör bağlı değil. Lütfen klasörü bağlayıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>İndirme tamamlandı.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Değişiklikleriniz kaydedilmedi. Şimdi kaydetmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>[ProductName] uygulamasını bilgisayarınızdan kaldırır.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Lumora yükseltilemedi. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Aynı ada sahip bir paylaşılan klasör zaten var. Lütfen farklı bir klasör seçin.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>Bu klasöre salt okunur erişiminiz var. Burada yaptığınız değişiklikler eşitlenmeyecek.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Eşitleme Durduruldu</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Yeni Bir Sunucuya Bağlan</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Bağlantı noktası:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Yalnızca İndirme</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Dosyalar için Seçmeli Eşitleme</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Yazdır</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Eşitlenecek Dosyaları Seçin</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Bağlama Noktası Hatası</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Devam etmek için bu uygulamaları kapatıp Yeniden Dene'ye tıklayın veya uygulamaları kapatmadan devam etmek için Yoksay'a tıklayın.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Bilgisayar Adı</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tüm dosyalar güncel.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>İnternet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>İndiriliyor...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Bir hata oluştu (hata kodu: %1). Yardım için lütfen Quennet Çevrimiçi Destek ile iletişime geçin.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Lumora başlatılıyor...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Bu bağlantıyı kaldırmak istediğinizden emin misiniz? Dosyalar artık sunucuyla eşitlenmeyecek.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Çı&amp;kış</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Ara sunucu kimlik doğrulaması gerektiriyor</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Son</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Yükseltme</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>Sunucudaki eşitleme klasörü değişti. Lütfen bu bağlantıyı yeniden kurun.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Yönet</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>[ProductName] uygulamasını yüklemek için Kurulum Sihirbazını daha sonra yeniden çalıştırabilirsiniz. Çıkmak için Son'a tıklayın.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Kaldır</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Yükle</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Bağlantı modu algılanıyor...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Son Güncellenen Dosyalar</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Kullanıcı adı veya parola yanlış.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Sunucuyla güvenli bağlantı kurulamadı. Sunucu sertifikası güvenilir olmayabilir.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Aktarım İstatistikleri</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Bağlantı hizmetine ulaşılamıyor. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Güvenlik Uyarısı</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Kurulum tamamlandığında Lumora'nın ne yapacağını seçin.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>Seçilen klasör boş değil. İçeriği sunucudaki dosyalarla birleştirilecek.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>%1, erişim izni reddedildiği veya kullanımda olduğu için eşitlenemiyor.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Yeniden Dene</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Paylaşım Bağlantısını Kopyala</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Depolama Alanı Dolu</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>Eşitleme duraklatıldı.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Klasör Adı</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>Uzak klasör kullanılamıyor. Lütfen sunucudaki birimin bağlı olduğundan emin olun.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>Yerel diskiniz dolu. Eşitlemeye devam etmek için lütfen biraz yer açın.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>İndirme Geçmişi</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>Seçtiğiniz program özellikleri yükleniyor.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;İleri &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Maksimum dosya boyutu:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Klasörü Değiştir</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Eşitleme Görevleri</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Ara Sunucu</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Paylaşım Durumu</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>%1 dosya güncellendi.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Kullanıcı Adı</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora, bilgisayarınızdaki dosyaları sunucunuzla eşitlenmiş durumda tutar. Telif Hakkı (C) Quennet. Tüm hakları saklıdır.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Yönetim Sayfası</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Uygulamaları otomatik olarak kapat ve yeniden başlatmayı dene.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Bağlantı ve eşitleme bilgilerini görüntüleyin.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Kurulum Sihirbazından çıkmak için Son düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Lumora Hakkında</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>El ile ara sunucu yapılandırması</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Dosya ve klasörlerde eşitleme durumu simgelerini göster</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Dosya çakışmaları oluştu. Dosyanın adı %1 olarak değiştirildi.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Yüklemeyi değiştirin, onarın veya kaldırın</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Paylaşımı Durdur</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dosya Adı</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Özelliklerin yüklenme şeklini değiştirmenizi sağlar.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Kimlik Doğrulama Başarısız</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Paylaşım Bulunamadı</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] uygulamasını başlat</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>İndiriliyor</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Sunucuyla iletişim sırasında bir protokol hatası oluştu.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>Seçmeli eşitleme, sunucu paketinin daha yeni bir sürümünü gerektirir. Lütfen sunucunuzdaki paketi güncelleyin.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Yüklemeyi onar</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Yükleniyor...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>Aşağıdaki uygulamalar, bu kurulum tarafından güncellenmesi gereken dosyaları kullanıyor:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Dosyalarınız, her bilgisayarda eşitlenmiş.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Eşitleme dışında bırakılan dosyalarda simge göster</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Yeni dil ayarlarını uygulamak için lütfen %1 uygulamasını yeniden başlatın.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Kullanıcı adı ve parola denetleniyor...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Dosya değişiklikleri izleniyor...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Yeni Paylaşım</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] uygulamasının ayrı olarak seçilebilecek özelliği yok.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Yeni bir sürüm kullanılabilir. Güncellemek için tıklayın.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Eşitlenecek Klasörleri Seçin</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Hizmet Devre Dışı</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Yeniden Bağla</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>İşlem</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Ağ sürücülerindeki değişiklikler hemen algılanamaz. Lumora bunları düzenli aralıklarla denetleyecek.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}[ProductName] Kurulum Bakımına Hoş Geldiniz</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Geri</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oluşturulma</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>Sunucu sürümü çok eski. Lütfen Lumora sunucu paketini güncelleyin.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Lisans Sözleşmesindeki koşulları &amp;kabul ediyorum</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>Sunucudaki eşitleme hizmeti devre dışı. Lütfen yöneticinizden hizmeti etkinleştirmesini isteyin.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Önceki Sürümlere Göz At</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Ara sunucu yok</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Hiçbir ayar değiştirilmedi.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Masaüstü bildirimlerini göster</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Lumora'nın bu sürümü zaten yüklü.\nYeniden yüklemek istiyor musunuz?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>[ProductName] Kurulum Sihirbazı bir hata nedeniyle erken sona erdi. Sisteminizde değişiklik yapılmadı.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Kullanımdaki Dosyalar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Ağ Ayarları</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Dışlama Listesini Düzenle</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Bir klasör bağlanırken mevcut dosyaları birleştir</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>İndirme iptal edildi.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Klasör dizine ekleniyor. Lütfen bekleyin...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Beklenmeyen bir hata oluştu. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>%1 paylaşılıyor</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>Sunucu kimliği geçersiz veya mevcut değil.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Dosyalarınızı tüm bilgisayarlarınızda güncel tutun.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Genel Seçenekler</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Bağlantıyı Kaldır</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Sunucuya bağlanılamıyor. Lütfen ağ bağlantınızı kontrol edin.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Etkin Değil</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Salt Okunur</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>Seçilen klasör bir bağlama noktası. Lütfen farklı bir klasör seçin.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Veriler denetleniyor...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Bu klasörü paylaşmayı durdurmak istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Dil:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>Y&amp;oksay</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Sistem Varsayılanı</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Oturum açtığımda Lumora'yı otomatik olarak başlat</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] yüklenmeye hazır</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Paylaşım etkin</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Onar</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Lütfen geçerli bir bağlantı noktası numarası girin (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lütfen aşağıdaki lisans sözleşmesini dikkatle okuyun.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>Lumora'yı yüklemek için yönetici ayrıcalıkları gerekir.\nYine de devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Yerel eşitleme klasörü bulunamıyor. Taşınmış veya silinmiş olabilir.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Doğrudan Bağlantı</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Klasörler için Seçmeli Eşitleme</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Paylaşım Adı</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Dışlanacak dosya adları:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Bu dosyanın kullanılabilir önceki sürümü yok.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>Sunucuda disk alanı kalmadı. Eşitlemeye devam etmek için lütfen sunucuda yer açın.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Sunucuya bağlanırken bir sistem hatası oluştu.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>%1 için dosya paylaşım bağlantısı panonuza kopyalandı.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Sistem ara sunucu ayarlarını kullan</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Bu paylaşımı silmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Sunucudaki depolama kotanızı doldurdunuz. Lütfen bazı dosyaları silin veya yöneticinize başvurun.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Yerel Klasörü Değiştir</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}[ProductName] Kurulum Sihirbazı kesintiye uğradı</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>[ProductName] yüklemesini onarmak için Onar'a tıklayın. Yükleme ayarlarınızı gözden geçirmek veya değiştirmek için Geri'ye tıklayın. Sihirbazdan çıkmak için İptal'e tıklayın.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Bağlantı Modu</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Seçimini kaldırdığınız klasörler bu bilgisayardan kaldırılacak ancak sunucuda kalacak. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Sürüm Uyuşmazlığı</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Bağlantı başarıyla kuruldu.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Güncellenmesi gereken bazı dosyalar şu anda kullanımda.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Ayarlar uygulanıyor...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>İzin Reddedildi</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Yine de Devam Et</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Hazırlanıyor...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>Kurulum tamamlandı. Lumora şimdi dosyalarınızı eşitlemeye başlayacak.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Klasör Boş Değil</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Bu dosyanın önceki sürümleri alınamıyor.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Bağlantı Bilgileri</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>Sunucunun SSL sertifikası doğrulanamadı.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP Adresi</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>Sunucudaki eşitleme klasörü, bu bağlantının bağlı olduğu klasörle eşleşmiyor.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Yerel Depolama</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Karşıya yükleniyor</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Devre dışı</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Lumora'nın bu sürümü sunucuya bağlanmak için çok eski. Lütfen Lumora'yı güncelleyin.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Kullanıcı adı:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Özet</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Tek renkli tepsi simgesi kullan</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>Seçilen klasör boş değil. Lütfen boş bir klasör seçin veya içeriğini sunucuyla birleştirin.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] kaldırılmaya hazır</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>%1 dosya işleniyor...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Birleştir</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Seçilen klasör salt okunur. Lütfen yazma izniniz olan bir klasör seçin.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Yerel Klasör Seçin</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Bağlantıyı Kaldır</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Güvenli bağlantı kullan (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Bu kurallarla eşleşen dosyalar eşitlenmeyecek.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>[ProductName] uygulamasını bilgisayarınızdan kaldırmak için Kaldır'a tıklayın. Yükleme ayarlarınızı gözden geçirmek veya değiştirmek için Geri'ye tıklayın. Sihirbazdan çıkmak için İptal'e tıklayın.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Başka Bir Klasör Seç</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Seçmeli Eşitleme</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Şimdi Başlat</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Programı bilgisayarınızdan kaldırmayı seçtiniz.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Lumora başlatılamadı. Lütfen uygulamayı yeniden başlatın.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Kimlik doğrulama başarısız oldu. Lütfen kullanıcı adınızı ve parolanızı kontrol edin.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Bitir</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Dosyalarınızı eşitlemeye başlamak için Lumora'yı kurun.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>Paylaşım silinemedi. Lütfen yeniden deneyin.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Bu klasördeki dosyalar sunucudaki dosyalarla birleştirilecek. İki dosya aynı ada sahipse ikisi de saklanır ve birinin adı değiştirilir.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Bu dosya indirilemiyor.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>Sunucu Kimliği</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Bu sunucu klasörü, bu bilgisayardaki başka bir eşitleme klasörüne zaten bağlı.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>IP Adresi Ayrıntıları</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Çift Tıklama Eylemi</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Eşitleme Hatası</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Eşitleme Modu</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Birden çok adı virgülle ayırın. Herhangi bir karakter dizisiyle eşleşmek için * kullanın.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Lütfen ara sunucunun adresini ve bağlantı noktasını girin.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Yüklemeyi kaldır</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kurulum Sihirbazı, [ProductName] özelliklerinin bilgisayarınıza yüklenme şeklini değiştirmenize veya uygulamayı bilgisayarınızdan kaldırmanıza olanak tanır. Devam etmek için İleri'ye, Kurulum Sihirbazından çıkmak için İptal'e tıklayın.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Gelişmiş Ayarlar</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Bağlantı test ediliyor...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Salt Okunur Klasör</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Yüklemeyi değiştir</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Sunucu Klasörü Değişti</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Etkin</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Röle hizmeti üzerinden bağlıyken paylaşım bağlantıları kullanılamaz.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Hedef</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Dışlanan Dosyalar</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Genel Bakış</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Lumora Klasörünü Aç</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>Sunucuyla bağlantı kesildi. Lumora yeniden bağlanmaya çalışacak.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Güvenli Bağlantı</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Bir veritabanı hatası oluştu. Lütfen Lumora'yı yeniden başlatın.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] Kurulum Sihirbazına Hoş Geldiniz</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Son Kullanıcı Lisans Sözleşmesi</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Paylaşım</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Eşitleme yönü:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Şu anda %1 dosya eşitleniyor.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Klasör Yolu</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Durum:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>%1 Uygulamasına Hoş Geldiniz</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Bu öğe için paylaşım bağlantısı oluşturulamaz.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Durum Bilgileri</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Sunucuyla eşitlenecek bir yerel klasör seçin.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>[ProductName] yüklemesini iptal etmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] yükleniyor</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>Eşitleme klasörü, bağlı olmayan bir sürücüde. Lütfen sürücüyü bağlayıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Lütfen bir kullanıcı adı girin.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Paylaşım etkinleştirilemedi. Lütfen daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Yerel Ağ (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora hazır.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>Kurulum Sihirbazı, [ProductName] onarımına başlamaya hazır.</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Yüklemeyi başlatmak için Yükle'ye tıklayın. Yükleme ayarlarınızı gözden geçirmek veya değiştirmek için Geri'ye tıklayın. Sihirbazdan çıkmak için İptal'e tıklayın.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Maksimum boyuttan büyük dosyalar eşitlenmesin</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>İndirme başarısız oldu.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Kaldır</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Bağlantıyı Düzenle</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Eşitlemeyi Yeniden Dene</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>Sizinle yeni bir klasör paylaşıldı.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] başarıyla yüklendi.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Programı daha sonra yüklemek için Kurulum Sihirbazını yeniden çalıştırın. Bu sihirbazı kapatmak için Son düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>[ProductName] kurulumu kesintiye uğradı. Sisteminizde değişiklik yapılmadı.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Değiştir</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Lisans Sözleşmesindeki koşulları kabul &amp;etmiyorum</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Yerel Eşitleme Klasörü</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Güncelleniyor...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Bu bilgisayarın sunucuyla bağlantısını kaldırmak istiyor musunuz? Yerel dosyalarınız silinmeyecek.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>%1 önekli dosya ve klasörleri eşitle.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Maksimum paylaşım sayısına ulaştınız.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Bağlantı Ekle</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>Çakışma oluştuğunda:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Kimlik</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>Kurulum Sihirbazı, [ProductName] yüklemesine başlamaya hazır.</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Dışlama listesi:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>Kurulum Sihirbazı, [ProductName] uygulamasını bilgisayarınıza yükleyecek. Devam etmek için İleri'ye, Kurulum Sihirbazından çıkmak için İptal'e tıklayın.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Bu bağlantı etkin değil.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora zaten çalışıyor.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Lumora'yı Aç</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora başlıyor...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Röle Bağlantısı</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] onarılmaya hazır</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Kurulum Sihirbazı [ProductName] uygulamasını yüklerken lütfen bekleyin. Bu işlem birkaç dakika sürebilir.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Onar</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Dosya uzantıları:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Eksik veya hasarlı dosyaları ve kısayolları değiştirerek en son yüklemedeki hataları onarır.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>Uygulamaları &amp;kapatma. Yeniden başlatma gerekecek.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] Kurulum Sihirbazı tamamlandı</translation>
    </message>
</context>
</TS>
