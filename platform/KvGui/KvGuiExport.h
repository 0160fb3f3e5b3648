#pragma once

#include <QtGlobal>

#if defined(KvGui_EXPORTS)
#define KVGUI_EXPORT Q_DECL_EXPORT
#else
#define KVGUI_EXPORT Q_DECL_IMPORT
#endif
