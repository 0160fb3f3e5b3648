<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>Client</name>
    <message>
        <source>The settings cannot be changed</source>
        <translation>无法更改设置</translation>
    </message>
    <message>
        <source>The data folder &apos;%1&apos; is no folder.</source>
        <translation>数据文件夹“%1”不是文件夹。</translation>
    </message>
    <message>
        <source>The data folder &apos;%1&apos; cannot be made.</source>
        <translation>无法创建数据文件夹“%1”。</translation>
    </message>
    <message>
        <source>The data folder &apos;%1&apos; cannot be entered.</source>
        <translation>无法进入数据文件夹“%1”。</translation>
    </message>
    <message>
        <source>Cannot read &apos;%1&apos;</source>
        <translation>无法读取“%1”</translation>
    </message>
    <message>
        <source>Cannot import &apos;%1&apos;: %2</source>
        <translation>无法导入“%1”：%2</translation>
    </message>
    <message>
        <source>Cannot import &apos;%1&apos;</source>
        <translation>无法导入“%1”</translation>
    </message>
    <message>
        <source>Cannot write &apos;%1&apos;</source>
        <translation>无法写入“%1”</translation>
    </message>
    <message>
        <source>The skin file &apos;%1&apos; cannot be read.</source>
        <translation>无法读取皮肤文件“%1”。</translation>
    </message>
    <message>
        <source>The data folder &apos;%1&apos; does not exist.</source>
        <translation>数据文件夹“%1”不存在。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is the client&apos;s own file.</source>
        <translation>“%1”是客户端自己的文件。</translation>
    </message>
    <message>
        <source>Not all alarm sounds could be put into the data folder.</source>
        <translation>部分报警声音无法放入数据文件夹。</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no text in the encoding of this system.</source>
        <translation>“%1”不是此系统编码中的文本。</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Render the settings dialog to a PNG file.</source>
        <translation>将设置对话框绘制为 PNG 文件。</translation>
    </message>
    <message>
        <source>Print all settings as JSON.</source>
        <translation>以 JSON 格式输出全部设置。</translation>
    </message>
    <message>
        <source>Replace all settings by those of a file.</source>
        <translation>用文件中的设置替换全部设置。</translation>
    </message>
    <message>
        <source>Write all settings to a file.</source>
        <translation>将全部设置写入文件。</translation>
    </message>
    <message>
        <source>Print one setting.</source>
        <translation>输出一项设置。</translation>
    </message>
    <message>
        <source>Change one setting; may be repeated.</source>
        <translation>更改一项设置；可重复使用。</translation>
    </message>
    <message>
        <source>Print a JSON schema of the settings.</source>
        <translation>输出设置的 JSON 架构。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>DustyBlue or White (default: as in Localcfg.ini, else DustyBlue).</source>
        <translation>DustyBlue 或 White（默认：以 Localcfg.ini 为准，否则为 DustyBlue）。</translation>
    </message>
    <message>
        <source>en, zh_CN, es or ar (default: as in Localcfg.ini, else en).</source>
        <translation>en、zh_CN、es 或 ar（默认：以 Localcfg.ini 为准，否则为 en）。</translation>
    </message>
    <message>
        <source>Right that the user lacks; may be repeated.</source>
        <translation>用户缺少的权限，可重复。</translation>
    </message>
    <message>
        <source>Platform server whose connection is watched (default: none).</source>
        <translation>要监视连接的平台服务器（默认：无）。</translation>
    </message>
    <message>
        <source>Folder of the client&apos;s files (default: %1).</source>
        <translation>客户端文件所在文件夹（默认：%1）。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>多余的参数“%1”。</translation>
    </message>
    <message>
        <source>Option --%1 is given more than once.</source>
        <translation>选项 --%1 重复出现。</translation>
    </message>
    <message>
        <source>Option --%1 needs a value.</source>
        <translation>选项 --%1 需要一个值。</translation>
    </message>
    <message>
        <source>Option --%1 takes %2, not &apos;%3&apos;.</source>
        <translation>选项 --%1 的值应为%2，而不是“%3”。</translation>
    </message>
    <message>
        <source>Options --%1 and --%2 exclude each other.</source>
        <translation>选项 --%1 与 --%2 不能同时使用。</translation>
    </message>
    <message>
        <source>a positive number</source>
        <translation>正整数</translation>
    </message>
    <message>
        <source>a number from 0 to 8 or a section&apos;s name</source>
        <translation>0 到 8 的数字或分类名称</translation>
    </message>
    <message>
        <source>Without right 26 there is no section 6.</source>
        <translation>没有权限 26 时不存在分类 6。</translation>
    </message>
    <message>
        <source>DustyBlue or White</source>
        <translation>DustyBlue 或 White</translation>
    </message>
    <message>
        <source>en, zh_CN, es or ar</source>
        <translation>en、zh_CN、es 或 ar</translation>
    </message>
    <message>
        <source>HOST:PORT</source>
        <translation>主机:端口</translation>
    </message>
    <message>
        <source>Surveillance workstation client. Without an action it opens its window and the settings dialog.</source>
        <translation>监控工作站客户端。不带操作选项时打开主窗口和设置对话框。</translation>
    </message>
    <message>
        <source>Section that the dialog shows at first, 0 to 8 or its name: %1 (default: 0).</source>
        <translation>对话框首先显示的分类，0 到 8 或其名称：%1（默认：0）。</translation>
    </message>
    <message>
        <source>Option --section belongs to the dialog.</source>
        <translation>选项 --section 只能与对话框一起使用。</translation>
    </message>
    <message>
        <source>Environment:
  KV_CLIENT_RESOURCES  Folder of skins, sounds, translations and alarm types.
  DISPLAY              Screen that the window opens on; a picture needs none.
  QT_SCALE_FACTOR      How large to draw, as far as the screen has room for it.
</source>
        <translation>环境变量：
  KV_CLIENT_RESOURCES  皮肤、声音、翻译和报警类型所在的文件夹。
  DISPLAY              打开窗口的屏幕；绘制图片时不需要。
  QT_SCALE_FACTOR      界面的放大倍数，以屏幕能容纳为限。
</translation>
    </message>
</context>
<context>
    <name>ConfigService</name>
    <message>
        <source>The auto-start entry could not be changed: %1.</source>
        <translation>无法更改自动启动项：%1。</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>process %1 on %2</source>
        <translation>%2 上的进程 %1</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::AlarmCenter</name>
    <message>
        <source>Alarm %1</source>
        <translation>报警 %1</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::LiveActions</name>
    <message>
        <source>Picture saved in %1</source>
        <translation>图片已保存到 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures saved in %1</source>
        <translation>
            <numerusform>%n 张图片已保存到 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording saved in %1</source>
        <translation>录像已保存到 %1</translation>
    </message>
    <message>
        <source>Cannot write to %1</source>
        <translation>无法写入 %1</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::MainWindow</name>
    <message>
        <source>The connection to the platform is lost. The settings are locked until it is back.</source>
        <translation>与平台的连接已断开。连接恢复之前，设置处于锁定状态。</translation>
    </message>
    <message>
        <source>The connection to the platform is back.</source>
        <translation>与平台的连接已恢复。</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>已断开</translation>
    </message>
    <message>
        <source>Surveillance Client</source>
        <translation>监控客户端</translation>
    </message>
    <message>
        <source>Local Config...</source>
        <translation>本地配置...</translation>
    </message>
    <message>
        <source>Settings of this workstation (Ctrl+,)</source>
        <translation>本工作站的设置 (Ctrl+,)</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>抓图</translation>
    </message>
    <message>
        <source>Picture of the selected window (P)</source>
        <translation>对选中窗口抓图 (P)</translation>
    </message>
    <message>
        <source>Continuous Snapshot</source>
        <translation>连续抓图</translation>
    </message>
    <message>
        <source>Pictures of the selected window, one after the other</source>
        <translation>对选中窗口连续抓图</translation>
    </message>
    <message>
        <source>Recording of the selected window (Ctrl+R)</source>
        <translation>对选中窗口录像 (Ctrl+R)</translation>
    </message>
    <message>
        <source>Stop Recording</source>
        <translation>停止录像</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>录像</translation>
    </message>
    <message>
        <source>The client is locked.</source>
        <translation>客户端已锁定。</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Alarm Type:</source>
        <translation>报警类型：</translation>
    </message>
    <message>
        <source>Alarm Type</source>
        <translation>报警类型</translation>
    </message>
    <message>
        <source>Test Alarm</source>
        <translation>测试报警</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Alarm: %1</source>
        <translation>报警：%1</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::MapView</name>
    <message>
        <source>Map</source>
        <translation>地图</translation>
    </message>
</context>
<context>
    <name>LocalConfigClient::SplitView</name>
    <message>
        <source>Live view</source>
        <translation>实时预览</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>摄像机 %1</translation>
    </message>
    <message>
        <source>%1, recorded</source>
        <translation>%1，正在录像</translation>
    </message>
    <message>
        <source>REC</source>
        <translation>录像</translation>
    </message>
</context>
<context>
    <name>SettingValue</name>
    <message>
        <source>There is no setting '%1'.</source>
        <translation>没有名为“%1”的设置。</translation>
    </message>
    <message>
        <source>Impossible value of '%1': '%2'.</source>
        <translation>“%1”的值不可能为“%2”。</translation>
    </message>
</context>
<context>
    <name>SettingsDocument</name>
    <message>
        <source>not a JSON document: %1</source>
        <translation>不是 JSON 文档：%1</translation>
    </message>
    <message>
        <source>not a settings document</source>
        <translation>不是设置文档</translation>
    </message>
    <message>
        <source>written by a newer version</source>
        <translation>由更新的版本写入</translation>
    </message>
    <message>
        <source>impossible value of %1</source>
        <translation>%1 的值不合法</translation>
    </message>
</context>
<context>
    <name>SettingsFile</name>
    <message>
        <source>Another client uses this data folder; changes cannot be saved meanwhile.</source>
        <translation>另一个客户端正在使用此数据文件夹，在此期间无法保存更改。</translation>
    </message>
    <message>
        <source>Another client (%1) uses this data folder; changes cannot be saved meanwhile.</source>
        <translation>另一个客户端（%1）正在使用此数据文件夹，在此期间无法保存更改。</translation>
    </message>
    <message>
        <source>The data folder cannot be written: %1. Changes cannot be saved.</source>
        <translation>无法写入数据文件夹：%1。更改无法保存。</translation>
    </message>
    <message>
        <source>The settings file is missing; the last good settings are used.</source>
        <translation>设置文件丢失，已使用最近一次的正常设置。</translation>
    </message>
    <message>
        <source>The settings file cannot be read: %1. Changes cannot be saved.</source>
        <translation>无法读取设置文件：%1。更改无法保存。</translation>
    </message>
    <message>
        <source>The settings file is from a newer version. Changes cannot be saved.</source>
        <translation>设置文件来自更新的版本。更改无法保存。</translation>
    </message>
    <message>
        <source>The settings file is damaged (%1); the last good settings are used. %2</source>
        <translation>设置文件已损坏（%1），已使用最近一次的正常设置。%2</translation>
    </message>
    <message>
        <source>The settings file is damaged (%1); the default settings are used. %2</source>
        <translation>设置文件已损坏（%1），已使用默认设置。%2</translation>
    </message>
    <message>
        <source>It was set aside.</source>
        <translation>该文件已另存。</translation>
    </message>
    <message>
        <source>The settings file was damaged meanwhile and was set aside.</source>
        <translation>设置文件期间已损坏，已另存。</translation>
    </message>
    <message>
        <source>The settings file is missing and the last good settings cannot be used; the default settings are used.</source>
        <translation>设置文件丢失，最近一次的正常设置也无法使用，已使用默认设置。</translation>
    </message>
    <message>
        <source>The missing rights in the settings file cannot be understood; the user is taken to have no rights.</source>
        <translation>设置文件中列出的缺失权限无法识别，该用户视为没有任何权限。</translation>
    </message>
    <message>
        <source>A folder or a device stands in the place of &apos;%1&apos;. Changes cannot be saved.</source>
        <translation>“%1”的位置上是一个文件夹或设备。更改无法保存。</translation>
    </message>
</context>
</TS>
