// A dialog with the section that the recipe adds, as a host and its user see it.

#include "support/FakeHost.h"
#include "support/FakeSections.h"

#include <KvGui/KvToolListView.h>
#include <LocalConfig/CLocalConfig.h>
#include <LocalConfig/interfaces/INetworkSection.h>
#include <LocalConfig/interfaces/IPlaybackSection.h>
#include <LocalConfig/interfaces/IRecordSection.h>
#include <LocalConfig/interfaces/ISecuritySection.h>
#include <LocalConfig/interfaces/IShortcutKeySection.h>
#include <LocalConfig/interfaces/ISnapshotSection.h>
#include <LocalConfig/interfaces/ITvWallSection.h>
#include <LocalConfig/interfaces/IVideoSection.h>
#include <client/store/ConfigService.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QGroupBox>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

using namespace LocalConfigLogical;

namespace
{

template <class Interface, class Record>
using Section = CFakeSection<Interface, Record>;

/// The section that is new, told apart from the others in their journal.
class CFakeNetworkSection : public INetworkSection
{
public:
    explicit CFakeNetworkSection(CJournal& journal)
        : m_journal(journal)
    {}

    int SetConfig(const NetworkConfigInfo& record) override
    {
        m_journal.Note(QStringLiteral("Network SetConfig"));
        m_record = record;
        return 0;
    }

    void GetConfig(NetworkConfigInfo& record) override { record = m_record; }

    NetworkConfigInfo m_record;

private:
    CJournal& m_journal;
};

/// A host with ten sections and its dialog, shown.
struct SDialog
{
    explicit SDialog(bool bUseProxy = false)
    {
        network.m_record.useProxy = bUseProxy;
        host.localConfig.m_mapSections = {
            {SectionBasic, &basic},     {SectionVideo, &video},   {SectionPlayback, &playback},
            {SectionSnapshot, &snap},   {SectionRecord, &record}, {SectionAlarm, &alarm},
            {SectionShortcutKey, &key}, {SectionTvWall, &tvWall}, {SectionSecurity, &security},
            {SectionNetwork, &network},
        };
        dialog.Init(&host.localConfig, &host.userManager);
        dialog.show();
        pList = dialog.findChild<KVGUI::KvToolListView*>("m_pToolListView");
        pBox = dialog.findChild<QGroupBox*>("m_gBNetwork");
        pPage = dialog.findChild<QWidget*>("m_pNetwork");
        pProxy = dialog.findChild<QAbstractButton*>("proxyChkBox");
        host.journal.Take();
    }

    ~SDialog()
    {
        dialog.hide();
        dialog.UnInitUI();
    }

    void Click(const char* pszButton)
    {
        QTest::mouseClick(dialog.findChild<QAbstractButton*>(pszButton), Qt::LeftButton);
    }

    SFakeHost host;
    CFakeBasicSection basic{host.journal};
    Section<IVideoSection, VideoConfigInfo> video{host.journal};
    Section<IPlaybackSection, PlaybackConfigInfo> playback{host.journal};
    Section<ISnapshotSection, SnapshotConfigInfo> snap{host.journal};
    Section<IRecordSection, RecordConfigInfo> record{host.journal};
    CFakeAlarmSection alarm{host.journal};
    Section<IShortcutKeySection, ShortcutKeyConfigInfo> key{host.journal};
    Section<ITvWallSection, TvWallConfigInfo> tvWall{host.journal};
    Section<ISecuritySection, SecurityConfigInfo> security{host.journal};
    CFakeNetworkSection network{host.journal};
    LocalConfig::CLocalConfig dialog{nullptr};
    KVGUI::KvToolListView* pList = nullptr;
    QGroupBox* pBox = nullptr;
    QWidget* pPage = nullptr;
    QAbstractButton* pProxy = nullptr;
};

} // namespace

class tst_TenthSection : public QObject
{
    Q_OBJECT

private slots:
    void TheListNamesIt();
    void TheListShowsItsPictures();
    void ItsBoxHoldsItsPage();
    void AClickIntoItsBoxSelectsIt();
    void ItsPageShowsItsSection();
    void SaveStoresItAfterTheOthers();
    void DefaultReachesIt();
    void CancelReachesIt();
    void ALostConnectionLocksIt();
    void ItsPicturesAreInBothSkins_data();
    void ItsPicturesAreInBothSkins();
    void ItsTextsAreTranslated_data();
    void ItsTextsAreTranslated();
    void TheClientKeepsIt();
};

void tst_TenthSection::TheListNamesIt()
{
    SDialog d;
    const auto* pModel = qobject_cast<QAbstractItemView*>(d.pList)->model();
    QCOMPARE(pModel->rowCount(), 10);
    QCOMPARE(pModel->index(9, 0).data().toString(), QString("Network"));
}

void tst_TenthSection::TheListShowsItsPictures()
{
    SDialog d;
    const auto* pModel = qobject_cast<QAbstractItemView*>(d.pList)->model();
    const QIcon icon = pModel->index(9, 0).data(Qt::DecorationRole).value<QIcon>();
    QSet<QRgb> setColors;
    for (const QIcon::Mode eMode : {QIcon::Normal, QIcon::Active, QIcon::Selected})
    {
        setColors.insert(icon.pixmap(20, 20, eMode).toImage().pixel(10, 10)); // where its lines cross
    }
    QCOMPARE(setColors.size(), 3);
    QVERIFY(!setColors.contains(0));
}

void tst_TenthSection::ItsBoxHoldsItsPage()
{
    SDialog d;
    QVERIFY(d.pBox && d.pPage);
    QCOMPARE(d.pBox->title(), QString("Network"));
    QCOMPARE(d.pPage->parentWidget(), d.pBox);
    QVERIFY(d.pBox->rect().contains(d.pPage->geometry()));
    QVERIFY(d.pProxy->isVisible());
}

void tst_TenthSection::AClickIntoItsBoxSelectsIt()
{
    SDialog d;
    QTest::mouseClick(d.pBox, Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(d.pList->GetCurrentIndex(), 9);
    QVERIFY(d.pBox->property("select").toBool());
}

void tst_TenthSection::ItsPageShowsItsSection()
{
    QVERIFY(!SDialog(false).pProxy->isChecked());
    QVERIFY(SDialog(true).pProxy->isChecked());
}

void tst_TenthSection::SaveStoresItAfterTheOthers()
{
    SDialog d;
    d.pProxy->click();
    d.Click("btnOk");
    QVERIFY(d.network.m_record.useProxy);
    const QStringList listStores = d.host.journal.Take().filter(QRegularExpression("SetConfig|SaveAll"));
    QCOMPARE(listStores.size(), 11);
    QCOMPARE(listStores.mid(9), (QStringList{"Network SetConfig", "SaveAll"}));
}

void tst_TenthSection::DefaultReachesIt()
{
    SDialog d(true);
    d.Click("btnOther");
    QVERIFY(!d.pProxy->isChecked());
    QVERIFY(d.network.m_record.useProxy);
}

void tst_TenthSection::CancelReachesIt()
{
    SDialog d(true);
    d.pProxy->click();
    QVERIFY(!d.pProxy->isChecked());
    d.Click("btnCancel");
    QVERIFY(!d.dialog.isVisible());
    QVERIFY(d.pProxy->isChecked());
}

void tst_TenthSection::ALostConnectionLocksIt()
{
    SDialog d;
    d.host.loginManager.Notify(3, 0);
    QVERIFY(!d.pProxy->isEnabled());
    d.host.loginManager.Notify(2, 0);
    QVERIFY(d.pProxy->isEnabled());
}

void tst_TenthSection::ItsPicturesAreInBothSkins_data()
{
    QTest::addColumn<QString>("strFile");
    for (const char* pszSkin : {"DustyBlue", "White"})
    {
        for (const char* pszState : {"n", "h", "p"})
        {
            const QString strFile = QStringLiteral("skin/%1/LocalConfig/network-%2.svg").arg(pszSkin, pszState);
            QTest::newRow(qPrintable(strFile)) << strFile;
        }
    }
}

void tst_TenthSection::ItsPicturesAreInBothSkins()
{
    QFETCH(QString, strFile);
    QFile file(QStringLiteral(RESOURCE_DIR "/") + strFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.contains("stroke=\"#"));
    QVERIFY(!content.contains("currentColor"));
}

void tst_TenthSection::ItsTextsAreTranslated_data()
{
    QTest::addColumn<QString>("strTitle");
    QTest::addColumn<QString>("strOption");
    QTest::newRow("zh_CN") << QString::fromUtf8("网络") << QString::fromUtf8("通过代理服务器连接");
    QTest::newRow("es") << QString::fromUtf8("Red") << QString::fromUtf8("Conectar a través del servidor proxy");
    QTest::newRow("ar") << QString::fromUtf8("الشبكة") << QString::fromUtf8("الاتصال عبر الخادم الوكيل");
}

void tst_TenthSection::ItsTextsAreTranslated()
{
    QFETCH(QString, strTitle);
    QFETCH(QString, strOption);
    QTranslator translator;
    QVERIFY(
        translator.load(QStringLiteral("LocalConfig_%1").arg(QTest::currentDataTag()), RESOURCE_DIR "/translations"));
    QCoreApplication::installTranslator(&translator);
    SDialog d;
    QCOMPARE(d.pBox->title(), strTitle);
    QCOMPARE(d.pProxy->text(), strOption);
}

void tst_TenthSection::TheClientKeepsIt()
{
    using LocalConfigClient::ConfigService;
    using LocalConfigClient::SettingsFile;
    const QTemporaryDir folder;
    NetworkConfigInfo record;
    record.useProxy = true;
    {
        ConfigService service(folder.path(), SettingsFile::ReadWrite);
        static_cast<INetworkSection*>(service.GetSection(SectionNetwork))->SetConfig(record);
        QCOMPARE(service.SaveAll(), 1);
    }
    ConfigService service(folder.path(), SettingsFile::ReadWrite);
    NetworkConfigInfo stored;
    static_cast<INetworkSection*>(service.GetSection(SectionNetwork))->GetConfig(stored);
    QVERIFY(stored.useProxy);
}

int main(int argc, char* argv[])
{
    qputenv("KV_CLIENT_RESOURCES", RESOURCE_DIR);
    QApplication application(argc, argv);
    tst_TenthSection test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_TenthSection.moc"
