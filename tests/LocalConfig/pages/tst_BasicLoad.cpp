#include "support/BasicPage.h"

#include <QSettings>
#include <QStandardPaths>

#ifdef Q_OS_WIN
#include "support/UserRegistry.h"
#endif

namespace
{

/// An auto-start entry of this program's name, in a place of the test's own.
class CAutoStartEntry
{
public:
    explicit CAutoStartEntry(const QString& strPath, const QString& strQuote = QStringLiteral("\""))
    {
#ifdef Q_OS_WIN
        QSettings run("HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run", QSettings::NativeFormat);
        run.setValue(QCoreApplication::applicationName(), strQuote + QDir::toNativeSeparators(strPath) + strQuote);
#else
        const QDir config(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
        QVERIFY2(config.path().contains("tests/home"), "an entry must not be written in a user's home");
        QVERIFY(config.mkpath("autostart"));
        m_file.setFileName(config.filePath("autostart/" + QCoreApplication::applicationName() + ".desktop"));
        QVERIFY(m_file.open(QIODevice::WriteOnly));
        m_file.write("[Desktop Entry]\nType=Application\nExec=" + (strQuote + strPath + strQuote).toUtf8() + '\n');
        m_file.close();
#endif
    }
#ifndef Q_OS_WIN
    ~CAutoStartEntry()
    {
        m_file.remove();
    }
#endif

private:
    Q_DISABLE_COPY(CAutoStartEntry)

#ifdef Q_OS_WIN
    CUserRegistry m_registry;
#else
    QFile m_file;
#endif
};

} // namespace

class tst_BasicLoad : public CBasicPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void ANullSectionIsRefused();
    void SetConfigSectionLoads();
    void LoadShowsEachFlag_data();
    void LoadShowsEachFlag();
    void LoadShowsTheTheme_data();
    void LoadShowsTheTheme();
    void LoadShowsTheClientSize_data();
    void LoadShowsTheClientSize();
    void LoadShowsTheDeviceNode_data();
    void LoadShowsTheDeviceNode();
    void DefaultsComeFromThePage();
    void WithoutASectionLoadChangesNothing();

    void AutoRunStateIsToldBeforeEachLoad();
    void AutoRunStateFollowsTheEntry_data();
    void AutoRunStateFollowsTheEntry();
#ifdef Q_OS_WIN // where the entry is compared as it stands
    void AnEntryWithoutQuotesIsNotThisClient();
#endif
    void AutoRunBoxShowsTheRecord();
    void UnInitForgetsTheSection();
};

void tst_BasicLoad::ANullSectionIsRefused()
{
    QCOMPARE(m_pPage->SetConfigSection(nullptr), -1);
    QCOMPARE(m_pPage->SaveConfig(), -1);
    QVERIFY(!QFile::exists("Localcfg.ini"));
    QCOMPARE(m_journal.Take(), QStringList());
}

void tst_BasicLoad::SetConfigSectionLoads()
{
    QCOMPARE(m_pPage->SetConfigSection(m_pSection.data()), 0);
    QCOMPARE(m_journal.Take(), (QStringList{"SetAutoRunState false", "GetConfig"}));
    QCOMPARE(m_pPage->SetConfigSection(nullptr), -1);
    QCOMPARE(m_pPage->SaveConfig(), 0);
}

void tst_BasicLoad::LoadShowsEachFlag_data()
{
    QTest::addColumn<int>("nIndex");
    QTest::addColumn<bool>("bValue");
    for (int n = 0; n < int(std::size(g_arrCheckBoxes)); ++n)
    {
        for (bool bValue : {true, false})
        {
            if (g_arrCheckBoxes[n].pField)
            {
                QTest::addRow("%s %s", g_arrCheckBoxes[n].pszName, bValue ? "on" : "off") << n << bValue;
            }
        }
    }
}

void tst_BasicLoad::LoadShowsEachFlag()
{
    QFETCH(int, nIndex);
    QFETCH(bool, bValue);
    // All other flags have the opposite value, so a box that shows its neighbour's field is found out.
    for (const SCheckBox& checkBox : g_arrCheckBoxes)
    {
        if (checkBox.pField)
        {
            m_pSection->m_record.*checkBox.pField = !bValue;
        }
    }
    m_pSection->m_record.*g_arrCheckBoxes[nIndex].pField = bValue;
    m_pSection->m_record.showDeviceNode = bValue ? 0 : 1;
    m_pPage->SetConfigSection(m_pSection.data());
    for (int n = 0; n < int(std::size(g_arrCheckBoxes)); ++n)
    {
        QCOMPARE(Check(g_arrCheckBoxes[n].pszName)->isChecked(), (n == nIndex) == bValue);
    }
}

void tst_BasicLoad::LoadShowsTheTheme_data()
{
    QTest::addColumn<int>("nSkin");
    QTest::addColumn<QString>("strText");
    QTest::newRow("1") << 1 << "Dark";
    QTest::newRow("2") << 2 << "White";
    QTest::newRow("0") << 0 << "White";
    QTest::newRow("3") << 3 << "White";
    QTest::newRow("-1") << -1 << "White";
}

void tst_BasicLoad::LoadShowsTheTheme()
{
    QFETCH(int, nSkin);
    QFETCH(QString, strText);
    m_pSection->m_record.skin = nSkin;
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(Combo("cmbSkinSet")->currentText(), strText);
}

void tst_BasicLoad::LoadShowsTheClientSize_data()
{
    QTest::addColumn<int>("nClientSize");
    QTest::addColumn<QString>("strText");
    QTest::newRow("0") << 0 << "1280*800";
    QTest::newRow("1") << 1 << "1280*1024";
    QTest::newRow("2") << 2 << "1440*900";
    QTest::newRow("3") << 3 << "1680*1050";
    QTest::newRow("4") << 4 << QString();
    QTest::newRow("-1") << -1 << QString();
    QTest::newRow("huge") << 2147483647 << QString();
}

void tst_BasicLoad::LoadShowsTheClientSize()
{
    QFETCH(int, nClientSize);
    QFETCH(QString, strText);
    m_pSection->m_record.clientSize = nClientSize;
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(Combo("screenRatioCmbBox")->currentText(), strText);
    QCOMPARE(Combo("screenRatioCmbBox")->currentIndex(), strText.isEmpty() ? -1 : nClientSize);
}

void tst_BasicLoad::LoadShowsTheDeviceNode_data()
{
    QTest::addColumn<int>("nShowDeviceNode");
    QTest::addColumn<bool>("bChecked");
    QTest::newRow("1") << 1 << true;
    for (int n : {0, 2, -1, 255, 257})
    {
        QTest::addRow("%d", n) << n << false;
    }
}

void tst_BasicLoad::LoadShowsTheDeviceNode()
{
    QFETCH(int, nShowDeviceNode);
    QFETCH(bool, bChecked);
    m_pSection->m_record.showDeviceNode = nShowDeviceNode;
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(Check("ShowDevChkBox")->isChecked(), bChecked);
}

void tst_BasicLoad::DefaultsComeFromThePage()
{
    m_pSection->m_record = Changed();
    m_pPage->SetConfigSection(m_pSection.data());
    m_journal.Take();
    m_pPage->LoadConfig(true);
    QCOMPARE(m_journal.Take(), QStringList{"SetAutoRunState false"});
    for (const SCheckBox& expected : g_arrCheckBoxes)
    {
        QCOMPARE(Check(expected.pszName)->isChecked(), expected.bDefault);
    }
    QCOMPARE(Combo("cmbSkinSet")->currentText(), QString("Dark"));
    QCOMPARE(Combo("screenRatioCmbBox")->currentText(), QString("1440*900"));
}

void tst_BasicLoad::WithoutASectionLoadChangesNothing()
{
    Check("autologinChkBox")->setChecked(true);
    m_pPage->LoadConfig(true);
    m_pPage->LoadConfig(false);
    QVERIFY(Check("autologinChkBox")->isChecked());
    QCOMPARE(m_journal.Take(), QStringList());
}

void tst_BasicLoad::AutoRunStateIsToldBeforeEachLoad()
{
    m_pPage->SetConfigSection(m_pSection.data());
    m_journal.Take();
    m_pPage->LoadConfig(false);
    QCOMPARE(m_journal.Take(), (QStringList{"SetAutoRunState false", "GetConfig"}));
}

void tst_BasicLoad::AutoRunStateFollowsTheEntry_data()
{
    QTest::addColumn<QString>("strPath");
    QTest::addColumn<bool>("bMatches");
    const QString strPath = QCoreApplication::applicationFilePath();
    QTest::newRow("this client") << strPath << true;
    QTest::newRow("another installation") << "/opt/other" + strPath << false;
    QTest::newRow("other letter case") << strPath.toUpper() << false;
}

void tst_BasicLoad::AutoRunStateFollowsTheEntry()
{
    QFETCH(QString, strPath);
    QFETCH(bool, bMatches);
    const CAutoStartEntry entry(strPath);
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(m_journal.Take().first(), QString(bMatches ? "SetAutoRunState true" : "SetAutoRunState false"));
}

#ifdef Q_OS_WIN

void tst_BasicLoad::AnEntryWithoutQuotesIsNotThisClient()
{
    const CAutoStartEntry entry(QCoreApplication::applicationFilePath(), QString());
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(m_journal.Take().first(), QString("SetAutoRunState false"));
}

#endif

void tst_BasicLoad::AutoRunBoxShowsTheRecord()
{
    m_pSection->m_record.autoRun = true;
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(m_journal.Take().first(), QString("SetAutoRunState false"));
    QVERIFY(Check("autoRunChkBox")->isChecked());
}

void tst_BasicLoad::UnInitForgetsTheSection()
{
    m_pPage->SetConfigSection(m_pSection.data());
    m_pPage->UnInit();
    m_pPage->UnInit();
    m_journal.Take();
    QCOMPARE(m_pPage->SaveConfig(), -1);
    m_pPage->LoadConfig(false);
    QCOMPARE(m_journal.Take(), QStringList());
}

QTEST_MAIN(tst_BasicLoad)

#include "tst_BasicLoad.moc"
