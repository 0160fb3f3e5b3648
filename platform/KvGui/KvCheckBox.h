#pragma once

#include <KvGui/KvGuiExport.h>

#include <QCheckBox>

namespace KVGUI
{

/// Check box with the client's look.
class KVGUI_EXPORT KvCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit KvCheckBox(QWidget* pParent = nullptr);                         ///< without a text
    explicit KvCheckBox(const QString& strText, QWidget* pParent = nullptr); ///< with a text
};

} // namespace KVGUI
