<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>CAudioOutput</name>
    <message>
        <source>Sounds cannot be heard, there is no audio device.</source>
        <translation>没有音频设备，无法听到声音。</translation>
    </message>
</context>
<context>
    <name>CErrorCode</name>
    <message>
        <source>success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>no permission to use the file or its folder</source>
        <translation>没有使用该文件或其文件夹的权限</translation>
    </message>
    <message>
        <source>another client uses the same data folder</source>
        <translation>另一个客户端正在使用同一数据文件夹</translation>
    </message>
    <message>
        <source>the folder does not exist</source>
        <translation>文件夹不存在</translation>
    </message>
    <message>
        <source>the device reported an error</source>
        <translation>设备报告错误</translation>
    </message>
    <message>
        <source>the file is damaged</source>
        <translation>文件已损坏</translation>
    </message>
    <message>
        <source>the file cannot be read and is left as it is</source>
        <translation>文件无法读取，保持原样</translation>
    </message>
    <message>
        <source>the file was changed by another program</source>
        <translation>文件已被其他程序更改</translation>
    </message>
    <message>
        <source>the file does not exist</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>written, but not yet safe from a power cut</source>
        <translation>已写入，但断电时仍可能丢失</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>there is a file of that name already</source>
        <translation>已有同名文件</translation>
    </message>
    <message>
        <source>a folder or device has the name of the file</source>
        <translation>同名的文件夹或设备已存在</translation>
    </message>
    <message>
        <source>another program is using the file</source>
        <translation>另一个程序正在使用该文件</translation>
    </message>
    <message>
        <source>%1: %2 (code %3)</source>
        <translation>%1：%2（代码 %3）</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 (code %2)</source>
        <translation>%1（代码 %2）</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>未知错误</translation>
    </message>
</context>
<context>
    <name>CLocalIniFile</name>
    <message>
        <source>Cannot write &apos;%1&apos;</source>
        <translation>无法写入“%1”</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CAlarmType</name>
    <message>
        <source>No alarm types are known, for &apos;%1&apos; cannot be used</source>
        <translation>没有可用的报警类型，因为无法使用“%1”</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CAlarmTypeMenu</name>
    <message>
        <source>Alarm categories</source>
        <translation>报警分类</translation>
    </message>
    <message>
        <source>Alarm types</source>
        <translation>报警类型</translation>
    </message>
</context>
<context>
    <name>UICommonMdl::CPathEdit</name>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Browse: %1</source>
        <translation>浏览：%1</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>选择文件夹</translation>
    </message>
</context>
</TS>
