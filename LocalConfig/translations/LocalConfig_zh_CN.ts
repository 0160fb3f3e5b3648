<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>CBasicConfig</name>
    <message>
        <source>Basic Config</source>
        <translation>基本配置</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>(Takes effect after restart)</source>
        <translation>（重启后生效）</translation>
    </message>
    <message>
        <source>Client Size</source>
        <translation>客户端尺寸</translation>
    </message>
    <message>
        <source>Show time zone(Takes effect after restart)</source>
        <translation>显示时区（重启后生效）</translation>
    </message>
    <message>
        <source>Enable time sync with platform server</source>
        <translation>启用与平台服务器校时</translation>
    </message>
    <message>
        <source>Auto Login</source>
        <translation>自动登录</translation>
    </message>
    <message>
        <source>Auto restart after reboot</source>
        <translation>开机自动启动</translation>
    </message>
    <message>
        <source>Display previous live view after restart</source>
        <translation>重启后显示上次的实时预览</translation>
    </message>
    <message>
        <source>Self-adaptive audio talk parameter</source>
        <translation>语音对讲参数自适应</translation>
    </message>
    <message>
        <source>Show device node</source>
        <translation>显示设备节点</translation>
    </message>
    <message>
        <source>Display live view thumbnail</source>
        <translation>显示实时预览缩略图</translation>
    </message>
    <message>
        <source>Auto hide task bar</source>
        <translation>自动隐藏任务栏</translation>
    </message>
    <message>
        <source>:</source>
        <translation>：</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>White</source>
        <translation>浅色</translation>
    </message>
</context>
<context>
    <name>CLocalConfig</name>
    <message>
        <source>Sections</source>
        <translation>配置分类</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>基本配置</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Record Playback</source>
        <translation>录像回放</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>抓图</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>录像</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>报警</translation>
    </message>
    <message>
        <source>Video Wall</source>
        <translation>电视墙</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>安全</translation>
    </message>
    <message>
        <source>Shortcut Keys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Local Config</source>
        <translation>本地配置</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Failed to save config</source>
        <translation>保存配置失败</translation>
    </message>
    <message>
        <source>Failed to save configuration, some values are illegal.</source>
        <translation>保存配置失败，部分值不合法。</translation>
    </message>
</context>
</TS>
