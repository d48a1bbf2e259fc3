<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>已刪除</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>取消連結</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>已新增檔案：</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>變更資料夾</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合併</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>已新增</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>已修改</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重新命名</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>已移動</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>已還原</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>已變更檔案：</translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>已刪除檔案：</translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>已重新命名檔案：</translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>已新增資料夾：</translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>已刪除資料夾：</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近變更的檔案</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>尚無檔案變更。</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>顯示所有變更</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打開資料夾</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>打開 Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>在網頁瀏覽器中打開</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>暫停同步</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>暫停一小時</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>暫停到明天</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>繼續同步</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>關於 Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>在您再次啟動 Corvimo Client 之前，檔案將不再同步。確定要結束嗎？</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>正在同步...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>正在同步，剩餘 %1 個檔案</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>正在上傳 %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>正在下載 %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>正在尋找變更...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>暫停至 %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在連線...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>需要您處理</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>部分檔案無法同步。</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>尚未設定同步任務。</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>上傳 %1，下載 %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打開</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>打開方式...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>在資料夾中顯示</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>版本記錄</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>取得連結</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>複製連結</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>共用...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>以電子郵件傳送連結</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>立即同步</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>同步此資料夾</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>停止同步此資料夾</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>永遠保留在這台電腦上</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>釋放空間</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>鎖定檔案</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>解除鎖定檔案</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>還原</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重新命名</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>重新整理</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>內容</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>複製路徑</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全選</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>新增資料夾</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪下</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>復原</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>不同步此名稱的檔案</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>不同步此類型的檔案</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>已被 %1 鎖定</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>「%1」已鎖定。其他人可以檢視，但無法變更。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>「%1」已解除鎖定。</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>連結已複製到剪貼簿。</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>路徑已複製到剪貼簿。</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>已選取 %1 個項目</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>此項目不在同步的資料夾中。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步任務</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>總覽</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>備份</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>最近的活動</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>建立</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>建立同步任務</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>全部暫停</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>全部繼續</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>找不到符合「%1」的項目。</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>尚無同步任務。請建立任務，讓這台電腦上的資料夾與 Corvimo Server 上的資料夾保持一致。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>這台電腦上的資料夾</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Corvimo Server 上的資料夾</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>修改日期</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>擁有者</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>帳號</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>上次同步</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>找不到資料夾</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>刪除同步任務</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>確定要刪除同步任務「%1」嗎？您的檔案會保留在這台電腦和 Corvimo Server 上。</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>確定要刪除所選的 %1 個同步任務嗎？您的檔案會保留在這台電腦和 Corvimo Server 上。</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>同步任務已刪除。</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>同步已暫停。繼續後將會同步變更。</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>清除列表</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>所有活動</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>僅錯誤</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 已上傳。</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 已下載。</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 已從這台電腦刪除。</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 已從 Corvimo Server 刪除。</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1 已重新命名為 %2。</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 已移動到 %2。</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>%2 變更了 %1 個檔案。</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>選擇要同步的資料夾</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>選擇 Corvimo Server 上的資料夾和這台電腦上的資料夾。Corvimo Client 會讓兩者保持一致。</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>選擇伺服器資料夾</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>選擇本機資料夾</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>變更</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>瀏覽...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>新資料夾的名稱</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>無法建立資料夾「%1」。請選擇其他名稱或檢查您的權限。</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>在此建立名為「%1」的空資料夾</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>雙向同步</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>僅上傳變更</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>僅下載變更</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>任一方的變更都會複製到另一方。</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>上傳這台電腦上的變更。不下載 Corvimo Server 上的變更。</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>下載 Corvimo Server 上的變更。不上傳這台電腦上的變更。</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>在 Corvimo Server 上刪除檔案時，保留這台電腦上的檔案</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>在這台電腦上刪除檔案時，保留 Corvimo Server 上的檔案</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>合併資料夾</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>兩個資料夾中都已有檔案。請選擇處理方式。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>資料夾「%1」已存在。要與 Corvimo Server 上的資料夾合併嗎？</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>合併兩個資料夾並保留所有檔案</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>使用這台電腦上的檔案</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>使用 Corvimo Server 上的檔案</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>選擇其他資料夾</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>內容不同的檔案會保留兩份副本。</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Corvimo Server 上有而這台電腦上沒有的檔案將會刪除。</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>這台電腦上有而 Corvimo Server 上沒有的檔案將會移到垃圾桶。</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>同名檔案將會被取代。此動作無法復原。</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>正在比較兩個資料夾...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>已比較 %1/%2 個檔案</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>兩個資料夾現已一致。</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>此資料夾已屬於某個同步任務。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>此資料夾位於已同步的資料夾中。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>此資料夾包含已同步的資料夾。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>系統資料夾無法同步。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>無法同步整個磁碟。請選擇磁碟上的資料夾。</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>無法同步卸除式磁碟上的資料夾。</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>無法同步 \\server\share 這類網路資料夾。請選擇這台電腦上的資料夾。</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>您沒有寫入此資料夾的權限。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>此資料夾已加密並鎖定。請先在 Corvimo Server 上解除鎖定。</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>找不到資料夾。它可能已被移動或刪除。</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>不支援此磁碟的檔案系統。請使用檔案系統受支援的磁碟。</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>您已達到 %1 個同步任務的上限。請刪除不再需要的任務。</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>選擇性同步</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>選擇要同步到這台電腦的內容。取消勾選的資料夾會從這台電腦移除，但仍保留在 Corvimo Server 上。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>檔案篩選</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>全部取消選取</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>自動同步新資料夾</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>無法載入資料夾列表。請檢查您的連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試一次</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>將從這台電腦移除 %1 個資料夾。它們仍會保留在 Corvimo Server 上。</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>要從這台電腦移除資料夾嗎？</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>這些資料夾中的部分檔案尚未上傳，移除後將會遺失。請先同步這些檔案。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>已選取：%1/%2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>不同步大於此大小的檔案</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>不同步具有這些副檔名的檔案</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>不同步具有這些名稱的檔案</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>新增副檔名</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>新增名稱</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>同步名稱以點開頭的檔案和資料夾</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>常用程式的暫存檔永遠不會同步。</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>還原預設值</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>要還原為預設的篩選條件嗎？</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>請輸入副檔名，例如「iso」。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>「%1」已在列表中。</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>名稱不可包含下列任何字元：\ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>請輸入介於 %1 和 %2 之間的大小。</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>因篩選條件而未同步</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>您的選擇已儲存。Corvimo Client 正在套用。</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>文件檔</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>圖片檔</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>影片檔</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>音樂檔</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>封存檔</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>其他檔案</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>「%1」的版本</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>目前版本</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>先前版本</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>變更者</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>裝置</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下載</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>預覽</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>此檔案沒有先前版本。</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>選擇一個檔案以檢視其版本。</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>還原版本</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>要以 %1 的版本取代目前版本嗎？</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>目前版本會保留在記錄中。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>「%1」已還原為 %2 的版本。</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>無法還原此版本。請稍後再試。</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>還原為副本</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>將版本另存為</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>版本已儲存到「%1」。</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>要刪除此版本嗎？刪除後無法恢復。</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>無法刪除此版本。</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>受保護，不會自動刪除</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Corvimo Server 最多為每個檔案保留 %1 個版本。</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>此資料夾的版本記錄已關閉。請要求管理員將其開啟。</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>不會保留此類檔案的版本。</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>已刪除的檔案</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>顯示已刪除的檔案</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>刪除於 %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>要還原所選的 %1 個項目嗎？</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>已還原 %1 個項目。</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>找不到已刪除的檔案。</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>回到某個時間點</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>選擇日期和時間</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共用</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>共用「%1」</translation>
    </message>
    <message>
        <source>People</source>
        <translation>人員</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>邀請他人或建立此項目的連結。</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>邀請他人</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>輸入姓名或電子郵件地址</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>傳送邀請</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>邀請已傳送給 %1。</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>無法傳送邀請。請檢查電子郵件地址。</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>訊息（選填）</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>權限</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>可檢視</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>可編輯</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>可管理</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>僅可上傳</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>無存取權</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>已變更 %1 的權限。</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>您沒有共用此項目的權限。請洽詢其擁有者。</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>與我共用</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>我共用的項目</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>已與 %1 人共用</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>此項目未共用。</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>退出共用資料夾</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>要退出共用資料夾「%1」嗎？它將會從這台電腦移除。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>「%1」已不再與您共用。</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 與您共用了「%2」。</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>群組</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>此伺服器上的所有人</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>連結設定</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>建立連結</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>正在建立連結...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>刪除連結</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>要刪除此連結嗎？擁有此連結的人將無法再打開該項目。</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>擁有連結的任何人</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>僅限有帳號的人員</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>以密碼保護</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>密碼必須至少包含 %1 個字元。</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>請輸入連結的密碼。</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>連結有效期限</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>永不到期</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>請選擇未來的日期。</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>此連結已過期。</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>允許的下載次數</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>剩餘 %1 次下載</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>允許下載</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>允許上傳</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>無法建立連結。請稍後再試。</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>管理員已關閉此資料夾的連結功能。</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>檔案要求</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>擁有連結的人可將檔案上傳到此資料夾，但看不到其中的內容。</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>顯示 QR 碼</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>衝突</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>「%1」同時在兩處被變更。</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>%1 個檔案同時在兩處被變更。</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>選擇要保留的版本。另一個版本會儲存為衝突副本。</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>保留這台電腦上的版本</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>保留 Corvimo Server 上的版本</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>保留兩個版本</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>保留較新的版本</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>每次都詢問我</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>套用至所有衝突</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>%1 的衝突副本 %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>在這台電腦上</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>在 Corvimo Server 上</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>由 %1 於 %2 變更</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>檔案在兩處被變更時</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>僅大小寫不同的名稱</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>「%1」和「%2」僅大小寫不同。請重新命名其中一個。</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>沒有衝突。</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>衝突已解決。</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>檔案已打開，因此無法解決衝突。請關閉檔案，然後再試一次。</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>解決</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>稍後決定</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>打開兩個檔案</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>略過</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>您刪除了「%1」，但它在 Corvimo Server 上已被變更。已保留變更後的檔案。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>「%1」已在 Corvimo Server 上刪除，但您變更過它。已保留您的檔案。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>「%1」在一方是檔案，在另一方是資料夾。請重新命名其中一個。</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>衝突副本</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>刪除衝突副本</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>要刪除 %1 個衝突副本嗎？刪除後無法恢復。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>「%1」已在其他程式中打開，關閉後將會同步。</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>伺服器位址</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>主機名稱、IP 位址或 Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>加密連線</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>若不加密，網路上的其他人可能會讀取您的檔案和密碼。</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>連線</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>中斷連線</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新連線</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>測試連線</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在測試連線...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>連線正常。</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>無法連線。請檢查位址和連接埠。</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>已連線到 %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>與 %1 的連線已中斷。Corvimo Client 將在 %2 秒後重試。</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>與 %1 的連線已恢復。</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>正在等待網路連線</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>不在計量付費網路上同步</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>此網路為計量付費網路，因此同步已暫停。</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>已透過區域網路連線</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>已透過網際網路連線</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>已透過中繼伺服器連線</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>中繼伺服器比直接連線慢。</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>尋找此網路上的伺服器</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>正在尋找伺服器...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>在此網路上找不到伺服器。請自行輸入伺服器位址。</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>找到 %1 台伺服器</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>找不到伺服器「%1」。請檢查位址的拼字。</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>伺服器拒絕連線。請確認 Corvimo Server 正在執行。</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>伺服器未及時回應。請稍後再試。</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>這台電腦未連接網路。</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>請輸入介於 1 和 65535 之間的連接埠。</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>請輸入伺服器的位址。</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Corvimo ID「%1」不存在。</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>使用此 Corvimo ID 的伺服器已離線。請確認其電源已開啟。</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>此伺服器上未安裝或未執行 Corvimo Server。</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>伺服器正在維護。恢復後將繼續同步。</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server 的版本過舊，無法搭配此用戶端使用。請要求管理員將其更新至版本 %1 或以上。</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>此用戶端的版本過舊，無法搭配 Corvimo Server 使用。請將其更新至版本 %1 或以上。</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>連線到伺服器的用戶端過多。請稍後再試。</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>由於失敗次數過多，這台電腦已被封鎖。請要求管理員解除封鎖。</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>防火牆可能封鎖了 Corvimo Client。請允許 Corvimo Client 使用連接埠 %1。</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>無法建立安全連線：%1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>發生未知的錯誤（代碼 %1）。</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>編輯連線</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>移除連線</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>要移除與 %1 的連線嗎？其同步任務將會刪除，但您的檔案會保留。</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>%1 個檔案尚未上傳。</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>進階</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>上次連線時間：%1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理伺服器</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>如果您的網路需要透過代理伺服器連上網際網路，請使用代理伺服器。</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>不使用代理伺服器</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>使用這台電腦的代理伺服器設定</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>自行設定代理伺服器</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>代理伺服器類型</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>代理伺服器位址</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>代理伺服器需要使用者名稱和密碼</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>不對區域網路位址使用代理伺服器</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>不對下列位址使用代理伺服器</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>測試代理伺服器</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>代理伺服器運作正常。</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>登入代理伺服器</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>代理伺服器 %1 要求提供使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>代理伺服器不接受此使用者名稱或密碼。</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>無法連線到代理伺服器 %1。請檢查其位址和連接埠。</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>代理伺服器不允許連線到 %1。</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>無法讀取這台電腦的代理伺服器設定。</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>請輸入代理伺服器的位址。</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>憑證</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>憑證不受信任</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>%1 的憑證並非由已知的憑證機構簽發。可能有人在冒充您的伺服器。</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>伺服器使用自我簽署憑證。</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>憑證已於 %1 過期。</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>憑證在 %1 之前無效。請檢查這台電腦的時鐘。</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>憑證是簽發給 %1，而不是 %2。</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>憑證已被簽發機構撤銷。</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>憑證已變更</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>%1 的憑證與先前使用的不同。請向管理員確認憑證是否已更新。</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>憑證使用的演算法已不再安全。</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>信任此憑證</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>永遠信任此憑證</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>僅信任這一次</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>不要連線</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>檢視憑證</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>簽發對象</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>簽發者</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>有效期自</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>有效期至</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序號</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>指紋</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>簽章演算法</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>金鑰長度</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>匯出憑證</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>憑證已儲存到「%1」。</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>匯入憑證</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>檔案不包含有效的憑證。</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>要從受信任的憑證中移除 %1 的憑證嗎？</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>儲存空間</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>已使用 %1/%2</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>可用 %1</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>無限制</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Corvimo Server 上的儲存空間</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>這台電腦上的儲存空間</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>依檔案類型統計儲存空間</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>依資料夾統計儲存空間</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>先前版本使用的儲存空間</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>已刪除檔案使用的儲存空間</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>清空垃圾桶</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>要清空垃圾桶嗎？其中的檔案將無法恢復。</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>垃圾桶已清空。已釋放 %1。</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>正在計算...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>您的儲存空間即將用完，僅剩 %1。</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>您的儲存空間已滿</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>在您刪除部分檔案或向管理員申請更多儲存空間之前，無法上傳新檔案。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>資料夾「%1」已達到配額上限。無法將新檔案上傳至其中。</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Corvimo Server 的磁碟區已滿。請要求管理員騰出空間。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>「%1」大於剩餘的儲存空間（%2）。</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>磁碟空間即將用完</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>磁碟「%2」僅剩 %1。磁碟空間用完後將停止同步。</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>磁碟空間不足</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>磁碟「%1」的空間不足。同步已暫停，請至少釋放 %2 空間。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>「%1」未下載，因為它需要 %2 的磁碟空間。</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>您可以使用選擇性同步或將檔案設為僅限線上來釋放空間。</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>打開儲存空間設定</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>至少保留以下可用磁碟空間</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>剩餘空間低於此值時，下載會暫停。</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>資料夾「%1」所在的磁碟未連接。請連接該磁碟以繼續同步。</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>磁碟「%1」為唯讀。無法將 Corvimo Server 上的變更儲存到該磁碟。</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>暫存檔的空間不足。請至少釋放 %1。</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>暫存檔</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>刪除暫存檔</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>已刪除暫存檔（%1）。</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>再次檢查</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>已使用</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>最大的檔案</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>請刪除或移走不再需要的檔案。</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>您的儲存空間用量本月增加了 %1。</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>依此速度，您的儲存空間將於 %1 用完。</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>申請更多儲存空間</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>您的申請已傳送給管理員。</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>您的申請正在等待回覆。</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>群組「%1」的配額已用完。</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 準備完成</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>軟體更新</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>檢查更新</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>正在檢查更新...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>您使用的是最新版本。</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Corvimo Client 版本 %1 已可供更新。</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>下載並安裝</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>稍後提醒我</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>略過此版本</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下載...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>更新已就緒。請重新啟動 Corvimo Client 以進行安裝。</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>立即重新啟動</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>無法安裝更新。您目前的版本可繼續使用。</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client 無法檢查更新。</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>版本說明</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>自動安裝更新</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 準備中...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>正在從較早的版本轉移您的設定。</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>您的設定已轉移。您可以從上次中斷的地方繼續。</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>較早版本的部分設定無法轉移。請檢查您的同步任務。</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>更新需要 %1 的磁碟空間。</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>此版本已不再受支援。請安裝更新以繼續同步。</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>頻寬</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>上傳速度</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>下載速度</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>限制為</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>自動調整</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client 會為其他使用網路的程式預留頻寬。</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>排程</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>選擇套用限制的時段。</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>全天</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>工作時間</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>夜間</translation>
    </message>
    <message>
        <source>From</source>
        <translation>從</translation>
    </message>
    <message>
        <source>To</source>
        <translation>至</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>不同步</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>全速</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>限速</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>清除排程</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>請輸入大於 0 的速度。</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>請輸入介於 %1 和 %2 之間的速度。</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>開始時間必須早於結束時間。</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>管理員已將速度限制為 %1。</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>同時傳輸的檔案數</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>在區域網路上不限制速度</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>目前速度</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均速度</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>今日傳輸量</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>本月傳輸量</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>選擇 Corvimo Client 要通知您的內容。</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>同步完成時</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>檔案無法同步時</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>有人與我共用項目時</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>有人對我的檔案留言時</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>儲存空間即將用完時</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>備份完成或失敗時</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>有可用的更新時</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>連線中斷時</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>播放音效</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>勿擾模式</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>勿擾時段</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>%1 之前不通知</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>簡報期間請勿打擾</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>在通知中顯示檔案名稱</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>這台電腦的系統設定已關閉通知。</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>打開系統設定</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>全部清除</translation>
    </message>
    <message>
        <source>View</source>
        <translation>檢視</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>標示為已讀</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>通知中心</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>您沒有通知。</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>%1 則新通知</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>所有檔案均為最新。</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>首次同步已完成。這台電腦上現有 %1 個檔案。</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>大量檔案已刪除</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>已從「%2」刪除 %1 個檔案。如果這並非您的本意，請還原這些檔案。</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>短時間內有 %1 個檔案被變更。如果不是您所為，請暫停同步並檢查電腦是否有惡意軟體。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>資料夾「%1」已被移動。請告訴 Corvimo Client 它現在的位置。</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 對「%2」留言。</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>同步問題</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>這些檔案無法同步。原因排除後，Corvimo Client 將會重試。</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>%1 個問題</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>沒有問題。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>全部重試</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細資訊</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>複製詳細資訊</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>回報問題</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>詳細資訊已複製到剪貼簿。</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>錯誤代碼：%1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>其他程式正在使用此檔案。請在該程式中關閉檔案以進行同步。</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>檔案已被 %1 鎖定。</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>檔案在同步前已被刪除。</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>檔案在上傳過程中有變更。將會再次上傳。</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>檔案在傳輸途中損壞。將會再次傳輸。</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>無法讀取檔案。請檢查其權限。</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>無法寫入檔案。請檢查其權限。</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>檔案大於 %1 的上限。</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>檔案過大，此磁碟的檔案系統無法儲存。</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>檔案已加密，無法在這台電腦上打開。</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>Corvimo Server 上的病毒掃描程式已封鎖此檔案。</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>這台電腦上的病毒掃描程式已封鎖此檔案。</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Corvimo Server 不允許此類型的檔案。</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>裝置、管道和通訊端無法同步。</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>指向同步資料夾以外的符號連結不會同步。</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>替身「%1」指向未同步的項目。</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>名稱過長。最多可使用 %1 個字元。</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>路徑過長。請縮短其中的資料夾名稱。</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>名稱包含不允許的字元：%1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>名稱「%1」為系統保留名稱。</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>名稱以空格或句點結尾。請重新命名該項目。</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>名稱包含無法讀取的字元。請重新命名該項目。</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>此資料夾中已有名為「%1」的項目。</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>請輸入名稱。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>找不到資料夾「%1」。</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>資料夾包含未同步的檔案，因此未被刪除。</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>無法建立資料夾。</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>無法刪除資料夾。</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>您沒有變更此資料夾的權限。</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>您沒有打開此資料夾的權限。</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>資料夾包含的項目超過 %1 個。請將部分項目移到子資料夾中。</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>資料夾的巢狀層級過深。</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>伺服器忙碌中。Corvimo Client 將在幾分鐘後重試。</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server 回報內部錯誤。請要求管理員查看其記錄檔。</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server 目前不接受變更。</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>此資料夾所在的磁碟區在 Corvimo Server 上無法使用。</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>共用資料夾已從 Corvimo Server 移除。</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>此共用資料夾的同步已關閉。</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>伺服器傳回 Corvimo Client 無法識別的回應。</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>您的工作階段已結束。請重新登入。</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Corvimo Server 的資料已重設。請重新設定您的同步任務。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>無法上傳「%1」。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>無法上傳「%1」：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>無法下載「%1」。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>無法下載「%1」：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>無法刪除「%1」：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>無法重新命名「%1」：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>無法移動「%1」：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>無法還原「%1」：%2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>權限不足</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>磁碟回報讀取或寫入錯誤。請檢查磁碟是否有故障。</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>寫入檔案時磁碟被移除。</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>記憶體不足。請關閉其他程式，然後再試一次。</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>同步資料庫已損壞，將會重建。這可能需要一些時間。</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>同步資料庫正由其他程式使用。</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>正在重建同步資料庫...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>同步資料庫已重建。</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>無法讀取您的設定。將使用預設值。</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>無法儲存您的設定。</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>系統監控的資料夾過多，因此可能會延遲偵測到部分資料夾中的變更。</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>這台電腦的時鐘與伺服器的時鐘相差超過 %1 分鐘。請校正這台電腦的時間。</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Corvimo Server 不支援此動作。</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>動作已取消。</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>動作耗時過久，已停止。</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>發生未知的錯誤。</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>無法啟動 Corvimo Client。請重新啟動這台電腦，然後再試一次。</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client 已在執行。</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>缺少 Corvimo Client 的某個元件。請重新安裝用戶端。</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>其他程式已佔用所有圖示位置，因此無法顯示狀態圖示。</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client 需要您的許可才能讀取此資料夾。請在這台電腦的隱私權設定中允許。</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>如果問題仍未解決，請重新啟動 Corvimo Client。</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>如果問題仍未解決，請洽詢管理員。</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>如果問題仍未解決，請聯絡支援人員並提供錯誤代碼。</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>要繼續處理其餘檔案嗎？</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>登入</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>登出</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>登入 Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>顯示密碼</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>忘記密碼？</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>保持登入</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>正在登入...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>已以 %1 的身分登入</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>您已登出。</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>確定要登出嗎？在您重新登入之前，同步將會停止。</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>使用瀏覽器登入</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>請在瀏覽器中繼續操作，然後返回此處。</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>無法打開瀏覽器。請自行打開此網址：%1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>網域</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>如果您的帳號屬於某個網域，請以「網域\使用者」的格式輸入使用者名稱。</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>新增帳號</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>切換帳號</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>移除帳號</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>要從這台電腦移除帳號 %1 嗎？您的檔案會保留在這台電腦和 Corvimo Server 上。</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>電子郵件地址</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>變更密碼</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>目前的密碼</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>新密碼</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>再次輸入新密碼</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>您的密碼已變更。</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>管理員要求您變更密碼。</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>您的密碼將在 %1 天後過期。</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>兩次輸入的密碼不一致。</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>新密碼必須與目前的密碼不同。</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>請輸入您的使用者名稱。</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>請輸入您的密碼。</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>使用者名稱或密碼錯誤。</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>使用者名稱或密碼錯誤。您還可以嘗試 %1 次。</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>您的帳號已停用。請洽詢管理員。</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>您的帳號已過期。請洽詢管理員。</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>您沒有使用 Corvimo Server 的權限。請洽詢管理員。</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>您的密碼已過期。請在 Corvimo Server 上變更密碼。</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>您的個人資料夾無法使用。請要求管理員開啟個人資料夾服務。</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>訪客帳號無法用於同步。</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Corvimo Server 的所有授權皆已使用。</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>這台電腦的名稱</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>已連結的裝置</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>要取消連結「%1」嗎？它將會登出並停止同步。</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>%1 已取消連結這台電腦。請重新登入以繼續同步。</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>這台電腦</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>同時刪除裝置上的檔案</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>兩步驟驗證</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>請輸入您的驗證器 App 顯示的驗證碼。</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>驗證碼</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 位數字</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>驗證</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>正在驗證...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>信任此裝置</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>%1 天內不在這台電腦上再次詢問</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>手機遺失了？</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>以電子郵件傳送驗證碼</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>驗證碼已傳送至 %1，10 分鐘內有效。</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>無法傳送驗證碼。請向管理員尋求協助。</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>使用復原碼</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>請輸入您記下的一個復原碼。每個復原碼只能使用一次。</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>您還有 %1 個復原碼。</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>使用安全金鑰</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>請插入安全金鑰並觸碰它。</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>無法辨識安全金鑰。請嘗試其他金鑰。</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>在手機上核准登入</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>正在等待您的核准...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>請在手機上選擇數字 %1。</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>登入已在手機上遭到拒絕。</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>要求已過期。請重新傳送。</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>重新傳送</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>嘗試其他方式</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>請輸入驗證碼。</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>驗證碼錯誤。請檢查手機的時間是否正確。</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>此驗證碼已使用過。請等待下一個。</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>錯誤的驗證碼過多。請等待 %1 分鐘後再試。</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>管理員要求使用兩步驟驗證。請先在 Corvimo Server 上設定。</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>設定兩步驟驗證</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>請使用您的驗證器 App 掃描此 QR 碼。</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>兩步驟驗證已開啟。</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>備份任務</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>備份任務會將這台電腦的資料夾複製到 Corvimo Server，並保留先前版本。</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>建立備份任務</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>編輯備份任務</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>刪除備份任務</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>確定要刪除備份任務「%1」嗎？</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>同時刪除 Corvimo Server 上的備份檔案</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>任務名稱</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>已有同名的任務。</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>要備份的內容</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>加入資料夾</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>請至少選擇一個要備份的資料夾。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>資料夾「%1」已不存在，將不包含在備份中。</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>圖片</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音樂</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>下載項目</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>外接磁碟</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>備份的儲存位置</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>此資料夾已包含其他電腦的備份。</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>備份時間</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>檔案變更時</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>依照排程</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>僅在我手動啟動時</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>每天</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>每週</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>每月</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>每小時</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>時間：%1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>在這幾天</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>連接外接磁碟時</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>喚醒這台電腦以進行備份</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>立即備份</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>停止備份</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>要停止備份嗎？已備份的檔案會保留。</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>正在備份...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>正在備份，%1/%2 個檔案</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>備份已完成。</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>上次備份：%1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>下次備份：%1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>尚未備份</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>備份已完成，但 %1 個檔案無法讀取。</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>備份失敗：%1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>錯過了排定於 %1 的備份。現在開始備份。</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>這台電腦已有 %1 天未備份。</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>版本保留期間</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>保留所有版本</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>保留最近 %1 個版本</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>保留版本 %1 天</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>版本越舊，保留的數量越少</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>加密備份</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>加密金鑰</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>請將金鑰保管在安全的地方。沒有金鑰就無法還原備份。</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>加密金鑰錯誤。</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>還原檔案</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>選擇要還原的檔案和存放位置。</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>還原到原來的位置</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>取代現有檔案</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>正在還原 %1/%2 個檔案</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>已還原所有檔案。</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>已還原 %1 個檔案，%2 個檔案無法還原。</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>驗證備份</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>備份完好。</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>備份中有 %1 個檔案已損壞。將會重新備份。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
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
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>版本 %1（組建 %2）</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>伺服器版本</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>版權所有，保留一切權利。</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>授權合約</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>隱私權聲明</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>第三方軟體</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>網站</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>聯絡支援人員</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>傳送意見回饋</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>感謝您使用 Corvimo Client。</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>記錄檔</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>詳細程度</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>詳細記錄檔會讓用戶端變慢。完成後請改回一般等級。</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>打開記錄檔資料夾</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>儲存記錄檔</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>記錄檔已儲存到「%1」。</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>無法儲存記錄檔。</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>清除記錄檔</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>要清除記錄檔嗎？</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>將記錄檔傳送給支援人員</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>正在傳送記錄檔...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>記錄檔已傳送。您的回報編號為 %1。</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>無法傳送記錄檔。請將其儲存並以電子郵件傳送。</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>記錄檔包含檔案和資料夾的名稱，但不包含其內容。</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>傳送匿名使用資料，協助改進 Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>登入這台電腦時啟動 Corvimo Client</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>在檔案和資料夾上顯示狀態圖示</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>在快速選單中顯示 Corvimo Client</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>在側邊欄中顯示同步的資料夾</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>在選單列中顯示圖示</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>與系統相同</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>重新啟動 Corvimo Client 後語言將會變更。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外觀</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>淺色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>文字大小</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>同步檔案時不進入睡眠</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>將在 Corvimo Server 上刪除的檔案移到垃圾桶</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>刪除大量檔案前警告我</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>要重設所有設定嗎？您的同步任務將維持不變。</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>此設定由管理員管理。</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>您的設定已儲存。</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>要捨棄變更嗎？</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>捨棄</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>隨選檔案</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>所有檔案都會列在這台電腦上，但只有在您打開檔案時才會下載。</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>啟用隨選檔案</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>要為「%1」啟用隨選檔案嗎？已在這台電腦上的檔案會保留。</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>隨選檔案已啟用。</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>停用隨選檔案</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>要停用隨選檔案嗎？此資料夾的所有檔案都將下載（%1）。</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>空間不足，無法下載所有檔案。還需要 %1。</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>僅限線上</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>永遠在這台電腦上</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>部分在這台電腦上</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>%1 個檔案將僅限線上使用。要繼續嗎？</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>已釋放 %1 的磁碟空間。</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>尚未上傳的檔案會保留在這台電腦上。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>「%1」已打開，會保留在這台電腦上。</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>自動釋放空間</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>%1 天未打開的檔案改為僅限線上</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>僅在磁碟空間不足時</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 正在下載「%2」。</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>封鎖此程式的下載</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>某個程式正在打開大量僅限線上的檔案。要允許嗎？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>無法打開「%1」，因為它僅限線上，而 Corvimo Client 未連線。</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>請啟動 Corvimo Client 以打開僅限線上的檔案。</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>此版本的系統不支援隨選檔案。</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>此磁碟不支援隨選檔案。</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>請在系統設定中允許檔案提供者延伸功能，以使用隨選檔案。</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>顯示僅限線上檔案的預覽</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>無法在這台電腦上搜尋僅限線上檔案的內容。</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>允許</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>封鎖</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>歡迎使用 Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>只要幾個步驟即可設定 Corvimo Client，在每台電腦上使用您的檔案。</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>開始使用</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>第 %1 步，共 %2 步</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>連線到您的伺服器</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>請輸入 Corvimo Server 的位址並使用您的帳號登入。</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>您想要做什麼？</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>同步檔案</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>讓這台電腦與 Corvimo Server 上的檔案保持一致。</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>備份這台電腦</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>將您的檔案複製到 Corvimo Server，以防遺失。</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>您的檔案將同步到「%1」。</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>團隊資料夾</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>選擇要在這台電腦上使用的團隊資料夾。</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>您不是任何團隊資料夾的成員。</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>同步選項</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>同步所有檔案</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client 需要您的許可才能顯示通知和讀取您的資料夾。</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>開始之前，請檢查您的選擇。</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>將下載 %1 個檔案（%2）。</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>一切就緒</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client 正在同步您的檔案。您可以在選單列中找到它。</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>觀看導覽</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>按一下選單列中的圖示即可查看目前狀況。</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>以右鍵按一下檔案即可共用檔案或檢視其版本。</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>檔案上的圖示會顯示其是否已同步。</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>要離開設定程序嗎？您可以稍後繼續。</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>找到較早安裝的設定。要使用這些設定嗎？</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 位元組</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 KB/s</source>
        <translation>%1 KB/秒</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 MB/秒</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 個檔案</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 個檔案</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 個資料夾</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 個資料夾</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>%1 個項目</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>%1 個檔案，%2 個資料夾</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>剛剛</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>今天 %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>昨天 %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>明天</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>1 分鐘前</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分鐘前</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>1 小時前</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 小時前</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上週</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上個月</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分鐘</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 小時</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 天</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>剩餘 %1 秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>剩餘 %1 分鐘</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>剩餘 %1 小時</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>更多資訊</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>不要再顯示此訊息</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>請稍候...</translation>
    </message>
</context>
</TS>
