#pragma once

#include <KvGui/KvGuiExport.h>
#include <KvGui/KvSingleton.h>

#include <QList>
#include <QObject>
#include <QPointer>

namespace KVGUI
{

/// The client's notifications: transient bars over the active window, each of which goes by itself or when it is
/// clicked, but not while the mouse is over it. They take no focus. In a dialog with a row of buttons the newest one
/// stands between them, where it covers nothing, and the others wait; elsewhere they stand below each other at the top.
/// When their window closes they move to another one; while it is minimized they stay.
///
/// Reached through KvSingleton. Texts may be added from any thread.
class KVGUI_EXPORT KvMessageNotify : public QObject
{
    Q_OBJECT

public:
    /// Tells of something that has failed or that the operator must know. An empty text does nothing, and an equal one
    /// renews the bar that stands. Without a visible window only the signal is emitted.
    Q_INVOKABLE void AddTextNotification(const QString& strText);

    /// Tells of something that has worked; otherwise the same.
    Q_INVOKABLE void AddSuccessNotification(const QString& strText);

    /// Takes the bar of a text away that is not true any more. On the GUI thread.
    void TakeBack(const QString& strText);

    /// How long a success stays, in milliseconds; 5000 at first. Anything else stays twice as long. Applies to bars
    /// that are still to come, and to those that are renewed.
    void SetDuration(int nMilliseconds);
    int GetDuration() const; ///< in milliseconds

signals:
    void SignalTextNotificationAdded(const QString& strText); ///< for every text that is not empty

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    friend class KvSingleton<KvMessageNotify>;
    KvMessageNotify();

    Q_INVOKABLE void Add(const QString& strText, bool bFailure);
    QWidget* FindBar(const QString& strText, bool bFailure) const;
    void Remove(QWidget* pBar);
    void Watch(QWidget* pWindow);
    QList<QWidget*> GetBars(const QWidget* pWindow) const;
    void Arrange(const QWidget* pWindow);
    void MoveAwayFrom(QWidget* pWindow);
    void OnWindowStateChange(const QWidget* pWindow);

    QList<QPointer<QWidget>> m_listBars;
    int m_nDuration = 5000;
};

template <>
KVGUI_EXPORT KvMessageNotify* KvSingleton<KvMessageNotify>::Instance(); ///< the one of this process

} // namespace KVGUI
