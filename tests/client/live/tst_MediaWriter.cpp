// Faults come from the preloaded library "FaultFs", see support/FaultFs.cpp.

#include "support/Permissions.h"

#include <client/live/MediaWriter.h>

#include <UICommonModule/CErrorCode.h>

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace LocalConfigClient;
using UICommonMdl::CErrorCode;

namespace
{

const QDateTime g_time(QDate(2026, 11, 21), QTime(3, 4, 5, 67));

QImage Picture(const QColor& color)
{
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// The pictures of a recording.
QVector<QImage> ReadFrames(const QString& strFile)
{
    QFile file(strFile);
    QVector<QImage> listFrames;
    if (!file.open(QIODevice::ReadOnly))
    {
        return listFrames;
    }
    const QByteArray content = file.readAll();
    const QByteArray begin("\xff\xd8\xff");
    for (int n = content.indexOf(begin); n >= 0;)
    {
        const int nNext = content.indexOf(begin, n + 1);
        listFrames += QImage::fromData(content.mid(n, nNext < 0 ? -1 : nNext - n), "JPG");
        n = nNext;
    }
    return listFrames;
}

} // namespace

class tst_MediaWriter : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pFolder.reset(new QTemporaryDir);
        m_pWriter.reset(new MediaWriter);
    }
    void cleanup()
    {
        qunsetenv("KV_FAULT");
        SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void Names_data();
    void Names();
    void NamesAreSafe_data();
    void NamesAreSafe();

    void PicturesLandInTheFolder_data();
    void PicturesLandInTheFolder();
    void SeveralPicturesAreReportedOnce();
    void ANameInUseIsNotOverwritten();
#ifndef Q_OS_WIN // links need a right of their own there, and Wine makes none
    void ALinkInTheWayIsNotWrittenThrough();
#endif
    void PictureFailures_data();
    void PictureFailures();

    void ARecordingHoldsItsFrames();
    void AFullFileIsFollowedByAnother();
    void ARecordingWithoutFramesLeavesNoFile();
    void FramesWithoutARecordingAreIgnored();
    void ANewRecordingEndsTheOneBefore();
    void AFailedRecordingKeepsWhatWasWritten();
    void ARecordingThatNeverGotAByteLeavesNoFile();
    void ARecordingFailsInAReadOnlyFolder();
    void WhatIsWaitingIsWrittenAtTheEnd();

private:
    MediaWriter::Picture MakePicture(int nChannel = 1, int nFormat = 2) const
    {
        return {Picture(Qt::red), {nFormat, nChannel, QString("Camera %1").arg(nChannel), g_time}};
    }
    QStringList Files(const QString& strFolder = ".") const
    {
        return QDir(m_pFolder->filePath(strFolder)).entryList(QDir::Files, QDir::Name);
    }
    MediaName Name() const
    {
        return {2, 7, "Gate", g_time};
    }

    QScopedPointer<QTemporaryDir> m_pFolder;
    QScopedPointer<MediaWriter> m_pWriter;
};

void tst_MediaWriter::Names_data()
{
    QTest::addColumn<int>("nFormat");
    QTest::addColumn<QString>("strName");
    QTest::newRow("Time_ChannelNo") << 0 << "20261121-030405-067_07";
    QTest::newRow("Time_ChannelName") << 1 << "20261121-030405-067_Gate";
    QTest::newRow("ChannelNo_Time") << 2 << "07_20261121-030405-067";
    QTest::newRow("ChannelName_Time") << 3 << "Gate_20261121-030405-067";
    QTest::newRow("unknown") << -1 << "Gate_20261121-030405-067";
}

void tst_MediaWriter::Names()
{
    QFETCH(int, nFormat);
    QFETCH(QString, strName);
    MediaName name = Name();
    name.nFormat = nFormat;
    QCOMPARE(name.GetBaseName(), strName);
}

void tst_MediaWriter::NamesAreSafe_data()
{
    QTest::addColumn<QString>("strChannel");
    QTest::addColumn<QString>("strSafe");
    QTest::newRow("folders") << "../a\\b"
                             << ".._a_b";
    QTest::newRow("reserved") << "a:b*c?d\"e<f>g|h"
                              << "a_b_c_d_e_f_g_h";
    QTest::newRow("control") << QString("a\nb") << "a_b";
    QTest::newRow("long") << QString(300, 'x') << QString(64, 'x');
    QTest::newRow("any script") << QString::fromUtf8("\xe5\xa4\xa7\xe9\x97\xa8")
                                << QString::fromUtf8("\xe5\xa4\xa7\xe9\x97\xa8");
}

void tst_MediaWriter::NamesAreSafe()
{
    QFETCH(QString, strChannel);
    QFETCH(QString, strSafe);
    MediaName name = Name();
    name.nFormat = 1;
    name.strChannel = strChannel;
    QCOMPARE(name.GetBaseName(), "20261121-030405-067_" + strSafe);
}

void tst_MediaWriter::PicturesLandInTheFolder_data()
{
    QTest::addColumn<int>("nFormat");
    QTest::addColumn<QString>("strSuffix");
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("BMP") << 0 << ".bmp" << QByteArray("BM");
    QTest::newRow("JPEG") << 1 << ".jpg" << QByteArray("\xff\xd8");
    QTest::newRow("any other") << 7 << ".jpg" << QByteArray("\xff\xd8");
}

void tst_MediaWriter::PicturesLandInTheFolder()
{
    QFETCH(int, nFormat);
    QFETCH(QString, strSuffix);
    QFETCH(QByteArray, begin);
    QSignalSpy saved(m_pWriter.data(), &MediaWriter::SignalPicturesSaved);
    m_pWriter->SavePictures(m_pFolder->filePath("new/folder"), nFormat, {MakePicture()});
    QTRY_COMPARE(saved.size(), 1);
    QCOMPARE(Files("new/folder"), QStringList{"01_20261121-030405-067" + strSuffix});
    QFile file(m_pFolder->filePath("new/folder/01_20261121-030405-067" + strSuffix));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.startsWith(begin));
    QCOMPARE(QImage::fromData(content).size(), QSize(64, 48));
}

void tst_MediaWriter::SeveralPicturesAreReportedOnce()
{
    QSignalSpy saved(m_pWriter.data(), &MediaWriter::SignalPicturesSaved);
    m_pWriter->SavePictures(m_pFolder->path(), 1, {MakePicture(1), MakePicture(2), MakePicture(3)});
    QTRY_COMPARE(saved.size(), 1);
    QCOMPARE(saved.first().at(0).toString(), m_pFolder->path());
    QCOMPARE(saved.first().at(1).toInt(), 3);
    QCOMPARE(Files().size(), 3);
}

void tst_MediaWriter::ANameInUseIsNotOverwritten()
{
    QSignalSpy saved(m_pWriter.data(), &MediaWriter::SignalPicturesSaved);
    for (int n = 0; n < 3; ++n)
    {
        m_pWriter->SavePictures(m_pFolder->path(), 1, {MakePicture()});
    }
    QTRY_COMPARE(saved.size(), 3);
    QCOMPARE(Files(), (QStringList{"01_20261121-030405-067-2.jpg", "01_20261121-030405-067-3.jpg",
                                   "01_20261121-030405-067.jpg"}));
}

#ifndef Q_OS_WIN

void tst_MediaWriter::ALinkInTheWayIsNotWrittenThrough()
{
    // A link to a file that does not exist yet would be made by whoever writes to it.
    const QString strVictim = m_pFolder->filePath("victim");
    QVERIFY(QFile::link(strVictim, m_pFolder->filePath("01_20261121-030405-067.jpg")));
    QSignalSpy pictures(m_pWriter.data(), &MediaWriter::SignalPicturesSaved);
    m_pWriter->SavePictures(m_pFolder->path(), 1, {MakePicture()});
    QTRY_COMPARE(pictures.size(), 1);
    QVERIFY(!QFileInfo::exists(strVictim));
    QVERIFY(Files().contains("01_20261121-030405-067-2.jpg"));
}

#endif

void tst_MediaWriter::PictureFailures_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<int>("nCode");
    QTest::newRow("read-only folder") << QByteArray() << int(CErrorCode::NoPermission);
    QTest::newRow("full disk") << QByteArray("write:ENOSPC:") << int(CErrorCode::DiskFull);
}

void tst_MediaWriter::PictureFailures()
{
    QFETCH(QByteArray, fault);
    QFETCH(int, nCode);
    if (fault.isEmpty())
    {
        QVERIFY(SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner));
    }
    else
    {
        qputenv("KV_FAULT", fault + m_pFolder->path().toLocal8Bit());
    }
    QSignalSpy saved(m_pWriter.data(), &MediaWriter::SignalPicturesSaved);
    QSignalSpy failed(m_pWriter.data(), &MediaWriter::SignalPicturesFailed);
    m_pWriter->SavePictures(m_pFolder->path(), 1, {MakePicture(1), MakePicture(2)});
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(failed.first().at(0).toString(), m_pFolder->path());
    QCOMPARE(failed.first().at(1).toInt(), nCode);
    QCOMPARE(saved.size(), 0);
    QCOMPARE(Files(), QStringList());
}

void tst_MediaWriter::ARecordingHoldsItsFrames()
{
    QSignalSpy saved(m_pWriter.data(), &MediaWriter::SignalRecordingSaved);
    m_pWriter->StartRecording(m_pFolder->filePath("new"), Name(), 10'000'000);
    QVERIFY(m_pWriter->IsRecording());
    for (const Qt::GlobalColor color : {Qt::red, Qt::green, Qt::blue})
    {
        m_pWriter->AddFrame(Picture(color));
    }
    m_pWriter->StopRecording();
    QVERIFY(!m_pWriter->IsRecording());
    QTRY_COMPARE(saved.size(), 1);
    const QStringList listFiles = saved.first().first().toStringList();
    QCOMPARE(listFiles.size(), 1);
    QVERIFY(QRegularExpression("/07_\\d{8}-\\d{6}-\\d{3}\\.mjpeg$").match(listFiles[0]).hasMatch());
    const QVector<QImage> listFrames = ReadFrames(listFiles[0]);
    QCOMPARE(listFrames.size(), 3);
    QVERIFY(listFrames[0].pixelColor(30, 20).red() > 200);
    QVERIFY(listFrames[1].pixelColor(30, 20).green() > 100);
    QVERIFY(listFrames[2].pixelColor(30, 20).blue() > 200);
}

void tst_MediaWriter::AFullFileIsFollowedByAnother()
{
    QSignalSpy saved(m_pWriter.data(), &MediaWriter::SignalRecordingSaved);
    constexpr qint64 nMaxBytes = 2000;
    m_pWriter->StartRecording(m_pFolder->path(), Name(), nMaxBytes);
    for (int n = 0; n < 10; ++n)
    {
        m_pWriter->AddFrame(Picture(Qt::red));
    }
    m_pWriter->StopRecording();
    QTRY_COMPARE(saved.size(), 1);
    const QStringList listFiles = saved.first().first().toStringList();
    QVERIFY(listFiles.size() > 1);
    int nFrames = 0;
    for (const QString& strFile : listFiles)
    {
        QVERIFY(QFileInfo(strFile).size() <= nMaxBytes);
        nFrames += ReadFrames(strFile).size();
    }
    QCOMPARE(nFrames, 10);
    QCOMPARE(Files().size(), listFiles.size());
}

void tst_MediaWriter::ARecordingWithoutFramesLeavesNoFile()
{
    QSignalSpy saved(m_pWriter.data(), &MediaWriter::SignalRecordingSaved);
    m_pWriter->StartRecording(m_pFolder->path(), Name(), 1000);
    m_pWriter->StopRecording();
    QTRY_COMPARE(saved.size(), 1);
    QCOMPARE(saved.first().first().toStringList(), QStringList());
    QCOMPARE(Files(), QStringList());
}

void tst_MediaWriter::FramesWithoutARecordingAreIgnored()
{
    m_pWriter->AddFrame(Picture(Qt::red));
    m_pWriter->StopRecording();
    m_pWriter->Finish();
    QCOMPARE(Files(), QStringList());
}

void tst_MediaWriter::ANewRecordingEndsTheOneBefore()
{
    QSignalSpy saved(m_pWriter.data(), &MediaWriter::SignalRecordingSaved);
    for (const char* pszFolder : {"one", "two"})
    {
        m_pWriter->StartRecording(m_pFolder->filePath(pszFolder), Name(), 1'000'000);
        m_pWriter->AddFrame(Picture(Qt::red));
    }
    QTRY_COMPARE(saved.size(), 1);
    m_pWriter->StopRecording();
    QTRY_COMPARE(saved.size(), 2);
    QCOMPARE(Files("one").size(), 1);
    QCOMPARE(Files("two").size(), 1);
}

void tst_MediaWriter::AFailedRecordingKeepsWhatWasWritten()
{
    QSignalSpy saved(m_pWriter.data(), &MediaWriter::SignalRecordingSaved);
    QSignalSpy failed(m_pWriter.data(), &MediaWriter::SignalRecordingFailed);
    m_pWriter->StartRecording(m_pFolder->path(), Name(), 1'000'000);
    m_pWriter->AddFrame(Picture(Qt::red));
    m_pWriter->Finish();
    qputenv("KV_FAULT", "write:ENOSPC:" + m_pFolder->path().toLocal8Bit());
    m_pWriter->AddFrame(Picture(Qt::red));
    m_pWriter->AddFrame(Picture(Qt::red));
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(failed.first().at(1).toInt(), int(CErrorCode::DiskFull));
    QVERIFY(!m_pWriter->IsRecording());
    qunsetenv("KV_FAULT");
    m_pWriter->Finish();
    QCoreApplication::processEvents();
    QCOMPARE(failed.size(), 1);
    QCOMPARE(saved.size(), 0);
    QCOMPARE(Files().size(), 1);
    QCOMPARE(ReadFrames(m_pFolder->filePath(Files().first())).size(), 1);
}

void tst_MediaWriter::ARecordingThatNeverGotAByteLeavesNoFile()
{
    qputenv("KV_FAULT", "write:ENOSPC:" + m_pFolder->path().toLocal8Bit());
    QSignalSpy failed(m_pWriter.data(), &MediaWriter::SignalRecordingFailed);
    m_pWriter->StartRecording(m_pFolder->path(), Name(), 1'000'000);
    m_pWriter->AddFrame(Picture(Qt::red));
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(Files(), QStringList());
}

void tst_MediaWriter::ARecordingFailsInAReadOnlyFolder()
{
    QVERIFY(SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner));
    QSignalSpy failed(m_pWriter.data(), &MediaWriter::SignalRecordingFailed);
    m_pWriter->StartRecording(m_pFolder->path(), Name(), 1'000'000);
    m_pWriter->AddFrame(Picture(Qt::red));
    QTRY_COMPARE(failed.size(), 1);
    QCOMPARE(failed.first().at(1).toInt(), int(CErrorCode::NoPermission));
    QVERIFY(!m_pWriter->IsRecording());
}

void tst_MediaWriter::WhatIsWaitingIsWrittenAtTheEnd()
{
    m_pWriter->StartRecording(m_pFolder->filePath("recording"), Name(), 1'000'000);
    m_pWriter->AddFrame(Picture(Qt::red));
    m_pWriter->SavePictures(m_pFolder->filePath("pictures"), 0, {MakePicture()});
    m_pWriter.reset();
    QCOMPARE(Files("recording").size(), 1);
    QCOMPARE(Files("pictures").size(), 1);
}

QTEST_MAIN(tst_MediaWriter)

#include "tst_MediaWriter.moc"
