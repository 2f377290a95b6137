<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Action</name>
    <message>
        <source>The control panel of Orvik Menu could not be started. Install Orvik Menu again.</source>
        <translation>无法启动 Orvik Menu 的控制面板。请重新安装 Orvik Menu。</translation>
    </message>
    <message>
        <source>%1 cannot be found: %2.</source>
        <translation>找不到%1：%2。</translation>
    </message>
    <message>
        <source>Orvik Menu was asked for something in a way that it does not understand.</source>
        <translation>Orvik Menu 收到了无法识别的请求。</translation>
    </message>
    <message>
        <source>The settings of Orvik Menu cannot be read.</source>
        <translation>无法读取 Orvik Menu 的设置。</translation>
    </message>
    <message>
        <source>This cannot be done with what is selected.</source>
        <translation>无法对所选内容执行此操作。</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>没有可用于显示窗口的屏幕。</translation>
    </message>
</context>
<context>
    <name>AddFolders</name>
    <message>
        <source>%1 cannot be added: its name or that of a folder above it has characters that are no text. Rename it and try again.</source>
        <translation>无法添加%1：它或其上级文件夹的名称中含有无法识别为文本的字符。请重命名后重试。</translation>
    </message>
    <message>
        <source>The folders cannot be added: the settings of Orvik Menu cannot be written. Is the disk full?</source>
        <translation>无法添加文件夹：无法写入 Orvik Menu 的设置。磁盘是否已满？</translation>
    </message>
</context>
<context>
    <name>AttachToMail</name>
    <message>
        <source>Please select the file that you want to send via email to allow sending</source>
        <translation>请选择要通过电子邮件发送的文件，以允许发送</translation>
    </message>
    <message>
        <source>Attach to Mail</source>
        <translation>附加到邮件</translation>
    </message>
</context>
<context>
    <name>Attachments</name>
    <message>
        <source>it is not a file</source>
        <translation>它不是文件</translation>
    </message>
    <message>
        <source>it became shorter</source>
        <translation>其内容在此期间变短了</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation>无法删除 %1：%2。</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>It ended before it was done.</source>
        <translation>操作尚未完成就已终止。</translation>
    </message>
    <message>
        <source>The program that does this cannot be started.</source>
        <translation>无法启动执行此操作的程序。</translation>
    </message>
    <message>
        <source>Too much is asked for at once.</source>
        <translation>同时请求的操作过多。</translation>
    </message>
    <message>
        <source>Orvik Menu has no action of that name.</source>
        <translation>Orvik Menu 没有使用该名称的操作。</translation>
    </message>
    <message>
        <source>Only the file manager itself can do this.</source>
        <translation>此操作只能由文件管理器自身执行。</translation>
    </message>
    <message>
        <source>This action is switched off in the settings of Orvik Menu.</source>
        <translation>此操作已在 Orvik Menu 的设置中关闭。</translation>
    </message>
</context>
<context>
    <name>CreateNewTextFile</name>
    <message>
        <source>New Text File</source>
        <translation>新建文本文件</translation>
    </message>
    <message>
        <source>No file can be made in %1: %2.</source>
        <translation>无法在%1中创建文件：%2。</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>File Manager Menu Settings</source>
        <translation>文件管理器菜单设置</translation>
    </message>
    <message>
        <source>Choose the actions that your file manager&apos;s menu shows, and where</source>
        <translation>选择文件管理器菜单中显示哪些操作，以及在哪些文件夹中显示</translation>
    </message>
    <message>
        <source>context;menu;right-click;file manager;actions;folders;</source>
        <translation>context;menu;上下文;菜单;右键;右键菜单;文件管理器;操作;文件夹;</translation>
    </message>
    <message>
        <source>Extensions</source>
        <translation>扩展</translation>
    </message>
    <message>
        <source>Switch the extensions of Orvik Menu on and off</source>
        <translation>开启或关闭 Orvik Menu 的扩展</translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message>
        <source>is not there any more</source>
        <translation>已不存在</translation>
    </message>
    <message>
        <source>has changed since it was found</source>
        <translation>在被找到之后发生了更改</translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation>正被其他程序使用</translation>
    </message>
    <message>
        <source>is the last copy that is left</source>
        <translation>是仅剩的最后一份</translation>
    </message>
    <message>
        <source>has a copy that another program is using</source>
        <translation>的副本正被其他程序使用</translation>
    </message>
    <message>
        <source>was not reached</source>
        <translation>尚未处理</translation>
    </message>
    <message>
        <source>cannot be compared with its copy: %1</source>
        <translation>无法与其副本进行比较：%1</translation>
    </message>
    <message>
        <source>is not the same as its copy</source>
        <translation>与其副本不相同</translation>
    </message>
    <message>
        <source>was not compared to its end</source>
        <translation>未能比较到末尾</translation>
    </message>
    <message>
        <source>changed while it was read</source>
        <translation>在读取过程中发生了更改</translation>
    </message>
    <message>
        <source>is a link, and those are not followed</source>
        <translation>是链接，链接不会被跟踪</translation>
    </message>
    <message>
        <source>is neither a file nor a folder</source>
        <translation>既不是文件也不是文件夹</translation>
    </message>
    <message>
        <source>could not be moved to the trash: %1</source>
        <translation>无法移动到回收站：%1</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>是空的</translation>
    </message>
    <message>
        <source>is no picture, though it is named like one</source>
        <translation>名称像图片，但并不是图片</translation>
    </message>
    <message>
        <source>has changed while it was read</source>
        <translation>在读取过程中发生了更改</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>may be the same file as its copy, in two places</source>
        <translation>可能与其副本是同一个文件，只是位于两处</translation>
    </message>
</context>
<context>
    <name>EditForm</name>
    <message>
        <source>As it is stored</source>
        <translation>按存储的方向</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>上下颠倒</translation>
    </message>
    <message>
        <source>Upside down and mirrored</source>
        <translation>上下颠倒并镜像</translation>
    </message>
    <message>
        <source>Turned left and mirrored</source>
        <translation>向左旋转并镜像</translation>
    </message>
    <message>
        <source>Turned right</source>
        <translation>向右旋转</translation>
    </message>
    <message>
        <source>Turned right and mirrored</source>
        <translation>向右旋转并镜像</translation>
    </message>
    <message>
        <source>Turned left</source>
        <translation>向左旋转</translation>
    </message>
</context>
<context>
    <name>Extension</name>
    <message>
        <source>Orvik Menu Extension</source>
        <translation>Orvik Menu 扩展</translation>
    </message>
    <message>
        <source>Adds Orvik Menu&apos;s actions to the file manager&apos;s right-click menu.</source>
        <translation>将 Orvik Menu 的操作添加到文件管理器的右键菜单。</translation>
    </message>
</context>
<context>
    <name>ExtensionStatus</name>
    <message>
        <source>There is no session bus, so it can neither run nor be switched.</source>
        <translation>没有会话总线，因此扩展无法运行，也无法开启或关闭。</translation>
    </message>
    <message>
        <source>It is set to start at log-in.</source>
        <translation>已设为登录时启动。</translation>
    </message>
    <message>
        <source>It is running, but it is not set to start at log-in.</source>
        <translation>正在运行，但未设为登录时启动。</translation>
    </message>
    <message>
        <source>It is set to start at log-in, but it is not running.</source>
        <translation>已设为登录时启动，但当前未运行。</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>正在启动…</translation>
    </message>
    <message>
        <source>Ending…</source>
        <translation>正在停止…</translation>
    </message>
    <message>
        <source>It is running, and it starts at log-in.</source>
        <translation>正在运行，并会在登录时启动。</translation>
    </message>
    <message>
        <source>It is switched off.</source>
        <translation>已关闭。</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::ExtensionControl</name>
    <message>
        <source>It could not be asked to end: %1.</source>
        <translation>无法请求其停止：%1。</translation>
    </message>
    <message>
        <source>The program %1 is missing.</source>
        <translation>缺少程序 %1。</translation>
    </message>
    <message>
        <source>Could not start %1.</source>
        <translation>无法启动 %1。</translation>
    </message>
    <message>
        <source>It was started, but it does not answer.</source>
        <translation>已启动，但没有响应。</translation>
    </message>
    <message>
        <source>It was asked to end, but it does not.</source>
        <translation>已请求其停止，但它仍在运行。</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::ExtensionsWindow</name>
    <message>
        <source>Extensions</source>
        <translation>扩展</translation>
    </message>
    <message>
        <source>Extensions bring Orvik Menu into other programs.</source>
        <translation>扩展可将 Orvik Menu 集成到其他程序中。</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagerRow</name>
    <message>
        <source>Restart</source>
        <translation>重新启动</translation>
    </message>
    <message>
        <source>Restart %1</source>
        <translation>重新启动 %1</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagerSection</name>
    <message>
        <source>File managers on this computer:</source>
        <translation>此计算机上的文件管理器：</translation>
    </message>
    <message>
        <source>No file manager that can show the menu is installed.</source>
        <translation>没有安装能够显示此菜单的文件管理器。</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagersControl</name>
    <message>
        <source>It could not be asked to close.</source>
        <translation>无法请求其关闭。</translation>
    </message>
    <message>
        <source>It was asked to close, but it is still running.</source>
        <translation>已请求其关闭，但它仍在运行。</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::LackingActionsSection</name>
    <message>
        <source>Actions that are in no menu:</source>
        <translation>不在任何菜单中的操作：</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::StatusLine</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>FileManagerStatus</name>
    <message>
        <source>Close it and open it again.</source>
        <translation>请将其关闭后重新打开。</translation>
    </message>
    <message>
        <source>Restarting it closes its windows and stops any copying.</source>
        <translation>重新启动会关闭它的窗口，并中断正在进行的复制。</translation>
    </message>
    <message>
        <source>Closing…</source>
        <translation>正在关闭…</translation>
    </message>
    <message>
        <source>It is not installed.</source>
        <translation>未安装。</translation>
    </message>
    <message>
        <source>The menu is missing. Install the package %1.</source>
        <translation>缺少菜单。请安装软件包 %1。</translation>
    </message>
    <message>
        <source>It is not running. It loads the menu when it starts.</source>
        <translation>未运行。它会在启动时加载菜单。</translation>
    </message>
    <message>
        <source>It loads the menu when it needs it.</source>
        <translation>它会在需要时加载菜单。</translation>
    </message>
    <message>
        <source>It has loaded the menu.</source>
        <translation>已加载菜单。</translation>
    </message>
    <message>
        <source>It is running without the menu.</source>
        <translation>正在运行，但没有加载菜单。</translation>
    </message>
    <message>
        <source>It has loaded an older version of the menu.</source>
        <translation>已加载旧版本的菜单。</translation>
    </message>
    <message>
        <source>It is running. Whether it has loaded the menu is not known.</source>
        <translation>正在运行。无法确定是否已加载菜单。</translation>
    </message>
</context>
<context>
    <name>FindDuplicateFiles</name>
    <message>
        <source>Duplicate Files</source>
        <translation>重复文件</translation>
    </message>
    <message>
        <source>No two files hold the same.</source>
        <translation>没有内容相同的文件。</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 个文件</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 个文件</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FindDuplicatePhotos</name>
    <message>
        <source>Most pixels</source>
        <translation>像素最多</translation>
    </message>
    <message>
        <source>Most pixels, larger file</source>
        <translation>像素最多，文件更大</translation>
    </message>
    <message>
        <source>Oldest of the same size</source>
        <translation>大小相同，时间最早</translation>
    </message>
    <message>
        <source>As good as another</source>
        <translation>与另一张同样好</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Duplicate Photos</source>
        <translation>重复照片</translation>
    </message>
    <message>
        <source>No two photos show the same.</source>
        <translation>没有内容相同的照片。</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 张照片</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>Keep the Best Photo</source>
        <translation>保留最佳照片</translation>
    </message>
</context>
<context>
    <name>FolderPanel</name>
    <message>
        <source>Grant Access</source>
        <translation>授予访问权限</translation>
    </message>
</context>
<context>
    <name>HideUnhideItem</name>
    <message>
        <source>What is hidden in %1 cannot be changed: %2.</source>
        <translation>无法更改%1中的隐藏项目：%2。</translation>
    </message>
    <message>
        <source>%1 cannot be hidden, since its name has a line end. Rename it and try again.</source>
        <translation>无法隐藏%1，因为其名称中含有换行符。请重命名后重试。</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: its name has dots alone.</source>
        <translation>无法取消隐藏%1：其名称中只有点号。</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: it is the list of what is hidden.</source>
        <translation>无法取消隐藏%1：它是隐藏项目的列表。</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: there is a %2 already. Rename one of the two.</source>
        <translation>无法取消隐藏%1：%2已存在。请重命名其中之一。</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: %2.</source>
        <translation>无法取消隐藏%1：%2。</translation>
    </message>
    <message>
        <source>What is hidden in %1 cannot be changed, since another program is changing it. Try again.</source>
        <translation>无法更改%1中的隐藏项目，因为另一个程序正在更改它。请重试。</translation>
    </message>
    <message>
        <source>The list of what is hidden in %1, a file named .hidden, cannot be read: %2.</source>
        <translation>无法读取%1中的隐藏项目列表（名为 .hidden 的文件）：%2。</translation>
    </message>
</context>
<context>
    <name>LackingActions</name>
    <message>
        <source>Needs the package %1, which is not installed.</source>
        <translation>需要软件包 %1，但尚未安装。</translation>
    </message>
    <message>
        <source>Needs the packages %1, which are not installed.</source>
        <translation>需要软件包 %1，但尚未安装。</translation>
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
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::DroppedFolders</name>
    <message>
        <source>“%1” cannot be found.</source>
        <translation>找不到“%1”。</translation>
    </message>
    <message>
        <source>“%1” cannot be added: %2.</source>
        <translation>无法添加“%1”：%2。</translation>
    </message>
    <message>
        <source>“%1” cannot be added: it is not a folder.</source>
        <translation>无法添加“%1”：它不是文件夹。</translation>
    </message>
    <message>
        <source>“%1” cannot be added: it is not a folder of this computer.</source>
        <translation>无法添加“%1”：它不是这台计算机上的文件夹。</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FileChooserDialog</name>
    <message>
        <source>Up</source>
        <translation>上级文件夹</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>主目录</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>常用位置</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>“%1” is no longer there.</source>
        <translation>“%1”已不存在。</translation>
    </message>
    <message>
        <source>“%1” cannot be found.</source>
        <translation>找不到“%1”。</translation>
    </message>
    <message>
        <source>Nothing is selected. To choose “%1” itself, press the button “%2”.</source>
        <translation>未选择任何内容。要选择“%1”本身，请按“%2”按钮。</translation>
    </message>
    <message>
        <source>its path is too long</source>
        <translation>路径过长</translation>
    </message>
    <message>
        <source>“%1” cannot be chosen: %2.</source>
        <translation>无法选择“%1”：%2。</translation>
    </message>
    <message>
        <source>“%1” cannot be chosen.</source>
        <translation>无法选择“%1”。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>Waiting for “%1” to answer…</source>
        <translation>正在等待“%1”响应…</translation>
    </message>
    <message>
        <source>Hidden files are not shown.</source>
        <translation>不显示隐藏文件。</translation>
    </message>
    <message>
        <source>Hidden files are shown.</source>
        <translation>显示隐藏文件。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Copy Location</source>
        <translation>复制位置</translation>
    </message>
    <message>
        <source>New Folder…</source>
        <translation>新建文件夹…</translation>
    </message>
    <message>
        <source>Show Hidden Files</source>
        <translation>显示隐藏文件</translation>
    </message>
    <message>
        <source>“%1” is a file. Only folders can be chosen here.</source>
        <translation>“%1”是文件。此处只能选择文件夹。</translation>
    </message>
    <message>
        <source>“%1” leads to something that is not there.</source>
        <translation>“%1”指向不存在的内容。</translation>
    </message>
    <message>
        <source>“%1” does not answer. It may be on a network share that is gone.</source>
        <translation>“%1”没有响应。它可能位于已断开的网络共享上。</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FileList</name>
    <message>
        <source>This folder is empty.</source>
        <translation>此文件夹是空的。</translation>
    </message>
    <message>
        <source>You do not have permission to see what is in this folder.</source>
        <translation>您没有查看此文件夹内容的权限。</translation>
    </message>
    <message>
        <source>This folder cannot be read: %1.</source>
        <translation>无法读取此文件夹：%1。</translation>
    </message>
    <message>
        <source>All that is in this folder is hidden. Ctrl+H shows it.</source>
        <translation>此文件夹中的内容都是隐藏的。按 Ctrl+H 可显示。</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FolderDrops</name>
    <message>
        <source>Some of what you dropped cannot be added.</source>
        <translation>您拖放的部分内容无法添加。</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>另有 %1 项。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FolderModel</name>
    <message>
        <source>Link to a folder</source>
        <translation>指向文件夹的链接</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Link to a file</source>
        <translation>指向文件的链接</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Link to something that is not there</source>
        <translation>失效的链接</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between a file&apos;s kind, size and date</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>未知</translation>
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
        <translation>菜单 (F10)</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::NewFolderDialog</name>
    <message>
        <source>New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>&amp;Name of the folder:</source>
        <translation>文件夹名称(&amp;N)：</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a folder.</source>
        <translation>“%1”不能用作文件夹名称。</translation>
    </message>
    <message>
        <source>“%1” is already there.</source>
        <translation>“%1”已存在。</translation>
    </message>
    <message>
        <source>“%1” cannot be made: %2.</source>
        <translation>无法创建“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::PlacesList</name>
    <message>
        <source>Desktop</source>
        <translation>桌面</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音乐</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>主目录</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>文件系统</translation>
    </message>
    <message>
        <source>%1 (last used)</source>
        <translation>%1（上次使用）</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::PreparingWindow</name>
    <message>
        <source>Preparing %1 for sending…</source>
        <translation>正在准备发送%1…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::RowList</name>
    <message>
        <source>Added: %1</source>
        <translation>已添加：%1</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::StepBadge</name>
    <message>
        <source>Step %1, done</source>
        <translation>第 %1 步，已完成</translation>
    </message>
    <message>
        <source>Step %1, to do</source>
        <translation>第 %1 步，待完成</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::TabPages</name>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>LinuxPlatform</name>
    <message>
        <source>“%1” cannot be used: its path has characters that cannot be stored as text. Rename the folder, then choose it again.</source>
        <translation>无法使用“%1”：其路径中含有无法以文本形式存储的字符。请重命名该文件夹，然后重新选择。</translation>
    </message>
</context>
<context>
    <name>MailText</name>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <translation>
            <numerusform>%1及其他 %2 项</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Choose Folder…</source>
        <translation>选择文件夹…</translation>
    </message>
    <message>
        <source>Asks for another folder</source>
        <translation>询问其他文件夹</translation>
    </message>
</context>
<context>
    <name>MenuCatalogue</name>
    <message>
        <source>Open Terminal</source>
        <translation>打开终端</translation>
    </message>
    <message>
        <source>Open System Preferences</source>
        <translation>打开系统设置</translation>
    </message>
    <message>
        <source>Set as Wallpaper</source>
        <translation>设为壁纸</translation>
    </message>
    <message>
        <source>Create New Text File</source>
        <translation>新建文本文件</translation>
    </message>
    <message>
        <source>Copy path to Clipboard</source>
        <translation>复制路径到剪贴板</translation>
    </message>
    <message>
        <source>Send via Mail</source>
        <translation>通过邮件发送</translation>
    </message>
    <message>
        <source>Move to a folder</source>
        <translation>移动到文件夹</translation>
    </message>
    <message>
        <source>Copy to a folder</source>
        <translation>复制到文件夹</translation>
    </message>
    <message>
        <source>Open New Finder Window</source>
        <translation>打开新的文件窗口</translation>
    </message>
    <message>
        <source>Hide / Unhide item</source>
        <translation>隐藏 / 取消隐藏项目</translation>
    </message>
    <message>
        <source>Find Duplicate Files</source>
        <translation>查找重复文件</translation>
    </message>
    <message>
        <source>Find Duplicate Photos</source>
        <translation>查找重复照片</translation>
    </message>
    <message>
        <source>View or Edit Exif Data</source>
        <translation>查看或编辑 Exif 数据</translation>
    </message>
    <message>
        <source>Resize Photos</source>
        <translation>调整照片大小</translation>
    </message>
    <message>
        <source>Configure Orvik Menu Settings</source>
        <translation>配置 Orvik Menu</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>添加文件夹</translation>
    </message>
</context>
<context>
    <name>MenuExtension::ChoicesRow</name>
    <message>
        <source>Hidden Files</source>
        <translation>隐藏文件</translation>
    </message>
    <message>
        <source>Empty Files</source>
        <translation>空文件</translation>
    </message>
    <message>
        <source>System Files</source>
        <translation>系统文件</translation>
    </message>
    <message>
        <source>In folders of the system, in the trash, and what file managers write for themselves</source>
        <translation>位于系统文件夹和回收站中的文件，以及文件管理器供自身使用的文件</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::DuplicatesWindow</name>
    <message>
        <source>One always stays. Keep another one before you choose this.</source>
        <translation>始终会保留一项。请先保留另一项，再选择此项。</translation>
    </message>
    <message>
        <source>Filter by name or folder</source>
        <translation>按名称或文件夹筛选</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Choose by Rule</source>
        <translation>按规则选择</translation>
    </message>
    <message>
        <source>Keep the Oldest</source>
        <translation>保留最旧的一项</translation>
    </message>
    <message>
        <source>Keep the Newest</source>
        <translation>保留最新的一项</translation>
    </message>
    <message>
        <source>Keep the One with the Shortest Path</source>
        <translation>保留路径最短的一项</translation>
    </message>
    <message>
        <source>Choose Nothing</source>
        <translation>取消全部选择</translation>
    </message>
    <message>
        <source>the Folder of the Item</source>
        <translation>该项目所在文件夹</translation>
    </message>
    <message>
        <source>Keep Those in %1</source>
        <translation>保留位于 %1 的项目</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Items of the Group</source>
        <translation>组内项目</translation>
    </message>
    <message>
        <source>Looking for duplicates</source>
        <translation>正在查找重复项</translation>
    </message>
    <message>
        <source>%1 looked at</source>
        <translation>已检查 %1</translation>
    </message>
    <message>
        <source>Moving to the trash</source>
        <translation>正在移动到回收站</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Moved to the trash: %1, %2</source>
        <translation>已移动到回收站：%1，%2</translation>
    </message>
    <message>
        <source>What is checked goes to the trash. One of a group always stays.</source>
        <translation>勾选的项目将移动到回收站。每组始终会保留一项。</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>移动到回收站</translation>
    </message>
    <message>
        <source>Move 1 Item to Trash</source>
        <translation>将 1 个项目移动到回收站</translation>
    </message>
    <message numerus="yes">
        <source>Move %1 Items to Trash</source>
        <translation>
            <numerusform>将 %1 个项目移动到回收站</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is chosen.</source>
        <translation>未选择任何项目。</translation>
    </message>
    <message>
        <source>Chosen: %1, %2</source>
        <translation>已选择：%1，%2</translation>
    </message>
    <message>
        <source>1 group, %1 could be saved</source>
        <translation>1 组，可节省 %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 groups, %2 could be saved</source>
        <translation>
            <numerusform>%1 组，可节省 %2</numerusform>
        </translation>
    </message>
    <message>
        <source>No group matches the filter</source>
        <translation>没有符合筛选条件的分组</translation>
    </message>
    <message>
        <source>Looking for duplicates…</source>
        <translation>正在查找重复项…</translation>
    </message>
    <message>
        <source>The search was stopped before anything was found.</source>
        <translation>搜索在找到任何结果之前已停止。</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <extracomment>A file&apos;s name, and why nothing was done with it: “/home/a/b is the last copy that is left.”</extracomment>
        <translation>%1 %2。</translation>
    </message>
    <message>
        <source>1 Item Was Left Out…</source>
        <translation>已略过 1 个项目…</translation>
    </message>
    <message numerus="yes">
        <source>%1 Items Were Left Out…</source>
        <translation>
            <numerusform>已略过 %1 个项目…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>And %1 more.</source>
        <translation>
            <numerusform>另有 %1 项。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::GroupListModel</name>
    <message>
        <source>%1, %2, %3 could be saved</source>
        <translation>%1，%2，可节省 %3</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1 of %2 each</source>
        <translation>%1，每个 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n to remove</source>
        <translation>
            <numerusform>%n 项待移除</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::ItemListModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>修改时间</translation>
    </message>
    <message>
        <source>Best Because</source>
        <translation>最佳理由</translation>
    </message>
    <message>
        <source>Not the best</source>
        <translation>不是最佳</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::PreviewPane</name>
    <message>
        <source>Preview of %1</source>
        <translation>%1 的预览</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::TroublesDialog</name>
    <message>
        <source>Left Out</source>
        <translation>已略过的项目</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::EditForm</name>
    <message>
        <source>Keep the original file beside it, with “_original” after its name</source>
        <translation>在旁边保留原始文件，名称后加“_original”</translation>
    </message>
    <message>
        <source>Keep the file&apos;s date of change</source>
        <translation>保留文件的修改日期</translation>
    </message>
    <message>
        <source>Remove Location and Personal Data…</source>
        <translation>移除位置和个人数据…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>版权</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>拍摄日期</translation>
    </message>
    <message>
        <source>Move date by days</source>
        <translation>按天调整日期</translation>
    </message>
    <message>
        <source> d</source>
        <translation> 天</translation>
    </message>
    <message>
        <source>Move date by hours</source>
        <translation>按小时调整日期</translation>
    </message>
    <message>
        <source> h</source>
        <translation> 小时</translation>
    </message>
    <message>
        <source>Move date by minutes</source>
        <translation>按分钟调整日期</translation>
    </message>
    <message>
        <source> min</source>
        <translation> 分钟</translation>
    </message>
    <message>
        <source>Move date by seconds</source>
        <translation>按秒调整日期</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Move date by</source>
        <translation>日期调整</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Remove Place</source>
        <translation>移除位置</translation>
    </message>
    <message>
        <source>Is removed when it is saved</source>
        <translation>保存时移除</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>值不同</translation>
    </message>
    <message>
        <source>2026-12-31 23:59:59</source>
        <translation>2026-12-31 23:59:59</translation>
    </message>
    <message>
        <source>None is stored</source>
        <translation>未存储</translation>
    </message>
    <message>
        <source>Stays as it is</source>
        <translation>保持不变</translation>
    </message>
    <message>
        <source>48.858370, 2.294481</source>
        <translation>48.858370, 2.294481</translation>
    </message>
    <message>
        <source>The date is to be written as 2026-12-31 23:59:59.</source>
        <translation>日期应写成 2026-12-31 23:59:59 的形式。</translation>
    </message>
    <message>
        <source>Write a new date or move the one that is there, not both.</source>
        <translation>请填写新日期或调整现有日期，不要同时进行。</translation>
    </message>
    <message>
        <source>The place is to be written as latitude and longitude in degrees: 48.858370, 2.294481.</source>
        <translation>位置应以度为单位写成纬度和经度：48.858370, 2.294481。</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>尚未作任何更改。</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::ExifWindow</name>
    <message>
        <source>Exif Data</source>
        <translation>Exif 数据</translation>
    </message>
    <message>
        <source>It was ended; the photos that were not saved yet are as they were.</source>
        <translation>操作已中止；尚未保存的照片保持原样。</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Photos that failed</source>
        <translation>处理失败的照片</translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>%n 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading photos</source>
        <translation>正在读取照片</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos</source>
        <translation>
            <numerusform>%1 / %2 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving photos</source>
        <translation>正在保存照片</translation>
    </message>
    <message>
        <source>1 photo was saved.</source>
        <translation>已保存 1 张照片。</translation>
    </message>
    <message numerus="yes">
        <source>%n photos were saved.</source>
        <translation>
            <numerusform>已保存 %n 张照片。</numerusform>
        </translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>%1 These were left as they were:</source>
        <extracomment>The first says how many photos were saved; the others follow as a list.</extracomment>
        <translation>%1以下照片保持原样：</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A photo&apos;s name, and what is wrong with it, which is a sentence.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Discard Changes</source>
        <translation>放弃更改</translation>
    </message>
    <message>
        <source>What was typed has not been saved and will be lost.</source>
        <translation>输入的内容尚未保存，将会丢失。</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Reading was cancelled. Choose photos to read them.</source>
        <translation>读取已取消。选择照片即可读取。</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::PersonalDataDialog</name>
    <message>
        <source>Where it was taken</source>
        <translation>拍摄地点</translation>
    </message>
    <message>
        <source>Who took it and who is in it</source>
        <translation>拍摄者和照片中的人物</translation>
    </message>
    <message>
        <source>Which camera it was</source>
        <translation>所用相机</translation>
    </message>
    <message>
        <source>What the camera&apos;s maker has noted</source>
        <translation>相机制造商的注记</translation>
    </message>
    <message>
        <source>Remove Location and Personal Data</source>
        <translation>移除位置和个人数据</translation>
    </message>
    <message>
        <source>What will be removed</source>
        <translation>将移除的内容</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>This is removed for good, unless the original is kept. Title, description, copyright and date stay.</source>
        <translation>除非保留原始文件，否则这些内容将被永久移除。标题、描述、版权和日期会保留。</translation>
    </message>
    <message>
        <source>The photos have no location and no personal data that is known here.</source>
        <translation>照片中没有可识别的位置和个人数据。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>A file holds more than the picture, such as a second one or a film, which stays and may hold such data too.</source>
        <translation>有文件除图片外还包含其他内容，例如另一张图片或一段视频；这些内容会保留，也可能含有此类数据。</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::TagView</name>
    <message>
        <source>Search names and values</source>
        <translation>搜索名称和值</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation>未找到任何内容。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>空</translation>
    </message>
    <message>
        <source>1 value</source>
        <translation>1 个值</translation>
    </message>
    <message numerus="yes">
        <source>%n values</source>
        <translation>
            <numerusform>%n 个值</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::ProgressRow</name>
    <message>
        <source>a few seconds left</source>
        <translation>剩余几秒</translation>
    </message>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation>
            <numerusform>剩余约 %n 秒</numerusform>
        </translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>剩余约 1 分钟</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation>
            <numerusform>剩余约 %n 分钟</numerusform>
        </translation>
    </message>
    <message>
        <source>about an hour left</source>
        <translation>剩余约 1 小时</translation>
    </message>
    <message numerus="yes">
        <source>about %n hours left</source>
        <translation>
            <numerusform>剩余约 %n 小时</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>调整前</translation>
    </message>
    <message>
        <source>After</source>
        <translation>调整后</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3</source>
        <translation>%1 × %2 像素 · %3</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>正在计算…</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3 · small enough already</source>
        <translation>%1 × %2 像素 · %3 · 已经足够小</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3 · %4 %</source>
        <extracomment>The last is how many bytes are left of hundred.</extracomment>
        <translation>%1 × %2 像素 · %3 · %4%</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::ResizeWindow</name>
    <message>
        <source>Resize Photos</source>
        <translation>调整照片大小</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>调整大小</translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>%n 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Photos that failed</source>
        <translation>处理失败的照片</translation>
    </message>
    <message>
        <source>Resizing photos</source>
        <translation>正在调整照片大小</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos</source>
        <translation>
            <numerusform>%1 / %2 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>It was ended.</source>
        <translation>操作已中止。</translation>
    </message>
    <message>
        <source>1 photo was resized: %1 became %2.</source>
        <translation>已调整 1 张照片的大小：由 %1 变为 %2。</translation>
    </message>
    <message numerus="yes">
        <source>%n photos were resized: %1 became %2.</source>
        <translation>
            <numerusform>已调整 %n 张照片的大小：由 %1 变为 %2。</numerusform>
        </translation>
    </message>
    <message>
        <source>1 is small enough already.</source>
        <translation>有 1 张已经足够小。</translation>
    </message>
    <message numerus="yes">
        <source>%n are small enough already.</source>
        <translation>
            <numerusform>有 %n 张已经足够小。</numerusform>
        </translation>
    </message>
    <message>
        <source>These were left as they are:</source>
        <translation>以下照片保持原样：</translation>
    </message>
    <message>
        <source>Photos that failed:</source>
        <translation>处理失败的照片：</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::SizeRow</name>
    <message>
        <source>Free</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>What the size is measured by</source>
        <translation>大小的衡量方式</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::TargetRows</name>
    <message>
        <source>Choose Folder…</source>
        <translation>选择文件夹…</translation>
    </message>
    <message>
        <source>Beside the originals</source>
        <translation>放在原始文件旁边</translation>
    </message>
    <message>
        <source>In a folder</source>
        <translation>放在文件夹中</translation>
    </message>
    <message>
        <source>In their place; the originals go to the trash</source>
        <translation>替换原始文件；原始文件移动到回收站</translation>
    </message>
    <message>
        <source>None is chosen yet</source>
        <translation>尚未选择</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>{name} is the photo&apos;s own name, {width} and {height} are its new size in pixels.</source>
        <translation>{name} 是照片本身的名称，{width} 和 {height} 是以像素为单位的新尺寸。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存方式</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>This is no name yet</source>
        <translation>名称尚不完整</translation>
    </message>
    <message>
        <source>Choose the folder that the resized photos go to.</source>
        <translation>请选择用于存放调整后照片的文件夹。</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Choose the folder first.</source>
        <translation>请先选择文件夹。</translation>
    </message>
    <message>
        <source>The name needs {name} in it, which is the photo&apos;s own name, and no slash.</source>
        <translation>名称中必须包含 {name}（即照片本身的名称），且不能包含斜杠。</translation>
    </message>
</context>
<context>
    <name>MenuExtension::SimilarPhotos::SimilarityRow</name>
    <message>
        <source>Similarity</source>
        <translation>相似度</translation>
    </message>
    <message>
        <source>How much alike photos have to be to count as duplicates</source>
        <translation>照片相似到何种程度才视为重复</translation>
    </message>
    <message>
        <source>Alike</source>
        <translation>相似</translation>
    </message>
    <message>
        <source>The Same</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::DoneNotice</name>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::ItemCard</name>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::TransferRunner</name>
    <message>
        <source>Choose the folder to move %1 to.</source>
        <translation>请选择移动的目标文件夹（%1）。</translation>
    </message>
    <message>
        <source>Choose the folder to copy %1 to.</source>
        <translation>请选择复制的目标文件夹（%1）。</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移动</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>未移动任何内容。</translation>
    </message>
    <message>
        <source>Nothing was copied.</source>
        <translation>未复制任何内容。</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>已移动</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Putting everything back</source>
        <translation>正在全部放回原处</translation>
    </message>
    <message>
        <source>Not everything could be put back.</source>
        <translation>部分项目无法放回原处。</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::TransferWindow</name>
    <message>
        <source>Do the same for all the rest</source>
        <translation>对其余项目执行相同操作</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>保留两者</translation>
    </message>
    <message>
        <source>What was not done</source>
        <translation>未完成的操作</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Go On With the Others</source>
        <translation>继续处理其他项目</translation>
    </message>
    <message numerus="yes">
        <source>Looking at %1 items</source>
        <translation>
            <numerusform>正在检查 %1 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to the disk</source>
        <translation>正在写入磁盘</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 · %2 of %3</source>
        <translation>%1 · %2 / %3</translation>
    </message>
    <message>
        <source>There is a folder %1 in %2 already.</source>
        <translation>%2中已有文件夹%1。</translation>
    </message>
    <message>
        <source>There is a file %1 in %2 already.</source>
        <translation>%2中已有文件%1。</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新项目</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>已有项目</translation>
    </message>
    <message>
        <source>Not everything can be done.</source>
        <translation>部分操作无法完成。</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Put actions into your file manager&apos;s right-click menu</source>
        <translation>在文件管理器的右键菜单中添加操作</translation>
    </message>
    <message>
        <source>Orvik Menu adds actions to the right-click menu of GNOME Files, Nemo, Caja, Thunar and Dolphin, for items inside folders that you choose.</source>
        <translation>Orvik Menu 为您所选文件夹中的项目，在 GNOME 文件、Nemo、Caja、Thunar 和 Dolphin 的右键菜单中添加操作。</translation>
    </message>
    <message>
        <source>The control panel lets you:</source>
        <translation>控制面板可让您：</translation>
    </message>
    <message>
        <source>pick the actions that show: open a terminal, create a text file, copy a path, send an item by mail and more</source>
        <translation>挑选要显示的操作：打开终端、新建文本文件、复制路径、通过邮件发送项目等</translation>
    </message>
    <message>
        <source>choose the folders that count, and leave out single ones within them</source>
        <translation>选择适用的文件夹，并可排除其中的个别文件夹</translation>
    </message>
    <message>
        <source>show the actions side by side or in one submenu, with icons or without</source>
        <translation>将操作并列显示或放入一个子菜单，带图标或不带图标</translation>
    </message>
    <message>
        <source>switch the companion that brings them into the file manager on and off</source>
        <translation>开启或关闭将这些操作带入文件管理器的伴随程序</translation>
    </message>
    <message>
        <source>A change is in the next menu that you open, without restarting anything.</source>
        <translation>更改会在您下次打开菜单时生效，无需重新启动任何程序。</translation>
    </message>
    <message>
        <source>The actions that the menu shows, each with a switch</source>
        <translation>菜单显示的操作，每项都有一个开关</translation>
    </message>
    <message>
        <source>All screens of the control panel in light colours</source>
        <translation>控制面板的所有界面（浅色）</translation>
    </message>
    <message>
        <source>All screens of the control panel in dark colours</source>
        <translation>控制面板的所有界面（深色）</translation>
    </message>
</context>
<context>
    <name>ModifiedText</name>
    <message>
        <source>Today %1</source>
        <translation>今天 %1</translation>
    </message>
    <message>
        <source>Yesterday %1</source>
        <translation>昨天 %1</translation>
    </message>
</context>
<context>
    <name>NotSentAlert</name>
    <message>
        <source>One item in it cannot be packed:</source>
        <translation>其中有 1 个项目无法打包：</translation>
    </message>
    <message numerus="yes">
        <source>%1 items in it cannot be packed:</source>
        <translation>
            <numerusform>其中有 %1 个项目无法打包：</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>以及其他 %1 项</numerusform>
        </translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>The disk is full: there is too little room left in %1 to prepare it.</source>
        <translation>磁盘已满：%1中的剩余空间不足，无法准备发送。</translation>
    </message>
    <message>
        <source>It cannot be prepared in %1: %2</source>
        <translation>无法在%1中准备发送：%2</translation>
    </message>
    <message>
        <source>%1 was not sent.</source>
        <translation>%1未发送。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>No mail program could be opened with it. Check which mail program is set as the default, then send it again.</source>
        <translation>无法打开邮件程序来发送。请检查设为默认的邮件程序，然后重新发送。</translation>
    </message>
</context>
<context>
    <name>OpenNewFinderWindow</name>
    <message>
        <source>No window can be opened on %1: %2.</source>
        <translation>无法为%1打开窗口：%2。</translation>
    </message>
    <message>
        <source>The file manager does not answer, so there may be no window on %1.</source>
        <translation>文件管理器没有响应，因此可能不会打开%1的窗口。</translation>
    </message>
    <message>
        <source>No file manager was found to open a window on %1.</source>
        <translation>找不到可为%1打开窗口的文件管理器。</translation>
    </message>
</context>
<context>
    <name>OpenSystemPreferences</name>
    <message>
        <source>No program for the settings of the desktop was found. Install the one of your desktop.</source>
        <translation>找不到桌面的设置程序。请安装您所用桌面环境的设置程序。</translation>
    </message>
</context>
<context>
    <name>OpenTerminal</name>
    <message>
        <source>No terminal can be opened in %1: %2.</source>
        <translation>无法在%1中打开终端：%2。</translation>
    </message>
    <message>
        <source>No terminal was found. Install one, or choose one in the settings of the desktop.</source>
        <translation>找不到终端。请安装一个终端，或在桌面设置中选择一个。</translation>
    </message>
</context>
<context>
    <name>Photos</name>
    <message>
        <source>cannot be read: what reads pictures could not be started; install Orvik Menu and libvips again</source>
        <translation>无法读取：图片读取程序无法启动；请重新安装 Orvik Menu 和 libvips</translation>
    </message>
    <message>
        <source>takes too long to read</source>
        <translation>读取时间过长</translation>
    </message>
    <message>
        <source>cannot be read: it is damaged, or needs more memory than a picture may take</source>
        <translation>无法读取：文件已损坏，或所需内存超出单张图片的上限</translation>
    </message>
    <message>
        <source>cannot be read: what reads pictures has failed</source>
        <translation>无法读取：图片读取程序出错</translation>
    </message>
    <message>
        <source>cannot be read: this is no question</source>
        <translation>无法读取：请求无效</translation>
    </message>
    <message>
        <source>holds several pictures, and only one would be compared</source>
        <translation>包含多张图片，只会比较其中一张</translation>
    </message>
    <message>
        <source>is no picture of a kind that can be read here</source>
        <translation>不是受支持的图片类型</translation>
    </message>
    <message>
        <source>cannot be read: it is damaged or ends too early</source>
        <translation>无法读取：文件已损坏或不完整</translation>
    </message>
    <message>
        <source>is too large: it has %1 × %2 pixels</source>
        <translation>尺寸过大：%1 × %2 像素</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>无法打开</translation>
    </message>
    <message>
        <source>cannot be shown: it takes too much time or memory</source>
        <translation>无法显示：需要的时间或内存过多</translation>
    </message>
    <message>
        <source>cannot be resized: its worker gave no answer</source>
        <translation>无法调整大小：工作进程没有响应</translation>
    </message>
    <message>
        <source>cannot be resized: this is no job</source>
        <translation>无法调整大小：任务无效</translation>
    </message>
    <message>
        <source>cannot be resized: it is damaged or ends too early</source>
        <translation>无法调整大小：文件已损坏或不完整</translation>
    </message>
    <message>
        <source>cannot be resized: its format cannot be written here</source>
        <translation>无法调整大小：不支持写入此格式</translation>
    </message>
    <message>
        <source>cannot be made that small</source>
        <translation>无法缩小到该大小</translation>
    </message>
    <message>
        <source>cannot be resized: it holds several pictures, and only one would be left</source>
        <translation>无法调整大小：其中包含多张图片，调整后只会剩下一张</translation>
    </message>
    <message>
        <source>cannot be saved: there is no room for it</source>
        <translation>无法保存：空间不足</translation>
    </message>
    <message>
        <source>cannot be resized: without ExifTool it would lose its Exif data</source>
        <translation>无法调整大小：没有 ExifTool 会丢失其 Exif 数据</translation>
    </message>
    <message>
        <source>cannot be resized in its place: a second picture or a film in it would be lost</source>
        <translation>无法就地调整大小：其中的第二张图片或视频会丢失</translation>
    </message>
</context>
<context>
    <name>ProblemTool::ProblemWindow</name>
    <message>
        <source>What it said: %1</source>
        <translation>错误信息：%1</translation>
    </message>
    <message>
        <source>There is nothing to repair in the settings.</source>
        <translation>设置中没有需要修复的内容。</translation>
    </message>
    <message>
        <source>Nothing in the settings explains it. They are as they were.</source>
        <translation>设置中没有能说明原因的内容。设置保持原样。</translation>
    </message>
    <message>
        <source>Repair Settings mends this.</source>
        <translation>“修复设置”可以解决此问题。</translation>
    </message>
    <message>
        <source>That may not be why it stopped. Repair Settings mends the settings.</source>
        <translation>这可能不是程序停止的原因。“修复设置”可以修复设置。</translation>
    </message>
    <message>
        <source>A copy of the settings as they are now is kept.</source>
        <translation>将保留一份当前设置的副本。</translation>
    </message>
    <message>
        <source>The settings of Orvik Menu</source>
        <translation>Orvik Menu 的设置</translation>
    </message>
    <message>
        <source>Orvik Menu had to stop</source>
        <translation>Orvik Menu 不得不停止运行</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation>重新打开</translation>
    </message>
    <message>
        <source>Repair Settings</source>
        <translation>修复设置</translation>
    </message>
    <message>
        <source>The settings could not be repaired: they cannot be read.</source>
        <translation>无法修复设置：设置无法读取。</translation>
    </message>
    <message>
        <source>The settings could not be repaired: %1.</source>
        <translation>无法修复设置：%1。</translation>
    </message>
    <message>
        <source>Orvik Menu could not be started.</source>
        <translation>无法启动 Orvik Menu。</translation>
    </message>
    <message>
        <source>Orvik Menu is still ending. It opens again right after.</source>
        <translation>Orvik Menu 仍在退出，随后会立即重新打开。</translation>
    </message>
</context>
<context>
    <name>Repair</name>
    <message>
        <source>The list of folders is no list.</source>
        <translation>文件夹列表不是列表。</translation>
    </message>
    <message>
        <source>What is no list is removed.</source>
        <translation>不是列表的内容将被移除。</translation>
    </message>
    <message>
        <source>1 entry of the list of folders is no path.</source>
        <translation>文件夹列表中有 1 个条目不是路径。</translation>
    </message>
    <message>
        <source>%1 entries of the list of folders are no paths.</source>
        <translation>文件夹列表中有 %1 个条目不是路径。</translation>
    </message>
    <message>
        <source>What is no path is removed.</source>
        <translation>不是路径的内容将被移除。</translation>
    </message>
    <message>
        <source>The list that says which folders are active does not match the list of folders.</source>
        <translation>记录哪些文件夹已启用的列表与文件夹列表不一致。</translation>
    </message>
    <message>
        <source>A folder without an entry of its own becomes active.</source>
        <translation>没有对应条目的文件夹将被启用。</translation>
    </message>
    <message>
        <source>The older list of menu items is no list.</source>
        <translation>旧的菜单项列表不是列表。</translation>
    </message>
    <message>
        <source>The older list of menu items has entries that are no numbers.</source>
        <translation>旧的菜单项列表中有不是数字的条目。</translation>
    </message>
    <message>
        <source>A menu item without a number is switched on.</source>
        <translation>没有数字的菜单项将被开启。</translation>
    </message>
</context>
<context>
    <name>ResizePhotos</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>有链接指向 Orvik Menu 的工作文件夹之外</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <extracomment>A photo&apos;s name, and what is wrong with it: “Harbour.jpg cannot be resized: it is damaged.”</extracomment>
        <translation>%1 %2。</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2.</source>
        <translation>无法打开 %1：%2。</translation>
    </message>
    <message>
        <source>%1 cannot be saved: %2.</source>
        <translation>无法保存 %1：%2。</translation>
    </message>
    <message>
        <source>%1 stays as it is, since it cannot be moved to the trash: %2</source>
        <translation>%1 保持原样，因为无法将其移动到回收站：%2</translation>
    </message>
    <message>
        <source>%1 is in the trash, but the smaller one could not take its place: %2.</source>
        <translation>%1 已在回收站中，但缩小后的文件无法取代其位置：%2。</translation>
    </message>
    <message>
        <source>%1 takes too long to resize.</source>
        <translation>调整 %1 的大小用时过长。</translation>
    </message>
    <message>
        <source>%1 cannot be resized: it takes too much memory, or is damaged.</source>
        <translation>无法调整 %1 的大小：所需内存过多，或文件已损坏。</translation>
    </message>
    <message>
        <source>%1 cannot be resized: the part that reads pictures does not start. Install the package libvips42.</source>
        <translation>无法调整 %1 的大小：图片读取程序无法启动。请安装软件包 libvips42。</translation>
    </message>
    <message>
        <source>%1 stays as it is: another program has changed it meanwhile.</source>
        <translation>%1 保持原样：其间另一个程序更改了它。</translation>
    </message>
</context>
<context>
    <name>SendViaMail</name>
    <message>
        <source>%1 cannot be sent: its name or that of a folder above it has characters that are no text. Rename it and try again.</source>
        <translation>无法发送%1：它或其上级文件夹的名称中含有无法识别为文本的字符。请重命名后重试。</translation>
    </message>
    <message>
        <source>%1 cannot be sent: the settings of Orvik Menu cannot be written. Is the disk full?</source>
        <translation>无法发送%1：无法写入 Orvik Menu 的设置。磁盘是否已满？</translation>
    </message>
</context>
<context>
    <name>SetAsWallpaper</name>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>无法读取%1：%2。</translation>
    </message>
    <message>
        <source>The desktop did not take %1 as its wallpaper.</source>
        <translation>桌面未接受将%1作为壁纸。</translation>
    </message>
    <message>
        <source>%1 cannot be set as the wallpaper: Orvik Menu does not know how this desktop sets it.</source>
        <translation>无法将%1设为壁纸：Orvik Menu 不知道如何在此桌面环境中设置壁纸。</translation>
    </message>
</context>
<context>
    <name>ShowcaseCatalogue</name>
    <message>
        <source>Photo &amp; Video</source>
        <translation>照片与视频</translation>
    </message>
    <message>
        <source>Turn hundreds of small photos into one large picture that stays sharp however close you look.</source>
        <translation>把数百张小照片拼成一幅大图，无论凑得多近看都依然清晰。</translation>
    </message>
    <message>
        <source>Trim, join and turn your video clips without losing quality or waiting for an export.</source>
        <translation>剪切、拼接和旋转视频片段，画质无损，也无需等待导出。</translation>
    </message>
    <message>
        <source>Warm or cool the light of a whole photo shoot at once, and compare it with the original as you go.</source>
        <translation>一次调整整组照片的光线冷暖，并随时与原图对比。</translation>
    </message>
    <message>
        <source>Record your screen, your voice and your camera together, ready to share the moment you stop.</source>
        <translation>同时录制屏幕、声音和摄像头画面，停止录制即可分享。</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>效率</translation>
    </message>
    <message>
        <source>Pick any colour on your screen and keep your palettes in one place, ready to paste into your work.</source>
        <translation>拾取屏幕上的任意颜色，把调色板集中保存，随时粘贴到您的作品中。</translation>
    </message>
    <message>
        <source>Lifestyle</source>
        <translation>生活</translation>
    </message>
    <message>
        <source>Keep well at your desk with gentle reminders to drink, to stretch and to look into the distance.</source>
        <translation>温和地提醒您喝水、伸展和远眺，让您在办公桌前也能保持健康。</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>实用工具</translation>
    </message>
    <message>
        <source>Find any file as you type, even inside archives and on disks that are not plugged in.</source>
        <translation>边输入边查找任意文件，连归档文件内和未接入的磁盘上的文件也能找到。</translation>
    </message>
    <message>
        <source>Collect notes, lists and clippings in a notebook that is always one keystroke away.</source>
        <translation>将笔记、清单和摘录收进一本笔记本，随时一键打开。</translation>
    </message>
    <message>
        <source>See every calendar and every deadline on one timeline, and move your plans until the week fits.</source>
        <translation>在一条时间线上查看所有日历和截止日期，灵活调整计划，安排好一周。</translation>
    </message>
    <message>
        <source>See at a glance what fills your disk, and clear away duplicates, leftovers and old downloads.</source>
        <translation>一眼看清磁盘空间的去向，清理重复文件、残留文件和旧的下载内容。</translation>
    </message>
    <message>
        <source>Business</source>
        <translation>商务</translation>
    </message>
    <message>
        <source>Write an invoice in a minute, send it as a PDF, and always know who has yet to pay.</source>
        <translation>一分钟开好发票，以 PDF 发送，并始终清楚谁还没有付款。</translation>
    </message>
    <message>
        <source>Rename thousands of files at once by rules that you can read, with a preview of every new name.</source>
        <translation>用一目了然的规则一次重命名数千个文件，并可预览每个新名称。</translation>
    </message>
    <message>
        <source>Keep an eye on processor, memory and network with a small, quiet meter in the menu bar.</source>
        <translation>通过菜单栏中小巧安静的指示器，随时留意处理器、内存和网络。</translation>
    </message>
    <message>
        <source>Keep everything that you copy, and paste any of it again by typing a few of its letters.</source>
        <translation>保存您复制过的所有内容，只需输入其中几个字即可再次粘贴。</translation>
    </message>
    <message>
        <source>Lock your private folders with strong encryption, and open them again with a single password.</source>
        <translation>用高强度加密锁定私密文件夹，只需一个密码即可重新打开。</translation>
    </message>
    <message>
        <source>Dim everything but the window you work in, so that your attention stays where it belongs.</source>
        <translation>调暗工作窗口以外的一切，让注意力停留在该在的地方。</translation>
    </message>
    <message>
        <source>Work in focused stretches with a break after each, and see at the end of the week where the hours went.</source>
        <translation>专注工作一段，休息一会儿，周末再看看时间都花在了哪里。</translation>
    </message>
</context>
<context>
    <name>SizeRow</name>
    <message>
        <source>Longest side</source>
        <translation>最长边</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> 像素</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>百分比</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Each file at most</source>
        <translation>单个文件上限</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>All together at most</source>
        <translation>全部文件上限</translation>
    </message>
    <message>
        <source>For a screen</source>
        <translation>适合屏幕</translation>
    </message>
    <message>
        <source>For mail</source>
        <translation>适合邮件</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>一半</translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>1 byte</source>
        <translation>1 字节</translation>
    </message>
</context>
<context>
    <name>TagView</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>版权</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>拍摄日期</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>关键词</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>镜头</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>曝光时间</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>光圈</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>焦距</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>闪光灯</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>像素尺寸</translation>
    </message>
    <message>
        <source>Kind of file</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>颜色配置文件</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>软件</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>值不同</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>有链接指向 Orvik Menu 的工作文件夹之外</translation>
    </message>
    <message>
        <source>it can only be read</source>
        <translation>它是只读的</translation>
    </message>
    <message>
        <source>it is not known why</source>
        <translation>原因不明</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>Moving %1 to %2</source>
        <translation>正在移动到%2：%1</translation>
    </message>
    <message>
        <source>Copying %1 to %2</source>
        <translation>正在复制到%2：%1</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>已将%1移动到%2。</translation>
    </message>
    <message>
        <source>%1 was copied to %2.</source>
        <translation>已将%1复制到%2。</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were moved to %2.</source>
        <translation>
            <numerusform>已将 %1 个项目移动到%2。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 items were copied to %2.</source>
        <translation>
            <numerusform>已将 %1 个项目复制到%2。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 items were moved to %3.</source>
        <translation>
            <numerusform>已将 %2 个项目中的 %1 个移动到%3。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 items were copied to %3.</source>
        <translation>
            <numerusform>已将 %2 个项目中的 %1 个复制到%3。</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing can be put into %1: %2.</source>
        <translation>无法将内容放入%1：%2。</translation>
    </message>
    <message>
        <source>There is not enough room on the disk of %1.</source>
        <translation>%1所在磁盘的空间不足。</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>无法读取%1：%2。</translation>
    </message>
    <message>
        <source>%1 is in this folder already.</source>
        <translation>%1已在此文件夹中。</translation>
    </message>
    <message>
        <source>%1 cannot be moved into itself.</source>
        <translation>无法将%1移动到其自身之中。</translation>
    </message>
    <message>
        <source>%1 cannot be copied into itself.</source>
        <translation>无法将%1复制到其自身之中。</translation>
    </message>
    <message>
        <source>The name %1 is too long for the disk that it is to go to.</source>
        <translation>名称%1对目标磁盘来说过长。</translation>
    </message>
    <message>
        <source>%1 is too large for the disk that it is to go to.</source>
        <translation>%1对目标磁盘来说过大。</translation>
    </message>
    <message>
        <source>%1 cannot be taken away from where it is. It can be copied.</source>
        <translation>无法将%1从其所在位置移走，但可以复制。</translation>
    </message>
    <message>
        <source>%1 is a device, which cannot be copied.</source>
        <translation>%1是设备，无法复制。</translation>
    </message>
    <message>
        <source>%1 kept changing while it was copied. Try again.</source>
        <translation>%1在复制过程中不断变化。请重试。</translation>
    </message>
    <message>
        <source>%1 could not be moved: %2.</source>
        <translation>无法移动%1：%2。</translation>
    </message>
    <message>
        <source>%1 could not be copied: %2.</source>
        <translation>无法复制%1：%2。</translation>
    </message>
    <message>
        <source>%1 has changed meanwhile, or a part of it could not be copied. What was not moved is still where it was.</source>
        <translation>%1在此期间发生了更改，或其中一部分无法复制。未移动的内容仍在原处。</translation>
    </message>
    <message>
        <source>%1 was copied, but not all of it could be removed from where it was: %2.</source>
        <translation>已复制%1，但无法从原处将其全部移除：%2。</translation>
    </message>
    <message>
        <source>%1 could not be put back, since it is not where it was put.</source>
        <translation>无法将%1放回原处，因为它已不在先前移动到的位置。</translation>
    </message>
    <message>
        <source>%1 could not be put back: %2.</source>
        <translation>无法将%1放回原处：%2。</translation>
    </message>
    <message>
        <source>%1 could not be put into the trash: %2</source>
        <translation>无法将%1移动到回收站：%2</translation>
    </message>
    <message numerus="yes">
        <source>There were %1 more like these.</source>
        <translation>
            <numerusform>另有 %1 个类似问题。</numerusform>
        </translation>
    </message>
    <message>
        <source>There was 1 more like these.</source>
        <translation>另有 1 个类似问题。</translation>
    </message>
    <message>
        <source>A part of %1 was moved to %2.</source>
        <translation>已将%1的一部分移动到%2。</translation>
    </message>
    <message>
        <source>A part of %1 was copied to %2.</source>
        <translation>已将%1的一部分复制到%2。</translation>
    </message>
    <message>
        <source>%1 was not put back.</source>
        <translation>%1未放回原处。</translation>
    </message>
    <message>
        <source>%1 was copied without some of its extended attributes: the disk has no room for them.</source>
        <translation>已复制%1，但缺少部分扩展属性：磁盘上没有存放它们的空间。</translation>
    </message>
</context>
<context>
    <name>TroubleWords</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>有链接指向 Orvik Menu 的工作文件夹之外</translation>
    </message>
    <message>
        <source>ExifTool does not say why</source>
        <translation>ExifTool 未说明原因</translation>
    </message>
    <message>
        <source>It was not done any more.</source>
        <translation>操作中止，未处理。</translation>
    </message>
    <message>
        <source>It cannot be opened: %1.</source>
        <translation>无法打开：%1。</translation>
    </message>
    <message>
        <source>It cannot be saved: %1.</source>
        <translation>无法保存：%1。</translation>
    </message>
    <message>
        <source>The original cannot be kept beside it: %1. Nothing was changed.</source>
        <translation>无法在旁边保留原始文件：%1。未作任何更改。</translation>
    </message>
    <message>
        <source>The program ExifTool is missing. Install the package libimage-exiftool-perl.</source>
        <translation>缺少程序 ExifTool。请安装软件包 libimage-exiftool-perl。</translation>
    </message>
    <message>
        <source>Reading it takes too long.</source>
        <translation>读取时间过长。</translation>
    </message>
    <message>
        <source>It says more than can be shown.</source>
        <translation>内容过多，无法显示。</translation>
    </message>
    <message>
        <source>ExifTool failed on it. The file may be damaged, or too large.</source>
        <translation>ExifTool 处理失败。文件可能已损坏或过大。</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>无法读取：%1。</translation>
    </message>
    <message>
        <source>It cannot be changed: %1.</source>
        <translation>无法更改：%1。</translation>
    </message>
    <message>
        <source>Another program has changed it meanwhile. Look at it again and try again.</source>
        <translation>其间另一个程序更改了它。请重新查看后再试。</translation>
    </message>
    <message>
        <source>Files of this kind, or damaged ones, are not changed, since it cannot be checked that the picture stays the same.</source>
        <translation>不会更改此类文件或已损坏的文件，因为无法确认图像保持不变。</translation>
    </message>
    <message>
        <source>The picture would not have stayed the same. Nothing was changed.</source>
        <translation>图像将无法保持不变。未作任何更改。</translation>
    </message>
    <message>
        <source>It does not hold all that was to be written. Nothing was changed.</source>
        <translation>结果未包含应写入的全部内容。未作任何更改。</translation>
    </message>
    <message>
        <source>It has no date that could be moved.</source>
        <translation>没有可调整的日期。</translation>
    </message>
    <message>
        <source>Its orientation is part of the picture and cannot be changed here.</source>
        <translation>其方向是图像的一部分，无法在此更改。</translation>
    </message>
    <message>
        <source>It was saved, but it holds more than the picture, such as a second one or a film, which may hold such data too.</source>
        <translation>已保存，但除图片外还包含其他内容，例如另一张图片或一段视频，其中也可能含有此类数据。</translation>
    </message>
</context>
<context>
    <name>UtilityKitWindow</name>
    <message>
        <source>More from Orvik Studio</source>
        <translation>Orvik Studio 的更多应用</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>关闭窗口(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit Orvik Menu</source>
        <translation>退出 Orvik Menu(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>ViewController</name>
    <message>
        <source>Choose the actions that show when you right-click an item in your folders.</source>
        <translation>选择右键点击您文件夹中的项目时显示的操作。</translation>
    </message>
    <message>
        <source>Menu items</source>
        <translation>菜单项</translation>
    </message>
    <message>
        <source>No Menu Items</source>
        <translation>没有菜单项</translation>
    </message>
    <message>
        <source>The stored list of menu items is empty.</source>
        <translation>已存储的菜单项列表为空。</translation>
    </message>
</context>
<context>
    <name>WindowParts</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>有链接指向 Orvik Menu 的工作文件夹之外</translation>
    </message>
    <message>
        <source>%1 is not in a folder that Orvik Menu works in. Add the folder in its settings.</source>
        <translation>%1不在 Orvik Menu 的工作文件夹中。请在 Orvik Menu 的设置中添加该文件夹。</translation>
    </message>
    <message>
        <source>%1 or another item is not in a folder that Orvik Menu works in. Add the folder in its settings.</source>
        <translation>%1或另一个项目不在 Orvik Menu 的工作文件夹中。请在 Orvik Menu 的设置中添加该文件夹。</translation>
    </message>
    <message>
        <source>There were %1 more like these.</source>
        <translation>另有 %1 个类似问题。</translation>
    </message>
    <message>
        <source>There was 1 more like these.</source>
        <translation>另有 1 个类似问题。</translation>
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
        <translation>在您选择的文件夹中，为文件管理器的菜单提供操作。</translation>
    </message>
    <message>
        <source>&amp;Web Site</source>
        <translation>网站(&amp;W)</translation>
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
        <translation>为 Orvik Menu 评分(&amp;R)</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
</context>
<context>
    <name>collectionView_cell</name>
    <message>
        <source>Open in App Store</source>
        <translation>在 App Store 中打开</translation>
    </message>
</context>
<context>
    <name>customFoldersVc</name>
    <message>
        <source>Folders that you set up from the file manager’s menu, for example as places to move or copy items to. Delete those that you no longer use.</source>
        <translation>您从文件管理器菜单中设置的文件夹，例如用作移动或复制项目的目标位置。可删除不再使用的文件夹。</translation>
    </message>
    <message>
        <source>Custom folders</source>
        <translation>自定义文件夹</translation>
    </message>
    <message>
        <source>No Custom Folders</source>
        <translation>没有自定义文件夹</translation>
    </message>
    <message>
        <source>They appear here once you set them up from the file manager’s menu.</source>
        <translation>您通过文件管理器的菜单设置后，它们会显示在这里。</translation>
    </message>
</context>
<context>
    <name>firstRunvc</name>
    <message>
        <source>Welcome to Orvik Menu</source>
        <translation>欢迎使用 Orvik Menu</translation>
    </message>
    <message>
        <source>Two steps, in either order, and Orvik Menu is ready.</source>
        <translation>只需两步，顺序不限，Orvik Menu 即可使用。</translation>
    </message>
    <message>
        <source>Switch on the extension</source>
        <translation>开启扩展</translation>
    </message>
    <message>
        <source>Open Extensions and switch on “Orvik Menu Extension”. This step is done as soon as the extension runs.</source>
        <translation>打开“扩展”并开启“Orvik Menu 扩展”。扩展开始运行后，此步骤即告完成。</translation>
    </message>
    <message>
        <source>Open &amp;Extensions…</source>
        <translation>打开“扩展”(&amp;E)…</translation>
    </message>
    <message>
        <source>Choose your folders</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>The actions show on items inside these folders. You can change them later.</source>
        <translation>操作会显示在这些文件夹内的项目上。您可以稍后更改文件夹。</translation>
    </message>
    <message>
        <source>Choose &amp;Folders…</source>
        <translation>选择文件夹(&amp;F)…</translation>
    </message>
    <message>
        <source>You have succeessfully enabled Orvik Menu and can see the Orvik Menu items in the Context Menu on right click for selected folders. You can change these settings in the app anytime.</source>
        <translation>您已成功启用 Orvik Menu。在所选文件夹中点击右键，即可在上下文菜单中看到 Orvik Menu 的菜单项。您可以随时在应用中更改这些设置。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>foldersArrvc</name>
    <message>
        <source>Orvik Menu shows its actions on items inside these folders. Clear a checkbox to leave a folder out for now.</source>
        <translation>Orvik Menu 会在这些文件夹内的项目上显示操作。取消勾选可暂时排除某个文件夹。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>添加文件夹(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Remove Folder…</source>
        <translation>移除文件夹(&amp;R)…</translation>
    </message>
    <message>
        <source>Remove the selected folder (Delete)</source>
        <translation>移除所选文件夹 (Delete)</translation>
    </message>
    <message>
        <source>Remove selected folder?</source>
        <translation>移除所选文件夹？</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the selected folder.</source>
        <translation>所选文件夹将从列表中移除。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Some of the folders can not be added because they are already added to the Folders list.</source>
        <translation>部分文件夹无法添加，因为它们已在文件夹列表中。</translation>
    </message>
    <message>
        <source>No Folders Yet</source>
        <translation>还没有文件夹</translation>
    </message>
    <message>
        <source>Orvik Menu shows its actions on items inside the folders that you add.</source>
        <translation>Orvik Menu 会为您添加的文件夹中的项目显示操作。</translation>
    </message>
</context>
<context>
    <name>genraltabvc</name>
    <message>
        <source>Extension</source>
        <translation>扩展</translation>
    </message>
    <message>
        <source>Looking for the extension…</source>
        <translation>正在查找扩展…</translation>
    </message>
    <message>
        <source>Open &amp;Extensions…</source>
        <translation>打开“扩展”(&amp;E)…</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Show an &amp;icon beside each menu item</source>
        <translation>在每个菜单项旁显示图标(&amp;I)</translation>
    </message>
    <message>
        <source>Group the menu items in a &amp;submenu</source>
        <translation>将菜单项归入子菜单(&amp;S)</translation>
    </message>
    <message>
        <source>Orvik Menu Extension is enabled</source>
        <translation>Orvik Menu 扩展已启用</translation>
    </message>
    <message>
        <source>Enable &quot;Orvik Menu Extension&quot; in System Preferences &gt; Extensions to make Orvik Menu work.</source>
        <translation>请在“系统设置 &gt; 扩展”中启用“Orvik Menu 扩展”，以使 Orvik Menu 正常工作。</translation>
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
        <translation>关于 Orvik Menu(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>关闭窗口(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit Orvik Menu</source>
        <translation>退出 Orvik Menu(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>tabviewcontroller</name>
    <message>
        <source>Menu Items</source>
        <translation>菜单项</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Custom Folders</source>
        <translation>自定义文件夹</translation>
    </message>
</context>
<context>
    <name>tblcell</name>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>删除 %1</translation>
    </message>
</context>
<context>
    <name>utilityKitvc</name>
    <message>
        <source>Other apps</source>
        <translation>其他应用</translation>
    </message>
    <message>
        <source>Other Apps we think you may Love:</source>
        <translation>您可能会喜欢的其他应用：</translation>
    </message>
</context>
</TS>
