<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Eliminato</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>File aggiunto: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambia cartella</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Aggiunto</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificato</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Rinominato</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Spostato</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Ripristinato</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>File modificato: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>File eliminato: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>File rinominato: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Cartella aggiunta: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Cartella eliminata: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>File modificati di recente</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Nessun file è ancora stato modificato.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Mostra tutte le modifiche</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Apri Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Apri nel browser web</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Metti in pausa la sincronizzazione</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Metti in pausa per un’ora</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Metti in pausa fino a domani</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Riprendi sincronizzazione</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifiche</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>Informazioni su Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>I file non verranno più sincronizzati finché non avvii di nuovo Corvimo Client. Vuoi uscire?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aggiornato</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizzazione in corso...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Sincronizzazione in corso, file rimanenti: %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>Caricamento di %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Download di %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Ricerca di modifiche...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>In pausa fino a: %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connesso</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connessione in corso...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>È richiesta la tua attenzione</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Non è stato possibile sincronizzare alcuni file.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Non è stata configurata alcuna attività di sincronizzazione.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>Caricamento: %1, download: %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Apri con...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Cronologia delle versioni</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Ottieni link</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Copia link</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Condividi...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Invia link via e-mail</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Sincronizza ora</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Sincronizza questa cartella</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Interrompi la sincronizzazione di questa cartella</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Conserva sempre su questo computer</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Libera spazio</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Blocca file</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Sblocca file</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Copia percorso</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nuova cartella</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Taglia</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Incolla</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Non sincronizzare i file con questo nome</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Non sincronizzare i file di questo tipo</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Bloccato da %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>“%1” è bloccato. Gli altri possono leggerlo, ma non modificarlo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>“%1” è sbloccato.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>Il link è stato copiato negli appunti.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>Il percorso è stato copiato negli appunti.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>Elementi selezionati: %1</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Questo elemento non si trova in una cartella sincronizzata.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronizzazione</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Backup</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Operazioni recenti</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crea</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Crea attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Metti in pausa</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Metti tutto in pausa</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Riprendi tutto</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>Nessun risultato per “%1”.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Non c’è ancora alcuna attività di sincronizzazione. Creane una per mantenere uguali una cartella di questo computer e una cartella di Corvimo Server.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Cartella su questo computer</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Cartella su Corvimo Server</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensioni</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Data di modifica</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Proprietario</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Ultima sincronizzazione</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Interrotto</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Cartella non trovata</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Elimina attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Vuoi eliminare l’attività di sincronizzazione “%1”? I tuoi file rimangono su questo computer e su Corvimo Server.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Vuoi eliminare le %1 attività di sincronizzazione selezionate? I tuoi file rimangono su questo computer e su Corvimo Server.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>L’attività di sincronizzazione è stata eliminata.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>La sincronizzazione è in pausa. Le modifiche verranno sincronizzate alla ripresa.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Cancella elenco</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Tutte le operazioni</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Solo errori</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 è stato caricato.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 è stato scaricato.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 è stato eliminato da questo computer.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 è stato eliminato da Corvimo Server.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1 è stato rinominato in %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 è stato spostato in %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>File modificati da %2: %1.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Scegli le cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Scegli una cartella su Corvimo Server e una cartella su questo computer. Corvimo Client le mantiene uguali.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Scegli cartella del server</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Scegli cartella locale</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambia</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Nome della nuova cartella</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>Non è stato possibile creare la cartella “%1”. Scegli un altro nome o verifica i tuoi permessi.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Crea qui una cartella vuota di nome “%1”</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direzione della sincronizzazione</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronizzazione bidirezionale</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Solo caricamento delle modifiche</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Solo download delle modifiche</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>Le modifiche di un lato vengono copiate sull’altro.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Le modifiche su questo computer vengono caricate. Le modifiche su Corvimo Server non vengono scaricate.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Le modifiche su Corvimo Server vengono scaricate. Le modifiche su questo computer non vengono caricate.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Conserva i file su questo computer quando vengono eliminati su Corvimo Server</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Conserva i file su Corvimo Server quando vengono eliminati su questo computer</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Unisci cartelle</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Entrambe le cartelle contengono già dei file. Scegli che cosa farne.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>La cartella “%1” esiste già. Vuoi unirla alla cartella su Corvimo Server?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Unisci entrambe le cartelle e conserva tutti i file</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Usa i file di questo computer</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Usa i file di Corvimo Server</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Scegli un’altra cartella</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>I file diversi vengono conservati in due copie.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>I file di Corvimo Server non presenti su questo computer verranno eliminati.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>I file di questo computer non presenti su Corvimo Server verranno spostati nel cestino.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>I file con lo stesso nome verranno sostituiti. L’operazione non può essere annullata.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>Confronto delle due cartelle in corso...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>File confrontati: %1 di %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>Le due cartelle ora sono uguali.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Questa cartella fa già parte di un’attività di sincronizzazione. Scegli un’altra cartella.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Questa cartella si trova in una cartella già sincronizzata. Scegli un’altra cartella.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Questa cartella contiene una cartella già sincronizzata. Scegli un’altra cartella.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Le cartelle di sistema non possono essere sincronizzate. Scegli un’altra cartella.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>Non è possibile sincronizzare un intero disco. Scegli una cartella al suo interno.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Le cartelle sui dischi rimovibili non possono essere sincronizzate.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Le cartelle di rete come \\server\share non possono essere sincronizzate. Scegli una cartella su questo computer.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>Non hai il permesso di scrivere in questa cartella. Scegli un’altra cartella.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Questa cartella è crittografata e bloccata. Sbloccala prima su Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>La cartella non è stata trovata. È possibile che sia stata spostata o eliminata.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>Il file system di questo disco non è supportato. Usa un disco con un file system supportato.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Hai raggiunto il numero massimo di attività di sincronizzazione (%1). Elimina un’attività che non ti serve più.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Scegli che cosa sincronizzare su questo computer. Le cartelle deselezionate vengono rimosse da questo computer, ma rimangono su Corvimo Server.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro file</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Deseleziona tutto</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Sincronizza automaticamente le nuove cartelle</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>Non è stato possibile caricare l’elenco delle cartelle. Verifica la connessione e riprova.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Cartelle che verranno rimosse da questo computer: %1. Rimangono su Corvimo Server.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Vuoi rimuovere le cartelle da questo computer?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Alcuni file in queste cartelle non sono ancora stati caricati e andrebbero persi. Sincronizzali prima.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Selezionato: %1 di %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Non sincronizzare i file più grandi di</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Non sincronizzare i file con queste estensioni</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Non sincronizzare i file con questi nomi</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Aggiungi estensione</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Aggiungi nome</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Sincronizza i file e le cartelle il cui nome inizia con un punto</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>I file temporanei dei programmi comuni non vengono mai sincronizzati.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Ripristina valori predefiniti</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Vuoi tornare al filtro predefinito?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Inserisci un’estensione, ad esempio “iso”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>“%1” è già nell’elenco.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Un nome non deve contenere nessuno di questi caratteri: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Inserisci una dimensione compresa tra %1 e %2.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Escluso dal filtro</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>La tua scelta è stata salvata. Corvimo Client la sta applicando.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Musica</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archivi</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Altri file</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>Versioni di “%1”</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Versione attuale</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Versione precedente</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Modificato da</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Scarica</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Questo file non ha versioni precedenti.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Scegli un file per vederne le versioni.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Ripristina versione</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Vuoi sostituire la versione attuale con quella selezionata (%1)?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>La versione attuale viene conservata nella cronologia.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>“%1” è stato ripristinato a una versione precedente (%2).</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>Non è stato possibile ripristinare la versione. Riprova più tardi.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Ripristina come copia</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Salva versione con nome</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>La versione è stata salvata in “%1”.</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Vuoi eliminare questa versione? Non potrà essere recuperata.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>Non è stato possibile eliminare la versione.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Protetta dall’eliminazione automatica</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Numero massimo di versioni di un file conservate da Corvimo Server: %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>La cronologia delle versioni è disattivata per questa cartella. Chiedi all’amministratore di attivarla.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Per questo tipo di file non vengono conservate versioni.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>File eliminati</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Mostra i file eliminati</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Eliminato: %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Vuoi ripristinare gli elementi selezionati (%1)?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Elementi ripristinati: %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Non è stato trovato alcun file eliminato.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Torna a un momento precedente</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Scegli una data e un’ora</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Confronta</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Condividi</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>Condividi “%1”</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Persone</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Invita altre persone o crea un link a questo elemento.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Invita persone</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Inserisci un nome o un indirizzo e-mail</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Invia invito</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>L’invito è stato inviato a %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>Non è stato possibile inviare l’invito. Verifica l’indirizzo e-mail.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Messaggio (facoltativo)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Permessi</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Può visualizzare</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Può modificare</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Può gestire</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Può solo caricare</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Nessun accesso</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>I permessi di %1 sono stati modificati.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>Non hai il permesso di condividere questo elemento. Rivolgiti al proprietario.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Condivisi con me</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Condivisi da me</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Persone con accesso: %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Questo elemento non è condiviso.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Lascia cartella condivisa</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Vuoi lasciare la cartella condivisa “%1”? Verrà rimossa da questo computer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>“%1” non è più condiviso con te.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 ha condiviso “%2” con te.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppo</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Tutti su questo server</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Impostazioni del link</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Crea link</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Creazione del link...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Elimina link</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Vuoi eliminare questo link? Chi lo possiede non potrà più aprire l’elemento.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Chiunque abbia il link</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Solo persone con un account</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Proteggi con una password</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>La password deve contenere almeno %1 caratteri.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Inserisci una password per il link.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Scadenza del link</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>Nessuna scadenza</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Scegli una data futura.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Questo link è scaduto.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>Numero di download consentiti</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>Download rimanenti: %1</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Consenti il download</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Consenti il caricamento</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>Non è stato possibile creare il link. Riprova più tardi.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>L’amministratore ha disattivato i link per questa cartella.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Richiesta di file</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>Chi ha il link può caricare file in questa cartella senza vederne il contenuto.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>Mostra codice QR</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Conflitti</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>“%1” è stato modificato in due posti contemporaneamente.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>File modificati in due posti contemporaneamente: %1.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Scegli quale versione conservare. L’altra viene salvata come copia in conflitto.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Conserva la versione di questo computer</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Conserva la versione di Corvimo Server</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Conserva entrambe le versioni</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Conserva la versione più recente</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Chiedi ogni volta</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Applica a tutti i conflitti</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>copia in conflitto di %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Su questo computer</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>Su Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Modificato da %1, %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Quando un file è stato modificato in due posti</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Nomi che differiscono solo per maiuscole e minuscole</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>“%1” e “%2” differiscono solo per maiuscole e minuscole. Rinomina uno dei due.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Non ci sono conflitti.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>Il conflitto è stato risolto.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Non è stato possibile risolvere il conflitto perché il file è aperto. Chiudilo e riprova.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Risolvi</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Decidi più tardi</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Apri entrambi i file</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Salta</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Hai eliminato “%1”, ma è stato modificato su Corvimo Server. Il file modificato è stato conservato.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>“%1” è stato eliminato su Corvimo Server, ma l’hai modificato. Il tuo file è stato conservato.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>“%1” è un file da un lato e una cartella dall’altro. Rinomina uno dei due.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Copie in conflitto</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Elimina copie in conflitto</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Vuoi eliminare le copie in conflitto (%1)? Non potranno essere recuperate.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>“%1” è aperto in un altro programma e verrà sincronizzato alla chiusura.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connessione</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Indirizzo del server</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Nome host, indirizzo IP o Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Crittografa la connessione</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Senza crittografia, altre persone in rete possono leggere i tuoi file e la tua password.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connetti</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnetti</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Riconnetti</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Verifica connessione</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verifica della connessione...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>La connessione funziona.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>La connessione non funziona. Verifica l’indirizzo e la porta.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Connesso a %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>La connessione a %1 è stata interrotta. Corvimo Client riproverà tra %2 secondi.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>La connessione a %1 è stata ristabilita.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>In attesa di una connessione di rete</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Non sincronizzare sulle reti a consumo</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>La sincronizzazione è in pausa perché questa rete è a consumo.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Connesso tramite la rete locale</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Connesso tramite Internet</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Connesso tramite un server di inoltro</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>Il server di inoltro è più lento di una connessione diretta.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Trova server in questa rete</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Ricerca di server...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>Non è stato trovato alcun server in questa rete. Inserisci manualmente l’indirizzo del server.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Server trovati: %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>Il server “%1” non è stato trovato. Verifica che l’indirizzo sia scritto correttamente.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>Il server ha rifiutato la connessione. Assicurati che Corvimo Server sia in esecuzione.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>Il server non ha risposto in tempo. Riprova più tardi.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Questo computer non è connesso a una rete.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Inserisci una porta compresa tra 1 e 65535.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Inserisci l’indirizzo del server.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Il Corvimo ID “%1” non esiste.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>Il server con questo Corvimo ID è offline. Assicurati che sia acceso.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>Corvimo Server non è installato o non è in esecuzione su questo server.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>Il server è in manutenzione. La sincronizzazione continuerà quando sarà di nuovo disponibile.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server è troppo vecchio per questo client. Chiedi all’amministratore di aggiornarlo alla versione %1 o successiva.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Questo client è troppo vecchio per Corvimo Server. Aggiornalo alla versione %1 o successiva.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>Troppi client sono connessi al server. Riprova più tardi.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Questo computer è stato bloccato dopo troppi tentativi non riusciti. Chiedi all’amministratore di sbloccarlo.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>È possibile che un firewall stia bloccando Corvimo Client. Consenti a Corvimo Client di usare la porta %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>Non è stato possibile stabilire una connessione sicura: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Si è verificato un errore sconosciuto (codice %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifica connessione</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Rimuovi connessione</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Vuoi rimuovere la connessione a %1? Le relative attività di sincronizzazione vengono eliminate, ma i tuoi file rimangono.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>File non ancora caricati: %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Ultima connessione: %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Usa un server proxy se la tua rete lo richiede per accedere a Internet.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Non usare un proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Usa le impostazioni proxy di questo computer</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Configura il proxy manualmente</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Tipo di proxy</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Indirizzo del proxy</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>Il proxy richiede un nome utente e una password</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Non usare il proxy per gli indirizzi locali</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Non usare il proxy per questi indirizzi</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Verifica proxy</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Il proxy funziona.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Accedi al proxy</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>Il proxy %1 richiede un nome utente e una password.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>Il proxy non ha accettato il nome utente o la password.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>Il proxy %1 non è raggiungibile. Verificane l’indirizzo e la porta.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>Il proxy non consente connessioni a %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Non è stato possibile leggere le impostazioni proxy di questo computer.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Inserisci l’indirizzo del proxy.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificato</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>Il certificato non è attendibile</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>Il certificato di %1 non è stato emesso da un’autorità nota. Qualcuno potrebbe fingere di essere il tuo server.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>Il server usa un certificato firmato da sé stesso.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>Il certificato è scaduto. Data di scadenza: %1.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>Il certificato non è ancora valido. Inizio della validità: %1. Verifica l’orologio di questo computer.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>Il certificato è stato emesso per %1, non per %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>Il certificato è stato revocato dall’autorità che l’ha emesso.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>Il certificato è cambiato</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>Il certificato di %1 non è quello usato in precedenza. Chiedi all’amministratore se è stato rinnovato.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>Il certificato usa un algoritmo che non è più considerato sicuro.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Considera attendibile questo certificato</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Considera sempre attendibile questo certificato</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Considera attendibile solo questa volta</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Non connettere</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Mostra certificato</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Emesso per</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Emesso da</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Valido dal</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Valido fino al</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numero di serie</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Impronta digitale</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Algoritmo di firma</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Lunghezza della chiave</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Esporta certificato</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>Il certificato è stato salvato in “%1”.</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Importa certificato</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>Il file non contiene un certificato valido.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Vuoi rimuovere il certificato di %1 dai certificati attendibili?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Spazio di archiviazione</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 di %2 in uso</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 disponibili</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Illimitato</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Spazio di archiviazione su Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Spazio di archiviazione su questo computer</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Spazio di archiviazione per tipo di file</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Spazio di archiviazione per cartella</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Spazio usato dalle versioni precedenti</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Spazio usato dai file eliminati</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Svuota cestino</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Vuoi svuotare il cestino? I file che contiene non potranno essere recuperati.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>Il cestino è stato svuotato. %1 sono di nuovo disponibili.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Calcolo in corso...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Il tuo spazio di archiviazione è quasi esaurito. Rimangono solo %1.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Il tuo spazio di archiviazione è esaurito</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Non è possibile caricare nuovi file finché non ne elimini alcuni o non chiedi altro spazio all’amministratore.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>La cartella “%1” ha raggiunto la sua quota. Non è possibile caricarvi nuovi file.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Il volume di Corvimo Server è pieno. Chiedi all’amministratore di liberare spazio.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>“%1” supera lo spazio di archiviazione rimanente (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Lo spazio su disco sta per esaurirsi</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>Rimangono solo %1 sul disco “%2”. La sincronizzazione si interrompe quando il disco è pieno.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Spazio su disco insufficiente</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>Lo spazio sul disco “%1” non è sufficiente. La sincronizzazione è in pausa finché non liberi almeno %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>“%1” non è stato scaricato perché richiede %2 di spazio su disco.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Puoi liberare spazio con la sincronizzazione selettiva o conservando i file solo online.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Apri impostazioni di archiviazione</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Mantieni libero almeno questo spazio su disco</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>I download vengono messi in pausa quando rimane meno spazio.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>Il disco con la cartella “%1” non è collegato. Collegalo per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>Il disco “%1” è di sola lettura. Le modifiche di Corvimo Server non possono esservi salvate.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Lo spazio per i file temporanei non è sufficiente. Libera almeno %1.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>File temporanei</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Elimina file temporanei</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>I file temporanei sono stati eliminati (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Verifica di nuovo</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>In uso</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>File più grandi</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Elimina o sposta i file che non ti servono più.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>Lo spazio usato è aumentato di %1 questo mese.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>Di questo passo il tuo spazio di archiviazione si esaurirà in questa data: %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Richiedi altro spazio</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>La tua richiesta è stata inviata all’amministratore.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>La tua richiesta è in attesa di risposta.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>La quota del gruppo “%1” è esaurita.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 pronta.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Aggiornamento software</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Cerca aggiornamenti</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Ricerca di aggiornamenti...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>La tua versione è la più recente.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>La versione %1 di Corvimo Client è disponibile.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Scarica e installa</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Ricordamelo più tardi</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Salta questa versione</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download in corso...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>L’aggiornamento è pronto. Riavvia Corvimo Client per installarlo.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Riavvia ora</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>Non è stato possibile installare l’aggiornamento. La versione attuale continua a funzionare.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client non è riuscito a cercare aggiornamenti.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Note di rilascio</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Installa gli aggiornamenti automaticamente</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 sta inizializzando...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Importazione delle impostazioni dalla versione precedente in corso.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Le impostazioni sono state importate. Puoi riprendere da dove avevi interrotto.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>Non è stato possibile importare alcune impostazioni della versione precedente. Verifica le tue attività di sincronizzazione.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>L’aggiornamento richiede %1 di spazio su disco.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Questa versione non è più supportata. Installa l’aggiornamento per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Larghezza di banda</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Velocità di caricamento</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Velocità di download</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Limita a</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Regola automaticamente</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client lascia spazio agli altri programmi che usano la rete.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Pianificazione</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Scegli le ore in cui si applica il limite.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Tutto il giorno</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Orario di lavoro</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Di notte</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>Non sincronizzare</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Velocità massima</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Velocità limitata</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Cancella pianificazione</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Inserisci una velocità maggiore di 0.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Inserisci una velocità compresa tra %1 e %2.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>L’inizio deve precedere la fine.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>L’amministratore ha limitato la velocità a %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>File trasferiti contemporaneamente</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>Non limitare la velocità sulla rete locale</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Velocità attuale</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Velocità media</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Trasferito oggi</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Trasferito questo mese</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Scegli su che cosa Corvimo Client deve avvisarti.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Quando la sincronizzazione è completata</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Quando un file non può essere sincronizzato</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Quando qualcuno condivide un elemento con me</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Quando qualcuno commenta i miei file</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Quando lo spazio di archiviazione è quasi esaurito</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Quando un backup è completato o non è riuscito</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Quando è disponibile un aggiornamento</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Quando la connessione viene interrotta</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Riproduci un suono</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Non disturbare</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Ore di silenzio</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Nessuna notifica fino a: %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Non disturbarmi durante le presentazioni</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Mostra i nomi dei file nelle notifiche</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Le notifiche sono disattivate nelle impostazioni di sistema di questo computer.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Apri impostazioni di sistema</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Chiudi notifica</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Chiudi tutte</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualizza</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Segna come letta</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Centro notifiche</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>Non ci sono notifiche.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Nuove notifiche: %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tutti i file sono aggiornati.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>La prima sincronizzazione è completata. File ora presenti su questo computer: %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Sono stati eliminati molti file</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>File eliminati da “%2”: %1. Ripristinali se non era questa la tua intenzione.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>File modificati in poco tempo: %1. Se le modifiche non sono tue, metti in pausa la sincronizzazione e controlla che sul computer non ci sia malware.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>La cartella “%1” è stata spostata. Indica a Corvimo Client dove si trova ora.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 ha commentato “%2”.</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Problemi di sincronizzazione</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Non è stato possibile sincronizzare questi file. Corvimo Client riproverà quando la causa sarà stata rimossa.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problemi: %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Non ci sono problemi.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Riprova tutto</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Copia dettagli</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Segnala un problema</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>I dettagli sono stati copiati negli appunti.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Codice di errore: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>Il file è usato da un altro programma. Chiudilo in quel programma per sincronizzarlo.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>Il file è bloccato da %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>Il file è stato eliminato prima di poter essere sincronizzato.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>Il file è stato modificato durante il caricamento. Verrà caricato di nuovo.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>Il file è stato danneggiato durante il trasferimento. Verrà trasferito di nuovo.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Il file non può essere letto. Verificane i permessi.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>Non è possibile scrivere nel file. Verificane i permessi.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>Il file supera il limite di %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>Il file è troppo grande per il file system di questo disco.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>Il file è crittografato e non può essere aperto su questo computer.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>L’antivirus di Corvimo Server ha bloccato il file.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>L’antivirus di questo computer ha bloccato il file.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>I file di questo tipo non sono consentiti su Corvimo Server.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>I dispositivi, le pipe e i socket non possono essere sincronizzati.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>I link simbolici che puntano all’esterno della cartella sincronizzata non vengono sincronizzati.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>L’alias “%1” punta a un elemento che non viene sincronizzato.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>Il nome è troppo lungo. Numero massimo di caratteri: %1.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>Il percorso è troppo lungo. Abbrevia i nomi delle sue cartelle.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>Il nome contiene caratteri non consentiti: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>Il nome “%1” è riservato dal sistema.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>Il nome termina con uno spazio o un punto. Rinomina l’elemento.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>Il nome contiene caratteri che non possono essere letti. Rinomina l’elemento.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>In questa cartella esiste già un elemento di nome “%1”.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Inserisci un nome.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>La cartella “%1” non è stata trovata.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>La cartella non è stata eliminata perché contiene file che non vengono sincronizzati.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Non è stato possibile creare la cartella.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Non è stato possibile eliminare la cartella.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>Non hai il permesso di modificare questa cartella.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>Non hai il permesso di aprire questa cartella.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>La cartella contiene più di %1 elementi. Spostane alcuni in sottocartelle.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>La cartella è nidificata troppo in profondità.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>Il server è occupato. Corvimo Client riproverà tra qualche minuto.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server ha segnalato un errore interno. Chiedi all’amministratore di controllarne il registro.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Al momento Corvimo Server non accetta modifiche.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>Il volume con questa cartella non è disponibile su Corvimo Server.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>La cartella condivisa è stata rimossa da Corvimo Server.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>La sincronizzazione è stata disattivata per questa cartella condivisa.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>Il server ha inviato una risposta che Corvimo Client non comprende.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>La sessione è terminata. Accedi di nuovo.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>I dati di Corvimo Server sono stati reimpostati. Configura di nuovo le tue attività di sincronizzazione.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>Non è stato possibile caricare “%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>Non è stato possibile caricare “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>Non è stato possibile scaricare “%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>Non è stato possibile scaricare “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>Non è stato possibile eliminare “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>Non è stato possibile rinominare “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>Non è stato possibile spostare “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>Non è stato possibile ripristinare “%1”: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permesso negato</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>Il disco ha segnalato un errore di lettura o scrittura. Controlla se il disco presenta guasti.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>Il disco è stato rimosso durante la scrittura dei file.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Memoria insufficiente. Chiudi altri programmi e riprova.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>Il database di sincronizzazione è danneggiato e verrà ricostruito. L’operazione potrebbe richiedere del tempo.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>Il database di sincronizzazione è usato da un altro programma.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Ricostruzione del database di sincronizzazione...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>Il database di sincronizzazione è stato ricostruito.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Non è stato possibile leggere le impostazioni. Vengono usati i valori predefiniti.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Non è stato possibile salvare le impostazioni.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Le modifiche in alcune cartelle potrebbero essere rilevate in ritardo perché il sistema sorveglia troppe cartelle.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>L’orologio di questo computer differisce di oltre %1 minuti da quello del server. Regola l’orologio di questo computer.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Questa azione non è supportata da Corvimo Server.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>L’azione è stata annullata.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>L’azione ha richiesto troppo tempo ed è stata interrotta.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Si è verificato un errore sconosciuto.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Non è stato possibile avviare Corvimo Client. Riavvia questo computer e riprova.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client è già in esecuzione.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Manca un componente di Corvimo Client. Installa di nuovo il client.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Le icone di stato non possono essere mostrate perché altri programmi occupano tutti i posti disponibili.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client ha bisogno del tuo permesso per leggere questa cartella. Concedilo nelle impostazioni della privacy di questo computer.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Se il problema persiste, riavvia Corvimo Client.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Se il problema persiste, rivolgiti all’amministratore.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Se il problema persiste, contatta l’assistenza e indica il codice di errore.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Vuoi continuare con i file rimanenti?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Accedi</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Esci dall’account</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Accedi a Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Mostra password</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Hai dimenticato la password?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Mantieni l’accesso</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Accesso in corso...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Accesso effettuato come %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Non hai effettuato l’accesso.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Vuoi uscire dall’account? La sincronizzazione si interrompe finché non accedi di nuovo.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Accedi con il browser</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Continua nel browser, poi torna qui.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>Non è stato possibile aprire il browser. Apri manualmente questo indirizzo: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Dominio</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Inserisci il tuo nome utente nel formato dominio\utente se il tuo account appartiene a un dominio.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Aggiungi account</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Cambia account</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Rimuovi account</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Vuoi rimuovere l’account %1 da questo computer? I tuoi file rimangono su questo computer e su Corvimo Server.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>Indirizzo e-mail</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Nome completo</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Cambia password</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Password attuale</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nuova password</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Ripeti la nuova password</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>La password è stata cambiata.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>L’amministratore richiede di cambiare la password.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Giorni alla scadenza della password: %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Le due password non coincidono.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>La nuova password deve essere diversa da quella attuale.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Inserisci il tuo nome utente.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Inserisci la tua password.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Il nome utente o la password non sono corretti.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>Il nome utente o la password non sono corretti. Tentativi rimanenti: %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Il tuo account è disabilitato. Rivolgiti all’amministratore.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Il tuo account è scaduto. Rivolgiti all’amministratore.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Non hai il permesso di usare Corvimo Server. Rivolgiti all’amministratore.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>La tua password è scaduta. Cambiala su Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>La tua cartella home non è disponibile. Chiedi all’amministratore di attivare il servizio home.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>L’account ospite non può essere usato per la sincronizzazione.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Tutte le licenze di Corvimo Server sono in uso.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Nome di questo computer</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Dispositivi collegati</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Vuoi scollegare “%1”? Il dispositivo uscirà dall’account e non verrà più sincronizzato.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Questo computer è stato scollegato da %1. Accedi di nuovo per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Questo computer</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Elimina anche i file sul dispositivo</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Accesso in due passaggi</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Inserisci il codice mostrato dalla tua app di autenticazione.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Codice di verifica</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 cifre</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verifica</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Verifica in corso...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Considera attendibile questo dispositivo</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Non chiedere più su questo computer per questo numero di giorni: %1</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Hai perso il telefono?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Invia un codice via e-mail</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>Un codice è stato inviato a %1. È valido per 10 minuti.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Non è stato possibile inviare il codice. Chiedi aiuto all’amministratore.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Usa un codice di recupero</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Inserisci uno dei codici di recupero che hai annotato. Ogni codice funziona una sola volta.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Codici di recupero rimanenti: %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Usa una chiave di sicurezza</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Inserisci la chiave di sicurezza e toccala.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>La chiave di sicurezza non è stata riconosciuta. Provane un’altra.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Approva l’accesso sul telefono</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>In attesa della tua approvazione...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Scegli il numero %1 sul telefono.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>L’accesso è stato negato sul telefono.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>La richiesta è scaduta. Inviala di nuovo.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Invia di nuovo</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Prova un altro metodo</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Inserisci il codice.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>Il codice non è corretto. Verifica che l’orologio del telefono sia esatto.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Questo codice è già stato usato. Attendi il prossimo.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>Troppi codici errati. Attendi %1 min e riprova.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>L’amministratore richiede l’accesso in due passaggi. Configuralo prima su Corvimo Server.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Configura l’accesso in due passaggi</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Scansiona questo codice con la tua app di autenticazione.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>L’accesso in due passaggi è attivo.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Attività di backup</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>Un’attività di backup copia le cartelle di questo computer su Corvimo Server e conserva le versioni precedenti.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Crea attività di backup</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Modifica attività di backup</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Elimina attività di backup</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Vuoi eliminare l’attività di backup “%1”?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Elimina anche i file del backup su Corvimo Server</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Nome dell’attività</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Esiste già un’attività con questo nome.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Contenuto del backup</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Aggiungi cartella</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Scegli almeno una cartella per il backup.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>La cartella “%1” non esiste più. Viene esclusa dal backup.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Scrivania</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musica</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Dischi esterni</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Posizione del backup</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Questa cartella contiene già un backup di un altro computer.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Quando eseguire il backup</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Ogni volta che un file cambia</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>Secondo una pianificazione</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Solo quando lo avvio io</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Ogni giorno</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Ogni settimana</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Ogni mese</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Ogni ora</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Ora: %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>In questi giorni</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>Quando viene collegato un disco esterno</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Riattiva questo computer per il backup</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Esegui backup ora</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Interrompi backup</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Vuoi interrompere il backup? I file già salvati nel backup vengono conservati.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Backup in corso...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Backup dei file in corso: %1 di %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Il backup è completato.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Ultimo backup: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Prossimo backup: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Nessun backup eseguito</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>Il backup è completato. File che non è stato possibile leggere: %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>Il backup non è riuscito: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>Il backup previsto per %1 non è stato eseguito. Viene avviato ora.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Giorni dall’ultimo backup di questo computer: %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Per quanto tempo conservare le versioni</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Conserva tutte le versioni</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Numero di versioni da conservare: %1</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Giorni di conservazione delle versioni: %1</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Conserva meno versioni man mano che invecchiano</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Crittografa il backup</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Chiave di crittografia</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Conserva la chiave in un luogo sicuro. Senza di essa il backup non può essere ripristinato.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>La chiave di crittografia non è corretta.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Ripristina file</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Scegli i file da ripristinare e dove collocarli.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Ripristina nella posizione originale</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Sostituisci i file esistenti</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>Ripristino dei file in corso: %1 di %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Tutti i file sono stati ripristinati.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>File ripristinati: %1. File che non è stato possibile ripristinare: %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Verifica backup</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>Il backup è integro.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>File danneggiati nel backup: %1. Il loro backup verrà eseguito di nuovo.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fine</translation>
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
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>Versione %1 (build %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Versione del server</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Tutti i diritti riservati.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contratto di licenza</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Informativa sulla privacy</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Software di terze parti</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sito web</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Contatta l’assistenza</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Invia commenti</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Grazie per aver scelto Corvimo Client.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registri</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Livello di dettaglio</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>I registri dettagliati rallentano il client. Torna al livello normale quando hai finito.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Apri cartella dei registri</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Salva registro</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>Il registro è stato salvato in “%1”.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Non è stato possibile salvare il registro.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Cancella registro</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Vuoi cancellare il registro?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Invia registro all’assistenza</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Invio del registro...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>Il registro è stato inviato. Il numero della tua segnalazione è %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Non è stato possibile inviare il registro. Salvalo e invialo via e-mail.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>Il registro contiene i nomi di file e cartelle, ma non il loro contenuto.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Invia dati di utilizzo anonimi per contribuire a migliorare Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generali</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Avvia Corvimo Client quando accedo a questo computer</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Mostra icone di stato su file e cartelle</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Mostra Corvimo Client nel menu contestuale</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Mostra le cartelle sincronizzate nella barra laterale</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Mostra l’icona nella barra dei menu</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>Come il sistema</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>La lingua cambia al riavvio di Corvimo Client.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspetto</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Dimensione del testo</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>Non entrare in stop durante la sincronizzazione dei file</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Sposta nel cestino i file eliminati su Corvimo Server</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Avvisami prima che vengano eliminati molti file</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Vuoi reimpostare tutte le impostazioni? Le tue attività di sincronizzazione rimangono invariate.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Questa impostazione è gestita dall’amministratore.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Le impostazioni sono state salvate.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Vuoi scartare le modifiche?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Scarta</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>File su richiesta</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Tutti i file sono elencati su questo computer, ma un file viene scaricato solo quando lo apri.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>Attiva “File su richiesta”</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Vuoi attivare “File su richiesta” per “%1”? I file già presenti su questo computer rimangono qui.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>La funzione “File su richiesta” è attiva.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>Disattiva “File su richiesta”</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Vuoi disattivare “File su richiesta”? Verranno scaricati tutti i file di questa cartella (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Lo spazio non è sufficiente per scaricare tutti i file. Servono altri %1.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Solo online</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Sempre su questo computer</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>In parte su questo computer</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>File che saranno disponibili solo online: %1. Vuoi continuare?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>Sono stati liberati %1 di spazio su disco.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>I file non ancora caricati rimangono su questo computer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>“%1” è aperto e rimane su questo computer.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Libera spazio automaticamente</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Conserva solo online i file non aperti da questo numero di giorni: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Solo quando lo spazio su disco sta per esaurirsi</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 sta scaricando “%2”.</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Blocca i download di questo programma</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Un programma sta aprendo molti file disponibili solo online. Vuoi consentirlo?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>Non è possibile aprire “%1” perché è disponibile solo online e Corvimo Client non è connesso.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Avvia Corvimo Client per aprire i file disponibili solo online.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>La funzione “File su richiesta” non è supportata da questa versione del sistema.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>La funzione “File su richiesta” non è supportata su questo disco.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Per usare la funzione “File su richiesta”, consenti l’estensione del fornitore di file nelle impostazioni di sistema.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Mostra anteprime dei file disponibili solo online</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>Su questo computer non è possibile cercare nel contenuto dei file disponibili solo online.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Consenti</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Blocca</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Ti diamo il benvenuto in Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Configura Corvimo Client in pochi passaggi per avere i tuoi file su ogni computer.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Inizia</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Passaggio %1 di %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Connettiti al tuo server</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Inserisci l’indirizzo di Corvimo Server e accedi con il tuo account.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>Che cosa vuoi fare?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Sincronizza file</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Mantieni i file uguali su questo computer e su Corvimo Server.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Esegui il backup di questo computer</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Copia i tuoi file su Corvimo Server per proteggerli dalla perdita.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>I tuoi file verranno sincronizzati in “%1”.</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Cartelle del team</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Scegli le cartelle del team che vuoi avere su questo computer.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>Non fai parte di alcuna cartella del team.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Opzioni di sincronizzazione</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Sincronizza tutti i file</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client ha bisogno del tuo permesso per mostrare notifiche e leggere le tue cartelle.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Controlla le tue scelte prima di iniziare.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>File che verranno scaricati: %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>È tutto pronto</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client sta sincronizzando i tuoi file. Lo trovi nella barra dei menu.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Fai un tour</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Fai clic sull’icona nella barra dei menu per vedere che cosa sta succedendo.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Fai clic con il pulsante destro su un file per condividerlo o vederne le versioni.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Le icone sui file indicano se sono sincronizzati.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Vuoi uscire dalla configurazione? Puoi continuare più tardi.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Sono state trovate le impostazioni di un’installazione precedente. Vuoi usarle?</translation>
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
        <translation>%1 per cento</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 file</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 file</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 cartella</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 cartelle</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Elementi: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>File: %1, cartelle: %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>Oggi, %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>Ieri, %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Domani</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>Un minuto fa</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minuti fa</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>Un’ora fa</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 ore fa</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 giorni fa</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La settimana scorsa</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Il mese scorso</translation>
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
        <translation>%1 g</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>Ancora %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>Ancora %1 min</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>Ancora %1 h</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunedì</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martedì</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercoledì</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Giovedì</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Venerdì</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sabato</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domenica</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Ulteriori informazioni</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Non mostrare più questo messaggio</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Attendi...</translation>
    </message>
</context>
</TS>
