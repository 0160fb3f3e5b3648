#include "KvButtonRow.h"

#include "KvPushButton.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace KVGUI
{

namespace
{

constexpr int g_nSideMargin = 16;
constexpr int g_nVerticalMargin = 12;
constexpr int g_nButtonHeight = 32;
constexpr int g_nButtonWidth = 88;

constexpr int g_nOk = 0x400;
constexpr int g_nOther = 0x2000;
constexpr int g_nCancel = 0x400000;

const char* GetName(int nButton)
{
    return nButton == g_nOther ? "btnOther" : nButton == g_nOk ? "btnOk" : "btnCancel";
}

/// The buttons in reading order. Where none cancels, the other one does, and stands where a cancelling one would.
QList<int> GetOrder(int nButtons)
{
    QList<int> listOrder = nButtons & g_nCancel ? QList<int>{g_nOther, g_nOk, g_nCancel} : QList<int>{g_nOk, g_nOther};
    for (const int nButton : {g_nOk, g_nOther, g_nCancel})
    {
        if (!(nButtons & nButton))
        {
            listOrder.removeAll(nButton);
        }
    }
    return listOrder;
}

} // namespace

KvButtonRow::KvButtonRow(int nButtons, QWidget* pParent)
    : QWidget(pParent)
{
    setObjectName(QStringLiteral("buttonRow"));
    setAttribute(Qt::WA_StyledBackground);

    auto* pColumn = new QVBoxLayout(this);
    pColumn->setContentsMargins(g_nSideMargin, 0, g_nSideMargin, 0);
    pColumn->setSpacing(0);
    pColumn->addItem(new QSpacerItem(0, g_nVerticalMargin, QSizePolicy::Minimum, QSizePolicy::Preferred));
    auto* pRow = new QHBoxLayout;
    pRow->setSpacing(8);
    pRow->addStretch();
    for (const int nButton : GetOrder(nButtons))
    {
        auto* pButton = new KvPushButton(this);
        pButton->setObjectName(QString::fromLatin1(GetName(nButton)));
        pButton->setFixedHeight(g_nButtonHeight);
        pButton->setMinimumWidth(g_nButtonWidth);
        pButton->setAutoDefault(true); // Enter presses the one that has the focus
        m_mapButtons.insert(nButton, pButton);
        connect(pButton, &KvPushButton::clicked, this, [this, nButton] { emit SignalButtonClicked(nButton); });
        const bool bLeads = nButton == g_nOther && (nButtons & g_nCancel);
        pRow->insertWidget(bLeads ? 0 : pRow->count(), pButton);
    }
    pColumn->addLayout(pRow);
    pColumn->addItem(new QSpacerItem(0, g_nVerticalMargin, QSizePolicy::Minimum, QSizePolicy::Preferred));
}

KvPushButton* KvButtonRow::GetButton(int nButton) const
{
    return m_mapButtons.value(nButton);
}

} // namespace KVGUI
