#pragma once

#include <QtGlobal>

#if defined(UICommonModule_EXPORTS)
#define UICOMMONMODULE_EXPORT Q_DECL_EXPORT
#else
#define UICOMMONMODULE_EXPORT Q_DECL_IMPORT
#endif
