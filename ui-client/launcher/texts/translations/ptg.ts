<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desassociar</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Ficheiro adicionado: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Alterar pasta</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unir</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Adicionado</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Nome alterado</translation>
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
        <translation>Ficheiro alterado: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Ficheiro eliminado: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Nome do ficheiro alterado: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Pasta adicionada: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Pasta eliminada: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Ficheiros alterados recentemente</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Ainda não foi alterado nenhum ficheiro.</translation>
    </message>
    <message>
        <source>Show all changes</source>
        <translation>Mostrar todas as alterações</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Open Corvimo Client</source>
        <translation>Abrir o Corvimo Client</translation>
    </message>
    <message>
        <source>Open in web browser</source>
        <translation>Abrir no navegador web</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausar sincronização</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Pausar durante uma hora</translation>
    </message>
    <message>
        <source>Pause until tomorrow</source>
        <translation>Pausar até amanhã</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Retomar sincronização</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notificações</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>About Corvimo Client</source>
        <translation>Acerca do Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Os ficheiros deixarão de ser sincronizados até iniciar novamente o Corvimo Client. Pretende sair?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>A sincronizar...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>A sincronizar, ficheiros restantes: %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>A enviar %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>A descarregar %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>A procurar alterações...</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Paused until %1</source>
        <translation>Em pausa até %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Não ligado</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>A ligar...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>É necessária a sua atenção</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Não foi possível sincronizar alguns ficheiros.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Não foi configurada nenhuma tarefa de sincronização.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>%1 de envio, %2 de descarga</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open with...</source>
        <translation>Abrir com...</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Version history</source>
        <translation>Histórico de versões</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Obter link</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Copiar link</translation>
    </message>
    <message>
        <source>Share...</source>
        <translation>Partilhar...</translation>
    </message>
    <message>
        <source>Send link by email</source>
        <translation>Enviar link por e-mail</translation>
    </message>
    <message>
        <source>Sync now</source>
        <translation>Sincronizar agora</translation>
    </message>
    <message>
        <source>Sync this folder</source>
        <translation>Sincronizar esta pasta</translation>
    </message>
    <message>
        <source>Stop syncing this folder</source>
        <translation>Parar de sincronizar esta pasta</translation>
    </message>
    <message>
        <source>Always keep on this computer</source>
        <translation>Manter sempre neste computador</translation>
    </message>
    <message>
        <source>Free up space</source>
        <translation>Libertar espaço</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Bloquear ficheiro</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Desbloquear ficheiro</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Mudar o nome</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Copy path</source>
        <translation>Copiar caminho</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nova pasta</translation>
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
        <translation>Colar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Do not sync files with this name</source>
        <translation>Não sincronizar ficheiros com este nome</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Não sincronizar ficheiros deste tipo</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Bloqueado por %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>“%1” está bloqueado. Outras pessoas podem ler o ficheiro, mas não o podem alterar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unlocked.</source>
        <translation>“%1” foi desbloqueado.</translation>
    </message>
    <message>
        <source>The link was copied to the clipboard.</source>
        <translation>O link foi copiado para a área de transferência.</translation>
    </message>
    <message>
        <source>The path was copied to the clipboard.</source>
        <translation>O caminho foi copiado para a área de transferência.</translation>
    </message>
    <message>
        <source>%1 items selected</source>
        <translation>Itens selecionados: %1</translation>
    </message>
    <message>
        <source>This item is not in a synced folder.</source>
        <translation>Este item não está numa pasta sincronizada.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tarefas de sincronização</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Visão geral</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Sincronização</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Cópia de segurança</translation>
    </message>
    <message>
        <source>Recent activity</source>
        <translation>Atividade recente</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Criar</translation>
    </message>
    <message>
        <source>Create sync task</source>
        <translation>Criar tarefa de sincronização</translation>
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
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Pause all</source>
        <translation>Pausar tudo</translation>
    </message>
    <message>
        <source>Resume all</source>
        <translation>Retomar tudo</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>Nada corresponde a “%1”.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Ainda não existe nenhuma tarefa de sincronização. Crie uma para manter iguais uma pasta neste computador e uma pasta no Corvimo Server.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Folder on this computer</source>
        <translation>Pasta neste computador</translation>
    </message>
    <message>
        <source>Folder on Corvimo Server</source>
        <translation>Pasta no Corvimo Server</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Date modified</source>
        <translation>Data de modificação</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Owner</source>
        <translation>Proprietário</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Conta</translation>
    </message>
    <message>
        <source>Last synced</source>
        <translation>Última sincronização</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parado</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Pasta não encontrada</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Só de leitura</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Eliminar tarefa de sincronização</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Pretende eliminar a tarefa de sincronização “%1”? Os seus ficheiros permanecem neste computador e no Corvimo Server.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Pretende eliminar as tarefas de sincronização selecionadas (%1)? Os seus ficheiros permanecem neste computador e no Corvimo Server.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>A tarefa de sincronização foi eliminada.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>A sincronização está em pausa. As alterações serão sincronizadas quando a retomar.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Limpar lista</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Toda a atividade</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Apenas erros</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 foi enviado.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 foi descarregado.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 foi eliminado deste computador.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 foi eliminado do Corvimo Server.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>O nome de %1 foi mudado para %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 foi movido para %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>Ficheiros alterados por %2: %1.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Escolher pastas a sincronizar</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Escolha uma pasta no Corvimo Server e uma pasta neste computador. O Corvimo Client mantém ambas iguais.</translation>
    </message>
    <message>
        <source>Choose server folder</source>
        <translation>Escolher pasta do servidor</translation>
    </message>
    <message>
        <source>Choose local folder</source>
        <translation>Escolher pasta local</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Alterar</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Nome da nova pasta</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be created. Choose another name or check your permissions.</source>
        <translation>Não foi possível criar a pasta “%1”. Escolha outro nome ou verifique as suas permissões.</translation>
    </message>
    <message>
        <source>Create an empty folder named &quot;%1&quot; here</source>
        <translation>Criar aqui uma pasta vazia chamada “%1”</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direção da sincronização</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronização bidirecional</translation>
    </message>
    <message>
        <source>Upload changes only</source>
        <translation>Apenas enviar alterações</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Apenas descarregar alterações</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>As alterações de um lado são copiadas para o outro.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>As alterações neste computador são enviadas. As alterações no Corvimo Server não são descarregadas.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>As alterações no Corvimo Server são descarregadas. As alterações neste computador não são enviadas.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Manter os ficheiros neste computador quando forem eliminados no Corvimo Server</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Manter os ficheiros no Corvimo Server quando forem eliminados neste computador</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Unir pastas</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>Ambas as pastas já contêm ficheiros. Escolha o que fazer com eles.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>A pasta “%1” já existe. Pretende uni-la com a pasta no Corvimo Server?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Unir ambas as pastas e manter todos os ficheiros</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Utilizar os ficheiros deste computador</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Utilizar os ficheiros do Corvimo Server</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Os ficheiros diferentes são mantidos em duas cópias.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Os ficheiros do Corvimo Server que não estão neste computador serão eliminados.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Os ficheiros deste computador que não estão no Corvimo Server serão movidos para o lixo.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Os ficheiros com o mesmo nome serão substituídos. Esta ação não pode ser desfeita.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>A comparar ambas as pastas...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>Ficheiros comparados: %1 de %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>Ambas as pastas estão agora iguais.</translation>
    </message>
    <message>
        <source>This folder is already part of a sync task. Choose another folder.</source>
        <translation>Esta pasta já faz parte de uma tarefa de sincronização. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>This folder is inside a folder that is already synced. Choose another folder.</source>
        <translation>Esta pasta está dentro de uma pasta que já é sincronizada. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>This folder contains a folder that is already synced. Choose another folder.</source>
        <translation>Esta pasta contém uma pasta que já é sincronizada. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>System folders cannot be synced. Choose another folder.</source>
        <translation>Não é possível sincronizar pastas do sistema. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>Não é possível sincronizar um disco inteiro. Escolha uma pasta nele.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Não é possível sincronizar pastas em discos amovíveis.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Não é possível sincronizar pastas de rede como \\server\share. Escolha uma pasta neste computador.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>Não tem permissão para escrever nesta pasta. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Esta pasta está cifrada e bloqueada. Desbloqueie-a primeiro no Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>A pasta não foi encontrada. Pode ter sido movida ou eliminada.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>O sistema de ficheiros deste disco não é suportado. Utilize um disco com um sistema de ficheiros suportado.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Atingiu o limite de %1 tarefas de sincronização. Elimine uma tarefa de que já não precise.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Escolha o que sincronizar com este computador. As pastas que desmarcar serão removidas deste computador, mas permanecerão no Corvimo Server.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro de ficheiros</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Desmarcar tudo</translation>
    </message>
    <message>
        <source>Sync new folders automatically</source>
        <translation>Sincronizar novas pastas automaticamente</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>A carregar...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>Não foi possível carregar a lista de pastas. Verifique a sua ligação e tente novamente.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Pastas que serão removidas deste computador: %1. Permanecem no Corvimo Server.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Remover as pastas deste computador?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Alguns ficheiros nestas pastas ainda não foram enviados e seriam perdidos. Sincronize-os primeiro.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Selecionado: %1 de %2</translation>
    </message>
    <message>
        <source>Do not sync files larger than</source>
        <translation>Não sincronizar ficheiros maiores do que</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Não sincronizar ficheiros com estas extensões</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Não sincronizar ficheiros com estes nomes</translation>
    </message>
    <message>
        <source>Add extension</source>
        <translation>Adicionar extensão</translation>
    </message>
    <message>
        <source>Add name</source>
        <translation>Adicionar nome</translation>
    </message>
    <message>
        <source>Sync files and folders whose names begin with a dot</source>
        <translation>Sincronizar ficheiros e pastas cujos nomes começam por um ponto</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Os ficheiros temporários de programas comuns nunca são sincronizados.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Restaurar predefinições</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Pretende voltar ao filtro predefinido?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Introduza uma extensão, por exemplo, “iso”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is already in the list.</source>
        <translation>“%1” já está na lista.</translation>
    </message>
    <message>
        <source>A name must not contain any of these characters: \ / : * ? &lt; &gt; |</source>
        <translation>Um nome não pode conter nenhum destes caracteres: \ / : * ? &lt; &gt; |</translation>
    </message>
    <message>
        <source>Enter a size between %1 and %2.</source>
        <translation>Introduza um tamanho entre %1 e %2.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Excluído pelo filtro</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>A sua escolha foi guardada. O Corvimo Client está agora a aplicá-la.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Ficheiros de documentos</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Ficheiros de imagem</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Ficheiros de vídeo</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Ficheiros de música</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Ficheiros comprimidos</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Outros ficheiros</translation>
    </message>
    <message>
        <source>Versions of &quot;%1&quot;</source>
        <translation>Versões de “%1”</translation>
    </message>
    <message>
        <source>Current version</source>
        <translation>Versão atual</translation>
    </message>
    <message>
        <source>Previous version</source>
        <translation>Versão anterior</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>Alterado por</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descarregar</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pré-visualizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>This file has no previous versions.</source>
        <translation>Este ficheiro não tem versões anteriores.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Escolha um ficheiro para ver as respetivas versões.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Restaurar versão</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Pretende substituir a versão atual pela de %1?</translation>
    </message>
    <message>
        <source>The current version is kept in the history.</source>
        <translation>A versão atual é mantida no histórico.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was restored to the version from %2.</source>
        <translation>“%1” foi restaurado para a versão de %2.</translation>
    </message>
    <message>
        <source>The version could not be restored. Try again later.</source>
        <translation>Não foi possível restaurar a versão. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Restore as a copy</source>
        <translation>Restaurar como cópia</translation>
    </message>
    <message>
        <source>Save version as</source>
        <translation>Guardar versão como</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>A versão foi guardada em “%1”.</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Pretende eliminar esta versão? Não será possível recuperá-la.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>Não foi possível eliminar a versão.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Protegida contra eliminação automática</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Número máximo de versões de um ficheiro que o Corvimo Server mantém: %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>O histórico de versões está desativado para esta pasta. Peça ao administrador para o ativar.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Não são mantidas versões deste tipo de ficheiro.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Ficheiros eliminados</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Mostrar ficheiros eliminados</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Eliminado em %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Pretende restaurar os itens selecionados (%1)?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Itens restaurados: %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Não foram encontrados ficheiros eliminados.</translation>
    </message>
    <message>
        <source>Go back to a point in time</source>
        <translation>Voltar a um momento anterior</translation>
    </message>
    <message>
        <source>Choose a date and time</source>
        <translation>Escolha uma data e uma hora</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Partilhar</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>Partilhar “%1”</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Pessoas</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>Invite people or create a link to this item.</source>
        <translation>Convide pessoas ou crie um link para este item.</translation>
    </message>
    <message>
        <source>Invite people</source>
        <translation>Convidar pessoas</translation>
    </message>
    <message>
        <source>Enter a name or an email address</source>
        <translation>Introduza um nome ou um endereço de e-mail</translation>
    </message>
    <message>
        <source>Send invitation</source>
        <translation>Enviar convite</translation>
    </message>
    <message>
        <source>The invitation was sent to %1.</source>
        <translation>O convite foi enviado para %1.</translation>
    </message>
    <message>
        <source>The invitation could not be sent. Check the email address.</source>
        <translation>Não foi possível enviar o convite. Verifique o endereço de e-mail.</translation>
    </message>
    <message>
        <source>Message (optional)</source>
        <translation>Mensagem (opcional)</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Permissions</source>
        <translation>Permissões</translation>
    </message>
    <message>
        <source>Can view</source>
        <translation>Pode ver</translation>
    </message>
    <message>
        <source>Can edit</source>
        <translation>Pode editar</translation>
    </message>
    <message>
        <source>Can manage</source>
        <translation>Pode gerir</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Pode apenas enviar</translation>
    </message>
    <message>
        <source>No access</source>
        <translation>Sem acesso</translation>
    </message>
    <message>
        <source>The permissions of %1 were changed.</source>
        <translation>As permissões de %1 foram alteradas.</translation>
    </message>
    <message>
        <source>You do not have permission to share this item. Ask its owner.</source>
        <translation>Não tem permissão para partilhar este item. Contacte o proprietário.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Partilhado comigo</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Partilhado por mim</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Pessoas com acesso: %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Este item não está partilhado.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Sair da pasta partilhada</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Pretende sair da pasta partilhada “%1”? A pasta será removida deste computador.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>“%1” já não está partilhado consigo.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 partilhou “%2” consigo.</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Everyone on this server</source>
        <translation>Todos neste servidor</translation>
    </message>
    <message>
        <source>Link settings</source>
        <translation>Definições do link</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Criar link</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>A criar link...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Eliminar link</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Pretende eliminar este link? As pessoas que o têm deixarão de poder abrir o item.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Qualquer pessoa com o link</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Apenas pessoas com uma conta</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Proteger com uma palavra-passe</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>A palavra-passe tem de ter, pelo menos, %1 caracteres.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Introduza uma palavra-passe para o link.</translation>
    </message>
    <message>
        <source>Link valid until</source>
        <translation>Link válido até</translation>
    </message>
    <message>
        <source>Never expires</source>
        <translation>Nunca expira</translation>
    </message>
    <message>
        <source>Choose a date in the future.</source>
        <translation>Escolha uma data no futuro.</translation>
    </message>
    <message>
        <source>This link has expired.</source>
        <translation>Este link expirou.</translation>
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
        <translation>Permitir descargas</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Permitir envios</translation>
    </message>
    <message>
        <source>The link could not be created. Try again later.</source>
        <translation>Não foi possível criar o link. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The administrator has turned off links for this folder.</source>
        <translation>O administrador desativou os links para esta pasta.</translation>
    </message>
    <message>
        <source>File request</source>
        <translation>Pedido de ficheiros</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>As pessoas com o link podem enviar ficheiros para esta pasta sem ver o seu conteúdo.</translation>
    </message>
    <message>
        <source>Show QR code</source>
        <translation>Mostrar código QR</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Conflitos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed in two places at the same time.</source>
        <translation>“%1” foi alterado em dois locais ao mesmo tempo.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>%1 ficheiros foram alterados em dois locais ao mesmo tempo.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Escolha a versão a manter. A outra é guardada como cópia em conflito.</translation>
    </message>
    <message>
        <source>Keep the version on this computer</source>
        <translation>Manter a versão deste computador</translation>
    </message>
    <message>
        <source>Keep the version on Corvimo Server</source>
        <translation>Manter a versão do Corvimo Server</translation>
    </message>
    <message>
        <source>Keep both versions</source>
        <translation>Manter ambas as versões</translation>
    </message>
    <message>
        <source>Keep the newer version</source>
        <translation>Manter a versão mais recente</translation>
    </message>
    <message>
        <source>Ask me every time</source>
        <translation>Perguntar sempre</translation>
    </message>
    <message>
        <source>Do this for all conflicts</source>
        <translation>Fazer isto para todos os conflitos</translation>
    </message>
    <message>
        <source>conflicted copy of %1, %2</source>
        <translation>cópia em conflito de %1, %2</translation>
    </message>
    <message>
        <source>On this computer</source>
        <translation>Neste computador</translation>
    </message>
    <message>
        <source>On Corvimo Server</source>
        <translation>No Corvimo Server</translation>
    </message>
    <message>
        <source>Changed by %1 on %2</source>
        <translation>Alterado por %1 em %2</translation>
    </message>
    <message>
        <source>When a file was changed in two places</source>
        <translation>Quando um ficheiro foi alterado em dois locais</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Nomes que diferem apenas em maiúsculas e minúsculas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>“%1” e “%2” diferem apenas em maiúsculas e minúsculas. Mude o nome de um deles.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Não existem conflitos.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>O conflito foi resolvido.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Não foi possível resolver o conflito porque o ficheiro está aberto. Feche-o e tente novamente.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Resolver</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Decidir mais tarde</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Abrir ambos os ficheiros</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Saltar</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Eliminou “%1”, mas o ficheiro foi alterado no Corvimo Server. O ficheiro alterado foi mantido.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>“%1” foi eliminado no Corvimo Server, mas alterou-o neste computador. O seu ficheiro foi mantido.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>“%1” é um ficheiro num lado e uma pasta no outro. Mude o nome de um deles.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Cópias em conflito</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Eliminar cópias em conflito</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Pretende eliminar as cópias em conflito (%1)? Não será possível recuperá-las.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>“%1” está aberto noutro programa e será sincronizado quando for fechado.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Ligação</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Endereço do servidor</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Nome do anfitrião, endereço IP ou Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Cifrar a ligação</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Sem cifragem, outras pessoas na rede podem ler os seus ficheiros e a sua palavra-passe.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Ligar</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desligar</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Voltar a ligar</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Testar ligação</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A testar a ligação...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>A ligação funciona.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>A ligação não funciona. Verifique o endereço e a porta.</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Ligado a %1</translation>
    </message>
    <message>
        <source>The connection to %1 was lost. Corvimo Client will try again in %2 seconds.</source>
        <translation>A ligação a %1 foi perdida. O Corvimo Client tentará novamente dentro de %2 segundos.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>A ligação a %1 foi restabelecida.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>A aguardar uma ligação de rede</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Não sincronizar em redes com tráfego limitado</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>A sincronização está em pausa porque esta rede tem tráfego limitado.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Ligado através da rede local</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Ligado através da internet</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Ligado através de um servidor de retransmissão</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>O servidor de retransmissão é mais lento do que uma ligação direta.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Encontrar servidores nesta rede</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>A procurar servidores...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>Não foi encontrado nenhum servidor nesta rede. Introduza o endereço do servidor manualmente.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Servidores encontrados: %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>O servidor “%1” não foi encontrado. Verifique se o endereço está bem escrito.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>O servidor recusou a ligação. Certifique-se de que o Corvimo Server está em execução.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>O servidor não respondeu a tempo. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Este computador não está ligado a uma rede.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Introduza uma porta entre 1 e 65535.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Introduza o endereço do servidor.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>O Corvimo ID “%1” não existe.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>O servidor com este Corvimo ID está offline. Certifique-se de que está ligado.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>O Corvimo Server não está instalado ou não está em execução neste servidor.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>O servidor está em manutenção. A sincronização continuará quando o servidor voltar a estar disponível.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>O Corvimo Server é demasiado antigo para este cliente. Peça ao administrador para o atualizar para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Este cliente é demasiado antigo para o Corvimo Server. Atualize-o para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>Há demasiados clientes ligados ao servidor. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Este computador foi bloqueado após demasiadas tentativas falhadas. Peça ao administrador para o desbloquear.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>Uma firewall pode estar a bloquear o Corvimo Client. Permita que o Corvimo Client utilize a porta %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>Não foi possível estabelecer uma ligação segura: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Ocorreu um erro desconhecido (código %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar ligação</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Remover ligação</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Pretende remover a ligação a %1? As respetivas tarefas de sincronização são eliminadas, mas os seus ficheiros permanecem.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>Ficheiros ainda não enviados: %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avançadas</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Última ligação em %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Utilize um servidor proxy se a sua rede precisar de um para aceder à internet.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Não utilizar proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Utilizar as definições de proxy deste computador</translation>
    </message>
    <message>
        <source>Set up the proxy yourself</source>
        <translation>Configurar o proxy manualmente</translation>
    </message>
    <message>
        <source>Proxy type</source>
        <translation>Tipo de proxy</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Endereço do proxy</translation>
    </message>
    <message>
        <source>The proxy needs a user name and password</source>
        <translation>O proxy requer um nome de utilizador e uma palavra-passe</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Não utilizar o proxy para endereços locais</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Não utilizar o proxy para estes endereços</translation>
    </message>
    <message>
        <source>Test proxy</source>
        <translation>Testar proxy</translation>
    </message>
    <message>
        <source>The proxy works.</source>
        <translation>O proxy funciona.</translation>
    </message>
    <message>
        <source>Sign in to the proxy</source>
        <translation>Iniciar sessão no proxy</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>O proxy %1 pede um nome de utilizador e uma palavra-passe.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>O proxy não aceitou o nome de utilizador ou a palavra-passe.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>Não é possível contactar o proxy %1. Verifique o endereço e a porta.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>O proxy não permite ligações a %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Não foi possível ler as definições de proxy deste computador.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Introduza o endereço do proxy.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>O certificado não é fiável</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>O certificado de %1 não foi emitido por uma autoridade conhecida. Alguém pode estar a fazer-se passar pelo seu servidor.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>O servidor utiliza um certificado assinado por si próprio.</translation>
    </message>
    <message>
        <source>The certificate expired on %1.</source>
        <translation>O certificado expirou em %1.</translation>
    </message>
    <message>
        <source>The certificate is not valid before %1. Check the clock of this computer.</source>
        <translation>O certificado não é válido antes de %1. Verifique o relógio deste computador.</translation>
    </message>
    <message>
        <source>The certificate was issued for %1, not for %2.</source>
        <translation>O certificado foi emitido para %1, não para %2.</translation>
    </message>
    <message>
        <source>The certificate was revoked by the authority that issued it.</source>
        <translation>O certificado foi revogado pela autoridade que o emitiu.</translation>
    </message>
    <message>
        <source>The certificate has changed</source>
        <translation>O certificado foi alterado</translation>
    </message>
    <message>
        <source>The certificate of %1 is not the one that was used before. Ask the administrator whether it was renewed.</source>
        <translation>O certificado de %1 não é o que foi utilizado anteriormente. Pergunte ao administrador se foi renovado.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>O certificado utiliza um algoritmo que já não é considerado seguro.</translation>
    </message>
    <message>
        <source>Trust this certificate</source>
        <translation>Confiar neste certificado</translation>
    </message>
    <message>
        <source>Always trust this certificate</source>
        <translation>Confiar sempre neste certificado</translation>
    </message>
    <message>
        <source>Trust this time only</source>
        <translation>Confiar apenas desta vez</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Não ligar</translation>
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
        <translation>Válido a partir de</translation>
    </message>
    <message>
        <source>Valid until</source>
        <translation>Válido até</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Número de série</translation>
    </message>
    <message>
        <source>Fingerprint</source>
        <translation>Impressão digital</translation>
    </message>
    <message>
        <source>Signature algorithm</source>
        <translation>Algoritmo de assinatura</translation>
    </message>
    <message>
        <source>Key length</source>
        <translation>Comprimento da chave</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Exportar certificado</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>O certificado foi guardado em “%1”.</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Importar certificado</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>O ficheiro não contém um certificado válido.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Pretende remover o certificado de %1 dos certificados fiáveis?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Armazenamento</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 de %2 utilizados</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 livres</translation>
    </message>
    <message>
        <source>Unlimited</source>
        <translation>Ilimitado</translation>
    </message>
    <message>
        <source>Storage on Corvimo Server</source>
        <translation>Armazenamento no Corvimo Server</translation>
    </message>
    <message>
        <source>Storage on this computer</source>
        <translation>Armazenamento neste computador</translation>
    </message>
    <message>
        <source>Storage by type of file</source>
        <translation>Armazenamento por tipo de ficheiro</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Armazenamento por pasta</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Armazenamento utilizado por versões anteriores</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Armazenamento utilizado por ficheiros eliminados</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Esvaziar o lixo</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Pretende esvaziar o lixo? Não será possível recuperar os ficheiros que contém.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>O lixo foi esvaziado. Espaço libertado: %1.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>A calcular...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>O seu armazenamento está quase cheio. Espaço restante: apenas %1.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>O seu armazenamento está cheio</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Não será possível enviar novos ficheiros até eliminar alguns ficheiros ou pedir mais armazenamento ao administrador.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>A pasta “%1” atingiu a sua quota. Não é possível enviar novos ficheiros para ela.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>O volume do Corvimo Server está cheio. Peça ao administrador para libertar espaço.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>“%1” é maior do que o armazenamento restante (%2).</translation>
    </message>
    <message>
        <source>Disk space is low</source>
        <translation>Pouco espaço em disco</translation>
    </message>
    <message>
        <source>Only %1 is left on the disk &quot;%2&quot;. Syncing stops when the disk is full.</source>
        <translation>Espaço livre no disco “%2”: apenas %1. A sincronização será interrompida quando o disco ficar cheio.</translation>
    </message>
    <message>
        <source>Not enough disk space</source>
        <translation>Espaço em disco insuficiente</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>Não há espaço suficiente no disco “%1”. A sincronização ficará em pausa até libertar, pelo menos, %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>“%1” não foi descarregado porque precisa de %2 de espaço em disco.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Pode libertar espaço com a sincronização seletiva ou mantendo ficheiros apenas online.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Abrir definições de armazenamento</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Manter, pelo menos, este espaço livre em disco</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>As descargas são pausadas quando resta menos espaço.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>O disco com a pasta “%1” não está ligado. Ligue-o para continuar a sincronização.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>O disco “%1” é só de leitura. Não é possível guardar nele as alterações do Corvimo Server.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Não há espaço suficiente para ficheiros temporários. Liberte, pelo menos, %1.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Ficheiros temporários</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Eliminar ficheiros temporários</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Os ficheiros temporários foram eliminados (%1).</translation>
    </message>
    <message>
        <source>Check again</source>
        <translation>Verificar novamente</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilizado</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Maiores ficheiros</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Elimine ou mova os ficheiros de que já não precisa.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>O armazenamento que utiliza aumentou %1 este mês.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>A este ritmo, o seu armazenamento estará cheio em %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Pedir mais armazenamento</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>O seu pedido foi enviado ao administrador.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>O seu pedido aguarda uma resposta.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>A quota do grupo “%1” está esgotada.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>%1 pronta.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Atualização de software</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Procurar atualizações</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>A procurar atualizações...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>Tem a versão mais recente.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>A versão %1 do Corvimo Client está disponível.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Descarregar e instalar</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Lembrar mais tarde</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Saltar esta versão</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>A descarregar...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>A atualização está pronta. Reinicie o Corvimo Client para a instalar.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Reiniciar agora</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>Não foi possível instalar a atualização. A sua versão atual continua a funcionar.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>O Corvimo Client não conseguiu procurar atualizações.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas de lançamento</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Instalar atualizações automaticamente</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>%1 a iniciar...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>As suas definições estão a ser transferidas da versão anterior.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>As suas definições foram transferidas. Pode continuar a partir do ponto em que ficou.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>Não foi possível transferir algumas definições da versão anterior. Verifique as suas tarefas de sincronização.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>A atualização precisa de %1 de espaço em disco.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Esta versão já não é suportada. Instale a atualização para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Bandwidth</source>
        <translation>Largura de banda</translation>
    </message>
    <message>
        <source>Upload speed</source>
        <translation>Velocidade de envio</translation>
    </message>
    <message>
        <source>Download speed</source>
        <translation>Velocidade de descarga</translation>
    </message>
    <message>
        <source>Limit to</source>
        <translation>Limitar a</translation>
    </message>
    <message>
        <source>Adjust automatically</source>
        <translation>Ajustar automaticamente</translation>
    </message>
    <message>
        <source>Corvimo Client leaves room for other programs that use the network.</source>
        <translation>O Corvimo Client deixa margem para outros programas que utilizam a rede.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Horário</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Escolha as horas em que o limite se aplica.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>Todo o dia</translation>
    </message>
    <message>
        <source>Working hours</source>
        <translation>Horário de trabalho</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>À noite</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Do not sync</source>
        <translation>Não sincronizar</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Velocidade máxima</translation>
    </message>
    <message>
        <source>Limited speed</source>
        <translation>Velocidade limitada</translation>
    </message>
    <message>
        <source>Clear schedule</source>
        <translation>Limpar horário</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Introduza uma velocidade superior a 0.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Introduza uma velocidade entre %1 e %2.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>O início tem de ser anterior ao fim.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>O administrador limitou a velocidade a %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Ficheiros transferidos em simultâneo</translation>
    </message>
    <message>
        <source>Do not limit the speed on the local network</source>
        <translation>Não limitar a velocidade na rede local</translation>
    </message>
    <message>
        <source>Current speed</source>
        <translation>Velocidade atual</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>Velocidade média</translation>
    </message>
    <message>
        <source>Transferred today</source>
        <translation>Transferido hoje</translation>
    </message>
    <message>
        <source>Transferred this month</source>
        <translation>Transferido este mês</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Escolha sobre o que pretende ser avisado pelo Corvimo Client.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Quando a sincronização estiver concluída</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Quando não for possível sincronizar um ficheiro</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Quando alguém partilhar um item comigo</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Quando alguém comentar os meus ficheiros</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Quando o armazenamento estiver quase cheio</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Quando uma cópia de segurança for concluída ou falhar</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Quando estiver disponível uma atualização</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Quando a ligação for perdida</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Reproduzir um som</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Não incomodar</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Horas de silêncio</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Sem notificações até %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Não me incomodar durante apresentações</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Mostrar nomes de ficheiros nas notificações</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>As notificações estão desativadas nas definições do sistema deste computador.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Abrir definições do sistema</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Dispensar</translation>
    </message>
    <message>
        <source>Dismiss all</source>
        <translation>Dispensar tudo</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Marcar como lida</translation>
    </message>
    <message>
        <source>Notification center</source>
        <translation>Central de notificações</translation>
    </message>
    <message>
        <source>You have no notifications.</source>
        <translation>Não tem notificações.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Novas notificações: %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos os ficheiros estão atualizados.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>A primeira sincronização está concluída. Ficheiros que estão agora neste computador: %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Foram eliminados muitos ficheiros</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>%1 ficheiros foram eliminados de “%2”. Restaure-os se não era essa a intenção.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>%1 ficheiros foram alterados em pouco tempo. Se não fez estas alterações, pause a sincronização e verifique se existe software malicioso no computador.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>A pasta “%1” foi movida. Indique ao Corvimo Client onde se encontra agora.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 comentou “%2”.</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Problemas de sincronização</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Não foi possível sincronizar estes ficheiros. O Corvimo Client tentará novamente quando a causa tiver desaparecido.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problemas: %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Não existem problemas.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
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
        <translation>Tentar tudo novamente</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>Copy details</source>
        <translation>Copiar detalhes</translation>
    </message>
    <message>
        <source>Report a problem</source>
        <translation>Comunicar um problema</translation>
    </message>
    <message>
        <source>The details were copied to the clipboard.</source>
        <translation>Os detalhes foram copiados para a área de transferência.</translation>
    </message>
    <message>
        <source>Error code: %1</source>
        <translation>Código do erro: %1</translation>
    </message>
    <message>
        <source>The file is being used by another program. Close it there to sync the file.</source>
        <translation>O ficheiro está a ser utilizado por outro programa. Feche-o nesse programa para sincronizar o ficheiro.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>O ficheiro está bloqueado por %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>O ficheiro foi eliminado antes de poder ser sincronizado.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>O ficheiro foi alterado durante o envio. Será enviado novamente.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>O ficheiro foi danificado durante a transferência. Será transferido novamente.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Não é possível ler o ficheiro. Verifique as respetivas permissões.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>Não é possível escrever no ficheiro. Verifique as respetivas permissões.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>O ficheiro é maior do que o limite de %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>O ficheiro é demasiado grande para o sistema de ficheiros deste disco.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>O ficheiro está cifrado e não pode ser aberto neste computador.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>O antivírus do Corvimo Server bloqueou o ficheiro.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>O antivírus deste computador bloqueou o ficheiro.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Os ficheiros deste tipo não são permitidos no Corvimo Server.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Não é possível sincronizar dispositivos, pipes e sockets.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Os links simbólicos que apontam para fora da pasta sincronizada não são sincronizados.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>O alias “%1” aponta para um item que não é sincronizado.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>O nome é demasiado longo. Utilize, no máximo, %1 caracteres.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>O caminho é demasiado longo. Encurte os nomes das pastas.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>O nome contém caracteres que não são permitidos: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>O nome “%1” está reservado pelo sistema.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>O nome termina com um espaço ou um ponto. Mude o nome do item.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>O nome contém caracteres que não podem ser lidos. Mude o nome do item.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Já existe um item chamado “%1” nesta pasta.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Introduza um nome.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>A pasta “%1” não foi encontrada.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>A pasta não foi eliminada porque contém ficheiros que não são sincronizados.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Não foi possível criar a pasta.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Não foi possível eliminar a pasta.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>Não tem permissão para alterar esta pasta.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>Não tem permissão para abrir esta pasta.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>A pasta contém mais de %1 itens. Mova alguns deles para subpastas.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>A pasta encontra-se a um nível demasiado profundo.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>O servidor está ocupado. O Corvimo Client tentará novamente dentro de alguns minutos.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>O Corvimo Server comunicou um erro interno. Peça ao administrador para consultar o respetivo registo.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>O Corvimo Server não aceita alterações de momento.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>O volume com esta pasta não está disponível no Corvimo Server.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>A pasta partilhada foi removida do Corvimo Server.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>A sincronização foi desativada para esta pasta partilhada.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>O servidor enviou uma resposta que o Corvimo Client não compreende.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>A sua sessão terminou. Inicie sessão novamente.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Os dados do Corvimo Server foram reinicializados. Configure novamente as suas tarefas de sincronização.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded.</source>
        <translation>Não foi possível enviar “%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be uploaded: %2</source>
        <translation>Não foi possível enviar “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded.</source>
        <translation>Não foi possível descarregar “%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>Não foi possível descarregar “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>Não foi possível eliminar “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>Não foi possível mudar o nome de “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be moved: %2</source>
        <translation>Não foi possível mover “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be restored: %2</source>
        <translation>Não foi possível restaurar “%1”: %2</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Permissão recusada</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>O disco comunicou um erro de leitura ou escrita. Verifique se o disco tem falhas.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>O disco foi removido enquanto estavam a ser escritos ficheiros.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Memória insuficiente. Feche outros programas e tente novamente.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>A base de dados de sincronização está danificada e será reconstruída. Isto pode demorar algum tempo.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>A base de dados de sincronização está a ser utilizada por outro programa.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>A reconstruir a base de dados de sincronização...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>A base de dados de sincronização foi reconstruída.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Não foi possível ler as suas definições. São utilizadas as predefinições.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Não foi possível guardar as suas definições.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>As alterações em algumas pastas podem ser detetadas tarde porque o sistema está a vigiar demasiadas pastas.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>O relógio deste computador difere do relógio do servidor em mais de %1 minutos. Acerte a hora deste computador.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Esta ação não é suportada pelo Corvimo Server.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>A ação foi cancelada.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>A ação demorou demasiado tempo e foi interrompida.</translation>
    </message>
    <message>
        <source>An unknown error occurred.</source>
        <translation>Ocorreu um erro desconhecido.</translation>
    </message>
    <message>
        <source>Corvimo Client could not be started. Restart this computer and try again.</source>
        <translation>Não foi possível iniciar o Corvimo Client. Reinicie este computador e tente novamente.</translation>
    </message>
    <message>
        <source>Corvimo Client is already running.</source>
        <translation>O Corvimo Client já está em execução.</translation>
    </message>
    <message>
        <source>A component of Corvimo Client is missing. Install the client again.</source>
        <translation>Falta um componente do Corvimo Client. Instale novamente o cliente.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Não é possível mostrar os ícones de estado porque outros programas já utilizam todos os lugares disponíveis para ícones.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>O Corvimo Client precisa da sua permissão para ler esta pasta. Permita o acesso nas definições de privacidade deste computador.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Se o problema persistir, reinicie o Corvimo Client.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Se o problema persistir, contacte o administrador.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Se o problema persistir, contacte o suporte e indique o código do erro.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Pretende continuar com os restantes ficheiros?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Iniciar sessão</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Terminar sessão</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Iniciar sessão no Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Mostrar palavra-passe</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Esqueceu-se da palavra-passe?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Manter sessão iniciada</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>A iniciar sessão...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Sessão iniciada como %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Não tem sessão iniciada.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Pretende terminar a sessão? A sincronização será interrompida até iniciar sessão novamente.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Iniciar sessão com o navegador</translation>
    </message>
    <message>
        <source>Continue in your browser, then come back here.</source>
        <translation>Continue no navegador e depois volte aqui.</translation>
    </message>
    <message>
        <source>The browser could not be opened. Open this address yourself: %1</source>
        <translation>Não foi possível abrir o navegador. Abra este endereço manualmente: %1</translation>
    </message>
    <message>
        <source>Domain</source>
        <translation>Domínio</translation>
    </message>
    <message>
        <source>Enter your user name as domain\user if your account belongs to a domain.</source>
        <translation>Introduza o seu nome de utilizador como domínio\utilizador se a sua conta pertencer a um domínio.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Adicionar conta</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Mudar de conta</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Remover conta</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Pretende remover a conta %1 deste computador? Os seus ficheiros permanecem neste computador e no Corvimo Server.</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>Endereço de e-mail</translation>
    </message>
    <message>
        <source>Full name</source>
        <translation>Nome completo</translation>
    </message>
    <message>
        <source>Change password</source>
        <translation>Alterar palavra-passe</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Palavra-passe atual</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nova palavra-passe</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Repita a nova palavra-passe</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>A sua palavra-passe foi alterada.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>O administrador exige que altere a sua palavra-passe.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Dias até a sua palavra-passe expirar: %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>As duas palavras-passe não são iguais.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>A nova palavra-passe tem de ser diferente da atual.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Introduza o seu nome de utilizador.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Introduza a sua palavra-passe.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Nome de utilizador ou palavra-passe incorretos.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>Nome de utilizador ou palavra-passe incorretos. Tentativas restantes: %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>A sua conta está desativada. Contacte o administrador.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>A sua conta expirou. Contacte o administrador.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Não tem permissão para utilizar o Corvimo Server. Contacte o administrador.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>A sua palavra-passe expirou. Altere-a no Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>A sua pasta pessoal não está disponível. Peça ao administrador para ativar o serviço de pastas pessoais.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>A conta de convidado não pode ser utilizada para sincronização.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Todas as licenças do Corvimo Server estão a ser utilizadas.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Nome deste computador</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Dispositivos associados</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Pretende desassociar “%1”? A sessão será terminada e o dispositivo deixará de sincronizar.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Este computador foi desassociado por %1. Inicie sessão novamente para continuar a sincronização.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Eliminar também os ficheiros no dispositivo</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Início de sessão em dois passos</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Introduza o código apresentado na sua aplicação de autenticação.</translation>
    </message>
    <message>
        <source>Verification code</source>
        <translation>Código de verificação</translation>
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
        <translation>A verificar...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Confiar neste dispositivo</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Não perguntar novamente neste computador durante este número de dias: %1</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Perdeu o telemóvel?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Enviar um código por e-mail</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>Foi enviado um código para %1. É válido durante 10 minutos.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Não foi possível enviar o código. Peça ajuda ao administrador.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Utilizar um código de recuperação</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Introduza um dos códigos de recuperação que anotou. Cada código funciona uma vez.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Códigos de recuperação restantes: %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Utilizar uma chave de segurança</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Insira a sua chave de segurança e toque nela.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>A chave de segurança não foi reconhecida. Experimente outra.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Aprove o início de sessão no telemóvel</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>A aguardar a sua aprovação...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Escolha o número %1 no telemóvel.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>O início de sessão foi recusado no telemóvel.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>O pedido expirou. Envie-o novamente.</translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Enviar novamente</translation>
    </message>
    <message>
        <source>Try another way</source>
        <translation>Tentar de outra forma</translation>
    </message>
    <message>
        <source>Enter the code.</source>
        <translation>Introduza o código.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>O código está incorreto. Verifique se o relógio do telemóvel está certo.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Este código já foi utilizado. Aguarde pelo próximo.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>Demasiados códigos incorretos. Minutos até poder tentar novamente: %1.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>O administrador exige o início de sessão em dois passos. Configure-o primeiro no Corvimo Server.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Configurar o início de sessão em dois passos</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Leia este código com a sua aplicação de autenticação.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>O início de sessão em dois passos está ativado.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Tarefas de cópia de segurança</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>Uma tarefa de cópia de segurança copia pastas deste computador para o Corvimo Server e mantém versões anteriores.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Criar tarefa de cópia de segurança</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Editar tarefa de cópia de segurança</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Eliminar tarefa de cópia de segurança</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Pretende eliminar a tarefa de cópia de segurança “%1”?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Eliminar também os ficheiros da cópia de segurança no Corvimo Server</translation>
    </message>
    <message>
        <source>Task name</source>
        <translation>Nome da tarefa</translation>
    </message>
    <message>
        <source>There is already a task with this name.</source>
        <translation>Já existe uma tarefa com este nome.</translation>
    </message>
    <message>
        <source>What to back up</source>
        <translation>O que incluir na cópia de segurança</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Adicionar pasta</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Escolha, pelo menos, uma pasta para a cópia de segurança.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>A pasta “%1” já não existe. Não é incluída na cópia de segurança.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Secretária</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imagens</translation>
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
        <translation>Onde guardar a cópia de segurança</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Esta pasta já contém uma cópia de segurança de outro computador.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Quando fazer a cópia de segurança</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Sempre que um ficheiro for alterado</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>De acordo com um horário</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Apenas quando eu iniciar</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Diariamente</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Semanalmente</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Mensalmente</translation>
    </message>
    <message>
        <source>Hourly</source>
        <translation>De hora a hora</translation>
    </message>
    <message>
        <source>At %1</source>
        <translation>Às %1</translation>
    </message>
    <message>
        <source>On these days</source>
        <translation>Nestes dias</translation>
    </message>
    <message>
        <source>When an external disk is connected</source>
        <translation>Quando for ligado um disco externo</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Reativar este computador para a cópia de segurança</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Fazer cópia de segurança agora</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Parar cópia de segurança</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Pretende parar a cópia de segurança? Os ficheiros já copiados são mantidos.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>A fazer cópia de segurança...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>A fazer cópia de segurança dos ficheiros: %1 de %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>A cópia de segurança está concluída.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Última cópia de segurança: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Próxima cópia de segurança: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Ainda sem cópia de segurança</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>A cópia de segurança está concluída. Ficheiros que não foi possível ler: %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>A cópia de segurança falhou: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>A cópia de segurança agendada para %1 não foi realizada. Vai começar agora.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Dias desde a última cópia de segurança deste computador: %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Durante quanto tempo manter as versões</translation>
    </message>
    <message>
        <source>Keep all versions</source>
        <translation>Manter todas as versões</translation>
    </message>
    <message>
        <source>Number of versions to keep: %1</source>
        <translation>Número de versões a manter: %1</translation>
    </message>
    <message>
        <source>Days to keep versions: %1</source>
        <translation>Número de dias para manter as versões: %1</translation>
    </message>
    <message>
        <source>Keep fewer versions as they get older</source>
        <translation>Manter menos versões à medida que ficam mais antigas</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Cifrar a cópia de segurança</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Chave de cifragem</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Guarde a chave num local seguro. Sem ela, não é possível restaurar a cópia de segurança.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>A chave de cifragem está incorreta.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Restaurar ficheiros</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Escolha os ficheiros a restaurar e onde os colocar.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Restaurar para o local original</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Substituir ficheiros existentes</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>A restaurar ficheiros: %1 de %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Todos os ficheiros foram restaurados.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>Ficheiros restaurados: %1. Ficheiros que não foi possível restaurar: %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Verificar cópia de segurança</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>A cópia de segurança está intacta.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Ficheiros danificados na cópia de segurança: %1. Serão copiados novamente.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluir</translation>
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
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Version %1 (build %2)</source>
        <translation>Versão %1 (compilação %2)</translation>
    </message>
    <message>
        <source>Server version</source>
        <translation>Versão do servidor</translation>
    </message>
    <message>
        <source>All rights reserved.</source>
        <translation>Todos os direitos reservados.</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrato de licença</translation>
    </message>
    <message>
        <source>Privacy statement</source>
        <translation>Declaração de privacidade</translation>
    </message>
    <message>
        <source>Third-party software</source>
        <translation>Software de terceiros</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Contact support</source>
        <translation>Contactar o suporte</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Enviar comentários</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Obrigado por utilizar o Corvimo Client.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registos</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Nível de detalhe</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tudo</translation>
    </message>
    <message>
        <source>Detailed logs make the client slower. Go back to the normal level when you are done.</source>
        <translation>Os registos detalhados tornam o cliente mais lento. Volte ao nível normal quando terminar.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Abrir pasta de registos</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Guardar registo</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>O registo foi guardado em “%1”.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Não foi possível guardar o registo.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Limpar registo</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Pretende limpar o registo?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Enviar registo para o suporte</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>A enviar o registo...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>O registo foi enviado. O número do seu relatório é %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Não foi possível enviar o registo. Guarde-o e envie-o por e-mail.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>O registo contém nomes de ficheiros e pastas, mas não o respetivo conteúdo.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Enviar dados de utilização anónimos para ajudar a melhorar o Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Iniciar o Corvimo Client quando inicio sessão neste computador</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Mostrar ícones de estado em ficheiros e pastas</translation>
    </message>
    <message>
        <source>Show Corvimo Client in the context menu</source>
        <translation>Mostrar o Corvimo Client no menu de contexto</translation>
    </message>
    <message>
        <source>Show synced folders in the sidebar</source>
        <translation>Mostrar pastas sincronizadas na barra lateral</translation>
    </message>
    <message>
        <source>Show the icon in the menu bar</source>
        <translation>Mostrar o ícone na barra de menus</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Same as the system</source>
        <translation>O mesmo do sistema</translation>
    </message>
    <message>
        <source>The language changes when you restart Corvimo Client.</source>
        <translation>O idioma mudará quando reiniciar o Corvimo Client.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aspeto</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tamanho do texto</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>Não entrar em suspensão durante a sincronização de ficheiros</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Mover para o lixo os ficheiros eliminados no Corvimo Server</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Avisar antes de serem eliminados muitos ficheiros</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Pretende repor todas as definições? As suas tarefas de sincronização não são alteradas.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Esta definição é gerida pelo administrador.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>As suas definições foram guardadas.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Pretende rejeitar as suas alterações?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Rejeitar</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Ficheiros a pedido</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Todos os ficheiros são apresentados neste computador, mas um ficheiro só será descarregado quando o abrir.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>Utilizar “Ficheiros a pedido”</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Pretende utilizar a funcionalidade “Ficheiros a pedido” para “%1”? Os ficheiros que já estão neste computador permanecem aqui.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>A funcionalidade “Ficheiros a pedido” está ativada.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>Desativar “Ficheiros a pedido”</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Pretende desativar a funcionalidade “Ficheiros a pedido”? Todos os ficheiros desta pasta serão descarregados (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Não há espaço suficiente para descarregar todos os ficheiros. Espaço adicional necessário: %1.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Apenas online</translation>
    </message>
    <message>
        <source>Always on this computer</source>
        <translation>Sempre neste computador</translation>
    </message>
    <message>
        <source>Partly on this computer</source>
        <translation>Parcialmente neste computador</translation>
    </message>
    <message>
        <source>Files that will be available online only: %1. Do you want to continue?</source>
        <translation>Ficheiros que ficarão disponíveis apenas online: %1. Pretende continuar?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>Espaço em disco libertado: %1.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Os ficheiros que ainda não foram enviados permanecem neste computador.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>“%1” está aberto e permanece neste computador.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Libertar espaço automaticamente</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Manter apenas online os ficheiros não abertos durante este número de dias: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Apenas quando houver pouco espaço em disco</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 está a descarregar “%2”.</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Bloquear descargas feitas por este programa</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Um programa está a abrir muitos ficheiros que estão apenas online. Pretende permitir?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>Não é possível abrir “%1” porque está apenas online e o Corvimo Client não está ligado.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Inicie o Corvimo Client para abrir ficheiros que estão apenas online.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>A funcionalidade “Ficheiros a pedido” não é suportada por esta versão do sistema.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>A funcionalidade “Ficheiros a pedido” não é suportada neste disco.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Permita a extensão do fornecedor de ficheiros nas definições do sistema para utilizar a funcionalidade “Ficheiros a pedido”.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Mostrar pré-visualizações de ficheiros que estão apenas online</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>Não é possível pesquisar neste computador o conteúdo de ficheiros que estão apenas online.</translation>
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
        <translation>Damos-lhe as boas-vindas ao Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Configure o Corvimo Client em poucos passos para ter os seus ficheiros em todos os computadores.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Começar</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Passo %1 de %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Ligue-se ao seu servidor</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Introduza o endereço do Corvimo Server e inicie sessão com a sua conta.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>O que pretende fazer?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Sincronizar ficheiros</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Mantenha os ficheiros iguais neste computador e no Corvimo Server.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Fazer cópia de segurança deste computador</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Copie os seus ficheiros para o Corvimo Server para os proteger contra perda.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Os seus ficheiros serão sincronizados com “%1”.</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Pastas de equipa</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Escolha as pastas de equipa que pretende ter neste computador.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>Não é membro de nenhuma pasta de equipa.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Opções de sincronização</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Sincronizar todos os ficheiros</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>O Corvimo Client precisa da sua permissão para mostrar notificações e ler as suas pastas.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Verifique as suas escolhas antes de começar.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>Ficheiros a descarregar: %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Está tudo pronto</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>O Corvimo Client está agora a sincronizar os seus ficheiros. Encontra-o na barra de menus.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Fazer uma visita guiada</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Clique no ícone na barra de menus para ver o que está a acontecer.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Clique com o botão direito num ficheiro para o partilhar ou ver as respetivas versões.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Os ícones nos seus ficheiros mostram se estes estão sincronizados.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Pretende sair da configuração? Pode continuar mais tarde.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Foram encontradas definições de uma instalação anterior. Pretende utilizá-las?</translation>
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
        <translation>%1 por cento</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 ficheiro</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 ficheiros</translation>
    </message>
    <message>
        <source>1 folder</source>
        <translation>1 pasta</translation>
    </message>
    <message>
        <source>%1 folders</source>
        <translation>%1 pastas</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Itens: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Files: %1, folders: %2</source>
        <translation>Ficheiros: %1, pastas: %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Agora mesmo</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Today at %1</source>
        <translation>Hoje às %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Yesterday at %1</source>
        <translation>Ontem às %1</translation>
    </message>
    <message>
        <source>Tomorrow</source>
        <translation>Amanhã</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 às %2</translation>
    </message>
    <message>
        <source>A minute ago</source>
        <translation>Há um minuto</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <translation>Há %1 minutos</translation>
    </message>
    <message>
        <source>An hour ago</source>
        <translation>Há uma hora</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <translation>Há %1 horas</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <translation>Há %1 dias</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana passada</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mês passado</translation>
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
        <translation>Tempo restante: %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>Tempo restante: %1 min</translation>
    </message>
    <message>
        <source>%1 h left</source>
        <translation>Tempo restante: %1 h</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Segunda-feira</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Terça-feira</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Quarta-feira</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Quinta-feira</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Sexta-feira</translation>
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
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Saber mais</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Não mostrar esta mensagem novamente</translation>
    </message>
    <message>
        <source>Please wait...</source>
        <translation>Aguarde...</translation>
    </message>
</context>
</TS>
