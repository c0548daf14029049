<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora parou de sincronizar devido a um problema inesperado. Verifique o estado da ligação.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Ativar partilha</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>Já está instalada uma versão mais recente de Lumora.\nPretende continuar?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>A atualizar Lumora. Aguarde...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Configuração de [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Selecione a operação que pretende efetuar.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>A ligar ao servidor...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Ligação instável</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}O Assistente de Configuração de [ProductName] terminou prematuramente</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>A pasta partilhada não está montada. Monte-a e tente novamente.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Transferência concluída.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>As alterações não foram guardadas. Pretende guardá-las agora?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Remove [ProductName] do computador.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Não foi possível atualizar Lumora. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Já existe uma pasta partilhada com o mesmo nome. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>Tem acesso só de leitura a esta pasta. As alterações que efetuar aqui não serão sincronizadas.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Sincronização interrompida</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Ligar a um novo servidor</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Apenas transferência</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Sincronização seletiva de ficheiros</translation>
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
        <translation>Selecionar ficheiros para sincronizar</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Erro no ponto de montagem</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Feche estas aplicações e clique em Repetir para continuar ou clique em Ignorar para continuar sem as fechar.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Nome do computador</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos os ficheiros estão atualizados.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>A transferir...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Ocorreu um erro (código de erro: %1). Contacte o Suporte Online da Quennet para obter ajuda.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Lumora está a arrancar...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Tem a certeza de que pretende desassociar esta ligação? Os ficheiros deixarão de ser sincronizados com o servidor.</translation>
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
        <translation>A pasta de sincronização no servidor foi alterada. Volte a associar esta ligação.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerir</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>Pode executar novamente o Assistente de Configuração mais tarde para instalar [ProductName]. Clique em Concluir para sair.</translation>
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
        <translation>A detetar o modo de ligação...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Ficheiros atualizados recentemente</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>O nome de utilizador ou a palavra-passe estão incorretos.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Não foi possível estabelecer uma ligação segura ao servidor. O certificado do servidor pode não ser fidedigno.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Estatísticas de transferência</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Não é possível aceder ao serviço de ligação. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Aviso de segurança</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Selecione o que Lumora deve fazer quando a configuração terminar.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>A pasta selecionada não está vazia. O respetivo conteúdo será combinado com os ficheiros do servidor.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>Não é possível sincronizar %1 porque o acesso foi negado ou porque está a ser utilizado.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Repetir</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Copiar ligação de partilha</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Armazenamento cheio</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>A sincronização está em pausa.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>A pasta remota não está disponível. Certifique-se de que o volume no servidor está montado.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>O disco local está cheio. Liberte espaço para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Histórico de transferências</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>As funcionalidades do programa que selecionou estão a ser instaladas.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Seguinte &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Tamanho máximo de ficheiro:</translation>
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
        <translation>Estado da partilha</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>%1 ficheiros atualizados.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora mantém os ficheiros do computador sincronizados com o servidor. Copyright (C) Quennet. Todos os direitos reservados.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Página de gestão</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Fechar as aplicações automaticamente e tentar reiniciá-las.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Ver informações de ligação e sincronização.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Clique no botão Concluir para sair do Assistente de Configuração.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Acerca de Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuração manual do proxy</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostrar ícones de estado da sincronização em ficheiros e pastas</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Ocorreu um conflito de ficheiros. O nome do ficheiro foi alterado para %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Alterar, reparar ou remover a instalação</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Deixar de partilhar</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome do ficheiro</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Permite alterar a forma como as funcionalidades são instaladas.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Falha na autenticação</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Partilha não encontrada</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Iniciar [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>A transferir</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Palavra-passe:</translation>
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
        <translation>A carregar...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>As seguintes aplicações estão a utilizar ficheiros que têm de ser atualizados por esta configuração:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Os seus ficheiros, sincronizados em todos os computadores.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Mostrar ícones nos ficheiros excluídos da sincronização</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie %1 para aplicar as novas definições de idioma.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>A verificar o nome de utilizador e a palavra-passe...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>A monitorizar alterações nos ficheiros...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nova partilha</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] não tem funcionalidades que possam ser selecionadas individualmente.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Está disponível uma nova versão. Clique para atualizar.</translation>
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
        <translation>Voltar a associar</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Não é possível detetar imediatamente as alterações em unidades de rede. Lumora irá verificá-las em intervalos regulares.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Bem-vindo à Manutenção da Configuração de [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Anterior</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Data de criação</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>A versão do servidor é demasiado antiga. Atualize o pacote de servidor de Lumora.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>&amp;Aceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>O serviço de sincronização no servidor está desativado. Peça ao administrador para o ativar.</translation>
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
        <translation>Nenhuma definição foi alterada.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações no ambiente de trabalho</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Esta versão de Lumora já está instalada.\nPretende reinstalá-la?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>O Assistente de Configuração de [ProductName] terminou prematuramente devido a um erro. O sistema não foi modificado.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Ficheiros em utilização</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Definições de rede</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Editar lista de exclusões</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Combinar ficheiros existentes ao associar uma pasta</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Transferência cancelada.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>A indexar a pasta. Aguarde...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Ocorreu um erro inesperado. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>A partilhar %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>O ID do servidor é inválido ou não existe.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Mantenha os seus ficheiros atualizados em todos os seus computadores.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Opções gerais</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desassociar</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Não é possível ligar ao servidor. Verifique a ligação de rede.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativo</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Só de leitura</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>A pasta selecionada é um ponto de montagem. Escolha outra pasta.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>A verificar dados...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Tem a certeza de que pretende deixar de partilhar esta pasta?</translation>
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
        <translation>Predefinição do sistema</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Iniciar Lumora automaticamente quando eu iniciar sessão</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para instalar [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Partilha ativada</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Re&amp;parar</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Introduza um número de porta válido (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leia atentamente o seguinte contrato de licença.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>A instalação de Lumora requer privilégios de administrador.\nPretende continuar mesmo assim?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Não foi possível encontrar a pasta de sincronização local. Pode ter sido movida ou eliminada.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Ligação direta</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Sincronização seletiva de pastas</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Nome da partilha</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Nomes de ficheiro a excluir:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Não existem versões anteriores disponíveis para este ficheiro.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>O servidor não tem espaço em disco. Liberte espaço no servidor para continuar a sincronização.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Ocorreu um erro de sistema ao ligar ao servidor.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>A ligação de partilha de ficheiros de %1 foi copiada para a área de transferência.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Utilizar as definições de proxy do sistema</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Tem a certeza de que pretende eliminar esta partilha?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Esgotou a sua quota de armazenamento no servidor. Elimine alguns ficheiros ou contacte o administrador.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Alterar pasta local</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}O Assistente de Configuração de [ProductName] foi interrompido</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Reparar para reparar a instalação de [ProductName]. Clique em Anterior para rever ou alterar as definições de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Modo de ligação</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>As pastas que desmarcar serão removidas deste computador, mas permanecerão no servidor. Pretende continuar?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Versão incompatível</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Ligação efetuada com êxito.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Alguns ficheiros que têm de ser atualizados estão atualmente em utilização.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>A aplicar definições...</translation>
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
        <translation>A preparar...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>A configuração está concluída. Lumora vai agora começar a sincronizar os seus ficheiros.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Pasta não vazia</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Não é possível obter as versões anteriores deste ficheiro.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Informações da ligação</translation>
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
        <translation>A pasta de sincronização no servidor não corresponde à pasta à qual esta ligação foi associada.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Armazenamento local</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>A enviar</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Esta versão de Lumora é demasiado antiga para ligar ao servidor. Atualize Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome de utilizador:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Utilizar um ícone monocromático na área de notificação</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>A pasta selecionada não está vazia. Escolha uma pasta vazia ou combine o respetivo conteúdo com o servidor.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para remover [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>A processar %1 ficheiro(s)...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>A pasta selecionada é só de leitura. Escolha uma pasta na qual tenha permissão de escrita.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Escolher uma pasta local</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Desassociar ligação</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Utilizar uma ligação segura (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Os ficheiros que correspondam a estas regras não serão sincronizados.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Remover para remover [ProductName] do computador. Clique em Anterior para rever ou alterar as definições de instalação. Clique em Cancelar para sair do assistente.</translation>
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
        <translation>Optou por remover o programa do computador.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Falha ao inicializar Lumora. Reinicie a aplicação.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Falha na autenticação. Verifique o nome de utilizador e a palavra-passe.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Configure Lumora para começar a sincronizar os seus ficheiros.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>Não foi possível eliminar a partilha. Tente novamente.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Os ficheiros desta pasta serão combinados com os ficheiros do servidor. Se dois ficheiros tiverem o mesmo nome, ambos são mantidos e o nome de um deles é alterado.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Não é possível transferir este ficheiro.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID do servidor</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Esta pasta do servidor já está associada a outra pasta de sincronização neste computador.</translation>
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
        <translation>Ação de duplo clique</translation>
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
        <translation>Separe vários nomes com vírgulas. Utilize * para corresponder a quaisquer carateres.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Introduza o endereço e a porta do servidor proxy.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Remover a instalação</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Configuração permite alterar a forma como as funcionalidades de [ProductName] são instaladas no computador ou remover o programa do computador. Clique em Seguinte para continuar ou em Cancelar para sair do Assistente de Configuração.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Definições avançadas</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A testar a ligação...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Pasta só de leitura</translation>
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
        <translation>As ligações de partilha não estão disponíveis enquanto estiver ligado através do serviço de retransmissão.</translation>
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
        <translation>Ficheiros excluídos</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Descrição geral</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Abrir pasta de Lumora</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>A ligação ao servidor foi perdida. Lumora vai tentar restabelecer a ligação.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Ligação segura</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Ocorreu um erro na base de dados. Reinicie Lumora.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Bem-vindo ao Assistente de Configuração de [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Contrato de Licença de Utilizador Final</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Partilha</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Direção da sincronização:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>A sincronizar %1 ficheiros.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Bem-vindo a %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Não é possível criar uma ligação de partilha para este item.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Informações de estado</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Escolha uma pasta local para sincronizar com o servidor.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Tem a certeza de que pretende cancelar a instalação de [ProductName]?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]A instalar [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>A pasta de sincronização está numa unidade que não está ligada. Ligue a unidade e tente novamente.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Endereço:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Introduza um nome de utilizador.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Não foi possível ativar a partilha. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Rede local (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora pronta.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>O Assistente de Configuração está pronto para iniciar a reparação de [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Clique em Instalar para iniciar a instalação. Clique em Anterior para rever ou alterar as definições de instalação. Clique em Cancelar para sair do assistente.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Não sincronizar ficheiros maiores do que o tamanho máximo</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>A transferência falhou.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;mover</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Editar ligação</translation>
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
        <translation>Foi partilhada uma nova pasta consigo.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>A instalação de [ProductName] foi concluída com êxito.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Para instalar o programa mais tarde, execute novamente o Assistente de Configuração. Clique no botão Concluir para fechar este assistente.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>A configuração de [ProductName] foi interrompida. O sistema não foi modificado.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Alterar</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;Não aceito os termos do Contrato de Licença</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Pasta de sincronização local</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>A atualizar...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Pretende desassociar este computador do servidor? Os ficheiros locais não serão eliminados.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Sincronizar ficheiros e pastas com o prefixo %1.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Atingiu o número máximo de partilhas.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Adicionar ligação</translation>
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
        <translation>O Assistente de Configuração está pronto para iniciar a instalação de [ProductName].</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Lista de exclusões:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>O Assistente de Configuração irá instalar [ProductName] no computador. Clique em Seguinte para continuar ou em Cancelar para sair do Assistente de Configuração.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Esta ligação está inativa.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora já está em execução.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Abrir Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora a iniciar...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Ligação por retransmissão</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Pronto para reparar [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Aguarde enquanto o Assistente de Configuração instala [ProductName]. Esta operação pode demorar vários minutos.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Extensões de ficheiro:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Repara erros na instalação mais recente substituindo ficheiros e atalhos em falta ou danificados.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>&amp;Não fechar as aplicações. Será necessário reiniciar.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Assistente de Configuração de [ProductName] concluído</translation>
    </message>
</context>
</TS>
