#pragma once

#include "MediaName.h"

#include <QImage>
#include <QObject>
#include <QThreadPool>
#include <QVector>

#include <atomic>
#include <functional>
#include <memory>

namespace LocalConfigClient
{

/// Writes pictures and recordings in a thread of its own, one after the other. What has been handed over is still
/// written when the writer is destroyed.
class MediaWriter : public QObject
{
    Q_OBJECT

public:
    struct Picture
    {
        QImage image;
        MediaName name;
    };

    enum ImageFormat
    {
        Bmp,
        Jpeg ///< as is any other number
    };

    explicit MediaWriter(QObject* pParent = nullptr);
    ~MediaWriter() override;

    /// Writes pictures into a folder, which is made when it is missing; reports once, when the last one is written or
    /// the first one fails.
    void SavePictures(const QString& strFolder, int nImageFormat, const QVector<Picture>& listPictures);

    /// Begins a recording: a file of JPEG pictures in a row (Motion JPEG). A file that has reached the size is followed
    /// by another one. Ends a recording that is under way.
    void StartRecording(const QString& strFolder, const MediaName& name, qint64 nMaxBytes);

    /// Frames that come faster than the disk takes them are dropped. Without a recording nothing happens.
    void AddFrame(const QImage& frame);

    void StopRecording();
    bool IsRecording() const { return m_pRecording != nullptr; }

    /// Waits until everything that was handed over has been written.
    void Finish();

signals:
    void SignalPicturesSaved(const QString& strFolder, int nCount);
    void SignalRecordingSaved(const QStringList& listFiles);

    /// \param nCode  a CErrorCode
    void SignalPicturesFailed(const QString& strFolder, int nCode);

    /// The recording has ended with this; what had been written is still there.
    void SignalRecordingFailed(const QString& strFolder, int nCode);

private:
    class Recording;

    void Run(const std::function<void()>& job);
    void CheckRecording(const std::shared_ptr<Recording>& pRecording, int nCode);

    QThreadPool m_pool;
    std::shared_ptr<Recording> m_pRecording;
    std::atomic<int> m_nWaitingFrames{0};
};

} // namespace LocalConfigClient
