#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class QSound;

namespace KVGUI
{
class KvDialog;
}

namespace LocalConfigClient
{

class ConfigService;
class MapView;
class SplitView;

/// What the client does about an alarm, as the stored settings ask for: sound, map, linked video. One alarm at a time;
/// a new one takes the place of the one before.
class AlarmCenter : public QObject
{
    Q_OBJECT

public:
    /// Service and views must outlive the object.
    AlarmCenter(const ConfigService& configService, MapView& mapView, SplitView& splitView, QWidget* pWindow);
    ~AlarmCenter() override;

    /// An alarm has come in.
    /// \param nAlarmType  an id that the catalogue may not know
    void Raise(int nAlarmType);

    /// The operator has seen the alarm: everything about it ends.
    void Acknowledge();

    bool IsActive() const { return m_bActive; }

    /// The name of the alarm that is active.
    QString GetAlarmName() const { return m_strName; }

    /// The pane of the live view that shows what an alarm type is linked to.
    int GetLinkedPane(int nAlarmType) const;

    /// The file that is played; empty while none is.
    QString GetPlayedFile() const;
    bool IsLooped() const;

signals:
    /// An alarm has come in or been acknowledged.
    void SignalChanged();

private:
    void Play(int nAlarmType, bool bLoop);
    void OpenPopUp(int nPane);
    void ShowInLiveView(int nPane);

    const ConfigService& m_configService;
    MapView& m_mapView;
    SplitView& m_splitView;
    QWidget* m_pWindow;
    std::unique_ptr<QSound> m_pSound;
    QString m_strPlayedFile;
    bool m_bLooped = false;
    QPointer<KVGUI::KvDialog> m_pPopUp;
    bool m_bActive = false;
    bool m_bOpenedSingleWindow = false;
    QString m_strName;
};

} // namespace LocalConfigClient
