#include "KvAlert.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <QVariant>

namespace KVGUI
{

namespace
{

constexpr char g_szAlert[] = "alert";

class CAccessibleAlert : public QAccessibleWidget
{
public:
    explicit CAccessibleAlert(QWidget* pWidget)
        : QAccessibleWidget(pWidget, QAccessible::AlertMessage)
    {}

    QString text(QAccessible::Text eText) const override
    {
        const auto* pLabel = qobject_cast<const QLabel*>(object());
        const bool bOwnText = pLabel && eText == QAccessible::Name && pLabel->accessibleName().isEmpty();
        return bOwnText ? pLabel->text() : QAccessibleWidget::text(eText);
    }
};

QAccessibleInterface* MakeAccessible(const QString& /*strClass*/, QObject* pObject)
{
    auto* pWidget = qobject_cast<QWidget*>(pObject);
    return pWidget && pWidget->property(g_szAlert).toBool() ? new CAccessibleAlert(pWidget) : nullptr;
}

void MakeAlert(QWidget* pWidget)
{
    QAccessible::installFactory(&MakeAccessible); // installs it once
    pWidget->setProperty(g_szAlert, true);
    QAccessibleInterface* pInterface = QAccessible::queryAccessibleInterface(pWidget);
    if (pInterface && pInterface->role() != QAccessible::AlertMessage)
    {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(pInterface)); // from before it was an alert
    }
}

void Send(QWidget* pWidget, QAccessible::Event eEvent)
{
    QAccessibleEvent event(pWidget, eEvent);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void KvAlert::Show(QWidget* pWidget)
{
    if (!pWidget->property(g_szAlert).toBool())
    {
        MakeAlert(pWidget);
    }
    if (pWidget->isVisible())
    {
        Send(pWidget, QAccessible::ObjectShow); // what alerts are told at where there are no events of their own
    }
    else
    {
        pWidget->show();
    }
    Send(pWidget, QAccessible::Alert);
}

} // namespace KVGUI
