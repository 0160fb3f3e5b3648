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
<context>
    <name>CPlaybackConfig</name>
    <message>
        <source>Playback Config</source>
        <translation>回放配置</translation>
    </message>
    <message>
        <source>Dev Recording Stream</source>
        <translation>设备录像码流</translation>
    </message>
    <message>
        <source>Enable high definition adjustment</source>
        <translation>启用高清调节</translation>
    </message>
</context>
<context>
    <name>CSplitWndNumConfig</name>
    <message>
        <source>List</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>8 Windows</source>
        <translation>8 窗口</translation>
    </message>
    <message>
        <source>1 Window</source>
        <translation>1 窗口</translation>
    </message>
    <message>
        <source>4 Windows</source>
        <translation>4 窗口</translation>
    </message>
    <message>
        <source>6 Windows</source>
        <translation>6 窗口</translation>
    </message>
    <message>
        <source>13 Windows</source>
        <translation>13 窗口</translation>
    </message>
    <message>
        <source>9 Windows</source>
        <translation>9 窗口</translation>
    </message>
    <message>
        <source>16 Windows</source>
        <translation>16 窗口</translation>
    </message>
    <message>
        <source>20 Windows</source>
        <translation>20 窗口</translation>
    </message>
    <message>
        <source>36 Windows</source>
        <translation>36 窗口</translation>
    </message>
    <message>
        <source>25 Windows</source>
        <translation>25 窗口</translation>
    </message>
</context>
<context>
    <name>CTvWallConfig</name>
    <message>
        <source>Video Wall Config</source>
        <translation>电视墙配置</translation>
    </message>
    <message>
        <source>Default Stream Type</source>
        <translation>默认码流类型</translation>
    </message>
    <message>
        <source>Stay Time(s)</source>
        <translation>停留时间（秒）</translation>
    </message>
    <message>
        <source>(15-65535s)</source>
        <translation>（15-65535 秒）</translation>
    </message>
    <message>
        <source>Stream Type</source>
        <translation>码流类型</translation>
    </message>
    <message>
        <source>When split exceeds threshold, sub stream is opened</source>
        <translation>分割数超过阈值时打开辅码流</translation>
    </message>
    <message>
        <source>Binding Mode</source>
        <translation>绑定方式</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>轮巡</translation>
    </message>
    <message>
        <source>Tile</source>
        <translation>平铺</translation>
    </message>
    <message>
        <source>Inquiry</source>
        <translation>询问</translation>
    </message>
    <message>
        <source>Double click on the video to maximize the window and switch to main stream</source>
        <translation>双击视频时最大化窗口并切换到主码流</translation>
    </message>
</context>
<context>
    <name>CVideoConfig</name>
    <message>
        <source>Video Config</source>
        <translation>视频配置</translation>
    </message>
    <message>
        <source>Default Split</source>
        <translation>默认窗口分割</translation>
    </message>
    <message>
        <source>Window Display</source>
        <translation>窗口显示</translation>
    </message>
    <message>
        <source>Stream Type</source>
        <translation>码流类型</translation>
    </message>
    <message>
        <source>When split exceeds threshold, sub stream is opened</source>
        <translation>分割数超过阈值时打开辅码流</translation>
    </message>
    <message>
        <source>Play Mode</source>
        <translation>播放模式</translation>
    </message>
    <message>
        <source>Video Buffer Time</source>
        <translation>视频缓冲时间</translation>
    </message>
    <message>
        <source>(1-1500 ms)</source>
        <translation>（1-1500 毫秒）</translation>
    </message>
    <message>
        <source>CPU Usage Prompt Threshold</source>
        <translation>CPU 使用率提示阈值</translation>
    </message>
    <message>
        <source>Instant Playback Time</source>
        <translation>即时回放时间</translation>
    </message>
    <message>
        <source>Custom Instant Playback Time</source>
        <translation>自定义即时回放时间</translation>
    </message>
    <message>
        <source>Time Unit</source>
        <translation>时间单位</translation>
    </message>
    <message>
        <source>10s-24h</source>
        <translation>10 秒-24 小时</translation>
    </message>
    <message>
        <source>Enable hardware acceleration(Takes effect after reopening video)</source>
        <translation>启用硬件加速（重新打开视频后生效）</translation>
    </message>
    <message>
        <source>Double click on the video to maximize the window and switch to main stream</source>
        <translation>双击视频时最大化窗口并切换到主码流</translation>
    </message>
    <message>
        <source>Close videos being played after long-time inactivity</source>
        <translation>长时间无操作时关闭正在播放的视频</translation>
    </message>
    <message>
        <source>Silent Time</source>
        <translation>静默时间</translation>
    </message>
    <message>
        <source>(1-30 min)</source>
        <translation>（1-30 分钟）</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CPlaybackConfig</name>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Main Stream</source>
        <translation>主码流</translation>
    </message>
    <message>
        <source>Sub Stream 1</source>
        <translation>辅码流 1</translation>
    </message>
    <message>
        <source>Sub Stream 2</source>
        <translation>辅码流 2</translation>
    </message>
    <message>
        <source>:</source>
        <translation>：</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CTvWallConfig</name>
    <message>
        <source>Main Stream</source>
        <translation>主码流</translation>
    </message>
    <message>
        <source>Sub Stream 1</source>
        <translation>辅码流 1</translation>
    </message>
    <message>
        <source>Sub Stream 2</source>
        <translation>辅码流 2</translation>
    </message>
    <message>
        <source>Local Signal</source>
        <translation>本地信号</translation>
    </message>
    <message>
        <source>:</source>
        <translation>：</translation>
    </message>
    <message>
        <source>Stay time must be within %1-%2s.</source>
        <translation>停留时间必须在 %1-%2 秒之间。</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CVideoConfig</name>
    <message>
        <source>Original Scale</source>
        <translation>原始比例</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>满屏</translation>
    </message>
    <message>
        <source>Real-time Priority</source>
        <translation>实时优先</translation>
    </message>
    <message>
        <source>Fluency Priority</source>
        <translation>流畅优先</translation>
    </message>
    <message>
        <source>Balance Priority</source>
        <translation>均衡优先</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>小时</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>:</source>
        <translation>：</translation>
    </message>
    <message>
        <source>%1-%2 ms</source>
        <translation>%1-%2 毫秒</translation>
    </message>
    <message>
        <source>s</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Video buffer time range must be within %1-%2 ms.</source>
        <translation>视频缓冲时间必须在 %1-%2 毫秒之间。</translation>
    </message>
</context>
</TS>
