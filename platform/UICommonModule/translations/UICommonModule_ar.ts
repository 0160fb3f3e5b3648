<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en_US">
<context>
    <name>CAudioOutput</name>
    <message>
        <source>Sounds cannot be heard, there is no audio device.</source>
        <translation>لن تُسمع الأصوات، إذ لا يوجد جهاز صوت.</translation>
    </message>
</context>
<context>
    <name>CErrorCode</name>
    <message>
        <source>success</source>
        <translation>تم بنجاح</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>القرص ممتلئ</translation>
    </message>
    <message>
        <source>no permission to use the file or its folder</source>
        <translation>لا يوجد إذن لاستخدام الملف أو مجلده</translation>
    </message>
    <message>
        <source>another client uses the same data folder</source>
        <translation>عميل آخر يستخدم مجلد البيانات نفسه</translation>
    </message>
    <message>
        <source>the folder does not exist</source>
        <translation>المجلد غير موجود</translation>
    </message>
    <message>
        <source>the device reported an error</source>
        <translation>أبلغ الجهاز عن خطأ</translation>
    </message>
    <message>
        <source>the file is damaged</source>
        <translation>الملف تالف</translation>
    </message>
    <message>
        <source>the file cannot be read and is left as it is</source>
        <translation>تتعذر قراءة الملف وتُرك كما هو</translation>
    </message>
    <message>
        <source>the file was changed by another program</source>
        <translation>عدّل برنامج آخر الملف</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>الملف غير موجود</translation>
    </message>
    <message>
        <source>written, but not yet safe from a power cut</source>
        <translation>تمت الكتابة، لكنها ليست بمأمن بعد من انقطاع التيار</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>الملف كبير جدًا</translation>
    </message>
    <message>
        <source>there is a file of that name already</source>
        <translation>يوجد ملف بهذا الاسم بالفعل</translation>
    </message>
    <message>
        <source>a folder or device has the name of the file</source>
        <translation>يوجد مجلد أو جهاز باسم الملف نفسه</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>برنامج آخر يستخدم الملف</translation>
    </message>
    <message>
        <source>%1: %2 (code %3)</source>
        <translation>%1: %2 (الرمز %3)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 (code %2)</source>
        <translation>%1 (الرمز %2)</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>خطأ غير معروف</translation>
    </message>
</context>
<context>
    <name>CLocalIniFile</name>
    <message>
        <source>Cannot write &apos;%1&apos;</source>
        <translation>تتعذر كتابة «‎%1‎»</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CAlarmType</name>
    <message>
        <source>No alarm types are known, for &apos;%1&apos; cannot be used</source>
        <translation>لا توجد أنواع إنذار معروفة، إذ يتعذر استخدام «‎%1‎»</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CAlarmTypeMenu</name>
    <message>
        <source>Alarm categories</source>
        <translation>فئات الإنذار</translation>
    </message>
    <message>
        <source>Alarm types</source>
        <translation>أنواع الإنذار</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CPathEdit</name>
    <message>
        <source>Browse</source>
        <translation>استعراض</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>تحديد مجلد</translation>
    </message>
    <message>
        <source>Browse: %1</source>
        <translation>استعراض: %1</translation>
    </message>
</context>
</TS>
