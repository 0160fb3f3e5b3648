#pragma once

#include <KvGui/KvGuiExport.h>

#include <QString>

namespace KVGUI
{

/// Folders of the client.
class KVGUI_EXPORT KvDir
{
public:
    /// The client's working folder, where it keeps what it writes. No separator at the end.
    static QString GetCurrentPath();
};

} // namespace KVGUI
