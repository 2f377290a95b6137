<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Action</name>
    <message>
        <source>The control panel of Orvik Menu could not be started. Install Orvik Menu again.</source>
        <translation>Das Einstellungsprogramm von Orvik Menu konnte nicht gestartet werden. Installieren Sie Orvik Menu neu.</translation>
    </message>
    <message>
        <source>%1 cannot be found: %2.</source>
        <translation>%1 wurde nicht gefunden: %2.</translation>
    </message>
    <message>
        <source>Orvik Menu was asked for something in a way that it does not understand.</source>
        <translation>Orvik Menu hat eine Anfrage erhalten, die es nicht versteht.</translation>
    </message>
    <message>
        <source>The settings of Orvik Menu cannot be read.</source>
        <translation>Die Einstellungen von Orvik Menu können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>This cannot be done with what is selected.</source>
        <translation>Mit der Auswahl ist das nicht möglich.</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>Es ist kein Bildschirm vorhanden, auf dem das Fenster angezeigt werden kann.</translation>
    </message>
</context>
<context>
    <name>AddFolders</name>
    <message>
        <source>%1 cannot be added: its name or that of a folder above it has characters that are no text. Rename it and try again.</source>
        <translation>%1 kann nicht hinzugefügt werden: Der Name oder der eines übergeordneten Ordners enthält Zeichen, die kein gültiger Text sind. Benennen Sie das Objekt um und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The folders cannot be added: the settings of Orvik Menu cannot be written. Is the disk full?</source>
        <translation>Die Ordner können nicht hinzugefügt werden: Die Einstellungen von Orvik Menu lassen sich nicht speichern. Ist der Datenträger voll?</translation>
    </message>
</context>
<context>
    <name>AttachToMail</name>
    <message>
        <source>Please select the file that you want to send via email to allow sending</source>
        <translation>Bitte wählen Sie die Datei aus, die Sie per E-Mail senden möchten</translation>
    </message>
    <message>
        <source>Attach to Mail</source>
        <translation>An E-Mail anhängen</translation>
    </message>
</context>
<context>
    <name>Attachments</name>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it became shorter</source>
        <translation>die Datei wurde kürzer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation>%1 konnte nicht entfernt werden: %2.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <translation>%1 konnte nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>It ended before it was done.</source>
        <translation>Die Aktion wurde beendet, bevor sie fertig war.</translation>
    </message>
    <message>
        <source>The program that does this cannot be started.</source>
        <translation>Das Programm für diese Aktion kann nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Too much is asked for at once.</source>
        <translation>Es wird zu viel auf einmal verlangt.</translation>
    </message>
    <message>
        <source>Orvik Menu has no action of that name.</source>
        <translation>Orvik Menu kennt keine Aktion mit diesem Namen.</translation>
    </message>
    <message>
        <source>Only the file manager itself can do this.</source>
        <translation>Das kann nur die Dateiverwaltung selbst.</translation>
    </message>
    <message>
        <source>This action is switched off in the settings of Orvik Menu.</source>
        <translation>Diese Aktion ist in den Einstellungen von Orvik Menu ausgeschaltet.</translation>
    </message>
</context>
<context>
    <name>CreateNewTextFile</name>
    <message>
        <source>New Text File</source>
        <translation>Neue Textdatei</translation>
    </message>
    <message>
        <source>No file can be made in %1: %2.</source>
        <translation>In %1 kann keine Datei erstellt werden: %2.</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>File Manager Menu Settings</source>
        <translation>Einstellungen für das Dateiverwaltungsmenü</translation>
    </message>
    <message>
        <source>Choose the actions that your file manager&apos;s menu shows, and where</source>
        <translation>Festlegen, welche Aktionen das Menü Ihrer Dateiverwaltung anzeigt und wo</translation>
    </message>
    <message>
        <source>context;menu;right-click;file manager;actions;folders;</source>
        <translation>Kontextmenü;Menü;Rechtsklick;Dateiverwaltung;Dateimanager;Aktionen;Ordner;</translation>
    </message>
    <message>
        <source>Extensions</source>
        <translation>Erweiterungen</translation>
    </message>
    <message>
        <source>Switch the extensions of Orvik Menu on and off</source>
        <translation>Die Erweiterungen von Orvik Menu ein- und ausschalten</translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message>
        <source>is not there any more</source>
        <translation>ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>has changed since it was found</source>
        <translation>wurde seit dem Fund geändert</translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation>wird von einem anderen Programm verwendet</translation>
    </message>
    <message>
        <source>is the last copy that is left</source>
        <translation>ist das letzte verbliebene Exemplar</translation>
    </message>
    <message>
        <source>has a copy that another program is using</source>
        <translation>hat eine Kopie, die ein anderes Programm verwendet</translation>
    </message>
    <message>
        <source>was not reached</source>
        <translation>kam nicht mehr an die Reihe</translation>
    </message>
    <message>
        <source>cannot be compared with its copy: %1</source>
        <translation>kann nicht mit der Kopie verglichen werden: %1</translation>
    </message>
    <message>
        <source>is not the same as its copy</source>
        <translation>stimmt nicht mit der Kopie überein</translation>
    </message>
    <message>
        <source>was not compared to its end</source>
        <translation>wurde nicht bis zum Ende verglichen</translation>
    </message>
    <message>
        <source>changed while it was read</source>
        <translation>wurde während des Lesens geändert</translation>
    </message>
    <message>
        <source>is a link, and those are not followed</source>
        <translation>ist eine Verknüpfung, und Verknüpfungen wird nicht gefolgt</translation>
    </message>
    <message>
        <source>is neither a file nor a folder</source>
        <translation>ist weder eine Datei noch ein Ordner</translation>
    </message>
    <message>
        <source>could not be moved to the trash: %1</source>
        <translation>konnte nicht in den Papierkorb verschoben werden: %1</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is no picture, though it is named like one</source>
        <translation>ist kein Bild, obwohl der Name darauf hindeutet</translation>
    </message>
    <message>
        <source>has changed while it was read</source>
        <translation>wurde während des Lesens geändert</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>may be the same file as its copy, in two places</source>
        <translation>ist vielleicht dieselbe Datei wie ihre Kopie, an zwei Stellen</translation>
    </message>
</context>
<context>
    <name>EditForm</name>
    <message>
        <source>As it is stored</source>
        <translation>Wie gespeichert</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Gespiegelt</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Auf dem Kopf</translation>
    </message>
    <message>
        <source>Upside down and mirrored</source>
        <translation>Auf dem Kopf und gespiegelt</translation>
    </message>
    <message>
        <source>Turned left and mirrored</source>
        <translation>Nach links gedreht und gespiegelt</translation>
    </message>
    <message>
        <source>Turned right</source>
        <translation>Nach rechts gedreht</translation>
    </message>
    <message>
        <source>Turned right and mirrored</source>
        <translation>Nach rechts gedreht und gespiegelt</translation>
    </message>
    <message>
        <source>Turned left</source>
        <translation>Nach links gedreht</translation>
    </message>
</context>
<context>
    <name>Extension</name>
    <message>
        <source>Orvik Menu Extension</source>
        <translation>Erweiterung von Orvik Menu</translation>
    </message>
    <message>
        <source>Adds Orvik Menu&apos;s actions to the file manager&apos;s right-click menu.</source>
        <translation>Fügt dem Kontextmenü der Dateiverwaltung die Aktionen von Orvik Menu hinzu.</translation>
    </message>
</context>
<context>
    <name>ExtensionStatus</name>
    <message>
        <source>There is no session bus, so it can neither run nor be switched.</source>
        <translation>Es gibt keinen Sitzungsbus, daher kann sie weder laufen noch ein- oder ausgeschaltet werden.</translation>
    </message>
    <message>
        <source>It is set to start at log-in.</source>
        <translation>Sie ist zum Start beim Anmelden vorgesehen.</translation>
    </message>
    <message>
        <source>It is running, but it is not set to start at log-in.</source>
        <translation>Sie läuft, ist aber nicht zum Start beim Anmelden vorgesehen.</translation>
    </message>
    <message>
        <source>It is set to start at log-in, but it is not running.</source>
        <translation>Sie ist zum Start beim Anmelden vorgesehen, läuft aber nicht.</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Wird gestartet&#xa0;…</translation>
    </message>
    <message>
        <source>Ending…</source>
        <translation>Wird beendet&#xa0;…</translation>
    </message>
    <message>
        <source>It is running, and it starts at log-in.</source>
        <translation>Sie läuft und startet beim Anmelden.</translation>
    </message>
    <message>
        <source>It is switched off.</source>
        <translation>Sie ist ausgeschaltet.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::ExtensionControl</name>
    <message>
        <source>It could not be asked to end: %1.</source>
        <translation>Sie konnte nicht zum Beenden aufgefordert werden: %1.</translation>
    </message>
    <message>
        <source>The program %1 is missing.</source>
        <translation>Das Programm %1 fehlt.</translation>
    </message>
    <message>
        <source>Could not start %1.</source>
        <translation>%1 konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>It was started, but it does not answer.</source>
        <translation>Sie wurde gestartet, antwortet aber nicht.</translation>
    </message>
    <message>
        <source>It was asked to end, but it does not.</source>
        <translation>Sie wurde zum Beenden aufgefordert, läuft aber weiter.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::ExtensionsWindow</name>
    <message>
        <source>Extensions</source>
        <translation>Erweiterungen</translation>
    </message>
    <message>
        <source>Extensions bring Orvik Menu into other programs.</source>
        <translation>Erweiterungen bringen Orvik Menu in andere Programme.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagerRow</name>
    <message>
        <source>Restart</source>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>Restart %1</source>
        <translation>%1 neu starten</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagerSection</name>
    <message>
        <source>File managers on this computer:</source>
        <translation>Dateiverwaltungen auf diesem Rechner:</translation>
    </message>
    <message>
        <source>No file manager that can show the menu is installed.</source>
        <translation>Es ist keine Dateiverwaltung installiert, die das Menü anzeigen kann.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagersControl</name>
    <message>
        <source>It could not be asked to close.</source>
        <translation>Die Aufforderung zum Schließen ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>It was asked to close, but it is still running.</source>
        <translation>Trotz Aufforderung zum Schließen läuft das Programm noch.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::LackingActionsSection</name>
    <message>
        <source>Actions that are in no menu:</source>
        <translation>Aktionen, die in keinem Menü erscheinen:</translation>
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
        <translation>Schließen Sie das Programm und öffnen Sie es wieder.</translation>
    </message>
    <message>
        <source>Restarting it closes its windows and stops any copying.</source>
        <translation>Ein Neustart schließt alle Fenster und bricht laufende Kopiervorgänge ab.</translation>
    </message>
    <message>
        <source>Closing…</source>
        <translation>Wird geschlossen&#xa0;…</translation>
    </message>
    <message>
        <source>It is not installed.</source>
        <translation>Nicht installiert.</translation>
    </message>
    <message>
        <source>The menu is missing. Install the package %1.</source>
        <translation>Das Menü fehlt. Installieren Sie das Paket %1.</translation>
    </message>
    <message>
        <source>It is not running. It loads the menu when it starts.</source>
        <translation>Läuft nicht. Das Menü wird beim Start geladen.</translation>
    </message>
    <message>
        <source>It loads the menu when it needs it.</source>
        <translation>Das Menü wird bei Bedarf geladen.</translation>
    </message>
    <message>
        <source>It has loaded the menu.</source>
        <translation>Das Menü ist geladen.</translation>
    </message>
    <message>
        <source>It is running without the menu.</source>
        <translation>Läuft ohne das Menü.</translation>
    </message>
    <message>
        <source>It has loaded an older version of the menu.</source>
        <translation>Eine ältere Version des Menüs ist geladen.</translation>
    </message>
    <message>
        <source>It is running. Whether it has loaded the menu is not known.</source>
        <translation>Läuft. Ob das Menü geladen ist, ist nicht bekannt.</translation>
    </message>
</context>
<context>
    <name>FindDuplicateFiles</name>
    <message>
        <source>Duplicate Files</source>
        <translation>Doppelte Dateien</translation>
    </message>
    <message>
        <source>No two files hold the same.</source>
        <translation>Keine zwei Dateien haben denselben Inhalt.</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 Datei</numerusform>
            <numerusform>%1 Dateien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FindDuplicatePhotos</name>
    <message>
        <source>Most pixels</source>
        <translation>Höchste Pixelzahl</translation>
    </message>
    <message>
        <source>Most pixels, larger file</source>
        <translation>Höchste Pixelzahl, größere Datei</translation>
    </message>
    <message>
        <source>Oldest of the same size</source>
        <translation>Bei gleicher Größe das älteste</translation>
    </message>
    <message>
        <source>As good as another</source>
        <translation>So gut wie ein anderes</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Duplicate Photos</source>
        <translation>Doppelte Fotos</translation>
    </message>
    <message>
        <source>No two photos show the same.</source>
        <translation>Keine zwei Fotos zeigen dasselbe.</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 Foto</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 Foto</numerusform>
            <numerusform>%1 Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Keep the Best Photo</source>
        <translation>Bestes Foto behalten</translation>
    </message>
</context>
<context>
    <name>FolderPanel</name>
    <message>
        <source>Grant Access</source>
        <translation>Zugriff gewähren</translation>
    </message>
</context>
<context>
    <name>HideUnhideItem</name>
    <message>
        <source>What is hidden in %1 cannot be changed: %2.</source>
        <translation>Was in %1 verborgen ist, kann nicht geändert werden: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be hidden, since its name has a line end. Rename it and try again.</source>
        <translation>%1 kann nicht verborgen werden, da der Name einen Zeilenumbruch enthält. Benennen Sie das Objekt um und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: its name has dots alone.</source>
        <translation>%1 kann nicht eingeblendet werden: Der Name besteht nur aus Punkten.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: it is the list of what is hidden.</source>
        <translation>%1 kann nicht eingeblendet werden: Es ist die Liste der verborgenen Objekte.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: there is a %2 already. Rename one of the two.</source>
        <translation>%1 kann nicht eingeblendet werden: Es gibt bereits ein Objekt namens %2. Benennen Sie eines von beiden um.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: %2.</source>
        <translation>%1 kann nicht eingeblendet werden: %2.</translation>
    </message>
    <message>
        <source>What is hidden in %1 cannot be changed, since another program is changing it. Try again.</source>
        <translation>Was in %1 verborgen ist, kann nicht geändert werden, da ein anderes Programm es gerade ändert. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The list of what is hidden in %1, a file named .hidden, cannot be read: %2.</source>
        <translation>Die Liste der verborgenen Objekte in %1, eine Datei namens .hidden, kann nicht gelesen werden: %2.</translation>
    </message>
</context>
<context>
    <name>LackingActions</name>
    <message>
        <source>Needs the package %1, which is not installed.</source>
        <translation>Benötigt das Paket %1, das nicht installiert ist.</translation>
    </message>
    <message>
        <source>Needs the packages %1, which are not installed.</source>
        <translation>Benötigt die Pakete %1, die nicht installiert sind.</translation>
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
        <translation>„%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>“%1” cannot be added: %2.</source>
        <translation>„%1“ kann nicht hinzugefügt werden: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be added: it is not a folder.</source>
        <translation>„%1“ kann nicht hinzugefügt werden: Es ist kein Ordner.</translation>
    </message>
    <message>
        <source>“%1” cannot be added: it is not a folder of this computer.</source>
        <translation>„%1“ kann nicht hinzugefügt werden: Es ist kein Ordner dieses Rechners.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FileChooserDialog</name>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Orte</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>“%1” is no longer there.</source>
        <translation>„%1“ ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>“%1” cannot be found.</source>
        <translation>„%1“ wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Nothing is selected. To choose “%1” itself, press the button “%2”.</source>
        <translation>Es ist nichts ausgewählt. Um „%1“ selbst auszuwählen, klicken Sie auf „%2“.</translation>
    </message>
    <message>
        <source>its path is too long</source>
        <translation>der Pfad ist zu lang</translation>
    </message>
    <message>
        <source>“%1” cannot be chosen: %2.</source>
        <translation>„%1“ kann nicht ausgewählt werden: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be chosen.</source>
        <translation>„%1“ kann nicht ausgewählt werden.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Waiting for “%1” to answer…</source>
        <translation>Es wird auf eine Antwort von „%1“ gewartet&#xa0;…</translation>
    </message>
    <message>
        <source>Hidden files are not shown.</source>
        <translation>Verborgene Dateien werden nicht angezeigt.</translation>
    </message>
    <message>
        <source>Hidden files are shown.</source>
        <translation>Verborgene Dateien werden angezeigt.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Copy Location</source>
        <translation>Ort kopieren</translation>
    </message>
    <message>
        <source>New Folder…</source>
        <translation>Neuer Ordner&#xa0;…</translation>
    </message>
    <message>
        <source>Show Hidden Files</source>
        <translation>Verborgene Dateien anzeigen</translation>
    </message>
    <message>
        <source>“%1” is a file. Only folders can be chosen here.</source>
        <translation>„%1“ ist eine Datei. Hier können nur Ordner ausgewählt werden.</translation>
    </message>
    <message>
        <source>“%1” leads to something that is not there.</source>
        <translation>„%1“ führt zu etwas, das nicht vorhanden ist.</translation>
    </message>
    <message>
        <source>“%1” does not answer. It may be on a network share that is gone.</source>
        <translation>„%1“ antwortet nicht. Möglicherweise liegt es auf einer Netzwerkfreigabe, die nicht mehr erreichbar ist.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FileList</name>
    <message>
        <source>This folder is empty.</source>
        <translation>Dieser Ordner ist leer.</translation>
    </message>
    <message>
        <source>You do not have permission to see what is in this folder.</source>
        <translation>Sie haben nicht die nötigen Rechte, um den Inhalt dieses Ordners zu sehen.</translation>
    </message>
    <message>
        <source>This folder cannot be read: %1.</source>
        <translation>Dieser Ordner kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>All that is in this folder is hidden. Ctrl+H shows it.</source>
        <translation>Alles in diesem Ordner ist verborgen. Strg+H zeigt es an.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FolderDrops</name>
    <message>
        <source>Some of what you dropped cannot be added.</source>
        <translation>Einiges von dem, was Sie abgelegt haben, kann nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Und %1 weiteres.</translation>
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
        <translation>Verknüpfung mit einem Ordner</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Link to a file</source>
        <translation>Verknüpfung mit einer Datei</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Link to something that is not there</source>
        <translation>Verknüpfung mit fehlendem Ziel</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between a file&apos;s kind, size and date</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
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
        <translation>Menü (F10)</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::NewFolderDialog</name>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>&amp;Name of the folder:</source>
        <translation>&amp;Name des Ordners:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a folder.</source>
        <translation>„%1“ kann kein Ordnername sein.</translation>
    </message>
    <message>
        <source>“%1” is already there.</source>
        <translation>„%1“ ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>“%1” cannot be made: %2.</source>
        <translation>„%1“ kann nicht angelegt werden: %2.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::PlacesList</name>
    <message>
        <source>Desktop</source>
        <translation>Schreibtisch</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>Downloads</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>%1 (last used)</source>
        <translation>%1 (zuletzt verwendet)</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::PreparingWindow</name>
    <message>
        <source>Preparing %1 for sending…</source>
        <translation>Das Senden wird vorbereitet: %1&#xa0;…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::RowList</name>
    <message>
        <source>Added: %1</source>
        <translation>Hinzugefügt: %1</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::StepBadge</name>
    <message>
        <source>Step %1, done</source>
        <translation>Schritt %1, erledigt</translation>
    </message>
    <message>
        <source>Step %1, to do</source>
        <translation>Schritt %1, noch offen</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::TabPages</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>LinuxPlatform</name>
    <message>
        <source>“%1” cannot be used: its path has characters that cannot be stored as text. Rename the folder, then choose it again.</source>
        <translation>„%1“ kann nicht verwendet werden: Der Pfad enthält Zeichen, die sich nicht als Text speichern lassen. Benennen Sie den Ordner um und wählen Sie ihn dann erneut aus.</translation>
    </message>
</context>
<context>
    <name>MailText</name>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <translation>
            <numerusform>%1 und %2 weiteres</numerusform>
            <numerusform>%1 und %2 weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner auswählen&#xa0;…</translation>
    </message>
    <message>
        <source>Asks for another folder</source>
        <translation>Fragt nach einem anderen Ordner</translation>
    </message>
</context>
<context>
    <name>MenuCatalogue</name>
    <message>
        <source>Open Terminal</source>
        <translation>Terminal öffnen</translation>
    </message>
    <message>
        <source>Open System Preferences</source>
        <translation>Systemeinstellungen öffnen</translation>
    </message>
    <message>
        <source>Set as Wallpaper</source>
        <translation>Als Hintergrundbild festlegen</translation>
    </message>
    <message>
        <source>Create New Text File</source>
        <translation>Neue Textdatei erstellen</translation>
    </message>
    <message>
        <source>Copy path to Clipboard</source>
        <translation>Pfad kopieren</translation>
    </message>
    <message>
        <source>Send via Mail</source>
        <translation>Per E-Mail senden</translation>
    </message>
    <message>
        <source>Move to a folder</source>
        <translation>In einen Ordner verschieben</translation>
    </message>
    <message>
        <source>Copy to a folder</source>
        <translation>In einen Ordner kopieren</translation>
    </message>
    <message>
        <source>Open New Finder Window</source>
        <translation>Neues Dateifenster öffnen</translation>
    </message>
    <message>
        <source>Hide / Unhide item</source>
        <translation>Objekt verbergen / einblenden</translation>
    </message>
    <message>
        <source>Find Duplicate Files</source>
        <translation>Doppelte Dateien suchen</translation>
    </message>
    <message>
        <source>Find Duplicate Photos</source>
        <translation>Doppelte Fotos suchen</translation>
    </message>
    <message>
        <source>View or Edit Exif Data</source>
        <translation>Exif-Daten anzeigen/ändern</translation>
    </message>
    <message>
        <source>Resize Photos</source>
        <translation>Fotos skalieren</translation>
    </message>
    <message>
        <source>Configure Orvik Menu Settings</source>
        <translation>Orvik Menu einrichten</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>Ordner hinzufügen</translation>
    </message>
</context>
<context>
    <name>MenuExtension::ChoicesRow</name>
    <message>
        <source>Hidden Files</source>
        <translation>Verborgene Dateien</translation>
    </message>
    <message>
        <source>Empty Files</source>
        <translation>Leere Dateien</translation>
    </message>
    <message>
        <source>System Files</source>
        <translation>Systemdateien</translation>
    </message>
    <message>
        <source>In folders of the system, in the trash, and what file managers write for themselves</source>
        <translation>Dateien in Systemordnern und im Papierkorb sowie solche, die Dateiverwaltungen für sich selbst anlegen</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::DuplicatesWindow</name>
    <message>
        <source>One always stays. Keep another one before you choose this.</source>
        <translation>Eines bleibt immer erhalten. Behalten Sie ein anderes, bevor Sie dieses auswählen.</translation>
    </message>
    <message>
        <source>Filter by name or folder</source>
        <translation>Filter: Name oder Ordner</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Choose by Rule</source>
        <translation>Nach Regel auswählen</translation>
    </message>
    <message>
        <source>Keep the Oldest</source>
        <translation>Ältestes behalten</translation>
    </message>
    <message>
        <source>Keep the Newest</source>
        <translation>Neuestes behalten</translation>
    </message>
    <message>
        <source>Keep the One with the Shortest Path</source>
        <translation>Das mit dem kürzesten Pfad behalten</translation>
    </message>
    <message>
        <source>Choose Nothing</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message>
        <source>the Folder of the Item</source>
        <translation>dem Ordner des Objekts</translation>
    </message>
    <message>
        <source>Keep Those in %1</source>
        <translation>Alle in %1 behalten</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Items of the Group</source>
        <translation>Objekte der Gruppe</translation>
    </message>
    <message>
        <source>Looking for duplicates</source>
        <translation>Duplikate werden gesucht</translation>
    </message>
    <message>
        <source>%1 looked at</source>
        <translation>%1 untersucht</translation>
    </message>
    <message>
        <source>Moving to the trash</source>
        <translation>Wird in den Papierkorb verschoben</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Moved to the trash: %1, %2</source>
        <translation>In den Papierkorb verschoben: %1, %2</translation>
    </message>
    <message>
        <source>What is checked goes to the trash. One of a group always stays.</source>
        <translation>Angekreuzte Objekte kommen in den Papierkorb. Eines pro Gruppe bleibt immer erhalten.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Move 1 Item to Trash</source>
        <translation>1 Objekt in den Papierkorb</translation>
    </message>
    <message numerus="yes">
        <source>Move %1 Items to Trash</source>
        <translation>
            <numerusform>%1 Objekt in den Papierkorb</numerusform>
            <numerusform>%1 Objekte in den Papierkorb</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is chosen.</source>
        <translation>Es ist nichts ausgewählt.</translation>
    </message>
    <message>
        <source>Chosen: %1, %2</source>
        <translation>Ausgewählt: %1, %2</translation>
    </message>
    <message>
        <source>1 group, %1 could be saved</source>
        <translation>1 Gruppe, %1 können eingespart werden</translation>
    </message>
    <message numerus="yes">
        <source>%1 groups, %2 could be saved</source>
        <translation>
            <numerusform>%1 Gruppe, %2 können eingespart werden</numerusform>
            <numerusform>%1 Gruppen, %2 können eingespart werden</numerusform>
        </translation>
    </message>
    <message>
        <source>No group matches the filter</source>
        <translation>Keine Gruppe entspricht dem Filter</translation>
    </message>
    <message>
        <source>Looking for duplicates…</source>
        <translation>Duplikate werden gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>The search was stopped before anything was found.</source>
        <translation>Die Suche wurde abgebrochen, bevor etwas gefunden wurde.</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <extracomment>A file&apos;s name, and why nothing was done with it: “/home/a/b is the last copy that is left.”</extracomment>
        <translation>%1 %2.</translation>
    </message>
    <message>
        <source>1 Item Was Left Out…</source>
        <translation>1 Objekt wurde ausgelassen&#xa0;…</translation>
    </message>
    <message numerus="yes">
        <source>%1 Items Were Left Out…</source>
        <translation>
            <numerusform>%1 Objekt wurde ausgelassen&#xa0;…</numerusform>
            <numerusform>%1 Objekte wurden ausgelassen&#xa0;…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>And %1 more.</source>
        <translation>
            <numerusform>Und %1 weiteres.</numerusform>
            <numerusform>Und %1 weitere.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::GroupListModel</name>
    <message>
        <source>%1, %2, %3 could be saved</source>
        <translation>%1, %2, %3 können eingespart werden</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 of %2 each</source>
        <translation>%1 zu je %2</translation>
    </message>
    <message numerus="yes">
        <source>%n to remove</source>
        <translation>
            <numerusform>%n zu entfernen</numerusform>
            <numerusform>%n zu entfernen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::ItemListModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Best Because</source>
        <translation>Begründung</translation>
    </message>
    <message>
        <source>Not the best</source>
        <translation>Nicht das beste</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::PreviewPane</name>
    <message>
        <source>Preview of %1</source>
        <translation>Vorschau von %1</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::TroublesDialog</name>
    <message>
        <source>Left Out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::EditForm</name>
    <message>
        <source>Keep the original file beside it, with “_original” after its name</source>
        <translation>Original daneben behalten, mit „_original“ am Namensende</translation>
    </message>
    <message>
        <source>Keep the file&apos;s date of change</source>
        <translation>Änderungsdatum der Datei beibehalten</translation>
    </message>
    <message>
        <source>Remove Location and Personal Data…</source>
        <translation>Ort und persönliche Daten entfernen&#xa0;…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
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
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Move date by days</source>
        <translation>Datum um Tage verschieben</translation>
    </message>
    <message>
        <source> d</source>
        <translation> d</translation>
    </message>
    <message>
        <source>Move date by hours</source>
        <translation>Datum um Stunden verschieben</translation>
    </message>
    <message>
        <source> h</source>
        <translation> h</translation>
    </message>
    <message>
        <source>Move date by minutes</source>
        <translation>Datum um Minuten verschieben</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Move date by seconds</source>
        <translation>Datum um Sekunden verschieben</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Move date by</source>
        <translation>Datum verschieben um</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Aufnahmeort</translation>
    </message>
    <message>
        <source>Remove Place</source>
        <translation>Ort entfernen</translation>
    </message>
    <message>
        <source>Is removed when it is saved</source>
        <translation>Wird beim Speichern entfernt</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>Verschiedene Werte</translation>
    </message>
    <message>
        <source>2026-12-31 23:59:59</source>
        <translation>2026-12-31 23:59:59</translation>
    </message>
    <message>
        <source>None is stored</source>
        <translation>Keine gespeichert</translation>
    </message>
    <message>
        <source>Stays as it is</source>
        <translation>Bleibt unverändert</translation>
    </message>
    <message>
        <source>48.858370, 2.294481</source>
        <translation>48.858370, 2.294481</translation>
    </message>
    <message>
        <source>The date is to be written as 2026-12-31 23:59:59.</source>
        <translation>Geben Sie das Datum in der Form 2026-12-31 23:59:59 ein.</translation>
    </message>
    <message>
        <source>Write a new date or move the one that is there, not both.</source>
        <translation>Geben Sie ein neues Datum ein oder verschieben Sie das vorhandene, aber nicht beides.</translation>
    </message>
    <message>
        <source>The place is to be written as latitude and longitude in degrees: 48.858370, 2.294481.</source>
        <translation>Geben Sie den Ort als Breiten- und Längengrad an: 48.858370, 2.294481.</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>Es wurde noch nichts geändert.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::ExifWindow</name>
    <message>
        <source>Exif Data</source>
        <translation>Exif-Daten</translation>
    </message>
    <message>
        <source>It was ended; the photos that were not saved yet are as they were.</source>
        <translation>Der Vorgang wurde abgebrochen; noch nicht gespeicherte Fotos sind unverändert.</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Photos that failed</source>
        <translation>Fehlgeschlagene Fotos</translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>%n Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading photos</source>
        <translation>Fotos werden gelesen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos</source>
        <translation>
            <numerusform>%1 von %2 Foto</numerusform>
            <numerusform>%1 von %2 Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving photos</source>
        <translation>Fotos werden gespeichert</translation>
    </message>
    <message>
        <source>1 photo was saved.</source>
        <translation>1 Foto wurde gespeichert.</translation>
    </message>
    <message numerus="yes">
        <source>%n photos were saved.</source>
        <translation>
            <numerusform>%n Foto wurde gespeichert.</numerusform>
            <numerusform>%n Fotos wurden gespeichert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>%1 These were left as they were:</source>
        <extracomment>The first says how many photos were saved; the others follow as a list.</extracomment>
        <translation>%1 Unverändert blieben:</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A photo&apos;s name, and what is wrong with it, which is a sentence.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Discard Changes</source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message>
        <source>What was typed has not been saved and will be lost.</source>
        <translation>Die Eingaben sind nicht gespeichert und gehen verloren.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Reading was cancelled. Choose photos to read them.</source>
        <translation>Das Lesen wurde abgebrochen. Wählen Sie Fotos aus, um sie zu lesen.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::PersonalDataDialog</name>
    <message>
        <source>Where it was taken</source>
        <translation>Ort der Aufnahme</translation>
    </message>
    <message>
        <source>Who took it and who is in it</source>
        <translation>Urheber und abgebildete Personen</translation>
    </message>
    <message>
        <source>Which camera it was</source>
        <translation>Verwendete Kamera</translation>
    </message>
    <message>
        <source>What the camera&apos;s maker has noted</source>
        <translation>Angaben des Kameraherstellers</translation>
    </message>
    <message>
        <source>Remove Location and Personal Data</source>
        <translation>Ort und persönliche Daten entfernen</translation>
    </message>
    <message>
        <source>What will be removed</source>
        <translation>Was entfernt wird</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>This is removed for good, unless the original is kept. Title, description, copyright and date stay.</source>
        <translation>Diese Angaben werden endgültig entfernt, sofern das Original nicht behalten wird. Titel, Beschreibung, Copyright und Datum bleiben erhalten.</translation>
    </message>
    <message>
        <source>The photos have no location and no personal data that is known here.</source>
        <translation>Die Fotos enthalten keinen Ort und keine hier bekannten persönlichen Daten.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>A file holds more than the picture, such as a second one or a film, which stays and may hold such data too.</source>
        <translation>Eine Datei enthält mehr als das Bild, etwa ein zweites oder ein Video; das bleibt und kann ebenfalls solche Angaben enthalten.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::TagView</name>
    <message>
        <source>Search names and values</source>
        <translation>Namen und Werte suchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>1 value</source>
        <translation>1 Wert</translation>
    </message>
    <message numerus="yes">
        <source>%n values</source>
        <translation>
            <numerusform>%n Wert</numerusform>
            <numerusform>%n Werte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::ProgressRow</name>
    <message>
        <source>a few seconds left</source>
        <translation>noch wenige Sekunden</translation>
    </message>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation>
            <numerusform>noch etwa %n Sekunde</numerusform>
            <numerusform>noch etwa %n Sekunden</numerusform>
        </translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>noch etwa eine Minute</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation>
            <numerusform>noch etwa %n Minute</numerusform>
            <numerusform>noch etwa %n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>about an hour left</source>
        <translation>noch etwa eine Stunde</translation>
    </message>
    <message numerus="yes">
        <source>about %n hours left</source>
        <translation>
            <numerusform>noch etwa %n Stunde</numerusform>
            <numerusform>noch etwa %n Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3</source>
        <translation>%1 × %2 Pixel · %3</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>Wird ermittelt&#xa0;…</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3 · small enough already</source>
        <translation>%1 × %2 Pixel · %3 · bereits klein genug</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3 · %4 %</source>
        <extracomment>The last is how many bytes are left of hundred.</extracomment>
        <translation>%1 × %2 Pixel · %3 · %4&#xa0;%</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::ResizeWindow</name>
    <message>
        <source>Resize Photos</source>
        <translation>Fotos skalieren</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Skalieren</translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>%n Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Photos that failed</source>
        <translation>Fehlgeschlagene Fotos</translation>
    </message>
    <message>
        <source>Resizing photos</source>
        <translation>Fotos werden skaliert</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos</source>
        <translation>
            <numerusform>%1 von %2 Foto</numerusform>
            <numerusform>%1 von %2 Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>It was ended.</source>
        <translation>Der Vorgang wurde abgebrochen.</translation>
    </message>
    <message>
        <source>1 photo was resized: %1 became %2.</source>
        <translation>1 Foto wurde skaliert: aus %1 wurden %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n photos were resized: %1 became %2.</source>
        <translation>
            <numerusform>%n Foto wurde skaliert: aus %1 wurden %2.</numerusform>
            <numerusform>%n Fotos wurden skaliert: aus %1 wurden %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 is small enough already.</source>
        <translation>1 ist bereits klein genug.</translation>
    </message>
    <message numerus="yes">
        <source>%n are small enough already.</source>
        <translation>
            <numerusform>%n ist bereits klein genug.</numerusform>
            <numerusform>%n sind bereits klein genug.</numerusform>
        </translation>
    </message>
    <message>
        <source>These were left as they are:</source>
        <translation>Unverändert blieben:</translation>
    </message>
    <message>
        <source>Photos that failed:</source>
        <translation>Fehlgeschlagene Fotos:</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::SizeRow</name>
    <message>
        <source>Free</source>
        <translation>Eigene Größe</translation>
    </message>
    <message>
        <source>What the size is measured by</source>
        <translation>Woran die Größe gemessen wird</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::TargetRows</name>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner auswählen&#xa0;…</translation>
    </message>
    <message>
        <source>Beside the originals</source>
        <translation>Neben den Originalen</translation>
    </message>
    <message>
        <source>In a folder</source>
        <translation>In einem Ordner</translation>
    </message>
    <message>
        <source>In their place; the originals go to the trash</source>
        <translation>An ihrer Stelle; Originale in den Papierkorb</translation>
    </message>
    <message>
        <source>None is chosen yet</source>
        <translation>Noch keiner ausgewählt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>{name} is the photo&apos;s own name, {width} and {height} are its new size in pixels.</source>
        <translation>{name} ist der Name des Fotos, {width} und {height} sind seine neue Breite und Höhe in Pixeln.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>This is no name yet</source>
        <translation>Noch kein gültiger Name</translation>
    </message>
    <message>
        <source>Choose the folder that the resized photos go to.</source>
        <translation>Wählen Sie den Ordner für die skalierten Fotos.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Choose the folder first.</source>
        <translation>Wählen Sie zuerst den Ordner aus.</translation>
    </message>
    <message>
        <source>The name needs {name} in it, which is the photo&apos;s own name, and no slash.</source>
        <translation>Der Name muss {name} enthalten, also den Namen des Fotos, und darf keinen Schrägstrich enthalten.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::SimilarPhotos::SimilarityRow</name>
    <message>
        <source>Similarity</source>
        <translation>Ähnlichkeit</translation>
    </message>
    <message>
        <source>How much alike photos have to be to count as duplicates</source>
        <translation>Wie ähnlich Fotos sein müssen, um als Duplikate zu gelten</translation>
    </message>
    <message>
        <source>Alike</source>
        <translation>Ähnlich</translation>
    </message>
    <message>
        <source>The Same</source>
        <translation>Gleich</translation>
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
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::ItemCard</name>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verknüpfung</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::TransferRunner</name>
    <message>
        <source>Choose the folder to move %1 to.</source>
        <translation>Wählen Sie den Ordner, in den Sie %1 verschieben möchten.</translation>
    </message>
    <message>
        <source>Choose the folder to copy %1 to.</source>
        <translation>Wählen Sie den Ordner, in den Sie %1 kopieren möchten.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>Es wurde nichts verschoben.</translation>
    </message>
    <message>
        <source>Nothing was copied.</source>
        <translation>Es wurde nichts kopiert.</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Verschoben</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Putting everything back</source>
        <translation>Alles wird zurückgelegt</translation>
    </message>
    <message>
        <source>Not everything could be put back.</source>
        <translation>Nicht alles konnte zurückgelegt werden.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::TransferWindow</name>
    <message>
        <source>Do the same for all the rest</source>
        <translation>Für alle weiteren ebenso verfahren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>What was not done</source>
        <translation>Was nicht ausgeführt wurde</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Go On With the Others</source>
        <translation>Mit den übrigen fortfahren</translation>
    </message>
    <message numerus="yes">
        <source>Looking at %1 items</source>
        <translation>
            <numerusform>%1 Objekt wird untersucht</numerusform>
            <numerusform>%1 Objekte werden untersucht</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to the disk</source>
        <translation>Auf den Datenträger wird geschrieben</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 · %2 of %3</source>
        <translation>%1 · %2 von %3</translation>
    </message>
    <message>
        <source>There is a folder %1 in %2 already.</source>
        <translation>Einen Ordner %1 gibt es in %2 bereits.</translation>
    </message>
    <message>
        <source>There is a file %1 in %2 already.</source>
        <translation>Eine Datei %1 gibt es in %2 bereits.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Bereits vorhanden</translation>
    </message>
    <message>
        <source>Not everything can be done.</source>
        <translation>Nicht alles lässt sich ausführen.</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Put actions into your file manager&apos;s right-click menu</source>
        <translation>Aktionen ins Kontextmenü Ihrer Dateiverwaltung aufnehmen</translation>
    </message>
    <message>
        <source>Orvik Menu adds actions to the right-click menu of GNOME Files, Nemo, Caja, Thunar and Dolphin, for items inside folders that you choose.</source>
        <translation>Orvik Menu erweitert das Kontextmenü von GNOME Dateien, Nemo, Caja, Thunar und Dolphin um Aktionen für Objekte in Ordnern, die Sie auswählen.</translation>
    </message>
    <message>
        <source>The control panel lets you:</source>
        <translation>Mit dem Einstellungsprogramm können Sie:</translation>
    </message>
    <message>
        <source>pick the actions that show: open a terminal, create a text file, copy a path, send an item by mail and more</source>
        <translation>festlegen, welche Aktionen erscheinen: ein Terminal öffnen, eine Textdatei erstellen, einen Pfad kopieren, ein Objekt per E-Mail senden und mehr</translation>
    </message>
    <message>
        <source>choose the folders that count, and leave out single ones within them</source>
        <translation>die Ordner auswählen, in denen sie gelten, und einzelne darunter auslassen</translation>
    </message>
    <message>
        <source>show the actions side by side or in one submenu, with icons or without</source>
        <translation>die Aktionen einzeln oder in einem Untermenü anzeigen, mit oder ohne Symbole</translation>
    </message>
    <message>
        <source>switch the companion that brings them into the file manager on and off</source>
        <translation>das Hintergrundprogramm ein- und ausschalten, das sie in die Dateiverwaltung bringt</translation>
    </message>
    <message>
        <source>A change is in the next menu that you open, without restarting anything.</source>
        <translation>Änderungen gelten ab dem nächsten Menü, das Sie öffnen, ohne dass etwas neu gestartet werden muss.</translation>
    </message>
    <message>
        <source>The actions that the menu shows, each with a switch</source>
        <translation>Die Aktionen, die das Menü anzeigt, jede mit einem Schalter</translation>
    </message>
    <message>
        <source>All screens of the control panel in light colours</source>
        <translation>Alle Ansichten des Einstellungsprogramms in hellen Farben</translation>
    </message>
    <message>
        <source>All screens of the control panel in dark colours</source>
        <translation>Alle Ansichten des Einstellungsprogramms in dunklen Farben</translation>
    </message>
</context>
<context>
    <name>ModifiedText</name>
    <message>
        <source>Today %1</source>
        <translation>Heute %1</translation>
    </message>
    <message>
        <source>Yesterday %1</source>
        <translation>Gestern %1</translation>
    </message>
</context>
<context>
    <name>NotSentAlert</name>
    <message>
        <source>One item in it cannot be packed:</source>
        <translation>Ein Objekt darin kann nicht gepackt werden:</translation>
    </message>
    <message numerus="yes">
        <source>%1 items in it cannot be packed:</source>
        <translation>
            <numerusform>%1 Objekt darin kann nicht gepackt werden:</numerusform>
            <numerusform>%1 Objekte darin können nicht gepackt werden:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>und %1 weiteres</numerusform>
            <numerusform>und %1 weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>Lesen ist nicht möglich: %1</translation>
    </message>
    <message>
        <source>The disk is full: there is too little room left in %1 to prepare it.</source>
        <translation>Der Datenträger ist voll: In %1 ist nicht mehr genug Platz für die Vorbereitung.</translation>
    </message>
    <message>
        <source>It cannot be prepared in %1: %2</source>
        <translation>Die Vorbereitung in %1 ist nicht möglich: %2</translation>
    </message>
    <message>
        <source>%1 was not sent.</source>
        <translation>Nicht gesendet: %1.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No mail program could be opened with it. Check which mail program is set as the default, then send it again.</source>
        <translation>Dafür konnte kein E-Mail-Programm geöffnet werden. Prüfen Sie, welches E-Mail-Programm als Standard festgelegt ist, und senden Sie dann erneut.</translation>
    </message>
</context>
<context>
    <name>OpenNewFinderWindow</name>
    <message>
        <source>No window can be opened on %1: %2.</source>
        <translation>Für %1 kann kein Fenster geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>The file manager does not answer, so there may be no window on %1.</source>
        <translation>Die Dateiverwaltung antwortet nicht, daher gibt es möglicherweise kein Fenster für %1.</translation>
    </message>
    <message>
        <source>No file manager was found to open a window on %1.</source>
        <translation>Es wurde keine Dateiverwaltung gefunden, die ein Fenster für %1 öffnen kann.</translation>
    </message>
</context>
<context>
    <name>OpenSystemPreferences</name>
    <message>
        <source>No program for the settings of the desktop was found. Install the one of your desktop.</source>
        <translation>Es wurde kein Programm für die Einstellungen der Arbeitsumgebung gefunden. Installieren Sie das Ihrer Arbeitsumgebung.</translation>
    </message>
</context>
<context>
    <name>OpenTerminal</name>
    <message>
        <source>No terminal can be opened in %1: %2.</source>
        <translation>In %1 kann kein Terminal geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>No terminal was found. Install one, or choose one in the settings of the desktop.</source>
        <translation>Es wurde kein Terminal gefunden. Installieren Sie eines oder wählen Sie eines in den Einstellungen der Arbeitsumgebung.</translation>
    </message>
</context>
<context>
    <name>Photos</name>
    <message>
        <source>cannot be read: what reads pictures could not be started; install Orvik Menu and libvips again</source>
        <translation>kann nicht gelesen werden: Das Programm zum Lesen von Bildern konnte nicht gestartet werden; installieren Sie Orvik Menu und libvips neu</translation>
    </message>
    <message>
        <source>takes too long to read</source>
        <translation>lässt sich nicht in angemessener Zeit lesen</translation>
    </message>
    <message>
        <source>cannot be read: it is damaged, or needs more memory than a picture may take</source>
        <translation>kann nicht gelesen werden: Die Datei ist beschädigt oder braucht mehr Speicher, als ein Bild belegen darf</translation>
    </message>
    <message>
        <source>cannot be read: what reads pictures has failed</source>
        <translation>kann nicht gelesen werden: Das Programm zum Lesen von Bildern ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>cannot be read: this is no question</source>
        <translation>kann nicht gelesen werden: Die Anfrage ist ungültig</translation>
    </message>
    <message>
        <source>holds several pictures, and only one would be compared</source>
        <translation>enthält mehrere Bilder, und nur eines würde verglichen</translation>
    </message>
    <message>
        <source>is no picture of a kind that can be read here</source>
        <translation>ist kein Bild einer Art, die hier gelesen werden kann</translation>
    </message>
    <message>
        <source>cannot be read: it is damaged or ends too early</source>
        <translation>kann nicht gelesen werden: Die Datei ist beschädigt oder endet zu früh</translation>
    </message>
    <message>
        <source>is too large: it has %1 × %2 pixels</source>
        <translation>ist zu groß: %1 × %2 Pixel</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>cannot be shown: it takes too much time or memory</source>
        <translation>kann nicht angezeigt werden: Das braucht zu viel Zeit oder Speicher</translation>
    </message>
    <message>
        <source>cannot be resized: its worker gave no answer</source>
        <translation>kann nicht skaliert werden: Das Hilfsprogramm hat nicht geantwortet</translation>
    </message>
    <message>
        <source>cannot be resized: this is no job</source>
        <translation>kann nicht skaliert werden: Der Auftrag ist ungültig</translation>
    </message>
    <message>
        <source>cannot be resized: it is damaged or ends too early</source>
        <translation>kann nicht skaliert werden: Die Datei ist beschädigt oder endet zu früh</translation>
    </message>
    <message>
        <source>cannot be resized: its format cannot be written here</source>
        <translation>kann nicht skaliert werden: Das Format kann hier nicht geschrieben werden</translation>
    </message>
    <message>
        <source>cannot be made that small</source>
        <translation>kann nicht so klein gemacht werden</translation>
    </message>
    <message>
        <source>cannot be resized: it holds several pictures, and only one would be left</source>
        <translation>kann nicht skaliert werden: Die Datei enthält mehrere Bilder, und nur eines bliebe übrig</translation>
    </message>
    <message>
        <source>cannot be saved: there is no room for it</source>
        <translation>kann nicht gespeichert werden: Es ist nicht genug Platz vorhanden</translation>
    </message>
    <message>
        <source>cannot be resized: without ExifTool it would lose its Exif data</source>
        <translation>kann nicht skaliert werden: Ohne ExifTool gingen die Exif-Daten verloren</translation>
    </message>
    <message>
        <source>cannot be resized in its place: a second picture or a film in it would be lost</source>
        <translation>kann nicht an seiner Stelle skaliert werden: Ein zweites Bild oder ein Film darin ginge verloren</translation>
    </message>
</context>
<context>
    <name>ProblemTool::ProblemWindow</name>
    <message>
        <source>What it said: %1</source>
        <translation>Meldung: %1</translation>
    </message>
    <message>
        <source>There is nothing to repair in the settings.</source>
        <translation>In den Einstellungen gibt es nichts zu reparieren.</translation>
    </message>
    <message>
        <source>Nothing in the settings explains it. They are as they were.</source>
        <translation>Nichts in den Einstellungen erklärt das. Sie sind unverändert.</translation>
    </message>
    <message>
        <source>Repair Settings mends this.</source>
        <translation>„Einstellungen reparieren“ behebt dies.</translation>
    </message>
    <message>
        <source>That may not be why it stopped. Repair Settings mends the settings.</source>
        <translation>Das ist möglicherweise nicht der Grund, warum es beendet wurde. „Einstellungen reparieren“ behebt die Fehler in den Einstellungen.</translation>
    </message>
    <message>
        <source>A copy of the settings as they are now is kept.</source>
        <translation>Eine Kopie der jetzigen Einstellungen wird aufbewahrt.</translation>
    </message>
    <message>
        <source>The settings of Orvik Menu</source>
        <translation>Die Einstellungen von Orvik Menu</translation>
    </message>
    <message>
        <source>Orvik Menu had to stop</source>
        <translation>Orvik Menu musste beendet werden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation>Erneut öffnen</translation>
    </message>
    <message>
        <source>Repair Settings</source>
        <translation>Einstellungen reparieren</translation>
    </message>
    <message>
        <source>The settings could not be repaired: they cannot be read.</source>
        <translation>Die Einstellungen konnten nicht repariert werden: Sie können nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The settings could not be repaired: %1.</source>
        <translation>Die Einstellungen konnten nicht repariert werden: %1.</translation>
    </message>
    <message>
        <source>Orvik Menu could not be started.</source>
        <translation>Orvik Menu konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Orvik Menu is still ending. It opens again right after.</source>
        <translation>Orvik Menu wird noch beendet. Gleich danach öffnet es sich wieder.</translation>
    </message>
</context>
<context>
    <name>Repair</name>
    <message>
        <source>The list of folders is no list.</source>
        <translation>Die Liste der Ordner ist keine Liste.</translation>
    </message>
    <message>
        <source>What is no list is removed.</source>
        <translation>Was keine Liste ist, wird entfernt.</translation>
    </message>
    <message>
        <source>1 entry of the list of folders is no path.</source>
        <translation>1 Eintrag in der Liste der Ordner ist kein Pfad.</translation>
    </message>
    <message>
        <source>%1 entries of the list of folders are no paths.</source>
        <translation>%1 Einträge in der Liste der Ordner sind keine Pfade.</translation>
    </message>
    <message>
        <source>What is no path is removed.</source>
        <translation>Was kein Pfad ist, wird entfernt.</translation>
    </message>
    <message>
        <source>The list that says which folders are active does not match the list of folders.</source>
        <translation>Die Liste der aktiven Ordner passt nicht zur Liste der Ordner.</translation>
    </message>
    <message>
        <source>A folder without an entry of its own becomes active.</source>
        <translation>Ein Ordner ohne eigenen Eintrag wird aktiv.</translation>
    </message>
    <message>
        <source>The older list of menu items is no list.</source>
        <translation>Die ältere Liste der Menüeinträge ist keine Liste.</translation>
    </message>
    <message>
        <source>The older list of menu items has entries that are no numbers.</source>
        <translation>Die ältere Liste der Menüeinträge enthält Einträge, die keine Zahlen sind.</translation>
    </message>
    <message>
        <source>A menu item without a number is switched on.</source>
        <translation>Ein Menüeintrag ohne Zahl wird eingeschaltet.</translation>
    </message>
</context>
<context>
    <name>ResizePhotos</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>eine Verknüpfung führt aus den Ordnern heraus, in denen Orvik Menu arbeitet</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <extracomment>A photo&apos;s name, and what is wrong with it: “Harbour.jpg cannot be resized: it is damaged.”</extracomment>
        <translation>%1 %2.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2.</source>
        <translation>%1 kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be saved: %2.</source>
        <translation>%1 kann nicht gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>%1 stays as it is, since it cannot be moved to the trash: %2</source>
        <translation>%1 bleibt unverändert, da es nicht in den Papierkorb verschoben werden kann: %2</translation>
    </message>
    <message>
        <source>%1 is in the trash, but the smaller one could not take its place: %2.</source>
        <translation>%1 ist im Papierkorb, aber das kleinere Foto konnte seinen Platz nicht einnehmen: %2.</translation>
    </message>
    <message>
        <source>%1 takes too long to resize.</source>
        <translation>Das Skalieren von %1 dauert zu lange.</translation>
    </message>
    <message>
        <source>%1 cannot be resized: it takes too much memory, or is damaged.</source>
        <translation>%1 kann nicht skaliert werden: Es braucht zu viel Speicher oder ist beschädigt.</translation>
    </message>
    <message>
        <source>%1 cannot be resized: the part that reads pictures does not start. Install the package libvips42.</source>
        <translation>%1 kann nicht skaliert werden: Der Programmteil zum Lesen von Bildern startet nicht. Installieren Sie das Paket libvips42.</translation>
    </message>
    <message>
        <source>%1 stays as it is: another program has changed it meanwhile.</source>
        <translation>%1 bleibt unverändert: Ein anderes Programm hat es inzwischen geändert.</translation>
    </message>
</context>
<context>
    <name>SendViaMail</name>
    <message>
        <source>%1 cannot be sent: its name or that of a folder above it has characters that are no text. Rename it and try again.</source>
        <translation>%1 kann nicht gesendet werden: Der Name oder der eines übergeordneten Ordners enthält Zeichen, die kein gültiger Text sind. Benennen Sie das Objekt um und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: the settings of Orvik Menu cannot be written. Is the disk full?</source>
        <translation>%1 kann nicht gesendet werden: Die Einstellungen von Orvik Menu lassen sich nicht speichern. Ist der Datenträger voll?</translation>
    </message>
</context>
<context>
    <name>SetAsWallpaper</name>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>The desktop did not take %1 as its wallpaper.</source>
        <translation>Die Arbeitsumgebung hat %1 nicht als Hintergrundbild übernommen.</translation>
    </message>
    <message>
        <source>%1 cannot be set as the wallpaper: Orvik Menu does not know how this desktop sets it.</source>
        <translation>%1 kann nicht als Hintergrundbild festgelegt werden: Orvik Menu weiß nicht, wie das in dieser Arbeitsumgebung geht.</translation>
    </message>
</context>
<context>
    <name>ShowcaseCatalogue</name>
    <message>
        <source>Photo &amp; Video</source>
        <translation>Foto &amp; Video</translation>
    </message>
    <message>
        <source>Turn hundreds of small photos into one large picture that stays sharp however close you look.</source>
        <translation>Setzen Sie aus Hunderten kleiner Fotos ein großes Bild zusammen, das scharf bleibt, wie nah Sie auch herangehen.</translation>
    </message>
    <message>
        <source>Trim, join and turn your video clips without losing quality or waiting for an export.</source>
        <translation>Schneiden, verbinden und drehen Sie Ihre Videoclips ohne Qualitätsverlust und ohne auf einen Export zu warten.</translation>
    </message>
    <message>
        <source>Warm or cool the light of a whole photo shoot at once, and compare it with the original as you go.</source>
        <translation>Machen Sie das Licht einer ganzen Fotoserie auf einmal wärmer oder kühler, immer mit dem Original im Vergleich.</translation>
    </message>
    <message>
        <source>Record your screen, your voice and your camera together, ready to share the moment you stop.</source>
        <translation>Nehmen Sie Bildschirm, Stimme und Kamera gemeinsam auf – fertig zum Teilen, sobald Sie anhalten.</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Produktivität</translation>
    </message>
    <message>
        <source>Pick any colour on your screen and keep your palettes in one place, ready to paste into your work.</source>
        <translation>Nehmen Sie jede Farbe vom Bildschirm auf und sammeln Sie Paletten an einem Ort, bereit zum Einfügen.</translation>
    </message>
    <message>
        <source>Lifestyle</source>
        <translation>Lifestyle</translation>
    </message>
    <message>
        <source>Keep well at your desk with gentle reminders to drink, to stretch and to look into the distance.</source>
        <translation>Bleiben Sie am Schreibtisch gesund: mit sanften Erinnerungen ans Trinken, ans Strecken und an den Blick in die Ferne.</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>Dienstprogramme</translation>
    </message>
    <message>
        <source>Find any file as you type, even inside archives and on disks that are not plugged in.</source>
        <translation>Finden Sie jede Datei beim Tippen, auch in Archiven und auf nicht angeschlossenen Datenträgern.</translation>
    </message>
    <message>
        <source>Collect notes, lists and clippings in a notebook that is always one keystroke away.</source>
        <translation>Sammeln Sie Notizen, Listen und Ausschnitte in einem Notizbuch, das immer nur einen Tastendruck entfernt ist.</translation>
    </message>
    <message>
        <source>See every calendar and every deadline on one timeline, and move your plans until the week fits.</source>
        <translation>Sehen Sie alle Kalender und alle Termine auf einer Zeitachse und verschieben Sie Ihre Pläne, bis die Woche passt.</translation>
    </message>
    <message>
        <source>See at a glance what fills your disk, and clear away duplicates, leftovers and old downloads.</source>
        <translation>Sehen Sie, was Ihre Festplatte füllt, und räumen Sie Duplikate und alte Downloads weg.</translation>
    </message>
    <message>
        <source>Business</source>
        <translation>Geschäftlich</translation>
    </message>
    <message>
        <source>Write an invoice in a minute, send it as a PDF, and always know who has yet to pay.</source>
        <translation>Schreiben Sie in einer Minute eine Rechnung, senden Sie sie als PDF und sehen Sie, wer noch zahlen muss.</translation>
    </message>
    <message>
        <source>Rename thousands of files at once by rules that you can read, with a preview of every new name.</source>
        <translation>Benennen Sie Tausende von Dateien auf einmal um, nach lesbaren Regeln und mit einer Vorschau jedes neuen Namens.</translation>
    </message>
    <message>
        <source>Keep an eye on processor, memory and network with a small, quiet meter in the menu bar.</source>
        <translation>Behalten Sie Prozessor, Speicher und Netzwerk mit einer kleinen, ruhigen Anzeige in der Menüleiste im Blick.</translation>
    </message>
    <message>
        <source>Keep everything that you copy, and paste any of it again by typing a few of its letters.</source>
        <translation>Bewahren Sie alles auf, was Sie kopieren, und fügen Sie es mit ein paar getippten Buchstaben wieder ein.</translation>
    </message>
    <message>
        <source>Lock your private folders with strong encryption, and open them again with a single password.</source>
        <translation>Schützen Sie Ihre privaten Ordner mit starker Verschlüsselung und öffnen Sie sie mit einem einzigen Passwort.</translation>
    </message>
    <message>
        <source>Dim everything but the window you work in, so that your attention stays where it belongs.</source>
        <translation>Dunkeln Sie alles außer Ihrem Fenster ab, damit Ihre Aufmerksamkeit da bleibt, wo sie hingehört.</translation>
    </message>
    <message>
        <source>Work in focused stretches with a break after each, and see at the end of the week where the hours went.</source>
        <translation>Arbeiten Sie in konzentrierten Etappen mit Pausen und sehen Sie am Ende der Woche, wo die Stunden blieben.</translation>
    </message>
</context>
<context>
    <name>SizeRow</name>
    <message>
        <source>Longest side</source>
        <translation>Längste Seite</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> Pixel</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Prozentsatz</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Each file at most</source>
        <translation>Jede Datei höchstens</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>All together at most</source>
        <translation>Zusammen höchstens</translation>
    </message>
    <message>
        <source>For a screen</source>
        <translation>Für Bildschirme</translation>
    </message>
    <message>
        <source>For mail</source>
        <translation>Für E-Mail</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>Halbiert</translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>1 byte</source>
        <translation>1 Byte</translation>
    </message>
</context>
<context>
    <name>TagView</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
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
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Aufnahmeort</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Schlagwörter</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>Belichtungszeit</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Blende</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Blitz</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Größe in Pixeln</translation>
    </message>
    <message>
        <source>Kind of file</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>Farbprofil</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>Verschiedene Werte</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>eine Verknüpfung führt aus den Ordnern heraus, in denen Orvik Menu arbeitet</translation>
    </message>
    <message>
        <source>it can only be read</source>
        <translation>nur Lesen ist möglich</translation>
    </message>
    <message>
        <source>it is not known why</source>
        <translation>der Grund ist nicht bekannt</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 Objekt</numerusform>
            <numerusform>%1 Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>Moving %1 to %2</source>
        <translation>%1 nach %2 verschieben</translation>
    </message>
    <message>
        <source>Copying %1 to %2</source>
        <translation>%1 nach %2 kopieren</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>%1 wurde nach %2 verschoben.</translation>
    </message>
    <message>
        <source>%1 was copied to %2.</source>
        <translation>%1 wurde nach %2 kopiert.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were moved to %2.</source>
        <translation>
            <numerusform>%1 Objekt wurde nach %2 verschoben.</numerusform>
            <numerusform>%1 Objekte wurden nach %2 verschoben.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 items were copied to %2.</source>
        <translation>
            <numerusform>%1 Objekt wurde nach %2 kopiert.</numerusform>
            <numerusform>%1 Objekte wurden nach %2 kopiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 items were moved to %3.</source>
        <translation>
            <numerusform>Nach %3 verschoben: %1 von %2 Objekt.</numerusform>
            <numerusform>Nach %3 verschoben: %1 von %2 Objekten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 items were copied to %3.</source>
        <translation>
            <numerusform>Nach %3 kopiert: %1 von %2 Objekt.</numerusform>
            <numerusform>Nach %3 kopiert: %1 von %2 Objekten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing can be put into %1: %2.</source>
        <translation>In %1 kann nichts abgelegt werden: %2.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk of %1.</source>
        <translation>Auf dem Datenträger von %1 ist nicht genug Platz.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 is in this folder already.</source>
        <translation>%1 ist bereits in diesem Ordner.</translation>
    </message>
    <message>
        <source>%1 cannot be moved into itself.</source>
        <translation>%1 kann nicht in sich selbst verschoben werden.</translation>
    </message>
    <message>
        <source>%1 cannot be copied into itself.</source>
        <translation>%1 kann nicht in sich selbst kopiert werden.</translation>
    </message>
    <message>
        <source>The name %1 is too long for the disk that it is to go to.</source>
        <translation>Der Name %1 ist zu lang für den Zieldatenträger.</translation>
    </message>
    <message>
        <source>%1 is too large for the disk that it is to go to.</source>
        <translation>%1 ist zu groß für den Zieldatenträger.</translation>
    </message>
    <message>
        <source>%1 cannot be taken away from where it is. It can be copied.</source>
        <translation>%1 kann nicht von seinem Ort entfernt werden. Kopieren ist möglich.</translation>
    </message>
    <message>
        <source>%1 is a device, which cannot be copied.</source>
        <translation>%1 ist ein Gerät und kann nicht kopiert werden.</translation>
    </message>
    <message>
        <source>%1 kept changing while it was copied. Try again.</source>
        <translation>%1 wurde während des Kopierens immer wieder geändert. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>%1 could not be moved: %2.</source>
        <translation>%1 konnte nicht verschoben werden: %2.</translation>
    </message>
    <message>
        <source>%1 could not be copied: %2.</source>
        <translation>%1 konnte nicht kopiert werden: %2.</translation>
    </message>
    <message>
        <source>%1 has changed meanwhile, or a part of it could not be copied. What was not moved is still where it was.</source>
        <translation>%1 wurde inzwischen geändert, oder ein Teil davon konnte nicht kopiert werden. Was nicht verschoben wurde, ist noch an seinem Ort.</translation>
    </message>
    <message>
        <source>%1 was copied, but not all of it could be removed from where it was: %2.</source>
        <translation>%1 wurde kopiert, konnte aber nicht vollständig vom alten Ort entfernt werden: %2.</translation>
    </message>
    <message>
        <source>%1 could not be put back, since it is not where it was put.</source>
        <translation>%1 konnte nicht zurückgelegt werden, da es nicht mehr dort ist, wohin es gelegt wurde.</translation>
    </message>
    <message>
        <source>%1 could not be put back: %2.</source>
        <translation>%1 konnte nicht zurückgelegt werden: %2.</translation>
    </message>
    <message>
        <source>%1 could not be put into the trash: %2</source>
        <translation>%1 konnte nicht in den Papierkorb verschoben werden: %2</translation>
    </message>
    <message numerus="yes">
        <source>There were %1 more like these.</source>
        <translation>
            <numerusform>Es gab %1 weiteres Problem dieser Art.</numerusform>
            <numerusform>Es gab %1 weitere Probleme dieser Art.</numerusform>
        </translation>
    </message>
    <message>
        <source>There was 1 more like these.</source>
        <translation>Es gab 1 weiteres Problem dieser Art.</translation>
    </message>
    <message>
        <source>A part of %1 was moved to %2.</source>
        <translation>Ein Teil von %1 wurde nach %2 verschoben.</translation>
    </message>
    <message>
        <source>A part of %1 was copied to %2.</source>
        <translation>Ein Teil von %1 wurde nach %2 kopiert.</translation>
    </message>
    <message>
        <source>%1 was not put back.</source>
        <translation>%1 wurde nicht zurückgelegt.</translation>
    </message>
    <message>
        <source>%1 was copied without some of its extended attributes: the disk has no room for them.</source>
        <translation>%1 wurde ohne einige seiner erweiterten Attribute kopiert: Der Datenträger hat keinen Platz dafür.</translation>
    </message>
</context>
<context>
    <name>TroubleWords</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>eine Verknüpfung führt aus den Ordnern heraus, in denen Orvik Menu arbeitet</translation>
    </message>
    <message>
        <source>ExifTool does not say why</source>
        <translation>ExifTool nennt keinen Grund</translation>
    </message>
    <message>
        <source>It was not done any more.</source>
        <translation>Dazu kam es nicht mehr.</translation>
    </message>
    <message>
        <source>It cannot be opened: %1.</source>
        <translation>Die Datei kann nicht geöffnet werden: %1.</translation>
    </message>
    <message>
        <source>It cannot be saved: %1.</source>
        <translation>Die Datei kann nicht gespeichert werden: %1.</translation>
    </message>
    <message>
        <source>The original cannot be kept beside it: %1. Nothing was changed.</source>
        <translation>Das Original kann nicht daneben behalten werden: %1. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The program ExifTool is missing. Install the package libimage-exiftool-perl.</source>
        <translation>Das Programm ExifTool fehlt. Installieren Sie das Paket libimage-exiftool-perl.</translation>
    </message>
    <message>
        <source>Reading it takes too long.</source>
        <translation>Das Lesen dauert zu lange.</translation>
    </message>
    <message>
        <source>It says more than can be shown.</source>
        <translation>Die Datei enthält mehr Angaben, als angezeigt werden können.</translation>
    </message>
    <message>
        <source>ExifTool failed on it. The file may be damaged, or too large.</source>
        <translation>ExifTool ist daran gescheitert. Die Datei ist möglicherweise beschädigt oder zu groß.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>Die Datei kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>It cannot be changed: %1.</source>
        <translation>Die Datei kann nicht geändert werden: %1.</translation>
    </message>
    <message>
        <source>Another program has changed it meanwhile. Look at it again and try again.</source>
        <translation>Ein anderes Programm hat die Datei inzwischen geändert. Sehen Sie sie noch einmal an und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Files of this kind, or damaged ones, are not changed, since it cannot be checked that the picture stays the same.</source>
        <translation>Dateien dieser Art und beschädigte Dateien werden nicht geändert, da nicht geprüft werden kann, ob das Bild gleich bleibt.</translation>
    </message>
    <message>
        <source>The picture would not have stayed the same. Nothing was changed.</source>
        <translation>Das Bild wäre nicht gleich geblieben. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>It does not hold all that was to be written. Nothing was changed.</source>
        <translation>Die Datei hätte nicht alles enthalten, was geschrieben werden sollte. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>It has no date that could be moved.</source>
        <translation>Es gibt kein Datum, das verschoben werden könnte.</translation>
    </message>
    <message>
        <source>Its orientation is part of the picture and cannot be changed here.</source>
        <translation>Die Ausrichtung ist Teil des Bildes und kann hier nicht geändert werden.</translation>
    </message>
    <message>
        <source>It was saved, but it holds more than the picture, such as a second one or a film, which may hold such data too.</source>
        <translation>Sie wurde gespeichert, enthält aber mehr als das Bild, etwa ein zweites oder ein Video, und darin können ebenfalls solche Angaben sein.</translation>
    </message>
</context>
<context>
    <name>UtilityKitWindow</name>
    <message>
        <source>More from Orvik Studio</source>
        <translation>Mehr von Orvik Studio</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>Fenster &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Quit Orvik Menu</source>
        <translation>Orvik Menu &amp;beenden</translation>
    </message>
</context>
<context>
    <name>ViewController</name>
    <message>
        <source>Choose the actions that show when you right-click an item in your folders.</source>
        <translation>Wählen Sie die Aktionen, die beim Rechtsklick auf ein Objekt in Ihren Ordnern erscheinen.</translation>
    </message>
    <message>
        <source>Menu items</source>
        <translation>Menüeinträge</translation>
    </message>
    <message>
        <source>No Menu Items</source>
        <translation>Keine Menüeinträge</translation>
    </message>
    <message>
        <source>The stored list of menu items is empty.</source>
        <translation>Die gespeicherte Liste der Menüeinträge ist leer.</translation>
    </message>
</context>
<context>
    <name>WindowParts</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>eine Verknüpfung führt aus den Ordnern heraus, in denen Orvik Menu arbeitet</translation>
    </message>
    <message>
        <source>%1 is not in a folder that Orvik Menu works in. Add the folder in its settings.</source>
        <translation>%1 ist nicht in einem Ordner, in dem Orvik Menu arbeitet. Fügen Sie den Ordner in den Einstellungen hinzu.</translation>
    </message>
    <message>
        <source>%1 or another item is not in a folder that Orvik Menu works in. Add the folder in its settings.</source>
        <translation>%1 oder ein anderes Objekt ist nicht in einem Ordner, in dem Orvik Menu arbeitet. Fügen Sie den Ordner in den Einstellungen hinzu.</translation>
    </message>
    <message>
        <source>There were %1 more like these.</source>
        <translation>Weitere Probleme dieser Art: %1.</translation>
    </message>
    <message>
        <source>There was 1 more like these.</source>
        <translation>Es gab 1 weiteres Problem dieser Art.</translation>
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
        <translation>Aktionen für das Menü Ihrer Dateiverwaltung, in den Ordnern, die Sie auswählen.</translation>
    </message>
    <message>
        <source>&amp;Web Site</source>
        <translation>&amp;Webseite</translation>
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
        <translation>Orvik Menu &amp;bewerten</translation>
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
        <translation>Im App Store öffnen</translation>
    </message>
</context>
<context>
    <name>customFoldersVc</name>
    <message>
        <source>Folders that you set up from the file manager’s menu, for example as places to move or copy items to. Delete those that you no longer use.</source>
        <translation>Ordner, die Sie über das Menü der Dateiverwaltung eingerichtet haben, zum Beispiel als Ziele zum Verschieben oder Kopieren. Entfernen Sie die Ordner, die Sie nicht mehr verwenden.</translation>
    </message>
    <message>
        <source>Custom folders</source>
        <translation>Eigene Ordner</translation>
    </message>
    <message>
        <source>No Custom Folders</source>
        <translation>Keine eigenen Ordner</translation>
    </message>
    <message>
        <source>They appear here once you set them up from the file manager’s menu.</source>
        <translation>Sie erscheinen hier, sobald Sie sie über das Menü der Dateiverwaltung eingerichtet haben.</translation>
    </message>
</context>
<context>
    <name>firstRunvc</name>
    <message>
        <source>Welcome to Orvik Menu</source>
        <translation>Willkommen bei Orvik Menu</translation>
    </message>
    <message>
        <source>Two steps, in either order, and Orvik Menu is ready.</source>
        <translation>Zwei Schritte, in beliebiger Reihenfolge, und Orvik Menu ist bereit.</translation>
    </message>
    <message>
        <source>Switch on the extension</source>
        <translation>Erweiterung einschalten</translation>
    </message>
    <message>
        <source>Open Extensions and switch on “Orvik Menu Extension”. This step is done as soon as the extension runs.</source>
        <translation>Öffnen Sie „Erweiterungen“ und schalten Sie die „Erweiterung von Orvik Menu“ ein. Dieser Schritt ist erledigt, sobald die Erweiterung läuft.</translation>
    </message>
    <message>
        <source>Open &amp;Extensions…</source>
        <translation>&amp;Erweiterungen öffnen&#xa0;…</translation>
    </message>
    <message>
        <source>Choose your folders</source>
        <translation>Ihre Ordner auswählen</translation>
    </message>
    <message>
        <source>The actions show on items inside these folders. You can change them later.</source>
        <translation>Die Aktionen erscheinen bei Objekten in diesen Ordnern. Sie können die Ordner später ändern.</translation>
    </message>
    <message>
        <source>Choose &amp;Folders…</source>
        <translation>Ordner &amp;auswählen&#xa0;…</translation>
    </message>
    <message>
        <source>You have succeessfully enabled Orvik Menu and can see the Orvik Menu items in the Context Menu on right click for selected folders. You can change these settings in the app anytime.</source>
        <translation>Sie haben Orvik Menu erfolgreich eingeschaltet. Beim Rechtsklick in den ausgewählten Ordnern zeigt das Kontextmenü nun die Einträge von Orvik Menu. Sie können diese Einstellungen jederzeit in der Anwendung ändern.</translation>
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
        <translation>Orvik Menu zeigt seine Aktionen bei Objekten in diesen Ordnern. Entfernen Sie ein Häkchen, um einen Ordner vorerst auszulassen.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>&amp;Hinzufügen&#xa0;…</translation>
    </message>
    <message>
        <source>&amp;Remove Folder…</source>
        <translation>&amp;Entfernen&#xa0;…</translation>
    </message>
    <message>
        <source>Remove the selected folder (Delete)</source>
        <translation>Den ausgewählten Ordner entfernen (Entf)</translation>
    </message>
    <message>
        <source>Remove selected folder?</source>
        <translation>Ausgewählten Ordner entfernen?</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the selected folder.</source>
        <translation>Möchten Sie den ausgewählten Ordner wirklich entfernen?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Some of the folders can not be added because they are already added to the Folders list.</source>
        <translation>Einige der Ordner können nicht hinzugefügt werden, da sie bereits in der Ordnerliste stehen.</translation>
    </message>
    <message>
        <source>No Folders Yet</source>
        <translation>Noch keine Ordner</translation>
    </message>
    <message>
        <source>Orvik Menu shows its actions on items inside the folders that you add.</source>
        <translation>Orvik Menu zeigt seine Aktionen bei Objekten in den Ordnern, die Sie hinzufügen.</translation>
    </message>
</context>
<context>
    <name>genraltabvc</name>
    <message>
        <source>Extension</source>
        <translation>Erweiterung</translation>
    </message>
    <message>
        <source>Looking for the extension…</source>
        <translation>Die Erweiterung wird gesucht&#xa0;…</translation>
    </message>
    <message>
        <source>Open &amp;Extensions…</source>
        <translation>&amp;Erweiterungen öffnen&#xa0;…</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Show an &amp;icon beside each menu item</source>
        <translation>&amp;Symbol neben jedem Eintrag zeigen</translation>
    </message>
    <message>
        <source>Group the menu items in a &amp;submenu</source>
        <translation>Einträge in &amp;Untermenü gruppieren</translation>
    </message>
    <message>
        <source>Orvik Menu Extension is enabled</source>
        <translation>Die Erweiterung von Orvik Menu ist eingeschaltet</translation>
    </message>
    <message>
        <source>Enable &quot;Orvik Menu Extension&quot; in System Preferences &gt; Extensions to make Orvik Menu work.</source>
        <translation>Schalten Sie die „Erweiterung von Orvik Menu“ unter Systemeinstellungen &gt; Erweiterungen ein, damit Orvik Menu funktioniert.</translation>
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
        <translation>&amp;Info zu Orvik Menu</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>Fenster &amp;schließen</translation>
    </message>
    <message>
        <source>&amp;Quit Orvik Menu</source>
        <translation>Orvik Menu &amp;beenden</translation>
    </message>
</context>
<context>
    <name>tabviewcontroller</name>
    <message>
        <source>Menu Items</source>
        <translation>Menüeinträge</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Custom Folders</source>
        <translation>Eigene Ordner</translation>
    </message>
</context>
<context>
    <name>tblcell</name>
    <message>
        <source>Delete</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 entfernen</translation>
    </message>
</context>
<context>
    <name>utilityKitvc</name>
    <message>
        <source>Other apps</source>
        <translation>Weitere Apps</translation>
    </message>
    <message>
        <source>Other Apps we think you may Love:</source>
        <translation>Weitere Apps, die Ihnen gefallen könnten:</translation>
    </message>
</context>
</TS>
