#include "support/Marker.h"
#include "support/PageFixture.h"
#include "support/Wheel.h"

#include <LocalConfig/interfaces/IShortcutKeySection.h>
#include <LocalConfig/pages/CShortcutKeyConfig.h>

#include <KvGui/KvRadioButton.h>
#include <KvGui/KvTableView.h>
#include <UICommonModule/Pxa.h>

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardItemModel>

using namespace LocalConfig;
using LocalConfigLogical::IShortcutKeySection;
using LocalConfigLogical::ShortcutKeyConfigInfo;

namespace
{

// clang-format off
const QList<QStringList> g_listPcRows = {
    {"Move Up", "Up", "Lock Client", "Ctrl+L"},
    {"Move Down", "Down", "Snap Single Window", "P"},
    {"Move Left", "Left", "One-click Snapshot", "Ctrl+P"},
    {"Move Right", "Right", "Local Record", "Ctrl+R"},
    {"Aperture-", "Insert", "Preset 1", "1"},
    {"Aperture+", "Delete", "Preset 2", "2"},
    {"Focus-", "Home", "Preset 3", "3"},
    {"Focus+", "End", "Preset 4", "4"},
    {"Zoom-", "PgUp", "Preset 5", "5"},
    {"Zoom+", "PgDn", "Preset 6", "6"},
    {"Open Single Window", "Enter", "Preset 7", "7"},
    {"Close Single Window", "Enter", "Preset 8", "8"},
    {"Open Full Screen", "Ctrl+F", "Preset 9", "9"},
    {"Exit Full Screen", "Esc", "Preset 10", "0"},
    {"Tours Pause/Continue", "Ctrl+T"},
};

const QList<QStringList> g_listNkbRows = {
    {"Move Up", "IRIS- (Oper Mode)", "Move Down", "IRIS+ (Oper Mode)"},
    {"Move Left", "Focus- (Oper Mode)", "Move Right", "Focus+ (Oper Mode)"},
    {"Zoom-", "Zoom- (Oper Mode)", "Zoom+", "Zoom+ (Oper Mode)"},
    {"Aperture-", "IRIS- (Edit Mode)", "Aperture+", "IRIS+ (Edit Mode)"},
    {"Focus-", "Focus- (Edit Mode)", "Focus+", "Focus+ (Edit Mode)"},
    {"Choose Output Screen", "NUM+PLAY", "Screen Maximization", "NUM+FN"},
    {"Choose Number of Windows", "NUM+MULT", "Restore Screen", "0+FN"},
    {"Choose Window", "NUM+ID", "Call Preset", "NUM+PRESET"},
    {"Select input source", "NUM+CAM", "Hori Pan", "PAN"},
    {"Previous Video Source", "SHIFT", "Scan", "SCAN"},
    {"Next Video Source", "ENTER", "Cruise", "NUM+TOUR"},
    {"Erase One Bit", "ESC", "Pattern", "NUM+PATTERN"},
    {"Switch Mode", "SETUP", "PTZ", "Rocker Control"},
    {"Main/Sub Stream Setup", "1+SETUP", "Save Task", "3+AUX"},
    {"Execute Tour in All Screens", "1+AUX", "Stop Tour in All Screens", "2+AUX"},
    {"PTZ Menu", "Menu"},
};
// clang-format on

} // namespace

class tst_ShortcutKeyConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { m_pFixture.reset(new SPageFixture<CShortcutKeyConfig, IShortcutKeySection, ShortcutKeyConfigInfo>); }

    void Form();
    void Rows_data();
    void Rows();
    void Headers_data() { Tables(); }
    void Headers();
    void WhichTextsAreTranslated();
    void NothingCanBeEdited_data() { Tables(); }
    void NothingCanBeEdited();
    void ColumnsKeepTheirWidths_data() { Tables(); }
    void ColumnsKeepTheirWidths();
    void EveryRowIsVisible_data() { Tables(); }
    void EveryRowIsVisible();
    void TheWheelGoesOnToTheDialog_data() { Tables(); }
    void TheWheelGoesOnToTheDialog();
    void TabLeavesTheTable_data() { Tables(); }
    void TabLeavesTheTable();
    void TheSkinIsLoaded();

    void WithoutASectionThePcKeyboardIsShown();
    void LoadShowsTheRecord_data();
    void LoadShowsTheRecord();
    void DefaultsDoNotReadTheSection();
    void RadioButtonsSwitchTheViewOnly();
    void TheCheckedButtonAgainChangesNothing();
    void ArrowKeysSwitchToo();
    void SwitchingNeedsAKnownSender();
    void SaveStoresTheChoice();
    void SaveReturnsTheSectionsResult();
    void ConnectionState();
    void UnInitForgetsTheSection();

private:
    static void Tables()
    {
        QTest::addColumn<QString>("strView");
        QTest::newRow("PC keyboard") << "pckeyboardView";
        QTest::newRow("network keyboard") << "nkbView";
    }
    KVGUI::KvTableView* View(const QString& strName) const
    {
        return m_pFixture->Find<KVGUI::KvTableView>(qPrintable(strName));
    }
    KVGUI::KvRadioButton* Pc() const { return m_pFixture->Find<KVGUI::KvRadioButton>("pcRadioBtn"); }
    KVGUI::KvRadioButton* Nkb() const { return m_pFixture->Find<KVGUI::KvRadioButton>("nkbRadioBtn"); }
    void Show(const QString& strView) const { Click(strView == "nkbView" ? Nkb() : Pc()); }
    static void Click(KVGUI::KvRadioButton* pButton)
    {
        QTest::mouseClick(pButton, Qt::LeftButton, {}, QPoint(8, pButton->height() / 2));
    }
    bool IsPcShown() const { return View("pckeyboardView")->isVisible() && !View("nkbView")->isVisible(); }
    bool IsNkbShown() const { return View("nkbView")->isVisible() && !View("pckeyboardView")->isVisible(); }

    QScopedPointer<SPageFixture<CShortcutKeyConfig, IShortcutKeySection, ShortcutKeyConfigInfo>> m_pFixture;
};

void tst_ShortcutKeyConfig::initTestCase()
{
    QFont font;
    font.setPixelSize(13); // as the client's
    QApplication::setFont(font);
}

void tst_ShortcutKeyConfig::Form()
{
    QCOMPARE(m_pFixture->Find<QLabel>("label")->text(), QString("Keyboard Type:"));
    QCOMPARE(Nkb()->text(), QString("USB NKB Joystick"));
    QCOMPARE(Pc()->text(), QString("PC Keyboard"));
    QCOMPARE(m_pFixture->page.windowTitle(), QString("List"));
    QCOMPARE(m_pFixture->page.objectName(), QString("CShortcutKeyConfig"));
    QVERIFY(!m_pFixture->page.isWindow());
}

void tst_ShortcutKeyConfig::Rows_data()
{
    QTest::addColumn<QString>("strView");
    QTest::addColumn<int>("nRow");
    QTest::addColumn<QStringList>("listTexts");
    for (int n = 0; n < g_listPcRows.size(); ++n)
    {
        QTest::addRow("PC keyboard %d", n + 1) << "pckeyboardView" << n << g_listPcRows[n];
    }
    for (int n = 0; n < g_listNkbRows.size(); ++n)
    {
        QTest::addRow("network keyboard %d", n + 1) << "nkbView" << n << g_listNkbRows[n];
    }
}

void tst_ShortcutKeyConfig::Rows()
{
    QFETCH(QString, strView);
    QFETCH(int, nRow);
    QFETCH(QStringList, listTexts);
    const auto* pModel = qobject_cast<const QStandardItemModel*>(View(strView)->model());
    QVERIFY(pModel);
    QCOMPARE(pModel->columnCount(), 4);
    QCOMPARE(pModel->rowCount(), strView == "nkbView" ? 16 : 15);
    for (int nColumn = 0; nColumn < 4; ++nColumn)
    {
        const QStandardItem* pItem = pModel->item(nRow, nColumn);
        QCOMPARE(pItem != nullptr, nColumn < listTexts.size());
        QCOMPARE(pItem ? pItem->text() : QString(), listTexts.value(nColumn));
    }
}

void tst_ShortcutKeyConfig::Headers()
{
    QFETCH(QString, strView);
    const QAbstractItemModel* pModel = View(strView)->model();
    const QStringList listTexts = {"Function", "Shortcut Keys", "Function", "Shortcut Keys"};
    for (int n = 0; n < 4; ++n)
    {
        QCOMPARE(pModel->headerData(n, Qt::Horizontal).toString(), listTexts[n]);
        QCOMPARE(pModel->headerData(n, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 129);
        QCOMPARE(pModel->headerData(n, Qt::Horizontal, Qt::ToolTipRole).toString(),
                 strView == "nkbView" ? QString() : listTexts[n]);
        QCOMPARE(pModel->headerData(n, Qt::Horizontal, 366).toInt(), 160);
        QCOMPARE(View(strView)->columnWidth(n), 160);
    }
}

void tst_ShortcutKeyConfig::WhichTextsAreTranslated()
{
    const CMarker marker;
    const CShortcutKeyConfig page(nullptr);

    const QStringList listNever = {"0+FN", "1+AUX", "2+AUX", "3+AUX"};
    const auto check = [&](const char* pszView, const QList<QStringList>& listRows, bool bKeys) {
        const QAbstractItemModel* pModel = page.findChild<QAbstractItemView*>(pszView)->model();
        for (int nRow = 0; nRow < listRows.size(); ++nRow)
        {
            for (int nColumn = 0; nColumn < listRows[nRow].size(); ++nColumn)
            {
                const QString& strText = listRows[nRow][nColumn];
                const bool bTranslated = nColumn % 2 == 0 || (bKeys && !listNever.contains(strText));
                QCOMPARE(pModel->index(nRow, nColumn).data().toString(),
                         (bTranslated ? "LocalConfig::CShortcutKeyConfig|" : "") + strText);
            }
        }
        QCOMPARE(pModel->headerData(1, Qt::Horizontal).toString(),
                 QString("LocalConfig::CShortcutKeyConfig|Shortcut Keys"));
    };
    check("pckeyboardView", g_listPcRows, false);
    check("nkbView", g_listNkbRows, true);
    QCOMPARE(page.findChild<QLabel*>("label")->text(),
             QString("CShortcutKeyConfig|Keyboard TypeLocalConfig::CShortcutKeyConfig|:"));
}

void tst_ShortcutKeyConfig::NothingCanBeEdited()
{
    QFETCH(QString, strView);
    Show(strView);
    KVGUI::KvTableView* pView = View(strView);
    QCOMPARE(pView->editTriggers(), QAbstractItemView::NoEditTriggers);
    const QPoint cell = pView->visualRect(pView->model()->index(2, 1)).center();
    QTest::mouseClick(pView->viewport(), Qt::LeftButton, {}, cell);
    QTest::mouseDClick(pView->viewport(), Qt::LeftButton, {}, cell);
    QTest::keyClicks(pView, "x");
    QTest::keyClick(pView, Qt::Key_F2);
    QVERIFY(pView->viewport()->findChildren<QLineEdit*>().isEmpty());
}

void tst_ShortcutKeyConfig::ColumnsKeepTheirWidths()
{
    QFETCH(QString, strView);
    Show(strView);
    QHeaderView* pHeader = View(strView)->horizontalHeader();
    const QPoint edge(pHeader->sectionPosition(1) - 1, pHeader->height() / 2);
    QTest::mousePress(pHeader->viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(pHeader->viewport(), edge + QPoint(60, 0));
    QTest::mouseRelease(pHeader->viewport(), Qt::LeftButton, {}, edge + QPoint(60, 0));
    QCOMPARE(View(strView)->columnWidth(0), 160);
}

void tst_ShortcutKeyConfig::EveryRowIsVisible()
{
    QFETCH(QString, strView);
    QString strSheet;
    QVERIFY(Pxa::loadStyleSheet(Pxa::GetSkinPath("public", "KvGui.qss"), strSheet));
    qApp->setStyleSheet(strSheet);
    init();
    Show(strView);
    KVGUI::KvTableView* pView = View(strView);
    QTRY_COMPARE(pView->verticalScrollBar()->maximum(), 0);
    QCOMPARE(pView->horizontalScrollBar()->maximum(), 0);
    QVERIFY(!pView->verticalScrollBar()->isVisible() && !pView->horizontalScrollBar()->isVisible());
    const QAbstractItemView* pItemView = pView; // which shows what the table hides
    const int nLast = pView->model()->rowCount() - 1;
    QVERIFY(pView->viewport()->rect().contains(pView->visualRect(pView->model()->index(nLast, 3))));
    for (int nRow = 0; nRow <= nLast; ++nRow)
    {
        QVERIFY2(pView->rowHeight(nRow) >= pItemView->sizeHintForRow(nRow), qPrintable(QString::number(nRow)));
    }
    qApp->setStyleSheet(QString());
}

void tst_ShortcutKeyConfig::TheWheelGoesOnToTheDialog()
{
    QFETCH(QString, strView);
    QScrollArea area;
    auto* pPage = new CShortcutKeyConfig(&area);
    area.setWidget(pPage);
    area.resize(700, 300);
    area.show();
    QVERIFY(QTest::qWaitForWindowExposed(&area));
    Click(pPage->findChild<KVGUI::KvRadioButton*>(strView == "nkbView" ? "nkbRadioBtn" : "pcRadioBtn"));
    TurnWheel(pPage->findChild<KVGUI::KvTableView*>(strView)->viewport(), QPointF(100, 100));
    QVERIFY(area.verticalScrollBar()->value() > 0);
}

void tst_ShortcutKeyConfig::TabLeavesTheTable()
{
    QFETCH(QString, strView);
    Show(strView);
    View(strView)->setFocus();
    QTest::keyClick(View(strView), Qt::Key_Tab);
    QVERIFY(!View(strView)->hasFocus());
}

void tst_ShortcutKeyConfig::TheSkinIsLoaded()
{
    QString strSheet;
    QVERIFY(Pxa::loadStyleSheet(Pxa::GetSkinPath("LocalConfig", "CShortcutKeyConfig.qss"), strSheet));
    QCOMPARE(m_pFixture->page.styleSheet(), strSheet);
    const QString strBackground = QRegularExpression("background: (#[0-9a-f]{6});").match(strSheet).captured(1);
    const QImage picture = View("pckeyboardView")->viewport()->grab().toImage();
    QCOMPARE(picture.pixelColor(2, 2).name(), strBackground);
}

void tst_ShortcutKeyConfig::WithoutASectionThePcKeyboardIsShown()
{
    QVERIFY(IsPcShown());
    QVERIFY(Pc()->isChecked());
    QCOMPARE(m_pFixture->page.SetConfigSection(nullptr), -1);
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    m_pFixture->page.LoadConfig(true);
    QVERIFY(IsPcShown());
}

void tst_ShortcutKeyConfig::LoadShowsTheRecord_data()
{
    QTest::addColumn<bool>("bPcKeyboard");
    QTest::newRow("PC keyboard") << true;
    QTest::newRow("network keyboard") << false;
}

void tst_ShortcutKeyConfig::LoadShowsTheRecord()
{
    QFETCH(bool, bPcKeyboard);
    m_pFixture->Load({!bPcKeyboard});
    m_pFixture->section.m_record.pcKeyboard = bPcKeyboard;
    QCOMPARE(m_pFixture->page.SetConfigSection(&m_pFixture->section), 0);
    QCOMPARE(m_pFixture->journal.Take(), QStringList{"GetConfig"});
    QCOMPARE(Pc()->isChecked(), bPcKeyboard);
    QCOMPARE(Nkb()->isChecked(), !bPcKeyboard);
    QCOMPARE(IsPcShown(), bPcKeyboard);
    QCOMPARE(IsNkbShown(), !bPcKeyboard);
}

void tst_ShortcutKeyConfig::DefaultsDoNotReadTheSection()
{
    m_pFixture->Load({false});
    QVERIFY(IsNkbShown());
    m_pFixture->page.LoadConfig(true);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
    QVERIFY(IsPcShown());
    QVERIFY(Pc()->isChecked());
}

void tst_ShortcutKeyConfig::RadioButtonsSwitchTheViewOnly()
{
    m_pFixture->Load({true});
    Click(Nkb());
    QVERIFY(IsNkbShown());
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
    QVERIFY(m_pFixture->section.m_record.pcKeyboard);
    Click(Pc());
    QVERIFY(IsPcShown());
}

void tst_ShortcutKeyConfig::TheCheckedButtonAgainChangesNothing()
{
    m_pFixture->Load({false});
    Click(Nkb());
    QVERIFY(IsNkbShown());
    QVERIFY(Nkb()->isChecked() && !Pc()->isChecked());
}

void tst_ShortcutKeyConfig::ArrowKeysSwitchToo()
{
    m_pFixture->Load({true});
    Pc()->setFocus();
    QTest::keyClick(Pc(), Qt::Key_Right);
    QVERIFY(Nkb()->isChecked());
    QVERIFY(IsNkbShown());
}

void tst_ShortcutKeyConfig::SwitchingNeedsAKnownSender()
{
    m_pFixture->Load({false});
    QVERIFY(QMetaObject::invokeMethod(&m_pFixture->page, "SwitchTabelView"));
    QVERIFY(IsNkbShown());
    QPushButton other;
    QVERIFY(QObject::connect(&other, SIGNAL(clicked()), &m_pFixture->page, SLOT(SwitchTabelView())));
    other.click();
    QVERIFY(IsNkbShown());
}

void tst_ShortcutKeyConfig::SaveStoresTheChoice()
{
    m_pFixture->Load({true});
    Click(Nkb());
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"GetConfig", "SetConfig"}));
    QVERIFY(!m_pFixture->section.m_record.pcKeyboard);
    Click(Pc());
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QVERIFY(m_pFixture->section.m_record.pcKeyboard);
}

void tst_ShortcutKeyConfig::SaveReturnsTheSectionsResult()
{
    m_pFixture->Load();
    m_pFixture->section.m_nResult = 17;
    QCOMPARE(m_pFixture->page.SaveConfig(), 17);
}

void tst_ShortcutKeyConfig::ConnectionState()
{
    for (bool bEnable : {false, true})
    {
        m_pFixture->page.SetControlsEnabled(bEnable);
        QCOMPARE(Pc()->isEnabled(), bEnable);
        QCOMPARE(Nkb()->isEnabled(), bEnable);
        QVERIFY(View("pckeyboardView")->isEnabled() && View("nkbView")->isEnabled());
    }
}

void tst_ShortcutKeyConfig::UnInitForgetsTheSection()
{
    m_pFixture->Load({false});
    m_pFixture->page.UnInit();
    m_pFixture->page.LoadConfig(true);
    QVERIFY(IsNkbShown());
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

QTEST_MAIN(tst_ShortcutKeyConfig)

#include "tst_ShortcutKeyConfig.moc"
