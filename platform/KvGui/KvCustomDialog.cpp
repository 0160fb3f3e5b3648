#include "KvCustomDialog.h"

#include "KvButtonRow.h"
#include "KvPushButton.h"

#include <QTimer>
#include <QVBoxLayout>

namespace KVGUI
{

namespace
{

constexpr int g_nFlagCloseButton = 1;

} // namespace

KvCustomDialog::KvCustomDialog(StandardButtons eButtons, QWidget* pParent, int nFlags)
    : KvDialog(pParent)
    , m_pCentral(new QWidget(GetContentWidget()))
    , m_pButtonRow(new KvButtonRow(int(eButtons), GetContentWidget()))
{
    SetCloseButtonVisible(nFlags & g_nFlagCloseButton);
    auto* pLayout = new QVBoxLayout(GetContentWidget());
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setSpacing(0);
    pLayout->addWidget(m_pCentral, 1);
    pLayout->addWidget(m_pButtonRow);

    if (KvPushButton* pOk = m_pButtonRow->GetButton(Ok))
    {
        pOk->setDefault(true);
    }
    connect(m_pButtonRow, &KvButtonRow::SignalButtonClicked, this, [this](int nButton) {
        switch (nButton)
        {
        case Ok:
            emit SignalOkButtonClicked();
            break;
        case Other:
            emit SignalOtherButtonClicked();
            break;
        default:
            emit SignalCancelButtonClicked();
        }
    });
}

void KvCustomDialog::showEvent(QShowEvent* pEvent)
{
    KvDialog::showEvent(pEvent);
    QTimer::singleShot(0, this, [this] {
        for (int nButton : {Other, Ok, Cancel})
        {
            if (KvPushButton* pButton = m_pButtonRow->GetButton(nButton))
            {
                MoveToEndOfTabOrder(pButton);
            }
        }
    });
}

QWidget* KvCustomDialog::GetFocusArea() const
{
    return m_pCentral;
}

QWidget* KvCustomDialog::GetCentralWidget() const
{
    return m_pCentral;
}

void KvCustomDialog::SetButtonText(StandardButton eButton, const QString& strText)
{
    if (KvPushButton* pButton = m_pButtonRow->GetButton(eButton))
    {
        pButton->setText(strText);
    }
}

void KvCustomDialog::SetButtonEnable(StandardButtons eButtons, bool bEnable)
{
    for (StandardButton eButton : {Ok, Other, Cancel})
    {
        KvPushButton* pButton = m_pButtonRow->GetButton(eButton);
        if (pButton && eButtons.testFlag(eButton))
        {
            pButton->setEnabled(bEnable);
        }
    }
}

} // namespace KVGUI
