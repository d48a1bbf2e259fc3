<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Raderad</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koppla bort</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Fil tillagd: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Byt mapp</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå samman</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Tillagd</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Ändrad</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Namnändrad</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Flyttad</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Återställd</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>Fil ändrad: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Fil raderad: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Fil namnändrad: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Mapp tillagd: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Mapp raderad: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nyligen ändrade filer</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Inga filer har ändrats ännu.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Visa alla ändringar</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Öppna Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Öppna i webbläsare</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausa synkroniseringen</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Pausa i en timme</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Pausa till i morgon</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Återuppta synkroniseringen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notiser</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>Om Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Filer synkroniseras inte igen förrän du startar Corvimo Client på nytt. Vill du avsluta?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Uppdaterad</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserar...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Synkroniserar, filer kvar: %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>Laddar upp %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Laddar ned %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Söker efter ändringar...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>Pausad till %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Inte ansluten</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Ansluter...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Väntar</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>Åtgärd krävs</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>En del filer kunde inte synkroniseras.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Ingen synkroniseringsuppgift har konfigurerats.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>%1 upp, %2 ned</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Öppna med...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Visa i mappen</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Versionshistorik</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Hämta länk</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Kopiera länk</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Dela...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Skicka länk via e-post</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Synkronisera nu</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Synkronisera den här mappen</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Sluta synkronisera den här mappen</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Behåll alltid på den här datorn</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Frigör utrymme</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Lås fil</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Lås upp fil</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Byt namn</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Radera</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Uppdatera</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Egenskaper</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Kopiera sökväg</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Markera alla</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Ny mapp</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Klipp ut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiera</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Klistra in</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gör om</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Synkronisera inte filer med det här namnet</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Synkronisera inte filer av den här typen</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Låst av %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>”%1” är låst. Andra kan läsa filen men inte ändra den.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>”%1” är upplåst.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>Länken kopierades till urklipp.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>Sökvägen kopierades till urklipp.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>Markerade objekt: %1</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Det här objektet finns inte i en synkroniserad mapp.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsuppgifter</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Översikt</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Säkerhetskopiering</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Senaste aktivitet</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Skapa</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Skapa synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Pausa alla</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Återuppta alla</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>Inget matchar ”%1”.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Det finns ingen synkroniseringsuppgift ännu. Skapa en för att hålla en mapp på den här datorn och en mapp på Corvimo Server likadana.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Mapp på den här datorn</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Mapp på Corvimo Server</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Ändringsdatum</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Ägare</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Senast synkroniserad</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Stoppad</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Mappen hittades inte</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Radera synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Vill du radera synkroniseringsuppgiften ”%1”? Dina filer finns kvar på den här datorn och på Corvimo Server.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Vill du radera de markerade synkroniseringsuppgifterna (%1)? Dina filer finns kvar på den här datorn och på Corvimo Server.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>Synkroniseringsuppgiften raderades.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>Synkroniseringen är pausad. Ändringar synkroniseras när du återupptar den.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Rensa listan</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>All aktivitet</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Endast fel</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 laddades upp.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 laddades ned.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 raderades från den här datorn.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 raderades från Corvimo Server.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1 bytte namn till %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 flyttades till %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>Filer ändrade av %2: %1.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Välj mappar att synkronisera</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Välj en mapp på Corvimo Server och en mapp på den här datorn. Corvimo Client håller båda likadana.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Välj servermapp</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Välj lokal mapp</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändra</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Bläddra...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Verkställ</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Namn på den nya mappen</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>Mappen ”%1” kunde inte skapas. Välj ett annat namn eller kontrollera dina behörigheter.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Skapa en tom mapp med namnet ”%1” här</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsriktning</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tvåvägssynkronisering</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Ladda endast upp ändringar</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Ladda endast ned ändringar</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>Ändringar på ena sidan kopieras till den andra.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Ändringar på den här datorn laddas upp. Ändringar på Corvimo Server laddas inte ned.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Ändringar på Corvimo Server laddas ned. Ändringar på den här datorn laddas inte upp.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Behåll filer på den här datorn när de raderas på Corvimo Server</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Behåll filer på Corvimo Server när de raderas på den här datorn</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Slå samman mappar</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Båda mapparna innehåller redan filer. Välj vad som ska göras med dem.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>Mappen ”%1” finns redan. Vill du slå samman den med mappen på Corvimo Server?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Slå samman båda mapparna och behåll alla filer</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Använd filerna på den här datorn</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Använd filerna på Corvimo Server</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Välj en annan mapp</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Filer som skiljer sig åt behålls i två kopior.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Filer på Corvimo Server som inte finns på den här datorn raderas.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Filer på den här datorn som inte finns på Corvimo Server flyttas till papperskorgen.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Filer med samma namn ersätts. Detta går inte att ångra.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>Jämför båda mapparna...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>Jämförda filer: %1 av %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>Båda mapparna är nu likadana.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Den här mappen ingår redan i en synkroniseringsuppgift. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Den här mappen ligger i en mapp som redan synkroniseras. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Den här mappen innehåller en mapp som redan synkroniseras. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Systemmappar kan inte synkroniseras. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>En hel disk kan inte synkroniseras. Välj en mapp på den.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Mappar på flyttbara diskar kan inte synkroniseras.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Nätverksmappar som \\server\share kan inte synkroniseras. Välj en mapp på den här datorn.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>Du har inte behörighet att skriva till den här mappen. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Den här mappen är krypterad och låst. Lås först upp den på Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>Mappen hittades inte. Den kan ha flyttats eller raderats.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>Diskens filsystem stöds inte. Använd en disk med ett filsystem som stöds.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Du har nått gränsen på %1 synkroniseringsuppgifter. Radera en uppgift som du inte längre behöver.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Välj vad som ska synkroniseras till den här datorn. Mappar som du avmarkerar tas bort från den här datorn men finns kvar på Corvimo Server.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappar</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filfilter</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Avmarkera alla</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Synkronisera nya mappar automatiskt</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>Listan med mappar kunde inte läsas in. Kontrollera anslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Mappar som tas bort från den här datorn: %1. De finns kvar på Corvimo Server.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Vill du ta bort mapparna från den här datorn?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>En del filer i de här mapparna har inte laddats upp ännu och skulle gå förlorade. Synkronisera dem först.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Markerat: %1 av %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Synkronisera inte filer som är större än</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Synkronisera inte filer med dessa filtillägg</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Synkronisera inte filer med dessa namn</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Lägg till filtillägg</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Lägg till namn</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Synkronisera filer och mappar vars namn börjar med en punkt</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Temporära filer från vanliga program synkroniseras aldrig.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Återställ standardvärden</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Vill du gå tillbaka till standardfiltret?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Ange ett filtillägg, till exempel ”iso”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>”%1” finns redan i listan.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Ett namn får inte innehålla något av dessa tecken: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Ange en storlek mellan %1 och %2.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Utesluts av filter</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>Ditt val har sparats. Corvimo Client tillämpar det nu.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Dokumentfiler</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Bildfiler</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Videofiler</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Musikfiler</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Arkivfiler</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Andra filer</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>Versioner av ”%1”</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Aktuell version</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Tidigare version</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Ändrad av</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Ladda ned</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Förhandsvisa</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Den här filen har inga tidigare versioner.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Välj en fil för att se dess versioner.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Återställ version</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Vill du ersätta den aktuella versionen med versionen från %1?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>Den aktuella versionen behålls i historiken.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>”%1” återställdes till versionen från %2.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>Versionen kunde inte återställas. Försök igen senare.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Återställ som en kopia</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Spara versionen som</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>Versionen sparades i ”%1”.</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Vill du radera den här versionen? Den kan inte återskapas.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>Versionen kunde inte raderas.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Skyddad från automatisk radering</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Största antal versioner av en fil som Corvimo Server behåller: %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>Versionshistorik är avstängd för den här mappen. Be administratören att slå på den.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Versioner sparas inte för den här typen av fil.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Raderade filer</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Visa raderade filer</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Raderad %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Vill du återställa de markerade objekten (%1)?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Återställda objekt: %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Inga raderade filer hittades.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Gå tillbaka till en tidpunkt</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Välj datum och tid</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Jämför</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Dela</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>Dela ”%1”</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personer</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Länk</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Bjud in personer eller skapa en länk till det här objektet.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Bjud in personer</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Ange ett namn eller en e-postadress</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Skicka inbjudan</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>Inbjudan skickades till %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>Inbjudan kunde inte skickas. Kontrollera e-postadressen.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Meddelande (valfritt)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Spara</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Behörigheter</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Kan visa</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Kan redigera</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Kan hantera</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Kan bara ladda upp</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Ingen åtkomst</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>Behörigheterna för %1 ändrades.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>Du har inte behörighet att dela det här objektet. Fråga dess ägare.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Delat med mig</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Delat av mig</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Personer med åtkomst: %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Det här objektet är inte delat.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Lämna delad mapp</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Vill du lämna den delade mappen ”%1”? Den tas bort från den här datorn.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>”%1” delas inte längre med dig.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 delade ”%2” med dig.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupp</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Alla på den här servern</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Länkinställningar</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Skapa länk</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Skapar länk...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Radera länk</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Vill du radera den här länken? Personer som har den kan då inte längre öppna objektet.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Alla som har länken</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Endast personer med ett konto</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Skydda med ett lösenord</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>Lösenordet måste ha minst %1 tecken.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Ange ett lösenord för länken.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Länken gäller till</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>Upphör aldrig att gälla</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Välj ett datum i framtiden.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Den här länken har upphört att gälla.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>Antal tillåtna nedladdningar</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>Nedladdningar kvar: %1</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Tillåt nedladdning</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Tillåt uppladdning</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>Länken kunde inte skapas. Försök igen senare.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>Administratören har stängt av länkar för den här mappen.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Filbegäran</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>Personer med länken kan ladda upp filer till den här mappen utan att se dess innehåll.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>Visa QR-kod</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Konflikter</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>”%1” ändrades på två ställen samtidigt.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>%1 filer ändrades på två ställen samtidigt.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Välj vilken version som ska behållas. Den andra sparas som en konfliktkopia.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Behåll versionen på den här datorn</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Behåll versionen på Corvimo Server</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Behåll båda versionerna</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Behåll den nyare versionen</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Fråga mig varje gång</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Gör detta för alla konflikter</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>konfliktkopia från %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>På den här datorn</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>På Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Ändrad av %1, %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>När en fil har ändrats på två ställen</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Namn som bara skiljer sig åt i stora och små bokstäver</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>”%1” och ”%2” skiljer sig bara åt i stora och små bokstäver. Byt namn på en av dem.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Det finns inga konflikter.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>Konflikten löstes.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Konflikten kunde inte lösas eftersom filen är öppen. Stäng den och försök igen.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Lös</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Bestäm senare</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Öppna båda filerna</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Hoppa över</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Du raderade ”%1”, men filen ändrades på Corvimo Server. Den ändrade filen behölls.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>”%1” raderades på Corvimo Server, men du ändrade filen. Din fil behölls.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>”%1” är en fil på den ena sidan och en mapp på den andra. Byt namn på en av dem.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Konfliktkopior</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Radera konfliktkopior</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Vill du radera konfliktkopiorna (%1)? De kan inte återskapas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>”%1” är öppen i ett annat program och synkroniseras när den stängs.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Anslutning</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradress</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Värdnamn, IP-adress eller Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Kryptera anslutningen</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Utan kryptering kan andra i nätverket läsa dina filer och ditt lösenord.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Anslut</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Koppla från</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Anslut igen</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Testa anslutningen</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testar anslutningen...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Anslutningen fungerar.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>Anslutningen fungerar inte. Kontrollera adressen och porten.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Ansluten</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Ansluten till %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>Anslutningen till %1 bröts. Corvimo Client försöker igen om %2 sekunder.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>Anslutningen till %1 är tillbaka.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Väntar på en nätverksanslutning</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Synkronisera inte i nätverk som debiteras efter dataanvändning</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>Synkroniseringen är pausad eftersom det här nätverket debiteras efter dataanvändning.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Ansluten via det lokala nätverket</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Ansluten via internet</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Ansluten via en reläserver</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>Reläservern är långsammare än en direktanslutning.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Hitta servrar i det här nätverket</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Söker efter servrar...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>Ingen server hittades i det här nätverket. Ange serveradressen själv.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Hittade servrar: %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>Servern ”%1” hittades inte. Kontrollera att adressen är rättstavad.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>Servern nekade anslutningen. Kontrollera att Corvimo Server är igång.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>Servern svarade inte i tid. Försök igen senare.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Den här datorn är inte ansluten till ett nätverk.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Ange en port mellan 1 och 65535.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Ange serverns adress.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Det finns inget Corvimo ID ”%1”.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>Servern med detta Corvimo ID är offline. Kontrollera att den är påslagen.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>Corvimo Server är inte installerat eller körs inte på den här servern.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>Underhåll pågår på servern. Synkroniseringen fortsätter när servern är tillgänglig igen.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server är för gammal för den här klienten. Be administratören att uppdatera till version %1 eller senare.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Den här klienten är för gammal för Corvimo Server. Uppdatera den till version %1 eller senare.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>För många klienter är anslutna till servern. Försök igen senare.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Den här datorn blockerades efter för många misslyckade försök. Be administratören att häva blockeringen.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>En brandvägg blockerar kanske Corvimo Client. Tillåt Corvimo Client att använda port %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>En säker anslutning kunde inte upprättas: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Ett okänt fel uppstod (kod %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Redigera anslutning</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Ta bort anslutning</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Vill du ta bort anslutningen till %1? Dess synkroniseringsuppgifter raderas, men dina filer finns kvar.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>Filer som inte har laddats upp ännu: %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancerat</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Senast ansluten %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Använd en proxyserver om ditt nätverk behöver en för att nå internet.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Använd ingen proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Använd den här datorns proxyinställningar</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Konfigurera proxyn själv</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Proxytyp</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadress</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>Proxyn kräver användarnamn och lösenord</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Använd inte proxyn för lokala adresser</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Använd inte proxyn för dessa adresser</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Testa proxyn</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Proxyn fungerar.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Logga in på proxyn</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>Proxyn %1 begär användarnamn och lösenord.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>Proxyn godtog inte användarnamnet eller lösenordet.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>Proxyn %1 kan inte nås. Kontrollera dess adress och port.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>Proxyn tillåter inte anslutningar till %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Den här datorns proxyinställningar kunde inte läsas.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Ange proxyns adress.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certifikat</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>Certifikatet är inte betrott</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>Certifikatet för %1 är inte utfärdat av en känd utfärdare. Någon kan utge sig för att vara din server.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>Servern använder ett certifikat som den själv har signerat.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>Certifikatet upphörde att gälla %1.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>Certifikatet är inte giltigt före %1. Kontrollera den här datorns klocka.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>Certifikatet är utfärdat för %1, inte för %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>Certifikatet har återkallats av den som utfärdade det.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>Certifikatet har ändrats</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>Certifikatet för %1 är inte detsamma som användes tidigare. Fråga administratören om det har förnyats.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>Certifikatet använder en algoritm som inte längre anses säker.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Lita på det här certifikatet</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Lita alltid på det här certifikatet</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Lita på det endast den här gången</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Anslut inte</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Visa certifikat</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Utfärdat till</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Utfärdat av</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Gäller från</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Gäller till</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Fingeravtryck</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Signaturalgoritm</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Nyckellängd</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Exportera certifikat</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>Certifikatet sparades i ”%1”.</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Importera certifikat</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>Filen innehåller inget giltigt certifikat.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Vill du ta bort certifikatet för %1 från de betrodda certifikaten?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagringsutrymme</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 av %2 används</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 ledigt</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Obegränsat</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Lagringsutrymme på Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Lagringsutrymme på den här datorn</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Lagringsutrymme per filtyp</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Lagringsutrymme per mapp</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Lagringsutrymme som används av tidigare versioner</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Lagringsutrymme som används av raderade filer</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Töm papperskorgen</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Vill du tömma papperskorgen? Filerna i den kan inte återskapas.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>Papperskorgen tömdes. %1 är ledigt igen.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Beräknar...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Ditt lagringsutrymme är nästan fullt. Bara %1 återstår.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Ditt lagringsutrymme är fullt</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Nya filer kan inte laddas upp förrän du raderar några filer eller ber administratören om mer lagringsutrymme.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>Mappen ”%1” har nått sin kvot. Nya filer i den kan inte laddas upp.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Volymen på Corvimo Server är full. Be administratören att frigöra utrymme.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>”%1” är större än det lagringsutrymme som återstår (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Ont om diskutrymme</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>Bara %1 återstår på disken ”%2”. Synkroniseringen stoppas när disken är full.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Inte tillräckligt med diskutrymme</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>Det finns inte tillräckligt med utrymme på disken ”%1”. Synkroniseringen är pausad tills du frigör minst %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>”%1” laddades inte ned eftersom filen kräver %2 diskutrymme.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Du kan frigöra utrymme med selektiv synkronisering eller genom att endast ha filer online.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Öppna lagringsinställningarna</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Håll minst så här mycket diskutrymme ledigt</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Nedladdningar pausas när mindre utrymme återstår.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>Disken med mappen ”%1” är inte ansluten. Anslut den för att fortsätta synkroniseringen.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>Disken ”%1” är skrivskyddad. Ändringar från Corvimo Server kan inte sparas på den.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Det finns inte tillräckligt med utrymme för temporära filer. Frigör minst %1.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Temporära filer</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Radera temporära filer</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Temporära filer raderades (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Kontrollera igen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorera</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Använt</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Största filerna</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Radera eller flytta filer som du inte längre behöver.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>Ditt använda lagringsutrymme ökade med %1 den här månaden.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>I den här takten är ditt lagringsutrymme fullt %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Be om mer lagringsutrymme</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>Din begäran skickades till administratören.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>Din begäran väntar på svar.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>Kvoten för gruppen ”%1” är förbrukad.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 är klar.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Programuppdatering</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Sök efter uppdateringar</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Söker efter uppdateringar...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>Du har den senaste versionen.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Version %1 av Corvimo Client är tillgänglig.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Ladda ned och installera</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Påminn mig senare</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Hoppa över den här versionen</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laddar ned...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>Uppdateringen är klar. Starta om Corvimo Client för att installera den.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Starta om nu</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>Uppdateringen kunde inte installeras. Din nuvarande version fungerar som tidigare.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client kunde inte söka efter uppdateringar.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Versionsfakta</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Installera uppdateringar automatiskt</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 initialiserar...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Dina inställningar överförs från den tidigare versionen.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Dina inställningar har överförts. Du kan fortsätta där du slutade.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>En del inställningar från den tidigare versionen kunde inte överföras. Kontrollera dina synkroniseringsuppgifter.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>Uppdateringen kräver %1 diskutrymme.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Den här versionen stöds inte längre. Installera uppdateringen för att fortsätta synkroniseringen.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandbredd</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Uppladdningshastighet</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Nedladdningshastighet</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Begränsa till</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Anpassa automatiskt</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client lämnar utrymme åt andra program som använder nätverket.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Välj de timmar då begränsningen ska gälla.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Hela dagen</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Arbetstid</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>På natten</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Från</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>Synkronisera inte</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Full hastighet</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Begränsad hastighet</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Rensa schemat</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Ange en hastighet som är större än 0.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Ange en hastighet mellan %1 och %2.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>Starttiden måste vara tidigare än sluttiden.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>Administratören har begränsat hastigheten till %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Filer som överförs samtidigt</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>Begränsa inte hastigheten i det lokala nätverket</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Aktuell hastighet</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Genomsnittlig hastighet</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Överfört i dag</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Överfört den här månaden</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Välj vad Corvimo Client ska meddela dig om.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>När synkroniseringen är klar</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>När en fil inte kan synkroniseras</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>När någon delar ett objekt med mig</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>När någon kommenterar mina filer</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>När lagringsutrymmet är nästan fullt</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>När en säkerhetskopiering är klar eller har misslyckats</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>När en uppdatering är tillgänglig</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>När anslutningen bryts</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Spela upp ett ljud</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Stör ej</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Tysta timmar</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Inga notiser förrän %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Stör mig inte under presentationer</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Visa filnamn i notiser</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Notiser är avstängda i systeminställningarna på den här datorn.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Öppna systeminställningarna</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Avfärda</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Avfärda alla</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visa</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Markera som läst</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Notiscenter</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>Du har inga notiser.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Nya notiser: %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alla filer är uppdaterade.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>Den första synkroniseringen är klar. Filer som nu finns på den här datorn: %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Många filer raderades</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>%1 filer raderades från ”%2”. Återställ dem om detta inte var avsikten.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>%1 filer ändrades på kort tid. Om du inte gjorde detta bör du pausa synkroniseringen och kontrollera om det finns skadlig programvara på datorn.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>Mappen ”%1” har flyttats. Ange för Corvimo Client var den finns nu.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 kommenterade ”%2”.</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Synkroniseringsproblem</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>De här filerna kunde inte synkroniseras. Corvimo Client försöker igen när orsaken är åtgärdad.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problem: %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Det finns inga problem.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Orsak</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Försök igen med alla</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Kopiera detaljer</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Rapportera ett problem</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>Detaljerna kopierades till urklipp.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Felkod: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>Filen används av ett annat program. Stäng den där för att synkronisera filen.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>Filen är låst av %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>Filen raderades innan den hann synkroniseras.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>Filen ändrades medan den laddades upp. Den laddas upp igen.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>Filen skadades under överföringen. Den överförs igen.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Filen kan inte läsas. Kontrollera dess behörigheter.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>Det går inte att skriva till filen. Kontrollera dess behörigheter.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>Filen är större än gränsen på %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>Filen är för stor för diskens filsystem.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>Filen är krypterad och kan inte öppnas på den här datorn.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>Virusskyddet på Corvimo Server har blockerat filen.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>Virusskyddet på den här datorn har blockerat filen.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Filer av den här typen är inte tillåtna på Corvimo Server.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Enheter, rör och socketar kan inte synkroniseras.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Symboliska länkar som pekar utanför den synkroniserade mappen synkroniseras inte.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>Aliaset ”%1” pekar på ett objekt som inte synkroniseras.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>Namnet är för långt. Använd högst %1 tecken.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>Sökvägen är för lång. Förkorta namnen på dess mappar.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>Namnet innehåller tecken som inte är tillåtna: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>Namnet ”%1” är reserverat av systemet.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>Namnet slutar med ett mellanslag eller en punkt. Byt namn på objektet.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>Namnet innehåller tecken som inte kan läsas. Byt namn på objektet.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Ett objekt med namnet ”%1” finns redan i den här mappen.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Ange ett namn.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>Mappen ”%1” hittades inte.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>Mappen raderades inte eftersom den innehåller filer som inte synkroniseras.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Mappen kunde inte skapas.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Mappen kunde inte raderas.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>Du har inte behörighet att ändra den här mappen.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>Du har inte behörighet att öppna den här mappen.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>Mappen innehåller fler än %1 objekt. Flytta några av dem till undermappar.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>Mappen ligger för djupt i mappstrukturen.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>Servern är upptagen. Corvimo Client försöker igen om några minuter.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server rapporterade ett internt fel. Be administratören att titta i loggen.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server tar inte emot några ändringar just nu.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>Volymen med den här mappen är inte tillgänglig på Corvimo Server.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>Den delade mappen har tagits bort från Corvimo Server.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>Synkronisering har stängts av för den här delade mappen.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>Servern skickade ett svar som Corvimo Client inte förstår.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>Din session har avslutats. Logga in igen.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Data på Corvimo Server har nollställts. Konfigurera dina synkroniseringsuppgifter på nytt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>”%1” kunde inte laddas upp.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>”%1” kunde inte laddas upp: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>”%1” kunde inte laddas ned.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>”%1” kunde inte laddas ned: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>”%1” kunde inte raderas: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>Det gick inte att byta namn på ”%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>”%1” kunde inte flyttas: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>”%1” kunde inte återställas: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Åtkomst nekad</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>Disken rapporterade ett läs- eller skrivfel. Kontrollera om disken har fel.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>Disken togs bort medan filer skrevs.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Inte tillräckligt med minne. Stäng andra program och försök igen.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>Synkroniseringsdatabasen är skadad och byggs om. Det kan ta en stund.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>Synkroniseringsdatabasen används av ett annat program.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Bygger om synkroniseringsdatabasen...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>Synkroniseringsdatabasen har byggts om.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Dina inställningar kunde inte läsas. Standardvärdena används.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Dina inställningar kunde inte sparas.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Ändringar i en del mappar kan upptäckas sent eftersom systemet bevakar för många mappar.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>Den här datorns klocka skiljer sig från serverns klocka med mer än %1 minuter. Ställ den här datorns klocka rätt.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Den här åtgärden stöds inte av Corvimo Server.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>Åtgärden avbröts.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>Åtgärden tog för lång tid och stoppades.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ett okänt fel uppstod.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Corvimo Client kunde inte startas. Starta om den här datorn och försök igen.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client körs redan.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>En komponent i Corvimo Client saknas. Installera klienten på nytt.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Statussymbolerna kan inte visas eftersom andra program redan använder alla tillgängliga symbolplatser.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client behöver din tillåtelse för att läsa den här mappen. Tillåt det i integritetsinställningarna på den här datorn.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Starta om Corvimo Client om problemet kvarstår.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Fråga administratören om problemet kvarstår.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Kontakta supporten och ange felkoden om problemet kvarstår.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Vill du fortsätta med de återstående filerna?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Logga in</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Logga ut</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Logga in på Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Visa lösenord</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Har du glömt lösenordet?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Förbli inloggad</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Loggar in...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Inloggad som %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Du är utloggad.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Vill du logga ut? Synkroniseringen stoppas tills du loggar in igen.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Logga in med webbläsaren</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Fortsätt i webbläsaren och kom sedan tillbaka hit.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>Webbläsaren kunde inte öppnas. Öppna den här adressen själv: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domän</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Ange ditt användarnamn som domän\användare om ditt konto tillhör en domän.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Lägg till konto</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Byt konto</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Ta bort konto</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Vill du ta bort kontot %1 från den här datorn? Dina filer finns kvar på den här datorn och på Corvimo Server.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-postadress</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Fullständigt namn</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Byt lösenord</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Nuvarande lösenord</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nytt lösenord</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Upprepa det nya lösenordet</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>Ditt lösenord har bytts.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>Administratören kräver att du byter lösenord.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Dagar tills ditt lösenord upphör att gälla: %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>De två lösenorden är inte likadana.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>Det nya lösenordet måste skilja sig från det nuvarande.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Ange ditt användarnamn.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Ange ditt lösenord.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Användarnamnet eller lösenordet är fel.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>Användarnamnet eller lösenordet är fel. Antal återstående försök: %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Ditt konto är inaktiverat. Fråga administratören.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Ditt konto har upphört att gälla. Fråga administratören.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Du har inte behörighet att använda Corvimo Server. Fråga administratören.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>Ditt lösenord har upphört att gälla. Byt det på Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>Din hemmapp är inte tillgänglig. Be administratören att slå på tjänsten för hemmappar.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>Gästkontot kan inte användas för synkronisering.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Alla licenser för Corvimo Server används.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Namn på den här datorn</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Kopplade enheter</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Vill du koppla bort ”%1”? Enheten loggas ut och slutar synkronisera.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Den här datorn kopplades bort av %1. Logga in igen för att fortsätta synkroniseringen.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Den här datorn</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Radera även filerna på enheten</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Tvåstegsinloggning</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Ange koden som visas i din autentiseringsapp.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Verifieringskod</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 siffror</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verifiera</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Verifierar...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Lita på den här enheten</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Fråga inte igen på den här datorn på så här många dagar: %1</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Har du tappat bort telefonen?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Skicka en kod via e-post</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>En kod skickades till %1. Den gäller i 10 minuter.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Koden kunde inte skickas. Be administratören om hjälp.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Använd en återställningskod</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Ange en av återställningskoderna som du skrev ned. Varje kod fungerar en gång.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Återställningskoder kvar: %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Använd en säkerhetsnyckel</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Sätt i säkerhetsnyckeln och rör vid den.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>Säkerhetsnyckeln kändes inte igen. Prova en annan.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Godkänn inloggningen på telefonen</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>Väntar på ditt godkännande...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Välj talet %1 på telefonen.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>Inloggningen nekades på telefonen.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>Begäran har upphört att gälla. Skicka den igen.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Skicka igen</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Prova ett annat sätt</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Ange koden.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>Koden är fel. Kontrollera att klockan på telefonen går rätt.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Den här koden har redan använts. Vänta på nästa.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>För många felaktiga koder. Minuter tills du kan försöka igen: %1.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>Administratören kräver tvåstegsinloggning. Konfigurera den först på Corvimo Server.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Konfigurera tvåstegsinloggning</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Skanna den här koden med din autentiseringsapp.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>Tvåstegsinloggning är på.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Säkerhetskopieringsuppgifter</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>En säkerhetskopieringsuppgift kopierar mappar på den här datorn till Corvimo Server och behåller tidigare versioner.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Skapa säkerhetskopieringsuppgift</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Redigera säkerhetskopieringsuppgift</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Radera säkerhetskopieringsuppgift</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Vill du radera säkerhetskopieringsuppgiften ”%1”?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Radera även de säkerhetskopierade filerna på Corvimo Server</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Uppgiftens namn</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Det finns redan en uppgift med det här namnet.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Vad som ska säkerhetskopieras</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Lägg till mapp</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Välj minst en mapp att säkerhetskopiera.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>Mappen ”%1” finns inte längre. Den utelämnas ur säkerhetskopian.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Skrivbord</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokument</translation>
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
        <translation>Videor</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Hämtade filer</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Externa diskar</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Var säkerhetskopian ska lagras</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Den här mappen innehåller redan en säkerhetskopia av en annan dator.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>När säkerhetskopiering ska ske</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Så fort en fil ändras</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>Enligt ett schema</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Endast när jag startar den</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Varje dag</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Varje vecka</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Varje månad</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Varje timme</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Kl. %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>Dessa dagar</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>När en extern disk ansluts</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Väck den här datorn för säkerhetskopieringen</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Säkerhetskopiera nu</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Stoppa säkerhetskopieringen</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Vill du stoppa säkerhetskopieringen? Filer som redan har säkerhetskopierats behålls.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Säkerhetskopierar...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Säkerhetskopierar filer: %1 av %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Säkerhetskopieringen är klar.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Senaste säkerhetskopiering: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Nästa säkerhetskopiering: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Inte säkerhetskopierad ännu</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>Säkerhetskopieringen är klar. Filer som inte kunde läsas: %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>Säkerhetskopieringen misslyckades: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>Säkerhetskopieringen som planerades till %1 missades. Den startar nu.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Dagar sedan den senaste säkerhetskopieringen av den här datorn: %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Hur länge versioner ska behållas</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Behåll alla versioner</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Antal versioner att behålla: %1</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Antal dagar att behålla versioner: %1</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Behåll färre versioner ju äldre de blir</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Kryptera säkerhetskopian</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Krypteringsnyckel</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Förvara nyckeln på en säker plats. Utan den kan säkerhetskopian inte återställas.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>Krypteringsnyckeln är fel.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Återställ filer</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Välj de filer som ska återställas och var de ska placeras.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Återställ till den ursprungliga platsen</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Ersätt befintliga filer</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>Återställer filer: %1 av %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Alla filer återställdes.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>Återställda filer: %1. Filer som inte kunde återställas: %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Verifiera säkerhetskopian</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>Säkerhetskopian är intakt.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Skadade filer i säkerhetskopian: %1. De säkerhetskopieras igen.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Klar</translation>
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
        <translation>Version %1 (bygge %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Serverversion</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Med ensamrätt.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licensavtal</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Integritetspolicy</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Programvara från tredje part</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Webbplats</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Kontakta supporten</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Skicka feedback</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Tack för att du använder Corvimo Client.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Loggar</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Detaljnivå</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Allt</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>Detaljerade loggar gör klienten långsammare. Gå tillbaka till den normala nivån när du är klar.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Öppna loggmappen</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Spara loggen</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>Loggen sparades i ”%1”.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Loggen kunde inte sparas.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Rensa loggen</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Vill du rensa loggen?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Skicka loggen till supporten</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Skickar loggen...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>Loggen skickades. Ditt rapportnummer är %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Loggen kunde inte skickas. Spara den och skicka den via e-post.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>Loggen innehåller namn på filer och mappar men inte deras innehåll.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Skicka anonyma användningsdata för att hjälpa till att förbättra Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Starta Corvimo Client när jag loggar in på den här datorn</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Visa statussymboler på filer och mappar</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Visa Corvimo Client i kontextmenyn</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Visa synkroniserade mappar i sidofältet</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Visa symbolen i menyraden</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>Samma som systemet</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>Språket ändras när du startar om Corvimo Client.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Utseende</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Ljust</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Mörkt</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Textstorlek</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>Försätt inte datorn i vila medan filer synkroniseras</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Flytta filer som raderas på Corvimo Server till papperskorgen</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Varna mig innan många filer raderas</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Vill du återställa alla inställningar? Dina synkroniseringsuppgifter påverkas inte.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Den här inställningen hanteras av administratören.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Dina inställningar har sparats.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Vill du förkasta dina ändringar?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Förkasta</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Filer på begäran</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Alla filer listas på den här datorn, men en fil laddas ned först när du öppnar den.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>Använd ”Filer på begäran”</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Vill du använda ”Filer på begäran” för ”%1”? Filer som redan finns på den här datorn blir kvar här.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>”Filer på begäran” är på.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>Stäng av ”Filer på begäran”</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Vill du stänga av ”Filer på begäran”? Alla filer i den här mappen laddas ned (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Det finns inte tillräckligt med utrymme för att ladda ned alla filer. Det krävs %1 till.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Endast online</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Alltid på den här datorn</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Delvis på den här datorn</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>Filer som blir tillgängliga endast online: %1. Vill du fortsätta?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>%1 diskutrymme frigjordes.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Filer som inte har laddats upp ännu finns kvar på den här datorn.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>”%1” är öppen och finns kvar på den här datorn.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Frigör utrymme automatiskt</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Gör filer tillgängliga endast online när de inte har öppnats på så här många dagar: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Endast när det är ont om diskutrymme</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 laddar ned ”%2”.</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Hindra det här programmet från att ladda ned filer</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Ett program öppnar många filer som endast finns online. Vill du tillåta det?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>”%1” kan inte öppnas eftersom filen endast finns online och Corvimo Client inte är ansluten.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Starta Corvimo Client för att öppna filer som endast finns online.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>”Filer på begäran” stöds inte av den här versionen av systemet.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>”Filer på begäran” stöds inte på den här disken.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Tillåt filleverantörstillägget i systeminställningarna för att använda ”Filer på begäran”.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Visa förhandsvisningar av filer som endast finns online</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>Innehållet i filer som endast finns online kan inte genomsökas på den här datorn.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Tillåt</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Blockera</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Välkommen till Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Konfigurera Corvimo Client i några få steg för att ha dina filer på alla datorer.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Kom igång</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Steg %1 av %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Anslut till din server</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Ange adressen till Corvimo Server och logga in med ditt konto.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>Vad vill du göra?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Synkronisera filer</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Håll filer likadana på den här datorn och på Corvimo Server.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Säkerhetskopiera den här datorn</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Kopiera dina filer till Corvimo Server för att skydda dem mot förlust.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Dina filer synkroniseras till ”%1”.</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Teammappar</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Välj de teammappar som du vill ha på den här datorn.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>Du är inte medlem i någon teammapp.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Synkroniseringsalternativ</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Synkronisera alla filer</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client behöver din tillåtelse för att visa notiser och läsa dina mappar.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammanfattning</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Kontrollera dina val innan du börjar.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>Filer att ladda ned: %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Allt är klart</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client synkroniserar nu dina filer. Du hittar programmet i menyraden.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Ta en rundtur</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Klicka på symbolen i menyraden för att se vad som pågår.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Högerklicka på en fil för att dela den eller se dess versioner.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Symbolerna på dina filer visar om de är synkroniserade.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Vill du avsluta konfigureringen? Du kan fortsätta senare.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Inställningar från en tidigare installation hittades. Vill du använda dem?</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 byte</translation>
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
        <translation>%1 procent</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 fil</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 filer</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 mapp</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 mappar</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Objekt: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 av %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>Filer: %1, mappar: %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 och %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Just nu</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>I dag kl. %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>I går kl. %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>I morgon</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 kl. %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>För en minut sedan</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>För %1 minuter sedan</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>För en timme sedan</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>För %1 timmar sedan</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>För %1 dagar sedan</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Förra veckan</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Förra månaden</translation>
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
        <translation>%1 tim</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1 s kvar</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>%1 min kvar</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>%1 tim kvar</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Måndag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tisdag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Onsdag</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Torsdag</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Fredag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Lördag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Söndag</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Läs mer</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Visa inte det här meddelandet igen</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Vänta...</translation>
    </message>
</context>
</TS>
