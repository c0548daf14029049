<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora ha dejado de sincronizar debido a un problema inesperado. Compruebe el estado de la conexión.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Activar uso compartido</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>Ya hay instalada una versión más reciente de Lumora.\n¿Desea continuar?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Actualizando Lumora. Espere...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Seleccione la operación que desea realizar.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Conectando con el servidor...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Conexión inestable</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}El Asistente para la instalación de [ProductName] finalizó antes de tiempo</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>La carpeta compartida no está montada. Móntela e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Descarga completada.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>No se han guardado los cambios. ¿Desea guardarlos ahora?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Quita [ProductName] del equipo.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>No se pudo actualizar Lumora. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Ya existe una carpeta compartida con el mismo nombre. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>Tiene acceso de solo lectura a esta carpeta. Los cambios que realice aquí no se sincronizarán.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Sincronización detenida</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Conectar con un nuevo servidor</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Puerto:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Solo descarga</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Sincronización selectiva de archivos</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Seleccionar archivos para sincronizar</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Error del punto de montaje</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Cierre estas aplicaciones y haga clic en Reintentar para continuar, o haga clic en Omitir para continuar sin cerrarlas.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Nombre del equipo</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Todos los archivos están actualizados.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Descargando...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Se ha producido un error (código de error: %1). Póngase en contacto con el soporte en línea de Quennet para obtener ayuda.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Iniciando Lumora...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>¿Está seguro de que desea desvincular esta conexión? Los archivos ya no se sincronizarán con el servidor.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>El servidor proxy requiere autenticación</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Finalizar</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>La carpeta de sincronización del servidor ha cambiado. Vuelva a vincular esta conexión.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrar</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>Puede volver a ejecutar el Asistente para la instalación más adelante para instalar [ProductName]. Haga clic en Finalizar para salir.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Instalar</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Detectando el modo de conexión...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Archivos actualizados recientemente</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>El nombre de usuario o la contraseña no son correctos.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>No se pudo establecer una conexión segura con el servidor. Es posible que el certificado del servidor no sea de confianza.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Estadísticas de transferencia</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>No se puede acceder al servicio de conexión. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Advertencia de seguridad</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Seleccione qué debe hacer Lumora cuando finalice la instalación.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>La carpeta seleccionada no está vacía. Su contenido se combinará con los archivos del servidor.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>No se puede sincronizar %1 porque se ha denegado el permiso de acceso o está en uso.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Copiar enlace para compartir</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Almacenamiento lleno</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>La sincronización está en pausa.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Nombre de carpeta</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>La carpeta remota no está disponible. Asegúrese de que el volumen del servidor esté montado.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>El disco local está lleno. Libere espacio para continuar con la sincronización.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Historial de descargas</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>Se están instalando las características del programa que ha seleccionado.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Siguiente &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Tamaño máximo de archivo:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Cambiar carpeta</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Tareas de sincronización</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>Estado del uso compartido</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>Se han actualizado %1 archivos.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nombre de usuario</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora mantiene los archivos de su equipo sincronizados con su servidor. Copyright (C) Quennet. Todos los derechos reservados.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Página de administración</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Cerrar automáticamente las aplicaciones e intentar reiniciarlas.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Ver la información de conexión y sincronización.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Haga clic en el botón Finalizar para salir del Asistente para la instalación.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Acerca de Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuración manual del proxy</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Mostrar iconos de estado de sincronización en archivos y carpetas</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Se han producido conflictos de archivos. Se ha cambiado el nombre del archivo a %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Cambiar, reparar o quitar la instalación</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Dejar de compartir</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Le permite cambiar el modo en que se instalan las características.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Error de autenticación</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Recurso compartido no encontrado</translation>
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
        <translation>Descargando</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Se ha producido un error de protocolo al comunicarse con el servidor.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>La sincronización selectiva requiere una versión más reciente del paquete del servidor. Actualice el paquete en el servidor.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Reparar la instalación</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>Las siguientes aplicaciones están usando archivos que esta instalación debe actualizar:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Sus archivos, sincronizados en todos sus equipos.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Mostrar iconos en los archivos excluidos de la sincronización</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Reinicie %1 para aplicar la nueva configuración de idioma.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Comprobando el nombre de usuario y la contraseña...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Supervisando los cambios en los archivos...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nuevo recurso compartido</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] no tiene características que se puedan seleccionar por separado.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Hay una nueva versión disponible. Haga clic para actualizar.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Seleccionar carpetas para sincronizar</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Servicio desactivado</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Volver a vincular</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Los cambios en las unidades de red no se pueden detectar inmediatamente. Lumora los comprobará periódicamente.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Bienvenido al mantenimiento de la instalación de [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Atrás</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Fecha de creación</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>La versión del servidor es demasiado antigua. Actualice el paquete de servidor de Lumora.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>A&amp;cepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>El servicio de sincronización del servidor está desactivado. Pida al administrador que lo active.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Examinar versiones anteriores</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Sin proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>No se ha cambiado ninguna configuración.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificaciones de escritorio</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Esta versión de Lumora ya está instalada.\n¿Desea volver a instalarla?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>El Asistente para la instalación de [ProductName] finalizó antes de tiempo debido a un error. No se ha modificado el sistema.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Archivos en uso</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Configuración de red</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Editar lista de exclusión</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Combinar los archivos existentes al vincular una carpeta</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Descarga cancelada.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Indexando la carpeta. Espere...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Se ha producido un error inesperado. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>Compartiendo %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>El ID del servidor no es válido o no existe.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Mantenga sus archivos actualizados en todos sus equipos.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Opciones generales</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>No se puede conectar con el servidor. Compruebe la conexión de red.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactivo</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Solo lectura</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>La carpeta seleccionada es un punto de montaje. Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Comprobando datos...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>¿Está seguro de que desea dejar de compartir esta carpeta?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Predeterminado del sistema</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Iniciar Lumora automáticamente al iniciar sesión</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Listo para instalar [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Uso compartido activado</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>Re&amp;parar</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Escriba un número de puerto válido (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lea atentamente el siguiente contrato de licencia.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>La instalación de Lumora requiere privilegios de administrador.\n¿Desea continuar de todos modos?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>No se encuentra la carpeta de sincronización local. Es posible que se haya movido o eliminado.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Conexión directa</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Sincronización selectiva de carpetas</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Nombre del recurso compartido</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Nombres de archivo que se excluirán:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>No hay versiones anteriores disponibles para este archivo.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>El servidor no tiene espacio en disco. Libere espacio en el servidor para continuar con la sincronización.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Se ha producido un error del sistema al conectar con el servidor.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>El enlace para compartir %1 se ha copiado en el Portapapeles.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Usar la configuración de proxy del sistema</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>¿Está seguro de que desea eliminar este recurso compartido?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Ha agotado su cuota de almacenamiento en el servidor. Elimine algunos archivos o póngase en contacto con el administrador.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Cambiar carpeta local</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}Se interrumpió el Asistente para la instalación de [ProductName]</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Haga clic en Reparar para reparar la instalación de [ProductName]. Haga clic en Atrás para revisar o cambiar la configuración de la instalación. Haga clic en Cancelar para salir del asistente.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Modo de conexión</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Las carpetas que desmarque se quitarán de este equipo, pero se conservarán en el servidor. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Versiones no compatibles</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Conexión establecida correctamente.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Algunos archivos que deben actualizarse están en uso.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando la configuración...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Permiso denegado</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continuar de todos modos</translation>
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
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>La instalación ha finalizado. Lumora empezará ahora a sincronizar sus archivos.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Carpeta no vacía</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>No se pueden recuperar las versiones anteriores de este archivo.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Información de conexión</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>No se pudo comprobar el certificado SSL del servidor.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>La carpeta de sincronización del servidor no coincide con la carpeta a la que se vinculó esta conexión.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Almacenamiento local</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Subiendo</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Esta versión de Lumora es demasiado antigua para conectarse al servidor. Actualice Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Usar un icono monocromo en el área de notificación</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>La carpeta seleccionada no está vacía. Elija una carpeta vacía o combine su contenido con el servidor.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Listo para quitar [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Procesando %1 archivo(s)...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>La carpeta seleccionada es de solo lectura. Elija una carpeta en la que pueda escribir.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Elegir una carpeta local</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Desvincular conexión</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Usar una conexión segura (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Los archivos que coincidan con estas reglas no se sincronizarán.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Haga clic en Quitar para quitar [ProductName] del equipo. Haga clic en Atrás para revisar o cambiar la configuración de la instalación. Haga clic en Cancelar para salir del asistente.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Elegir otra carpeta</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Sincronización selectiva</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Iniciar ahora</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Ha elegido quitar el programa del equipo.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>No se pudo inicializar Lumora. Reinicie la aplicación.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Error de autenticación. Compruebe el nombre de usuario y la contraseña.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finalizar</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Configure Lumora para empezar a sincronizar sus archivos.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>No se pudo eliminar el recurso compartido. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Los archivos de esta carpeta se combinarán con los del servidor. Si dos archivos tienen el mismo nombre, se conservan ambos y se cambia el nombre de uno de ellos.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>No se puede descargar este archivo.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID del servidor</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Esta carpeta del servidor ya está vinculada a otra carpeta de sincronización de este equipo.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>Detalles de la dirección IP</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Acción al hacer doble clic</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Error de sincronización</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Modo de sincronización</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Separe varios nombres con comas. Use * para representar cualquier secuencia de caracteres.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Escriba la dirección y el puerto del servidor proxy.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Quitar la instalación</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>El Asistente para la instalación le permite cambiar el modo en que se instalan las características de [ProductName] en el equipo o quitar el programa del equipo. Haga clic en Siguiente para continuar o en Cancelar para salir del Asistente para la instalación.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Configuración avanzada</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Probando la conexión...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Carpeta de solo lectura</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Cambiar la instalación</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Cambio en la carpeta del servidor</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Los enlaces para compartir no están disponibles mientras esté conectado a través del servicio de retransmisión.</translation>
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
        <translation>Archivos excluidos</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Información general</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Abrir carpeta de Lumora</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>Se ha perdido la conexión con el servidor. Lumora intentará volver a conectarse.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Conexión segura</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Se ha producido un error en la base de datos. Reinicie Lumora.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Bienvenido al Asistente para la instalación de [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Contrato de licencia para el usuario final</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Uso compartido</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Dirección de sincronización:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Se están sincronizando %1 archivos.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Ruta de la carpeta</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Bienvenido a %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>No se puede crear un enlace para compartir este elemento.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Información de estado</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Elija una carpeta local para sincronizarla con el servidor.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>¿Está seguro de que desea cancelar la instalación de [ProductName]?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Instalando [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>La carpeta de sincronización está en una unidad que no está conectada. Conecte la unidad e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Escriba un nombre de usuario.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>No se pudo activar el uso compartido. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Red local (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora está lista.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>El Asistente para la instalación está listo para comenzar la reparación de [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Haga clic en Instalar para comenzar la instalación. Haga clic en Atrás para revisar o cambiar la configuración de la instalación. Haga clic en Cancelar para salir del asistente.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>No sincronizar archivos que superen el tamaño máximo</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Error en la descarga.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Editar conexión</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Reintentar sincronización</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Agregar</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>Se ha compartido una nueva carpeta con usted.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] se instaló correctamente.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Para instalar el programa más adelante, vuelva a ejecutar el Asistente para la instalación. Haga clic en el botón Finalizar para cerrar este asistente.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>Se interrumpió la instalación de [ProductName]. No se ha modificado el sistema.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Cambiar</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>&amp;No acepto los términos del contrato de licencia</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Carpeta de sincronización local</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Actualizando...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>¿Desea desvincular este equipo del servidor? Sus archivos locales no se eliminarán.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Sincronizar archivos y carpetas con el prefijo %1.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Ha alcanzado el número máximo de recursos compartidos.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Agregar conexión</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>Cuando se produzca un conflicto:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>El Asistente para la instalación está listo para comenzar la instalación de [ProductName].</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Lista de exclusión:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>El Asistente para la instalación instalará [ProductName] en el equipo. Haga clic en Siguiente para continuar o en Cancelar para salir del Asistente para la instalación.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Esta conexión está inactiva.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora ya se está ejecutando.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Abrir Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora se está inicializando...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Conexión mediante retransmisión</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Listo para reparar [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Espere mientras el Asistente para la instalación instala [ProductName]. Esto puede tardar varios minutos.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparar</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Extensiones de archivo:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Repara los errores de la instalación más reciente reemplazando los archivos y accesos directos que faltan o están dañados.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>&amp;No cerrar las aplicaciones. Será necesario reiniciar.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Ha finalizado el Asistente para la instalación de [ProductName]</translation>
    </message>
</context>
</TS>
