<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>O Lumora parou de sincronizar devido a um problema inesperado. Verifique o status da conexão.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Ativar compartilhamento</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>Uma versão mais recente do Lumora já está instalada.\nDeseja continuar?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Atualizando o Lumora. Aguarde...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Selecione a operação que deseja executar.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Conectando ao servidor...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Conexão instável</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}O Assistente de Instalação do [ProductName] foi encerrado prematuramente</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>A pasta compartilhada não está montada. Monte-a e tente novamente.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Download concluído.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Suas alterações não foram salvas. Deseja salvá-las agora?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Remove o [ProductName] do computador.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Não foi possível atualizar o Lumora. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Já existe uma pasta compartilhada com o mesmo nome. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>Você tem acesso somente leitura a esta pasta. As alterações feitas aqui não serão sincronizadas.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Sincronização interrompida</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Conectar a um novo servidor</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Somente download</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Sincronização seletiva de arquivos</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Selecionar arquivos para sincronizar</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Erro no ponto de montagem</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Feche esses aplicativos e clique em Repetir para continuar ou clique em Ignorar para continuar sem fechá-los.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Nome do computador</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos os arquivos estão atualizados.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Baixando...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Ocorreu um erro (código de erro: %1). Entre em contato com o Suporte Online da Quennet para obter ajuda.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Iniciando o Lumora...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Tem certeza de que deseja desvincular esta conexão? Os arquivos não serão mais sincronizados com o servidor.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>O servidor proxy requer autenticação</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Concluir</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>A pasta de sincronização no servidor foi alterada. Vincule esta conexão novamente.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerenciar</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>Você pode executar o Assistente de Instalação novamente mais tarde para instalar o [ProductName]. Clique em Concluir para sair.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Detectando o modo de conexão...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Arquivos atualizados recentemente</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>O nome de usuário ou a senha estão incorretos.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Não foi possível estabelecer uma conexão segura com o servidor. O certificado do servidor pode não ser confiável.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Estatísticas de transferência</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Não foi possível acessar o serviço de conexão. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Aviso de segurança</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Selecione o que o Lumora deve fazer quando a configuração for concluída.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>A pasta selecionada não está vazia. O conteúdo dela será mesclado com os arquivos do servidor.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>Não é possível sincronizar %1 porque o acesso foi negado ou o item está em uso.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Repetir</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Copiar link de compartilhamento</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Armazenamento cheio</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>A sincronização está pausada.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>A pasta remota não está disponível. Verifique se o volume no servidor está montado.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>O disco local está cheio. Libere espaço para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Histórico de downloads</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>Os recursos do programa selecionados estão sendo instalados.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Avançar &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Tamanho máximo do arquivo:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Alterar pasta</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Tarefas de sincronização</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Status do compartilhamento</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>%1 arquivos atualizados.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>O Lumora mantém os arquivos do seu computador sincronizados com o servidor. Copyright (C) Quennet. Todos os direitos reservados.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Página de gerenciamento</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Fechar os aplicativos automaticamente e tentar reiniciá-los.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Exibir informações de conexão e sincronização.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Clique no botão Concluir para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Sobre o Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuração manual de proxy</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostrar ícones de status de sincronização em arquivos e pastas</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Ocorreu um conflito de arquivos. O arquivo foi renomeado para %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Alterar, reparar ou remover a instalação</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Parar de compartilhar</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Permite alterar a forma como os recursos são instalados.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Falha na autenticação</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Compartilhamento não encontrado</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Iniciar o [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Baixando</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Ocorreu um erro de protocolo durante a comunicação com o servidor.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>A sincronização seletiva requer uma versão mais recente do pacote do servidor. Atualize o pacote no servidor.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparar a instalação</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>Os seguintes aplicativos estão usando arquivos que precisam ser atualizados por esta instalação:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Seus arquivos, sincronizados em todos os computadores.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Mostrar ícones em arquivos excluídos da sincronização</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie o %1 para aplicar as novas configurações de idioma.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Verificando nome de usuário e senha...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Monitorando alterações nos arquivos...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Novo compartilhamento</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>O [ProductName] não tem recursos que possam ser selecionados separadamente.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Uma nova versão está disponível. Clique para atualizar.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Selecionar pastas para sincronizar</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Serviço desativado</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Vincular novamente</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Não é possível detectar imediatamente as alterações em unidades de rede. O Lumora as verificará em intervalos regulares.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Bem-vindo à Manutenção da Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Voltar</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criado em</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>A versão do servidor é muito antiga. Atualize o pacote de servidor do Lumora.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>Eu &amp;aceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>O serviço de sincronização no servidor está desativado. Peça ao administrador para ativá-lo.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Procurar versões anteriores</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sem proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Nenhuma configuração foi alterada.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações na área de trabalho</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Esta versão do Lumora já está instalada.\nDeseja reinstalá-la?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>O Assistente de Instalação do [ProductName] foi encerrado prematuramente devido a um erro. O sistema não foi modificado.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Arquivos em uso</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Configurações de rede</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Editar lista de exclusões</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Mesclar arquivos existentes ao vincular uma pasta</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Download cancelado.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Indexando a pasta. Aguarde...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Ocorreu um erro inesperado. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>Compartilhando %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>O ID do servidor é inválido ou não existe.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Mantenha seus arquivos atualizados em todos os seus computadores.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Opções gerais</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Não foi possível conectar ao servidor. Verifique sua conexão de rede.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativo</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>A pasta selecionada é um ponto de montagem. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Verificando dados...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Tem certeza de que deseja parar de compartilhar esta pasta?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorar</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Padrão do sistema</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Iniciar o Lumora automaticamente quando eu entrar</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para instalar o [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Compartilhamento ativado</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Re&amp;parar</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Insira um número de porta válido (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leia atentamente o seguinte contrato de licença.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>A instalação do Lumora requer privilégios de administrador.\nDeseja continuar mesmo assim?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>A pasta de sincronização local não foi encontrada. Ela pode ter sido movida ou excluída.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Conexão direta</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Sincronização seletiva de pastas</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Nome do compartilhamento</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Nomes de arquivo a excluir:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Não há versões anteriores disponíveis para este arquivo.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>O servidor está sem espaço em disco. Libere espaço no servidor para continuar a sincronização.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Ocorreu um erro do sistema durante a conexão com o servidor.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>O link de compartilhamento de %1 foi copiado para a área de transferência.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Usar as configurações de proxy do sistema</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Tem certeza de que deseja excluir este compartilhamento?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Você esgotou sua cota de armazenamento no servidor. Exclua alguns arquivos ou entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Alterar pasta local</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}O Assistente de Instalação do [ProductName] foi interrompido</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Reparar para reparar a instalação do [ProductName]. Clique em Voltar para revisar ou alterar as configurações de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Modo de conexão</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>As pastas desmarcadas serão removidas deste computador, mas permanecerão no servidor. Deseja continuar?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Versão incompatível</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Conectado com êxito.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alguns arquivos que precisam ser atualizados estão em uso no momento.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando configurações...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Permissão negada</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continuar mesmo assim</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>A configuração foi concluída. O Lumora começará agora a sincronizar seus arquivos.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Pasta não vazia</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Não foi possível obter as versões anteriores deste arquivo.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Informações de conexão</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>Não foi possível verificar o certificado SSL do servidor.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Endereço IP</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>A pasta de sincronização no servidor não corresponde à pasta à qual esta conexão foi vinculada.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Armazenamento local</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Enviando</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Esta versão do Lumora é muito antiga para se conectar ao servidor. Atualize o Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome de usuário:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Usar um ícone monocromático na área de notificação</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>A pasta selecionada não está vazia. Escolha uma pasta vazia ou mescle o conteúdo dela com o servidor.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para remover o [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Processando %1 arquivo(s)...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Mesclar</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>A pasta selecionada é somente leitura. Escolha uma pasta na qual você tenha permissão de gravação.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Escolher uma pasta local</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Desvincular conexão</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Usar uma conexão segura (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Os arquivos que corresponderem a estas regras não serão sincronizados.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Remover para remover o [ProductName] do computador. Clique em Voltar para revisar ou alterar as configurações de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Iniciar agora</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Você optou por remover o programa do computador.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Falha ao inicializar o Lumora. Reinicie o aplicativo.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Falha na autenticação. Verifique o nome de usuário e a senha.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Configure o Lumora para começar a sincronizar seus arquivos.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>Não foi possível excluir o compartilhamento. Tente novamente.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Os arquivos desta pasta serão mesclados com os arquivos do servidor. Se dois arquivos tiverem o mesmo nome, ambos serão mantidos e um deles será renomeado.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Não é possível baixar este arquivo.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID do servidor</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Esta pasta do servidor já está vinculada a outra pasta de sincronização neste computador.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>Detalhes do endereço IP</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Ação de clique duplo</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Erro de sincronização</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Separe vários nomes com vírgulas. Use * para corresponder a quaisquer caracteres.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Insira o endereço e a porta do servidor proxy.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Remover a instalação</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Instalação permite alterar a forma como os recursos do [ProductName] são instalados no computador ou removê-lo do computador. Clique em Avançar para continuar ou em Cancelar para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Configurações avançadas</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testando a conexão...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Pasta somente leitura</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Alterar a instalação</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Pasta do servidor alterada</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Os links de compartilhamento não estão disponíveis enquanto você estiver conectado por meio do serviço de retransmissão.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Arquivos excluídos da sincronização</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Visão geral</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Abrir pasta do Lumora</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>A conexão com o servidor foi perdida. O Lumora tentará se reconectar.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Conexão segura</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Ocorreu um erro no banco de dados. Reinicie o Lumora.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Bem-vindo ao Assistente de Instalação do [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Contrato de Licença do Usuário Final</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Compartilhamento</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Direção da sincronização:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Sincronizando %1 arquivos no momento.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Status:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Bem-vindo ao %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Não é possível criar um link de compartilhamento para este item.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Informações de status</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Escolha uma pasta local para sincronizar com o servidor.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Tem certeza de que deseja cancelar a instalação do [ProductName]?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Instalando o [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>A pasta de sincronização está em uma unidade que não está conectada. Conecte a unidade e tente novamente.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Endereço:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Insira um nome de usuário.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Não foi possível ativar o compartilhamento. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Rede local (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>O Lumora está pronto.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>O Assistente de Instalação está pronto para iniciar o reparo do [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Instalar para iniciar a instalação. Clique em Voltar para revisar ou alterar as configurações de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Não sincronizar arquivos maiores que o tamanho máximo</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Falha no download.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;mover</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Editar conexão</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Tentar sincronizar novamente</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>Uma nova pasta foi compartilhada com você.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>O [ProductName] foi instalado com êxito.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Para instalar o programa mais tarde, execute o Assistente de Instalação novamente. Clique no botão Concluir para fechar este assistente.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>A instalação do [ProductName] foi interrompida. O sistema não foi modificado.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Alterar</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Eu &amp;não aceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Pasta de sincronização local</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Atualizando...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Deseja desvincular este computador do servidor? Seus arquivos locais não serão excluídos.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Sincronizar arquivos e pastas com o prefixo %1.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Você atingiu o número máximo de compartilhamentos.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Adicionar conexão</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>Quando ocorrer um conflito:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>O Assistente de Instalação está pronto para iniciar a instalação do [ProductName].</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Lista de exclusões:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Instalação instalará o [ProductName] no computador. Clique em Avançar para continuar ou em Cancelar para sair do Assistente de Instalação.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Esta conexão está inativa.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>O Lumora já está em execução.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Abrir o Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>O Lumora está sendo inicializado...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Conexão por retransmissão</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para reparar o [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Aguarde enquanto o Assistente de Instalação instala o [ProductName]. Isso pode levar vários minutos.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Extensões de arquivo:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Repara erros na instalação mais recente substituindo arquivos e atalhos ausentes ou danificados.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>&amp;Não fechar os aplicativos. Será necessário reiniciar.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Assistente de Instalação do [ProductName] concluído</translation>
    </message>
</context>
</TS>
