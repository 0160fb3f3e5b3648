#pragma once

#include "MediaWriter.h"

#include <QObject>
#include <QTimer>

namespace LocalConfigClient
{

class ConfigService;
class SplitView;

/// Takes snapshots and recordings of the live view, as the stored settings ask for: where to, of which format, under
/// which names, how many and how often. Tells the operator what has become of them.
class LiveActions : public QObject
{
    Q_OBJECT

public:
    /// Service and view must outlive the object.
    LiveActions(const ConfigService& configService, const SplitView& splitView, QObject* pParent);

    /// A snapshot of the selected window.
    void SnapWindow();

    /// A snapshot of every window.
    void SnapAllWindows();

    /// As many snapshots of the selected window, and at such an interval, as the settings say. Begins anew when one is
    /// under way.
    void SnapContinuously();

    /// Begins or ends a recording of the selected window.
    void ToggleRecording();
    bool IsRecording() const { return m_writer.IsRecording(); }

    /// -1 while there is no recording.
    int GetRecordedPane() const { return IsRecording() ? m_nRecordedPane : -1; }

signals:
    /// A recording has begun or ended, perhaps by a failure.
    void SignalRecordingChanged();

private:
    void Snap(const QVector<int>& listPanes);
    void OnContinuousTimeout();
    void OnPicturesSaved(const QString& strFolder, int nCount);
    void OnRecordingSaved(const QStringList& listFiles);
    void OnPicturesFailed(const QString& strFolder, int nCode);
    void OnRecordingFailed(const QString& strFolder, int nCode);

    const ConfigService& m_configService;
    const SplitView& m_splitView;
    MediaWriter m_writer;
    QTimer m_continuousTimer;
    int m_nPicturesLeft = 0;
    int m_nContinuousPane = 0;
    QTimer m_frameTimer;
    int m_nRecordedPane = 0;
};

} // namespace LocalConfigClient
