#pragma once

#include <QObject>
#include <QPointer>

class QScrollArea;
class QWidget;

namespace KVGUI
{
class KvToolListView;
}

namespace LocalConfig
{

class CFindField;
class CGroupBox;

/// The ways of the keyboard through the dialog, and the view that follows. Tab leads from the navigation list into the
/// selected section, and Shift+Tab back; Ctrl+Page Up and Ctrl+Page Down go from section to section; F6 goes round
/// list, section and buttons; Ctrl+F finds a caption. The pages know nothing of it.
class CKeyboardTravel : public QObject
{
    Q_OBJECT

public:
    CKeyboardTravel(QWidget* pDialog, KVGUI::KvToolListView* pList, QScrollArea* pScrollArea);

    /// Goes where Tab or Shift+Tab leads from a border between list and section.
    /// \return false elsewhere, where the focus has its ordinary way
    bool MoveFocus(bool bNext);

    /// While it is paused, nothing follows the focus.
    void SetPaused(bool bPaused);

signals:
    /// A control of this section has got the focus, or was found.
    void SignalSectionEntered(int nIndex);

private:
    enum Area
    {
        AreaList,
        AreaSections,
        AreaButtons,
        AreaCount
    };

    void Find();
    void GoToSection(int nStep);
    void GoToArea(int nStep);
    Area GetArea(const QWidget* pWidget) const;
    QWidget* FindFirstStop(Area eArea) const;

    void OnFocusChanged(QWidget* pOld, QWidget* pNow);
    void ShowStop(const QWidget* pStop) const;

    template <class Condition>
    QWidget* FindStop(Condition condition) const;
    QWidget* FindFirstStop(int nIndex) const;
    bool IsInSections(const QWidget* pWidget) const;
    static const CGroupBox* FindSection(const QWidget* pWidget);

    QWidget* m_pDialog;
    KVGUI::KvToolListView* m_pList;
    QScrollArea* m_pScrollArea;
    CFindField* m_pFindField = nullptr; // until it is first asked for
    bool m_bPaused = false;
    QPointer<QWidget> m_pHolder; // of the focus, also while another window has it
    QMetaObject::Connection m_currentCell;
};

} // namespace LocalConfig
