<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Slettet</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Fjern tilknytning</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Fil tilføjet: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Skift mappe</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flet</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Tilføjet</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Ændret</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Omdøbt</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Flyttet</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Gendannet</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>Fil ændret: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Fil slettet: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Fil omdøbt: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Mappe tilføjet: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Mappe slettet: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Senest ændrede filer</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Ingen filer er ændret endnu.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Vis alle ændringer</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Åbn Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Åbn i webbrowser</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Sæt synkronisering på pause</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Sæt på pause i en time</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Sæt på pause indtil i morgen</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Genoptag synkronisering</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifikationer</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>Om Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Filer synkroniseres ikke længere, før du starter Corvimo Client igen. Vil du afslutte?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Opdateret</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Synkroniserer, filer tilbage: %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>Uploader %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Downloader %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Søger efter ændringer...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>På pause</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>På pause indtil %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Ikke forbundet</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Opretter forbindelse...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Venter</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>Handling påkrævet</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Nogle filer kunne ikke synkroniseres.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Der er ikke konfigureret nogen synkroniseringsopgave.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>%1 op, %2 ned</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åbn</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Åbn med...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Vis i mappe</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Versionshistorik</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Hent link</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Kopier link</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Del...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Send link via e-mail</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Synkroniser nu</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Synkroniser denne mappe</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Stop synkronisering af denne mappe</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Behold altid på denne computer</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Frigør plads</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Lås fil</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Lås fil op</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Gendan</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Omdøb</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Opdater</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Egenskaber</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Kopier sti</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Vælg alle</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Ny mappe</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Klip</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Sæt ind</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Fortryd</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gentag</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Synkroniser ikke filer med dette navn</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Synkroniser ikke filer af denne type</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Låst af %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>”%1” er låst. Andre kan læse filen, men ikke ændre den.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>”%1” er låst op.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>Linket blev kopieret til udklipsholderen.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>Stien blev kopieret til udklipsholderen.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>Valgte emner: %1</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Dette emne er ikke i en synkroniseret mappe.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsopgaver</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Oversigt</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Backup</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Seneste aktivitet</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Opret</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Opret synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Sæt alle på pause</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Genoptag alle</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>Intet svarer til ”%1”.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Der er ingen synkroniseringsopgave endnu. Opret en for at holde en mappe på denne computer og en mappe på Corvimo Server ens.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Mappe på denne computer</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Mappe på Corvimo Server</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Ændringsdato</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Ejer</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Sidst synkroniseret</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Stoppet</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Mappen blev ikke fundet</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Slet synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Vil du slette synkroniseringsopgaven ”%1”? Dine filer bliver på denne computer og på Corvimo Server.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Vil du slette de valgte synkroniseringsopgaver (%1)? Dine filer bliver på denne computer og på Corvimo Server.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>Synkroniseringsopgaven blev slettet.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>Synkroniseringen er på pause. Ændringer synkroniseres, når du genoptager den.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Ryd liste</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Al aktivitet</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Kun fejl</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 blev uploadet.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 blev downloadet.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 blev slettet fra denne computer.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 blev slettet fra Corvimo Server.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1 blev omdøbt til %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 blev flyttet til %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>Filer ændret af %2: %1.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Vælg mapper, der skal synkroniseres</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Vælg en mappe på Corvimo Server og en mappe på denne computer. Corvimo Client holder dem ens.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Vælg servermappe</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Vælg lokal mappe</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Skift</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Gennemse...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Navn på den nye mappe</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>Mappen ”%1” kunne ikke oprettes. Vælg et andet navn, eller kontroller dine tilladelser.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Opret en tom mappe med navnet ”%1” her</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tovejssynkronisering</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Upload kun ændringer</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Download kun ændringer</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>Ændringer på den ene side kopieres til den anden.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Ændringer på denne computer uploades. Ændringer på Corvimo Server downloades ikke.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Ændringer på Corvimo Server downloades. Ændringer på denne computer uploades ikke.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Behold filer på denne computer, når de slettes på Corvimo Server</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Behold filer på Corvimo Server, når de slettes på denne computer</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Flet mapper</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Begge mapper indeholder allerede filer. Vælg, hvad der skal ske med dem.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>Mappen ”%1” findes allerede. Vil du flette den med mappen på Corvimo Server?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Flet begge mapper, og behold alle filer</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Brug filerne på denne computer</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Brug filerne på Corvimo Server</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Vælg en anden mappe</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Filer, der er forskellige, beholdes i to kopier.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Filer på Corvimo Server, som ikke er på denne computer, bliver slettet.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Filer på denne computer, som ikke er på Corvimo Server, bliver flyttet til papirkurven.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Filer med samme navn bliver erstattet. Dette kan ikke fortrydes.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>Sammenligner begge mapper...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>Filer sammenlignet: %1 af %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>Begge mapper er nu ens.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Denne mappe er allerede en del af en synkroniseringsopgave. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Denne mappe ligger i en mappe, der allerede synkroniseres. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Denne mappe indeholder en mappe, der allerede synkroniseres. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Systemmapper kan ikke synkroniseres. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>En hel disk kan ikke synkroniseres. Vælg en mappe på den.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Mapper på flytbare diske kan ikke synkroniseres.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Netværksmapper som \\server\share kan ikke synkroniseres. Vælg en mappe på denne computer.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>Du har ikke tilladelse til at skrive til denne mappe. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Denne mappe er krypteret og låst. Lås den først op på Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>Mappen blev ikke fundet. Den kan være blevet flyttet eller slettet.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>Diskens filsystem understøttes ikke. Brug en disk med et understøttet filsystem.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Du har nået grænsen på %1 synkroniseringsopgaver. Slet en opgave, som du ikke længere har brug for.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Vælg, hvad der skal synkroniseres til denne computer. Mapper, som du fravælger, fjernes fra denne computer, men bliver på Corvimo Server.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filfilter</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Fravælg alle</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Synkroniser nye mapper automatisk</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>Listen over mapper kunne ikke indlæses. Kontroller din forbindelse, og prøv igen.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Prøv igen</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Mapper, der fjernes fra denne computer: %1. De bliver på Corvimo Server.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Vil du fjerne mapperne fra denne computer?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Nogle filer i disse mapper er ikke uploadet endnu og ville gå tabt. Synkroniser dem først.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Valgt: %1 af %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Synkroniser ikke filer, der er større end</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Synkroniser ikke filer med disse filtypenavne</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Synkroniser ikke filer med disse navne</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Tilføj filtypenavn</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Tilføj navn</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Synkroniser filer og mapper, hvis navne begynder med et punktum</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Midlertidige filer fra almindelige programmer synkroniseres aldrig.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Gendan standardværdier</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Vil du vende tilbage til standardfilteret?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Angiv et filtypenavn, for eksempel ”iso”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>”%1” er allerede på listen.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Et navn må ikke indeholde nogen af disse tegn: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Angiv en størrelse mellem %1 og %2.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Udelukket af filter</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>Dit valg er gemt. Corvimo Client anvender det nu.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Dokumentfiler</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Billedfiler</translation>
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
        <translation>Andre filer</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>Versioner af ”%1”</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Aktuel version</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Tidligere version</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Ændret af</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Enhed</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Download</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Forhåndsvis</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Luk</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Denne fil har ingen tidligere versioner.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Vælg en fil for at se dens versioner.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Gendan version</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Vil du erstatte den aktuelle version med versionen fra %1?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>Den aktuelle version beholdes i historikken.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>”%1” blev gendannet til versionen fra %2.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>Versionen kunne ikke gendannes. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Gendan som en kopi</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Gem version som</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>Versionen blev gemt i ”%1”.</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Vil du slette denne version? Den kan ikke gendannes.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>Versionen kunne ikke slettes.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Beskyttet mod automatisk sletning</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Højeste antal versioner, som Corvimo Server beholder af en fil: %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>Versionshistorik er slået fra for denne mappe. Bed administratoren om at slå den til.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Versioner gemmes ikke for denne filtype.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Slettede filer</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Vis slettede filer</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Slettet %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Vil du gendanne de valgte emner (%1)?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Gendannede emner: %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Der blev ikke fundet nogen slettede filer.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Gå tilbage til et tidspunkt</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Vælg dato og klokkeslæt</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Sammenlign</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>Del ”%1”</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personer</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Inviter personer, eller opret et link til dette emne.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Inviter personer</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Angiv et navn eller en e-mailadresse</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Send invitation</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>Invitationen blev sendt til %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>Invitationen kunne ikke sendes. Kontroller e-mailadressen.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Besked (valgfrit)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Gem</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Tilladelser</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Kan se</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Kan redigere</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Kan administrere</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Kan kun uploade</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Ingen adgang</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>Tilladelserne for %1 blev ændret.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>Du har ikke tilladelse til at dele dette emne. Spørg dets ejer.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Delt med mig</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Delt af mig</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Personer med adgang: %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Dette emne er ikke delt.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Forlad delt mappe</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Vil du forlade den delte mappe ”%1”? Den bliver fjernet fra denne computer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>”%1” deles ikke længere med dig.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 delte ”%2” med dig.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Alle på denne server</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Linkindstillinger</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Opret link</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Opretter link...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Slet link</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Vil du slette dette link? Personer, der har det, kan ikke længere åbne emnet.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Alle med linket</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Kun personer med en konto</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Beskyt med en adgangskode</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>Adgangskoden skal have mindst %1 tegn.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Angiv en adgangskode til linket.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Link gyldigt til</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>Udløber aldrig</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Vælg en dato i fremtiden.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Dette link er udløbet.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>Antal tilladte downloads</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>Downloads tilbage: %1</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Tillad download</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Tillad upload</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>Linket kunne ikke oprettes. Prøv igen senere.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>Administratoren har slået links fra for denne mappe.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Filanmodning</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>Personer med linket kan uploade filer til denne mappe uden at se dens indhold.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>Vis QR-kode</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Konflikter</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>”%1” blev ændret to steder på samme tid.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>%1 filer blev ændret to steder på samme tid.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Vælg, hvilken version der skal beholdes. Den anden gemmes som en konfliktkopi.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Behold versionen på denne computer</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Behold versionen på Corvimo Server</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Behold begge versioner</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Behold den nyeste version</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Spørg mig hver gang</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Gør dette for alle konflikter</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>konfliktkopi fra %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>På denne computer</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>På Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Ændret af %1, %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Når en fil er ændret to steder</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Navne, der kun er forskellige i store og små bogstaver</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>”%1” og ”%2” er kun forskellige i store og små bogstaver. Omdøb en af dem.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Der er ingen konflikter.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>Konflikten blev løst.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Konflikten kunne ikke løses, fordi filen er åben. Luk den, og prøv igen.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Løs</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Beslut senere</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Åbn begge filer</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Spring over</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Du slettede ”%1”, men filen blev ændret på Corvimo Server. Den ændrede fil blev beholdt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>”%1” blev slettet på Corvimo Server, men du ændrede filen. Din fil blev beholdt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>”%1” er en fil på den ene side og en mappe på den anden. Omdøb en af dem.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Konfliktkopier</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Slet konfliktkopier</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Vil du slette konfliktkopierne (%1)? De kan ikke gendannes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>”%1” er åben i et andet program og synkroniseres, når den lukkes.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Forbindelse</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Værtsnavn, IP-adresse eller Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Brugernavn</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Krypter forbindelsen</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Uden kryptering kan andre på netværket læse dine filer og din adgangskode.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Opret forbindelse</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Afbryd forbindelse</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Opret forbindelse igen</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Test forbindelsen</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester forbindelsen...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Forbindelsen virker.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>Forbindelsen virker ikke. Kontroller adressen og porten.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Forbundet</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Forbundet til %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>Forbindelsen til %1 blev afbrudt. Corvimo Client prøver igen om %2 sekunder.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>Forbindelsen til %1 er genoprettet.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Venter på en netværksforbindelse</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Synkroniser ikke på forbrugsafregnede netværk</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>Synkroniseringen er på pause, fordi dette netværk er forbrugsafregnet.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Forbundet via det lokale netværk</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Forbundet via internettet</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Forbundet via en relæserver</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>Relæserveren er langsommere end en direkte forbindelse.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Find servere på dette netværk</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Søger efter servere...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>Der blev ikke fundet nogen server på dette netværk. Angiv selv serverens adresse.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Fundne servere: %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>Serveren ”%1” blev ikke fundet. Kontroller, om adressen er stavet korrekt.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>Serveren afviste forbindelsen. Kontroller, at Corvimo Server kører.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>Serveren svarede ikke i tide. Prøv igen senere.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Denne computer har ikke forbindelse til et netværk.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Angiv en port mellem 1 og 65535.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Angiv serverens adresse.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Corvimo ID ”%1” findes ikke.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>Serveren med dette Corvimo ID er offline. Kontroller, at den er tændt.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>Corvimo Server er ikke installeret eller kører ikke på denne server.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>Serveren er under vedligeholdelse. Synkroniseringen fortsætter, når den er tilgængelig igen.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server er for gammel til denne klient. Bed administratoren om at opdatere til version %1 eller nyere.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Denne klient er for gammel til Corvimo Server. Opdater den til version %1 eller nyere.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>For mange klienter har forbindelse til serveren. Prøv igen senere.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Denne computer blev blokeret efter for mange mislykkede forsøg. Bed administratoren om at fjerne blokeringen.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>En firewall blokerer muligvis Corvimo Client. Tillad, at Corvimo Client bruger port %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>Der kunne ikke oprettes en sikker forbindelse: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Der opstod en ukendt fejl (kode %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Rediger forbindelse</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Fjern forbindelse</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Vil du fjerne forbindelsen til %1? Dens synkroniseringsopgaver slettes, men dine filer bevares.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>Filer, der ikke er uploadet endnu: %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanceret</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Sidst forbundet %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Brug en proxyserver, hvis dit netværk har brug for en til at nå internettet.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Brug ikke en proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Brug denne computers proxyindstillinger</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Konfigurer selv proxyen</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Proxytype</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadresse</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>Proxyen kræver brugernavn og adgangskode</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Brug ikke proxyen til lokale adresser</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Brug ikke proxyen til disse adresser</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Test proxyen</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Proxyen virker.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Log ind på proxyen</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>Proxyen %1 beder om brugernavn og adgangskode.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>Proxyen godkendte ikke brugernavnet eller adgangskoden.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>Proxyen %1 kan ikke nås. Kontroller dens adresse og port.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>Proxyen tillader ikke forbindelser til %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Denne computers proxyindstillinger kunne ikke læses.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Angiv proxyens adresse.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certifikat</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>Certifikatet er ikke godkendt</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>Certifikatet for %1 er ikke udstedt af en kendt myndighed. Nogen udgiver sig måske for at være din server.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>Serveren bruger et certifikat, som den selv har signeret.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>Certifikatet udløb %1.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>Certifikatet er ikke gyldigt før %1. Kontroller denne computers ur.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>Certifikatet er udstedt til %1, ikke til %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>Certifikatet er tilbagekaldt af den myndighed, der udstedte det.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>Certifikatet er ændret</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>Certifikatet for %1 er ikke det, der blev brugt før. Spørg administratoren, om det er blevet fornyet.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>Certifikatet bruger en algoritme, der ikke længere anses for sikker.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Hav tillid til dette certifikat</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Hav altid tillid til dette certifikat</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Hav kun tillid til det denne gang</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Opret ikke forbindelse</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Vis certifikat</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Udstedt til</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Udstedt af</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Gyldigt fra</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Gyldigt til</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Fingeraftryk</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Signaturalgoritme</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Nøglelængde</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Eksporter certifikat</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>Certifikatet blev gemt i ”%1”.</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Importer certifikat</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>Filen indeholder ikke et gyldigt certifikat.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Vil du fjerne certifikatet for %1 fra de godkendte certifikater?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagerplads</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 af %2 brugt</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 ledig</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Ubegrænset</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Lagerplads på Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Lagerplads på denne computer</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Lagerplads efter filtype</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Lagerplads efter mappe</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Lagerplads brugt af tidligere versioner</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Lagerplads brugt af slettede filer</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Tøm papirkurven</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Vil du tømme papirkurven? Filerne i den kan ikke gendannes.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>Papirkurven blev tømt. %1 er ledig igen.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Beregner...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Din lagerplads er næsten fuld. Der er kun %1 tilbage.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Din lagerplads er fuld</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Nye filer kan ikke uploades, før du sletter nogle filer eller beder administratoren om mere lagerplads.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>Mappen ”%1” har nået sin kvote. Nye filer i den kan ikke uploades.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Diskenheden på Corvimo Server er fuld. Bed administratoren om at skaffe plads.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>”%1” er større end den resterende lagerplads (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Der er ikke meget diskplads</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>Der er kun %1 tilbage på disken ”%2”. Synkroniseringen stopper, når disken er fuld.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Ikke nok diskplads</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>Der er ikke plads nok på disken ”%1”. Synkroniseringen er på pause, indtil du frigør mindst %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>”%1” blev ikke downloadet, fordi filen kræver %2 diskplads.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Du kan frigøre plads med selektiv synkronisering eller ved kun at have filer online.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Åbn indstillinger for lagerplads</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Hold mindst så meget diskplads ledig</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Downloads sættes på pause, når der er mindre plads tilbage.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>Disken med mappen ”%1” er ikke tilsluttet. Tilslut den for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>Disken ”%1” er skrivebeskyttet. Ændringer fra Corvimo Server kan ikke gemmes på den.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Der er ikke plads nok til midlertidige filer. Frigør mindst %1.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Midlertidige filer</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Slet midlertidige filer</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Midlertidige filer blev slettet (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Kontroller igen</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Brugt</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Største filer</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Slet eller flyt filer, som du ikke længere har brug for.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>Din brugte lagerplads voksede med %1 denne måned.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>Med denne hastighed bliver din lagerplads fuld %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Bed om mere lagerplads</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>Din anmodning blev sendt til administratoren.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>Din anmodning venter på svar.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>Kvoten for gruppen ”%1” er brugt op.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 er klar.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Softwareopdatering</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Søg efter opdateringer</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Søger efter opdateringer...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>Du har den nyeste version.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Version %1 af Corvimo Client er tilgængelig.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Download og installer</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Påmind mig senere</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Spring denne version over</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloader...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>Opdateringen er klar. Genstart Corvimo Client for at installere den.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Genstart nu</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>Opdateringen kunne ikke installeres. Din nuværende version virker fortsat.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client kunne ikke søge efter opdateringer.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Produktbemærkninger</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Installer opdateringer automatisk</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 initialiserer...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Dine indstillinger overføres fra den tidligere version.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Dine indstillinger er overført. Du kan fortsætte, hvor du slap.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>Nogle indstillinger fra den tidligere version kunne ikke overføres. Kontroller dine synkroniseringsopgaver.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>Opdateringen kræver %1 diskplads.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Denne version understøttes ikke længere. Installer opdateringen for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Båndbredde</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Uploadhastighed</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Downloadhastighed</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Begræns til</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Tilpas automatisk</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client lader plads til andre programmer, der bruger netværket.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Tidsplan</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Vælg de timer, hvor begrænsningen gælder.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Hele dagen</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Arbejdstid</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Om natten</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Til</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>Synkroniser ikke</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Fuld hastighed</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Begrænset hastighed</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Ryd tidsplan</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Angiv en hastighed, der er større end 0.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Angiv en hastighed mellem %1 og %2.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>Starttidspunktet skal være før sluttidspunktet.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>Administratoren har begrænset hastigheden til %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Filer, der overføres samtidig</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>Begræns ikke hastigheden på det lokale netværk</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Aktuel hastighed</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Gennemsnitlig hastighed</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Overført i dag</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Overført denne måned</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Vælg, hvad Corvimo Client skal give dig besked om.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Når synkroniseringen er færdig</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Når en fil ikke kan synkroniseres</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Når nogen deler et emne med mig</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Når nogen kommenterer mine filer</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Når lagerpladsen er næsten fuld</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Når en backup er færdig eller er mislykkedes</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Når en opdatering er tilgængelig</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Når forbindelsen afbrydes</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Afspil en lyd</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Forstyr ikke</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Stilletid</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Ingen notifikationer indtil %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Forstyr mig ikke under præsentationer</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Vis filnavne i notifikationer</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Notifikationer er slået fra i systemindstillingerne på denne computer.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Åbn systemindstillinger</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Afvis</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Afvis alle</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vis</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Marker som læst</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Notifikationscenter</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>Du har ingen notifikationer.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Nye notifikationer: %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle filer er opdaterede.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>Den første synkronisering er færdig. Filer, der nu er på denne computer: %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Mange filer blev slettet</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>%1 filer blev slettet fra ”%2”. Gendan dem, hvis det ikke var meningen.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>%1 filer blev ændret på kort tid. Hvis det ikke var dig, skal du sætte synkroniseringen på pause og kontrollere din computer for malware.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>Mappen ”%1” er blevet flyttet. Fortæl Corvimo Client, hvor den er nu.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 kommenterede ”%2”.</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Synkroniseringsproblemer</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Disse filer kunne ikke synkroniseres. Corvimo Client prøver igen, når årsagen er fjernet.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problemer: %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Der er ingen problemer.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Årsag</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Prøv alle igen</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detaljer</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Kopier detaljer</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Rapporter et problem</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>Detaljerne blev kopieret til udklipsholderen.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Fejlkode: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>Filen bruges af et andet program. Luk den der for at synkronisere filen.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>Filen er låst af %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>Filen blev slettet, før den kunne synkroniseres.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>Filen blev ændret, mens den blev uploadet. Den uploades igen.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>Filen blev beskadiget under overførslen. Den overføres igen.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Filen kan ikke læses. Kontroller tilladelserne til den.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>Der kan ikke skrives til filen. Kontroller tilladelserne til den.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>Filen er større end grænsen på %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>Filen er for stor til diskens filsystem.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>Filen er krypteret og kan ikke åbnes på denne computer.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>Virusscanneren på Corvimo Server har blokeret filen.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>Virusscanneren på denne computer har blokeret filen.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Filer af denne type er ikke tilladt på Corvimo Server.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Enheder, pipes og sockets kan ikke synkroniseres.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Symbolske links, der peger uden for den synkroniserede mappe, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>Aliasset ”%1” peger på et emne, der ikke synkroniseres.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>Navnet er for langt. Brug højst %1 tegn.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>Stien er for lang. Forkort navnene på dens mapper.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>Navnet indeholder tegn, der ikke er tilladt: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>Navnet ”%1” er reserveret af systemet.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>Navnet slutter med et mellemrum eller et punktum. Omdøb emnet.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>Navnet indeholder tegn, der ikke kan læses. Omdøb emnet.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Et emne med navnet ”%1” findes allerede i denne mappe.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Angiv et navn.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>Mappen ”%1” blev ikke fundet.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>Mappen blev ikke slettet, fordi den indeholder filer, der ikke er synkroniseret.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Mappen kunne ikke oprettes.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Mappen kunne ikke slettes.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>Du har ikke tilladelse til at ændre denne mappe.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>Du har ikke tilladelse til at åbne denne mappe.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>Mappen indeholder mere end %1 emner. Flyt nogle af dem til undermapper.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>Mappen ligger for dybt i mappestrukturen.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>Serveren er optaget. Corvimo Client prøver igen om nogle minutter.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server rapporterede en intern fejl. Bed administratoren om at se i loggen.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server accepterer ingen ændringer i øjeblikket.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>Diskenheden med denne mappe er ikke tilgængelig på Corvimo Server.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>Den delte mappe blev fjernet fra Corvimo Server.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>Synkronisering blev slået fra for denne delte mappe.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>Serveren sendte et svar, som Corvimo Client ikke forstår.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>Din session er afsluttet. Log ind igen.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Dataene på Corvimo Server blev nulstillet. Konfigurer dine synkroniseringsopgaver igen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>”%1” kunne ikke uploades.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>”%1” kunne ikke uploades: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>”%1” kunne ikke downloades.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>”%1” kunne ikke downloades: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>”%1” kunne ikke slettes: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>”%1” kunne ikke omdøbes: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>”%1” kunne ikke flyttes: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>”%1” kunne ikke gendannes: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Adgang nægtet</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>Disken rapporterede en læse- eller skrivefejl. Kontroller disken for fejl.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>Disken blev fjernet, mens der blev skrevet filer.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Ikke nok hukommelse. Luk andre programmer, og prøv igen.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>Synkroniseringsdatabasen er beskadiget og bliver genopbygget. Det kan tage noget tid.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>Synkroniseringsdatabasen bruges af et andet program.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Genopbygger synkroniseringsdatabasen...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>Synkroniseringsdatabasen er genopbygget.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Dine indstillinger kunne ikke læses. Standardværdierne bruges.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Dine indstillinger kunne ikke gemmes.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Ændringer i nogle mapper bliver måske opdaget sent, fordi systemet overvåger for mange mapper.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>Denne computers ur afviger fra serverens ur med mere end %1 minutter. Indstil denne computers ur korrekt.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Denne handling understøttes ikke af Corvimo Server.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>Handlingen blev annulleret.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>Handlingen tog for lang tid og blev stoppet.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Der opstod en ukendt fejl.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Corvimo Client kunne ikke startes. Genstart denne computer, og prøv igen.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client kører allerede.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>En komponent i Corvimo Client mangler. Installer klienten igen.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Statussymbolerne kan ikke vises, fordi andre programmer allerede bruger alle tilgængelige symbolpladser.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client har brug for din tilladelse til at læse denne mappe. Giv tilladelsen i indstillingerne for anonymitet på denne computer.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Genstart Corvimo Client, hvis problemet fortsætter.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Spørg administratoren, hvis problemet fortsætter.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Kontakt support, og oplys fejlkoden, hvis problemet fortsætter.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Vil du fortsætte med de resterende filer?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Log ind</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Log ud</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Log ind på Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Vis adgangskode</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Har du glemt din adgangskode?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Forbliv logget ind</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Logger ind...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Logget ind som %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Du er logget ud.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Vil du logge ud? Synkroniseringen stopper, indtil du logger ind igen.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Log ind med din browser</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Fortsæt i din browser, og kom derefter tilbage hertil.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>Browseren kunne ikke åbnes. Åbn selv denne adresse: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domæne</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Angiv dit brugernavn som domæne\bruger, hvis din konto hører til et domæne.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Tilføj konto</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Skift konto</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Fjern konto</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Vil du fjerne kontoen %1 fra denne computer? Dine filer bliver på denne computer og på Corvimo Server.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-mailadresse</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Fulde navn</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Skift adgangskode</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Nuværende adgangskode</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Ny adgangskode</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Gentag den nye adgangskode</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>Din adgangskode er skiftet.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>Administratoren kræver, at du skifter din adgangskode.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Dage, til din adgangskode udløber: %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>De to adgangskoder er ikke ens.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>Den nye adgangskode skal være forskellig fra den nuværende.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Angiv dit brugernavn.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Angiv din adgangskode.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Brugernavnet eller adgangskoden er forkert.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>Brugernavnet eller adgangskoden er forkert. Resterende forsøg: %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Din konto er deaktiveret. Spørg administratoren.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Din konto er udløbet. Spørg administratoren.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Du har ikke tilladelse til at bruge Corvimo Server. Spørg administratoren.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>Din adgangskode er udløbet. Skift den på Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>Din hjemmemappe er ikke tilgængelig. Bed administratoren om at slå hjemmetjenesten til.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>Gæstekontoen kan ikke bruges til synkronisering.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Alle licenser til Corvimo Server er i brug.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Navn på denne computer</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Tilknyttede enheder</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Vil du fjerne tilknytningen af ”%1”? Enheden bliver logget ud og holder op med at synkronisere.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Tilknytningen af denne computer blev fjernet af %1. Log ind igen for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne computer</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Slet også filerne på enheden</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Totrinslogin</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Angiv den kode, som din godkendelsesapp viser.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Bekræftelseskode</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 cifre</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Bekræft</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Bekræfter...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Hav tillid til denne enhed</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Spørg ikke igen på denne computer i dette antal dage: %1</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Har du mistet din telefon?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Send en kode via e-mail</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>Der blev sendt en kode til %1. Den er gyldig i 10 minutter.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Koden kunne ikke sendes. Bed administratoren om hjælp.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Brug en gendannelseskode</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Angiv en af de gendannelseskoder, du skrev ned. Hver kode virker én gang.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Gendannelseskoder tilbage: %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Brug en sikkerhedsnøgle</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Indsæt din sikkerhedsnøgle, og rør ved den.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>Sikkerhedsnøglen blev ikke genkendt. Prøv en anden.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Godkend login på din telefon</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>Venter på din godkendelse...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Vælg tallet %1 på din telefon.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>Login blev afvist på din telefon.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>Anmodningen er udløbet. Send den igen.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Send igen</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Prøv en anden metode</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Angiv koden.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>Koden er forkert. Kontroller, at uret på din telefon går rigtigt.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Denne kode er allerede brugt. Vent på den næste.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>For mange forkerte koder. Minutter, før du kan prøve igen: %1.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>Administratoren kræver totrinslogin. Konfigurer det først på Corvimo Server.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Konfigurer totrinslogin</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Scan denne kode med din godkendelsesapp.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>Totrinslogin er slået til.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Backupopgaver</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>En backupopgave kopierer mapper på denne computer til Corvimo Server og gemmer tidligere versioner.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Opret backupopgave</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Rediger backupopgave</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Slet backupopgave</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Vil du slette backupopgaven ”%1”?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Slet også backupfilerne på Corvimo Server</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Opgavens navn</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Der findes allerede en opgave med dette navn.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Hvad der skal tages backup af</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Tilføj mappe</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Vælg mindst én mappe, der skal tages backup af.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>Mappen ”%1” findes ikke længere. Den udelades fra backuppen.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Skrivebord</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumenter</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Billeder</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videoer</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Overførsler</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Eksterne diske</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Hvor backuppen skal gemmes</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Denne mappe indeholder allerede en backup af en anden computer.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Hvornår der skal tages backup</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Hver gang en fil ændres</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>Efter en tidsplan</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Kun når jeg starter den</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Dagligt</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Ugentligt</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Månedligt</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Hver time</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Kl. %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>På disse dage</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>Når en ekstern disk tilsluttes</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Væk denne computer til backup</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Tag backup nu</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Stop backup</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Vil du stoppe backuppen? Filer, der allerede er taget backup af, beholdes.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Tager backup...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Tager backup af filer: %1 af %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Backuppen er færdig.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Seneste backup: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Næste backup: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Ingen backup endnu</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>Backuppen er færdig. Filer, der ikke kunne læses: %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>Backuppen mislykkedes: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>Backuppen, der var planlagt til %1, blev ikke udført. Den starter nu.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Dage siden seneste backup af denne computer: %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Hvor længe versioner skal beholdes</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Behold alle versioner</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Antal versioner, der beholdes: %1</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Antal dage, versioner beholdes: %1</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Behold færre versioner, efterhånden som de bliver ældre</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Krypter backuppen</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Krypteringsnøgle</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Opbevar nøglen et sikkert sted. Uden den kan backuppen ikke gendannes.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>Krypteringsnøglen er forkert.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Gendan filer</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Vælg de filer, der skal gendannes, og hvor de skal placeres.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Gendan til den oprindelige placering</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Erstat eksisterende filer</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>Gendanner filer: %1 af %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Alle filer blev gendannet.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>Gendannede filer: %1. Filer, der ikke kunne gendannes: %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Verificer backup</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>Backuppen er intakt.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Beskadigede filer i backuppen: %1. Der tages backup af dem igen.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Udført</translation>
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
        <translation>Version %1 (build %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Serverversion</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Alle rettigheder forbeholdes.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licensaftale</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Erklæring om beskyttelse af personlige oplysninger</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Tredjepartssoftware</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Websted</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Kontakt support</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Send feedback</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Tak, fordi du bruger Corvimo Client.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logfiler</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Detaljeringsgrad</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>Detaljerede logfiler gør klienten langsommere. Gå tilbage til det normale niveau, når du er færdig.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Åbn logmappe</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Gem log</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>Loggen blev gemt i ”%1”.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Loggen kunne ikke gemmes.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Ryd log</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Vil du rydde loggen?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Send log til support</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Sender loggen...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>Loggen blev sendt. Dit rapportnummer er %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Loggen kunne ikke sendes. Gem den, og send den via e-mail.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>Loggen indeholder navne på filer og mapper, men ikke deres indhold.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Send anonyme brugsdata for at hjælpe med at forbedre Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Start Corvimo Client, når jeg logger ind på denne computer</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Vis statussymboler på filer og mapper</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Vis Corvimo Client i genvejsmenuen</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Vis synkroniserede mapper i indholdsoversigten</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Vis symbolet på menulinjen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>Samme som systemet</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>Sproget ændres, når du genstarter Corvimo Client.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Udseende</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Lys</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Mørk</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tekststørrelse</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>Gå ikke på vågeblus, mens filer synkroniseres</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Flyt filer, der slettes på Corvimo Server, til papirkurven</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Advar mig, før mange filer slettes</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Vil du nulstille alle indstillinger? Dine synkroniseringsopgaver forbliver, som de er.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Denne indstilling administreres af administratoren.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Dine indstillinger er gemt.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Vil du forkaste dine ændringer?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Forkast</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Filer efter behov</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Alle filer vises på denne computer, men en fil downloades først, når du åbner den.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>Slå ”Filer efter behov” til</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Vil du slå ”Filer efter behov” til for ”%1”? Filer, der allerede er på denne computer, bliver her.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>”Filer efter behov” er slået til.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>Slå ”Filer efter behov” fra</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Vil du slå ”Filer efter behov” fra? Alle filer i denne mappe bliver downloadet (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Der er ikke plads nok til at downloade alle filer. Der mangler %1.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Kun online</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Altid på denne computer</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Delvist på denne computer</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>Filer, der kun bliver tilgængelige online: %1. Vil du fortsætte?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>%1 diskplads blev frigjort.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Filer, der ikke er uploadet endnu, bliver på denne computer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>”%1” er åben og bliver på denne computer.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Frigør plads automatisk</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Gør filer kun tilgængelige online, når de ikke er åbnet i dette antal dage: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Kun når der er lidt diskplads</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 downloader ”%2”.</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Bloker downloads fra dette program</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Et program åbner mange filer, der kun findes online. Vil du tillade det?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>”%1” kan ikke åbnes, fordi filen kun findes online, og Corvimo Client ikke har forbindelse.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Start Corvimo Client for at åbne filer, der kun findes online.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>”Filer efter behov” understøttes ikke af denne version af systemet.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>”Filer efter behov” understøttes ikke på denne disk.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Tillad filudbyderudvidelsen i systemindstillingerne for at bruge ”Filer efter behov”.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Vis forhåndsvisninger af filer, der kun findes online</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>Der kan ikke søges i indholdet af filer, der kun findes online, på denne computer.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Tillad</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloker</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Velkommen til Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Konfigurer Corvimo Client i nogle få trin for at have dine filer på alle computere.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Kom i gang</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Trin %1 af %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Opret forbindelse til din server</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Angiv adressen på Corvimo Server, og log ind med din konto.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>Hvad vil du gøre?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Synkroniser filer</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Hold filer ens på denne computer og på Corvimo Server.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Tag backup af denne computer</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Kopier dine filer til Corvimo Server for at beskytte dem mod tab.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Dine filer bliver synkroniseret til ”%1”.</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Teammapper</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Vælg de teammapper, du vil have på denne computer.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>Du er ikke medlem af nogen teammappe.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Synkroniseringsindstillinger</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Synkroniser alle filer</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client har brug for din tilladelse til at vise notifikationer og læse dine mapper.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Opsummering</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Kontroller dine valg, før du begynder.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>Filer, der bliver downloadet: %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Alt er klar</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client synkroniserer nu dine filer. Du finder programmet på menulinjen.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Tag en rundvisning</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Klik på symbolet på menulinjen for at se, hvad der sker.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Højreklik på en fil for at dele den eller se dens versioner.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Symbolerne på dine filer viser, om de er synkroniseret.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Vil du afbryde konfigurationen? Du kan fortsætte senere.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Der blev fundet indstillinger fra en tidligere installation. Vil du bruge dem?</translation>
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
        <translation>1 mappe</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 mapper</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Emner: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 af %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>Filer: %1, mapper: %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 og %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Lige nu</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>I dag kl. %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>I går kl. %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>I morgen</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 kl. %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>For et minut siden</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>For %1 minutter siden</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>For en time siden</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>For %1 timer siden</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>For %1 dage siden</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Sidste uge</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Sidste måned</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 sek.</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min.</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 t.</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 dg.</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1 sek. tilbage</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>%1 min. tilbage</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>%1 t. tilbage</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Mandag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tirsdag</translation>
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
        <translation>Lørdag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Søndag</translation>
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
        <translation>Få mere at vide</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Vis ikke denne besked igen</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Vent...</translation>
    </message>
</context>
</TS>
