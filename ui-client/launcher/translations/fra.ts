<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>Lumora a arrêté la synchronisation en raison d'un problème inattendu. Veuillez vérifier l'état de la connexion.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>Activer le partage</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>Une version plus récente de Lumora est déjà installée.\nVoulez-vous continuer ?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Mise à niveau de Lumora. Veuillez patienter...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>Installation de [ProductName]</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>Sélectionnez l'opération à effectuer.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>Connexion au serveur...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>Connexion instable</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}L'Assistant Installation de [ProductName] a pris fin prématurément</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>Le dossier partagé n'est pas monté. Veuillez le monter et réessayer.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>Téléchargement terminé.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>Vos modifications n'ont pas été enregistrées. Voulez-vous les enregistrer maintenant ?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>Supprime [ProductName] de votre ordinateur.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Impossible de mettre à niveau Lumora. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>Un dossier partagé portant le même nom existe déjà. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>Vous disposez d'un accès en lecture seule à ce dossier. Les modifications que vous y apportez ne seront pas synchronisées.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>Synchronisation arrêtée</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>Se connecter à un nouveau serveur</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port :</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>Téléchargement uniquement</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>Synchronisation sélective des fichiers</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimer</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>Sélectionner les fichiers à synchroniser</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>Erreur de point de montage</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>Fermez ces applications et cliquez sur Réessayer pour continuer, ou cliquez sur Ignorer pour continuer sans les fermer.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>Nom de l'ordinateur</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>Tous les fichiers sont à jour.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>Internet (WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Téléchargement...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>Une erreur s'est produite (code d'erreur : %1). Veuillez contacter le support en ligne de Quennet pour obtenir de l'aide.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Démarrage de Lumora...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>Voulez-vous vraiment dissocier cette connexion ? Les fichiers ne seront plus synchronisés avec le serveur.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>Le serveur proxy nécessite une authentification</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Terminer</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>Mise à niveau</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>Le dossier de synchronisation sur le serveur a changé. Veuillez réassocier cette connexion.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gérer</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>Vous pourrez exécuter à nouveau l'Assistant Installation ultérieurement pour installer [ProductName]. Cliquez sur Terminer pour quitter.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>Détection du mode de connexion...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>Fichiers récemment mis à jour</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>Le nom d'utilisateur ou le mot de passe est incorrect.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>Impossible d'établir une connexion sécurisée avec le serveur. Le certificat du serveur n'est peut-être pas approuvé.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>Statistiques de transfert</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>Impossible de joindre le service de connexion. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>Avertissement de sécurité</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>Sélectionnez ce que Lumora doit faire une fois l'installation terminée.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>Le dossier sélectionné n'est pas vide. Son contenu sera fusionné avec les fichiers du serveur.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>Impossible de synchroniser %1 : l'autorisation d'accès a été refusée ou l'élément est en cours d'utilisation.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>Copier le lien de partage</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>Stockage plein</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>La synchronisation est suspendue.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>Le dossier distant n'est pas disponible. Veuillez vérifier que le volume du serveur est monté.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>Votre disque local est plein. Veuillez libérer de l'espace pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>Historique des téléchargements</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>Les fonctionnalités du programme que vous avez sélectionnées sont en cours d'installation.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Suivant &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>Taille de fichier maximale :</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>Changer de dossier</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>Tâches de synchronisation</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>État du partage</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>%1 fichiers mis à jour.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>Nom d'utilisateur</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora maintient les fichiers de votre ordinateur synchronisés avec votre serveur. Copyright (C) Quennet. Tous droits réservés.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>Page de gestion</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>&amp;Fermer automatiquement les applications et tenter de les redémarrer.</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>Afficher les informations de connexion et de synchronisation.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>Cliquez sur le bouton Terminer pour quitter l'Assistant Installation.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>À propos de Lumora</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>Configuration manuelle du proxy</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>Afficher les icônes d'état de synchronisation sur les fichiers et dossiers</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>Des conflits de fichiers se sont produits. Le fichier a été renommé en %1.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]Modifier, réparer ou supprimer l'installation</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>Arrêter le partage</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>Permet de modifier la manière dont les fonctionnalités sont installées.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>Échec de l'authentification</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>Partage introuvable</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>Lancer [ProductName]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Suspendre</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>Téléchargement en cours</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>Une erreur de protocole s'est produite lors de la communication avec le serveur.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>La synchronisation sélective nécessite une version plus récente du paquet serveur. Veuillez mettre à jour le paquet sur votre serveur.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>Réparer l'installation</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>Les applications suivantes utilisent des fichiers qui doivent être mis à jour par cette installation :</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>Vos fichiers, synchronisés sur tous vos ordinateurs.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>Afficher des icônes sur les fichiers exclus de la synchronisation</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>Veuillez redémarrer %1 pour appliquer les nouveaux paramètres de langue.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>Vérification du nom d'utilisateur et du mot de passe...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>Surveillance des modifications de fichiers...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>Nouveau partage</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName] ne comporte aucune fonctionnalité pouvant être sélectionnée séparément.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>Une nouvelle version est disponible. Cliquez pour mettre à jour.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>Sélectionner les dossiers à synchroniser</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>Service désactivé</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Réassocier</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>Les modifications sur les lecteurs réseau ne peuvent pas être détectées immédiatement. Lumora les vérifiera à intervalles réguliers.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}Bienvenue dans la maintenance de l'installation de [ProductName]</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Précédent</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>La version du serveur est trop ancienne. Veuillez mettre à jour le paquet serveur Lumora.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>J'&amp;accepte les termes du contrat de licence</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>Le service de synchronisation du serveur est désactivé. Veuillez demander à votre administrateur de l'activer.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>Parcourir les versions précédentes</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>Aucun proxy</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>Aucun paramètre n'a été modifié.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Afficher les notifications sur le bureau</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>Cette version de Lumora est déjà installée.\nVoulez-vous la réinstaller ?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>L'Assistant Installation de [ProductName] a pris fin prématurément en raison d'une erreur. Votre système n'a pas été modifié.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]Fichiers en cours d'utilisation</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>Paramètres réseau</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>Modifier la liste d'exclusion</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>Fusionner les fichiers existants lors de l'association d'un dossier</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>Téléchargement annulé.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>Indexation du dossier. Veuillez patienter...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>Une erreur inattendue s'est produite. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>Partage de %1</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>L'ID du serveur n'est pas valide ou n'existe pas.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>Maintenez vos fichiers à jour sur tous vos ordinateurs.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>Options générales</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Dissocier</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>Impossible de se connecter au serveur. Veuillez vérifier votre connexion réseau.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactif</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>Le dossier sélectionné est un point de montage. Veuillez choisir un autre dossier.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>Vérification des données...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>Voulez-vous vraiment arrêter le partage de ce dossier ?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Langue :</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>&amp;Ignorer</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>Langue par défaut du système</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>Démarrer Lumora automatiquement à l'ouverture de session</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont]Prêt à installer [ProductName]</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>Partage activé</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>&amp;Réparer</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>Veuillez saisir un numéro de port valide (1-65535).</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Veuillez lire attentivement le contrat de licence suivant.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>L'installation de Lumora nécessite des privilèges d'administrateur.\nVoulez-vous continuer quand même ?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>Le dossier de synchronisation local est introuvable. Il a peut-être été déplacé ou supprimé.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>Connexion directe</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>Synchronisation sélective des dossiers</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>Nom du partage</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>Noms de fichiers à exclure :</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>Aucune version précédente n'est disponible pour ce fichier.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>Le serveur manque d'espace disque. Veuillez libérer de l'espace sur le serveur pour poursuivre la synchronisation.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>Une erreur système s'est produite lors de la connexion au serveur.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>Le lien de partage de %1 a été copié dans le Presse-papiers.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>Utiliser les paramètres proxy du système</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>Voulez-vous vraiment supprimer ce partage ?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>Vous avez atteint votre quota de stockage sur le serveur. Veuillez supprimer des fichiers ou contacter votre administrateur.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>Changer le dossier local</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}L'Assistant Installation de [ProductName] a été interrompu</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Cliquez sur Réparer pour réparer l'installation de [ProductName]. Cliquez sur Précédent pour vérifier ou modifier les paramètres d'installation. Cliquez sur Annuler pour quitter l'Assistant.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>Mode de connexion</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>Les dossiers que vous désélectionnez seront supprimés de cet ordinateur, mais resteront sur le serveur. Voulez-vous continuer ?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>Versions incompatibles</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>Connexion établie.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>Certains fichiers devant être mis à jour sont en cours d'utilisation.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Application des paramètres...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>Autorisation refusée</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>Continuer quand même</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Préparation...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>L'installation est terminée. Lumora va maintenant commencer à synchroniser vos fichiers.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>Dossier non vide</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>Impossible de récupérer les versions précédentes de ce fichier.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>Informations de connexion</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>Le certificat SSL du serveur n'a pas pu être vérifié.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>Le dossier de synchronisation du serveur ne correspond pas au dossier auquel cette connexion était associée.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>Stockage local</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>Envoi en cours</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>Cette version de Lumora est trop ancienne pour se connecter au serveur. Veuillez mettre à jour Lumora.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nom d'utilisateur :</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>Utiliser une icône monochrome dans la zone de notification</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>Le dossier sélectionné n'est pas vide. Veuillez choisir un dossier vide ou fusionner son contenu avec le serveur.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont]Prêt à supprimer [ProductName]</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>Traitement de %1 fichier(s)...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>Le dossier sélectionné est en lecture seule. Veuillez choisir un dossier dans lequel vous pouvez écrire.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>Choisir un dossier local</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>Dissocier la connexion</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>Utiliser une connexion sécurisée (SSL)</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>Les fichiers correspondant à ces règles ne seront pas synchronisés.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Cliquez sur Supprimer pour supprimer [ProductName] de votre ordinateur. Cliquez sur Précédent pour vérifier ou modifier les paramètres d'installation. Cliquez sur Annuler pour quitter l'Assistant.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>Choisir un autre dossier</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>Synchronisation sélective</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>Démarrer maintenant</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>Vous avez choisi de supprimer le programme de votre ordinateur.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Échec de l'initialisation de Lumora. Veuillez redémarrer l'application.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>Échec de l'authentification. Veuillez vérifier votre nom d'utilisateur et votre mot de passe.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>Configurez Lumora pour commencer à synchroniser vos fichiers.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>Impossible de supprimer le partage. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>Les fichiers de ce dossier seront fusionnés avec ceux du serveur. Si deux fichiers portent le même nom, les deux sont conservés et l'un d'eux est renommé.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>Impossible de télécharger ce fichier.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>ID du serveur</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>Ce dossier du serveur est déjà associé à un autre dossier de synchronisation sur cet ordinateur.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>Détails de l'adresse IP</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>Action du double-clic</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>Erreur de synchronisation</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>Mode de synchronisation</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>Séparez plusieurs noms par des virgules. Utilisez * pour représenter n'importe quelle suite de caractères.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>Veuillez saisir l'adresse et le port du serveur proxy.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>Supprimer l'installation</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L'Assistant Installation vous permet de modifier la manière dont les fonctionnalités de [ProductName] sont installées sur votre ordinateur, ou de supprimer le programme de votre ordinateur. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter l'Assistant Installation.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>Paramètres avancés</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Test de la connexion...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>Dossier en lecture seule</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>Modifier l'installation</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>Dossier du serveur modifié</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>Les liens de partage ne sont pas disponibles lorsque vous êtes connecté via le service de relais.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>Fichiers exclus</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Vue d'ensemble</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Ouvrir le dossier Lumora</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>La connexion au serveur a été perdue. Lumora va tenter de se reconnecter.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>Connexion sécurisée</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>Une erreur de base de données s'est produite. Veuillez redémarrer Lumora.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Bienvenue dans l'Assistant Installation de [ProductName]</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]Contrat de licence utilisateur final</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Partage</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>Sens de synchronisation :</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>Synchronisation de %1 fichiers en cours.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>Chemin du dossier</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>État :</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>Bienvenue dans %1</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>Impossible de créer un lien de partage pour cet élément.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>Informations d'état</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>Choisissez un dossier local à synchroniser avec le serveur.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>Voulez-vous vraiment annuler l'installation de [ProductName] ?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont]Installation de [ProductName]</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>Le dossier de synchronisation se trouve sur un lecteur qui n'est pas connecté. Veuillez connecter le lecteur et réessayer.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse :</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>Veuillez saisir un nom d'utilisateur.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>Impossible d'activer le partage. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>Réseau local (LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora est prêt.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>L'Assistant Installation est prêt à commencer la réparation de [ProductName].</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>Cliquez sur Installer pour commencer l'installation. Cliquez sur Précédent pour vérifier ou modifier les paramètres d'installation. Cliquez sur Annuler pour quitter l'Assistant.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>Ne pas synchroniser les fichiers dépassant la taille maximale</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>Échec du téléchargement.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>S&amp;upprimer</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>Modifier la connexion</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>Relancer la synchronisation</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>Un nouveau dossier a été partagé avec vous.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName] a été installé correctement.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>Pour installer le programme ultérieurement, exécutez à nouveau l'Assistant Installation. Cliquez sur le bouton Terminer pour fermer l'Assistant.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>L'installation de [ProductName] a été interrompue. Votre système n'a pas été modifié.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>Je &amp;n'accepte pas les termes du contrat de licence</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>Dossier de synchronisation local</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Mise à jour...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>Voulez-vous dissocier cet ordinateur du serveur ? Vos fichiers locaux ne seront pas supprimés.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>Synchroniser les fichiers et dossiers portant le préfixe %1.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>Vous avez atteint le nombre maximal de partages.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>Ajouter une connexion</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>En cas de conflit :</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>L'Assistant Installation est prêt à commencer l'installation de [ProductName].</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>Liste d'exclusion :</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>L'Assistant Installation va installer [ProductName] sur votre ordinateur. Cliquez sur Suivant pour continuer ou sur Annuler pour quitter l'Assistant Installation.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>Cette connexion est inactive.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora est déjà en cours d'exécution.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Ouvrir Lumora</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora est en cours d'initialisation...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>Connexion par relais</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont]Prêt à réparer [ProductName]</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>Veuillez patienter pendant que l'Assistant Installation installe [ProductName]. Cela peut prendre plusieurs minutes.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Réparer</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>Extensions de fichiers :</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>Répare les erreurs de l'installation la plus récente en remplaçant les fichiers et raccourcis manquants ou endommagés.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>&amp;Ne pas fermer les applications. Un redémarrage sera nécessaire.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}Fin de l'Assistant Installation de [ProductName]</translation>
    </message>
</context>
</TS>
