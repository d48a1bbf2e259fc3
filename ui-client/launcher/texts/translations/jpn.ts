<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>リンク解除</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>ファイルが追加されました: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>フォルダを変更</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>結合</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>追加済み</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>変更済み</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>名前変更済み</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>移動済み</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>復元済み</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>ファイルが変更されました: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>ファイルが削除されました: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>ファイル名が変更されました: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>フォルダが追加されました: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>フォルダが削除されました: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近変更されたファイル</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>変更されたファイルはまだありません。</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>すべての変更を表示</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダを開く</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Corvimo Client を開く</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Web ブラウザで開く</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>同期を一時停止</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>1 時間一時停止</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>明日まで一時停止</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>同期を再開</translation>
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
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>Corvimo Client について</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Corvimo Client をもう一度起動するまで、ファイルは同期されません。終了しますか？</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>最新の状態</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>同期中...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>同期中、残り %1 個のファイル</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>%1 をアップロード中</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>%1 をダウンロード中</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>変更を確認中...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>%1 まで一時停止中</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続中...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>対応が必要です</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>一部のファイルを同期できませんでした。</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>同期タスクが設定されていません。</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>上り %1、下り %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>別のアプリで開く...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>フォルダ内で表示</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>バージョン履歴</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>リンクを取得</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>リンクをコピー</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>共有...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>リンクをメールで送信</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>今すぐ同期</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>このフォルダを同期</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>このフォルダの同期を停止</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>常にこのコンピュータに保持</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>空き領域を増やす</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>ファイルをロック</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>ファイルのロックを解除</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>パスをコピー</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>新規フォルダ</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>ペースト</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>この名前のファイルを同期しない</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>この種類のファイルを同期しない</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>%1 がロック中</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>「%1」をロックしました。ほかのユーザーは閲覧できますが、変更はできません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>「%1」のロックを解除しました。</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>リンクをクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>パスをクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>%1 個の項目を選択</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>この項目は同期フォルダ内にありません。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>バックアップ</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>最近のアクティビティ</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>同期タスクを作成</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>すべて一時停止</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>すべて再開</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>「%1」に一致する項目はありません。</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>同期タスクはまだありません。タスクを作成すると、このコンピュータのフォルダと Corvimo Server のフォルダを同じ内容に保てます。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>このコンピュータのフォルダ</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Corvimo Server のフォルダ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>変更日時</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>所有者</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>アカウント</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>最終同期</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>フォルダが見つかりません</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>同期タスクの削除</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>同期タスク「%1」を削除しますか？ファイルはこのコンピュータと Corvimo Server に残ります。</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>選択した %1 個の同期タスクを削除しますか？ファイルはこのコンピュータと Corvimo Server に残ります。</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>同期タスクを削除しました。</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>同期は一時停止中です。再開すると変更が同期されます。</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>リストを消去</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>すべてのアクティビティ</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>エラーのみ</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 をアップロードしました。</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 をダウンロードしました。</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 をこのコンピュータから削除しました。</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 を Corvimo Server から削除しました。</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1 の名前を %2 に変更しました。</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 を %2 に移動しました。</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>%2 が %1 個のファイルを変更しました。</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>同期するフォルダを選択</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Corvimo Server のフォルダとこのコンピュータのフォルダを選択してください。Corvimo Client が両方を同じ内容に保ちます。</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>サーバーのフォルダを選択</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>ローカルフォルダを選択</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>新しいフォルダの名前</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>フォルダ「%1」を作成できませんでした。別の名前を指定するか、アクセス権を確認してください。</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>ここに「%1」という名前の空のフォルダを作成</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同期方向</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双方向同期</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>変更のアップロードのみ</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>変更のダウンロードのみ</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>どちらかで行った変更がもう一方にコピーされます。</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>このコンピュータでの変更はアップロードされます。Corvimo Server での変更はダウンロードされません。</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Corvimo Server での変更はダウンロードされます。このコンピュータでの変更はアップロードされません。</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Corvimo Server で削除されたファイルをこのコンピュータに残す</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>このコンピュータで削除されたファイルを Corvimo Server に残す</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>フォルダの結合</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>両方のフォルダにすでにファイルがあります。処理方法を選択してください。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>フォルダ「%1」はすでに存在します。Corvimo Server のフォルダと結合しますか？</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>両方のフォルダを結合し、すべてのファイルを残す</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>このコンピュータのファイルを使用</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Corvimo Server のファイルを使用</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>別のフォルダを選択</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>内容が異なるファイルは、両方のコピーが残ります。</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>このコンピュータにない Corvimo Server 上のファイルは削除されます。</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Corvimo Server にないこのコンピュータ上のファイルはゴミ箱に移動されます。</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>同じ名前のファイルは置き換えられます。この操作は取り消せません。</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>両方のフォルダを比較中...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>%2 個中 %1 個のファイルを比較しました</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>両方のフォルダが同じ内容になりました。</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>このフォルダはすでに同期タスクで使用されています。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>このフォルダは、すでに同期されているフォルダの中にあります。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>このフォルダには、すでに同期されているフォルダが含まれています。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>システムフォルダは同期できません。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>ディスク全体は同期できません。ディスク内のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>リムーバブルディスク上のフォルダは同期できません。</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>\\server\share のようなネットワークフォルダは同期できません。このコンピュータ上のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>このフォルダへの書き込み権限がありません。別のフォルダを選択してください。</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>このフォルダは暗号化され、ロックされています。先に Corvimo Server でロックを解除してください。</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>フォルダが見つかりません。移動または削除された可能性があります。</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>このディスクのファイルシステムには対応していません。対応しているファイルシステムのディスクを使用してください。</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>同期タスクの上限 (%1 個) に達しました。不要になったタスクを削除してください。</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>選択同期</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>このコンピュータに同期する項目を選択してください。選択を解除したフォルダはこのコンピュータから削除されますが、Corvimo Server には残ります。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>ファイルフィルタ</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>すべて選択解除</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>新しいフォルダを自動的に同期</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込み中...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>フォルダの一覧を読み込めませんでした。接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>%1 個のフォルダがこのコンピュータから削除されます。Corvimo Server には残ります。</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>このコンピュータからフォルダを削除しますか？</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>これらのフォルダには、まだアップロードされていないファイルがあり、削除すると失われます。先に同期してください。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>選択済み: %1/%2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>次のサイズを超えるファイルを同期しない</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>次の拡張子のファイルを同期しない</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>次の名前のファイルを同期しない</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>拡張子を追加</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>名前を追加</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>名前がドットで始まるファイルとフォルダを同期</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>一般的なプログラムの一時ファイルは同期されません。</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>デフォルトに戻す</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>フィルタをデフォルトに戻しますか？</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>拡張子を入力してください (例:「iso」)。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>「%1」はすでにリストにあります。</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>名前に次の文字は使用できません: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>%1 から %2 までのサイズを入力してください。</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>フィルタにより同期対象外</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>選択内容を保存しました。Corvimo Client が適用しています。</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>音楽</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>アーカイブ</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>その他のファイル</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>「%1」のバージョン</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>現在のバージョン</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>以前のバージョン</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>変更者</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>このファイルには以前のバージョンがありません。</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>バージョンを表示するファイルを選択してください。</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>バージョンの復元</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>現在のバージョンを %1 のバージョンで置き換えますか？</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>現在のバージョンは履歴に残ります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>「%1」を %2 のバージョンに復元しました。</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>バージョンを復元できませんでした。あとでもう一度お試しください。</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>コピーとして復元</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>バージョンを別名で保存</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>バージョンを「%1」に保存しました。</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>このバージョンを削除しますか？元に戻すことはできません。</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>バージョンを削除できませんでした。</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>自動削除から保護</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Corvimo Server は 1 つのファイルにつき最大 %1 個のバージョンを保存します。</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>このフォルダのバージョン履歴はオフになっています。オンにするには管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>この種類のファイルのバージョンは保存されません。</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>削除されたファイル</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>削除されたファイルを表示</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>削除日: %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>選択した %1 個の項目を復元しますか？</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>%1 個の項目を復元しました。</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>削除されたファイルは見つかりませんでした。</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>過去の時点に戻す</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>日時を選択</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>「%1」を共有</translation>
    </message>
    <message>
        <source>People</source>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>この項目にユーザーを招待するか、リンクを作成します。</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>ユーザーを招待</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>名前またはメールアドレスを入力</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>招待を送信</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>%1 に招待を送信しました。</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>招待を送信できませんでした。メールアドレスを確認してください。</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>メッセージ (任意)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>アクセス権</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>閲覧可</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>編集可</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>管理可</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>アップロードのみ可</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>アクセス不可</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>%1 のアクセス権を変更しました。</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>この項目を共有する権限がありません。所有者に問い合わせてください。</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>自分と共有されている項目</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>自分が共有している項目</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>%1 人と共有中</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>この項目は共有されていません。</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>共有フォルダから退出</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>共有フォルダ「%1」から退出しますか？フォルダはこのコンピュータから削除されます。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>「%1」の共有が解除されました。</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 が「%2」をあなたと共有しました。</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>このサーバーの全員</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>リンクの設定</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>リンクを作成</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>リンクを作成中...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>リンクを削除</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>このリンクを削除しますか？リンクを知っているユーザーは項目を開けなくなります。</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>リンクを知っている全員</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>アカウントを持つユーザーのみ</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>パスワードで保護</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>パスワードは %1 文字以上にする必要があります。</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>リンクのパスワードを入力してください。</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>リンクの有効期限</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>無期限</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>今日より後の日付を選択してください。</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>このリンクは有効期限が切れています。</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>ダウンロード可能回数</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>ダウンロード残り %1 回</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>ダウンロードを許可</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>アップロードを許可</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>リンクを作成できませんでした。あとでもう一度お試しください。</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>管理者がこのフォルダのリンクを無効にしています。</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>ファイルリクエスト</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>リンクを知っているユーザーは、フォルダの内容を見ることなく、このフォルダにファイルをアップロードできます。</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>QR コードを表示</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>競合</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>「%1」は 2 か所で同時に変更されました。</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>%1 個のファイルが 2 か所で同時に変更されました。</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>残すバージョンを選択してください。もう一方は競合コピーとして保存されます。</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>このコンピュータのバージョンを残す</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Corvimo Server のバージョンを残す</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>両方のバージョンを残す</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>新しい方のバージョンを残す</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>毎回確認する</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>すべての競合に適用</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>%1 の競合コピー %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>このコンピュータ上</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>Corvimo Server 上</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>%1 が %2 に変更</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>ファイルが 2 か所で変更されたとき</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>大文字と小文字のみが異なる名前</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>「%1」と「%2」は大文字と小文字のみが異なります。どちらかの名前を変更してください。</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>競合はありません。</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>競合を解決しました。</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>ファイルが開いているため、競合を解決できませんでした。ファイルを閉じて、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>解決</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>あとで決める</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>両方のファイルを開く</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>「%1」を削除しましたが、Corvimo Server で変更されていました。変更されたファイルを残しました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>「%1」は Corvimo Server で削除されましたが、このコンピュータで変更されていました。お使いのファイルを残しました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>「%1」は一方ではファイル、もう一方ではフォルダです。どちらかの名前を変更してください。</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>競合コピー</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>競合コピーを削除</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>%1 個の競合コピーを削除しますか？元に戻すことはできません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>「%1」は別のプログラムで開かれています。閉じると同期されます。</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>サーバーのアドレス</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>ホスト名、IP アドレス、または Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>接続を暗号化</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>暗号化しないと、ネットワーク上の第三者にファイルやパスワードを読み取られるおそれがあります。</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>接続を解除</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>再接続</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>接続をテスト</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>接続をテスト中...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>接続できました。</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>接続できません。アドレスとポートを確認してください。</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続済み</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>%1 に接続済み</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>%1 への接続が切断されました。%2 秒後に Corvimo Client が再接続を試みます。</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>%1 への接続が回復しました。</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>ネットワーク接続を待機中</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>従量制ネットワークでは同期しない</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>従量制ネットワークのため、同期を一時停止しています。</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>ローカルネットワーク経由で接続済み</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>インターネット経由で接続済み</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>中継サーバー経由で接続済み</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>中継サーバーは直接接続より低速です。</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>このネットワーク上のサーバーを検索</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>サーバーを検索中...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>このネットワークではサーバーが見つかりませんでした。サーバーのアドレスを直接入力してください。</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>%1 台のサーバーが見つかりました</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>サーバー「%1」が見つかりません。アドレスのつづりを確認してください。</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>サーバーに接続を拒否されました。Corvimo Server が動作していることを確認してください。</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>サーバーから時間内に応答がありませんでした。あとでもう一度お試しください。</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>このコンピュータはネットワークに接続されていません。</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>1 から 65535 までのポートを入力してください。</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>サーバーのアドレスを入力してください。</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Corvimo ID「%1」は存在しません。</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>この Corvimo ID のサーバーはオフラインです。電源が入っていることを確認してください。</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>このサーバーに Corvimo Server がインストールされていないか、動作していません。</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>サーバーはメンテナンス中です。復旧すると同期が再開されます。</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server のバージョンが古いため、このクライアントでは使用できません。バージョン %1 以降にアップデートするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>このクライアントのバージョンが古いため、Corvimo Server に接続できません。バージョン %1 以降にアップデートしてください。</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>サーバーに接続しているクライアントが多すぎます。あとでもう一度お試しください。</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>失敗した試行が多すぎたため、このコンピュータはブロックされました。ブロックを解除するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>ファイアウォールが Corvimo Client をブロックしている可能性があります。Corvimo Client にポート %1 の使用を許可してください。</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>安全な接続を確立できませんでした: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>不明なエラーが発生しました (コード %1)。</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>接続の編集</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>接続の削除</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>%1 への接続を削除しますか？この接続の同期タスクは削除されますが、ファイルは残ります。</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>%1 個のファイルがまだアップロードされていません。</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>最終接続日時: %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>インターネットへの接続にプロキシサーバーが必要なネットワークでは、プロキシサーバーを使用してください。</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>プロキシを使用しない</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>このコンピュータのプロキシ設定を使用</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>プロキシを手動で設定</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>プロキシの種類</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>プロキシのアドレス</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>プロキシにユーザー名とパスワードが必要</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>ローカルアドレスにはプロキシを使用しない</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>次のアドレスにはプロキシを使用しない</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>プロキシをテスト</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>プロキシは正常に動作しています。</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>プロキシにサインイン</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>プロキシ %1 がユーザー名とパスワードを要求しています。</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>ユーザー名またはパスワードがプロキシに認められませんでした。</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>プロキシ %1 に接続できません。アドレスとポートを確認してください。</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>プロキシが %1 への接続を許可していません。</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>このコンピュータのプロキシ設定を読み込めませんでした。</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>プロキシのアドレスを入力してください。</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>証明書</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>証明書が信頼されていません</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>%1 の証明書は、既知の認証局から発行されたものではありません。第三者がサーバーになりすましている可能性があります。</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>サーバーは自己署名証明書を使用しています。</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>証明書は %1 に有効期限が切れました。</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>証明書は %1 より前は有効ではありません。このコンピュータの時計を確認してください。</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>証明書は %2 ではなく %1 に対して発行されています。</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>証明書は発行元の認証局によって取り消されました。</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>証明書が変更されました</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>%1 の証明書が以前のものと異なります。証明書が更新されたかどうか管理者に確認してください。</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>証明書は、安全とみなされなくなったアルゴリズムを使用しています。</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>この証明書を信頼</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>この証明書を常に信頼</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>今回のみ信頼</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>接続しない</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>証明書を表示</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>発行先</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>発行元</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>有効期間の開始</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>有効期限</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>シリアル番号</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>フィンガープリント</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>署名アルゴリズム</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>鍵の長さ</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>証明書を書き出す</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>証明書を「%1」に保存しました。</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>証明書を読み込む</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>ファイルに有効な証明書が含まれていません。</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>%1 の証明書を信頼済み証明書から削除しますか？</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>ストレージ</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%2 中 %1 を使用</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>空き %1</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>無制限</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Corvimo Server のストレージ</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>このコンピュータのストレージ</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>ファイルの種類別のストレージ</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>フォルダ別のストレージ</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>以前のバージョンによるストレージ使用量</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>削除されたファイルによるストレージ使用量</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>ゴミ箱を空にする</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>ゴミ箱を空にしますか？中のファイルは元に戻せません。</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>ゴミ箱を空にしました。%1 の空きができました。</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>計算中...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>ストレージの空きが残りわずかです。残りは %1 です。</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>ストレージがいっぱいです</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>ファイルを削除するか、管理者に容量の追加を依頼するまで、新しいファイルはアップロードできません。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>フォルダ「%1」は割り当て容量の上限に達しました。このフォルダに新しいファイルはアップロードできません。</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Corvimo Server のボリュームがいっぱいです。空きを増やすよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>「%1」は残りのストレージ (%2) より大きいファイルです。</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>ディスクの空き領域が残りわずかです</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>ディスク「%2」の残りは %1 です。ディスクがいっぱいになると同期は停止します。</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>ディスクの空き領域が足りません</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>ディスク「%1」に十分な空き領域がありません。%2 以上の空きができるまで同期は一時停止します。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>「%1」は %2 のディスク領域が必要なため、ダウンロードされませんでした。</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>選択同期を使用するか、ファイルをオンラインのみにすると、空き領域を増やせます。</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>ストレージ設定を開く</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>空けておくディスク領域の下限</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>空き領域がこれより少なくなると、ダウンロードは一時停止します。</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>フォルダ「%1」のあるディスクが接続されていません。同期を続けるには接続してください。</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>ディスク「%1」は読み取り専用です。Corvimo Server での変更を保存できません。</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>一時ファイルのための領域が足りません。%1 以上の空きを作ってください。</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>一時ファイル</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>一時ファイルを削除</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>一時ファイルを削除しました (%1)。</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>再確認</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダ</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>使用量</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>最も大きいファイル</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>不要になったファイルを削除または移動してください。</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>今月、ストレージの使用量が %1 増えました。</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>このペースでは、%1 にストレージがいっぱいになります。</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>容量の追加を依頼</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>依頼を管理者に送信しました。</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>依頼への回答を待っています。</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>グループ「%1」の割り当て容量を使い切りました。</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 は準備完了です。</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>ソフトウェアアップデート</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>アップデートを確認</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>アップデートを確認中...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>お使いのバージョンは最新です。</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Corvimo Client のバージョン %1 が利用可能です。</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>ダウンロードしてインストール</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>あとで通知</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>ダウンロード中...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>アップデートの準備ができました。インストールするには Corvimo Client を再起動してください。</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>今すぐ再起動</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>アップデートをインストールできませんでした。現在のバージョンは引き続き使用できます。</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client はアップデートを確認できませんでした。</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>リリースノート</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>アップデートを自動的にインストール</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 は初期化中です。</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>以前のバージョンから設定を引き継いでいます。</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>設定を引き継ぎました。前回の続きから使用できます。</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>以前のバージョンの一部の設定を引き継げませんでした。同期タスクを確認してください。</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>アップデートには %1 のディスク領域が必要です。</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>このバージョンはサポートが終了しました。同期を続けるにはアップデートをインストールしてください。</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>帯域幅</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>アップロード速度</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>ダウンロード速度</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>上限を設定</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>自動調整</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client は、ネットワークを使用するほかのプログラムのために帯域を空けておきます。</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>スケジュール</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>制限を適用する時間帯を選択してください。</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>終日</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>勤務時間</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>夜間</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>同期しない</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>全速</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>速度制限あり</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>スケジュールを消去</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>0 より大きい速度を入力してください。</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>%1 から %2 までの速度を入力してください。</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>開始は終了より前にしてください。</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>管理者が速度を %1 に制限しています。</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>同時に転送するファイル数</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>ローカルネットワークでは速度を制限しない</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>現在の速度</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均速度</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>今日の転送量</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>今月の転送量</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Corvimo Client から通知する内容を選択してください。</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>同期が完了したとき</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>ファイルを同期できないとき</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>自分に項目が共有されたとき</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>自分のファイルにコメントが付いたとき</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>ストレージの空きが残りわずかなとき</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>バックアップが完了または失敗したとき</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>アップデートが利用可能なとき</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>接続が切断されたとき</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>サウンドを鳴らす</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>おやすみモード</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>通知しない時間帯</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>%1 まで通知しない</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>プレゼンテーション中は通知しない</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>通知にファイル名を表示</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>このコンピュータのシステム設定で通知がオフになっています。</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>システム設定を開く</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>すべて消去</translation>
    </message>
    <message>
        <source>View</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>既読にする</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>通知センター</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>通知はありません。</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>新しい通知 %1 件</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>すべてのファイルは最新です。</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>最初の同期が完了しました。%1 個のファイルがこのコンピュータに保存されました。</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>多数のファイルが削除されました</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>「%2」から %1 個のファイルが削除されました。意図した操作でない場合は復元してください。</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>短時間に %1 個のファイルが変更されました。お心当たりがない場合は、同期を一時停止し、コンピュータがマルウェアに感染していないか確認してください。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>フォルダ「%1」が移動されました。現在の場所を Corvimo Client で指定してください。</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 が「%2」にコメントしました。</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>同期の問題</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>これらのファイルを同期できませんでした。原因が解消されると、Corvimo Client が再試行します。</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>問題 %1 件</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>問題はありません。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>すべて再試行</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>詳細をコピー</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>問題を報告</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>詳細をクリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>エラーコード: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>ファイルは別のプログラムで使用中です。同期するには、そのプログラムで閉じてください。</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>ファイルは %1 によってロックされています。</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>ファイルは同期される前に削除されました。</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>アップロード中にファイルが変更されました。もう一度アップロードされます。</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>ファイルは転送中に破損しました。もう一度転送されます。</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>ファイルを読み取れません。アクセス権を確認してください。</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>ファイルに書き込めません。アクセス権を確認してください。</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>ファイルが上限の %1 を超えています。</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>ファイルが大きすぎるため、このディスクのファイルシステムでは扱えません。</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>ファイルは暗号化されているため、このコンピュータでは開けません。</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>Corvimo Server のウイルススキャナがファイルをブロックしました。</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>このコンピュータのウイルススキャナがファイルをブロックしました。</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>この種類のファイルは Corvimo Server で許可されていません。</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>デバイス、パイプ、ソケットは同期できません。</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>同期フォルダの外を指すシンボリックリンクは同期されません。</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>エイリアス「%1」は、同期されていない項目を指しています。</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>名前が長すぎます。%1 文字以内にしてください。</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>パスが長すぎます。フォルダの名前を短くしてください。</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>名前に使用できない文字が含まれています: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>名前「%1」はシステムで予約されています。</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>名前がスペースまたはピリオドで終わっています。項目の名前を変更してください。</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>名前に読み取れない文字が含まれています。項目の名前を変更してください。</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>このフォルダには「%1」という名前の項目がすでに存在します。</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>名前を入力してください。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>フォルダ「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>同期されていないファイルが含まれているため、フォルダは削除されませんでした。</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>フォルダを作成できませんでした。</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>フォルダを削除できませんでした。</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>このフォルダを変更する権限がありません。</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>このフォルダを開く権限がありません。</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>フォルダに %1 個を超える項目があります。一部をサブフォルダに移動してください。</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>フォルダの階層が深すぎます。</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>サーバーが混み合っています。Corvimo Client が数分後に再試行します。</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server で内部エラーが発生しました。ログを確認するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server は現在、変更を受け付けていません。</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>このフォルダのあるボリュームが Corvimo Server で利用できません。</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>共有フォルダが Corvimo Server から削除されました。</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>この共有フォルダの同期はオフになりました。</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>サーバーから Corvimo Client が解釈できない応答が返されました。</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>セッションが終了しました。もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Corvimo Server のデータがリセットされました。同期タスクを設定し直してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>「%1」をアップロードできませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>「%1」をアップロードできませんでした: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>「%1」をダウンロードできませんでした。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>「%1」をダウンロードできませんでした: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>「%1」を削除できませんでした: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>「%1」の名前を変更できませんでした: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>「%1」を移動できませんでした: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>「%1」を復元できませんでした: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>アクセス権がありません</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>ディスクで読み取りまたは書き込みエラーが発生しました。ディスクに異常がないか確認してください。</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>ファイルの書き込み中にディスクが取り外されました。</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>メモリが足りません。ほかのプログラムを終了して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>同期データベースが破損しているため、再構築されます。しばらく時間がかかることがあります。</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>同期データベースは別のプログラムで使用中です。</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>同期データベースを再構築中...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>同期データベースを再構築しました。</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>設定を読み込めませんでした。デフォルトの設定を使用します。</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>設定を保存できませんでした。</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>システムが監視しているフォルダが多すぎるため、一部のフォルダの変更の検出が遅れることがあります。</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>このコンピュータの時計とサーバーの時計のずれが %1 分を超えています。このコンピュータの時刻を正しく設定してください。</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>この操作は Corvimo Server では対応していません。</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>操作はキャンセルされました。</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>操作に時間がかかりすぎたため、中止されました。</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>不明なエラーが発生しました。</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Corvimo Client を起動できませんでした。このコンピュータを再起動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client はすでに起動しています。</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Corvimo Client のコンポーネントが見つかりません。クライアントを再インストールしてください。</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>ほかのプログラムがすべての表示枠を使用しているため、状態アイコンを表示できません。</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client がこのフォルダを読み取るには、許可が必要です。このコンピュータのプライバシー設定で許可してください。</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>問題が解決しない場合は、Corvimo Client を再起動してください。</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>問題が解決しない場合は、管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>問題が解決しない場合は、サポートに連絡し、エラーコードをお伝えください。</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>残りのファイルの処理を続けますか？</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>サインイン</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>サインアウト</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Corvimo Server にサインイン</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>パスワードを表示</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>パスワードをお忘れですか？</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>サインインしたままにする</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>サインイン中...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>%1 としてサインイン済み</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>サインアウトしました。</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>サインアウトしますか？もう一度サインインするまで同期は停止します。</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>ブラウザでサインイン</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>ブラウザで操作を続けてから、この画面に戻ってください。</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>ブラウザを開けませんでした。次のアドレスを手動で開いてください: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>ドメイン</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>アカウントがドメインに属している場合は、ドメイン\ユーザー名 の形式で入力してください。</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>アカウントを追加</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>アカウントを切り替え</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>このコンピュータからアカウントを削除</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>アカウント %1 をこのコンピュータから削除しますか？ファイルはこのコンピュータと Corvimo Server に残ります。</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>メールアドレス</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>氏名</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>パスワードを変更</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>現在のパスワード</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>新しいパスワード</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>新しいパスワード (確認)</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>パスワードを変更しました。</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>管理者によって、パスワードの変更が必須になっています。</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>パスワードはあと %1 日で有効期限が切れます。</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>2 つのパスワードが一致しません。</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>新しいパスワードは、現在のパスワードと異なるものにしてください。</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>ユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>パスワードを入力してください。</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>ユーザー名またはパスワードが正しくありません。</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>ユーザー名またはパスワードが正しくありません。あと %1 回試行できます。</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>アカウントが無効になっています。管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>アカウントの有効期限が切れています。管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Corvimo Server を使用する権限がありません。管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>パスワードの有効期限が切れています。Corvimo Server で変更してください。</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>ホームフォルダを利用できません。ホームサービスをオンにするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>ゲストアカウントでは同期できません。</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Corvimo Server のライセンスはすべて使用中です。</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>このコンピュータの名前</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>連携済みデバイス</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>「%1」の連携を解除しますか？デバイスはサインアウトされ、同期が停止します。</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>このコンピュータの連携は %1 によって解除されました。同期を続けるには、もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>このコンピュータ</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>デバイス上のファイルも削除する</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>2 段階認証</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>認証アプリに表示されるコードを入力してください。</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>確認コード</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 桁</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>確認中...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>このデバイスを信頼する</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>このコンピュータでは %1 日間確認しない</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>スマートフォンを紛失した場合</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>コードをメールで送信</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>%1 にコードを送信しました。有効期間は 10 分です。</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>コードを送信できませんでした。管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>リカバリーコードを使用</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>控えておいたリカバリーコードの 1 つを入力してください。各コードは 1 回だけ使用できます。</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>リカバリーコードは残り %1 個です。</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>セキュリティキーを使用</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>セキュリティキーを差し込み、触れてください。</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>セキュリティキーを認識できませんでした。別のキーをお試しください。</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>スマートフォンでサインインを承認</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>承認を待っています...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>スマートフォンで番号 %1 を選択してください。</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>サインインはスマートフォンで拒否されました。</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>リクエストの有効期限が切れました。もう一度送信してください。</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>再送信</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>別の方法を試す</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>コードを入力してください。</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>コードが正しくありません。スマートフォンの時刻が合っているか確認してください。</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>このコードはすでに使用されています。次のコードが表示されるまでお待ちください。</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>誤ったコードの入力が多すぎます。%1 分待ってから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>管理者が 2 段階認証を必須にしています。先に Corvimo Server で設定してください。</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>2 段階認証を設定</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>認証アプリでこのコードを読み取ってください。</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>2 段階認証はオンです。</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>バックアップタスク</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>バックアップタスクは、このコンピュータのフォルダを Corvimo Server にコピーし、以前のバージョンを保存します。</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>バックアップタスクを作成</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>バックアップタスクを編集</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>バックアップタスクを削除</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>バックアップタスク「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Corvimo Server 上のバックアップ済みファイルも削除する</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>タスク名</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>この名前のタスクはすでに存在します。</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>バックアップの対象</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>フォルダを追加</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>バックアップするフォルダを 1 つ以上選択してください。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>フォルダ「%1」は存在しなくなったため、バックアップから除外されます。</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>書類</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>ピクチャ</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>ミュージック</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>外付けディスク</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>バックアップの保存先</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>このフォルダには、すでに別のコンピュータのバックアップがあります。</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>バックアップのタイミング</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>ファイルが変更されるたび</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>スケジュールに従って</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>手動で開始したときのみ</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>毎日</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>毎週</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>毎月</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>毎時</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>時刻: %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>次の曜日</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>外付けディスクが接続されたとき</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>バックアップのためにこのコンピュータのスリープを解除</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>今すぐバックアップ</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>バックアップを中止</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>バックアップを中止しますか？バックアップ済みのファイルは残ります。</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>バックアップ中...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>バックアップ中、%2 個中 %1 個のファイル</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>バックアップが完了しました。</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>前回のバックアップ: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>次回のバックアップ: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>まだバックアップされていません</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>バックアップは完了しましたが、%1 個のファイルを読み取れませんでした。</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>バックアップに失敗しました: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>%1 に予定されていたバックアップが実行されませんでした。今から開始します。</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>このコンピュータは %1 日間バックアップされていません。</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>バージョンの保存期間</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>すべてのバージョンを保存</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>最新の %1 個のバージョンを保存</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>バージョンを %1 日間保存</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>古いバージョンほど間引いて保存</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>バックアップを暗号化</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>暗号化キー</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>キーは安全な場所に保管してください。キーがないとバックアップを復元できません。</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>暗号化キーが正しくありません。</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>ファイルを復元</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>復元するファイルと保存先を選択してください。</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>元の場所に復元</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>既存のファイルを置き換える</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>復元中、%2 個中 %1 個のファイル</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>すべてのファイルを復元しました。</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>%1 個のファイルを復元しました。%2 個のファイルは復元できませんでした。</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>バックアップを検証</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>バックアップは正常です。</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>バックアップ内の %1 個のファイルが破損しています。もう一度バックアップされます。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
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
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>バージョン %1 (ビルド %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>サーバーのバージョン</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>All rights reserved.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>使用許諾契約</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>プライバシーに関する声明</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>サードパーティソフトウェア</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Web サイト</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>サポートに連絡</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>フィードバックを送信</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Corvimo Client をご利用いただき、ありがとうございます。</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>詳細レベル</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>詳細なログを記録すると、クライアントの動作が遅くなります。作業が終わったら標準のレベルに戻してください。</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>ログフォルダを開く</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>ログを保存</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>ログを「%1」に保存しました。</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>ログを保存できませんでした。</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>ログを消去</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>ログを消去しますか？</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>ログをサポートに送信</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>ログを送信中...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>ログを送信しました。レポート番号は %1 です。</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>ログを送信できませんでした。ログを保存し、メールで送信してください。</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>ログにはファイルとフォルダの名前が含まれますが、内容は含まれません。</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>匿名の使用状況データを送信して Corvimo Client の改善に協力する</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>このコンピュータへのログイン時に Corvimo Client を起動</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>ファイルとフォルダに状態アイコンを表示</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>コンテキストメニューに Corvimo Client を表示</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>サイドバーに同期フォルダを表示</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>メニューバーにアイコンを表示</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>システムと同じ</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>言語は Corvimo Client の再起動後に変更されます。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>文字サイズ</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>ファイルの同期中はスリープしない</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Corvimo Server で削除されたファイルをゴミ箱に移動</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>多数のファイルが削除される前に警告</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>すべての設定をリセットしますか？同期タスクはそのまま残ります。</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>この設定は管理者によって管理されています。</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>設定を保存しました。</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>変更を破棄しますか？</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>オンデマンドファイル</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>すべてのファイルがこのコンピュータに一覧表示されますが、ファイルは開いたときにだけダウンロードされます。</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>「オンデマンドファイル」をオンにする</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>「%1」で「オンデマンドファイル」をオンにしますか？すでにこのコンピュータにあるファイルはそのまま残ります。</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>「オンデマンドファイル」はオンです。</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>「オンデマンドファイル」をオフにする</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>「オンデマンドファイル」をオフにしますか？このフォルダのすべてのファイルがダウンロードされます (%1)。</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>すべてのファイルをダウンロードするための領域が足りません。あと %1 必要です。</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>オンラインのみ</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>常にこのコンピュータに保存済み</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>一部がこのコンピュータにあり</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>%1 個のファイルがオンラインのみになります。続けますか？</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>%1 のディスク領域が解放されました。</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>まだアップロードされていないファイルは、このコンピュータに残ります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>「%1」は開いているため、このコンピュータに残ります。</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>空き領域を自動的に増やす</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>%1 日間開かれていないファイルをオンラインのみにする</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>ディスクの空き領域が少ないときのみ</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 が「%2」をダウンロードしています。</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>このプログラムによるダウンロードをブロック</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>プログラムが多数のオンラインのみのファイルを開こうとしています。許可しますか？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>「%1」はオンラインのみのファイルで、Corvimo Client が接続されていないため、開けません。</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>オンラインのみのファイルを開くには、Corvimo Client を起動してください。</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>「オンデマンドファイル」は、このバージョンのシステムでは使用できません。</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>「オンデマンドファイル」は、このディスクでは使用できません。</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>「オンデマンドファイル」を使用するには、システム設定でファイルプロバイダ機能拡張を許可してください。</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>オンラインのみのファイルのプレビューを表示</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>オンラインのみのファイルの内容は、このコンピュータでは検索できません。</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>ブロック</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Corvimo Client へようこそ</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>いくつかの手順で Corvimo Client を設定すると、どのコンピュータからでもファイルを利用できます。</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>開始する</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>手順 %1/%2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>サーバーに接続</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Corvimo Server のアドレスを入力し、お使いのアカウントでサインインしてください。</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>何をしますか？</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>ファイルを同期</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>このコンピュータと Corvimo Server のファイルを同じ内容に保ちます。</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>このコンピュータをバックアップ</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>ファイルを Corvimo Server にコピーし、データの消失に備えます。</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>ファイルは「%1」に同期されます。</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>チームフォルダ</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>このコンピュータで使用するチームフォルダを選択してください。</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>参加しているチームフォルダはありません。</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>同期オプション</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>すべてのファイルを同期</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client が通知を表示し、フォルダを読み取るには、許可が必要です。</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>設定内容</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>開始する前に選択内容を確認してください。</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>%1 個のファイル (%2) がダウンロードされます。</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>準備が整いました</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client がファイルの同期を開始しました。メニューバーから利用できます。</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>ツアーを見る</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>メニューバーのアイコンをクリックすると、現在の状況を確認できます。</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>ファイルを右クリックすると、共有したりバージョンを表示したりできます。</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>ファイルに付いたアイコンで、同期されているかどうかがわかります。</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>セットアップを中断しますか？あとで続けることができます。</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>以前のインストールの設定が見つかりました。使用しますか？</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 バイト</translation>
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
        <translation>%1 パーセント</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 個のファイル</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 個のファイル</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 個のフォルダ</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 個のフォルダ</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>%1 個の項目</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>ファイル %1 個、フォルダ %2 個</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>今日 %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>昨日 %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>明日</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>1 分前</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分前</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>1 時間前</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 時間前</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 日前</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>先週</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>先月</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 日</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>残り %1 秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>残り %1 分</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>残り %1 時間</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>詳しい情報</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>このメッセージを今後表示しない</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>お待ちください...</translation>
    </message>
</context>
</TS>
