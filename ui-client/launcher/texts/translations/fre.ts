<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Fichier ajouté : </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Changer de dossier</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Ajouté</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renommé</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Déplacé</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Restauré</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>Fichier modifié : </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Fichier supprimé : </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Fichier renommé : </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Dossier ajouté : </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Dossier supprimé : </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Fichiers récemment modifiés</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Aucun fichier n&apos;a encore été modifié.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Afficher toutes les modifications</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Ouvrir Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Ouvrir dans le navigateur web</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Suspendre la synchronisation</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Suspendre pendant une heure</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Suspendre jusqu&apos;à demain</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Reprendre la synchronisation</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>À propos de Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Les fichiers ne seront plus synchronisés jusqu&apos;au prochain démarrage de Corvimo Client. Voulez-vous quitter ?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>À jour</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronisation...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Synchronisation, fichiers restants : %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>Envoi de %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Téléchargement de %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Recherche de modifications...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>En pause jusqu&apos;à %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>Votre attention est requise</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Certains fichiers n&apos;ont pas pu être synchronisés.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Aucune tâche de synchronisation n&apos;a été configurée.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>Envoi : %1, téléchargement : %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Ouvrir avec...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Historique des versions</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Obtenir le lien</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Copier le lien</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Partager...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Envoyer le lien par e-mail</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Synchroniser maintenant</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Synchroniser ce dossier</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Ne plus synchroniser ce dossier</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Toujours conserver sur cet ordinateur</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Libérer de l&apos;espace</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Verrouiller le fichier</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Déverrouiller le fichier</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Copier le chemin d&apos;accès</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Ne pas synchroniser les fichiers portant ce nom</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Ne pas synchroniser les fichiers de ce type</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Verrouillé par %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>« %1 » est verrouillé. Les autres utilisateurs peuvent le lire, mais pas le modifier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>« %1 » est déverrouillé.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>Le lien a été copié dans le presse-papiers.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>Le chemin d&apos;accès a été copié dans le presse-papiers.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>Éléments sélectionnés : %1</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Cet élément ne se trouve pas dans un dossier synchronisé.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tâches de synchronisation</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Vue d&apos;ensemble</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sauvegarde</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Activité récente</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Créer une tâche de synchronisation</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Tout suspendre</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Tout reprendre</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>Aucun résultat pour « %1 ».</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Il n&apos;y a pas encore de tâche de synchronisation. Créez-en une pour garder identiques un dossier de cet ordinateur et un dossier de Corvimo Server.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Dossier sur cet ordinateur</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Dossier sur Corvimo Server</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Date de modification</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Propriétaire</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Compte</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Dernière synchronisation</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Dossier introuvable</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Supprimer la tâche de synchronisation</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Voulez-vous supprimer la tâche de synchronisation « %1 » ? Vos fichiers restent sur cet ordinateur et sur Corvimo Server.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Voulez-vous supprimer les %1 tâches de synchronisation sélectionnées ? Vos fichiers restent sur cet ordinateur et sur Corvimo Server.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>La tâche de synchronisation a été supprimée.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>La synchronisation est en pause. Les modifications seront synchronisées à la reprise.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Effacer la liste</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Toute l&apos;activité</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Erreurs uniquement</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 a été envoyé.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 a été téléchargé.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 a été supprimé de cet ordinateur.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 a été supprimé de Corvimo Server.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1 a été renommé en %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 a été déplacé vers %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>Fichiers modifiés par %2 : %1.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Choisir les dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Choisissez un dossier sur Corvimo Server et un dossier sur cet ordinateur. Corvimo Client les garde identiques.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Choisir un dossier du serveur</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Choisir un dossier local</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Changer</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Nom du nouveau dossier</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>Le dossier « %1 » n&apos;a pas pu être créé. Choisissez un autre nom ou vérifiez vos autorisations.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Créer ici un dossier vide nommé « %1 »</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sens de la synchronisation</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronisation dans les deux sens</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Envoyer les modifications uniquement</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Télécharger les modifications uniquement</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>Les modifications effectuées d&apos;un côté sont copiées de l&apos;autre.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Les modifications effectuées sur cet ordinateur sont envoyées. Celles effectuées sur Corvimo Server ne sont pas téléchargées.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Les modifications effectuées sur Corvimo Server sont téléchargées. Celles effectuées sur cet ordinateur ne sont pas envoyées.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Conserver les fichiers sur cet ordinateur lorsqu&apos;ils sont supprimés sur Corvimo Server</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Conserver les fichiers sur Corvimo Server lorsqu&apos;ils sont supprimés sur cet ordinateur</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Fusionner les dossiers</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Les deux dossiers contiennent déjà des fichiers. Choisissez ce qu&apos;il faut en faire.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>Le dossier « %1 » existe déjà. Voulez-vous le fusionner avec le dossier de Corvimo Server ?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Fusionner les deux dossiers et conserver tous les fichiers</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Utiliser les fichiers de cet ordinateur</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Utiliser les fichiers de Corvimo Server</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Les fichiers différents sont conservés en deux exemplaires.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Les fichiers de Corvimo Server absents de cet ordinateur seront supprimés.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Les fichiers de cet ordinateur absents de Corvimo Server seront placés dans la corbeille.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Les fichiers portant le même nom seront remplacés. Cette opération est irréversible.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>Comparaison des deux dossiers...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>Fichiers comparés : %1 sur %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>Les deux dossiers sont maintenant identiques.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Ce dossier fait déjà partie d&apos;une tâche de synchronisation. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Ce dossier se trouve dans un dossier déjà synchronisé. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Ce dossier contient un dossier déjà synchronisé. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Les dossiers système ne peuvent pas être synchronisés. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>Un disque entier ne peut pas être synchronisé. Choisissez un dossier de ce disque.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Les dossiers situés sur des disques amovibles ne peuvent pas être synchronisés.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Les dossiers réseau tels que \\server\share ne peuvent pas être synchronisés. Choisissez un dossier sur cet ordinateur.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>Vous n&apos;êtes pas autorisé à écrire dans ce dossier. Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Ce dossier est chiffré et verrouillé. Déverrouillez-le d&apos;abord sur Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>Le dossier est introuvable. Il a peut-être été déplacé ou supprimé.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>Le système de fichiers de ce disque n&apos;est pas pris en charge. Utilisez un disque doté d&apos;un système de fichiers pris en charge.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Vous avez atteint le nombre maximal de tâches de synchronisation (%1). Supprimez une tâche dont vous n&apos;avez plus besoin.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronisation sélective</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Choisissez ce qui doit être synchronisé sur cet ordinateur. Les dossiers que vous décochez sont retirés de cet ordinateur, mais restent sur Corvimo Server.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtre de fichiers</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Synchroniser automatiquement les nouveaux dossiers</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>La liste des dossiers n&apos;a pas pu être chargée. Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Dossiers qui seront retirés de cet ordinateur : %1. Ils restent sur Corvimo Server.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Retirer les dossiers de cet ordinateur ?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Certains fichiers de ces dossiers n&apos;ont pas encore été envoyés et seraient perdus. Synchronisez-les d&apos;abord.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Sélection : %1 sur %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Ne pas synchroniser les fichiers de plus de</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Ne pas synchroniser les fichiers portant ces extensions</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Ne pas synchroniser les fichiers portant ces noms</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Ajouter une extension</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Ajouter un nom</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Synchroniser les fichiers et dossiers dont le nom commence par un point</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Les fichiers temporaires des programmes courants ne sont jamais synchronisés.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Voulez-vous revenir au filtre par défaut ?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Saisissez une extension, par exemple « iso ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>« %1 » figure déjà dans la liste.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Un nom ne doit contenir aucun de ces caractères : \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Saisissez une taille comprise entre %1 et %2.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Exclu par le filtre</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>Votre choix a été enregistré. Corvimo Client est en train de l&apos;appliquer.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archives</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Autres fichiers</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>Versions de « %1 »</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Version actuelle</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Version antérieure</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Modifié par</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Ce fichier n&apos;a pas de versions antérieures.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Choisissez un fichier pour voir ses versions.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Restaurer la version</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Voulez-vous remplacer la version actuelle par celle du %1 ?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>La version actuelle est conservée dans l&apos;historique.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>« %1 » a été restauré à la version du %2.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>La version n&apos;a pas pu être restaurée. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Restaurer en tant que copie</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Enregistrer la version sous</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>La version a été enregistrée sous « %1 ».</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Voulez-vous supprimer cette version ? Elle ne pourra pas être récupérée.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>La version n&apos;a pas pu être supprimée.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Protégée contre la suppression automatique</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Nombre maximal de versions d&apos;un fichier conservées par Corvimo Server : %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>L&apos;historique des versions est désactivé pour ce dossier. Demandez à l&apos;administrateur de l&apos;activer.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Les versions ne sont pas conservées pour ce type de fichier.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Fichiers supprimés</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Afficher les fichiers supprimés</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Supprimé le %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Voulez-vous restaurer les éléments sélectionnés (%1) ?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Éléments restaurés : %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Aucun fichier supprimé n&apos;a été trouvé.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Revenir à un moment donné</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Choisir une date et une heure</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>Partager « %1 »</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personnes</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Invitez des personnes ou créez un lien vers cet élément.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Inviter des personnes</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Saisissez un nom ou une adresse e-mail</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Envoyer l&apos;invitation</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>L&apos;invitation a été envoyée à %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>L&apos;invitation n&apos;a pas pu être envoyée. Vérifiez l&apos;adresse e-mail.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Message (facultatif)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Autorisations</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Peut consulter</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Peut modifier</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Peut gérer</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Peut uniquement envoyer des fichiers</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Aucun accès</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>Les autorisations de %1 ont été modifiées.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>Vous n&apos;êtes pas autorisé à partager cet élément. Adressez-vous à son propriétaire.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Partagés avec moi</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Partagés par moi</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Nombre de personnes ayant accès au partage : %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Cet élément n&apos;est pas partagé.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Quitter le dossier partagé</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Voulez-vous quitter le dossier partagé « %1 » ? Il sera retiré de cet ordinateur.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>« %1 » n&apos;est plus partagé avec vous.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 a partagé « %2 » avec vous.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Tous les utilisateurs de ce serveur</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Réglages du lien</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Créer un lien</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Création du lien...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Supprimer le lien</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Voulez-vous supprimer ce lien ? Les personnes qui le possèdent ne pourront plus ouvrir l&apos;élément.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Toute personne disposant du lien</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Uniquement les personnes ayant un compte</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Protéger par un mot de passe</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>Le mot de passe doit comporter au moins %1 caractères.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Saisissez un mot de passe pour le lien.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Lien valable jusqu&apos;au</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>N&apos;expire jamais</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Choisissez une date future.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Ce lien a expiré.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>Nombre de téléchargements autorisés</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>Téléchargements restants : %1</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Autoriser le téléchargement</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Autoriser l&apos;envoi de fichiers</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>Le lien n&apos;a pas pu être créé. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>L&apos;administrateur a désactivé les liens pour ce dossier.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Demande de fichiers</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>Les personnes disposant du lien peuvent envoyer des fichiers dans ce dossier sans en voir le contenu.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>Afficher le code QR</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Conflits</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>« %1 » a été modifié des deux côtés en même temps.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>Fichiers modifiés des deux côtés en même temps : %1.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Choisissez la version à conserver. L&apos;autre est enregistrée comme copie en conflit.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Conserver la version de cet ordinateur</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Conserver la version de Corvimo Server</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Conserver les deux versions</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Conserver la version la plus récente</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Me demander à chaque fois</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Appliquer à tous les conflits</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>copie en conflit de %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Sur cet ordinateur</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>Sur Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Modifié par %1 le %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Lorsqu&apos;un fichier a été modifié des deux côtés</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Noms ne différant que par les majuscules et les minuscules</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>« %1 » et « %2 » ne diffèrent que par les majuscules et les minuscules. Renommez l&apos;un des deux.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Il n&apos;y a aucun conflit.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>Le conflit a été résolu.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Le conflit n&apos;a pas pu être résolu car le fichier est ouvert. Fermez-le et réessayez.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Résoudre</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Décider plus tard</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Ouvrir les deux fichiers</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Vous avez supprimé « %1 », mais il a été modifié sur Corvimo Server. Le fichier modifié a été conservé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>« %1 » a été supprimé sur Corvimo Server, mais vous l&apos;avez modifié. Votre fichier a été conservé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>« %1 » est un fichier d&apos;un côté et un dossier de l&apos;autre. Renommez l&apos;un des deux.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Copies en conflit</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Supprimer les copies en conflit</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Voulez-vous supprimer les copies en conflit (nombre : %1) ? Elles ne pourront pas être récupérées.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>« %1 » est ouvert dans un autre programme et sera synchronisé à sa fermeture.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adresse du serveur</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Nom d&apos;hôte, adresse IP ou Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nom d&apos;utilisateur</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Chiffrer la connexion</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Sans chiffrement, d&apos;autres personnes sur le réseau peuvent lire vos fichiers et votre mot de passe.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connecter</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Déconnecter</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconnecter</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Tester la connexion</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test de la connexion...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>La connexion fonctionne.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>La connexion ne fonctionne pas. Vérifiez l&apos;adresse et le port.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Connecté à %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>La connexion à %1 a été perdue. Corvimo Client réessaiera dans %2 secondes.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>La connexion à %1 est rétablie.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>En attente d&apos;une connexion réseau</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Ne pas synchroniser sur les réseaux facturés à l&apos;usage</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>La synchronisation est en pause car ce réseau est facturé à l&apos;usage.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Connecté par le réseau local</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Connecté par Internet</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Connecté par un serveur relais</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>Le serveur relais est plus lent qu&apos;une connexion directe.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Rechercher des serveurs sur ce réseau</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Recherche de serveurs...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>Aucun serveur n&apos;a été trouvé sur ce réseau. Saisissez vous-même l&apos;adresse du serveur.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Serveurs trouvés : %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>Le serveur « %1 » est introuvable. Vérifiez l&apos;orthographe de l&apos;adresse.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>Le serveur a refusé la connexion. Assurez-vous que Corvimo Server est en cours d&apos;exécution.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>Le serveur n&apos;a pas répondu à temps. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Cet ordinateur n&apos;est pas connecté à un réseau.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Saisissez un port compris entre 1 et 65535.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Saisissez l&apos;adresse du serveur.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>Le Corvimo ID « %1 » n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>Le serveur portant ce Corvimo ID est hors ligne. Assurez-vous qu&apos;il est allumé.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>Corvimo Server n&apos;est pas installé ou ne s&apos;exécute pas sur ce serveur.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>Le serveur est en maintenance. La synchronisation reprendra dès qu&apos;il sera de nouveau disponible.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server est trop ancien pour ce client. Demandez à l&apos;administrateur de le mettre à jour vers la version %1 ou ultérieure.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Ce client est trop ancien pour Corvimo Server. Mettez-le à jour vers la version %1 ou ultérieure.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>Trop de clients sont connectés au serveur. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Cet ordinateur a été bloqué après un trop grand nombre de tentatives infructueuses. Demandez à l&apos;administrateur de le débloquer.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>Un pare-feu bloque peut-être Corvimo Client. Autorisez Corvimo Client à utiliser le port %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>Impossible d&apos;établir une connexion sécurisée : %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Une erreur inconnue s&apos;est produite (code %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Supprimer la connexion</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Voulez-vous supprimer la connexion à %1 ? Ses tâches de synchronisation seront supprimées, mais vos fichiers seront conservés.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>Fichiers non encore envoyés : %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Dernière connexion le %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Utilisez un serveur proxy si votre réseau en a besoin pour accéder à Internet.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Ne pas utiliser de proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Utiliser les réglages de proxy de cet ordinateur</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Configurer le proxy vous-même</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Type de proxy</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adresse du proxy</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>Le proxy exige un nom d&apos;utilisateur et un mot de passe</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Ne pas utiliser le proxy pour les adresses locales</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Ne pas utiliser le proxy pour ces adresses</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Tester le proxy</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>Le proxy fonctionne.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Se connecter au proxy</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>Le proxy %1 demande un nom d&apos;utilisateur et un mot de passe.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>Le proxy n&apos;a pas accepté le nom d&apos;utilisateur ou le mot de passe.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>Le proxy %1 est injoignable. Vérifiez son adresse et son port.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>Le proxy n&apos;autorise pas les connexions à %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Les réglages de proxy de cet ordinateur n&apos;ont pas pu être lus.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Saisissez l&apos;adresse du proxy.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificat</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>Le certificat n&apos;est pas fiable</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>Le certificat de %1 n&apos;a pas été émis par une autorité connue. Quelqu&apos;un se fait peut-être passer pour votre serveur.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>Le serveur utilise un certificat qu&apos;il a signé lui-même.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>Le certificat a expiré le %1.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>Le certificat n&apos;est pas valide avant le %1. Vérifiez l&apos;horloge de cet ordinateur.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>Le certificat a été émis pour %1, et non pour %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>Le certificat a été révoqué par l&apos;autorité qui l&apos;a émis.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>Le certificat a changé</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>Le certificat de %1 n&apos;est pas celui utilisé auparavant. Demandez à l&apos;administrateur s&apos;il a été renouvelé.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>Le certificat utilise un algorithme qui n&apos;est plus considéré comme sûr.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Faire confiance à ce certificat</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Toujours faire confiance à ce certificat</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Faire confiance cette fois uniquement</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Ne pas se connecter</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Afficher le certificat</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Émis pour</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Émis par</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Valide à partir du</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Valide jusqu&apos;au</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Empreinte</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Algorithme de signature</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Longueur de clé</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Exporter le certificat</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>Le certificat a été enregistré sous « %1 ».</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Importer un certificat</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>Le fichier ne contient pas de certificat valide.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Voulez-vous retirer le certificat de %1 des certificats de confiance ?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Stockage</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 utilisés sur %2</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 disponibles</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Illimité</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Stockage sur Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Stockage sur cet ordinateur</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Stockage par type de fichier</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Stockage par dossier</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Stockage utilisé par les versions antérieures</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Stockage utilisé par les fichiers supprimés</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Vider la corbeille</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Voulez-vous vider la corbeille ? Les fichiers qu&apos;elle contient ne pourront pas être récupérés.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>La corbeille a été vidée. %1 sont de nouveau disponibles.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Calcul en cours...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Votre espace de stockage est presque plein. Il ne reste que %1.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Votre espace de stockage est plein</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Aucun nouveau fichier ne peut être envoyé tant que vous n&apos;avez pas supprimé des fichiers ou demandé davantage d&apos;espace à l&apos;administrateur.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>Le dossier « %1 » a atteint son quota. Aucun nouveau fichier ne peut y être envoyé.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>Le volume de Corvimo Server est plein. Demandez à l&apos;administrateur de libérer de la place.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>« %1 » dépasse l&apos;espace de stockage restant (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>L&apos;espace disque est faible</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>Il ne reste que %1 sur le disque « %2 ». La synchronisation s&apos;arrête lorsque le disque est plein.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Espace disque insuffisant</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>L&apos;espace est insuffisant sur le disque « %1 ». La synchronisation est en pause jusqu&apos;à ce que vous libériez au moins %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>« %1 » n&apos;a pas été téléchargé car il nécessite %2 d&apos;espace disque.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Vous pouvez libérer de l&apos;espace grâce à la synchronisation sélective ou en conservant des fichiers en ligne uniquement.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Ouvrir les réglages de stockage</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Conserver au moins cet espace disque libre</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Les téléchargements sont suspendus lorsqu&apos;il reste moins d&apos;espace.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>Le disque contenant le dossier « %1 » n&apos;est pas connecté. Connectez-le pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>Le disque « %1 » est en lecture seule. Les modifications provenant de Corvimo Server ne peuvent pas y être enregistrées.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>L&apos;espace est insuffisant pour les fichiers temporaires. Libérez au moins %1.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Fichiers temporaires</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Supprimer les fichiers temporaires</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Les fichiers temporaires ont été supprimés (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Vérifier à nouveau</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Fichiers les plus volumineux</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Supprimez ou déplacez les fichiers dont vous n&apos;avez plus besoin.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>Votre espace utilisé a augmenté de %1 ce mois-ci.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>À ce rythme, votre espace de stockage sera plein le %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Demander davantage de stockage</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>Votre demande a été envoyée à l&apos;administrateur.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>Votre demande est en attente de réponse.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>Le quota du groupe « %1 » est épuisé.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 est prêt.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Mise à jour logicielle</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Rechercher des mises à jour</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Recherche de mises à jour...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>Votre version est la plus récente.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>La version %1 de Corvimo Client est disponible.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Télécharger et installer</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>La mise à jour est prête. Redémarrez Corvimo Client pour l&apos;installer.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Redémarrer maintenant</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>La mise à jour n&apos;a pas pu être installée. Votre version actuelle continue de fonctionner.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client n&apos;a pas pu rechercher de mises à jour.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notes de version</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Installer les mises à jour automatiquement</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 est en cours d&apos;initialisation...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Importation de vos réglages depuis la version précédente.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Vos réglages ont été importés. Vous pouvez continuer là où vous en étiez.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>Certains réglages de la version précédente n&apos;ont pas pu être importés. Vérifiez vos tâches de synchronisation.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>La mise à jour nécessite %1 d&apos;espace disque.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Cette version n&apos;est plus prise en charge. Installez la mise à jour pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Bande passante</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Vitesse d&apos;envoi</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Vitesse de téléchargement</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Limiter à</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Ajuster automatiquement</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client laisse de la place aux autres programmes qui utilisent le réseau.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Planification</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Choisissez les heures pendant lesquelles la limite s&apos;applique.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Toute la journée</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Heures de travail</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>La nuit</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>Ne pas synchroniser</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Pleine vitesse</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Vitesse limitée</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Effacer la planification</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Saisissez une vitesse supérieure à 0.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Saisissez une vitesse comprise entre %1 et %2.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>Le début doit précéder la fin.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>L&apos;administrateur a limité la vitesse à %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Fichiers transférés simultanément</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>Ne pas limiter la vitesse sur le réseau local</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Vitesse actuelle</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Vitesse moyenne</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Transféré aujourd&apos;hui</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Transféré ce mois-ci</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Choisissez ce dont Corvimo Client vous informe.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Lorsque la synchronisation est terminée</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Lorsqu&apos;un fichier ne peut pas être synchronisé</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Lorsque quelqu&apos;un partage un élément avec moi</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Lorsque quelqu&apos;un commente mes fichiers</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Lorsque l&apos;espace de stockage est presque plein</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Lorsqu&apos;une sauvegarde est terminée ou a échoué</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Lorsqu&apos;une mise à jour est disponible</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Lorsque la connexion est perdue</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Émettre un son</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Ne pas déranger</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Heures calmes</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Aucune notification jusqu&apos;à %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Ne pas me déranger pendant les présentations</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Afficher les noms de fichiers dans les notifications</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Les notifications sont désactivées dans les réglages système de cet ordinateur.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Ouvrir les réglages système</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Tout masquer</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Marquer comme lu</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Centre de notifications</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>Vous n&apos;avez aucune notification.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Nouvelles notifications : %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tous les fichiers sont à jour.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>La première synchronisation est terminée. Fichiers présents sur cet ordinateur : %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>De nombreux fichiers ont été supprimés</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>Fichiers supprimés de « %2 » : %1. Restaurez-les si ce n&apos;était pas voulu.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>Fichiers modifiés en peu de temps : %1. Si vous n&apos;en êtes pas à l&apos;origine, suspendez la synchronisation et recherchez d&apos;éventuels logiciels malveillants sur votre ordinateur.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>Le dossier « %1 » a été déplacé. Indiquez à Corvimo Client où il se trouve maintenant.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 a commenté « %2 ».</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Problèmes de synchronisation</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Ces fichiers n&apos;ont pas pu être synchronisés. Corvimo Client réessaiera lorsque la cause aura disparu.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problèmes : %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Il n&apos;y a aucun problème.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Tout réessayer</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Copier les détails</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Signaler un problème</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>Les détails ont été copiés dans le presse-papiers.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Code d&apos;erreur : %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>Le fichier est utilisé par un autre programme. Fermez-le dans ce programme pour le synchroniser.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>Le fichier est verrouillé par %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>Le fichier a été supprimé avant de pouvoir être synchronisé.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>Le fichier a été modifié pendant son envoi. Il sera envoyé à nouveau.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>Le fichier a été endommagé pendant le transfert. Il sera transféré à nouveau.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Le fichier ne peut pas être lu. Vérifiez ses autorisations.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>Impossible d&apos;écrire dans le fichier. Vérifiez ses autorisations.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>Le fichier dépasse la limite de %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>Le fichier est trop volumineux pour le système de fichiers de ce disque.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>Le fichier est chiffré et ne peut pas être ouvert sur cet ordinateur.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>L&apos;antivirus de Corvimo Server a bloqué le fichier.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>L&apos;antivirus de cet ordinateur a bloqué le fichier.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Les fichiers de ce type ne sont pas autorisés sur Corvimo Server.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Les périphériques, les tubes et les sockets ne peuvent pas être synchronisés.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Les liens symboliques pointant hors du dossier synchronisé ne sont pas synchronisés.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>L&apos;alias « %1 » pointe vers un élément qui n&apos;est pas synchronisé.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>Le nom est trop long. Nombre maximal de caractères : %1.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>Le chemin d&apos;accès est trop long. Raccourcissez les noms de ses dossiers.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>Le nom contient des caractères non autorisés : %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>Le nom « %1 » est réservé par le système.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>Le nom se termine par une espace ou un point. Renommez l&apos;élément.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>Le nom contient des caractères illisibles. Renommez l&apos;élément.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Un élément nommé « %1 » existe déjà dans ce dossier.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Saisissez un nom.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>Le dossier « %1 » est introuvable.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>Le dossier n&apos;a pas été supprimé car il contient des fichiers qui ne sont pas synchronisés.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Le dossier n&apos;a pas pu être créé.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Le dossier n&apos;a pas pu être supprimé.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>Vous n&apos;êtes pas autorisé à modifier ce dossier.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>Vous n&apos;êtes pas autorisé à ouvrir ce dossier.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>Le dossier contient plus de %1 éléments. Déplacez-en certains dans des sous-dossiers.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>Le dossier est imbriqué trop profondément.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>Le serveur est occupé. Corvimo Client réessaiera dans quelques minutes.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server a signalé une erreur interne. Demandez à l&apos;administrateur de consulter son journal.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server n&apos;accepte aucune modification pour le moment.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>Le volume contenant ce dossier n&apos;est pas disponible sur Corvimo Server.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>Le dossier partagé a été retiré de Corvimo Server.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>La synchronisation a été désactivée pour ce dossier partagé.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>Le serveur a envoyé une réponse que Corvimo Client ne comprend pas.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>Votre session a pris fin. Reconnectez-vous.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Les données de Corvimo Server ont été réinitialisées. Configurez à nouveau vos tâches de synchronisation.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>« %1 » n&apos;a pas pu être envoyé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>« %1 » n&apos;a pas pu être envoyé : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>« %1 » n&apos;a pas pu être téléchargé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>« %1 » n&apos;a pas pu être téléchargé : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>« %1 » n&apos;a pas pu être supprimé : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>« %1 » n&apos;a pas pu être renommé : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>« %1 » n&apos;a pas pu être déplacé : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>« %1 » n&apos;a pas pu être restauré : %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Accès refusé</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>Le disque a signalé une erreur de lecture ou d&apos;écriture. Vérifiez l&apos;état du disque.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>Le disque a été retiré pendant l&apos;écriture de fichiers.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Mémoire insuffisante. Fermez d&apos;autres programmes et réessayez.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>La base de données de synchronisation est endommagée et va être reconstruite. Cela peut prendre un certain temps.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>La base de données de synchronisation est utilisée par un autre programme.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Reconstruction de la base de données de synchronisation...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>La base de données de synchronisation a été reconstruite.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Vos réglages n&apos;ont pas pu être lus. Les valeurs par défaut sont utilisées.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Vos réglages n&apos;ont pas pu être enregistrés.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Les modifications de certains dossiers peuvent être détectées tardivement car le système surveille trop de dossiers.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>L&apos;horloge de cet ordinateur diffère de plus de %1 minutes de celle du serveur. Réglez l&apos;heure de cet ordinateur.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Cette action n&apos;est pas prise en charge par Corvimo Server.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>L&apos;action a été annulée.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>L&apos;action a pris trop de temps et a été arrêtée.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Une erreur inconnue s&apos;est produite.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Corvimo Client n&apos;a pas pu démarrer. Redémarrez cet ordinateur et réessayez.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client est déjà en cours d&apos;exécution.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Un composant de Corvimo Client est manquant. Réinstallez le client.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Les icônes d&apos;état ne peuvent pas être affichées car d&apos;autres programmes utilisent tous les emplacements prévus.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client a besoin de votre autorisation pour lire ce dossier. Accordez-la dans les réglages de confidentialité de cet ordinateur.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Si le problème persiste, redémarrez Corvimo Client.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Si le problème persiste, adressez-vous à l&apos;administrateur.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Si le problème persiste, contactez l&apos;assistance et indiquez le code d&apos;erreur.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Voulez-vous continuer avec les fichiers restants ?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Se connecter</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Se déconnecter</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Se connecter à Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Mot de passe oublié ?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Rester connecté</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Connexion au compte...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Connecté en tant que %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Vous êtes déconnecté de votre compte.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Voulez-vous vous déconnecter de votre compte ? La synchronisation s&apos;arrête jusqu&apos;à votre prochaine connexion.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Se connecter avec le navigateur</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Continuez dans votre navigateur, puis revenez ici.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>Le navigateur n&apos;a pas pu être ouvert. Ouvrez vous-même cette adresse : %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domaine</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Saisissez votre nom d&apos;utilisateur sous la forme domaine\utilisateur si votre compte appartient à un domaine.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Ajouter un compte</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Changer de compte</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Retirer le compte</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Voulez-vous retirer le compte %1 de cet ordinateur ? Vos fichiers restent sur cet ordinateur et sur Corvimo Server.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>Adresse e-mail</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Nom complet</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Changer le mot de passe</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Mot de passe actuel</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nouveau mot de passe</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Répéter le nouveau mot de passe</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>Votre mot de passe a été changé.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>L&apos;administrateur exige que vous changiez votre mot de passe.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Jours avant l&apos;expiration de votre mot de passe : %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Les deux mots de passe ne sont pas identiques.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>Le nouveau mot de passe doit être différent de l&apos;actuel.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Saisissez votre nom d&apos;utilisateur.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Saisissez votre mot de passe.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>Le nom d&apos;utilisateur ou le mot de passe est incorrect. Essais restants : %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Votre compte est désactivé. Adressez-vous à l&apos;administrateur.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Votre compte a expiré. Adressez-vous à l&apos;administrateur.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Vous n&apos;êtes pas autorisé à utiliser Corvimo Server. Adressez-vous à l&apos;administrateur.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>Votre mot de passe a expiré. Changez-le sur Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>Votre dossier personnel n&apos;est pas disponible. Demandez à l&apos;administrateur d&apos;activer le service de dossiers personnels.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>Le compte invité ne peut pas être utilisé pour la synchronisation.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Toutes les licences de Corvimo Server sont utilisées.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Nom de cet ordinateur</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Appareils associés</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Voulez-vous dissocier « %1 » ? Cet appareil sera déconnecté et cessera la synchronisation.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Cet ordinateur a été dissocié par %1. Reconnectez-vous pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Supprimer aussi les fichiers de l&apos;appareil</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Connexion en deux étapes</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Saisissez le code affiché par votre app d&apos;authentification.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Code de vérification</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 chiffres</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Vérification...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Faire confiance à cet appareil</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Ne plus demander sur cet ordinateur pendant ce nombre de jours : %1</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Téléphone perdu ?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Envoyer un code par e-mail</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>Un code a été envoyé à %1. Il est valable 10 minutes.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Le code n&apos;a pas pu être envoyé. Demandez de l&apos;aide à l&apos;administrateur.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Utiliser un code de récupération</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Saisissez l&apos;un des codes de récupération que vous avez notés. Chaque code ne fonctionne qu&apos;une fois.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Codes de récupération restants : %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Utiliser une clé de sécurité</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Insérez votre clé de sécurité et touchez-la.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>La clé de sécurité n&apos;a pas été reconnue. Essayez-en une autre.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Approuvez la connexion sur votre téléphone</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>En attente de votre approbation...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Choisissez le nombre %1 sur votre téléphone.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>La connexion a été refusée sur votre téléphone.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>La demande a expiré. Envoyez-la à nouveau.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Envoyer à nouveau</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Essayer une autre méthode</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Saisissez le code.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>Le code est incorrect. Vérifiez que l&apos;horloge de votre téléphone est à l&apos;heure.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Ce code a déjà été utilisé. Attendez le suivant.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>Trop de codes incorrects. Patientez %1 min et réessayez.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>L&apos;administrateur exige la connexion en deux étapes. Configurez-la d&apos;abord sur Corvimo Server.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Configurer la connexion en deux étapes</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Scannez ce code avec votre app d&apos;authentification.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>La connexion en deux étapes est activée.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Tâches de sauvegarde</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>Une tâche de sauvegarde copie des dossiers de cet ordinateur sur Corvimo Server et conserve les versions antérieures.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Créer une tâche de sauvegarde</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Modifier la tâche de sauvegarde</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Supprimer la tâche de sauvegarde</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Voulez-vous supprimer la tâche de sauvegarde « %1 » ?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Supprimer aussi les fichiers sauvegardés sur Corvimo Server</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Nom de la tâche</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Une tâche porte déjà ce nom.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Éléments à sauvegarder</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Choisissez au moins un dossier à sauvegarder.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>Le dossier « %1 » n&apos;existe plus. Il est exclu de la sauvegarde.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Téléchargements</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Disques externes</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Emplacement de la sauvegarde</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Ce dossier contient déjà une sauvegarde d&apos;un autre ordinateur.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Moment de la sauvegarde</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Dès qu&apos;un fichier change</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>Selon une planification</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Uniquement lorsque je la lance</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Chaque jour</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Chaque semaine</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Chaque mois</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Chaque heure</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>À %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>Ces jours-là</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>Lorsqu&apos;un disque externe est connecté</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Réactiver cet ordinateur pour la sauvegarde</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Sauvegarder maintenant</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Arrêter la sauvegarde</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Voulez-vous arrêter la sauvegarde ? Les fichiers déjà sauvegardés sont conservés.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Sauvegarde...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Sauvegarde des fichiers : %1 sur %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>La sauvegarde est terminée.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Dernière sauvegarde : %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Prochaine sauvegarde : %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Pas encore sauvegardé</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>La sauvegarde est terminée. Fichiers qui n&apos;ont pas pu être lus : %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>La sauvegarde a échoué : %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>La sauvegarde prévue le %1 n&apos;a pas eu lieu. Elle démarre maintenant.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Jours depuis la dernière sauvegarde de cet ordinateur : %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Durée de conservation des versions</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Conserver toutes les versions</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Nombre de versions à conserver : %1</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Nombre de jours de conservation des versions : %1</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Conserver moins de versions à mesure qu&apos;elles vieillissent</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Chiffrer la sauvegarde</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Clé de chiffrement</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Conservez la clé en lieu sûr. Sans elle, la sauvegarde ne peut pas être restaurée.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>La clé de chiffrement est incorrecte.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Restaurer des fichiers</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Choisissez les fichiers à restaurer et l&apos;emplacement où les placer.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Restaurer à l&apos;emplacement d&apos;origine</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Remplacer les fichiers existants</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>Restauration des fichiers : %1 sur %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Tous les fichiers ont été restaurés.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>Fichiers restaurés : %1. Fichiers qui n&apos;ont pas pu être restaurés : %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Vérifier la sauvegarde</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>La sauvegarde est intacte.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Fichiers endommagés dans la sauvegarde : %1. Ils seront sauvegardés à nouveau.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
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
        <translation>Version du serveur</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Tous droits réservés.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrat de licence</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Déclaration de confidentialité</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Logiciels tiers</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Contacter l&apos;assistance</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Envoyer des commentaires</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Merci d&apos;utiliser Corvimo Client.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Journaux</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Niveau de détail</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>Les journaux détaillés ralentissent le client. Revenez au niveau normal lorsque vous avez terminé.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Ouvrir le dossier des journaux</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Enregistrer le journal</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>Le journal a été enregistré sous « %1 ».</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Le journal n&apos;a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Effacer le journal</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Voulez-vous effacer le journal ?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Envoyer le journal à l&apos;assistance</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Envoi du journal...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>Le journal a été envoyé. Le numéro de votre rapport est %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Le journal n&apos;a pas pu être envoyé. Enregistrez-le et envoyez-le par e-mail.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>Le journal contient les noms des fichiers et des dossiers, mais pas leur contenu.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Envoyer des données d&apos;utilisation anonymes pour aider à améliorer Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Démarrer Corvimo Client lorsque j&apos;ouvre une session sur cet ordinateur</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Afficher les icônes d&apos;état sur les fichiers et les dossiers</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Afficher Corvimo Client dans le menu contextuel</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Afficher les dossiers synchronisés dans la barre latérale</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Afficher l&apos;icône dans la barre des menus</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>Identique au système</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>La langue change au redémarrage de Corvimo Client.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Taille du texte</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>Ne pas mettre l&apos;ordinateur en veille pendant la synchronisation des fichiers</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Placer dans la corbeille les fichiers supprimés sur Corvimo Server</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>M&apos;avertir avant la suppression de nombreux fichiers</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Voulez-vous réinitialiser tous les réglages ? Vos tâches de synchronisation restent inchangées.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Ce réglage est géré par l&apos;administrateur.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Vos réglages ont été enregistrés.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Voulez-vous abandonner vos modifications ?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Fichiers à la demande</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Tous les fichiers figurent sur cet ordinateur, mais un fichier n&apos;est téléchargé que lorsque vous l&apos;ouvrez.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>Activer « Fichiers à la demande »</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Voulez-vous activer « Fichiers à la demande » pour « %1 » ? Les fichiers déjà présents sur cet ordinateur y restent.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>« Fichiers à la demande » est activé.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>Désactiver « Fichiers à la demande »</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Voulez-vous désactiver « Fichiers à la demande » ? Tous les fichiers de ce dossier seront téléchargés (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>L&apos;espace est insuffisant pour télécharger tous les fichiers. Il manque %1.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>En ligne uniquement</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Toujours sur cet ordinateur</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Partiellement sur cet ordinateur</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>Fichiers qui ne seront disponibles qu&apos;en ligne : %1. Voulez-vous continuer ?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>%1 d&apos;espace disque ont été libérés.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Les fichiers non encore envoyés restent sur cet ordinateur.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>« %1 » est ouvert et reste sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Libérer de l&apos;espace automatiquement</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Conserver en ligne uniquement les fichiers non ouverts depuis ce nombre de jours : %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Uniquement lorsque l&apos;espace disque est faible</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 télécharge « %2 ».</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Bloquer les téléchargements effectués par ce programme</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Un programme ouvre de nombreux fichiers disponibles uniquement en ligne. Voulez-vous l&apos;autoriser ?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>« %1 » ne peut pas être ouvert car il est disponible uniquement en ligne et Corvimo Client n&apos;est pas connecté.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Démarrez Corvimo Client pour ouvrir les fichiers disponibles uniquement en ligne.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>« Fichiers à la demande » n&apos;est pas pris en charge par cette version du système.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>« Fichiers à la demande » n&apos;est pas pris en charge sur ce disque.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Autorisez l&apos;extension de fournisseur de fichiers dans les réglages système pour utiliser « Fichiers à la demande ».</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Afficher un aperçu des fichiers disponibles uniquement en ligne</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>Il est impossible d&apos;effectuer sur cet ordinateur une recherche dans le contenu des fichiers disponibles uniquement en ligne.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Autoriser</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloquer</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Bienvenue dans Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Configurez Corvimo Client en quelques étapes pour disposer de vos fichiers sur chaque ordinateur.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Commencer</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Étape %1 sur %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Connectez-vous à votre serveur</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Saisissez l&apos;adresse de Corvimo Server et connectez-vous avec votre compte.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>Que voulez-vous faire ?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Synchroniser des fichiers</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Garder les fichiers identiques sur cet ordinateur et sur Corvimo Server.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Sauvegarder cet ordinateur</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Copier vos fichiers sur Corvimo Server pour les protéger contre la perte.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Vos fichiers seront synchronisés dans « %1 ».</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Dossiers d&apos;équipe</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Choisissez les dossiers d&apos;équipe que vous souhaitez avoir sur cet ordinateur.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>Vous n&apos;êtes membre d&apos;aucun dossier d&apos;équipe.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Options de synchronisation</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Synchroniser tous les fichiers</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client a besoin de votre autorisation pour afficher des notifications et lire vos dossiers.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Vérifiez vos choix avant de commencer.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>Fichiers qui seront téléchargés : %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Tout est prêt</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client synchronise maintenant vos fichiers. Vous le trouverez dans la barre des menus.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Suivre la visite guidée</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Cliquez sur l&apos;icône de la barre des menus pour voir ce qui se passe.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Cliquez sur un fichier avec le bouton droit pour le partager ou voir ses versions.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Les icônes sur vos fichiers indiquent s&apos;ils sont synchronisés.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Voulez-vous quitter la configuration ? Vous pourrez continuer plus tard.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Les réglages d&apos;une installation antérieure ont été trouvés. Voulez-vous les utiliser ?</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 o</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 Ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Go</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 To</translation>
    </message>
    <message>
        <source>%1 KB/s</source>
        <translation>%1 Ko/s</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 Mo/s</translation>
    </message>
    <message>
        <source>%1 percent</source>
        <translation>%1 pour cent</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 fichier</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 fichiers</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 dossier</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 dossiers</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Éléments : %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>Fichiers : %1, dossiers : %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>À l&apos;instant</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Aujourd&apos;hui</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>Aujourd&apos;hui à %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>Hier à %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Demain</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>Il y a une minute</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Il y a %1 minutes</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>Il y a une heure</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Il y a %1 heures</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Il y a %1 jours</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semaine dernière</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Le mois dernier</translation>
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
        <translation>%1 j</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <translation>Temps restant : %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>Temps restant : %1 min</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>Temps restant : %1 h</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lundi</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Mardi</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mercredi</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jeudi</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Vendredi</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samedi</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Dimanche</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>En savoir plus</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Veuillez patienter...</translation>
    </message>
</context>
</TS>
