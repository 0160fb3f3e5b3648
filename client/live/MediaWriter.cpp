#include "MediaWriter.h"

#include <UICommonModule/CAtomicFile.h>
#include <UICommonModule/CErrorCode.h>
#include <UICommonModule/CGrowingFile.h>

#include <QBuffer>
#include <QDir>
#include <QRunnable>
#include <QStringList>

#include <functional>

using UICommonMdl::CAtomicFile;
using UICommonMdl::CErrorCode;
using UICommonMdl::CGrowingFile;

namespace LocalConfigClient
{

namespace
{

constexpr int g_nMaxWaitingFrames = 25;
constexpr char g_szRecordingSuffix[] = "mjpeg";

QByteArray Encode(const QImage& image, const char* pszFormat)
{
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, pszFormat);
    return content;
}

/// Makes a file in the folder under the first name that nobody has.
/// \param make  makes a file of a path; FileExists from it asks for the next name
/// \param strPath  gets the path
template <class Make>
int MakeFile(const QString& strFolder, const QString& strBaseName, const QString& strSuffix, const Make& make,
             QString& strPath)
{
    const QDir folder(strFolder);
    strPath = folder.filePath(QStringLiteral("%1.%2").arg(strBaseName, strSuffix));
    int nResult = make(strPath);
    for (int n = 2; nResult == CErrorCode::FileExists; ++n)
    {
        strPath = folder.filePath(QStringLiteral("%1-%2.%3").arg(strBaseName, QString::number(n), strSuffix));
        nResult = make(strPath);
    }
    return nResult;
}

int WritePicture(const QString& strFolder, bool bBmp, const MediaWriter::Picture& picture)
{
    const QByteArray content = Encode(picture.image, bBmp ? "BMP" : "JPG");
    if (content.isEmpty())
    {
        return CErrorCode::IoError;
    }
    QString strPath;
    return MakeFile(
        strFolder, picture.name.GetBaseName(), bBmp ? QStringLiteral("bmp") : QStringLiteral("jpg"),
        [&content](const QString& strFile) { return CAtomicFile::Write(strFile, content, CAtomicFile::NewName); },
        strPath);
}

int WritePictures(const QString& strFolder, int nImageFormat, const QVector<MediaWriter::Picture>& listPictures)
{
    int nResult = CGrowingFile::MakeFolder(strFolder);
    const bool bBmp = nImageFormat == MediaWriter::Bmp;
    for (const MediaWriter::Picture& picture : listPictures)
    {
        if (nResult != CErrorCode::Success)
        {
            break;
        }
        nResult = WritePicture(strFolder, bBmp, picture);
    }
    return nResult;
}

class Job : public QRunnable
{
public:
    explicit Job(std::function<void()> job)
        : m_job(std::move(job))
    {}
    void run() override { m_job(); }

private:
    std::function<void()> m_job;
};

} // namespace

/// The writing side of a recording, used in the writer's thread only.
class MediaWriter::Recording
{
public:
    Recording(QString strFolder, MediaName name, qint64 nMaxBytes)
        : m_strFolder(std::move(strFolder))
        , m_name(std::move(name))
        , m_nMaxBytes(nMaxBytes)
    {}

    const QString& GetFolder() const { return m_strFolder; }
    const QStringList& GetFiles() const { return m_listFiles; }
    bool HasFailed() const { return m_nResult != CErrorCode::Success; }

    int Begin() { return m_nResult = CGrowingFile::MakeFolder(m_strFolder); }

    /// After the first failure nothing more is written.
    int Append(const QImage& frame)
    {
        if (HasFailed())
        {
            return CErrorCode::Success; // reported already
        }
        const QByteArray content = Encode(frame, "JPG");
        const bool bFull = m_file.GetSize() > 0 && m_file.GetSize() + content.size() > m_nMaxBytes;
        if (m_listFiles.isEmpty() || bFull)
        {
            m_name.time = QDateTime::currentDateTime();
            QString strPath;
            m_nResult = MakeFile(
                m_strFolder, m_name.GetBaseName(), QString::fromLatin1(g_szRecordingSuffix),
                [this](const QString& strFile) { return m_file.Create(strFile); }, strPath);
            if (m_nResult != CErrorCode::Success)
            {
                return m_nResult;
            }
            m_listFiles += strPath;
        }
        m_nResult = m_file.Append(content);
        if (HasFailed())
        {
            m_file.RemoveIfEmpty();
        }
        return m_nResult;
    }

private:
    QString m_strFolder;
    MediaName m_name;
    qint64 m_nMaxBytes;
    CGrowingFile m_file;
    QStringList m_listFiles;
    int m_nResult = CErrorCode::Success;
};

MediaWriter::MediaWriter(QObject* pParent)
    : QObject(pParent)
{
    m_pool.setMaxThreadCount(1); // so that jobs stay in order
}

MediaWriter::~MediaWriter()
{
    StopRecording();
    Finish();
}

void MediaWriter::Finish()
{
    m_pool.waitForDone();
}

void MediaWriter::Run(const std::function<void()>& job)
{
    m_pool.start(new Job(job)); // which deletes it
}

void MediaWriter::SavePictures(const QString& strFolder, int nImageFormat, const QVector<Picture>& listPictures)
{
    Run([this, strFolder, nImageFormat, listPictures] {
        const int nResult = WritePictures(strFolder, nImageFormat, listPictures);
        const int nCount = listPictures.size();
        QMetaObject::invokeMethod(
            this,
            [this, strFolder, nResult, nCount] {
                if (nResult == CErrorCode::Success)
                {
                    emit SignalPicturesSaved(strFolder, nCount);
                }
                else
                {
                    emit SignalPicturesFailed(strFolder, nResult);
                }
            },
            Qt::QueuedConnection);
    });
}

void MediaWriter::StartRecording(const QString& strFolder, const MediaName& name, qint64 nMaxBytes)
{
    StopRecording();
    const auto pRecording = std::make_shared<Recording>(strFolder, name, nMaxBytes);
    m_pRecording = pRecording;
    Run([this, pRecording] { CheckRecording(pRecording, pRecording->Begin()); });
}

void MediaWriter::AddFrame(const QImage& frame)
{
    if (!m_pRecording || m_nWaitingFrames >= g_nMaxWaitingFrames)
    {
        return;
    }
    ++m_nWaitingFrames;
    Run([this, frame, pRecording = m_pRecording] {
        CheckRecording(pRecording, pRecording->Append(frame));
        --m_nWaitingFrames;
    });
}

void MediaWriter::StopRecording()
{
    if (!m_pRecording)
    {
        return;
    }
    Run([this, pRecording = m_pRecording] {
        if (pRecording->HasFailed())
        {
            return;
        }
        const QStringList listFiles = pRecording->GetFiles();
        QMetaObject::invokeMethod(
            this, [this, listFiles] { emit SignalRecordingSaved(listFiles); }, Qt::QueuedConnection);
    });
    m_pRecording = nullptr;
}

/// Tells the GUI thread of a failure; called in the writer's thread.
void MediaWriter::CheckRecording(const std::shared_ptr<Recording>& pRecording, int nCode)
{
    if (nCode == CErrorCode::Success)
    {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this, pRecording, nCode] {
            if (m_pRecording == pRecording)
            {
                m_pRecording = nullptr;
            }
            emit SignalRecordingFailed(pRecording->GetFolder(), nCode);
        },
        Qt::QueuedConnection);
}

} // namespace LocalConfigClient
