<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Action</name>
    <message>
        <source>The control panel of Orvik Menu could not be started. Install Orvik Menu again.</source>
        <translation>No se pudo iniciar el panel de control de Orvik Menu. Instale de nuevo Orvik Menu.</translation>
    </message>
    <message>
        <source>%1 cannot be found: %2.</source>
        <translation>No se encuentra %1: %2.</translation>
    </message>
    <message>
        <source>Orvik Menu was asked for something in a way that it does not understand.</source>
        <translation>Orvik Menu recibió una petición que no entiende.</translation>
    </message>
    <message>
        <source>The settings of Orvik Menu cannot be read.</source>
        <translation>No se puede leer la configuración de Orvik Menu.</translation>
    </message>
    <message>
        <source>This cannot be done with what is selected.</source>
        <translation>No se puede hacer esto con los elementos seleccionados.</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>No hay ninguna pantalla en la que mostrar la ventana.</translation>
    </message>
</context>
<context>
    <name>AddFolders</name>
    <message>
        <source>%1 cannot be added: its name or that of a folder above it has characters that are no text. Rename it and try again.</source>
        <translation>No se puede añadir %1: su nombre o el de una carpeta superior contiene caracteres que no son texto. Cámbielo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The folders cannot be added: the settings of Orvik Menu cannot be written. Is the disk full?</source>
        <translation>No se pueden añadir las carpetas: no se puede guardar la configuración de Orvik Menu. ¿Está lleno el disco?</translation>
    </message>
</context>
<context>
    <name>AttachToMail</name>
    <message>
        <source>Please select the file that you want to send via email to allow sending</source>
        <translation>Seleccione el archivo que quiere enviar por correo electrónico</translation>
    </message>
    <message>
        <source>Attach to Mail</source>
        <translation>Adjuntar al correo</translation>
    </message>
</context>
<context>
    <name>Attachments</name>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it became shorter</source>
        <translation>se ha acortado</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation>No se pudo quitar %1: %2.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <translation>No se pudo escribir %1: %2.</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>It ended before it was done.</source>
        <translation>La acción terminó antes de completarse.</translation>
    </message>
    <message>
        <source>The program that does this cannot be started.</source>
        <translation>No se puede iniciar el programa que realiza esta acción.</translation>
    </message>
    <message>
        <source>Too much is asked for at once.</source>
        <translation>Se piden demasiadas cosas a la vez.</translation>
    </message>
    <message>
        <source>Orvik Menu has no action of that name.</source>
        <translation>Orvik Menu no tiene ninguna acción con ese nombre.</translation>
    </message>
    <message>
        <source>Only the file manager itself can do this.</source>
        <translation>Solo el gestor de archivos puede hacer esto.</translation>
    </message>
    <message>
        <source>This action is switched off in the settings of Orvik Menu.</source>
        <translation>Esta acción está desactivada en la configuración de Orvik Menu.</translation>
    </message>
</context>
<context>
    <name>CreateNewTextFile</name>
    <message>
        <source>New Text File</source>
        <translation>Archivo de texto nuevo</translation>
    </message>
    <message>
        <source>No file can be made in %1: %2.</source>
        <translation>No se puede crear ningún archivo en %1: %2.</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>File Manager Menu Settings</source>
        <translation>Configuración del menú del gestor de archivos</translation>
    </message>
    <message>
        <source>Choose the actions that your file manager&apos;s menu shows, and where</source>
        <translation>Elija qué acciones muestra el menú del gestor de archivos y dónde</translation>
    </message>
    <message>
        <source>context;menu;right-click;file manager;actions;folders;</source>
        <translation>contexto;contextual;menú;clic derecho;gestor de archivos;acciones;carpetas;</translation>
    </message>
    <message>
        <source>Extensions</source>
        <translation>Extensiones</translation>
    </message>
    <message>
        <source>Switch the extensions of Orvik Menu on and off</source>
        <translation>Active y desactive las extensiones de Orvik Menu</translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message>
        <source>is not there any more</source>
        <translation>ya no está ahí</translation>
    </message>
    <message>
        <source>has changed since it was found</source>
        <translation>ha cambiado desde que se encontró</translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation>lo está usando otro programa</translation>
    </message>
    <message>
        <source>is the last copy that is left</source>
        <translation>es la última copia que queda</translation>
    </message>
    <message>
        <source>has a copy that another program is using</source>
        <translation>tiene una copia que otro programa está usando</translation>
    </message>
    <message>
        <source>was not reached</source>
        <translation>no llegó a procesarse</translation>
    </message>
    <message>
        <source>cannot be compared with its copy: %1</source>
        <translation>no se puede comparar con su copia: %1</translation>
    </message>
    <message>
        <source>is not the same as its copy</source>
        <translation>no es igual que su copia</translation>
    </message>
    <message>
        <source>was not compared to its end</source>
        <translation>no se comparó hasta el final</translation>
    </message>
    <message>
        <source>changed while it was read</source>
        <translation>cambió mientras se leía</translation>
    </message>
    <message>
        <source>is a link, and those are not followed</source>
        <translation>es un enlace, y los enlaces no se siguen</translation>
    </message>
    <message>
        <source>is neither a file nor a folder</source>
        <translation>no es ni un archivo ni una carpeta</translation>
    </message>
    <message>
        <source>could not be moved to the trash: %1</source>
        <translation>no se pudo mover a la papelera: %1</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>está vacío</translation>
    </message>
    <message>
        <source>is no picture, though it is named like one</source>
        <translation>no es una imagen, aunque lo parezca por su nombre</translation>
    </message>
    <message>
        <source>has changed while it was read</source>
        <translation>ha cambiado mientras se leía</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>no se puede leer: %1</translation>
    </message>
    <message>
        <source>may be the same file as its copy, in two places</source>
        <translation>quizá sea el mismo archivo que su copia, en dos lugares</translation>
    </message>
</context>
<context>
    <name>EditForm</name>
    <message>
        <source>As it is stored</source>
        <translation>Tal como está guardada</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Reflejada</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Boca abajo</translation>
    </message>
    <message>
        <source>Upside down and mirrored</source>
        <translation>Boca abajo y reflejada</translation>
    </message>
    <message>
        <source>Turned left and mirrored</source>
        <translation>Girada a la izquierda y reflejada</translation>
    </message>
    <message>
        <source>Turned right</source>
        <translation>Girada a la derecha</translation>
    </message>
    <message>
        <source>Turned right and mirrored</source>
        <translation>Girada a la derecha y reflejada</translation>
    </message>
    <message>
        <source>Turned left</source>
        <translation>Girada a la izquierda</translation>
    </message>
</context>
<context>
    <name>Extension</name>
    <message>
        <source>Orvik Menu Extension</source>
        <translation>Extensión de Orvik Menu</translation>
    </message>
    <message>
        <source>Adds Orvik Menu&apos;s actions to the file manager&apos;s right-click menu.</source>
        <translation>Añade las acciones de Orvik Menu al menú contextual del gestor de archivos.</translation>
    </message>
</context>
<context>
    <name>ExtensionStatus</name>
    <message>
        <source>There is no session bus, so it can neither run nor be switched.</source>
        <translation>No hay bus de sesión, por lo que no se puede ejecutar, activar ni desactivar.</translation>
    </message>
    <message>
        <source>It is set to start at log-in.</source>
        <translation>Está configurada para iniciarse con la sesión.</translation>
    </message>
    <message>
        <source>It is running, but it is not set to start at log-in.</source>
        <translation>Está en ejecución, pero no está configurada para iniciarse con la sesión.</translation>
    </message>
    <message>
        <source>It is set to start at log-in, but it is not running.</source>
        <translation>Está configurada para iniciarse con la sesión, pero no está en ejecución.</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Iniciando…</translation>
    </message>
    <message>
        <source>Ending…</source>
        <translation>Terminando…</translation>
    </message>
    <message>
        <source>It is running, and it starts at log-in.</source>
        <translation>Está en ejecución y se inicia con la sesión.</translation>
    </message>
    <message>
        <source>It is switched off.</source>
        <translation>Está desactivada.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::ExtensionControl</name>
    <message>
        <source>It could not be asked to end: %1.</source>
        <translation>No se le pudo pedir que terminara: %1.</translation>
    </message>
    <message>
        <source>The program %1 is missing.</source>
        <translation>Falta el programa %1.</translation>
    </message>
    <message>
        <source>Could not start %1.</source>
        <translation>No se pudo iniciar %1.</translation>
    </message>
    <message>
        <source>It was started, but it does not answer.</source>
        <translation>Se inició, pero no responde.</translation>
    </message>
    <message>
        <source>It was asked to end, but it does not.</source>
        <translation>Se le pidió que terminara, pero no lo hace.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::ExtensionsWindow</name>
    <message>
        <source>Extensions</source>
        <translation>Extensiones</translation>
    </message>
    <message>
        <source>Extensions bring Orvik Menu into other programs.</source>
        <translation>Las extensiones llevan Orvik Menu a otros programas.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagerRow</name>
    <message>
        <source>Restart</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Restart %1</source>
        <translation>Reiniciar %1</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagerSection</name>
    <message>
        <source>File managers on this computer:</source>
        <translation>Gestores de archivos de este equipo:</translation>
    </message>
    <message>
        <source>No file manager that can show the menu is installed.</source>
        <translation>No hay instalado ningún gestor de archivos que pueda mostrar el menú.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagersControl</name>
    <message>
        <source>It could not be asked to close.</source>
        <translation>No se le pudo pedir que se cerrara.</translation>
    </message>
    <message>
        <source>It was asked to close, but it is still running.</source>
        <translation>Se le pidió que se cerrara, pero sigue en ejecución.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::LackingActionsSection</name>
    <message>
        <source>Actions that are in no menu:</source>
        <translation>Acciones que no están en ningún menú:</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::StatusLine</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>FileManagerStatus</name>
    <message>
        <source>Close it and open it again.</source>
        <translation>Ciérrelo y vuelva a abrirlo.</translation>
    </message>
    <message>
        <source>Restarting it closes its windows and stops any copying.</source>
        <translation>Al reiniciarlo se cierran sus ventanas y se detienen las copias en curso.</translation>
    </message>
    <message>
        <source>Closing…</source>
        <translation>Cerrando…</translation>
    </message>
    <message>
        <source>It is not installed.</source>
        <translation>No está instalado.</translation>
    </message>
    <message>
        <source>The menu is missing. Install the package %1.</source>
        <translation>Falta el menú. Instale el paquete %1.</translation>
    </message>
    <message>
        <source>It is not running. It loads the menu when it starts.</source>
        <translation>No está en ejecución. Carga el menú al iniciarse.</translation>
    </message>
    <message>
        <source>It loads the menu when it needs it.</source>
        <translation>Carga el menú cuando lo necesita.</translation>
    </message>
    <message>
        <source>It has loaded the menu.</source>
        <translation>Ha cargado el menú.</translation>
    </message>
    <message>
        <source>It is running without the menu.</source>
        <translation>Está en ejecución sin el menú.</translation>
    </message>
    <message>
        <source>It has loaded an older version of the menu.</source>
        <translation>Ha cargado una versión anterior del menú.</translation>
    </message>
    <message>
        <source>It is running. Whether it has loaded the menu is not known.</source>
        <translation>Está en ejecución. No se sabe si ha cargado el menú.</translation>
    </message>
</context>
<context>
    <name>FindDuplicateFiles</name>
    <message>
        <source>Duplicate Files</source>
        <translation>Archivos duplicados</translation>
    </message>
    <message>
        <source>No two files hold the same.</source>
        <translation>No hay dos archivos con el mismo contenido.</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 archivo</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 archivo</numerusform>
            <numerusform>%1 archivos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FindDuplicatePhotos</name>
    <message>
        <source>Most pixels</source>
        <translation>Más píxeles</translation>
    </message>
    <message>
        <source>Most pixels, larger file</source>
        <translation>Más píxeles, archivo mayor</translation>
    </message>
    <message>
        <source>Oldest of the same size</source>
        <translation>Con el mismo tamaño, la más antigua</translation>
    </message>
    <message>
        <source>As good as another</source>
        <translation>Tan buena como otra</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Duplicate Photos</source>
        <translation>Fotos duplicadas</translation>
    </message>
    <message>
        <source>No two photos show the same.</source>
        <translation>No hay dos fotos que muestren lo mismo.</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 foto</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 foto</numerusform>
            <numerusform>%1 fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Píxeles</translation>
    </message>
    <message>
        <source>Keep the Best Photo</source>
        <translation>Conservar la mejor foto</translation>
    </message>
</context>
<context>
    <name>FolderPanel</name>
    <message>
        <source>Grant Access</source>
        <translation>Conceder acceso</translation>
    </message>
</context>
<context>
    <name>HideUnhideItem</name>
    <message>
        <source>What is hidden in %1 cannot be changed: %2.</source>
        <translation>No se puede cambiar lo que está oculto en %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be hidden, since its name has a line end. Rename it and try again.</source>
        <translation>No se puede ocultar %1, ya que su nombre contiene un salto de línea. Cámbiele el nombre e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: its name has dots alone.</source>
        <translation>No se puede dejar de ocultar %1: su nombre solo tiene puntos.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: it is the list of what is hidden.</source>
        <translation>No se puede dejar de ocultar %1: es la lista de los elementos ocultos.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: there is a %2 already. Rename one of the two.</source>
        <translation>No se puede dejar de ocultar %1: ya existe %2. Cambie el nombre de uno de los dos.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: %2.</source>
        <translation>No se puede dejar de ocultar %1: %2.</translation>
    </message>
    <message>
        <source>What is hidden in %1 cannot be changed, since another program is changing it. Try again.</source>
        <translation>No se puede cambiar lo que está oculto en %1, ya que otro programa lo está cambiando. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The list of what is hidden in %1, a file named .hidden, cannot be read: %2.</source>
        <translation>No se puede leer la lista de los elementos ocultos en %1, un archivo llamado .hidden: %2.</translation>
    </message>
</context>
<context>
    <name>LackingActions</name>
    <message>
        <source>Needs the package %1, which is not installed.</source>
        <translation>Necesita el paquete %1, que no está instalado.</translation>
    </message>
    <message>
        <source>Needs the packages %1, which are not installed.</source>
        <translation>Necesita los paquetes %1, que no están instalados.</translation>
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
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::DroppedFolders</name>
    <message>
        <source>“%1” cannot be found.</source>
        <translation>No se encuentra «%1».</translation>
    </message>
    <message>
        <source>“%1” cannot be added: %2.</source>
        <translation>No se puede añadir «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be added: it is not a folder.</source>
        <translation>No se puede añadir «%1»: no es una carpeta.</translation>
    </message>
    <message>
        <source>“%1” cannot be added: it is not a folder of this computer.</source>
        <translation>No se puede añadir «%1»: no es una carpeta de este equipo.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FileChooserDialog</name>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Carpeta personal</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Lugares</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>“%1” is no longer there.</source>
        <translation>«%1» ya no está ahí.</translation>
    </message>
    <message>
        <source>“%1” cannot be found.</source>
        <translation>No se encuentra «%1».</translation>
    </message>
    <message>
        <source>Nothing is selected. To choose “%1” itself, press the button “%2”.</source>
        <translation>No hay nada seleccionado. Para elegir «%1», pulse el botón «%2».</translation>
    </message>
    <message>
        <source>its path is too long</source>
        <translation>su ruta es demasiado larga</translation>
    </message>
    <message>
        <source>“%1” cannot be chosen: %2.</source>
        <translation>No se puede elegir «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be chosen.</source>
        <translation>No se puede elegir «%1».</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Carpeta nueva</translation>
    </message>
    <message>
        <source>Waiting for “%1” to answer…</source>
        <translation>Esperando la respuesta de «%1»…</translation>
    </message>
    <message>
        <source>Hidden files are not shown.</source>
        <translation>Los archivos ocultos no se muestran.</translation>
    </message>
    <message>
        <source>Hidden files are shown.</source>
        <translation>Los archivos ocultos se muestran.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Copy Location</source>
        <translation>Copiar la ubicación</translation>
    </message>
    <message>
        <source>New Folder…</source>
        <translation>Carpeta nueva…</translation>
    </message>
    <message>
        <source>Show Hidden Files</source>
        <translation>Mostrar los archivos ocultos</translation>
    </message>
    <message>
        <source>“%1” is a file. Only folders can be chosen here.</source>
        <translation>«%1» es un archivo. Aquí solo se pueden elegir carpetas.</translation>
    </message>
    <message>
        <source>“%1” leads to something that is not there.</source>
        <translation>«%1» lleva a algo que no existe.</translation>
    </message>
    <message>
        <source>“%1” does not answer. It may be on a network share that is gone.</source>
        <translation>«%1» no responde. Puede que esté en un recurso de red que ya no está disponible.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FileList</name>
    <message>
        <source>This folder is empty.</source>
        <translation>Esta carpeta está vacía.</translation>
    </message>
    <message>
        <source>You do not have permission to see what is in this folder.</source>
        <translation>No tiene permiso para ver el contenido de esta carpeta.</translation>
    </message>
    <message>
        <source>This folder cannot be read: %1.</source>
        <translation>No se puede leer esta carpeta: %1.</translation>
    </message>
    <message>
        <source>All that is in this folder is hidden. Ctrl+H shows it.</source>
        <translation>Todo lo que hay en esta carpeta está oculto. Ctrl+H lo muestra.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FolderDrops</name>
    <message>
        <source>Some of what you dropped cannot be added.</source>
        <translation>Algunos de los elementos soltados no se pueden añadir.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Y %1 más.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FolderModel</name>
    <message>
        <source>Link to a folder</source>
        <translation>Enlace a una carpeta</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Link to a file</source>
        <translation>Enlace a un archivo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Link to something that is not there</source>
        <translation>Enlace a algo que no existe</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between a file&apos;s kind, size and date</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>No se sabe</translation>
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
        <translation>Menú (F10)</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::NewFolderDialog</name>
    <message>
        <source>New Folder</source>
        <translation>Carpeta nueva</translation>
    </message>
    <message>
        <source>&amp;Name of the folder:</source>
        <translation>&amp;Nombre de la carpeta:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a folder.</source>
        <translation>«%1» no puede ser el nombre de una carpeta.</translation>
    </message>
    <message>
        <source>“%1” is already there.</source>
        <translation>«%1» ya existe.</translation>
    </message>
    <message>
        <source>“%1” cannot be made: %2.</source>
        <translation>No se puede crear «%1»: %2.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::PlacesList</name>
    <message>
        <source>Desktop</source>
        <translation>Escritorio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Descargas</translation>
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
        <source>Home</source>
        <translation>Carpeta personal</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>Sistema de archivos</translation>
    </message>
    <message>
        <source>%1 (last used)</source>
        <translation>%1 (última usada)</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::PreparingWindow</name>
    <message>
        <source>Preparing %1 for sending…</source>
        <translation>Preparando %1 para el envío…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::RowList</name>
    <message>
        <source>Added: %1</source>
        <translation>Añadido: %1</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::StepBadge</name>
    <message>
        <source>Step %1, done</source>
        <translation>Paso %1, completado</translation>
    </message>
    <message>
        <source>Step %1, to do</source>
        <translation>Paso %1, pendiente</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::TabPages</name>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>LinuxPlatform</name>
    <message>
        <source>“%1” cannot be used: its path has characters that cannot be stored as text. Rename the folder, then choose it again.</source>
        <translation>No se puede usar «%1»: su ruta contiene caracteres que no se pueden guardar como texto. Cambie el nombre de la carpeta y elíjala de nuevo.</translation>
    </message>
</context>
<context>
    <name>MailText</name>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <translation>
            <numerusform>%1 y %2 más</numerusform>
            <numerusform>%1 y %2 más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Choose Folder…</source>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>Asks for another folder</source>
        <translation>Permite elegir otra carpeta</translation>
    </message>
</context>
<context>
    <name>MenuCatalogue</name>
    <message>
        <source>Open Terminal</source>
        <translation>Abrir un terminal</translation>
    </message>
    <message>
        <source>Open System Preferences</source>
        <translation>Abrir configuración del sistema</translation>
    </message>
    <message>
        <source>Set as Wallpaper</source>
        <translation>Usar como fondo de escritorio</translation>
    </message>
    <message>
        <source>Create New Text File</source>
        <translation>Crear un archivo de texto</translation>
    </message>
    <message>
        <source>Copy path to Clipboard</source>
        <translation>Copiar la ruta al portapapeles</translation>
    </message>
    <message>
        <source>Send via Mail</source>
        <translation>Enviar por correo</translation>
    </message>
    <message>
        <source>Move to a folder</source>
        <translation>Mover a una carpeta</translation>
    </message>
    <message>
        <source>Copy to a folder</source>
        <translation>Copiar a una carpeta</translation>
    </message>
    <message>
        <source>Open New Finder Window</source>
        <translation>Abrir otra ventana de archivos</translation>
    </message>
    <message>
        <source>Hide / Unhide item</source>
        <translation>Ocultar o mostrar elemento</translation>
    </message>
    <message>
        <source>Find Duplicate Files</source>
        <translation>Buscar archivos duplicados</translation>
    </message>
    <message>
        <source>Find Duplicate Photos</source>
        <translation>Buscar fotos duplicadas</translation>
    </message>
    <message>
        <source>View or Edit Exif Data</source>
        <translation>Ver o editar datos Exif</translation>
    </message>
    <message>
        <source>Resize Photos</source>
        <translation>Redimensionar fotos</translation>
    </message>
    <message>
        <source>Configure Orvik Menu Settings</source>
        <translation>Configurar Orvik Menu</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>Añadir carpetas</translation>
    </message>
</context>
<context>
    <name>MenuExtension::ChoicesRow</name>
    <message>
        <source>Hidden Files</source>
        <translation>Archivos ocultos</translation>
    </message>
    <message>
        <source>Empty Files</source>
        <translation>Archivos vacíos</translation>
    </message>
    <message>
        <source>System Files</source>
        <translation>Del sistema</translation>
    </message>
    <message>
        <source>In folders of the system, in the trash, and what file managers write for themselves</source>
        <translation>Los que están en carpetas del sistema o en la papelera y los que los gestores de archivos escriben para sí mismos</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::DuplicatesWindow</name>
    <message>
        <source>One always stays. Keep another one before you choose this.</source>
        <translation>Siempre queda uno. Conserve otro antes de seleccionar este.</translation>
    </message>
    <message>
        <source>Filter by name or folder</source>
        <translation>Filtrar por nombre o carpeta</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Choose by Rule</source>
        <translation>Seleccionar por regla</translation>
    </message>
    <message>
        <source>Keep the Oldest</source>
        <translation>Conservar el más antiguo</translation>
    </message>
    <message>
        <source>Keep the Newest</source>
        <translation>Conservar el más reciente</translation>
    </message>
    <message>
        <source>Keep the One with the Shortest Path</source>
        <translation>Conservar el de la ruta más corta</translation>
    </message>
    <message>
        <source>Choose Nothing</source>
        <translation>No seleccionar nada</translation>
    </message>
    <message>
        <source>the Folder of the Item</source>
        <translation>la carpeta del elemento</translation>
    </message>
    <message>
        <source>Keep Those in %1</source>
        <translation>Conservar los de %1</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Items of the Group</source>
        <translation>Elementos del grupo</translation>
    </message>
    <message>
        <source>Looking for duplicates</source>
        <translation>Buscando duplicados</translation>
    </message>
    <message>
        <source>%1 looked at</source>
        <translation>Examinado: %1</translation>
    </message>
    <message>
        <source>Moving to the trash</source>
        <translation>Moviendo a la papelera</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Moved to the trash: %1, %2</source>
        <translation>Movido a la papelera: %1, %2</translation>
    </message>
    <message>
        <source>What is checked goes to the trash. One of a group always stays.</source>
        <translation>Lo que está marcado va a la papelera. Siempre queda uno de cada grupo.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>Mover a la papelera</translation>
    </message>
    <message>
        <source>Move 1 Item to Trash</source>
        <translation>Mover 1 elemento a la papelera</translation>
    </message>
    <message numerus="yes">
        <source>Move %1 Items to Trash</source>
        <translation>
            <numerusform>Mover %1 elemento a la papelera</numerusform>
            <numerusform>Mover %1 elementos a la papelera</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is chosen.</source>
        <translation>No hay nada seleccionado.</translation>
    </message>
    <message>
        <source>Chosen: %1, %2</source>
        <translation>Seleccionado: %1, %2</translation>
    </message>
    <message>
        <source>1 group, %1 could be saved</source>
        <translation>1 grupo, se pueden liberar %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 groups, %2 could be saved</source>
        <translation>
            <numerusform>%1 grupo, se pueden liberar %2</numerusform>
            <numerusform>%1 grupos, se pueden liberar %2</numerusform>
        </translation>
    </message>
    <message>
        <source>No group matches the filter</source>
        <translation>Ningún grupo coincide con el filtro</translation>
    </message>
    <message>
        <source>Looking for duplicates…</source>
        <translation>Buscando duplicados…</translation>
    </message>
    <message>
        <source>The search was stopped before anything was found.</source>
        <translation>La búsqueda se detuvo antes de encontrar nada.</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <extracomment>A file&apos;s name, and why nothing was done with it: “/home/a/b is the last copy that is left.”</extracomment>
        <translation>%1 %2.</translation>
    </message>
    <message>
        <source>1 Item Was Left Out…</source>
        <translation>Se omitió 1 elemento…</translation>
    </message>
    <message numerus="yes">
        <source>%1 Items Were Left Out…</source>
        <translation>
            <numerusform>Se omitió %1 elemento…</numerusform>
            <numerusform>Se omitieron %1 elementos…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>And %1 more.</source>
        <translation>
            <numerusform>Y %1 más.</numerusform>
            <numerusform>Y %1 más.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::GroupListModel</name>
    <message>
        <source>%1, %2, %3 could be saved</source>
        <translation>%1, %2, se pueden liberar %3</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 of %2 each</source>
        <translation>%1 de %2 cada uno</translation>
    </message>
    <message numerus="yes">
        <source>%n to remove</source>
        <translation>
            <numerusform>%n para eliminar</numerusform>
            <numerusform>%n para eliminar</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::ItemListModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modificado</translation>
    </message>
    <message>
        <source>Best Because</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Not the best</source>
        <translation>No es la mejor</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::PreviewPane</name>
    <message>
        <source>Preview of %1</source>
        <translation>Vista previa de %1</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::TroublesDialog</name>
    <message>
        <source>Left Out</source>
        <translation>Omitidos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::EditForm</name>
    <message>
        <source>Keep the original file beside it, with “_original” after its name</source>
        <translation>Conservar al lado el archivo original, con «_original» tras su nombre</translation>
    </message>
    <message>
        <source>Keep the file&apos;s date of change</source>
        <translation>Conservar la fecha de modificación del archivo</translation>
    </message>
    <message>
        <source>Remove Location and Personal Data…</source>
        <translation>Quitar ubicación y datos personales…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Fecha de la toma</translation>
    </message>
    <message>
        <source>Move date by days</source>
        <translation>Desplazar la fecha en días</translation>
    </message>
    <message>
        <source> d</source>
        <translation> d</translation>
    </message>
    <message>
        <source>Move date by hours</source>
        <translation>Desplazar la fecha en horas</translation>
    </message>
    <message>
        <source> h</source>
        <translation> h</translation>
    </message>
    <message>
        <source>Move date by minutes</source>
        <translation>Desplazar la fecha en minutos</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Move date by seconds</source>
        <translation>Desplazar la fecha en segundos</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Move date by</source>
        <translation>Desplazar la fecha</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Remove Place</source>
        <translation>Quitar lugar</translation>
    </message>
    <message>
        <source>Is removed when it is saved</source>
        <translation>Se quita al guardar</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>Valores diferentes</translation>
    </message>
    <message>
        <source>2026-12-31 23:59:59</source>
        <translation>2026-12-31 23:59:59</translation>
    </message>
    <message>
        <source>None is stored</source>
        <translation>No hay ninguna guardada</translation>
    </message>
    <message>
        <source>Stays as it is</source>
        <translation>Queda como está</translation>
    </message>
    <message>
        <source>48.858370, 2.294481</source>
        <translation>48.858370, 2.294481</translation>
    </message>
    <message>
        <source>The date is to be written as 2026-12-31 23:59:59.</source>
        <translation>Escriba la fecha en la forma 2026-12-31 23:59:59.</translation>
    </message>
    <message>
        <source>Write a new date or move the one that is there, not both.</source>
        <translation>Escriba una fecha nueva o desplace la que hay, pero no ambas cosas.</translation>
    </message>
    <message>
        <source>The place is to be written as latitude and longitude in degrees: 48.858370, 2.294481.</source>
        <translation>Escriba el lugar como latitud y longitud en grados: 48.858370, 2.294481.</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Todavía no se ha cambiado nada.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::ExifWindow</name>
    <message>
        <source>Exif Data</source>
        <translation>Datos Exif</translation>
    </message>
    <message>
        <source>It was ended; the photos that were not saved yet are as they were.</source>
        <translation>Se ha interrumpido; las fotos que aún no se habían guardado quedan como estaban.</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Photos that failed</source>
        <translation>Fotos con errores</translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>%n foto</numerusform>
            <numerusform>%n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading photos</source>
        <translation>Leyendo fotos</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos</source>
        <translation>
            <numerusform>%1 de %2 foto</numerusform>
            <numerusform>%1 de %2 fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving photos</source>
        <translation>Guardando fotos</translation>
    </message>
    <message>
        <source>1 photo was saved.</source>
        <translation>Se guardó 1 foto.</translation>
    </message>
    <message numerus="yes">
        <source>%n photos were saved.</source>
        <translation>
            <numerusform>Se guardó %n foto.</numerusform>
            <numerusform>Se guardaron %n fotos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>%1 These were left as they were:</source>
        <extracomment>The first says how many photos were saved; the others follow as a list.</extracomment>
        <translation>%1 Estas quedaron como estaban:</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A photo&apos;s name, and what is wrong with it, which is a sentence.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Discard Changes</source>
        <translation>Descartar los cambios</translation>
    </message>
    <message>
        <source>What was typed has not been saved and will be lost.</source>
        <translation>Lo que se ha escrito no se ha guardado y se perderá.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Reading was cancelled. Choose photos to read them.</source>
        <translation>Se ha cancelado la lectura. Elija fotos para leerlas.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::PersonalDataDialog</name>
    <message>
        <source>Where it was taken</source>
        <translation>Dónde se tomó</translation>
    </message>
    <message>
        <source>Who took it and who is in it</source>
        <translation>Quién la tomó y quién aparece</translation>
    </message>
    <message>
        <source>Which camera it was</source>
        <translation>Con qué cámara se tomó</translation>
    </message>
    <message>
        <source>What the camera&apos;s maker has noted</source>
        <translation>Lo que anotó el fabricante de la cámara</translation>
    </message>
    <message>
        <source>Remove Location and Personal Data</source>
        <translation>Quitar ubicación y datos personales</translation>
    </message>
    <message>
        <source>What will be removed</source>
        <translation>Lo que se quitará</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>This is removed for good, unless the original is kept. Title, description, copyright and date stay.</source>
        <translation>Esto se quita definitivamente, a menos que se conserve el original. El título, la descripción, el copyright y la fecha se mantienen.</translation>
    </message>
    <message>
        <source>The photos have no location and no personal data that is known here.</source>
        <translation>Las fotos no tienen ubicación ni datos personales que se conozcan aquí.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>A file holds more than the picture, such as a second one or a film, which stays and may hold such data too.</source>
        <translation>Un archivo contiene más que la imagen, por ejemplo otra imagen o un vídeo, que se conserva y también puede contener tales datos.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::TagView</name>
    <message>
        <source>Search names and values</source>
        <translation>Buscar nombres y valores</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation>No se encontró nada.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vacío</translation>
    </message>
    <message>
        <source>1 value</source>
        <translation>1 valor</translation>
    </message>
    <message numerus="yes">
        <source>%n values</source>
        <translation>
            <numerusform>%n valor</numerusform>
            <numerusform>%n valores</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::ProgressRow</name>
    <message>
        <source>a few seconds left</source>
        <translation>quedan unos segundos</translation>
    </message>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation>
            <numerusform>queda aproximadamente %n segundo</numerusform>
            <numerusform>quedan aproximadamente %n segundos</numerusform>
        </translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>queda aproximadamente un minuto</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation>
            <numerusform>queda aproximadamente %n minuto</numerusform>
            <numerusform>quedan aproximadamente %n minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>about an hour left</source>
        <translation>queda aproximadamente una hora</translation>
    </message>
    <message numerus="yes">
        <source>about %n hours left</source>
        <translation>
            <numerusform>queda aproximadamente %n hora</numerusform>
            <numerusform>quedan aproximadamente %n horas</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3</source>
        <translation>%1 × %2 píxeles · %3</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Calculando…</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3 · small enough already</source>
        <translation>%1 × %2 píxeles · %3 · ya es lo bastante pequeña</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3 · %4 %</source>
        <extracomment>The last is how many bytes are left of hundred.</extracomment>
        <translation>%1 × %2 píxeles · %3 · %4&#xa0;%</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::ResizeWindow</name>
    <message>
        <source>Resize Photos</source>
        <translation>Redimensionar fotos</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Redimensionar</translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>%n foto</numerusform>
            <numerusform>%n fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Photos that failed</source>
        <translation>Fotos con errores</translation>
    </message>
    <message>
        <source>Resizing photos</source>
        <translation>Redimensionando fotos</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos</source>
        <translation>
            <numerusform>%1 de %2 foto</numerusform>
            <numerusform>%1 de %2 fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>It was ended.</source>
        <translation>Se ha interrumpido.</translation>
    </message>
    <message>
        <source>1 photo was resized: %1 became %2.</source>
        <translation>Se redimensionó 1 foto: de %1 a %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n photos were resized: %1 became %2.</source>
        <translation>
            <numerusform>Se redimensionó %n foto: de %1 a %2.</numerusform>
            <numerusform>Se redimensionaron %n fotos: de %1 a %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 is small enough already.</source>
        <translation>1 ya es lo bastante pequeña.</translation>
    </message>
    <message numerus="yes">
        <source>%n are small enough already.</source>
        <translation>
            <numerusform>%n ya es lo bastante pequeña.</numerusform>
            <numerusform>%n ya son lo bastante pequeñas.</numerusform>
        </translation>
    </message>
    <message>
        <source>These were left as they are:</source>
        <translation>Estas quedaron como estaban:</translation>
    </message>
    <message>
        <source>Photos that failed:</source>
        <translation>Fotos con errores:</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::SizeRow</name>
    <message>
        <source>Free</source>
        <translation>Otro tamaño</translation>
    </message>
    <message>
        <source>What the size is measured by</source>
        <translation>Cómo se mide el tamaño</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::TargetRows</name>
    <message>
        <source>Choose Folder…</source>
        <translation>Elegir carpeta…</translation>
    </message>
    <message>
        <source>Beside the originals</source>
        <translation>Junto a los originales</translation>
    </message>
    <message>
        <source>In a folder</source>
        <translation>En una carpeta</translation>
    </message>
    <message>
        <source>In their place; the originals go to the trash</source>
        <translation>En su lugar; los originales van a la papelera</translation>
    </message>
    <message>
        <source>None is chosen yet</source>
        <translation>Ninguna elegida todavía</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>{name} is the photo&apos;s own name, {width} and {height} are its new size in pixels.</source>
        <translation>{name} es el nombre de la foto; {width} y {height} son su nuevo tamaño en píxeles.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>This is no name yet</source>
        <translation>Todavía no es un nombre válido</translation>
    </message>
    <message>
        <source>Choose the folder that the resized photos go to.</source>
        <translation>Elija la carpeta para las fotos redimensionadas.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Choose the folder first.</source>
        <translation>Elija primero la carpeta.</translation>
    </message>
    <message>
        <source>The name needs {name} in it, which is the photo&apos;s own name, and no slash.</source>
        <translation>El nombre debe contener {name}, que es el nombre de la foto, y ninguna barra.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::SimilarPhotos::SimilarityRow</name>
    <message>
        <source>Similarity</source>
        <translation>Parecido</translation>
    </message>
    <message>
        <source>How much alike photos have to be to count as duplicates</source>
        <translation>Cuánto deben parecerse las fotos para considerarse duplicadas</translation>
    </message>
    <message>
        <source>Alike</source>
        <translation>Parecidas</translation>
    </message>
    <message>
        <source>The Same</source>
        <translation>Iguales</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::DoneNotice</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::ItemCard</name>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Enlace</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::TransferRunner</name>
    <message>
        <source>Choose the folder to move %1 to.</source>
        <translation>Elija la carpeta a la que mover %1.</translation>
    </message>
    <message>
        <source>Choose the folder to copy %1 to.</source>
        <translation>Elija la carpeta a la que copiar %1.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>No se ha movido nada.</translation>
    </message>
    <message>
        <source>Nothing was copied.</source>
        <translation>No se ha copiado nada.</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Movido</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Putting everything back</source>
        <translation>Devolviendo todo a su lugar</translation>
    </message>
    <message>
        <source>Not everything could be put back.</source>
        <translation>No se pudo devolver todo a su lugar.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::TransferWindow</name>
    <message>
        <source>Do the same for all the rest</source>
        <translation>Hacer lo mismo con todos los demás</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Conservar ambos</translation>
    </message>
    <message>
        <source>What was not done</source>
        <translation>Lo que no se hizo</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Go On With the Others</source>
        <translation>Continuar con los demás</translation>
    </message>
    <message numerus="yes">
        <source>Looking at %1 items</source>
        <translation>
            <numerusform>Examinando %1 elemento</numerusform>
            <numerusform>Examinando %1 elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to the disk</source>
        <translation>Escribiendo en el disco</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1 · %2 of %3</source>
        <translation>%1 · %2 de %3</translation>
    </message>
    <message>
        <source>There is a folder %1 in %2 already.</source>
        <translation>Ya existe una carpeta %1 en %2.</translation>
    </message>
    <message>
        <source>There is a file %1 in %2 already.</source>
        <translation>Ya existe un archivo %1 en %2.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Ya existente</translation>
    </message>
    <message>
        <source>Not everything can be done.</source>
        <translation>No se puede hacer todo.</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Put actions into your file manager&apos;s right-click menu</source>
        <translation>Ponga acciones en el menú contextual del gestor de archivos</translation>
    </message>
    <message>
        <source>Orvik Menu adds actions to the right-click menu of GNOME Files, Nemo, Caja, Thunar and Dolphin, for items inside folders that you choose.</source>
        <translation>Orvik Menu añade acciones al menú contextual de Archivos de GNOME, Nemo, Caja, Thunar y Dolphin, para los elementos de las carpetas que elija.</translation>
    </message>
    <message>
        <source>The control panel lets you:</source>
        <translation>El panel de control permite:</translation>
    </message>
    <message>
        <source>pick the actions that show: open a terminal, create a text file, copy a path, send an item by mail and more</source>
        <translation>elegir las acciones que se muestran: abrir un terminal, crear un archivo de texto, copiar una ruta, enviar un elemento por correo y más</translation>
    </message>
    <message>
        <source>choose the folders that count, and leave out single ones within them</source>
        <translation>elegir las carpetas en las que se aplican y excluir algunas de su interior</translation>
    </message>
    <message>
        <source>show the actions side by side or in one submenu, with icons or without</source>
        <translation>mostrar las acciones sueltas o en un submenú, con iconos o sin ellos</translation>
    </message>
    <message>
        <source>switch the companion that brings them into the file manager on and off</source>
        <translation>activar y desactivar el programa en segundo plano que las lleva al gestor de archivos</translation>
    </message>
    <message>
        <source>A change is in the next menu that you open, without restarting anything.</source>
        <translation>Los cambios aparecen en el siguiente menú que abra, sin reiniciar nada.</translation>
    </message>
    <message>
        <source>The actions that the menu shows, each with a switch</source>
        <translation>Las acciones que muestra el menú, cada una con un interruptor</translation>
    </message>
    <message>
        <source>All screens of the control panel in light colours</source>
        <translation>Todas las pantallas del panel de control en colores claros</translation>
    </message>
    <message>
        <source>All screens of the control panel in dark colours</source>
        <translation>Todas las pantallas del panel de control en colores oscuros</translation>
    </message>
</context>
<context>
    <name>ModifiedText</name>
    <message>
        <source>Today %1</source>
        <translation>Hoy %1</translation>
    </message>
    <message>
        <source>Yesterday %1</source>
        <translation>Ayer %1</translation>
    </message>
</context>
<context>
    <name>NotSentAlert</name>
    <message>
        <source>One item in it cannot be packed:</source>
        <translation>No se puede empaquetar un elemento de su interior:</translation>
    </message>
    <message numerus="yes">
        <source>%1 items in it cannot be packed:</source>
        <translation>
            <numerusform>No se puede empaquetar %1 elemento de su interior:</numerusform>
            <numerusform>No se pueden empaquetar %1 elementos de su interior:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>y %1 más</numerusform>
            <numerusform>y %1 más</numerusform>
        </translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>No se puede leer: %1</translation>
    </message>
    <message>
        <source>The disk is full: there is too little room left in %1 to prepare it.</source>
        <translation>El disco está lleno: queda muy poco espacio en %1 para prepararlo.</translation>
    </message>
    <message>
        <source>It cannot be prepared in %1: %2</source>
        <translation>No se puede preparar en %1: %2</translation>
    </message>
    <message>
        <source>%1 was not sent.</source>
        <translation>No se ha enviado %1.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>No mail program could be opened with it. Check which mail program is set as the default, then send it again.</source>
        <translation>No se pudo abrir ningún programa de correo para enviarlo. Compruebe qué programa de correo es el predeterminado y vuelva a enviarlo.</translation>
    </message>
</context>
<context>
    <name>OpenNewFinderWindow</name>
    <message>
        <source>No window can be opened on %1: %2.</source>
        <translation>No se puede abrir ninguna ventana en %1: %2.</translation>
    </message>
    <message>
        <source>The file manager does not answer, so there may be no window on %1.</source>
        <translation>El gestor de archivos no responde, por lo que es posible que no haya ninguna ventana en %1.</translation>
    </message>
    <message>
        <source>No file manager was found to open a window on %1.</source>
        <translation>No se encontró ningún gestor de archivos para abrir una ventana en %1.</translation>
    </message>
</context>
<context>
    <name>OpenSystemPreferences</name>
    <message>
        <source>No program for the settings of the desktop was found. Install the one of your desktop.</source>
        <translation>No se encontró ningún programa para la configuración del escritorio. Instale el de su escritorio.</translation>
    </message>
</context>
<context>
    <name>OpenTerminal</name>
    <message>
        <source>No terminal can be opened in %1: %2.</source>
        <translation>No se puede abrir ningún terminal en %1: %2.</translation>
    </message>
    <message>
        <source>No terminal was found. Install one, or choose one in the settings of the desktop.</source>
        <translation>No se encontró ningún terminal. Instale uno o elija uno en la configuración del escritorio.</translation>
    </message>
</context>
<context>
    <name>Photos</name>
    <message>
        <source>cannot be read: what reads pictures could not be started; install Orvik Menu and libvips again</source>
        <translation>no se puede leer: no se pudo iniciar el programa que lee las imágenes; instale de nuevo Orvik Menu y libvips</translation>
    </message>
    <message>
        <source>takes too long to read</source>
        <translation>tarda demasiado en leerse</translation>
    </message>
    <message>
        <source>cannot be read: it is damaged, or needs more memory than a picture may take</source>
        <translation>no se puede leer: está dañado o necesita más memoria de la que puede ocupar una imagen</translation>
    </message>
    <message>
        <source>cannot be read: what reads pictures has failed</source>
        <translation>no se puede leer: ha fallado el programa que lee las imágenes</translation>
    </message>
    <message>
        <source>cannot be read: this is no question</source>
        <translation>no se puede leer: la petición no es válida</translation>
    </message>
    <message>
        <source>holds several pictures, and only one would be compared</source>
        <translation>contiene varias imágenes y solo se compararía una</translation>
    </message>
    <message>
        <source>is no picture of a kind that can be read here</source>
        <translation>no es una imagen de un tipo que se pueda leer aquí</translation>
    </message>
    <message>
        <source>cannot be read: it is damaged or ends too early</source>
        <translation>no se puede leer: está dañado o termina antes de tiempo</translation>
    </message>
    <message>
        <source>is too large: it has %1 × %2 pixels</source>
        <translation>es demasiado grande: tiene %1 × %2 píxeles</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>no se puede abrir</translation>
    </message>
    <message>
        <source>cannot be shown: it takes too much time or memory</source>
        <translation>no se puede mostrar: requiere demasiado tiempo o memoria</translation>
    </message>
    <message>
        <source>cannot be resized: its worker gave no answer</source>
        <translation>no se puede redimensionar: el programa auxiliar no respondió</translation>
    </message>
    <message>
        <source>cannot be resized: this is no job</source>
        <translation>no se puede redimensionar: la tarea no es válida</translation>
    </message>
    <message>
        <source>cannot be resized: it is damaged or ends too early</source>
        <translation>no se puede redimensionar: está dañado o termina antes de tiempo</translation>
    </message>
    <message>
        <source>cannot be resized: its format cannot be written here</source>
        <translation>no se puede redimensionar: aquí no se puede escribir su formato</translation>
    </message>
    <message>
        <source>cannot be made that small</source>
        <translation>no se puede hacer tan pequeño</translation>
    </message>
    <message>
        <source>cannot be resized: it holds several pictures, and only one would be left</source>
        <translation>no se puede redimensionar: contiene varias imágenes y solo quedaría una</translation>
    </message>
    <message>
        <source>cannot be saved: there is no room for it</source>
        <translation>no se puede guardar: no hay espacio suficiente</translation>
    </message>
    <message>
        <source>cannot be resized: without ExifTool it would lose its Exif data</source>
        <translation>no se puede redimensionar: sin ExifTool perdería sus datos Exif</translation>
    </message>
    <message>
        <source>cannot be resized in its place: a second picture or a film in it would be lost</source>
        <translation>no se puede redimensionar en su lugar: se perdería una segunda imagen o un vídeo que contiene</translation>
    </message>
</context>
<context>
    <name>ProblemTool::ProblemWindow</name>
    <message>
        <source>What it said: %1</source>
        <translation>Mensaje: %1</translation>
    </message>
    <message>
        <source>There is nothing to repair in the settings.</source>
        <translation>No hay nada que reparar en la configuración.</translation>
    </message>
    <message>
        <source>Nothing in the settings explains it. They are as they were.</source>
        <translation>Nada en la configuración lo explica. Está como estaba.</translation>
    </message>
    <message>
        <source>Repair Settings mends this.</source>
        <translation>«Reparar configuración» lo soluciona.</translation>
    </message>
    <message>
        <source>That may not be why it stopped. Repair Settings mends the settings.</source>
        <translation>Puede que no se detuviera por esto. «Reparar configuración» corrige la configuración.</translation>
    </message>
    <message>
        <source>A copy of the settings as they are now is kept.</source>
        <translation>Se guarda una copia de la configuración tal como está ahora.</translation>
    </message>
    <message>
        <source>The settings of Orvik Menu</source>
        <translation>La configuración de Orvik Menu</translation>
    </message>
    <message>
        <source>Orvik Menu had to stop</source>
        <translation>Orvik Menu tuvo que detenerse</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation>Volver a abrir</translation>
    </message>
    <message>
        <source>Repair Settings</source>
        <translation>Reparar configuración</translation>
    </message>
    <message>
        <source>The settings could not be repaired: they cannot be read.</source>
        <translation>No se pudo reparar la configuración: no se puede leer.</translation>
    </message>
    <message>
        <source>The settings could not be repaired: %1.</source>
        <translation>No se pudo reparar la configuración: %1.</translation>
    </message>
    <message>
        <source>Orvik Menu could not be started.</source>
        <translation>No se pudo iniciar Orvik Menu.</translation>
    </message>
    <message>
        <source>Orvik Menu is still ending. It opens again right after.</source>
        <translation>Orvik Menu todavía se está cerrando. Se volverá a abrir justo después.</translation>
    </message>
</context>
<context>
    <name>Repair</name>
    <message>
        <source>The list of folders is no list.</source>
        <translation>La lista de carpetas no es una lista.</translation>
    </message>
    <message>
        <source>What is no list is removed.</source>
        <translation>Lo que no es una lista se quita.</translation>
    </message>
    <message>
        <source>1 entry of the list of folders is no path.</source>
        <translation>1 entrada de la lista de carpetas no es una ruta.</translation>
    </message>
    <message>
        <source>%1 entries of the list of folders are no paths.</source>
        <translation>%1 entradas de la lista de carpetas no son rutas.</translation>
    </message>
    <message>
        <source>What is no path is removed.</source>
        <translation>Lo que no es una ruta se quita.</translation>
    </message>
    <message>
        <source>The list that says which folders are active does not match the list of folders.</source>
        <translation>La lista que indica qué carpetas están activas no coincide con la lista de carpetas.</translation>
    </message>
    <message>
        <source>A folder without an entry of its own becomes active.</source>
        <translation>Una carpeta sin entrada propia pasa a estar activa.</translation>
    </message>
    <message>
        <source>The older list of menu items is no list.</source>
        <translation>La lista antigua de elementos del menú no es una lista.</translation>
    </message>
    <message>
        <source>The older list of menu items has entries that are no numbers.</source>
        <translation>La lista antigua de elementos del menú contiene entradas que no son números.</translation>
    </message>
    <message>
        <source>A menu item without a number is switched on.</source>
        <translation>Un elemento del menú sin número se activa.</translation>
    </message>
</context>
<context>
    <name>ResizePhotos</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>un enlace sale de las carpetas en las que trabaja Orvik Menu</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <extracomment>A photo&apos;s name, and what is wrong with it: “Harbour.jpg cannot be resized: it is damaged.”</extracomment>
        <translation>%1 %2.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2.</source>
        <translation>No se puede abrir %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be saved: %2.</source>
        <translation>No se puede guardar %1: %2.</translation>
    </message>
    <message>
        <source>%1 stays as it is, since it cannot be moved to the trash: %2</source>
        <translation>%1 queda como está, ya que no se puede mover a la papelera: %2</translation>
    </message>
    <message>
        <source>%1 is in the trash, but the smaller one could not take its place: %2.</source>
        <translation>%1 está en la papelera, pero la foto reducida no pudo ocupar su lugar: %2.</translation>
    </message>
    <message>
        <source>%1 takes too long to resize.</source>
        <translation>Redimensionar %1 tarda demasiado.</translation>
    </message>
    <message>
        <source>%1 cannot be resized: it takes too much memory, or is damaged.</source>
        <translation>No se puede redimensionar %1: necesita demasiada memoria o está dañado.</translation>
    </message>
    <message>
        <source>%1 cannot be resized: the part that reads pictures does not start. Install the package libvips42.</source>
        <translation>No se puede redimensionar %1: no se inicia la parte que lee las imágenes. Instale el paquete libvips42.</translation>
    </message>
    <message>
        <source>%1 stays as it is: another program has changed it meanwhile.</source>
        <translation>%1 queda como está: entretanto, otro programa lo ha cambiado.</translation>
    </message>
</context>
<context>
    <name>SendViaMail</name>
    <message>
        <source>%1 cannot be sent: its name or that of a folder above it has characters that are no text. Rename it and try again.</source>
        <translation>No se puede enviar %1: su nombre o el de una carpeta superior contiene caracteres que no son texto. Cámbielo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: the settings of Orvik Menu cannot be written. Is the disk full?</source>
        <translation>No se puede enviar %1: no se puede guardar la configuración de Orvik Menu. ¿Está lleno el disco?</translation>
    </message>
</context>
<context>
    <name>SetAsWallpaper</name>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>The desktop did not take %1 as its wallpaper.</source>
        <translation>El escritorio no aceptó %1 como fondo de escritorio.</translation>
    </message>
    <message>
        <source>%1 cannot be set as the wallpaper: Orvik Menu does not know how this desktop sets it.</source>
        <translation>No se puede usar %1 como fondo de escritorio: Orvik Menu no sabe cómo se establece en este escritorio.</translation>
    </message>
</context>
<context>
    <name>ShowcaseCatalogue</name>
    <message>
        <source>Photo &amp; Video</source>
        <translation>Foto y vídeo</translation>
    </message>
    <message>
        <source>Turn hundreds of small photos into one large picture that stays sharp however close you look.</source>
        <translation>Convierta cientos de fotos pequeñas en una imagen grande que sigue nítida por mucho que se acerque.</translation>
    </message>
    <message>
        <source>Trim, join and turn your video clips without losing quality or waiting for an export.</source>
        <translation>Recorte, una y gire sus vídeos sin perder calidad ni esperar a que se exporten.</translation>
    </message>
    <message>
        <source>Warm or cool the light of a whole photo shoot at once, and compare it with the original as you go.</source>
        <translation>Haga más cálida o más fría la luz de toda una sesión de fotos a la vez y compárela con el original.</translation>
    </message>
    <message>
        <source>Record your screen, your voice and your camera together, ready to share the moment you stop.</source>
        <translation>Grabe a la vez la pantalla, la voz y la cámara, todo listo para compartir en cuanto termine.</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Productividad</translation>
    </message>
    <message>
        <source>Pick any colour on your screen and keep your palettes in one place, ready to paste into your work.</source>
        <translation>Tome cualquier color de la pantalla y reúna sus paletas en un solo sitio, listas para pegar en su trabajo.</translation>
    </message>
    <message>
        <source>Lifestyle</source>
        <translation>Estilo de vida</translation>
    </message>
    <message>
        <source>Keep well at your desk with gentle reminders to drink, to stretch and to look into the distance.</source>
        <translation>Cuídese ante el escritorio con avisos amables para beber, estirarse y mirar a lo lejos.</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Utilidades</translation>
    </message>
    <message>
        <source>Find any file as you type, even inside archives and on disks that are not plugged in.</source>
        <translation>Encuentre cualquier archivo según escribe, incluso dentro de archivos comprimidos y en discos no conectados.</translation>
    </message>
    <message>
        <source>Collect notes, lists and clippings in a notebook that is always one keystroke away.</source>
        <translation>Reúna notas, listas y recortes en un cuaderno que siempre está a una pulsación de tecla.</translation>
    </message>
    <message>
        <source>See every calendar and every deadline on one timeline, and move your plans until the week fits.</source>
        <translation>Vea todos los calendarios y plazos en una sola línea de tiempo y mueva sus planes hasta que encaje la semana.</translation>
    </message>
    <message>
        <source>See at a glance what fills your disk, and clear away duplicates, leftovers and old downloads.</source>
        <translation>Vea de un vistazo qué llena el disco y deshágase de duplicados, restos y descargas antiguas.</translation>
    </message>
    <message>
        <source>Business</source>
        <translation>Negocios</translation>
    </message>
    <message>
        <source>Write an invoice in a minute, send it as a PDF, and always know who has yet to pay.</source>
        <translation>Escriba una factura en un minuto, envíela como PDF y sepa siempre a quién le falta pagar.</translation>
    </message>
    <message>
        <source>Rename thousands of files at once by rules that you can read, with a preview of every new name.</source>
        <translation>Cambie el nombre de miles de archivos a la vez con reglas legibles y vista previa de cada nombre nuevo.</translation>
    </message>
    <message>
        <source>Keep an eye on processor, memory and network with a small, quiet meter in the menu bar.</source>
        <translation>Vigile el procesador, la memoria y la red con un medidor pequeño y discreto en la barra de menús.</translation>
    </message>
    <message>
        <source>Keep everything that you copy, and paste any of it again by typing a few of its letters.</source>
        <translation>Guarde todo lo que copia y péguelo de nuevo escribiendo unas pocas letras.</translation>
    </message>
    <message>
        <source>Lock your private folders with strong encryption, and open them again with a single password.</source>
        <translation>Proteja sus carpetas privadas con un cifrado robusto y ábralas de nuevo con una sola contraseña.</translation>
    </message>
    <message>
        <source>Dim everything but the window you work in, so that your attention stays where it belongs.</source>
        <translation>Atenúe todo menos la ventana en la que trabaja, para que su atención siga donde debe estar.</translation>
    </message>
    <message>
        <source>Work in focused stretches with a break after each, and see at the end of the week where the hours went.</source>
        <translation>Trabaje por tramos y sin distracciones, con descansos, y vea al final de la semana en qué se fueron las horas.</translation>
    </message>
</context>
<context>
    <name>SizeRow</name>
    <message>
        <source>Longest side</source>
        <translation>Lado más largo</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> píxeles</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Porcentaje</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Each file at most</source>
        <translation>Máximo por archivo</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>All together at most</source>
        <translation>Máximo en total</translation>
    </message>
    <message>
        <source>For a screen</source>
        <translation>Para pantalla</translation>
    </message>
    <message>
        <source>For mail</source>
        <translation>Para correo</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>La mitad</translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>1 byte</source>
        <translation>1 byte</translation>
    </message>
</context>
<context>
    <name>TagView</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Fecha de la toma</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lugar</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Palabras clave</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>Tiempo de exposición</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Apertura</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Distancia focal</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientación</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Tamaño en píxeles</translation>
    </message>
    <message>
        <source>Kind of file</source>
        <translation>Tipo de archivo</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>Perfil de color</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>Valores diferentes</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>un enlace sale de las carpetas en las que trabaja Orvik Menu</translation>
    </message>
    <message>
        <source>it can only be read</source>
        <translation>es de solo lectura</translation>
    </message>
    <message>
        <source>it is not known why</source>
        <translation>no se sabe por qué</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 elemento</numerusform>
            <numerusform>%1 elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>Moving %1 to %2</source>
        <translation>Moviendo %1 a %2</translation>
    </message>
    <message>
        <source>Copying %1 to %2</source>
        <translation>Copiando %1 a %2</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>Se ha movido %1 a %2.</translation>
    </message>
    <message>
        <source>%1 was copied to %2.</source>
        <translation>Se ha copiado %1 a %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were moved to %2.</source>
        <translation>
            <numerusform>Se ha movido %1 elemento a %2.</numerusform>
            <numerusform>Se han movido %1 elementos a %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 items were copied to %2.</source>
        <translation>
            <numerusform>Se ha copiado %1 elemento a %2.</numerusform>
            <numerusform>Se han copiado %1 elementos a %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 items were moved to %3.</source>
        <translation>
            <numerusform>Movidos a %3: %1 de %2 elemento.</numerusform>
            <numerusform>Movidos a %3: %1 de %2 elementos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 items were copied to %3.</source>
        <translation>
            <numerusform>Copiados a %3: %1 de %2 elemento.</numerusform>
            <numerusform>Copiados a %3: %1 de %2 elementos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing can be put into %1: %2.</source>
        <translation>No se puede poner nada en %1: %2.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk of %1.</source>
        <translation>No hay espacio suficiente en el disco de %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>%1 is in this folder already.</source>
        <translation>%1 ya está en esta carpeta.</translation>
    </message>
    <message>
        <source>%1 cannot be moved into itself.</source>
        <translation>No se puede mover %1 dentro de sí mismo.</translation>
    </message>
    <message>
        <source>%1 cannot be copied into itself.</source>
        <translation>No se puede copiar %1 dentro de sí mismo.</translation>
    </message>
    <message>
        <source>The name %1 is too long for the disk that it is to go to.</source>
        <translation>El nombre %1 es demasiado largo para el disco de destino.</translation>
    </message>
    <message>
        <source>%1 is too large for the disk that it is to go to.</source>
        <translation>%1 es demasiado grande para el disco de destino.</translation>
    </message>
    <message>
        <source>%1 cannot be taken away from where it is. It can be copied.</source>
        <translation>No se puede quitar %1 de donde está. Sí se puede copiar.</translation>
    </message>
    <message>
        <source>%1 is a device, which cannot be copied.</source>
        <translation>%1 es un dispositivo y no se puede copiar.</translation>
    </message>
    <message>
        <source>%1 kept changing while it was copied. Try again.</source>
        <translation>%1 no dejó de cambiar mientras se copiaba. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>%1 could not be moved: %2.</source>
        <translation>No se pudo mover %1: %2.</translation>
    </message>
    <message>
        <source>%1 could not be copied: %2.</source>
        <translation>No se pudo copiar %1: %2.</translation>
    </message>
    <message>
        <source>%1 has changed meanwhile, or a part of it could not be copied. What was not moved is still where it was.</source>
        <translation>%1 ha cambiado entretanto o no se pudo copiar una parte. Lo que no se movió sigue donde estaba.</translation>
    </message>
    <message>
        <source>%1 was copied, but not all of it could be removed from where it was: %2.</source>
        <translation>Se copió %1, pero no se pudo quitar por completo de donde estaba: %2.</translation>
    </message>
    <message>
        <source>%1 could not be put back, since it is not where it was put.</source>
        <translation>No se pudo devolver %1 a su lugar, ya que no está donde se puso.</translation>
    </message>
    <message>
        <source>%1 could not be put back: %2.</source>
        <translation>No se pudo devolver %1 a su lugar: %2.</translation>
    </message>
    <message>
        <source>%1 could not be put into the trash: %2</source>
        <translation>No se pudo mover %1 a la papelera: %2</translation>
    </message>
    <message numerus="yes">
        <source>There were %1 more like these.</source>
        <translation>
            <numerusform>Hubo %1 problema más como estos.</numerusform>
            <numerusform>Hubo %1 problemas más como estos.</numerusform>
        </translation>
    </message>
    <message>
        <source>There was 1 more like these.</source>
        <translation>Hubo 1 problema más como estos.</translation>
    </message>
    <message>
        <source>A part of %1 was moved to %2.</source>
        <translation>Se ha movido una parte de %1 a %2.</translation>
    </message>
    <message>
        <source>A part of %1 was copied to %2.</source>
        <translation>Se ha copiado una parte de %1 a %2.</translation>
    </message>
    <message>
        <source>%1 was not put back.</source>
        <translation>%1 no se ha devuelto a su lugar.</translation>
    </message>
    <message>
        <source>%1 was copied without some of its extended attributes: the disk has no room for them.</source>
        <translation>Se copió %1 sin algunos de sus atributos extendidos: el disco no tiene espacio para ellos.</translation>
    </message>
</context>
<context>
    <name>TroubleWords</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>un enlace sale de las carpetas en las que trabaja Orvik Menu</translation>
    </message>
    <message>
        <source>ExifTool does not say why</source>
        <translation>ExifTool no dice por qué</translation>
    </message>
    <message>
        <source>It was not done any more.</source>
        <translation>Ya no se llegó a hacer.</translation>
    </message>
    <message>
        <source>It cannot be opened: %1.</source>
        <translation>No se puede abrir: %1.</translation>
    </message>
    <message>
        <source>It cannot be saved: %1.</source>
        <translation>No se puede guardar: %1.</translation>
    </message>
    <message>
        <source>The original cannot be kept beside it: %1. Nothing was changed.</source>
        <translation>No se puede conservar el original al lado: %1. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>The program ExifTool is missing. Install the package libimage-exiftool-perl.</source>
        <translation>Falta el programa ExifTool. Instale el paquete libimage-exiftool-perl.</translation>
    </message>
    <message>
        <source>Reading it takes too long.</source>
        <translation>Tarda demasiado en leerse.</translation>
    </message>
    <message>
        <source>It says more than can be shown.</source>
        <translation>Contiene más datos de los que se pueden mostrar.</translation>
    </message>
    <message>
        <source>ExifTool failed on it. The file may be damaged, or too large.</source>
        <translation>ExifTool ha fallado con este archivo. Puede que esté dañado o sea demasiado grande.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>No se puede leer: %1.</translation>
    </message>
    <message>
        <source>It cannot be changed: %1.</source>
        <translation>No se puede cambiar: %1.</translation>
    </message>
    <message>
        <source>Another program has changed it meanwhile. Look at it again and try again.</source>
        <translation>Entretanto, otro programa lo ha cambiado. Revíselo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Files of this kind, or damaged ones, are not changed, since it cannot be checked that the picture stays the same.</source>
        <translation>Los archivos de este tipo, o los dañados, no se cambian, ya que no se puede comprobar que la imagen siga igual.</translation>
    </message>
    <message>
        <source>The picture would not have stayed the same. Nothing was changed.</source>
        <translation>La imagen no habría quedado igual. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>It does not hold all that was to be written. Nothing was changed.</source>
        <translation>No contiene todo lo que había que escribir. No se ha cambiado nada.</translation>
    </message>
    <message>
        <source>It has no date that could be moved.</source>
        <translation>No tiene ninguna fecha que se pueda desplazar.</translation>
    </message>
    <message>
        <source>Its orientation is part of the picture and cannot be changed here.</source>
        <translation>Su orientación forma parte de la imagen y no se puede cambiar aquí.</translation>
    </message>
    <message>
        <source>It was saved, but it holds more than the picture, such as a second one or a film, which may hold such data too.</source>
        <translation>Se ha guardado, pero contiene más que la imagen, por ejemplo otra imagen o un vídeo, que también puede contener tales datos.</translation>
    </message>
</context>
<context>
    <name>UtilityKitWindow</name>
    <message>
        <source>More from Orvik Studio</source>
        <translation>Más de Orvik Studio</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>&amp;Cerrar ventana</translation>
    </message>
    <message>
        <source>&amp;Quit Orvik Menu</source>
        <translation>&amp;Salir de Orvik Menu</translation>
    </message>
</context>
<context>
    <name>ViewController</name>
    <message>
        <source>Choose the actions that show when you right-click an item in your folders.</source>
        <translation>Elija las acciones que se muestran al pulsar con el botón derecho en un elemento de sus carpetas.</translation>
    </message>
    <message>
        <source>Menu items</source>
        <translation>Elementos del menú</translation>
    </message>
    <message>
        <source>No Menu Items</source>
        <translation>No hay elementos de menú</translation>
    </message>
    <message>
        <source>The stored list of menu items is empty.</source>
        <translation>La lista guardada de elementos de menú está vacía.</translation>
    </message>
</context>
<context>
    <name>WindowParts</name>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>«%1»</translation>
    </message>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>un enlace sale de las carpetas en las que trabaja Orvik Menu</translation>
    </message>
    <message>
        <source>%1 is not in a folder that Orvik Menu works in. Add the folder in its settings.</source>
        <translation>%1 no está en una carpeta en la que trabaje Orvik Menu. Añada la carpeta en la configuración.</translation>
    </message>
    <message>
        <source>%1 or another item is not in a folder that Orvik Menu works in. Add the folder in its settings.</source>
        <translation>%1 u otro elemento no está en una carpeta en la que trabaje Orvik Menu. Añada la carpeta en la configuración.</translation>
    </message>
    <message>
        <source>There were %1 more like these.</source>
        <translation>Otros problemas como estos: %1.</translation>
    </message>
    <message>
        <source>There was 1 more like these.</source>
        <translation>Hubo 1 problema más como estos.</translation>
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
        <translation>Acciones para el menú de su gestor de archivos, en las carpetas que elija.</translation>
    </message>
    <message>
        <source>&amp;Web Site</source>
        <translation>Sitio &amp;web</translation>
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
        <translation>&amp;Valorar Orvik Menu</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
</context>
<context>
    <name>collectionView_cell</name>
    <message>
        <source>Open in App Store</source>
        <translation>Abrir en App Store</translation>
    </message>
</context>
<context>
    <name>customFoldersVc</name>
    <message>
        <source>Folders that you set up from the file manager’s menu, for example as places to move or copy items to. Delete those that you no longer use.</source>
        <translation>Carpetas que ha preparado desde el menú del gestor de archivos, por ejemplo como destinos para mover o copiar elementos. Quite las que ya no use.</translation>
    </message>
    <message>
        <source>Custom folders</source>
        <translation>Carpetas propias</translation>
    </message>
    <message>
        <source>No Custom Folders</source>
        <translation>No hay carpetas personalizadas</translation>
    </message>
    <message>
        <source>They appear here once you set them up from the file manager’s menu.</source>
        <translation>Aparecen aquí en cuanto las configure desde el menú del gestor de archivos.</translation>
    </message>
</context>
<context>
    <name>firstRunvc</name>
    <message>
        <source>Welcome to Orvik Menu</source>
        <translation>Bienvenido a Orvik Menu</translation>
    </message>
    <message>
        <source>Two steps, in either order, and Orvik Menu is ready.</source>
        <translation>Dos pasos, en cualquier orden, y Orvik Menu estará listo.</translation>
    </message>
    <message>
        <source>Switch on the extension</source>
        <translation>Active la extensión</translation>
    </message>
    <message>
        <source>Open Extensions and switch on “Orvik Menu Extension”. This step is done as soon as the extension runs.</source>
        <translation>Abra «Extensiones» y active «Extensión de Orvik Menu». Este paso se completa en cuanto la extensión está en ejecución.</translation>
    </message>
    <message>
        <source>Open &amp;Extensions…</source>
        <translation>Abrir &amp;extensiones…</translation>
    </message>
    <message>
        <source>Choose your folders</source>
        <translation>Elija sus carpetas</translation>
    </message>
    <message>
        <source>The actions show on items inside these folders. You can change them later.</source>
        <translation>Las acciones se muestran en los elementos de estas carpetas. Puede cambiarlas más adelante.</translation>
    </message>
    <message>
        <source>Choose &amp;Folders…</source>
        <translation>Elegir &amp;carpetas…</translation>
    </message>
    <message>
        <source>You have succeessfully enabled Orvik Menu and can see the Orvik Menu items in the Context Menu on right click for selected folders. You can change these settings in the app anytime.</source>
        <translation>Ha activado correctamente Orvik Menu. Sus elementos aparecen en el menú contextual al pulsar con el botón derecho en las carpetas seleccionadas. Puede cambiar esta configuración en la aplicación en cualquier momento.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>foldersArrvc</name>
    <message>
        <source>Orvik Menu shows its actions on items inside these folders. Clear a checkbox to leave a folder out for now.</source>
        <translation>Orvik Menu muestra sus acciones en los elementos de estas carpetas. Desmarque una casilla para dejar fuera una carpeta por ahora.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>&amp;Añadir…</translation>
    </message>
    <message>
        <source>&amp;Remove Folder…</source>
        <translation>&amp;Quitar…</translation>
    </message>
    <message>
        <source>Remove the selected folder (Delete)</source>
        <translation>Quitar la carpeta seleccionada (Supr)</translation>
    </message>
    <message>
        <source>Remove selected folder?</source>
        <translation>¿Quitar la carpeta seleccionada?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the selected folder.</source>
        <translation>¿Seguro que quiere quitar la carpeta seleccionada?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Some of the folders can not be added because they are already added to the Folders list.</source>
        <translation>Algunas de las carpetas no se pueden añadir porque ya están en la lista de carpetas.</translation>
    </message>
    <message>
        <source>No Folders Yet</source>
        <translation>Aún no hay carpetas</translation>
    </message>
    <message>
        <source>Orvik Menu shows its actions on items inside the folders that you add.</source>
        <translation>Orvik Menu muestra sus acciones en los elementos de las carpetas que usted añada.</translation>
    </message>
</context>
<context>
    <name>genraltabvc</name>
    <message>
        <source>Extension</source>
        <translation>Extensión</translation>
    </message>
    <message>
        <source>Looking for the extension…</source>
        <translation>Buscando la extensión…</translation>
    </message>
    <message>
        <source>Open &amp;Extensions…</source>
        <translation>Abrir &amp;extensiones…</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Show an &amp;icon beside each menu item</source>
        <translation>Mostrar un &amp;icono en cada elemento</translation>
    </message>
    <message>
        <source>Group the menu items in a &amp;submenu</source>
        <translation>Agrupar todo en un &amp;submenú</translation>
    </message>
    <message>
        <source>Orvik Menu Extension is enabled</source>
        <translation>La extensión de Orvik Menu está activada</translation>
    </message>
    <message>
        <source>Enable &quot;Orvik Menu Extension&quot; in System Preferences &gt; Extensions to make Orvik Menu work.</source>
        <translation>Active «Extensión de Orvik Menu» en Configuración del sistema &gt; Extensiones para que Orvik Menu funcione.</translation>
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
        <translation>&amp;Acerca de Orvik Menu</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>&amp;Cerrar ventana</translation>
    </message>
    <message>
        <source>&amp;Quit Orvik Menu</source>
        <translation>&amp;Salir de Orvik Menu</translation>
    </message>
</context>
<context>
    <name>tabviewcontroller</name>
    <message>
        <source>Menu Items</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Custom Folders</source>
        <translation>Carpetas propias</translation>
    </message>
</context>
<context>
    <name>tblcell</name>
    <message>
        <source>Delete</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No se encuentra</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Quitar %1</translation>
    </message>
</context>
<context>
    <name>utilityKitvc</name>
    <message>
        <source>Other apps</source>
        <translation>Otras aplicaciones</translation>
    </message>
    <message>
        <source>Other Apps we think you may Love:</source>
        <translation>Otras aplicaciones que le pueden gustar:</translation>
    </message>
</context>
</TS>
