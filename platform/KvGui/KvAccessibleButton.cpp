#include "KvAccessibleButton.h"

#include "KvCheckBox.h"
#include "KvRadioButton.h"

#include <QAccessibleWidget>
#include <QRegularExpression>

namespace KVGUI
{

namespace
{

class CAccessibleButton : public QAccessibleWidget
{
public:
    CAccessibleButton(QAbstractButton* pButton, QAccessible::Role eRole)
        : QAccessibleWidget(pButton, eRole)
        , m_pButton(pButton)
    {}

    QString text(QAccessible::Text eText) const override
    {
        const bool bOwn = eText == QAccessible::Name && m_pButton->accessibleName().isEmpty();
        return bOwn ? m_pButton->text().replace(QRegularExpression(QStringLiteral("&(.)")), QStringLiteral("\\1"))
                    : QAccessibleWidget::text(eText);
    }

    QAccessible::State state() const override
    {
        const auto* pCheckBox = qobject_cast<const QCheckBox*>(m_pButton);
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = m_pButton->isChecked();
        state.checkStateMixed = pCheckBox && pCheckBox->checkState() == Qt::PartiallyChecked;
        state.pressed = m_pButton->isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        return m_pButton->isEnabled() ? QStringList{toggleAction()} + QAccessibleWidget::actionNames() : QStringList();
    }

    void doAction(const QString& strAction) override
    {
        if (strAction == toggleAction())
        {
            m_pButton->click();
        }
        else
        {
            QAccessibleWidget::doAction(strAction);
        }
    }

private:
    QAbstractButton* m_pButton;
};

QAccessibleInterface* MakeAccessible(const QString& /*strClass*/, QObject* pObject)
{
    if (auto* pCheckBox = qobject_cast<KvCheckBox*>(pObject))
    {
        return new CAccessibleButton(pCheckBox, QAccessible::CheckBox);
    }
    auto* pRadioButton = qobject_cast<KvRadioButton*>(pObject);
    return pRadioButton ? new CAccessibleButton(pRadioButton, QAccessible::RadioButton) : nullptr;
}

} // namespace

void PressButtonsByScreenReader()
{
    QAccessible::installFactory(&MakeAccessible); // installs it once
}

} // namespace KVGUI
