#pragma once

#include <KvGui/KvGuiExport.h>

#include <QRadioButton>

namespace KVGUI
{

/// Radio button with the client's look. Tab enters a group at the button that is checked.
class KVGUI_EXPORT KvRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit KvRadioButton(QWidget* pParent = nullptr);                         ///< without a text
    explicit KvRadioButton(const QString& strText, QWidget* pParent = nullptr); ///< with a text

protected:
    void checkStateSet() override;
    void nextCheckState() override;

private:
    void TakeTabStop();
    QList<QAbstractButton*> GetGroup() const;
};

} // namespace KVGUI
