<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Odstraněno</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Zrušit propojení</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Přidán soubor: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Změnit složku</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sloučit</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Přidáno</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Změněno</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Přejmenováno</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Přesunuto</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Obnoveno</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>Změněn soubor: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Odstraněn soubor: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Přejmenován soubor: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Přidána složka: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Odstraněna složka: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nedávno změněné soubory</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Zatím se nezměnily žádné soubory.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Zobrazit všechny změny</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Otevřít aplikaci Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Otevřít ve webovém prohlížeči</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pozastavit synchronizaci</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Pozastavit na hodinu</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Pozastavit do zítřka</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Pokračovat v synchronizaci</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Oznámení</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>O aplikaci Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Soubory se nebudou synchronizovat, dokud aplikaci Corvimo Client znovu nespustíte. Chcete ji ukončit?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aktuální</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizace...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Synchronizace, zbývá souborů: %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>Nahrávání: %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Stahování: %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Vyhledávání změn...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>Pozastaveno do %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nepřipojeno</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Připojování...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Čekání</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>Je nutná vaše pozornost</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Některé soubory se nepodařilo synchronizovat.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Není nastavena žádná synchronizační úloha.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>Nahrávání %1, stahování %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Otevřít v aplikaci...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Zobrazit ve složce</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Historie verzí</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Získat odkaz</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Kopírovat odkaz</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Sdílet...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Odeslat odkaz e-mailem</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Synchronizovat nyní</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Synchronizovat tuto složku</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Přestat synchronizovat tuto složku</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Vždy ponechat v tomto počítači</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Uvolnit místo</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Uzamknout soubor</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Odemknout soubor</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Přejmenovat</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Načíst znovu</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Vlastnosti</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Kopírovat cestu</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Vybrat vše</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nová složka</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Vyjmout</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopírovat</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Vložit</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Vrátit zpět</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opakovat akci</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Nesynchronizovat soubory s tímto názvem</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Nesynchronizovat soubory tohoto typu</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Uzamkl uživatel %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>Soubor „%1“ je uzamčen. Ostatní ho mohou číst, ale ne měnit.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>Soubor „%1“ je odemčen.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>Odkaz byl zkopírován do schránky.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>Cesta byla zkopírována do schránky.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>Vybrané položky: %1</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Tato položka není v synchronizované složce.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronizační úlohy</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Přehled</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizace</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Zálohování</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Nedávná aktivita</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Vytvořit</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Vytvořit synchronizační úlohu</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Pozastavit vše</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Pokračovat ve všem</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>Hledání „%1“ nic neodpovídá.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Zatím není nastavena žádná synchronizační úloha. Vytvořte ji, aby složka v tomto počítači a složka na serveru Corvimo Server měly stejný obsah.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Složka v tomto počítači</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Složka na serveru Corvimo Server</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Datum změny</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Vlastník</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Účet</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Poslední synchronizace</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Zastaveno</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Složka nenalezena</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Jen pro čtení</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Odstranění synchronizační úlohy</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Chcete odstranit synchronizační úlohu „%1“? Soubory zůstanou v tomto počítači i na serveru Corvimo Server.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Chcete odstranit vybrané synchronizační úlohy (%1)? Soubory zůstanou v tomto počítači i na serveru Corvimo Server.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>Synchronizační úloha byla odstraněna.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>Synchronizace je pozastavena. Změny se synchronizují, jakmile budete pokračovat.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Vymazat seznam</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Veškerá aktivita</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Pouze chyby</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>Nahráno na server: %1.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>Staženo: %1.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>Odstraněno z tohoto počítače: %1.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>Odstraněno ze serveru Corvimo Server: %1.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>Přejmenováno: %1 na %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>Přesunuto: %1 do %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>Změněné soubory: %1. Změny provedl uživatel %2.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Výběr složek k synchronizaci</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Vyberte složku na serveru Corvimo Server a složku v tomto počítači. Aplikace Corvimo Client bude udržovat jejich obsah stejný.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Vybrat složku na serveru</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Vybrat místní složku</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Změnit</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procházet...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Název nové složky</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>Složku „%1“ se nepodařilo vytvořit. Zvolte jiný název nebo zkontrolujte svá oprávnění.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Vytvořit zde prázdnou složku s názvem „%1“</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Směr synchronizace</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Obousměrná synchronizace</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Pouze nahrávat změny</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Pouze stahovat změny</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>Změny na kterékoli straně se kopírují na druhou.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Změny v tomto počítači se nahrávají. Změny na serveru Corvimo Server se nestahují.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Změny na serveru Corvimo Server se stahují. Změny v tomto počítači se nenahrávají.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Ponechat soubory v tomto počítači, když jsou odstraněny na serveru Corvimo Server</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Ponechat soubory na serveru Corvimo Server, když jsou odstraněny v tomto počítači</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Sloučení složek</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Obě složky již obsahují soubory. Zvolte, co se s nimi má stát.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>Složka „%1“ již existuje. Chcete ji sloučit se složkou na serveru Corvimo Server?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Sloučit obě složky a ponechat všechny soubory</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Použít soubory z tohoto počítače</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Použít soubory ze serveru Corvimo Server</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Vybrat jinou složku</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Soubory, které se liší, se zachovají ve dvou kopiích.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Soubory na serveru Corvimo Server, které nejsou v tomto počítači, budou odstraněny.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Soubory v tomto počítači, které nejsou na serveru Corvimo Server, budou přesunuty do koše.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Soubory se stejným názvem budou nahrazeny. Tuto akci nelze vrátit zpět.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>Porovnávání složek...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>Porovnané soubory: %1 z %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>Obě složky mají nyní stejný obsah.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Tato složka je již součástí synchronizační úlohy. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Tato složka je uvnitř složky, která se již synchronizuje. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Tato složka obsahuje složku, která se již synchronizuje. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Systémové složky nelze synchronizovat. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>Nelze synchronizovat celý disk. Vyberte na něm složku.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Složky na vyměnitelných discích nelze synchronizovat.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Síťové složky, například \\server\share, nelze synchronizovat. Vyberte složku v tomto počítači.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>Nemáte oprávnění k zápisu do této složky. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Tato složka je zašifrovaná a uzamčená. Nejprve ji odemkněte na serveru Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>Složka nebyla nalezena. Možná byla přesunuta nebo odstraněna.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>Systém souborů tohoto disku není podporován. Použijte disk s podporovaným systémem souborů.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Dosáhli jste maximálního počtu synchronizačních úloh (%1). Odstraňte úlohu, kterou již nepotřebujete.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektivní synchronizace</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Vyberte, co se má synchronizovat do tohoto počítače. Složky, jejichž výběr zrušíte, se odeberou z tohoto počítače, ale zůstanou na serveru Corvimo Server.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Složky</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtr souborů</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Zrušit výběr</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Automaticky synchronizovat nové složky</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>Seznam složek se nepodařilo načíst. Zkontrolujte připojení a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Zkusit znovu</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Složky, které se odeberou z tohoto počítače: %1. Na serveru Corvimo Server zůstanou.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Odebrat složky z tohoto počítače?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Některé soubory v těchto složkách ještě nebyly nahrány a byly by ztraceny. Nejprve je synchronizujte.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Vybráno: %1 z %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Nesynchronizovat soubory větší než</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Nesynchronizovat soubory s těmito příponami</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Nesynchronizovat soubory s těmito názvy</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Přidat příponu</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Přidat název</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Synchronizovat soubory a složky, jejichž název začíná tečkou</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Dočasné soubory běžných programů se nikdy nesynchronizují.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Obnovit výchozí nastavení</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Chcete se vrátit k výchozímu filtru?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Zadejte příponu, například „iso“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>Položka „%1“ již v seznamu je.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Název nesmí obsahovat žádný z těchto znaků: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Zadejte velikost od %1 do %2.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Nesynchronizuje se kvůli filtru</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>Váš výběr byl uložen. Aplikace Corvimo Client ho nyní uplatňuje.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Dokumenty</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Obrázky</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Videa</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Hudba</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archivy</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Ostatní soubory</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>Verze souboru „%1“</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Aktuální verze</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Předchozí verze</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Změnil</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Zařízení</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Stáhnout</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Tento soubor nemá žádné předchozí verze.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Vyberte soubor, jehož verze chcete zobrazit.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Obnovení verze</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Chcete nahradit aktuální verzi verzí z %1?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>Aktuální verze zůstane zachována v historii.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>Soubor „%1“ byl obnoven na verzi z %2.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>Verzi se nepodařilo obnovit. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Obnovit jako kopii</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Uložit verzi jako</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>Verze byla uložena do „%1“.</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Chcete odstranit tuto verzi? Nebude možné ji vrátit.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>Verzi se nepodařilo odstranit.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Chráněno před automatickým odstraněním</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Nejvyšší počet verzí souboru na serveru Corvimo Server: %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>Historie verzí je pro tuto složku vypnutá. Požádejte správce o její zapnutí.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Pro tento typ souboru se verze neuchovávají.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Odstraněné soubory</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Zobrazit odstraněné soubory</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Odstraněno %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Chcete obnovit vybrané položky (%1)?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Obnovené položky: %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Nebyly nalezeny žádné odstraněné soubory.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Vrátit se k určitému okamžiku</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Vyberte datum a čas</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Porovnat</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Sdílet</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>Sdílení „%1“</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Lidé</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Odkaz</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Pozvěte další lidi nebo vytvořte odkaz na tuto položku.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Pozvat další lidi</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Zadejte jméno nebo e-mailovou adresu</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Odeslat pozvánku</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>Pozvánka byla odeslána. Příjemce: %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>Pozvánku se nepodařilo odeslat. Zkontrolujte e-mailovou adresu.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Zpráva (nepovinné)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Uložit</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Oprávnění</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Může prohlížet</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Může upravovat</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Může spravovat</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Může pouze nahrávat</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Bez přístupu</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>Oprávnění uživatele %1 bylo změněno.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>K sdílení této položky nemáte oprávnění. Obraťte se na jejího vlastníka.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Sdíleno se mnou</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Sdíleno mnou</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Počet osob s přístupem: %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Tato položka není sdílena.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Opustit sdílenou složku</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Chcete opustit sdílenou složku „%1“? Bude odebrána z tohoto počítače.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>Položka „%1“ již s vámi není sdílena.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>Uživatel %1 s vámi sdílí „%2“.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Skupina</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Všichni na tomto serveru</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Nastavení odkazu</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Vytvořit odkaz</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Vytváření odkazu...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Odstranit odkaz</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Chcete odstranit tento odkaz? Lidé, kteří ho mají, už položku nebudou moci otevřít.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Kdokoli, kdo má odkaz</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Pouze lidé s účtem</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Chránit heslem</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>Nejmenší počet znaků hesla: %1.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Zadejte heslo pro odkaz.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Odkaz platí do</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>Bez omezení platnosti</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Zvolte datum v budoucnosti.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Platnost tohoto odkazu vypršela.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>Povolený počet stažení</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>Zbývající stažení: %1</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Povolit stahování</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Povolit nahrávání</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>Odkaz se nepodařilo vytvořit. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>Správce pro tuto složku odkazy vypnul.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Žádost o soubory</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>Lidé s odkazem mohou do této složky nahrávat soubory, aniž by viděli její obsah.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>Zobrazit QR kód</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Konflikty</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>Soubor „%1“ byl změněn na dvou místech současně.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>Soubory změněné na dvou místech současně: %1.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Vyberte, kterou verzi chcete ponechat. Druhá se uloží jako konfliktní kopie.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Ponechat verzi z tohoto počítače</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Ponechat verzi ze serveru Corvimo Server</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Ponechat obě verze</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Ponechat novější verzi</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Pokaždé se zeptat</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Použít pro všechny konflikty</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>konfliktní kopie %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>V tomto počítači</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>Na serveru Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Změnil uživatel %1, %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Když byl soubor změněn na dvou místech</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Názvy, které se liší jen velikostí písmen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>Názvy „%1“ a „%2“ se liší jen velikostí písmen. Jeden z nich změňte.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Nejsou žádné konflikty.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>Konflikt byl vyřešen.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Konflikt se nepodařilo vyřešit, protože soubor je otevřený. Zavřete ho a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Vyřešit</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Rozhodnout později</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Otevřít oba soubory</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Přeskočit</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Soubor „%1“ jste odstranili, ale na serveru Corvimo Server byl změněn. Změněný soubor byl zachován.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>Soubor „%1“ byl na serveru Corvimo Server odstraněn, ale vy jste ho změnili. Váš soubor byl zachován.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>Položka „%1“ je na jedné straně soubor a na druhé složka. Jednu z nich přejmenujte.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Konfliktní kopie</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Odstranit konfliktní kopie</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Chcete odstranit konfliktní kopie (%1)? Nebude možné je vrátit.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>Soubor „%1“ je otevřený v jiném programu a synchronizuje se po zavření.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Připojení</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adresa serveru</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Název hostitele, IP adresa nebo Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Uživatelské jméno</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Šifrovat připojení</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Bez šifrování mohou ostatní v síti číst vaše soubory a heslo.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Připojit</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Odpojit</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Znovu připojit</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Otestovat připojení</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testování připojení...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Připojení funguje.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>Připojení nefunguje. Zkontrolujte adresu a port.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Připojeno</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Připojeno k %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>Připojení k %1 bylo ztraceno. Aplikace Corvimo Client to zkusí znovu za %2 s.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>Připojení k %1 bylo obnoveno.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Čekání na připojení k síti</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Nesynchronizovat v měřených sítích</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>Synchronizace je pozastavena, protože tato síť je měřená.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Připojeno přes místní síť</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Připojeno přes internet</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Připojeno přes předávací server</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>Předávací server je pomalejší než přímé připojení.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Najít servery v této síti</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Vyhledávání serverů...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>V této síti nebyl nalezen žádný server. Zadejte adresu serveru ručně.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Nalezené servery: %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>Server „%1“ nebyl nalezen. Zkontrolujte, zda je adresa správně napsaná.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>Server odmítl připojení. Ověřte, že je Corvimo Server spuštěný.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>Server neodpověděl včas. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Tento počítač není připojen k síti.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Zadejte port od 1 do 65535.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Zadejte adresu serveru.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Corvimo ID „%1“ neexistuje.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>Server s tímto Corvimo ID je offline. Ověřte, že je zapnutý.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>Corvimo Server není na tomto serveru nainstalován nebo není spuštěn.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>Probíhá údržba serveru. Synchronizace bude pokračovat, až bude znovu dostupný.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server je pro tohoto klienta příliš starý. Požádejte správce o aktualizaci na verzi %1 nebo novější.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Tento klient je pro Corvimo Server příliš starý. Aktualizujte ho na verzi %1 nebo novější.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>K serveru je připojeno příliš mnoho klientů. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Tento počítač byl zablokován po příliš mnoha neúspěšných pokusech. Požádejte správce o odblokování.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>Aplikaci Corvimo Client možná blokuje brána firewall. Povolte aplikaci Corvimo Client používat port %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>Zabezpečené připojení se nepodařilo navázat: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Došlo k neznámé chybě (kód %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Úprava připojení</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Odebrání připojení</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Chcete odebrat připojení k %1? Jeho synchronizační úlohy budou odstraněny, ale soubory zůstanou.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>Soubory, které ještě nebyly nahrány: %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Upřesnit</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Poslední připojení: %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy server</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Proxy server použijte, pokud ho vaše síť vyžaduje pro přístup k internetu.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Nepoužívat proxy server</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Použít nastavení proxy serveru tohoto počítače</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Nastavit proxy server ručně</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Typ proxy serveru</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adresa proxy serveru</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>Proxy server vyžaduje uživatelské jméno a heslo</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Nepoužívat proxy server pro místní adresy</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Nepoužívat proxy server pro tyto adresy</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Otestovat proxy server</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Proxy server funguje.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Přihlášení k proxy serveru</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>Proxy server %1 požaduje uživatelské jméno a heslo.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>Proxy server nepřijal uživatelské jméno nebo heslo.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>Proxy server %1 není dostupný. Zkontrolujte jeho adresu a port.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>Proxy server nepovoluje připojení k %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Nastavení proxy serveru tohoto počítače se nepodařilo načíst.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Zadejte adresu proxy serveru.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certifikát</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>Certifikát není důvěryhodný</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>Certifikát %1 nevydala známá certifikační autorita. Někdo se možná vydává za váš server.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>Server používá certifikát, který si sám podepsal.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>Platnost certifikátu vypršela %1.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>Certifikát není platný před %1. Zkontrolujte hodiny tohoto počítače.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>Certifikát byl vydán pro %1, nikoli pro %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>Certifikát byl odvolán autoritou, která ho vydala.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>Certifikát se změnil</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>Certifikát %1 se liší od dříve používaného. Zeptejte se správce, zda byl obnoven.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>Certifikát používá algoritmus, který se již nepovažuje za bezpečný.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Důvěřovat tomuto certifikátu</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Vždy důvěřovat tomuto certifikátu</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Důvěřovat jen tentokrát</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Nepřipojovat</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Zobrazit certifikát</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Vydáno pro</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Vydal</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Platí od</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Platí do</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Sériové číslo</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Otisk</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Algoritmus podpisu</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Délka klíče</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Exportovat certifikát</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>Certifikát byl uložen do „%1“.</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Importovat certifikát</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>Soubor neobsahuje platný certifikát.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Chcete odebrat certifikát %1 z důvěryhodných certifikátů?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Úložiště</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>Využito %1 z %2</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>Volno: %1</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Neomezeno</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Úložiště na serveru Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Úložiště v tomto počítači</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Úložiště podle typu souborů</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Úložiště podle složek</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Úložiště zabrané předchozími verzemi</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Úložiště zabrané odstraněnými soubory</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Vyprázdnit koš</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Chcete vyprázdnit koš? Soubory v něm nebude možné vrátit.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>Koš byl vyprázdněn. Uvolněno: %1.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Výpočet...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Vaše úložiště je téměř plné. Zbývá jen %1.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Vaše úložiště je plné</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Nové soubory nelze nahrát, dokud některé soubory neodstraníte nebo nepožádáte správce o větší úložiště.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>Složka „%1“ dosáhla své kvóty. Nové soubory do ní nelze nahrát.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Svazek serveru Corvimo Server je plný. Požádejte správce o uvolnění místa.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>Soubor „%1“ je větší než zbývající úložiště (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Na disku je málo místa</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>Na disku „%2“ zbývá jen %1. Až se disk zaplní, synchronizace se zastaví.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Nedostatek místa na disku</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>Na disku „%1“ není dost místa. Synchronizace je pozastavena, dokud neuvolníte alespoň %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>Soubor „%1“ nebyl stažen, protože vyžaduje %2 místa na disku.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Místo můžete uvolnit selektivní synchronizací nebo ponecháním souborů pouze online.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Otevřít nastavení úložiště</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Nejmenší volné místo na disku</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Když zbývá méně místa, stahování se pozastaví.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>Disk se složkou „%1“ není připojen. Chcete-li pokračovat v synchronizaci, připojte ho.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>Disk „%1“ je jen pro čtení. Změny ze serveru Corvimo Server na něj nelze uložit.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Pro dočasné soubory není dost místa. Uvolněte alespoň %1.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Dočasné soubory</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Odstranit dočasné soubory</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Dočasné soubory byly odstraněny (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Zkontrolovat znovu</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorovat</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Využito</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Největší soubory</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Odstraňte nebo přesuňte soubory, které již nepotřebujete.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>Tento měsíc vzrostlo využití úložiště o %1.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>Tímto tempem se vaše úložiště zaplní %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Požádat o větší úložiště</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>Vaše žádost byla odeslána správci.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>Vaše žádost čeká na odpověď.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>Kvóta skupiny „%1“ je vyčerpána.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 je připravena.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Aktualizace softwaru</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Vyhledat aktualizace</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Vyhledávání aktualizací...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>Používáte nejnovější verzi.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Je k dispozici verze %1 aplikace Corvimo Client.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Stáhnout a nainstalovat</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Připomenout později</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Přeskočit tuto verzi</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>Aktualizace je připravena. Nainstaluje se po restartování aplikace Corvimo Client.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Restartovat nyní</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>Aktualizaci se nepodařilo nainstalovat. Vaše současná verze funguje dál.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Aplikace Corvimo Client nemohla vyhledat aktualizace.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Poznámky k verzi</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Instalovat aktualizace automaticky</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 se inicializuje...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Přebírá se vaše nastavení z předchozí verze.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Vaše nastavení bylo převzato. Můžete pokračovat tam, kde jste skončili.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>Některá nastavení předchozí verze se nepodařilo převzít. Zkontrolujte své synchronizační úlohy.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>Aktualizace vyžaduje %1 místa na disku.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Tato verze již není podporována. Chcete-li pokračovat v synchronizaci, nainstalujte aktualizaci.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Šířka pásma</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Rychlost nahrávání</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Rychlost stahování</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Omezit na</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Upravovat automaticky</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Aplikace Corvimo Client ponechává místo ostatním programům, které používají síť.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Plán</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Zvolte hodiny, ve kterých omezení platí.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Celý den</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Pracovní doba</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>V noci</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>Nesynchronizovat</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Plná rychlost</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Omezená rychlost</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Vymazat plán</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Zadejte rychlost větší než 0.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Zadejte rychlost od %1 do %2.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>Začátek musí být dříve než konec.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>Správce omezil rychlost na %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Počet souborů přenášených současně</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>Neomezovat rychlost v místní síti</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Aktuální rychlost</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Průměrná rychlost</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Přeneseno dnes</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Přeneseno tento měsíc</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Zvolte, na co vás má aplikace Corvimo Client upozorňovat.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Když je synchronizace dokončena</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Když soubor nelze synchronizovat</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Když se mnou někdo sdílí položku</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Když někdo okomentuje mé soubory</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Když je úložiště téměř plné</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Když je zálohování dokončeno nebo selže</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Když je dostupná aktualizace</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Když je připojení ztraceno</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Přehrát zvuk</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Nerušit</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Doba klidu</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Žádná oznámení do %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Nerušit během prezentací</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Zobrazovat v oznámeních názvy souborů</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Oznámení jsou v nastavení systému tohoto počítače vypnutá.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Otevřít nastavení systému</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Skrýt</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Skrýt vše</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Zobrazit</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Označit jako přečtené</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Centrum oznámení</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>Nemáte žádná oznámení.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Nová oznámení: %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Všechny soubory jsou aktuální.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>První synchronizace je dokončena. Počet souborů v tomto počítači: %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Bylo odstraněno mnoho souborů</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>Počet souborů odstraněných ze složky „%2“: %1. Pokud to nebylo záměrné, obnovte je.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>Počet souborů změněných během krátké doby: %1. Pokud jste to neudělali vy, pozastavte synchronizaci a zkontrolujte, zda v počítači není malware.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>Složka „%1“ byla přesunuta. Sdělte aplikaci Corvimo Client, kde je nyní.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>Uživatel %1 okomentoval „%2“.</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Problémy se synchronizací</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Tyto soubory se nepodařilo synchronizovat. Aplikace Corvimo Client to zkusí znovu, až příčina pomine.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problémy: %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Nejsou žádné problémy.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Důvod</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Zkusit vše znovu</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Kopírovat podrobnosti</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Nahlásit problém</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>Podrobnosti byly zkopírovány do schránky.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Kód chyby: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>Soubor používá jiný program. Chcete-li soubor synchronizovat, zavřete ho v něm.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>Soubor uzamkl uživatel %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>Soubor byl odstraněn dříve, než mohl být synchronizován.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>Soubor se během nahrávání změnil. Nahraje se znovu.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>Soubor se při přenosu poškodil. Přenese se znovu.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Soubor nelze číst. Zkontrolujte jeho oprávnění.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>Do souboru nelze zapisovat. Zkontrolujte jeho oprávnění.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>Soubor je větší než limit %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>Soubor je pro systém souborů tohoto disku příliš velký.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>Soubor je zašifrovaný a v tomto počítači ho nelze otevřít.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>Antivirový program na serveru Corvimo Server soubor zablokoval.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>Antivirový program v tomto počítači soubor zablokoval.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Soubory tohoto typu nejsou na serveru Corvimo Server povoleny.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Zařízení, roury a sokety nelze synchronizovat.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Symbolické odkazy, které míří mimo synchronizovanou složku, se nesynchronizují.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>Alias „%1“ odkazuje na položku, která se nesynchronizuje.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>Název je příliš dlouhý. Nejvyšší počet znaků: %1.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>Cesta je příliš dlouhá. Zkraťte názvy jejích složek.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>Název obsahuje nepovolené znaky: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>Název „%1“ je vyhrazen systémem.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>Název končí mezerou nebo tečkou. Položku přejmenujte.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>Název obsahuje nečitelné znaky. Položku přejmenujte.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Položka s názvem „%1“ již v této složce existuje.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Zadejte název.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>Složka „%1“ nebyla nalezena.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>Složka nebyla odstraněna, protože obsahuje soubory, které se nesynchronizují.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Složku se nepodařilo vytvořit.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Složku se nepodařilo odstranit.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>Nemáte oprávnění ke změně této složky.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>Nemáte oprávnění k otevření této složky.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>Počet položek ve složce překračuje %1. Přesuňte některé z nich do podsložek.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>Složka je vnořena příliš hluboko.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>Server je zaneprázdněn. Aplikace Corvimo Client to zkusí znovu za několik minut.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server ohlásil vnitřní chybu. Požádejte správce, aby zkontroloval jeho protokol.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server v tuto chvíli nepřijímá žádné změny.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>Svazek s touto složkou není na serveru Corvimo Server dostupný.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>Sdílená složka byla odebrána ze serveru Corvimo Server.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>Synchronizace této sdílené složky byla vypnuta.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>Server odeslal odpověď, které aplikace Corvimo Client nerozumí.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>Vaše relace skončila. Přihlaste se znovu.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Data serveru Corvimo Server byla resetována. Nastavte své synchronizační úlohy znovu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>Položku „%1“ se nepodařilo nahrát.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>Položku „%1“ se nepodařilo nahrát: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>Položku „%1“ se nepodařilo stáhnout.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>Položku „%1“ se nepodařilo stáhnout: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>Položku „%1“ se nepodařilo odstranit: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>Položku „%1“ se nepodařilo přejmenovat: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>Položku „%1“ se nepodařilo přesunout: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>Položku „%1“ se nepodařilo obnovit: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Přístup odepřen</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>Disk ohlásil chybu čtení nebo zápisu. Zkontrolujte, zda není vadný.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>Disk byl odpojen během zápisu souborů.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Nedostatek paměti. Zavřete jiné programy a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>Databáze synchronizace je poškozená a bude znovu vytvořena. Může to chvíli trvat.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>Databázi synchronizace používá jiný program.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Znovuvytváření databáze synchronizace...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>Databáze synchronizace byla znovu vytvořena.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Vaše nastavení se nepodařilo načíst. Použijí se výchozí hodnoty.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Vaše nastavení se nepodařilo uložit.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Změny v některých složkách mohou být zjištěny se zpožděním, protože systém sleduje příliš mnoho složek.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>Hodiny tohoto počítače se od hodin serveru liší o více než %1 min. Nastavte hodiny tohoto počítače správně.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Corvimo Server tuto akci nepodporuje.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>Akce byla zrušena.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>Akce trvala příliš dlouho a byla zastavena.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Došlo k neznámé chybě.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Aplikaci Corvimo Client se nepodařilo spustit. Restartujte tento počítač a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Aplikace Corvimo Client je již spuštěna.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Chybí součást aplikace Corvimo Client. Nainstalujte klienta znovu.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Ikony stavu nelze zobrazit, protože všechna dostupná místa pro ikony již používají jiné programy.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Aplikace Corvimo Client potřebuje vaše povolení ke čtení této složky. Udělte ho v nastavení soukromí tohoto počítače.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Pokud problém přetrvává, restartujte aplikaci Corvimo Client.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Pokud problém přetrvává, obraťte se na správce.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Pokud problém přetrvává, obraťte se na podporu a uveďte kód chyby.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Chcete pokračovat se zbývajícími soubory?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Přihlásit se</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Odhlásit se</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Přihlášení k serveru Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Zobrazit heslo</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Zapomněli jste heslo?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Neodhlašovat</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Přihlašování...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Přihlášen uživatel %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Jste odhlášeni.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Chcete se odhlásit? Synchronizace se zastaví, dokud se znovu nepřihlásíte.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Přihlásit se v prohlížeči</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Pokračujte v prohlížeči a potom se vraťte sem.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>Prohlížeč se nepodařilo otevřít. Otevřete tuto adresu ručně: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Doména</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Pokud váš účet patří do domény, zadejte uživatelské jméno ve tvaru doména\uživatel.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Přidat účet</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Přepnout účet</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Odebrat účet</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Chcete odebrat účet %1 z tohoto počítače? Soubory zůstanou v tomto počítači i na serveru Corvimo Server.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-mailová adresa</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Celé jméno</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Změnit heslo</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Současné heslo</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nové heslo</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Zopakujte nové heslo</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>Vaše heslo bylo změněno.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>Správce vyžaduje, abyste si změnili heslo.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Počet dní do vypršení platnosti hesla: %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Hesla se neshodují.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>Nové heslo se musí lišit od současného.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Zadejte své uživatelské jméno.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Zadejte své heslo.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Uživatelské jméno nebo heslo není správné.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>Uživatelské jméno nebo heslo není správné. Zbývající pokusy: %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Váš účet je zakázán. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Platnost vašeho účtu vypršela. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Nemáte oprávnění používat Corvimo Server. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>Platnost vašeho hesla vypršela. Změňte ho na serveru Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>Vaše domovská složka není dostupná. Požádejte správce o zapnutí služby domovských složek.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>Účet hosta nelze použít k synchronizaci.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Všechny licence serveru Corvimo Server se již používají.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Název tohoto počítače</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Propojená zařízení</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Chcete zrušit propojení zařízení „%1“? Bude odhlášeno a přestane se synchronizovat.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Propojení tohoto počítače zrušil uživatel %1. Chcete-li pokračovat v synchronizaci, přihlaste se znovu.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Tento počítač</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Odstranit také soubory v zařízení</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Dvoufázové přihlášení</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Zadejte kód, který zobrazuje vaše ověřovací aplikace.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Ověřovací kód</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 číslic</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Ověřit</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Ověřování...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Důvěřovat tomuto zařízení</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>V tomto počítači se znovu neptat (počet dní: %1)</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Ztratili jste telefon?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Odeslat kód e-mailem</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>Kód byl odeslán na adresu %1. Platí 10 minut.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Kód se nepodařilo odeslat. Požádejte o pomoc správce.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Použít kód pro obnovení</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Zadejte jeden z kódů pro obnovení, které jste si zapsali. Každý kód lze použít jen jednou.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Zbývající kódy pro obnovení: %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Použít bezpečnostní klíč</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Vložte bezpečnostní klíč a dotkněte se ho.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>Bezpečnostní klíč nebyl rozpoznán. Zkuste jiný.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Schvalte přihlášení v telefonu</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>Čekání na vaše schválení...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Vyberte v telefonu číslo %1.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>Přihlášení bylo v telefonu zamítnuto.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>Platnost žádosti vypršela. Odešlete ji znovu.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Odeslat znovu</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Zkusit jiný způsob</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Zadejte kód.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>Kód není správný. Zkontrolujte, zda máte v telefonu správný čas.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Tento kód již byl použit. Počkejte na další.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>Příliš mnoho nesprávných kódů. Počkejte %1 min a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>Správce vyžaduje dvoufázové přihlášení. Nejprve ho nastavte na serveru Corvimo Server.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Nastavit dvoufázové přihlášení</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Naskenujte tento kód ověřovací aplikací.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>Dvoufázové přihlášení je zapnuté.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Zálohovací úlohy</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>Zálohovací úloha kopíruje složky tohoto počítače na server Corvimo Server a uchovává předchozí verze.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Vytvořit zálohovací úlohu</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Upravit zálohovací úlohu</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Odstranit zálohovací úlohu</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Chcete odstranit zálohovací úlohu „%1“?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Odstranit také zálohované soubory na serveru Corvimo Server</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Název úlohy</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Úloha s tímto názvem již existuje.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Co zálohovat</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Přidat složku</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Vyberte alespoň jednu složku k zálohování.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>Složka „%1“ již neexistuje. V záloze bude vynechána.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Plocha</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumenty</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Obrázky</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Hudba</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videa</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Stahování</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Externí disky</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Kam ukládat zálohu</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Tato složka již obsahuje zálohu jiného počítače.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Kdy zálohovat</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Při každé změně souboru</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>Podle plánu</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Jen když zálohování spustím</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Denně</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Týdně</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Měsíčně</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Každou hodinu</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Čas: %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>V tyto dny</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>Při připojení externího disku</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Probudit tento počítač kvůli zálohování</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Zálohovat nyní</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Zastavit zálohování</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Chcete zastavit zálohování? Soubory, které jsou již zálohovány, zůstanou zachovány.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Zálohování...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Zálohování souborů: %1 z %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Zálohování je dokončeno.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Poslední záloha: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Další záloha: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Zatím nezálohováno</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>Zálohování je dokončeno. Soubory, které se nepodařilo přečíst: %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>Zálohování selhalo: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>Zálohování naplánované na %1 bylo zmeškáno. Nyní se spustí.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Počet dní od poslední zálohy tohoto počítače: %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Jak dlouho uchovávat verze</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Uchovávat všechny verze</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Počet uchovávaných verzí: %1</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Počet dní, po které se verze uchovávají: %1</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Starších verzí uchovávat méně</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Šifrovat zálohu</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Šifrovací klíč</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Klíč uložte na bezpečné místo. Bez něj nelze zálohu obnovit.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>Šifrovací klíč není správný.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Obnovit soubory</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Vyberte soubory, které chcete obnovit, a místo, kam se mají uložit.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Obnovit na původní místo</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Nahradit existující soubory</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>Obnovování souborů: %1 z %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Všechny soubory byly obnoveny.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>Obnovené soubory: %1. Soubory, které se nepodařilo obnovit: %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Ověřit zálohu</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>Záloha je v pořádku.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Poškozené soubory v záloze: %1. Zálohují se znovu.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
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
        <translation>Verze %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>Verze %1 (sestavení %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Verze serveru</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Všechna práva vyhrazena.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licenční smlouva</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Prohlášení o ochraně soukromí</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Software třetích stran</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Webové stránky</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Kontaktovat podporu</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Odeslat zpětnou vazbu</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Děkujeme, že používáte aplikaci Corvimo Client.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokoly</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Úroveň podrobností</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normální</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Vše</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>Podrobné protokoly zpomalují klienta. Až je nebudete potřebovat, vraťte se k normální úrovni.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Otevřít složku protokolů</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Uložit protokol</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>Protokol byl uložen do „%1“.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Protokol se nepodařilo uložit.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Vymazat protokol</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Chcete vymazat protokol?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Odeslat protokol podpoře</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Odesílání protokolu...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>Protokol byl odeslán. Číslo vašeho hlášení je %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Protokol se nepodařilo odeslat. Uložte ho a pošlete e-mailem.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>Protokol obsahuje názvy souborů a složek, nikoli však jejich obsah.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Odesílat anonymní data o používání, a pomoci tak vylepšovat aplikaci Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Spustit aplikaci Corvimo Client po přihlášení k tomuto počítači</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Zobrazovat na souborech a složkách ikony stavu</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Zobrazovat aplikaci Corvimo Client v místní nabídce</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Zobrazovat synchronizované složky na bočním panelu</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Zobrazovat ikonu v řádku nabídek</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>Stejný jako v systému</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>Jazyk se změní po restartování aplikace Corvimo Client.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Vzhled</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Světlý</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tmavý</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Velikost textu</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>Neuspávat počítač během synchronizace souborů</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Přesouvat soubory odstraněné na serveru Corvimo Server do koše</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Upozornit mě před odstraněním mnoha souborů</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Chcete obnovit výchozí hodnoty všech nastavení? Synchronizační úlohy zůstanou beze změny.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Toto nastavení spravuje správce.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Vaše nastavení bylo uloženo.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Chcete zahodit provedené změny?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Zahodit</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Soubory na vyžádání</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>V tomto počítači se zobrazují všechny soubory, ale soubor se stáhne, teprve když ho otevřete.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>Zapnout funkci „Soubory na vyžádání“</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Chcete pro „%1“ zapnout funkci „Soubory na vyžádání“? Soubory, které již v tomto počítači jsou, v něm zůstanou.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>Funkce „Soubory na vyžádání“ je zapnutá.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>Vypnout funkci „Soubory na vyžádání“</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Chcete vypnout funkci „Soubory na vyžádání“? Stáhnou se všechny soubory této složky (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Pro stažení všech souborů není dost místa. Je potřeba ještě %1.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Pouze online</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Vždy v tomto počítači</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Částečně v tomto počítači</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>Soubory, které budou dostupné pouze online: %1. Chcete pokračovat?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>Uvolněné místo na disku: %1.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Soubory, které ještě nebyly nahrány, zůstanou v tomto počítači.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>Soubor „%1“ je otevřený a zůstane v tomto počítači.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Uvolňovat místo automaticky</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Převést na „pouze online“ soubory neotevřené po tento počet dní: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Jen když je na disku málo místa</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 stahuje „%2“.</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Zablokovat stahování tímto programem</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Program otevírá mnoho souborů dostupných pouze online. Chcete mu to povolit?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>Soubor „%1“ nelze otevřít, protože je dostupný pouze online a aplikace Corvimo Client není připojena.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Chcete-li otevírat soubory dostupné pouze online, spusťte aplikaci Corvimo Client.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>Tato verze systému funkci „Soubory na vyžádání“ nepodporuje.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>Na tomto disku není funkce „Soubory na vyžádání“ podporována.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Chcete-li používat funkci „Soubory na vyžádání“, povolte v nastavení systému rozšíření poskytovatele souborů.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Zobrazovat náhledy souborů dostupných pouze online</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>Obsah souborů dostupných pouze online nelze v tomto počítači prohledávat.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Povolit</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Zablokovat</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Vítá vás Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Nastavte aplikaci Corvimo Client v několika krocích a mějte své soubory v každém počítači.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Začít</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Krok %1 z %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Připojení k serveru</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Zadejte adresu serveru Corvimo Server a přihlaste se ke svému účtu.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>Co chcete udělat?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Synchronizovat soubory</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Udržujte stejné soubory v tomto počítači a na serveru Corvimo Server.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Zálohovat tento počítač</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Zkopírujte soubory na server Corvimo Server, abyste je ochránili před ztrátou.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Vaše soubory se budou synchronizovat do složky „%1“.</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Týmové složky</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Vyberte týmové složky, které chcete mít v tomto počítači.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>Nejste členem žádné týmové složky.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Možnosti synchronizace</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Synchronizovat všechny soubory</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Aplikace Corvimo Client potřebuje vaše povolení k zobrazování oznámení a čtení složek.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Než začnete, zkontrolujte své volby.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>Soubory, které se stáhnou: %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Vše je připraveno</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Aplikace Corvimo Client nyní synchronizuje vaše soubory. Najdete ji v řádku nabídek.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Prohlédnout si ukázku</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Kliknutím na ikonu v řádku nabídek zjistíte, co se děje.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Kliknutím na soubor pravým tlačítkem ho můžete sdílet nebo zobrazit jeho verze.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Ikony na souborech ukazují, zda jsou synchronizované.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Chcete ukončit průvodce nastavením? Můžete pokračovat později.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Bylo nalezeno nastavení z předchozí instalace. Chcete ho použít?</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 kB</translation>
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
        <translation>%1 kB/s</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 MB/s</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 soubor</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>Soubory: %1</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 složka</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>Složky: %1</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Položky: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>Soubory: %1, složky: %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Právě teď</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>Dnes, %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>Včera, %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Zítra</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>Před minutou</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Před %1 min</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>Před hodinou</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Před %1 h</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Před %1 dny</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Minulý týden</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Minulý měsíc</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>Zbývá %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>Zbývá %1 min</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>Zbývá %1 h</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Pondělí</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Úterý</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Středa</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Čtvrtek</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Pátek</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Neděle</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Další informace</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Tuto zprávu již nezobrazovat</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Čekejte prosím...</translation>
    </message>
</context>
</TS>
