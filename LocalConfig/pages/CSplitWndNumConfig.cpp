#include "CSplitWndNumConfig.h"
#include "ui_CSplitWndNumConfig.h"

#include <LocalConfig/SkinStyle.h>

#include <QStyle>
#include <QVariant>

namespace LocalConfig
{

namespace
{

struct SSplitButton
{
    QPushButton* Ui::CSplitWndNumConfig::*pButton;
    int nSplit;
};

using Form = Ui::CSplitWndNumConfig;

constexpr char g_szOpened[] = "opened"; // what the sheet tells it by

constexpr SSplitButton g_arrButtons[] = {
    {&Form::btnDiv1, 1},   {&Form::btnDiv4, 4},   {&Form::btnDiv6, 6},   {&Form::btnDiv8, 8},   {&Form::btnDiv9, 9},
    {&Form::btnDiv13, 13}, {&Form::btnDiv16, 16}, {&Form::btnDiv20, 20}, {&Form::btnDiv25, 25}, {&Form::btnDiv36, 36},
};

} // namespace

CSplitWndNumConfig::CSplitWndNumConfig(QWidget* pParent)
    : QWidget(pParent)
    , m_pUi(std::make_unique<Ui::CSplitWndNumConfig>())
{
    m_pUi->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    for (const SSplitButton& button : g_arrButtons)
    {
        connect((*m_pUi).*button.pButton, &QPushButton::clicked, this, &CSplitWndNumConfig::OnNormalClicked);
    }
    setObjectName(QStringLiteral("CSplitWndNumConfig"));
    ApplySkinStyle(this);
}

CSplitWndNumConfig::~CSplitWndNumConfig() = default;

/// The sheet's forty pictures come with the first show, because most dialogs are closed without one.
void CSplitWndNumConfig::showEvent(QShowEvent* pEvent)
{
    if (!property(g_szOpened).toBool())
    {
        setProperty(g_szOpened, true);
        for (const SSplitButton& button : g_arrButtons)
        {
            style()->polish((*m_pUi).*button.pButton);
        }
    }
    QWidget::showEvent(pEvent);
}

void CSplitWndNumConfig::OnNormalClicked()
{
    for (const SSplitButton& button : g_arrButtons)
    {
        if (sender() == (*m_pUi).*button.pButton)
        {
            emit sgnSplitChanged(button.nSplit);
            return;
        }
    }
}

} // namespace LocalConfig
