<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>About %1</source>
        <extracomment>The title of the About window; %1 is the product&apos;s name.</extracomment>
        <translation>حول %1</translation>
    </message>
    <message>
        <source>Close, minimize and full-screen windows right in Mission Control, with buttons on every window and the shortcuts you already know.</source>
        <translation>أغلق النوافذ وصغّرها واعرضها بملء الشاشة من داخل Mission Control مباشرةً، بأزرار على كل نافذة وبالاختصارات التي تعرفها.</translation>
    </message>
</context>
<context>
    <name>AccessStep</name>
    <message>
        <source>One permission, then you&apos;re done</source>
        <translation>إذن واحد وينتهي الأمر</translation>
    </message>
    <message>
        <source>Corvane can now see which window you point at.</source>
        <translation>يستطيع Corvane الآن معرفة النافذة التي تشير إليها.</translation>
    </message>
    <message>
        <source>macOS asks you first before Corvane can tell which window the pointer is on. Nothing is recorded or sent anywhere.</source>
        <translation>يطلب macOS موافقتك قبل أن يعرف Corvane النافذة التي يقع عليها المؤشر. لا يُسجَّل شيء ولا يُرسَل إلى أي مكان.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>إمكانية الوصول</translation>
    </message>
    <message>
        <source>Allowed in System Settings.</source>
        <translation>مسموح به في إعدادات النظام.</translation>
    </message>
    <message>
        <source>Opens Privacy &amp; Security in System Settings.</source>
        <translation>يفتح «الخصوصية والأمان» في إعدادات النظام.</translation>
    </message>
    <message>
        <source>Switch on Corvane in the list in System Settings.</source>
        <translation>فعّل Corvane في القائمة في إعدادات النظام.</translation>
    </message>
    <message>
        <source>Switch on Corvane in the list. Not there? Drag in the tile under System Settings.</source>
        <translation>فعّل Corvane في القائمة. ليس فيها؟ اسحب إليها البطاقة التي تحت إعدادات النظام.</translation>
    </message>
    <message>
        <source>Open Again</source>
        <translation>فتح مرة أخرى</translation>
    </message>
    <message>
        <source>Open System Settings</source>
        <translation>فتح إعدادات النظام</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>تخطٍّ</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>Corvane is not running.</source>
        <translation>‏Corvane لا يعمل.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>أعد المحاولة</translation>
    </message>
</context>
<context>
    <name>BackButton</name>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
</context>
<context>
    <name>ButtonSize</name>
    <message>
        <source>Small</source>
        <translation>صغير</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>متوسط</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>كبير</translation>
    </message>
</context>
<context>
    <name>ButtonsPage</name>
    <message>
        <source>Buttons</source>
        <translation>الأزرار</translation>
    </message>
    <message>
        <source>look, theme, colour, color, size, minimize, full screen, maximize</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>مظهر, سمة, لون, حجم, تصغير, ملء الشاشة, تكبير</translation>
    </message>
</context>
<context>
    <name>ButtonsPane</name>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation>زر التصغير</translation>
    </message>
    <message>
        <source>Next to Close, which is always there.</source>
        <translation>بجانب زر الإغلاق الموجود دائمًا.</translation>
    </message>
    <message>
        <source>Full screen button</source>
        <translation>زر ملء الشاشة</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>ملء الشاشة</translation>
    </message>
    <message>
        <source>For the full-screen button and ⌘F.</source>
        <translation>لزر ملء الشاشة و ‎⌘F.</translation>
    </message>
    <message>
        <source>Own Space</source>
        <translation>مساحة مستقلة</translation>
    </message>
    <message>
        <source>Fill Screen</source>
        <translation>تعبئة الشاشة</translation>
    </message>
</context>
<context>
    <name>ButtonsPreview</name>
    <message>
        <source>Preview of the buttons</source>
        <translation>معاينة الأزرار</translation>
    </message>
    <message>
        <source>Browser</source>
        <translation>المتصفح</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>صفحة البدء</translation>
    </message>
</context>
<context>
    <name>ConstructionPlan</name>
    <message>
        <source>Pill %1 × %2</source>
        <extracomment>A note on a drawing: a pill-shaped part, %1 units wide and %2 high.</extracomment>
        <translation>كبسولة %1 × %2</translation>
    </message>
    <message>
        <source>Circle %1</source>
        <extracomment>A note on a drawing: a circle, %1 units across.</extracomment>
        <translation>دائرة %1</translation>
    </message>
    <message>
        <source>Gap %1</source>
        <extracomment>A note on a drawing: the room between two parts, %1 units wide.</extracomment>
        <translation>فجوة %1</translation>
    </message>
    <message>
        <source>The %1 mark</source>
        <extracomment>The title of a drawing of a product&apos;s mark; %1 is the product&apos;s name.</extracomment>
        <translation>علامة %1</translation>
    </message>
</context>
<context>
    <name>CustomizeStep</name>
    <message>
        <source>Make it yours</source>
        <translation>على ذوقك</translation>
    </message>
    <message>
        <source>Optional. Pick a look and a size; you can change them any time in Settings.</source>
        <translation>اختياري. اختر مظهرًا وحجمًا؛ ويمكنك تغييرهما متى شئت في الإعدادات.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Minimize button</source>
        <translation>زر التصغير</translation>
    </message>
    <message>
        <source>Full screen button</source>
        <translation>زر ملء الشاشة</translation>
    </message>
    <message>
        <source>Looks Good</source>
        <translation>يبدو جيدًا</translation>
    </message>
    <message>
        <source>Keep the Defaults</source>
        <translation>إبقاء الافتراضي</translation>
    </message>
</context>
<context>
    <name>DemoCell</name>
    <message>
        <source>%1 window, %2, full screen</source>
        <extracomment>%1 is the name of an application, %2 the title of its window.</extracomment>
        <translation>نافذة %1، %2، ملء الشاشة</translation>
    </message>
    <message>
        <source>%1 window, %2</source>
        <extracomment>%1 is the name of an application, %2 the title of its window.</extracomment>
        <translation>نافذة %1، %2</translation>
    </message>
    <message>
        <source>Use the actions to close, minimize or full-screen it.</source>
        <translation>استخدم الإجراءات لإغلاقها أو تصغيرها أو عرضها بملء الشاشة.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>ملء الشاشة</translation>
    </message>
</context>
<context>
    <name>DemoModel</name>
    <message>
        <source>Browser</source>
        <translation>المتصفح</translation>
    </message>
    <message>
        <source>Start page</source>
        <translation>صفحة البدء</translation>
    </message>
    <message>
        <source>Ideas</source>
        <translation>أفكار</translation>
    </message>
    <message>
        <source>Sketches</source>
        <translation>رسومات</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>المهام</translation>
    </message>
    <message>
        <source>This week</source>
        <translation>هذا الأسبوع</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>الطرفية</translation>
    </message>
    <message>
        <source>zsh</source>
        <translation>zsh</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>المشغّل</translation>
    </message>
    <message>
        <source>Library</source>
        <translation>المكتبة</translation>
    </message>
    <message>
        <source>Docs</source>
        <translation>المستندات</translation>
    </message>
    <message>
        <source>Point at a window first.</source>
        <translation>أشِر إلى نافذة أولًا.</translation>
    </message>
</context>
<context>
    <name>DoneStep</name>
    <message>
        <source>Swipe up with three fingers or press F3 to open Mission Control, then hover any window.</source>
        <translation>اسحب بثلاث أصابع إلى أعلى أو اضغط F3 لفتح Mission Control، ثم مرّر المؤشر فوق أي نافذة.</translation>
    </message>
    <message>
        <source> Corvane starts at login.</source>
        <translation> يبدأ Corvane عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>Open Mission Control</source>
        <translation>فتح Mission Control</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>اكتملت</translation>
    </message>
    <message>
        <source>Don&apos;t start at login</source>
        <translation>عدم البدء عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>ليس الآن</translation>
    </message>
</context>
<context>
    <name>DragTileContent</name>
    <message>
        <source>Not in the list? Drag me in.</source>
        <translation>لست في القائمة؟ اسحبني إليها.</translation>
    </message>
    <message>
        <source>Drop Corvane onto the Accessibility list above.</source>
        <translation>أفلت Corvane في قائمة «إمكانية الوصول» أعلاه.</translation>
    </message>
    <message>
        <source>Drop Corvane onto the Accessibility list.</source>
        <translation>أفلت Corvane في قائمة «إمكانية الوصول».</translation>
    </message>
</context>
<context>
    <name>EBAboutScreen</name>
    <message>
        <source>Check for Updates</source>
        <translation>البحث عن تحديثات</translation>
    </message>
    <message>
        <source>Website ↗︎</source>
        <translation>الموقع ↖︎</translation>
    </message>
    <message>
        <source>Made by Vexmoor</source>
        <translation>من إعداد Vexmoor</translation>
    </message>
</context>
<context>
    <name>EBSearchField</name>
    <message>
        <source>Clear search</source>
        <translation>مسح البحث</translation>
    </message>
</context>
<context>
    <name>EBSettingsWindowController</name>
    <message>
        <source>%1 Settings</source>
        <extracomment>The title of the settings window; %1 is the product&apos;s name.</extracomment>
        <translation>إعدادات %1</translation>
    </message>
</context>
<context>
    <name>EBStatus</name>
    <message>
        <source>Allowed</source>
        <translation>مسموح</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>بالانتظار</translation>
    </message>
</context>
<context>
    <name>EBStepList</name>
    <message>
        <source>Step %1 of %2, %3, done</source>
        <extracomment>Read aloud; %1 is the step&apos;s number, %2 how many there are, %3 its title.</extracomment>
        <translation>الخطوة %1 من %2، %3، منجزة</translation>
    </message>
    <message>
        <source>Step %1 of %2, %3, current</source>
        <translation>الخطوة %1 من %2، %3، الحالية</translation>
    </message>
    <message>
        <source>Step %1 of %2, %3</source>
        <translation>الخطوة %1 من %2، %3</translation>
    </message>
</context>
<context>
    <name>FullScreenBadge</name>
    <message>
        <source>Full screen</source>
        <translation>ملء الشاشة</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>login, startup, menu bar, icon, accessibility, permission, guide</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>تسجيل الدخول, بدء, شريط القوائم, أيقونة, إمكانية الوصول, إذن, دليل</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>Start at login</source>
        <translation>البدء عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Waiting for your OK in System Settings › General › Login Items.</source>
        <translation>بانتظار موافقتك في إعدادات النظام › عام › عناصر تسجيل الدخول.</translation>
    </message>
    <message>
        <source>So the buttons are there whenever you open Mission Control.</source>
        <translation>لتكون الأزرار موجودة كلما فتحت Mission Control.</translation>
    </message>
    <message>
        <source>Login Items</source>
        <translation>عناصر تسجيل الدخول</translation>
    </message>
    <message>
        <source>Allow Corvane there to finish.</source>
        <translation>اسمح هناك لـ Corvane لإتمام الأمر.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Show in the menu bar</source>
        <translation>الإظهار في شريط القوائم</translation>
    </message>
    <message>
        <source>Open Corvane from Applications to come back here.</source>
        <translation>افتح Corvane من التطبيقات للعودة إلى هنا.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>إمكانية الوصول</translation>
    </message>
    <message>
        <source>Corvane can see which window you point at.</source>
        <translation>يستطيع Corvane معرفة النافذة التي تشير إليها.</translation>
    </message>
    <message>
        <source>Needed to see which window you point at in Mission Control.</source>
        <translation>لازمة لمعرفة النافذة التي تشير إليها في Mission Control.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>فتح الإعدادات</translation>
    </message>
    <message>
        <source>Welcome guide</source>
        <translation>دليل الترحيب</translation>
    </message>
    <message>
        <source>Try it again in a pretend Mission Control.</source>
        <translation>جرّبه مرة أخرى في Mission Control تجريبي.</translation>
    </message>
    <message>
        <source>Show Guide</source>
        <translation>إظهار الدليل</translation>
    </message>
</context>
<context>
    <name>GuideWindowController</name>
    <message>
        <source>Welcome to Corvane</source>
        <translation>مرحبًا بك في Corvane</translation>
    </message>
</context>
<context>
    <name>ImportDrop</name>
    <message>
        <source>The settings were imported.</source>
        <translation>تم استيراد الإعدادات.</translation>
    </message>
</context>
<context>
    <name>ImportOffer</name>
    <message>
        <source>Changed: %1</source>
        <extracomment>%1 is the names of saved layouts. They stay, but what they put back is another.</extracomment>
        <translation>تغيّر: %1</translation>
    </message>
</context>
<context>
    <name>ImportSheet</name>
    <message>
        <source>Import these settings?</source>
        <translation>استيراد هذه الإعدادات؟</translation>
    </message>
    <message>
        <source>Nothing to import</source>
        <translation>لا شيء للاستيراد</translation>
    </message>
    <message>
        <source>Everything in this file is set already.</source>
        <translation>كل ما في هذا الملف مضبوط بالفعل.</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <extracomment>%1 is the value that a setting has before an import.</extracomment>
        <translation>الآن: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>استيراد</translation>
    </message>
</context>
<context>
    <name>KeySymbols</name>
    <message>
        <source> to </source>
        <translation> إلى </translation>
    </message>
</context>
<context>
    <name>LayoutNameField</name>
    <message>
        <source>Save name</source>
        <translation>حفظ الاسم</translation>
    </message>
</context>
<context>
    <name>LayoutPreview</name>
    <message numerus="yes">
        <source>%n windows: %1</source>
        <extracomment>%1 stands for the names of the windows&apos; applications.</extracomment>
        <translation>
            <numerusform>لا نوافذ: %1</numerusform>
            <numerusform>نافذة واحدة: %1</numerusform>
            <numerusform>نافذتان: %1</numerusform>
            <numerusform>%n نوافذ: %1</numerusform>
            <numerusform>%n نافذةً: %1</numerusform>
            <numerusform>%n نافذة: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LayoutRow</name>
    <message>
        <source>Name of layout %1</source>
        <translation>اسم التخطيط %1</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>حذف %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>The place of a layout in the list, and how many there are.</extracomment>
        <translation>%1 من %2</translation>
    </message>
</context>
<context>
    <name>LayoutsModel</name>
    <message>
        <source>layout %1</source>
        <extracomment>%1 is the place of a layout without a name in the list.</extracomment>
        <translation>التخطيط %1</translation>
    </message>
</context>
<context>
    <name>LayoutsPage</name>
    <message>
        <source>Layouts</source>
        <translation>التخطيطات</translation>
    </message>
    <message>
        <source>snap, arrange, tile, window, layout, shelf, gap</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>محاذاة, ترتيب, تجانب, نافذة, تخطيط, رف, فجوة</translation>
    </message>
</context>
<context>
    <name>LayoutsPane</name>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>صغيرة</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>كبيرة</translation>
    </message>
    <message>
        <source>Left or right half</source>
        <translation>النصف الأيسر أو الأيمن</translation>
    </message>
    <message>
        <source>Again: two thirds, then a third.</source>
        <translation>مرة أخرى: الثلثان ثم الثلث.</translation>
    </message>
    <message>
        <source>Top or bottom half</source>
        <translation>النصف العلوي أو السفلي</translation>
    </message>
    <message>
        <source>On a side: a quarter.</source>
        <translation>على أحد الجانبين: الربع.</translation>
    </message>
    <message>
        <source>Fill the screen</source>
        <translation>تعبئة الشاشة</translation>
    </message>
    <message>
        <source>Put a saved layout back</source>
        <translation>استعادة تخطيط محفوظ</translation>
    </message>
    <message>
        <source>Snap and arrange windows</source>
        <translation>محاذاة النوافذ وترتيبها</translation>
    </message>
    <message>
        <source>In Mission Control: snap the window under the pointer, compose layouts and put them back.</source>
        <translation>في Mission Control: حاذِ النافذة التي تحت المؤشر، وألّف التخطيطات واستعدها.</translation>
    </message>
    <message>
        <source>Layouts shelf</source>
        <translation>رفّ التخطيطات</translation>
    </message>
    <message>
        <source>A Layouts handle at the bottom of Mission Control. Point at it to open your layouts and templates.</source>
        <translation>مقبض «التخطيطات» أسفل Mission Control. أشِر إليه لفتح تخطيطاتك وقوالبك.</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>الفجوات</translation>
    </message>
    <message>
        <source>Space between arranged windows.</source>
        <translation>المسافة بين النوافذ المرتّبة.</translation>
    </message>
    <message>
        <source>Open apps that aren&apos;t running</source>
        <translation>فتح التطبيقات غير المشغّلة</translation>
    </message>
    <message>
        <source>When a saved layout is put back.</source>
        <translation>عند استعادة تخطيط محفوظ.</translation>
    </message>
    <message>
        <source>Saved layouts</source>
        <translation>التخطيطات المحفوظة</translation>
    </message>
    <message>
        <source>In Mission Control</source>
        <translation>في Mission Control</translation>
    </message>
    <message>
        <source>Point at a window first. Click a layout on the shelf to put its windows back, ⌥-click to delete it. Click a template, then the windows that go in it, or drag a window onto a slot.</source>
        <translation>أشِر إلى نافذة أولًا. انقر تخطيطًا على الرفّ لاستعادة نوافذه، أو انقره مع ‎⌥ لحذفه. انقر قالبًا ثم النوافذ التي توضع فيه، أو اسحب نافذة إلى خانة.</translation>
    </message>
</context>
<context>
    <name>MarkConstruction</name>
    <message>
        <source>The %1 mark drawn on its grid</source>
        <extracomment>Read aloud; %1 is a product&apos;s name.</extracomment>
        <translation>علامة %1 مرسومة على شبكتها</translation>
    </message>
</context>
<context>
    <name>OnboardingFlow</name>
    <message>
        <source>Click the cross, or press ⌘W to close it.</source>
        <translation>انقر علامة الإغلاق أو اضغط ‎⌘W لإغلاقها.</translation>
    </message>
    <message>
        <source>Click a button, or press ⌘W to close it.</source>
        <translation>انقر زرًّا أو اضغط ‎⌘W لإغلاقها.</translation>
    </message>
    <message>
        <source>Now hover another window and press ⌘M to minimize it.</source>
        <translation>مرّر الآن المؤشر فوق نافذة أخرى واضغط ‎⌘M لتصغيرها.</translation>
    </message>
    <message>
        <source>Press ⌘F on a window to take it full screen.</source>
        <translation>اضغط ‎⌘F فوق نافذة لعرضها بملء الشاشة.</translation>
    </message>
    <message>
        <source>That&apos;s all there is to it. It works just like this in Mission Control.</source>
        <translation>هذا كل ما في الأمر. وهو يعمل هكذا تمامًا في Mission Control.</translation>
    </message>
</context>
<context>
    <name>OnboardingStep</name>
    <message>
        <source>Welcome</source>
        <translation>مرحبًا</translation>
    </message>
    <message>
        <source>Try it</source>
        <translation>تجربة</translation>
    </message>
    <message>
        <source>Permission</source>
        <translation>الإذن</translation>
    </message>
    <message>
        <source>Make it yours</source>
        <translation>على ذوقك</translation>
    </message>
    <message>
        <source>All set</source>
        <translation>اكتمل</translation>
    </message>
    <message>
        <source>Step %1 · %2</source>
        <translation>الخطوة %1 · %2</translation>
    </message>
</context>
<context>
    <name>PageArea</name>
    <message>
        <source>Settings · %1</source>
        <extracomment>The line above a page&apos;s heading; %1 is the page&apos;s number.</extracomment>
        <translation>الإعدادات · %1</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Meta</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Return</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>أسفل</translation>
    </message>
</context>
<context>
    <name>RemovalLine</name>
    <message>
        <source>Deleted “%1”.</source>
        <extracomment>%1 is the name of a layout.</extracomment>
        <translation>حُذف «%1».</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
</context>
<context>
    <name>SavedLayouts</name>
    <message>
        <source>None yet</source>
        <translation>لا شيء بعد</translation>
    </message>
    <message>
        <source>In Mission Control, click Save current, or a template.</source>
        <translation>في Mission Control، انقر «حفظ الحالي» أو أحد القوالب.</translation>
    </message>
</context>
<context>
    <name>SettingWords</name>
    <message>
        <source>Look</source>
        <translation>المظهر</translation>
    </message>
    <message>
        <source>Shortcut %1</source>
        <extracomment>%1 is the keys of a shortcut.</extracomment>
        <translation>الاختصار %1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>مشغّل</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>متوقف</translation>
    </message>
</context>
<context>
    <name>SettingsAppDelegate</name>
    <message>
        <source>Your settings are gone.</source>
        <translation>فُقدت إعداداتك.</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>Start Fresh</source>
        <translation>بدء جديد</translation>
    </message>
</context>
<context>
    <name>SettingsTransfer</name>
    <message>
        <source>There is nothing to save settings in.</source>
        <translation>لا يوجد مكان لحفظ الإعدادات فيه.</translation>
    </message>
    <message>
        <source>%1 Nothing was imported.</source>
        <extracomment>%1 is a sentence that says why.</extracomment>
        <translation>%1 لم يتم استيراد أي شيء.</translation>
    </message>
</context>
<context>
    <name>ShortcutVocabulary</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Close all windows of the app</source>
        <translation>إغلاق كل نوافذ التطبيق</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>ملء الشاشة</translation>
    </message>
    <message>
        <source>Hide app</source>
        <translation>إخفاء التطبيق</translation>
    </message>
    <message>
        <source>Hide other apps</source>
        <translation>إخفاء التطبيقات الأخرى</translation>
    </message>
    <message>
        <source>Force-quit app</source>
        <translation>فرض إنهاء التطبيق</translation>
    </message>
    <message>
        <source>%1 closed</source>
        <extracomment>%1 is the title of a window; so it is below where a window is minimized or full screen.</extracomment>
        <translation>أُغلقت %1</translation>
    </message>
    <message>
        <source>%1 minimized</source>
        <translation>صُغّرت %1</translation>
    </message>
    <message>
        <source>%1 full screen</source>
        <translation>%1 بملء الشاشة</translation>
    </message>
    <message>
        <source>%1 no longer full screen</source>
        <translation>لم تعد %1 بملء الشاشة</translation>
    </message>
    <message>
        <source>All windows of %1 closed</source>
        <extracomment>%1 is the name of an application; so it is below.</extracomment>
        <translation>أُغلقت كل نوافذ %1</translation>
    </message>
    <message>
        <source>%1 hidden</source>
        <translation>أُخفي %1</translation>
    </message>
    <message>
        <source>All but %1 hidden</source>
        <translation>أُخفي كل شيء ما عدا %1</translation>
    </message>
    <message>
        <source>%1 quit</source>
        <translation>أُنهي %1</translation>
    </message>
</context>
<context>
    <name>ShortcutsModel</name>
    <message>
        <source>Close window</source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message>
        <source>Close all windows of the app</source>
        <translation>إغلاق كل نوافذ التطبيق</translation>
    </message>
    <message>
        <source>Minimize window</source>
        <translation>تصغير النافذة</translation>
    </message>
    <message>
        <source>Full screen / maximize window</source>
        <translation>ملء الشاشة / تكبير النافذة</translation>
    </message>
    <message>
        <source>Hide app</source>
        <translation>إخفاء التطبيق</translation>
    </message>
    <message>
        <source>Hide other apps</source>
        <translation>إخفاء التطبيقات الأخرى</translation>
    </message>
    <message>
        <source>Force-quit app</source>
        <translation>فرض إنهاء التطبيق</translation>
    </message>
</context>
<context>
    <name>ShortcutsPage</name>
    <message>
        <source>Shortcuts</source>
        <translation>الاختصارات</translation>
    </message>
    <message>
        <source>keyboard, hotkey, close, hide, quit, minimize</source>
        <extracomment>Words that the page is found by, in lower case, with &quot;, &quot; between them. There may be more or fewer of them.</extracomment>
        <translation>لوحة المفاتيح, مفتاح, إغلاق, إخفاء, إنهاء, تصغير</translation>
    </message>
</context>
<context>
    <name>ShortcutsPane</name>
    <message>
        <source>They work only while Mission Control is open, on the window under the pointer.</source>
        <translation>تعمل فقط عندما يكون Mission Control مفتوحًا، على النافذة التي تحت المؤشر.</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>%1
Version %2</source>
        <extracomment>%1 is the product&apos;s name, %2 its version.</extracomment>
        <translation>%1
الإصدار %2</translation>
    </message>
</context>
<context>
    <name>StoreTrouble</name>
    <message>
        <source>Changes last only until you close this window: there is nothing to save them in.</source>
        <translation>تدوم التغييرات حتى إغلاق هذه النافذة فقط: لا مكان لحفظها.</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the settings service doesn&apos;t answer.</source>
        <translation>لا يمكن حفظ التغييرات: خدمة الإعدادات لا تستجيب.</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the disk is full or read-only.</source>
        <translation>لا يمكن حفظ التغييرات: القرص ممتلئ أو للقراءة فقط.</translation>
    </message>
    <message>
        <source>This can&apos;t be changed: your administrator has locked it.</source>
        <translation>لا يمكن تغيير هذا: قفله مسؤول النظام.</translation>
    </message>
    <message>
        <source>Changes can&apos;t be saved: the settings service stores them elsewhere.</source>
        <translation>لا يمكن حفظ التغييرات: تخزّنها خدمة الإعدادات في مكان آخر.</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Classic</source>
        <translation>كلاسيكي</translation>
    </message>
    <message>
        <source>The familiar macOS red, yellow and green.</source>
        <translation>ألوان macOS المألوفة: الأحمر والأصفر والأخضر.</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>هادئ</translation>
    </message>
    <message>
        <source>The same colors, calmer and less bright.</source>
        <translation>الألوان نفسها، أهدأ وأقل سطوعًا.</translation>
    </message>
    <message>
        <source>Graphite</source>
        <translation>غرافيت</translation>
    </message>
    <message>
        <source>Shades of grey. Tell them apart by shape.</source>
        <translation>درجات من الرمادي تُميَّز بأشكالها.</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>أحادي</translation>
    </message>
    <message>
        <source>Pure black and white.</source>
        <translation>أسود وأبيض خالصان.</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>بلا لون</translation>
    </message>
    <message>
        <source>Clear outlines, nothing colored.</source>
        <translation>حدود واضحة دون أي تلوين.</translation>
    </message>
</context>
<context>
    <name>ThemeTile</name>
    <message>
        <source>%1 look</source>
        <extracomment>%1 is the title of a theme of the buttons.</extracomment>
        <translation>مظهر «%1»</translation>
    </message>
</context>
<context>
    <name>TryItStep</name>
    <message>
        <source>Give it a try</source>
        <translation>جرّب بنفسك</translation>
    </message>
    <message>
        <source>Reset windows</source>
        <translation>إعادة ضبط النوافذ</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
</context>
<context>
    <name>WelcomeStep</name>
    <message>
        <source>Close, minimize and full-screen windows right in Mission Control. Hover a window for its buttons, or use the shortcuts you already know.</source>
        <translation>أغلق النوافذ وصغّرها واعرضها بملء الشاشة من داخل Mission Control مباشرةً. مرّر المؤشر فوق نافذة لتظهر أزرارها، أو استخدم الاختصارات التي تعرفها.</translation>
    </message>
    <message>
        <source>Get started</source>
        <translation>ابدأ</translation>
    </message>
    <message>
        <source>Skip setup</source>
        <translation>تخطّي الإعداد</translation>
    </message>
</context>
<context>
    <name>WindowChrome</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>تكبير</translation>
    </message>
</context>
</TS>
