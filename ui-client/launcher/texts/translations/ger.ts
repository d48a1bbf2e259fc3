<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Verknüpfung aufheben</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Datei hinzugefügt: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Ordner ändern</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Umbenannt</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Verschoben</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Wiederhergestellt</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>Datei geändert: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Datei gelöscht: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Datei umbenannt: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Ordner hinzugefügt: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Ordner gelöscht: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Zuletzt geänderte Dateien</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Bisher wurden keine Dateien geändert.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Alle Änderungen anzeigen</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Corvimo Client öffnen</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Im Webbrowser öffnen</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Synchronisierung anhalten</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Für eine Stunde anhalten</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Bis morgen anhalten</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Synchronisierung fortsetzen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Mitteilungen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>Über Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Dateien werden erst wieder synchronisiert, wenn Sie Corvimo Client erneut starten. Möchten Sie das Programm beenden?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronisierung läuft ...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Synchronisierung läuft, verbleibende Dateien: %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>%1 wird hochgeladen</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>%1 wird heruntergeladen</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Änderungen werden gesucht ...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>Angehalten bis %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbindung wird hergestellt ...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartend</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>Ihre Aufmerksamkeit ist erforderlich</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Einige Dateien konnten nicht synchronisiert werden.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Es wurde keine Synchronisierungsaufgabe eingerichtet.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>Upload: %1, Download: %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Öffnen mit ...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>In Ordner anzeigen</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Versionsverlauf</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Link abrufen</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Link kopieren</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Teilen ...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Link per E-Mail senden</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Jetzt synchronisieren</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Diesen Ordner synchronisieren</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Diesen Ordner nicht mehr synchronisieren</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Immer auf diesem Computer behalten</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Speicherplatz freigeben</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Datei sperren</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Datei entsperren</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Pfad kopieren</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einsetzen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Dateien mit diesem Namen nicht synchronisieren</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Dateien dieses Typs nicht synchronisieren</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Gesperrt von %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>„%1“ ist gesperrt. Andere können die Datei lesen, aber nicht ändern.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>„%1“ ist entsperrt.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>Der Link wurde in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>Der Pfad wurde in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>Ausgewählte Elemente: %1</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Dieses Element befindet sich nicht in einem synchronisierten Ordner.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisierungsaufgaben</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisierung</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Letzte Aktivitäten</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Synchronisierungsaufgabe erstellen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Alle anhalten</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Alle fortsetzen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>Keine Treffer für „%1“.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Es gibt noch keine Synchronisierungsaufgabe. Erstellen Sie eine, um einen Ordner auf diesem Computer und einen Ordner auf Corvimo Server auf demselben Stand zu halten.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Ordner auf diesem Computer</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Ordner auf Corvimo Server</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Änderungsdatum</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Besitzer</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Zuletzt synchronisiert</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestoppt</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Synchronisierungsaufgabe löschen</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Möchten Sie die Synchronisierungsaufgabe „%1“ löschen? Ihre Dateien bleiben auf diesem Computer und auf Corvimo Server erhalten.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Möchten Sie die %1 ausgewählten Synchronisierungsaufgaben löschen? Ihre Dateien bleiben auf diesem Computer und auf Corvimo Server erhalten.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>Die Synchronisierungsaufgabe wurde gelöscht.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>Die Synchronisierung ist angehalten. Änderungen werden nach dem Fortsetzen synchronisiert.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Liste leeren</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Alle Aktivitäten</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Nur Fehler</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 wurde hochgeladen.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 wurde heruntergeladen.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 wurde auf diesem Computer gelöscht.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 wurde auf Corvimo Server gelöscht.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1 wurde in %2 umbenannt.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 wurde nach %2 verschoben.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>Von %2 geänderte Dateien: %1.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Zu synchronisierende Ordner auswählen</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Wählen Sie einen Ordner auf Corvimo Server und einen Ordner auf diesem Computer. Corvimo Client hält beide auf demselben Stand.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Serverordner auswählen</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Lokalen Ordner auswählen</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Name des neuen Ordners</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>Der Ordner „%1“ konnte nicht erstellt werden. Wählen Sie einen anderen Namen oder überprüfen Sie Ihre Berechtigungen.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Hier einen leeren Ordner namens „%1“ erstellen</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synchronisierungsrichtung</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisierung in beide Richtungen</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Nur Änderungen hochladen</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Nur Änderungen herunterladen</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>Änderungen auf der einen Seite werden auf die andere kopiert.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Änderungen auf diesem Computer werden hochgeladen. Änderungen auf Corvimo Server werden nicht heruntergeladen.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Änderungen auf Corvimo Server werden heruntergeladen. Änderungen auf diesem Computer werden nicht hochgeladen.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Dateien auf diesem Computer behalten, wenn sie auf Corvimo Server gelöscht werden</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Dateien auf Corvimo Server behalten, wenn sie auf diesem Computer gelöscht werden</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Ordner zusammenführen</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Beide Ordner enthalten bereits Dateien. Wählen Sie, was damit geschehen soll.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>Der Ordner „%1“ ist bereits vorhanden. Möchten Sie ihn mit dem Ordner auf Corvimo Server zusammenführen?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Beide Ordner zusammenführen und alle Dateien behalten</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Die Dateien auf diesem Computer verwenden</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Die Dateien auf Corvimo Server verwenden</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Anderen Ordner auswählen</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Dateien, die sich unterscheiden, werden in zwei Kopien aufbewahrt.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Dateien auf Corvimo Server, die nicht auf diesem Computer vorhanden sind, werden gelöscht.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Dateien auf diesem Computer, die nicht auf Corvimo Server vorhanden sind, werden in den Papierkorb verschoben.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Dateien mit demselben Namen werden ersetzt. Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>Beide Ordner werden verglichen ...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>Verglichene Dateien: %1 von %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>Beide Ordner sind jetzt auf demselben Stand.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Dieser Ordner gehört bereits zu einer Synchronisierungsaufgabe. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Dieser Ordner befindet sich in einem Ordner, der bereits synchronisiert wird. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Dieser Ordner enthält einen Ordner, der bereits synchronisiert wird. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Systemordner können nicht synchronisiert werden. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>Ein ganzes Laufwerk kann nicht synchronisiert werden. Wählen Sie einen Ordner darauf.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Ordner auf Wechseldatenträgern können nicht synchronisiert werden.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Netzwerkordner wie \\server\share können nicht synchronisiert werden. Wählen Sie einen Ordner auf diesem Computer.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>Sie sind nicht berechtigt, in diesen Ordner zu schreiben. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Dieser Ordner ist verschlüsselt und gesperrt. Entsperren Sie ihn zuerst auf Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>Der Ordner wurde nicht gefunden. Er wurde möglicherweise verschoben oder gelöscht.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>Das Dateisystem dieses Laufwerks wird nicht unterstützt. Verwenden Sie ein Laufwerk mit einem unterstützten Dateisystem.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Sie haben die Höchstzahl an Synchronisierungsaufgaben (%1) erreicht. Löschen Sie eine Aufgabe, die Sie nicht mehr benötigen.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektive Synchronisierung</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Wählen Sie, was auf diesen Computer synchronisiert werden soll. Abgewählte Ordner werden von diesem Computer entfernt, bleiben aber auf Corvimo Server erhalten.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Dateifilter</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Neue Ordner automatisch synchronisieren</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen ...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>Die Ordnerliste konnte nicht geladen werden. Überprüfen Sie Ihre Verbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Ordner, die von diesem Computer entfernt werden: %1. Auf Corvimo Server bleiben sie erhalten.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Ordner von diesem Computer entfernen?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Einige Dateien in diesen Ordnern wurden noch nicht hochgeladen und würden verloren gehen. Synchronisieren Sie sie zuerst.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Ausgewählt: %1 von %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Keine Dateien synchronisieren, die größer sind als</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Keine Dateien mit diesen Dateiendungen synchronisieren</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Keine Dateien mit diesen Namen synchronisieren</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Dateiendung hinzufügen</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Namen hinzufügen</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Dateien und Ordner synchronisieren, deren Name mit einem Punkt beginnt</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Temporäre Dateien gängiger Programme werden nie synchronisiert.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Standard wiederherstellen</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Möchten Sie den Standardfilter wiederherstellen?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Geben Sie eine Dateiendung ein, zum Beispiel „iso“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>„%1“ steht bereits in der Liste.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Ein Name darf keines dieser Zeichen enthalten: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Geben Sie eine Größe zwischen %1 und %2 ein.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Durch Filter ausgeschlossen</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>Ihre Auswahl wurde gespeichert. Corvimo Client wendet sie jetzt an.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Andere Dateien</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>Versionen von „%1“</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Aktuelle Version</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Frühere Version</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Geändert von</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Von dieser Datei gibt es keine früheren Versionen.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Wählen Sie eine Datei, um ihre Versionen anzuzeigen.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Version wiederherstellen</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Möchten Sie die aktuelle Version durch die Version vom %1 ersetzen?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>Die aktuelle Version bleibt im Verlauf erhalten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>„%1“ wurde auf die Version vom %2 zurückgesetzt.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>Die Version konnte nicht wiederhergestellt werden. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Als Kopie wiederherstellen</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Version speichern unter</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>Die Version wurde unter „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Möchten Sie diese Version löschen? Sie kann nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>Die Version konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Vor automatischem Löschen geschützt</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Höchstzahl der Versionen, die Corvimo Server von einer Datei aufbewahrt: %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>Der Versionsverlauf ist für diesen Ordner deaktiviert. Bitten Sie den Administrator, ihn zu aktivieren.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Für diesen Dateityp werden keine Versionen aufbewahrt.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Gelöschte Dateien</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Gelöschte Dateien anzeigen</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Gelöscht am %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Möchten Sie die ausgewählten Elemente (%1) wiederherstellen?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Wiederhergestellte Elemente: %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Es wurden keine gelöschten Dateien gefunden.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Zu einem Zeitpunkt zurückkehren</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Datum und Uhrzeit auswählen</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>„%1“ teilen</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personen</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Laden Sie Personen ein oder erstellen Sie einen Link zu diesem Element.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Personen einladen</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Name oder E-Mail-Adresse eingeben</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Einladung senden</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>Die Einladung wurde an %1 gesendet.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>Die Einladung konnte nicht gesendet werden. Überprüfen Sie die E-Mail-Adresse.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Nachricht (optional)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Berechtigungen</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Darf ansehen</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Darf bearbeiten</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Darf verwalten</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Darf nur hochladen</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Kein Zugriff</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>Die Berechtigungen von %1 wurden geändert.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>Sie sind nicht berechtigt, dieses Element zu teilen. Wenden Sie sich an den Besitzer.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Mit mir geteilt</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Von mir geteilt</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Anzahl der Personen mit Zugriff: %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Dieses Element ist nicht geteilt.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Geteilten Ordner verlassen</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Möchten Sie den geteilten Ordner „%1“ verlassen? Er wird von diesem Computer entfernt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>„%1“ wird nicht mehr mit Ihnen geteilt.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 hat „%2“ mit Ihnen geteilt.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Alle auf diesem Server</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Linkeinstellungen</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Link erstellen</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Link wird erstellt ...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Link löschen</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Möchten Sie diesen Link löschen? Personen, die ihn haben, können das Element nicht mehr öffnen.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Jeder mit dem Link</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Nur Personen mit einem Konto</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Mit einem Passwort schützen</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>Das Passwort muss mindestens %1 Zeichen lang sein.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Geben Sie ein Passwort für den Link ein.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Link gültig bis</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>Läuft nie ab</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Wählen Sie ein Datum in der Zukunft.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Dieser Link ist abgelaufen.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>Anzahl erlaubter Downloads</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>Verbleibende Downloads: %1</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Herunterladen erlauben</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Hochladen erlauben</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>Der Link konnte nicht erstellt werden. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>Der Administrator hat Links für diesen Ordner deaktiviert.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Dateianforderung</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>Personen mit dem Link können Dateien in diesen Ordner hochladen, ohne seinen Inhalt zu sehen.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>QR-Code anzeigen</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Konflikte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>„%1“ wurde an zwei Orten gleichzeitig geändert.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>An zwei Orten gleichzeitig geänderte Dateien: %1.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Wählen Sie, welche Version Sie behalten möchten. Die andere wird als Konfliktkopie gespeichert.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Version auf diesem Computer behalten</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Version auf Corvimo Server behalten</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Beide Versionen behalten</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Neuere Version behalten</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Jedes Mal fragen</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Für alle Konflikte übernehmen</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>Konfliktkopie von %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Auf diesem Computer</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>Auf Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Geändert von %1 am %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Wenn eine Datei an zwei Orten geändert wurde</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Namen, die sich nur durch Groß- und Kleinschreibung unterscheiden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>„%1“ und „%2“ unterscheiden sich nur durch Groß- und Kleinschreibung. Benennen Sie eines der Elemente um.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Es gibt keine Konflikte.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>Der Konflikt wurde gelöst.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Der Konflikt konnte nicht gelöst werden, weil die Datei geöffnet ist. Schließen Sie sie und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Lösen</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Später entscheiden</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Beide Dateien öffnen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Sie haben „%1“ gelöscht, die Datei wurde aber auf Corvimo Server geändert. Die geänderte Datei wurde behalten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>„%1“ wurde auf Corvimo Server gelöscht, Sie haben die Datei aber geändert. Ihre Datei wurde behalten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>„%1“ ist auf der einen Seite eine Datei und auf der anderen ein Ordner. Benennen Sie eines der Elemente um.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Konfliktkopien</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Konfliktkopien löschen</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Möchten Sie die Konfliktkopien löschen (Anzahl: %1)? Sie können nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>„%1“ ist in einem anderen Programm geöffnet und wird synchronisiert, sobald die Datei geschlossen ist.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Hostname, IP-Adresse oder Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Verbindung verschlüsseln</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Ohne Verschlüsselung können andere im Netzwerk Ihre Dateien und Ihr Passwort lesen.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Erneut verbinden</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Verbindung testen</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbindung wird getestet ...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Die Verbindung funktioniert.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>Die Verbindung funktioniert nicht. Überprüfen Sie die Adresse und den Port.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Verbunden mit %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>Die Verbindung zu %1 wurde unterbrochen. Corvimo Client versucht es in %2 Sekunden erneut.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>Die Verbindung zu %1 besteht wieder.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Auf eine Netzwerkverbindung wird gewartet</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>In getakteten Netzwerken nicht synchronisieren</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>Die Synchronisierung ist angehalten, weil dieses Netzwerk getaktet ist.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Über das lokale Netzwerk verbunden</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Über das Internet verbunden</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Über einen Relay-Server verbunden</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>Der Relay-Server ist langsamer als eine direkte Verbindung.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Server in diesem Netzwerk suchen</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Server werden gesucht ...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>In diesem Netzwerk wurde kein Server gefunden. Geben Sie die Serveradresse selbst ein.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Gefundene Server: %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>Der Server „%1“ wurde nicht gefunden. Überprüfen Sie die Schreibweise der Adresse.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>Der Server hat die Verbindung abgelehnt. Stellen Sie sicher, dass Corvimo Server läuft.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>Der Server hat nicht rechtzeitig geantwortet. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Dieser Computer ist nicht mit einem Netzwerk verbunden.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Geben Sie einen Port zwischen 1 und 65535 ein.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Geben Sie die Adresse des Servers ein.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Die Corvimo ID „%1“ ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>Der Server mit dieser Corvimo ID ist offline. Stellen Sie sicher, dass er eingeschaltet ist.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>Corvimo Server ist auf diesem Server nicht installiert oder wird nicht ausgeführt.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>Der Server wird gerade gewartet. Die Synchronisierung wird fortgesetzt, sobald er wieder verfügbar ist.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server ist zu alt für diesen Client. Bitten Sie den Administrator, auf Version %1 oder neuer zu aktualisieren.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Dieser Client ist zu alt für Corvimo Server. Aktualisieren Sie ihn auf Version %1 oder neuer.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>Es sind zu viele Clients mit dem Server verbunden. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Dieser Computer wurde nach zu vielen fehlgeschlagenen Versuchen blockiert. Bitten Sie den Administrator, die Blockierung aufzuheben.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>Möglicherweise blockiert eine Firewall Corvimo Client. Erlauben Sie Corvimo Client die Nutzung von Port %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>Es konnte keine sichere Verbindung hergestellt werden: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Ein unbekannter Fehler ist aufgetreten (Code %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Verbindung bearbeiten</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Verbindung entfernen</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Möchten Sie die Verbindung zu %1 entfernen? Die zugehörigen Synchronisierungsaufgaben werden gelöscht, Ihre Dateien bleiben aber erhalten.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>Noch nicht hochgeladene Dateien: %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Zuletzt verbunden am %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Verwenden Sie einen Proxyserver, wenn Ihr Netzwerk ihn für den Internetzugang benötigt.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Keinen Proxy verwenden</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Proxyeinstellungen dieses Computers verwenden</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Proxy selbst einrichten</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Proxytyp</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadresse</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>Der Proxy benötigt einen Benutzernamen und ein Passwort</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Proxy nicht für lokale Adressen verwenden</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Proxy nicht für diese Adressen verwenden</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Proxy testen</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Der Proxy funktioniert.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Beim Proxy anmelden</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>Der Proxy %1 verlangt einen Benutzernamen und ein Passwort.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>Der Proxy hat den Benutzernamen oder das Passwort nicht akzeptiert.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>Der Proxy %1 ist nicht erreichbar. Überprüfen Sie Adresse und Port.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>Der Proxy lässt keine Verbindungen zu %1 zu.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Die Proxyeinstellungen dieses Computers konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Geben Sie die Adresse des Proxys ein.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>Das Zertifikat ist nicht vertrauenswürdig</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>Das Zertifikat von %1 wurde nicht von einer bekannten Zertifizierungsstelle ausgestellt. Möglicherweise gibt sich jemand als Ihr Server aus.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>Der Server verwendet ein Zertifikat, das er selbst signiert hat.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>Das Zertifikat ist am %1 abgelaufen.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>Das Zertifikat ist vor dem %1 nicht gültig. Überprüfen Sie die Uhr dieses Computers.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>Das Zertifikat wurde für %1 ausgestellt, nicht für %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>Das Zertifikat wurde von der ausstellenden Zertifizierungsstelle widerrufen.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>Das Zertifikat hat sich geändert</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>Das Zertifikat von %1 ist nicht das bisher verwendete. Fragen Sie den Administrator, ob es erneuert wurde.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>Das Zertifikat verwendet einen Algorithmus, der nicht mehr als sicher gilt.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Diesem Zertifikat vertrauen</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Diesem Zertifikat immer vertrauen</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Nur dieses Mal vertrauen</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Nicht verbinden</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Zertifikat anzeigen</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Ausgestellt für</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Ausgestellt von</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Gültig ab</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Gültig bis</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Fingerabdruck</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Signaturalgorithmus</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Schlüssellänge</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Zertifikat exportieren</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>Das Zertifikat wurde unter „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Zertifikat importieren</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>Die Datei enthält kein gültiges Zertifikat.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Möchten Sie das Zertifikat von %1 aus den vertrauenswürdigen Zertifikaten entfernen?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 von %2 belegt</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Unbegrenzt</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Speicher auf Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Speicher auf diesem Computer</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Speicher nach Dateityp</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Speicher nach Ordner</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Von früheren Versionen belegter Speicher</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Von gelöschten Dateien belegter Speicher</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Papierkorb entleeren</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Möchten Sie den Papierkorb entleeren? Die darin enthaltenen Dateien können nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>Der Papierkorb wurde entleert. %1 sind wieder frei.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Wird berechnet ...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Ihr Speicher ist fast voll. Es sind nur noch %1 frei.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Ihr Speicher ist voll</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Neue Dateien können erst wieder hochgeladen werden, wenn Sie Dateien löschen oder vom Administrator mehr Speicher erhalten.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>Der Ordner „%1“ hat sein Kontingent erreicht. Neue Dateien darin können nicht hochgeladen werden.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Das Volume von Corvimo Server ist voll. Bitten Sie den Administrator, Platz zu schaffen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>„%1“ ist größer als der verbleibende Speicher (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Wenig Speicherplatz auf dem Laufwerk</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>Auf dem Laufwerk „%2“ sind nur noch %1 frei. Die Synchronisierung stoppt, wenn das Laufwerk voll ist.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Nicht genügend Speicherplatz</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>Auf dem Laufwerk „%1“ ist nicht genügend Speicherplatz frei. Die Synchronisierung ist angehalten, bis Sie mindestens %2 freigeben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>„%1“ wurde nicht heruntergeladen, weil dafür %2 Speicherplatz benötigt werden.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Sie können Speicherplatz freigeben, indem Sie die selektive Synchronisierung verwenden oder Dateien nur online aufbewahren.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Speichereinstellungen öffnen</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Mindestens so viel Speicherplatz frei halten</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Downloads werden angehalten, wenn weniger Speicherplatz frei ist.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>Das Laufwerk mit dem Ordner „%1“ ist nicht angeschlossen. Schließen Sie es an, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>Das Laufwerk „%1“ ist schreibgeschützt. Änderungen von Corvimo Server können darauf nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Für temporäre Dateien ist nicht genügend Speicherplatz frei. Geben Sie mindestens %1 frei.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Temporäre Dateien</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Temporäre Dateien löschen</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Temporäre Dateien wurden gelöscht (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Erneut prüfen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Größte Dateien</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Löschen oder verschieben Sie Dateien, die Sie nicht mehr benötigen.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>Ihr belegter Speicher ist in diesem Monat um %1 gewachsen.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>Bei diesem Verlauf ist Ihr Speicher am %1 voll.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Mehr Speicher anfordern</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>Ihre Anfrage wurde an den Administrator gesendet.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>Ihre Anfrage wurde noch nicht beantwortet.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>Das Kontingent der Gruppe „%1“ ist aufgebraucht.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 ist bereit.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Softwareupdate</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Nach Updates wird gesucht ...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>Ihre Version ist die neueste.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Version %1 von Corvimo Client ist verfügbar.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Herunterladen und installieren</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Wird heruntergeladen ...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>Das Update ist bereit. Starten Sie Corvimo Client neu, um es zu installieren.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Jetzt neu starten</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>Das Update konnte nicht installiert werden. Ihre aktuelle Version funktioniert weiterhin.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client konnte nicht nach Updates suchen.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Versionshinweise</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Updates automatisch installieren</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 wird initialisiert ...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Ihre Einstellungen werden aus der früheren Version übernommen.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Ihre Einstellungen wurden übernommen. Sie können dort weitermachen, wo Sie aufgehört haben.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>Einige Einstellungen der früheren Version konnten nicht übernommen werden. Überprüfen Sie Ihre Synchronisierungsaufgaben.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>Das Update benötigt %1 Speicherplatz.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Diese Version wird nicht mehr unterstützt. Installieren Sie das Update, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandbreite</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Upload-Geschwindigkeit</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Download-Geschwindigkeit</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Begrenzen auf</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Automatisch anpassen</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client lässt Raum für andere Programme, die das Netzwerk nutzen.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Zeitplan</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Wählen Sie die Stunden, in denen die Begrenzung gilt.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Ganztägig</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Während der Arbeitszeit</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Nachts</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>Nicht synchronisieren</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Volle Geschwindigkeit</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Begrenzte Geschwindigkeit</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Zeitplan leeren</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Geben Sie eine Geschwindigkeit größer als 0 ein.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Geben Sie eine Geschwindigkeit zwischen %1 und %2 ein.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>Der Beginn muss vor dem Ende liegen.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>Der Administrator hat die Geschwindigkeit auf %1 begrenzt.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Gleichzeitig übertragene Dateien</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>Geschwindigkeit im lokalen Netzwerk nicht begrenzen</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Aktuelle Geschwindigkeit</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Durchschnittliche Geschwindigkeit</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Heute übertragen</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>In diesem Monat übertragen</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Wählen Sie, worüber Corvimo Client Sie informieren soll.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Wenn die Synchronisierung abgeschlossen ist</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Wenn eine Datei nicht synchronisiert werden kann</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Wenn jemand ein Element mit mir teilt</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Wenn jemand meine Dateien kommentiert</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Wenn der Speicher fast voll ist</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Wenn eine Sicherung abgeschlossen oder fehlgeschlagen ist</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Wenn ein Update verfügbar ist</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Wenn die Verbindung unterbrochen wird</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Ton abspielen</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Nicht stören</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Ruhezeiten</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Keine Mitteilungen bis %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Bei Präsentationen nicht stören</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Dateinamen in Mitteilungen anzeigen</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Mitteilungen sind in den Systemeinstellungen dieses Computers deaktiviert.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Alle ausblenden</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Als gelesen markieren</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Mitteilungszentrale</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>Sie haben keine Mitteilungen.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Neue Mitteilungen: %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle Dateien sind auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>Die erste Synchronisierung ist abgeschlossen. Dateien auf diesem Computer: %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Viele Dateien wurden gelöscht</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>Aus „%2“ gelöschte Dateien: %1. Stellen Sie sie wieder her, wenn dies nicht beabsichtigt war.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>Innerhalb kurzer Zeit geänderte Dateien: %1. Wenn die Änderungen nicht von Ihnen stammen, halten Sie die Synchronisierung an und prüfen Sie Ihren Computer auf Schadsoftware.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>Der Ordner „%1“ wurde verschoben. Geben Sie an, wo er sich jetzt befindet, damit Corvimo Client ihn findet.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 hat „%2“ kommentiert.</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Synchronisierungsprobleme</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Diese Dateien konnten nicht synchronisiert werden. Corvimo Client versucht es erneut, sobald die Ursache behoben ist.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Probleme: %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Es gibt keine Probleme.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Alle erneut versuchen</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Details kopieren</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Problem melden</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>Die Details wurden in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Fehlercode: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>Die Datei wird von einem anderen Programm verwendet. Schließen Sie sie dort, um sie zu synchronisieren.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>Die Datei ist von %1 gesperrt.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>Die Datei wurde gelöscht, bevor sie synchronisiert werden konnte.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>Die Datei hat sich während des Hochladens geändert. Sie wird erneut hochgeladen.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>Die Datei wurde bei der Übertragung beschädigt. Sie wird erneut übertragen.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Die Datei kann nicht gelesen werden. Überprüfen Sie ihre Berechtigungen.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>In die Datei kann nicht geschrieben werden. Überprüfen Sie ihre Berechtigungen.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>Die Datei überschreitet die Größenbegrenzung von %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>Die Datei ist zu groß für das Dateisystem dieses Laufwerks.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>Die Datei ist verschlüsselt und kann auf diesem Computer nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>Der Virenscanner auf Corvimo Server hat die Datei blockiert.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>Der Virenscanner auf diesem Computer hat die Datei blockiert.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Dateien dieses Typs sind auf Corvimo Server nicht zulässig.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Geräte, Pipes und Sockets können nicht synchronisiert werden.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Symbolische Links, die auf Ziele außerhalb des synchronisierten Ordners verweisen, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>Der Alias „%1“ verweist auf ein Element, das nicht synchronisiert wird.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>Der Name ist zu lang. Verwenden Sie höchstens %1 Zeichen.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>Der Pfad ist zu lang. Kürzen Sie die Namen der enthaltenen Ordner.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>Der Name enthält unzulässige Zeichen: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>Der Name „%1“ ist vom System reserviert.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>Der Name endet mit einem Leerzeichen oder einem Punkt. Benennen Sie das Element um.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>Der Name enthält Zeichen, die nicht gelesen werden können. Benennen Sie das Element um.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>In diesem Ordner ist bereits ein Element namens „%1“ vorhanden.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Geben Sie einen Namen ein.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>Der Ordner „%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>Der Ordner wurde nicht gelöscht, weil er Dateien enthält, die nicht synchronisiert werden.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Der Ordner konnte nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Der Ordner konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>Sie sind nicht berechtigt, diesen Ordner zu ändern.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>Sie sind nicht berechtigt, diesen Ordner zu öffnen.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>Der Ordner enthält mehr als %1 Elemente. Verschieben Sie einige davon in Unterordner.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>Der Ordner ist zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>Der Server ist ausgelastet. Corvimo Client versucht es in einigen Minuten erneut.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server hat einen internen Fehler gemeldet. Bitten Sie den Administrator, das Protokoll zu prüfen.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server nimmt momentan keine Änderungen an.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>Das Volume mit diesem Ordner ist auf Corvimo Server nicht verfügbar.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>Der geteilte Ordner wurde auf Corvimo Server entfernt.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>Die Synchronisierung wurde für diesen geteilten Ordner deaktiviert.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>Der Server hat eine Antwort gesendet, die Corvimo Client nicht versteht.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>Ihre Sitzung ist beendet. Melden Sie sich erneut an.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Die Daten von Corvimo Server wurden zurückgesetzt. Richten Sie Ihre Synchronisierungsaufgaben neu ein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>„%1“ konnte nicht hochgeladen werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>„%1“ konnte nicht hochgeladen werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>„%1“ konnte nicht heruntergeladen werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>„%1“ konnte nicht heruntergeladen werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>„%1“ konnte nicht gelöscht werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>„%1“ konnte nicht umbenannt werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>„%1“ konnte nicht verschoben werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>„%1“ konnte nicht wiederhergestellt werden: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>Das Laufwerk hat einen Lese- oder Schreibfehler gemeldet. Prüfen Sie es auf Fehler.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>Das Laufwerk wurde entfernt, während Dateien geschrieben wurden.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Nicht genügend Arbeitsspeicher. Schließen Sie andere Programme und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>Die Synchronisierungsdatenbank ist beschädigt und wird neu aufgebaut. Dies kann einige Zeit dauern.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>Die Synchronisierungsdatenbank wird von einem anderen Programm verwendet.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Die Synchronisierungsdatenbank wird neu aufgebaut ...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>Die Synchronisierungsdatenbank wurde neu aufgebaut.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Ihre Einstellungen konnten nicht gelesen werden. Es werden die Standardeinstellungen verwendet.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Ihre Einstellungen konnten nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Änderungen in einigen Ordnern werden möglicherweise verspätet erkannt, weil das System zu viele Ordner überwacht.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>Die Uhr dieses Computers weicht um mehr als %1 Minuten von der Uhr des Servers ab. Stellen Sie die Uhr dieses Computers richtig.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Diese Aktion wird von Corvimo Server nicht unterstützt.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>Die Aktion wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>Die Aktion hat zu lange gedauert und wurde gestoppt.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ein unbekannter Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Corvimo Client konnte nicht gestartet werden. Starten Sie diesen Computer neu und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client wird bereits ausgeführt.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Eine Komponente von Corvimo Client fehlt. Installieren Sie den Client erneut.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Die Statussymbole können nicht angezeigt werden, weil andere Programme alle Plätze dafür belegen.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client benötigt Ihre Erlaubnis, diesen Ordner zu lesen. Erteilen Sie sie in den Datenschutzeinstellungen dieses Computers.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Wenn das Problem weiterhin besteht, starten Sie Corvimo Client neu.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Wenn das Problem weiterhin besteht, wenden Sie sich an den Administrator.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Wenn das Problem weiterhin besteht, wenden Sie sich an den Support und geben Sie den Fehlercode an.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Möchten Sie mit den verbleibenden Dateien fortfahren?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Abmelden</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Bei Corvimo Server anmelden</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Passwort anzeigen</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Passwort vergessen?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Angemeldet bleiben</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Anmeldung läuft ...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Angemeldet als %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Sie sind abgemeldet.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Möchten Sie sich abmelden? Die Synchronisierung stoppt, bis Sie sich erneut anmelden.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Mit dem Browser anmelden</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Fahren Sie in Ihrem Browser fort und kehren Sie dann hierher zurück.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>Der Browser konnte nicht geöffnet werden. Öffnen Sie diese Adresse selbst: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domäne</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Geben Sie Ihren Benutzernamen als Domäne\Benutzer ein, wenn Ihr Konto zu einer Domäne gehört.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Konto hinzufügen</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Konto wechseln</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Konto entfernen</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Möchten Sie das Konto %1 von diesem Computer entfernen? Ihre Dateien bleiben auf diesem Computer und auf Corvimo Server erhalten.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Vollständiger Name</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Passwort ändern</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Aktuelles Passwort</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Neues Passwort</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Neues Passwort wiederholen</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>Ihr Passwort wurde geändert.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>Der Administrator verlangt, dass Sie Ihr Passwort ändern.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Tage bis zum Ablauf Ihres Passworts: %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Die beiden Passwörter stimmen nicht überein.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>Das neue Passwort muss sich vom aktuellen unterscheiden.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Geben Sie Ihren Benutzernamen ein.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Geben Sie Ihr Passwort ein.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Der Benutzername oder das Passwort ist falsch.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>Der Benutzername oder das Passwort ist falsch. Verbleibende Versuche: %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Ihr Konto ist deaktiviert. Wenden Sie sich an den Administrator.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Ihr Konto ist abgelaufen. Wenden Sie sich an den Administrator.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Sie sind nicht berechtigt, Corvimo Server zu verwenden. Wenden Sie sich an den Administrator.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>Ihr Passwort ist abgelaufen. Ändern Sie es auf Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>Ihr Benutzerordner ist nicht verfügbar. Bitten Sie den Administrator, den Dienst für Benutzerordner zu aktivieren.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>Das Gastkonto kann nicht zum Synchronisieren verwendet werden.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Alle Lizenzen von Corvimo Server sind in Gebrauch.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Name dieses Computers</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Verknüpfte Geräte</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Möchten Sie die Verknüpfung mit „%1“ aufheben? Das Gerät wird abgemeldet und nicht mehr synchronisiert.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Die Verknüpfung dieses Computers wurde von %1 aufgehoben. Melden Sie sich erneut an, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Auch die Dateien auf dem Gerät löschen</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Anmeldung in zwei Schritten</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Geben Sie den Code ein, den Ihre Authentifizierungs-App anzeigt.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Bestätigungscode</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 Ziffern</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Überprüfen</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Wird überprüft ...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Diesem Gerät vertrauen</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Auf diesem Computer nicht erneut fragen (Anzahl der Tage): %1</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Haben Sie Ihr Telefon verloren?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Code per E-Mail senden</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>Ein Code wurde an %1 gesendet. Er ist 10 Minuten gültig.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Der Code konnte nicht gesendet werden. Bitten Sie den Administrator um Hilfe.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Wiederherstellungscode verwenden</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Geben Sie einen der Wiederherstellungscodes ein, die Sie notiert haben. Jeder Code funktioniert nur einmal.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Verbleibende Wiederherstellungscodes: %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Sicherheitsschlüssel verwenden</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Stecken Sie Ihren Sicherheitsschlüssel ein und berühren Sie ihn.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>Der Sicherheitsschlüssel wurde nicht erkannt. Versuchen Sie es mit einem anderen.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Anmeldung auf Ihrem Telefon bestätigen</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>Auf Ihre Bestätigung wird gewartet ...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Wählen Sie auf Ihrem Telefon die Zahl %1.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>Die Anmeldung wurde auf Ihrem Telefon abgelehnt.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>Die Anfrage ist abgelaufen. Senden Sie sie erneut.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Erneut senden</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Andere Möglichkeit versuchen</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Geben Sie den Code ein.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>Der Code ist falsch. Prüfen Sie, ob die Uhr Ihres Telefons richtig geht.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Dieser Code wurde bereits verwendet. Warten Sie auf den nächsten.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>Zu viele falsche Codes. Warten Sie %1 Min. und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>Der Administrator verlangt die Anmeldung in zwei Schritten. Richten Sie sie zuerst auf Corvimo Server ein.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Anmeldung in zwei Schritten einrichten</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Scannen Sie diesen Code mit Ihrer Authentifizierungs-App.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>Die Anmeldung in zwei Schritten ist aktiviert.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Sicherungsaufgaben</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>Eine Sicherungsaufgabe kopiert Ordner dieses Computers auf Corvimo Server und bewahrt frühere Versionen auf.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Sicherungsaufgabe erstellen</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Sicherungsaufgabe bearbeiten</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Sicherungsaufgabe löschen</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Möchten Sie die Sicherungsaufgabe „%1“ löschen?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Auch die gesicherten Dateien auf Corvimo Server löschen</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Name der Aufgabe</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Es gibt bereits eine Aufgabe mit diesem Namen.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Was gesichert werden soll</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Wählen Sie mindestens einen Ordner für die Sicherung.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>Der Ordner „%1“ ist nicht mehr vorhanden. Er wird nicht in die Sicherung aufgenommen.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Externe Laufwerke</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Speicherort der Sicherung</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Dieser Ordner enthält bereits eine Sicherung eines anderen Computers.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Wann gesichert werden soll</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Bei jeder Änderung einer Datei</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>Nach Zeitplan</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Nur wenn ich sie starte</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Monatlich</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Stündlich</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Um %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>An diesen Tagen</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>Wenn ein externes Laufwerk angeschlossen wird</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Diesen Computer für die Sicherung aufwecken</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Jetzt sichern</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Sicherung stoppen</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Möchten Sie die Sicherung stoppen? Bereits gesicherte Dateien bleiben erhalten.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sicherung läuft ...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Sicherung läuft, Dateien: %1 von %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Die Sicherung ist abgeschlossen.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Letzte Sicherung: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Nächste Sicherung: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Noch nicht gesichert</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>Die Sicherung ist abgeschlossen. Dateien, die nicht gelesen werden konnten: %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>Die Sicherung ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>Die für %1 geplante Sicherung wurde verpasst. Sie startet jetzt.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Tage seit der letzten Sicherung dieses Computers: %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Wie lange Versionen aufbewahrt werden</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Alle Versionen behalten</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Anzahl der aufbewahrten Versionen: %1</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Aufbewahrungsdauer der Versionen in Tagen: %1</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Mit zunehmendem Alter weniger Versionen behalten</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Sicherung verschlüsseln</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Verschlüsselungsschlüssel</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Bewahren Sie den Schlüssel an einem sicheren Ort auf. Ohne ihn kann die Sicherung nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>Der Verschlüsselungsschlüssel ist falsch.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Dateien wiederherstellen</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Wählen Sie die wiederherzustellenden Dateien und wo sie abgelegt werden sollen.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Am ursprünglichen Ort wiederherstellen</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Vorhandene Dateien ersetzen</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>Wiederherstellung läuft, Dateien: %1 von %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Alle Dateien wurden wiederhergestellt.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>Wiederhergestellte Dateien: %1. Dateien, die nicht wiederhergestellt werden konnten: %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Sicherung prüfen</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>Die Sicherung ist unversehrt.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Beschädigte Dateien in der Sicherung: %1. Sie werden erneut gesichert.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
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
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>Version %1 (Build %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Serverversion</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Lizenzvertrag</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Datenschutzerklärung</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Software von Drittanbietern</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Support kontaktieren</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Feedback senden</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Vielen Dank, dass Sie Corvimo Client verwenden.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Detailgrad</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>Ausführliche Protokolle verlangsamen den Client. Kehren Sie zum normalen Detailgrad zurück, wenn Sie fertig sind.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Protokollordner öffnen</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Protokoll speichern</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>Das Protokoll wurde unter „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Das Protokoll konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Protokoll leeren</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Möchten Sie das Protokoll leeren?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Protokoll an den Support senden</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Das Protokoll wird gesendet ...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>Das Protokoll wurde gesendet. Ihre Berichtsnummer lautet %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Das Protokoll konnte nicht gesendet werden. Speichern Sie es und senden Sie es per E-Mail.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>Das Protokoll enthält Namen von Dateien und Ordnern, aber nicht deren Inhalt.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Anonyme Nutzungsdaten senden, um Corvimo Client zu verbessern</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Corvimo Client starten, wenn ich mich an diesem Computer anmelde</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Statussymbole auf Dateien und Ordnern anzeigen</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Corvimo Client im Kontextmenü anzeigen</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Synchronisierte Ordner in der Seitenleiste anzeigen</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Symbol in der Menüleiste anzeigen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>Die Sprache wird geändert, wenn Sie Corvimo Client neu starten.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Textgröße</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>Ruhezustand verhindern, während Dateien synchronisiert werden</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Auf Corvimo Server gelöschte Dateien in den Papierkorb verschieben</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Warnen, bevor viele Dateien gelöscht werden</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Möchten Sie alle Einstellungen zurücksetzen? Ihre Synchronisierungsaufgaben bleiben unverändert.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Diese Einstellung wird vom Administrator verwaltet.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Ihre Einstellungen wurden gespeichert.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Möchten Sie Ihre Änderungen verwerfen?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Dateien bei Bedarf</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Alle Dateien werden auf diesem Computer aufgelistet, aber eine Datei wird erst heruntergeladen, wenn Sie sie öffnen.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>„Dateien bei Bedarf“ aktivieren</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Möchten Sie „Dateien bei Bedarf“ für „%1“ aktivieren? Bereits auf diesem Computer vorhandene Dateien bleiben hier.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>„Dateien bei Bedarf“ ist aktiviert.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>„Dateien bei Bedarf“ deaktivieren</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Möchten Sie „Dateien bei Bedarf“ deaktivieren? Alle Dateien dieses Ordners werden heruntergeladen (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Zum Herunterladen aller Dateien ist nicht genügend Speicherplatz frei. Es werden weitere %1 benötigt.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Nur online</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Immer auf diesem Computer</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Teilweise auf diesem Computer</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>Dateien, die nur noch online verfügbar sein werden: %1. Möchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>%1 Speicherplatz wurden freigegeben.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Noch nicht hochgeladene Dateien bleiben auf diesem Computer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>„%1“ ist geöffnet und bleibt auf diesem Computer.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Speicherplatz automatisch freigeben</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Dateien nur online behalten, wenn sie so viele Tage nicht geöffnet wurden: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Nur bei wenig Speicherplatz</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 lädt „%2“ herunter.</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Downloads durch dieses Programm blockieren</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Ein Programm öffnet viele Dateien, die nur online verfügbar sind. Möchten Sie dies erlauben?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>„%1“ kann nicht geöffnet werden, weil die Datei nur online verfügbar und Corvimo Client nicht verbunden ist.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Starten Sie Corvimo Client, um Dateien zu öffnen, die nur online verfügbar sind.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>„Dateien bei Bedarf“ wird von dieser Systemversion nicht unterstützt.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>„Dateien bei Bedarf“ wird auf diesem Laufwerk nicht unterstützt.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Erlauben Sie in den Systemeinstellungen die Dateianbieter-Erweiterung, um „Dateien bei Bedarf“ zu verwenden.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Vorschau von Dateien anzeigen, die nur online verfügbar sind</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>Der Inhalt von Dateien, die nur online verfügbar sind, kann auf diesem Computer nicht durchsucht werden.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Blockieren</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Willkommen bei Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Richten Sie Corvimo Client in wenigen Schritten ein, um Ihre Dateien auf jedem Computer zu haben.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Einrichtung starten</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Mit Ihrem Server verbinden</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Geben Sie die Adresse von Corvimo Server ein und melden Sie sich mit Ihrem Konto an.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>Was möchten Sie tun?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Dateien synchronisieren</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Dateien auf diesem Computer und auf Corvimo Server auf demselben Stand halten.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Diesen Computer sichern</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Dateien auf Corvimo Server kopieren, um sie vor Verlust zu schützen.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Ihre Dateien werden in „%1“ synchronisiert.</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Teamordner</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Wählen Sie die Teamordner, die Sie auf diesem Computer haben möchten.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>Sie sind in keinem Teamordner Mitglied.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Synchronisierungsoptionen</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Alle Dateien synchronisieren</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client benötigt Ihre Erlaubnis, Mitteilungen anzuzeigen und Ihre Ordner zu lesen.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Überprüfen Sie Ihre Auswahl, bevor Sie beginnen.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>Herunterzuladende Dateien: %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Alles ist eingerichtet</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client synchronisiert jetzt Ihre Dateien. Sie finden das Programm in der Menüleiste.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Rundgang starten</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Klicken Sie auf das Symbol in der Menüleiste, um zu sehen, was gerade geschieht.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Klicken Sie mit der rechten Maustaste auf eine Datei, um sie zu teilen oder ihre Versionen anzuzeigen.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Die Symbole auf Ihren Dateien zeigen, ob sie synchronisiert sind.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Möchten Sie die Einrichtung abbrechen? Sie können sie später fortsetzen.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Es wurden Einstellungen einer früheren Installation gefunden. Möchten Sie diese verwenden?</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 Byte</translation>
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
        <translation>%1 KB/s</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 MB/s</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1 Prozent</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 Ordner</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 Ordner</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Elemente: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>Dateien: %1, Ordner: %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>Heute um %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>Gestern um %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Morgen</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 um %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>Vor einer Minute</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Vor %1 Minuten</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>Vor einer Stunde</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Vor %1 Stunden</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Vor %1 Tagen</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Letzte Woche</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Letzter Monat</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 Sek.</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 Min.</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 Std.</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 Tg.</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>Noch %1 Sek.</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>Noch %1 Min.</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>Noch %1 Std.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Weitere Informationen</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Bitte warten ...</translation>
    </message>
</context>
</TS>
