#pragma once

#include <QtGlobal>

#if defined(LocalConfig_EXPORTS)
#define LOCALCONFIG_EXPORT Q_DECL_EXPORT
#else
#define LOCALCONFIG_EXPORT Q_DECL_IMPORT
#endif
