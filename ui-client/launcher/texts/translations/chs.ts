<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>取消关联</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>已添加文件：</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>更改文件夹</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>已添加</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>已修改</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重命名</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>已移动</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>已恢复</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>已更改文件：</translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>已删除文件：</translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>已重命名文件：</translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>已添加文件夹：</translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>已删除文件夹：</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近更改的文件</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>还没有文件更改。</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>显示所有更改</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>打开 Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>在网页浏览器中打开</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>暂停同步</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>暂停一小时</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>暂停到明天</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>继续同步</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>关于 Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>在您再次启动 Corvimo Client 之前，文件将不再同步。要退出吗？</translation>
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
        <translation>正在同步，剩余 %1 个文件</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>正在上传 %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>正在下载 %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>正在查找更改...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>暂停至 %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>正在等待</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>需要您处理</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>部分文件无法同步。</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>尚未设置同步任务。</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>上传 %1，下载 %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>打开方式...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>版本历史记录</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>获取链接</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>复制链接</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>共享...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>通过电子邮件发送链接</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>立即同步</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>同步此文件夹</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>停止同步此文件夹</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>始终保留在此电脑上</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>释放空间</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>锁定文件</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>解锁文件</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>复制路径</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>不同步此名称的文件</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>不同步此类型的文件</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>已被 %1 锁定</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>“%1”已锁定。其他人可以查看，但无法更改。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>“%1”已解锁。</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>链接已复制到剪贴板。</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>路径已复制到剪贴板。</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>已选择 %1 个项目</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>此项目不在同步的文件夹中。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>概览</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>同步</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>备份</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>最近活动</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>创建同步任务</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>全部暂停</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>全部继续</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>没有与“%1”匹配的内容。</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>还没有同步任务。创建一个任务，让此电脑上的文件夹与 Corvimo Server 上的文件夹保持一致。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>此电脑上的文件夹</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Corvimo Server 上的文件夹</translation>
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
        <translation>类型</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>所有者</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账户</translation>
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
        <translation>错误</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>找不到文件夹</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>删除同步任务</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>要删除同步任务“%1”吗？您的文件会保留在此电脑和 Corvimo Server 上。</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>要删除所选的 %1 个同步任务吗？您的文件会保留在此电脑和 Corvimo Server 上。</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>同步任务已删除。</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>同步已暂停。继续后将同步更改。</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>清空列表</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>所有活动</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>仅错误</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 已上传。</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 已下载。</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 已从此电脑删除。</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 已从 Corvimo Server 删除。</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1 已重命名为 %2。</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 已移动到 %2。</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>%2 更改了 %1 个文件。</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>选择要同步的文件夹</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>选择 Corvimo Server 上的文件夹和此电脑上的文件夹。Corvimo Client 会使两者保持一致。</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>选择服务器文件夹</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>选择本地文件夹</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>浏览...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
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
        <translation>应用</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>新文件夹的名称</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>无法创建文件夹“%1”。请选择其他名称或检查您的权限。</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>在此处创建名为“%1”的空文件夹</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双向同步</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>仅上传更改</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>仅下载更改</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>任意一方的更改都会复制到另一方。</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>上传此电脑上的更改。不下载 Corvimo Server 上的更改。</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>下载 Corvimo Server 上的更改。不上传此电脑上的更改。</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>在 Corvimo Server 上删除文件时，保留此电脑上的文件</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>在此电脑上删除文件时，保留 Corvimo Server 上的文件</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>合并文件夹</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>两个文件夹中都已有文件。请选择处理方式。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>文件夹“%1”已存在。要将其与 Corvimo Server 上的文件夹合并吗？</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>合并两个文件夹并保留所有文件</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>使用此电脑上的文件</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>使用 Corvimo Server 上的文件</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>选择其他文件夹</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>内容不同的文件会保留两份副本。</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Corvimo Server 上有而此电脑上没有的文件将被删除。</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>此电脑上有而 Corvimo Server 上没有的文件将移到废纸篓。</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>同名文件将被替换。此操作无法撤销。</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>正在比较两个文件夹...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>已比较 %1/%2 个文件</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>两个文件夹现已一致。</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>此文件夹已属于某个同步任务。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>此文件夹位于已同步的文件夹中。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>此文件夹包含已同步的文件夹。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>系统文件夹无法同步。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>无法同步整个磁盘。请选择磁盘上的某个文件夹。</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>无法同步可移动磁盘上的文件夹。</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>无法同步 \\server\share 之类的网络文件夹。请选择此电脑上的文件夹。</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>您没有写入此文件夹的权限。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>此文件夹已加密并锁定。请先在 Corvimo Server 上将其解锁。</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>找不到文件夹。它可能已被移动或删除。</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>不支持此磁盘的文件系统。请使用文件系统受支持的磁盘。</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>您已达到 %1 个同步任务的上限。请删除不再需要的任务。</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>选择性同步</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>选择要同步到此电脑的内容。取消选择的文件夹会从此电脑移除，但仍保留在 Corvimo Server 上。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>文件筛选</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>取消全选</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>自动同步新文件夹</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>无法加载文件夹列表。请检查您的连接，然后重试。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>将从此电脑移除 %1 个文件夹。它们仍保留在 Corvimo Server 上。</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>要从此电脑移除文件夹吗？</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>这些文件夹中的部分文件尚未上传，移除后将会丢失。请先同步这些文件。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>已选择：%1/%2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>不同步大于此大小的文件</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>不同步具有这些扩展名的文件</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>不同步具有这些名称的文件</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>添加扩展名</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>添加名称</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>同步名称以点开头的文件和文件夹</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>常用程序的临时文件始终不会同步。</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>恢复默认设置</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>要恢复默认筛选条件吗？</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>请输入扩展名，例如“iso”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>“%1”已在列表中。</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>名称不能包含以下任何字符：\ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>请输入 %1 到 %2 之间的大小。</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>已被筛选条件排除</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>您的选择已保存。Corvimo Client 正在应用这些选择。</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>音乐</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>压缩文件</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>其他文件</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>“%1”的版本</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>当前版本</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>以前的版本</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>更改者</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>此文件没有以前的版本。</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>选择一个文件以查看其版本。</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>恢复版本</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>要用 %1 的版本替换当前版本吗？</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>当前版本会保留在历史记录中。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>“%1”已恢复到 %2 的版本。</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>无法恢复此版本。请稍后重试。</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>恢复为副本</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>版本另存为</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>版本已保存到“%1”。</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>要删除此版本吗？删除后无法找回。</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>无法删除此版本。</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>受保护，不会被自动删除</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Corvimo Server 最多为每个文件保留 %1 个版本。</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>此文件夹的版本历史记录已关闭。请联系管理员将其开启。</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>不保留此类文件的版本。</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>已删除的文件</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>显示已删除的文件</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>删除于 %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>要恢复所选的 %1 个项目吗？</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>已恢复 %1 个项目。</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>未找到已删除的文件。</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>回到某个时间点</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>选择日期和时间</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>共享</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>共享“%1”</translation>
    </message>
    <message>
        <source>People</source>
        <translation>人员</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>邀请他人或创建此项目的链接。</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>邀请他人</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>输入姓名或电子邮件地址</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>发送邀请</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>邀请已发送给 %1。</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>无法发送邀请。请检查电子邮件地址。</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>消息（可选）</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>权限</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>可以查看</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>可以编辑</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>可以管理</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>仅可上传</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>无权访问</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>%1 的权限已更改。</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>您没有共享此项目的权限。请联系其所有者。</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>与我共享</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>我的共享</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>已与 %1 人共享</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>此项目未共享。</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>退出共享文件夹</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>要退出共享文件夹“%1”吗？它将从此电脑移除。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>“%1”不再与您共享。</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 与您共享了“%2”。</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>群组</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>此服务器上的所有人</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>链接设置</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>创建链接</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>正在创建链接...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>删除链接</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>要删除此链接吗？拥有此链接的人将无法再打开该项目。</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>拥有链接的任何人</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>仅限有账户的用户</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>使用密码保护</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>密码必须至少包含 %1 个字符。</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>请输入链接的密码。</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>链接有效期至</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>永不过期</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>请选择将来的日期。</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>此链接已过期。</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>允许的下载次数</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>剩余 %1 次下载</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>允许下载</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>允许上传</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>无法创建链接。请稍后重试。</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>管理员已为此文件夹关闭链接功能。</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>文件收集</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>拥有链接的人可以将文件上传到此文件夹，但看不到其中的内容。</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>显示二维码</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>冲突</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>“%1”在两处同时被更改。</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>%1 个文件在两处同时被更改。</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>选择要保留的版本。另一个版本会保存为冲突副本。</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>保留此电脑上的版本</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>保留 Corvimo Server 上的版本</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>保留两个版本</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>保留较新的版本</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>每次都询问我</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>应用于所有冲突</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>%1 的冲突副本 %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>在此电脑上</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>在 Corvimo Server 上</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>由 %1 于 %2 更改</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>文件在两处被更改时</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>仅大小写不同的名称</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>“%1”和“%2”仅大小写不同。请重命名其中一个。</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>没有冲突。</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>冲突已解决。</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>文件已打开，因此无法解决冲突。请关闭文件，然后重试。</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>解决</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>稍后决定</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>打开两个文件</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>您删除了“%1”，但它在 Corvimo Server 上被更改过。已保留更改后的文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>“%1”在 Corvimo Server 上被删除，但您更改过它。已保留您的文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>“%1”在一方是文件，在另一方是文件夹。请重命名其中一个。</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>冲突副本</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>删除冲突副本</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>要删除 %1 个冲突副本吗？删除后无法找回。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>“%1”正在其他程序中打开，关闭后将会同步。</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>服务器地址</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>主机名、IP 地址或 Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>加密连接</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>如果不加密，网络上的其他人可能会读取您的文件和密码。</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开连接</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新连接</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>测试连接</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在测试连接...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>连接正常。</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>无法连接。请检查地址和端口。</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>已连接到 %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>与 %1 的连接已断开。Corvimo Client 将在 %2 秒后重试。</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>与 %1 的连接已恢复。</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>正在等待网络连接</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>不在按流量计费的网络上同步</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>此网络按流量计费，因此同步已暂停。</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>已通过本地网络连接</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>已通过互联网连接</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>已通过中继服务器连接</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>中继服务器比直接连接慢。</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>查找此网络上的服务器</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>正在查找服务器...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>在此网络上未找到服务器。请手动输入服务器地址。</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>找到 %1 台服务器</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>找不到服务器“%1”。请检查地址的拼写。</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>服务器拒绝了连接。请确认 Corvimo Server 正在运行。</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>服务器未及时响应。请稍后重试。</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>此电脑未连接到网络。</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>请输入 1 到 65535 之间的端口。</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>请输入服务器的地址。</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Corvimo ID“%1”不存在。</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>使用此 Corvimo ID 的服务器处于离线状态。请确认它已开机。</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>此服务器上未安装或未运行 Corvimo Server。</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>服务器正在维护。恢复后将继续同步。</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server 的版本过旧，无法与此客户端配合使用。请联系管理员将其更新到版本 %1 或更高版本。</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>此客户端的版本过旧，无法与 Corvimo Server 配合使用。请将其更新到版本 %1 或更高版本。</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>连接到服务器的客户端过多。请稍后重试。</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>由于失败次数过多，此电脑已被阻止。请联系管理员解除阻止。</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>防火墙可能阻止了 Corvimo Client。请允许 Corvimo Client 使用端口 %1。</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>无法建立安全连接：%1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>发生未知错误（代码 %1）。</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>编辑连接</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>移除连接</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>要移除与 %1 的连接吗？它的同步任务会被删除，但您的文件会保留。</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>%1 个文件尚未上传。</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>上次连接时间：%1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>如果您的网络需要通过代理服务器访问互联网，请使用代理服务器。</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>不使用代理</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>使用此电脑的代理设置</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>手动设置代理</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>代理类型</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>代理地址</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>代理需要用户名和密码</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>不对本地地址使用代理</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>不对以下地址使用代理</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>测试代理</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>代理工作正常。</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>登录代理</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>代理 %1 要求提供用户名和密码。</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>代理未接受该用户名或密码。</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>无法连接到代理 %1。请检查其地址和端口。</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>代理不允许连接到 %1。</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>无法读取此电脑的代理设置。</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>请输入代理的地址。</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>证书</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>证书不受信任</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>%1 的证书不是由已知的颁发机构颁发的。可能有人在冒充您的服务器。</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>服务器使用自签名证书。</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>证书已于 %1 过期。</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>证书在 %1 之前无效。请检查此电脑的时钟。</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>证书是颁发给 %1 的，而不是颁发给 %2。</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>证书已被颁发机构吊销。</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>证书已更改</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>%1 的证书与以前使用的不同。请向管理员确认证书是否已续期。</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>证书使用的算法已不再被视为安全。</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>信任此证书</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>始终信任此证书</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>仅信任这一次</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>不连接</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>查看证书</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>颁发给</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>颁发者</translation>
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
        <translation>序列号</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>指纹</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>签名算法</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>密钥长度</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>导出证书</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>证书已保存到“%1”。</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>导入证书</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>文件不包含有效的证书。</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>要从受信任的证书中移除 %1 的证书吗？</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>存储空间</translation>
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
        <translation>无限制</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Corvimo Server 上的存储空间</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>此电脑上的存储空间</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>按文件类型统计存储空间</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>按文件夹统计存储空间</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>以前的版本占用的存储空间</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>已删除的文件占用的存储空间</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>清倒废纸篓</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>要清倒废纸篓吗？其中的文件将无法找回。</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>废纸篓已清倒。已释放 %1。</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>正在计算...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>您的存储空间即将用完，仅剩 %1。</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>您的存储空间已满</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>在您删除一些文件或向管理员申请更多存储空间之前，无法上传新文件。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>文件夹“%1”已达到配额上限。无法向其中上传新文件。</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Corvimo Server 的存储卷已满。请联系管理员腾出空间。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>“%1”大于剩余的存储空间（%2）。</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>磁盘空间即将用完</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>磁盘“%2”仅剩 %1。磁盘空间用完后将停止同步。</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>磁盘空间不足</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>磁盘“%1”空间不足。同步已暂停，请至少释放 %2 空间。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>“%1”未下载，因为它需要 %2 的磁盘空间。</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>您可以使用选择性同步或将文件设为仅在线来释放空间。</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>打开存储空间设置</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>至少保留以下可用磁盘空间</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>剩余空间低于此值时，下载会暂停。</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>文件夹“%1”所在的磁盘未连接。请连接该磁盘以继续同步。</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>磁盘“%1”为只读。无法将 Corvimo Server 上的更改保存到该磁盘。</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>存放临时文件的空间不足。请至少释放 %1。</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>临时文件</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>删除临时文件</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>已删除临时文件（%1）。</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>再次检查</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>已使用</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>最大的文件</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>请删除或移走不再需要的文件。</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>您的存储空间用量本月增加了 %1。</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>按此速度，您的存储空间将于 %1 用完。</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>申请更多存储空间</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>您的申请已发送给管理员。</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>您的申请正在等待答复。</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>群组“%1”的配额已用完。</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 已就绪。</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>软件更新</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>正在检查更新...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>您使用的是最新版本。</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Corvimo Client 版本 %1 可供更新。</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>下载并安装</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>稍后提醒我</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下载...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>更新已准备就绪。请重新启动 Corvimo Client 进行安装。</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>立即重新启动</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>无法安装更新。您当前的版本可继续使用。</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client 无法检查更新。</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>发行说明</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>自动安装更新</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 正在初始化...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>正在从旧版本导入您的设置。</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>您的设置已导入。您可以从上次中断的地方继续。</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>旧版本的部分设置无法导入。请检查您的同步任务。</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>更新需要 %1 的磁盘空间。</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>此版本不再受支持。请安装更新以继续同步。</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>带宽</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>上传速度</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>下载速度</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>限制为</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>自动调整</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client 会为其他使用网络的程序预留带宽。</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>时间表</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>选择应用限制的时段。</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>全天</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>工作时间</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>夜间</translation>
    </message>
    <message>
        <source>From</source>
        <translation>从</translation>
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
        <translation>清除时间表</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>请输入大于 0 的速度。</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>请输入 %1 到 %2 之间的速度。</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>开始时间必须早于结束时间。</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>管理员已将速度限制为 %1。</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>同时传输的文件数</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>在本地网络上不限速</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>当前速度</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均速度</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>今日传输量</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>本月传输量</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>选择 Corvimo Client 要通知您的内容。</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>同步完成时</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>文件无法同步时</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>有人与我共享项目时</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>有人评论我的文件时</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>存储空间即将用完时</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>备份完成或失败时</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>有可用更新时</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>连接断开时</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>播放声音</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>勿扰模式</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>免打扰时段</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>%1 之前不通知</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>演示期间不打扰我</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>在通知中显示文件名</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>此电脑的系统设置中已关闭通知。</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>打开系统设置</translation>
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
        <translation>查看</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>标为已读</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>通知中心</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>您没有通知。</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>%1 条新通知</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>所有文件均为最新。</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>首次同步已完成。此电脑上现有 %1 个文件。</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>大量文件被删除</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>从“%2”中删除了 %1 个文件。如果这不是有意的操作，请恢复这些文件。</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>短时间内有 %1 个文件被更改。如果不是您操作的，请暂停同步并检查您的电脑是否有恶意软件。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>文件夹“%1”已被移动。请告诉 Corvimo Client 它现在的位置。</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 评论了“%2”。</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>同步问题</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>这些文件无法同步。原因消除后，Corvimo Client 将会重试。</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>%1 个问题</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>没有问题。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>全部重试</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>详细信息</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>复制详细信息</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>报告问题</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>详细信息已复制到剪贴板。</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>错误代码：%1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>其他程序正在使用该文件。请在该程序中关闭文件以进行同步。</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>文件已被 %1 锁定。</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>文件在同步前已被删除。</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>文件在上传过程中发生更改。它将再次上传。</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>文件在传输过程中损坏。它将再次传输。</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>无法读取文件。请检查其权限。</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>无法写入文件。请检查其权限。</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>文件大于 %1 的上限。</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>文件过大，此磁盘的文件系统无法存放。</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>文件已加密，无法在此电脑上打开。</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>Corvimo Server 上的病毒扫描程序已阻止该文件。</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>此电脑上的病毒扫描程序已阻止该文件。</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Corvimo Server 不允许此类型的文件。</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>设备、管道和套接字无法同步。</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>指向同步文件夹之外的符号链接不会同步。</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>替身“%1”指向未同步的项目。</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>名称过长。最多可使用 %1 个字符。</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>路径过长。请缩短其中文件夹的名称。</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>名称包含不允许的字符：%1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>名称“%1”由系统保留。</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>名称以空格或句点结尾。请重命名该项目。</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>名称包含无法读取的字符。请重命名该项目。</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>此文件夹中已有名为“%1”的项目。</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>请输入名称。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>找不到文件夹“%1”。</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>文件夹包含未同步的文件，因此未被删除。</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>无法创建文件夹。</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>无法删除文件夹。</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>您没有更改此文件夹的权限。</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>您没有打开此文件夹的权限。</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>文件夹包含的项目超过 %1 个。请将部分项目移到子文件夹中。</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>文件夹嵌套过深。</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>服务器繁忙。Corvimo Client 将在几分钟后重试。</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server 报告了内部错误。请联系管理员查看其日志。</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server 目前不接受更改。</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>此文件夹所在的存储卷在 Corvimo Server 上不可用。</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>共享文件夹已从 Corvimo Server 移除。</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>此共享文件夹的同步已关闭。</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>服务器返回了 Corvimo Client 无法识别的响应。</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>您的会话已结束。请重新登录。</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Corvimo Server 的数据已重置。请重新设置您的同步任务。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>无法上传“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>无法上传“%1”：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>无法下载“%1”。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>无法下载“%1”：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>无法删除“%1”：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>无法重命名“%1”：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>无法移动“%1”：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>无法恢复“%1”：%2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>磁盘报告读取或写入错误。请检查磁盘是否有故障。</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>写入文件时磁盘被移除。</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>内存不足。请关闭其他程序，然后重试。</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>同步数据库已损坏，将会重建。这可能需要一些时间。</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>同步数据库正由其他程序使用。</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>正在重建同步数据库...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>同步数据库已重建。</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>无法读取您的设置。将使用默认设置。</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>无法保存您的设置。</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>系统监视的文件夹过多，因此可能会延迟发现部分文件夹中的更改。</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>此电脑的时钟与服务器的时钟相差超过 %1 分钟。请校准此电脑的时钟。</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Corvimo Server 不支持此操作。</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>操作已取消。</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>操作耗时过长，已停止。</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>发生未知错误。</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>无法启动 Corvimo Client。请重新启动此电脑，然后重试。</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client 已在运行。</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>缺少 Corvimo Client 的某个组件。请重新安装客户端。</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>其他程序占用了所有图标位置，因此无法显示状态图标。</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client 需要您的许可才能读取此文件夹。请在此电脑的隐私设置中允许。</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>如果问题仍然存在，请重新启动 Corvimo Client。</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>如果问题仍然存在，请联系管理员。</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>如果问题仍然存在，请联系支持人员并提供错误代码。</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>要继续处理其余文件吗？</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>登录</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>退出登录</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>登录到 Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>显示密码</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>忘记密码？</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>保持登录状态</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>正在登录...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>已登录为 %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>您已退出登录。</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>要退出登录吗？在您重新登录之前，同步会停止。</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>使用浏览器登录</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>请在浏览器中继续操作，然后返回此处。</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>无法打开浏览器。请自行打开此地址：%1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>域</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>如果您的账户属于某个域，请以“域\用户”的形式输入用户名。</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>添加账户</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>切换账户</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>移除账户</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>要从此电脑移除账户 %1 吗？您的文件会保留在此电脑和 Corvimo Server 上。</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>电子邮件地址</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>姓名</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>更改密码</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>当前密码</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>新密码</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>再次输入新密码</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>您的密码已更改。</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>管理员要求您更改密码。</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>您的密码将在 %1 天后过期。</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>两次输入的密码不一致。</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>新密码必须与当前密码不同。</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>请输入您的用户名。</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>请输入您的密码。</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>用户名或密码错误。</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>用户名或密码错误。您还可以尝试 %1 次。</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>您的账户已被禁用。请联系管理员。</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>您的账户已过期。请联系管理员。</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>您没有使用 Corvimo Server 的权限。请联系管理员。</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>您的密码已过期。请在 Corvimo Server 上更改密码。</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>您的个人文件夹不可用。请联系管理员开启个人文件夹服务。</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>访客账户不能用于同步。</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Corvimo Server 的所有许可证均在使用中。</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>此电脑的名称</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>已关联的设备</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>要取消关联“%1”吗？它将退出登录并停止同步。</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>%1 已取消关联此电脑。请重新登录以继续同步。</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>此电脑</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>同时删除设备上的文件</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>两步验证</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>请输入您的身份验证器应用显示的代码。</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>验证码</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 位数字</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>验证</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>正在验证...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>信任此设备</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>%1 天内不在此电脑上再次询问</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>手机丢失？</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>通过电子邮件发送验证码</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>验证码已发送至 %1，10 分钟内有效。</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>无法发送验证码。请联系管理员寻求帮助。</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>使用恢复代码</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>请输入您记下的一个恢复代码。每个代码只能使用一次。</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>您还有 %1 个恢复代码。</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>使用安全密钥</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>请插入安全密钥并触碰它。</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>无法识别安全密钥。请尝试其他密钥。</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>在手机上批准登录</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>正在等待您的批准...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>请在手机上选择数字 %1。</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>登录已在手机上被拒绝。</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>请求已过期。请重新发送。</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>重新发送</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>尝试其他方式</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>请输入验证码。</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>验证码错误。请检查手机的时间是否正确。</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>此验证码已使用过。请等待下一个。</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>错误的验证码过多。请等待 %1 分钟后重试。</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>管理员要求使用两步验证。请先在 Corvimo Server 上设置。</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>设置两步验证</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>请使用您的身份验证器应用扫描此二维码。</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>两步验证已开启。</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>备份任务</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>备份任务会将此电脑的文件夹复制到 Corvimo Server，并保留以前的版本。</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>创建备份任务</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>编辑备份任务</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>删除备份任务</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>要删除备份任务“%1”吗？</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>同时删除 Corvimo Server 上的备份文件</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>任务名称</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>已有同名的任务。</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>要备份的内容</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>请至少选择一个要备份的文件夹。</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>文件夹“%1”已不存在，将不包含在备份中。</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文稿</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音乐</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>外置磁盘</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>备份存储位置</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>此文件夹已包含其他电脑的备份。</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>备份时间</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>文件更改时</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>按时间表</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>仅在我手动启动时</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>每天</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>每周</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>每月</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>每小时</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>在 %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>在每周的以下几天</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>连接外置磁盘时</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>唤醒此电脑以进行备份</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>立即备份</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>停止备份</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>要停止备份吗？已备份的文件会保留。</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>正在备份...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>正在备份，%1/%2 个文件</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>备份已完成。</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>上次备份：%1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>下次备份：%1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>尚未备份</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>备份已完成，但 %1 个文件无法读取。</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>备份失败：%1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>错过了计划于 %1 进行的备份。现在开始备份。</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>此电脑已有 %1 天未备份。</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>版本保留时长</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>保留所有版本</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>保留最近 %1 个版本</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>保留版本 %1 天</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>版本越旧，保留的数量越少</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>加密备份</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>加密密钥</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>请将密钥保存在安全的地方。没有密钥将无法恢复备份。</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>加密密钥错误。</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>恢复文件</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>选择要恢复的文件和存放位置。</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>恢复到原来的位置</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>替换现有文件</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>正在恢复 %1/%2 个文件</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>已恢复所有文件。</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>已恢复 %1 个文件，%2 个文件无法恢复。</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>验证备份</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>备份完好。</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>备份中有 %1 个文件已损坏。它们将重新备份。</translation>
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
        <translation>版本 %1（内部版本 %2）</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>服务器版本</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>保留所有权利。</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>许可协议</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>隐私声明</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>第三方软件</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>网站</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>联系支持人员</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>发送反馈</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>感谢您使用 Corvimo Client。</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>详细程度</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>详细日志会使客户端变慢。完成后请恢复为普通级别。</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>打开日志文件夹</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>保存日志</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>日志已保存到“%1”。</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>无法保存日志。</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>清除日志</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>要清除日志吗？</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>将日志发送给支持人员</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>正在发送日志...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>日志已发送。您的报告编号为 %1。</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>无法发送日志。请将其保存并通过电子邮件发送。</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>日志包含文件和文件夹的名称，但不包含其内容。</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>发送匿名使用数据，帮助改进 Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>登录此电脑时启动 Corvimo Client</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>在文件和文件夹上显示状态图标</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>在快捷菜单中显示 Corvimo Client</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>在边栏中显示同步的文件夹</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>在菜单栏中显示图标</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>与系统相同</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>重新启动 Corvimo Client 后语言将会更改。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
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
        <translation>同步文件时不进入睡眠</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>将在 Corvimo Server 上删除的文件移到废纸篓</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>删除大量文件前警告我</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>要重置所有设置吗？您的同步任务将保持不变。</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>此设置由管理员管理。</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>您的设置已保存。</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>要放弃更改吗？</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>按需文件</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>所有文件都会列在此电脑上，但仅在您打开文件时才会下载。</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>开启“按需文件”</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>要为“%1”开启“按需文件”吗？已在此电脑上的文件会保留。</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>“按需文件”已开启。</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>关闭“按需文件”</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>要关闭“按需文件”吗？此文件夹的所有文件都将下载（%1）。</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>空间不足，无法下载所有文件。还需要 %1。</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>仅在线</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>始终在此电脑上</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>部分在此电脑上</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>%1 个文件将仅在线可用。要继续吗？</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>已释放 %1 的磁盘空间。</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>尚未上传的文件会保留在此电脑上。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>“%1”已打开，会保留在此电脑上。</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>自动释放空间</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>%1 天未打开的文件变为仅在线</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>仅在磁盘空间不足时</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 正在下载“%2”。</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>阻止此程序下载</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>某个程序正在打开大量仅在线文件。要允许吗？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>无法打开“%1”，因为它仅在线可用，而 Corvimo Client 未连接。</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>请启动 Corvimo Client 以打开仅在线文件。</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>此版本的系统不支持“按需文件”。</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>此磁盘不支持“按需文件”。</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>请在系统设置中允许文件提供程序扩展，以使用“按需文件”。</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>显示仅在线文件的预览</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>无法在此电脑上搜索仅在线文件的内容。</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>允许</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>阻止</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>欢迎使用 Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>只需几步即可设置 Corvimo Client，在每台电脑上使用您的文件。</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>开始使用</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>第 %1 步，共 %2 步</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>连接到您的服务器</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>请输入 Corvimo Server 的地址并使用您的账户登录。</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>您要做什么？</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>同步文件</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>使此电脑与 Corvimo Server 上的文件保持一致。</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>备份此电脑</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>将您的文件复制到 Corvimo Server，以防丢失。</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>您的文件将同步到“%1”。</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>团队文件夹</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>选择要在此电脑上使用的团队文件夹。</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>您不是任何团队文件夹的成员。</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>同步选项</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>同步所有文件</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client 需要您的许可才能显示通知和读取您的文件夹。</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>开始之前，请检查您的选择。</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>将下载 %1 个文件（%2）。</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>一切就绪</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client 正在同步您的文件。您可以在菜单栏中找到它。</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>查看导览</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>点按菜单栏中的图标可查看当前状态。</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>右键点按文件可共享文件或查看其版本。</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>文件上的图标显示其是否已同步。</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>要退出设置向导吗？您可以稍后继续。</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>找到了之前安装时的设置。要使用这些设置吗？</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 字节</translation>
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
        <translation>1 个文件</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 个文件</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 个文件夹</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 个文件夹</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>%1 个项目</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>%1 个文件，%2 个文件夹</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>刚刚</translation>
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
        <translation>1 分钟前</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>1 小时前</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上周</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 小时</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 天</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>剩余 %1 秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>剩余 %1 分钟</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>剩余 %1 小时</translation>
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
        <translation>了解更多</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>不再显示此消息</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>请稍候...</translation>
    </message>
</context>
</TS>
