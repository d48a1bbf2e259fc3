<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Deleted</source>
        <translation>Excluído</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>File added: </source>
        <translation>Arquivo adicionado: </translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Alterar pasta</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Mesclar</translation>
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
        <translation>Renomeado</translation>
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
        <translation>Arquivo alterado: </translation>
    </message>
    <message>
        <source>File deleted: </source>
        <translation>Arquivo excluído: </translation>
    </message>
    <message>
        <source>File renamed: </source>
        <translation>Arquivo renomeado: </translation>
    </message>
    <message>
        <source>Folder added: </source>
        <translation>Pasta adicionada: </translation>
    </message>
    <message>
        <source>Folder deleted: </source>
        <translation>Pasta excluída: </translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Arquivos alterados recentemente</translation>
    </message>
    <message>
        <source>No files have changed yet.</source>
        <translation>Nenhum arquivo foi alterado ainda.</translation>
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
        <translation>Abrir no navegador da web</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausar sincronização</translation>
    </message>
    <message>
        <source>Pause for one hour</source>
        <translation>Pausar por uma hora</translation>
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
        <translation>Configurações</translation>
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
        <translation>Sobre o Corvimo Client</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Encerrar</translation>
    </message>
    <message>
        <source>Files will no longer be synced until you start Corvimo Client again. Do you want to quit?</source>
        <translation>Os arquivos não serão mais sincronizados até você iniciar o Corvimo Client novamente. Deseja encerrar?</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando...</translation>
    </message>
    <message>
        <source>Syncing, files left: %1</source>
        <translation>Sincronizando, arquivos restantes: %1</translation>
    </message>
    <message>
        <source>Uploading %1</source>
        <translation>Enviando %1</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Baixando %1</translation>
    </message>
    <message>
        <source>Looking for changes...</source>
        <translation>Procurando alterações...</translation>
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
        <translation>Não conectado</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Aguardando</translation>
    </message>
    <message>
        <source>Your attention is needed</source>
        <translation>Sua atenção é necessária</translation>
    </message>
    <message>
        <source>Some files could not be synced.</source>
        <translation>Não foi possível sincronizar alguns arquivos.</translation>
    </message>
    <message>
        <source>No sync task has been set up.</source>
        <translation>Nenhuma tarefa de sincronização foi configurada.</translation>
    </message>
    <message>
        <source>%1 up, %2 down</source>
        <translation>%1 de envio, %2 de download</translation>
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
        <translation>Compartilhar...</translation>
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
        <translation>Liberar espaço</translation>
    </message>
    <message>
        <source>Lock file</source>
        <translation>Bloquear arquivo</translation>
    </message>
    <message>
        <source>Unlock file</source>
        <translation>Desbloquear arquivo</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
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
        <translation>Recortar</translation>
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
        <translation>Não sincronizar arquivos com este nome</translation>
    </message>
    <message>
        <source>Do not sync files of this type</source>
        <translation>Não sincronizar arquivos deste tipo</translation>
    </message>
    <message>
        <source>Locked by %1</source>
        <translation>Bloqueado por %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked. Others can read it but not change it.</source>
        <translation>“%1” está bloqueado. Outras pessoas podem ler o arquivo, mas não alterá-lo.</translation>
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
        <translation>Este item não está em uma pasta sincronizada.</translation>
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
        <translation>Backup</translation>
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
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Nothing matches &quot;%1&quot;.</source>
        <translation>Nada corresponde a “%1”.</translation>
    </message>
    <message>
        <source>There is no sync task yet. Create one to keep a folder on this computer and a folder on Corvimo Server the same.</source>
        <translation>Ainda não há nenhuma tarefa de sincronização. Crie uma para manter iguais uma pasta neste computador e uma pasta no Corvimo Server.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
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
        <translation>Interrompido</translation>
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
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>Delete sync task</source>
        <translation>Excluir tarefa de sincronização</translation>
    </message>
    <message>
        <source>Do you want to delete the sync task &quot;%1&quot;? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Deseja excluir a tarefa de sincronização “%1”? Seus arquivos permanecem neste computador e no Corvimo Server.</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 selected sync tasks? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Deseja excluir as tarefas de sincronização selecionadas (%1)? Seus arquivos permanecem neste computador e no Corvimo Server.</translation>
    </message>
    <message>
        <source>The sync task was deleted.</source>
        <translation>A tarefa de sincronização foi excluída.</translation>
    </message>
    <message>
        <source>Syncing is paused. Changes will be synced when you resume.</source>
        <translation>A sincronização está em pausa. As alterações serão sincronizadas quando você a retomar.</translation>
    </message>
    <message>
        <source>Clear list</source>
        <translation>Limpar lista</translation>
    </message>
    <message>
        <source>All activity</source>
        <translation>Todas as atividades</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Somente erros</translation>
    </message>
    <message>
        <source>%1 was uploaded.</source>
        <translation>%1 foi enviado.</translation>
    </message>
    <message>
        <source>%1 was downloaded.</source>
        <translation>%1 foi baixado.</translation>
    </message>
    <message>
        <source>%1 was deleted from this computer.</source>
        <translation>%1 foi excluído deste computador.</translation>
    </message>
    <message>
        <source>%1 was deleted from Corvimo Server.</source>
        <translation>%1 foi excluído do Corvimo Server.</translation>
    </message>
    <message>
        <source>%1 was renamed to %2.</source>
        <translation>%1 foi renomeado para %2.</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 foi movido para %2.</translation>
    </message>
    <message>
        <source>Files changed by %2: %1.</source>
        <translation>Arquivos alterados por %2: %1.</translation>
    </message>
    <message>
        <source>Choose folders to sync</source>
        <translation>Escolha as pastas a sincronizar</translation>
    </message>
    <message>
        <source>Choose a folder on Corvimo Server and a folder on this computer. Corvimo Client keeps both the same.</source>
        <translation>Escolha uma pasta no Corvimo Server e uma pasta neste computador. O Corvimo Client mantém as duas iguais.</translation>
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
        <translation>Avançar</translation>
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
        <translation>Não foi possível criar a pasta “%1”. Escolha outro nome ou verifique suas permissões.</translation>
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
        <translation>Somente enviar alterações</translation>
    </message>
    <message>
        <source>Download changes only</source>
        <translation>Somente baixar alterações</translation>
    </message>
    <message>
        <source>Changes on either side are copied to the other.</source>
        <translation>As alterações de um lado são copiadas para o outro.</translation>
    </message>
    <message>
        <source>Changes on this computer are uploaded. Changes on Corvimo Server are not downloaded.</source>
        <translation>As alterações neste computador são enviadas. As alterações no Corvimo Server não são baixadas.</translation>
    </message>
    <message>
        <source>Changes on Corvimo Server are downloaded. Changes on this computer are not uploaded.</source>
        <translation>As alterações no Corvimo Server são baixadas. As alterações neste computador não são enviadas.</translation>
    </message>
    <message>
        <source>Keep files on this computer when they are deleted on Corvimo Server</source>
        <translation>Manter os arquivos neste computador quando forem excluídos no Corvimo Server</translation>
    </message>
    <message>
        <source>Keep files on Corvimo Server when they are deleted on this computer</source>
        <translation>Manter os arquivos no Corvimo Server quando forem excluídos neste computador</translation>
    </message>
    <message>
        <source>Merge folders</source>
        <translation>Mesclar pastas</translation>
    </message>
    <message>
        <source>Both folders already contain files. Choose what to do with them.</source>
        <translation>As duas pastas já contêm arquivos. Escolha o que fazer com eles.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; already exists. Do you want to merge it with the folder on Corvimo Server?</source>
        <translation>A pasta “%1” já existe. Deseja mesclá-la com a pasta no Corvimo Server?</translation>
    </message>
    <message>
        <source>Merge both folders and keep all files</source>
        <translation>Mesclar as duas pastas e manter todos os arquivos</translation>
    </message>
    <message>
        <source>Use the files on this computer</source>
        <translation>Usar os arquivos deste computador</translation>
    </message>
    <message>
        <source>Use the files on Corvimo Server</source>
        <translation>Usar os arquivos do Corvimo Server</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>Files that differ are kept in two copies.</source>
        <translation>Os arquivos diferentes são mantidos em duas cópias.</translation>
    </message>
    <message>
        <source>Files on Corvimo Server that are not on this computer will be deleted.</source>
        <translation>Os arquivos do Corvimo Server que não estão neste computador serão excluídos.</translation>
    </message>
    <message>
        <source>Files on this computer that are not on Corvimo Server will be moved to the trash.</source>
        <translation>Os arquivos deste computador que não estão no Corvimo Server serão movidos para a lixeira.</translation>
    </message>
    <message>
        <source>Files with the same name will be replaced. This cannot be undone.</source>
        <translation>Os arquivos com o mesmo nome serão substituídos. Esta ação não pode ser desfeita.</translation>
    </message>
    <message>
        <source>Comparing both folders...</source>
        <translation>Comparando as duas pastas...</translation>
    </message>
    <message>
        <source>Files compared: %1 of %2</source>
        <translation>Arquivos comparados: %1 de %2</translation>
    </message>
    <message>
        <source>Both folders are now the same.</source>
        <translation>As duas pastas agora são iguais.</translation>
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
        <translation>Pastas do sistema não podem ser sincronizadas. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>A whole disk cannot be synced. Choose a folder on it.</source>
        <translation>Um disco inteiro não pode ser sincronizado. Escolha uma pasta nele.</translation>
    </message>
    <message>
        <source>Folders on removable disks cannot be synced.</source>
        <translation>Pastas em discos removíveis não podem ser sincronizadas.</translation>
    </message>
    <message>
        <source>Network folders such as \\server\share cannot be synced. Choose a folder on this computer.</source>
        <translation>Pastas de rede como \\server\share não podem ser sincronizadas. Escolha uma pasta neste computador.</translation>
    </message>
    <message>
        <source>You do not have permission to write to this folder. Choose another folder.</source>
        <translation>Você não tem permissão para gravar nesta pasta. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>This folder is encrypted and locked. Unlock it on Corvimo Server first.</source>
        <translation>Esta pasta está criptografada e bloqueada. Desbloqueie-a primeiro no Corvimo Server.</translation>
    </message>
    <message>
        <source>The folder was not found. It may have been moved or deleted.</source>
        <translation>A pasta não foi encontrada. Ela pode ter sido movida ou excluída.</translation>
    </message>
    <message>
        <source>The file system of this disk is not supported. Use a disk with a supported file system.</source>
        <translation>O sistema de arquivos deste disco não é compatível. Use um disco com um sistema de arquivos compatível.</translation>
    </message>
    <message>
        <source>You have reached the limit of %1 sync tasks. Delete a task that you no longer need.</source>
        <translation>Você atingiu o limite de %1 tarefas de sincronização. Exclua uma tarefa de que não precisa mais.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Choose what to sync to this computer. Folders that you deselect are removed from this computer but stay on Corvimo Server.</source>
        <translation>Escolha o que sincronizar com este computador. As pastas que você desmarcar serão removidas deste computador, mas permanecerão no Corvimo Server.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro de arquivos</translation>
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
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>The list of folders could not be loaded. Check your connection and try again.</source>
        <translation>Não foi possível carregar a lista de pastas. Verifique sua conexão e tente novamente.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Folders to be removed from this computer: %1. They stay on Corvimo Server.</source>
        <translation>Pastas que serão removidas deste computador: %1. Elas permanecem no Corvimo Server.</translation>
    </message>
    <message>
        <source>Remove folders from this computer?</source>
        <translation>Remover as pastas deste computador?</translation>
    </message>
    <message>
        <source>Some files in these folders have not been uploaded yet and would be lost. Sync them first.</source>
        <translation>Alguns arquivos nestas pastas ainda não foram enviados e seriam perdidos. Sincronize-os primeiro.</translation>
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
        <translation>Não sincronizar arquivos maiores que</translation>
    </message>
    <message>
        <source>Do not sync files with these extensions</source>
        <translation>Não sincronizar arquivos com estas extensões</translation>
    </message>
    <message>
        <source>Do not sync files with these names</source>
        <translation>Não sincronizar arquivos com estes nomes</translation>
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
        <translation>Sincronizar arquivos e pastas cujos nomes começam com um ponto</translation>
    </message>
    <message>
        <source>Temporary files of common programs are never synced.</source>
        <translation>Arquivos temporários de programas comuns nunca são sincronizados.</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Restaurar padrões</translation>
    </message>
    <message>
        <source>Do you want to go back to the default filter?</source>
        <translation>Deseja voltar ao filtro padrão?</translation>
    </message>
    <message>
        <source>Enter an extension, for example &quot;iso&quot;.</source>
        <translation>Digite uma extensão, por exemplo, “iso”.</translation>
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
        <translation>Digite um tamanho entre %1 e %2.</translation>
    </message>
    <message>
        <source>Excluded by filter</source>
        <translation>Não sincronizado devido ao filtro</translation>
    </message>
    <message>
        <source>Your choice was saved. Corvimo Client is now applying it.</source>
        <translation>Sua escolha foi salva. O Corvimo Client a está aplicando agora.</translation>
    </message>
    <message>
        <source>Document files</source>
        <translation>Arquivos de documento</translation>
    </message>
    <message>
        <source>Picture files</source>
        <translation>Arquivos de imagem</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Arquivos de vídeo</translation>
    </message>
    <message>
        <source>Music files</source>
        <translation>Arquivos de música</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Arquivos compactados</translation>
    </message>
    <message>
        <source>Other files</source>
        <translation>Outros arquivos</translation>
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
        <translation>Baixar</translation>
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
        <translation>Este arquivo não tem versões anteriores.</translation>
    </message>
    <message>
        <source>Choose a file to see its versions.</source>
        <translation>Escolha um arquivo para ver suas versões.</translation>
    </message>
    <message>
        <source>Restore version</source>
        <translation>Restaurar versão</translation>
    </message>
    <message>
        <source>Do you want to replace the current version with the one from %1?</source>
        <translation>Deseja substituir a versão atual pela de %1?</translation>
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
        <translation>Salvar versão como</translation>
    </message>
    <message>
        <source>The version was saved to &quot;%1&quot;.</source>
        <translation>A versão foi salva em “%1”.</translation>
    </message>
    <message>
        <source>Do you want to delete this version? It cannot be brought back.</source>
        <translation>Deseja excluir esta versão? Ela não poderá ser recuperada.</translation>
    </message>
    <message>
        <source>The version could not be deleted.</source>
        <translation>Não foi possível excluir a versão.</translation>
    </message>
    <message>
        <source>Protected from automatic deletion</source>
        <translation>Protegida contra exclusão automática</translation>
    </message>
    <message>
        <source>Maximum number of versions that Corvimo Server keeps of a file: %1.</source>
        <translation>Número máximo de versões de um arquivo que o Corvimo Server mantém: %1.</translation>
    </message>
    <message>
        <source>Version history is turned off for this folder. Ask the administrator to turn it on.</source>
        <translation>O histórico de versões está desativado para esta pasta. Peça ao administrador para ativá-lo.</translation>
    </message>
    <message>
        <source>Versions are not kept for this type of file.</source>
        <translation>Não são mantidas versões deste tipo de arquivo.</translation>
    </message>
    <message>
        <source>Deleted files</source>
        <translation>Arquivos excluídos</translation>
    </message>
    <message>
        <source>Show deleted files</source>
        <translation>Mostrar arquivos excluídos</translation>
    </message>
    <message>
        <source>Deleted on %1</source>
        <translation>Excluído em %1</translation>
    </message>
    <message>
        <source>Do you want to restore the selected items (%1)?</source>
        <translation>Deseja restaurar os itens selecionados (%1)?</translation>
    </message>
    <message>
        <source>Items restored: %1.</source>
        <translation>Itens restaurados: %1.</translation>
    </message>
    <message>
        <source>No deleted files were found.</source>
        <translation>Nenhum arquivo excluído foi encontrado.</translation>
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
        <translation>Compartilhar</translation>
    </message>
    <message>
        <source>Share &quot;%1&quot;</source>
        <translation>Compartilhar “%1”</translation>
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
        <translation>Digite um nome ou um endereço de e-mail</translation>
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
        <translation>Salvar</translation>
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
        <translation>Pode gerenciar</translation>
    </message>
    <message>
        <source>Can upload only</source>
        <translation>Pode somente enviar</translation>
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
        <translation>Você não tem permissão para compartilhar este item. Fale com o proprietário.</translation>
    </message>
    <message>
        <source>Shared with me</source>
        <translation>Compartilhado comigo</translation>
    </message>
    <message>
        <source>Shared by me</source>
        <translation>Compartilhado por mim</translation>
    </message>
    <message>
        <source>People with access: %1</source>
        <translation>Pessoas com acesso: %1</translation>
    </message>
    <message>
        <source>This item is not shared.</source>
        <translation>Este item não está compartilhado.</translation>
    </message>
    <message>
        <source>Leave shared folder</source>
        <translation>Sair da pasta compartilhada</translation>
    </message>
    <message>
        <source>Do you want to leave the shared folder &quot;%1&quot;? It will be removed from this computer.</source>
        <translation>Deseja sair da pasta compartilhada “%1”? Ela será removida deste computador.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no longer shared with you.</source>
        <translation>“%1” não está mais compartilhado com você.</translation>
    </message>
    <message>
        <source>%1 shared &quot;%2&quot; with you.</source>
        <translation>%1 compartilhou “%2” com você.</translation>
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
        <translation>Configurações do link</translation>
    </message>
    <message>
        <source>Create link</source>
        <translation>Criar link</translation>
    </message>
    <message>
        <source>Creating link...</source>
        <translation>Criando link...</translation>
    </message>
    <message>
        <source>Delete link</source>
        <translation>Excluir link</translation>
    </message>
    <message>
        <source>Do you want to delete this link? People who have it can no longer open the item.</source>
        <translation>Deseja excluir este link? As pessoas que o têm não poderão mais abrir o item.</translation>
    </message>
    <message>
        <source>Anyone with the link</source>
        <translation>Qualquer pessoa com o link</translation>
    </message>
    <message>
        <source>Only people with an account</source>
        <translation>Somente pessoas com uma conta</translation>
    </message>
    <message>
        <source>Protect with a password</source>
        <translation>Proteger com senha</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>The password must have at least %1 characters.</source>
        <translation>A senha deve ter pelo menos %1 caracteres.</translation>
    </message>
    <message>
        <source>Enter a password for the link.</source>
        <translation>Digite uma senha para o link.</translation>
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
        <translation>Número de downloads permitidos</translation>
    </message>
    <message>
        <source>Downloads left: %1</source>
        <translation>Downloads restantes: %1</translation>
    </message>
    <message>
        <source>Allow downloading</source>
        <translation>Permitir download</translation>
    </message>
    <message>
        <source>Allow uploading</source>
        <translation>Permitir envio</translation>
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
        <translation>Solicitação de arquivos</translation>
    </message>
    <message>
        <source>People with the link can upload files to this folder without seeing its contents.</source>
        <translation>As pessoas com o link podem enviar arquivos para esta pasta sem ver seu conteúdo.</translation>
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
        <translation>“%1” foi alterado em dois lugares ao mesmo tempo.</translation>
    </message>
    <message>
        <source>%1 files were changed in two places at the same time.</source>
        <translation>%1 arquivos foram alterados em dois lugares ao mesmo tempo.</translation>
    </message>
    <message>
        <source>Choose which version to keep. The other one is saved as a conflicted copy.</source>
        <translation>Escolha qual versão manter. A outra será salva como cópia em conflito.</translation>
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
        <translation>Manter as duas versões</translation>
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
        <translation>Quando um arquivo foi alterado em dois lugares</translation>
    </message>
    <message>
        <source>Names that differ only in upper and lower case</source>
        <translation>Nomes que diferem apenas em maiúsculas e minúsculas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; differ only in upper and lower case. Rename one of them.</source>
        <translation>“%1” e “%2” diferem apenas em maiúsculas e minúsculas. Renomeie um deles.</translation>
    </message>
    <message>
        <source>There are no conflicts.</source>
        <translation>Não há conflitos.</translation>
    </message>
    <message>
        <source>The conflict was resolved.</source>
        <translation>O conflito foi resolvido.</translation>
    </message>
    <message>
        <source>The conflict could not be resolved because the file is open. Close it and try again.</source>
        <translation>Não foi possível resolver o conflito porque o arquivo está aberto. Feche-o e tente novamente.</translation>
    </message>
    <message>
        <source>Resolve</source>
        <translation>Resolver</translation>
    </message>
    <message>
        <source>Decide later</source>
        <translation>Decidir depois</translation>
    </message>
    <message>
        <source>Open both files</source>
        <translation>Abrir os dois arquivos</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Pular</translation>
    </message>
    <message>
        <source>You deleted &quot;%1&quot;, but it was changed on Corvimo Server. The changed file was kept.</source>
        <translation>Você excluiu “%1”, mas ele foi alterado no Corvimo Server. O arquivo alterado foi mantido.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted on Corvimo Server, but you changed it. Your file was kept.</source>
        <translation>“%1” foi excluído no Corvimo Server, mas você o alterou. Seu arquivo foi mantido.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a file on one side and a folder on the other. Rename one of them.</source>
        <translation>“%1” é um arquivo em um lado e uma pasta no outro. Renomeie um deles.</translation>
    </message>
    <message>
        <source>Conflicted copies</source>
        <translation>Cópias em conflito</translation>
    </message>
    <message>
        <source>Delete conflicted copies</source>
        <translation>Excluir cópias em conflito</translation>
    </message>
    <message>
        <source>Do you want to delete the conflicted copies (%1)? They cannot be brought back.</source>
        <translation>Deseja excluir as cópias em conflito (%1)? Elas não poderão ser recuperadas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open in another program and will be synced when it is closed.</source>
        <translation>“%1” está aberto em outro programa e será sincronizado quando for fechado.</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Endereço do servidor</translation>
    </message>
    <message>
        <source>Host name, IP address or Corvimo ID</source>
        <translation>Nome do host, endereço IP ou Corvimo ID</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>Encrypt the connection</source>
        <translation>Criptografar a conexão</translation>
    </message>
    <message>
        <source>Without encryption, others on the network can read your files and your password.</source>
        <translation>Sem criptografia, outras pessoas na rede podem ler seus arquivos e sua senha.</translation>
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
        <translation>Reconectar</translation>
    </message>
    <message>
        <source>Test connection</source>
        <translation>Testar conexão</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testando a conexão...</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>A conexão funciona.</translation>
    </message>
    <message>
        <source>The connection does not work. Check the address and the port.</source>
        <translation>A conexão não funciona. Verifique o endereço e a porta.</translation>
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
        <translation>A conexão com %1 foi perdida. O Corvimo Client tentará novamente em %2 segundos.</translation>
    </message>
    <message>
        <source>The connection to %1 is back.</source>
        <translation>A conexão com %1 foi restabelecida.</translation>
    </message>
    <message>
        <source>Waiting for a network connection</source>
        <translation>Aguardando uma conexão de rede</translation>
    </message>
    <message>
        <source>Do not sync on metered networks</source>
        <translation>Não sincronizar em redes com consumo limitado</translation>
    </message>
    <message>
        <source>Syncing is paused because this network is metered.</source>
        <translation>A sincronização está em pausa porque esta rede tem consumo limitado.</translation>
    </message>
    <message>
        <source>Connected over the local network</source>
        <translation>Conectado pela rede local</translation>
    </message>
    <message>
        <source>Connected over the Internet</source>
        <translation>Conectado pela internet</translation>
    </message>
    <message>
        <source>Connected through a relay server</source>
        <translation>Conectado por um servidor de retransmissão</translation>
    </message>
    <message>
        <source>The relay server is slower than a direct connection.</source>
        <translation>O servidor de retransmissão é mais lento que uma conexão direta.</translation>
    </message>
    <message>
        <source>Find servers on this network</source>
        <translation>Encontrar servidores nesta rede</translation>
    </message>
    <message>
        <source>Looking for servers...</source>
        <translation>Procurando servidores...</translation>
    </message>
    <message>
        <source>No server was found on this network. Enter the server address yourself.</source>
        <translation>Nenhum servidor foi encontrado nesta rede. Digite o endereço do servidor manualmente.</translation>
    </message>
    <message>
        <source>Servers found: %1</source>
        <translation>Servidores encontrados: %1</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; was not found. Check the spelling of the address.</source>
        <translation>O servidor “%1” não foi encontrado. Verifique se o endereço está escrito corretamente.</translation>
    </message>
    <message>
        <source>The server refused the connection. Make sure that Corvimo Server is running.</source>
        <translation>O servidor recusou a conexão. Verifique se o Corvimo Server está em execução.</translation>
    </message>
    <message>
        <source>The server did not answer in time. Try again later.</source>
        <translation>O servidor não respondeu a tempo. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.</source>
        <translation>Este computador não está conectado a uma rede.</translation>
    </message>
    <message>
        <source>Enter a port between 1 and 65535.</source>
        <translation>Digite uma porta entre 1 e 65535.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Digite o endereço do servidor.</translation>
    </message>
    <message>
        <source>The Corvimo ID &quot;%1&quot; does not exist.</source>
        <translation>O Corvimo ID “%1” não existe.</translation>
    </message>
    <message>
        <source>The server with this Corvimo ID is offline. Make sure that it is switched on.</source>
        <translation>O servidor com este Corvimo ID está offline. Verifique se ele está ligado.</translation>
    </message>
    <message>
        <source>Corvimo Server is not installed or not running on this server.</source>
        <translation>O Corvimo Server não está instalado ou não está em execução neste servidor.</translation>
    </message>
    <message>
        <source>The server is down for maintenance. Syncing continues when it is available again.</source>
        <translation>O servidor está em manutenção. A sincronização continuará quando ele estiver disponível novamente.</translation>
    </message>
    <message>
        <source>Corvimo Server is too old for this client. Ask the administrator to update it to version %1 or later.</source>
        <translation>O Corvimo Server é muito antigo para este cliente. Peça ao administrador para atualizá-lo para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>This client is too old for Corvimo Server. Update it to version %1 or later.</source>
        <translation>Este cliente é muito antigo para o Corvimo Server. Atualize-o para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Too many clients are connected to the server. Try again later.</source>
        <translation>Há clientes demais conectados ao servidor. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>This computer was blocked after too many failed attempts. Ask the administrator to unblock it.</source>
        <translation>Este computador foi bloqueado após um excesso de tentativas malsucedidas. Peça ao administrador para desbloqueá-lo.</translation>
    </message>
    <message>
        <source>A firewall may be blocking Corvimo Client. Allow Corvimo Client to use port %1.</source>
        <translation>Um firewall pode estar bloqueando o Corvimo Client. Permita que o Corvimo Client use a porta %1.</translation>
    </message>
    <message>
        <source>A secure connection could not be set up: %1</source>
        <translation>Não foi possível estabelecer uma conexão segura: %1</translation>
    </message>
    <message>
        <source>An unknown error occurred (code %1).</source>
        <translation>Ocorreu um erro desconhecido (código %1).</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar conexão</translation>
    </message>
    <message>
        <source>Remove connection</source>
        <translation>Remover conexão</translation>
    </message>
    <message>
        <source>Do you want to remove the connection to %1? Its sync tasks are deleted, but your files stay.</source>
        <translation>Deseja remover a conexão com %1? As tarefas de sincronização dela serão excluídas, mas seus arquivos permanecem.</translation>
    </message>
    <message>
        <source>Files not uploaded yet: %1.</source>
        <translation>Arquivos ainda não enviados: %1.</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avançado</translation>
    </message>
    <message>
        <source>Last connected on %1</source>
        <translation>Última conexão em %1</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Use a proxy server if your network needs one to reach the Internet.</source>
        <translation>Use um servidor proxy se sua rede precisar de um para acessar a internet.</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Não usar proxy</translation>
    </message>
    <message>
        <source>Use the proxy settings of this computer</source>
        <translation>Usar as configurações de proxy deste computador</translation>
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
        <translation>O proxy exige nome de usuário e senha</translation>
    </message>
    <message>
        <source>Do not use the proxy for local addresses</source>
        <translation>Não usar o proxy para endereços locais</translation>
    </message>
    <message>
        <source>Do not use the proxy for these addresses</source>
        <translation>Não usar o proxy para estes endereços</translation>
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
        <translation>Entrar no proxy</translation>
    </message>
    <message>
        <source>The proxy %1 asks for a user name and password.</source>
        <translation>O proxy %1 solicita um nome de usuário e uma senha.</translation>
    </message>
    <message>
        <source>The proxy did not accept the user name or password.</source>
        <translation>O proxy não aceitou o nome de usuário ou a senha.</translation>
    </message>
    <message>
        <source>The proxy %1 cannot be reached. Check its address and port.</source>
        <translation>Não é possível acessar o proxy %1. Verifique o endereço e a porta.</translation>
    </message>
    <message>
        <source>The proxy does not allow connections to %1.</source>
        <translation>O proxy não permite conexões com %1.</translation>
    </message>
    <message>
        <source>The proxy settings of this computer could not be read.</source>
        <translation>Não foi possível ler as configurações de proxy deste computador.</translation>
    </message>
    <message>
        <source>Enter the address of the proxy.</source>
        <translation>Digite o endereço do proxy.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificado</translation>
    </message>
    <message>
        <source>The certificate is not trusted</source>
        <translation>O certificado não é confiável</translation>
    </message>
    <message>
        <source>The certificate of %1 was not issued by a known authority. Somebody may be pretending to be your server.</source>
        <translation>O certificado de %1 não foi emitido por uma autoridade conhecida. Alguém pode estar se passando pelo seu servidor.</translation>
    </message>
    <message>
        <source>The server uses a certificate that it signed itself.</source>
        <translation>O servidor usa um certificado assinado por ele mesmo.</translation>
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
        <translation>O certificado de %1 não é o que foi usado antes. Pergunte ao administrador se ele foi renovado.</translation>
    </message>
    <message>
        <source>The certificate uses an algorithm that is no longer considered secure.</source>
        <translation>O certificado usa um algoritmo que não é mais considerado seguro.</translation>
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
        <translation>Confiar somente desta vez</translation>
    </message>
    <message>
        <source>Do not connect</source>
        <translation>Não conectar</translation>
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
        <translation>Tamanho da chave</translation>
    </message>
    <message>
        <source>Export certificate</source>
        <translation>Exportar certificado</translation>
    </message>
    <message>
        <source>The certificate was saved to &quot;%1&quot;.</source>
        <translation>O certificado foi salvo em “%1”.</translation>
    </message>
    <message>
        <source>Import certificate</source>
        <translation>Importar certificado</translation>
    </message>
    <message>
        <source>The file does not contain a valid certificate.</source>
        <translation>O arquivo não contém um certificado válido.</translation>
    </message>
    <message>
        <source>Do you want to remove the certificate of %1 from the trusted certificates?</source>
        <translation>Deseja remover o certificado de %1 dos certificados confiáveis?</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Armazenamento</translation>
    </message>
    <message>
        <source>%1 of %2 used</source>
        <translation>%1 de %2 usados</translation>
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
        <translation>Armazenamento por tipo de arquivo</translation>
    </message>
    <message>
        <source>Storage by folder</source>
        <translation>Armazenamento por pasta</translation>
    </message>
    <message>
        <source>Storage used by previous versions</source>
        <translation>Armazenamento usado por versões anteriores</translation>
    </message>
    <message>
        <source>Storage used by deleted files</source>
        <translation>Armazenamento usado por arquivos excluídos</translation>
    </message>
    <message>
        <source>Empty trash</source>
        <translation>Esvaziar lixeira</translation>
    </message>
    <message>
        <source>Do you want to empty the trash? The files in it cannot be brought back.</source>
        <translation>Deseja esvaziar a lixeira? Os arquivos nela não poderão ser recuperados.</translation>
    </message>
    <message>
        <source>The trash was emptied. %1 is free again.</source>
        <translation>A lixeira foi esvaziada. Espaço liberado: %1.</translation>
    </message>
    <message>
        <source>Calculating...</source>
        <translation>Calculando...</translation>
    </message>
    <message>
        <source>Your storage is almost full. Only %1 is left.</source>
        <translation>Seu armazenamento está quase cheio. Espaço restante: apenas %1.</translation>
    </message>
    <message>
        <source>Your storage is full</source>
        <translation>Seu armazenamento está cheio</translation>
    </message>
    <message>
        <source>New files cannot be uploaded until you delete some files or ask the administrator for more storage.</source>
        <translation>Não será possível enviar novos arquivos até você excluir alguns arquivos ou pedir mais armazenamento ao administrador.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; has reached its quota. New files in it cannot be uploaded.</source>
        <translation>A pasta “%1” atingiu sua cota. Não é possível enviar novos arquivos para ela.</translation>
    </message>
    <message>
        <source>The volume of Corvimo Server is full. Ask the administrator to make room.</source>
        <translation>O volume do Corvimo Server está cheio. Peça ao administrador para liberar espaço.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than the storage that is left (%2).</source>
        <translation>“%1” é maior que o armazenamento restante (%2).</translation>
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
        <translation>Espaço insuficiente em disco</translation>
    </message>
    <message>
        <source>There is not enough space on the disk &quot;%1&quot;. Syncing is paused until you free at least %2.</source>
        <translation>Não há espaço suficiente no disco “%1”. A sincronização ficará em pausa até você liberar pelo menos %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not downloaded because it needs %2 of disk space.</source>
        <translation>“%1” não foi baixado porque precisa de %2 de espaço em disco.</translation>
    </message>
    <message>
        <source>You can free up space with selective sync or by keeping files online only.</source>
        <translation>Você pode liberar espaço com a sincronização seletiva ou mantendo arquivos somente online.</translation>
    </message>
    <message>
        <source>Open storage settings</source>
        <translation>Abrir configurações de armazenamento</translation>
    </message>
    <message>
        <source>Keep at least this much disk space free</source>
        <translation>Manter pelo menos este espaço livre em disco</translation>
    </message>
    <message>
        <source>Downloads pause when less space is left.</source>
        <translation>Os downloads são pausados quando resta menos espaço.</translation>
    </message>
    <message>
        <source>The disk with the folder &quot;%1&quot; is not connected. Connect it to continue syncing.</source>
        <translation>O disco com a pasta “%1” não está conectado. Conecte-o para continuar a sincronização.</translation>
    </message>
    <message>
        <source>The disk &quot;%1&quot; is read-only. Changes from Corvimo Server cannot be saved on it.</source>
        <translation>O disco “%1” é somente leitura. As alterações do Corvimo Server não podem ser salvas nele.</translation>
    </message>
    <message>
        <source>There is not enough space for temporary files. Free at least %1.</source>
        <translation>Não há espaço suficiente para arquivos temporários. Libere pelo menos %1.</translation>
    </message>
    <message>
        <source>Temporary files</source>
        <translation>Arquivos temporários</translation>
    </message>
    <message>
        <source>Delete temporary files</source>
        <translation>Excluir arquivos temporários</translation>
    </message>
    <message>
        <source>Temporary files were deleted (%1).</source>
        <translation>Os arquivos temporários foram excluídos (%1).</translation>
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
        <translation>Usado</translation>
    </message>
    <message>
        <source>Largest files</source>
        <translation>Maiores arquivos</translation>
    </message>
    <message>
        <source>Delete or move files that you no longer need.</source>
        <translation>Exclua ou mova os arquivos de que não precisa mais.</translation>
    </message>
    <message>
        <source>Your storage grew by %1 this month.</source>
        <translation>Seu uso de armazenamento cresceu %1 neste mês.</translation>
    </message>
    <message>
        <source>At this rate your storage will be full on %1.</source>
        <translation>Neste ritmo, seu armazenamento estará cheio em %1.</translation>
    </message>
    <message>
        <source>Ask for more storage</source>
        <translation>Pedir mais armazenamento</translation>
    </message>
    <message>
        <source>Your request was sent to the administrator.</source>
        <translation>Sua solicitação foi enviada ao administrador.</translation>
    </message>
    <message>
        <source>Your request is waiting for an answer.</source>
        <translation>Sua solicitação aguarda uma resposta.</translation>
    </message>
    <message>
        <source>The quota of the group &quot;%1&quot; is used up.</source>
        <translation>A cota do grupo “%1” se esgotou.</translation>
    </message>
    <message>
        <source>%1 is ready.</source>
        <translation>O %1 está pronto.</translation>
    </message>
    <message>
        <source>Software update</source>
        <translation>Atualização de software</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <translation>Buscar atualizações</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Buscando atualizações...</translation>
    </message>
    <message>
        <source>Your version is the latest one.</source>
        <translation>Você tem a versão mais recente.</translation>
    </message>
    <message>
        <source>Version %1 of Corvimo Client is available.</source>
        <translation>A versão %1 do Corvimo Client está disponível.</translation>
    </message>
    <message>
        <source>Download and install</source>
        <translation>Baixar e instalar</translation>
    </message>
    <message>
        <source>Remind me later</source>
        <translation>Lembrar mais tarde</translation>
    </message>
    <message>
        <source>Skip this version</source>
        <translation>Pular esta versão</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Baixando...</translation>
    </message>
    <message>
        <source>The update is ready. Restart Corvimo Client to install it.</source>
        <translation>A atualização está pronta. Reinicie o Corvimo Client para instalá-la.</translation>
    </message>
    <message>
        <source>Restart now</source>
        <translation>Reiniciar agora</translation>
    </message>
    <message>
        <source>The update could not be installed. Your current version keeps working.</source>
        <translation>Não foi possível instalar a atualização. Sua versão atual continua funcionando.</translation>
    </message>
    <message>
        <source>Corvimo Client could not check for updates.</source>
        <translation>O Corvimo Client não conseguiu buscar atualizações.</translation>
    </message>
    <message>
        <source>Release notes</source>
        <translation>Notas da versão</translation>
    </message>
    <message>
        <source>Install updates automatically</source>
        <translation>Instalar atualizações automaticamente</translation>
    </message>
    <message>
        <source>%1 is initializing...</source>
        <translation>O %1 está sendo inicializado...</translation>
    </message>
    <message>
        <source>Your settings are being imported from the earlier version.</source>
        <translation>Suas configurações estão sendo importadas da versão anterior.</translation>
    </message>
    <message>
        <source>Your settings were imported. You can continue where you left off.</source>
        <translation>Suas configurações foram importadas. Você pode continuar de onde parou.</translation>
    </message>
    <message>
        <source>Some settings of the earlier version could not be imported. Check your sync tasks.</source>
        <translation>Algumas configurações da versão anterior não puderam ser importadas. Verifique suas tarefas de sincronização.</translation>
    </message>
    <message>
        <source>The update needs %1 of disk space.</source>
        <translation>A atualização precisa de %1 de espaço em disco.</translation>
    </message>
    <message>
        <source>This version is no longer supported. Install the update to continue syncing.</source>
        <translation>Esta versão não tem mais suporte. Instale a atualização para continuar a sincronização.</translation>
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
        <translation>Velocidade de download</translation>
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
        <translation>O Corvimo Client deixa espaço para outros programas que usam a rede.</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Agendamento</translation>
    </message>
    <message>
        <source>Choose the hours in which the limit applies.</source>
        <translation>Escolha os horários em que o limite se aplica.</translation>
    </message>
    <message>
        <source>All day</source>
        <translation>O dia todo</translation>
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
        <translation>Limpar agendamento</translation>
    </message>
    <message>
        <source>Enter a speed greater than 0.</source>
        <translation>Digite uma velocidade maior que 0.</translation>
    </message>
    <message>
        <source>Enter a speed between %1 and %2.</source>
        <translation>Digite uma velocidade entre %1 e %2.</translation>
    </message>
    <message>
        <source>The start must be earlier than the end.</source>
        <translation>O início deve ser anterior ao fim.</translation>
    </message>
    <message>
        <source>The administrator has limited the speed to %1.</source>
        <translation>O administrador limitou a velocidade a %1.</translation>
    </message>
    <message>
        <source>Files transferred at the same time</source>
        <translation>Arquivos transferidos ao mesmo tempo</translation>
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
        <translation>Transferido neste mês</translation>
    </message>
    <message>
        <source>Choose what Corvimo Client tells you about.</source>
        <translation>Escolha sobre o que o Corvimo Client deve avisar você.</translation>
    </message>
    <message>
        <source>When syncing is complete</source>
        <translation>Quando a sincronização for concluída</translation>
    </message>
    <message>
        <source>When a file cannot be synced</source>
        <translation>Quando um arquivo não puder ser sincronizado</translation>
    </message>
    <message>
        <source>When somebody shares an item with me</source>
        <translation>Quando alguém compartilhar um item comigo</translation>
    </message>
    <message>
        <source>When somebody comments on my files</source>
        <translation>Quando alguém comentar meus arquivos</translation>
    </message>
    <message>
        <source>When storage is almost full</source>
        <translation>Quando o armazenamento estiver quase cheio</translation>
    </message>
    <message>
        <source>When a backup is complete or has failed</source>
        <translation>Quando um backup for concluído ou falhar</translation>
    </message>
    <message>
        <source>When an update is available</source>
        <translation>Quando uma atualização estiver disponível</translation>
    </message>
    <message>
        <source>When the connection is lost</source>
        <translation>Quando a conexão for perdida</translation>
    </message>
    <message>
        <source>Play a sound</source>
        <translation>Reproduzir um som</translation>
    </message>
    <message>
        <source>Do not disturb</source>
        <translation>Não perturbe</translation>
    </message>
    <message>
        <source>Quiet hours</source>
        <translation>Horário de silêncio</translation>
    </message>
    <message>
        <source>No notifications until %1</source>
        <translation>Sem notificações até %1</translation>
    </message>
    <message>
        <source>Do not disturb me during presentations</source>
        <translation>Não me perturbar durante apresentações</translation>
    </message>
    <message>
        <source>Show file names in notifications</source>
        <translation>Mostrar nomes de arquivos nas notificações</translation>
    </message>
    <message>
        <source>Notifications are turned off in the system settings of this computer.</source>
        <translation>As notificações estão desativadas nos ajustes do sistema deste computador.</translation>
    </message>
    <message>
        <source>Open system settings</source>
        <translation>Abrir ajustes do sistema</translation>
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
        <translation>Você não tem notificações.</translation>
    </message>
    <message>
        <source>New notifications: %1</source>
        <translation>Novas notificações: %1</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos os arquivos estão atualizados.</translation>
    </message>
    <message>
        <source>The first sync is complete. Files now on this computer: %1.</source>
        <translation>A primeira sincronização foi concluída. Arquivos que agora estão neste computador: %1.</translation>
    </message>
    <message>
        <source>Many files were deleted</source>
        <translation>Muitos arquivos foram excluídos</translation>
    </message>
    <message>
        <source>%1 files were deleted from &quot;%2&quot;. Restore them if this was not intended.</source>
        <translation>%1 arquivos foram excluídos de “%2”. Restaure-os se essa não era a intenção.</translation>
    </message>
    <message>
        <source>%1 files were changed within a short time. If you did not do this, pause syncing and check your computer for malware.</source>
        <translation>%1 arquivos foram alterados em pouco tempo. Se não foi você, pause a sincronização e verifique se há malware no seu computador.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was moved. Tell Corvimo Client where it is now.</source>
        <translation>A pasta “%1” foi movida. Informe ao Corvimo Client onde ela está agora.</translation>
    </message>
    <message>
        <source>%1 commented on &quot;%2&quot;.</source>
        <translation>%1 comentou em “%2”.</translation>
    </message>
    <message>
        <source>Sync problems</source>
        <translation>Problemas de sincronização</translation>
    </message>
    <message>
        <source>These files could not be synced. Corvimo Client will try again when the cause is gone.</source>
        <translation>Não foi possível sincronizar estes arquivos. O Corvimo Client tentará novamente quando a causa for eliminada.</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Problemas: %1</translation>
    </message>
    <message>
        <source>There are no problems.</source>
        <translation>Não há problemas.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
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
        <translation>Tentar todos novamente</translation>
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
        <translation>Relatar um problema</translation>
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
        <translation>O arquivo está sendo usado por outro programa. Feche-o nesse programa para sincronizar o arquivo.</translation>
    </message>
    <message>
        <source>The file is locked by %1.</source>
        <translation>O arquivo está bloqueado por %1.</translation>
    </message>
    <message>
        <source>The file was deleted before it could be synced.</source>
        <translation>O arquivo foi excluído antes de poder ser sincronizado.</translation>
    </message>
    <message>
        <source>The file changed while it was being uploaded. It will be uploaded again.</source>
        <translation>O arquivo foi alterado durante o envio. Ele será enviado novamente.</translation>
    </message>
    <message>
        <source>The file was damaged during the transfer. It will be transferred again.</source>
        <translation>O arquivo foi danificado durante a transferência. Ele será transferido novamente.</translation>
    </message>
    <message>
        <source>The file cannot be read. Check its permissions.</source>
        <translation>Não é possível ler o arquivo. Verifique as permissões dele.</translation>
    </message>
    <message>
        <source>The file cannot be written to. Check its permissions.</source>
        <translation>Não é possível gravar no arquivo. Verifique as permissões dele.</translation>
    </message>
    <message>
        <source>The file is larger than the limit of %1.</source>
        <translation>O arquivo é maior que o limite de %1.</translation>
    </message>
    <message>
        <source>The file is too large for the file system of this disk.</source>
        <translation>O arquivo é grande demais para o sistema de arquivos deste disco.</translation>
    </message>
    <message>
        <source>The file is encrypted and cannot be opened on this computer.</source>
        <translation>O arquivo está criptografado e não pode ser aberto neste computador.</translation>
    </message>
    <message>
        <source>The virus scanner on Corvimo Server has blocked the file.</source>
        <translation>O antivírus do Corvimo Server bloqueou o arquivo.</translation>
    </message>
    <message>
        <source>The virus scanner on this computer has blocked the file.</source>
        <translation>O antivírus deste computador bloqueou o arquivo.</translation>
    </message>
    <message>
        <source>Files of this type are not allowed on Corvimo Server.</source>
        <translation>Arquivos deste tipo não são permitidos no Corvimo Server.</translation>
    </message>
    <message>
        <source>Devices, pipes and sockets cannot be synced.</source>
        <translation>Dispositivos, pipes e sockets não podem ser sincronizados.</translation>
    </message>
    <message>
        <source>Symbolic links that point outside the synced folder are not synced.</source>
        <translation>Links simbólicos que apontam para fora da pasta sincronizada não são sincronizados.</translation>
    </message>
    <message>
        <source>The alias &quot;%1&quot; points to an item that is not synced.</source>
        <translation>O alias “%1” aponta para um item que não é sincronizado.</translation>
    </message>
    <message>
        <source>The name is too long. Use at most %1 characters.</source>
        <translation>O nome é muito longo. Use no máximo %1 caracteres.</translation>
    </message>
    <message>
        <source>The path is too long. Shorten the names of its folders.</source>
        <translation>O caminho é muito longo. Encurte os nomes das pastas.</translation>
    </message>
    <message>
        <source>The name contains characters that are not allowed: %1</source>
        <translation>O nome contém caracteres que não são permitidos: %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; is reserved by the system.</source>
        <translation>O nome “%1” é reservado pelo sistema.</translation>
    </message>
    <message>
        <source>The name ends with a space or a period. Rename the item.</source>
        <translation>O nome termina com um espaço ou um ponto. Renomeie o item.</translation>
    </message>
    <message>
        <source>The name contains characters that cannot be read. Rename the item.</source>
        <translation>O nome contém caracteres que não podem ser lidos. Renomeie o item.</translation>
    </message>
    <message>
        <source>An item named &quot;%1&quot; already exists in this folder.</source>
        <translation>Já existe um item chamado “%1” nesta pasta.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Digite um nome.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; was not found.</source>
        <translation>A pasta “%1” não foi encontrada.</translation>
    </message>
    <message>
        <source>The folder was not deleted because it contains files that are not synced.</source>
        <translation>A pasta não foi excluída porque contém arquivos que não são sincronizados.</translation>
    </message>
    <message>
        <source>The folder could not be created.</source>
        <translation>Não foi possível criar a pasta.</translation>
    </message>
    <message>
        <source>The folder could not be deleted.</source>
        <translation>Não foi possível excluir a pasta.</translation>
    </message>
    <message>
        <source>You do not have permission to change this folder.</source>
        <translation>Você não tem permissão para alterar esta pasta.</translation>
    </message>
    <message>
        <source>You do not have permission to open this folder.</source>
        <translation>Você não tem permissão para abrir esta pasta.</translation>
    </message>
    <message>
        <source>The folder contains more than %1 items. Move some of them to subfolders.</source>
        <translation>A pasta contém mais de %1 itens. Mova alguns deles para subpastas.</translation>
    </message>
    <message>
        <source>The folder is nested too deeply.</source>
        <translation>A pasta está em um nível profundo demais.</translation>
    </message>
    <message>
        <source>The server is busy. Corvimo Client will try again in a few minutes.</source>
        <translation>O servidor está ocupado. O Corvimo Client tentará novamente em alguns minutos.</translation>
    </message>
    <message>
        <source>Corvimo Server reported an internal error. Ask the administrator to look at its log.</source>
        <translation>O Corvimo Server informou um erro interno. Peça ao administrador para verificar o log dele.</translation>
    </message>
    <message>
        <source>Corvimo Server accepts no changes at the moment.</source>
        <translation>O Corvimo Server não está aceitando alterações no momento.</translation>
    </message>
    <message>
        <source>The volume with this folder is not available on Corvimo Server.</source>
        <translation>O volume com esta pasta não está disponível no Corvimo Server.</translation>
    </message>
    <message>
        <source>The shared folder was removed from Corvimo Server.</source>
        <translation>A pasta compartilhada foi removida do Corvimo Server.</translation>
    </message>
    <message>
        <source>Syncing was turned off for this shared folder.</source>
        <translation>A sincronização foi desativada para esta pasta compartilhada.</translation>
    </message>
    <message>
        <source>The server sent an answer that Corvimo Client does not understand.</source>
        <translation>O servidor enviou uma resposta que o Corvimo Client não entende.</translation>
    </message>
    <message>
        <source>Your session has ended. Sign in again.</source>
        <translation>Sua sessão terminou. Entre novamente.</translation>
    </message>
    <message>
        <source>The data of Corvimo Server was reset. Set up your sync tasks again.</source>
        <translation>Os dados do Corvimo Server foram redefinidos. Configure suas tarefas de sincronização novamente.</translation>
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
        <translation>Não foi possível baixar “%1”.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be downloaded: %2</source>
        <translation>Não foi possível baixar “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be deleted: %2</source>
        <translation>Não foi possível excluir “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2</source>
        <translation>Não foi possível renomear “%1”: %2</translation>
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
        <translation>Permissão negada</translation>
    </message>
    <message>
        <source>The disk reported a read or write error. Check the disk for faults.</source>
        <translation>O disco informou um erro de leitura ou gravação. Verifique se há falhas no disco.</translation>
    </message>
    <message>
        <source>The disk was removed while files were being written.</source>
        <translation>O disco foi removido enquanto arquivos estavam sendo gravados.</translation>
    </message>
    <message>
        <source>Not enough memory. Close other programs and try again.</source>
        <translation>Memória insuficiente. Feche outros programas e tente novamente.</translation>
    </message>
    <message>
        <source>The sync database is damaged and will be rebuilt. This may take some time.</source>
        <translation>O banco de dados de sincronização está danificado e será reconstruído. Isso pode levar algum tempo.</translation>
    </message>
    <message>
        <source>The sync database is used by another program.</source>
        <translation>O banco de dados de sincronização está sendo usado por outro programa.</translation>
    </message>
    <message>
        <source>Rebuilding the sync database...</source>
        <translation>Reconstruindo o banco de dados de sincronização...</translation>
    </message>
    <message>
        <source>The sync database was rebuilt.</source>
        <translation>O banco de dados de sincronização foi reconstruído.</translation>
    </message>
    <message>
        <source>Your settings could not be read. The defaults are used.</source>
        <translation>Não foi possível ler suas configurações. Os padrões estão sendo usados.</translation>
    </message>
    <message>
        <source>Your settings could not be saved.</source>
        <translation>Não foi possível salvar suas configurações.</translation>
    </message>
    <message>
        <source>Changes in some folders may be noticed late because the system watches too many folders.</source>
        <translation>As alterações em algumas pastas podem demorar a ser percebidas porque o sistema monitora pastas demais.</translation>
    </message>
    <message>
        <source>The clock of this computer differs from the clock of the server by more than %1 minutes. Correct the time on this computer.</source>
        <translation>O relógio deste computador difere do relógio do servidor em mais de %1 minutos. Acerte a hora deste computador.</translation>
    </message>
    <message>
        <source>This action is not supported by Corvimo Server.</source>
        <translation>Esta ação não é compatível com o Corvimo Server.</translation>
    </message>
    <message>
        <source>The action was canceled.</source>
        <translation>A ação foi cancelada.</translation>
    </message>
    <message>
        <source>The action took too long and was stopped.</source>
        <translation>A ação demorou demais e foi interrompida.</translation>
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
        <translation>Falta um componente do Corvimo Client. Instale o cliente novamente.</translation>
    </message>
    <message>
        <source>The status icons cannot be shown because other programs already use all available icon slots.</source>
        <translation>Os ícones de status não podem ser mostrados porque outros programas já usam todos os lugares disponíveis para ícones.</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to read this folder. Allow it in the privacy settings of this computer.</source>
        <translation>O Corvimo Client precisa da sua permissão para ler esta pasta. Permita o acesso nos ajustes de privacidade deste computador.</translation>
    </message>
    <message>
        <source>If the problem remains, restart Corvimo Client.</source>
        <translation>Se o problema persistir, reinicie o Corvimo Client.</translation>
    </message>
    <message>
        <source>If the problem remains, ask the administrator.</source>
        <translation>Se o problema persistir, fale com o administrador.</translation>
    </message>
    <message>
        <source>If the problem remains, contact support and give the error code.</source>
        <translation>Se o problema persistir, entre em contato com o suporte e informe o código do erro.</translation>
    </message>
    <message>
        <source>Do you want to continue with the remaining files?</source>
        <translation>Deseja continuar com os arquivos restantes?</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Sign out</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Sign in to Corvimo Server</source>
        <translation>Entrar no Corvimo Server</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Mostrar senha</translation>
    </message>
    <message>
        <source>Forgot your password?</source>
        <translation>Esqueceu sua senha?</translation>
    </message>
    <message>
        <source>Stay signed in</source>
        <translation>Continuar conectado</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <translation>Entrando...</translation>
    </message>
    <message>
        <source>Signed in as %1</source>
        <translation>Conectado como %1</translation>
    </message>
    <message>
        <source>You are signed out.</source>
        <translation>Você saiu da sua conta.</translation>
    </message>
    <message>
        <source>Do you want to sign out? Syncing stops until you sign in again.</source>
        <translation>Deseja sair da sua conta? A sincronização será interrompida até você entrar novamente.</translation>
    </message>
    <message>
        <source>Sign in with your browser</source>
        <translation>Entrar com o navegador</translation>
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
        <translation>Digite seu nome de usuário como domínio\usuário se sua conta pertencer a um domínio.</translation>
    </message>
    <message>
        <source>Add account</source>
        <translation>Adicionar conta</translation>
    </message>
    <message>
        <source>Switch account</source>
        <translation>Trocar de conta</translation>
    </message>
    <message>
        <source>Remove account</source>
        <translation>Remover conta</translation>
    </message>
    <message>
        <source>Do you want to remove the account %1 from this computer? Your files stay on this computer and on Corvimo Server.</source>
        <translation>Deseja remover a conta %1 deste computador? Seus arquivos permanecem neste computador e no Corvimo Server.</translation>
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
        <translation>Alterar senha</translation>
    </message>
    <message>
        <source>Current password</source>
        <translation>Senha atual</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>Nova senha</translation>
    </message>
    <message>
        <source>Repeat the new password</source>
        <translation>Repita a nova senha</translation>
    </message>
    <message>
        <source>Your password was changed.</source>
        <translation>Sua senha foi alterada.</translation>
    </message>
    <message>
        <source>The administrator requires you to change your password.</source>
        <translation>O administrador exige que você altere sua senha.</translation>
    </message>
    <message>
        <source>Days until your password expires: %1.</source>
        <translation>Dias até sua senha expirar: %1.</translation>
    </message>
    <message>
        <source>The two passwords are not the same.</source>
        <translation>As duas senhas não são iguais.</translation>
    </message>
    <message>
        <source>The new password must differ from the current one.</source>
        <translation>A nova senha deve ser diferente da atual.</translation>
    </message>
    <message>
        <source>Enter your user name.</source>
        <translation>Digite seu nome de usuário.</translation>
    </message>
    <message>
        <source>Enter your password.</source>
        <translation>Digite sua senha.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong.</source>
        <translation>Nome de usuário ou senha incorretos.</translation>
    </message>
    <message>
        <source>The user name or the password is wrong. Attempts left: %1.</source>
        <translation>Nome de usuário ou senha incorretos. Tentativas restantes: %1.</translation>
    </message>
    <message>
        <source>Your account is disabled. Ask the administrator.</source>
        <translation>Sua conta está desativada. Fale com o administrador.</translation>
    </message>
    <message>
        <source>Your account has expired. Ask the administrator.</source>
        <translation>Sua conta expirou. Fale com o administrador.</translation>
    </message>
    <message>
        <source>You do not have permission to use Corvimo Server. Ask the administrator.</source>
        <translation>Você não tem permissão para usar o Corvimo Server. Fale com o administrador.</translation>
    </message>
    <message>
        <source>Your password has expired. Change it on Corvimo Server.</source>
        <translation>Sua senha expirou. Altere-a no Corvimo Server.</translation>
    </message>
    <message>
        <source>Your home folder is not available. Ask the administrator to turn on the home service.</source>
        <translation>Sua pasta pessoal não está disponível. Peça ao administrador para ativar o serviço de pastas pessoais.</translation>
    </message>
    <message>
        <source>The guest account cannot be used for syncing.</source>
        <translation>A conta de convidado não pode ser usada para sincronização.</translation>
    </message>
    <message>
        <source>All licenses of Corvimo Server are in use.</source>
        <translation>Todas as licenças do Corvimo Server estão em uso.</translation>
    </message>
    <message>
        <source>Name of this computer</source>
        <translation>Nome deste computador</translation>
    </message>
    <message>
        <source>Linked devices</source>
        <translation>Dispositivos vinculados</translation>
    </message>
    <message>
        <source>Do you want to unlink &quot;%1&quot;? It will be signed out and stop syncing.</source>
        <translation>Deseja desvincular “%1”? O dispositivo será desconectado da conta e deixará de sincronizar.</translation>
    </message>
    <message>
        <source>This computer was unlinked by %1. Sign in again to continue syncing.</source>
        <translation>Este computador foi desvinculado por %1. Entre novamente para continuar a sincronização.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message>
        <source>Delete the files on the device as well</source>
        <translation>Excluir também os arquivos do dispositivo</translation>
    </message>
    <message>
        <source>Two-step sign-in</source>
        <translation>Verificação em duas etapas</translation>
    </message>
    <message>
        <source>Enter the code that your authenticator app shows.</source>
        <translation>Digite o código mostrado no seu app autenticador.</translation>
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
        <translation>Verificando...</translation>
    </message>
    <message>
        <source>Trust this device</source>
        <translation>Confiar neste dispositivo</translation>
    </message>
    <message>
        <source>Do not ask again on this computer for this many days: %1</source>
        <translation>Não perguntar novamente neste computador por este número de dias: %1</translation>
    </message>
    <message>
        <source>Lost your phone?</source>
        <translation>Perdeu seu telefone?</translation>
    </message>
    <message>
        <source>Send a code by email</source>
        <translation>Enviar um código por e-mail</translation>
    </message>
    <message>
        <source>A code was sent to %1. It is valid for 10 minutes.</source>
        <translation>Um código foi enviado para %1. Ele é válido por 10 minutos.</translation>
    </message>
    <message>
        <source>The code could not be sent. Ask the administrator for help.</source>
        <translation>Não foi possível enviar o código. Peça ajuda ao administrador.</translation>
    </message>
    <message>
        <source>Use a recovery code</source>
        <translation>Usar um código de recuperação</translation>
    </message>
    <message>
        <source>Enter one of the recovery codes that you wrote down. Each code works once.</source>
        <translation>Digite um dos códigos de recuperação que você anotou. Cada código funciona uma vez.</translation>
    </message>
    <message>
        <source>Recovery codes left: %1.</source>
        <translation>Códigos de recuperação restantes: %1.</translation>
    </message>
    <message>
        <source>Use a security key</source>
        <translation>Usar uma chave de segurança</translation>
    </message>
    <message>
        <source>Insert your security key and touch it.</source>
        <translation>Insira sua chave de segurança e toque nela.</translation>
    </message>
    <message>
        <source>The security key was not recognized. Try another one.</source>
        <translation>A chave de segurança não foi reconhecida. Tente outra.</translation>
    </message>
    <message>
        <source>Approve the sign-in on your phone</source>
        <translation>Aprove o login no seu telefone</translation>
    </message>
    <message>
        <source>Waiting for your approval...</source>
        <translation>Aguardando sua aprovação...</translation>
    </message>
    <message>
        <source>Choose the number %1 on your phone.</source>
        <translation>Escolha o número %1 no seu telefone.</translation>
    </message>
    <message>
        <source>The sign-in was denied on your phone.</source>
        <translation>O login foi negado no seu telefone.</translation>
    </message>
    <message>
        <source>The request has expired. Send it again.</source>
        <translation>A solicitação expirou. Envie-a novamente.</translation>
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
        <translation>Digite o código.</translation>
    </message>
    <message>
        <source>The code is wrong. Check that the clock of your phone is right.</source>
        <translation>O código está incorreto. Verifique se o relógio do seu telefone está certo.</translation>
    </message>
    <message>
        <source>This code was used before. Wait for the next one.</source>
        <translation>Este código já foi usado. Aguarde o próximo.</translation>
    </message>
    <message>
        <source>Too many wrong codes. Minutes to wait before you try again: %1.</source>
        <translation>Códigos incorretos demais. Minutos até poder tentar novamente: %1.</translation>
    </message>
    <message>
        <source>The administrator requires two-step sign-in. Set it up on Corvimo Server first.</source>
        <translation>O administrador exige a verificação em duas etapas. Configure-a primeiro no Corvimo Server.</translation>
    </message>
    <message>
        <source>Set up two-step sign-in</source>
        <translation>Configurar a verificação em duas etapas</translation>
    </message>
    <message>
        <source>Scan this code with your authenticator app.</source>
        <translation>Escaneie este código com seu app autenticador.</translation>
    </message>
    <message>
        <source>Two-step sign-in is on.</source>
        <translation>A verificação em duas etapas está ativada.</translation>
    </message>
    <message>
        <source>Backup tasks</source>
        <translation>Tarefas de backup</translation>
    </message>
    <message>
        <source>A backup task copies folders on this computer to Corvimo Server and keeps previous versions.</source>
        <translation>Uma tarefa de backup copia pastas deste computador para o Corvimo Server e mantém versões anteriores.</translation>
    </message>
    <message>
        <source>Create backup task</source>
        <translation>Criar tarefa de backup</translation>
    </message>
    <message>
        <source>Edit backup task</source>
        <translation>Editar tarefa de backup</translation>
    </message>
    <message>
        <source>Delete backup task</source>
        <translation>Excluir tarefa de backup</translation>
    </message>
    <message>
        <source>Do you want to delete the backup task &quot;%1&quot;?</source>
        <translation>Deseja excluir a tarefa de backup “%1”?</translation>
    </message>
    <message>
        <source>Delete the backed-up files on Corvimo Server as well</source>
        <translation>Excluir também os arquivos do backup no Corvimo Server</translation>
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
        <translation>O que incluir no backup</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Adicionar pasta</translation>
    </message>
    <message>
        <source>Choose at least one folder to back up.</source>
        <translation>Escolha pelo menos uma pasta para o backup.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; no longer exists. It is left out of the backup.</source>
        <translation>A pasta “%1” não existe mais. Ela fica fora do backup.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Mesa</translation>
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
        <translation>Downloads</translation>
    </message>
    <message>
        <source>External disks</source>
        <translation>Discos externos</translation>
    </message>
    <message>
        <source>Where to store the backup</source>
        <translation>Onde armazenar o backup</translation>
    </message>
    <message>
        <source>This folder already holds a backup of another computer.</source>
        <translation>Esta pasta já contém um backup de outro computador.</translation>
    </message>
    <message>
        <source>When to back up</source>
        <translation>Quando fazer o backup</translation>
    </message>
    <message>
        <source>Whenever a file changes</source>
        <translation>Sempre que um arquivo for alterado</translation>
    </message>
    <message>
        <source>On a schedule</source>
        <translation>De acordo com um agendamento</translation>
    </message>
    <message>
        <source>Only when I start it</source>
        <translation>Somente quando eu iniciar</translation>
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
        <translation>A cada hora</translation>
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
        <translation>Quando um disco externo for conectado</translation>
    </message>
    <message>
        <source>Wake this computer for the backup</source>
        <translation>Despertar este computador para o backup</translation>
    </message>
    <message>
        <source>Back up now</source>
        <translation>Fazer backup agora</translation>
    </message>
    <message>
        <source>Stop backup</source>
        <translation>Parar backup</translation>
    </message>
    <message>
        <source>Do you want to stop the backup? Files that are already backed up are kept.</source>
        <translation>Deseja parar o backup? Os arquivos já copiados são mantidos.</translation>
    </message>
    <message>
        <source>Backing up...</source>
        <translation>Fazendo backup...</translation>
    </message>
    <message>
        <source>Backing up files: %1 of %2</source>
        <translation>Fazendo backup dos arquivos: %1 de %2</translation>
    </message>
    <message>
        <source>The backup is complete.</source>
        <translation>O backup foi concluído.</translation>
    </message>
    <message>
        <source>Last backup: %1</source>
        <translation>Último backup: %1</translation>
    </message>
    <message>
        <source>Next backup: %1</source>
        <translation>Próximo backup: %1</translation>
    </message>
    <message>
        <source>Not backed up yet</source>
        <translation>Nenhum backup ainda</translation>
    </message>
    <message>
        <source>The backup is complete. Files that could not be read: %1.</source>
        <translation>O backup foi concluído. Arquivos que não puderam ser lidos: %1.</translation>
    </message>
    <message>
        <source>The backup failed: %1</source>
        <translation>O backup falhou: %1</translation>
    </message>
    <message>
        <source>The backup scheduled for %1 was missed. It starts now.</source>
        <translation>O backup agendado para %1 não foi realizado. Ele está começando agora.</translation>
    </message>
    <message>
        <source>Days since the last backup of this computer: %1.</source>
        <translation>Dias desde o último backup deste computador: %1.</translation>
    </message>
    <message>
        <source>How long to keep versions</source>
        <translation>Por quanto tempo manter as versões</translation>
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
        <translation>Manter menos versões à medida que envelhecem</translation>
    </message>
    <message>
        <source>Encrypt the backup</source>
        <translation>Criptografar o backup</translation>
    </message>
    <message>
        <source>Encryption key</source>
        <translation>Chave de criptografia</translation>
    </message>
    <message>
        <source>Keep the key in a safe place. Without it the backup cannot be restored.</source>
        <translation>Guarde a chave em um lugar seguro. Sem ela, o backup não pode ser restaurado.</translation>
    </message>
    <message>
        <source>The encryption key is wrong.</source>
        <translation>A chave de criptografia está incorreta.</translation>
    </message>
    <message>
        <source>Restore files</source>
        <translation>Restaurar arquivos</translation>
    </message>
    <message>
        <source>Choose the files to restore and where to put them.</source>
        <translation>Escolha os arquivos a restaurar e onde colocá-los.</translation>
    </message>
    <message>
        <source>Restore to the original location</source>
        <translation>Restaurar para o local original</translation>
    </message>
    <message>
        <source>Replace existing files</source>
        <translation>Substituir arquivos existentes</translation>
    </message>
    <message>
        <source>Restoring files: %1 of %2</source>
        <translation>Restaurando arquivos: %1 de %2</translation>
    </message>
    <message>
        <source>All files were restored.</source>
        <translation>Todos os arquivos foram restaurados.</translation>
    </message>
    <message>
        <source>Files restored: %1. Files that could not be restored: %2.</source>
        <translation>Arquivos restaurados: %1. Arquivos que não puderam ser restaurados: %2.</translation>
    </message>
    <message>
        <source>Verify backup</source>
        <translation>Verificar backup</translation>
    </message>
    <message>
        <source>The backup is intact.</source>
        <translation>O backup está íntegro.</translation>
    </message>
    <message>
        <source>Damaged files in the backup: %1. They will be backed up again.</source>
        <translation>Arquivos danificados no backup: %1. Eles serão copiados novamente.</translation>
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
        <translation>Entrar em contato com o suporte</translation>
    </message>
    <message>
        <source>Send feedback</source>
        <translation>Enviar comentários</translation>
    </message>
    <message>
        <source>Thank you for using Corvimo Client.</source>
        <translation>Obrigado por usar o Corvimo Client.</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logs</translation>
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
        <translation>Logs detalhados deixam o cliente mais lento. Volte ao nível normal quando terminar.</translation>
    </message>
    <message>
        <source>Open log folder</source>
        <translation>Abrir pasta de logs</translation>
    </message>
    <message>
        <source>Save log</source>
        <translation>Salvar log</translation>
    </message>
    <message>
        <source>The log was saved to &quot;%1&quot;.</source>
        <translation>O log foi salvo em “%1”.</translation>
    </message>
    <message>
        <source>The log could not be saved.</source>
        <translation>Não foi possível salvar o log.</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Limpar log</translation>
    </message>
    <message>
        <source>Do you want to clear the log?</source>
        <translation>Deseja limpar o log?</translation>
    </message>
    <message>
        <source>Send log to support</source>
        <translation>Enviar log ao suporte</translation>
    </message>
    <message>
        <source>Sending the log...</source>
        <translation>Enviando o log...</translation>
    </message>
    <message>
        <source>The log was sent. Your report number is %1.</source>
        <translation>O log foi enviado. O número do seu relatório é %1.</translation>
    </message>
    <message>
        <source>The log could not be sent. Save it and send it by email.</source>
        <translation>Não foi possível enviar o log. Salve-o e envie-o por e-mail.</translation>
    </message>
    <message>
        <source>The log contains names of files and folders but not their contents.</source>
        <translation>O log contém nomes de arquivos e pastas, mas não seu conteúdo.</translation>
    </message>
    <message>
        <source>Send anonymous usage data to help improve Corvimo Client</source>
        <translation>Enviar dados de uso anônimos para ajudar a melhorar o Corvimo Client</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Start Corvimo Client when I sign in to this computer</source>
        <translation>Iniciar o Corvimo Client quando eu iniciar sessão neste computador</translation>
    </message>
    <message>
        <source>Show status icons on files and folders</source>
        <translation>Mostrar ícones de status em arquivos e pastas</translation>
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
        <translation>O idioma muda quando você reinicia o Corvimo Client.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Aparência</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clara</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Escura</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tamanho do texto</translation>
    </message>
    <message>
        <source>Do not sleep while files are being synced</source>
        <translation>Não entrar em repouso enquanto arquivos são sincronizados</translation>
    </message>
    <message>
        <source>Move files deleted on Corvimo Server to the trash</source>
        <translation>Mover para a lixeira os arquivos excluídos no Corvimo Server</translation>
    </message>
    <message>
        <source>Warn me before many files are deleted</source>
        <translation>Avisar antes que muitos arquivos sejam excluídos</translation>
    </message>
    <message>
        <source>Do you want to reset all settings? Your sync tasks stay as they are.</source>
        <translation>Deseja redefinir todas as configurações? Suas tarefas de sincronização não são alteradas.</translation>
    </message>
    <message>
        <source>This setting is managed by the administrator.</source>
        <translation>Esta configuração é gerenciada pelo administrador.</translation>
    </message>
    <message>
        <source>Your settings were saved.</source>
        <translation>Suas configurações foram salvas.</translation>
    </message>
    <message>
        <source>Do you want to discard your changes?</source>
        <translation>Deseja descartar suas alterações?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>On-demand files</source>
        <translation>Arquivos sob demanda</translation>
    </message>
    <message>
        <source>All files are listed on this computer, but a file is only downloaded when you open it.</source>
        <translation>Todos os arquivos aparecem neste computador, mas um arquivo só é baixado quando você o abre.</translation>
    </message>
    <message>
        <source>Use on-demand files</source>
        <translation>Usar “Arquivos sob demanda”</translation>
    </message>
    <message>
        <source>Do you want to use on-demand files for &quot;%1&quot;? Files already on this computer stay here.</source>
        <translation>Deseja usar o recurso “Arquivos sob demanda” para “%1”? Os arquivos que já estão neste computador permanecem aqui.</translation>
    </message>
    <message>
        <source>On-demand files are on.</source>
        <translation>O recurso “Arquivos sob demanda” está ativado.</translation>
    </message>
    <message>
        <source>Turn off on-demand files</source>
        <translation>Desativar “Arquivos sob demanda”</translation>
    </message>
    <message>
        <source>Do you want to turn off on-demand files? All files of this folder will be downloaded (%1).</source>
        <translation>Deseja desativar o recurso “Arquivos sob demanda”? Todos os arquivos desta pasta serão baixados (%1).</translation>
    </message>
    <message>
        <source>There is not enough space to download all files. %1 more is needed.</source>
        <translation>Não há espaço suficiente para baixar todos os arquivos. Espaço adicional necessário: %1.</translation>
    </message>
    <message>
        <source>Online only</source>
        <translation>Somente online</translation>
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
        <translation>Arquivos que ficarão disponíveis somente online: %1. Deseja continuar?</translation>
    </message>
    <message>
        <source>%1 of disk space was freed.</source>
        <translation>Espaço em disco liberado: %1.</translation>
    </message>
    <message>
        <source>Files that have not been uploaded yet stay on this computer.</source>
        <translation>Os arquivos que ainda não foram enviados permanecem neste computador.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open and stays on this computer.</source>
        <translation>“%1” está aberto e permanece neste computador.</translation>
    </message>
    <message>
        <source>Free up space automatically</source>
        <translation>Liberar espaço automaticamente</translation>
    </message>
    <message>
        <source>Make files online only when they have not been opened for this many days: %1</source>
        <translation>Manter somente online os arquivos não abertos por este número de dias: %1</translation>
    </message>
    <message>
        <source>Only when disk space is low</source>
        <translation>Somente quando houver pouco espaço em disco</translation>
    </message>
    <message>
        <source>%1 is downloading &quot;%2&quot;.</source>
        <translation>%1 está baixando “%2”.</translation>
    </message>
    <message>
        <source>Block downloads by this program</source>
        <translation>Bloquear downloads feitos por este programa</translation>
    </message>
    <message>
        <source>A program is opening many online-only files. Do you want to allow it?</source>
        <translation>Um programa está abrindo muitos arquivos somente online. Deseja permitir?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be opened because it is online only and Corvimo Client is not connected.</source>
        <translation>Não é possível abrir “%1” porque ele está disponível somente online e o Corvimo Client não está conectado.</translation>
    </message>
    <message>
        <source>Start Corvimo Client to open online-only files.</source>
        <translation>Inicie o Corvimo Client para abrir arquivos somente online.</translation>
    </message>
    <message>
        <source>On-demand files are not supported by this version of the system.</source>
        <translation>Esta versão do sistema não é compatível com o recurso “Arquivos sob demanda”.</translation>
    </message>
    <message>
        <source>On-demand files are not supported on this disk.</source>
        <translation>Este disco não é compatível com o recurso “Arquivos sob demanda”.</translation>
    </message>
    <message>
        <source>Allow the file provider extension in the system settings to use on-demand files.</source>
        <translation>Permita a extensão do provedor de arquivos nos ajustes do sistema para usar o recurso “Arquivos sob demanda”.</translation>
    </message>
    <message>
        <source>Show previews of online-only files</source>
        <translation>Mostrar pré-visualizações de arquivos somente online</translation>
    </message>
    <message>
        <source>The contents of online-only files cannot be searched on this computer.</source>
        <translation>Não é possível buscar no conteúdo de arquivos somente online neste computador.</translation>
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
        <translation>Boas-vindas ao Corvimo Client</translation>
    </message>
    <message>
        <source>Set up Corvimo Client in a few steps to have your files on every computer.</source>
        <translation>Configure o Corvimo Client em poucas etapas para ter seus arquivos em todos os computadores.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>Começar</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Etapa %1 de %2</translation>
    </message>
    <message>
        <source>Connect to your server</source>
        <translation>Conecte-se ao seu servidor</translation>
    </message>
    <message>
        <source>Enter the address of Corvimo Server and sign in with your account.</source>
        <translation>Digite o endereço do Corvimo Server e entre com sua conta.</translation>
    </message>
    <message>
        <source>What do you want to do?</source>
        <translation>O que você deseja fazer?</translation>
    </message>
    <message>
        <source>Sync files</source>
        <translation>Sincronizar arquivos</translation>
    </message>
    <message>
        <source>Keep files the same on this computer and on Corvimo Server.</source>
        <translation>Mantenha os arquivos iguais neste computador e no Corvimo Server.</translation>
    </message>
    <message>
        <source>Back up this computer</source>
        <translation>Fazer backup deste computador</translation>
    </message>
    <message>
        <source>Copy your files to Corvimo Server to protect them against loss.</source>
        <translation>Copie seus arquivos para o Corvimo Server para protegê-los contra perda.</translation>
    </message>
    <message>
        <source>Your files will be synced to &quot;%1&quot;.</source>
        <translation>Seus arquivos serão sincronizados com “%1”.</translation>
    </message>
    <message>
        <source>Team folders</source>
        <translation>Pastas de equipe</translation>
    </message>
    <message>
        <source>Choose the team folders that you want on this computer.</source>
        <translation>Escolha as pastas de equipe que você deseja neste computador.</translation>
    </message>
    <message>
        <source>You are not a member of any team folder.</source>
        <translation>Você não é membro de nenhuma pasta de equipe.</translation>
    </message>
    <message>
        <source>Sync options</source>
        <translation>Opções de sincronização</translation>
    </message>
    <message>
        <source>Sync all files</source>
        <translation>Sincronizar todos os arquivos</translation>
    </message>
    <message>
        <source>Corvimo Client needs your permission to show notifications and to read your folders.</source>
        <translation>O Corvimo Client precisa da sua permissão para mostrar notificações e ler suas pastas.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Check your choices before you start.</source>
        <translation>Verifique suas escolhas antes de começar.</translation>
    </message>
    <message>
        <source>Files to download: %1 (%2).</source>
        <translation>Arquivos a baixar: %1 (%2).</translation>
    </message>
    <message>
        <source>You are all set</source>
        <translation>Tudo pronto</translation>
    </message>
    <message>
        <source>Corvimo Client is now syncing your files. You can find it in the menu bar.</source>
        <translation>O Corvimo Client está sincronizando seus arquivos. Você o encontra na barra de menus.</translation>
    </message>
    <message>
        <source>Take a tour</source>
        <translation>Fazer um tour</translation>
    </message>
    <message>
        <source>Click the icon in the menu bar to see what is going on.</source>
        <translation>Clique no ícone na barra de menus para ver o que está acontecendo.</translation>
    </message>
    <message>
        <source>Right-click a file to share it or to see its versions.</source>
        <translation>Clique com o botão direito em um arquivo para compartilhá-lo ou ver suas versões.</translation>
    </message>
    <message>
        <source>The icons on your files show whether they are synced.</source>
        <translation>Os ícones nos seus arquivos mostram se eles estão sincronizados.</translation>
    </message>
    <message>
        <source>Do you want to quit the setup? You can continue later.</source>
        <translation>Deseja sair da configuração? Você pode continuar mais tarde.</translation>
    </message>
    <message>
        <source>Settings of an earlier installation were found. Do you want to use them?</source>
        <translation>Foram encontradas configurações de uma instalação anterior. Deseja usá-las?</translation>
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
        <translation>1 arquivo</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 arquivos</translation>
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
        <translation>Arquivos: %1, pastas: %2</translation>
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
        <translation>Saiba mais</translation>
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
