<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en_US">
<context>
    <name>Client</name>
    <message>
        <source>The settings cannot be changed</source>
        <translation>يتعذر تغيير الإعدادات</translation>
    </message>
    <message>
        <source>The data folder &apos;%1&apos; is no folder.</source>
        <translation>مجلد البيانات «‎%1‎» ليس مجلدًا.</translation>
    </message>
    <message>
        <source>The data folder &apos;%1&apos; cannot be made.</source>
        <translation>يتعذر إنشاء مجلد البيانات «‎%1‎».</translation>
    </message>
    <message>
        <source>The data folder &apos;%1&apos; cannot be entered.</source>
        <translation>يتعذر الدخول إلى مجلد البيانات «‎%1‎».</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;</source>
        <translation>تتعذر قراءة «‎%1‎»</translation>
    </message>
    <message>
        <source>Cannot import &apos;%1&apos;: %2</source>
        <translation>يتعذر استيراد «‎%1‎»: %2</translation>
    </message>
    <message>
        <source>Cannot import &apos;%1&apos;</source>
        <translation>يتعذر استيراد «‎%1‎»</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;</source>
        <translation>تتعذر كتابة «‎%1‎»</translation>
    </message>
    <message>
        <source>The skin file &apos;%1&apos; cannot be read.</source>
        <translation>تتعذر قراءة ملف المظهر «‎%1‎».</translation>
    </message>
    <message>
        <source>The data folder &apos;%1&apos; does not exist.</source>
        <translation>مجلد البيانات «‎%1‎» غير موجود.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is the client&apos;s own file.</source>
        <translation>«‎%1‎» ملف خاص بالعميل نفسه.</translation>
    </message>
    <message>
        <source>Not all alarm sounds could be put into the data folder.</source>
        <translation>تعذر وضع جميع أصوات الإنذار في مجلد البيانات.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no text in the encoding of this system.</source>
        <translation>«‎%1‎» ليس نصًا بترميز هذا النظام.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Render the settings dialog to a PNG file.</source>
        <translation>رسم مربع حوار الإعدادات في ملف PNG.</translation>
    </message>
    <message>
        <source>Print all settings as JSON.</source>
        <translation>طباعة جميع الإعدادات بتنسيق JSON.</translation>
    </message>
    <message>
        <source>Replace all settings by those of a file.</source>
        <translation>استبدال جميع الإعدادات بإعدادات ملف.</translation>
    </message>
    <message>
        <source>Write all settings to a file.</source>
        <translation>كتابة جميع الإعدادات في ملف.</translation>
    </message>
    <message>
        <source>Print one setting.</source>
        <translation>طباعة إعداد واحد.</translation>
    </message>
    <message>
        <source>Change one setting; may be repeated.</source>
        <translation>تغيير إعداد واحد؛ يمكن تكراره.</translation>
    </message>
    <message>
        <source>Print a JSON schema of the settings.</source>
        <translation>طباعة مخطط JSON للإعدادات.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>عرض هذه المساعدة.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>عرض الإصدار.</translation>
    </message>
    <message>
        <source>DustyBlue or White (default: as in Localcfg.ini, else DustyBlue).</source>
        <translation>DustyBlue أو White (الافتراضي: كما في Localcfg.ini، وإلا DustyBlue).</translation>
    </message>
    <message>
        <source>en, zh_CN, es or ar (default: as in Localcfg.ini, else en).</source>
        <translation>en أو zh_CN أو es أو ar (الافتراضي: كما في Localcfg.ini، وإلا en).</translation>
    </message>
    <message>
        <source>Right that the user lacks; may be repeated.</source>
        <translation>صلاحية يفتقر إليها المستخدم؛ يمكن تكرارها.</translation>
    </message>
    <message>
        <source>Platform server whose connection is watched (default: none).</source>
        <translation>خادم المنصة الذي يُراقَب الاتصال به (الافتراضي: لا شيء).</translation>
    </message>
    <message>
        <source>Folder of the client&apos;s files (default: %1).</source>
        <translation>مجلد ملفات العميل (الافتراضي: ‎%1‎).</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>وسيط غير متوقع «‎%1‎».</translation>
    </message>
    <message>
        <source>Option --%1 is given more than once.</source>
        <translation>الخيار ‎--%1‎ مذكور أكثر من مرة.</translation>
    </message>
    <message>
        <source>Option --%1 needs a value.</source>
        <translation>الخيار ‎--%1‎ يحتاج إلى قيمة.</translation>
    </message>
    <message>
        <source>Option --%1 takes %2, not &apos;%3&apos;.</source>
        <translation>الخيار ‎--%1‎ يقبل %2، وليس «‎%3‎».</translation>
    </message>
    <message>
        <source>Options --%1 and --%2 exclude each other.</source>
        <translation>الخياران ‎--%1‎ و‎--%2‎ لا يجتمعان.</translation>
    </message>
    <message>
        <source>a positive number</source>
        <translation>عددًا موجبًا</translation>
    </message>
    <message>
        <source>a number from 0 to 8 or a section&apos;s name</source>
        <translation>رقمًا من 0 إلى 8 أو اسم قسم</translation>
    </message>
    <message>
        <source>Without right 26 there is no section 6.</source>
        <translation>لا يوجد القسم 6 من دون الصلاحية 26.</translation>
    </message>
    <message>
        <source>DustyBlue or White</source>
        <translation>DustyBlue أو White</translation>
    </message>
    <message>
        <source>en, zh_CN, es or ar</source>
        <translation>en أو zh_CN أو es أو ar</translation>
    </message>
    <message>
        <source>HOST:PORT</source>
        <translation>HOST:PORT</translation>
    </message>
    <message>
        <source>Surveillance workstation client. Without an action it opens its window and the settings dialog.</source>
        <translation>عميل محطة عمل للمراقبة. من دون إجراء يفتح نافذته ومربع حوار الإعدادات.</translation>
    </message>
    <message>
        <source>Section that the dialog shows at first, 0 to 8 or its name: %1 (default: 0).</source>
        <translation>القسم الذي يعرضه مربع الحوار أولًا، من 0 إلى 8 أو اسمه: ‎%1‎ (الافتراضي: 0).</translation>
    </message>
    <message>
        <source>Option --section belongs to the dialog.</source>
        <translation>الخيار ‎--section‎ خاص بمربع الحوار.</translation>
    </message>
    <message>
        <source>Environment:
  KV_CLIENT_RESOURCES  Folder of skins, sounds, translations and alarm types.
  DISPLAY              Screen that the window opens on; a picture needs none.
  QT_SCALE_FACTOR      How large to draw, as far as the screen has room for it.
</source>
        <translation>البيئة:
  KV_CLIENT_RESOURCES  مجلد المظاهر والأصوات والترجمات وأنواع الإنذار.
  DISPLAY              الشاشة التي تُفتح عليها النافذة؛ الصورة لا تحتاج إليها.
  QT_SCALE_FACTOR      حجم الرسم، بقدر ما تتسع له الشاشة.
</translation>
    </message>
</context>
<context>
    <name>ConfigService</name>
    <message>
        <source>The auto-start entry could not be changed: %1.</source>
        <translation>تعذر تغيير إدخال التشغيل التلقائي: %1.</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>process %1 on %2</source>
        <translation>العملية %1 على %2</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::AlarmCenter</name>
    <message>
        <source>Alarm %1</source>
        <translation>الإنذار %1</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>إقرار</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::LiveActions</name>
    <message>
        <source>Picture saved in %1</source>
        <translation>تم حفظ الصورة في ‎%1‎</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures saved in %1</source>
        <translation>
            <numerusform>لم تُحفظ أي صورة في ‎%1‎</numerusform>
            <numerusform>تم حفظ صورة واحدة في ‎%1‎</numerusform>
            <numerusform>تم حفظ صورتين في ‎%1‎</numerusform>
            <numerusform>تم حفظ %n صور في ‎%1‎</numerusform>
            <numerusform>تم حفظ %n صورةً في ‎%1‎</numerusform>
            <numerusform>تم حفظ %n صورة في ‎%1‎</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording saved in %1</source>
        <translation>تم حفظ التسجيل في ‎%1‎</translation>
    </message>
    <message>
        <source>Cannot write to %1</source>
        <translation>تتعذر الكتابة في ‎%1‎</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::MainWindow</name>
    <message>
        <source>Connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Surveillance Client</source>
        <translation>عميل المراقبة</translation>
    </message>
    <message>
        <source>Local Config...</source>
        <translation>الإعدادات المحلية...</translation>
    </message>
    <message>
        <source>Settings of this workstation (Ctrl+,)</source>
        <translation>إعدادات محطة العمل هذه (‎Ctrl+,‎)</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>لقطة</translation>
    </message>
    <message>
        <source>Picture of the selected window (P)</source>
        <translation>صورة للنافذة المحددة (P)</translation>
    </message>
    <message>
        <source>Continuous Snapshot</source>
        <translation>لقطات متتالية</translation>
    </message>
    <message>
        <source>Pictures of the selected window, one after the other</source>
        <translation>صور متتالية للنافذة المحددة</translation>
    </message>
    <message>
        <source>Recording of the selected window (Ctrl+R)</source>
        <translation>تسجيل النافذة المحددة (‎Ctrl+R‎)</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>إيقاف التسجيل</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>تسجيل</translation>
    </message>
    <message>
        <source>The client is locked.</source>
        <translation>العميل مقفل.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>إلغاء القفل</translation>
    </message>
    <message>
        <source>Alarm Type:</source>
        <translation>نوع الإنذار:</translation>
    </message>
    <message>
        <source>Alarm Type</source>
        <translation>نوع الإنذار</translation>
    </message>
    <message>
        <source>Test Alarm</source>
        <translation>اختبار الإنذار</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>إقرار</translation>
    </message>
    <message>
        <source>Alarm: %1</source>
        <translation>إنذار: %1</translation>
    </message>
    <message>
        <source>The connection to the platform is lost. The settings are locked until it is back.</source>
        <translation>انقطع الاتصال بالمنصة. الإعدادات مقفلة حتى يعود الاتصال.</translation>
    </message>
    <message>
        <source>The connection to the platform is back.</source>
        <translation>عاد الاتصال بالمنصة.</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::MapView</name>
    <message>
        <source>Map</source>
        <translation>الخريطة</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::SplitView</name>
    <message>
        <source>Live view</source>
        <translation>العرض المباشر</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>الكاميرا %1</translation>
    </message>
    <message>
        <source>%1, recorded</source>
        <translation>%1، قيد التسجيل</translation>
    </message>
    <message>
        <source>REC</source>
        <translation>REC</translation>
    </message>
</context>
<context>
    <name>SettingValue</name>
    <message>
        <source>There is no setting &apos;%1&apos;.</source>
        <translation>لا يوجد إعداد باسم «‎%1‎».</translation>
    </message>
    <message>
        <source>Impossible value of &apos;%1&apos;: &apos;%2&apos;.</source>
        <translation>قيمة غير ممكنة لـ «‎%1‎»: «‎%2‎».</translation>
    </message>
</context>
<context>
    <name>SettingsDocument</name>
    <message>
        <source>not a JSON document: %1</source>
        <translation>ليس مستند JSON: %1</translation>
    </message>
    <message>
        <source>not a settings document</source>
        <translation>ليس مستند إعدادات</translation>
    </message>
    <message>
        <source>written by a newer version</source>
        <translation>كُتب بإصدار أحدث</translation>
    </message>
    <message>
        <source>impossible value of %1</source>
        <translation>قيمة غير ممكنة لـ ‎%1‎</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>Another client uses this data folder; changes cannot be saved meanwhile.</source>
        <translation>عميل آخر يستخدم مجلد البيانات هذا؛ لا يمكن حفظ التغييرات في أثناء ذلك.</translation>
    </message>
    <message>
        <source>Another client (%1) uses this data folder; changes cannot be saved meanwhile.</source>
        <translation>عميل آخر (%1) يستخدم مجلد البيانات هذا؛ لا يمكن حفظ التغييرات في أثناء ذلك.</translation>
    </message>
    <message>
        <source>The data folder cannot be written: %1. Changes cannot be saved.</source>
        <translation>تتعذر الكتابة في مجلد البيانات: %1. لا يمكن حفظ التغييرات.</translation>
    </message>
    <message>
        <source>The settings file is missing; the last good settings are used.</source>
        <translation>ملف الإعدادات مفقود؛ تُستخدم آخر إعدادات سليمة.</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1. Changes cannot be saved.</source>
        <translation>تتعذر قراءة ملف الإعدادات: %1. لا يمكن حفظ التغييرات.</translation>
    </message>
    <message>
        <source>The settings file is from a newer version. Changes cannot be saved.</source>
        <translation>ملف الإعدادات من إصدار أحدث. لا يمكن حفظ التغييرات.</translation>
    </message>
    <message>
        <source>The settings file is damaged (%1); the last good settings are used. %2</source>
        <translation>ملف الإعدادات تالف (%1)؛ تُستخدم آخر إعدادات سليمة. %2</translation>
    </message>
    <message>
        <source>The settings file is damaged (%1); the default settings are used. %2</source>
        <translation>ملف الإعدادات تالف (%1)؛ تُستخدم الإعدادات الافتراضية. %2</translation>
    </message>
    <message>
        <source>It was set aside.</source>
        <translation>تم وضعه جانبًا.</translation>
    </message>
    <message>
        <source>The settings file was damaged meanwhile and was set aside.</source>
        <translation>تلف ملف الإعدادات في هذه الأثناء وتم وضعه جانبًا.</translation>
    </message>
    <message>
        <source>The settings file is missing and the last good settings cannot be used; the default settings are used.</source>
        <translation>ملف الإعدادات مفقود ويتعذر استخدام آخر إعدادات سليمة؛ تُستخدم الإعدادات الافتراضية.</translation>
    </message>
    <message>
        <source>The missing rights in the settings file cannot be understood; the user is taken to have no rights.</source>
        <translation>يتعذر فهم الصلاحيات المفقودة في ملف الإعدادات؛ يُعد المستخدم بلا صلاحيات.</translation>
    </message>
    <message>
        <source>A folder or a device stands in the place of &apos;%1&apos;. Changes cannot be saved.</source>
        <translation>يوجد مجلد أو جهاز في مكان «‎%1‎». لا يمكن حفظ التغييرات.</translation>
    </message>
</context>
</TS>
