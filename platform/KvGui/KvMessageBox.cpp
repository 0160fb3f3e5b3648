#include "KvMessageBox.h"

#include "KvButtonRow.h"
#include "KvCustomDialog.h"
#include "KvModal.h"
#include "KvPushButton.h"

#include <QAccessible>
#include <QLabel>
#include <QVBoxLayout>

namespace KVGUI
{

namespace
{

constexpr int g_nTextWidth = 360;
constexpr int g_nMargin = 24;

class CMessageDialog : public KvDialog
{
public:
    CMessageDialog(QWidget* pParent, const QString& strTitle, const QString& strText, int nButtons, int nDefaultButton)
        : KvDialog(pParent)
    {
        setObjectName(QStringLiteral("KvMessageBox"));
        setAccessibleName(strTitle);
        setAccessibleDescription(strText);
        SetTitle(strTitle);
        auto* pLayout = new QVBoxLayout(GetContentWidget());
        pLayout->setContentsMargins(0, 0, 0, 0);
        pLayout->setSpacing(0);
        pLayout->setSizeConstraint(QLayout::SetFixedSize);
        auto* pText = new QLabel(strText, GetContentWidget());
        pText->setObjectName(QStringLiteral("messageText"));
        pText->setTextFormat(Qt::PlainText);
        pText->setWordWrap(true);
        pText->setFixedWidth(g_nTextWidth + 2 * g_nMargin);
        pText->setMargin(g_nMargin);
        pLayout->addWidget(pText);
        auto* pRow = new KvButtonRow(nButtons, GetContentWidget());
        pLayout->addWidget(pRow);

        const bool bHasCancel = nButtons & KvCustomDialog::Cancel;
        SetText(pRow, KvCustomDialog::Ok, KvMessageBox::tr("OK"));
        SetText(pRow, KvCustomDialog::Other, bHasCancel ? KvMessageBox::tr("Other") : KvMessageBox::tr("Cancel"));
        SetText(pRow, KvCustomDialog::Cancel, KvMessageBox::tr("Cancel"));

        if (KvPushButton* pDefault = pRow->GetButton(nDefaultButton))
        {
            pDefault->setDefault(true);
            pDefault->setFocus();
        }
        else
        {
            for (int nButton : {KvCustomDialog::Cancel, KvCustomDialog::Other, KvCustomDialog::Ok})
            {
                if (KvPushButton* pButton = pRow->GetButton(nButton))
                {
                    pButton->setFocus();
                    break;
                }
            }
        }
        connect(pRow, &KvButtonRow::SignalButtonClicked, this, [this](int nButton) { done(nButton); });
    }

protected:
    void showEvent(QShowEvent* pEvent) override
    {
        KvDialog::showEvent(pEvent);
        QAccessibleEvent event(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }

private:
    static void SetText(const KvButtonRow* pRow, int nButton, const QString& strText)
    {
        if (KvPushButton* pButton = pRow->GetButton(nButton))
        {
            pButton->setText(strText);
        }
    }
};

} // namespace

int KvMessageBox::ShowInformation(QWidget* pParent, const QString& strTitle, const QString& strText, int nButtons,
                                  int nDefaultButton)
{
    KvModal<CMessageDialog> dialog(pParent, strTitle, strText, nButtons, nDefaultButton);
    return dialog.Exec() ? dialog->result() : 0;
}

} // namespace KVGUI
