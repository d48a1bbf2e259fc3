<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Удалено</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Отвязать</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Файл добавлен: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Изменить папку</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Объединить</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Добавлено</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Изменено</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Переименовано</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Перемещено</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Восстановлено</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>Файл изменен: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Файл удален: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Файл переименован: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Папка добавлена: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Папка удалена: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Недавно измененные файлы</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Измененных файлов пока нет.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Показать все изменения</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Открыть Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Открыть в веб-браузере</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Приостановить синхронизацию</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Приостановить на один час</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Приостановить до завтра</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Возобновить синхронизацию</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Уведомления</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>О приложении Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Файлы не будут синхронизироваться, пока вы снова не запустите Corvimo Client. Завершить работу?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Синхронизация завершена</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Синхронизация...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Синхронизация, осталось файлов: %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>Отправка: %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Скачивание: %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Поиск изменений...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Приостановлено</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>Приостановлено до %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Нет подключения</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Ожидание</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>Требуется ваше внимание</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Некоторые файлы не удалось синхронизировать.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Задания синхронизации не настроены.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>Отправка: %1, скачивание: %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Открыть с помощью...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>История версий</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Получить ссылку</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Скопировать ссылку</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Поделиться...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Отправить ссылку по электронной почте</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Синхронизировать сейчас</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Синхронизировать эту папку</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Не синхронизировать эту папку</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Всегда хранить на этом компьютере</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Освободить место</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Заблокировать файл</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Разблокировать файл</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Скопировать путь</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Выбрать все</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Новая папка</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Скопировать</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить действие</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить действие</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Не синхронизировать файлы с таким именем</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Не синхронизировать файлы этого типа</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Заблокировано пользователем %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>«%1»: файл заблокирован. Другие пользователи могут читать его, но не изменять.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>«%1»: файл разблокирован.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>Ссылка скопирована в буфер обмена.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>Путь скопирован в буфер обмена.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>Выбрано элементов: %1</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Этот элемент не находится в синхронизируемой папке.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Задания синхронизации</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Синхронизация</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Резервные копии</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Недавние действия</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Создать задание синхронизации</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Возобновить</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Приостановить все</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Возобновить все</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>По запросу «%1» ничего не найдено.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Заданий синхронизации пока нет. Создайте задание, чтобы содержимое папки на этом компьютере и папки на сервере Corvimo Server всегда совпадало.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Папка на этом компьютере</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Папка на сервере Corvimo Server</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Дата изменения</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Владелец</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Учетная запись</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Последняя синхронизация</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Остановлено</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Папка не найдена</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Удаление задания синхронизации</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Удалить задание синхронизации «%1»? Ваши файлы останутся на этом компьютере и на сервере Corvimo Server.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Удалить выбранные задания синхронизации (%1)? Ваши файлы останутся на этом компьютере и на сервере Corvimo Server.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>Задание синхронизации удалено.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>Синхронизация приостановлена. Изменения будут синхронизированы после возобновления.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Очистить список</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Все действия</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Только ошибки</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>Отправлено на сервер: %1.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>Скачано: %1.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>Удалено с этого компьютера: %1.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>Удалено с сервера Corvimo Server: %1.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>Элемент %1 переименован в %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>Элемент %1 перемещен в %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>Изменено файлов: %1. Автор изменений: %2.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Выбор папок для синхронизации</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Выберите папку на сервере Corvimo Server и папку на этом компьютере. Corvimo Client следит за тем, чтобы их содержимое совпадало.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Выбрать папку на сервере</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Выбрать локальную папку</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Обзор...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Далее</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Имя новой папки</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>Не удалось создать папку «%1». Выберите другое имя или проверьте свои права доступа.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Создать здесь пустую папку с именем «%1»</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Направление синхронизации</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Двусторонняя синхронизация</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Только отправлять изменения</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Только скачивать изменения</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>Изменения на каждой из сторон копируются на другую.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Изменения на этом компьютере отправляются на сервер. Изменения на сервере Corvimo Server не скачиваются.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Изменения на сервере Corvimo Server скачиваются. Изменения на этом компьютере не отправляются на сервер.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Сохранять файлы на этом компьютере при их удалении на сервере Corvimo Server</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Сохранять файлы на сервере Corvimo Server при их удалении на этом компьютере</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Объединение папок</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>В обеих папках уже есть файлы. Выберите, что с ними сделать.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>Папка «%1» уже существует. Объединить ее с папкой на сервере Corvimo Server?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Объединить обе папки и сохранить все файлы</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Использовать файлы с этого компьютера</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Использовать файлы с сервера Corvimo Server</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Выбрать другую папку</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Различающиеся файлы сохраняются в двух копиях.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Файлы на сервере Corvimo Server, которых нет на этом компьютере, будут удалены.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Файлы на этом компьютере, которых нет на сервере Corvimo Server, будут перемещены в корзину.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Файлы с одинаковыми именами будут заменены. Отменить это действие нельзя.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>Сравнение папок...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>Сравнено файлов: %1 из %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>Содержимое обеих папок теперь одинаково.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Эта папка уже входит в задание синхронизации. Выберите другую папку.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Эта папка находится внутри папки, которая уже синхронизируется. Выберите другую папку.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Эта папка содержит папку, которая уже синхронизируется. Выберите другую папку.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Системные папки нельзя синхронизировать. Выберите другую папку.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>Нельзя синхронизировать весь диск. Выберите папку на нем.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Папки на съемных дисках нельзя синхронизировать.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Сетевые папки, например \\server\share, нельзя синхронизировать. Выберите папку на этом компьютере.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>У вас нет прав на запись в эту папку. Выберите другую папку.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Эта папка зашифрована и заблокирована. Сначала разблокируйте ее на сервере Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>Папка не найдена. Возможно, она была перемещена или удалена.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>Файловая система этого диска не поддерживается. Используйте диск с поддерживаемой файловой системой.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Достигнуто предельное количество заданий синхронизации: %1. Удалите задание, которое вам больше не нужно.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Выборочная синхронизация</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Выберите, что синхронизировать с этим компьютером. Папки, с которых снят флажок, удаляются с этого компьютера, но остаются на сервере Corvimo Server.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Папки</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Фильтр файлов</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Снять выбор</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Автоматически синхронизировать новые папки</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Загрузка...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>Не удалось загрузить список папок. Проверьте подключение и повторите попытку.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Повторить попытку</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Папок, которые будут удалены с этого компьютера: %1. Они останутся на сервере Corvimo Server.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Удалить папки с этого компьютера?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Некоторые файлы в этих папках еще не отправлены на сервер и будут потеряны. Сначала синхронизируйте их.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Выбрано: %1 из %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Не синхронизировать файлы размером более</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Не синхронизировать файлы с этими расширениями</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Не синхронизировать файлы с этими именами</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Добавить расширение</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Добавить имя</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Синхронизировать файлы и папки, имена которых начинаются с точки</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Временные файлы распространенных программ никогда не синхронизируются.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Восстановить значения по умолчанию</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Вернуться к фильтру по умолчанию?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Введите расширение, например «iso».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>«%1» уже есть в списке.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Имя не должно содержать следующих символов: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Введите размер от %1 до %2.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Исключено фильтром</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>Ваш выбор сохранен. Corvimo Client применяет его.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Документы</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Изображения</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Музыка</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Архивы</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Другие файлы</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>Версии файла «%1»</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Текущая версия</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Предыдущая версия</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Автор изменений</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Скачать</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предпросмотр</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>У этого файла нет предыдущих версий.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Выберите файл, чтобы увидеть его версии.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Восстановление версии</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Заменить текущую версию версией от %1?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>Текущая версия сохранится в истории.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>«%1»: восстановлена версия от %2.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>Не удалось восстановить версию. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Восстановить как копию</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Сохранить версию как</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>Версия сохранена в «%1».</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Удалить эту версию? Ее нельзя будет вернуть.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>Не удалось удалить версию.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Защищено от автоматического удаления</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Наибольшее количество версий файла на сервере Corvimo Server: %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>История версий для этой папки выключена. Попросите администратора включить ее.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Для файлов этого типа версии не хранятся.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Удаленные файлы</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Показать удаленные файлы</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Удалено: %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Восстановить выбранные элементы (%1)?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Восстановлено элементов: %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Удаленных файлов не найдено.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Вернуться к определенному моменту времени</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Выберите дату и время</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Сравнить</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>Общий доступ к «%1»</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Люди</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Ссылка</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Пригласите людей или создайте ссылку на этот элемент.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Пригласить людей</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Введите имя или адрес электронной почты</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Отправить приглашение</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>Приглашение отправлено: %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>Не удалось отправить приглашение. Проверьте адрес электронной почты.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Сообщение (необязательно)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Права доступа</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Может просматривать</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Может изменять</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Может управлять</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Может только отправлять файлы</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Нет доступа</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>Права доступа пользователя %1 изменены.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>У вас нет прав делиться этим элементом. Обратитесь к его владельцу.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Доступные мне</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Предоставленные мной</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Количество людей с доступом: %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Доступ к этому элементу никому не предоставлен.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Покинуть общую папку</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Покинуть общую папку «%1»? Она будет удалена с этого компьютера.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>У вас больше нет доступа к «%1».</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>Пользователь %1 поделился с вами элементом «%2».</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Все пользователи этого сервера</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Настройки ссылки</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Создать ссылку</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Создание ссылки...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Удалить ссылку</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Удалить эту ссылку? Люди, у которых она есть, больше не смогут открыть элемент.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Все, у кого есть ссылка</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Только пользователи с учетной записью</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Защитить паролем</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Пароль</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>Минимальное количество символов в пароле: %1.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Введите пароль для ссылки.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Ссылка действует до</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>Бессрочно</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Выберите дату в будущем.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Срок действия этой ссылки истек.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>Разрешенное количество скачиваний</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>Осталось скачиваний: %1</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Разрешить скачивание</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Разрешить отправку файлов</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>Не удалось создать ссылку. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>Администратор выключил ссылки для этой папки.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Запрос файлов</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>Люди, у которых есть ссылка, могут отправлять файлы в эту папку, не видя ее содержимого.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>Показать QR-код</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Конфликты</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>«%1»: изменения внесены одновременно в двух местах.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>Файлов, измененных одновременно в двух местах: %1.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Выберите, какую версию оставить. Другая будет сохранена как конфликтующая копия.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Оставить версию на этом компьютере</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Оставить версию на сервере Corvimo Server</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Оставить обе версии</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Оставить более новую версию</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Спрашивать каждый раз</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Применить ко всем конфликтам</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>конфликтующая копия %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>На этом компьютере</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>На сервере Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Автор изменений: %1, %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Если файл изменен в двух местах</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Имена, различающиеся только регистром букв</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>«%1» и «%2» различаются только регистром букв. Переименуйте один из элементов.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Конфликтов нет.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>Конфликт разрешен.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Не удалось разрешить конфликт, так как файл открыт. Закройте его и повторите попытку.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Разрешить конфликт</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Решить позже</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Открыть оба файла</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Вы удалили файл «%1», но он был изменен на сервере Corvimo Server. Измененный файл сохранен.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>Файл «%1» удален на сервере Corvimo Server, но вы его изменили. Ваш файл сохранен.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>«%1» на одной стороне является файлом, а на другой — папкой. Переименуйте один из элементов.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Конфликтующие копии</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Удалить конфликтующие копии</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Удалить конфликтующие копии (%1)? Их нельзя будет вернуть.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>«%1»: файл открыт в другой программе и будет синхронизирован после закрытия.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Адрес сервера</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Имя хоста, IP-адрес или Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Имя пользователя</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Шифровать подключение</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Без шифрования другие пользователи сети могут прочитать ваши файлы и пароль.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключиться</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Отключиться</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Подключиться снова</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Проверить подключение</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Проверка подключения...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Подключение работает.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>Подключение не работает. Проверьте адрес и порт.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Подключено к %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>Подключение к %1 потеряно. Corvimo Client повторит попытку через %2 с.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>Подключение к %1 восстановлено.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Ожидание подключения к сети</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Не выполнять синхронизацию в сетях с лимитным трафиком</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>Синхронизация приостановлена, так как в этой сети лимитный трафик.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Подключено через локальную сеть</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Подключено через Интернет</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Подключено через сервер-ретранслятор</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>Подключение через сервер-ретранслятор медленнее прямого.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Найти серверы в этой сети</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Поиск серверов...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>В этой сети не найдено ни одного сервера. Введите адрес сервера вручную.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Найдено серверов: %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>Сервер «%1» не найден. Проверьте правильность написания адреса.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>Сервер отклонил подключение. Убедитесь, что Corvimo Server запущен.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>Сервер не ответил вовремя. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Этот компьютер не подключен к сети.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Введите номер порта от 1 до 65535.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Введите адрес сервера.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Corvimo ID «%1» не существует.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>Сервер с этим Corvimo ID не в сети. Убедитесь, что он включен.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>На этом сервере не установлен или не запущен Corvimo Server.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>На сервере выполняется обслуживание. Синхронизация продолжится, когда он снова станет доступен.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server слишком старой версии для этого клиента. Попросите администратора обновить его до версии %1 или новее.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Этот клиент слишком старый для Corvimo Server. Обновите его до версии %1 или новее.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>К серверу подключено слишком много клиентов. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Этот компьютер заблокирован из-за слишком большого количества неудачных попыток. Попросите администратора разблокировать его.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>Возможно, брандмауэр блокирует Corvimo Client. Разрешите приложению Corvimo Client использовать порт %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>Не удалось установить защищенное подключение: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Произошла неизвестная ошибка (код %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Изменение подключения</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Удаление подключения</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Удалить подключение к %1? Связанные с ним задания синхронизации будут удалены, но ваши файлы останутся.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>Файлов, еще не отправленных на сервер: %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Последнее подключение: %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси-сервер</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Используйте прокси-сервер, если он нужен в вашей сети для выхода в Интернет.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Не использовать прокси-сервер</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Использовать настройки прокси-сервера этого компьютера</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Настроить прокси-сервер вручную</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Тип прокси-сервера</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Адрес прокси-сервера</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>Прокси-сервер требует имя пользователя и пароль</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Не использовать прокси-сервер для локальных адресов</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Не использовать прокси-сервер для этих адресов</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Проверить прокси-сервер</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Прокси-сервер работает.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Вход на прокси-сервер</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>Прокси-сервер %1 запрашивает имя пользователя и пароль.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>Прокси-сервер не принял имя пользователя или пароль.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>Прокси-сервер %1 недоступен. Проверьте его адрес и порт.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>Прокси-сервер не разрешает подключение к %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Не удалось прочитать настройки прокси-сервера этого компьютера.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Введите адрес прокси-сервера.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Сертификат</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>Сертификат не является доверенным</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>Сертификат %1 выдан неизвестным центром сертификации. Возможно, кто-то выдает себя за ваш сервер.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>Сервер использует самозаверенный сертификат.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>Срок действия сертификата истек %1.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>Сертификат начнет действовать только %1. Проверьте часы этого компьютера.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>Сертификат выдан для %1, а не для %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>Сертификат отозван выдавшим его центром сертификации.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>Сертификат изменился</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>Сертификат %1 отличается от использовавшегося ранее. Уточните у администратора, был ли он обновлен.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>В сертификате используется алгоритм, который больше не считается безопасным.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Доверять этому сертификату</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Всегда доверять этому сертификату</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Доверять только в этот раз</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Не подключаться</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Посмотреть сертификат</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Кому выдан</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Кем выдан</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Действует с</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Действует до</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Серийный номер</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Отпечаток</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Алгоритм подписи</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Длина ключа</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Экспортировать сертификат</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>Сертификат сохранен в «%1».</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Импортировать сертификат</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>Файл не содержит действительного сертификата.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Удалить сертификат %1 из списка доверенных?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Хранилище</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>Использовано %1 из %2</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>Свободно: %1</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Без ограничений</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Хранилище на сервере Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Хранилище на этом компьютере</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Хранилище по типам файлов</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Хранилище по папкам</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Место, занятое предыдущими версиями</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Место, занятое удаленными файлами</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Очистить корзину</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Очистить корзину? Файлы из нее нельзя будет вернуть.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>Корзина очищена. Освобождено: %1.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Вычисление...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Ваше хранилище почти заполнено. Осталось только %1.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Ваше хранилище заполнено</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Новые файлы нельзя будет отправить на сервер, пока вы не удалите часть файлов или не попросите администратора увеличить хранилище.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>Квота папки «%1» исчерпана. Новые файлы из нее нельзя отправить на сервер.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Том сервера Corvimo Server заполнен. Попросите администратора освободить место.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>Размер файла «%1» превышает оставшееся место в хранилище (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Мало места на диске</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>На диске «%2» осталось только %1. Синхронизация остановится, когда диск заполнится.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Недостаточно места на диске</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>На диске «%1» недостаточно места. Синхронизация приостановлена, пока вы не освободите не менее %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>Файл «%1» не скачан, так как для него требуется %2 на диске.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Чтобы освободить место, используйте выборочную синхронизацию или храните файлы только онлайн.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Открыть настройки хранилища</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Минимальный объем свободного места на диске</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Если места остается меньше, скачивание приостанавливается.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>Диск с папкой «%1» не подключен. Подключите его, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>Диск «%1» доступен только для чтения. На него нельзя сохранить изменения с сервера Corvimo Server.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Недостаточно места для временных файлов. Освободите не менее %1.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Временные файлы</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Удалить временные файлы</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Временные файлы удалены (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Проверить снова</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Игнорировать</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Занято</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Самые большие файлы</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Удалите или переместите файлы, которые вам больше не нужны.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>В этом месяце занятое место в хранилище увеличилось на %1.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>При таких темпах ваше хранилище заполнится %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Попросить увеличить хранилище</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>Ваш запрос отправлен администратору.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>Ваш запрос ожидает ответа.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>Квота группы «%1» исчерпана.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 готов.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Обновление ПО</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Проверить наличие обновлений</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Проверка наличия обновлений...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>У вас установлена последняя версия.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Доступна версия %1 приложения Corvimo Client.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Скачать и установить</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Напомнить позже</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Пропустить эту версию</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Скачивание...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>Обновление готово. Перезапустите Corvimo Client, чтобы установить его.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Перезапустить сейчас</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>Не удалось установить обновление. Текущая версия продолжит работать.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Приложению Corvimo Client не удалось проверить наличие обновлений.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Сведения о выпуске</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Устанавливать обновления автоматически</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 выполняет инициализацию...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Выполняется перенос настроек из предыдущей версии.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Ваши настройки перенесены. Вы можете продолжить с того места, где остановились.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>Некоторые настройки предыдущей версии не удалось перенести. Проверьте задания синхронизации.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>Для обновления требуется %1 на диске.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Эта версия больше не поддерживается. Установите обновление, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Пропускная способность</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Скорость отправки</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Скорость скачивания</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Ограничить до</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Настраивать автоматически</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client оставляет часть пропускной способности другим программам, использующим сеть.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Расписание</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Выберите часы, в которые действует ограничение.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Весь день</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Рабочее время</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Ночью</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>To</source>
        <translation>До</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>Не синхронизировать</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Полная скорость</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Ограниченная скорость</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Очистить расписание</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Введите скорость больше 0.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Введите скорость от %1 до %2.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>Начало должно быть раньше конца.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>Администратор ограничил скорость до %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Количество одновременно передаваемых файлов</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>Не ограничивать скорость в локальной сети</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Текущая скорость</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Средняя скорость</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Передано сегодня</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Передано в этом месяце</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Выберите, о чем вас должен уведомлять Corvimo Client.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Когда синхронизация завершена</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Когда не удается синхронизировать файл</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Когда со мной делятся элементом</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Когда комментируют мои файлы</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Когда хранилище почти заполнено</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Когда резервное копирование завершено или прервано ошибкой</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Когда доступно обновление</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Когда подключение потеряно</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Воспроизводить звук</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Не беспокоить</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Время тишины</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Без уведомлений до %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Не беспокоить во время презентаций</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Показывать имена файлов в уведомлениях</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Уведомления выключены в системных настройках этого компьютера.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Открыть системные настройки</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Скрыть</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Скрыть все</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Посмотреть</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Отметить как прочитанное</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Центр уведомлений</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>У вас нет уведомлений.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Новых уведомлений: %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Все файлы синхронизированы.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>Первая синхронизация завершена. Файлов на этом компьютере: %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Удалено много файлов</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>Удалено файлов из папки «%2»: %1. Если это произошло случайно, восстановите их.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>Файлов, измененных за короткое время: %1. Если это сделали не вы, приостановите синхронизацию и проверьте компьютер на наличие вредоносных программ.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>Папка «%1» перемещена. Укажите в Corvimo Client, где она теперь находится.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>Пользователь %1 прокомментировал «%2».</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Проблемы синхронизации</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Эти файлы не удалось синхронизировать. Corvimo Client повторит попытку, когда причина будет устранена.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Проблем: %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Проблем нет.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Причина</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Повторить все</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Скопировать подробности</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Сообщить о проблеме</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>Подробности скопированы в буфер обмена.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Код ошибки: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>Файл используется другой программой. Закройте его в этой программе, чтобы синхронизировать.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>Файл заблокирован пользователем %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>Файл был удален до синхронизации.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>Файл изменился во время отправки. Он будет отправлен снова.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>Файл был поврежден при передаче. Он будет передан снова.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Не удается прочитать файл. Проверьте права доступа к нему.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>Запись в файл невозможна. Проверьте права доступа к нему.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>Размер файла превышает ограничение %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>Файл слишком велик для файловой системы этого диска.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>Файл зашифрован, и его нельзя открыть на этом компьютере.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>Антивирус на сервере Corvimo Server заблокировал файл.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>Антивирус на этом компьютере заблокировал файл.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Файлы этого типа не разрешены на сервере Corvimo Server.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Устройства, каналы и сокеты нельзя синхронизировать.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Символические ссылки, ведущие за пределы синхронизируемой папки, не синхронизируются.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>Псевдоним «%1» указывает на элемент, который не синхронизируется.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>Имя слишком длинное. Максимальное количество символов: %1.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>Путь слишком длинный. Сократите имена входящих в него папок.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>Имя содержит недопустимые символы: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>Имя «%1» зарезервировано системой.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>Имя заканчивается пробелом или точкой. Переименуйте элемент.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>Имя содержит нечитаемые символы. Переименуйте элемент.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Элемент с именем «%1» уже существует в этой папке.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Введите имя.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>Папка «%1» не найдена.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>Папка не удалена, так как содержит файлы, которые не синхронизируются.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Не удалось создать папку.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Не удалось удалить папку.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>У вас нет прав на изменение этой папки.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>У вас нет прав на открытие этой папки.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>Количество элементов в папке превышает %1. Переместите часть из них во вложенные папки.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>Уровень вложенности папки слишком велик.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>Сервер занят. Corvimo Client повторит попытку через несколько минут.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server сообщил о внутренней ошибке. Попросите администратора проверить журнал сервера.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server сейчас не принимает изменения.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>Том с этой папкой недоступен на сервере Corvimo Server.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>Общая папка удалена с сервера Corvimo Server.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>Синхронизация этой общей папки выключена.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>Сервер отправил ответ, непонятный для Corvimo Client.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>Ваш сеанс завершен. Войдите снова.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Данные Corvimo Server были сброшены. Настройте задания синхронизации заново.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>Не удалось отправить «%1» на сервер.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>Не удалось отправить «%1» на сервер: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>Не удалось скачать «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>Не удалось скачать «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>Не удалось удалить «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>Не удалось переименовать «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>Не удалось переместить «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>Не удалось восстановить «%1»: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Доступ запрещен</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>Ошибка чтения или записи на диске. Проверьте диск на наличие неисправностей.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>Диск был отключен во время записи файлов.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Недостаточно памяти. Закройте другие программы и повторите попытку.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>База данных синхронизации повреждена и будет перестроена. Это может занять некоторое время.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>База данных синхронизации используется другой программой.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Перестроение базы данных синхронизации...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>База данных синхронизации перестроена.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Не удалось прочитать ваши настройки. Используются значения по умолчанию.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Не удалось сохранить ваши настройки.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Изменения в некоторых папках могут обнаруживаться с задержкой, так как система отслеживает слишком много папок.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>Часы этого компьютера расходятся с часами сервера более чем на %1 мин. Установите правильное время на этом компьютере.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Это действие не поддерживается сервером Corvimo Server.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>Действие отменено.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>Действие выполнялось слишком долго и было остановлено.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Произошла неизвестная ошибка.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Не удалось запустить Corvimo Client. Перезагрузите этот компьютер и повторите попытку.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Приложение Corvimo Client уже запущено.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Отсутствует компонент приложения Corvimo Client. Установите клиент заново.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Невозможно показать значки состояния, так как все места для них заняты другими программами.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Приложению Corvimo Client требуется ваше разрешение на чтение этой папки. Предоставьте его в настройках конфиденциальности этого компьютера.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Если проблема не исчезнет, перезапустите Corvimo Client.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Если проблема не исчезнет, обратитесь к администратору.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Если проблема не исчезнет, обратитесь в службу поддержки и сообщите код ошибки.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Продолжить с оставшимися файлами?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Войти</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Вход на сервер Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Показать пароль</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Забыли пароль?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Оставаться в системе</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Выполняется вход...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Выполнен вход: %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Вы вышли из учетной записи.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Выйти из учетной записи? Синхронизация остановится, пока вы снова не войдете.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Войти через браузер</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Продолжите в браузере, а затем вернитесь сюда.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>Не удалось открыть браузер. Откройте этот адрес самостоятельно: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Домен</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Если ваша учетная запись принадлежит домену, введите имя пользователя в виде домен\пользователь.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Добавить учетную запись</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Сменить учетную запись</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Удалить учетную запись с компьютера</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Удалить учетную запись %1 с этого компьютера? Ваши файлы останутся на этом компьютере и на сервере Corvimo Server.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>Адрес электронной почты</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Полное имя</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Изменить пароль</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Текущий пароль</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Новый пароль</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Повторите новый пароль</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>Ваш пароль изменен.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>Администратор требует, чтобы вы изменили пароль.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Дней до окончания срока действия пароля: %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Пароли не совпадают.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>Новый пароль должен отличаться от текущего.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Введите имя пользователя.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Введите пароль.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Неверное имя пользователя или пароль.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>Неверное имя пользователя или пароль. Осталось попыток: %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Ваша учетная запись отключена. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Срок действия вашей учетной записи истек. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>У вас нет прав на использование Corvimo Server. Обратитесь к администратору.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>Срок действия вашего пароля истек. Измените его на сервере Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>Ваша домашняя папка недоступна. Попросите администратора включить службу домашних папок.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>Гостевую учетную запись нельзя использовать для синхронизации.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Все лицензии Corvimo Server уже используются.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Имя этого компьютера</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Привязанные устройства</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Отвязать «%1»? На этом устройстве будет выполнен выход, и синхронизация прекратится.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Этот компьютер отвязан пользователем %1. Войдите снова, чтобы продолжить синхронизацию.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Этот компьютер</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Удалить также файлы на устройстве</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Двухэтапный вход</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Введите код, показанный в приложении для проверки подлинности.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Код подтверждения</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 цифр</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Проверка...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Доверять этому устройству</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Не спрашивать на этом компьютере столько дней: %1</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Потеряли телефон?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Отправить код по электронной почте</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>Код отправлен на %1. Он действителен в течение 10 минут.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Не удалось отправить код. Обратитесь за помощью к администратору.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Использовать код восстановления</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Введите один из записанных вами кодов восстановления. Каждый код можно использовать один раз.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Осталось кодов восстановления: %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Использовать ключ безопасности</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Вставьте ключ безопасности и прикоснитесь к нему.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>Ключ безопасности не распознан. Попробуйте другой.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Подтвердите вход на телефоне</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>Ожидание вашего подтверждения...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Выберите число %1 на телефоне.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>Вход отклонен на телефоне.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>Срок действия запроса истек. Отправьте его снова.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Отправить снова</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Попробовать другой способ</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Введите код.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>Неверный код. Проверьте, правильно ли идут часы на телефоне.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Этот код уже использован. Дождитесь следующего.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>Слишком много неверных кодов. Подождите %1 мин и повторите попытку.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>Администратор требует двухэтапный вход. Сначала настройте его на сервере Corvimo Server.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Настроить двухэтапный вход</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Отсканируйте этот код в приложении для проверки подлинности.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>Двухэтапный вход включен.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Задания резервного копирования</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>Задание резервного копирования копирует папки этого компьютера на сервер Corvimo Server и хранит предыдущие версии.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Создать задание резервного копирования</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Изменить задание резервного копирования</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Удалить задание резервного копирования</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Удалить задание резервного копирования «%1»?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Удалить также файлы резервной копии на сервере Corvimo Server</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Имя задания</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Задание с таким именем уже существует.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Что копировать</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Выберите хотя бы одну папку для резервного копирования.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>Папка «%1» больше не существует. Она не включается в резервную копию.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Рабочий стол</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Документы</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Изображения</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Музыка</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Видео</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Загрузки</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Внешние диски</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Где хранить резервную копию</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>В этой папке уже находится резервная копия другого компьютера.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Когда копировать</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>При каждом изменении файла</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>По расписанию</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Только при запуске вручную</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Ежедневно</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Еженедельно</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Ежемесячно</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Ежечасно</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>В %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>В эти дни</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>При подключении внешнего диска</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Выводить этот компьютер из режима сна для резервного копирования</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Создать резервную копию сейчас</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Остановить резервное копирование</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Остановить резервное копирование? Уже скопированные файлы сохранятся.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Резервное копирование...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Резервное копирование, файлов: %1 из %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Резервное копирование завершено.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Последнее резервное копирование: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Следующее резервное копирование: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Резервная копия еще не создана</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>Резервное копирование завершено. Файлов, которые не удалось прочитать: %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>Не удалось выполнить резервное копирование: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>Резервное копирование, запланированное на %1, было пропущено. Оно начинается сейчас.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Дней без резервного копирования этого компьютера: %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Как долго хранить версии</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Хранить все версии</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Количество хранимых версий: %1</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Сколько дней хранить версии: %1</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Хранить меньше версий по мере их устаревания</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Шифровать резервную копию</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Ключ шифрования</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Храните ключ в надежном месте. Без него нельзя восстановить данные из резервной копии.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>Неверный ключ шифрования.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Восстановить файлы</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Выберите файлы для восстановления и место для них.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Восстановить в исходное место</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Заменять существующие файлы</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>Восстановление файлов: %1 из %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Все файлы восстановлены.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>Восстановлено файлов: %1. Не удалось восстановить: %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Проверить резервную копию</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>Резервная копия не повреждена.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Поврежденных файлов в резервной копии: %1. Они будут скопированы снова.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
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
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>Версия %1 (сборка %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Версия сервера</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Все права защищены.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Лицензионное соглашение</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Заявление о конфиденциальности</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Стороннее ПО</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Веб-сайт</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Обратиться в службу поддержки</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Отправить отзыв</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Благодарим вас за использование Corvimo Client.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Журналы</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Уровень детализации</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Обычный</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>Подробные журналы замедляют работу клиента. Когда они больше не нужны, вернитесь к обычному уровню.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Открыть папку журналов</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Сохранить журнал</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>Журнал сохранен в «%1».</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Не удалось сохранить журнал.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Очистить журнал</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Очистить журнал?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Отправить журнал в службу поддержки</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Отправка журнала...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>Журнал отправлен. Номер вашего обращения: %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Не удалось отправить журнал. Сохраните его и отправьте по электронной почте.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>Журнал содержит имена файлов и папок, но не их содержимое.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Отправлять анонимные данные об использовании, чтобы помочь улучшить Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Запускать Corvimo Client при входе в систему на этом компьютере</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Показывать значки состояния на файлах и папках</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Показывать Corvimo Client в контекстном меню</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Показывать синхронизируемые папки на боковой панели</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Показывать значок в строке меню</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>Язык изменится после перезапуска Corvimo Client.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Оформление</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлое</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Темное</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Размер текста</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>Не переходить в режим сна во время синхронизации файлов</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Перемещать в корзину файлы, удаленные на сервере Corvimo Server</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Предупреждать перед удалением большого количества файлов</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Сбросить все настройки? Задания синхронизации останутся без изменений.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Этим параметром управляет администратор.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Ваши настройки сохранены.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Не сохранять внесенные изменения?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Не сохранять</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Файлы по запросу</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Все файлы отображаются на этом компьютере, но файл скачивается, только когда вы его открываете.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>Включить функцию «Файлы по запросу»</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Включить функцию «Файлы по запросу» для «%1»? Файлы, которые уже есть на этом компьютере, останутся на нем.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>Функция «Файлы по запросу» включена.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>Выключить функцию «Файлы по запросу»</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Выключить функцию «Файлы по запросу»? Все файлы этой папки будут скачаны (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Недостаточно места для скачивания всех файлов. Требуется еще %1.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Только онлайн</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Всегда на этом компьютере</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Частично на этом компьютере</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>Файлов, которые будут доступны только онлайн: %1. Продолжить?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>Освобождено на диске: %1.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Файлы, еще не отправленные на сервер, остаются на этом компьютере.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>Файл «%1» открыт и остается на этом компьютере.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Освобождать место автоматически</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Переводить в режим «только онлайн» файлы, которые не открывались столько дней: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Только когда на диске мало места</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 скачивает «%2».</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Блокировать скачивание этой программой</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Программа открывает много файлов, доступных только онлайн. Разрешить ей это?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>Файл «%1» нельзя открыть, так как он доступен только онлайн, а Corvimo Client не подключен.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Запустите Corvimo Client, чтобы открывать файлы, доступные только онлайн.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>Функция «Файлы по запросу» не поддерживается этой версией системы.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>Функция «Файлы по запросу» не поддерживается на этом диске.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Чтобы использовать функцию «Файлы по запросу», разрешите расширение поставщика файлов в системных настройках.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Показывать миниатюры файлов, доступных только онлайн</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>Поиск по содержимому файлов, доступных только онлайн, на этом компьютере невозможен.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Разрешить</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Заблокировать</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Добро пожаловать в Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Настройте Corvimo Client за несколько шагов, чтобы ваши файлы были на каждом компьютере.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Начать</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Шаг %1 из %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Подключение к вашему серверу</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Введите адрес сервера Corvimo Server и войдите в свою учетную запись.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>Что вы хотите сделать?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Синхронизировать файлы</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Поддерживать файлы на этом компьютере и на сервере Corvimo Server одинаковыми.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Создавать резервные копии этого компьютера</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Копировать ваши файлы на сервер Corvimo Server, чтобы защитить их от потери.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Ваши файлы будут синхронизироваться с папкой «%1».</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Командные папки</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Выберите командные папки, которые нужны вам на этом компьютере.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>У вас нет доступа ни к одной командной папке.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Параметры синхронизации</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Синхронизировать все файлы</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Приложению Corvimo Client требуется ваше разрешение на показ уведомлений и чтение ваших папок.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Сводка</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Проверьте выбранные параметры перед началом.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>Будет скачано файлов: %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Все готово</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client синхронизирует ваши файлы. Вы найдете его в строке меню.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Познакомиться с приложением</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Нажмите значок в строке меню, чтобы узнать, что происходит.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Нажмите файл правой кнопкой мыши, чтобы поделиться им или посмотреть его версии.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Значки на ваших файлах показывают, синхронизированы ли они.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Прервать настройку? Вы сможете продолжить позже.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Найдены настройки предыдущей установки. Использовать их?</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 Б</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 КБ</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 ГБ</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 ТБ</translation>
    </message>
    <message>
        <source>%1 KB/s</source>
        <translation>%1 КБ/с</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 МБ/с</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 файл</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>Файлов: %1</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 папка</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>Папок: %1</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Элементов: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>Файлов: %1, папок: %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 и %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Только что</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>Сегодня в %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Вчера</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>Вчера в %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Завтра</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 в %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>Минуту назад</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 мин назад</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>Час назад</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ч назад</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 дн. назад</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>На прошлой неделе</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>В прошлом месяце</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 ч</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 дн.</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>Осталось %1 с</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>Осталось %1 мин</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>Осталось %1 ч</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Понедельник</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Вторник</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Среда</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Четверг</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Пятница</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Суббота</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Воскресенье</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Подробнее</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Больше не показывать это сообщение</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Подождите...</translation>
    </message>
</context>
</TS>
