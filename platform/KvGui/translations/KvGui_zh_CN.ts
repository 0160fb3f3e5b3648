<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>KVGUI::KvDialog</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>KVGUI::KvLineEdit</name>
    <message>
        <source>Illegal value</source>
        <translation>无效的值</translation>
    </message>
    <message>
        <source>Illegal value, %1</source>
        <translation>无效的值，%1</translation>
    </message>
</context>
<context>
    <name>KvMessageBox</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
</TS>
