<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Silindi</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>İlişkiyi kaldır</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Dosya eklendi: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Klasörü değiştir</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Birleştir</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Eklendi</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Değiştirildi</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Yeniden adlandırıldı</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Taşındı</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Geri yüklendi</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>Dosya değişti: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Dosya silindi: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Dosya yeniden adlandırıldı: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Klasör eklendi: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Klasör silindi: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Son değişen dosyalar</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Henüz hiçbir dosya değişmedi.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Tüm değişiklikleri göster</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Klasörü aç</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Corvimo Client uygulamasını aç</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Web tarayıcısında aç</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Eşitlemeyi duraklat</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Bir saat duraklat</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Yarına kadar duraklat</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Eşitlemeyi sürdür</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Bildirimler</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>Corvimo Client hakkında</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Corvimo Client uygulamasını yeniden başlatana kadar dosyalar eşitlenmeyecek. Çıkmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Güncel</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Eşitleniyor...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Eşitleniyor, %1 dosya kaldı</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>Karşıya yükleniyor: %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>İndiriliyor: %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Değişiklikler aranıyor...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>Şu zamana kadar duraklatıldı: %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Bağlı değil</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Bağlanıyor...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Bekliyor</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>İlgilenmeniz gerekiyor</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Bazı dosyalar eşitlenemedi.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Hiçbir eşitleme görevi ayarlanmadı.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>Yükleme: %1, indirme: %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Birlikte aç...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Klasörde göster</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Sürüm geçmişi</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Bağlantıyı al</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Bağlantıyı kopyala</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Paylaş...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Bağlantıyı e-postayla gönder</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Şimdi eşitle</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Bu klasörü eşitle</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Bu klasörü eşitlemeyi durdur</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Her zaman bu bilgisayarda tut</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Yer aç</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Dosyayı kilitle</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Dosyanın kilidini aç</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Geri yükle</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Yeniden adlandır</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Yenile</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Özellikler</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Yolu kopyala</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tümünü seç</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Yeni klasör</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Kes</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Yapıştır</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Geri al</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Yinele</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Bu adı taşıyan dosyaları eşitleme</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Bu türdeki dosyaları eşitleme</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Kilitleyen: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>“%1” kilitlendi. Başkaları onu okuyabilir ancak değiştiremez.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>“%1” dosyasının kilidi açıldı.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>Bağlantı panoya kopyalandı.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>Yol panoya kopyalandı.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>%1 öğe seçildi</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Bu öğe eşitlenen bir klasörde değil.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Eşitleme görevleri</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Genel bakış</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Eşitleme</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Yedekleme</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Son etkinlikler</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Oluştur</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Eşitleme görevi oluştur</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Düzenle</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Sürdür</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Tümünü duraklat</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Tümünü sürdür</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>“%1” ile eşleşen bir şey yok.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Henüz eşitleme görevi yok. Bu bilgisayardaki bir klasörle Corvimo Server sunucusundaki bir klasörü aynı tutmak için bir görev oluşturun.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Bu bilgisayardaki klasör</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Corvimo Server sunucusundaki klasör</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Boyut</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Değiştirilme tarihi</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tür</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Sahip</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Hesap</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Son eşitleme</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Durduruldu</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Klasör bulunamadı</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Salt okunur</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Eşitleme görevini sil</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>“%1” eşitleme görevini silmek istiyor musunuz? Dosyalarınız bu bilgisayarda ve Corvimo Server sunucusunda kalır.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Seçilen %1 eşitleme görevini silmek istiyor musunuz? Dosyalarınız bu bilgisayarda ve Corvimo Server sunucusunda kalır.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>Eşitleme görevi silindi.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>Eşitleme duraklatıldı. Değişiklikler, sürdürdüğünüzde eşitlenecek.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Listeyi temizle</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Tüm etkinlikler</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Yalnızca hatalar</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>Karşıya yüklendi: %1.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>İndirildi: %1.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>Bu bilgisayardan silindi: %1.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>Corvimo Server sunucusundan silindi: %1.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1 yeniden adlandırıldı, yeni adı: %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 taşındı, yeni konumu: %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>%1 dosya değiştirildi, değiştiren: %2.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Eşitlenecek klasörleri seçin</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Corvimo Server sunucusunda bir klasör ve bu bilgisayarda bir klasör seçin. Corvimo Client ikisini aynı tutar.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Sunucu klasörünü seç</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Yerel klasörü seç</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Değiştir</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Göz at...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Vazgeç</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Yeni klasörün adı</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>“%1” klasörü oluşturulamadı. Başka bir ad seçin veya izinlerinizi denetleyin.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Burada “%1” adlı boş bir klasör oluştur</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Eşitleme yönü</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>İki yönlü eşitleme</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Yalnızca değişiklikleri karşıya yükle</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Yalnızca değişiklikleri indir</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>İki taraftan birindeki değişiklikler diğerine kopyalanır.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Bu bilgisayardaki değişiklikler karşıya yüklenir. Corvimo Server sunucusundaki değişiklikler indirilmez.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Corvimo Server sunucusundaki değişiklikler indirilir. Bu bilgisayardaki değişiklikler karşıya yüklenmez.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Corvimo Server sunucusunda silinen dosyaları bu bilgisayarda tut</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Bu bilgisayarda silinen dosyaları Corvimo Server sunucusunda tut</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Klasörleri birleştir</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Her iki klasörde de dosyalar var. Bunlarla ne yapılacağını seçin.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>“%1” klasörü zaten var. Bu klasörü Corvimo Server sunucusundaki klasörle birleştirmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>İki klasörü birleştir ve tüm dosyaları tut</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Bu bilgisayardaki dosyaları kullan</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Corvimo Server sunucusundaki dosyaları kullan</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Başka bir klasör seç</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Farklı olan dosyalar iki kopya olarak tutulur.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Corvimo Server sunucusunda olup bu bilgisayarda olmayan dosyalar silinecek.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Bu bilgisayarda olup Corvimo Server sunucusunda olmayan dosyalar çöp sepetine taşınacak.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Aynı ada sahip dosyaların üzerine yazılacak. Bu işlem geri alınamaz.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>İki klasör karşılaştırılıyor...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>%1 / %2 dosya karşılaştırıldı</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>İki klasör artık aynı.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Bu klasör zaten bir eşitleme görevinin parçası. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Bu klasör, zaten eşitlenen bir klasörün içinde. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Bu klasör, zaten eşitlenen bir klasör içeriyor. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Sistem klasörleri eşitlenemez. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>Bir diskin tamamı eşitlenemez. Diskteki bir klasörü seçin.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Çıkarılabilir disklerdeki klasörler eşitlenemez.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>\\server\share gibi ağ klasörleri eşitlenemez. Bu bilgisayardaki bir klasörü seçin.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>Bu klasöre yazma izniniz yok. Başka bir klasör seçin.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Bu klasör şifrelenmiş ve kilitli. Önce Corvimo Server sunucusunda kilidini açın.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>Klasör bulunamadı. Taşınmış veya silinmiş olabilir.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>Bu diskin dosya sistemi desteklenmiyor. Dosya sistemi desteklenen bir disk kullanın.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>%1 eşitleme görevi sınırına ulaştınız. Artık gerekmeyen bir görevi silin.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Seçmeli eşitleme</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Bu bilgisayarla nelerin eşitleneceğini seçin. Seçimini kaldırdığınız klasörler bu bilgisayardan kaldırılır ancak Corvimo Server sunucusunda kalır.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Klasörler</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Dosya süzgeci</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Hiçbirini seçme</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Yeni klasörleri otomatik olarak eşitle</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Yükleniyor...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>Klasör listesi yüklenemedi. Bağlantınızı denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Yeniden dene</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>%1 klasör bu bilgisayardan kaldırılacak. Klasörler Corvimo Server sunucusunda kalır.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Klasörler bu bilgisayardan kaldırılsın mı?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Bu klasörlerdeki bazı dosyalar henüz karşıya yüklenmedi ve kaybolacak. Önce bunları eşitleyin.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Seçilen: %1 / %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Şundan büyük dosyaları eşitleme</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Şu uzantılara sahip dosyaları eşitleme</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Şu adları taşıyan dosyaları eşitleme</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Uzantı ekle</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Ad ekle</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Adı noktayla başlayan dosya ve klasörleri eşitle</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Yaygın programların geçici dosyaları hiçbir zaman eşitlenmez.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Varsayılanları geri yükle</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Varsayılan süzgece dönmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Bir uzantı girin, örneğin “iso”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>“%1” zaten listede.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Bir ad şu karakterlerden hiçbirini içeremez: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>%1 ile %2 arasında bir boyut girin.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Süzgeç nedeniyle hariç tutuldu</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>Seçiminiz kaydedildi. Corvimo Client şimdi bunu uyguluyor.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Belge dosyaları</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Resim dosyaları</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Video dosyaları</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Müzik dosyaları</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Arşivler</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Diğer dosyalar</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>“%1” dosyasının sürümleri</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Geçerli sürüm</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Önceki sürüm</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Değiştiren</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Aygıt</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>İndir</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Önizle</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Bu dosyanın önceki sürümü yok.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Sürümlerini görmek için bir dosya seçin.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Sürümü geri yükle</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Geçerli sürümü %1 tarihli sürümle değiştirmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>Geçerli sürüm geçmişte tutulur.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>“%1”, %2 tarihli sürüme geri döndürüldü.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>Sürüm geri yüklenemedi. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Kopya olarak geri yükle</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Sürümü farklı kaydet</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>Sürüm şuraya kaydedildi: “%1”.</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Bu sürümü silmek istiyor musunuz? Geri getirilemez.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>Sürüm silinemedi.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Otomatik silmeye karşı korunuyor</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Corvimo Server bir dosyanın en çok %1 sürümünü tutar.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>Bu klasör için sürüm geçmişi kapalı. Yöneticiden açmasını isteyin.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Bu dosya türü için sürüm tutulmuyor.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Silinen dosyalar</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Silinen dosyaları göster</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Silinme tarihi: %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Seçilen %1 öğeyi geri yüklemek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>%1 öğe geri yüklendi.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Silinen dosya bulunamadı.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Belirli bir zamana dön</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Bir tarih ve saat seçin</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Karşılaştır</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Paylaş</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>“%1” öğesini paylaş</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Kişiler</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Kişileri davet edin veya bu öğe için bir bağlantı oluşturun.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Kişileri davet et</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Bir ad veya e-posta adresi girin</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Davet gönder</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>Davet şu kişiye gönderildi: %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>Davet gönderilemedi. E-posta adresini denetleyin.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>İleti (zorunlu değil)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>İzinler</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Görüntüleyebilir</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Düzenleyebilir</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Yönetebilir</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Yalnızca karşıya yükleyebilir</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Erişim yok</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>%1 adlı kullanıcının izinleri değiştirildi.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>Bu öğeyi paylaşma izniniz yok. Sahibinden isteyin.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Benimle paylaşılanlar</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Paylaştıklarım</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>%1 kişiyle paylaşıldı</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Bu öğe paylaşılmıyor.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Paylaşılan klasörden ayrıl</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Paylaşılan “%1” klasöründen ayrılmak istiyor musunuz? Klasör bu bilgisayardan kaldırılacak.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>“%1” artık sizinle paylaşılmıyor.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1, “%2” öğesini sizinle paylaştı.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grup</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Bu sunucudaki herkes</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Paylaşım bağlantısı ayarları</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Paylaşım bağlantısı oluştur</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Paylaşım bağlantısı oluşturuluyor...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Paylaşım bağlantısını sil</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Bu paylaşım bağlantısını silmek istiyor musunuz? Bağlantıya sahip kişiler artık öğeyi açamaz.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Bağlantıya sahip herkes</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Yalnızca hesabı olan kişiler</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Parolayla koru</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>Parola en az %1 karakter içermelidir.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Bağlantı için bir parola girin.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Paylaşım bağlantısının geçerlilik sonu</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>Süresi dolmaz</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>İleri bir tarih seçin.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Bu paylaşım bağlantısının süresi doldu.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>İzin verilen indirme sayısı</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>%1 indirme hakkı kaldı</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>İndirmeye izin ver</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Karşıya yüklemeye izin ver</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>Paylaşım bağlantısı oluşturulamadı. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>Yönetici bu klasör için paylaşım bağlantılarını kapattı.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Dosya isteği</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>Bağlantıya sahip kişiler, içeriğini görmeden bu klasöre dosya yükleyebilir.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>QR kodunu göster</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Çakışmalar</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>“%1” aynı anda iki yerde değiştirildi.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>%1 dosya aynı anda iki yerde değiştirildi.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Hangi sürümün tutulacağını seçin. Diğeri çakışan kopya olarak kaydedilir.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Bu bilgisayardaki sürümü tut</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Corvimo Server sunucusundaki sürümü tut</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Her iki sürümü de tut</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Daha yeni olan sürümü tut</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Her seferinde bana sor</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Tüm çakışmalar için bunu yap</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>çakışan kopya %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Bu bilgisayarda</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>Corvimo Server sunucusunda</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Değiştiren: %1, %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Bir dosya iki yerde değiştirildiğinde</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Yalnızca büyük/küçük harf farkı olan adlar</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>“%1” ile “%2” arasında yalnızca büyük/küçük harf farkı var. Birini yeniden adlandırın.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Çakışma yok.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>Çakışma çözüldü.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Dosya açık olduğu için çakışma çözülemedi. Dosyayı kapatıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Çöz</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Sonra karar ver</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Her iki dosyayı da aç</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Atla</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>“%1” dosyasını sildiniz ancak dosya Corvimo Server sunucusunda değiştirilmişti. Değiştirilen dosya tutuldu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>“%1” Corvimo Server sunucusunda silindi ancak siz onu değiştirmiştiniz. Dosyanız tutuldu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>“%1” bir tarafta dosya, diğer tarafta klasör. Birini yeniden adlandırın.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Çakışan kopyalar</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Çakışan kopyaları sil</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>%1 çakışan kopyayı silmek istiyor musunuz? Geri getirilemezler.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>“%1” başka bir programda açık, kapatıldığında eşitlenecek.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Sunucu adresi</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Ana bilgisayar adı, IP adresi veya Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Bağlantı noktası</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Kullanıcı adı</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Bağlantıyı şifrele</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Şifreleme olmadan ağdaki başkaları dosyalarınızı ve parolanızı okuyabilir.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Bağlan</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Bağlantıyı kes</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Yeniden bağlan</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Bağlantıyı sına</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Bağlantı sınanıyor...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Bağlantı çalışıyor.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>Bağlantı çalışmıyor. Adresi ve bağlantı noktasını denetleyin.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Bağlı</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Bağlı: %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>%1 ile bağlantı kesildi. Corvimo Client %2 saniye sonra yeniden deneyecek.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>%1 ile bağlantı yeniden kuruldu.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Ağ bağlantısı bekleniyor</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Tarifeli ağlarda eşitleme yapma</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>Bu ağ tarifeli olduğu için eşitleme duraklatıldı.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Yerel ağ üzerinden bağlı</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>İnternet üzerinden bağlı</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Aktarma sunucusu üzerinden bağlı</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>Aktarma sunucusu doğrudan bağlantıdan daha yavaştır.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Bu ağdaki sunucuları bul</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Sunucular aranıyor...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>Bu ağda sunucu bulunamadı. Sunucu adresini elle girin.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>%1 sunucu bulundu</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>“%1” sunucusu bulunamadı. Adresin yazımını denetleyin.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>Sunucu bağlantıyı reddetti. Corvimo Server sunucusunun çalıştığından emin olun.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>Sunucu zamanında yanıt vermedi. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Bu bilgisayar bir ağa bağlı değil.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>1 ile 65535 arasında bir bağlantı noktası girin.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Sunucunun adresini girin.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>“%1” adlı Corvimo ID yok.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>Bu Corvimo ID için kayıtlı sunucu çevrimdışı. Açık olduğundan emin olun.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>Corvimo Server bu sunucuda yüklü değil veya çalışmıyor.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>Sunucuda bakım yapılıyor. Sunucu yeniden kullanılabilir olduğunda eşitleme sürecek.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server bu istemci için çok eski. Yöneticiden sunucuyu %1 veya daha yeni bir sürüme güncellemesini isteyin.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Bu istemci Corvimo Server için çok eski. İstemciyi %1 veya daha yeni bir sürüme güncelleyin.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>Sunucuya çok fazla istemci bağlı. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Bu bilgisayar çok fazla başarısız denemeden sonra engellendi. Yöneticiden engeli kaldırmasını isteyin.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>Bir güvenlik duvarı Corvimo Client uygulamasını engelliyor olabilir. Corvimo Client uygulamasının şu bağlantı noktasını kullanmasına izin verin: %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>Güvenli bağlantı kurulamadı: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Bilinmeyen bir hata oluştu (kod %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Bağlantıyı düzenle</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Bağlantıyı kaldır</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>%1 ile bağlantıyı kaldırmak istiyor musunuz? Eşitleme görevleri silinir ancak dosyalarınız kalır.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>%1 dosya henüz karşıya yüklenmedi.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Gelişmiş</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Son bağlantı: %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Vekil sunucu</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Ağınızın internete erişmesi için gerekiyorsa vekil sunucu kullanın.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Vekil sunucu kullanma</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Bu bilgisayarın vekil sunucu ayarlarını kullan</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Vekil sunucuyu elle ayarla</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Vekil sunucu türü</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Vekil sunucu adresi</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>Vekil sunucu kullanıcı adı ve parola istiyor</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Yerel adresler için vekil sunucuyu kullanma</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Şu adresler için vekil sunucuyu kullanma</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Vekil sunucuyu sına</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Vekil sunucu çalışıyor.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Vekil sunucuda oturum açın</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>%1 vekil sunucusu kullanıcı adı ve parola istiyor.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>Vekil sunucu, kullanıcı adını veya parolayı kabul etmedi.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>%1 vekil sunucusuna erişilemiyor. Adresini ve bağlantı noktasını denetleyin.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>Vekil sunucu şu adresle bağlantıya izin vermiyor: %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Bu bilgisayarın vekil sunucu ayarları okunamadı.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Vekil sunucunun adresini girin.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Sertifika</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>Sertifika güvenilir değil</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>%1 sertifikası bilinen bir yetkili tarafından verilmemiş. Birisi sunucunuzun yerine geçmeye çalışıyor olabilir.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>Sunucu, kendi imzaladığı bir sertifika kullanıyor.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>Sertifikanın süresi %1 tarihinde doldu.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>Sertifika %1 tarihinden önce geçerli değil. Bu bilgisayarın saatini denetleyin.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>Sertifika %2 için değil, %1 için verilmiş.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>Sertifika, onu veren yetkili tarafından iptal edildi.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>Sertifika değişti</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>%1 sertifikası daha önce kullanılanla aynı değil. Yenilenip yenilenmediğini yöneticiye sorun.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>Sertifika, artık güvenli sayılmayan bir algoritma kullanıyor.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Bu sertifikaya güven</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Bu sertifikaya her zaman güven</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Yalnızca bu kez güven</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Bağlanma</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Sertifikayı görüntüle</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Verilen</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Veren</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Geçerlilik başlangıcı</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Geçerlilik sonu</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seri numarası</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Parmak izi</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>İmza algoritması</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Anahtar uzunluğu</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Sertifikayı dışa aktar</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>Sertifika şuraya kaydedildi: “%1”.</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Sertifikayı içe aktar</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>Dosya geçerli bir sertifika içermiyor.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>%1 sertifikasını güvenilen sertifikalardan kaldırmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Depolama alanı</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 / %2 kullanıldı</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 boş</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Sınırsız</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Corvimo Server sunucusundaki depolama alanı</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Bu bilgisayardaki depolama alanı</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Dosya türüne göre depolama alanı</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Klasöre göre depolama alanı</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Önceki sürümlerin kullandığı depolama alanı</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Silinen dosyaların kullandığı depolama alanı</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Çöp sepetini boşalt</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Çöp sepetini boşaltmak istiyor musunuz? İçindeki dosyalar geri getirilemez.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>Çöp sepeti boşaltıldı. Açılan yer: %1.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Hesaplanıyor...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Depolama alanınız neredeyse dolu. Yalnızca %1 kaldı.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Depolama alanınız dolu</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Bazı dosyaları silene veya yöneticiden daha fazla depolama alanı isteyene kadar yeni dosyalar karşıya yüklenemez.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>“%1” klasörü kotasına ulaştı. İçindeki yeni dosyalar karşıya yüklenemez.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Corvimo Server birimi dolu. Yöneticiden yer açmasını isteyin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>“%1” kalan depolama alanından (%2) daha büyük.</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Disk alanı az</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>“%2” diskinde yalnızca %1 kaldı. Disk dolduğunda eşitleme durur.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Yeterli disk alanı yok</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>“%1” diskinde yeterli yer yok. En az %2 yer açana kadar eşitleme duraklatıldı.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>“%1” indirilmedi çünkü %2 disk alanı gerekiyor.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Seçmeli eşitlemeyle veya dosyaları yalnızca çevrimiçi tutarak yer açabilirsiniz.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Depolama alanı ayarlarını aç</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>En az bu kadar disk alanını boş tut</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Daha az yer kaldığında indirmeler duraklar.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>“%1” klasörünün bulunduğu disk bağlı değil. Eşitlemeyi sürdürmek için diski bağlayın.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>“%1” diski salt okunur. Corvimo Server sunucusundaki değişiklikler bu diske kaydedilemez.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Geçici dosyalar için yeterli yer yok. En az %1 yer açın.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Geçici dosyalar</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Geçici dosyaları sil</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Geçici dosyalar silindi (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Yeniden denetle</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Yok say</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Klasör</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Kullanılan</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>En büyük dosyalar</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Artık gerekmeyen dosyaları silin veya taşıyın.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>Depolama alanı kullanımınız bu ay %1 arttı.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>Bu hızla depolama alanınız %1 tarihinde dolacak.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Daha fazla depolama alanı iste</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>İsteğiniz yöneticiye gönderildi.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>İsteğiniz yanıt bekliyor.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>“%1” grubunun kotası doldu.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 hazır.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Yazılım güncellemesi</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Güncellemeleri denetle</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Güncellemeler denetleniyor...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>Sürümünüz en son sürüm.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Corvimo Client sürüm %1 kullanıma sunuldu.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>İndir ve yükle</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Daha sonra anımsat</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Bu sürümü atla</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>İndiriliyor...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>Güncelleme hazır. Yüklemek için Corvimo Client uygulamasını yeniden başlatın.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Şimdi yeniden başlat</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>Güncelleme yüklenemedi. Geçerli sürümünüz çalışmayı sürdürüyor.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client güncellemeleri denetleyemedi.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Sürüm notları</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Güncellemeleri otomatik olarak yükle</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 başlıyor...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Ayarlarınız önceki sürümden aktarılıyor.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Ayarlarınız aktarıldı. Kaldığınız yerden devam edebilirsiniz.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>Önceki sürümün bazı ayarları aktarılamadı. Eşitleme görevlerinizi denetleyin.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>Güncelleme için %1 disk alanı gerekiyor.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Bu sürüm artık desteklenmiyor. Eşitlemeyi sürdürmek için güncellemeyi yükleyin.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bant genişliği</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Karşıya yükleme hızı</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>İndirme hızı</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Sınır</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Otomatik olarak ayarla</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client, ağı kullanan diğer programlara yer bırakır.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Zamanlama</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Sınırın geçerli olacağı saatleri seçin.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Tüm gün</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Çalışma saatleri</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Gece</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>Eşitleme yapma</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Tam hız</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Sınırlı hız</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Zamanlamayı temizle</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>0 değerinden büyük bir hız girin.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>%1 ile %2 arasında bir hız girin.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>Başlangıç, bitişten önce olmalıdır.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>Yönetici hızı sınırladı: %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Aynı anda aktarılan dosya sayısı</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>Yerel ağda hızı sınırlama</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Geçerli hız</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Ortalama hız</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Bugün aktarılan</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Bu ay aktarılan</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Corvimo Client uygulamasının size neleri bildireceğini seçin.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Eşitleme tamamlandığında</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Bir dosya eşitlenemediğinde</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Birisi benimle bir öğe paylaştığında</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Birisi dosyalarıma yorum yaptığında</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Depolama alanı neredeyse dolduğunda</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Bir yedekleme tamamlandığında veya başarısız olduğunda</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Bir güncelleme olduğunda</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Bağlantı kesildiğinde</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Ses çal</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Rahatsız etme</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Sessiz saatler</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Şu zamana kadar bildirim yok: %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Sunumlar sırasında beni rahatsız etme</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Bildirimlerde dosya adlarını göster</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Bildirimler bu bilgisayarın sistem ayarlarında kapalı.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Sistem ayarlarını aç</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Gizle</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Tümünü gizle</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Görüntüle</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Okundu olarak işaretle</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Bildirim merkezi</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>Bildiriminiz yok.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>%1 yeni bildirim</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tüm dosyalar güncel.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>İlk eşitleme tamamlandı. %1 dosya artık bu bilgisayarda.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Çok sayıda dosya silindi</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>%1 dosya “%2” klasöründen silindi. İstenmeden olduysa dosyaları geri yükleyin.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>%1 dosya kısa sürede değiştirildi. Bunu siz yapmadıysanız eşitlemeyi duraklatın ve bilgisayarınızı kötü amaçlı yazılımlara karşı denetleyin.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>“%1” klasörü taşındı. Şimdi nerede olduğunu Corvimo Client uygulamasına bildirin.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1, “%2” öğesine yorum yaptı.</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Eşitleme sorunları</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Bu dosyalar eşitlenemedi. Corvimo Client, neden ortadan kalktığında yeniden deneyecek.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>%1 sorun</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Sorun yok.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Neden</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zaman</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Tümünü yeniden dene</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Ayrıntılar</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Ayrıntıları kopyala</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Sorun bildir</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>Ayrıntılar panoya kopyalandı.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Hata kodu: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>Dosya başka bir program tarafından kullanılıyor. Dosyayı eşitlemek için o programda kapatın.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>Dosyayı kilitleyen: %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>Dosya, eşitlenemeden silindi.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>Dosya karşıya yüklenirken değişti. Yeniden yüklenecek.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>Dosya aktarılırken bozuldu. Yeniden aktarılacak.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Dosya okunamıyor. İzinlerini denetleyin.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>Dosyaya yazılamıyor. İzinlerini denetleyin.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>Dosya %1 sınırından daha büyük.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>Dosya bu diskin dosya sistemi için çok büyük.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>Dosya şifrelenmiş ve bu bilgisayarda açılamıyor.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>Corvimo Server sunucusundaki virüs tarayıcı dosyayı engelledi.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>Bu bilgisayardaki virüs tarayıcı dosyayı engelledi.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Bu türdeki dosyalara Corvimo Server sunucusunda izin verilmiyor.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Aygıtlar, kanallar ve soketler eşitlenemez.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Eşitlenen klasörün dışını gösteren sembolik bağlantılar eşitlenmez.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>“%1” takma adı eşitlenmeyen bir öğeyi gösteriyor.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>Ad çok uzun. En çok %1 karakter kullanın.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>Yol çok uzun. İçindeki klasörlerin adlarını kısaltın.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>Ad, izin verilmeyen karakterler içeriyor: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>“%1” adı sisteme ayrılmış.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>Ad bir boşlukla veya noktayla bitiyor. Öğeyi yeniden adlandırın.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>Ad, okunamayan karakterler içeriyor. Öğeyi yeniden adlandırın.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Bu klasörde “%1” adlı bir öğe zaten var.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Bir ad girin.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>“%1” klasörü bulunamadı.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>Eşitlenmeyen dosyalar içerdiği için klasör silinmedi.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Klasör oluşturulamadı.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Klasör silinemedi.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>Bu klasörü değiştirme izniniz yok.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>Bu klasörü açma izniniz yok.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>Klasör %1 öğeden fazlasını içeriyor. Bazılarını alt klasörlere taşıyın.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>Klasör çok derin bir düzeyde.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>Sunucu meşgul. Corvimo Client birkaç dakika içinde yeniden deneyecek.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server bir iç hata bildirdi. Yöneticiden sunucunun günlüğüne bakmasını isteyin.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server şu anda değişiklik kabul etmiyor.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>Bu klasörün bulunduğu birim Corvimo Server sunucusunda kullanılamıyor.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>Paylaşılan klasör Corvimo Server sunucusundan kaldırıldı.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>Bu paylaşılan klasör için eşitleme kapatıldı.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>Sunucu, Corvimo Client uygulamasının anlamadığı bir yanıt gönderdi.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>Oturumunuz sona erdi. Yeniden oturum açın.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Corvimo Server verileri sıfırlandı. Eşitleme görevlerinizi yeniden ayarlayın.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>“%1” karşıya yüklenemedi.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>“%1” karşıya yüklenemedi: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>“%1” indirilemedi.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>“%1” indirilemedi: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>“%1” silinemedi: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>“%1” yeniden adlandırılamadı: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>“%1” taşınamadı: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>“%1” geri yüklenemedi: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>İzin verilmedi</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>Disk bir okuma veya yazma hatası bildirdi. Diskte arıza olup olmadığını denetleyin.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>Dosyalar yazılırken disk çıkarıldı.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Yeterli bellek yok. Diğer programları kapatıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>Eşitleme veritabanı hasarlı ve yeniden oluşturulacak. Bu biraz sürebilir.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>Eşitleme veritabanı başka bir program tarafından kullanılıyor.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Eşitleme veritabanı yeniden oluşturuluyor...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>Eşitleme veritabanı yeniden oluşturuldu.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Ayarlarınız okunamadı. Varsayılanlar kullanılıyor.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Ayarlarınız kaydedilemedi.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Sistem çok fazla klasörü izlediği için bazı klasörlerdeki değişiklikler geç fark edilebilir.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>Bu bilgisayarın saati ile sunucunun saati arasında %1 dakikadan fazla fark var. Bu bilgisayarın saatini düzeltin.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Bu işlem Corvimo Server tarafından desteklenmiyor.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>İşlem iptal edildi.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>İşlem çok uzun sürdü ve durduruldu.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Bilinmeyen bir hata oluştu.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Corvimo Client başlatılamadı. Bu bilgisayarı yeniden başlatıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client zaten çalışıyor.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Corvimo Client uygulamasının bir bileşeni eksik. İstemciyi yeniden yükleyin.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Durum simgeleri gösterilemiyor çünkü simgelere ayrılan tüm yerleri başka programlar kullanıyor.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client bu klasörü okumak için izninize gerek duyuyor. Bu bilgisayarın gizlilik ayarlarında izin verin.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Sorun sürerse Corvimo Client uygulamasını yeniden başlatın.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Sorun sürerse yöneticiye başvurun.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Sorun sürerse destek ekibine başvurun ve hata kodunu bildirin.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Kalan dosyalarla devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Oturum aç</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Oturumu kapat</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Corvimo Server sunucusunda oturum açın</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Parolayı göster</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Parolanızı mı unuttunuz?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Oturumum açık kalsın</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Oturum açılıyor...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Oturum açan: %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Oturumunuz kapalı.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Oturumu kapatmak istiyor musunuz? Yeniden oturum açana kadar eşitleme durur.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Tarayıcınızla oturum açın</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Tarayıcınızda devam edin, sonra buraya dönün.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>Tarayıcı açılamadı. Bu adresi kendiniz açın: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Etki alanı</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Hesabınız bir etki alanına aitse kullanıcı adınızı etkialanı\kullanıcı biçiminde girin.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Hesap ekle</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Hesap değiştir</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Hesabı kaldır</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>%1 hesabını bu bilgisayardan kaldırmak istiyor musunuz? Dosyalarınız bu bilgisayarda ve Corvimo Server sunucusunda kalır.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-posta adresi</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Ad ve soyad</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Parolayı değiştir</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Geçerli parola</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Yeni parola</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Yeni parolayı yineleyin</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>Parolanız değiştirildi.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>Yönetici parolanızı değiştirmenizi zorunlu kılıyor.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Parolanızın süresi %1 gün içinde dolacak.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>İki parola aynı değil.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>Yeni parola geçerli paroladan farklı olmalıdır.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Kullanıcı adınızı girin.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Parolanızı girin.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Kullanıcı adı veya parola yanlış.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>Kullanıcı adı veya parola yanlış. %1 kez daha deneyebilirsiniz.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Hesabınız devre dışı. Yöneticiye başvurun.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Hesabınızın süresi doldu. Yöneticiye başvurun.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Corvimo Server kullanma izniniz yok. Yöneticiye başvurun.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>Parolanızın süresi doldu. Parolanızı Corvimo Server sunucusunda değiştirin.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>Ana klasörünüz kullanılamıyor. Yöneticiden ana klasör hizmetini açmasını isteyin.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>Konuk hesabı eşitleme için kullanılamaz.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Tüm Corvimo Server lisansları kullanımda.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Bu bilgisayarın adı</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Hesapla ilişkili aygıtlar</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>“%1” aygıtının hesapla ilişkisini kaldırmak istiyor musunuz? Aygıtta oturum kapatılır ve eşitleme durur.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Bu bilgisayarın hesapla ilişkisi kaldırıldı, kaldıran: %1. Eşitlemeyi sürdürmek için yeniden oturum açın.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Bu bilgisayar</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Aygıttaki dosyaları da sil</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>İki adımlı oturum açma</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Kimlik doğrulama uygulamanızın gösterdiği kodu girin.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Doğrulama kodu</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 haneli</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Doğrula</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Doğrulanıyor...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Bu aygıta güven</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Bu bilgisayarda %1 gün boyunca yeniden sorma</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Telefonunuzu mu kaybettiniz?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Kodu e-postayla gönder</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>Şu adrese bir kod gönderildi: %1. Kod 10 dakika geçerlidir.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Kod gönderilemedi. Yöneticiden yardım isteyin.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Kurtarma kodu kullan</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Not ettiğiniz kurtarma kodlarından birini girin. Her kod bir kez kullanılabilir.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>%1 kurtarma kodunuz kaldı.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Güvenlik anahtarı kullan</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Güvenlik anahtarınızı takın ve ona dokunun.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>Güvenlik anahtarı tanınmadı. Başka bir anahtar deneyin.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Oturum açmayı telefonunuzda onaylayın</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>Onayınız bekleniyor...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Telefonunuzda %1 sayısını seçin.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>Oturum açma telefonunuzda reddedildi.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>İsteğin süresi doldu. Yeniden gönderin.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Yeniden gönder</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Başka bir yol dene</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Kodu girin.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>Kod yanlış. Telefonunuzun saatinin doğru olup olmadığını denetleyin.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Bu kod daha önce kullanıldı. Bir sonrakini bekleyin.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>Çok fazla yanlış kod girildi. %1 dakika bekleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>Yönetici iki adımlı oturum açmayı zorunlu kılıyor. Önce bunu Corvimo Server sunucusunda ayarlayın.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>İki adımlı oturum açmayı ayarla</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Bu kodu kimlik doğrulama uygulamanızla tarayın.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>İki adımlı oturum açma etkin.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Yedekleme görevleri</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>Yedekleme görevi, bu bilgisayarın klasörlerini Corvimo Server sunucusuna kopyalar ve önceki sürümleri tutar.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Yedekleme görevi oluştur</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Yedekleme görevini düzenle</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Yedekleme görevini sil</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>“%1” yedekleme görevini silmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Corvimo Server sunucusundaki yedeklenen dosyaları da sil</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Görev adı</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Bu ada sahip bir görev zaten var.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Yedeklenecekler</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Klasör ekle</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Yedeklenecek en az bir klasör seçin.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>“%1” klasörü artık yok. Yedeğe eklenmeyecek.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Masaüstü</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Belgeler</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Resimler</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Müzik</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videolar</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>İndirilenler</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Harici diskler</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Yedeğin saklanacağı yer</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Bu klasörde başka bir bilgisayarın yedeği zaten var.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Yedekleme zamanı</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Bir dosya her değiştiğinde</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>Zamanlanmış olarak</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Yalnızca ben başlattığımda</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Her gün</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Her hafta</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Her ay</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Her saat</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Saat: %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>Şu günlerde</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>Harici bir disk bağlandığında</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Yedekleme için bu bilgisayarı uyandır</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Şimdi yedekle</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Yedeklemeyi durdur</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Yedeklemeyi durdurmak istiyor musunuz? Zaten yedeklenmiş olan dosyalar tutulur.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Yedekleniyor...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Yedekleniyor, %1 / %2 dosya</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Yedekleme tamamlandı.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Son yedekleme: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Sonraki yedekleme: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Henüz yedeklenmedi</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>Yedekleme tamamlandı ancak %1 dosya okunamadı.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>Yedekleme başarısız oldu: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>%1 için zamanlanan yedekleme kaçırıldı. Şimdi başlıyor.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Bu bilgisayar %1 gündür yedeklenmedi.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Sürümlerin tutulma süresi</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Tüm sürümleri tut</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Son %1 sürümü tut</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Sürümleri %1 gün tut</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Sürümler eskidikçe daha azını tut</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Yedeği şifrele</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Şifreleme anahtarı</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Anahtarı güvenli bir yerde saklayın. Anahtar olmadan yedek geri yüklenemez.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>Şifreleme anahtarı yanlış.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Dosyaları geri yükle</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Geri yüklenecek dosyaları ve konulacakları yeri seçin.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Özgün yerine geri yükle</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Var olan dosyaların üzerine yaz</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>%1 / %2 dosya geri yükleniyor</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Tüm dosyalar geri yüklendi.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>%1 dosya geri yüklendi, %2 dosya geri yüklenemedi.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Yedeği doğrula</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>Yedek sağlam.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Yedekteki %1 dosya hasarlı. Yeniden yedeklenecekler.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Corvimo Client</source>
        <translation>Corvimo Client</translation>
    </message>
    <message>
        <source>Corvimo Server</source>
        <translation>Corvimo Server</translation>
    </message>
    <message>
        <source>Corvimo ID</source>
        <translation>Corvimo ID</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>Sürüm %1 (derleme %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Sunucu sürümü</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Tüm hakları saklıdır.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Lisans sözleşmesi</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Gizlilik bildirimi</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Üçüncü taraf yazılımlar</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Web sitesi</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Desteğe başvur</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Geri bildirim gönder</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Corvimo Client uygulamasını kullandığınız için teşekkür ederiz.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Günlükler</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Ayrıntı düzeyi</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Her şey</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>Ayrıntılı günlükler istemciyi yavaşlatır. İşiniz bittiğinde normal düzeye dönün.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Günlük klasörünü aç</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Günlüğü kaydet</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>Günlük şuraya kaydedildi: “%1”.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Günlük kaydedilemedi.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Günlüğü temizle</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Günlüğü temizlemek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Günlüğü desteğe gönder</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Günlük gönderiliyor...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>Günlük gönderildi. Rapor numaranız: %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Günlük gönderilemedi. Günlüğü kaydedip e-postayla gönderin.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>Günlük, dosya ve klasör adlarını içerir ancak içeriklerini içermez.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Corvimo Client uygulamasının geliştirilmesine yardımcı olmak için anonim kullanım verileri gönder</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Bu bilgisayarda oturum açtığımda Corvimo Client uygulamasını başlat</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Dosya ve klasörlerde durum simgelerini göster</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Corvimo Client uygulamasını bağlam menüsünde göster</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Eşitlenen klasörleri kenar çubuğunda göster</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Simgeyi menü çubuğunda göster</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>Sistemle aynı</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>Dil, Corvimo Client uygulamasını yeniden başlattığınızda değişir.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Koyu</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Metin boyutu</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>Dosyalar eşitlenirken uykuya geçme</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Corvimo Server sunucusunda silinen dosyaları çöp sepetine taşı</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Çok sayıda dosya silinmeden önce beni uyar</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Tüm ayarları sıfırlamak istiyor musunuz? Eşitleme görevleriniz olduğu gibi kalır.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Bu ayar yönetici tarafından yönetiliyor.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Ayarlarınız kaydedildi.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Değişikliklerinizi silmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Değişiklikleri sil</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>İsteğe bağlı dosyalar</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Tüm dosyalar bu bilgisayarda listelenir ancak bir dosya yalnızca siz açtığınızda indirilir.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>“İsteğe bağlı dosyalar” özelliğini kullan</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>“%1” için “İsteğe bağlı dosyalar” özelliğini kullanmak istiyor musunuz? Zaten bu bilgisayarda olan dosyalar burada kalır.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>“İsteğe bağlı dosyalar” özelliği açık.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>“İsteğe bağlı dosyalar” özelliğini kapat</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>“İsteğe bağlı dosyalar” özelliğini kapatmak istiyor musunuz? Bu klasörün tüm dosyaları indirilecek (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Tüm dosyaları indirmek için yeterli yer yok. %1 daha gerekiyor.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Yalnızca çevrimiçi</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Her zaman bu bilgisayarda</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Kısmen bu bilgisayarda</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>%1 dosya yalnızca çevrimiçi olarak kullanılabilecek. Devam etmek istiyor musunuz?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>%1 disk alanı açıldı.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Henüz karşıya yüklenmemiş dosyalar bu bilgisayarda kalır.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>“%1” açık ve bu bilgisayarda kalıyor.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Otomatik olarak yer aç</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Şu kadar gün açılmayan dosyaları yalnızca çevrimiçi yap: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Yalnızca disk alanı azaldığında</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1, “%2” dosyasını indiriyor.</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Bu programın indirmelerini engelle</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Bir program, yalnızca çevrimiçi olan çok sayıda dosyayı açıyor. Buna izin vermek istiyor musunuz?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>“%1” açılamıyor çünkü yalnızca çevrimiçi ve Corvimo Client bağlı değil.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Yalnızca çevrimiçi olan dosyaları açmak için Corvimo Client uygulamasını başlatın.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>“İsteğe bağlı dosyalar” özelliği sistemin bu sürümünde desteklenmiyor.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>“İsteğe bağlı dosyalar” özelliği bu diskte desteklenmiyor.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>“İsteğe bağlı dosyalar” özelliğini kullanmak için sistem ayarlarında dosya sağlayıcı genişletmesine izin verin.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Yalnızca çevrimiçi olan dosyaların önizlemelerini göster</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>Yalnızca çevrimiçi olan dosyaların içeriğinde bu bilgisayarda arama yapılamaz.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>İzin ver</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Engelle</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Corvimo Client uygulamasına hoş geldiniz</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Dosyalarınızın her bilgisayarda olması için Corvimo Client uygulamasını birkaç adımda ayarlayın.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Başla</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Adım %1 / %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Sunucunuza bağlanın</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Corvimo Server adresini girin ve hesabınızla oturum açın.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>Ne yapmak istiyorsunuz?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Dosyaları eşitle</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Bu bilgisayardaki ve Corvimo Server sunucusundaki dosyaları aynı tutun.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Bu bilgisayarı yedekle</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Kayba karşı korumak için dosyalarınızı Corvimo Server sunucusuna kopyalayın.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Dosyalarınız şu klasörle eşitlenecek: “%1”.</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Ekip klasörleri</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Bu bilgisayarda olmasını istediğiniz ekip klasörlerini seçin.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>Hiçbir ekip klasörünün üyesi değilsiniz.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Eşitleme seçenekleri</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Tüm dosyaları eşitle</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client, bildirim göstermek ve klasörlerinizi okumak için izninize gerek duyuyor.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Özet</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Başlamadan önce seçimlerinizi denetleyin.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>%1 dosya (%2) indirilecek.</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Her şey hazır</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client şimdi dosyalarınızı eşitliyor. Uygulamayı menü çubuğunda bulabilirsiniz.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Tura katıl</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Neler olduğunu görmek için menü çubuğundaki simgeyi tıklayın.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Paylaşmak veya sürümlerini görmek için bir dosyayı sağ tıklayın.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Dosyalarınızdaki simgeler eşitlenip eşitlenmediklerini gösterir.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Kurulumdan çıkmak istiyor musunuz? Daha sonra devam edebilirsiniz.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Önceki bir kurulumun ayarları bulundu. Bunları kullanmak istiyor musunuz?</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 bayt</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 KB/s</source>
        <translation>%1 KB/sn</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 MB/sn</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>Yüzde %1</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 dosya</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 dosya</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 klasör</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 klasör</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>%1 öğe</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>%1 dosya, %2 klasör</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 ve %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az önce</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>Bugün, %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Dün</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>Dün, %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Yarın</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>Bir dakika önce</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 dakika önce</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>Bir saat önce</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 saat önce</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 gün önce</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Geçen hafta</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Geçen ay</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 saniye</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 dakika</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 saat</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 gün</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1 saniye kaldı</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>%1 dakika kaldı</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>%1 saat kaldı</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pazartesi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Salı</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Çarşamba</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Perşembe</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Cuma</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Cumartesi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Pazar</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Daha fazla bilgi</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Bu iletiyi bir daha gösterme</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Lütfen bekleyin...</translation>
    </message>
</context>
</TS>
