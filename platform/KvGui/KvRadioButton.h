#pragma once

#include <KvGui/KvGuiExport.h>

#include <QRadioButton>

namespace KVGUI
{

/// Radio button with the client's look.
class KVGUI_EXPORT KvRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit KvRadioButton(QWidget* pParent = nullptr);
    explicit KvRadioButton(const QString& strText, QWidget* pParent = nullptr);
};

} // namespace KVGUI
