<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Action</name>
    <message>
        <source>The control panel of Orvik Menu could not be started. Install Orvik Menu again.</source>
        <translation>تعذّر بدء لوحة تحكم Orvik Menu. أعد تثبيت Orvik Menu.</translation>
    </message>
    <message>
        <source>%1 cannot be found: %2.</source>
        <translation>تعذّر العثور على %1: %2.</translation>
    </message>
    <message>
        <source>Orvik Menu was asked for something in a way that it does not understand.</source>
        <translation>طُلب من Orvik Menu شيء بصيغة لا يفهمها.</translation>
    </message>
    <message>
        <source>The settings of Orvik Menu cannot be read.</source>
        <translation>تعذّرت قراءة إعدادات Orvik Menu.</translation>
    </message>
    <message>
        <source>This cannot be done with what is selected.</source>
        <translation>لا يمكن فعل هذا بالعناصر المحددة.</translation>
    </message>
    <message>
        <source>There is no display to show the window on.</source>
        <translation>لا توجد شاشة لعرض النافذة عليها.</translation>
    </message>
</context>
<context>
    <name>AddFolders</name>
    <message>
        <source>%1 cannot be added: its name or that of a folder above it has characters that are no text. Rename it and try again.</source>
        <translation>تعذّرت إضافة %1: يحوي اسمه أو اسم مجلد أعلى منه محارف ليست نصًا. غيّر الاسم ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>The folders cannot be added: the settings of Orvik Menu cannot be written. Is the disk full?</source>
        <translation>تعذّرت إضافة المجلدات: لا يمكن كتابة إعدادات Orvik Menu. هل القرص ممتلئ؟</translation>
    </message>
</context>
<context>
    <name>AttachToMail</name>
    <message>
        <source>Please select the file that you want to send via email to allow sending</source>
        <translation>حدّد الملف الذي تريد إرساله بالبريد الإلكتروني لتتمكن من إرساله</translation>
    </message>
    <message>
        <source>Attach to Mail</source>
        <translation>أرفق بالبريد</translation>
    </message>
</context>
<context>
    <name>Attachments</name>
    <message>
        <source>it is not a file</source>
        <translation>ليس ملفًا</translation>
    </message>
    <message>
        <source>it became shorter</source>
        <translation>أصبح أقصر</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>مجلد</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Could not remove %1: %2.</source>
        <translation>تعذّرت إزالة ⁨%1⁩: %2.</translation>
    </message>
    <message>
        <source>Could not write %1: %2.</source>
        <translation>تعذّرت كتابة ⁨%1⁩: %2.</translation>
    </message>
</context>
<context>
    <name>Companion</name>
    <message>
        <source>It ended before it was done.</source>
        <translation>انتهى البرنامج قبل أن يُنجز العمل.</translation>
    </message>
    <message>
        <source>The program that does this cannot be started.</source>
        <translation>تعذّر بدء البرنامج الذي ينفّذ هذا.</translation>
    </message>
    <message>
        <source>Too much is asked for at once.</source>
        <translation>طُلبت أشياء أكثر من اللازم دفعة واحدة.</translation>
    </message>
    <message>
        <source>Orvik Menu has no action of that name.</source>
        <translation>ليس لدى Orvik Menu إجراء بهذا الاسم.</translation>
    </message>
    <message>
        <source>Only the file manager itself can do this.</source>
        <translation>لا يستطيع فعل هذا إلا مدير الملفات نفسه.</translation>
    </message>
    <message>
        <source>This action is switched off in the settings of Orvik Menu.</source>
        <translation>هذا الإجراء معطّل في إعدادات Orvik Menu.</translation>
    </message>
</context>
<context>
    <name>CreateNewTextFile</name>
    <message>
        <source>New Text File</source>
        <translation>ملف نصي جديد</translation>
    </message>
    <message>
        <source>No file can be made in %1: %2.</source>
        <translation>تعذّر إنشاء ملف في %1: %2.</translation>
    </message>
</context>
<context>
    <name>DesktopEntry</name>
    <message>
        <source>File Manager Menu Settings</source>
        <translation>إعدادات قائمة مدير الملفات</translation>
    </message>
    <message>
        <source>Choose the actions that your file manager&apos;s menu shows, and where</source>
        <translation>اختر الإجراءات التي تعرضها قائمة مدير الملفات وأين تظهر</translation>
    </message>
    <message>
        <source>context;menu;right-click;file manager;actions;folders;</source>
        <translation>سياق;قائمة;النقر الأيمن;مدير الملفات;إجراءات;مجلدات;</translation>
    </message>
    <message>
        <source>Extensions</source>
        <translation>الامتدادات</translation>
    </message>
    <message>
        <source>Switch the extensions of Orvik Menu on and off</source>
        <translation>فعّل امتدادات Orvik Menu أو عطّلها</translation>
    </message>
</context>
<context>
    <name>Duplicates</name>
    <message>
        <source>is not there any more</source>
        <translation>لم يعد موجودًا</translation>
    </message>
    <message>
        <source>has changed since it was found</source>
        <translation>تغيّر بعد العثور عليه</translation>
    </message>
    <message>
        <source>is in use by another program</source>
        <translation>يستخدمه برنامج آخر</translation>
    </message>
    <message>
        <source>is the last copy that is left</source>
        <translation>هو آخر نسخة باقية</translation>
    </message>
    <message>
        <source>has a copy that another program is using</source>
        <translation>له نسخة يستخدمها برنامج آخر</translation>
    </message>
    <message>
        <source>was not reached</source>
        <translation>لم يأتِ دوره</translation>
    </message>
    <message>
        <source>cannot be compared with its copy: %1</source>
        <translation>تعذّرت مقارنته بنسخته: %1</translation>
    </message>
    <message>
        <source>is not the same as its copy</source>
        <translation>لا يطابق نسخته</translation>
    </message>
    <message>
        <source>was not compared to its end</source>
        <translation>لم تكتمل مقارنته حتى نهايته</translation>
    </message>
    <message>
        <source>changed while it was read</source>
        <translation>تغيّر أثناء قراءته</translation>
    </message>
    <message>
        <source>is a link, and those are not followed</source>
        <translation>هو وصلة، والوصلات لا تُتبع</translation>
    </message>
    <message>
        <source>is neither a file nor a folder</source>
        <translation>ليس ملفًا ولا مجلدًا</translation>
    </message>
    <message>
        <source>could not be moved to the trash: %1</source>
        <translation>تعذّر نقله إلى المهملات: %1</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>فارغ</translation>
    </message>
    <message>
        <source>is no picture, though it is named like one</source>
        <translation>ليس صورة، مع أن اسمه يوحي بذلك</translation>
    </message>
    <message>
        <source>has changed while it was read</source>
        <translation>تغيّر أثناء قراءته</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>تعذّرت قراءته: %1</translation>
    </message>
    <message>
        <source>may be the same file as its copy, in two places</source>
        <translation>قد يكون هو نفسه ملف نسخته، في موضعين</translation>
    </message>
</context>
<context>
    <name>EditForm</name>
    <message>
        <source>As it is stored</source>
        <translation>كما هي مخزّنة</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>معكوسة</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>مقلوبة رأسًا على عقب</translation>
    </message>
    <message>
        <source>Upside down and mirrored</source>
        <translation>مقلوبة رأسًا على عقب ومعكوسة</translation>
    </message>
    <message>
        <source>Turned left and mirrored</source>
        <translation>مدوّرة إلى اليسار ومعكوسة</translation>
    </message>
    <message>
        <source>Turned right</source>
        <translation>مدوّرة إلى اليمين</translation>
    </message>
    <message>
        <source>Turned right and mirrored</source>
        <translation>مدوّرة إلى اليمين ومعكوسة</translation>
    </message>
    <message>
        <source>Turned left</source>
        <translation>مدوّرة إلى اليسار</translation>
    </message>
</context>
<context>
    <name>Extension</name>
    <message>
        <source>Orvik Menu Extension</source>
        <translation>امتداد Orvik Menu</translation>
    </message>
    <message>
        <source>Adds Orvik Menu&apos;s actions to the file manager&apos;s right-click menu.</source>
        <translation>يضيف إجراءات Orvik Menu إلى قائمة النقر الأيمن في مدير الملفات.</translation>
    </message>
</context>
<context>
    <name>ExtensionStatus</name>
    <message>
        <source>There is no session bus, so it can neither run nor be switched.</source>
        <translation>لا يوجد ناقل جلسة، لذا لا يمكن تشغيله ولا تفعيله أو تعطيله.</translation>
    </message>
    <message>
        <source>It is set to start at log-in.</source>
        <translation>وهو مضبوط ليبدأ عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>It is running, but it is not set to start at log-in.</source>
        <translation>يعمل، لكنه غير مضبوط ليبدأ عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>It is set to start at log-in, but it is not running.</source>
        <translation>مضبوط ليبدأ عند تسجيل الدخول، لكنه لا يعمل.</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>يبدأ…</translation>
    </message>
    <message>
        <source>Ending…</source>
        <translation>ينتهي…</translation>
    </message>
    <message>
        <source>It is running, and it starts at log-in.</source>
        <translation>يعمل، ويبدأ عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>It is switched off.</source>
        <translation>معطّل.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::ExtensionControl</name>
    <message>
        <source>It could not be asked to end: %1.</source>
        <translation>تعذّر إرسال طلب الإنهاء إليه: %1.</translation>
    </message>
    <message>
        <source>The program %1 is missing.</source>
        <translation>البرنامج ⁨%1⁩ مفقود.</translation>
    </message>
    <message>
        <source>Could not start %1.</source>
        <translation>تعذّر بدء ⁨%1⁩.</translation>
    </message>
    <message>
        <source>It was started, but it does not answer.</source>
        <translation>بدأ تشغيله، لكنه لا يستجيب.</translation>
    </message>
    <message>
        <source>It was asked to end, but it does not.</source>
        <translation>طُلب منه الانتهاء، لكنه لم ينتهِ.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::ExtensionsWindow</name>
    <message>
        <source>Extensions</source>
        <translation>الامتدادات</translation>
    </message>
    <message>
        <source>Extensions bring Orvik Menu into other programs.</source>
        <translation>تتيح الامتدادات استخدام Orvik Menu في برامج أخرى.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagerRow</name>
    <message>
        <source>Restart</source>
        <translation>أعد التشغيل</translation>
    </message>
    <message>
        <source>Restart %1</source>
        <translation>أعد تشغيل %1</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagerSection</name>
    <message>
        <source>File managers on this computer:</source>
        <translation>مديرو الملفات على هذا الحاسوب:</translation>
    </message>
    <message>
        <source>No file manager that can show the menu is installed.</source>
        <translation>لا يوجد مدير ملفات مثبّت يستطيع عرض القائمة.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::FileManagersControl</name>
    <message>
        <source>It could not be asked to close.</source>
        <translation>تعذّر إرسال طلب الإغلاق إليه.</translation>
    </message>
    <message>
        <source>It was asked to close, but it is still running.</source>
        <translation>طُلب منه الإغلاق، لكنه ما زال يعمل.</translation>
    </message>
</context>
<context>
    <name>ExtensionsTool::LackingActionsSection</name>
    <message>
        <source>Actions that are in no menu:</source>
        <translation>إجراءات لا تظهر في أي قائمة:</translation>
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
        <translation>أغلقه ثم افتحه من جديد.</translation>
    </message>
    <message>
        <source>Restarting it closes its windows and stops any copying.</source>
        <translation>إعادة تشغيله تغلق نوافذه وتوقف أي نسخ جارٍ.</translation>
    </message>
    <message>
        <source>Closing…</source>
        <translation>يُغلق…</translation>
    </message>
    <message>
        <source>It is not installed.</source>
        <translation>غير مثبّت.</translation>
    </message>
    <message>
        <source>The menu is missing. Install the package %1.</source>
        <translation>القائمة مفقودة. ثبّت الحزمة %1.</translation>
    </message>
    <message>
        <source>It is not running. It loads the menu when it starts.</source>
        <translation>لا يعمل الآن، ويحمّل القائمة عند بدئه.</translation>
    </message>
    <message>
        <source>It loads the menu when it needs it.</source>
        <translation>يحمّل القائمة عندما يحتاج إليها.</translation>
    </message>
    <message>
        <source>It has loaded the menu.</source>
        <translation>القائمة محمّلة.</translation>
    </message>
    <message>
        <source>It is running without the menu.</source>
        <translation>يعمل من دون القائمة.</translation>
    </message>
    <message>
        <source>It has loaded an older version of the menu.</source>
        <translation>القائمة المحمّلة من إصدار أقدم.</translation>
    </message>
    <message>
        <source>It is running. Whether it has loaded the menu is not known.</source>
        <translation>يعمل، ولا يُعرف هل القائمة محمّلة.</translation>
    </message>
</context>
<context>
    <name>FindDuplicateFiles</name>
    <message>
        <source>Duplicate Files</source>
        <translation>الملفات المكررة</translation>
    </message>
    <message>
        <source>No two files hold the same.</source>
        <translation>لا توجد ملفات متطابقة المحتوى.</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>ملف واحد</translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 ملف</numerusform>
            <numerusform>ملف واحد (%1)</numerusform>
            <numerusform>ملفان (%1)</numerusform>
            <numerusform>%1 ملفات</numerusform>
            <numerusform>%1 ملفًا</numerusform>
            <numerusform>%1 ملف</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FindDuplicatePhotos</name>
    <message>
        <source>Most pixels</source>
        <translation>عدد البكسلات الأكبر</translation>
    </message>
    <message>
        <source>Most pixels, larger file</source>
        <translation>عدد البكسلات الأكبر، وملف أكبر</translation>
    </message>
    <message>
        <source>Oldest of the same size</source>
        <translation>الأقدم بين ذوات الحجم نفسه</translation>
    </message>
    <message>
        <source>As good as another</source>
        <translation>تعادل صورة أخرى في الجودة</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>⁦%1 × %2⁩</translation>
    </message>
    <message>
        <source>Duplicate Photos</source>
        <translation>الصور المكررة</translation>
    </message>
    <message>
        <source>No two photos show the same.</source>
        <translation>لا توجد صور متماثلة.</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>صورة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 صورة</numerusform>
            <numerusform>صورة واحدة (%1)</numerusform>
            <numerusform>صورتان (%1)</numerusform>
            <numerusform>%1 صور</numerusform>
            <numerusform>%1 صورة</numerusform>
            <numerusform>%1 صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>البكسلات</translation>
    </message>
    <message>
        <source>Keep the Best Photo</source>
        <translation>أبقِ أفضل صورة</translation>
    </message>
</context>
<context>
    <name>FolderPanel</name>
    <message>
        <source>Grant Access</source>
        <translation>اسمح بالوصول</translation>
    </message>
</context>
<context>
    <name>HideUnhideItem</name>
    <message>
        <source>What is hidden in %1 cannot be changed: %2.</source>
        <translation>تعذّر تغيير ما هو مخفي في %1: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be hidden, since its name has a line end. Rename it and try again.</source>
        <translation>لا يمكن إخفاء %1، لأن في اسمه نهاية سطر. غيّر الاسم ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: its name has dots alone.</source>
        <translation>لا يمكن إظهار %1: اسمه نقاط فقط.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: it is the list of what is hidden.</source>
        <translation>لا يمكن إظهار %1: هو قائمة العناصر المخفية.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: there is a %2 already. Rename one of the two.</source>
        <translation>لا يمكن إظهار %1: يوجد %2 من قبل. غيّر اسم أحدهما.</translation>
    </message>
    <message>
        <source>%1 cannot be unhidden: %2.</source>
        <translation>تعذّر إظهار %1: %2.</translation>
    </message>
    <message>
        <source>What is hidden in %1 cannot be changed, since another program is changing it. Try again.</source>
        <translation>لا يمكن تغيير ما هو مخفي في %1، لأن برنامجًا آخر يغيّره الآن. أعد المحاولة.</translation>
    </message>
    <message>
        <source>The list of what is hidden in %1, a file named .hidden, cannot be read: %2.</source>
        <translation>تعذّرت قراءة قائمة العناصر المخفية في %1، وهي ملف باسم ⁦.hidden⁩: %2.</translation>
    </message>
</context>
<context>
    <name>LackingActions</name>
    <message>
        <source>Needs the package %1, which is not installed.</source>
        <translation>يحتاج إلى الحزمة %1، وهي غير مثبّتة.</translation>
    </message>
    <message>
        <source>Needs the packages %1, which are not installed.</source>
        <translation>يحتاج إلى الحزم %1، وهي غير مثبّتة.</translation>
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
        <translation>تعذّر العثور على «⁨%1⁩».</translation>
    </message>
    <message>
        <source>“%1” cannot be added: %2.</source>
        <translation>لا يمكن إضافة «⁨%1⁩»: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be added: it is not a folder.</source>
        <translation>لا يمكن إضافة «⁨%1⁩»: ليس مجلدًا.</translation>
    </message>
    <message>
        <source>“%1” cannot be added: it is not a folder of this computer.</source>
        <translation>لا يمكن إضافة «⁨%1⁩»: ليس مجلدًا على هذا الحاسوب.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FileChooserDialog</name>
    <message>
        <source>Up</source>
        <translation>إلى الأعلى</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>المنزل</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>الأماكن</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>“%1” is no longer there.</source>
        <translation>لم يعد «⁨%1⁩» موجودًا.</translation>
    </message>
    <message>
        <source>“%1” cannot be found.</source>
        <translation>تعذّر العثور على «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Nothing is selected. To choose “%1” itself, press the button “%2”.</source>
        <translation>لم يُحدَّد شيء. لاختيار «⁨%1⁩» نفسه، اضغط الزر «⁨%2⁩».</translation>
    </message>
    <message>
        <source>its path is too long</source>
        <translation>مساره طويل جدًا</translation>
    </message>
    <message>
        <source>“%1” cannot be chosen: %2.</source>
        <translation>لا يمكن اختيار «⁨%1⁩»: %2.</translation>
    </message>
    <message>
        <source>“%1” cannot be chosen.</source>
        <translation>لا يمكن اختيار «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>مجلد جديد</translation>
    </message>
    <message>
        <source>Waiting for “%1” to answer…</source>
        <translation>في انتظار ردّ «⁨%1⁩»…</translation>
    </message>
    <message>
        <source>Hidden files are not shown.</source>
        <translation>الملفات المخفية غير معروضة.</translation>
    </message>
    <message>
        <source>Hidden files are shown.</source>
        <translation>الملفات المخفية معروضة.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>افتح</translation>
    </message>
    <message>
        <source>Copy Location</source>
        <translation>انسخ المكان</translation>
    </message>
    <message>
        <source>New Folder…</source>
        <translation>مجلد جديد…</translation>
    </message>
    <message>
        <source>Show Hidden Files</source>
        <translation>أظهر الملفات المخفية</translation>
    </message>
    <message>
        <source>“%1” is a file. Only folders can be chosen here.</source>
        <translation>«⁨%1⁩» ملف. لا يمكن هنا إلا اختيار المجلدات.</translation>
    </message>
    <message>
        <source>“%1” leads to something that is not there.</source>
        <translation>«⁨%1⁩» يؤدي إلى شيء غير موجود.</translation>
    </message>
    <message>
        <source>“%1” does not answer. It may be on a network share that is gone.</source>
        <translation>«⁨%1⁩» لا يستجيب. قد يكون على مشاركة شبكية لم تعد متاحة.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FileList</name>
    <message>
        <source>This folder is empty.</source>
        <translation>هذا المجلد فارغ.</translation>
    </message>
    <message>
        <source>You do not have permission to see what is in this folder.</source>
        <translation>ليس لديك إذن لرؤية ما في هذا المجلد.</translation>
    </message>
    <message>
        <source>This folder cannot be read: %1.</source>
        <translation>تعذّرت قراءة هذا المجلد: %1.</translation>
    </message>
    <message>
        <source>All that is in this folder is hidden. Ctrl+H shows it.</source>
        <translation>كل ما في هذا المجلد مخفي. Ctrl+H يظهره.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FolderDrops</name>
    <message>
        <source>Some of what you dropped cannot be added.</source>
        <translation>تتعذّر إضافة بعض ما أفلتّه.</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>و%1 عنصر آخر.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::FolderModel</name>
    <message>
        <source>Link to a folder</source>
        <translation>وصلة إلى مجلد</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>Link to a file</source>
        <translation>وصلة إلى ملف</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ملف</translation>
    </message>
    <message>
        <source>Link to something that is not there</source>
        <translation>وصلة إلى شيء غير موجود</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>تاريخ التعديل</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between a file&apos;s kind, size and date</comment>
        <translation>، </translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>غير معروف</translation>
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
        <translation>القائمة (F10)</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::NewFolderDialog</name>
    <message>
        <source>New Folder</source>
        <translation>مجلد جديد</translation>
    </message>
    <message>
        <source>&amp;Name of the folder:</source>
        <translation>ا&amp;سم المجلد:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>أنشئ</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a folder.</source>
        <translation>لا يمكن أن يكون «⁨%1⁩» اسمًا لمجلد.</translation>
    </message>
    <message>
        <source>“%1” is already there.</source>
        <translation>«⁨%1⁩» موجود بالفعل.</translation>
    </message>
    <message>
        <source>“%1” cannot be made: %2.</source>
        <translation>لا يمكن إنشاء «⁨%1⁩»: %2.</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::PlacesList</name>
    <message>
        <source>Desktop</source>
        <translation>سطح المكتب</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>المستندات</translation>
    </message>
    <message>
        <source>Downloads</source>
        <translation>التنزيلات</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>الموسيقى</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>الفيديو</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>المنزل</translation>
    </message>
    <message>
        <source>File System</source>
        <translation>نظام الملفات</translation>
    </message>
    <message>
        <source>%1 (last used)</source>
        <translation>%1 (آخر ما استُخدم)</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::PreparingWindow</name>
    <message>
        <source>Preparing %1 for sending…</source>
        <translation>تحضير %1 للإرسال…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدّم</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::RowList</name>
    <message>
        <source>Added: %1</source>
        <translation>أُضيف: %1</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::StepBadge</name>
    <message>
        <source>Step %1, done</source>
        <translation>الخطوة %1، اكتملت</translation>
    </message>
    <message>
        <source>Step %1, to do</source>
        <translation>الخطوة %1، لم تكتمل بعد</translation>
    </message>
</context>
<context>
    <name>LinuxDesktop::TabPages</name>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
</context>
<context>
    <name>LinuxPlatform</name>
    <message>
        <source>“%1” cannot be used: its path has characters that cannot be stored as text. Rename the folder, then choose it again.</source>
        <translation>لا يمكن استخدام «⁨%1⁩»: يحوي مساره محارف لا يمكن تخزينها نصًا. غيّر اسم المجلد، ثم اختره من جديد.</translation>
    </message>
</context>
<context>
    <name>MailText</name>
    <message>
        <source>“%1”</source>
        <translation>«⁨%1⁩»</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <translation>
            <numerusform>%1 و%2 عنصر آخر</numerusform>
            <numerusform>%1 وعنصر آخر (%2)</numerusform>
            <numerusform>%1 وعنصران آخران (%2)</numerusform>
            <numerusform>%1 و%2 عناصر أخرى</numerusform>
            <numerusform>%1 و%2 عنصرًا آخر</numerusform>
            <numerusform>%1 و%2 عنصر آخر</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Choose Folder…</source>
        <translation>اختر مجلدًا…</translation>
    </message>
    <message>
        <source>Asks for another folder</source>
        <translation>يطلب اختيار مجلد آخر</translation>
    </message>
</context>
<context>
    <name>MenuCatalogue</name>
    <message>
        <source>Open Terminal</source>
        <translation>افتح الطرفية</translation>
    </message>
    <message>
        <source>Open System Preferences</source>
        <translation>افتح إعدادات النظام</translation>
    </message>
    <message>
        <source>Set as Wallpaper</source>
        <translation>عيّن الصورة خلفيةً</translation>
    </message>
    <message>
        <source>Create New Text File</source>
        <translation>أنشئ ملفًا نصيًا جديدًا</translation>
    </message>
    <message>
        <source>Copy path to Clipboard</source>
        <translation>انسخ المسار إلى الحافظة</translation>
    </message>
    <message>
        <source>Send via Mail</source>
        <translation>أرسل بالبريد</translation>
    </message>
    <message>
        <source>Move to a folder</source>
        <translation>انقل إلى مجلد</translation>
    </message>
    <message>
        <source>Copy to a folder</source>
        <translation>انسخ إلى مجلد</translation>
    </message>
    <message>
        <source>Open New Finder Window</source>
        <translation>افتح نافذة ملفات جديدة</translation>
    </message>
    <message>
        <source>Hide / Unhide item</source>
        <translation>أخفِ العنصر أو أظهره</translation>
    </message>
    <message>
        <source>Find Duplicate Files</source>
        <translation>ابحث عن الملفات المكررة</translation>
    </message>
    <message>
        <source>Find Duplicate Photos</source>
        <translation>ابحث عن الصور المكررة</translation>
    </message>
    <message>
        <source>View or Edit Exif Data</source>
        <translation>اعرض بيانات Exif أو حرّرها</translation>
    </message>
    <message>
        <source>Resize Photos</source>
        <translation>غيّر حجم الصور</translation>
    </message>
    <message>
        <source>Configure Orvik Menu Settings</source>
        <translation>اضبط إعدادات Orvik Menu</translation>
    </message>
    <message>
        <source>Add Folders</source>
        <translation>أضف مجلدات</translation>
    </message>
</context>
<context>
    <name>MenuExtension::ChoicesRow</name>
    <message>
        <source>Hidden Files</source>
        <translation>الملفات المخفية</translation>
    </message>
    <message>
        <source>Empty Files</source>
        <translation>الملفات الفارغة</translation>
    </message>
    <message>
        <source>System Files</source>
        <translation>ملفات النظام</translation>
    </message>
    <message>
        <source>In folders of the system, in the trash, and what file managers write for themselves</source>
        <translation>ما في مجلدات النظام وفي المهملات، وما يكتبه مديرو الملفات لأنفسهم</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::DuplicatesWindow</name>
    <message>
        <source>One always stays. Keep another one before you choose this.</source>
        <translation>يجب أن يبقى عنصر دائمًا. أبقِ عنصرًا آخر قبل أن تحدد هذا.</translation>
    </message>
    <message>
        <source>Filter by name or folder</source>
        <translation>رشّح حسب الاسم أو المجلد</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>المرشّح</translation>
    </message>
    <message>
        <source>Choose by Rule</source>
        <translation>حدّد وفق قاعدة</translation>
    </message>
    <message>
        <source>Keep the Oldest</source>
        <translation>أبقِ الأقدم</translation>
    </message>
    <message>
        <source>Keep the Newest</source>
        <translation>أبقِ الأحدث</translation>
    </message>
    <message>
        <source>Keep the One with the Shortest Path</source>
        <translation>أبقِ ذا المسار الأقصر</translation>
    </message>
    <message>
        <source>Choose Nothing</source>
        <translation>لا تحدد شيئًا</translation>
    </message>
    <message>
        <source>the Folder of the Item</source>
        <translation>مجلد العنصر</translation>
    </message>
    <message>
        <source>Keep Those in %1</source>
        <translation>أبقِ ما في ⁨%1⁩</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>المجموعات</translation>
    </message>
    <message>
        <source>Items of the Group</source>
        <translation>عناصر المجموعة</translation>
    </message>
    <message>
        <source>Looking for duplicates</source>
        <translation>البحث عن المكررات</translation>
    </message>
    <message>
        <source>%1 looked at</source>
        <translation>فُحص حتى الآن: %1</translation>
    </message>
    <message>
        <source>Moving to the trash</source>
        <translation>النقل إلى المهملات</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>أُنجز %1، والمجموع: %2</translation>
    </message>
    <message>
        <source>Moved to the trash: %1, %2</source>
        <translation>نُقل إلى المهملات: %1، %2</translation>
    </message>
    <message>
        <source>What is checked goes to the trash. One of a group always stays.</source>
        <translation>تُنقل العناصر المحددة إلى المهملات، ويبقى دائمًا عنصر واحد من كل مجموعة.</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>انقل إلى المهملات</translation>
    </message>
    <message>
        <source>Move 1 Item to Trash</source>
        <translation>انقل عنصرًا واحدًا إلى المهملات</translation>
    </message>
    <message numerus="yes">
        <source>Move %1 Items to Trash</source>
        <translation>
            <numerusform>انقل %1 عنصر إلى المهملات</numerusform>
            <numerusform>انقل عنصرًا واحدًا (%1) إلى المهملات</numerusform>
            <numerusform>انقل عنصرين (%1) إلى المهملات</numerusform>
            <numerusform>انقل %1 عناصر إلى المهملات</numerusform>
            <numerusform>انقل %1 عنصرًا إلى المهملات</numerusform>
            <numerusform>انقل %1 عنصر إلى المهملات</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing is chosen.</source>
        <translation>لم يُحدَّد شيء.</translation>
    </message>
    <message>
        <source>Chosen: %1, %2</source>
        <translation>المحدد: %1، %2</translation>
    </message>
    <message>
        <source>1 group, %1 could be saved</source>
        <translation>مجموعة واحدة، يمكن توفير %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 groups, %2 could be saved</source>
        <translation>
            <numerusform>%1 مجموعة، يمكن توفير %2</numerusform>
            <numerusform>مجموعة واحدة (%1)، يمكن توفير %2</numerusform>
            <numerusform>مجموعتان (%1)، يمكن توفير %2</numerusform>
            <numerusform>%1 مجموعات، يمكن توفير %2</numerusform>
            <numerusform>%1 مجموعة، يمكن توفير %2</numerusform>
            <numerusform>%1 مجموعة، يمكن توفير %2</numerusform>
        </translation>
    </message>
    <message>
        <source>No group matches the filter</source>
        <translation>لا مجموعة تطابق المرشّح</translation>
    </message>
    <message>
        <source>Looking for duplicates…</source>
        <translation>يجري البحث عن المكررات…</translation>
    </message>
    <message>
        <source>The search was stopped before anything was found.</source>
        <translation>أُوقف البحث قبل العثور على أي شيء.</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <extracomment>A file&apos;s name, and why nothing was done with it: “/home/a/b is the last copy that is left.”</extracomment>
        <translation>العنصر «⁨%1⁩» %2.</translation>
    </message>
    <message>
        <source>1 Item Was Left Out…</source>
        <translation>استُبعد عنصر واحد…</translation>
    </message>
    <message numerus="yes">
        <source>%1 Items Were Left Out…</source>
        <translation>
            <numerusform>استُبعد %1 عنصر…</numerusform>
            <numerusform>استُبعد عنصر واحد (%1)…</numerusform>
            <numerusform>استُبعد عنصران (%1)…</numerusform>
            <numerusform>استُبعدت %1 عناصر…</numerusform>
            <numerusform>استُبعد %1 عنصرًا…</numerusform>
            <numerusform>استُبعد %1 عنصر…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>And %1 more.</source>
        <translation>
            <numerusform>و%1 عنصر آخر.</numerusform>
            <numerusform>وعنصر آخر (%1).</numerusform>
            <numerusform>وعنصران آخران (%1).</numerusform>
            <numerusform>و%1 عناصر أخرى.</numerusform>
            <numerusform>و%1 عنصرًا آخر.</numerusform>
            <numerusform>و%1 عنصر آخر.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::GroupListModel</name>
    <message>
        <source>%1, %2, %3 could be saved</source>
        <translation>⁨%1⁩، %2، يمكن توفير %3</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>%1 of %2 each</source>
        <translation>%1، حجم الواحد %2</translation>
    </message>
    <message numerus="yes">
        <source>%n to remove</source>
        <translation>
            <numerusform>لا شيء للإزالة</numerusform>
            <numerusform>عنصر واحد للإزالة</numerusform>
            <numerusform>عنصران للإزالة</numerusform>
            <numerusform>%n عناصر للإزالة</numerusform>
            <numerusform>%n عنصرًا للإزالة</numerusform>
            <numerusform>%n عنصر للإزالة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::ItemListModel</name>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>تاريخ التعديل</translation>
    </message>
    <message>
        <source>Best Because</source>
        <translation>سبب الأفضلية</translation>
    </message>
    <message>
        <source>Not the best</source>
        <translation>ليست الأفضل</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::PreviewPane</name>
    <message>
        <source>Preview of %1</source>
        <translation>معاينة ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Duplicates::TroublesDialog</name>
    <message>
        <source>Left Out</source>
        <translation>العناصر المستبعدة</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::EditForm</name>
    <message>
        <source>Keep the original file beside it, with “_original” after its name</source>
        <translation>أبقِ الملف الأصلي بجانبه، مع إضافة «⁦_original⁩» إلى آخر اسمه</translation>
    </message>
    <message>
        <source>Keep the file&apos;s date of change</source>
        <translation>أبقِ تاريخ تعديل الملف كما هو</translation>
    </message>
    <message>
        <source>Remove Location and Personal Data…</source>
        <translation>أزل الموقع والبيانات الشخصية…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>احفظ</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>المؤلف</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>حقوق النشر</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>تاريخ الالتقاط</translation>
    </message>
    <message>
        <source>Move date by days</source>
        <translation>إزاحة التاريخ بالأيام</translation>
    </message>
    <message>
        <source> d</source>
        <translation> ي</translation>
    </message>
    <message>
        <source>Move date by hours</source>
        <translation>إزاحة التاريخ بالساعات</translation>
    </message>
    <message>
        <source> h</source>
        <translation> س</translation>
    </message>
    <message>
        <source>Move date by minutes</source>
        <translation>إزاحة التاريخ بالدقائق</translation>
    </message>
    <message>
        <source> min</source>
        <translation> د</translation>
    </message>
    <message>
        <source>Move date by seconds</source>
        <translation>إزاحة التاريخ بالثواني</translation>
    </message>
    <message>
        <source> s</source>
        <translation> ث</translation>
    </message>
    <message>
        <source>Move date by</source>
        <translation>إزاحة التاريخ</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>Remove Place</source>
        <translation>أزل الموقع</translation>
    </message>
    <message>
        <source>Is removed when it is saved</source>
        <translation>يُزال عند الحفظ</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>قيم مختلفة</translation>
    </message>
    <message>
        <source>2026-12-31 23:59:59</source>
        <translation>2026-12-31 23:59:59</translation>
    </message>
    <message>
        <source>None is stored</source>
        <translation>لا اتجاه مخزّن</translation>
    </message>
    <message>
        <source>Stays as it is</source>
        <translation>يبقى كما هو</translation>
    </message>
    <message>
        <source>48.858370, 2.294481</source>
        <translation>48.858370, 2.294481</translation>
    </message>
    <message>
        <source>The date is to be written as 2026-12-31 23:59:59.</source>
        <translation>يجب كتابة التاريخ بالشكل ⁦2026-12-31 23:59:59⁩.</translation>
    </message>
    <message>
        <source>Write a new date or move the one that is there, not both.</source>
        <translation>اكتب تاريخًا جديدًا أو أزِح التاريخ الموجود، لا كليهما.</translation>
    </message>
    <message>
        <source>The place is to be written as latitude and longitude in degrees: 48.858370, 2.294481.</source>
        <translation>يجب كتابة الموقع بخط العرض ثم خط الطول بالدرجات: ⁦48.858370, 2.294481⁩.</translation>
    </message>
    <message>
        <source>Nothing has been changed yet.</source>
        <translation>لم يتغيّر شيء بعد.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::ExifWindow</name>
    <message>
        <source>Exif Data</source>
        <translation>بيانات Exif</translation>
    </message>
    <message>
        <source>It was ended; the photos that were not saved yet are as they were.</source>
        <translation>أُوقفت العملية، وبقيت الصور التي لم تُحفظ بعدُ كما كانت.</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>المعلومات</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>التحرير</translation>
    </message>
    <message>
        <source>Photos that failed</source>
        <translation>الصور التي فشلت معالجتها</translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>لا صور</numerusform>
            <numerusform>صورة واحدة</numerusform>
            <numerusform>صورتان</numerusform>
            <numerusform>%n صور</numerusform>
            <numerusform>%n صورة</numerusform>
            <numerusform>%n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading photos</source>
        <translation>قراءة الصور</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos</source>
        <translation>
            <numerusform>%1 من %2 صورة</numerusform>
            <numerusform>%1 من صورة واحدة (%2)</numerusform>
            <numerusform>%1 من صورتين (%2)</numerusform>
            <numerusform>%1 من %2 صور</numerusform>
            <numerusform>%1 من %2 صورة</numerusform>
            <numerusform>%1 من %2 صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Saving photos</source>
        <translation>حفظ الصور</translation>
    </message>
    <message>
        <source>1 photo was saved.</source>
        <translation>حُفظت صورة واحدة.</translation>
    </message>
    <message numerus="yes">
        <source>%n photos were saved.</source>
        <translation>
            <numerusform>لم تُحفظ أي صورة.</numerusform>
            <numerusform>حُفظت صورة واحدة.</numerusform>
            <numerusform>حُفظت صورتان.</numerusform>
            <numerusform>حُفظت %n صور.</numerusform>
            <numerusform>حُفظت %n صورة.</numerusform>
            <numerusform>حُفظت %n صورة.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>%1 These were left as they were:</source>
        <extracomment>The first says how many photos were saved; the others follow as a list.</extracomment>
        <translation>%1 تُركت هذه كما كانت:</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A photo&apos;s name, and what is wrong with it, which is a sentence.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Discard Changes</source>
        <translation>تجاهل التغييرات</translation>
    </message>
    <message>
        <source>What was typed has not been saved and will be lost.</source>
        <translation>ما كُتب لم يُحفظ وسيُفقد.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>تجاهل</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Reading was cancelled. Choose photos to read them.</source>
        <translation>أُلغيت القراءة. اختر صورًا لقراءتها.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::PersonalDataDialog</name>
    <message>
        <source>Where it was taken</source>
        <translation>مكان الالتقاط</translation>
    </message>
    <message>
        <source>Who took it and who is in it</source>
        <translation>من التقطها ومن يظهر فيها</translation>
    </message>
    <message>
        <source>Which camera it was</source>
        <translation>الكاميرا المستخدمة</translation>
    </message>
    <message>
        <source>What the camera&apos;s maker has noted</source>
        <translation>ملاحظات صانع الكاميرا</translation>
    </message>
    <message>
        <source>Remove Location and Personal Data</source>
        <translation>إزالة الموقع والبيانات الشخصية</translation>
    </message>
    <message>
        <source>What will be removed</source>
        <translation>ما سيُزال</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>This is removed for good, unless the original is kept. Title, description, copyright and date stay.</source>
        <translation>يُزال هذا نهائيًا ما لم يُحتفظ بالملف الأصلي. ويبقى العنوان والوصف وحقوق النشر والتاريخ.</translation>
    </message>
    <message>
        <source>The photos have no location and no personal data that is known here.</source>
        <translation>ليس في الصور موقع ولا بيانات شخصية معروفة هنا.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>أزل</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
    </message>
    <message>
        <source>A file holds more than the picture, such as a second one or a film, which stays and may hold such data too.</source>
        <translation>يحتوي أحد الملفات على أكثر من الصورة، كصورة ثانية أو مقطع فيديو، وهذا يبقى وقد يحتوي على بيانات كهذه أيضًا.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Exif::TagView</name>
    <message>
        <source>Search names and values</source>
        <translation>ابحث في الأسماء والقيم</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>البحث</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>البيانات</translation>
    </message>
    <message>
        <source>Nothing is found.</source>
        <translation>لم يُعثر على شيء.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>الملخص</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>فارغة</translation>
    </message>
    <message>
        <source>1 value</source>
        <translation>قيمة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n values</source>
        <translation>
            <numerusform>%n قيمة</numerusform>
            <numerusform>قيمة واحدة (%n)</numerusform>
            <numerusform>قيمتان (%n)</numerusform>
            <numerusform>%n قيم</numerusform>
            <numerusform>%n قيمةً</numerusform>
            <numerusform>%n قيمة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MenuExtension::ProgressRow</name>
    <message>
        <source>a few seconds left</source>
        <translation>بقيت بضع ثوانٍ</translation>
    </message>
    <message numerus="yes">
        <source>about %n seconds left</source>
        <translation>
            <numerusform>بقي أقل من ثانية</numerusform>
            <numerusform>بقيت ثانية تقريبًا</numerusform>
            <numerusform>بقيت ثانيتان تقريبًا</numerusform>
            <numerusform>بقيت %n ثوانٍ تقريبًا</numerusform>
            <numerusform>بقيت %n ثانية تقريبًا</numerusform>
            <numerusform>بقيت %n ثانية تقريبًا</numerusform>
        </translation>
    </message>
    <message>
        <source>about a minute left</source>
        <translation>بقيت دقيقة تقريبًا</translation>
    </message>
    <message numerus="yes">
        <source>about %n minutes left</source>
        <translation>
            <numerusform>بقي أقل من دقيقة</numerusform>
            <numerusform>بقيت دقيقة تقريبًا</numerusform>
            <numerusform>بقيت دقيقتان تقريبًا</numerusform>
            <numerusform>بقيت %n دقائق تقريبًا</numerusform>
            <numerusform>بقيت %n دقيقة تقريبًا</numerusform>
            <numerusform>بقيت %n دقيقة تقريبًا</numerusform>
        </translation>
    </message>
    <message>
        <source>about an hour left</source>
        <translation>بقيت ساعة تقريبًا</translation>
    </message>
    <message numerus="yes">
        <source>about %n hours left</source>
        <translation>
            <numerusform>بقي أقل من ساعة</numerusform>
            <numerusform>بقيت ساعة تقريبًا</numerusform>
            <numerusform>بقيت ساعتان تقريبًا</numerusform>
            <numerusform>بقيت %n ساعات تقريبًا</numerusform>
            <numerusform>بقيت %n ساعة تقريبًا</numerusform>
            <numerusform>بقيت %n ساعة تقريبًا</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
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
        <translation>قبل</translation>
    </message>
    <message>
        <source>After</source>
        <translation>بعد</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3</source>
        <translation>⁦%1 × %2⁩ بكسل · %3</translation>
    </message>
    <message>
        <source>Looking…</source>
        <translation>يجري الفحص…</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3 · small enough already</source>
        <translation>⁦%1 × %2⁩ بكسل · %3 · صغيرة بما يكفي أصلًا</translation>
    </message>
    <message>
        <source>%1 × %2 pixels · %3 · %4 %</source>
        <extracomment>The last is how many bytes are left of hundred.</extracomment>
        <translation>⁦%1 × %2⁩ بكسل · %3 · %4 ٪</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::ResizeWindow</name>
    <message>
        <source>Resize Photos</source>
        <translation>تغيير حجم الصور</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>غيّر الحجم</translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <translation>
            <numerusform>لا صور</numerusform>
            <numerusform>صورة واحدة</numerusform>
            <numerusform>صورتان</numerusform>
            <numerusform>%n صور</numerusform>
            <numerusform>%n صورة</numerusform>
            <numerusform>%n صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Photos that failed</source>
        <translation>الصور التي فشلت معالجتها</translation>
    </message>
    <message>
        <source>Resizing photos</source>
        <translation>تغيير حجم الصور</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos</source>
        <translation>
            <numerusform>%1 من %2 صورة</numerusform>
            <numerusform>%1 من صورة واحدة (%2)</numerusform>
            <numerusform>%1 من صورتين (%2)</numerusform>
            <numerusform>%1 من %2 صور</numerusform>
            <numerusform>%1 من %2 صورة</numerusform>
            <numerusform>%1 من %2 صورة</numerusform>
        </translation>
    </message>
    <message>
        <source>It was ended.</source>
        <translation>أُوقفت العملية.</translation>
    </message>
    <message>
        <source>1 photo was resized: %1 became %2.</source>
        <translation>غُيّر حجم صورة واحدة: من %1 إلى %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n photos were resized: %1 became %2.</source>
        <translation>
            <numerusform>لم يُغيّر حجم أي صورة: من %1 إلى %2.</numerusform>
            <numerusform>غُيّر حجم صورة واحدة: من %1 إلى %2.</numerusform>
            <numerusform>غُيّر حجم صورتين: من %1 إلى %2.</numerusform>
            <numerusform>غُيّر حجم %n صور: من %1 إلى %2.</numerusform>
            <numerusform>غُيّر حجم %n صورة: من %1 إلى %2.</numerusform>
            <numerusform>غُيّر حجم %n صورة: من %1 إلى %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>1 is small enough already.</source>
        <translation>صورة واحدة صغيرة بما يكفي أصلًا.</translation>
    </message>
    <message numerus="yes">
        <source>%n are small enough already.</source>
        <translation>
            <numerusform>لا صور صغيرة بما يكفي أصلًا.</numerusform>
            <numerusform>صورة واحدة صغيرة بما يكفي أصلًا.</numerusform>
            <numerusform>صورتان صغيرتان بما يكفي أصلًا.</numerusform>
            <numerusform>%n صور صغيرة بما يكفي أصلًا.</numerusform>
            <numerusform>%n صورة صغيرة بما يكفي أصلًا.</numerusform>
            <numerusform>%n صورة صغيرة بما يكفي أصلًا.</numerusform>
        </translation>
    </message>
    <message>
        <source>These were left as they are:</source>
        <translation>تُركت هذه كما هي:</translation>
    </message>
    <message>
        <source>Photos that failed:</source>
        <translation>الصور التي فشلت معالجتها:</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::SizeRow</name>
    <message>
        <source>Free</source>
        <translation>مخصص</translation>
    </message>
    <message>
        <source>What the size is measured by</source>
        <translation>ما يُقاس به الحجم</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Resizing::TargetRows</name>
    <message>
        <source>Choose Folder…</source>
        <translation>اختر مجلدًا…</translation>
    </message>
    <message>
        <source>Beside the originals</source>
        <translation>بجانب الصور الأصلية</translation>
    </message>
    <message>
        <source>In a folder</source>
        <translation>في مجلد</translation>
    </message>
    <message>
        <source>In their place; the originals go to the trash</source>
        <translation>مكان الصور الأصلية، وتُنقل هي إلى المهملات</translation>
    </message>
    <message>
        <source>None is chosen yet</source>
        <translation>لم يُختر مجلد بعد</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>{name} is the photo&apos;s own name, {width} and {height} are its new size in pixels.</source>
        <translation>يمثّل {name} اسم الصورة نفسها، و{width} و{height} عرضها وارتفاعها الجديدين بالبكسل.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>الحفظ</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>This is no name yet</source>
        <translation>ليس هذا اسمًا بعد</translation>
    </message>
    <message>
        <source>Choose the folder that the resized photos go to.</source>
        <translation>اختر المجلد الذي تُحفظ فيه الصور بعد تغيير حجمها.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>اختر</translation>
    </message>
    <message>
        <source>Choose the folder first.</source>
        <translation>اختر المجلد أولًا.</translation>
    </message>
    <message>
        <source>The name needs {name} in it, which is the photo&apos;s own name, and no slash.</source>
        <translation>يجب أن يحوي الاسم {name}، أي اسم الصورة نفسها، وألا يحوي شرطة مائلة.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::SimilarPhotos::SimilarityRow</name>
    <message>
        <source>Similarity</source>
        <translation>التشابه</translation>
    </message>
    <message>
        <source>How much alike photos have to be to count as duplicates</source>
        <translation>مدى التشابه اللازم لاعتبار الصور مكررة</translation>
    </message>
    <message>
        <source>Alike</source>
        <translation>متشابهة</translation>
    </message>
    <message>
        <source>The Same</source>
        <translation>متطابقة</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 ٪</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::DoneNotice</name>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>أظهر</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::ItemCard</name>
    <message>
        <source>Folder</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>وصلة</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::TransferRunner</name>
    <message>
        <source>Choose the folder to move %1 to.</source>
        <translation>اختر المجلد الذي تريد نقل %1 إليه.</translation>
    </message>
    <message>
        <source>Choose the folder to copy %1 to.</source>
        <translation>اختر المجلد الذي تريد نسخ %1 إليه.</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>انقل</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>انسخ</translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>لم يُنقل شيء.</translation>
    </message>
    <message>
        <source>Nothing was copied.</source>
        <translation>لم يُنسخ شيء.</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>تم النقل</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>تم النسخ</translation>
    </message>
    <message>
        <source>Putting everything back</source>
        <translation>إعادة كل شيء إلى مكانه</translation>
    </message>
    <message>
        <source>Not everything could be put back.</source>
        <translation>تعذّرت إعادة بعض العناصر إلى مكانها.</translation>
    </message>
</context>
<context>
    <name>MenuExtension::Transfers::TransferWindow</name>
    <message>
        <source>Do the same for all the rest</source>
        <translation>افعل الشيء نفسه مع كل ما تبقّى</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>تخطَّ</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>استبدل</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>ادمج</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>أبقِ كليهما</translation>
    </message>
    <message>
        <source>What was not done</source>
        <translation>ما لم يُنجز</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>أظهر</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
    </message>
    <message>
        <source>Go On With the Others</source>
        <translation>تابع مع البقية</translation>
    </message>
    <message numerus="yes">
        <source>Looking at %1 items</source>
        <translation>
            <numerusform>فحص %1 عنصر</numerusform>
            <numerusform>فحص عنصر واحد (%1)</numerusform>
            <numerusform>فحص عنصرين (%1)</numerusform>
            <numerusform>فحص %1 عناصر</numerusform>
            <numerusform>فحص %1 عنصرًا</numerusform>
            <numerusform>فحص %1 عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing to the disk</source>
        <translation>الكتابة إلى القرص</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>%1 · %2 of %3</source>
        <translation>%1 · %2 من %3</translation>
    </message>
    <message>
        <source>There is a folder %1 in %2 already.</source>
        <translation>يوجد مجلد باسم %1 في %2 من قبل.</translation>
    </message>
    <message>
        <source>There is a file %1 in %2 already.</source>
        <translation>يوجد ملف باسم %1 في %2 من قبل.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>الجديد</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>الموجود من قبل</translation>
    </message>
    <message>
        <source>Not everything can be done.</source>
        <translation>لا يمكن إنجاز كل شيء.</translation>
    </message>
</context>
<context>
    <name>Metainfo</name>
    <message>
        <source>Put actions into your file manager&apos;s right-click menu</source>
        <translation>أضف إجراءات إلى قائمة النقر الأيمن في مدير الملفات</translation>
    </message>
    <message>
        <source>Orvik Menu adds actions to the right-click menu of GNOME Files, Nemo, Caja, Thunar and Dolphin, for items inside folders that you choose.</source>
        <translation>يضيف Orvik Menu إجراءات إلى قائمة النقر الأيمن في GNOME Files وNemo وCaja وThunar وDolphin، للعناصر الموجودة في المجلدات التي تختارها.</translation>
    </message>
    <message>
        <source>The control panel lets you:</source>
        <translation>تتيح لك لوحة التحكم:</translation>
    </message>
    <message>
        <source>pick the actions that show: open a terminal, create a text file, copy a path, send an item by mail and more</source>
        <translation>اختيار الإجراءات التي تظهر: فتح طرفية، وإنشاء ملف نصي، ونسخ مسار، وإرسال عنصر بالبريد، وغير ذلك</translation>
    </message>
    <message>
        <source>choose the folders that count, and leave out single ones within them</source>
        <translation>اختيار المجلدات المشمولة، واستثناء بعض ما بداخلها</translation>
    </message>
    <message>
        <source>show the actions side by side or in one submenu, with icons or without</source>
        <translation>عرض الإجراءات متجاورة أو في قائمة فرعية واحدة، بأيقونات أو من دونها</translation>
    </message>
    <message>
        <source>switch the companion that brings them into the file manager on and off</source>
        <translation>تفعيل البرنامج المرافق الذي يضعها في مدير الملفات أو تعطيله</translation>
    </message>
    <message>
        <source>A change is in the next menu that you open, without restarting anything.</source>
        <translation>يظهر كل تغيير في القائمة التالية التي تفتحها، من دون إعادة تشغيل أي شيء.</translation>
    </message>
    <message>
        <source>The actions that the menu shows, each with a switch</source>
        <translation>الإجراءات التي تعرضها القائمة، ولكل منها مفتاح</translation>
    </message>
    <message>
        <source>All screens of the control panel in light colours</source>
        <translation>كل شاشات لوحة التحكم بالألوان الفاتحة</translation>
    </message>
    <message>
        <source>All screens of the control panel in dark colours</source>
        <translation>كل شاشات لوحة التحكم بالألوان الداكنة</translation>
    </message>
</context>
<context>
    <name>ModifiedText</name>
    <message>
        <source>Today %1</source>
        <translation>اليوم %1</translation>
    </message>
    <message>
        <source>Yesterday %1</source>
        <translation>أمس %1</translation>
    </message>
</context>
<context>
    <name>NotSentAlert</name>
    <message>
        <source>One item in it cannot be packed:</source>
        <translation>تعذّر ضغط عنصر واحد فيه:</translation>
    </message>
    <message numerus="yes">
        <source>%1 items in it cannot be packed:</source>
        <translation>
            <numerusform>تعذّر ضغط %1 عنصر فيه:</numerusform>
            <numerusform>تعذّر ضغط عنصر واحد (%1) فيه:</numerusform>
            <numerusform>تعذّر ضغط عنصرين (%1) فيه:</numerusform>
            <numerusform>تعذّر ضغط %1 عناصر فيه:</numerusform>
            <numerusform>تعذّر ضغط %1 عنصرًا فيه:</numerusform>
            <numerusform>تعذّر ضغط %1 عنصر فيه:</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>و%1 عنصر آخر</numerusform>
            <numerusform>وعنصر آخر (%1)</numerusform>
            <numerusform>وعنصران آخران (%1)</numerusform>
            <numerusform>و%1 عناصر أخرى</numerusform>
            <numerusform>و%1 عنصرًا آخر</numerusform>
            <numerusform>و%1 عنصر آخر</numerusform>
        </translation>
    </message>
    <message>
        <source>It cannot be read: %1</source>
        <translation>تعذّرت قراءته: %1</translation>
    </message>
    <message>
        <source>The disk is full: there is too little room left in %1 to prepare it.</source>
        <translation>القرص ممتلئ: لم تبقَ في %1 مساحة كافية لتحضيره.</translation>
    </message>
    <message>
        <source>It cannot be prepared in %1: %2</source>
        <translation>تعذّر تحضيره في %1: %2</translation>
    </message>
    <message>
        <source>%1 was not sent.</source>
        <translation>لم يُرسَل %1.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>No mail program could be opened with it. Check which mail program is set as the default, then send it again.</source>
        <translation>تعذّر فتح برنامج بريد لإرساله. تحقق من برنامج البريد المبدئي، ثم أعد الإرسال.</translation>
    </message>
</context>
<context>
    <name>OpenNewFinderWindow</name>
    <message>
        <source>No window can be opened on %1: %2.</source>
        <translation>تعذّر فتح نافذة تعرض %1: %2.</translation>
    </message>
    <message>
        <source>The file manager does not answer, so there may be no window on %1.</source>
        <translation>لا يستجيب مدير الملفات، فقد لا تُفتح نافذة تعرض %1.</translation>
    </message>
    <message>
        <source>No file manager was found to open a window on %1.</source>
        <translation>لم يُعثر على مدير ملفات لفتح نافذة تعرض %1.</translation>
    </message>
</context>
<context>
    <name>OpenSystemPreferences</name>
    <message>
        <source>No program for the settings of the desktop was found. Install the one of your desktop.</source>
        <translation>لم يُعثر على برنامج لإعدادات سطح المكتب. ثبّت البرنامج الخاص بسطح مكتبك.</translation>
    </message>
</context>
<context>
    <name>OpenTerminal</name>
    <message>
        <source>No terminal can be opened in %1: %2.</source>
        <translation>تعذّر فتح طرفية في %1: %2.</translation>
    </message>
    <message>
        <source>No terminal was found. Install one, or choose one in the settings of the desktop.</source>
        <translation>لم يُعثر على طرفية. ثبّت واحدة، أو اختر واحدة في إعدادات سطح المكتب.</translation>
    </message>
</context>
<context>
    <name>Photos</name>
    <message>
        <source>cannot be read: what reads pictures could not be started; install Orvik Menu and libvips again</source>
        <translation>تعذّرت قراءته: لم يبدأ قارئ الصور، أعد تثبيت Orvik Menu وlibvips</translation>
    </message>
    <message>
        <source>takes too long to read</source>
        <translation>تستغرق قراءته وقتًا أطول من اللازم</translation>
    </message>
    <message>
        <source>cannot be read: it is damaged, or needs more memory than a picture may take</source>
        <translation>تعذّرت قراءته: هو تالف، أو يحتاج إلى ذاكرة أكبر مما يُسمح به لصورة</translation>
    </message>
    <message>
        <source>cannot be read: what reads pictures has failed</source>
        <translation>تعذّرت قراءته: فشل قارئ الصور</translation>
    </message>
    <message>
        <source>cannot be read: this is no question</source>
        <translation>تعذّرت قراءته: لم يُفهم الطلب</translation>
    </message>
    <message>
        <source>holds several pictures, and only one would be compared</source>
        <translation>يحوي عدة صور، ولن تُقارَن منها إلا واحدة</translation>
    </message>
    <message>
        <source>is no picture of a kind that can be read here</source>
        <translation>ليس صورة من نوع يمكن قراءته هنا</translation>
    </message>
    <message>
        <source>cannot be read: it is damaged or ends too early</source>
        <translation>تعذّرت قراءته: هو تالف أو غير مكتمل</translation>
    </message>
    <message>
        <source>is too large: it has %1 × %2 pixels</source>
        <translation>كبير جدًا: أبعاده ⁦%1 × %2⁩ بكسل</translation>
    </message>
    <message>
        <source>cannot be opened</source>
        <translation>تعذّر فتحه</translation>
    </message>
    <message>
        <source>cannot be shown: it takes too much time or memory</source>
        <translation>تعذّر عرضه: يستغرق وقتًا أو ذاكرة أكثر من اللازم</translation>
    </message>
    <message>
        <source>cannot be resized: its worker gave no answer</source>
        <translation>تعذّر تغيير حجمه: لم يستجب البرنامج الذي يعالجه</translation>
    </message>
    <message>
        <source>cannot be resized: this is no job</source>
        <translation>تعذّر تغيير حجمه: لم تُفهم المهمة</translation>
    </message>
    <message>
        <source>cannot be resized: it is damaged or ends too early</source>
        <translation>تعذّر تغيير حجمه: هو تالف أو غير مكتمل</translation>
    </message>
    <message>
        <source>cannot be resized: its format cannot be written here</source>
        <translation>تعذّر تغيير حجمه: لا يمكن كتابة صيغته هنا</translation>
    </message>
    <message>
        <source>cannot be made that small</source>
        <translation>لا يمكن تصغيره إلى هذا الحد</translation>
    </message>
    <message>
        <source>cannot be resized: it holds several pictures, and only one would be left</source>
        <translation>تعذّر تغيير حجمه: يحوي عدة صور، ولن تبقى منها إلا واحدة</translation>
    </message>
    <message>
        <source>cannot be saved: there is no room for it</source>
        <translation>تعذّر حفظه: لا توجد مساحة له</translation>
    </message>
    <message>
        <source>cannot be resized: without ExifTool it would lose its Exif data</source>
        <translation>تعذّر تغيير حجمه: سيفقد بيانات Exif من دون ExifTool</translation>
    </message>
    <message>
        <source>cannot be resized in its place: a second picture or a film in it would be lost</source>
        <translation>تعذّر تغيير حجمه في مكانه: ستُفقد صورة ثانية أو مقطع فيديو بداخله</translation>
    </message>
</context>
<context>
    <name>ProblemTool::ProblemWindow</name>
    <message>
        <source>What it said: %1</source>
        <translation>نص الرسالة: %1</translation>
    </message>
    <message>
        <source>There is nothing to repair in the settings.</source>
        <translation>لا شيء في الإعدادات يحتاج إلى إصلاح.</translation>
    </message>
    <message>
        <source>Nothing in the settings explains it. They are as they were.</source>
        <translation>لا شيء في الإعدادات يفسّر ذلك، وقد بقيت كما كانت.</translation>
    </message>
    <message>
        <source>Repair Settings mends this.</source>
        <translation>زر «أصلح الإعدادات» يصلح هذا.</translation>
    </message>
    <message>
        <source>That may not be why it stopped. Repair Settings mends the settings.</source>
        <translation>قد لا يكون هذا سبب التوقف. زر «أصلح الإعدادات» يصلح الإعدادات.</translation>
    </message>
    <message>
        <source>A copy of the settings as they are now is kept.</source>
        <translation>ويُحتفظ بنسخة من الإعدادات بحالتها الآن.</translation>
    </message>
    <message>
        <source>The settings of Orvik Menu</source>
        <translation>إعدادات Orvik Menu</translation>
    </message>
    <message>
        <source>Orvik Menu had to stop</source>
        <translation>اضطر Orvik Menu إلى التوقف</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>أغلق</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation>افتح من جديد</translation>
    </message>
    <message>
        <source>Repair Settings</source>
        <translation>أصلح الإعدادات</translation>
    </message>
    <message>
        <source>The settings could not be repaired: they cannot be read.</source>
        <translation>تعذّر إصلاح الإعدادات: لا يمكن قراءتها.</translation>
    </message>
    <message>
        <source>The settings could not be repaired: %1.</source>
        <translation>تعذّر إصلاح الإعدادات: %1.</translation>
    </message>
    <message>
        <source>Orvik Menu could not be started.</source>
        <translation>تعذّر بدء Orvik Menu.</translation>
    </message>
    <message>
        <source>Orvik Menu is still ending. It opens again right after.</source>
        <translation>ما زال Orvik Menu قيد الإنهاء. سيُفتح من جديد بعد ذلك مباشرة.</translation>
    </message>
</context>
<context>
    <name>Repair</name>
    <message>
        <source>The list of folders is no list.</source>
        <translation>قيمة «قائمة المجلدات» ليست قائمة.</translation>
    </message>
    <message>
        <source>What is no list is removed.</source>
        <translation>يُزال ما ليس قائمة.</translation>
    </message>
    <message>
        <source>1 entry of the list of folders is no path.</source>
        <translation>مدخل واحد من قائمة المجلدات ليس مسارًا.</translation>
    </message>
    <message>
        <source>%1 entries of the list of folders are no paths.</source>
        <translation>عدد مدخلات قائمة المجلدات التي ليست مسارات: %1.</translation>
    </message>
    <message>
        <source>What is no path is removed.</source>
        <translation>يُزال ما ليس مسارًا.</translation>
    </message>
    <message>
        <source>The list that says which folders are active does not match the list of folders.</source>
        <translation>القائمة التي تبيّن المجلدات النشطة لا توافق قائمة المجلدات.</translation>
    </message>
    <message>
        <source>A folder without an entry of its own becomes active.</source>
        <translation>يصبح المجلد الذي ليس له مدخل خاص به نشطًا.</translation>
    </message>
    <message>
        <source>The older list of menu items is no list.</source>
        <translation>قيمة «قائمة عناصر القائمة» القديمة ليست قائمة.</translation>
    </message>
    <message>
        <source>The older list of menu items has entries that are no numbers.</source>
        <translation>في القائمة القديمة لعناصر القائمة مدخلات ليست أرقامًا.</translation>
    </message>
    <message>
        <source>A menu item without a number is switched on.</source>
        <translation>يُفعّل عنصر القائمة الذي ليس له رقم.</translation>
    </message>
</context>
<context>
    <name>ResizePhotos</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>وصلة تؤدي إلى خارج المجلدات التي يعمل فيها Orvik Menu</translation>
    </message>
    <message>
        <source>%1 %2.</source>
        <extracomment>A photo&apos;s name, and what is wrong with it: “Harbour.jpg cannot be resized: it is damaged.”</extracomment>
        <translation>الملف «⁨%1⁩» %2.</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2.</source>
        <translation>تعذّر فتح «⁨%1⁩»: %2.</translation>
    </message>
    <message>
        <source>%1 cannot be saved: %2.</source>
        <translation>تعذّر حفظ «⁨%1⁩»: %2.</translation>
    </message>
    <message>
        <source>%1 stays as it is, since it cannot be moved to the trash: %2</source>
        <translation>بقي «⁨%1⁩» كما هو، لأنه تعذّر نقله إلى المهملات: %2</translation>
    </message>
    <message>
        <source>%1 is in the trash, but the smaller one could not take its place: %2.</source>
        <translation>نُقل «⁨%1⁩» إلى المهملات، لكن تعذّر وضع النسخة المصغّرة مكانه: %2.</translation>
    </message>
    <message>
        <source>%1 takes too long to resize.</source>
        <translation>يستغرق تغيير حجم «⁨%1⁩» وقتًا أطول من اللازم.</translation>
    </message>
    <message>
        <source>%1 cannot be resized: it takes too much memory, or is damaged.</source>
        <translation>تعذّر تغيير حجم «⁨%1⁩»: يحتاج إلى ذاكرة أكثر من اللازم، أو هو تالف.</translation>
    </message>
    <message>
        <source>%1 cannot be resized: the part that reads pictures does not start. Install the package libvips42.</source>
        <translation>تعذّر تغيير حجم «⁨%1⁩»: لا يبدأ الجزء الذي يقرأ الصور. ثبّت الحزمة libvips42.</translation>
    </message>
    <message>
        <source>%1 stays as it is: another program has changed it meanwhile.</source>
        <translation>بقي «⁨%1⁩» كما هو: غيّره برنامج آخر في هذه الأثناء.</translation>
    </message>
</context>
<context>
    <name>SendViaMail</name>
    <message>
        <source>%1 cannot be sent: its name or that of a folder above it has characters that are no text. Rename it and try again.</source>
        <translation>تعذّر إرسال %1: يحوي اسمه أو اسم مجلد أعلى منه محارف ليست نصًا. غيّر الاسم ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>%1 cannot be sent: the settings of Orvik Menu cannot be written. Is the disk full?</source>
        <translation>تعذّر إرسال %1: لا يمكن كتابة إعدادات Orvik Menu. هل القرص ممتلئ؟</translation>
    </message>
</context>
<context>
    <name>SetAsWallpaper</name>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>تعذّرت قراءة %1: %2.</translation>
    </message>
    <message>
        <source>The desktop did not take %1 as its wallpaper.</source>
        <translation>لم يقبل سطح المكتب %1 خلفيةً له.</translation>
    </message>
    <message>
        <source>%1 cannot be set as the wallpaper: Orvik Menu does not know how this desktop sets it.</source>
        <translation>تعذّر تعيين %1 خلفيةً: لا يعرف Orvik Menu كيف تُعيَّن الخلفية في سطح المكتب هذا.</translation>
    </message>
</context>
<context>
    <name>ShowcaseCatalogue</name>
    <message>
        <source>Photo &amp; Video</source>
        <translation>الصور والفيديو</translation>
    </message>
    <message>
        <source>Turn hundreds of small photos into one large picture that stays sharp however close you look.</source>
        <translation>حوّل مئات الصور الصغيرة إلى صورة كبيرة واحدة تبقى واضحة مهما اقتربت منها.</translation>
    </message>
    <message>
        <source>Trim, join and turn your video clips without losing quality or waiting for an export.</source>
        <translation>قصّ مقاطع الفيديو وادمجها ودوّرها من دون فقدان الجودة أو انتظار التصدير.</translation>
    </message>
    <message>
        <source>Warm or cool the light of a whole photo shoot at once, and compare it with the original as you go.</source>
        <translation>اجعل إضاءة جلسة تصوير كاملة أدفأ أو أبرد دفعة واحدة، وقارنها بالأصل وأنت تعمل.</translation>
    </message>
    <message>
        <source>Record your screen, your voice and your camera together, ready to share the moment you stop.</source>
        <translation>سجّل شاشتك وصوتك والكاميرا معًا، ليكون التسجيل جاهزًا للمشاركة لحظة توقفك.</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>الإنتاجية</translation>
    </message>
    <message>
        <source>Pick any colour on your screen and keep your palettes in one place, ready to paste into your work.</source>
        <translation>التقط أي لون على شاشتك واحفظ لوحات ألوانك في مكان واحد، جاهزةً للصقها في عملك.</translation>
    </message>
    <message>
        <source>Lifestyle</source>
        <translation>أسلوب الحياة</translation>
    </message>
    <message>
        <source>Keep well at your desk with gentle reminders to drink, to stretch and to look into the distance.</source>
        <translation>حافظ على صحتك أمام المكتب بتذكيرات لطيفة لتشرب وتتمدد وتنظر بعيدًا.</translation>
    </message>
    <message>
        <source>Utilities</source>
        <translation>الأدوات</translation>
    </message>
    <message>
        <source>Find any file as you type, even inside archives and on disks that are not plugged in.</source>
        <translation>اعثر على أي ملف وأنت تكتب، حتى داخل الأرشيفات وعلى الأقراص غير الموصولة.</translation>
    </message>
    <message>
        <source>Collect notes, lists and clippings in a notebook that is always one keystroke away.</source>
        <translation>اجمع الملاحظات والقوائم والقصاصات في دفتر لا يبعد عنك إلا ضغطة مفتاح.</translation>
    </message>
    <message>
        <source>See every calendar and every deadline on one timeline, and move your plans until the week fits.</source>
        <translation>شاهد كل التقاويم والمواعيد النهائية على خط زمني واحد، وحرّك خططك حتى يتسع لها الأسبوع.</translation>
    </message>
    <message>
        <source>See at a glance what fills your disk, and clear away duplicates, leftovers and old downloads.</source>
        <translation>اعرف بنظرة واحدة ما يملأ قرصك، وتخلّص من المكررات والمخلّفات والتنزيلات القديمة.</translation>
    </message>
    <message>
        <source>Business</source>
        <translation>الأعمال</translation>
    </message>
    <message>
        <source>Write an invoice in a minute, send it as a PDF, and always know who has yet to pay.</source>
        <translation>اكتب فاتورة في دقيقة، وأرسلها بصيغة PDF، واعرف دائمًا من لم يدفع بعد.</translation>
    </message>
    <message>
        <source>Rename thousands of files at once by rules that you can read, with a preview of every new name.</source>
        <translation>غيّر أسماء آلاف الملفات دفعة واحدة بقواعد مفهومة، مع معاينة كل اسم جديد.</translation>
    </message>
    <message>
        <source>Keep an eye on processor, memory and network with a small, quiet meter in the menu bar.</source>
        <translation>راقب المعالج والذاكرة والشبكة بمقياس صغير هادئ في شريط القوائم.</translation>
    </message>
    <message>
        <source>Keep everything that you copy, and paste any of it again by typing a few of its letters.</source>
        <translation>احتفظ بكل ما تنسخه، والصق أيًا منه من جديد بكتابة بضعة من حروفه.</translation>
    </message>
    <message>
        <source>Lock your private folders with strong encryption, and open them again with a single password.</source>
        <translation>أقفل مجلداتك الخاصة بتعمية قوية، وافتحها من جديد بكلمة سر واحدة.</translation>
    </message>
    <message>
        <source>Dim everything but the window you work in, so that your attention stays where it belongs.</source>
        <translation>عتّم كل شيء ما عدا النافذة التي تعمل فيها، ليبقى انتباهك حيث يجب.</translation>
    </message>
    <message>
        <source>Work in focused stretches with a break after each, and see at the end of the week where the hours went.</source>
        <translation>اعمل في فترات تركيز تعقب كلًا منها استراحة، واعرف في نهاية الأسبوع أين ذهبت الساعات.</translation>
    </message>
</context>
<context>
    <name>SizeRow</name>
    <message>
        <source>Longest side</source>
        <translation>الأطول</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> بكسل</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>النسبة المئوية</translation>
    </message>
    <message>
        <source> %</source>
        <translation> ٪</translation>
    </message>
    <message>
        <source>Each file at most</source>
        <translation>الحد الأقصى لكل ملف</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> ك.ب</translation>
    </message>
    <message>
        <source>All together at most</source>
        <translation>الحد الأقصى للكل معًا</translation>
    </message>
    <message>
        <source>For a screen</source>
        <translation>للشاشة</translation>
    </message>
    <message>
        <source>For mail</source>
        <translation>للبريد</translation>
    </message>
    <message>
        <source>Half</source>
        <translation>النصف</translation>
    </message>
</context>
<context>
    <name>SizeText</name>
    <message>
        <source>1 byte</source>
        <translation>بايت واحد</translation>
    </message>
</context>
<context>
    <name>TagView</name>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>المؤلف</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>حقوق النشر</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>تاريخ الالتقاط</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>الموقع</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>الكلمات المفتاحية</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>الكاميرا</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>العدسة</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>زمن التعريض</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>فتحة العدسة</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>حساسية ISO</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>البعد البؤري</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>الفلاش</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>الحجم بالبكسل</translation>
    </message>
    <message>
        <source>Kind of file</source>
        <translation>نوع الملف</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>ملف تعريف الألوان</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>Different values</source>
        <translation>قيم مختلفة</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>وصلة تؤدي إلى خارج المجلدات التي يعمل فيها Orvik Menu</translation>
    </message>
    <message>
        <source>it can only be read</source>
        <translation>هو للقراءة فقط</translation>
    </message>
    <message>
        <source>it is not known why</source>
        <translation>السبب غير معروف</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«⁨%1⁩»</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 عنصر</numerusform>
            <numerusform>عنصر واحد (%1)</numerusform>
            <numerusform>عنصرين (%1)</numerusform>
            <numerusform>%1 عناصر</numerusform>
            <numerusform>%1 عنصرًا</numerusform>
            <numerusform>%1 عنصر</numerusform>
        </translation>
    </message>
    <message>
        <source>Moving %1 to %2</source>
        <translation>نقل %1 إلى %2</translation>
    </message>
    <message>
        <source>Copying %1 to %2</source>
        <translation>نسخ %1 إلى %2</translation>
    </message>
    <message>
        <source>%1 was moved to %2.</source>
        <translation>نُقل %1 إلى %2.</translation>
    </message>
    <message>
        <source>%1 was copied to %2.</source>
        <translation>نُسخ %1 إلى %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were moved to %2.</source>
        <translation>
            <numerusform>نُقل %1 عنصر إلى %2.</numerusform>
            <numerusform>نُقل عنصر واحد (%1) إلى %2.</numerusform>
            <numerusform>نُقل عنصران (%1) إلى %2.</numerusform>
            <numerusform>نُقلت %1 عناصر إلى %2.</numerusform>
            <numerusform>نُقل %1 عنصرًا إلى %2.</numerusform>
            <numerusform>نُقل %1 عنصر إلى %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 items were copied to %2.</source>
        <translation>
            <numerusform>نُسخ %1 عنصر إلى %2.</numerusform>
            <numerusform>نُسخ عنصر واحد (%1) إلى %2.</numerusform>
            <numerusform>نُسخ عنصران (%1) إلى %2.</numerusform>
            <numerusform>نُسخت %1 عناصر إلى %2.</numerusform>
            <numerusform>نُسخ %1 عنصرًا إلى %2.</numerusform>
            <numerusform>نُسخ %1 عنصر إلى %2.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 items were moved to %3.</source>
        <translation>
            <numerusform>نُقل %1 من %2 عنصر إلى %3.</numerusform>
            <numerusform>نُقل %1 من عنصر واحد (%2) إلى %3.</numerusform>
            <numerusform>نُقل %1 من عنصرين (%2) إلى %3.</numerusform>
            <numerusform>نُقل %1 من %2 عناصر إلى %3.</numerusform>
            <numerusform>نُقل %1 من %2 عنصرًا إلى %3.</numerusform>
            <numerusform>نُقل %1 من %2 عنصر إلى %3.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 items were copied to %3.</source>
        <translation>
            <numerusform>نُسخ %1 من %2 عنصر إلى %3.</numerusform>
            <numerusform>نُسخ %1 من عنصر واحد (%2) إلى %3.</numerusform>
            <numerusform>نُسخ %1 من عنصرين (%2) إلى %3.</numerusform>
            <numerusform>نُسخ %1 من %2 عناصر إلى %3.</numerusform>
            <numerusform>نُسخ %1 من %2 عنصرًا إلى %3.</numerusform>
            <numerusform>نُسخ %1 من %2 عنصر إلى %3.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing can be put into %1: %2.</source>
        <translation>لا يمكن وضع شيء في %1: %2.</translation>
    </message>
    <message>
        <source>There is not enough room on the disk of %1.</source>
        <translation>لا توجد مساحة كافية على القرص الذي فيه %1.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>تعذّرت قراءة %1: %2.</translation>
    </message>
    <message>
        <source>%1 is in this folder already.</source>
        <translation>العنصر %1 موجود في هذا المجلد من قبل.</translation>
    </message>
    <message>
        <source>%1 cannot be moved into itself.</source>
        <translation>لا يمكن نقل %1 إلى داخل نفسه.</translation>
    </message>
    <message>
        <source>%1 cannot be copied into itself.</source>
        <translation>لا يمكن نسخ %1 إلى داخل نفسه.</translation>
    </message>
    <message>
        <source>The name %1 is too long for the disk that it is to go to.</source>
        <translation>الاسم %1 أطول مما يسمح به القرص الوجهة.</translation>
    </message>
    <message>
        <source>%1 is too large for the disk that it is to go to.</source>
        <translation>العنصر %1 أكبر مما يسمح به القرص الوجهة.</translation>
    </message>
    <message>
        <source>%1 cannot be taken away from where it is. It can be copied.</source>
        <translation>لا يمكن إخراج %1 من مكانه، لكن يمكن نسخه.</translation>
    </message>
    <message>
        <source>%1 is a device, which cannot be copied.</source>
        <translation>العنصر %1 جهاز، ولا يمكن نسخ الأجهزة.</translation>
    </message>
    <message>
        <source>%1 kept changing while it was copied. Try again.</source>
        <translation>ظل %1 يتغيّر أثناء نسخه. أعد المحاولة.</translation>
    </message>
    <message>
        <source>%1 could not be moved: %2.</source>
        <translation>تعذّر نقل %1: %2.</translation>
    </message>
    <message>
        <source>%1 could not be copied: %2.</source>
        <translation>تعذّر نسخ %1: %2.</translation>
    </message>
    <message>
        <source>%1 has changed meanwhile, or a part of it could not be copied. What was not moved is still where it was.</source>
        <translation>تغيّر %1 في هذه الأثناء، أو تعذّر نسخ جزء منه. ما لم يُنقل ما زال في مكانه.</translation>
    </message>
    <message>
        <source>%1 was copied, but not all of it could be removed from where it was: %2.</source>
        <translation>نُسخ %1، لكن تعذّرت إزالته كله من مكانه: %2.</translation>
    </message>
    <message>
        <source>%1 could not be put back, since it is not where it was put.</source>
        <translation>تعذّرت إعادة %1 إلى مكانه، لأنه ليس حيث وُضع.</translation>
    </message>
    <message>
        <source>%1 could not be put back: %2.</source>
        <translation>تعذّرت إعادة %1 إلى مكانه: %2.</translation>
    </message>
    <message>
        <source>%1 could not be put into the trash: %2</source>
        <translation>تعذّر نقل %1 إلى المهملات: %2</translation>
    </message>
    <message numerus="yes">
        <source>There were %1 more like these.</source>
        <translation>
            <numerusform>وهناك %1 مشكلة أخرى مماثلة.</numerusform>
            <numerusform>وهناك مشكلة أخرى مماثلة (%1).</numerusform>
            <numerusform>وهناك مشكلتان أخريان مماثلتان (%1).</numerusform>
            <numerusform>وهناك %1 مشكلات أخرى مماثلة.</numerusform>
            <numerusform>وهناك %1 مشكلة أخرى مماثلة.</numerusform>
            <numerusform>وهناك %1 مشكلة أخرى مماثلة.</numerusform>
        </translation>
    </message>
    <message>
        <source>There was 1 more like these.</source>
        <translation>وهناك مشكلة واحدة أخرى مماثلة.</translation>
    </message>
    <message>
        <source>A part of %1 was moved to %2.</source>
        <translation>نُقل جزء من %1 إلى %2.</translation>
    </message>
    <message>
        <source>A part of %1 was copied to %2.</source>
        <translation>نُسخ جزء من %1 إلى %2.</translation>
    </message>
    <message>
        <source>%1 was not put back.</source>
        <translation>لم يُعَد %1 إلى مكانه.</translation>
    </message>
    <message>
        <source>%1 was copied without some of its extended attributes: the disk has no room for them.</source>
        <translation>نُسخ %1 من دون بعض سماته الموسّعة: لا مكان لها على القرص.</translation>
    </message>
</context>
<context>
    <name>TroubleWords</name>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>وصلة تؤدي إلى خارج المجلدات التي يعمل فيها Orvik Menu</translation>
    </message>
    <message>
        <source>ExifTool does not say why</source>
        <translation>لا يذكر ExifTool السبب</translation>
    </message>
    <message>
        <source>It was not done any more.</source>
        <translation>أُوقفت العملية قبل أن يأتي دوره.</translation>
    </message>
    <message>
        <source>It cannot be opened: %1.</source>
        <translation>تعذّر فتحه: %1.</translation>
    </message>
    <message>
        <source>It cannot be saved: %1.</source>
        <translation>تعذّر حفظه: %1.</translation>
    </message>
    <message>
        <source>The original cannot be kept beside it: %1. Nothing was changed.</source>
        <translation>تعذّر إبقاء الملف الأصلي بجانبه: %1. لم يتغيّر شيء.</translation>
    </message>
    <message>
        <source>The program ExifTool is missing. Install the package libimage-exiftool-perl.</source>
        <translation>البرنامج ExifTool مفقود. ثبّت الحزمة libimage-exiftool-perl.</translation>
    </message>
    <message>
        <source>Reading it takes too long.</source>
        <translation>تستغرق قراءته وقتًا أطول من اللازم.</translation>
    </message>
    <message>
        <source>It says more than can be shown.</source>
        <translation>فيه بيانات أكثر مما يمكن عرضه.</translation>
    </message>
    <message>
        <source>ExifTool failed on it. The file may be damaged, or too large.</source>
        <translation>فشل ExifTool في معالجته. قد يكون الملف تالفًا أو كبيرًا جدًا.</translation>
    </message>
    <message>
        <source>It cannot be read: %1.</source>
        <translation>تعذّرت قراءته: %1.</translation>
    </message>
    <message>
        <source>It cannot be changed: %1.</source>
        <translation>تعذّر تغييره: %1.</translation>
    </message>
    <message>
        <source>Another program has changed it meanwhile. Look at it again and try again.</source>
        <translation>غيّره برنامج آخر في هذه الأثناء. راجعه ثم أعد المحاولة.</translation>
    </message>
    <message>
        <source>Files of this kind, or damaged ones, are not changed, since it cannot be checked that the picture stays the same.</source>
        <translation>لا تُغيَّر الملفات من هذا النوع ولا التالفة منها، إذ لا يمكن التحقق من بقاء الصورة كما هي.</translation>
    </message>
    <message>
        <source>The picture would not have stayed the same. Nothing was changed.</source>
        <translation>ما كانت الصورة لتبقى كما هي. لم يتغيّر شيء.</translation>
    </message>
    <message>
        <source>It does not hold all that was to be written. Nothing was changed.</source>
        <translation>لا يحوي كل ما كان يُراد كتابته. لم يتغيّر شيء.</translation>
    </message>
    <message>
        <source>It has no date that could be moved.</source>
        <translation>ليس فيه تاريخ يمكن إزاحته.</translation>
    </message>
    <message>
        <source>Its orientation is part of the picture and cannot be changed here.</source>
        <translation>اتجاهه جزء من الصورة، ولا يمكن تغييره هنا.</translation>
    </message>
    <message>
        <source>It was saved, but it holds more than the picture, such as a second one or a film, which may hold such data too.</source>
        <translation>حُفظ، لكنه يحتوي على أكثر من الصورة، كصورة ثانية أو مقطع فيديو، وقد يحتوي ذلك على بيانات كهذه أيضًا.</translation>
    </message>
</context>
<context>
    <name>UtilityKitWindow</name>
    <message>
        <source>More from Orvik Studio</source>
        <translation>المزيد من Orvik Studio</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>أ&amp;غلق النافذة</translation>
    </message>
    <message>
        <source>&amp;Quit Orvik Menu</source>
        <translation>أ&amp;نهِ Orvik Menu</translation>
    </message>
</context>
<context>
    <name>ViewController</name>
    <message>
        <source>Choose the actions that show when you right-click an item in your folders.</source>
        <translation>اختر الإجراءات التي تظهر عند النقر بالزر الأيمن على عنصر في مجلداتك.</translation>
    </message>
    <message>
        <source>Menu items</source>
        <translation>عناصر القائمة</translation>
    </message>
    <message>
        <source>No Menu Items</source>
        <translation>لا عناصر للقائمة</translation>
    </message>
    <message>
        <source>The stored list of menu items is empty.</source>
        <translation>قائمة العناصر المحفوظة فارغة.</translation>
    </message>
</context>
<context>
    <name>WindowParts</name>
    <message>
        <source>Clear</source>
        <translation>امسح</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>«⁨%1⁩»</translation>
    </message>
    <message>
        <source>a link leads out of the folders that Orvik Menu works in</source>
        <translation>وصلة تؤدي إلى خارج المجلدات التي يعمل فيها Orvik Menu</translation>
    </message>
    <message>
        <source>%1 is not in a folder that Orvik Menu works in. Add the folder in its settings.</source>
        <translation>لا يقع %1 في مجلد يعمل فيه Orvik Menu. أضف المجلد في إعدادات البرنامج.</translation>
    </message>
    <message>
        <source>%1 or another item is not in a folder that Orvik Menu works in. Add the folder in its settings.</source>
        <translation>لا يقع %1 أو عنصر آخر في مجلد يعمل فيه Orvik Menu. أضف المجلد في إعدادات البرنامج.</translation>
    </message>
    <message>
        <source>There were %1 more like these.</source>
        <translation>وهناك مشكلات أخرى مماثلة، عددها %1.</translation>
    </message>
    <message>
        <source>There was 1 more like these.</source>
        <translation>وهناك مشكلة واحدة أخرى مماثلة.</translation>
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
        <translation>إجراءات لقائمة مدير الملفات، في المجلدات التي تختارها.</translation>
    </message>
    <message>
        <source>&amp;Web Site</source>
        <translation>&amp;موقع الويب</translation>
    </message>
    <message>
        <source>&amp;Twitter</source>
        <translation>&amp;تويتر</translation>
    </message>
    <message>
        <source>&amp;Facebook</source>
        <translation>&amp;فيسبوك</translation>
    </message>
    <message>
        <source>&amp;Rate Orvik Menu</source>
        <translation>&amp;قيّم Orvik Menu</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
</context>
<context>
    <name>collectionView_cell</name>
    <message>
        <source>Open in App Store</source>
        <translation>افتح في متجر التطبيقات</translation>
    </message>
</context>
<context>
    <name>customFoldersVc</name>
    <message>
        <source>Folders that you set up from the file manager’s menu, for example as places to move or copy items to. Delete those that you no longer use.</source>
        <translation>مجلدات أعددتها من قائمة مدير الملفات، لتكون مثلًا أماكن تنقل العناصر إليها أو تنسخها. احذف ما لم تعد تستخدمه منها.</translation>
    </message>
    <message>
        <source>Custom folders</source>
        <translation>المجلدات المخصصة</translation>
    </message>
    <message>
        <source>No Custom Folders</source>
        <translation>لا مجلدات مخصصة</translation>
    </message>
    <message>
        <source>They appear here once you set them up from the file manager’s menu.</source>
        <translation>تظهر هنا عندما تُعدّها من قائمة مدير الملفات.</translation>
    </message>
</context>
<context>
    <name>firstRunvc</name>
    <message>
        <source>Welcome to Orvik Menu</source>
        <translation>مرحبًا بك في Orvik Menu</translation>
    </message>
    <message>
        <source>Two steps, in either order, and Orvik Menu is ready.</source>
        <translation>خطوتان، بأي ترتيب، ويصبح Orvik Menu جاهزًا.</translation>
    </message>
    <message>
        <source>Switch on the extension</source>
        <translation>فعّل الامتداد</translation>
    </message>
    <message>
        <source>Open Extensions and switch on “Orvik Menu Extension”. This step is done as soon as the extension runs.</source>
        <translation>افتح «الامتدادات» وفعّل «امتداد Orvik Menu». تكتمل هذه الخطوة فور عمل الامتداد.</translation>
    </message>
    <message>
        <source>Open &amp;Extensions…</source>
        <translation>افتح &amp;الامتدادات…</translation>
    </message>
    <message>
        <source>Choose your folders</source>
        <translation>اختر مجلداتك</translation>
    </message>
    <message>
        <source>The actions show on items inside these folders. You can change them later.</source>
        <translation>تظهر الإجراءات على العناصر الموجودة في هذه المجلدات. يمكنك تغييرها لاحقًا.</translation>
    </message>
    <message>
        <source>Choose &amp;Folders…</source>
        <translation>اختر ال&amp;مجلدات…</translation>
    </message>
    <message>
        <source>You have succeessfully enabled Orvik Menu and can see the Orvik Menu items in the Context Menu on right click for selected folders. You can change these settings in the app anytime.</source>
        <translation>فعّلت Orvik Menu بنجاح، وستجد عناصره في قائمة السياق عند النقر بالزر الأيمن في المجلدات المحددة. يمكنك تغيير هذه الإعدادات في التطبيق متى شئت.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
</context>
<context>
    <name>foldersArrvc</name>
    <message>
        <source>Orvik Menu shows its actions on items inside these folders. Clear a checkbox to leave a folder out for now.</source>
        <translation>يعرض Orvik Menu إجراءاته على العناصر الموجودة في هذه المجلدات. أزل علامة الاختيار عن مجلد لاستثنائه مؤقتًا.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>المجلدات</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>أ&amp;ضف مجلدًا…</translation>
    </message>
    <message>
        <source>&amp;Remove Folder…</source>
        <translation>أ&amp;زل المجلد…</translation>
    </message>
    <message>
        <source>Remove the selected folder (Delete)</source>
        <translation>أزل المجلد المحدد (Delete)</translation>
    </message>
    <message>
        <source>Remove selected folder?</source>
        <translation>أتريد إزالة المجلد المحدد؟</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the selected folder.</source>
        <translation>أمتأكد أنك تريد إزالة المجلد المحدد؟</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Some of the folders can not be added because they are already added to the Folders list.</source>
        <translation>تعذّرت إضافة بعض المجلدات لأنها مضافة إلى قائمة المجلدات من قبل.</translation>
    </message>
    <message>
        <source>No Folders Yet</source>
        <translation>لا مجلدات بعد</translation>
    </message>
    <message>
        <source>Orvik Menu shows its actions on items inside the folders that you add.</source>
        <translation>يعرض Orvik Menu إجراءاته على العناصر داخل المجلدات التي تضيفها.</translation>
    </message>
</context>
<context>
    <name>genraltabvc</name>
    <message>
        <source>Extension</source>
        <translation>الامتداد</translation>
    </message>
    <message>
        <source>Looking for the extension…</source>
        <translation>يجري البحث عن الامتداد…</translation>
    </message>
    <message>
        <source>Open &amp;Extensions…</source>
        <translation>افتح &amp;الامتدادات…</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Show an &amp;icon beside each menu item</source>
        <translation>أظهر أ&amp;يقونة بجانب كل عنصر في القائمة</translation>
    </message>
    <message>
        <source>Group the menu items in a &amp;submenu</source>
        <translation>اجمع عناصر القائمة في قائمة &amp;فرعية</translation>
    </message>
    <message>
        <source>Orvik Menu Extension is enabled</source>
        <translation>امتداد Orvik Menu مفعّل</translation>
    </message>
    <message>
        <source>Enable &quot;Orvik Menu Extension&quot; in System Preferences &gt; Extensions to make Orvik Menu work.</source>
        <translation>فعّل «امتداد Orvik Menu» في إعدادات النظام &gt; الامتدادات ليعمل Orvik Menu.</translation>
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
        <translation>&amp;عن Orvik Menu</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>أ&amp;غلق النافذة</translation>
    </message>
    <message>
        <source>&amp;Quit Orvik Menu</source>
        <translation>أ&amp;نهِ Orvik Menu</translation>
    </message>
</context>
<context>
    <name>tabviewcontroller</name>
    <message>
        <source>Menu Items</source>
        <translation>عناصر القائمة</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>المجلدات</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>About</source>
        <translation>عن البرنامج</translation>
    </message>
    <message>
        <source>Custom Folders</source>
        <translation>المجلدات المخصصة</translation>
    </message>
</context>
<context>
    <name>tblcell</name>
    <message>
        <source>Delete</source>
        <translation>احذف</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>غير موجود</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>احذف %1</translation>
    </message>
</context>
<context>
    <name>utilityKitvc</name>
    <message>
        <source>Other apps</source>
        <translation>تطبيقات أخرى</translation>
    </message>
    <message>
        <source>Other Apps we think you may Love:</source>
        <translation>تطبيقات أخرى نظن أنها ستعجبك:</translation>
    </message>
</context>
</TS>
