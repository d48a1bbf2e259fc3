<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Verwijderd</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Ontkoppelen</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Bestand toegevoegd: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Map wijzigen</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Samenvoegen</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Toegevoegd</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Gewijzigd</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Naam gewijzigd</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Verplaatst</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Hersteld</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>Bestand gewijzigd: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Bestand verwijderd: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Bestandsnaam gewijzigd: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Map toegevoegd: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Map verwijderd: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Recent gewijzigde bestanden</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Er zijn nog geen bestanden gewijzigd.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Alle wijzigingen weergeven</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Corvimo Client openen</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Openen in webbrowser</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Synchronisatie pauzeren</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Een uur pauzeren</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Pauzeren tot morgen</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Synchronisatie hervatten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Meldingen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>Over Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Bestanden worden pas weer gesynchroniseerd wanneer u Corvimo Client opnieuw start. Wilt u afsluiten?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Bijgewerkt</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Bezig met synchroniseren...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Bezig met synchroniseren, resterende bestanden: %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>%1 wordt geüpload</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>%1 wordt gedownload</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Bezig met zoeken naar wijzigingen...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>Gepauzeerd tot %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Niet verbonden</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbinding wordt gemaakt...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wachten</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>Uw aandacht is vereist</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Sommige bestanden konden niet worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Er is geen synchronisatietaak ingesteld.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>Upload: %1, download: %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Openen met...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>In map weergeven</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Versiegeschiedenis</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Link ophalen</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Link kopiëren</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Delen...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Link per e-mail versturen</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Nu synchroniseren</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Deze map synchroniseren</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Deze map niet meer synchroniseren</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Altijd op deze computer bewaren</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Ruimte vrijmaken</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Bestand vergrendelen</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Bestand ontgrendelen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Naam wijzigen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Vernieuwen</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschappen</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Pad kopiëren</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nieuwe map</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Knippen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Plakken</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw uitvoeren</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Bestanden met deze naam niet synchroniseren</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Bestanden van dit type niet synchroniseren</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Vergrendeld door %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>“%1” is vergrendeld. Anderen kunnen het lezen, maar niet wijzigen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>“%1” is ontgrendeld.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>De link is naar het klembord gekopieerd.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>Het pad is naar het klembord gekopieerd.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>Geselecteerde onderdelen: %1</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Dit onderdeel bevindt zich niet in een gesynchroniseerde map.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisatietaken</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisatie</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Back-up</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Recente activiteit</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Aanmaken</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Synchronisatietaak aanmaken</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Alles pauzeren</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Alles hervatten</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>Geen resultaten voor “%1”.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Er is nog geen synchronisatietaak. Maak er een aan om een map op deze computer en een map op Corvimo Server gelijk te houden.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Map op deze computer</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Map op Corvimo Server</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Wijzigingsdatum</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Eigenaar</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Account</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Laatst gesynchroniseerd</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestopt</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Map niet gevonden</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Alleen-lezen</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Synchronisatietaak verwijderen</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Wilt u de synchronisatietaak “%1” verwijderen? Uw bestanden blijven op deze computer en op Corvimo Server staan.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Wilt u de %1 geselecteerde synchronisatietaken verwijderen? Uw bestanden blijven op deze computer en op Corvimo Server staan.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>De synchronisatietaak is verwijderd.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>De synchronisatie is gepauzeerd. Wijzigingen worden gesynchroniseerd wanneer u de synchronisatie hervat.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Lijst wissen</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Alle activiteit</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Alleen fouten</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 is geüpload.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 is gedownload.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 is van deze computer verwijderd.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 is van Corvimo Server verwijderd.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>De naam van %1 is gewijzigd in %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 is verplaatst naar %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>Bestanden gewijzigd door %2: %1.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Mappen kiezen om te synchroniseren</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Kies een map op Corvimo Server en een map op deze computer. Corvimo Client houdt beide gelijk.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Servermap kiezen</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Lokale map kiezen</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Wijzigen</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Bladeren...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Naam van de nieuwe map</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>De map “%1” kon niet worden aangemaakt. Kies een andere naam of controleer uw rechten.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Hier een lege map met de naam “%1” aanmaken</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synchronisatierichting</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisatie in twee richtingen</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Alleen wijzigingen uploaden</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Alleen wijzigingen downloaden</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>Wijzigingen aan de ene kant worden naar de andere kant gekopieerd.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Wijzigingen op deze computer worden geüpload. Wijzigingen op Corvimo Server worden niet gedownload.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Wijzigingen op Corvimo Server worden gedownload. Wijzigingen op deze computer worden niet geüpload.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Bestanden op deze computer bewaren wanneer ze op Corvimo Server worden verwijderd</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Bestanden op Corvimo Server bewaren wanneer ze op deze computer worden verwijderd</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Mappen samenvoegen</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Beide mappen bevatten al bestanden. Kies wat er met deze bestanden moet gebeuren.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>De map “%1” bestaat al. Wilt u deze samenvoegen met de map op Corvimo Server?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Beide mappen samenvoegen en alle bestanden bewaren</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>De bestanden op deze computer gebruiken</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>De bestanden op Corvimo Server gebruiken</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Andere map kiezen</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Bestanden die verschillen, worden als twee kopieën bewaard.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Bestanden op Corvimo Server die niet op deze computer staan, worden verwijderd.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Bestanden op deze computer die niet op Corvimo Server staan, worden naar de prullenmand verplaatst.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Bestanden met dezelfde naam worden vervangen. Dit kan niet ongedaan worden gemaakt.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>Beide mappen worden vergeleken...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>Vergeleken bestanden: %1 van %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>Beide mappen zijn nu gelijk.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Deze map maakt al deel uit van een synchronisatietaak. Kies een andere map.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Deze map bevindt zich in een map die al wordt gesynchroniseerd. Kies een andere map.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Deze map bevat een map die al wordt gesynchroniseerd. Kies een andere map.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Systeemmappen kunnen niet worden gesynchroniseerd. Kies een andere map.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>Een volledige schijf kan niet worden gesynchroniseerd. Kies een map op de schijf.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Mappen op verwisselbare schijven kunnen niet worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Netwerkmappen zoals \\server\share kunnen niet worden gesynchroniseerd. Kies een map op deze computer.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>U hebt geen rechten om in deze map te schrijven. Kies een andere map.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Deze map is versleuteld en vergrendeld. Ontgrendel de map eerst op Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>De map is niet gevonden. Mogelijk is deze verplaatst of verwijderd.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>Het bestandssysteem van deze schijf wordt niet ondersteund. Gebruik een schijf met een ondersteund bestandssysteem.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>U hebt het maximumaantal synchronisatietaken (%1) bereikt. Verwijder een taak die u niet meer nodig hebt.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selectieve synchronisatie</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Kies wat u op deze computer wilt synchroniseren. Mappen die u deselecteert, worden van deze computer verwijderd, maar blijven op Corvimo Server staan.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappen</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Bestandsfilter</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Niets selecteren</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Nieuwe mappen automatisch synchroniseren</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Bezig met laden...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>De lijst met mappen kon niet worden geladen. Controleer uw verbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Mappen die van deze computer worden verwijderd: %1. Ze blijven op Corvimo Server staan.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Mappen van deze computer verwijderen?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Sommige bestanden in deze mappen zijn nog niet geüpload en zouden verloren gaan. Synchroniseer ze eerst.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Geselecteerd: %1 van %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Geen bestanden synchroniseren die groter zijn dan</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Geen bestanden met deze extensies synchroniseren</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Geen bestanden met deze namen synchroniseren</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Extensie toevoegen</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Naam toevoegen</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Bestanden en mappen synchroniseren waarvan de naam met een punt begint</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Tijdelijke bestanden van gangbare programma’s worden nooit gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Standaardwaarden herstellen</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Wilt u het standaardfilter herstellen?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Voer een extensie in, bijvoorbeeld “iso”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>“%1” staat al in de lijst.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Een naam mag geen van deze tekens bevatten: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Voer een grootte tussen %1 en %2 in.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Uitgesloten door filter</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>Uw keuze is opgeslagen. Corvimo Client past deze nu toe.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Documenten</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Afbeeldingen</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Video’s</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Muziek</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archieven</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Andere bestanden</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>Versies van “%1”</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Huidige versie</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Eerdere versie</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Gewijzigd door</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Apparaat</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Downloaden</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Voorvertoning</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Dit bestand heeft geen eerdere versies.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Kies een bestand om de versies ervan te bekijken.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Versie herstellen</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Wilt u de huidige versie vervangen door die van %1?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>De huidige versie blijft in de geschiedenis bewaard.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>“%1” is hersteld naar de versie van %2.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>De versie kon niet worden hersteld. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Herstellen als kopie</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Versie opslaan als</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>De versie is opgeslagen als “%1”.</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Wilt u deze versie verwijderen? De versie kan niet worden teruggehaald.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>De versie kon niet worden verwijderd.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Beveiligd tegen automatisch verwijderen</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Maximumaantal versies dat Corvimo Server van een bestand bewaart: %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>De versiegeschiedenis is voor deze map uitgeschakeld. Vraag de beheerder om deze in te schakelen.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Van dit bestandstype worden geen versies bewaard.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Verwijderde bestanden</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Verwijderde bestanden weergeven</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Verwijderd op %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Wilt u de geselecteerde onderdelen herstellen (%1)?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Herstelde onderdelen: %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Er zijn geen verwijderde bestanden gevonden.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Teruggaan naar een tijdstip</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Kies een datum en tijd</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergelijken</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Delen</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>“%1” delen</translation>
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
        <translation>Nodig personen uit of maak een link naar dit onderdeel aan.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Personen uitnodigen</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Voer een naam of e-mailadres in</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Uitnodiging versturen</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>De uitnodiging is verstuurd naar %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>De uitnodiging kon niet worden verstuurd. Controleer het e-mailadres.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Bericht (optioneel)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Rechten</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Kan bekijken</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Kan bewerken</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Kan beheren</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Kan alleen uploaden</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Geen toegang</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>De rechten van %1 zijn gewijzigd.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>U hebt geen rechten om dit onderdeel te delen. Vraag het de eigenaar.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Gedeeld met mij</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Gedeeld door mij</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Aantal personen met toegang: %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Dit onderdeel wordt niet gedeeld.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Gedeelde map verlaten</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Wilt u de gedeelde map “%1” verlaten? De map wordt van deze computer verwijderd.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>“%1” wordt niet meer met u gedeeld.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 heeft “%2” met u gedeeld.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groep</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Iedereen op deze server</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Linkinstellingen</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Link aanmaken</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Link wordt aangemaakt...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Link verwijderen</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Wilt u deze link verwijderen? Personen die de link hebben, kunnen het onderdeel niet meer openen.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Iedereen met de link</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Alleen personen met een account</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Beveiligen met een wachtwoord</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>Het wachtwoord moet minstens %1 tekens bevatten.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Voer een wachtwoord voor de link in.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Link geldig tot</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>Verloopt nooit</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Kies een datum in de toekomst.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Deze link is verlopen.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>Aantal toegestane downloads</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>Resterende downloads: %1</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Downloaden toestaan</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Uploaden toestaan</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>De link kon niet worden aangemaakt. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>De beheerder heeft links voor deze map uitgeschakeld.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Bestandsverzoek</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>Personen met de link kunnen bestanden naar deze map uploaden zonder de inhoud ervan te zien.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>QR-code weergeven</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Conflicten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>“%1” is op twee plaatsen tegelijk gewijzigd.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>Bestanden die op twee plaatsen tegelijk zijn gewijzigd: %1.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Kies welke versie u wilt bewaren. De andere wordt opgeslagen als conflictkopie.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>De versie op deze computer bewaren</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>De versie op Corvimo Server bewaren</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Beide versies bewaren</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>De nieuwere versie bewaren</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Altijd vragen</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Dit voor alle conflicten doen</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>conflictkopie van %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Op deze computer</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>Op Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Gewijzigd door %1 op %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Wanneer een bestand op twee plaatsen is gewijzigd</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Namen die alleen in hoofdletters en kleine letters verschillen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>“%1” en “%2” verschillen alleen in hoofdletters en kleine letters. Wijzig een van beide namen.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Er zijn geen conflicten.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>Het conflict is opgelost.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Het conflict kon niet worden opgelost omdat het bestand geopend is. Sluit het en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Oplossen</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Later beslissen</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Beide bestanden openen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Overslaan</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>U hebt “%1” verwijderd, maar het bestand is op Corvimo Server gewijzigd. Het gewijzigde bestand is bewaard.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>“%1” is op Corvimo Server verwijderd, maar u hebt het gewijzigd. Uw bestand is bewaard.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>“%1” is aan de ene kant een bestand en aan de andere kant een map. Wijzig een van beide namen.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Conflictkopieën</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Conflictkopieën verwijderen</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Wilt u de conflictkopieën verwijderen (aantal: %1)? Ze kunnen niet worden teruggehaald.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>“%1” is geopend in een ander programma en wordt gesynchroniseerd zodra het wordt gesloten.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbinding</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradres</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Hostnaam, IP-adres of Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>De verbinding versleutelen</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Zonder versleuteling kunnen anderen op het netwerk uw bestanden en uw wachtwoord lezen.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Verbinding verbreken</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Opnieuw verbinden</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Verbinding testen</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>De verbinding wordt getest...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>De verbinding werkt.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>De verbinding werkt niet. Controleer het adres en de poort.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbonden</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Verbonden met %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>De verbinding met %1 is verbroken. Corvimo Client probeert het over %2 seconden opnieuw.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>De verbinding met %1 is hersteld.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Wachten op een netwerkverbinding</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Niet synchroniseren op netwerken met datalimiet</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>De synchronisatie is gepauzeerd omdat dit netwerk een datalimiet heeft.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Verbonden via het lokale netwerk</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Verbonden via internet</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Verbonden via een relayserver</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>De relayserver is langzamer dan een directe verbinding.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Servers op dit netwerk zoeken</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Bezig met zoeken naar servers...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>Er is geen server op dit netwerk gevonden. Voer het serveradres zelf in.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Gevonden servers: %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>De server “%1” is niet gevonden. Controleer de spelling van het adres.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>De server heeft de verbinding geweigerd. Zorg ervoor dat Corvimo Server actief is.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>De server heeft niet op tijd geantwoord. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Deze computer is niet met een netwerk verbonden.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Voer een poort tussen 1 en 65535 in.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Voer het adres van de server in.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>De Corvimo ID “%1” bestaat niet.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>De server met deze Corvimo ID is offline. Zorg ervoor dat de server is ingeschakeld.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>Corvimo Server is niet geïnstalleerd of niet actief op deze server.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>Er wordt onderhoud aan de server uitgevoerd. De synchronisatie gaat verder zodra de server weer beschikbaar is.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server is te oud voor deze client. Vraag de beheerder om bij te werken naar versie %1 of later.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Deze client is te oud voor Corvimo Server. Werk de client bij naar versie %1 of later.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>Er zijn te veel clients met de server verbonden. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Deze computer is na te veel mislukte pogingen geblokkeerd. Vraag de beheerder om de blokkering op te heffen.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>Mogelijk blokkeert een firewall Corvimo Client. Sta Corvimo Client toe poort %1 te gebruiken.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>Er kon geen beveiligde verbinding tot stand worden gebracht: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Er is een onbekende fout opgetreden (code %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Verbinding bewerken</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Verbinding verwijderen</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Wilt u de verbinding met %1 verwijderen? De bijbehorende synchronisatietaken worden verwijderd, maar uw bestanden blijven behouden.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>Bestanden die nog niet zijn geüpload: %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Geavanceerd</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Laatst verbonden op %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Gebruik een proxyserver als uw netwerk die nodig heeft voor toegang tot internet.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Geen proxy gebruiken</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>De proxyinstellingen van deze computer gebruiken</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>De proxy zelf instellen</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Proxytype</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadres</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>De proxy vereist een gebruikersnaam en wachtwoord</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>De proxy niet gebruiken voor lokale adressen</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>De proxy niet gebruiken voor deze adressen</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Proxy testen</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>De proxy werkt.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Inloggen bij de proxy</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>De proxy %1 vraagt om een gebruikersnaam en wachtwoord.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>De proxy heeft de gebruikersnaam of het wachtwoord niet geaccepteerd.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>De proxy %1 is niet bereikbaar. Controleer het adres en de poort.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>De proxy staat geen verbindingen met %1 toe.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>De proxyinstellingen van deze computer konden niet worden gelezen.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Voer het adres van de proxy in.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificaat</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>Het certificaat wordt niet vertrouwd</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>Het certificaat van %1 is niet uitgegeven door een bekende instantie. Mogelijk doet iemand zich voor als uw server.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>De server gebruikt een certificaat dat door de server zelf is ondertekend.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>Het certificaat is verlopen op %1.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>Het certificaat is niet geldig vóór %1. Controleer de klok van deze computer.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>Het certificaat is uitgegeven voor %1, niet voor %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>Het certificaat is ingetrokken door de instantie die het heeft uitgegeven.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>Het certificaat is gewijzigd</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>Het certificaat van %1 is niet het certificaat dat eerder werd gebruikt. Vraag de beheerder of het is vernieuwd.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>Het certificaat gebruikt een algoritme dat niet meer als veilig wordt beschouwd.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Dit certificaat vertrouwen</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Dit certificaat altijd vertrouwen</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Alleen deze keer vertrouwen</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Geen verbinding maken</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Certificaat bekijken</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Uitgegeven aan</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Uitgegeven door</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Geldig vanaf</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Geldig tot</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Vingerafdruk</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Algoritme voor handtekening</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Sleutellengte</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Certificaat exporteren</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>Het certificaat is opgeslagen als “%1”.</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Certificaat importeren</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>Het bestand bevat geen geldig certificaat.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Wilt u het certificaat van %1 uit de vertrouwde certificaten verwijderen?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Opslag</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 van %2 gebruikt</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 vrij</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Onbeperkt</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Opslag op Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Opslag op deze computer</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Opslag per bestandstype</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Opslag per map</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Opslag gebruikt door eerdere versies</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Opslag gebruikt door verwijderde bestanden</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Prullenmand legen</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Wilt u de prullenmand legen? De bestanden in de prullenmand kunnen niet worden teruggehaald.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>De prullenmand is geleegd. Er is %1 vrijgekomen.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Bezig met berekenen...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Uw opslag is bijna vol. Er is nog maar %1 over.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Uw opslag is vol</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Er kunnen geen nieuwe bestanden worden geüpload totdat u bestanden verwijdert of de beheerder om meer opslag vraagt.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>De map “%1” heeft het quotum bereikt. Er kunnen geen nieuwe bestanden naar deze map worden geüpload.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Het volume van Corvimo Server is vol. Vraag de beheerder om ruimte vrij te maken.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>“%1” is groter dan de resterende opslag (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Weinig schijfruimte</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>Er is nog maar %1 over op de schijf “%2”. De synchronisatie stopt wanneer de schijf vol is.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Niet genoeg schijfruimte</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>Er is niet genoeg ruimte op de schijf “%1”. De synchronisatie is gepauzeerd totdat u minstens %2 vrijmaakt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>“%1” is niet gedownload omdat hiervoor %2 schijfruimte nodig is.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>U kunt ruimte vrijmaken met selectieve synchronisatie of door bestanden alleen online te bewaren.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Opslaginstellingen openen</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Minstens zoveel schijfruimte vrijhouden</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Downloads worden gepauzeerd wanneer er minder ruimte over is.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>De schijf met de map “%1” is niet aangesloten. Sluit de schijf aan om verder te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>De schijf “%1” is alleen-lezen. Wijzigingen van Corvimo Server kunnen er niet op worden opgeslagen.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Er is niet genoeg ruimte voor tijdelijke bestanden. Maak minstens %1 vrij.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Tijdelijke bestanden</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Tijdelijke bestanden verwijderen</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>De tijdelijke bestanden zijn verwijderd (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Opnieuw controleren</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Gebruikt</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Grootste bestanden</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Verwijder of verplaats bestanden die u niet meer nodig hebt.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>Uw gebruikte opslag is deze maand met %1 toegenomen.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>In dit tempo is uw opslag vol op %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Meer opslag aanvragen</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>Uw verzoek is naar de beheerder verstuurd.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>Uw verzoek is nog niet beantwoord.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>Het quotum van de groep “%1” is opgebruikt.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 is gereed.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Software-update</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Zoeken naar updates</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Bezig met zoeken naar updates...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>Uw versie is de nieuwste.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>Versie %1 van Corvimo Client is beschikbaar.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Downloaden en installeren</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Later herinneren</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Deze versie overslaan</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Bezig met downloaden...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>De update is gereed. Start Corvimo Client opnieuw om deze te installeren.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Nu opnieuw starten</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>De update kon niet worden geïnstalleerd. Uw huidige versie blijft werken.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client kon niet zoeken naar updates.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Releaseopmerkingen</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Updates automatisch installeren</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 is bezig met initialisatie...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Uw instellingen worden overgenomen uit de eerdere versie.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Uw instellingen zijn overgenomen. U kunt verdergaan waar u gebleven was.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>Sommige instellingen van de eerdere versie konden niet worden overgenomen. Controleer uw synchronisatietaken.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>De update vereist %1 schijfruimte.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Deze versie wordt niet meer ondersteund. Installeer de update om verder te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bandbreedte</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Uploadsnelheid</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Downloadsnelheid</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Beperken tot</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Automatisch aanpassen</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client laat ruimte over voor andere programma’s die het netwerk gebruiken.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Schema</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Kies de uren waarin de limiet geldt.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>De hele dag</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Werkuren</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>’s Nachts</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>Niet synchroniseren</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Volledige snelheid</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Beperkte snelheid</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Schema wissen</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Voer een snelheid groter dan 0 in.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Voer een snelheid tussen %1 en %2 in.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>Het begin moet vóór het einde liggen.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>De beheerder heeft de snelheid beperkt tot %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Bestanden die tegelijk worden overgedragen</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>De snelheid op het lokale netwerk niet beperken</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Huidige snelheid</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Gemiddelde snelheid</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Vandaag overgedragen</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Deze maand overgedragen</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Kies waarover Corvimo Client u informeert.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Wanneer de synchronisatie voltooid is</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Wanneer een bestand niet kan worden gesynchroniseerd</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Wanneer iemand een onderdeel met mij deelt</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Wanneer iemand op mijn bestanden reageert</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Wanneer de opslag bijna vol is</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Wanneer een back-up voltooid of mislukt is</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Wanneer er een update beschikbaar is</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Wanneer de verbinding wordt verbroken</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Geluid afspelen</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Niet storen</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Stille uren</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Geen meldingen tot %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Niet storen tijdens presentaties</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Bestandsnamen in meldingen weergeven</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Meldingen zijn uitgeschakeld in de systeeminstellingen van deze computer.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Systeeminstellingen openen</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Verbergen</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Alles verbergen</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Bekijken</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Markeren als gelezen</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Meldingencentrum</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>U hebt geen meldingen.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Nieuwe meldingen: %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Alle bestanden zijn bijgewerkt.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>De eerste synchronisatie is voltooid. Bestanden die nu op deze computer staan: %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Er zijn veel bestanden verwijderd</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>Bestanden verwijderd uit “%2”: %1. Herstel ze als dit niet de bedoeling was.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>Bestanden die in korte tijd zijn gewijzigd: %1. Als u dit niet hebt gedaan, pauzeert u de synchronisatie en controleert u uw computer op malware.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>De map “%1” is verplaatst. Geef aan waar Corvimo Client deze nu kan vinden.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 heeft gereageerd op “%2”.</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Synchronisatieproblemen</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Deze bestanden konden niet worden gesynchroniseerd. Corvimo Client probeert het opnieuw zodra de oorzaak is verholpen.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problemen: %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Er zijn geen problemen.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Reden</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Alles opnieuw proberen</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Details kopiëren</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Een probleem melden</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>De details zijn naar het klembord gekopieerd.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Foutcode: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>Het bestand wordt door een ander programma gebruikt. Sluit het daar om het te synchroniseren.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>Het bestand is vergrendeld door %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>Het bestand is verwijderd voordat het kon worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>Het bestand is tijdens het uploaden gewijzigd. Het wordt opnieuw geüpload.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>Het bestand is tijdens de overdracht beschadigd geraakt. Het wordt opnieuw overgedragen.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Het bestand kan niet worden gelezen. Controleer de rechten.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>Er kan niet naar het bestand worden geschreven. Controleer de rechten.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>Het bestand is groter dan de limiet van %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>Het bestand is te groot voor het bestandssysteem van deze schijf.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>Het bestand is versleuteld en kan niet op deze computer worden geopend.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>De virusscanner op Corvimo Server heeft het bestand geblokkeerd.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>De virusscanner op deze computer heeft het bestand geblokkeerd.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Bestanden van dit type zijn niet toegestaan op Corvimo Server.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Apparaten, pipes en sockets kunnen niet worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Symbolische links die buiten de gesynchroniseerde map verwijzen, worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>De alias “%1” verwijst naar een onderdeel dat niet wordt gesynchroniseerd.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>De naam is te lang. Gebruik maximaal %1 tekens.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>Het pad is te lang. Verkort de namen van de mappen erin.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>De naam bevat tekens die niet zijn toegestaan: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>De naam “%1” is gereserveerd door het systeem.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>De naam eindigt op een spatie of een punt. Wijzig de naam van het onderdeel.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>De naam bevat tekens die niet kunnen worden gelezen. Wijzig de naam van het onderdeel.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Er bestaat al een onderdeel met de naam “%1” in deze map.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Voer een naam in.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>De map “%1” is niet gevonden.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>De map is niet verwijderd omdat deze bestanden bevat die niet worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>De map kon niet worden aangemaakt.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>De map kon niet worden verwijderd.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>U hebt geen rechten om deze map te wijzigen.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>U hebt geen rechten om deze map te openen.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>De map bevat meer dan %1 onderdelen. Verplaats er enkele naar submappen.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>De map is te diep genest.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>De server is bezet. Corvimo Client probeert het over enkele minuten opnieuw.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server heeft een interne fout gemeld. Vraag de beheerder om het logboek te bekijken.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server accepteert momenteel geen wijzigingen.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>Het volume met deze map is niet beschikbaar op Corvimo Server.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>De gedeelde map is van Corvimo Server verwijderd.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>De synchronisatie is voor deze gedeelde map uitgeschakeld.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>De server heeft een antwoord verstuurd dat Corvimo Client niet begrijpt.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>Uw sessie is beëindigd. Log opnieuw in.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>De gegevens van Corvimo Server zijn gereset. Stel uw synchronisatietaken opnieuw in.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>“%1” kon niet worden geüpload.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>“%1” kon niet worden geüpload: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>“%1” kon niet worden gedownload.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>“%1” kon niet worden gedownload: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>“%1” kon niet worden verwijderd: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>De naam van “%1” kon niet worden gewijzigd: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>“%1” kon niet worden verplaatst: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>“%1” kon niet worden hersteld: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Toegang geweigerd</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>De schijf heeft een lees- of schrijffout gemeld. Controleer de schijf op fouten.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>De schijf is verwijderd terwijl er bestanden werden geschreven.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Niet genoeg geheugen. Sluit andere programma’s en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>De synchronisatiedatabase is beschadigd en wordt opnieuw opgebouwd. Dit kan enige tijd duren.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>De synchronisatiedatabase wordt door een ander programma gebruikt.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>De synchronisatiedatabase wordt opnieuw opgebouwd...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>De synchronisatiedatabase is opnieuw opgebouwd.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Uw instellingen konden niet worden gelezen. De standaardinstellingen worden gebruikt.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Uw instellingen konden niet worden opgeslagen.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Wijzigingen in sommige mappen worden mogelijk laat opgemerkt, omdat het systeem te veel mappen bewaakt.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>De klok van deze computer wijkt meer dan %1 minuten af van de klok van de server. Zet de klok van deze computer gelijk.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Deze actie wordt niet ondersteund door Corvimo Server.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>De actie is geannuleerd.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>De actie duurde te lang en is gestopt.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Er is een onbekende fout opgetreden.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Corvimo Client kon niet worden gestart. Start deze computer opnieuw en probeer het nog eens.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client is al actief.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Een onderdeel van Corvimo Client ontbreekt. Installeer de client opnieuw.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>De statussymbolen kunnen niet worden weergegeven omdat andere programma’s alle beschikbare plaatsen gebruiken.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client heeft uw toestemming nodig om deze map te lezen. Geef toestemming in de privacyinstellingen van deze computer.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Als het probleem blijft bestaan, start u Corvimo Client opnieuw.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Als het probleem blijft bestaan, neemt u contact op met de beheerder.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Als het probleem blijft bestaan, neemt u contact op met de ondersteuning en geeft u de foutcode door.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Wilt u doorgaan met de resterende bestanden?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Inloggen</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Uitloggen</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Inloggen bij Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Wachtwoord weergeven</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Wachtwoord vergeten?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Ingelogd blijven</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Bezig met inloggen...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Ingelogd als %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>U bent uitgelogd.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Wilt u uitloggen? De synchronisatie stopt totdat u opnieuw inlogt.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Inloggen met uw browser</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Ga verder in uw browser en kom dan hier terug.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>De browser kon niet worden geopend. Open dit adres zelf: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domein</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Voer uw gebruikersnaam in als domein\gebruiker als uw account bij een domein hoort.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Account toevoegen</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Wisselen van account</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Account verwijderen</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Wilt u het account %1 van deze computer verwijderen? Uw bestanden blijven op deze computer en op Corvimo Server staan.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-mailadres</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Volledige naam</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Wachtwoord wijzigen</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Huidig wachtwoord</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nieuw wachtwoord</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Herhaal het nieuwe wachtwoord</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>Uw wachtwoord is gewijzigd.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>De beheerder vereist dat u uw wachtwoord wijzigt.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Aantal dagen totdat uw wachtwoord verloopt: %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>De twee wachtwoorden zijn niet gelijk.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>Het nieuwe wachtwoord moet verschillen van het huidige.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Voer uw gebruikersnaam in.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Voer uw wachtwoord in.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>De gebruikersnaam of het wachtwoord is onjuist.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>De gebruikersnaam of het wachtwoord is onjuist. Resterende pogingen: %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Uw account is uitgeschakeld. Neem contact op met de beheerder.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Uw account is verlopen. Neem contact op met de beheerder.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>U hebt geen rechten om Corvimo Server te gebruiken. Neem contact op met de beheerder.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>Uw wachtwoord is verlopen. Wijzig het op Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>Uw thuismap is niet beschikbaar. Vraag de beheerder om de service voor thuismappen in te schakelen.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>Het gastaccount kan niet voor synchronisatie worden gebruikt.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Alle licenties van Corvimo Server zijn in gebruik.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Naam van deze computer</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Gekoppelde apparaten</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Wilt u “%1” ontkoppelen? Het apparaat wordt uitgelogd en niet meer gesynchroniseerd.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Deze computer is ontkoppeld door %1. Log opnieuw in om verder te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Deze computer</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Ook de bestanden op het apparaat verwijderen</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Inloggen in twee stappen</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Voer de code in die uw authenticatie-app weergeeft.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Verificatiecode</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 cijfers</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verifiëren</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Bezig met verifiëren...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Dit apparaat vertrouwen</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Niet meer vragen op deze computer gedurende dit aantal dagen: %1</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Telefoon kwijt?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Een code per e-mail versturen</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>Er is een code naar %1 verstuurd. De code is 10 minuten geldig.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>De code kon niet worden verstuurd. Vraag de beheerder om hulp.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Een herstelcode gebruiken</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Voer een van de herstelcodes in die u hebt opgeschreven. Elke code werkt één keer.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Resterende herstelcodes: %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Een beveiligingssleutel gebruiken</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Plaats uw beveiligingssleutel en raak deze aan.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>De beveiligingssleutel is niet herkend. Probeer een andere.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Keur het inloggen goed op uw telefoon</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>Wachten op uw goedkeuring...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Kies het getal %1 op uw telefoon.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>Het inloggen is op uw telefoon geweigerd.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>Het verzoek is verlopen. Verstuur het opnieuw.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Opnieuw versturen</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Een andere manier proberen</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Voer de code in.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>De code is onjuist. Controleer of de klok van uw telefoon goed staat.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Deze code is al gebruikt. Wacht op de volgende.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>Te veel onjuiste codes. Wacht %1 min. en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>De beheerder vereist inloggen in twee stappen. Stel dit eerst in op Corvimo Server.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Inloggen in twee stappen instellen</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Scan deze code met uw authenticatie-app.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>Inloggen in twee stappen is ingeschakeld.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Back-uptaken</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>Een back-uptaak kopieert mappen van deze computer naar Corvimo Server en bewaart eerdere versies.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Back-uptaak aanmaken</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Back-uptaak bewerken</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Back-uptaak verwijderen</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Wilt u de back-uptaak “%1” verwijderen?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Ook de back-upbestanden op Corvimo Server verwijderen</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Taaknaam</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Er is al een taak met deze naam.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Waarvan een back-up maken</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Map toevoegen</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Kies minstens één map voor de back-up.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>De map “%1” bestaat niet meer. De map wordt niet in de back-up opgenomen.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureaublad</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documenten</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Afbeeldingen</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Muziek</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Video’s</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Externe schijven</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Waar de back-up wordt opgeslagen</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Deze map bevat al een back-up van een andere computer.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Wanneer een back-up maken</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Telkens wanneer een bestand wijzigt</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>Volgens een schema</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Alleen wanneer ik de back-up start</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Dagelijks</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Wekelijks</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Maandelijks</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Elk uur</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Om %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>Op deze dagen</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>Wanneer een externe schijf wordt aangesloten</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Deze computer activeren voor de back-up</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Nu back-up maken</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Back-up stoppen</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Wilt u de back-up stoppen? Bestanden waarvan al een back-up is gemaakt, blijven bewaard.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Back-up wordt gemaakt...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Back-up van bestanden wordt gemaakt: %1 van %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>De back-up is voltooid.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Laatste back-up: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Volgende back-up: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Nog geen back-up gemaakt</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>De back-up is voltooid. Bestanden die niet konden worden gelezen: %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>De back-up is mislukt: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>De back-up die gepland was voor %1 is gemist. De back-up begint nu.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Aantal dagen sinds de laatste back-up van deze computer: %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Hoelang versies worden bewaard</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Alle versies bewaren</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Aantal te bewaren versies: %1</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Aantal dagen dat versies worden bewaard: %1</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Minder versies bewaren naarmate ze ouder worden</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>De back-up versleutelen</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Versleutelingssleutel</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Bewaar de sleutel op een veilige plaats. Zonder de sleutel kan de back-up niet worden hersteld.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>De versleutelingssleutel is onjuist.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Bestanden herstellen</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Kies welke bestanden u wilt herstellen en waar u ze wilt plaatsen.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Herstellen naar de oorspronkelijke locatie</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Bestaande bestanden vervangen</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>Bezig met herstellen van bestanden: %1 van %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Alle bestanden zijn hersteld.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>Herstelde bestanden: %1. Bestanden die niet konden worden hersteld: %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Back-up verifiëren</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>De back-up is intact.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Beschadigde bestanden in de back-up: %1. Er wordt opnieuw een back-up van gemaakt.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
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
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>Versie %1 (build %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Serverversie</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Alle rechten voorbehouden.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licentieovereenkomst</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Privacyverklaring</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Software van derden</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Contact opnemen met ondersteuning</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Feedback versturen</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Bedankt voor het gebruik van Corvimo Client.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logboeken</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Detailniveau</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>Gedetailleerde logboeken maken de client langzamer. Ga terug naar het normale niveau wanneer u klaar bent.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Logboekmap openen</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Logboek opslaan</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>Het logboek is opgeslagen als “%1”.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Het logboek kon niet worden opgeslagen.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Logboek wissen</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Wilt u het logboek wissen?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Logboek naar ondersteuning versturen</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Het logboek wordt verstuurd...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>Het logboek is verstuurd. Uw rapportnummer is %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Het logboek kon niet worden verstuurd. Sla het op en verstuur het per e-mail.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>Het logboek bevat namen van bestanden en mappen, maar niet de inhoud ervan.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Anonieme gebruiksgegevens versturen om Corvimo Client te helpen verbeteren</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Corvimo Client starten wanneer ik op deze computer inlog</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Statussymbolen op bestanden en mappen weergeven</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Corvimo Client in het contextmenu weergeven</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Gesynchroniseerde mappen in de navigatiekolom weergeven</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Het symbool in de menubalk weergeven</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>Zelfde als het systeem</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>De taal verandert wanneer u Corvimo Client opnieuw start.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Weergave</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Donker</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tekstgrootte</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>Sluimerstand voorkomen terwijl bestanden worden gesynchroniseerd</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Bestanden die op Corvimo Server zijn verwijderd, naar de prullenmand verplaatsen</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Waarschuwen voordat veel bestanden worden verwijderd</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Wilt u alle instellingen terugzetten op de standaardwaarden? Uw synchronisatietaken blijven ongewijzigd.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Deze instelling wordt door de beheerder beheerd.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Uw instellingen zijn opgeslagen.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Wilt u uw wijzigingen verwerpen?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerpen</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Bestanden op aanvraag</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Alle bestanden worden op deze computer weergegeven, maar een bestand wordt pas gedownload wanneer u het opent.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>“Bestanden op aanvraag” inschakelen</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Wilt u “Bestanden op aanvraag” inschakelen voor “%1”? Bestanden die al op deze computer staan, blijven hier.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>“Bestanden op aanvraag” is ingeschakeld.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>“Bestanden op aanvraag” uitschakelen</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Wilt u “Bestanden op aanvraag” uitschakelen? Alle bestanden in deze map worden gedownload (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Er is niet genoeg ruimte om alle bestanden te downloaden. Er is nog %1 nodig.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Alleen online</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Altijd op deze computer</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Gedeeltelijk op deze computer</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>Bestanden die alleen online beschikbaar worden: %1. Wilt u doorgaan?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>Er is %1 schijfruimte vrijgemaakt.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Bestanden die nog niet zijn geüpload, blijven op deze computer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>“%1” is geopend en blijft op deze computer.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Automatisch ruimte vrijmaken</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Bestanden alleen online bewaren als ze dit aantal dagen niet zijn geopend: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Alleen bij weinig schijfruimte</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 downloadt “%2”.</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Downloads door dit programma blokkeren</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Een programma opent veel bestanden die alleen online beschikbaar zijn. Wilt u dit toestaan?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>“%1” kan niet worden geopend omdat het alleen online beschikbaar is en Corvimo Client niet is verbonden.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Start Corvimo Client om bestanden te openen die alleen online beschikbaar zijn.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>“Bestanden op aanvraag” wordt niet ondersteund door deze versie van het systeem.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>“Bestanden op aanvraag” wordt niet ondersteund op deze schijf.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Sta de extensie voor bestandsaanbieders toe in de systeeminstellingen om “Bestanden op aanvraag” te gebruiken.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Voorvertoningen weergeven van bestanden die alleen online beschikbaar zijn</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>Op deze computer kan niet worden gezocht in de inhoud van bestanden die alleen online beschikbaar zijn.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Toestaan</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Blokkeren</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Welkom bij Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Stel Corvimo Client in enkele stappen in om uw bestanden op elke computer bij de hand te hebben.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Aan de slag</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Stap %1 van %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Verbinden met uw server</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Voer het adres van Corvimo Server in en log in met uw account.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>Wat wilt u doen?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Bestanden synchroniseren</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Bestanden op deze computer en op Corvimo Server gelijk houden.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Back-up van deze computer maken</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Uw bestanden naar Corvimo Server kopiëren om ze tegen verlies te beschermen.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Uw bestanden worden gesynchroniseerd met “%1”.</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Teammappen</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Kies de teammappen die u op deze computer wilt hebben.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>U bent geen lid van een teammap.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Synchronisatieopties</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Alle bestanden synchroniseren</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client heeft uw toestemming nodig om meldingen weer te geven en uw mappen te lezen.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Samenvatting</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Controleer uw keuzes voordat u begint.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>Bestanden die worden gedownload: %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Alles is ingesteld</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client synchroniseert nu uw bestanden. U vindt het programma in de menubalk.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Rondleiding starten</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Klik op het symbool in de menubalk om te zien wat er gebeurt.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Klik met de rechtermuisknop op een bestand om het te delen of de versies ervan te bekijken.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>De symbolen op uw bestanden geven aan of ze zijn gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Wilt u de configuratie afbreken? U kunt later verdergaan.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Er zijn instellingen van een eerdere installatie gevonden. Wilt u deze gebruiken?</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 bytes</translation>
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
        <translation>1 bestand</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 bestanden</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 map</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 mappen</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Onderdelen: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>Bestanden: %1, mappen: %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Zojuist</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>Vandaag om %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>Gisteren om %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Morgen</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 om %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>Een minuut geleden</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>%1 minuten geleden</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>Een uur geleden</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>%1 uur geleden</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>%1 dagen geleden</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Vorige week</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 sec.</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min.</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 uur</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>Nog %1 sec.</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>Nog %1 min.</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>Nog %1 uur</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Maandag</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dinsdag</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Woensdag</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donderdag</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vrijdag</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Zaterdag</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Zondag</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Meer informatie</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Dit bericht niet meer weergeven</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Een ogenblik geduld...</translation>
    </message>
</context>
</TS>
