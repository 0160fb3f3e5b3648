#include "CKeyboardTravel.h"

#include "CGroupBox.h"

#include <KvGui/KvToolListView.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QScrollArea>

namespace LocalConfig
{

namespace
{

constexpr int g_nViewMargin = 50; // pixels around a control, so that its caption is seen, too

/// What the eye looks for in a control that has the focus.
QRect GetFocusRect(const QWidget* pStop)
{
    const auto* pView = qobject_cast<const QAbstractItemView*>(pStop);
    if (!pView || !pView->currentIndex().isValid())
    {
        return pStop->rect();
    }
    return pView->visualRect(pView->currentIndex()).translated(pView->viewport()->pos());
}

} // namespace

CKeyboardTravel::CKeyboardTravel(QWidget* pDialog, KVGUI::KvToolListView* pList, QScrollArea* pScrollArea)
    : QObject(pDialog)
    , m_pDialog(pDialog)
    , m_pList(pList)
    , m_pScrollArea(pScrollArea)
{
    connect(qApp, &QApplication::focusChanged, this, &CKeyboardTravel::OnFocusChanged);
}

// --- Tab

bool CKeyboardTravel::MoveFocus(bool bNext)
{
    const QWidget* pFocus = m_pDialog->focusWidget();
    QWidget* pTarget = nullptr;
    if (bNext && pFocus == m_pList)
    {
        pTarget = FindFirstStop(m_pList->GetCurrentIndex());
    }
    else if (!bNext && IsInSections(pFocus) && pFocus == FindFirstStop(FindSection(pFocus)->GetIndex()))
    {
        pTarget = m_pList;
    }
    if (pTarget)
    {
        pTarget->setFocus(bNext ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    }
    return pTarget;
}

/// The first control, in the order of Tab from the navigation list, that Tab stops at and that meets a condition.
template <class Condition>
QWidget* CKeyboardTravel::FindStop(Condition condition) const
{
    for (QWidget* pWidget = m_pList->nextInFocusChain(); pWidget != m_pList; pWidget = pWidget->nextInFocusChain())
    {
        if ((pWidget->focusPolicy() & Qt::TabFocus) && !pWidget->focusProxy() && pWidget->isEnabled() &&
            pWidget->isVisibleTo(m_pDialog) && condition(pWidget))
        {
            return pWidget;
        }
    }
    return nullptr;
}

/// Of a section, or of the next one that has any.
QWidget* CKeyboardTravel::FindFirstStop(int nIndex) const
{
    return FindStop([this, nIndex](const QWidget* pWidget) {
        return IsInSections(pWidget) && FindSection(pWidget)->GetIndex() >= nIndex;
    });
}

bool CKeyboardTravel::IsInSections(const QWidget* pWidget) const
{
    return FindSection(pWidget) && m_pScrollArea->isAncestorOf(pWidget);
}

const CGroupBox* CKeyboardTravel::FindSection(const QWidget* pWidget)
{
    while (pWidget && !qobject_cast<const CGroupBox*>(pWidget))
    {
        pWidget = pWidget->parentWidget();
    }
    return static_cast<const CGroupBox*>(pWidget);
}

// --- The view

void CKeyboardTravel::OnFocusChanged(QWidget* /*pOld*/, QWidget* pNow)
{
    // A page that takes the focus while it is filled is no place to go to, and who gets it back is there already.
    const bool bMoved = pNow && pNow != m_pHolder && m_pDialog->isAncestorOf(pNow) && pNow->focusPolicy();
    if (!bMoved)
    {
        return;
    }
    m_pHolder = pNow;
    disconnect(m_currentCell);
    if (!IsInSections(pNow))
    {
        return;
    }
    ShowStop(pNow);
    if (const auto* pView = qobject_cast<const QAbstractItemView*>(pNow))
    {
        m_currentCell = connect(pView->selectionModel(), &QItemSelectionModel::currentChanged, this,
                                [this, pView] { ShowStop(pView); });
    }
    emit SignalSectionEntered(FindSection(pNow)->GetIndex());
}

void CKeyboardTravel::ShowStop(const QWidget* pStop) const
{
    if (QApplication::mouseButtons() != Qt::NoButton)
    {
        return; // nothing is to move under the mouse
    }
    const QRect rect = GetFocusRect(pStop);
    const QPoint centre = pStop->mapTo(m_pScrollArea->widget(), rect.center());
    m_pScrollArea->ensureVisible(centre.x(), centre.y(), 0, rect.height() / 2 + g_nViewMargin);
}

} // namespace LocalConfig
