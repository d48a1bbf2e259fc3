<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Törölve</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Leválasztás</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Fájl hozzáadva: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Mappa módosítása</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Egyesítés</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Hozzáadva</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Módosítva</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Átnevezve</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Áthelyezve</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Visszaállítva</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>Fájl módosítva: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Fájl törölve: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Fájl átnevezve: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Mappa hozzáadva: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Mappa törölve: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nemrég módosult fájlok</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Még egyetlen fájl sem módosult.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Összes módosítás megjelenítése</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>A Corvimo Client megnyitása</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Megnyitás webböngészőben</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Szinkronizálás szüneteltetése</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Szüneteltetés egy órára</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Szüneteltetés holnapig</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Szinkronizálás folytatása</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Értesítések</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>A Corvimo Client névjegye</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>A fájlok nem szinkronizálódnak, amíg újra el nem indítja a Corvimo Client alkalmazást. Biztosan kilép?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Naprakész</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Szinkronizálás...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Szinkronizálás, %1 fájl van hátra</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>Feltöltés: %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Letöltés: %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Módosítások keresése...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>Szüneteltetve eddig: %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nincs kapcsolat</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kapcsolódás...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Várakozás</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>Beavatkozás szükséges</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Néhány fájlt nem sikerült szinkronizálni.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Nincs beállítva szinkronizálási feladat.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>Feltöltés: %1, letöltés: %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Megnyitás</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Megnyitás ezzel...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Megjelenítés a mappában</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Verzióelőzmények</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Hivatkozás lekérése</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Hivatkozás másolása</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Megosztás...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Hivatkozás küldése e-mailben</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Szinkronizálás most</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Mappa szinkronizálása</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Mappa szinkronizálásának leállítása</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Maradjon mindig ezen a számítógépen</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Hely felszabadítása</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Fájl zárolása</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Fájl zárolásának feloldása</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Visszaállítás</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Átnevezés</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Frissítés</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Tulajdonságok</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Útvonal másolása</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Összes kijelölése</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Új mappa</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Kivágás</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Másolás</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Beillesztés</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Visszavonás</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ismétlés</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Az ilyen nevű fájlok kihagyása a szinkronizálásból</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Az ilyen típusú fájlok kihagyása a szinkronizálásból</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Zárolta: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>„%1” zárolva van. Mások olvashatják, de nem módosíthatják.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>„%1” zárolása fel van oldva.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>A hivatkozás a vágólapra került.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>Az útvonal a vágólapra került.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>%1 elem kijelölve</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Ez az elem nem szinkronizált mappában van.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Szinkronizálási feladatok</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Áttekintés</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Szinkronizálás</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Biztonsági mentés</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Legutóbbi tevékenység</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Létrehozás</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Szinkronizálási feladat létrehozása</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Összes szüneteltetése</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Összes folytatása</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>Nincs találat erre: „%1”.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Még nincs szinkronizálási feladat. Hozzon létre egyet, hogy egy mappa ezen a számítógépen és egy mappa a Corvimo Server kiszolgálón mindig megegyezzen.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Mappa ezen a számítógépen</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Mappa a Corvimo Server kiszolgálón</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Módosítás dátuma</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Típus</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Tulajdonos</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Fiók</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Utolsó szinkronizálás</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Leállítva</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>A mappa nem található</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Csak olvasható</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Szinkronizálási feladat törlése</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Törli a következő szinkronizálási feladatot: „%1”? A fájlok megmaradnak ezen a számítógépen és a Corvimo Server kiszolgálón.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Törli a kijelölt %1 szinkronizálási feladatot? A fájlok megmaradnak ezen a számítógépen és a Corvimo Server kiszolgálón.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>A szinkronizálási feladat törölve.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>A szinkronizálás szünetel. A módosítások a folytatáskor szinkronizálódnak.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Lista törlése</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Minden tevékenység</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Csak hibák</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>Feltöltve: %1.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>Letöltve: %1.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>Törölve erről a számítógépről: %1.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>Törölve a Corvimo Server kiszolgálóról: %1.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>Átnevezve: %1, új név: %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>Áthelyezve: %1, új hely: %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>%1 fájl módosult, a módosító: %2.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Szinkronizálandó mappák kiválasztása</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Válasszon egy mappát a Corvimo Server kiszolgálón és egy mappát ezen a számítógépen. A Corvimo Client gondoskodik róla, hogy a kettő megegyezzen.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Mappa kiválasztása a kiszolgálón</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Helyi mappa kiválasztása</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Módosítás</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Tallózás...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Az új mappa neve</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>Nem sikerült létrehozni a következő mappát: „%1”. Válasszon másik nevet, vagy ellenőrizze a jogosultságát.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>„%1” nevű üres mappa létrehozása itt</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Szinkronizálás iránya</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Kétirányú szinkronizálás</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Csak a módosítások feltöltése</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Csak a módosítások letöltése</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>Az egyik oldal módosításai átmásolódnak a másikra.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Az ezen a számítógépen végzett módosítások feltöltődnek. A Corvimo Server kiszolgálón végzett módosítások nem töltődnek le.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>A Corvimo Server kiszolgálón végzett módosítások letöltődnek. Az ezen a számítógépen végzett módosítások nem töltődnek fel.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Fájlok megtartása ezen a számítógépen, ha a Corvimo Server kiszolgálón törlik őket</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Fájlok megtartása a Corvimo Server kiszolgálón, ha ezen a számítógépen törlik őket</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Mappák egyesítése</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Már mindkét mappában vannak fájlok. Válassza ki, mi történjen velük.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>Már létezik „%1” nevű mappa. Egyesíti a Corvimo Server kiszolgálón lévő mappával?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Mindkét mappa egyesítése és minden fájl megtartása</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Az ezen a számítógépen lévő fájlok használata</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>A Corvimo Server kiszolgálón lévő fájlok használata</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Másik mappa választása</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Az eltérő fájlok két példányban maradnak meg.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>A Corvimo Server kiszolgálónak azok a fájljai, amelyek ezen a számítógépen nincsenek meg, törlődnek.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Ennek a számítógépnek azok a fájljai, amelyek a Corvimo Server kiszolgálón nincsenek meg, a Kukába kerülnek.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Az azonos nevű fájlok lecserélődnek. Ez nem vonható vissza.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>A két mappa összehasonlítása...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>%1/%2 fájl összehasonlítva</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>A két mappa most megegyezik.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Ez a mappa már része egy szinkronizálási feladatnak. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Ez a mappa egy már szinkronizált mappán belül van. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Ez a mappa egy már szinkronizált mappát tartalmaz. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>A rendszermappák nem szinkronizálhatók. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>Egy teljes lemez nem szinkronizálható. Válasszon egy mappát a lemezen.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>A cserélhető lemezeken lévő mappák nem szinkronizálhatók.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>A hálózati mappák, például ez: \\server\share, nem szinkronizálhatók. Válasszon egy mappát ezen a számítógépen.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>Nincs írási jogosultsága ehhez a mappához. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Ez a mappa titkosítva és zárolva van. Előbb oldja fel a zárolását a Corvimo Server kiszolgálón.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>A mappa nem található. Lehet, hogy áthelyezték vagy törölték.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>Ennek a lemeznek a fájlrendszere nem támogatott. Használjon támogatott fájlrendszerű lemezt.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Elérte a szinkronizálási feladatok maximális számát (%1). Töröljön egy feladatot, amelyre már nincs szüksége.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Szelektív szinkronizálás</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Válassza ki, mi szinkronizálódjon erre a számítógépre. Azok a mappák, amelyeknek törli a jelölését, lekerülnek erről a számítógépről, de a Corvimo Server kiszolgálón megmaradnak.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappák</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Fájlszűrő</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Kijelölés megszüntetése</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Új mappák automatikus szinkronizálása</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>Nem sikerült betölteni a mappák listáját. Ellenőrizze a kapcsolatot, és próbálja újra.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Újra</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>%1 mappa lekerül erről a számítógépről. A Corvimo Server kiszolgálón megmaradnak.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Eltávolítja a mappákat erről a számítógépről?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Néhány fájl ezekben a mappákban még nincs feltöltve, ezért elveszne. Előbb szinkronizálja őket.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Kijelölve: %1 / %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Ennél nagyobb fájlok kihagyása a szinkronizálásból</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Az ilyen kiterjesztésű fájlok kihagyása a szinkronizálásból</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Az ezekkel a nevekkel rendelkező fájlok kihagyása a szinkronizálásból</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Kiterjesztés hozzáadása</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Név hozzáadása</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Ponttal kezdődő nevű fájlok és mappák szinkronizálása</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Az elterjedt programok ideiglenes fájljai soha nem szinkronizálódnak.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Alaphelyzetbe állítás</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Visszatér az alapértelmezett szűrőhöz?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Adjon meg egy kiterjesztést, például: „iso”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>Már szerepel a listában: „%1”.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>A név nem tartalmazhatja a következő karaktereket: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Adjon meg egy méretet %1 és %2 között.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>A szűrő miatt nem szinkronizált</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>A választása mentve. A Corvimo Client most alkalmazza.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Dokumentumfájlok</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Képfájlok</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Videofájlok</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Zenefájlok</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archívumok</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Egyéb fájlok</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>„%1” verziói</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Jelenlegi verzió</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Korábbi verzió</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verzió</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Módosította</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Eszköz</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Letöltés</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Előnézet</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Bezárás</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Ennek a fájlnak nincsenek korábbi verziói.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Válasszon egy fájlt a verziói megtekintéséhez.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Verzió visszaállítása</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Lecseréli a jelenlegi verziót a következő időpontból származó verzióra: %1?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>A jelenlegi verzió megmarad az előzményekben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>„%1” visszaállítva a következő időpontból származó verzióra: %2.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>Nem sikerült visszaállítani a verziót. Próbálja újra később.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Visszaállítás másolatként</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Verzió mentése másként</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>A verzió mentve ide: „%1”.</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Törli ezt a verziót? Nem állítható vissza.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>Nem sikerült törölni a verziót.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Automatikus törlés ellen védett</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>A Corvimo Server fájlonként legfeljebb %1 verziót őriz meg.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>A verzióelőzmények ki vannak kapcsolva ennél a mappánál. Kérje meg a rendszergazdát, hogy kapcsolja be őket.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Ennél a fájltípusnál nem őrződnek meg verziók.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Törölt fájlok</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Törölt fájlok megjelenítése</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Törlés ideje: %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Visszaállítja a kijelölt %1 elemet?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>%1 elem visszaállítva.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Nem találhatók törölt fájlok.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Visszatérés egy adott időponthoz</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Válasszon dátumot és időpontot</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Összehasonlítás</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Megosztás</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>„%1” megosztása</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Személyek</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Hivatkozás</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Hívjon meg másokat, vagy hozzon létre hivatkozást ehhez az elemhez.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Személyek meghívása</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Adjon meg egy nevet vagy e-mail-címet</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Meghívó küldése</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>A meghívó elküldve, címzett: %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>Nem sikerült elküldeni a meghívót. Ellenőrizze az e-mail-címet.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Üzenet (nem kötelező)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Mentés</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Jogosultságok</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Megtekintheti</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Szerkesztheti</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Kezelheti</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Csak feltölthet</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Nincs hozzáférés</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>%1 jogosultságai módosultak.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>Nincs jogosultsága megosztani ezt az elemet. Forduljon az elem tulajdonosához.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Velem megosztva</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Általam megosztva</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Megosztva %1 személlyel</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Ez az elem nincs megosztva.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Megosztott mappa elhagyása</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Elhagyja a következő megosztott mappát: „%1”? A mappa lekerül erről a számítógépről.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>„%1” már nincs megosztva Önnel.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 megosztotta Önnel a következőt: „%2”.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Csoport</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Mindenki ezen a kiszolgálón</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Hivatkozás beállításai</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Hivatkozás létrehozása</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Hivatkozás létrehozása folyamatban...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Hivatkozás törlése</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Törli ezt a hivatkozást? Akiknek megvan, többé nem tudják megnyitni az elemet.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Bárki, akinek megvan a hivatkozás</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Csak fiókkal rendelkező személyek</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Védelem jelszóval</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>A jelszónak legalább %1 karakterből kell állnia.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Adjon meg egy jelszót a hivatkozáshoz.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Hivatkozás érvényes eddig</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>Soha nem jár le</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Válasszon egy jövőbeli dátumot.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Ez a hivatkozás lejárt.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>Engedélyezett letöltések száma</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>%1 letöltés van hátra</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Letöltés engedélyezése</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Feltöltés engedélyezése</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>Nem sikerült létrehozni a hivatkozást. Próbálja újra később.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>A rendszergazda kikapcsolta a hivatkozásokat ennél a mappánál.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Fájlkérés</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>A hivatkozás birtokosai fájlokat tölthetnek fel ebbe a mappába anélkül, hogy látnák a mappa tartalmát.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>QR-kód megjelenítése</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Ütközések</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>„%1” egyszerre két helyen módosult.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>%1 fájl egyszerre két helyen módosult.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Válassza ki, melyik verzió maradjon meg. A másik ütköző másolatként lesz mentve.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Az ezen a számítógépen lévő verzió megtartása</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>A Corvimo Server kiszolgálón lévő verzió megtartása</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Mindkét verzió megtartása</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Az újabb verzió megtartása</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Mindig kérdezzen rá</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Legyen így minden ütközésnél</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>ütköző másolat, %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Ezen a számítógépen</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>A Corvimo Server kiszolgálón</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Módosította: %1, %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Ha egy fájl két helyen módosult</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Csak kis- és nagybetűkben eltérő nevek</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>„%1” és „%2” csak kis- és nagybetűkben tér el. Nevezze át az egyiket.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Nincsenek ütközések.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>Az ütközés feloldva.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Az ütközést nem sikerült feloldani, mert a fájl meg van nyitva. Zárja be, és próbálja újra.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Feloldás</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Döntés később</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Mindkét fájl megnyitása</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Kihagyás</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Ön törölte a következőt: „%1”, de az a Corvimo Server kiszolgálón módosult. A módosított fájl megmaradt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>„%1” törölve lett a Corvimo Server kiszolgálón, de Ön módosította. Az Ön fájlja megmaradt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>„%1” az egyik oldalon fájl, a másikon mappa. Nevezze át az egyiket.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Ütköző másolatok</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Ütköző másolatok törlése</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Törli az ütköző másolatokat (%1 db)? Nem állíthatók vissza.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>„%1” egy másik programban van megnyitva, és a bezárásakor szinkronizálódik.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Kapcsolat</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Kiszolgáló címe</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Állomásnév, IP-cím vagy Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Kapcsolat titkosítása</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Titkosítás nélkül mások a hálózaton elolvashatják a fájljait és a jelszavát.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Kapcsolódás</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Kapcsolat bontása</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Újrakapcsolódás</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Kapcsolat ellenőrzése</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Kapcsolat ellenőrzése folyamatban...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>A kapcsolat működik.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>A kapcsolat nem működik. Ellenőrizze a címet és a portot.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Kapcsolódva</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Kapcsolódva ehhez: %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>Megszakadt a kapcsolat a következővel: %1. A Corvimo Client %2 másodperc múlva újra próbálkozik.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>Helyreállt a kapcsolat a következővel: %1.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Várakozás hálózati kapcsolatra</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Ne szinkronizáljon forgalomkorlátos hálózaton</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>A szinkronizálás szünetel, mert ez a hálózat forgalomkorlátos.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Kapcsolódva a helyi hálózaton keresztül</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Kapcsolódva az interneten keresztül</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Kapcsolódva közvetítő kiszolgálón keresztül</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>A közvetítő kiszolgáló lassabb a közvetlen kapcsolatnál.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Kiszolgálók keresése ezen a hálózaton</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Kiszolgálók keresése...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>Nem található kiszolgáló ezen a hálózaton. Adja meg kézzel a kiszolgáló címét.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>%1 kiszolgáló található</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>A következő kiszolgáló nem található: „%1”. Ellenőrizze a cím írásmódját.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>A kiszolgáló elutasította a kapcsolatot. Győződjön meg arról, hogy a Corvimo Server fut.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>A kiszolgáló nem válaszolt időben. Próbálja újra később.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Ez a számítógép nem kapcsolódik hálózathoz.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Adjon meg egy portot 1 és 65535 között.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Adja meg a kiszolgáló címét.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Nem létezik ilyen Corvimo ID: „%1”.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>Az ehhez a Corvimo ID azonosítóhoz tartozó kiszolgáló offline. Győződjön meg arról, hogy be van kapcsolva.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>A Corvimo Server nincs telepítve vagy nem fut ezen a kiszolgálón.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>A kiszolgáló karbantartás alatt áll. A szinkronizálás folytatódik, amint újra elérhető.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>A Corvimo Server túl régi ehhez a klienshez. Kérje meg a rendszergazdát, hogy frissítse legalább a következő verzióra: %1.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Ez a kliens túl régi a Corvimo Server kiszolgálóhoz. Frissítse legalább a következő verzióra: %1.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>Túl sok kliens kapcsolódik a kiszolgálóhoz. Próbálja újra később.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Ez a számítógép túl sok sikertelen kísérlet miatt le van tiltva. Kérje meg a rendszergazdát, hogy oldja fel a letiltást.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>Lehet, hogy egy tűzfal blokkolja a Corvimo Client alkalmazást. Engedélyezze, hogy a Corvimo Client használja a következő portot: %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>Nem sikerült biztonságos kapcsolatot létesíteni: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Ismeretlen hiba történt (kód: %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Kapcsolat szerkesztése</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Kapcsolat eltávolítása</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Eltávolítja a következő kapcsolatot: %1? A kapcsolat szinkronizálási feladatai törlődnek, de a fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>%1 fájl még nincs feltöltve.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Speciális</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Utolsó kapcsolódás: %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Használjon proxykiszolgálót, ha a hálózata csak azon keresztül éri el az internetet.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Ne használjon proxyt</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>A számítógép proxybeállításainak használata</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Proxy beállítása kézzel</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Proxy típusa</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxy címe</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>A proxyhoz felhasználónév és jelszó szükséges</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Ne használja a proxyt helyi címekhez</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Ne használja a proxyt ezekhez a címekhez</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Proxy ellenőrzése</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>A proxy működik.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Bejelentkezés a proxyra</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>A következő proxy felhasználónevet és jelszót kér: %1.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>A proxy nem fogadta el a felhasználónevet vagy a jelszót.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>A következő proxy nem érhető el: %1. Ellenőrizze a proxy címét és portját.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>A proxy nem engedélyezi a kapcsolódást ehhez: %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Nem sikerült beolvasni a számítógép proxybeállításait.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Adja meg a proxy címét.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Tanúsítvány</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>A tanúsítvány nem megbízható</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>%1 tanúsítványát nem ismert hitelesítésszolgáltató állította ki. Lehet, hogy valaki az Ön kiszolgálójának adja ki magát.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>A kiszolgáló olyan tanúsítványt használ, amelyet saját maga írt alá.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>A tanúsítvány lejárt: %1.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>A tanúsítvány csak ettől érvényes: %1. Ellenőrizze a számítógép óráját.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>A tanúsítványt a következő részére állították ki: %1, nem pedig a következő részére: %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>A tanúsítványt visszavonta a kiállító hitelesítésszolgáltató.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>A tanúsítvány megváltozott</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>%1 tanúsítványa nem egyezik a korábban használttal. Kérdezze meg a rendszergazdát, hogy megújították-e.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>A tanúsítvány olyan algoritmust használ, amely már nem számít biztonságosnak.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Megbízom ebben a tanúsítványban</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Mindig megbízom ebben a tanúsítványban</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Csak most bízom meg benne</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Ne kapcsolódjon</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Tanúsítvány megtekintése</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Tulajdonos</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Kiállító</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Érvényesség kezdete</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Érvényesség vége</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Sorozatszám</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Ujjlenyomat</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Aláírási algoritmus</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Kulcshossz</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Tanúsítvány exportálása</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>A tanúsítvány mentve ide: „%1”.</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Tanúsítvány importálása</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>A fájl nem tartalmaz érvényes tanúsítványt.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Eltávolítja %1 tanúsítványát a megbízható tanúsítványok közül?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Tárhely</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 / %2 felhasználva</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 szabad</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Korlátlan</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Tárhely a Corvimo Server kiszolgálón</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Tárhely ezen a számítógépen</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Tárhely fájltípus szerint</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Tárhely mappa szerint</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>A korábbi verziók által használt tárhely</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>A törölt fájlok által használt tárhely</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Kuka ürítése</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Kiüríti a Kukát? A benne lévő fájlok nem állíthatók vissza.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>A Kuka kiürült. Felszabadult hely: %1.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Számítás...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>A tárhelye majdnem megtelt. Már csak %1 maradt.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>A tárhelye megtelt</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Nem tölthetők fel új fájlok, amíg nem töröl néhány fájlt, vagy nem kér több tárhelyet a rendszergazdától.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>A következő mappa elérte a kvótáját: „%1”. A benne lévő új fájlok nem tölthetők fel.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>A Corvimo Server kötete megtelt. Kérje meg a rendszergazdát, hogy szabadítson fel helyet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>„%1” nagyobb, mint a fennmaradó tárhely (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Kevés a lemezterület</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>Már csak %1 maradt a következő lemezen: „%2”. Ha a lemez megtelik, a szinkronizálás leáll.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Nincs elég lemezterület</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>Nincs elég hely a következő lemezen: „%1”. A szinkronizálás szünetel, amíg fel nem szabadít legalább ennyit: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>„%1” nem töltődött le, mert %2 lemezterületre van szüksége.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Szelektív szinkronizálással vagy a fájlok csak online tárolásával helyet szabadíthat fel.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Tárhelybeállítások megnyitása</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Ennyi szabad lemezterület mindenképp maradjon</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Ha ennél kevesebb hely marad, a letöltés szünetel.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>A következő mappát tartalmazó lemez nincs csatlakoztatva: „%1”. Csatlakoztassa a szinkronizálás folytatásához.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>A következő lemez csak olvasható: „%1”. A Corvimo Server kiszolgálón végzett módosítások nem menthetők rá.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Nincs elég hely az ideiglenes fájloknak. Szabadítson fel legalább ennyit: %1.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Ideiglenes fájlok</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Ideiglenes fájlok törlése</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Ideiglenes fájlok törölve (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Ellenőrzés újra</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Mellőzés</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Felhasználva</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Legnagyobb fájlok</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Törölje vagy helyezze át azokat a fájlokat, amelyekre már nincs szüksége.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>A felhasznált tárhely mérete ebben a hónapban ennyivel nőtt: %1.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>Ilyen ütemben a tárhelye ekkorra telik meg: %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Több tárhely kérése</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>A kérése elküldve a rendszergazdának.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>A kérése válaszra vár.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>A következő csoport kvótája kimerült: „%1”.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>A %1 készen áll.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Szoftverfrissítés</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Frissítések keresése</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Frissítések keresése folyamatban...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>A legújabb verziót használja.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Elérhető a Corvimo Client %1 verziója.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Letöltés és telepítés</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Emlékeztessen később</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Verzió kihagyása</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>A frissítés készen áll. A telepítéshez indítsa újra a Corvimo Client alkalmazást.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Újraindítás most</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>Nem sikerült telepíteni a frissítést. A jelenlegi verzió továbbra is működik.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>A Corvimo Client nem tudott frissítéseket keresni.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Kiadási megjegyzések</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Frissítések automatikus telepítése</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>A %1 inicializálása folyamatban...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>A korábbi verzió beállításainak átvétele folyamatban van.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>A beállításai átvétele befejeződött. Ott folytathatja, ahol abbahagyta.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>A korábbi verzió néhány beállítását nem sikerült átvenni. Ellenőrizze a szinkronizálási feladatait.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>A frissítéshez %1 lemezterület szükséges.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Ez a verzió már nem támogatott. A szinkronizálás folytatásához telepítse a frissítést.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Sávszélesség</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Feltöltési sebesség</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Letöltési sebesség</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Korlátozás erre</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Automatikus beállítás</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>A Corvimo Client helyet hagy a hálózatot használó többi programnak.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Ütemezés</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Válassza ki, mely órákban érvényes a korlátozás.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Egész nap</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Munkaidő</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Éjszaka</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Kezdete</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Vége</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>Ne szinkronizáljon</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Teljes sebesség</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Korlátozott sebesség</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Ütemezés törlése</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Adjon meg 0-nál nagyobb sebességet.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Adjon meg egy sebességet %1 és %2 között.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>A kezdetnek korábbinak kell lennie, mint a végnek.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>A rendszergazda által beállított sebességkorlát: %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Egyszerre átvitt fájlok száma</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>Ne korlátozza a sebességet a helyi hálózaton</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Jelenlegi sebesség</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Átlagos sebesség</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Ma átvitt mennyiség</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Ebben a hónapban átvitt mennyiség</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Válassza ki, miről értesítse a Corvimo Client.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Ha a szinkronizálás befejeződött</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Ha egy fájl nem szinkronizálható</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Ha valaki megoszt velem egy elemet</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Ha valaki megjegyzést fűz a fájljaimhoz</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Ha a tárhely majdnem megtelt</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Ha egy biztonsági mentés befejeződött vagy sikertelen</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Ha frissítés érhető el</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Ha megszakad a kapcsolat</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Hangjelzés lejátszása</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Ne zavarjanak</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Csendes időszak</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Értesítések elnémítva eddig: %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Ne zavarjon bemutatók közben</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Fájlnevek megjelenítése az értesítésekben</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Az értesítések ki vannak kapcsolva a számítógép rendszerbeállításaiban.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Rendszerbeállítások megnyitása</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Elvetés</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Összes elvetése</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Megtekintés</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Megjelölés olvasottként</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Értesítési központ</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>Nincsenek értesítései.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>%1 új értesítés</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Minden fájl naprakész.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>Az első szinkronizálás befejeződött. Jelenleg %1 fájl van ezen a számítógépen.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Sok fájl törlődött</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>%1 fájl törlődött innen: „%2”. Ha ez nem volt szándékos, állítsa vissza őket.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>%1 fájl módosult rövid időn belül. Ha nem Ön tette, szüneteltesse a szinkronizálást, és ellenőrizze, hogy nincs-e kártevő a számítógépén.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>A következő mappát áthelyezték: „%1”. Adja meg a Corvimo Client számára, hol van most.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 megjegyzést fűzött ehhez: „%2”.</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Szinkronizálási problémák</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Ezeket a fájlokat nem sikerült szinkronizálni. A Corvimo Client újra próbálkozik, amint az ok megszűnt.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>%1 probléma</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Nincsenek problémák.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Ok</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Időpont</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Összes újrapróbálása</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Részletek</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Részletek másolása</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Probléma bejelentése</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>A részletek a vágólapra kerültek.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Hibakód: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>A fájlt egy másik program használja. A fájl szinkronizálásához zárja be abban a programban.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>A fájlt zárolta: %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>A fájl törlődött, mielőtt szinkronizálni lehetett volna.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>A fájl feltöltés közben módosult. Újra feltöltődik.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>A fájl átvitel közben megsérült. Újra átvitelre kerül.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>A fájl nem olvasható. Ellenőrizze a fájl jogosultságait.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>A fájl nem írható. Ellenőrizze a fájl jogosultságait.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>A fájl nagyobb a megengedettnél (%1).</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>A fájl túl nagy ennek a lemeznek a fájlrendszeréhez.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>A fájl titkosított, és nem nyitható meg ezen a számítógépen.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>A Corvimo Server víruskeresője letiltotta a fájlt.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>A számítógép víruskeresője letiltotta a fájlt.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Az ilyen típusú fájlok nem engedélyezettek a Corvimo Server kiszolgálón.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Az eszközök, csővezetékek és szoftvercsatornák nem szinkronizálhatók.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>A szinkronizált mappán kívülre mutató szimbolikus hivatkozások nem szinkronizálódnak.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>A következő alias nem szinkronizált elemre mutat: „%1”.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>A név túl hosszú. Legfeljebb %1 karaktert használjon.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>Az útvonal túl hosszú. Rövidítse le a benne szereplő mappák nevét.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>A név nem engedélyezett karaktereket tartalmaz: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>A következő nevet a rendszer fenntartja: „%1”.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>A név szóközre vagy pontra végződik. Nevezze át az elemet.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>A név olvashatatlan karaktereket tartalmaz. Nevezze át az elemet.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Már létezik „%1” nevű elem ebben a mappában.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Adjon meg egy nevet.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>A következő mappa nem található: „%1”.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>A mappa nem törlődött, mert nem szinkronizált fájlokat tartalmaz.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Nem sikerült létrehozni a mappát.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Nem sikerült törölni a mappát.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>Nincs jogosultsága módosítani ezt a mappát.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>Nincs jogosultsága megnyitni ezt a mappát.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>A mappa több mint %1 elemet tartalmaz. Helyezzen át közülük néhányat almappákba.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>A mappa túl mélyen van beágyazva.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>A kiszolgáló foglalt. A Corvimo Client néhány perc múlva újra próbálkozik.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>A Corvimo Server belső hibát jelzett. Kérje meg a rendszergazdát, hogy nézze meg a kiszolgáló naplóját.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>A Corvimo Server jelenleg nem fogad módosításokat.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>Az ezt a mappát tartalmazó kötet nem érhető el a Corvimo Server kiszolgálón.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>A megosztott mappát eltávolították a Corvimo Server kiszolgálóról.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>Ennek a megosztott mappának a szinkronizálását kikapcsolták.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>A kiszolgáló olyan választ küldött, amelyet a Corvimo Client nem ért.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>A munkamenete véget ért. Jelentkezzen be újra.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>A Corvimo Server adatait alaphelyzetbe állították. Állítsa be újra a szinkronizálási feladatait.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>„%1” feltöltése nem sikerült.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>„%1” feltöltése nem sikerült: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>„%1” letöltése nem sikerült.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>„%1” letöltése nem sikerült: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>„%1” törlése nem sikerült: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>„%1” átnevezése nem sikerült: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>„%1” áthelyezése nem sikerült: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>„%1” visszaállítása nem sikerült: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Hozzáférés megtagadva</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>A lemez olvasási vagy írási hibát jelzett. Ellenőrizze, hogy nem hibás-e a lemez.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>A lemezt fájlok írása közben eltávolították.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Nincs elég memória. Zárjon be más programokat, és próbálja újra.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>A szinkronizálási adatbázis megsérült, és újra fel lesz építve. Ez eltarthat egy ideig.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>A szinkronizálási adatbázist egy másik program használja.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Szinkronizálási adatbázis újraépítése...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>A szinkronizálási adatbázis újra fel lett építve.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Nem sikerült beolvasni a beállításait. Az alapértékek vannak érvényben.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Nem sikerült menteni a beállításait.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Egyes mappák módosításai késve észlelhetők, mert a rendszer túl sok mappát figyel.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>A számítógép órája több mint %1 perccel eltér a kiszolgáló órájától. Állítsa be pontosan a számítógép óráját.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>A Corvimo Server nem támogatja ezt a műveletet.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>A műveletet megszakították.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>A művelet túl sokáig tartott, ezért leállt.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ismeretlen hiba történt.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Nem sikerült elindítani a Corvimo Client alkalmazást. Indítsa újra a számítógépet, és próbálja újra.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>A Corvimo Client már fut.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Hiányzik a Corvimo Client egyik összetevője. Telepítse újra a klienst.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Az állapotikonok nem jeleníthetők meg, mert minden elérhető ikonhelyet már más programok használnak.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>A Corvimo Client az Ön engedélyét kéri ennek a mappának az olvasásához. Engedélyezze a számítógép adatvédelmi beállításaiban.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Ha a probléma nem szűnik meg, indítsa újra a Corvimo Client alkalmazást.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Ha a probléma nem szűnik meg, forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Ha a probléma nem szűnik meg, forduljon az ügyfélszolgálathoz, és adja meg a hibakódot.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Folytatja a fennmaradó fájlokkal?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Bejelentkezés</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Kijelentkezés</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Bejelentkezés a Corvimo Server kiszolgálóra</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Jelszó megjelenítése</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Elfelejtette a jelszavát?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Maradjon bejelentkezve</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Bejelentkezés folyamatban...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Bejelentkezve mint %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Ki van jelentkezve.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Kijelentkezik? A szinkronizálás leáll, amíg újra be nem jelentkezik.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Bejelentkezés böngészővel</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Folytassa a böngészőben, majd térjen vissza ide.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>Nem sikerült megnyitni a böngészőt. Nyissa meg kézzel ezt a címet: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Tartomány</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Ha a fiókja egy tartományhoz tartozik, tartomány\felhasználó formában adja meg a felhasználónevét.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Fiók hozzáadása</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Fiókváltás</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Fiók eltávolítása</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Eltávolítja a következő fiókot erről a számítógépről: %1? A fájlok megmaradnak ezen a számítógépen és a Corvimo Server kiszolgálón.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-mail-cím</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Teljes név</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Jelszó módosítása</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Jelenlegi jelszó</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Új jelszó</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Új jelszó megismétlése</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>A jelszava módosult.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>A rendszergazda előírja, hogy módosítsa a jelszavát.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>A jelszava %1 nap múlva lejár.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>A két jelszó nem egyezik.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>Az új jelszónak el kell térnie a jelenlegitől.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Adja meg a felhasználónevét.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Adja meg a jelszavát.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>A felhasználónév vagy a jelszó hibás.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>A felhasználónév vagy a jelszó hibás. Még %1 alkalommal próbálkozhat.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>A fiókja le van tiltva. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>A fiókja lejárt. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Nincs jogosultsága a Corvimo Server használatához. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>A jelszava lejárt. Módosítsa a Corvimo Server kiszolgálón.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>A saját mappája nem érhető el. Kérje meg a rendszergazdát, hogy kapcsolja be a saját mappák szolgáltatását.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>A vendégfiók nem használható szinkronizáláshoz.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>A Corvimo Server minden licence használatban van.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>A számítógép neve</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Társított eszközök</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Leválasztja a következőt: „%1”? Az eszköz kijelentkezik, és a szinkronizálása leáll.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Ezt a számítógépet leválasztotta: %1. A szinkronizálás folytatásához jelentkezzen be újra.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ez a számítógép</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Az eszközön lévő fájlok törlése is</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Kétlépéses bejelentkezés</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Adja meg a hitelesítő alkalmazásban látható kódot.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Ellenőrző kód</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 számjegy</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Ellenőrzés</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Ellenőrzés folyamatban...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Megbízom ebben az eszközben</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Ne kérdezze újra ezen a számítógépen %1 napig</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Elveszett a telefonja?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Kód küldése e-mailben</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>A kód elküldve ide: %1. A kód 10 percig érvényes.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Nem sikerült elküldeni a kódot. Kérjen segítséget a rendszergazdától.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Helyreállítási kód használata</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Adja meg az egyik feljegyzett helyreállítási kódot. Mindegyik kód egyszer használható.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Még %1 helyreállítási kódja van.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Biztonsági kulcs használata</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Helyezze be a biztonsági kulcsot, és érintse meg.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>A biztonsági kulcs nem ismerhető fel. Próbáljon ki egy másikat.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Hagyja jóvá a bejelentkezést a telefonján</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>Várakozás a jóváhagyására...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Válassza ki a telefonján a következő számot: %1.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>A bejelentkezést a telefonon elutasították.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>A kérés lejárt. Küldje el újra.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Küldés újra</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Másik módszer</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Adja meg a kódot.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>A kód hibás. Ellenőrizze, hogy pontos-e a telefonja órája.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Ezt a kódot már felhasználták. Várja meg a következőt.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>Túl sok hibás kód. Várjon %1 percet, és próbálja újra.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>A rendszergazda kétlépéses bejelentkezést ír elő. Előbb állítsa be a Corvimo Server kiszolgálón.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Kétlépéses bejelentkezés beállítása</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Olvassa be ezt a kódot a hitelesítő alkalmazással.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>A kétlépéses bejelentkezés be van kapcsolva.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Biztonsági mentési feladatok</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>A biztonsági mentési feladat a számítógép mappáit a Corvimo Server kiszolgálóra másolja, és megőrzi a korábbi verziókat.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Biztonsági mentési feladat létrehozása</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Biztonsági mentési feladat szerkesztése</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Biztonsági mentési feladat törlése</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Törli a következő biztonsági mentési feladatot: „%1”?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>A Corvimo Server kiszolgálóra mentett fájlok törlése is</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Feladat neve</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Már van ilyen nevű feladat.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Mi legyen a mentésben</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Mappa hozzáadása</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Válasszon legalább egy mentendő mappát.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>A következő mappa már nem létezik: „%1”. Kimarad a biztonsági mentésből.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Íróasztal</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumentumok</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Képek</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Zene</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videók</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Letöltések</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Külső lemezek</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Hová kerüljön a biztonsági mentés</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Ez a mappa már egy másik számítógép biztonsági mentését tartalmazza.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Mikor készüljön biztonsági mentés</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Amikor egy fájl módosul</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>Ütemezés szerint</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Csak amikor én indítom</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Naponta</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Hetente</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Havonta</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Óránként</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Időpont: %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>Ezeken a napokon</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>Külső lemez csatlakoztatásakor</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Számítógép felébresztése a biztonsági mentéshez</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Biztonsági mentés most</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Biztonsági mentés leállítása</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Leállítja a biztonsági mentést? A már elmentett fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Biztonsági mentés folyamatban...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Biztonsági mentés, %1/%2 fájl</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>A biztonsági mentés befejeződött.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Utolsó biztonsági mentés: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Következő biztonsági mentés: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Még nem készült biztonsági mentés</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>A biztonsági mentés befejeződött, de %1 fájlt nem sikerült beolvasni.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>A biztonsági mentés sikertelen: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>Az erre az időpontra tervezett biztonsági mentés elmaradt: %1. Most elindul.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Erről a számítógépről %1 napja nem készült biztonsági mentés.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Meddig őrződjenek meg a verziók</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Minden verzió megőrzése</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Az utolsó %1 verzió megőrzése</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Verziók megőrzése %1 napig</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Régebbi verziókból egyre kevesebb megőrzése</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Biztonsági mentés titkosítása</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Titkosítási kulcs</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Tartsa biztonságos helyen a kulcsot. Nélküle a biztonsági mentés nem állítható vissza.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>A titkosítási kulcs hibás.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Fájlok visszaállítása</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Válassza ki a visszaállítandó fájlokat és a helyüket.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Visszaállítás az eredeti helyre</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Meglévő fájlok lecserélése</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>%1/%2 fájl visszaállítása</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Minden fájl visszaállítva.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>%1 fájl visszaállítva, %2 fájlt nem sikerült visszaállítani.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Biztonsági mentés ellenőrzése</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>A biztonsági mentés ép.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>%1 fájl sérült a biztonsági mentésben. Újra mentésre kerülnek.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
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
        <translation>%1 verzió</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>%1 verzió (build: %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Kiszolgáló verziója</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Minden jog fenntartva.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licencszerződés</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Adatvédelmi nyilatkozat</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Harmadik féltől származó szoftverek</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Webhely</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Ügyfélszolgálat</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Visszajelzés küldése</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Köszönjük, hogy a Corvimo Client alkalmazást használja.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Naplók</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Részletesség</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normál</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Minden</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>A részletes naplók lassítják a klienst. Ha már nincs rájuk szükség, térjen vissza a normál szintre.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Naplómappa megnyitása</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Napló mentése</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>A napló mentve ide: „%1”.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Nem sikerült menteni a naplót.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Napló törlése</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Törli a naplót?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Napló küldése az ügyfélszolgálatnak</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Napló küldése...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>A napló elküldve. A bejelentés száma: %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Nem sikerült elküldeni a naplót. Mentse el, és küldje el e-mailben.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>A napló a fájlok és mappák nevét tartalmazza, a tartalmukat nem.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Névtelen használati adatok küldése a Corvimo Client fejlesztéséhez</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>A Corvimo Client indítása, amikor bejelentkezem erre a számítógépre</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Állapotikonok megjelenítése a fájlokon és mappákon</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>A Corvimo Client megjelenítése a helyi menüben</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Szinkronizált mappák megjelenítése az oldalsávon</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Ikon megjelenítése a menüsorban</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>A rendszerével megegyező</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>A nyelv a Corvimo Client újraindítása után változik meg.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Megjelenés</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Világos</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sötét</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Szövegméret</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>A számítógép ne lépjen alvó állapotba a fájlok szinkronizálása közben</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>A Corvimo Server kiszolgálón törölt fájlok áthelyezése a Kukába</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Figyelmeztessen sok fájl törlése előtt</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Alaphelyzetbe állítja az összes beállítást? A szinkronizálási feladatok változatlanok maradnak.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Ezt a beállítást a rendszergazda kezeli.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>A beállításai mentve.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Elveti a módosításait?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Módosítások elvetése</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Igény szerinti fájlok</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Ezen a számítógépen minden fájl látható, de egy fájl csak akkor töltődik le, amikor megnyitja.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>Az „Igény szerinti fájlok” funkció bekapcsolása</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Bekapcsolja az „Igény szerinti fájlok” funkciót a következőhöz: „%1”? A már ezen a számítógépen lévő fájlok itt maradnak.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>Az „Igény szerinti fájlok” funkció be van kapcsolva.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>Az „Igény szerinti fájlok” funkció kikapcsolása</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Kikapcsolja az „Igény szerinti fájlok” funkciót? A mappa minden fájlja letöltődik (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Nincs elég hely az összes fájl letöltéséhez. Még %1 szükséges.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Csak online</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Mindig ezen a számítógépen</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Részben ezen a számítógépen</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>%1 fájl csak online lesz elérhető. Folytatja?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>%1 lemezterület felszabadult.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>A még fel nem töltött fájlok ezen a számítógépen maradnak.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>„%1” meg van nyitva, ezért ezen a számítógépen marad.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Hely automatikus felszabadítása</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Fájlok csak online elérhetővé tétele, ha ennyi napja nem nyitották meg őket: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Csak ha kevés a lemezterület</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 a következőt tölti le: „%2”.</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>E program letöltéseinek letiltása</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Egy program sok csak online elérhető fájlt nyit meg. Engedélyezi?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>„%1” nem nyitható meg, mert csak online érhető el, és a Corvimo Client nincs kapcsolatban a kiszolgálóval.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>A csak online elérhető fájlok megnyitásához indítsa el a Corvimo Client alkalmazást.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>A rendszernek ez a verziója nem támogatja az „Igény szerinti fájlok” funkciót.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>Ez a lemez nem támogatja az „Igény szerinti fájlok” funkciót.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Az „Igény szerinti fájlok” funkció használatához engedélyezze a fájlszolgáltatói bővítményt a rendszerbeállításokban.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>A csak online elérhető fájlok előnézetének megjelenítése</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>A csak online elérhető fájlok tartalmában nem lehet keresni ezen a számítógépen.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Engedélyezés</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Letiltás</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Üdvözli a Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Állítsa be néhány lépésben a Corvimo Client alkalmazást, hogy minden számítógépén meglegyenek a fájljai.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Kezdés</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>%1. lépés, összesen: %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Kapcsolódás a kiszolgálóhoz</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Adja meg a Corvimo Server címét, és jelentkezzen be a fiókjával.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>Mit szeretne tenni?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Fájlok szinkronizálása</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Ugyanazok a fájlok legyenek ezen a számítógépen és a Corvimo Server kiszolgálón.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Biztonsági mentés erről a számítógépről</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Másolja a fájljait a Corvimo Server kiszolgálóra, hogy megvédje őket az elvesztéstől.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>A fájljai ide szinkronizálódnak: „%1”.</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Csapatmappák</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Válassza ki, mely csapatmappákat szeretné ezen a számítógépen.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>Egyetlen csapatmappának sem tagja.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Szinkronizálási beállítások</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Minden fájl szinkronizálása</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>A Corvimo Client az Ön engedélyét kéri az értesítések megjelenítéséhez és a mappái olvasásához.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Összegzés</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Kezdés előtt ellenőrizze a választásait.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>%1 fájl (%2) fog letöltődni.</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Minden készen áll</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>A Corvimo Client most szinkronizálja a fájljait. Az alkalmazást a menüsorban találja.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Bemutató</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Kattintson a menüsor ikonjára, hogy lássa, mi történik.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Kattintson a jobb gombbal egy fájlra a megosztásához vagy a verziói megtekintéséhez.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>A fájlok ikonjai mutatják, hogy szinkronizálva vannak-e.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Kilép a beállítási folyamatból? Később folytathatja.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Egy korábbi telepítés beállításai találhatók a gépen. Használja őket?</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 bájt</translation>
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
        <translation>%1 százalék</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 fájl</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 fájl</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 mappa</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 mappa</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>%1 elem</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>%1 fájl, %2 mappa</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 és %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az imént</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>Ma, %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Tegnap</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>Tegnap, %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Holnap</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>Egy perce</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 perce</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>Egy órája</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 órája</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 napja</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Múlt héten</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Múlt hónapban</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 másodperc</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 perc</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 óra</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 nap</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1 másodperc van hátra</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>%1 perc van hátra</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>%1 óra van hátra</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Hétfő</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Kedd</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Szerda</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Csütörtök</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Péntek</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Szombat</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Vasárnap</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>További információ</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne jelenjen meg többé ez az üzenet</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Kérjük, várjon...</translation>
    </message>
</context>
</TS>
