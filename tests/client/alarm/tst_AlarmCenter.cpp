#include "support/ClientWindow.h"
#include "support/SoundServer.h"

#include <client/alarm/AlarmCenter.h>
#include <client/alarm/AlarmSounds.h>
#include <client/alarm/MapView.h>
#include <client/live/SplitView.h>

#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CAlarmTypeCombox.h>
#include <UICommonModule/CAudioOutput.h>

#include <QLabel>

using namespace LocalConfigClient;
using UICommonMdl::CAlarmType;

namespace
{

constexpr int g_nMotion = 304; // of category 3

} // namespace

/// The client's window, after a start with settings of the test's own.
struct SClient
{
    explicit SClient(const QString& strFolder)
        : service(strFolder, SettingsFile::ReadWrite)
        , users({}, nullptr)
    {
        service.SeedAlarms(*CAlarmType::Instance());
        pWindow.reset(new MainWindow(service, users));
        pWindow->show();
        QApplication::setActiveWindow(pWindow.data());
    }

    MapView* Map() const { return pWindow->findChild<MapView*>(); }
    SplitView* Split() const { return pWindow->findChild<SplitView*>(); }
    AlarmCenter* Alarms() const { return pWindow->findChild<AlarmCenter*>(); }
    QDialog* PopUp() const { return pWindow->findChild<QDialog*>("alarmPopUp"); }
    QString Text() const { return pWindow->findChild<QLabel*>("alarm")->text(); }
    void Click(const char* pszButton) const
    {
        QTest::mouseClick(pWindow->findChild<QAbstractButton*>(pszButton), Qt::LeftButton);
    }
    void Choose(int nType) const
    {
        const CAlarmType* pCatalogue = CAlarmType::Instance();
        QVERIFY(pWindow->findChild<UICommonMdl::CAlarmTypeCombox*>("alarmType")
                    ->ChooseItem(pCatalogue->GetGroupInfoByAlarmId(nType).nCategoryId,
                                 pCatalogue->GetIndexByAlarmTypeId(nType)));
    }

    ConfigService service;
    UserManager users;
    QScopedPointer<MainWindow> pWindow;
};

class tst_AlarmCenter : public CClientTest
{
    Q_OBJECT

private slots:
    void initTestCase() { m_server.Start(); }
    void init() { Reset(); }

    void ATestAlarmDoesAllThree();
    void AcknowledgingEndsEverything();
    void NothingHappensThatIsSwitchedOff();
    void OnlyChosenCategoriesFlash();
    void TheVideoComesInTheLiveView();
    void AcknowledgingLeavesTheOperatorsOwnSingleWindow();
    void ThePopUpAcknowledges();
    void ClosingThePopUpLeavesTheAlarm();
    void ANewAlarmTakesTheOldOnesPlace();
    void AnUnknownTypeIsNamedByItsNumber();
    void TheSoundIsHeardOnce();
    void ALoopedSoundIsHeardUntilAcknowledged();
    void ACustomSoundIsHeard();
    void ADamagedSoundIsSilent();

private:
    QString Put(const QString& strName, const QByteArray& content) const
    {
        QFile file(strName);
        if (file.open(QIODevice::WriteOnly))
        {
            file.write(content);
        }
        return QFileInfo(strName).absoluteFilePath();
    }

    CSoundServer m_server;
};

void tst_AlarmCenter::ATestAlarmDoesAllThree()
{
    QVERIFY(ProvideSounds());
    SClient client(m_pFolder->path());
    client.Choose(g_nMotion);
    client.Click("btnTestAlarm");
    QVERIFY(client.Alarms()->IsActive());
    QVERIFY(client.Text().contains(CAlarmType::Instance()->CovertAlarmNameByType(g_nMotion)));
    QCOMPARE(client.Alarms()->GetPlayedFile(), QDir::currentPath() + "/Sound/sound_en/video.wav");
    QVERIFY(!client.Alarms()->IsLooped());
    QVERIFY(client.Map()->IsFlashing());
    QCOMPARE(client.Map()->GetFlashingCategory(), 3);
    QVERIFY(client.PopUp() && client.PopUp()->isVisible());
    QVERIFY(!client.Split()->IsSingleWindow());
}

void tst_AlarmCenter::AcknowledgingEndsEverything()
{
    QVERIFY(ProvideSounds());
    SClient client(m_pFolder->path());
    client.Choose(g_nMotion);
    client.Click("btnTestAlarm");
    client.Click("btnAcknowledge");
    QVERIFY(!client.Alarms()->IsActive());
    QCOMPARE(client.Text(), QString());
    QCOMPARE(client.Alarms()->GetPlayedFile(), QString());
    QVERIFY(!client.Map()->IsFlashing());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!client.PopUp());
    QVERIFY(!client.pWindow->findChild<QAbstractButton*>("btnAcknowledge")->isEnabled());
}

void tst_AlarmCenter::NothingHappensThatIsSwitchedOff()
{
    QVERIFY(ProvideSounds());
    Settings settings;
    settings.alarm.alarmSound = false;
    settings.alarm.mapFlash = false;
    settings.alarm.linkVideo = false;
    Store(settings);
    SClient client(m_pFolder->path());
    client.Choose(g_nMotion);
    client.Click("btnTestAlarm");
    QVERIFY(client.Alarms()->IsActive());
    QCOMPARE(client.Alarms()->GetPlayedFile(), QString());
    QVERIFY(!client.Map()->IsFlashing());
    QVERIFY(!client.PopUp());
    QVERIFY(!client.Split()->IsSingleWindow());
}

void tst_AlarmCenter::OnlyChosenCategoriesFlash()
{
    Settings settings;
    settings.alarm.flashCategories[3] = false;
    Store(settings);
    SClient client(m_pFolder->path());
    client.Choose(g_nMotion);
    client.Click("btnTestAlarm");
    QVERIFY(!client.Map()->IsFlashing());
    client.Choose(201);
    client.Click("btnTestAlarm");
    QCOMPARE(client.Map()->GetFlashingCategory(), 2);
}

void tst_AlarmCenter::TheVideoComesInTheLiveView()
{
    Settings settings;
    settings.alarm.openVideoType = 1;
    Store(settings);
    SClient client(m_pFolder->path());
    client.Choose(g_nMotion);
    client.Click("btnTestAlarm");
    QVERIFY(!client.PopUp());
    QVERIFY(client.Split()->IsSingleWindow());
    QCOMPARE(client.Split()->GetSelected(), client.Alarms()->GetLinkedPane(g_nMotion));
    client.Click("btnAcknowledge");
    QVERIFY(!client.Split()->IsSingleWindow());
}

void tst_AlarmCenter::AcknowledgingLeavesTheOperatorsOwnSingleWindow()
{
    Settings settings;
    settings.alarm.openVideoType = 1;
    Store(settings);
    SClient client(m_pFolder->path());
    client.Split()->ToggleSingleWindow();
    client.Click("btnTestAlarm");
    client.Click("btnAcknowledge");
    QVERIFY(client.Split()->IsSingleWindow());
}

void tst_AlarmCenter::ThePopUpAcknowledges()
{
    SClient client(m_pFolder->path());
    client.Choose(g_nMotion);
    client.Click("btnTestAlarm");
    QVERIFY(client.PopUp()->windowTitle().contains(CAlarmType::Instance()->CovertAlarmNameByType(g_nMotion)));
    QVERIFY(!client.PopUp()->findChild<QLabel*>("alarmPicture")->pixmap(Qt::ReturnByValue).isNull());
    QTest::mouseClick(client.PopUp()->findChild<QAbstractButton*>("btnOk"), Qt::LeftButton);
    QVERIFY(!client.Alarms()->IsActive());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!client.PopUp());
}

void tst_AlarmCenter::ClosingThePopUpLeavesTheAlarm()
{
    SClient client(m_pFolder->path());
    client.Choose(g_nMotion);
    client.Click("btnTestAlarm");
    QApplication::setActiveWindow(client.PopUp());
    QTest::keyClick(client.PopUp(), Qt::Key_Escape);
    QVERIFY(!client.PopUp()->isVisible());
    QVERIFY(client.Alarms()->IsActive());
    QVERIFY(client.Map()->IsFlashing());
    client.Click("btnAcknowledge");
    QVERIFY(!client.Alarms()->IsActive());
}

void tst_AlarmCenter::ANewAlarmTakesTheOldOnesPlace()
{
    SClient client(m_pFolder->path());
    client.Choose(g_nMotion);
    client.Click("btnTestAlarm");
    client.Choose(201);
    client.Click("btnTestAlarm");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(client.pWindow->findChildren<QDialog*>("alarmPopUp").size(), 1);
    QCOMPARE(client.Map()->GetFlashingCategory(), 2);
    QVERIFY(client.Text().contains(CAlarmType::Instance()->CovertAlarmNameByType(201)));
}

void tst_AlarmCenter::AnUnknownTypeIsNamedByItsNumber()
{
    SClient client(m_pFolder->path());
    client.Alarms()->Raise(123456);
    QVERIFY(client.Text().contains("123456"));
    QVERIFY(!client.Map()->IsFlashing());
    QCOMPARE(client.Alarms()->GetPlayedFile(), QString());
}

void tst_AlarmCenter::TheSoundIsHeardOnce()
{
    QVERIFY(UICommonMdl::CAudioOutput::IsAvailable());
    QVERIFY(QDir().mkpath("Sound/sound_en"));
    Put("Sound/sound_en/video.wav", MakeWav(Tone(1000, 0.3)));
    SClient client(m_pFolder->path());
    client.Choose(g_nMotion);
    const QVector<qint16> listHeard = Heard(m_server.Record([&client] { client.Click("btnTestAlarm"); }));
    QVERIFY2(Strength(listHeard, 1000) > 5000, qPrintable(QString::number(Strength(listHeard, 1000))));
    QVERIFY2(listHeard.size() < 0.6 * g_nSampleRate, qPrintable(QString::number(listHeard.size())));
}

void tst_AlarmCenter::ALoopedSoundIsHeardUntilAcknowledged()
{
    QVERIFY(QDir().mkpath("Sound/sound_en"));
    Put("Sound/sound_en/video.wav", MakeWav(Tone(1000, 0.3)));
    Settings settings;
    settings.alarm.loopSound = true;
    Store(settings);
    SClient client(m_pFolder->path());
    client.Choose(g_nMotion);
    const QVector<qint16> listHeard = Heard(m_server.Record([&client] { client.Click("btnTestAlarm"); }, 3000));
    QVERIFY2(listHeard.size() > g_nSampleRate, qPrintable(QString::number(listHeard.size())));
    QVERIFY(client.Alarms()->IsLooped());
    client.Click("btnAcknowledge");
    QTest::qWait(500); // what the server had been given already
    QVERIFY(Heard(m_server.Record([] {}, 500)).isEmpty());
}

void tst_AlarmCenter::ADamagedSoundIsSilent()
{
    Settings settings;
    const QByteArray absurdSize("\xf0\xff\xff\x7f", 4);
    const QString strFile = Put("mine.wav", MakeWav(Tone(600, 0.3)).replace(40, absurdSize.size(), absurdSize));
    settings.alarm.alarmSounds[302].customSound = strFile.toStdString();
    Store(settings);
    SClient client(m_pFolder->path());
    client.Choose(302);
    QVERIFY(Heard(m_server.Record([&client] { client.Click("btnTestAlarm"); }, 900)).isEmpty());
    QVERIFY(client.Alarms()->IsActive());
    QCOMPARE(client.Alarms()->GetPlayedFile(), QString());
}

void tst_AlarmCenter::ACustomSoundIsHeard()
{
    Settings settings;
    settings.alarm.alarmSounds[302].customSound = Put("mine.wav", MakeWav(Tone(600, 0.3))).toStdString();
    Store(settings);
    SClient client(m_pFolder->path());
    client.Choose(302);
    const QVector<qint16> listHeard = Heard(m_server.Record([&client] { client.Click("btnTestAlarm"); }));
    QVERIFY2(Strength(listHeard, 600) > 5000, qPrintable(QString::number(Strength(listHeard, 600))));
}

QTEST_MAIN(tst_AlarmCenter)

#include "tst_AlarmCenter.moc"
