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

struct SButton
{
    int nButton;
    const char* pszName;
};

constexpr SButton g_arrButtons[] = {{0x2000, "btnOther"}, {0x400, "btnOk"}, {0x400000, "btnCancel"}};
constexpr int g_nLeadingButton = 0x2000;

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
    for (const SButton& button : g_arrButtons)
    {
        if (!(nButtons & button.nButton))
        {
            continue;
        }
        auto* pButton = new KvPushButton(this);
        pButton->setObjectName(QString::fromLatin1(button.pszName));
        pButton->setFixedHeight(g_nButtonHeight);
        pButton->setMinimumWidth(g_nButtonWidth);
        pButton->setAutoDefault(false);
        m_mapButtons.insert(button.nButton, pButton);
        const int nWhich = button.nButton;
        connect(pButton, &KvPushButton::clicked, this, [this, nWhich] { emit SignalButtonClicked(nWhich); });
        pRow->insertWidget(nWhich == g_nLeadingButton ? 0 : pRow->count(), pButton);
    }
    pColumn->addLayout(pRow);
    pColumn->addItem(new QSpacerItem(0, g_nVerticalMargin, QSizePolicy::Minimum, QSizePolicy::Preferred));
}

KvPushButton* KvButtonRow::GetButton(int nButton) const
{
    return m_mapButtons.value(nButton);
}

} // namespace KVGUI
