#include "CSplitWndNumConfig.h"
#include "ui_CSplitWndNumConfig.h"

#include <LocalConfig/SkinStyle.h>

#include <QKeyEvent>
#include <QStyle>
#include <QVariant>

#include <algorithm>

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

/// Columns and rows that an arrow key goes; none for another key.
QPoint GetStep(int nKey)
{
    switch (nKey)
    {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

CSplitWndNumConfig::CSplitWndNumConfig(QWidget* pParent)
    : QWidget(pParent)
    , m_pUi(std::make_unique<Ui::CSplitWndNumConfig>())
{
    m_pUi->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    for (const SSplitButton& button : g_arrButtons)
    {
        QPushButton* pButton = (*m_pUi).*button.pButton;
        pButton->setFocusPolicy(Qt::TabFocus); // a click picks, and the picker goes
        pButton->installEventFilter(this);
        connect(pButton, &QPushButton::clicked, this, &CSplitWndNumConfig::OnNormalClicked);
    }
    setFocusProxy(m_pUi->btnDiv1);
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

bool CSplitWndNumConfig::HasKeyboardOn(int nSplit) const
{
    return std::any_of(std::begin(g_arrButtons), std::end(g_arrButtons), [&](const SSplitButton& button) {
        return button.nSplit == nSplit && ((*m_pUi).*button.pButton)->hasFocus();
    });
}

QString CSplitWndNumConfig::GetText(int nSplit) const
{
    const auto it = std::find_if(std::begin(g_arrButtons), std::end(g_arrButtons),
                                 [nSplit](const SSplitButton& button) { return button.nSplit == nSplit; });
    return it == std::end(g_arrButtons) ? QString() : ((*m_pUi).*it->pButton)->toolTip();
}

bool CSplitWndNumConfig::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::KeyPress)
    {
        QPoint step = GetStep(static_cast<QKeyEvent*>(pEvent)->key());
        if (!step.isNull())
        {
            step.rx() *= isRightToLeft() ? -1 : 1;
            MoveFocus(static_cast<QWidget*>(pWatched), step);
            return true; // also at the edges, where it would scroll otherwise
        }
    }
    return QWidget::eventFilter(pWatched, pEvent);
}

void CSplitWndNumConfig::MoveFocus(QWidget* pButton, QPoint step)
{
    const QGridLayout* pGrid = m_pUi->gridLayout;
    int nRow = 0;
    int nColumn = 0;
    int nSpan = 0;
    pGrid->getItemPosition(pGrid->indexOf(pButton), &nRow, &nColumn, &nSpan, &nSpan);
    if (QLayoutItem* pTarget = pGrid->itemAtPosition(nRow + step.y(), nColumn + step.x()))
    {
        pTarget->widget()->setFocus(Qt::OtherFocusReason);
    }
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
