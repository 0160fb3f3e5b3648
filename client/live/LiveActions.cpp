#include "LiveActions.h"

#include "SplitView.h"
#include <client/store/ConfigService.h>

#include <KvGui/KvDir.h>
#include <KvGui/KvMessageNotify.h>
#include <UICommonModule/CErrorCode.h>

#include <QDir>

using LocalConfigLogical::RecordConfigInfo;
using LocalConfigLogical::SnapshotConfigInfo;
using UICommonMdl::CErrorCode;

namespace LocalConfigClient
{

namespace
{

constexpr int g_nFrameInterval = 200;        // milliseconds
constexpr int g_nMaxInterval = 24 * 60 * 60; // seconds; what a timer takes, in milliseconds, ends not far above
constexpr qint64 g_nMegabyte = qint64(1024) * 1024;

void NotifySuccess(const QString& strText)
{
    KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance()->AddSuccessNotification(strText);
}

void NotifyFailure(const QString& strText, const QString& strFolder, int nCode)
{
    KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance()->AddTextNotification(
        CErrorCode::GetErroCodeInfor(strText.arg(QDir::toNativeSeparators(strFolder)), nCode, true, false));
}

QString GetFolder(const std::string& strStored, const char* pszDefault)
{
    return strStored.empty() ? QDir(KVGUI::KvDir::GetCurrentPath()).filePath(QString::fromLatin1(pszDefault))
                             : QDir::fromNativeSeparators(QString::fromStdString(strStored));
}

MediaName MakeName(int nFormat, int nPane)
{
    return {nFormat, nPane + 1, SplitView::GetChannelName(nPane), QDateTime::currentDateTime()};
}

} // namespace

LiveActions::LiveActions(const ConfigService& configService, const SplitView& splitView, QObject* pParent)
    : QObject(pParent)
    , m_configService(configService)
    , m_splitView(splitView)
{
    connect(&m_continuousTimer, &QTimer::timeout, this, &LiveActions::OnContinuousTimeout);
    connect(&m_frameTimer, &QTimer::timeout, this,
            [this] { m_writer.AddFrame(m_splitView.GetPicture(m_nRecordedPane)); });
    connect(&m_writer, &MediaWriter::SignalPicturesSaved, this, &LiveActions::OnPicturesSaved);
    connect(&m_writer, &MediaWriter::SignalRecordingSaved, this, &LiveActions::OnRecordingSaved);
    connect(&m_writer, &MediaWriter::SignalPicturesFailed, this, &LiveActions::OnPicturesFailed);
    connect(&m_writer, &MediaWriter::SignalRecordingFailed, this, &LiveActions::OnRecordingFailed);
}

void LiveActions::SnapWindow()
{
    Snap({m_splitView.GetSelected()});
}

void LiveActions::SnapAllWindows()
{
    QVector<int> listPanes;
    for (int nPane = 0; nPane < m_splitView.GetSplit(); ++nPane)
    {
        listPanes += nPane;
    }
    Snap(listPanes);
}

void LiveActions::Snap(const QVector<int>& listPanes)
{
    const SnapshotConfigInfo& settings = m_configService.GetStored().snapshot;
    QVector<MediaWriter::Picture> listPictures;
    for (int nPane : listPanes)
    {
        listPictures += MediaWriter::Picture{m_splitView.GetPicture(nPane), MakeName(settings.nameFormat, nPane)};
    }
    m_writer.SavePictures(GetFolder(settings.picturePath, "Picture"), settings.imageFormat, listPictures);
}

void LiveActions::SnapContinuously()
{
    const SnapshotConfigInfo& settings = m_configService.GetStored().snapshot;
    m_nPicturesLeft = qBound(2, settings.continuousCount, 10);
    m_nContinuousPane = m_splitView.GetSelected();
    m_continuousTimer.start(1000 * qBound(1, settings.interval, g_nMaxInterval));
    OnContinuousTimeout();
}

void LiveActions::OnContinuousTimeout()
{
    Snap({m_nContinuousPane});
    if (--m_nPicturesLeft == 0)
    {
        m_continuousTimer.stop();
    }
}

void LiveActions::ToggleRecording()
{
    if (m_writer.IsRecording())
    {
        m_frameTimer.stop();
        m_writer.StopRecording();
    }
    else
    {
        const RecordConfigInfo& settings = m_configService.GetStored().record;
        m_nRecordedPane = m_splitView.GetSelected();
        m_writer.StartRecording(GetFolder(settings.recordPath, "Record"),
                                MakeName(settings.nameFormat, m_nRecordedPane),
                                qBound(10, settings.maxFileSize, 1500) * g_nMegabyte);
        m_writer.AddFrame(m_splitView.GetPicture(m_nRecordedPane));
        m_frameTimer.start(g_nFrameInterval);
    }
    emit SignalRecordingChanged();
}

void LiveActions::OnPicturesSaved(const QString& strFolder, int nCount)
{
    // English has no file of translations, so no plural either.
    const QString strText = nCount == 1 ? tr("Picture saved in %1") : tr("%n pictures saved in %1", nullptr, nCount);
    NotifySuccess(strText.arg(QDir::toNativeSeparators(strFolder)));
}

void LiveActions::OnRecordingSaved(const QStringList& listFiles)
{
    if (!listFiles.isEmpty())
    {
        NotifySuccess(tr("Recording saved in %1").arg(QDir::toNativeSeparators(listFiles.last())));
    }
}

void LiveActions::OnPicturesFailed(const QString& strFolder, int nCode)
{
    m_continuousTimer.stop(); // the next picture would fail alike
    NotifyFailure(tr("Cannot write to %1"), strFolder, nCode);
}

void LiveActions::OnRecordingFailed(const QString& strFolder, int nCode)
{
    if (!m_writer.IsRecording())
    {
        m_frameTimer.stop();
        emit SignalRecordingChanged();
    }
    NotifyFailure(tr("Cannot write to %1"), strFolder, nCode);
}

} // namespace LocalConfigClient
