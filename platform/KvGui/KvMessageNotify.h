#pragma once

#include <KvGui/KvGuiExport.h>
#include <KvGui/KvSingleton.h>

#include <QList>
#include <QObject>
#include <QPointer>

namespace KVGUI
{

/// The client's notifications: transient bars at the top of the active window, below each other, each of which goes by
/// itself or when it is clicked. They take no focus. When their window closes they move to another one; while it is
/// minimized they stay.
///
/// Reached through KvSingleton. AddTextNotification may be called from any thread.
class KVGUI_EXPORT KvMessageNotify : public QObject
{
    Q_OBJECT

public:
    /// Shows a text; an empty one does nothing. Without a visible window only the signal is emitted.
    Q_INVOKABLE void AddTextNotification(const QString& strText);

    /// How long a bar stays, in milliseconds; 5000 at first. Applies to bars that are still to come.
    void SetDuration(int nMilliseconds);
    int GetDuration() const; ///< in milliseconds

signals:
    void SignalTextNotificationAdded(const QString& strText); ///< for every text that is not empty

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    friend class KvSingleton<KvMessageNotify>;
    KvMessageNotify();

    void Remove(QWidget* pBar);
    void Watch(QWidget* pWindow);
    void Arrange(const QWidget* pWindow);
    void MoveAwayFrom(QWidget* pWindow);
    void OnWindowStateChange(const QWidget* pWindow);

    QList<QPointer<QWidget>> m_listBars;
    int m_nDuration = 5000;
};

template <>
KVGUI_EXPORT KvMessageNotify* KvSingleton<KvMessageNotify>::Instance(); ///< the one of this process

} // namespace KVGUI
