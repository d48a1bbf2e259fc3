<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Archivo añadido: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambiar carpeta</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Añadido</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renombrado</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Movido</translation>
    </message>
    <message>
        <source>Restored</source>
        <translation>Restaurado</translation>
    </message>
    <message>
        <source>File changed: </source>
        <translation>Archivo modificado: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Archivo eliminado: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Archivo renombrado: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Carpeta añadida: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Carpeta eliminada: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Archivos modificados recientemente</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Todavía no se ha modificado ningún archivo.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Mostrar todos los cambios</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Abrir Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Abrir en el navegador web</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausar la sincronización</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Pausar durante una hora</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Pausar hasta mañana</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Reanudar la sincronización</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificaciones</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>Acerca de Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Los archivos no se sincronizarán hasta que vuelva a iniciar Corvimo Client. ¿Desea salir?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Actualizado</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Sincronizando, archivos restantes: %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>Subiendo %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Descargando %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Buscando cambios...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>En pausa hasta %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>Se requiere su atención</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>No se han podido sincronizar algunos archivos.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>No se ha configurado ninguna tarea de sincronización.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>Subida: %1, descarga: %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Abrir con...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Historial de versiones</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Obtener enlace</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Copiar enlace</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Compartir...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Enviar enlace por correo electrónico</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Sincronizar ahora</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Dejar de sincronizar esta carpeta</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Conservar siempre en este ordenador</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Liberar espacio</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Bloquear archivo</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Desbloquear archivo</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Copiar ruta</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nueva carpeta</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>No sincronizar archivos con este nombre</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>No sincronizar archivos de este tipo</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Bloqueado por %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>«%1» está bloqueado. Los demás pueden leerlo, pero no modificarlo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>«%1» está desbloqueado.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>El enlace se ha copiado en el portapapeles.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>La ruta se ha copiado en el portapapeles.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>Elementos seleccionados: %1</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Este elemento no está en una carpeta sincronizada.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tareas de sincronización</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Resumen general</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronización</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Actividad reciente</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Crear tarea de sincronización</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Pausar todo</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Reanudar todo</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>No hay resultados para «%1».</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Todavía no hay ninguna tarea de sincronización. Cree una para mantener iguales una carpeta de este ordenador y una carpeta de Corvimo Server.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Carpeta en este ordenador</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Carpeta en Corvimo Server</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Fecha de modificación</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Propietario</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Cuenta</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Última sincronización</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Carpeta no encontrada</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Eliminar tarea de sincronización</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>¿Desea eliminar la tarea de sincronización «%1»? Sus archivos permanecen en este ordenador y en Corvimo Server.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>¿Desea eliminar las %1 tareas de sincronización seleccionadas? Sus archivos permanecen en este ordenador y en Corvimo Server.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>La tarea de sincronización se ha eliminado.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>La sincronización está en pausa. Los cambios se sincronizarán cuando la reanude.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Borrar lista</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Toda la actividad</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Solo errores</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 se ha subido.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 se ha descargado.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 se ha eliminado de este ordenador.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 se ha eliminado de Corvimo Server.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1 se ha renombrado como %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 se ha movido a %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>Archivos modificados por %2: %1.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Elegir las carpetas que desea sincronizar</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Elija una carpeta en Corvimo Server y una carpeta en este ordenador. Corvimo Client las mantiene iguales.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Elegir carpeta del servidor</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Elegir carpeta local</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambiar</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Nombre de la nueva carpeta</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>No se ha podido crear la carpeta «%1». Elija otro nombre o compruebe sus permisos.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Crear aquí una carpeta vacía llamada «%1»</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Dirección de la sincronización</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronización bidireccional</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Solo subir cambios</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Solo descargar cambios</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>Los cambios de un lado se copian en el otro.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>Los cambios de este ordenador se suben. Los cambios de Corvimo Server no se descargan.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>Los cambios de Corvimo Server se descargan. Los cambios de este ordenador no se suben.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Conservar los archivos en este ordenador cuando se eliminen en Corvimo Server</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Conservar los archivos en Corvimo Server cuando se eliminen en este ordenador</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Combinar carpetas</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Ambas carpetas ya contienen archivos. Elija qué desea hacer con ellos.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>La carpeta «%1» ya existe. ¿Desea combinarla con la carpeta de Corvimo Server?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Combinar ambas carpetas y conservar todos los archivos</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Usar los archivos de este ordenador</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Usar los archivos de Corvimo Server</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Los archivos que sean distintos se conservan en dos copias.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Se eliminarán los archivos de Corvimo Server que no estén en este ordenador.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Se moverán a la papelera los archivos de este ordenador que no estén en Corvimo Server.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Se reemplazarán los archivos con el mismo nombre. Esta acción no se puede deshacer.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>Comparando ambas carpetas...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>Archivos comparados: %1 de %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>Ambas carpetas ya son iguales.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Esta carpeta ya forma parte de una tarea de sincronización. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Esta carpeta está dentro de una carpeta que ya se sincroniza. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Esta carpeta contiene una carpeta que ya se sincroniza. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Las carpetas del sistema no se pueden sincronizar. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>No se puede sincronizar un disco entero. Elija una carpeta del disco.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Las carpetas de discos extraíbles no se pueden sincronizar.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Las carpetas de red como \\server\share no se pueden sincronizar. Elija una carpeta de este ordenador.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>No tiene permiso para escribir en esta carpeta. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Esta carpeta está cifrada y bloqueada. Desbloquéela primero en Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>No se ha encontrado la carpeta. Es posible que se haya movido o eliminado.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>El sistema de archivos de este disco no es compatible. Utilice un disco con un sistema de archivos compatible.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Ha alcanzado el número máximo de tareas de sincronización (%1). Elimine alguna tarea que ya no necesite.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Elija qué desea sincronizar con este ordenador. Las carpetas que desmarque se quitan de este ordenador, pero permanecen en Corvimo Server.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro de archivos</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>No seleccionar nada</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Sincronizar las carpetas nuevas automáticamente</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>No se ha podido cargar la lista de carpetas. Compruebe la conexión e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Carpetas que se quitarán de este ordenador: %1. Permanecen en Corvimo Server.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>¿Quitar las carpetas de este ordenador?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Algunos archivos de estas carpetas aún no se han subido y se perderían. Sincronícelos primero.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Seleccionado: %1 de %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>No sincronizar archivos de más de</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>No sincronizar archivos con estas extensiones</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>No sincronizar archivos con estos nombres</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Añadir extensión</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Añadir nombre</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Sincronizar los archivos y carpetas cuyo nombre empiece por un punto</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Los archivos temporales de los programas habituales no se sincronizan nunca.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Restaurar valores predeterminados</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>¿Desea volver al filtro predeterminado?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Introduzca una extensión, por ejemplo, «iso».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>«%1» ya está en la lista.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Un nombre no debe contener ninguno de estos caracteres: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Introduzca un tamaño entre %1 y %2.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Excluido por el filtro</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>Su elección se ha guardado. Corvimo Client la está aplicando.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archivos comprimidos</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Otros archivos</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>Versiones de «%1»</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Versión actual</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Versión anterior</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Modificado por</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Este archivo no tiene versiones anteriores.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Elija un archivo para ver sus versiones.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Restaurar versión</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>¿Desea reemplazar la versión actual por la del %1?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>La versión actual se conserva en el historial.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>Se ha restaurado «%1» a la versión del %2.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>No se ha podido restaurar la versión. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Restaurar como copia</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Guardar versión como</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>La versión se ha guardado en «%1».</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>¿Desea eliminar esta versión? No se podrá recuperar.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>No se ha podido eliminar la versión.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Protegida contra la eliminación automática</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Número máximo de versiones de un archivo que conserva Corvimo Server: %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>El historial de versiones está desactivado en esta carpeta. Pida al administrador que lo active.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>No se conservan versiones de este tipo de archivo.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Archivos eliminados</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Mostrar archivos eliminados</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Eliminado el %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>¿Desea restaurar los elementos seleccionados (%1)?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Elementos restaurados: %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>No se han encontrado archivos eliminados.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Volver a un momento anterior</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Elija una fecha y una hora</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>Compartir «%1»</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personas</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Invite a otras personas o cree un enlace a este elemento.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Invitar a personas</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Introduzca un nombre o una dirección de correo electrónico</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Enviar invitación</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>La invitación se ha enviado a %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>No se ha podido enviar la invitación. Compruebe la dirección de correo electrónico.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Mensaje (opcional)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Permisos</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Puede ver</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Puede editar</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Puede gestionar</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Solo puede subir archivos</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Sin acceso</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>Se han cambiado los permisos de %1.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>No tiene permiso para compartir este elemento. Pídaselo a su propietario.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Compartido conmigo</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Compartido por mí</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Número de personas con acceso: %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Este elemento no está compartido.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Abandonar carpeta compartida</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>¿Desea abandonar la carpeta compartida «%1»? Se quitará de este ordenador.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>«%1» ya no se comparte con usted.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 ha compartido «%2» con usted.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Todos los usuarios de este servidor</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Ajustes del enlace</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Crear enlace</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Creando enlace...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Eliminar enlace</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>¿Desea eliminar este enlace? Las personas que lo tengan ya no podrán abrir el elemento.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Cualquiera que tenga el enlace</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Solo personas con una cuenta</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Proteger con contraseña</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>La contraseña debe tener al menos %1 caracteres.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Introduzca una contraseña para el enlace.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Enlace válido hasta</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>No caduca nunca</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Elija una fecha futura.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Este enlace ha caducado.</translation>
    </message>
    <message>
        <source>Number of downloads allowed</source>
        <translation>Número de descargas permitidas</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>Descargas restantes: %1</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Permitir descargar</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Permitir subir archivos</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>No se ha podido crear el enlace. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>El administrador ha desactivado los enlaces para esta carpeta.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Solicitud de archivos</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>Las personas que tengan el enlace pueden subir archivos a esta carpeta sin ver su contenido.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>Mostrar código QR</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Conflictos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>«%1» se ha modificado en dos lugares al mismo tiempo.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>Archivos modificados en dos lugares al mismo tiempo: %1.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Elija qué versión desea conservar. La otra se guarda como copia en conflicto.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Conservar la versión de este ordenador</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Conservar la versión de Corvimo Server</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Conservar ambas versiones</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Conservar la versión más reciente</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Preguntarme siempre</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Hacer lo mismo con todos los conflictos</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>copia en conflicto de %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>En este ordenador</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>En Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Modificado por %1 el %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Cuando un archivo se haya modificado en dos lugares</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Nombres que solo se diferencian en las mayúsculas y minúsculas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>«%1» y «%2» solo se diferencian en las mayúsculas y minúsculas. Renombre uno de ellos.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>No hay conflictos.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>El conflicto se ha resuelto.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>No se ha podido resolver el conflicto porque el archivo está abierto. Ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Resolver</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Decidir más tarde</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Abrir ambos archivos</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Ha eliminado «%1», pero se modificó en Corvimo Server. Se ha conservado el archivo modificado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>«%1» se eliminó en Corvimo Server, pero usted lo ha modificado. Se ha conservado su archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>«%1» es un archivo en un lado y una carpeta en el otro. Renombre uno de ellos.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Copias en conflicto</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Eliminar copias en conflicto</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>¿Desea eliminar las copias en conflicto (cantidad: %1)? No se podrán recuperar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>«%1» está abierto en otro programa y se sincronizará cuando se cierre.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Dirección del servidor</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Nombre de host, dirección IP o Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Cifrar la conexión</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Sin cifrado, otras personas de la red pueden leer sus archivos y su contraseña.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Volver a conectar</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Probar conexión</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Probando la conexión...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>La conexión funciona.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>La conexión no funciona. Compruebe la dirección y el puerto.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Conectado a %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>Se ha perdido la conexión con %1. Corvimo Client volverá a intentarlo en %2 segundos.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>Se ha recuperado la conexión con %1.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Esperando una conexión de red</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>No sincronizar en redes de uso medido</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>La sincronización está en pausa porque esta red es de uso medido.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Conectado por la red local</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Conectado por Internet</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Conectado mediante un servidor de retransmisión</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>El servidor de retransmisión es más lento que una conexión directa.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Buscar servidores en esta red</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Buscando servidores...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>No se ha encontrado ningún servidor en esta red. Introduzca usted mismo la dirección del servidor.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Servidores encontrados: %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>No se ha encontrado el servidor «%1». Compruebe que la dirección esté bien escrita.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>El servidor ha rechazado la conexión. Asegúrese de que Corvimo Server esté en ejecución.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>El servidor no ha respondido a tiempo. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Este ordenador no está conectado a ninguna red.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Introduzca un puerto entre 1 y 65535.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Introduzca la dirección del servidor.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>El Corvimo ID «%1» no existe.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>El servidor con este Corvimo ID no está conectado. Asegúrese de que esté encendido.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>Corvimo Server no está instalado o no está en ejecución en este servidor.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>El servidor está en mantenimiento. La sincronización continuará cuando vuelva a estar disponible.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>Corvimo Server es demasiado antiguo para este cliente. Pida al administrador que lo actualice a la versión %1 o posterior.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Este cliente es demasiado antiguo para Corvimo Server. Actualícelo a la versión %1 o posterior.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>Hay demasiados clientes conectados al servidor. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Este ordenador se ha bloqueado tras demasiados intentos fallidos. Pida al administrador que lo desbloquee.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>Es posible que un cortafuegos esté bloqueando Corvimo Client. Permita que Corvimo Client use el puerto %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>No se ha podido establecer una conexión segura: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Se ha producido un error desconocido (código %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar conexión</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Eliminar conexión</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>¿Desea eliminar la conexión con %1? Sus tareas de sincronización se eliminan, pero sus archivos se conservan.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>Archivos que aún no se han subido: %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Última conexión el %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Utilice un servidor proxy si su red lo necesita para acceder a Internet.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>No usar proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Usar los ajustes de proxy de este ordenador</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Configurar el proxy manualmente</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Tipo de proxy</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Dirección del proxy</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>El proxy requiere un nombre de usuario y una contraseña</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>No usar el proxy para las direcciones locales</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>No usar el proxy para estas direcciones</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Probar proxy</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>El proxy funciona.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Iniciar sesión en el proxy</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>El proxy %1 solicita un nombre de usuario y una contraseña.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>El proxy no ha aceptado el nombre de usuario o la contraseña.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>No se puede acceder al proxy %1. Compruebe la dirección y el puerto del proxy.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>El proxy no permite conexiones con %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>No se han podido leer los ajustes de proxy de este ordenador.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Introduzca la dirección del proxy.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>El certificado no es de confianza</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>El certificado de %1 no lo ha emitido una autoridad conocida. Es posible que alguien se esté haciendo pasar por su servidor.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>El servidor utiliza un certificado firmado por él mismo.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>El certificado caducó el %1.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>El certificado no es válido antes del %1. Compruebe el reloj de este ordenador.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>El certificado se emitió para %1, no para %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>La autoridad que emitió el certificado lo ha revocado.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>El certificado ha cambiado</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>El certificado de %1 no es el que se usaba antes. Pregunte al administrador si se ha renovado.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>El certificado utiliza un algoritmo que ya no se considera seguro.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Confiar en este certificado</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Confiar siempre en este certificado</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Confiar solo esta vez</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>No conectar</translation>
    </message>
    <message>
        <source>View certificate</source>
        <translation>Ver certificado</translation>
    </message>
    <message>
        <source>Issued to</source>
        <translation>Emitido para</translation>
    </message>
    <message>
        <source>Issued by</source>
        <translation>Emitido por</translation>
    </message>
    <message>
        <source>Valid from</source>
        <translation>Válido desde</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Válido hasta</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Huella digital</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Algoritmo de firma</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Longitud de la clave</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Exportar certificado</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>El certificado se ha guardado en «%1».</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Importar certificado</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>El archivo no contiene un certificado válido.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>¿Desea quitar el certificado de %1 de los certificados de confianza?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Almacenamiento</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 de %2 usados</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Ilimitado</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Almacenamiento en Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Almacenamiento en este ordenador</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Almacenamiento por tipo de archivo</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Almacenamiento por carpeta</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Almacenamiento usado por versiones anteriores</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Almacenamiento usado por archivos eliminados</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Vaciar papelera</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>¿Desea vaciar la papelera? Los archivos que contiene no se podrán recuperar.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>La papelera se ha vaciado. %1 vuelven a estar libres.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Calculando...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Su almacenamiento está casi lleno. Solo quedan %1.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Su almacenamiento está lleno</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>No se podrán subir archivos nuevos hasta que elimine algunos o pida más almacenamiento al administrador.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>La carpeta «%1» ha alcanzado su cuota. No se pueden subir archivos nuevos a ella.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>El volumen de Corvimo Server está lleno. Pida al administrador que libere espacio.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>«%1» ocupa más que el almacenamiento restante (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Queda poco espacio en disco</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>Solo quedan %1 en el disco «%2». La sincronización se detiene cuando el disco está lleno.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>No hay suficiente espacio en disco</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>No hay suficiente espacio en el disco «%1». La sincronización está en pausa hasta que libere al menos %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>«%1» no se ha descargado porque necesita %2 de espacio en disco.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Puede liberar espacio con la sincronización selectiva o conservando archivos solo en línea.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Abrir ajustes de almacenamiento</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Mantener libre al menos este espacio en disco</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Las descargas se pausan cuando queda menos espacio.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>El disco que contiene la carpeta «%1» no está conectado. Conéctelo para continuar la sincronización.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>El disco «%1» es de solo lectura. Los cambios de Corvimo Server no se pueden guardar en él.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>No hay suficiente espacio para los archivos temporales. Libere al menos %1.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Archivos temporales</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Eliminar archivos temporales</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Se han eliminado los archivos temporales (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Comprobar de nuevo</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Usado</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Archivos más grandes</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Elimine o mueva los archivos que ya no necesite.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>Su almacenamiento usado ha aumentado en %1 este mes.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>A este ritmo, su almacenamiento estará lleno el %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Solicitar más almacenamiento</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>Su solicitud se ha enviado al administrador.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>Su solicitud está pendiente de respuesta.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>La cuota del grupo «%1» se ha agotado.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 está lista.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Actualización de software</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Buscar actualizaciones</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Buscando actualizaciones...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>Su versión es la más reciente.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>La versión %1 de Corvimo Client está disponible.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Descargar e instalar</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Recordármelo más tarde</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>La actualización está lista. Reinicie Corvimo Client para instalarla.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Reiniciar ahora</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>No se ha podido instalar la actualización. Su versión actual sigue funcionando.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>Corvimo Client no ha podido buscar actualizaciones.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas de la versión</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Instalar las actualizaciones automáticamente</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 se está inicializando...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Se están importando los ajustes de la versión anterior.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Se han importado los ajustes. Puede continuar donde lo dejó.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>No se han podido importar algunos ajustes de la versión anterior. Compruebe sus tareas de sincronización.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>La actualización necesita %1 de espacio en disco.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Esta versión ya no recibe soporte. Instale la actualización para continuar la sincronización.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Ancho de banda</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Velocidad de subida</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Velocidad de descarga</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Limitar a</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Ajustar automáticamente</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>Corvimo Client deja margen para otros programas que usan la red.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Programación</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Elija las horas en las que se aplica el límite.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Todo el día</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Horario laboral</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>Por la noche</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>No sincronizar</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Velocidad máxima</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Velocidad limitada</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Borrar programación</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Introduzca una velocidad superior a 0.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Introduzca una velocidad entre %1 y %2.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>El inicio debe ser anterior al final.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>El administrador ha limitado la velocidad a %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Archivos transferidos al mismo tiempo</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>No limitar la velocidad en la red local</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Velocidad actual</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Velocidad media</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Transferido hoy</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Transferido este mes</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Elija sobre qué desea que le avise Corvimo Client.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Cuando se complete la sincronización</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Cuando no se pueda sincronizar un archivo</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Cuando alguien comparta un elemento conmigo</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Cuando alguien comente mis archivos</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Cuando el almacenamiento esté casi lleno</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Cuando una copia de seguridad se complete o falle</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Cuando haya una actualización disponible</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Cuando se pierda la conexión</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Reproducir un sonido</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>No molestar</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Horas de silencio</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Sin notificaciones hasta %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>No molestarme durante las presentaciones</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Mostrar nombres de archivo en las notificaciones</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>Las notificaciones están desactivadas en los ajustes del sistema de este ordenador.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Abrir ajustes del sistema</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Descartar todo</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Marcar como leído</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Centro de notificaciones</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>No tiene notificaciones.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Notificaciones nuevas: %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos los archivos están actualizados.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>La primera sincronización ha terminado. Archivos que están ahora en este ordenador: %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Se han eliminado muchos archivos</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>Archivos eliminados de «%2»: %1. Restáurelos si no era su intención.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>Archivos modificados en poco tiempo: %1. Si no lo ha hecho usted, pause la sincronización y compruebe si hay software malicioso en su ordenador.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>La carpeta «%1» se ha movido. Indique a Corvimo Client dónde está ahora.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 ha comentado «%2».</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Problemas de sincronización</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Estos archivos no se han podido sincronizar. Corvimo Client volverá a intentarlo cuando desaparezca la causa.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problemas: %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>No hay problemas.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Retry all</source>
        <translation>Reintentar todo</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Copiar detalles</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Informar de un problema</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>Los detalles se han copiado en el portapapeles.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Código de error: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>Otro programa está usando el archivo. Ciérrelo en ese programa para sincronizarlo.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>El archivo está bloqueado por %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>El archivo se eliminó antes de que se pudiera sincronizar.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>El archivo ha cambiado mientras se subía. Se volverá a subir.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>El archivo se ha dañado durante la transferencia. Se volverá a transferir.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>No se puede leer el archivo. Compruebe los permisos del archivo.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>No se puede escribir en el archivo. Compruebe los permisos del archivo.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>El archivo supera el límite de %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>El archivo es demasiado grande para el sistema de archivos de este disco.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>El archivo está cifrado y no se puede abrir en este ordenador.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>El antivirus de Corvimo Server ha bloqueado el archivo.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>El antivirus de este ordenador ha bloqueado el archivo.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Los archivos de este tipo no están permitidos en Corvimo Server.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Los dispositivos, las tuberías y los sockets no se pueden sincronizar.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Los enlaces simbólicos que apuntan fuera de la carpeta sincronizada no se sincronizan.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>El alias «%1» apunta a un elemento que no se sincroniza.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>El nombre es demasiado largo. Número máximo de caracteres: %1.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>La ruta es demasiado larga. Acorte los nombres de las carpetas que contiene.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>El nombre contiene caracteres no permitidos: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>El nombre «%1» está reservado por el sistema.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>El nombre termina con un espacio o un punto. Renombre el elemento.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>El nombre contiene caracteres que no se pueden leer. Renombre el elemento.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Ya existe un elemento llamado «%1» en esta carpeta.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Introduzca un nombre.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>No se ha encontrado la carpeta «%1».</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>La carpeta no se ha eliminado porque contiene archivos que no se sincronizan.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>No se ha podido crear la carpeta.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>No se ha podido eliminar la carpeta.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>No tiene permiso para modificar esta carpeta.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>No tiene permiso para abrir esta carpeta.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>La carpeta contiene más de %1 elementos. Mueva algunos a subcarpetas.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>La carpeta está anidada a demasiada profundidad.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>El servidor está ocupado. Corvimo Client volverá a intentarlo en unos minutos.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>Corvimo Server ha informado de un error interno. Pida al administrador que consulte el registro del servidor.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>Corvimo Server no acepta cambios en este momento.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>El volumen que contiene esta carpeta no está disponible en Corvimo Server.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>La carpeta compartida se ha quitado de Corvimo Server.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>Se ha desactivado la sincronización de esta carpeta compartida.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>El servidor ha enviado una respuesta que Corvimo Client no entiende.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>Su sesión ha finalizado. Inicie sesión de nuevo.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Se han restablecido los datos de Corvimo Server. Vuelva a configurar sus tareas de sincronización.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>No se ha podido subir «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>No se ha podido subir «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>No se ha podido descargar «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>No se ha podido descargar «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>No se ha podido eliminar «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>No se ha podido renombrar «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>No se ha podido mover «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>No se ha podido restaurar «%1»: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>El disco ha informado de un error de lectura o escritura. Compruebe si el disco tiene fallos.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>El disco se ha extraído mientras se escribían archivos.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>No hay suficiente memoria. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>La base de datos de sincronización está dañada y se reconstruirá. Este proceso puede tardar un rato.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>Otro programa está usando la base de datos de sincronización.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Reconstruyendo la base de datos de sincronización...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>La base de datos de sincronización se ha reconstruido.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>No se han podido leer sus ajustes. Se usarán los valores predeterminados.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>No se han podido guardar sus ajustes.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>Es posible que los cambios de algunas carpetas se detecten tarde porque el sistema vigila demasiadas carpetas.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>El reloj de este ordenador difiere del reloj del servidor en más de %1 minutos. Corrija la hora de este ordenador.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Corvimo Server no admite esta acción.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>La acción se ha cancelado.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>La acción ha tardado demasiado y se ha detenido.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Se ha producido un error desconocido.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>No se ha podido iniciar Corvimo Client. Reinicie este ordenador e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>Corvimo Client ya está en ejecución.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Falta un componente de Corvimo Client. Vuelva a instalar el cliente.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Los iconos de estado no se pueden mostrar porque otros programas ocupan todos los espacios disponibles.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>Corvimo Client necesita su permiso para leer esta carpeta. Concédalo en los ajustes de privacidad de este ordenador.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Si el problema persiste, reinicie Corvimo Client.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Si el problema persiste, consulte al administrador.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Si el problema persiste, póngase en contacto con el servicio de asistencia e indique el código de error.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>¿Desea continuar con los archivos restantes?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Iniciar sesión</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Cerrar sesión</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Iniciar sesión en Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Mostrar contraseña</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>¿Ha olvidado su contraseña?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Mantener la sesión iniciada</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Iniciando sesión...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Sesión iniciada como %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>La sesión está cerrada.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>¿Desea cerrar la sesión? La sincronización se detendrá hasta que vuelva a iniciar sesión.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Iniciar sesión con el navegador</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Continúe en el navegador y después vuelva aquí.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>No se ha podido abrir el navegador. Abra usted mismo esta dirección: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Dominio</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Introduzca su nombre de usuario como dominio\usuario si su cuenta pertenece a un dominio.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Añadir cuenta</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Cambiar de cuenta</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Quitar cuenta</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>¿Desea quitar la cuenta %1 de este ordenador? Sus archivos permanecen en este ordenador y en Corvimo Server.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>Dirección de correo electrónico</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Nombre completo</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Cambiar contraseña</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Contraseña actual</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nueva contraseña</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Repita la nueva contraseña</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>Su contraseña se ha cambiado.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>El administrador exige que cambie su contraseña.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Días hasta que caduque su contraseña: %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>Las dos contraseñas no coinciden.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>La nueva contraseña debe ser distinta de la actual.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Introduzca su nombre de usuario.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Introduzca su contraseña.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>El nombre de usuario o la contraseña son incorrectos.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>El nombre de usuario o la contraseña son incorrectos. Intentos restantes: %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Su cuenta está desactivada. Consulte al administrador.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Su cuenta ha caducado. Consulte al administrador.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>No tiene permiso para usar Corvimo Server. Consulte al administrador.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>Su contraseña ha caducado. Cámbiela en Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>Su carpeta de inicio no está disponible. Pida al administrador que active el servicio de carpetas de inicio.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>La cuenta de invitado no se puede usar para sincronizar.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Todas las licencias de Corvimo Server están en uso.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Nombre de este ordenador</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Dispositivos vinculados</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>¿Desea desvincular «%1»? Se cerrará la sesión en el dispositivo y dejará de sincronizarse.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>%1 ha desvinculado este ordenador. Inicie sesión de nuevo para continuar la sincronización.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este ordenador</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Eliminar también los archivos del dispositivo</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Inicio de sesión en dos pasos</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Introduzca el código que muestra su app de autenticación.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Código de verificación</translation>
    </message>
    <message>
        <source>6 digits</source>
        <translation>6 dígitos</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Verifying...</source>
        <translation>Verificando...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Confiar en este dispositivo</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>No volver a preguntar en este ordenador durante este número de días: %1</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>¿Ha perdido el teléfono?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Enviar un código por correo electrónico</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>Se ha enviado un código a %1. Es válido durante 10 minutos.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>No se ha podido enviar el código. Pida ayuda al administrador.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Usar un código de recuperación</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Introduzca uno de los códigos de recuperación que anotó. Cada código funciona una sola vez.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Códigos de recuperación restantes: %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Usar una llave de seguridad</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Inserte la llave de seguridad y tóquela.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>No se ha reconocido la llave de seguridad. Pruebe con otra.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Apruebe el inicio de sesión en su teléfono</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>Esperando su aprobación...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Elija el número %1 en su teléfono.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>El inicio de sesión se ha rechazado en su teléfono.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>La solicitud ha caducado. Envíela de nuevo.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Enviar de nuevo</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Probar otro método</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Introduzca el código.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>El código es incorrecto. Compruebe que el reloj de su teléfono esté en hora.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Este código ya se ha usado. Espere al siguiente.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>Demasiados códigos incorrectos. Espere %1 min e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>El administrador exige el inicio de sesión en dos pasos. Configúrelo primero en Corvimo Server.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Configurar el inicio de sesión en dos pasos</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Escanee este código con su app de autenticación.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>El inicio de sesión en dos pasos está activado.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Tareas de copia de seguridad</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>Una tarea de copia de seguridad copia carpetas de este ordenador en Corvimo Server y conserva las versiones anteriores.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Crear tarea de copia de seguridad</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Editar tarea de copia de seguridad</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Eliminar tarea de copia de seguridad</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>¿Desea eliminar la tarea de copia de seguridad «%1»?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Eliminar también los archivos de la copia de seguridad en Corvimo Server</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Nombre de la tarea</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Ya existe una tarea con este nombre.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>Qué incluir en la copia de seguridad</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Elija al menos una carpeta para la copia de seguridad.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>La carpeta «%1» ya no existe. Se excluye de la copia de seguridad.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Descargas</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Discos externos</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Dónde guardar la copia de seguridad</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Esta carpeta ya contiene una copia de seguridad de otro ordenador.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Cuándo hacer la copia de seguridad</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Cada vez que cambie un archivo</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>Según una programación</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Solo cuando yo la inicie</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Cada día</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Cada semana</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Cada mes</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>Cada hora</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Hora: %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>En estos días</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>Cuando se conecte un disco externo</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Activar este ordenador para la copia de seguridad</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Hacer copia de seguridad ahora</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Detener copia de seguridad</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>¿Desea detener la copia de seguridad? Los archivos ya copiados se conservan.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Haciendo copia de seguridad...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Haciendo copia de seguridad, archivos: %1 de %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>La copia de seguridad se ha completado.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Última copia de seguridad: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Próxima copia de seguridad: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Sin copia de seguridad todavía</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>La copia de seguridad se ha completado. Archivos que no se han podido leer: %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>La copia de seguridad ha fallado: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>No se realizó la copia de seguridad prevista para el %1. Se inicia ahora.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Días desde la última copia de seguridad de este ordenador: %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Cuánto tiempo conservar las versiones</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Conservar todas las versiones</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Número de versiones que se conservan: %1</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Días que se conservan las versiones: %1</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Conservar menos versiones a medida que envejecen</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Cifrar la copia de seguridad</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Clave de cifrado</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Guarde la clave en un lugar seguro. Sin ella no se puede restaurar la copia de seguridad.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>La clave de cifrado es incorrecta.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Restaurar archivos</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Elija los archivos que desea restaurar y dónde colocarlos.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Restaurar en la ubicación original</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Reemplazar los archivos existentes</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>Restaurando archivos: %1 de %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Se han restaurado todos los archivos.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>Archivos restaurados: %1. Archivos que no se han podido restaurar: %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Verificar copia de seguridad</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>La copia de seguridad está intacta.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Archivos dañados en la copia de seguridad: %1. Se volverán a copiar.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
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
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>Versión %1 (compilación %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Versión del servidor</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Todos los derechos reservados.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrato de licencia</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Declaración de privacidad</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Software de terceros</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Sitio web</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Contactar con asistencia</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Enviar comentarios</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Gracias por usar Corvimo Client.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Nivel de detalle</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>Los registros detallados ralentizan el cliente. Vuelva al nivel normal cuando haya terminado.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Abrir carpeta de registros</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Guardar registro</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>El registro se ha guardado en «%1».</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>No se ha podido guardar el registro.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Borrar registro</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>¿Desea borrar el registro?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Enviar registro a asistencia</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Enviando el registro...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>El registro se ha enviado. El número de su informe es %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>No se ha podido enviar el registro. Guárdelo y envíelo por correo electrónico.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>El registro contiene nombres de archivos y carpetas, pero no su contenido.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Enviar datos de uso anónimos para ayudar a mejorar Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Iniciar Corvimo Client al iniciar sesión en este ordenador</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Mostrar iconos de estado en archivos y carpetas</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Mostrar Corvimo Client en el menú contextual</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Mostrar las carpetas sincronizadas en la barra lateral</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Mostrar el icono en la barra de menús</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>Igual que el sistema</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>El idioma cambia al reiniciar Corvimo Client.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspecto</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tamaño del texto</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>No entrar en reposo mientras se sincronizan archivos</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Mover a la papelera los archivos eliminados en Corvimo Server</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Avisarme antes de eliminar muchos archivos</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>¿Desea restablecer todos los ajustes? Sus tareas de sincronización no cambian.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>El administrador gestiona este ajuste.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Sus ajustes se han guardado.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>¿Desea descartar sus cambios?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Archivos bajo demanda</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Todos los archivos aparecen en este ordenador, pero un archivo solo se descarga cuando usted lo abre.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>Activar «Archivos bajo demanda»</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>¿Desea activar «Archivos bajo demanda» para «%1»? Los archivos que ya están en este ordenador permanecen aquí.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>«Archivos bajo demanda» está activado.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>Desactivar «Archivos bajo demanda»</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>¿Desea desactivar «Archivos bajo demanda»? Se descargarán todos los archivos de esta carpeta (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>No hay suficiente espacio para descargar todos los archivos. Se necesitan %1 más.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Solo en línea</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Siempre en este ordenador</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Parcialmente en este ordenador</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>Archivos que estarán disponibles solo en línea: %1. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>Se han liberado %1 de espacio en disco.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Los archivos que aún no se han subido permanecen en este ordenador.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>«%1» está abierto y permanece en este ordenador.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Liberar espacio automáticamente</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Conservar solo en línea los archivos no abiertos en este número de días: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Solo cuando quede poco espacio en disco</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 está descargando «%2».</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Bloquear las descargas que inicie este programa</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Un programa está abriendo muchos archivos que solo están en línea. ¿Desea permitirlo?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>«%1» no se puede abrir porque solo está en línea y Corvimo Client no está conectado.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Inicie Corvimo Client para abrir archivos que solo están en línea.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>«Archivos bajo demanda» no es compatible con esta versión del sistema.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>«Archivos bajo demanda» no es compatible con este disco.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Permita la extensión de proveedor de archivos en los ajustes del sistema para usar «Archivos bajo demanda».</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Mostrar vistas previas de los archivos que solo están en línea</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>No se puede buscar en este ordenador en el contenido de los archivos que solo están en línea.</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Permitir</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloquear</translation>
    </message>
    <message>
        <source>Welcome to Corvimo Client</source>
        <translation>Le damos la bienvenida a Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Configure Corvimo Client en unos pocos pasos para tener sus archivos en todos sus ordenadores.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Empezar</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Paso %1 de %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Conéctese a su servidor</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Introduzca la dirección de Corvimo Server e inicie sesión con su cuenta.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>¿Qué desea hacer?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Sincronizar archivos</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Mantener los archivos iguales en este ordenador y en Corvimo Server.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Hacer copia de seguridad de este ordenador</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Copiar sus archivos en Corvimo Server para protegerlos contra pérdidas.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Sus archivos se sincronizarán en «%1».</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Carpetas de equipo</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Elija las carpetas de equipo que desea tener en este ordenador.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>No es miembro de ninguna carpeta de equipo.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Opciones de sincronización</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Sincronizar todos los archivos</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>Corvimo Client necesita su permiso para mostrar notificaciones y leer sus carpetas.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Compruebe sus opciones antes de empezar.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>Archivos que se descargarán: %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Todo está listo</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>Corvimo Client está sincronizando sus archivos. Lo encontrará en la barra de menús.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Hacer un recorrido</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Haga clic en el icono de la barra de menús para ver qué está ocurriendo.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Haga clic con el botón derecho en un archivo para compartirlo o ver sus versiones.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Los iconos de sus archivos indican si están sincronizados.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>¿Desea abandonar la configuración? Puede continuar más tarde.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Se han encontrado ajustes de una instalación anterior. ¿Desea usarlos?</translation>
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
        <translation>%1 por ciento</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 archivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 archivos</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 carpeta</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 carpetas</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Elementos: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>Archivos: %1, carpetas: %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Ahora mismo</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoy</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>Hoy, %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ayer</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>Ayer, %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Mañana</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>Hace un minuto</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Hace %1 minutos</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>Hace una hora</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Hace %1 horas</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Hace %1 días</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>La semana pasada</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>El mes pasado</translation>
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
        <translation>Tiempo restante: %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>Tiempo restante: %1 min</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>Tiempo restante: %1 h</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Lunes</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Martes</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Miércoles</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Jueves</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Viernes</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Sábado</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Domingo</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Más información</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>No volver a mostrar este mensaje</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Espere...</translation>
    </message>
</context>
</TS>
