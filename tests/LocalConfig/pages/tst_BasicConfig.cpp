#include "support/FakeSections.h"

#include <LocalConfig/pages/AutoStartEntry.h>
#include <LocalConfig/pages/CBasicConfig.h>
#include <LocalConfig/widgets/CCombobox.h>

#include <KvGui/KvCheckBox.h>

#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

using namespace LocalConfig;
using KVGUI::KvCheckBox;
using LocalConfigLogical::BasicConfigInfo;

namespace
{

struct SCheckBox
{
    const char* pszName;
    const char* pszText;
    bool BasicConfigInfo::*pField; ///< null where the record keeps something else than a bool
    bool bDefault;
};

// Top to bottom.
const SCheckBox g_arrCheckBoxes[] = {
    {"ShowZoneInfoChkBox", "Show time zone(Takes effect after restart)", &BasicConfigInfo::showTimeZone, false},
    {"timeChkBox", "Enable time sync with platform server", &BasicConfigInfo::timeSync, false},
    {"autologinChkBox", "Auto Login", &BasicConfigInfo::autoLogin, false},
    {"autoRunChkBox", "Auto restart after reboot", &BasicConfigInfo::autoRun, false},
    {"liveStartAtBeginChkBox", "Display previous live view after restart", &BasicConfigInfo::restoreLiveView, false},
    {"adjustTalkChkBox", "Self-adaptive audio talk parameter", &BasicConfigInfo::adaptiveTalk, true},
    {"ShowDevChkBox", "Show device node", nullptr, true},
    {"previewSnapshotChkBox", "Display live view thumbnail", &BasicConfigInfo::liveThumbnail, true},
};

/// A record in which no field has its default value.
BasicConfigInfo Changed()
{
    BasicConfigInfo record;
    record.hostOwned1 = 5;
    record.hostOwned2 = 1001;
    record.hostOwned3 = 13;
    record.skin = 2;
    record.hostOwned5 = true;
    record.hostOwned6 = 6;
    record.hostOwned7 = false;
    record.timeSync = true;
    record.hostOwned9 = true;
    record.hostOwned10 = true;
    record.autoLogin = true;
    record.hostOwned12 = true;
    record.adaptiveTalk = false;
    record.hostOwned14 = true;
    record.hostOwned15 = 7;
    record.autoRun = true;
    record.hostOwned17 = false;
    record.hostOwned18 = true;
    record.hostOwned19 = 8;
    record.hostOwned20 = true;
    record.showDeviceNode = 0;
    record.hostOwned22 = false;
    record.clientSize = 3;
    record.restoreLiveView = true;
    record.hostOwned25 = true;
    record.liveThumbnail = false;
    record.showTimeZone = true;
    record.hostOwned28 = 9;
    return record;
}

bool HostOwnedEqual(const BasicConfigInfo& left, const BasicConfigInfo& right)
{
    return left.hostOwned1 == right.hostOwned1 && left.hostOwned2 == right.hostOwned2 &&
           left.hostOwned3 == right.hostOwned3 && left.hostOwned5 == right.hostOwned5 &&
           left.hostOwned6 == right.hostOwned6 && left.hostOwned7 == right.hostOwned7 &&
           left.hostOwned9 == right.hostOwned9 && left.hostOwned10 == right.hostOwned10 &&
           left.hostOwned12 == right.hostOwned12 && left.hostOwned14 == right.hostOwned14 &&
           left.hostOwned15 == right.hostOwned15 && left.hostOwned17 == right.hostOwned17 &&
           left.hostOwned18 == right.hostOwned18 && left.hostOwned19 == right.hostOwned19 &&
           left.hostOwned20 == right.hostOwned20 && left.hostOwned22 == right.hostOwned22 &&
           left.hostOwned25 == right.hostOwned25 && left.hostOwned28 == right.hostOwned28;
}

} // namespace

class tst_BasicConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void FormLayout();
    void Controls();
    void HiddenControls();
    void CaptionHasAColon();
    void ThemeItems();
    void ClientSizeItems();
    void TextsAreTranslated();
    void IsAToolWindowOnlyWhileItIsBuilt();
    void IsAPlainChildAfterConstruction();
    void TabOrderFollowsTheForm();
    void TimeSyncToolTipShowsTheWholeText();

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
#ifndef Q_OS_WIN // there the entry is a value of the user's own registry
    void AutoRunStateFollowsTheEntry_data();
    void AutoRunStateFollowsTheEntry();
#endif
    void AutoRunBoxShowsTheRecord();

    void SaveCopiesEachClickedBox_data();
    void SaveCopiesEachClickedBox();
    void SaveCarriesHostOwnedFields();
    void SaveWritesTheChosenClientSize();
    void SaveWithoutACurrentSizeWritesMinusOne();
    void SaveWithAnotherDeviceNodeWritesZero();
    void SaveReturnsTheSectionsResult();
    void SaveWritesTheSkinName_data();
    void SaveWritesTheSkinName();
    void TheSkinNameIsWrittenWhateverTheResult();
    void SkinAndLanguageKeys();

    void ConnectionState();
    void UnInitForgetsTheSection();

private:
    KvCheckBox* Check(const char* pszName) const
    {
        return m_pPage->findChild<KvCheckBox*>(pszName);
    }
    CCombobox* Combo(const char* pszName) const
    {
        return m_pPage->findChild<CCombobox*>(pszName);
    }
    void Show()
    {
        m_parent.show();
        m_pPage->show();
        QVERIFY(QTest::qWaitForWindowExposed(&m_parent));
    }
    static QVariant Ini(const char* pszKey)
    {
        return QSettings(QDir::current().filePath("Localcfg.ini"), QSettings::IniFormat).value(pszKey);
    }

    QTemporaryDir m_folder;
    CJournal m_journal;
    QScopedPointer<CFakeBasicSection> m_pSection;
    QWidget m_parent;
    QScopedPointer<CBasicConfig> m_pPage;
};

void tst_BasicConfig::initTestCase()
{
    QVERIFY(QDir::setCurrent(m_folder.path()));
    QVERIFY2(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).contains("tests/home"),
             "this test writes an autostart entry and must not do so in a user's home");
}

void tst_BasicConfig::init()
{
    QFile::remove("Localcfg.ini");
    m_pPage.reset();
    m_parent.resize(662, 462);
    m_pSection.reset(new CFakeBasicSection(m_journal));
    m_pPage.reset(new CBasicConfig(&m_parent));
    m_pPage->resize(662, 462);
    m_journal.Take();
}

void tst_BasicConfig::FormLayout()
{
    auto* pGrid = qobject_cast<QGridLayout*>(m_pPage->layout());
    QVERIFY(pGrid);
    QCOMPARE(pGrid->verticalSpacing(), 20);
    QCOMPARE(pGrid->contentsMargins(), QMargins(48, 32, 12, 32));
    QCOMPARE(pGrid->columnCount(), 1);
    QCOMPARE(m_pPage->windowTitle(), QString("Basic Config"));

    Show();
    auto* pLabel = m_pPage->findChild<QLabel*>("label");
    QCOMPARE(pLabel->geometry().top(), 32); // nothing is left of the hidden row above
    QVERIFY(pLabel->geometry().bottom() < Combo("screenRatioCmbBox")->geometry().top());
    int nTop = Combo("screenRatioCmbBox")->geometry().bottom();
    for (const SCheckBox& expected : g_arrCheckBoxes)
    {
        const QRect geometry = Check(expected.pszName)->geometry();
        QCOMPARE(geometry.left(), 48);
        QCOMPARE(geometry.top() - nTop - 1, 20);
        nTop = geometry.bottom();
    }
    QVERIFY2(nTop + 32 < m_pPage->height(), "the page fits its box");
}

void tst_BasicConfig::Controls()
{
    for (const SCheckBox& expected : g_arrCheckBoxes)
    {
        KvCheckBox* pCheckBox = Check(expected.pszName);
        QVERIFY2(pCheckBox, expected.pszName);
        QCOMPARE(pCheckBox->text(), QString(expected.pszText));
        QVERIFY(!pCheckBox->isHidden());
    }
    QVERIFY(Combo("cmbSkinSet"));
    QVERIFY(Combo("screenRatioCmbBox"));
    QCOMPARE(m_pPage->findChild<QLabel*>("lblSkinSet")->text(), QString("Theme"));
    QCOMPARE(m_pPage->findChild<QLabel*>("lblSkinNotify")->text(), QString("(Takes effect after restart)"));
    QCOMPARE(Check("AutohidetaskbarChkBox")->text(), QString("Auto hide task bar"));
}

void tst_BasicConfig::HiddenControls()
{
    Show();
    for (const char* pszName : {"lblSkinSet", "cmbSkinSet", "lblSkinNotify", "AutohidetaskbarChkBox"})
    {
        QVERIFY2(m_pPage->findChild<QWidget*>(pszName)->isHidden(), pszName);
    }
}

void tst_BasicConfig::CaptionHasAColon()
{
    QCOMPARE(m_pPage->findChild<QLabel*>("label")->text(), QString("Client Size:"));
}

void tst_BasicConfig::ThemeItems()
{
    CCombobox* pCombo = Combo("cmbSkinSet");
    QCOMPARE(pCombo->count(), 2);
    QCOMPARE(pCombo->itemText(0), QString("Dark"));
    QCOMPARE(pCombo->itemText(1), QString("White"));
    QVERIFY(pCombo->itemIcon(0).isNull() && pCombo->itemIcon(1).isNull());
    QVERIFY(!pCombo->itemData(0).isValid() && !pCombo->itemData(1).isValid());
}

void tst_BasicConfig::ClientSizeItems()
{
    CCombobox* pCombo = Combo("screenRatioCmbBox");
    QStringList listTexts;
    for (int n = 0; n < pCombo->count(); ++n)
    {
        listTexts += pCombo->itemText(n);
    }
    QCOMPARE(listTexts, (QStringList{"1280*800", "1280*1024", "1440*900", "1680*1050"}));
}

void tst_BasicConfig::TextsAreTranslated()
{
    class CTranslator : public QTranslator
    {
    public:
        QString translate(const char* pszContext, const char* pszText, const char*, int) const override
        {
            return qstrcmp(pszContext, "CBasicConfig") == 0 ? QStringLiteral("<%1>").arg(pszText) : QString();
        }
        bool isEmpty() const override { return false; }
    } translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const CBasicConfig page(nullptr);
    for (const SCheckBox& expected : g_arrCheckBoxes)
    {
        QCOMPARE(page.findChild<KvCheckBox*>(expected.pszName)->text(), QStringLiteral("<%1>").arg(expected.pszText));
    }
    QCOMPARE(page.findChild<QLabel*>("label")->text(), QString("<Client Size><:>"));
    QCOMPARE(page.findChild<CCombobox*>("cmbSkinSet")->itemText(0), QString("<Dark>"));
    QCOMPARE(page.findChild<CCombobox*>("screenRatioCmbBox")->itemText(0), QString("1280*800"));
    QCOMPARE(page.windowTitle(), QString("<Basic Config>"));
}

void tst_BasicConfig::IsAToolWindowOnlyWhileItIsBuilt()
{
    // Each change of the flags gives the page its parent anew.
    class CWatcher : public QObject
    {
    public:
        bool eventFilter(QObject* pWatched, QEvent* pEvent) override
        {
            if (pEvent->type() == QEvent::ParentChange && pWatched->inherits("LocalConfig::CBasicConfig"))
            {
                m_listTypes += static_cast<QWidget*>(pWatched)->windowType();
            }
            return false;
        }
        QList<Qt::WindowType> m_listTypes;
    } watcher;
    qApp->installEventFilter(&watcher);
    const CBasicConfig page(&m_parent);
    qApp->removeEventFilter(&watcher);
    QCOMPARE(watcher.m_listTypes.first(), Qt::Tool);
    QCOMPARE(watcher.m_listTypes.last(), Qt::Widget);
    QCOMPARE(watcher.m_listTypes.count(Qt::Tool), 1);
}

void tst_BasicConfig::IsAPlainChildAfterConstruction()
{
    QCOMPARE(m_pPage->windowType(), Qt::Widget);
    QCOMPARE(m_pPage->windowFlags(), QWidget(&m_parent).windowFlags());
    QVERIFY(!m_pPage->isWindow());
    QCOMPARE(m_pPage->parentWidget(), &m_parent);
}

void tst_BasicConfig::TabOrderFollowsTheForm()
{
    Show();
    m_parent.activateWindow();
    Combo("screenRatioCmbBox")->setFocus();
    for (const SCheckBox& expected : g_arrCheckBoxes)
    {
        QTest::keyClick(m_parent.focusWidget(), Qt::Key_Tab);
        QCOMPARE(m_parent.focusWidget()->objectName(), QString(expected.pszName));
    }
}

void tst_BasicConfig::TimeSyncToolTipShowsTheWholeText()
{
    // Judged while the page is built, when the control is narrower than its text.
    QCOMPARE(Check("timeChkBox")->toolTip(), QString("Enable time sync with platform server"));
}

void tst_BasicConfig::ANullSectionIsRefused()
{
    QCOMPARE(m_pPage->SetConfigSection(nullptr), -1);
    QCOMPARE(m_pPage->SaveConfig(), -1);
    QVERIFY(!QFile::exists("Localcfg.ini"));
    QCOMPARE(m_journal.Take(), QStringList());
}

void tst_BasicConfig::SetConfigSectionLoads()
{
    QCOMPARE(m_pPage->SetConfigSection(m_pSection.data()), 0);
    QCOMPARE(m_journal.Take(), (QStringList{"SetAutoRunState false", "GetConfig"}));
    QCOMPARE(m_pPage->SetConfigSection(nullptr), -1);
    QCOMPARE(m_pPage->SaveConfig(), 0);
}

void tst_BasicConfig::LoadShowsEachFlag_data()
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

void tst_BasicConfig::LoadShowsEachFlag()
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

void tst_BasicConfig::LoadShowsTheTheme_data()
{
    QTest::addColumn<int>("nSkin");
    QTest::addColumn<QString>("strText");
    QTest::newRow("1") << 1 << "Dark";
    QTest::newRow("2") << 2 << "White";
    QTest::newRow("0") << 0 << "White";
    QTest::newRow("3") << 3 << "White";
    QTest::newRow("-1") << -1 << "White";
}

void tst_BasicConfig::LoadShowsTheTheme()
{
    QFETCH(int, nSkin);
    QFETCH(QString, strText);
    m_pSection->m_record.skin = nSkin;
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(Combo("cmbSkinSet")->currentText(), strText);
}

void tst_BasicConfig::LoadShowsTheClientSize_data()
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

void tst_BasicConfig::LoadShowsTheClientSize()
{
    QFETCH(int, nClientSize);
    QFETCH(QString, strText);
    m_pSection->m_record.clientSize = nClientSize;
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(Combo("screenRatioCmbBox")->currentText(), strText);
    QCOMPARE(Combo("screenRatioCmbBox")->currentIndex(), strText.isEmpty() ? -1 : nClientSize);
}

void tst_BasicConfig::LoadShowsTheDeviceNode_data()
{
    QTest::addColumn<int>("nShowDeviceNode");
    QTest::addColumn<bool>("bChecked");
    QTest::newRow("1") << 1 << true;
    for (int n : {0, 2, -1, 255, 257})
    {
        QTest::addRow("%d", n) << n << false;
    }
}

void tst_BasicConfig::LoadShowsTheDeviceNode()
{
    QFETCH(int, nShowDeviceNode);
    QFETCH(bool, bChecked);
    m_pSection->m_record.showDeviceNode = nShowDeviceNode;
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(Check("ShowDevChkBox")->isChecked(), bChecked);
}

void tst_BasicConfig::DefaultsComeFromThePage()
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

void tst_BasicConfig::WithoutASectionLoadChangesNothing()
{
    Check("autologinChkBox")->setChecked(true);
    m_pPage->LoadConfig(true);
    m_pPage->LoadConfig(false);
    QVERIFY(Check("autologinChkBox")->isChecked());
    QCOMPARE(m_journal.Take(), QStringList());
}

void tst_BasicConfig::AutoRunStateIsToldBeforeEachLoad()
{
    m_pPage->SetConfigSection(m_pSection.data());
    m_journal.Take();
    m_pPage->LoadConfig(false);
    QCOMPARE(m_journal.Take(), (QStringList{"SetAutoRunState false", "GetConfig"}));
}

#ifndef Q_OS_WIN

void tst_BasicConfig::AutoRunStateFollowsTheEntry_data()
{
    QTest::addColumn<QString>("strPath");
    QTest::addColumn<bool>("bMatches");
    const QString strPath = QCoreApplication::applicationFilePath();
    QTest::newRow("this client") << strPath << true;
    QTest::newRow("another installation") << "/opt/other" + strPath << false;
    QTest::newRow("other letter case") << strPath.toUpper() << false;
    QTest::newRow("no entry") << QString() << false;
}

void tst_BasicConfig::AutoRunStateFollowsTheEntry()
{
    QFETCH(QString, strPath);
    QFETCH(bool, bMatches);
    QDir config(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    QVERIFY(config.mkpath("autostart"));
    QFile entry(config.filePath("autostart/" + QCoreApplication::applicationName() + ".desktop"));
    entry.remove();
    if (!strPath.isEmpty())
    {
        QVERIFY(entry.open(QIODevice::WriteOnly));
        entry.write("[Desktop Entry]\nType=Application\nExec=\"" + strPath.toUtf8() + "\"\n");
        entry.close();
    }
    m_pPage->SetConfigSection(m_pSection.data());
    entry.remove();
    QCOMPARE(m_journal.Take().first(), QString(bMatches ? "SetAutoRunState true" : "SetAutoRunState false"));
}

#endif

void tst_BasicConfig::AutoRunBoxShowsTheRecord()
{
    m_pSection->m_record.autoRun = true;
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(m_journal.Take().first(), QString("SetAutoRunState false"));
    QVERIFY(Check("autoRunChkBox")->isChecked());
}

void tst_BasicConfig::SaveCopiesEachClickedBox_data()
{
    QTest::addColumn<int>("nIndex");
    for (int n = 0; n < int(std::size(g_arrCheckBoxes)); ++n)
    {
        QTest::newRow(g_arrCheckBoxes[n].pszName) << n;
    }
}

void tst_BasicConfig::SaveCopiesEachClickedBox()
{
    QFETCH(int, nIndex);
    Show();
    m_pPage->SetConfigSection(m_pSection.data());
    KvCheckBox* pCheckBox = Check(g_arrCheckBoxes[nIndex].pszName);
    QTest::mouseClick(pCheckBox, Qt::LeftButton, {}, QPoint(8, pCheckBox->height() / 2));
    QCOMPARE(m_pPage->SaveConfig(), 0);
    for (int n = 0; n < int(std::size(g_arrCheckBoxes)); ++n)
    {
        const bool bExpected = g_arrCheckBoxes[n].bDefault != (n == nIndex);
        if (g_arrCheckBoxes[n].pField)
        {
            QCOMPARE(m_pSection->m_record.*g_arrCheckBoxes[n].pField, bExpected);
        }
        else
        {
            QCOMPARE(m_pSection->m_record.showDeviceNode, bExpected ? 1 : 0);
        }
    }
}

void tst_BasicConfig::SaveCarriesHostOwnedFields()
{
    m_pSection->m_record = Changed();
    m_pPage->SetConfigSection(m_pSection.data());
    m_pPage->LoadConfig(true); // defaults in the controls must not reach the fields behind them
    m_journal.Take();
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_journal.Take(), (QStringList{"GetConfig", "SetConfig"}));
    QVERIFY(HostOwnedEqual(m_pSection->m_record, Changed()));
    QCOMPARE(m_pSection->m_record.skin, 1);
    QCOMPARE(m_pSection->m_record.clientSize, 2);
}

void tst_BasicConfig::SaveWritesTheChosenClientSize()
{
    Show();
    m_pPage->SetConfigSection(m_pSection.data());
    CCombobox* pCombo = Combo("screenRatioCmbBox");
    pCombo->setFocus();
    QTest::keyClick(pCombo, Qt::Key_Down);
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.clientSize, 3);
}

void tst_BasicConfig::SaveWithoutACurrentSizeWritesMinusOne()
{
    m_pSection->m_record.clientSize = 17;
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.clientSize, -1);
}

void tst_BasicConfig::SaveWithAnotherDeviceNodeWritesZero()
{
    m_pSection->m_record.showDeviceNode = 2;
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.showDeviceNode, 0);
}

void tst_BasicConfig::SaveReturnsTheSectionsResult()
{
    m_pPage->SetConfigSection(m_pSection.data());
    for (int nResult : {0, -1, 5})
    {
        m_pSection->m_nResult = nResult;
        QCOMPARE(m_pPage->SaveConfig(), nResult);
    }
}

void tst_BasicConfig::SaveWritesTheSkinName_data()
{
    QTest::addColumn<int>("nStored");
    QTest::addColumn<int>("nSaved");
    QTest::addColumn<QString>("strName");
    QTest::newRow("dark") << 1 << 1 << "DustyBlue";
    QTest::newRow("white") << 2 << 2 << "White";
    QTest::newRow("0") << 0 << 2 << "White";
    QTest::newRow("3") << 3 << 2 << "White";
}

void tst_BasicConfig::SaveWritesTheSkinName()
{
    QFETCH(int, nStored);
    QFETCH(int, nSaved);
    QFETCH(QString, strName);
    m_pSection->m_record.skin = nStored;
    m_pPage->SetConfigSection(m_pSection.data());
    QVERIFY2(!QFile::exists("Localcfg.ini"), "loading writes nothing");
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.skin, nSaved);
    QCOMPARE(Ini("Skin/version").toString(), strName);
}

void tst_BasicConfig::TheSkinNameIsWrittenWhateverTheResult()
{
    m_pPage->SetConfigSection(m_pSection.data());
    m_pSection->m_nResult = -1;
    QString strBefore;
    m_pSection->m_onSetConfig = [&strBefore] { strBefore = Ini("Skin/version").toString(); };
    QCOMPARE(m_pPage->SaveConfig(), -1);
    QCOMPARE(Ini("Skin/version").toString(), QString("DustyBlue"));
    QVERIFY2(strBefore == "DustyBlue", "written before the section is asked");
}

void tst_BasicConfig::SkinAndLanguageKeys()
{
    CBasicConfig::WriteSkinName(7);
    QCOMPARE(Ini("Skin/version").toString(), QString("DustyBlue"));
    CBasicConfig::WriteSkinName(2);
    QCOMPARE(Ini("Skin/version").toString(), QString("White"));
    CBasicConfig::WriteLanguageType(1);
    QCOMPARE(Ini("Language/type").toInt(), 1);
    QCOMPARE(Ini("Skin/version").toString(), QString("White"));
}

void tst_BasicConfig::ConnectionState()
{
    for (bool bEnable : {false, true})
    {
        m_pPage->SetControlsEnabled(bEnable);
        for (const SCheckBox& expected : g_arrCheckBoxes)
        {
            QCOMPARE(Check(expected.pszName)->isEnabled(), bEnable);
        }
        QCOMPARE(Combo("cmbSkinSet")->isEnabled(), bEnable);
        QVERIFY(Combo("screenRatioCmbBox")->isEnabled());
        QVERIFY(Check("AutohidetaskbarChkBox")->isEnabled());
    }
}

void tst_BasicConfig::UnInitForgetsTheSection()
{
    m_pPage->SetConfigSection(m_pSection.data());
    m_pPage->UnInit();
    m_pPage->UnInit();
    m_journal.Take();
    QCOMPARE(m_pPage->SaveConfig(), -1);
    m_pPage->LoadConfig(false);
    QCOMPARE(m_journal.Take(), QStringList());
}

QTEST_MAIN(tst_BasicConfig)

#include "tst_BasicConfig.moc"
