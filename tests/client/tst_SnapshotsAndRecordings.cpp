#include "support/ClientWindow.h"

#include <client/live/SplitView.h>

using namespace LocalConfigClient;

class tst_SnapshotsAndRecordings : public CClientTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void AKeySnapsTheSelectedWindow();
    void AKeySnapsEveryWindow();
    void ContinuousSnapshotsHonourCountAndInterval();
    void AKeyRecordsTheSelectedWindow();
    void SnapshotsGoToTheClientsFolderByDefault();
    void AFolderThatCannotBeWrittenIsReported_data();
    void AFolderThatCannotBeWrittenIsReported();
};

void tst_SnapshotsAndRecordings::AKeySnapsTheSelectedWindow()
{
    Settings settings;
    settings.snapshot.picturePath = m_pFolder->filePath("snaps/").toStdString();
    settings.snapshot.imageFormat = 0;
    settings.snapshot.nameFormat = 2;
    Store(settings);
    CLIENT;
    CNotificationSpy spy;
    window.findChild<SplitView*>()->Select(2);
    QTest::keyClick(&window, Qt::Key_P);
    QTRY_COMPARE(spy.size(), 1);
    QCOMPARE(Files("snaps").size(), 1);
    QVERIFY(QRegularExpression("^03_\\d{8}-\\d{6}-\\d{3}\\.bmp$").match(Files("snaps").first()).hasMatch());
    QCOMPARE(QImage(m_pFolder->filePath("snaps/" + Files("snaps").first())).size(), QSize(352, 288));
    QVERIFY(spy.first().first().toString().contains("snaps"));
}

void tst_SnapshotsAndRecordings::AKeySnapsEveryWindow()
{
    Settings settings;
    settings.snapshot.picturePath = m_pFolder->filePath("snaps/").toStdString();
    settings.video.nDefaultSplit = 9;
    Store(settings);
    CLIENT;
    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
    QTRY_COMPARE(Files("snaps").size(), 9);
    QVERIFY(Files("snaps").first().startsWith("Camera 01_"));
    QVERIFY(Files("snaps").last().startsWith("Camera 09_"));
    QVERIFY(Files("snaps").last().endsWith(".jpg"));
}

void tst_SnapshotsAndRecordings::ContinuousSnapshotsHonourCountAndInterval()
{
    Settings settings;
    settings.snapshot.picturePath = m_pFolder->filePath("snaps/").toStdString();
    settings.snapshot.continuousCount = 3;
    settings.snapshot.interval = 1;
    settings.snapshot.nameFormat = 0;
    Store(settings);
    CLIENT;
    QElapsedTimer clock;
    clock.start();
    QTest::mouseClick(window.findChild<QAbstractButton*>("btnContinuous"), Qt::LeftButton);
    window.findChild<SplitView*>()->Select(3); // the window that it began with stays the one
    QTRY_COMPARE(Files("snaps").size(), 3);
    QVERIFY2(clock.elapsed() >= 1900, qPrintable(QString::number(clock.elapsed())));
    QTest::qWait(1300);
    QCOMPARE(Files("snaps").size(), 3);
    for (const QString& strFile : Files("snaps"))
    {
        QVERIFY(strFile.endsWith("_01.jpg"));
    }
}

void tst_SnapshotsAndRecordings::AKeyRecordsTheSelectedWindow()
{
    Settings settings;
    settings.record.recordPath = m_pFolder->filePath("recs/").toStdString();
    settings.record.nameFormat = 1;
    Store(settings);
    CLIENT;
    const auto* pButton = window.findChild<QAbstractButton*>("btnRecord");
    QCOMPARE(pButton->text(), QString("Record"));
    QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(pButton->text(), QString("Stop Recording"));
    QTest::qWait(500);
    QTest::keyClick(&window, Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(pButton->text(), QString("Record"));
    QTRY_COMPARE(Files("recs").size(), 1);
    QVERIFY(Files("recs").first().endsWith("_Camera 01.mjpeg"));
    QVERIFY(QFileInfo(m_pFolder->filePath("recs/" + Files("recs").first())).size() > 1000);
}

void tst_SnapshotsAndRecordings::SnapshotsGoToTheClientsFolderByDefault()
{
    CLIENT;
    QTest::mouseClick(window.findChild<QAbstractButton*>("btnSnapshot"), Qt::LeftButton);
    QTRY_COMPARE(Files("Picture").size(), 1);
}

void tst_SnapshotsAndRecordings::AFolderThatCannotBeWrittenIsReported_data()
{
    QTest::addColumn<int>("nKey");
    QTest::addColumn<QString>("strFolder");
    QTest::newRow("snapshot") << int(Qt::CTRL + Qt::Key_P) << "snaps";
    QTest::newRow("recording") << int(Qt::CTRL + Qt::Key_R) << "recs";
}

void tst_SnapshotsAndRecordings::AFolderThatCannotBeWrittenIsReported()
{
    QFETCH(int, nKey);
    QFETCH(QString, strFolder);
    QFile file(strFolder); // a file where the folder should be made
    QVERIFY(file.open(QIODevice::WriteOnly));
    Settings settings;
    settings.snapshot.picturePath = m_pFolder->filePath("snaps/").toStdString();
    settings.record.recordPath = m_pFolder->filePath("recs/").toStdString();
    Store(settings);
    CLIENT;
    CNotificationSpy spy;
    QTest::keySequence(&window, QKeySequence(nKey));
    QTRY_COMPARE(spy.size(), 1);
    const QString strText = spy.first().first().toString();
    QVERIFY2(strText.startsWith("Cannot write to " + QDir::toNativeSeparators(m_pFolder->filePath(strFolder))),
             qPrintable(strText));
    QVERIFY2(strText.contains(": "), qPrintable(strText));
    QCOMPARE(window.findChild<QAbstractButton*>("btnRecord")->text(), QString("Record"));
    QTest::qWait(300);
    QCOMPARE(spy.size(), 1);
}

QTEST_MAIN(tst_SnapshotsAndRecordings)

#include "tst_SnapshotsAndRecordings.moc"
