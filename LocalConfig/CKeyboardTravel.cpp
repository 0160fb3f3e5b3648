#include "CKeyboardTravel.h"

#include "CFindField.h"
#include "CGroupBox.h"

#include <KvGui/KvToolListView.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QScrollArea>
#include <QShortcut>

#include <functional>

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
    const auto add = [this](const QKeySequence& keys, std::function<void()> action) {
        connect(new QShortcut(keys, m_pDialog), &QShortcut::activated, this, std::move(action));
    };
    add(Qt::CTRL + Qt::Key_PageUp, [this] { GoToSection(-1); });
    add(Qt::CTRL + Qt::Key_PageDown, [this] { GoToSection(1); });
    add(Qt::CTRL + Qt::Key_F, [this] { Find(); });
    add(Qt::Key_F6, [this] { GoToArea(1); });
    add(Qt::SHIFT + Qt::Key_F6, [this] { GoToArea(-1); });
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

/// The first control, in the order of Tab from the navigation list on, that Tab stops at and that meets a condition.
template <class Condition>
QWidget* CKeyboardTravel::FindStop(Condition condition) const
{
    QWidget* pWidget = m_pList;
    do
    {
        if ((pWidget->focusPolicy() & Qt::TabFocus) && !pWidget->focusProxy() && pWidget->isEnabled() &&
            pWidget->isVisibleTo(m_pDialog) && condition(pWidget))
        {
            return pWidget;
        }
        pWidget = pWidget->nextInFocusChain();
    } while (pWidget != m_pList);
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

void CKeyboardTravel::Find()
{
    if (!m_pFindField)
    {
        m_pFindField = new CFindField(m_pDialog, m_pScrollArea);
        connect(m_pFindField, &CFindField::SignalSectionFound, this, &CKeyboardTravel::SignalSectionEntered);
    }
    m_pFindField->Open();
}

// --- From section to section, and round the dialog

void CKeyboardTravel::GoToSection(int nStep)
{
    const QModelIndex current = m_pList->currentIndex();
    const QModelIndex target = current.sibling(current.row() + nStep, 0);
    if (!target.isValid())
    {
        return;
    }
    m_pList->setCurrentIndex(target);
    if (GetArea(m_pDialog->focusWidget()) != AreaList)
    {
        QWidget* pStop = FindFirstStop(AreaSections);
        (pStop ? pStop : m_pList)->setFocus(Qt::ShortcutFocusReason);
    }
}

void CKeyboardTravel::GoToArea(int nStep)
{
    const int nArea = GetArea(m_pDialog->focusWidget());
    for (int n = 1; n < AreaCount; ++n) // one of them may have no control that is usable
    {
        if (QWidget* pStop = FindFirstStop(Area((nArea + n * nStep + AreaCount) % AreaCount)))
        {
            pStop->setFocus(Qt::ShortcutFocusReason);
            return;
        }
    }
}

CKeyboardTravel::Area CKeyboardTravel::GetArea(const QWidget* pWidget) const
{
    return pWidget == m_pList ? AreaList : IsInSections(pWidget) ? AreaSections : AreaButtons;
}

/// Of the sections only the selected one counts.
QWidget* CKeyboardTravel::FindFirstStop(Area eArea) const
{
    return FindStop([this, eArea](const QWidget* pWidget) {
        return GetArea(pWidget) == eArea &&
               (eArea != AreaSections || FindSection(pWidget)->GetIndex() == m_pList->GetCurrentIndex());
    });
}

// --- The view

void CKeyboardTravel::SetPaused(bool bPaused)
{
    m_bPaused = bPaused;
    if (m_pFindField)
    {
        m_pFindField->SetPaused(bPaused);
    }
}

void CKeyboardTravel::OnFocusChanged(QWidget* /*pOld*/, QWidget* pNow)
{
    // A page that takes the focus for itself is no place to go to, and who gets it back is there already.
    const bool bMoved = pNow && pNow != m_pHolder && m_pDialog->isAncestorOf(pNow) && pNow->focusPolicy();
    if (!bMoved || m_bPaused)
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
