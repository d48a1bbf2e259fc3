<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="en">
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
        <translation>Fil lagt til: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Bytt mappe</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå sammen</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Lagt til</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Endret</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Gitt nytt navn</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Flyttet</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Gjenopprettet</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>Fil endret: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Fil slettet: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Fil gitt nytt navn: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Mappe lagt til: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Mappe slettet: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nylig endrede filer</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Ingen filer er endret ennå.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Vis alle endringer</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Åpne Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Åpne i nettleser</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Sett synkronisering på pause</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Sett på pause i én time</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Sett på pause til i morgen</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Gjenoppta synkronisering</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Varslinger</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>Om Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Filer synkroniseres ikke lenger før du starter Corvimo Client igjen. Vil du avslutte?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Oppdatert</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Synkroniserer, gjenstående filer: %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>Laster opp %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Laster ned %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Ser etter endringer...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Satt på pause</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>Satt på pause til %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Ikke tilkoblet</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kobler til...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Venter</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>Krever handling</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Noen filer kunne ikke synkroniseres.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Ingen synkroniseringsoppgave er konfigurert.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>%1 opp, %2 ned</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Åpne</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Åpne med...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Vis i mappe</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Versjonshistorikk</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Hent lenke</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Kopier lenke</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Del...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Send lenke via e-post</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Synkroniser nå</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Synkroniser denne mappen</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Slutt å synkronisere denne mappen</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Behold alltid på denne datamaskinen</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Frigjør plass</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Lås fil</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Lås opp fil</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Gjenopprett</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Gi nytt navn</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Oppdater</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Egenskaper</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Kopier bane</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Velg alle</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Ny mappe</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Klipp ut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Lim inn</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Angre</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gjør om</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Ikke synkroniser filer med dette navnet</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Ikke synkroniser filer av denne typen</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Låst av %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>«%1» er låst. Andre kan lese filen, men ikke endre den.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>«%1» er låst opp.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>Lenken ble kopiert til utklippstavlen.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>Banen ble kopiert til utklippstavlen.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>Valgte objekter: %1</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Dette objektet er ikke i en synkronisert mappe.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsoppgaver</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Oversikt</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synkronisering</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sikkerhetskopiering</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Nylig aktivitet</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Opprett</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Opprett synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sett på pause</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Gjenoppta</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Sett alle på pause</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Gjenoppta alle</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>Ingenting samsvarer med «%1».</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Det finnes ingen synkroniseringsoppgave ennå. Opprett en for å holde en mappe på denne datamaskinen og en mappe på Corvimo Server like.</translation>
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
        <translation>Mappe på denne datamaskinen</translation>
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
        <translation>Endringsdato</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Eier</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Konto</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Sist synkronisert</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Stoppet</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Finner ikke mappen</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Slett synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Vil du slette synkroniseringsoppgaven «%1»? Filene dine blir værende på denne datamaskinen og på Corvimo Server.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Vil du slette de valgte synkroniseringsoppgavene (%1)? Filene dine blir værende på denne datamaskinen og på Corvimo Server.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>Synkroniseringsoppgaven ble slettet.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>Synkroniseringen er satt på pause. Endringer synkroniseres når du gjenopptar den.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Tøm listen</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>All aktivitet</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Bare feil</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 ble lastet opp.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 ble lastet ned.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 ble slettet fra denne datamaskinen.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 ble slettet fra Corvimo Server.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1 fikk nytt navn: %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 ble flyttet til %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>Filer endret av %2: %1.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Velg mapper som skal synkroniseres</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Velg en mappe på Corvimo Server og en mappe på denne datamaskinen. Corvimo Client holder begge like.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Velg servermappe</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Velg lokal mappe</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Endre</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Bla gjennom...</translation>
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
        <translation>Neste</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Navn på den nye mappen</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>Mappen «%1» kunne ikke opprettes. Velg et annet navn, eller kontroller tillatelsene dine.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Opprett en tom mappe med navnet «%1» her</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Toveis synkronisering</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Bare last opp endringer</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Bare last ned endringer</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>Endringer på den ene siden kopieres til den andre.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Endringer på denne datamaskinen lastes opp. Endringer på Corvimo Server lastes ikke ned.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Endringer på Corvimo Server lastes ned. Endringer på denne datamaskinen lastes ikke opp.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Behold filer på denne datamaskinen når de slettes på Corvimo Server</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Behold filer på Corvimo Server når de slettes på denne datamaskinen</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Slå sammen mapper</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Begge mappene inneholder allerede filer. Velg hva som skal gjøres med dem.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>Mappen «%1» finnes allerede. Vil du slå den sammen med mappen på Corvimo Server?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Slå sammen begge mappene og behold alle filene</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Bruk filene på denne datamaskinen</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Bruk filene på Corvimo Server</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Velg en annen mappe</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Filer som er ulike, beholdes i to kopier.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Filer på Corvimo Server som ikke finnes på denne datamaskinen, blir slettet.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Filer på denne datamaskinen som ikke finnes på Corvimo Server, blir flyttet til papirkurven.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Filer med samme navn blir erstattet. Dette kan ikke angres.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>Sammenligner begge mappene...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>Sammenlignede filer: %1 av %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>Begge mappene er nå like.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Denne mappen er allerede del av en synkroniseringsoppgave. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Denne mappen ligger i en mappe som allerede synkroniseres. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Denne mappen inneholder en mappe som allerede synkroniseres. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Systemmapper kan ikke synkroniseres. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>En hel disk kan ikke synkroniseres. Velg en mappe på den.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Mapper på flyttbare disker kan ikke synkroniseres.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Nettverksmapper som \\server\share kan ikke synkroniseres. Velg en mappe på denne datamaskinen.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>Du har ikke tillatelse til å skrive til denne mappen. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Denne mappen er kryptert og låst. Lås den først opp på Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>Finner ikke mappen. Den kan ha blitt flyttet eller slettet.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>Filsystemet på denne disken støttes ikke. Bruk en disk med et filsystem som støttes.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Du har nådd grensen på %1 synkroniseringsoppgaver. Slett en oppgave du ikke lenger trenger.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Velg hva som skal synkroniseres til denne datamaskinen. Mapper du fjerner merkingen for, fjernes fra denne datamaskinen, men blir værende på Corvimo Server.</translation>
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
        <translation>Velg ingen</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Synkroniser nye mapper automatisk</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laster inn...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>Listen over mapper kunne ikke lastes inn. Kontroller tilkoblingen, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Prøv på nytt</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Mapper som blir fjernet fra denne datamaskinen: %1. De blir værende på Corvimo Server.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Vil du fjerne mappene fra denne datamaskinen?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Noen filer i disse mappene er ikke lastet opp ennå og ville gått tapt. Synkroniser dem først.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Valgt: %1 av %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Ikke synkroniser filer større enn</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Ikke synkroniser filer med disse filetternavnene</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Ikke synkroniser filer med disse navnene</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Legg til filetternavn</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Legg til navn</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Synkroniser filer og mapper med navn som begynner med punktum</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Midlertidige filer fra vanlige programmer synkroniseres aldri.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Gjenopprett standardverdier</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Vil du gå tilbake til standardfilteret?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Oppgi et filetternavn, for eksempel «iso».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>«%1» er allerede på listen.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Et navn kan ikke inneholde noen av disse tegnene: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Oppgi en størrelse mellom %1 og %2.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Utelatt av filter</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>Valget ditt ble lagret. Corvimo Client tar det nå i bruk.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Dokumentfiler</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Bildefiler</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Videofiler</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Musikkfiler</translation>
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
        <translation>Versjoner av «%1»</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Gjeldende versjon</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Tidligere versjon</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versjon</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Endret av</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Enhet</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Last ned</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Forhåndsvis</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Lukk</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Denne filen har ingen tidligere versjoner.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Velg en fil for å se versjonene.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Gjenopprett versjon</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Vil du erstatte den gjeldende versjonen med den fra %1?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>Den gjeldende versjonen beholdes i historikken.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>«%1» ble gjenopprettet til versjonen fra %2.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>Versjonen kunne ikke gjenopprettes. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Gjenopprett som en kopi</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Lagre versjon som</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>Versjonen ble lagret i «%1».</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Vil du slette denne versjonen? Den kan ikke hentes tilbake.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>Versjonen kunne ikke slettes.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Beskyttet mot automatisk sletting</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Største antall versjoner av en fil som Corvimo Server beholder: %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>Versjonshistorikk er slått av for denne mappen. Be administratoren om å slå den på.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Versjoner lagres ikke for denne filtypen.</translation>
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
        <translation>Vil du gjenopprette de valgte objektene (%1)?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Gjenopprettede objekter: %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Fant ingen slettede filer.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Gå tilbake til et tidspunkt</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Velg dato og klokkeslett</translation>
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
        <translation>Del «%1»</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personer</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lenke</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Inviter personer eller opprett en lenke til dette objektet.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Inviter personer</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Oppgi et navn eller en e-postadresse</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Send invitasjon</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>Invitasjonen ble sendt til %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>Invitasjonen kunne ikke sendes. Kontroller e-postadressen.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Melding (valgfritt)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Legg til</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Lagre</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Tillatelser</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Kan vise</translation>
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
        <translation>Kan bare laste opp</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Ingen tilgang</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>Tillatelsene for %1 ble endret.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>Du har ikke tillatelse til å dele dette objektet. Spør eieren.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Delt med meg</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Delt av meg</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Personer med tilgang: %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Dette objektet er ikke delt.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Forlat delt mappe</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Vil du forlate den delte mappen «%1»? Den blir fjernet fra denne datamaskinen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>«%1» deles ikke lenger med deg.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 delte «%2» med deg.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Alle på denne serveren</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Lenkeinnstillinger</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Opprett lenke</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Oppretter lenke...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Slett lenke</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Vil du slette denne lenken? Personer som har den, kan ikke lenger åpne objektet.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Alle med lenken</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Bare personer med en konto</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Beskytt med et passord</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>Passordet må ha minst %1 tegn.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Oppgi et passord for lenken.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Lenken er gyldig til</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>Utløper aldri</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Velg en dato i fremtiden.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Denne lenken er utløpt.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>Antall tillatte nedlastinger</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>Gjenstående nedlastinger: %1</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Tillat nedlasting</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Tillat opplasting</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>Lenken kunne ikke opprettes. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>Administratoren har slått av lenker for denne mappen.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Filforespørsel</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>Personer med lenken kan laste opp filer til denne mappen uten å se innholdet.</translation>
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
        <translation>«%1» ble endret to steder samtidig.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>%1 filer ble endret to steder samtidig.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Velg hvilken versjon som skal beholdes. Den andre lagres som en konfliktkopi.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Behold versjonen på denne datamaskinen</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Behold versjonen på Corvimo Server</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Behold begge versjonene</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Behold den nyeste versjonen</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Spør meg hver gang</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Gjør dette for alle konflikter</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>konfliktkopi fra %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>På denne datamaskinen</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>På Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Endret av %1, %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Når en fil er endret to steder</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Navn der bare store og små bokstaver er ulike</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>«%1» og «%2» er like bortsett fra store og små bokstaver. Gi en av dem nytt navn.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Det er ingen konflikter.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>Konflikten ble løst.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Konflikten kunne ikke løses fordi filen er åpen. Lukk den, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Løs</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Bestem senere</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Åpne begge filene</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Hopp over</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Du slettet «%1», men filen ble endret på Corvimo Server. Den endrede filen ble beholdt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>«%1» ble slettet på Corvimo Server, men du endret filen. Filen din ble beholdt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>«%1» er en fil på den ene siden og en mappe på den andre. Gi en av dem nytt navn.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Konfliktkopier</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Slett konfliktkopier</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Vil du slette konfliktkopiene (%1)? De kan ikke hentes tilbake.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>«%1» er åpen i et annet program og synkroniseres når den lukkes.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Tilkobling</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Vertsnavn, IP-adresse eller Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Krypter tilkoblingen</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Uten kryptering kan andre på nettverket lese filene dine og passordet ditt.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Koble til</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Koble fra</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Koble til på nytt</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Test tilkoblingen</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester tilkoblingen...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Tilkoblingen fungerer.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>Tilkoblingen fungerer ikke. Kontroller adressen og porten.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Tilkoblet</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Koblet til %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>Tilkoblingen til %1 ble brutt. Corvimo Client prøver på nytt om %2 sekunder.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>Tilkoblingen til %1 er tilbake.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Venter på en nettverkstilkobling</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Ikke synkroniser på nettverk med forbruksmåling</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>Synkroniseringen er satt på pause fordi dette nettverket har forbruksmåling.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Tilkoblet via det lokale nettverket</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Tilkoblet via internett</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Tilkoblet via en reléserver</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>Reléserveren er tregere enn en direkte tilkobling.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Finn servere på dette nettverket</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Ser etter servere...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>Fant ingen server på dette nettverket. Oppgi serveradressen selv.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Servere funnet: %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>Fant ikke serveren «%1». Kontroller at adressen er riktig skrevet.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>Serveren avviste tilkoblingen. Kontroller at Corvimo Server kjører.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>Serveren svarte ikke i tide. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Denne datamaskinen er ikke koblet til et nettverk.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Oppgi en port mellom 1 og 65535.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Oppgi adressen til serveren.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Corvimo ID-en «%1» finnes ikke.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>Serveren med denne Corvimo ID-en er frakoblet. Kontroller at den er slått på.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>Corvimo Server er ikke installert eller kjører ikke på denne serveren.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>Serveren er under vedlikehold. Synkroniseringen fortsetter når serveren er tilgjengelig igjen.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server er for gammel for denne klienten. Be administratoren om å oppdatere til versjon %1 eller nyere.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Denne klienten er for gammel for Corvimo Server. Oppdater den til versjon %1 eller nyere.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>For mange klienter er koblet til serveren. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Denne datamaskinen ble blokkert etter for mange mislykkede forsøk. Be administratoren om å oppheve blokkeringen.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>En brannmur blokkerer kanskje Corvimo Client. La Corvimo Client bruke port %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>En sikker tilkobling kunne ikke opprettes: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Det oppstod en ukjent feil (kode %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Rediger tilkobling</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Fjern tilkobling</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Vil du fjerne tilkoblingen til %1? Synkroniseringsoppgavene slettes, men filene dine blir værende.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>Filer som ikke er lastet opp ennå: %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avansert</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Sist tilkoblet %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Bruk en proxyserver hvis nettverket ditt trenger en for å nå internett.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Ikke bruk proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Bruk proxyinnstillingene på denne datamaskinen</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Konfigurer proxyen selv</translation>
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
        <translation>Proxyen krever brukernavn og passord</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Ikke bruk proxyen for lokale adresser</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Ikke bruk proxyen for disse adressene</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Test proxyen</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Proxyen fungerer.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Logg på proxyen</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>Proxyen %1 ber om brukernavn og passord.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>Proxyen godtok ikke brukernavnet eller passordet.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>Proxyen %1 kan ikke nås. Kontroller adressen og porten.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>Proxyen tillater ikke tilkoblinger til %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Proxyinnstillingene på denne datamaskinen kunne ikke leses.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Oppgi adressen til proxyen.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Sertifikat</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>Sertifikatet er ikke klarert</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>Sertifikatet for %1 er ikke utstedt av en kjent utsteder. Noen kan utgi seg for å være serveren din.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>Serveren bruker et sertifikat den har signert selv.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>Sertifikatet utløp %1.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>Sertifikatet er ikke gyldig før %1. Kontroller klokken på denne datamaskinen.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>Sertifikatet er utstedt til %1, ikke til %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>Sertifikatet er tilbakekalt av utstederen.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>Sertifikatet er endret</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>Sertifikatet for %1 er ikke det samme som ble brukt tidligere. Spør administratoren om det er fornyet.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>Sertifikatet bruker en algoritme som ikke lenger regnes som sikker.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Stol på dette sertifikatet</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Stol alltid på dette sertifikatet</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Stol på det bare denne gangen</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Ikke koble til</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Vis sertifikat</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Utstedt til</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Utstedt av</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Gyldig fra</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Gyldig til</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Fingeravtrykk</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Signaturalgoritme</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Nøkkellengde</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Eksporter sertifikat</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>Sertifikatet ble lagret i «%1».</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Importer sertifikat</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>Filen inneholder ikke et gyldig sertifikat.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Vil du fjerne sertifikatet for %1 fra de klarerte sertifikatene?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Lagringsplass</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 av %2 brukt</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 ledig</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Ubegrenset</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Lagringsplass på Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Lagringsplass på denne datamaskinen</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Lagringsplass etter filtype</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Lagringsplass etter mappe</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Lagringsplass brukt av tidligere versjoner</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Lagringsplass brukt av slettede filer</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Tøm papirkurven</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Vil du tømme papirkurven? Filene i den kan ikke hentes tilbake.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>Papirkurven ble tømt. %1 er ledig igjen.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Beregner...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Lagringsplassen din er nesten full. Bare %1 gjenstår.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Lagringsplassen din er full</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Nye filer kan ikke lastes opp før du sletter noen filer eller ber administratoren om mer lagringsplass.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>Mappen «%1» har nådd kvoten. Nye filer i den kan ikke lastes opp.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Volumet på Corvimo Server er fullt. Be administratoren om å frigjøre plass.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>«%1» er større enn lagringsplassen som gjenstår (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Lite diskplass</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>Bare %1 gjenstår på disken «%2». Synkroniseringen stopper når disken er full.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Ikke nok diskplass</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>Det er ikke nok plass på disken «%1». Synkroniseringen er satt på pause til du frigjør minst %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>«%1» ble ikke lastet ned fordi filen krever %2 diskplass.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Du kan frigjøre plass med selektiv synkronisering eller ved å ha filer bare på nettet.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Åpne lagringsinnstillinger</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Hold minst så mye diskplass ledig</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Nedlastinger settes på pause når det er mindre plass igjen.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>Disken med mappen «%1» er ikke tilkoblet. Koble den til for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>Disken «%1» er skrivebeskyttet. Endringer fra Corvimo Server kan ikke lagres på den.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Det er ikke nok plass til midlertidige filer. Frigjør minst %1.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Midlertidige filer</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Slett midlertidige filer</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Midlertidige filer ble slettet (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Kontroller på nytt</translation>
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
        <translation>Brukt</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Største filer</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Slett eller flytt filer du ikke lenger trenger.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>Lagringsbruken din økte med %1 denne måneden.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>I dette tempoet blir lagringsplassen din full %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Be om mer lagringsplass</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>Forespørselen din ble sendt til administratoren.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>Forespørselen din venter på svar.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>Kvoten for gruppen «%1» er brukt opp.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 er klar.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Programvareoppdatering</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Se etter oppdateringer</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Ser etter oppdateringer...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>Du har den nyeste versjonen.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Versjon %1 av Corvimo Client er tilgjengelig.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Last ned og installer</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Påminn meg senere</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Hopp over denne versjonen</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laster ned...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>Oppdateringen er klar. Start Corvimo Client på nytt for å installere den.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Start på nytt nå</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>Oppdateringen kunne ikke installeres. Den nåværende versjonen fungerer fortsatt.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client kunne ikke se etter oppdateringer.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Versjonsmerknader</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Installer oppdateringer automatisk</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 starter opp...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Innstillingene dine overføres fra den tidligere versjonen.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Innstillingene dine ble overført. Du kan fortsette der du slapp.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>Noen innstillinger fra den tidligere versjonen kunne ikke overføres. Kontroller synkroniseringsoppgavene dine.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>Oppdateringen krever %1 diskplass.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Denne versjonen støttes ikke lenger. Installer oppdateringen for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Båndbredde</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Opplastingshastighet</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Nedlastingshastighet</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Begrens til</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Juster automatisk</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client gir plass til andre programmer som bruker nettverket.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Tidsplan</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Velg timene da begrensningen skal gjelde.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Hele dagen</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Arbeidstid</translation>
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
        <translation>Ikke synkroniser</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Full hastighet</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Begrenset hastighet</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Tøm tidsplanen</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Oppgi en hastighet større enn 0.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Oppgi en hastighet mellom %1 og %2.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>Starten må være tidligere enn slutten.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>Administratoren har begrenset hastigheten til %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Filer som overføres samtidig</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>Ikke begrens hastigheten på det lokale nettverket</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Gjeldende hastighet</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Gjennomsnittlig hastighet</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Overført i dag</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Overført denne måneden</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Velg hva Corvimo Client skal gi deg beskjed om.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Når synkroniseringen er fullført</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Når en fil ikke kan synkroniseres</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Når noen deler et objekt med meg</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Når noen kommenterer filene mine</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Når lagringsplassen er nesten full</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Når en sikkerhetskopiering er fullført eller mislykket</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Når en oppdatering er tilgjengelig</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Når tilkoblingen brytes</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Spill av en lyd</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Ikke forstyrr</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Stille timer</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Ingen varslinger frem til %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Ikke forstyrr meg under presentasjoner</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Vis filnavn i varslinger</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Varslinger er slått av i systeminnstillingene på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Åpne systeminnstillinger</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Avvis</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Avvis alle</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vis</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Merk som lest</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Varslingssenter</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>Du har ingen varslinger.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Nye varslinger: %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle filer er oppdatert.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>Den første synkroniseringen er fullført. Filer som nå er på denne datamaskinen: %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Mange filer ble slettet</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>%1 filer ble slettet fra «%2». Gjenopprett dem hvis dette ikke var meningen.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>%1 filer ble endret på kort tid. Hvis du ikke gjorde dette, bør du sette synkroniseringen på pause og sjekke datamaskinen for skadelig programvare.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>Mappen «%1» ble flyttet. Angi for Corvimo Client hvor den er nå.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 kommenterte «%2».</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Synkroniseringsproblemer</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Disse filene kunne ikke synkroniseres. Corvimo Client prøver på nytt når årsaken er borte.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problemer: %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Det er ingen problemer.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Årsak</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Prøv alle på nytt</translation>
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
        <translation>Detaljene ble kopiert til utklippstavlen.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Feilkode: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>Filen brukes av et annet program. Lukk den der for å synkronisere filen.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>Filen er låst av %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>Filen ble slettet før den kunne synkroniseres.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>Filen ble endret mens den ble lastet opp. Den lastes opp på nytt.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>Filen ble skadet under overføringen. Den overføres på nytt.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Filen kan ikke leses. Kontroller tillatelsene for filen.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>Det er ikke mulig å skrive til filen. Kontroller tillatelsene for filen.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>Filen er større enn grensen på %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>Filen er for stor for filsystemet på denne disken.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>Filen er kryptert og kan ikke åpnes på denne datamaskinen.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>Virusskanneren på Corvimo Server har blokkert filen.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>Virusskanneren på denne datamaskinen har blokkert filen.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Filer av denne typen er ikke tillatt på Corvimo Server.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Enheter, datarør og sockets kan ikke synkroniseres.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Symbolske lenker som peker utenfor den synkroniserte mappen, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>Aliaset «%1» peker til et objekt som ikke synkroniseres.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>Navnet er for langt. Bruk høyst %1 tegn.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>Banen er for lang. Forkort navnene på mappene.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>Navnet inneholder tegn som ikke er tillatt: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>Navnet «%1» er reservert av systemet.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>Navnet slutter med mellomrom eller punktum. Gi objektet nytt navn.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>Navnet inneholder tegn som ikke kan leses. Gi objektet nytt navn.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Et objekt med navnet «%1» finnes allerede i denne mappen.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Oppgi et navn.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>Finner ikke mappen «%1».</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>Mappen ble ikke slettet fordi den inneholder filer som ikke synkroniseres.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Mappen kunne ikke opprettes.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Mappen kunne ikke slettes.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>Du har ikke tillatelse til å endre denne mappen.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>Du har ikke tillatelse til å åpne denne mappen.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>Mappen inneholder mer enn %1 objekter. Flytt noen av dem til undermapper.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>Mappen ligger for dypt i mappestrukturen.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>Serveren er opptatt. Corvimo Client prøver på nytt om noen minutter.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server rapporterte en intern feil. Be administratoren om å se i loggen.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server godtar ingen endringer for øyeblikket.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>Volumet med denne mappen er ikke tilgjengelig på Corvimo Server.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>Den delte mappen ble fjernet fra Corvimo Server.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>Synkronisering ble slått av for denne delte mappen.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>Serveren sendte et svar som Corvimo Client ikke forstår.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>Økten din er avsluttet. Logg på igjen.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Dataene på Corvimo Server ble tilbakestilt. Konfigurer synkroniseringsoppgavene på nytt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>«%1» kunne ikke lastes opp.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>«%1» kunne ikke lastes opp: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>«%1» kunne ikke lastes ned.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>«%1» kunne ikke lastes ned: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>«%1» kunne ikke slettes: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>«%1» kunne ikke gis nytt navn: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>«%1» kunne ikke flyttes: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>«%1» kunne ikke gjenopprettes: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Tilgang nektet</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>Disken rapporterte en lese- eller skrivefeil. Kontroller disken for feil.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>Disken ble fjernet mens filer ble skrevet.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Ikke nok minne. Lukk andre programmer, og prøv på nytt.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>Synkroniseringsdatabasen er skadet og blir bygd opp på nytt. Dette kan ta litt tid.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>Synkroniseringsdatabasen brukes av et annet program.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Bygger opp synkroniseringsdatabasen på nytt...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>Synkroniseringsdatabasen ble bygd opp på nytt.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Innstillingene dine kunne ikke leses. Standardverdiene brukes.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Innstillingene dine kunne ikke lagres.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Endringer i noen mapper kan bli oppdaget sent fordi systemet overvåker for mange mapper.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>Klokken på denne datamaskinen avviker fra klokken på serveren med mer enn %1 minutter. Still klokken på denne datamaskinen riktig.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Denne handlingen støttes ikke av Corvimo Server.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>Handlingen ble avbrutt.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>Handlingen tok for lang tid og ble stoppet.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Det oppstod en ukjent feil.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Corvimo Client kunne ikke startes. Start denne datamaskinen på nytt, og prøv igjen.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client kjører allerede.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>En komponent i Corvimo Client mangler. Installer klienten på nytt.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Statussymbolene kan ikke vises fordi andre programmer allerede bruker alle tilgjengelige symbolplasser.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client trenger din tillatelse til å lese denne mappen. Tillat det i personverninnstillingene på denne datamaskinen.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Start Corvimo Client på nytt hvis problemet vedvarer.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Spør administratoren hvis problemet vedvarer.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Kontakt kundestøtte og oppgi feilkoden hvis problemet vedvarer.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Vil du fortsette med de gjenstående filene?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Logg på</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Logg av</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Logg på Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Vis passord</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Har du glemt passordet?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Forbli pålogget</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Logger på...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Logget på som %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Du er logget av.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Vil du logge av? Synkroniseringen stopper til du logger på igjen.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Logg på med nettleseren</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Fortsett i nettleseren, og kom deretter tilbake hit.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>Nettleseren kunne ikke åpnes. Åpne denne adressen selv: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domene</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Oppgi brukernavnet ditt som domene\bruker hvis kontoen din tilhører et domene.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Legg til konto</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Bytt konto</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Fjern konto</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Vil du fjerne kontoen %1 fra denne datamaskinen? Filene dine blir værende på denne datamaskinen og på Corvimo Server.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-postadresse</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Fullt navn</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Endre passord</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Nåværende passord</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nytt passord</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Gjenta det nye passordet</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>Passordet ditt ble endret.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>Administratoren krever at du endrer passordet ditt.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Dager til passordet ditt utløper: %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>De to passordene er ikke like.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>Det nye passordet må være forskjellig fra det nåværende.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Oppgi brukernavnet ditt.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Oppgi passordet ditt.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Brukernavnet eller passordet er feil.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>Brukernavnet eller passordet er feil. Gjenstående forsøk: %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Kontoen din er deaktivert. Spør administratoren.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Kontoen din er utløpt. Spør administratoren.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Du har ikke tillatelse til å bruke Corvimo Server. Spør administratoren.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>Passordet ditt er utløpt. Endre det på Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>Hjemmemappen din er ikke tilgjengelig. Be administratoren om å slå på tjenesten for hjemmemapper.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>Gjestekontoen kan ikke brukes til synkronisering.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Alle lisenser for Corvimo Server er i bruk.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Navn på denne datamaskinen</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Tilknyttede enheter</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Vil du fjerne tilknytningen til «%1»? Enheten blir logget av og slutter å synkronisere.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Tilknytningen til denne datamaskinen ble fjernet av %1. Logg på igjen for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Denne datamaskinen</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Slett også filene på enheten</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Totrinnspålogging</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Oppgi koden som vises i autentiseringsappen din.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Bekreftelseskode</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 sifre</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Bekreft</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Bekrefter...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Stol på denne enheten</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Ikke spør igjen på denne datamaskinen på så mange dager: %1</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Har du mistet telefonen?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Send en kode via e-post</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>En kode ble sendt til %1. Den er gyldig i 10 minutter.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Koden kunne ikke sendes. Be administratoren om hjelp.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Bruk en gjenopprettingskode</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Oppgi en av gjenopprettingskodene du skrev ned. Hver kode fungerer én gang.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Gjenstående gjenopprettingskoder: %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Bruk en sikkerhetsnøkkel</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Sett inn sikkerhetsnøkkelen og berør den.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>Sikkerhetsnøkkelen ble ikke gjenkjent. Prøv en annen.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Godkjenn påloggingen på telefonen</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>Venter på godkjenning...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Velg tallet %1 på telefonen.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>Påloggingen ble avvist på telefonen.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>Forespørselen er utløpt. Send den på nytt.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Send på nytt</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Prøv en annen måte</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Oppgi koden.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>Koden er feil. Kontroller at klokken på telefonen går riktig.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Denne koden er allerede brukt. Vent på den neste.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>For mange feil koder. Minutter til du kan prøve på nytt: %1.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>Administratoren krever totrinnspålogging. Konfigurer det først på Corvimo Server.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Konfigurer totrinnspålogging</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Skann denne koden med autentiseringsappen.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>Totrinnspålogging er på.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Sikkerhetskopieringsoppgaver</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>En sikkerhetskopieringsoppgave kopierer mapper på denne datamaskinen til Corvimo Server og beholder tidligere versjoner.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Opprett sikkerhetskopieringsoppgave</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Rediger sikkerhetskopieringsoppgave</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Slett sikkerhetskopieringsoppgave</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Vil du slette sikkerhetskopieringsoppgaven «%1»?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Slett også de sikkerhetskopierte filene på Corvimo Server</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Oppgavenavn</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Det finnes allerede en oppgave med dette navnet.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Hva som skal sikkerhetskopieres</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Legg til mappe</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Velg minst én mappe som skal sikkerhetskopieres.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>Mappen «%1» finnes ikke lenger. Den utelates fra sikkerhetskopien.</translation>
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
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musikk</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videoer</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Nedlastinger</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Eksterne disker</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Hvor sikkerhetskopien skal lagres</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Denne mappen inneholder allerede en sikkerhetskopi av en annen datamaskin.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Når det skal sikkerhetskopieres</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Hver gang en fil endres</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>Etter en tidsplan</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Bare når jeg starter den</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Daglig</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Ukentlig</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Månedlig</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Hver time</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Kl. %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>På disse dagene</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>Når en ekstern disk kobles til</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Vekk denne datamaskinen for sikkerhetskopiering</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Sikkerhetskopier nå</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Stopp sikkerhetskopiering</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Vil du stoppe sikkerhetskopieringen? Filer som allerede er sikkerhetskopiert, beholdes.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sikkerhetskopierer...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Sikkerhetskopierer filer: %1 av %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>Sikkerhetskopieringen er fullført.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Siste sikkerhetskopiering: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Neste sikkerhetskopiering: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Ikke sikkerhetskopiert ennå</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>Sikkerhetskopieringen er fullført. Filer som ikke kunne leses: %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>Sikkerhetskopieringen mislyktes: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>Sikkerhetskopieringen som var planlagt til %1, ble ikke utført. Den starter nå.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Dager siden siste sikkerhetskopiering av denne datamaskinen: %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Hvor lenge versjoner skal beholdes</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Behold alle versjoner</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Antall versjoner som beholdes: %1</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Antall dager versjoner beholdes: %1</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Behold færre versjoner etter hvert som de blir eldre</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Krypter sikkerhetskopien</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Krypteringsnøkkel</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Oppbevar nøkkelen på et trygt sted. Uten den kan ikke sikkerhetskopien gjenopprettes.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>Krypteringsnøkkelen er feil.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Gjenopprett filer</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Velg filene som skal gjenopprettes, og hvor de skal plasseres.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Gjenopprett til den opprinnelige plasseringen</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Erstatt eksisterende filer</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>Gjenoppretter filer: %1 av %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Alle filer ble gjenopprettet.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>Gjenopprettede filer: %1. Filer som ikke kunne gjenopprettes: %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Kontroller sikkerhetskopien</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>Sikkerhetskopien er intakt.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Skadede filer i sikkerhetskopien: %1. De blir sikkerhetskopiert på nytt.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Ferdig</translation>
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
        <translation>Versjon %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>Versjon %1 (bygg %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Serverversjon</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Alle rettigheter forbeholdt.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Lisensavtale</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Personvernerklæring</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Tredjepartsprogramvare</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Nettsted</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Kontakt kundestøtte</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Send tilbakemelding</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Takk for at du bruker Corvimo Client.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logger</translation>
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
        <translation>Alt</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>Detaljerte logger gjør klienten tregere. Gå tilbake til det normale nivået når du er ferdig.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Åpne loggmappen</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Lagre logg</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>Loggen ble lagret i «%1».</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Loggen kunne ikke lagres.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Tøm logg</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Vil du tømme loggen?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Send logg til kundestøtte</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Sender loggen...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>Loggen ble sendt. Rapportnummeret ditt er %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Loggen kunne ikke sendes. Lagre den og send den via e-post.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>Loggen inneholder navn på filer og mapper, men ikke innholdet i dem.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Send anonyme bruksdata for å bidra til å forbedre Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Start Corvimo Client når jeg logger på denne datamaskinen</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Vis statussymboler på filer og mapper</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Vis Corvimo Client i kontekstmenyen</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Vis synkroniserte mapper i sidepanelet</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Vis symbolet på menylinjen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>Samme som systemet</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>Språket endres når du starter Corvimo Client på nytt.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Utseende</translation>
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
        <translation>Ikke la datamaskinen gå i dvale mens filer synkroniseres</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Flytt filer som slettes på Corvimo Server, til papirkurven</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Advar meg før mange filer slettes</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Vil du tilbakestille alle innstillinger? Synkroniseringsoppgavene dine forblir som de er.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Denne innstillingen styres av administratoren.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Innstillingene dine ble lagret.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Vil du forkaste endringene dine?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Forkast</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Filer ved behov</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Alle filer vises på denne datamaskinen, men en fil lastes ned først når du åpner den.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>Bruk «Filer ved behov»</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Vil du bruke «Filer ved behov» for «%1»? Filer som allerede er på denne datamaskinen, blir værende her.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>«Filer ved behov» er slått på.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>Slå av «Filer ved behov»</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Vil du slå av «Filer ved behov»? Alle filene i denne mappen blir lastet ned (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Det er ikke nok plass til å laste ned alle filene. Det trengs %1 til.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Bare på nettet</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Alltid på denne datamaskinen</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Delvis på denne datamaskinen</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>Filer som blir tilgjengelige bare på nettet: %1. Vil du fortsette?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>%1 diskplass ble frigjort.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Filer som ikke er lastet opp ennå, blir værende på denne datamaskinen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>«%1» er åpen og blir værende på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Frigjør plass automatisk</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Gjør filer tilgjengelige bare på nettet når de ikke er åpnet på så mange dager: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Bare når det er lite diskplass</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 laster ned «%2».</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Ikke la dette programmet laste ned filer</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Et program åpner mange filer som bare finnes på nettet. Vil du tillate det?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>«%1» kan ikke åpnes fordi filen bare finnes på nettet og Corvimo Client ikke er tilkoblet.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Start Corvimo Client for å åpne filer som bare finnes på nettet.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>«Filer ved behov» støttes ikke av denne versjonen av systemet.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>«Filer ved behov» støttes ikke på denne disken.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Tillat filleverandørutvidelsen i systeminnstillingene for å bruke «Filer ved behov».</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Vis forhåndsvisninger av filer som bare finnes på nettet</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>På denne datamaskinen kan du ikke søke i innholdet i filer som bare finnes på nettet.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Tillat</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Blokker</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Velkommen til Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Konfigurer Corvimo Client i noen få trinn for å ha filene dine på alle datamaskiner.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Kom i gang</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Trinn %1 av %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Koble til serveren din</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Oppgi adressen til Corvimo Server, og logg på med kontoen din.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>Hva vil du gjøre?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Synkroniser filer</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Hold filer like på denne datamaskinen og på Corvimo Server.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Sikkerhetskopier denne datamaskinen</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Kopier filene dine til Corvimo Server for å beskytte dem mot tap.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Filene dine blir synkronisert til «%1».</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Teammapper</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Velg teammappene du vil ha på denne datamaskinen.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>Du er ikke medlem av noen teammappe.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Synkroniseringsvalg</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Synkroniser alle filer</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client trenger din tillatelse til å vise varslinger og lese mappene dine.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammendrag</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Kontroller valgene dine før du starter.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>Filer som blir lastet ned: %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Alt er klart</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client synkroniserer nå filene dine. Du finner programmet på menylinjen.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Ta en omvisning</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Klikk på symbolet på menylinjen for å se hva som skjer.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Høyreklikk på en fil for å dele den eller se versjonene.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Symbolene på filene dine viser om de er synkronisert.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Vil du avslutte konfigureringen? Du kan fortsette senere.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Fant innstillinger fra en tidligere installasjon. Vil du bruke dem?</translation>
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
        <translation>%1 prosent</translation>
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
        <translation>Objekter: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 av %2</translation>
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
        <translation>Akkurat nå</translation>
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
        <translation>I morgen</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 kl. %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>For ett minutt siden</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>For %1 minutter siden</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>For én time siden</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>For %1 timer siden</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>For %1 dager siden</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Forrige uke</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Forrige måned</translation>
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
        <translation>%1 t</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>%1 s igjen</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>%1 min igjen</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>%1 t igjen</translation>
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
        <translation>Nei</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Finn ut mer</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ikke vis denne meldingen igjen</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Vent litt...</translation>
    </message>
</context>
</TS>
