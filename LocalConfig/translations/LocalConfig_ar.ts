<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en_US">
<context>
    <name>CAlarmConfig</name>
    <message>
        <source>Alarm Config</source>
        <translation>إعدادات الإنذار</translation>
    </message>
    <message>
        <source>Play alarm sound</source>
        <translation>تشغيل صوت الإنذار</translation>
    </message>
    <message>
        <source>Alarm Type</source>
        <translation>نوع الإنذار</translation>
    </message>
    <message>
        <source>Alarm Type of the Sound</source>
        <translation>نوع الإنذار الخاص بالصوت</translation>
    </message>
    <message>
        <source>Sound Path</source>
        <translation>مسار الصوت</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>تكرار</translation>
    </message>
    <message>
        <source>Map flashes when alarm occurs</source>
        <translation>وميض الخريطة عند حدوث إنذار</translation>
    </message>
    <message>
        <source>Alarm Types that Flash</source>
        <translation>أنواع الإنذار الوامضة</translation>
    </message>
    <message>
        <source>Display alarm-linked video when alarm occurs</source>
        <translation>عرض الفيديو المرتبط عند حدوث إنذار</translation>
    </message>
    <message>
        <source>Open Video Type</source>
        <translation>طريقة فتح الفيديو</translation>
    </message>
    <message>
        <source>As Pop Up</source>
        <translation>في نافذة منبثقة</translation>
    </message>
    <message>
        <source>In Live View</source>
        <translation>في العرض المباشر</translation>
    </message>
</context>
<context>
    <name>CBasicConfig</name>
    <message>
        <source>Basic Config</source>
        <translation>الإعدادات الأساسية</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>السمة</translation>
    </message>
    <message>
        <source>(Takes effect after restart)</source>
        <translation>(يسري بعد إعادة التشغيل)</translation>
    </message>
    <message>
        <source>Client Size</source>
        <translation>حجم العميل</translation>
    </message>
    <message>
        <source>Show time zone(Takes effect after restart)</source>
        <translation>عرض المنطقة الزمنية (يسري بعد إعادة التشغيل)</translation>
    </message>
    <message>
        <source>Enable time sync with platform server</source>
        <translation>تمكين مزامنة الوقت مع خادم المنصة</translation>
    </message>
    <message>
        <source>Auto Login</source>
        <translation>تسجيل الدخول تلقائيًا</translation>
    </message>
    <message>
        <source>Auto restart after reboot</source>
        <translation>التشغيل تلقائيًا بعد إعادة إقلاع الجهاز</translation>
    </message>
    <message>
        <source>Display previous live view after restart</source>
        <translation>عرض آخر عرض مباشر بعد إعادة التشغيل</translation>
    </message>
    <message>
        <source>Self-adaptive audio talk parameter</source>
        <translation>معاملات محادثة صوتية ذاتية التكيف</translation>
    </message>
    <message>
        <source>Show device node</source>
        <translation>إظهار عقدة الجهاز</translation>
    </message>
    <message>
        <source>Display live view thumbnail</source>
        <translation>عرض صورة مصغرة للعرض المباشر</translation>
    </message>
    <message>
        <source>Auto hide task bar</source>
        <translation>إخفاء شريط المهام تلقائيًا</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكنة</translation>
    </message>
    <message>
        <source>White</source>
        <translation>فاتحة</translation>
    </message>
</context>
<context>
    <name>CCaptureConfig</name>
    <message>
        <source>Capture Config</source>
        <translation>إعدادات اللقطات</translation>
    </message>
    <message>
        <source>Image Format</source>
        <translation>تنسيق الصورة</translation>
    </message>
    <message>
        <source>Picture Path</source>
        <translation>مسار الصور</translation>
    </message>
    <message>
        <source>Picture Name</source>
        <translation>اسم الصورة</translation>
    </message>
    <message>
        <source>Snapshot Interval</source>
        <translation>الفاصل بين اللقطات</translation>
    </message>
    <message>
        <source>(Not less than 1s)</source>
        <translation>(لا يقل عن 1 ثانية)</translation>
    </message>
    <message>
        <source>Continuous Snapshot Times</source>
        <translation>عدد اللقطات المتتالية</translation>
    </message>
    <message>
        <source>(2-10)</source>
        <translation>(2-10)</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>Sections</source>
        <translation>الأقسام</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>أساسي</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>الفيديو</translation>
    </message>
    <message>
        <source>Record Playback</source>
        <translation>تشغيل التسجيلات</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>لقطة</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>الإنذار</translation>
    </message>
    <message>
        <source>Video Wall</source>
        <translation>جدار الفيديو</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>الأمان</translation>
    </message>
    <message>
        <source>Shortcut Keys</source>
        <translation>مفاتيح الاختصار</translation>
    </message>
    <message>
        <source>Local Config</source>
        <translation>الإعدادات المحلية</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>القيم الافتراضية</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Failed to save config</source>
        <translation>فشل حفظ الإعدادات</translation>
    </message>
    <message>
        <source>Failed to save configuration, some values are illegal.</source>
        <translation>فشل حفظ الإعدادات، بعض القيم غير صالحة.</translation>
    </message>
    <message>
        <source>Not saved, some values are illegal.</source>
        <translation>لم يتم الحفظ، بعض القيم غير صالحة.</translation>
    </message>
</context>
<context>
    <name>CPlaybackConfig</name>
    <message>
        <source>Playback Config</source>
        <translation>إعدادات التشغيل</translation>
    </message>
    <message>
        <source>Dev Recording Stream</source>
        <translation>تدفق تسجيل الجهاز</translation>
    </message>
    <message>
        <source>Enable high definition adjustment</source>
        <translation>تمكين ضبط الدقة العالية</translation>
    </message>
</context>
<context>
    <name>CRecordConfig</name>
    <message>
        <source>Record Config</source>
        <translation>إعدادات التسجيل</translation>
    </message>
    <message>
        <source>Record Path</source>
        <translation>مسار التسجيلات</translation>
    </message>
    <message>
        <source>Record Name</source>
        <translation>اسم التسجيل</translation>
    </message>
    <message>
        <source>Max Size of Record</source>
        <translation>الحد الأقصى لحجم التسجيل</translation>
    </message>
    <message>
        <source>(100-1500M)</source>
        <translation>(100-1500 م.ب)</translation>
    </message>
</context>
<context>
    <name>CSecurityConfig</name>
    <message>
        <source>CSecurityConfig</source>
        <translation>إعدادات الأمان</translation>
    </message>
    <message>
        <source>Audio/Video Transmission Encryption (Takes effect after restart)</source>
        <translation>تشفير نقل الصوت والفيديو (يسري بعد إعادة التشغيل)</translation>
    </message>
</context>
<context>
    <name>CShortcutKeyConfig</name>
    <message>
        <source>List</source>
        <translation>قائمة</translation>
    </message>
    <message>
        <source>Keyboard Type</source>
        <translation>نوع لوحة المفاتيح</translation>
    </message>
    <message>
        <source>PC Keyboard</source>
        <translation>لوحة مفاتيح الحاسوب</translation>
    </message>
    <message>
        <source>USB NKB Joystick</source>
        <translation>لوحة مفاتيح شبكية USB بعصا تحكم</translation>
    </message>
</context>
<context>
    <name>CSplitWndNumConfig</name>
    <message>
        <source>List</source>
        <translation>قائمة</translation>
    </message>
    <message>
        <source>8 Windows</source>
        <translation>8 نوافذ</translation>
    </message>
    <message>
        <source>1 Window</source>
        <translation>نافذة واحدة</translation>
    </message>
    <message>
        <source>4 Windows</source>
        <translation>4 نوافذ</translation>
    </message>
    <message>
        <source>6 Windows</source>
        <translation>6 نوافذ</translation>
    </message>
    <message>
        <source>13 Windows</source>
        <translation>13 نافذة</translation>
    </message>
    <message>
        <source>9 Windows</source>
        <translation>9 نوافذ</translation>
    </message>
    <message>
        <source>16 Windows</source>
        <translation>16 نافذة</translation>
    </message>
    <message>
        <source>20 Windows</source>
        <translation>20 نافذة</translation>
    </message>
    <message>
        <source>36 Windows</source>
        <translation>36 نافذة</translation>
    </message>
    <message>
        <source>25 Windows</source>
        <translation>25 نافذة</translation>
    </message>
</context>
<context>
    <name>CTvWallConfig</name>
    <message>
        <source>Video Wall Config</source>
        <translation>إعدادات جدار الفيديو</translation>
    </message>
    <message>
        <source>Default Stream Type</source>
        <translation>نوع التدفق الافتراضي</translation>
    </message>
    <message>
        <source>Stay Time(s)</source>
        <translation>مدة البقاء (ث)</translation>
    </message>
    <message>
        <source>(15-65535s)</source>
        <translation>(15-65535 ث)</translation>
    </message>
    <message>
        <source>Stream Type</source>
        <translation>نوع التدفق</translation>
    </message>
    <message>
        <source>When split exceeds threshold, sub stream is opened</source>
        <translation>فتح التدفق الفرعي عند تجاوز التقسيم الحد</translation>
    </message>
    <message>
        <source>Binding Mode</source>
        <translation>وضع الربط</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>جولة</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>تجانب</translation>
    </message>
    <message>
        <source>Inquiry</source>
        <translation>استعلام</translation>
    </message>
    <message>
        <source>Double click on the video to maximize the window and switch to main stream</source>
        <translation>نقر مزدوج على الفيديو لتكبير النافذة والتبديل إلى التدفق الرئيسي</translation>
    </message>
</context>
<context>
    <name>CVideoConfig</name>
    <message>
        <source>Video Config</source>
        <translation>إعدادات الفيديو</translation>
    </message>
    <message>
        <source>Default Split</source>
        <translation>التقسيم الافتراضي</translation>
    </message>
    <message>
        <source>Window Display</source>
        <translation>عرض النافذة</translation>
    </message>
    <message>
        <source>Stream Type</source>
        <translation>نوع التدفق</translation>
    </message>
    <message>
        <source>When split exceeds threshold, sub stream is opened</source>
        <translation>فتح التدفق الفرعي عند تجاوز التقسيم الحد</translation>
    </message>
    <message>
        <source>Play Mode</source>
        <translation>وضع التشغيل</translation>
    </message>
    <message>
        <source>Video Buffer Time</source>
        <translation>مدة التخزين المؤقت للفيديو</translation>
    </message>
    <message>
        <source>(1-1500 ms)</source>
        <translation>(1-1500 م.ث)</translation>
    </message>
    <message>
        <source>CPU Usage Prompt Threshold</source>
        <translation>حد التنبيه لاستخدام المعالج</translation>
    </message>
    <message>
        <source>Instant Playback Time</source>
        <translation>مدة التشغيل الفوري</translation>
    </message>
    <message>
        <source>Custom Instant Playback Time</source>
        <translation>مدة مخصصة للتشغيل الفوري</translation>
    </message>
    <message>
        <source>Time Unit</source>
        <translation>وحدة الوقت</translation>
    </message>
    <message>
        <source>10s-24h</source>
        <translation>10 ث-24 س</translation>
    </message>
    <message>
        <source>Enable hardware acceleration(Takes effect after reopening video)</source>
        <translation>تمكين تسريع العتاد (يسري بعد إعادة فتح الفيديو)</translation>
    </message>
    <message>
        <source>Double click on the video to maximize the window and switch to main stream</source>
        <translation>نقر مزدوج على الفيديو لتكبير النافذة والتبديل إلى التدفق الرئيسي</translation>
    </message>
    <message>
        <source>Close videos being played after long-time inactivity</source>
        <translation>إغلاق مقاطع الفيديو الجارية بعد فترة خمول طويلة</translation>
    </message>
    <message>
        <source>Silent Time</source>
        <translation>مدة الخمول</translation>
    </message>
    <message>
        <source>(1-30 min)</source>
        <translation>(1-30 دقيقة)</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CAlarmConfig</name>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Select a wav file</source>
        <translation>تحديد ملف wav</translation>
    </message>
    <message>
        <source>WAVE Files (*.wav)</source>
        <translation>ملفات WAVE ‎(*.wav)‎</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CCaptureConfig</name>
    <message>
        <source>Time_ChannelNo</source>
        <translation>الوقت_رقم القناة</translation>
    </message>
    <message>
        <source>Time_ChannelName</source>
        <translation>الوقت_اسم القناة</translation>
    </message>
    <message>
        <source>ChannelNo_Time</source>
        <translation>رقم القناة_الوقت</translation>
    </message>
    <message>
        <source>ChannelName_Time</source>
        <translation>اسم القناة_الوقت</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>The Path length of Picture should not longer than 180</source>
        <translation>يجب ألا يزيد طول مسار الصور على 180</translation>
    </message>
    <message>
        <source>Continue snapshot time interval must be longer than 1s.</source>
        <translation>يجب ألا يقل الفاصل بين اللقطات المتتالية عن 1 ثانية.</translation>
    </message>
    <message>
        <source>Continuously snapshot 2-10 pic.</source>
        <translation>لقطات متتالية من 2-10 صور.</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CFindField</name>
    <message>
        <source>Find</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>لا توجد نتائج</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>%1 من %2: %3</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CPlaybackConfig</name>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Main Stream</source>
        <translation>التدفق الرئيسي</translation>
    </message>
    <message>
        <source>Sub Stream 1</source>
        <translation>التدفق الفرعي 1</translation>
    </message>
    <message>
        <source>Sub Stream 2</source>
        <translation>التدفق الفرعي 2</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CRecordConfig</name>
    <message>
        <source>Time_ChannelNo</source>
        <translation>الوقت_رقم القناة</translation>
    </message>
    <message>
        <source>Time_ChannelName</source>
        <translation>الوقت_اسم القناة</translation>
    </message>
    <message>
        <source>ChannelNo_Time</source>
        <translation>رقم القناة_الوقت</translation>
    </message>
    <message>
        <source>ChannelName_Time</source>
        <translation>اسم القناة_الوقت</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>The Path length of Record should not longer than 168</source>
        <translation>يجب ألا يزيد طول مسار التسجيلات على 168</translation>
    </message>
    <message>
        <source>(%1-%2M)</source>
        <translation>(%1-%2 م.ب)</translation>
    </message>
    <message>
        <source>Max size of a file must be within %1-%2.</source>
        <translation>يجب أن يكون الحد الأقصى لحجم الملف بين %1 و%2.</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CSecurityConfig</name>
    <message>
        <source>Prompt</source>
        <translation>تنبيه</translation>
    </message>
    <message>
        <source>Audio and video encryption can ensure secure data transmission and prevent others from directly obtaining the audio and video for analysis. Are you sure to disable the function?</source>
        <translation>يضمن تشفير الصوت والفيديو نقل البيانات بأمان ويمنع الآخرين من الحصول مباشرةً على الصوت والفيديو لتحليلهما. هل تريد بالتأكيد تعطيل هذه الوظيفة؟</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CShortcutKeyConfig</name>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>الوظيفة</translation>
    </message>
    <message>
        <source>Shortcut Keys</source>
        <translation>مفاتيح الاختصار</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>تحريك لأعلى</translation>
    </message>
    <message>
        <source>Lock Client</source>
        <translation>قفل العميل</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>تحريك لأسفل</translation>
    </message>
    <message>
        <source>Snap Single Window</source>
        <translation>لقطة لنافذة واحدة</translation>
    </message>
    <message>
        <source>Move Left</source>
        <translation>تحريك لليسار</translation>
    </message>
    <message>
        <source>One-click Snapshot</source>
        <translation>لقطة بنقرة واحدة</translation>
    </message>
    <message>
        <source>Move Right</source>
        <translation>تحريك لليمين</translation>
    </message>
    <message>
        <source>Local Record</source>
        <translation>تسجيل محلي</translation>
    </message>
    <message>
        <source>Aperture-</source>
        <translation>فتحة العدسة-</translation>
    </message>
    <message>
        <source>Preset 1</source>
        <translation>الوضع المسبق 1</translation>
    </message>
    <message>
        <source>Aperture+</source>
        <translation>فتحة العدسة+</translation>
    </message>
    <message>
        <source>Preset 2</source>
        <translation>الوضع المسبق 2</translation>
    </message>
    <message>
        <source>Focus-</source>
        <translation>التركيز-</translation>
    </message>
    <message>
        <source>Preset 3</source>
        <translation>الوضع المسبق 3</translation>
    </message>
    <message>
        <source>Focus+</source>
        <translation>التركيز+</translation>
    </message>
    <message>
        <source>Preset 4</source>
        <translation>الوضع المسبق 4</translation>
    </message>
    <message>
        <source>Zoom-</source>
        <translation>التقريب-</translation>
    </message>
    <message>
        <source>Preset 5</source>
        <translation>الوضع المسبق 5</translation>
    </message>
    <message>
        <source>Zoom+</source>
        <translation>التقريب+</translation>
    </message>
    <message>
        <source>Preset 6</source>
        <translation>الوضع المسبق 6</translation>
    </message>
    <message>
        <source>Open Single Window</source>
        <translation>فتح نافذة واحدة</translation>
    </message>
    <message>
        <source>Preset 7</source>
        <translation>الوضع المسبق 7</translation>
    </message>
    <message>
        <source>Close Single Window</source>
        <translation>إغلاق نافذة واحدة</translation>
    </message>
    <message>
        <source>Preset 8</source>
        <translation>الوضع المسبق 8</translation>
    </message>
    <message>
        <source>Open Full Screen</source>
        <translation>فتح ملء الشاشة</translation>
    </message>
    <message>
        <source>Preset 9</source>
        <translation>الوضع المسبق 9</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>إنهاء ملء الشاشة</translation>
    </message>
    <message>
        <source>Preset 10</source>
        <translation>الوضع المسبق 10</translation>
    </message>
    <message>
        <source>Tours Pause/Continue</source>
        <translation>إيقاف/متابعة الجولات</translation>
    </message>
    <message>
        <source>IRIS- (Oper Mode)</source>
        <translation>القزحية- (وضع التشغيل)</translation>
    </message>
    <message>
        <source>IRIS+ (Oper Mode)</source>
        <translation>القزحية+ (وضع التشغيل)</translation>
    </message>
    <message>
        <source>Focus- (Oper Mode)</source>
        <translation>التركيز- (وضع التشغيل)</translation>
    </message>
    <message>
        <source>Focus+ (Oper Mode)</source>
        <translation>التركيز+ (وضع التشغيل)</translation>
    </message>
    <message>
        <source>Zoom- (Oper Mode)</source>
        <translation>التقريب- (وضع التشغيل)</translation>
    </message>
    <message>
        <source>Zoom+ (Oper Mode)</source>
        <translation>التقريب+ (وضع التشغيل)</translation>
    </message>
    <message>
        <source>IRIS- (Edit Mode)</source>
        <translation>القزحية- (وضع التحرير)</translation>
    </message>
    <message>
        <source>IRIS+ (Edit Mode)</source>
        <translation>القزحية+ (وضع التحرير)</translation>
    </message>
    <message>
        <source>Focus- (Edit Mode)</source>
        <translation>التركيز- (وضع التحرير)</translation>
    </message>
    <message>
        <source>Focus+ (Edit Mode)</source>
        <translation>التركيز+ (وضع التحرير)</translation>
    </message>
    <message>
        <source>Choose Output Screen</source>
        <translation>اختيار شاشة الإخراج</translation>
    </message>
    <message>
        <source>NUM+PLAY</source>
        <translation>NUM+PLAY</translation>
    </message>
    <message>
        <source>Screen Maximization</source>
        <translation>تكبير الشاشة</translation>
    </message>
    <message>
        <source>NUM+FN</source>
        <translation>NUM+FN</translation>
    </message>
    <message>
        <source>Choose Number of Windows</source>
        <translation>اختيار عدد النوافذ</translation>
    </message>
    <message>
        <source>NUM+MULT</source>
        <translation>NUM+MULT</translation>
    </message>
    <message>
        <source>Restore Screen</source>
        <translation>استعادة الشاشة</translation>
    </message>
    <message>
        <source>Choose Window</source>
        <translation>اختيار نافذة</translation>
    </message>
    <message>
        <source>NUM+ID</source>
        <translation>NUM+ID</translation>
    </message>
    <message>
        <source>Call Preset</source>
        <translation>استدعاء وضع مسبق</translation>
    </message>
    <message>
        <source>NUM+PRESET</source>
        <translation>NUM+PRESET</translation>
    </message>
    <message>
        <source>Select input source</source>
        <translation>تحديد مصدر الإدخال</translation>
    </message>
    <message>
        <source>NUM+CAM</source>
        <translation>NUM+CAM</translation>
    </message>
    <message>
        <source>Hori Pan</source>
        <translation>دوران أفقي</translation>
    </message>
    <message>
        <source>PAN</source>
        <translation>PAN</translation>
    </message>
    <message>
        <source>Previous Video Source</source>
        <translation>مصدر الفيديو السابق</translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation>SHIFT</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>SCAN</source>
        <translation>SCAN</translation>
    </message>
    <message>
        <source>Next Video Source</source>
        <translation>مصدر الفيديو التالي</translation>
    </message>
    <message>
        <source>ENTER</source>
        <translation>ENTER</translation>
    </message>
    <message>
        <source>Cruise</source>
        <translation>جولة الكاميرا</translation>
    </message>
    <message>
        <source>NUM+TOUR</source>
        <translation>NUM+TOUR</translation>
    </message>
    <message>
        <source>Erase One Bit</source>
        <translation>مسح خانة واحدة</translation>
    </message>
    <message>
        <source>ESC</source>
        <translation>ESC</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>نمط</translation>
    </message>
    <message>
        <source>NUM+PATTERN</source>
        <translation>NUM+PATTERN</translation>
    </message>
    <message>
        <source>Switch Mode</source>
        <translation>تبديل الوضع</translation>
    </message>
    <message>
        <source>SETUP</source>
        <translation>SETUP</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>التحكم بالحركة (PTZ)</translation>
    </message>
    <message>
        <source>Rocker Control</source>
        <translation>عصا التحكم</translation>
    </message>
    <message>
        <source>Main/Sub Stream Setup</source>
        <translation>إعداد التدفق الرئيسي/الفرعي</translation>
    </message>
    <message>
        <source>1+SETUP</source>
        <translation>1+SETUP</translation>
    </message>
    <message>
        <source>Save Task</source>
        <translation>حفظ المهمة</translation>
    </message>
    <message>
        <source>Execute Tour in All Screens</source>
        <translation>بدء الجولة على كل الشاشات</translation>
    </message>
    <message>
        <source>Stop Tour in All Screens</source>
        <translation>إيقاف الجولة على كل الشاشات</translation>
    </message>
    <message>
        <source>PTZ Menu</source>
        <translation>قائمة PTZ</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>القائمة</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CTvWallConfig</name>
    <message>
        <source>Main Stream</source>
        <translation>التدفق الرئيسي</translation>
    </message>
    <message>
        <source>Sub Stream 1</source>
        <translation>التدفق الفرعي 1</translation>
    </message>
    <message>
        <source>Sub Stream 2</source>
        <translation>التدفق الفرعي 2</translation>
    </message>
    <message>
        <source>Local Signal</source>
        <translation>الإشارة المحلية</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>Stay time must be within %1-%2s.</source>
        <translation>يجب أن تكون مدة البقاء بين %1 و%2 ثانية.</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CVideoConfig</name>
    <message>
        <source>Original Scale</source>
        <translation>المقياس الأصلي</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>ملء النافذة</translation>
    </message>
    <message>
        <source>Real-time Priority</source>
        <translation>أولوية للزمن الفعلي</translation>
    </message>
    <message>
        <source>Fluency Priority</source>
        <translation>أولوية للسلاسة</translation>
    </message>
    <message>
        <source>Balance Priority</source>
        <translation>أولوية للتوازن</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>مخصص</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>ساعة</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>دقيقة</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>ثانية</translation>
    </message>
    <message>
        <source>:</source>
        <translation>:</translation>
    </message>
    <message>
        <source>%1-%2 ms</source>
        <translation>%1-%2 م.ث</translation>
    </message>
    <message>
        <source>s</source>
        <translation> ث</translation>
    </message>
    <message>
        <source>Min</source>
        <translation> د</translation>
    </message>
    <message>
        <source>Video buffer time range must be within %1-%2 ms.</source>
        <translation>يجب أن تكون مدة التخزين المؤقت للفيديو بين %1 و%2 م.ث.</translation>
    </message>
</context>
<context>
    <name>LocalConfig::QCheckableComboBox</name>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>%1 ...</source>
        <translation>%1 ...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
</context>
</TS>
