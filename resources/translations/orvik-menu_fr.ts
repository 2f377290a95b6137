<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Action</name>
    <message>
        <source>The control panel of Orvik Menu could not be started. Install Orvik Menu again.</source>
        <translation>Le panneau de configuration d’Orvik Menu n’a pas pu être lancé. Réinstallez Orvik Menu.</translation>
    </message>
    <message>
        <source>%1 cannot be found: %2.</source>
        <translation>%1 est introuvable&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Orvik Menu was asked for something in a way that it does not understand.</source>
        <translation>Orvik Menu a reçu une demande qu’il ne comprend pas.</translation>
    </message>
    <message>
        <source>The settings of Orvik Menu cannot be read.</source>
        <translation>Les paramètres d’Orvik Menu ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>This cannot be done with what is selected.</source>
        <translation>Cette action est impossible avec la sélection actuelle.</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Il n’y a pas d’écran sur lequel afficher la fenêtre.</translation>
    </message>
</context>
<context>
    <name>AddFolders</name>
    <message>
        <source>%1 cannot be added: its name or that of a folder above it has characters that are no text. Rename it and try again.</source>
        <translation>%1 ne peut pas être ajouté&#xa0;: son nom ou celui d’un dossier parent contient des caractères qui ne forment pas un texte valide. Renommez-le et réessayez.</translation>
    </message>
    <message>
        <source>The folders cannot be added: the settings of Orvik Menu cannot be written. Is the disk full?</source>
        <translation>Les dossiers ne peuvent pas être ajoutés&#xa0;: impossible d’écrire les paramètres d’Orvik Menu. Le disque est-il plein&#x202f;?</translation>
    </message>
</context>
<context>
    <name>AttachToMail</name>
    <message>
        <source>Please select the file that you want to send via email to allow sending</source>
        <translation>Veuillez sélectionner le fichier à envoyer par courriel pour en autoriser l’envoi</translation>
    </message>
    <message>
        <source>Attach to Mail</source>
        <translation>Joindre au courriel</translation>
    </message>
</context>
<context>
    <name>Attachments</name>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it became shorter</source>
        <translation>il a été raccourci entre-temps</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation>Impossible de supprimer %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <translation>Impossible d’écrire %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>It ended before it was done.</source>
        <translation>L’action s’est arrêtée avant d’être terminée.</translation>
    </message>
    <message>
        <source>The program that does this cannot be started.</source>
        <translation>Le programme chargé de cette action ne peut pas être lancé.</translation>
    </message>
    <message>
        <source>Too much is asked for at once.</source>
        <translation>Trop d’actions sont demandées à la fois.</translation>
    </message>
    <message>
        <source>Orvik Menu has no action of that name.</source>
        <translation>Orvik Menu n’a aucune action de ce nom.</translation>
    </message>
    <message>
        <source>Only the file manager itself can do this.</source>
        <translation>Seul le gestionnaire de fichiers peut effectuer cette action.</translation>
    </message>
    <message>
        <source>This action is switched off in the settings of Orvik Menu.</source>
        <translation>Cette action est désactivée dans les paramètres d’Orvik Menu.</translation>
    </message>
</context>
<context>
    <name>CreateNewTextFile</name>
    <message>
        <source>New Text File</source>
        <translation>Nouveau fichier texte</translation>
    </message>
    <message>
        <source>No file can be made in %1: %2.</source>
        <translation>Impossible de créer un fichier dans %1&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>File Manager Menu Settings</source>
        <translation>Paramètres du menu du gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Choose the actions that your file manager&apos;s menu shows, and where</source>
        <translation>Choisir les actions proposées par le menu du gestionnaire de fichiers, et dans quels dossiers</translation>
    </message>
    <message>
        <source>context;menu;right-click;file manager;actions;folders;</source>
        <translation>contextuel;menu;clic droit;gestionnaire de fichiers;actions;dossiers;</translation>
    </message>
    <message>
        <source>Extensions</source>
        <translation>Extensions</translation>
    </message>
    <message>
        <source>Switch the extensions of Orvik Menu on and off</source>
        <translation>Activer et désactiver les extensions d’Orvik Menu</translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message>
        <source>is not there any more</source>
        <translation>n’existe plus</translation>
    </message>
    <message>
        <source>has changed since it was found</source>
        <translation>a changé depuis sa découverte</translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation>est utilisé par un autre programme</translation>
    </message>
    <message>
        <source>is the last copy that is left</source>
        <translation>est le dernier exemplaire restant</translation>
    </message>
    <message>
        <source>has a copy that another program is using</source>
        <translation>a une copie utilisée par un autre programme</translation>
    </message>
    <message>
        <source>was not reached</source>
        <translation>n’a pas été traité</translation>
    </message>
    <message>
        <source>cannot be compared with its copy: %1</source>
        <translation>ne peut pas être comparé à sa copie&#xa0;: %1</translation>
    </message>
    <message>
        <source>is not the same as its copy</source>
        <translation>n’est pas identique à sa copie</translation>
    </message>
    <message>
        <source>was not compared to its end</source>
        <translation>n’a pas été comparé jusqu’au bout</translation>
    </message>
    <message>
        <source>changed while it was read</source>
        <translation>a changé pendant sa lecture</translation>
    </message>
    <message>
        <source>is a link, and those are not followed</source>
        <translation>est un lien, et les liens ne sont pas suivis</translation>
    </message>
    <message>
        <source>is neither a file nor a folder</source>
        <translation>n’est ni un fichier ni un dossier</translation>
    </message>
    <message>
        <source>could not be moved to the trash: %1</source>
        <translation>n’a pas pu être mis à la corbeille&#xa0;: %1</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>est vide</translation>
    </message>
    <message>
        <source>is no picture, though it is named like one</source>
        <translation>n’est pas une image, malgré son nom</translation>
    </message>
    <message>
        <source>has changed while it was read</source>
        <translation>a changé pendant sa lecture</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>ne peut pas être lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>may be the same file as its copy, in two places</source>
        <translation>est peut-être le même fichier que sa copie, à deux endroits</translation>
    </message>
</context>
<context>
    <name>EditForm</name>
    <message>
        <source>As it is stored</source>
        <translation>Telle qu’enregistrée</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>En miroir</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>À l’envers</translation>
    </message>
    <message>
        <source>Upside down and mirrored</source>
        <translation>À l’envers et en miroir</translation>
    </message>
    <message>
        <source>Turned left and mirrored</source>
        <translation>Tournée à gauche et en miroir</translation>
    </message>
    <message>
        <source>Turned right</source>
        <translation>Tournée à droite</translation>
    </message>
    <message>
        <source>Turned right and mirrored</source>
        <translation>Tournée à droite et en miroir</translation>
    </message>
    <message>
        <source>Turned left</source>
        <translation>Tournée à gauche</translation>
    </message>
</context>
<context>
    <name>Extension</name>
    <message>
        <source>Orvik Menu Extension</source>
        <translation>Extension Orvik Menu</translation>
    </message>
    <message>
        <source>Adds Orvik Menu&apos;s actions to the file manager&apos;s right-click menu.</source>
        <translation>Ajoute les actions d’Orvik Menu au menu contextuel du gestionnaire de fichiers.</translation>
    </message>
</context>
<context>
    <name>ExtensionStatus</name>
    <message>
        <source>There is no session bus, so it can neither run nor be switched.</source>
        <translation>Il n’y a pas de bus de session&#xa0;: elle ne peut ni fonctionner, ni être activée ou désactivée.</translation>
    </message>
    <message>
        <source>It is set to start at log-in.</source>
        <translation>Elle est configurée pour démarrer à l’ouverture de session.</translation>
    </message>
    <message>
        <source>It is running, but it is not set to start at log-in.</source>
        <translation>Elle est en cours d’exécution, mais n’est pas configurée pour démarrer à l’ouverture de session.</translation>
    </message>
    <message>
        <source>It is set to start at log-in, but it is not running.</source>
        <translation>Elle est configurée pour démarrer à l’ouverture de session, mais n’est pas en cours d’exécution.</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Démarrage…</translation>
    </message>
    <message>
        <source>Ending…</source>
        <translation>Arrêt…</translation>
    </message>
    <message>
        <source>It is running, and it starts at log-in.</source>
        <translation>Elle est en cours d’exécution et démarre à l’ouverture de session.</translation>
    </message>
    <message>
        <source>It is switched off.</source>
        <translation>Elle est désactivée.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::ExtensionControl</name>
    <message>
        <source>It could not be asked to end: %1.</source>
        <translation>Impossible de lui demander de s’arrêter&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The program %1 is missing.</source>
        <translation>Le programme %1 est absent.</translation>
    </message>
    <message>
        <source>Could not start %1.</source>
        <translation>Impossible de démarrer %1.</translation>
    </message>
    <message>
        <source>It was started, but it does not answer.</source>
        <translation>Elle a été démarrée, mais elle ne répond pas.</translation>
    </message>
    <message>
        <source>It was asked to end, but it does not.</source>
        <translation>L’arrêt lui a été demandé, mais elle ne s’arrête pas.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::ExtensionsWindow</name>
    <message>
        <source>Extensions</source>
        <translation>Extensions</translation>
    </message>
    <message>
        <source>Extensions bring Orvik Menu into other programs.</source>
        <translation>Les extensions intègrent Orvik Menu à d’autres programmes.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagerRow</name>
    <message>
        <source>Restart</source>
        <translation>Redémarrer</translation>
    </message>
    <message>
        <source>Restart %1</source>
        <translation>Redémarrer %1</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagerSection</name>
    <message>
        <source>File managers on this computer:</source>
        <translation>Gestionnaires de fichiers de cet ordinateur&#xa0;:</translation>
    </message>
    <message>
        <source>No file manager that can show the menu is installed.</source>
        <translation>Aucun gestionnaire de fichiers capable d’afficher le menu n’est installé.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagersControl</name>
    <message>
        <source>It could not be asked to close.</source>
        <translation>Impossible de lui demander de se fermer.</translation>
    </message>
    <message>
        <source>It was asked to close, but it is still running.</source>
        <translation>La fermeture lui a été demandée, mais il est toujours en cours d’exécution.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::LackingActionsSection</name>
    <message>
        <source>Actions that are in no menu:</source>
        <translation>Actions absentes des menus&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::StatusLine</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>FileManagerStatus</name>
    <message>
        <source>Close it and open it again.</source>
        <translation>Fermez-le, puis rouvrez-le.</translation>
    </message>
    <message>
        <source>Restarting it closes its windows and stops any copying.</source>
        <translation>Son redémarrage ferme ses fenêtres et interrompt les copies en cours.</translation>
    </message>
    <message>
        <source>Closing…</source>
        <translation>Fermeture…</translation>
    </message>
    <message>
        <source>It is not installed.</source>
        <translation>Il n’est pas installé.</translation>
    </message>
    <message>
        <source>The menu is missing. Install the package %1.</source>
        <translation>Le menu est absent. Installez le paquet %1.</translation>
    </message>
    <message>
        <source>It is not running. It loads the menu when it starts.</source>
        <translation>Il n’est pas en cours d’exécution. Il charge le menu à son démarrage.</translation>
    </message>
    <message>
        <source>It loads the menu when it needs it.</source>
        <translation>Il charge le menu lorsqu’il en a besoin.</translation>
    </message>
    <message>
        <source>It has loaded the menu.</source>
        <translation>Il a chargé le menu.</translation>
    </message>
    <message>
        <source>It is running without the menu.</source>
        <translation>Il est en cours d’exécution sans le menu.</translation>
    </message>
    <message>
        <source>It has loaded an older version of the menu.</source>
        <translation>Il a chargé une version plus ancienne du menu.</translation>
    </message>
    <message>
        <source>It is running. Whether it has loaded the menu is not known.</source>
        <translation>Il est en cours d’exécution. On ne sait pas s’il a chargé le menu.</translation>
    </message>
</context>
<context>
    <name>FindDuplicateFiles</name>
    <message>
        <source>Duplicate Files</source>
        <translation>Fichiers en double</translation>
    </message>
    <message>
        <source>No two files hold the same.</source>
        <translation>Aucun fichier en double.</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1&#xa0;fichier</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1&#xa0;fichier</numerusform>
            <numerusform>%1&#xa0;fichiers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FindDuplicatePhotos</name>
    <message>
        <source>Most pixels</source>
        <translation>Le plus de pixels</translation>
    </message>
    <message>
        <source>Most pixels, larger file</source>
        <translation>Le plus de pixels, fichier plus volumineux</translation>
    </message>
    <message>
        <source>Oldest of the same size</source>
        <translation>La plus ancienne à taille égale</translation>
    </message>
    <message>
        <source>As good as another</source>
        <translation>Aussi bonne qu’une autre</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Duplicate Photos</source>
        <translation>Photos en double</translation>
    </message>
    <message>
        <source>No two photos show the same.</source>
        <translation>Aucune photo en double.</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1&#xa0;photo</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1&#xa0;photo</numerusform>
            <numerusform>%1&#xa0;photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Keep the Best Photo</source>
        <translation>Garder la meilleure photo</translation>
    </message>
</context>
<context>
    <name>FolderPanel</name>
    <message>
        <source>Grant Access</source>
        <translation>Autoriser l’accès</translation>
    </message>
</context>
<context>
    <name>HideUnhideItem</name>
    <message>
        <source>What is hidden in %1 cannot be changed: %2.</source>
        <translation>Impossible de modifier la liste des éléments cachés de %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be hidden, since its name has a line end. Rename it and try again.</source>
        <translation>%1 ne peut pas être caché, car son nom contient un saut de ligne. Renommez-le et réessayez.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: its name has dots alone.</source>
        <translation>%1 ne peut pas être affiché&#xa0;: son nom ne contient que des points.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: it is the list of what is hidden.</source>
        <translation>%1 ne peut pas être affiché&#xa0;: c’est la liste des éléments cachés.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: there is a %2 already. Rename one of the two.</source>
        <translation>%1 ne peut pas être affiché&#xa0;: il existe déjà un élément nommé %2. Renommez l’un des deux.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: %2.</source>
        <translation>%1 ne peut pas être affiché&#xa0;: %2.</translation>
    </message>
    <message>
        <source>What is hidden in %1 cannot be changed, since another program is changing it. Try again.</source>
        <translation>Impossible de modifier la liste des éléments cachés de %1, car un autre programme est en train de la modifier. Réessayez.</translation>
    </message>
    <message>
        <source>The list of what is hidden in %1, a file named .hidden, cannot be read: %2.</source>
        <translation>La liste des éléments cachés de %1, un fichier nommé .hidden, ne peut pas être lue&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>LackingActions</name>
    <message>
        <source>Needs the package %1, which is not installed.</source>
        <translation>Nécessite le paquet %1, qui n’est pas installé.</translation>
    </message>
    <message>
        <source>Needs the packages %1, which are not installed.</source>
        <translation>Nécessite les paquets %1, qui ne sont pas installés.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::AlertDialog</name>
    <message>
        <source>Orvik Menu</source>
        <translation>Orvik Menu</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::CardWidget</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::DroppedFolders</name>
    <message>
        <source>“%1” cannot be found.</source>
        <translation>«&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>“%1” cannot be added: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ajouté&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be added: it is not a folder.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ajouté&#xa0;: ce n’est pas un dossier.</translation>
    </message>
    <message>
        <source>“%1” cannot be added: it is not a folder of this computer.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être ajouté&#xa0;: ce n’est pas un dossier de cet ordinateur.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FileChooserDialog</name>
    <message>
        <source>Up</source>
        <translation>Dossier parent</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>“%1” is no longer there.</source>
        <translation>«&#xa0;%1&#xa0;» n’existe plus.</translation>
    </message>
    <message>
        <source>“%1” cannot be found.</source>
        <translation>«&#xa0;%1&#xa0;» est introuvable.</translation>
    </message>
    <message>
        <source>Nothing is selected. To choose “%1” itself, press the button “%2”.</source>
        <translation>Rien n’est sélectionné. Pour choisir «&#xa0;%1&#xa0;» lui-même, appuyez sur le bouton «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>its path is too long</source>
        <translation>son chemin est trop long</translation>
    </message>
    <message>
        <source>“%1” cannot be chosen: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être choisi&#xa0;: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be chosen.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être choisi.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>Waiting for “%1” to answer…</source>
        <translation>En attente d’une réponse de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>Hidden files are not shown.</source>
        <translation>Les fichiers cachés ne sont pas affichés.</translation>
    </message>
    <message>
        <source>Hidden files are shown.</source>
        <translation>Les fichiers cachés sont affichés.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Copy Location</source>
        <translation>Copier l’emplacement</translation>
    </message>
    <message>
        <source>New Folder…</source>
        <translation>Nouveau dossier…</translation>
    </message>
    <message>
        <source>Show Hidden Files</source>
        <translation>Afficher les fichiers cachés</translation>
    </message>
    <message>
        <source>“%1” is a file. Only folders can be chosen here.</source>
        <translation>«&#xa0;%1&#xa0;» est un fichier. Seuls des dossiers peuvent être choisis ici.</translation>
    </message>
    <message>
        <source>“%1” leads to something that is not there.</source>
        <translation>«&#xa0;%1&#xa0;» mène à quelque chose qui n’existe pas.</translation>
    </message>
    <message>
        <source>“%1” does not answer. It may be on a network share that is gone.</source>
        <translation>«&#xa0;%1&#xa0;» ne répond pas. Il se trouve peut-être sur un partage réseau qui n’est plus accessible.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FileList</name>
    <message>
        <source>This folder is empty.</source>
        <translation>Ce dossier est vide.</translation>
    </message>
    <message>
        <source>You do not have permission to see what is in this folder.</source>
        <translation>Vous n’avez pas l’autorisation de voir le contenu de ce dossier.</translation>
    </message>
    <message>
        <source>This folder cannot be read: %1.</source>
        <translation>Ce dossier ne peut pas être lu&#xa0;: %1.</translation>
    </message>
    <message>
        <source>All that is in this folder is hidden. Ctrl+H shows it.</source>
        <translation>Tout ce que contient ce dossier est caché. Ctrl+H l’affiche.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FolderDrops</name>
    <message>
        <source>Some of what you dropped cannot be added.</source>
        <translation>Certains des éléments déposés ne peuvent pas être ajoutés.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Et %1&#xa0;autre.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FolderModel</name>
    <message>
        <source>Link to a folder</source>
        <translation>Lien vers un dossier</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Link to a file</source>
        <translation>Lien vers un fichier</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Link to something that is not there</source>
        <translation>Lien vers un élément inexistant</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modifié le</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between a file&apos;s kind, size and date</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Inconnue</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::MenuButton</name>
    <message>
        <source>&amp;Orvik Menu</source>
        <translation>&amp;Orvik Menu</translation>
    </message>
    <message>
        <source>Menu (F10)</source>
        <translation>Menu (F10)</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::NewFolderDialog</name>
    <message>
        <source>New Folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>&amp;Name of the folder:</source>
        <translation>&amp;Nom du dossier&#xa0;:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a folder.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être le nom d’un dossier.</translation>
    </message>
    <message>
        <source>“%1” is already there.</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà.</translation>
    </message>
    <message>
        <source>“%1” cannot be made: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être créé&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::PlacesList</name>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Téléchargements</translation>
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
        <source>Home</source>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>Système de fichiers</translation>
    </message>
    <message>
        <source>%1 (last used)</source>
        <translation>%1 (dernier utilisé)</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::PreparingWindow</name>
    <message>
        <source>Preparing %1 for sending…</source>
        <translation>Préparation de l’envoi de %1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::RowList</name>
    <message>
        <source>Added: %1</source>
        <translation>Ajouté : %1</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::StepBadge</name>
    <message>
        <source>Step %1, done</source>
        <translation>Étape %1, terminée</translation>
    </message>
    <message>
        <source>Step %1, to do</source>
        <translation>Étape %1, à faire</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::TabPages</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>LinuxPlatform</name>
    <message>
        <source>“%1” cannot be used: its path has characters that cannot be stored as text. Rename the folder, then choose it again.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être utilisé&#xa0;: son chemin contient des caractères qui ne peuvent pas être enregistrés sous forme de texte. Renommez le dossier, puis choisissez-le de nouveau.</translation>
    </message>
</context>
<context>
    <name>MailText</name>
    <message>
        <source>“%1”</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <translation>
            <numerusform>%1 et %2 autre</numerusform>
            <numerusform>%1 et %2 autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Asks for another folder</source>
        <translation>Demande un autre dossier</translation>
    </message>
</context>
<context>
    <name>MenuCatalogue</name>
    <message>
        <source>Open Terminal</source>
        <translation>Ouvrir un terminal</translation>
    </message>
    <message>
        <source>Open System Preferences</source>
        <translation>Ouvrir les paramètres</translation>
    </message>
    <message>
        <source>Set as Wallpaper</source>
        <translation>Définir comme fond d’écran</translation>
    </message>
    <message>
        <source>Create New Text File</source>
        <translation>Créer un fichier texte</translation>
    </message>
    <message>
        <source>Copy path to Clipboard</source>
        <translation>Copier le chemin</translation>
    </message>
    <message>
        <source>Send via Mail</source>
        <translation>Envoyer par courriel</translation>
    </message>
    <message>
        <source>Move to a folder</source>
        <translation>Déplacer vers un dossier</translation>
    </message>
    <message>
        <source>Copy to a folder</source>
        <translation>Copier vers un dossier</translation>
    </message>
    <message>
        <source>Open New Finder Window</source>
        <translation>Nouvelle fenêtre de fichiers</translation>
    </message>
    <message>
        <source>Hide / Unhide item</source>
        <translation>Cacher / Afficher l’élément</translation>
    </message>
    <message>
        <source>Find Duplicate Files</source>
        <translation>Fichiers en double</translation>
    </message>
    <message>
        <source>Find Duplicate Photos</source>
        <translation>Photos en double</translation>
    </message>
    <message>
        <source>View or Edit Exif Data</source>
        <translation>Voir ou modifier l’Exif</translation>
    </message>
    <message>
        <source>Resize Photos</source>
        <translation>Redimensionner les photos</translation>
    </message>
    <message>
        <source>Configure Orvik Menu Settings</source>
        <translation>Configurer Orvik Menu</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>Ajouter des dossiers</translation>
    </message>
</context>
<context>
    <name>MenuExtension::ChoicesRow</name>
    <message>
        <source>Hidden Files</source>
        <translation>Fichiers cachés</translation>
    </message>
    <message>
        <source>Empty Files</source>
        <translation>Fichiers vides</translation>
    </message>
    <message>
        <source>System Files</source>
        <translation>Fichiers système</translation>
    </message>
    <message>
        <source>In folders of the system, in the trash, and what file managers write for themselves</source>
        <translation>Ceux des dossiers du système et de la corbeille, et ceux que les gestionnaires de fichiers créent pour leur propre usage</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::DuplicatesWindow</name>
    <message>
        <source>One always stays. Keep another one before you choose this.</source>
        <translation>Il en reste toujours un. Gardez-en un autre avant de sélectionner celui-ci.</translation>
    </message>
    <message>
        <source>Filter by name or folder</source>
        <translation>Filtrer par nom ou dossier</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Choose by Rule</source>
        <translation>Sélectionner par règle</translation>
    </message>
    <message>
        <source>Keep the Oldest</source>
        <translation>Garder le plus ancien</translation>
    </message>
    <message>
        <source>Keep the Newest</source>
        <translation>Garder le plus récent</translation>
    </message>
    <message>
        <source>Keep the One with the Shortest Path</source>
        <translation>Garder celui au chemin le plus court</translation>
    </message>
    <message>
        <source>Choose Nothing</source>
        <translation>Ne rien sélectionner</translation>
    </message>
    <message>
        <source>the Folder of the Item</source>
        <translation>le dossier de l’élément</translation>
    </message>
    <message>
        <source>Keep Those in %1</source>
        <translation>Garder ceux qui sont dans %1</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Items of the Group</source>
        <translation>Éléments du groupe</translation>
    </message>
    <message>
        <source>Looking for duplicates</source>
        <translation>Recherche des doublons</translation>
    </message>
    <message>
        <source>%1 looked at</source>
        <translation>Examen en cours&#xa0;: %1</translation>
    </message>
    <message>
        <source>Moving to the trash</source>
        <translation>Mise à la corbeille</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Moved to the trash: %1, %2</source>
        <translation>Mis à la corbeille&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>What is checked goes to the trash. One of a group always stays.</source>
        <translation>Les éléments cochés seront mis à la corbeille. Il en reste toujours un par groupe.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mettre à la corbeille</translation>
    </message>
    <message>
        <source>Move 1 Item to Trash</source>
        <translation>Mettre 1&#xa0;élément à la corbeille</translation>
    </message>
    <message numerus="yes">
        <source>Move %1 Items to Trash</source>
        <translation>
            <numerusform>Mettre %1&#xa0;élément à la corbeille</numerusform>
            <numerusform>Mettre %1&#xa0;éléments à la corbeille</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is chosen.</source>
        <translation>Rien n’est sélectionné.</translation>
    </message>
    <message>
        <source>Chosen: %1, %2</source>
        <translation>Sélection&#xa0;: %1, %2</translation>
    </message>
    <message>
        <source>1 group, %1 could be saved</source>
        <translation>1&#xa0;groupe, %1 à récupérer</translation>
    </message>
    <message numerus="yes">
        <source>%1 groups, %2 could be saved</source>
        <translation>
            <numerusform>%1&#xa0;groupe, %2 à récupérer</numerusform>
            <numerusform>%1&#xa0;groupes, %2 à récupérer</numerusform>
        </translation>
    </message>
    <message>
        <source>No group matches the filter</source>
        <translation>Aucun groupe ne correspond au filtre</translation>
    </message>
    <message>
        <source>Looking for duplicates…</source>
        <translation>Recherche des doublons…</translation>
    </message>
    <message>
        <source>The search was stopped before anything was found.</source>
        <translation>La recherche a été interrompue avant d’avoir trouvé quoi que ce soit.</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <extracomment>A file&apos;s name, and why nothing was done with it: “/home/a/b is the last copy that is left.”</extracomment>
        <translation>%1 %2.</translation>
    </message>
    <message>
        <source>1 Item Was Left Out…</source>
        <translation>1&#xa0;élément ignoré…</translation>
    </message>
    <message numerus="yes">
        <source>%1 Items Were Left Out…</source>
        <translation>
            <numerusform>%1&#xa0;élément ignoré…</numerusform>
            <numerusform>%1&#xa0;éléments ignorés…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>And %1 more.</source>
        <translation>
            <numerusform>Et %1&#xa0;autre.</numerusform>
            <numerusform>Et %1&#xa0;autres.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::GroupListModel</name>
    <message>
        <source>%1, %2, %3 could be saved</source>
        <translation>%1, %2, %3 à récupérer</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 of %2 each</source>
        <translation>%1 de %2 chacun</translation>
    </message>
    <message numerus="yes">
        <source>%n to remove</source>
        <translation>
            <numerusform>%n à supprimer</numerusform>
            <numerusform>%n à supprimer</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::ItemListModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifié le</translation>
    </message>
    <message>
        <source>Best Because</source>
        <translation>Raison du choix</translation>
    </message>
    <message>
        <source>Not the best</source>
        <translation>Pas la meilleure</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::PreviewPane</name>
    <message>
        <source>Preview of %1</source>
        <translation>Aperçu de %1</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::TroublesDialog</name>
    <message>
        <source>Left Out</source>
        <translation>Éléments ignorés</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::EditForm</name>
    <message>
        <source>Keep the original file beside it, with “_original” after its name</source>
        <translation>Garder l’original à côté, avec «&#xa0;_original&#xa0;» après son nom</translation>
    </message>
    <message>
        <source>Keep the file&apos;s date of change</source>
        <translation>Garder la date de modification du fichier</translation>
    </message>
    <message>
        <source>Remove Location and Personal Data…</source>
        <translation>Supprimer lieu et données personnelles…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Droits d’auteur</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Date de prise de vue</translation>
    </message>
    <message>
        <source>Move date by days</source>
        <translation>Décaler la date en jours</translation>
    </message>
    <message>
        <source> d</source>
        <translation> j</translation>
    </message>
    <message>
        <source>Move date by hours</source>
        <translation>Décaler la date en heures</translation>
    </message>
    <message>
        <source> h</source>
        <translation> h</translation>
    </message>
    <message>
        <source>Move date by minutes</source>
        <translation>Décaler la date en minutes</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Move date by seconds</source>
        <translation>Décaler la date en secondes</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Move date by</source>
        <translation>Décaler la date de</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Remove Place</source>
        <translation>Supprimer le lieu</translation>
    </message>
    <message>
        <source>Is removed when it is saved</source>
        <translation>Supprimé à l’enregistrement</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>Valeurs différentes</translation>
    </message>
    <message>
        <source>2026-12-31 23:59:59</source>
        <translation>2026-12-31 23:59:59</translation>
    </message>
    <message>
        <source>None is stored</source>
        <translation>Aucune enregistrée</translation>
    </message>
    <message>
        <source>Stays as it is</source>
        <translation>Reste telle quelle</translation>
    </message>
    <message>
        <source>48.858370, 2.294481</source>
        <translation>48.858370, 2.294481</translation>
    </message>
    <message>
        <source>The date is to be written as 2026-12-31 23:59:59.</source>
        <translation>La date doit être saisie sous la forme 2026-12-31 23:59:59.</translation>
    </message>
    <message>
        <source>Write a new date or move the one that is there, not both.</source>
        <translation>Saisissez une nouvelle date ou décalez la date existante, mais pas les deux.</translation>
    </message>
    <message>
        <source>The place is to be written as latitude and longitude in degrees: 48.858370, 2.294481.</source>
        <translation>Le lieu doit être saisi en latitude et longitude, en degrés&#xa0;: 48.858370, 2.294481.</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Rien n’a encore été modifié.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::ExifWindow</name>
    <message>
        <source>Exif Data</source>
        <translation>Données Exif</translation>
    </message>
    <message>
        <source>It was ended; the photos that were not saved yet are as they were.</source>
        <translation>Opération interrompue&#x202f;; les photos qui n’étaient pas encore enregistrées sont restées telles quelles.</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Photos that failed</source>
        <translation>Photos en échec</translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>%n&#xa0;photo</numerusform>
            <numerusform>%n&#xa0;photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading photos</source>
        <translation>Lecture des photos</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos</source>
        <translation>
            <numerusform>%1 sur %2 photo</numerusform>
            <numerusform>%1 sur %2 photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving photos</source>
        <translation>Enregistrement des photos</translation>
    </message>
    <message>
        <source>1 photo was saved.</source>
        <translation>1&#xa0;photo a été enregistrée.</translation>
    </message>
    <message numerus="yes">
        <source>%n photos were saved.</source>
        <translation>
            <numerusform>%n&#xa0;photo a été enregistrée.</numerusform>
            <numerusform>%n&#xa0;photos ont été enregistrées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>%1 These were left as they were:</source>
        <extracomment>The first says how many photos were saved; the others follow as a list.</extracomment>
        <translation>%1 Ces photos sont restées telles quelles&#xa0;:</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A photo&apos;s name, and what is wrong with it, which is a sentence.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Discard Changes</source>
        <translation>Abandonner les modifications</translation>
    </message>
    <message>
        <source>What was typed has not been saved and will be lost.</source>
        <translation>Ce qui a été saisi n’est pas enregistré et sera perdu.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Reading was cancelled. Choose photos to read them.</source>
        <translation>La lecture a été annulée. Choisissez des photos pour les lire.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::PersonalDataDialog</name>
    <message>
        <source>Where it was taken</source>
        <translation>Lieu de prise de vue</translation>
    </message>
    <message>
        <source>Who took it and who is in it</source>
        <translation>Auteur et personnes présentes</translation>
    </message>
    <message>
        <source>Which camera it was</source>
        <translation>Appareil utilisé</translation>
    </message>
    <message>
        <source>What the camera&apos;s maker has noted</source>
        <translation>Notes du fabricant de l’appareil</translation>
    </message>
    <message>
        <source>Remove Location and Personal Data</source>
        <translation>Supprimer le lieu et les données personnelles</translation>
    </message>
    <message>
        <source>What will be removed</source>
        <translation>Ce qui sera supprimé</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>This is removed for good, unless the original is kept. Title, description, copyright and date stay.</source>
        <translation>Ces données sont supprimées définitivement, sauf si l’original est gardé. Le titre, la description, les droits d’auteur et la date restent.</translation>
    </message>
    <message>
        <source>The photos have no location and no personal data that is known here.</source>
        <translation>Les photos ne contiennent ni lieu ni données personnelles connues.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>A file holds more than the picture, such as a second one or a film, which stays and may hold such data too.</source>
        <translation>Un fichier contient plus que l’image, par exemple une seconde image ou un film, qui reste et peut aussi contenir de telles données.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::TagView</name>
    <message>
        <source>Search names and values</source>
        <translation>Rechercher dans les noms et les valeurs</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation>Aucun résultat.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vide</translation>
    </message>
    <message>
        <source>1 value</source>
        <translation>1 valeur</translation>
    </message>
    <message numerus="yes">
        <source>%n values</source>
        <translation>
            <numerusform>%n valeur</numerusform>
            <numerusform>%n valeurs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::ProgressRow</name>
    <message>
        <source>a few seconds left</source>
        <translation>quelques secondes restantes</translation>
    </message>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation>
            <numerusform>environ %n&#xa0;seconde restante</numerusform>
            <numerusform>environ %n&#xa0;secondes restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>environ une minute restante</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation>
            <numerusform>environ %n&#xa0;minute restante</numerusform>
            <numerusform>environ %n&#xa0;minutes restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>about an hour left</source>
        <translation>environ une heure restante</translation>
    </message>
    <message numerus="yes">
        <source>about %n hours left</source>
        <translation>
            <numerusform>environ %n&#xa0;heure restante</numerusform>
            <numerusform>environ %n&#xa0;heures restantes</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>How much is done, and how long the rest takes.</extracomment>
        <translation>%1 · %2</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::ComparePane</name>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3</source>
        <translation>%1 × %2 pixels · %3</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Calcul en cours…</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3 · small enough already</source>
        <translation>%1 × %2 pixels · %3 · déjà assez petite</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3 · %4 %</source>
        <extracomment>The last is how many bytes are left of hundred.</extracomment>
        <translation>%1 × %2 pixels · %3 · %4&#xa0;%</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::ResizeWindow</name>
    <message>
        <source>Resize Photos</source>
        <translation>Redimensionner les photos</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Redimensionner</translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>%n&#xa0;photo</numerusform>
            <numerusform>%n&#xa0;photos</numerusform>
        </translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Photos that failed</source>
        <translation>Photos en échec</translation>
    </message>
    <message>
        <source>Resizing photos</source>
        <translation>Redimensionnement des photos</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos</source>
        <translation>
            <numerusform>%1 sur %2 photo</numerusform>
            <numerusform>%1 sur %2 photos</numerusform>
        </translation>
    </message>
    <message>
        <source>It was ended.</source>
        <translation>Opération interrompue.</translation>
    </message>
    <message>
        <source>1 photo was resized: %1 became %2.</source>
        <translation>1&#xa0;photo a été redimensionnée&#xa0;: de %1 à %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n photos were resized: %1 became %2.</source>
        <translation>
            <numerusform>%n&#xa0;photo a été redimensionnée&#xa0;: de %1 à %2.</numerusform>
            <numerusform>%n&#xa0;photos ont été redimensionnées&#xa0;: de %1 à %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 is small enough already.</source>
        <translation>1 est déjà assez petite.</translation>
    </message>
    <message numerus="yes">
        <source>%n are small enough already.</source>
        <translation>
            <numerusform>%n est déjà assez petite.</numerusform>
            <numerusform>%n sont déjà assez petites.</numerusform>
        </translation>
    </message>
    <message>
        <source>These were left as they are:</source>
        <translation>Ces photos sont restées telles quelles&#xa0;:</translation>
    </message>
    <message>
        <source>Photos that failed:</source>
        <translation>Photos en échec&#xa0;:</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::SizeRow</name>
    <message>
        <source>Free</source>
        <translation>Personnalisée</translation>
    </message>
    <message>
        <source>What the size is measured by</source>
        <translation>Mesure de la taille</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::TargetRows</name>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Beside the originals</source>
        <translation>À côté des originaux</translation>
    </message>
    <message>
        <source>In a folder</source>
        <translation>Dans un dossier</translation>
    </message>
    <message>
        <source>In their place; the originals go to the trash</source>
        <translation>À leur place&#x202f;; les originaux vont à la corbeille</translation>
    </message>
    <message>
        <source>None is chosen yet</source>
        <translation>Aucun choisi pour l’instant</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>{name} is the photo&apos;s own name, {width} and {height} are its new size in pixels.</source>
        <translation>{name} est le nom de la photo, {width} et {height} sont sa nouvelle taille en pixels.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>This is no name yet</source>
        <translation>Ce n’est pas encore un nom</translation>
    </message>
    <message>
        <source>Choose the folder that the resized photos go to.</source>
        <translation>Choisissez le dossier où enregistrer les photos redimensionnées.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Choose the folder first.</source>
        <translation>Choisissez d’abord le dossier.</translation>
    </message>
    <message>
        <source>The name needs {name} in it, which is the photo&apos;s own name, and no slash.</source>
        <translation>Le nom doit contenir {name}, qui est le nom de la photo, et aucune barre oblique.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::SimilarPhotos::SimilarityRow</name>
    <message>
        <source>Similarity</source>
        <translation>Similitude</translation>
    </message>
    <message>
        <source>How much alike photos have to be to count as duplicates</source>
        <translation>Degré de similitude à partir duquel des photos sont considérées comme des doublons</translation>
    </message>
    <message>
        <source>Alike</source>
        <translation>Semblables</translation>
    </message>
    <message>
        <source>The Same</source>
        <translation>Identiques</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::DoneNotice</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::ItemCard</name>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::TransferRunner</name>
    <message>
        <source>Choose the folder to move %1 to.</source>
        <translation>Choisissez le dossier où déplacer %1.</translation>
    </message>
    <message>
        <source>Choose the folder to copy %1 to.</source>
        <translation>Choisissez le dossier où copier %1.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>Rien n’a été déplacé.</translation>
    </message>
    <message>
        <source>Nothing was copied.</source>
        <translation>Rien n’a été copié.</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Déplacement terminé</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copie terminée</translation>
    </message>
    <message>
        <source>Putting everything back</source>
        <translation>Remise en place des éléments</translation>
    </message>
    <message>
        <source>Not everything could be put back.</source>
        <translation>Certains éléments n’ont pas pu être remis en place.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::TransferWindow</name>
    <message>
        <source>Do the same for all the rest</source>
        <translation>Faire de même pour tous les suivants</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Fusionner</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Garder les deux</translation>
    </message>
    <message>
        <source>What was not done</source>
        <translation>Ce qui n’a pas été fait</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Go On With the Others</source>
        <translation>Continuer avec les autres</translation>
    </message>
    <message numerus="yes">
        <source>Looking at %1 items</source>
        <translation>
            <numerusform>Examen de %1&#xa0;élément</numerusform>
            <numerusform>Examen de %1&#xa0;éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to the disk</source>
        <translation>Écriture sur le disque</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 · %2 of %3</source>
        <translation>%1 · %2 sur %3</translation>
    </message>
    <message>
        <source>There is a folder %1 in %2 already.</source>
        <translation>Il existe déjà un dossier %1 dans %2.</translation>
    </message>
    <message>
        <source>There is a file %1 in %2 already.</source>
        <translation>Il existe déjà un fichier %1 dans %2.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Déjà présent</translation>
    </message>
    <message>
        <source>Not everything can be done.</source>
        <translation>Certains éléments ne peuvent pas être traités.</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Put actions into your file manager&apos;s right-click menu</source>
        <translation>Ajoutez des actions au menu contextuel de votre gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Orvik Menu adds actions to the right-click menu of GNOME Files, Nemo, Caja, Thunar and Dolphin, for items inside folders that you choose.</source>
        <translation>Orvik Menu ajoute des actions au menu contextuel de Fichiers de GNOME, Nemo, Caja, Thunar et Dolphin, pour les éléments situés dans les dossiers de votre choix.</translation>
    </message>
    <message>
        <source>The control panel lets you:</source>
        <translation>Le panneau de configuration vous permet de&#xa0;:</translation>
    </message>
    <message>
        <source>pick the actions that show: open a terminal, create a text file, copy a path, send an item by mail and more</source>
        <translation>choisir les actions affichées&#xa0;: ouvrir un terminal, créer un fichier texte, copier un chemin, envoyer un élément par courriel et plus encore</translation>
    </message>
    <message>
        <source>choose the folders that count, and leave out single ones within them</source>
        <translation>choisir les dossiers concernés, et en exclure certains sous-dossiers</translation>
    </message>
    <message>
        <source>show the actions side by side or in one submenu, with icons or without</source>
        <translation>afficher les actions directement dans le menu ou dans un sous-menu, avec ou sans icônes</translation>
    </message>
    <message>
        <source>switch the companion that brings them into the file manager on and off</source>
        <translation>activer ou désactiver le programme compagnon qui les intègre au gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>A change is in the next menu that you open, without restarting anything.</source>
        <translation>Chaque changement apparaît dans le prochain menu ouvert, sans rien redémarrer.</translation>
    </message>
    <message>
        <source>The actions that the menu shows, each with a switch</source>
        <translation>Les actions proposées par le menu, chacune avec un interrupteur</translation>
    </message>
    <message>
        <source>All screens of the control panel in light colours</source>
        <translation>Tous les écrans du panneau de configuration, en couleurs claires</translation>
    </message>
    <message>
        <source>All screens of the control panel in dark colours</source>
        <translation>Tous les écrans du panneau de configuration, en couleurs sombres</translation>
    </message>
</context>
<context>
    <name>ModifiedText</name>
    <message>
        <source>Today %1</source>
        <translation>Aujourd’hui %1</translation>
    </message>
    <message>
        <source>Yesterday %1</source>
        <translation>Hier %1</translation>
    </message>
</context>
<context>
    <name>NotSentAlert</name>
    <message>
        <source>One item in it cannot be packed:</source>
        <translation>Un élément de l’envoi ne peut pas être ajouté à l’archive&#xa0;:</translation>
    </message>
    <message numerus="yes">
        <source>%1 items in it cannot be packed:</source>
        <translation>
            <numerusform>%1&#xa0;élément de l’envoi ne peut pas être ajouté à l’archive&#xa0;:</numerusform>
            <numerusform>%1&#xa0;éléments de l’envoi ne peuvent pas être ajoutés à l’archive&#xa0;:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>et %1&#xa0;autre</numerusform>
            <numerusform>et %1&#xa0;autres</numerusform>
        </translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>Lecture impossible&#xa0;: %1</translation>
    </message>
    <message>
        <source>The disk is full: there is too little room left in %1 to prepare it.</source>
        <translation>Le disque est plein&#xa0;: il ne reste pas assez de place dans %1 pour préparer l’envoi.</translation>
    </message>
    <message>
        <source>It cannot be prepared in %1: %2</source>
        <translation>Impossible de préparer l’envoi dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 was not sent.</source>
        <translation>L’envoi de %1 n’a pas eu lieu.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No mail program could be opened with it. Check which mail program is set as the default, then send it again.</source>
        <translation>Aucun logiciel de messagerie n’a pu être ouvert pour cet envoi. Vérifiez quel logiciel de messagerie est défini par défaut, puis recommencez l’envoi.</translation>
    </message>
</context>
<context>
    <name>OpenNewFinderWindow</name>
    <message>
        <source>No window can be opened on %1: %2.</source>
        <translation>Impossible d’ouvrir une fenêtre pour %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file manager does not answer, so there may be no window on %1.</source>
        <translation>Le gestionnaire de fichiers ne répond pas&#x202f;; il se peut qu’aucune fenêtre ne s’ouvre pour %1.</translation>
    </message>
    <message>
        <source>No file manager was found to open a window on %1.</source>
        <translation>Aucun gestionnaire de fichiers n’a été trouvé pour ouvrir une fenêtre pour %1.</translation>
    </message>
</context>
<context>
    <name>OpenSystemPreferences</name>
    <message>
        <source>No program for the settings of the desktop was found. Install the one of your desktop.</source>
        <translation>Aucun programme de paramètres du bureau n’a été trouvé. Installez celui de votre environnement de bureau.</translation>
    </message>
</context>
<context>
    <name>OpenTerminal</name>
    <message>
        <source>No terminal can be opened in %1: %2.</source>
        <translation>Impossible d’ouvrir un terminal dans %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>No terminal was found. Install one, or choose one in the settings of the desktop.</source>
        <translation>Aucun terminal n’a été trouvé. Installez-en un ou choisissez-en un dans les paramètres du bureau.</translation>
    </message>
</context>
<context>
    <name>Photos</name>
    <message>
        <source>cannot be read: what reads pictures could not be started; install Orvik Menu and libvips again</source>
        <translation>ne peut pas être lu&#xa0;: le lecteur d’images n’a pas pu être lancé&#x202f;; réinstallez Orvik Menu et libvips</translation>
    </message>
    <message>
        <source>takes too long to read</source>
        <translation>est trop long à lire</translation>
    </message>
    <message>
        <source>cannot be read: it is damaged, or needs more memory than a picture may take</source>
        <translation>ne peut pas être lu&#xa0;: il est endommagé ou demande plus de mémoire qu’une image ne peut en occuper</translation>
    </message>
    <message>
        <source>cannot be read: what reads pictures has failed</source>
        <translation>ne peut pas être lu&#xa0;: le lecteur d’images a échoué</translation>
    </message>
    <message>
        <source>cannot be read: this is no question</source>
        <translation>ne peut pas être lu&#xa0;: la demande n’est pas valide</translation>
    </message>
    <message>
        <source>holds several pictures, and only one would be compared</source>
        <translation>contient plusieurs images, et une seule serait comparée</translation>
    </message>
    <message>
        <source>is no picture of a kind that can be read here</source>
        <translation>n’est pas une image d’un type pris en charge</translation>
    </message>
    <message>
        <source>cannot be read: it is damaged or ends too early</source>
        <translation>ne peut pas être lu&#xa0;: il est endommagé ou incomplet</translation>
    </message>
    <message>
        <source>is too large: it has %1 × %2 pixels</source>
        <translation>est trop grand&#xa0;: il fait %1 × %2 pixels</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>cannot be shown: it takes too much time or memory</source>
        <translation>ne peut pas être affiché&#xa0;: il demande trop de temps ou de mémoire</translation>
    </message>
    <message>
        <source>cannot be resized: its worker gave no answer</source>
        <translation>ne peut pas être redimensionné&#xa0;: le processus chargé de ce travail n’a pas répondu</translation>
    </message>
    <message>
        <source>cannot be resized: this is no job</source>
        <translation>ne peut pas être redimensionné&#xa0;: la tâche n’est pas valide</translation>
    </message>
    <message>
        <source>cannot be resized: it is damaged or ends too early</source>
        <translation>ne peut pas être redimensionné&#xa0;: il est endommagé ou incomplet</translation>
    </message>
    <message>
        <source>cannot be resized: its format cannot be written here</source>
        <translation>ne peut pas être redimensionné&#xa0;: l’écriture de son format n’est pas prise en charge</translation>
    </message>
    <message>
        <source>cannot be made that small</source>
        <translation>ne peut pas être réduit à ce point</translation>
    </message>
    <message>
        <source>cannot be resized: it holds several pictures, and only one would be left</source>
        <translation>ne peut pas être redimensionné&#xa0;: il contient plusieurs images, et une seule subsisterait</translation>
    </message>
    <message>
        <source>cannot be saved: there is no room for it</source>
        <translation>ne peut pas être enregistré&#xa0;: il n’y a pas assez de place</translation>
    </message>
    <message>
        <source>cannot be resized: without ExifTool it would lose its Exif data</source>
        <translation>ne peut pas être redimensionné&#xa0;: sans ExifTool, il perdrait ses données Exif</translation>
    </message>
    <message>
        <source>cannot be resized in its place: a second picture or a film in it would be lost</source>
        <translation>ne peut pas être redimensionné à sa place&#xa0;: une seconde image ou une vidéo qu’il contient serait perdue</translation>
    </message>
</context>
<context>
    <name>ProblemTool::ProblemWindow</name>
    <message>
        <source>What it said: %1</source>
        <translation>Message d’erreur&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is nothing to repair in the settings.</source>
        <translation>Il n’y a rien à réparer dans les paramètres.</translation>
    </message>
    <message>
        <source>Nothing in the settings explains it. They are as they were.</source>
        <translation>Rien dans les paramètres n’explique cet arrêt. Ils n’ont pas été modifiés.</translation>
    </message>
    <message>
        <source>Repair Settings mends this.</source>
        <translation>«&#xa0;Réparer les paramètres&#xa0;» corrige ce problème.</translation>
    </message>
    <message>
        <source>That may not be why it stopped. Repair Settings mends the settings.</source>
        <translation>Ce n’est peut-être pas la cause de l’arrêt. «&#xa0;Réparer les paramètres&#xa0;» corrige les paramètres.</translation>
    </message>
    <message>
        <source>A copy of the settings as they are now is kept.</source>
        <translation>Une copie des paramètres actuels est conservée.</translation>
    </message>
    <message>
        <source>The settings of Orvik Menu</source>
        <translation>Paramètres d’Orvik Menu</translation>
    </message>
    <message>
        <source>Orvik Menu had to stop</source>
        <translation>Orvik Menu a dû s’arrêter</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation>Rouvrir</translation>
    </message>
    <message>
        <source>Repair Settings</source>
        <translation>Réparer les paramètres</translation>
    </message>
    <message>
        <source>The settings could not be repaired: they cannot be read.</source>
        <translation>Les paramètres n’ont pas pu être réparés&#xa0;: ils sont illisibles.</translation>
    </message>
    <message>
        <source>The settings could not be repaired: %1.</source>
        <translation>Les paramètres n’ont pas pu être réparés&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Orvik Menu could not be started.</source>
        <translation>Orvik Menu n’a pas pu être lancé.</translation>
    </message>
    <message>
        <source>Orvik Menu is still ending. It opens again right after.</source>
        <translation>Orvik Menu n’a pas fini de s’arrêter. Il se rouvrira aussitôt après.</translation>
    </message>
</context>
<context>
    <name>Repair</name>
    <message>
        <source>The list of folders is no list.</source>
        <translation>La liste des dossiers n’est pas une liste.</translation>
    </message>
    <message>
        <source>What is no list is removed.</source>
        <translation>Ce qui n’est pas une liste est supprimé.</translation>
    </message>
    <message>
        <source>1 entry of the list of folders is no path.</source>
        <translation>1&#xa0;entrée de la liste des dossiers n’est pas un chemin.</translation>
    </message>
    <message>
        <source>%1 entries of the list of folders are no paths.</source>
        <translation>%1&#xa0;entrées de la liste des dossiers ne sont pas des chemins.</translation>
    </message>
    <message>
        <source>What is no path is removed.</source>
        <translation>Ce qui n’est pas un chemin est supprimé.</translation>
    </message>
    <message>
        <source>The list that says which folders are active does not match the list of folders.</source>
        <translation>La liste indiquant les dossiers actifs ne correspond pas à la liste des dossiers.</translation>
    </message>
    <message>
        <source>A folder without an entry of its own becomes active.</source>
        <translation>Un dossier sans entrée propre devient actif.</translation>
    </message>
    <message>
        <source>The older list of menu items is no list.</source>
        <translation>L’ancienne liste des éléments du menu n’est pas une liste.</translation>
    </message>
    <message>
        <source>The older list of menu items has entries that are no numbers.</source>
        <translation>L’ancienne liste des éléments du menu contient des entrées qui ne sont pas des nombres.</translation>
    </message>
    <message>
        <source>A menu item without a number is switched on.</source>
        <translation>Un élément du menu sans nombre est activé.</translation>
    </message>
</context>
<context>
    <name>ResizePhotos</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>un lien mène hors des dossiers où Orvik Menu agit</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <extracomment>A photo&apos;s name, and what is wrong with it: “Harbour.jpg cannot be resized: it is damaged.”</extracomment>
        <translation>%1 %2.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2.</source>
        <translation>%1 ne peut pas être ouvert&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be saved: %2.</source>
        <translation>%1 ne peut pas être enregistré&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 stays as it is, since it cannot be moved to the trash: %2</source>
        <translation>%1 reste tel quel, car il ne peut pas être mis à la corbeille&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is in the trash, but the smaller one could not take its place: %2.</source>
        <translation>%1 est à la corbeille, mais la version réduite n’a pas pu prendre sa place&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 takes too long to resize.</source>
        <translation>Le redimensionnement de %1 prend trop de temps.</translation>
    </message>
    <message>
        <source>%1 cannot be resized: it takes too much memory, or is damaged.</source>
        <translation>%1 ne peut pas être redimensionné&#xa0;: il demande trop de mémoire ou est endommagé.</translation>
    </message>
    <message>
        <source>%1 cannot be resized: the part that reads pictures does not start. Install the package libvips42.</source>
        <translation>%1 ne peut pas être redimensionné&#xa0;: le lecteur d’images ne démarre pas. Installez le paquet libvips42.</translation>
    </message>
    <message>
        <source>%1 stays as it is: another program has changed it meanwhile.</source>
        <translation>%1 reste tel quel&#xa0;: un autre programme l’a modifié entre-temps.</translation>
    </message>
</context>
<context>
    <name>SendViaMail</name>
    <message>
        <source>%1 cannot be sent: its name or that of a folder above it has characters that are no text. Rename it and try again.</source>
        <translation>%1 ne peut pas être envoyé&#xa0;: son nom ou celui d’un dossier parent contient des caractères qui ne forment pas un texte valide. Renommez-le et réessayez.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: the settings of Orvik Menu cannot be written. Is the disk full?</source>
        <translation>%1 ne peut pas être envoyé&#xa0;: impossible d’écrire les paramètres d’Orvik Menu. Le disque est-il plein&#x202f;?</translation>
    </message>
</context>
<context>
    <name>SetAsWallpaper</name>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The desktop did not take %1 as its wallpaper.</source>
        <translation>Le bureau n’a pas accepté %1 comme fond d’écran.</translation>
    </message>
    <message>
        <source>%1 cannot be set as the wallpaper: Orvik Menu does not know how this desktop sets it.</source>
        <translation>%1 ne peut pas être défini comme fond d’écran&#xa0;: Orvik Menu ne sait pas comment le définir sur ce bureau.</translation>
    </message>
</context>
<context>
    <name>ShowcaseCatalogue</name>
    <message>
        <source>Photo &amp; Video</source>
        <translation>Photo et vidéo</translation>
    </message>
    <message>
        <source>Turn hundreds of small photos into one large picture that stays sharp however close you look.</source>
        <translation>Assemblez des centaines de petites photos en une grande image qui reste nette, même vue de tout près.</translation>
    </message>
    <message>
        <source>Trim, join and turn your video clips without losing quality or waiting for an export.</source>
        <translation>Coupez, assemblez et pivotez vos vidéos sans perte de qualité et sans attendre l’exportation.</translation>
    </message>
    <message>
        <source>Warm or cool the light of a whole photo shoot at once, and compare it with the original as you go.</source>
        <translation>Réchauffez ou refroidissez d’un coup la lumière de toute une séance photo, en comparant à mesure avec l’original.</translation>
    </message>
    <message>
        <source>Record your screen, your voice and your camera together, ready to share the moment you stop.</source>
        <translation>Enregistrez à la fois votre écran, votre voix et votre caméra&#xa0;: le résultat est prêt à partager dès que vous arrêtez.</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Productivité</translation>
    </message>
    <message>
        <source>Pick any colour on your screen and keep your palettes in one place, ready to paste into your work.</source>
        <translation>Prélevez toute couleur à l’écran et gardez vos palettes au même endroit, prêtes à être collées.</translation>
    </message>
    <message>
        <source>Lifestyle</source>
        <translation>Style de vie</translation>
    </message>
    <message>
        <source>Keep well at your desk with gentle reminders to drink, to stretch and to look into the distance.</source>
        <translation>Prenez soin de vous au bureau grâce à des rappels discrets pour boire, vous étirer et regarder au loin.</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Utilitaires</translation>
    </message>
    <message>
        <source>Find any file as you type, even inside archives and on disks that are not plugged in.</source>
        <translation>Trouvez n’importe quel fichier au fil de la saisie, même dans les archives et sur les disques débranchés.</translation>
    </message>
    <message>
        <source>Collect notes, lists and clippings in a notebook that is always one keystroke away.</source>
        <translation>Rassemblez notes, listes et extraits dans un carnet toujours à portée d’une touche.</translation>
    </message>
    <message>
        <source>See every calendar and every deadline on one timeline, and move your plans until the week fits.</source>
        <translation>Voyez agendas et échéances sur une même frise, et déplacez vos projets pour que la semaine tienne.</translation>
    </message>
    <message>
        <source>See at a glance what fills your disk, and clear away duplicates, leftovers and old downloads.</source>
        <translation>Voyez ce qui remplit votre disque, et débarrassez-vous des doublons et des vieux téléchargements.</translation>
    </message>
    <message>
        <source>Business</source>
        <translation>Affaires</translation>
    </message>
    <message>
        <source>Write an invoice in a minute, send it as a PDF, and always know who has yet to pay.</source>
        <translation>Rédigez une facture en une minute, envoyez-la en PDF et sachez toujours qui doit encore payer.</translation>
    </message>
    <message>
        <source>Rename thousands of files at once by rules that you can read, with a preview of every new name.</source>
        <translation>Renommez des milliers de fichiers à la fois selon des règles lisibles, avec un aperçu de chaque nouveau nom.</translation>
    </message>
    <message>
        <source>Keep an eye on processor, memory and network with a small, quiet meter in the menu bar.</source>
        <translation>Surveillez le processeur, la mémoire et le réseau avec un petit indicateur dans la barre de menus.</translation>
    </message>
    <message>
        <source>Keep everything that you copy, and paste any of it again by typing a few of its letters.</source>
        <translation>Conservez tout ce que vous copiez et recollez-le en tapant quelques-unes de ses lettres.</translation>
    </message>
    <message>
        <source>Lock your private folders with strong encryption, and open them again with a single password.</source>
        <translation>Verrouillez vos dossiers privés par un chiffrement fort et rouvrez-les avec un seul mot de passe.</translation>
    </message>
    <message>
        <source>Dim everything but the window you work in, so that your attention stays where it belongs.</source>
        <translation>Assombrissez tout sauf la fenêtre où vous travaillez, pour que votre attention reste là où il faut.</translation>
    </message>
    <message>
        <source>Work in focused stretches with a break after each, and see at the end of the week where the hours went.</source>
        <translation>Travaillez concentré, avec une pause après chaque période, et voyez où sont passées vos heures.</translation>
    </message>
</context>
<context>
    <name>SizeRow</name>
    <message>
        <source>Longest side</source>
        <translation>Côté le plus long</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> pixels</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Pourcentage</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Each file at most</source>
        <translation>Maximum par fichier</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> ko</translation>
    </message>
    <message>
        <source>All together at most</source>
        <translation>Maximum au total</translation>
    </message>
    <message>
        <source>For a screen</source>
        <translation>Pour un écran</translation>
    </message>
    <message>
        <source>For mail</source>
        <translation>Pour un courriel</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>Moitié</translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>1 byte</source>
        <translation>1&#xa0;octet</translation>
    </message>
</context>
<context>
    <name>TagView</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Droits d’auteur</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Date de prise de vue</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil photo</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>Temps de pose</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Distance focale</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Taille en pixels</translation>
    </message>
    <message>
        <source>Kind of file</source>
        <translation>Type de fichier</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>Profil de couleurs</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Logiciel</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>Valeurs différentes</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>un lien mène hors des dossiers où Orvik Menu agit</translation>
    </message>
    <message>
        <source>it can only be read</source>
        <translation>il est en lecture seule</translation>
    </message>
    <message>
        <source>it is not known why</source>
        <translation>la cause est inconnue</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1&#xa0;élément</numerusform>
            <numerusform>%1&#xa0;éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>Moving %1 to %2</source>
        <translation>Déplacement de %1 vers %2</translation>
    </message>
    <message>
        <source>Copying %1 to %2</source>
        <translation>Copie de %1 vers %2</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 a été déplacé vers %2.</translation>
    </message>
    <message>
        <source>%1 was copied to %2.</source>
        <translation>%1 a été copié vers %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were moved to %2.</source>
        <translation>
            <numerusform>%1&#xa0;élément a été déplacé vers %2.</numerusform>
            <numerusform>%1&#xa0;éléments ont été déplacés vers %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 items were copied to %2.</source>
        <translation>
            <numerusform>%1&#xa0;élément a été copié vers %2.</numerusform>
            <numerusform>%1&#xa0;éléments ont été copiés vers %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 items were moved to %3.</source>
        <translation>
            <numerusform>Éléments déplacés vers %3&#xa0;: %1 sur %2.</numerusform>
            <numerusform>Éléments déplacés vers %3&#xa0;: %1 sur %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 items were copied to %3.</source>
        <translation>
            <numerusform>Éléments copiés vers %3&#xa0;: %1 sur %2.</numerusform>
            <numerusform>Éléments copiés vers %3&#xa0;: %1 sur %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing can be put into %1: %2.</source>
        <translation>Impossible d’écrire dans %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk of %1.</source>
        <translation>Il n’y a pas assez de place sur le disque de %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 ne peut pas être lu&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is in this folder already.</source>
        <translation>%1 est déjà dans ce dossier.</translation>
    </message>
    <message>
        <source>%1 cannot be moved into itself.</source>
        <translation>%1 ne peut pas être déplacé dans lui-même.</translation>
    </message>
    <message>
        <source>%1 cannot be copied into itself.</source>
        <translation>%1 ne peut pas être copié dans lui-même.</translation>
    </message>
    <message>
        <source>The name %1 is too long for the disk that it is to go to.</source>
        <translation>Le nom %1 est trop long pour le disque de destination.</translation>
    </message>
    <message>
        <source>%1 is too large for the disk that it is to go to.</source>
        <translation>%1 est trop volumineux pour le disque de destination.</translation>
    </message>
    <message>
        <source>%1 cannot be taken away from where it is. It can be copied.</source>
        <translation>%1 ne peut pas être retiré de son emplacement. Il peut être copié.</translation>
    </message>
    <message>
        <source>%1 is a device, which cannot be copied.</source>
        <translation>%1 est un périphérique et ne peut pas être copié.</translation>
    </message>
    <message>
        <source>%1 kept changing while it was copied. Try again.</source>
        <translation>%1 n’a cessé de changer pendant la copie. Réessayez.</translation>
    </message>
    <message>
        <source>%1 could not be moved: %2.</source>
        <translation>%1 n’a pas pu être déplacé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 could not be copied: %2.</source>
        <translation>%1 n’a pas pu être copié&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 has changed meanwhile, or a part of it could not be copied. What was not moved is still where it was.</source>
        <translation>%1 a changé entre-temps, ou une partie n’a pas pu être copiée. Ce qui n’a pas été déplacé est toujours à sa place.</translation>
    </message>
    <message>
        <source>%1 was copied, but not all of it could be removed from where it was: %2.</source>
        <translation>%1 a été copié, mais n’a pas pu être entièrement supprimé de son emplacement d’origine&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 could not be put back, since it is not where it was put.</source>
        <translation>%1 n’a pas pu être remis en place, car il n’est plus là où il avait été mis.</translation>
    </message>
    <message>
        <source>%1 could not be put back: %2.</source>
        <translation>%1 n’a pas pu être remis en place&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 could not be put into the trash: %2</source>
        <translation>%1 n’a pas pu être mis à la corbeille&#xa0;: %2</translation>
    </message>
    <message numerus="yes">
        <source>There were %1 more like these.</source>
        <translation>
            <numerusform>Et %1&#xa0;autre problème du même genre.</numerusform>
            <numerusform>Et %1&#xa0;autres problèmes du même genre.</numerusform>
        </translation>
    </message>
    <message>
        <source>There was 1 more like these.</source>
        <translation>Il y a eu 1 autre problème du même genre.</translation>
    </message>
    <message>
        <source>A part of %1 was moved to %2.</source>
        <translation>Une partie de %1 a été déplacée vers %2.</translation>
    </message>
    <message>
        <source>A part of %1 was copied to %2.</source>
        <translation>Une partie de %1 a été copiée vers %2.</translation>
    </message>
    <message>
        <source>%1 was not put back.</source>
        <translation>%1 n’a pas été remis en place.</translation>
    </message>
    <message>
        <source>%1 was copied without some of its extended attributes: the disk has no room for them.</source>
        <translation>%1 a été copié sans certains de ses attributs étendus&#xa0;: le disque n’a pas de place pour eux.</translation>
    </message>
</context>
<context>
    <name>TroubleWords</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>un lien mène hors des dossiers où Orvik Menu agit</translation>
    </message>
    <message>
        <source>ExifTool does not say why</source>
        <translation>ExifTool n’indique pas la cause</translation>
    </message>
    <message>
        <source>It was not done any more.</source>
        <translation>Non traitée en raison de l’interruption.</translation>
    </message>
    <message>
        <source>It cannot be opened: %1.</source>
        <translation>Ouverture impossible&#xa0;: %1.</translation>
    </message>
    <message>
        <source>It cannot be saved: %1.</source>
        <translation>Enregistrement impossible&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The original cannot be kept beside it: %1. Nothing was changed.</source>
        <translation>L’original ne peut pas être gardé à côté&#xa0;: %1. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>The program ExifTool is missing. Install the package libimage-exiftool-perl.</source>
        <translation>Le programme ExifTool est absent. Installez le paquet libimage-exiftool-perl.</translation>
    </message>
    <message>
        <source>Reading it takes too long.</source>
        <translation>La lecture prend trop de temps.</translation>
    </message>
    <message>
        <source>It says more than can be shown.</source>
        <translation>Les données sont trop nombreuses pour être affichées.</translation>
    </message>
    <message>
        <source>ExifTool failed on it. The file may be damaged, or too large.</source>
        <translation>ExifTool a échoué. Le fichier est peut-être endommagé ou trop volumineux.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Lecture impossible&#xa0;: %1.</translation>
    </message>
    <message>
        <source>It cannot be changed: %1.</source>
        <translation>Modification impossible&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Another program has changed it meanwhile. Look at it again and try again.</source>
        <translation>Un autre programme l’a modifiée entre-temps. Vérifiez-la et réessayez.</translation>
    </message>
    <message>
        <source>Files of this kind, or damaged ones, are not changed, since it cannot be checked that the picture stays the same.</source>
        <translation>Les fichiers de ce type ou endommagés ne sont pas modifiés, car il est impossible de vérifier que l’image reste la même.</translation>
    </message>
    <message>
        <source>The picture would not have stayed the same. Nothing was changed.</source>
        <translation>L’image ne serait pas restée la même. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>It does not hold all that was to be written. Nothing was changed.</source>
        <translation>Le résultat ne contient pas tout ce qui devait être écrit. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>It has no date that could be moved.</source>
        <translation>Elle n’a pas de date à décaler.</translation>
    </message>
    <message>
        <source>Its orientation is part of the picture and cannot be changed here.</source>
        <translation>Son orientation fait partie de l’image et ne peut pas être modifiée ici.</translation>
    </message>
    <message>
        <source>It was saved, but it holds more than the picture, such as a second one or a film, which may hold such data too.</source>
        <translation>Elle a été enregistrée, mais elle contient plus que l’image, par exemple une seconde image ou un film, qui peut aussi contenir de telles données.</translation>
    </message>
</context>
<context>
    <name>UtilityKitWindow</name>
    <message>
        <source>More from Orvik Studio</source>
        <translation>Autres applications d’Orvik Studio</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>&amp;Fermer la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Quit Orvik Menu</source>
        <translation>&amp;Quitter Orvik Menu</translation>
    </message>
</context>
<context>
    <name>ViewController</name>
    <message>
        <source>Choose the actions that show when you right-click an item in your folders.</source>
        <translation>Choisissez les actions proposées lors d’un clic droit sur un élément de vos dossiers.</translation>
    </message>
    <message>
        <source>Menu items</source>
        <translation>Éléments du menu</translation>
    </message>
    <message>
        <source>No Menu Items</source>
        <translation>Aucun élément de menu</translation>
    </message>
    <message>
        <source>The stored list of menu items is empty.</source>
        <translation>La liste enregistrée des éléments de menu est vide.</translation>
    </message>
</context>
<context>
    <name>WindowParts</name>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>«&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>un lien mène hors des dossiers où Orvik Menu agit</translation>
    </message>
    <message>
        <source>%1 is not in a folder that Orvik Menu works in. Add the folder in its settings.</source>
        <translation>%1 n’est pas dans un dossier où Orvik Menu agit. Ajoutez le dossier dans les paramètres d’Orvik Menu.</translation>
    </message>
    <message>
        <source>%1 or another item is not in a folder that Orvik Menu works in. Add the folder in its settings.</source>
        <translation>%1 ou un autre élément n’est pas dans un dossier où Orvik Menu agit. Ajoutez le dossier dans les paramètres d’Orvik Menu.</translation>
    </message>
    <message>
        <source>There were %1 more like these.</source>
        <translation>Autres problèmes du même genre&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There was 1 more like these.</source>
        <translation>Il y a eu 1 autre problème du même genre.</translation>
    </message>
</context>
<context>
    <name>aboutVc</name>
    <message>
        <source>Orvik Menu</source>
        <translation>Orvik Menu</translation>
    </message>
    <message>
        <source>Actions for your file manager’s menu, in the folders that you choose.</source>
        <translation>Des actions pour le menu de votre gestionnaire de fichiers, dans les dossiers de votre choix.</translation>
    </message>
    <message>
        <source>&amp;Web Site</source>
        <translation>Site &amp;web</translation>
    </message>
    <message>
        <source>&amp;Twitter</source>
        <translation>&amp;Twitter</translation>
    </message>
    <message>
        <source>&amp;Facebook</source>
        <translation>&amp;Facebook</translation>
    </message>
    <message>
        <source>&amp;Rate Orvik Menu</source>
        <translation>&amp;Noter Orvik Menu</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>collectionView_cell</name>
    <message>
        <source>Open in App Store</source>
        <translation>Ouvrir dans l’App Store</translation>
    </message>
</context>
<context>
    <name>customFoldersVc</name>
    <message>
        <source>Folders that you set up from the file manager’s menu, for example as places to move or copy items to. Delete those that you no longer use.</source>
        <translation>Dossiers que vous définissez depuis le menu du gestionnaire de fichiers, par exemple comme destinations pour déplacer ou copier des éléments. Supprimez ceux que vous n’utilisez plus.</translation>
    </message>
    <message>
        <source>Custom folders</source>
        <translation>Dossiers personnalisés</translation>
    </message>
    <message>
        <source>No Custom Folders</source>
        <translation>Aucun dossier personnalisé</translation>
    </message>
    <message>
        <source>They appear here once you set them up from the file manager’s menu.</source>
        <translation>Ils apparaissent ici dès que vous les configurez depuis le menu du gestionnaire de fichiers.</translation>
    </message>
</context>
<context>
    <name>firstRunvc</name>
    <message>
        <source>Welcome to Orvik Menu</source>
        <translation>Bienvenue dans Orvik Menu</translation>
    </message>
    <message>
        <source>Two steps, in either order, and Orvik Menu is ready.</source>
        <translation>Deux étapes, dans l’ordre de votre choix, et Orvik Menu est prêt.</translation>
    </message>
    <message>
        <source>Switch on the extension</source>
        <translation>Activer l’extension</translation>
    </message>
    <message>
        <source>Open Extensions and switch on “Orvik Menu Extension”. This step is done as soon as the extension runs.</source>
        <translation>Ouvrez Extensions et activez «&#xa0;Extension Orvik Menu&#xa0;». Cette étape est terminée dès que l’extension est en cours d’exécution.</translation>
    </message>
    <message>
        <source>Open &amp;Extensions…</source>
        <translation>Ouvrir &amp;Extensions…</translation>
    </message>
    <message>
        <source>Choose your folders</source>
        <translation>Choisir vos dossiers</translation>
    </message>
    <message>
        <source>The actions show on items inside these folders. You can change them later.</source>
        <translation>Les actions sont proposées pour les éléments de ces dossiers. Vous pourrez changer de dossiers plus tard.</translation>
    </message>
    <message>
        <source>Choose &amp;Folders…</source>
        <translation>Choisir des &amp;dossiers…</translation>
    </message>
    <message>
        <source>You have succeessfully enabled Orvik Menu and can see the Orvik Menu items in the Context Menu on right click for selected folders. You can change these settings in the app anytime.</source>
        <translation>Vous avez activé Orvik Menu. Ses éléments apparaissent désormais dans le menu contextuel, par un clic droit, pour les dossiers sélectionnés. Vous pouvez modifier ces paramètres à tout moment dans l’application.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>foldersArrvc</name>
    <message>
        <source>Orvik Menu shows its actions on items inside these folders. Clear a checkbox to leave a folder out for now.</source>
        <translation>Orvik Menu propose ses actions pour les éléments de ces dossiers. Décochez une case pour exclure un dossier provisoirement.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>&amp;Remove Folder…</source>
        <translation>&amp;Retirer…</translation>
    </message>
    <message>
        <source>Remove the selected folder (Delete)</source>
        <translation>Retirer le dossier sélectionné (Suppr)</translation>
    </message>
    <message>
        <source>Remove selected folder?</source>
        <translation>Retirer le dossier sélectionné&#x202f;?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the selected folder.</source>
        <translation>Le dossier sélectionné sera retiré de la liste.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Some of the folders can not be added because they are already added to the Folders list.</source>
        <translation>Certains dossiers ne peuvent pas être ajoutés, car ils figurent déjà dans la liste des dossiers.</translation>
    </message>
    <message>
        <source>No Folders Yet</source>
        <translation>Aucun dossier pour l’instant</translation>
    </message>
    <message>
        <source>Orvik Menu shows its actions on items inside the folders that you add.</source>
        <translation>Orvik Menu affiche ses actions sur les éléments des dossiers que vous ajoutez.</translation>
    </message>
</context>
<context>
    <name>genraltabvc</name>
    <message>
        <source>Extension</source>
        <translation>Extension</translation>
    </message>
    <message>
        <source>Looking for the extension…</source>
        <translation>Recherche de l’extension…</translation>
    </message>
    <message>
        <source>Open &amp;Extensions…</source>
        <translation>Ouvrir &amp;Extensions…</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Show an &amp;icon beside each menu item</source>
        <translation>Afficher une &amp;icône par élément</translation>
    </message>
    <message>
        <source>Group the menu items in a &amp;submenu</source>
        <translation>Regrouper dans un &amp;sous-menu</translation>
    </message>
    <message>
        <source>Orvik Menu Extension is enabled</source>
        <translation>L’extension Orvik Menu est activée</translation>
    </message>
    <message>
        <source>Enable &quot;Orvik Menu Extension&quot; in System Preferences &gt; Extensions to make Orvik Menu work.</source>
        <translation>Activez «&#xa0;Extension Orvik Menu&#xa0;» dans Paramètres du système &gt; Extensions pour faire fonctionner Orvik Menu.</translation>
    </message>
</context>
<context>
    <name>mainStartWindow</name>
    <message>
        <source>Orvik Menu</source>
        <translation>Orvik Menu</translation>
    </message>
    <message>
        <source>&amp;About Orvik Menu</source>
        <translation>À &amp;propos d’Orvik Menu</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>&amp;Fermer la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Quit Orvik Menu</source>
        <translation>&amp;Quitter Orvik Menu</translation>
    </message>
</context>
<context>
    <name>tabviewcontroller</name>
    <message>
        <source>Menu Items</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Custom Folders</source>
        <translation>Dossiers personnalisés</translation>
    </message>
</context>
<context>
    <name>tblcell</name>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Supprimer %1</translation>
    </message>
</context>
<context>
    <name>utilityKitvc</name>
    <message>
        <source>Other apps</source>
        <translation>Autres applications</translation>
    </message>
    <message>
        <source>Other Apps we think you may Love:</source>
        <translation>D’autres applications qui pourraient vous plaire&#xa0;:</translation>
    </message>
</context>
</TS>
