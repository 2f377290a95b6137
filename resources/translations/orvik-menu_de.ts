<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Action</name>
    <message>
        <source>The control panel of Orvik Menu could not be started. Install Orvik Menu again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be found: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orvik Menu was asked for something in a way that it does not understand.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings of Orvik Menu cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cannot be done with what is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddFolders</name>
    <message>
        <source>%1 cannot be added: its name or that of a folder above it has characters that are no text. Rename it and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folders cannot be added: the settings of Orvik Menu cannot be written. Is the disk full?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AttachToMail</name>
    <message>
        <source>Please select the file that you want to send via email to allow sending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attach to Mail</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Attachments</name>
    <message>
        <source>it is not a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it became shorter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>It ended before it was done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program that does this cannot be started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too much is asked for at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orvik Menu has no action of that name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the file manager itself can do this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This action is switched off in the settings of Orvik Menu.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CreateNewTextFile</name>
    <message>
        <source>New Text File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file can be made in %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>File Manager Menu Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the actions that your file manager&apos;s menu shows, and where</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>context;menu;right-click;file manager;actions;folders;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extensions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch the extensions of Orvik Menu on and off</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message>
        <source>is not there any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has changed since it was found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is the last copy that is left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has a copy that another program is using</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was not reached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be compared with its copy: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is not the same as its copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>was not compared to its end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed while it was read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a link, and those are not followed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is neither a file nor a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>could not be moved to the trash: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no picture, though it is named like one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>has changed while it was read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditForm</name>
    <message>
        <source>As it is stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upside down and mirrored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turned left and mirrored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turned right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turned right and mirrored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turned left</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Extension</name>
    <message>
        <source>Orvik Menu Extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds Orvik Menu&apos;s actions to the file manager&apos;s right-click menu.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExtensionStatus</name>
    <message>
        <source>There is no session bus, so it can neither run nor be switched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is set to start at log-in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is running, but it is not set to start at log-in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is set to start at log-in, but it is not running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ending…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is running, and it starts at log-in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is switched off.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::ExtensionControl</name>
    <message>
        <source>It could not be asked to end: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program %1 is missing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not start %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was started, but it does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was asked to end, but it does not.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::ExtensionsWindow</name>
    <message>
        <source>Extensions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extensions bring Orvik Menu into other programs.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagerRow</name>
    <message>
        <source>Restart</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagerSection</name>
    <message>
        <source>File managers on this computer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file manager that can show the menu is installed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagersControl</name>
    <message>
        <source>It could not be asked to close.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was asked to close, but it is still running.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::LackingActionsSection</name>
    <message>
        <source>Actions that are in no menu:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileManagerStatus</name>
    <message>
        <source>Close it and open it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restarting it closes its windows and stops any copying.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closing…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The menu is missing. Install the package %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not running. It loads the menu when it starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It loads the menu when it needs it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has loaded the menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is running without the menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has loaded an older version of the menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is running. Whether it has loaded the menu is not known.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FindDuplicateFiles</name>
    <message>
        <source>Duplicate Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No two files hold the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 file</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FindDuplicatePhotos</name>
    <message>
        <source>Best: most pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best: as many pixels as any, in the largest file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best: the oldest of the same size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As good as another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No two photos show the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the Best Photo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderPanel</name>
    <message>
        <source>Grant Access</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HideUnhideItem</name>
    <message>
        <source>What is hidden in %1 cannot be changed: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be hidden, since its name has a line end. Rename it and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: its name has dots alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: it is the list of what is hidden.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: there is a %2 already. Rename one of the two.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is hidden in %1 cannot be changed, since another program is changing it. Try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of what is hidden in %1, a file named .hidden, cannot be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LackingActions</name>
    <message>
        <source>Needs the package %1, which is not installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Needs the packages %1, which are not installed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::CardWidget</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FileChooserDialog</name>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Location</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Places</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no longer there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is selected. To choose “%1” itself, press the button “%2”.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its path is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be chosen: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be chosen.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FileList</name>
    <message>
        <source>This folder is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You do not have permission to see what is in this folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder cannot be read: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FolderModel</name>
    <message>
        <source>Link to a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link to a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link to something that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modified</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::PlacesList</name>
    <message>
        <source>Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Music</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File System</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::PreparingWindow</name>
    <message>
        <source>Preparing %1 for sending…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::RowWidget</name>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::StepBadge</name>
    <message>
        <source>Step %1, done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step %1, to do</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LinuxPlatform</name>
    <message>
        <source>“%1” cannot be used: its path has characters that cannot be stored as text. Rename the folder, then choose it again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MailText</name>
    <message>
        <source>“%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Choose Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asks for another folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuCatalogue</name>
    <message>
        <source>Open Terminal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open System Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set as Wallpaper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create New Text File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy path to Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Send via Mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy to a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open New Finder Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide / Unhide item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Duplicate Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Duplicate Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View or Edit Exif Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configure Orvik Menu Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::ChoicesRow</name>
    <message>
        <source>Hidden Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In folders of the system, in the trash, and what file managers write for themselves</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::DuplicatesWindow</name>
    <message>
        <source>One always stays. Keep another one before you choose this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter by name or folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose by Rule</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the Oldest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the Newest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the One with the Shortest Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose Nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the Folder of the Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Those in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items of the Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 looked at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moving to the trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved to the trash: %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is checked goes to the trash. One of a group always stays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move 1 Item to Trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Move %1 Items to Trash</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is chosen.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen: %1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 group, %1 could be saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 groups, %2 could be saved</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>No group matches the filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for duplicates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search was stopped before anything was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 Item Was Left Out…</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 Items Were Left Out…</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>And %1 more.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::GroupListModel</name>
    <message>
        <source>%1, %2, %3 could be saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 each</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n to remove</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::ItemListModel</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best Because</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::PreviewPane</name>
    <message>
        <source>Preview of %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::TroublesDialog</name>
    <message>
        <source>Left Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::EditForm</name>
    <message>
        <source>Keep the original file beside it, with “_original” after its name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the file&apos;s date of change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Location and Personal Data…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Author</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move date by days</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move date by hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move date by minutes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move date by seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move date by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is removed when it is saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Different values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2026-12-31 23:59:59</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None is stored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>48.858370, 2.294481</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The date is to be written as 2026-12-31 23:59:59.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a new date or move the one that is there, not both.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The place is to be written as latitude and longitude in degrees: 48.858370, 2.294481.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::ExifWindow</name>
    <message>
        <source>Exif Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was ended; the photos that were not saved yet are as they were.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photos that failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Reading photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Saving photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 photo was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n photos were saved.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>These were left as they were:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::PersonalDataDialog</name>
    <message>
        <source>Where it was taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Who took it and who is in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which camera it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the camera&apos;s maker has noted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Location and Personal Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What will be removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is removed for good, unless the original is kept. Title, description, copyright and date stay.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The photos have no location and no personal data that is known here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::TagView</name>
    <message>
        <source>Search names and values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::ProgressRow</name>
    <message>
        <source>a few seconds left</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>about an hour left</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>about %n hours left</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::ComparePane</name>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> · small enough already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> · %1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::ResizeWindow</name>
    <message>
        <source>Resize Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photos that were left as they are</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resizing photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>It was ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 photo was resized: %1 became %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n photos were resized: %1 became %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 is small enough already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n are small enough already.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>These were left as they are:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::SizeRow</name>
    <message>
        <source>Free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the size is measured by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::TargetRows</name>
    <message>
        <source>Choose Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beside the originals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In their place; the originals go to the trash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None is chosen yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>{name} is the photo&apos;s own name, {width} and {height} are its new size in pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no name yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the folder that the resized photos go to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the folder first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name needs {name} in it, which is the photo&apos;s own name, and no slash.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::SimilarPhotos::SimilarityRow</name>
    <message>
        <source>Similarity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How much alike photos have to be to count as duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alike</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::DoneNotice</name>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::ItemCard</name>
    <message>
        <source>Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::TransferRunner</name>
    <message>
        <source>Choose the folder to move %1 to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the folder to copy %1 to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Putting everything back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not everything could be put back.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::TransferWindow</name>
    <message>
        <source>Do the same for all the rest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Merge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was not done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go On With the Others</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Looking at %1 items</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to the disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a folder %1 in %2 already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a file %1 in %2 already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Already there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not everything can be done.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Put actions into your file manager&apos;s right-click menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orvik Menu adds actions to the right-click menu of GNOME Files, Nemo, Caja, Thunar and Dolphin, for items inside folders that you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The control panel lets you:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pick the actions that show: open a terminal, create a text file, copy a path, send an item by mail and more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>choose the folders that count, and leave out single ones within them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>show the actions side by side or in one submenu, with icons or without</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>switch the companion that brings them into the file manager on and off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A change is in the next menu that you open, without restarting anything.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The actions that the menu shows, each with a switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All screens of the control panel in light colours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All screens of the control panel in dark colours</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NotSentAlert</name>
    <message>
        <source>One item in it cannot be packed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 items in it cannot be packed:</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk is full: there is too little room left in %1 to prepare it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It cannot be prepared in %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No mail program could be opened with it. Check which mail program is set as the default, then send it again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OpenNewFinderWindow</name>
    <message>
        <source>No window can be opened on %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file manager does not answer, so there may be no window on %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file manager was found to open a window on %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OpenSystemPreferences</name>
    <message>
        <source>No program for the settings of the desktop was found. Install the one of your desktop.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OpenTerminal</name>
    <message>
        <source>No terminal can be opened in %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No terminal was found. Install one, or choose one in the settings of the desktop.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Photos</name>
    <message>
        <source>cannot be read: what reads pictures could not be started; install Orvik Menu and libvips again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>takes too long to read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read: it is damaged, or needs more memory than a picture may take</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read: what reads pictures has failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read: this is no question</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is no picture of a kind that can be read here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be read: it is damaged or ends too early</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is too large: it has %1 × %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be shown: it takes too much time or memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be resized: its worker gave no answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be resized: this is no job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be resized: it is damaged or ends too early</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be resized: its format cannot be written here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be made that small</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be resized: it holds several pictures, and only one would be left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be saved: there is no room for it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProblemTool::ProblemWindow</name>
    <message>
        <source>What it said: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to repair in the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing in the settings explains it. They are as they were.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair Settings mends this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>That may not be why it stopped. Repair Settings mends the settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A copy of the settings as they are now is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings of Orvik Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orvik Menu had to stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings could not be repaired: they cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings could not be repaired: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orvik Menu could not be started.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orvik Menu is still ending. It opens again right after.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Repair</name>
    <message>
        <source>The list of folders is no list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is no list is removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 entry of the list of folders is no path.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 entries of the list of folders are no paths.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is no path is removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list that says which folders are active does not match the list of folders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A folder without an entry of its own becomes active.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The older list of menu items is no list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The older list of menu items has entries that are no numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A menu item without a number is switched on.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResizePhotos</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be saved: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stays as it is, since it cannot be moved to the trash: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is in the trash, but the smaller one could not take its place: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 takes too long to resize.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be resized: it takes too much memory, or is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be resized: the part that reads pictures does not start. Install the package libvips42.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 stays as it is: another program has changed it meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SendViaMail</name>
    <message>
        <source>%1 cannot be sent: its name or that of a folder above it has characters that are no text. Rename it and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be sent: the settings of Orvik Menu cannot be written. Is the disk full?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SetAsWallpaper</name>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The desktop did not take %1 as its wallpaper.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be set as the wallpaper: Orvik Menu does not know how this desktop sets it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShowcaseCatalogue</name>
    <message>
        <source>Photo &amp; Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn hundreds of small photos into one large picture that stays sharp however close you look.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim, join and turn your video clips without losing quality or waiting for an export.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warm or cool the light of a whole photo shoot at once, and compare it with the original as you go.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record your screen, your voice and your camera together, ready to share the moment you stop.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick any colour on your screen and keep your palettes in one place, ready to paste into your work.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lifestyle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep well at your desk with gentle reminders to drink, to stretch and to look into the distance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find any file as you type, even inside archives and on disks that are not plugged in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collect notes, lists and clippings in a notebook that is always one keystroke away.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See every calendar and every deadline on one timeline, and move your plans until the week fits.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See at a glance what fills your disk, and clear away duplicates, leftovers and old downloads.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Business</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write an invoice in a minute, send it as a PDF, and always know who has yet to pay.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename thousands of files at once by rules that you can read, with a preview of every new name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep an eye on processor, memory and network with a small, quiet meter in the menu bar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep everything that you copy, and paste any of it again by typing a few of its letters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock your private folders with strong encryption, and open them again with a single password.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dim everything but the window you work in, so that your attention stays where it belongs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work in focused stretches with a break after each, and see at the end of the week where the hours went.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SizeRow</name>
    <message>
        <source>Longest side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Each file at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> kB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All together at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For a screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For mail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Half</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>1 byte</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TagView</name>
    <message>
        <source>Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Author</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISO</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind of file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Different values</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it can only be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not known why</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Moving %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was copied to %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 items were moved to %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 items were copied to %2.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 items were moved to %3.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 items were copied to %3.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing can be put into %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough room on the disk of %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is in this folder already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be moved into itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be copied into itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name %1 is too long for the disk that it is to go to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is too large for the disk that it is to go to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be taken away from where it is. It can be copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a device, which cannot be copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 kept changing while it was copied. Try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be moved: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be copied: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has changed meanwhile, or a part of it could not be copied. What was not moved is still where it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was copied, but not all of it could be removed from where it was: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be put back, since it is not where it was put.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be put back: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be put into the trash: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>There were %1 more like these.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TroubleWords</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ExifTool does not say why</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was not done any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It cannot be opened: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It cannot be saved: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The original cannot be kept beside it: %1. Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program ExifTool is missing. Install the package libimage-exiftool-perl.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading it takes too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It says more than can be shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ExifTool failed on it. The file may be damaged, or too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It cannot be changed: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another program has changed it meanwhile. Look at it again and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files of this kind, or damaged ones, are not changed, since it cannot be checked that the picture stays the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture would not have stayed the same. Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It does not hold all that was to be written. Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has no date that could be moved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its orientation is part of the picture and cannot be changed here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UtilityKitWindow</name>
    <message>
        <source>More from Orvik Studio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit Orvik Menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewController</name>
    <message>
        <source>Choose the actions that show when you right-click an item in your folders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no menu items.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not in a folder that Orvik Menu works in. Add the folder in its settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or another item is not in a folder that Orvik Menu works in. Add the folder in its settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There were %1 more like these.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>aboutVc</name>
    <message>
        <source>Orvik Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actions for your file manager’s menu, in the folders that you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Web Site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Twitter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Facebook</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rate Orvik Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>collectionView_cell</name>
    <message>
        <source>Open in App Store</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>customFoldersVc</name>
    <message>
        <source>Folders that you set up from the file manager’s menu, for example as places to move or copy items to. Delete those that you no longer use.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No custom folders. They appear here once you add them from the file manager.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>firstRunvc</name>
    <message>
        <source>Welcome to Orvik Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two steps, in either order, and Orvik Menu is ready.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch on the extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Extensions and switch on “Orvik Menu Extension”. This step is done as soon as the extension runs.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Extensions…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose your folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The actions show on items inside these folders. You can change them later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose &amp;Folders…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You have succeessfully enabled Orvik Menu and can see the Orvik Menu items in the Context Menu on right click for selected folders. You can change these settings in the app anytime.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>foldersArrvc</name>
    <message>
        <source>Orvik Menu shows its actions on items inside these folders. Clear a checkbox to leave a folder out for now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folders yet. Add the first one below.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the selected folder (Delete)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove selected folder?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to remove the selected folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some of the folders can not be added because they are already added to the Folders list.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>genraltabvc</name>
    <message>
        <source>Extension</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for the extension…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Extensions…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show an &amp;icon beside each menu item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group the menu items in a &amp;submenu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orvik Menu Extension is enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable &quot;Orvik Menu Extension&quot; in System Preferences &gt; Extensions to make Orvik Menu work.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>mainStartWindow</name>
    <message>
        <source>Orvik Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Orvik Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Orvik Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit Orvik Menu</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tabviewcontroller</name>
    <message>
        <source>Menu Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom Folders</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tblcell</name>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>utilityKitvc</name>
    <message>
        <source>Other apps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Apps we think you may Love:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
