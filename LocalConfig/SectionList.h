// The sections of the dialog, one row each, in the order of the navigation list. Whoever includes this file defines
// SECTION first, as what it makes of a row; hence no guard. The build reads the pictures from here, too.
//
// SECTION(name: the section is Index<name> here and Section<name> for the host,
//         class of the page, object name of the page, call that creates the page at the first show,
//         box and inner layout in CLocalConfig.ui, text,
//         picture, folders of its files "-n", "-h" and "-p" in a skin, which mixes them)

// clang-format off

SECTION(Basic, CBasicConfig, "m_pBasic", CreateBasicConfig(),
        m_gBBasic, horizontalLayout_2, QT_TRANSLATE_NOOP("CLocalConfig", "Basic"),
        "general", "public", "public", "public")

SECTION(Video, CVideoConfig, "m_pVideo", CreateVideoConfig(),
        m_gBVideo, horizontalLayout_3, QT_TRANSLATE_NOOP("CLocalConfig", "Video"),
        "video", "LocalConfig", "LocalConfig", "LocalConfig")

SECTION(Playback, CPlaybackConfig, "m_pPlayback", CreatePlaybackConfig(),
        m_gBPlayback, horizontalLayout_4, QT_TRANSLATE_NOOP("CLocalConfig", "Record Playback"),
        "playback", "public", "public", "LocalConfig")

SECTION(Snapshot, CCaptureConfig, "m_pCapture", CreateCaptureConfig(),
        m_gBCapture, horizontalLayout_5, QT_TRANSLATE_NOOP("CLocalConfig", "Snapshot"),
        "capture", "public", "LocalConfig", "LocalConfig")

SECTION(Record, CRecordConfig, "m_pRecord", CreateRecordConfig(),
        m_gBRecord, horizontalLayout_6, QT_TRANSLATE_NOOP("CLocalConfig", "Recording"),
        "videorecord", "public", "public", "public")

SECTION(Alarm, CAlarmConfig, "m_pAlarm", CreateAlarmConfig(),
        m_gBAlarm, horizontalLayout_8, QT_TRANSLATE_NOOP("CLocalConfig", "Alarm"),
        "alert", "LocalConfig", "LocalConfig", "LocalConfig")

SECTION(TvWall, CTvWallConfig, "m_pTvWall", CreateTVWallConfig(),
        m_gBTvwall, horizontalLayout_9, QT_TRANSLATE_NOOP("CLocalConfig", "Video Wall"),
        "settvwall", "LocalConfig", "LocalConfig", "LocalConfig")

SECTION(Security, CSecurityConfig, "m_pSecurity", CreateSrcurityConfig(),
        m_gBSecurity, horizontalLayout_10, QT_TRANSLATE_NOOP("CLocalConfig", "Security"),
        "SecurityConfig", "LocalConfig", "LocalConfig", "LocalConfig")

SECTION(ShortcutKey, CShortcutKeyConfig, "m_pKey", CreateShortcurKeyConfig(),
        m_gShortcutKey, horizontalLayout_7, QT_TRANSLATE_NOOP("CLocalConfig", "Shortcut Keys"),
        "shortcut", "LocalConfig", "LocalConfig", "LocalConfig")

// clang-format on

#undef SECTION
