<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Usunięto</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Odłącz</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Dodano plik: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Zmień folder</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Dodano</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Zmodyfikowano</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Zmieniono nazwę</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Przeniesiono</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Przywrócono</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>Zmieniono plik: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Usunięto plik: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Zmieniono nazwę pliku: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Dodano folder: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Usunięto folder: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Ostatnio zmienione pliki</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Żadne pliki nie zostały jeszcze zmienione.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Pokaż wszystkie zmiany</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Otwórz aplikację Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Otwórz w przeglądarce internetowej</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Wstrzymaj synchronizację</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Wstrzymaj na godzinę</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Wstrzymaj do jutra</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Wznów synchronizację</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Powiadomienia</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>Corvimo Client — informacje</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Pliki nie będą synchronizowane, dopóki ponownie nie uruchomisz aplikacji Corvimo Client. Czy chcesz zakończyć?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Zsynchronizowano</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizowanie...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Synchronizowanie, pozostało plików: %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>Wysyłanie: %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Pobieranie: %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Wyszukiwanie zmian...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>Wstrzymano do %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Brak połączenia</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Łączenie...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Oczekiwanie</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>Wymagane jest Twoje działanie</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Nie udało się zsynchronizować niektórych plików.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Nie skonfigurowano żadnego zadania synchronizacji.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>Wysyłanie: %1, pobieranie: %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Otwórz za pomocą...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Pokaż w folderze</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Historia wersji</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Uzyskaj łącze</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Kopiuj łącze</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Udostępnij...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Wyślij łącze w wiadomości e-mail</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Synchronizuj teraz</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Synchronizuj ten folder</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Przestań synchronizować ten folder</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Zawsze zachowuj na tym komputerze</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Zwolnij miejsce</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Zablokuj plik</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Odblokuj plik</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Przywróć</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Odśwież</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Kopiuj ścieżkę</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nowy folder</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Wytnij</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Wklej</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Nie synchronizuj plików o tej nazwie</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Nie synchronizuj plików tego typu</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Zablokowane przez: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>Plik „%1” jest zablokowany. Inni mogą go czytać, ale nie mogą go zmieniać.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>Plik „%1” jest odblokowany.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>Łącze skopiowano do schowka.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>Ścieżkę skopiowano do schowka.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>Zaznaczone elementy: %1</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Tego elementu nie ma w synchronizowanym folderze.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Zadania synchronizacji</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Przegląd</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronizacja</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Kopia zapasowa</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Ostatnia aktywność</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Utwórz</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Utwórz zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Wstrzymaj wszystkie</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Wznów wszystkie</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>Brak wyników dla „%1”.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Nie ma jeszcze żadnego zadania synchronizacji. Utwórz zadanie, aby folder na tym komputerze i folder na serwerze Corvimo Server miały zawsze tę samą zawartość.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Folder na tym komputerze</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Folder na serwerze Corvimo Server</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Data modyfikacji</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Właściciel</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Ostatnia synchronizacja</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Zatrzymano</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Nie znaleziono folderu</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Usuwanie zadania synchronizacji</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Czy chcesz usunąć zadanie synchronizacji „%1”? Pliki pozostaną na tym komputerze i na serwerze Corvimo Server.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Czy chcesz usunąć zaznaczone zadania synchronizacji (%1)? Pliki pozostaną na tym komputerze i na serwerze Corvimo Server.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>Zadanie synchronizacji zostało usunięte.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>Synchronizacja jest wstrzymana. Zmiany zostaną zsynchronizowane po jej wznowieniu.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Wyczyść listę</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Wszystkie działania</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Tylko błędy</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>Wysłano na serwer: %1.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>Pobrano: %1.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>Usunięto z tego komputera: %1.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>Usunięto z serwera Corvimo Server: %1.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>Zmieniono nazwę: %1 na %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>Przeniesiono: %1 do %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>Zmienione pliki: %1. Zmiany wprowadził użytkownik %2.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Wybór folderów do synchronizacji</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Wybierz folder na serwerze Corvimo Server i folder na tym komputerze. Aplikacja Corvimo Client zadba o to, aby ich zawartość była taka sama.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Wybierz folder na serwerze</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Wybierz folder lokalny</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Zmień</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Przeglądaj...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Nazwa nowego folderu</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>Nie udało się utworzyć folderu „%1”. Wybierz inną nazwę lub sprawdź swoje uprawnienia.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Utwórz tutaj pusty folder o nazwie „%1”</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Kierunek synchronizacji</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronizacja dwukierunkowa</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Tylko wysyłaj zmiany</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Tylko pobieraj zmiany</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>Zmiany z każdej strony są kopiowane na drugą.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Zmiany na tym komputerze są wysyłane. Zmiany na serwerze Corvimo Server nie są pobierane.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Zmiany na serwerze Corvimo Server są pobierane. Zmiany na tym komputerze nie są wysyłane.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Zachowuj pliki na tym komputerze, gdy zostaną usunięte z serwera Corvimo Server</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Zachowuj pliki na serwerze Corvimo Server, gdy zostaną usunięte z tego komputera</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Scalanie folderów</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Oba foldery zawierają już pliki. Wybierz, co z nimi zrobić.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>Folder „%1” już istnieje. Czy chcesz go scalić z folderem na serwerze Corvimo Server?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Scal oba foldery i zachowaj wszystkie pliki</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Użyj plików z tego komputera</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Użyj plików z serwera Corvimo Server</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Wybierz inny folder</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Pliki, które się różnią, są zachowywane w dwóch kopiach.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Pliki na serwerze Corvimo Server, których nie ma na tym komputerze, zostaną usunięte.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Pliki na tym komputerze, których nie ma na serwerze Corvimo Server, zostaną przeniesione do kosza.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Pliki o tej samej nazwie zostaną zastąpione. Tej czynności nie można cofnąć.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>Porównywanie folderów...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>Porównane pliki: %1 z %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>Oba foldery mają teraz taką samą zawartość.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Ten folder jest już częścią zadania synchronizacji. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Ten folder znajduje się wewnątrz folderu, który jest już synchronizowany. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Ten folder zawiera folder, który jest już synchronizowany. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Folderów systemowych nie można synchronizować. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>Nie można synchronizować całego dysku. Wybierz folder na tym dysku.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Folderów na dyskach wymiennych nie można synchronizować.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Folderów sieciowych, takich jak \\server\share, nie można synchronizować. Wybierz folder na tym komputerze.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>Nie masz uprawnień do zapisu w tym folderze. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Ten folder jest zaszyfrowany i zablokowany. Najpierw odblokuj go na serwerze Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>Nie znaleziono folderu. Mógł zostać przeniesiony lub usunięty.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>System plików tego dysku nie jest obsługiwany. Użyj dysku z obsługiwanym systemem plików.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Osiągnięto limit zadań synchronizacji (%1). Usuń zadanie, którego już nie potrzebujesz.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronizacja selektywna</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Wybierz, co synchronizować z tym komputerem. Foldery, których zaznaczenie usuniesz, znikną z tego komputera, ale pozostaną na serwerze Corvimo Server.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Foldery</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtr plików</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Usuń zaznaczenie</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Automatycznie synchronizuj nowe foldery</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wczytywanie...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>Nie udało się wczytać listy folderów. Sprawdź połączenie i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Spróbuj ponownie</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Foldery, które zostaną usunięte z tego komputera: %1. Pozostaną one na serwerze Corvimo Server.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Usunąć foldery z tego komputera?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Niektóre pliki w tych folderach nie zostały jeszcze wysłane i zostałyby utracone. Najpierw je zsynchronizuj.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Zaznaczono: %1 z %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Nie synchronizuj plików większych niż</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Nie synchronizuj plików z tymi rozszerzeniami</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Nie synchronizuj plików o tych nazwach</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Dodaj rozszerzenie</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Dodaj nazwę</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Synchronizuj pliki i foldery o nazwach zaczynających się od kropki</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Pliki tymczasowe popularnych programów nigdy nie są synchronizowane.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Przywróć domyślne</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Czy chcesz wrócić do filtra domyślnego?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Wprowadź rozszerzenie, na przykład „iso”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>Pozycja „%1” jest już na liście.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Nazwa nie może zawierać żadnego z następujących znaków: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Wprowadź rozmiar od %1 do %2.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Wykluczone przez filtr</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>Twój wybór został zapisany. Aplikacja Corvimo Client właśnie go wprowadza.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Pliki dokumentów</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Pliki obrazów</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Pliki wideo</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Pliki muzyczne</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archiwa</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Inne pliki</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>Wersje pliku „%1”</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Bieżąca wersja</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Poprzednia wersja</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Zmienione przez</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Urządzenie</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Pobierz</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Ten plik nie ma poprzednich wersji.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Wybierz plik, aby zobaczyć jego wersje.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Przywracanie wersji</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Czy chcesz zastąpić bieżącą wersję wersją z %1?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>Bieżąca wersja pozostanie w historii.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>„%1”: przywrócono wersję z %2.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>Nie udało się przywrócić wersji. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Przywróć jako kopię</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Zapisz wersję jako</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>Wersję zapisano w „%1”.</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Czy chcesz usunąć tę wersję? Nie będzie można jej odzyskać.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>Nie udało się usunąć wersji.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Chronione przed automatycznym usunięciem</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Maksymalna liczba wersji pliku na serwerze Corvimo Server: %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>Historia wersji jest wyłączona dla tego folderu. Poproś administratora o jej włączenie.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Wersje nie są przechowywane dla plików tego typu.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Usunięte pliki</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Pokaż usunięte pliki</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Data usunięcia: %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Czy chcesz przywrócić zaznaczone elementy (%1)?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Przywrócone elementy: %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Nie znaleziono usuniętych plików.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Wróć do wybranej chwili</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Wybierz datę i godzinę</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Porównaj</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Udostępnij</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>Udostępnianie „%1”</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Osoby</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Łącze</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Zaproś inne osoby lub utwórz łącze do tego elementu.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Zaproś osoby</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Wprowadź nazwę lub adres e-mail</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Wyślij zaproszenie</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>Zaproszenie wysłano do: %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>Nie udało się wysłać zaproszenia. Sprawdź adres e-mail.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Wiadomość (opcjonalnie)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Uprawnienia</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Może wyświetlać</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Może edytować</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Może zarządzać</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Może tylko wysyłać pliki</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Brak dostępu</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>Uprawnienia użytkownika %1 zostały zmienione.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>Nie masz uprawnień do udostępnienia tego elementu. Zwróć się do jego właściciela.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Udostępnione mi</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Udostępnione przeze mnie</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Liczba osób z dostępem: %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Ten element nie jest udostępniany.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Opuść folder udostępniony</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Czy chcesz opuścić folder udostępniony „%1”? Zostanie on usunięty z tego komputera.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>Element „%1” nie jest Ci już udostępniany.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>Użytkownik %1 udostępnił Ci „%2”.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupa</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Wszyscy na tym serwerze</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Ustawienia łącza</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Utwórz łącze</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Tworzenie łącza...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Usuń łącze</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Czy chcesz usunąć to łącze? Osoby, które je mają, nie będą mogły już otworzyć elementu.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Każda osoba mająca łącze</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Tylko osoby mające konto</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Chroń hasłem</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>Minimalna liczba znaków w haśle: %1.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Wprowadź hasło do łącza.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Łącze ważne do</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>Nigdy nie wygasa</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Wybierz datę w przyszłości.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>To łącze wygasło.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>Dozwolona liczba pobrań</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>Pozostałe pobrania: %1</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Zezwalaj na pobieranie</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Zezwalaj na wysyłanie</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>Nie udało się utworzyć łącza. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>Administrator wyłączył łącza dla tego folderu.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Prośba o pliki</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>Osoby mające łącze mogą wysyłać pliki do tego folderu, nie widząc jego zawartości.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>Pokaż kod QR</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Konflikty</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>Plik „%1” został zmieniony w dwóch miejscach jednocześnie.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>Pliki zmienione jednocześnie w dwóch miejscach: %1.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Wybierz wersję, którą chcesz zachować. Druga zostanie zapisana jako kopia powodująca konflikt.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Zachowaj wersję z tego komputera</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Zachowaj wersję z serwera Corvimo Server</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Zachowaj obie wersje</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Zachowaj nowszą wersję</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Pytaj za każdym razem</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Zrób tak w przypadku wszystkich konfliktów</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>kopia powodująca konflikt – %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Na tym komputerze</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>Na serwerze Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Zmienione przez: %1, %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Gdy plik został zmieniony w dwóch miejscach</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Nazwy różniące się tylko wielkością liter</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>„%1” i „%2” różnią się tylko wielkością liter. Zmień nazwę jednego z elementów.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Nie ma konfliktów.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>Konflikt został rozwiązany.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Nie udało się rozwiązać konfliktu, ponieważ plik jest otwarty. Zamknij go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Rozwiąż</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Zdecyduj później</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Otwórz oba pliki</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Pomiń</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Usunięto plik „%1”, ale został on zmieniony na serwerze Corvimo Server. Zmieniony plik został zachowany.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>Plik „%1” usunięto z serwera Corvimo Server, ale został on przez Ciebie zmieniony. Twój plik został zachowany.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>„%1” jest plikiem po jednej stronie, a folderem po drugiej. Zmień nazwę jednego z elementów.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Kopie powodujące konflikt</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Usuń kopie powodujące konflikt</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Czy chcesz usunąć kopie powodujące konflikt (%1)? Nie będzie można ich odzyskać.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>Plik „%1” jest otwarty w innym programie i zostanie zsynchronizowany po zamknięciu.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Połączenie</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adres serwera</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Nazwa hosta, adres IP lub Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Szyfruj połączenie</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Bez szyfrowania inne osoby w sieci mogą odczytać Twoje pliki i hasło.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Połącz</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Rozłącz</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Połącz ponownie</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Testuj połączenie</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testowanie połączenia...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Połączenie działa.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>Połączenie nie działa. Sprawdź adres i port.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Połączono</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Połączono z %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>Utracono połączenie z %1. Aplikacja Corvimo Client spróbuje ponownie za %2 s.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>Połączenie z %1 zostało przywrócone.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Oczekiwanie na połączenie sieciowe</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Nie synchronizuj w sieciach taryfowych</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>Synchronizacja jest wstrzymana, ponieważ ta sieć jest taryfowa.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Połączono przez sieć lokalną</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Połączono przez internet</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Połączono przez serwer pośredniczący</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>Połączenie przez serwer pośredniczący jest wolniejsze niż bezpośrednie.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Znajdź serwery w tej sieci</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Wyszukiwanie serwerów...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>Nie znaleziono żadnego serwera w tej sieci. Wprowadź adres serwera samodzielnie.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Znalezione serwery: %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>Nie znaleziono serwera „%1”. Sprawdź pisownię adresu.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>Serwer odrzucił połączenie. Upewnij się, że Corvimo Server jest uruchomiony.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>Serwer nie odpowiedział w wyznaczonym czasie. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Ten komputer nie jest połączony z siecią.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Wprowadź numer portu od 1 do 65535.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Wprowadź adres serwera.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Corvimo ID „%1” nie istnieje.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>Serwer o tym Corvimo ID jest w trybie offline. Upewnij się, że jest włączony.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>Corvimo Server nie jest zainstalowany lub nie jest uruchomiony na tym serwerze.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>Trwa konserwacja serwera. Synchronizacja będzie kontynuowana, gdy serwer znów będzie dostępny.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server jest w zbyt starej wersji dla tego klienta. Poproś administratora o aktualizację do wersji %1 lub nowszej.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Ten klient jest w zbyt starej wersji dla serwera Corvimo Server. Zaktualizuj go do wersji %1 lub nowszej.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>Z serwerem jest połączonych zbyt wielu klientów. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Ten komputer został zablokowany po zbyt wielu nieudanych próbach. Poproś administratora o odblokowanie.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>Zapora może blokować aplikację Corvimo Client. Zezwól aplikacji Corvimo Client na używanie portu %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>Nie udało się nawiązać bezpiecznego połączenia: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Wystąpił nieznany błąd (kod %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Edycja połączenia</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Usuwanie połączenia</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Czy chcesz usunąć połączenie z %1? Jego zadania synchronizacji zostaną usunięte, ale pliki pozostaną.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>Pliki, które nie zostały jeszcze wysłane: %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Zaawansowane</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Ostatnie połączenie: %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Użyj serwera proxy, jeśli Twoja sieć wymaga go do łączenia się z internetem.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Nie używaj serwera proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Użyj ustawień serwera proxy tego komputera</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Skonfiguruj serwer proxy samodzielnie</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Typ serwera proxy</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adres serwera proxy</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>Serwer proxy wymaga nazwy użytkownika i hasła</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Nie używaj serwera proxy dla adresów lokalnych</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Nie używaj serwera proxy dla tych adresów</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Testuj serwer proxy</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Serwer proxy działa.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Logowanie do serwera proxy</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>Serwer proxy %1 wymaga nazwy użytkownika i hasła.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>Serwer proxy nie zaakceptował nazwy użytkownika lub hasła.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>Nie można połączyć się z serwerem proxy %1. Sprawdź jego adres i port.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>Serwer proxy nie zezwala na połączenia z %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Nie udało się odczytać ustawień serwera proxy tego komputera.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Wprowadź adres serwera proxy.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certyfikat</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>Certyfikat nie jest zaufany</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>Certyfikat serwera %1 nie został wystawiony przez znany urząd certyfikacji. Ktoś może podszywać się pod Twój serwer.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>Serwer używa certyfikatu z podpisem własnym.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>Certyfikat wygasł %1.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>Certyfikat nie jest ważny przed %1. Sprawdź zegar tego komputera.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>Certyfikat wystawiono dla %1, a nie dla %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>Certyfikat został unieważniony przez urząd, który go wystawił.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>Certyfikat został zmieniony</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>Certyfikat serwera %1 różni się od używanego wcześniej. Zapytaj administratora, czy został odnowiony.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>Certyfikat używa algorytmu, który nie jest już uznawany za bezpieczny.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Zaufaj temu certyfikatowi</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Zawsze ufaj temu certyfikatowi</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Zaufaj tylko tym razem</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Nie łącz</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Pokaż certyfikat</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Wystawiony dla</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Wystawiony przez</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Ważny od</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Ważny do</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numer seryjny</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Odcisk palca</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Algorytm podpisu</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Długość klucza</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Eksportuj certyfikat</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>Certyfikat zapisano w „%1”.</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Importuj certyfikat</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>Plik nie zawiera prawidłowego certyfikatu.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Czy chcesz usunąć certyfikat serwera %1 z zaufanych certyfikatów?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Miejsce na dane</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>Użyto %1 z %2</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>Wolne: %1</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Bez ograniczeń</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Miejsce na serwerze Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Miejsce na tym komputerze</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Miejsce według typów plików</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Miejsce według folderów</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Miejsce zajęte przez poprzednie wersje</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Miejsce zajęte przez usunięte pliki</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Opróżnij kosz</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Czy chcesz opróżnić kosz? Nie będzie można odzyskać plików, które się w nim znajdują.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>Kosz został opróżniony. Zwolnione miejsce: %1.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Obliczanie...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Miejsce na dane jest prawie zapełnione. Pozostało tylko %1.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Miejsce na dane jest zapełnione</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Nowych plików nie będzie można wysłać, dopóki nie usuniesz części plików lub nie poprosisz administratora o więcej miejsca.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>Folder „%1” osiągnął swój limit miejsca. Nowych plików z tego folderu nie można wysłać.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Wolumin serwera Corvimo Server jest zapełniony. Poproś administratora o zwolnienie miejsca.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>Plik „%1” jest większy niż pozostałe miejsce (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Mało miejsca na dysku</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>Na dysku „%2” pozostało tylko %1. Gdy dysk się zapełni, synchronizacja zostanie zatrzymana.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Za mało miejsca na dysku</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>Na dysku „%1” jest za mało miejsca. Synchronizacja jest wstrzymana, dopóki nie zwolnisz co najmniej %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>Plik „%1” nie został pobrany, ponieważ wymaga %2 miejsca na dysku.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Możesz zwolnić miejsce, korzystając z synchronizacji selektywnej lub przechowując pliki tylko online.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Otwórz ustawienia miejsca na dane</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Minimalna ilość wolnego miejsca na dysku</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Pobieranie jest wstrzymywane, gdy zostaje mniej miejsca.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>Dysk z folderem „%1” nie jest podłączony. Podłącz go, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>Dysk „%1” jest tylko do odczytu. Nie można na nim zapisać zmian z serwera Corvimo Server.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Brak miejsca na pliki tymczasowe. Zwolnij co najmniej %1.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Pliki tymczasowe</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Usuń pliki tymczasowe</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Rozmiar usuniętych plików tymczasowych: %1.</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Sprawdź ponownie</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignoruj</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Zajęte</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Największe pliki</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Usuń lub przenieś pliki, których już nie potrzebujesz.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>W tym miesiącu ilość zajętego miejsca wzrosła o %1.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>W tym tempie miejsce zapełni się %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Poproś o więcej miejsca</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>Prośba została wysłana do administratora.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>Prośba oczekuje na odpowiedź.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>Limit miejsca grupy „%1” został wykorzystany.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>Aplikacja %1 jest gotowa.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Aktualizacja oprogramowania</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Sprawdź dostępność aktualizacji</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Sprawdzanie dostępności aktualizacji...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>Masz najnowszą wersję.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Dostępna jest wersja %1 aplikacji Corvimo Client.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Pobierz i zainstaluj</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Przypomnij później</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Pomiń tę wersję</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>Aktualizacja jest gotowa. Uruchom ponownie aplikację Corvimo Client, aby ją zainstalować.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Uruchom ponownie teraz</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>Nie udało się zainstalować aktualizacji. Obecna wersja nadal działa.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Aplikacja Corvimo Client nie mogła sprawdzić dostępności aktualizacji.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Informacje o wersji</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Instaluj aktualizacje automatycznie</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>Aplikacja %1 jest inicjowana...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Trwa przenoszenie ustawień z wcześniejszej wersji.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Ustawienia zostały przeniesione. Możesz kontynuować pracę od miejsca, w którym ją przerwano.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>Nie udało się przenieść niektórych ustawień z wcześniejszej wersji. Sprawdź zadania synchronizacji.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>Aktualizacja wymaga %1 miejsca na dysku.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Ta wersja nie jest już obsługiwana. Zainstaluj aktualizację, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Przepustowość</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Szybkość wysyłania</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Szybkość pobierania</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Ogranicz do</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Dostosuj automatycznie</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Aplikacja Corvimo Client pozostawia część przepustowości innym programom korzystającym z sieci.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Harmonogram</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Wybierz godziny, w których obowiązuje limit.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Cały dzień</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Godziny pracy</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>W nocy</translation>
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
        <translation>Nie synchronizuj</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Pełna szybkość</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Ograniczona szybkość</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Wyczyść harmonogram</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Wprowadź szybkość większą niż 0.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Wprowadź szybkość od %1 do %2.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>Początek musi być wcześniejszy niż koniec.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>Administrator ograniczył szybkość do %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Liczba plików przesyłanych jednocześnie</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>Nie ograniczaj szybkości w sieci lokalnej</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Bieżąca szybkość</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Średnia szybkość</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Przesłano dzisiaj</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Przesłano w tym miesiącu</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Wybierz, o czym aplikacja Corvimo Client ma Cię powiadamiać.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Gdy synchronizacja zostanie ukończona</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Gdy nie można zsynchronizować pliku</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Gdy ktoś udostępni mi element</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Gdy ktoś skomentuje moje pliki</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Gdy miejsce na dane jest prawie zapełnione</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Gdy tworzenie kopii zapasowej zostanie ukończone lub się nie powiedzie</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Gdy jest dostępna aktualizacja</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Gdy połączenie zostanie utracone</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Odtwarzaj dźwięk</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Nie przeszkadzać</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Godziny ciszy</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Bez powiadomień do %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Nie przeszkadzaj podczas prezentacji</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Pokazuj nazwy plików w powiadomieniach</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Powiadomienia są wyłączone w ustawieniach systemowych tego komputera.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Otwórz ustawienia systemowe</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Odrzuć</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Odrzuć wszystkie</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Pokaż</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Oznacz jako przeczytane</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Centrum powiadomień</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>Nie masz żadnych powiadomień.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Nowe powiadomienia: %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Wszystkie pliki są aktualne.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>Pierwsza synchronizacja została ukończona. Liczba plików na tym komputerze: %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Usunięto wiele plików</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>Liczba plików usuniętych z folderu „%2”: %1. Jeśli nie było to zamierzone, przywróć je.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>Liczba plików zmienionych w krótkim czasie: %1. Jeśli to nie Twoje działanie, wstrzymaj synchronizację i sprawdź, czy na komputerze nie ma złośliwego oprogramowania.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>Folder „%1” został przeniesiony. Wskaż aplikacji Corvimo Client, gdzie się teraz znajduje.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>Użytkownik %1 skomentował „%2”.</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Problemy z synchronizacją</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Nie udało się zsynchronizować tych plików. Aplikacja Corvimo Client spróbuje ponownie, gdy przyczyna ustąpi.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problemy: %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Nie ma żadnych problemów.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Przyczyna</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Spróbuj ponownie ze wszystkimi</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Kopiuj szczegóły</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Zgłoś problem</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>Szczegóły skopiowano do schowka.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Kod błędu: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>Plik jest używany przez inny program. Zamknij go w tym programie, aby zsynchronizować plik.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>Plik jest zablokowany przez użytkownika %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>Plik został usunięty, zanim udało się go zsynchronizować.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>Plik zmienił się podczas wysyłania. Zostanie wysłany ponownie.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>Plik został uszkodzony podczas przesyłania. Zostanie przesłany ponownie.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Nie można odczytać pliku. Sprawdź jego uprawnienia.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>Nie można zapisać zmian w pliku. Sprawdź jego uprawnienia.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>Plik jest większy niż limit wynoszący %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>Plik jest za duży dla systemu plików tego dysku.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>Plik jest zaszyfrowany i nie można go otworzyć na tym komputerze.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>Skaner antywirusowy na serwerze Corvimo Server zablokował plik.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>Skaner antywirusowy na tym komputerze zablokował plik.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Pliki tego typu nie są dozwolone na serwerze Corvimo Server.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Urządzeń, potoków i gniazd nie można synchronizować.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Dowiązania symboliczne wskazujące poza synchronizowany folder nie są synchronizowane.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>Alias „%1” wskazuje element, który nie jest synchronizowany.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>Nazwa jest za długa. Maksymalna liczba znaków: %1.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>Ścieżka jest za długa. Skróć nazwy folderów, które ją tworzą.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>Nazwa zawiera niedozwolone znaki: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>Nazwa „%1” jest zastrzeżona przez system.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>Nazwa kończy się spacją lub kropką. Zmień nazwę elementu.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>Nazwa zawiera znaki, których nie można odczytać. Zmień nazwę elementu.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Element o nazwie „%1” już istnieje w tym folderze.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Wprowadź nazwę.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>Nie znaleziono folderu „%1”.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>Folder nie został usunięty, ponieważ zawiera pliki, które nie są synchronizowane.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Nie udało się utworzyć folderu.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Nie udało się usunąć folderu.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>Nie masz uprawnień do zmiany tego folderu.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>Nie masz uprawnień do otwarcia tego folderu.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>Liczba elementów w folderze przekracza %1. Przenieś część z nich do podfolderów.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>Folder jest zbyt głęboko zagnieżdżony.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>Serwer jest zajęty. Aplikacja Corvimo Client spróbuje ponownie za kilka minut.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server zgłosił błąd wewnętrzny. Poproś administratora o sprawdzenie dziennika.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server nie przyjmuje obecnie zmian.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>Wolumin z tym folderem jest niedostępny na serwerze Corvimo Server.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>Folder udostępniony został usunięty z serwera Corvimo Server.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>Synchronizacja tego folderu udostępnionego została wyłączona.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>Serwer przesłał odpowiedź, której aplikacja Corvimo Client nie rozumie.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>Twoja sesja wygasła. Zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Dane serwera Corvimo Server zostały zresetowane. Skonfiguruj ponownie zadania synchronizacji.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>Nie udało się wysłać „%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>Nie udało się wysłać „%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>Nie udało się pobrać „%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>Nie udało się pobrać „%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>Nie udało się usunąć „%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>Nie udało się zmienić nazwy „%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>Nie udało się przenieść „%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>Nie udało się przywrócić „%1”: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Odmowa dostępu</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>Dysk zgłosił błąd odczytu lub zapisu. Sprawdź, czy dysk nie jest uszkodzony.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>Dysk został odłączony podczas zapisywania plików.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Za mało pamięci. Zamknij inne programy i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>Baza danych synchronizacji jest uszkodzona i zostanie odbudowana. Może to chwilę potrwać.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>Baza danych synchronizacji jest używana przez inny program.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Odbudowywanie bazy danych synchronizacji...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>Baza danych synchronizacji została odbudowana.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Nie udało się odczytać ustawień. Użyto wartości domyślnych.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Nie udało się zapisać ustawień.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Zmiany w niektórych folderach mogą być wykrywane z opóźnieniem, ponieważ system obserwuje zbyt wiele folderów.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>Zegar tego komputera różni się od zegara serwera o więcej niż %1 min. Ustaw prawidłowy czas na tym komputerze.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Ta czynność nie jest obsługiwana przez Corvimo Server.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>Czynność została anulowana.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>Czynność trwała zbyt długo i została zatrzymana.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Wystąpił nieznany błąd.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Nie udało się uruchomić aplikacji Corvimo Client. Uruchom ponownie komputer i spróbuj jeszcze raz.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Aplikacja Corvimo Client jest już uruchomiona.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Brakuje składnika aplikacji Corvimo Client. Zainstaluj klienta ponownie.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Nie można pokazać ikon stanu, ponieważ inne programy zajmują już wszystkie dostępne miejsca na ikony.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Aplikacja Corvimo Client potrzebuje Twojego zezwolenia na odczyt tego folderu. Udziel go w ustawieniach prywatności tego komputera.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Jeśli problem nie zniknie, uruchom ponownie aplikację Corvimo Client.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Jeśli problem nie zniknie, zwróć się do administratora.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Jeśli problem nie zniknie, skontaktuj się z pomocą techniczną i podaj kod błędu.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Czy chcesz kontynuować z pozostałymi plikami?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Zaloguj się</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Wyloguj się</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Logowanie do serwera Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Pokaż hasło</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Nie pamiętasz hasła?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Nie wylogowuj mnie</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Logowanie...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Zalogowano jako %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Wylogowano.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Czy chcesz się wylogować? Synchronizacja zostanie zatrzymana do czasu ponownego zalogowania.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Zaloguj się w przeglądarce</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Kontynuuj w przeglądarce, a potem wróć tutaj.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>Nie udało się otworzyć przeglądarki. Otwórz samodzielnie ten adres: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domena</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Jeśli konto należy do domeny, wprowadź nazwę użytkownika w postaci domena\użytkownik.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Dodaj konto</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Przełącz konto</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Usuń konto</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Czy chcesz usunąć konto %1 z tego komputera? Pliki pozostaną na tym komputerze i na serwerze Corvimo Server.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>Adres e-mail</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Imię i nazwisko</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Zmień hasło</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Obecne hasło</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nowe hasło</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Powtórz nowe hasło</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>Hasło zostało zmienione.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>Administrator wymaga zmiany hasła.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Liczba dni do wygaśnięcia hasła: %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Hasła nie są takie same.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>Nowe hasło musi różnić się od obecnego.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Wprowadź nazwę użytkownika.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Wprowadź hasło.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Nazwa użytkownika lub hasło są nieprawidłowe.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>Nazwa użytkownika lub hasło są nieprawidłowe. Pozostałe próby: %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Twoje konto jest wyłączone. Zwróć się do administratora.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Twoje konto wygasło. Zwróć się do administratora.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Nie masz uprawnień do korzystania z serwera Corvimo Server. Zwróć się do administratora.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>Twoje hasło wygasło. Zmień je na serwerze Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>Twój folder domowy jest niedostępny. Poproś administratora o włączenie usługi folderów domowych.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>Konta gościa nie można używać do synchronizacji.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Wszystkie licencje serwera Corvimo Server są w użyciu.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Nazwa tego komputera</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Powiązane urządzenia</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Czy chcesz odłączyć „%1”? Urządzenie zostanie wylogowane i przestanie się synchronizować.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Ten komputer został odłączony przez użytkownika %1. Zaloguj się ponownie, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Ten komputer</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Usuń także pliki na urządzeniu</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Logowanie dwuetapowe</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Wprowadź kod wyświetlany w aplikacji uwierzytelniającej.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Kod weryfikacyjny</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 cyfr</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Zweryfikuj</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Weryfikowanie...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Ufaj temu urządzeniu</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Nie pytaj ponownie na tym komputerze (liczba dni: %1)</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Nie masz telefonu?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Wyślij kod e-mailem</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>Kod wysłano na adres %1. Jest ważny przez 10 minut.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Nie udało się wysłać kodu. Poproś administratora o pomoc.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Użyj kodu odzyskiwania</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Wprowadź jeden z zapisanych kodów odzyskiwania. Każdy kod działa tylko raz.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Pozostałe kody odzyskiwania: %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Użyj klucza bezpieczeństwa</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Podłącz klucz bezpieczeństwa i dotknij go.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>Nie rozpoznano klucza bezpieczeństwa. Spróbuj użyć innego.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Zatwierdź logowanie na telefonie</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>Oczekiwanie na zatwierdzenie...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Wybierz na telefonie liczbę %1.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>Logowanie zostało odrzucone na telefonie.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>Prośba wygasła. Wyślij ją ponownie.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Wyślij ponownie</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Spróbuj innego sposobu</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Wprowadź kod.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>Kod jest nieprawidłowy. Sprawdź, czy zegar telefonu jest ustawiony prawidłowo.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Ten kod został już użyty. Poczekaj na następny.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>Zbyt wiele nieprawidłowych kodów. Odczekaj %1 min i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>Administrator wymaga logowania dwuetapowego. Najpierw skonfiguruj je na serwerze Corvimo Server.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Skonfiguruj logowanie dwuetapowe</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Zeskanuj ten kod w aplikacji uwierzytelniającej.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>Logowanie dwuetapowe jest włączone.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Zadania kopii zapasowej</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>Zadanie kopii zapasowej kopiuje foldery tego komputera na serwer Corvimo Server i zachowuje poprzednie wersje.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Utwórz zadanie kopii zapasowej</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Edytuj zadanie kopii zapasowej</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Usuń zadanie kopii zapasowej</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Czy chcesz usunąć zadanie kopii zapasowej „%1”?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Usuń także pliki kopii zapasowej na serwerze Corvimo Server</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Nazwa zadania</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Zadanie o tej nazwie już istnieje.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Co uwzględnić w kopii zapasowej</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Dodaj folder</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Wybierz co najmniej jeden folder do kopii zapasowej.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>Folder „%1” już nie istnieje. Zostanie pominięty w kopii zapasowej.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Biurko</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumenty</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Obrazy</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Muzyka</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Filmy</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Pobrane rzeczy</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Dyski zewnętrzne</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Gdzie przechowywać kopię zapasową</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Ten folder zawiera już kopię zapasową innego komputera.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Kiedy tworzyć kopię zapasową</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Przy każdej zmianie pliku</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>Według harmonogramu</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Tylko po ręcznym uruchomieniu</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Codziennie</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Co tydzień</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Co miesiąc</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Co godzinę</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>O %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>W te dni</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>Po podłączeniu dysku zewnętrznego</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Wybudzaj ten komputer, aby utworzyć kopię zapasową</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Utwórz kopię zapasową teraz</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Zatrzymaj tworzenie kopii zapasowej</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Czy chcesz zatrzymać tworzenie kopii zapasowej? Pliki już skopiowane zostaną zachowane.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Tworzenie kopii zapasowej...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Tworzenie kopii zapasowej, pliki: %1 z %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Tworzenie kopii zapasowej zostało ukończone.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Ostatnia kopia zapasowa: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Następna kopia zapasowa: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Nie utworzono jeszcze kopii zapasowej</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>Tworzenie kopii zapasowej zostało ukończone. Pliki, których nie udało się odczytać: %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>Tworzenie kopii zapasowej nie powiodło się: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>Pominięto tworzenie kopii zapasowej zaplanowane na %1. Rozpocznie się teraz.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Liczba dni od ostatniej kopii zapasowej tego komputera: %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Jak długo przechowywać wersje</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Zachowuj wszystkie wersje</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Liczba zachowywanych wersji: %1</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Liczba dni zachowywania wersji: %1</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Z czasem zachowuj coraz mniej starszych wersji</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Szyfruj kopię zapasową</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Klucz szyfrowania</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Przechowuj klucz w bezpiecznym miejscu. Bez niego nie można przywrócić danych z kopii zapasowej.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>Klucz szyfrowania jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Przywróć pliki</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Wybierz pliki do przywrócenia i miejsce dla nich.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Przywróć w pierwotnym miejscu</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Zastępuj istniejące pliki</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>Przywracanie plików: %1 z %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Wszystkie pliki zostały przywrócone.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>Przywrócone pliki: %1. Pliki, których nie udało się przywrócić: %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Zweryfikuj kopię zapasową</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>Kopia zapasowa jest nienaruszona.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Uszkodzone pliki w kopii zapasowej: %1. Zostaną skopiowane ponownie.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
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
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>Wersja %1 (kompilacja %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Wersja serwera</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Wszelkie prawa zastrzeżone.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Umowa licencyjna</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Zasady ochrony prywatności</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Oprogramowanie innych firm</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Witryna internetowa</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Skontaktuj się z pomocą techniczną</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Wyślij opinię</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Dziękujemy za korzystanie z aplikacji Corvimo Client.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Dzienniki</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Poziom szczegółowości</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normalny</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Wszystko</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>Szczegółowe dzienniki spowalniają klienta. Gdy nie będą już potrzebne, wróć do poziomu normalnego.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Otwórz folder dzienników</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Zapisz dziennik</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>Dziennik zapisano w „%1”.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Nie udało się zapisać dziennika.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Wyczyść dziennik</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Czy chcesz wyczyścić dziennik?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Wyślij dziennik do pomocy technicznej</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Wysyłanie dziennika...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>Dziennik został wysłany. Numer zgłoszenia: %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Nie udało się wysłać dziennika. Zapisz go i wyślij w wiadomości e-mail.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>Dziennik zawiera nazwy plików i folderów, ale nie ich zawartość.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Wysyłaj anonimowe dane o użytkowaniu, aby pomóc ulepszać aplikację Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Uruchamiaj aplikację Corvimo Client, gdy loguję się na tym komputerze</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Pokazuj ikony stanu na plikach i folderach</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Pokazuj aplikację Corvimo Client w menu kontekstowym</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Pokazuj synchronizowane foldery na pasku bocznym</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Pokazuj ikonę na pasku menu</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>Taki jak w systemie</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>Język zmieni się po ponownym uruchomieniu aplikacji Corvimo Client.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Wygląd</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Jasny</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Ciemny</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Rozmiar tekstu</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>Nie usypiaj komputera podczas synchronizowania plików</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Przenoś do kosza pliki usunięte z serwera Corvimo Server</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Ostrzegaj przed usunięciem wielu plików</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Czy chcesz zresetować wszystkie ustawienia? Zadania synchronizacji pozostaną bez zmian.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Tym ustawieniem zarządza administrator.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Ustawienia zostały zapisane.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Czy chcesz odrzucić zmiany?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Odrzuć zmiany</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Pliki na żądanie</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Na tym komputerze widać wszystkie pliki, ale plik jest pobierany dopiero wtedy, gdy go otworzysz.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>Użyj funkcji „Pliki na żądanie”</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Czy chcesz używać funkcji „Pliki na żądanie” dla „%1”? Pliki, które są już na tym komputerze, na nim pozostaną.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>Funkcja „Pliki na żądanie” jest włączona.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>Wyłącz funkcję „Pliki na żądanie”</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Czy chcesz wyłączyć funkcję „Pliki na żądanie”? Zostaną pobrane wszystkie pliki z tego folderu (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Za mało miejsca, aby pobrać wszystkie pliki. Potrzeba jeszcze %1.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Tylko online</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Zawsze na tym komputerze</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Częściowo na tym komputerze</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>Pliki, które będą dostępne tylko online: %1. Czy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>Zwolnione miejsce na dysku: %1.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Pliki, które nie zostały jeszcze wysłane, pozostają na tym komputerze.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>Plik „%1” jest otwarty i pozostaje na tym komputerze.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Zwalniaj miejsce automatycznie</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Przechowuj tylko online pliki nieotwierane od dłuższego czasu (liczba dni: %1)</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Tylko gdy jest mało miejsca na dysku</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 pobiera „%2”.</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Blokuj pobieranie przez ten program</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Program otwiera wiele plików dostępnych tylko online. Czy chcesz na to zezwolić?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>Nie można otworzyć pliku „%1”, ponieważ jest dostępny tylko online, a aplikacja Corvimo Client nie ma połączenia.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Uruchom aplikację Corvimo Client, aby otwierać pliki dostępne tylko online.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>Funkcja „Pliki na żądanie” nie jest obsługiwana w tej wersji systemu.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>Funkcja „Pliki na żądanie” nie jest obsługiwana na tym dysku.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Aby korzystać z funkcji „Pliki na żądanie”, zezwól na rozszerzenie dostawcy plików w ustawieniach systemowych.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Pokazuj podglądy plików dostępnych tylko online</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>Na tym komputerze nie można przeszukiwać zawartości plików dostępnych tylko online.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Zezwól</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Zablokuj</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Witamy w aplikacji Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Skonfiguruj aplikację Corvimo Client w kilku krokach, aby mieć swoje pliki na każdym komputerze.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Rozpocznij</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Krok %1 z %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Połączenie z serwerem</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Wprowadź adres serwera Corvimo Server i zaloguj się na swoje konto.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>Co chcesz zrobić?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Synchronizuj pliki</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Utrzymuj identyczne pliki na tym komputerze i na serwerze Corvimo Server.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Twórz kopię zapasową tego komputera</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Kopiuj pliki na serwer Corvimo Server, aby chronić je przed utratą.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Pliki będą synchronizowane z folderem „%1”.</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Foldery zespołów</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Wybierz foldery zespołów, które chcesz mieć na tym komputerze.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>Nie masz dostępu do żadnego folderu zespołu.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Opcje synchronizacji</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Synchronizuj wszystkie pliki</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Aplikacja Corvimo Client potrzebuje Twojego zezwolenia na pokazywanie powiadomień i odczyt folderów.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Przed rozpoczęciem sprawdź wybrane opcje.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>Pliki do pobrania: %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Wszystko gotowe</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Aplikacja Corvimo Client synchronizuje teraz Twoje pliki. Znajdziesz ją na pasku menu.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Poznaj aplikację</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Kliknij ikonę na pasku menu, aby zobaczyć, co się dzieje.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Kliknij plik prawym przyciskiem myszy, aby go udostępnić lub zobaczyć jego wersje.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Ikony na plikach pokazują, czy są one zsynchronizowane.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Czy chcesz przerwać konfigurację? Możesz ją dokończyć później.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Znaleziono ustawienia wcześniejszej instalacji. Czy chcesz ich użyć?</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
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
        <translation>1 plik</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>Pliki: %1</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 folder</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>Foldery: %1</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Elementy: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>Pliki: %1, foldery: %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 i %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Przed chwilą</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>Dzisiaj o %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>Wczoraj o %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Jutro</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>Minutę temu</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 min temu</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>Godzinę temu</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 godz. temu</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 dni temu</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>W zeszłym tygodniu</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>W zeszłym miesiącu</translation>
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
        <translation>%1 godz.</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>Pozostało: %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>Pozostało: %1 min</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>Pozostało: %1 godz.</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Poniedziałek</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Wtorek</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Środa</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Czwartek</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Piątek</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sobota</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Niedziela</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Dowiedz się więcej</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Nie pokazuj więcej tego komunikatu</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Proszę czekać...</translation>
    </message>
</context>
</TS>
