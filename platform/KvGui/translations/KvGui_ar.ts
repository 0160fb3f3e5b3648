<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en_US">
<context>
    <name>KVGUI::KvDialog</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>KVGUI::KvLineEdit</name>
    <message>
        <source>Illegal value</source>
        <translation>قيمة غير صالحة</translation>
    </message>
    <message>
        <source>Illegal value, %1</source>
        <translation>قيمة غير صالحة، %1</translation>
    </message>
</context>
<context>
    <name>KvMessageBox</name>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>أخرى</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
</TS>
