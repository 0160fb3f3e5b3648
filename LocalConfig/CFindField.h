#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QScrollArea;

namespace LocalConfig
{

/// A field over the dialog's title bar that finds captions and tool tips of the sections as they are typed. What is
/// found is scrolled into view and has a ring. Enter and Shift+Enter go through the matches; Escape and Tab close the
/// field and leave the focus on the control that was found.
class CFindField : public QWidget
{
    Q_OBJECT

public:
    CFindField(QWidget* pDialog, QScrollArea* pScrollArea);

    /// Shows the field, empty, with the focus; when it is shown already, its text is selected.
    void Open();

    /// While it is paused, the field stays open without the focus.
    void SetPaused(bool bPaused) { m_bPaused = bPaused; }

signals:
    /// The ring stands in this section now.
    void SignalSectionFound(int nIndex);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    struct SMatch
    {
        QWidget* pWidget;
        QString strText; // that matches
    };

    void Close();
    void Place();
    bool OnKey(int nKey, Qt::KeyboardModifiers eModifiers);

    void OnTextChanged();
    void GoOn(int nStep);
    void Show(const SMatch& match);
    void ShowNothing(const QString& strStatus);
    void PlaceRing();

    QList<SMatch> FindMatches(const QString& strWanted) const;
    QRect GetPlace(const QWidget* pWidget) const;
    QWidget* FindStop(QWidget* pWidget) const;

    QWidget* m_pDialog;
    QScrollArea* m_pScrollArea;
    QLabel* m_pStatus;
    QLineEdit* m_pEdit;
    QPointer<QWidget> m_pRing;   // on what scrolls
    QPointer<QWidget> m_pFound;  // what it stands around
    QPointer<QWidget> m_pHolder; // of the focus, before the field had it
    bool m_bPaused = false;
};

} // namespace LocalConfig
