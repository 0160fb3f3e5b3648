<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>CAlarmConfig</name>
    <message>
        <source>Alarm Config</source>
        <translation>报警配置</translation>
    </message>
    <message>
        <source>Play alarm sound</source>
        <translation>播放报警声音</translation>
    </message>
    <message>
        <source>Alarm Type</source>
        <translation>报警类型</translation>
    </message>
    <message>
        <source>Alarm Type of the Sound</source>
        <translation>声音的报警类型</translation>
    </message>
    <message>
        <source>Sound Path</source>
        <translation>声音路径</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>Map flashes when alarm occurs</source>
        <translation>报警时地图闪烁</translation>
    </message>
    <message>
        <source>Alarm Types that Flash</source>
        <translation>闪烁的报警类型</translation>
    </message>
    <message>
        <source>Display alarm-linked video when alarm occurs</source>
        <translation>报警时显示联动视频</translation>
    </message>
    <message>
        <source>Open Video Type</source>
        <translation>打开视频方式</translation>
    </message>
    <message>
        <source>As Pop Up</source>
        <translation>弹窗</translation>
    </message>
    <message>
        <source>In Live View</source>
        <translation>在预览中</translation>
    </message>
</context>
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
    <name>CCaptureConfig</name>
    <message>
        <source>Capture Config</source>
        <translation>抓图配置</translation>
    </message>
    <message>
        <source>Image Format</source>
        <translation>图片格式</translation>
    </message>
    <message>
        <source>Picture Path</source>
        <translation>图片路径</translation>
    </message>
    <message>
        <source>Picture Name</source>
        <translation>图片命名</translation>
    </message>
    <message>
        <source>Snapshot Interval</source>
        <translation>抓图间隔</translation>
    </message>
    <message>
        <source>(Not less than 1s)</source>
        <translation>（不小于 1 秒）</translation>
    </message>
    <message>
        <source>Continuous Snapshot Times</source>
        <translation>连续抓图张数</translation>
    </message>
    <message>
        <source>(2-10)</source>
        <translation>（2-10）</translation>
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
    <message>
        <source>Not saved, some values are illegal.</source>
        <translation>未保存，部分值不合法。</translation>
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
    <name>CRecordConfig</name>
    <message>
        <source>Record Config</source>
        <translation>录像配置</translation>
    </message>
    <message>
        <source>Record Path</source>
        <translation>录像路径</translation>
    </message>
    <message>
        <source>Record Name</source>
        <translation>录像命名</translation>
    </message>
    <message>
        <source>Max Size of Record</source>
        <translation>录像文件最大值</translation>
    </message>
    <message>
        <source>(100-1500M)</source>
        <translation>（100-1500M）</translation>
    </message>
</context>
<context>
    <name>CSecurityConfig</name>
    <message>
        <source>CSecurityConfig</source>
        <translation>安全配置</translation>
    </message>
    <message>
        <source>Audio/Video Transmission Encryption (Takes effect after restart)</source>
        <translation>音视频传输加密（重启后生效）</translation>
    </message>
</context>
<context>
    <name>CShortcutKeyConfig</name>
    <message>
        <source>List</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>Keyboard Type</source>
        <translation>键盘类型</translation>
    </message>
    <message>
        <source>PC Keyboard</source>
        <translation>PC 键盘</translation>
    </message>
    <message>
        <source>USB NKB Joystick</source>
        <translation>USB 网络键盘摇杆</translation>
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
    <name>LocalConfig::CAlarmConfig</name>
    <message>
        <source>:</source>
        <translation>：</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Select a wav file</source>
        <translation>选择 wav 文件</translation>
    </message>
    <message>
        <source>WAVE Files (*.wav)</source>
        <translation>WAVE 文件 (*.wav)</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CCaptureConfig</name>
    <message>
        <source>Time_ChannelNo</source>
        <translation>时间_通道号</translation>
    </message>
    <message>
        <source>Time_ChannelName</source>
        <translation>时间_通道名称</translation>
    </message>
    <message>
        <source>ChannelNo_Time</source>
        <translation>通道号_时间</translation>
    </message>
    <message>
        <source>ChannelName_Time</source>
        <translation>通道名称_时间</translation>
    </message>
    <message>
        <source>:</source>
        <translation>：</translation>
    </message>
    <message>
        <source>The Path length of Picture should not longer than 180</source>
        <translation>图片路径长度不能超过 180</translation>
    </message>
    <message>
        <source>Continue snapshot time interval must be longer than 1s.</source>
        <translation>连续抓图间隔不能小于 1 秒。</translation>
    </message>
    <message>
        <source>Continuously snapshot 2-10 pic.</source>
        <translation>连续抓图 2-10 张。</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CFindField</name>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>No match</source>
        <translation>无匹配项</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>第 %1 个，共 %2 个</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <translation>第 %1 个，共 %2 个：%3</translation>
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
    <name>LocalConfig::CRecordConfig</name>
    <message>
        <source>Time_ChannelNo</source>
        <translation>时间_通道号</translation>
    </message>
    <message>
        <source>Time_ChannelName</source>
        <translation>时间_通道名称</translation>
    </message>
    <message>
        <source>ChannelNo_Time</source>
        <translation>通道号_时间</translation>
    </message>
    <message>
        <source>ChannelName_Time</source>
        <translation>通道名称_时间</translation>
    </message>
    <message>
        <source>:</source>
        <translation>：</translation>
    </message>
    <message>
        <source>The Path length of Record should not longer than 168</source>
        <translation>录像路径长度不能超过 168</translation>
    </message>
    <message>
        <source>(%1-%2M)</source>
        <translation>（%1-%2M）</translation>
    </message>
    <message>
        <source>Max size of a file must be within %1-%2.</source>
        <translation>文件最大值必须在 %1-%2 之间。</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CSecurityConfig</name>
    <message>
        <source>Prompt</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Audio and video encryption can ensure secure data transmission and prevent others from directly obtaining the audio and video for analysis. Are you sure to disable the function?</source>
        <translation>音视频加密可保证数据传输安全，防止他人直接获取音视频进行分析。确定要关闭该功能吗？</translation>
    </message>
</context>
<context>
    <name>LocalConfig::CShortcutKeyConfig</name>
    <message>
        <source>:</source>
        <translation>：</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Shortcut Keys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Lock Client</source>
        <translation>锁定客户端</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Snap Single Window</source>
        <translation>单窗口抓图</translation>
    </message>
    <message>
        <source>Move Left</source>
        <translation>左移</translation>
    </message>
    <message>
        <source>One-click Snapshot</source>
        <translation>一键抓图</translation>
    </message>
    <message>
        <source>Move Right</source>
        <translation>右移</translation>
    </message>
    <message>
        <source>Local Record</source>
        <translation>本地录像</translation>
    </message>
    <message>
        <source>Aperture-</source>
        <translation>光圈-</translation>
    </message>
    <message>
        <source>Preset 1</source>
        <translation>预置点 1</translation>
    </message>
    <message>
        <source>Aperture+</source>
        <translation>光圈+</translation>
    </message>
    <message>
        <source>Preset 2</source>
        <translation>预置点 2</translation>
    </message>
    <message>
        <source>Focus-</source>
        <translation>聚焦-</translation>
    </message>
    <message>
        <source>Preset 3</source>
        <translation>预置点 3</translation>
    </message>
    <message>
        <source>Focus+</source>
        <translation>聚焦+</translation>
    </message>
    <message>
        <source>Preset 4</source>
        <translation>预置点 4</translation>
    </message>
    <message>
        <source>Zoom-</source>
        <translation>变倍-</translation>
    </message>
    <message>
        <source>Preset 5</source>
        <translation>预置点 5</translation>
    </message>
    <message>
        <source>Zoom+</source>
        <translation>变倍+</translation>
    </message>
    <message>
        <source>Preset 6</source>
        <translation>预置点 6</translation>
    </message>
    <message>
        <source>Open Single Window</source>
        <translation>打开单窗口</translation>
    </message>
    <message>
        <source>Preset 7</source>
        <translation>预置点 7</translation>
    </message>
    <message>
        <source>Close Single Window</source>
        <translation>关闭单窗口</translation>
    </message>
    <message>
        <source>Preset 8</source>
        <translation>预置点 8</translation>
    </message>
    <message>
        <source>Open Full Screen</source>
        <translation>打开全屏</translation>
    </message>
    <message>
        <source>Preset 9</source>
        <translation>预置点 9</translation>
    </message>
    <message>
        <source>Exit Full Screen</source>
        <translation>退出全屏</translation>
    </message>
    <message>
        <source>Preset 10</source>
        <translation>预置点 10</translation>
    </message>
    <message>
        <source>Tours Pause/Continue</source>
        <translation>轮巡暂停/继续</translation>
    </message>
    <message>
        <source>IRIS- (Oper Mode)</source>
        <translation>IRIS-（操作模式）</translation>
    </message>
    <message>
        <source>IRIS+ (Oper Mode)</source>
        <translation>IRIS+（操作模式）</translation>
    </message>
    <message>
        <source>Focus- (Oper Mode)</source>
        <translation>Focus-（操作模式）</translation>
    </message>
    <message>
        <source>Focus+ (Oper Mode)</source>
        <translation>Focus+（操作模式）</translation>
    </message>
    <message>
        <source>Zoom- (Oper Mode)</source>
        <translation>Zoom-（操作模式）</translation>
    </message>
    <message>
        <source>Zoom+ (Oper Mode)</source>
        <translation>Zoom+（操作模式）</translation>
    </message>
    <message>
        <source>IRIS- (Edit Mode)</source>
        <translation>IRIS-（编辑模式）</translation>
    </message>
    <message>
        <source>IRIS+ (Edit Mode)</source>
        <translation>IRIS+（编辑模式）</translation>
    </message>
    <message>
        <source>Focus- (Edit Mode)</source>
        <translation>Focus-（编辑模式）</translation>
    </message>
    <message>
        <source>Focus+ (Edit Mode)</source>
        <translation>Focus+（编辑模式）</translation>
    </message>
    <message>
        <source>Choose Output Screen</source>
        <translation>选择输出屏</translation>
    </message>
    <message>
        <source>NUM+PLAY</source>
        <translation>NUM+PLAY</translation>
    </message>
    <message>
        <source>Screen Maximization</source>
        <translation>屏幕最大化</translation>
    </message>
    <message>
        <source>NUM+FN</source>
        <translation>NUM+FN</translation>
    </message>
    <message>
        <source>Choose Number of Windows</source>
        <translation>选择窗口数</translation>
    </message>
    <message>
        <source>NUM+MULT</source>
        <translation>NUM+MULT</translation>
    </message>
    <message>
        <source>Restore Screen</source>
        <translation>还原屏幕</translation>
    </message>
    <message>
        <source>Choose Window</source>
        <translation>选择窗口</translation>
    </message>
    <message>
        <source>NUM+ID</source>
        <translation>NUM+ID</translation>
    </message>
    <message>
        <source>Call Preset</source>
        <translation>调用预置点</translation>
    </message>
    <message>
        <source>NUM+PRESET</source>
        <translation>NUM+PRESET</translation>
    </message>
    <message>
        <source>Select input source</source>
        <translation>选择输入源</translation>
    </message>
    <message>
        <source>NUM+CAM</source>
        <translation>NUM+CAM</translation>
    </message>
    <message>
        <source>Hori Pan</source>
        <translation>水平旋转</translation>
    </message>
    <message>
        <source>PAN</source>
        <translation>PAN</translation>
    </message>
    <message>
        <source>Previous Video Source</source>
        <translation>上一个视频源</translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation>SHIFT</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>线扫</translation>
    </message>
    <message>
        <source>SCAN</source>
        <translation>SCAN</translation>
    </message>
    <message>
        <source>Next Video Source</source>
        <translation>下一个视频源</translation>
    </message>
    <message>
        <source>ENTER</source>
        <translation>ENTER</translation>
    </message>
    <message>
        <source>Cruise</source>
        <translation>点间巡航</translation>
    </message>
    <message>
        <source>NUM+TOUR</source>
        <translation>NUM+TOUR</translation>
    </message>
    <message>
        <source>Erase One Bit</source>
        <translation>删除一位</translation>
    </message>
    <message>
        <source>ESC</source>
        <translation>ESC</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>巡迹</translation>
    </message>
    <message>
        <source>NUM+PATTERN</source>
        <translation>NUM+PATTERN</translation>
    </message>
    <message>
        <source>Switch Mode</source>
        <translation>切换模式</translation>
    </message>
    <message>
        <source>SETUP</source>
        <translation>SETUP</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>云台</translation>
    </message>
    <message>
        <source>Rocker Control</source>
        <translation>摇杆控制</translation>
    </message>
    <message>
        <source>Main/Sub Stream Setup</source>
        <translation>主辅码流设置</translation>
    </message>
    <message>
        <source>1+SETUP</source>
        <translation>1+SETUP</translation>
    </message>
    <message>
        <source>Save Task</source>
        <translation>保存任务</translation>
    </message>
    <message>
        <source>Execute Tour in All Screens</source>
        <translation>全部屏幕开启轮巡</translation>
    </message>
    <message>
        <source>Stop Tour in All Screens</source>
        <translation>全部屏幕停止轮巡</translation>
    </message>
    <message>
        <source>PTZ Menu</source>
        <translation>云台菜单</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
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
<context>
    <name>LocalConfig::QCheckableComboBox</name>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1 ...</source>
        <translation>%1 ...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
</context>
</TS>
