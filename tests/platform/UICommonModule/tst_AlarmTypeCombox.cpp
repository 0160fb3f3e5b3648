#include "support/Wheel.h"

#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CAlarmTypeCombox.h>
#include <UICommonModule/CErrorCode.h>

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QListView>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QToolTip>
#include <QWindow>
#include <QtTest>

using UICommonMdl::CAlarmType;
using UICommonMdl::CAlarmTypeCombox;
using UICommonMdl::CErrorCode;

namespace
{

const QMap<int, QString> g_mapMain = {{2, "Device"}, {3, "Video"}, {9, "Vehicle"}};
const QMap<int, QMap<int, QString>> g_mapSub = {
    {2, {{0, "Offline"}, {1, "Online"}}}, {3, {{2, "Loss"}, {3, "Motion"}, {4, "Tampering"}}}, {9, {{7, "Plate"}}}};

class CPaintCounter : public QObject
{
public:
    explicit CPaintCounter(QWidget* pWidget) { pWidget->installEventFilter(this); }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        m_nPaints += pEvent->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(pWatched, pEvent);
    }

    int m_nPaints = 0;
};

} // namespace

class tst_AlarmTypeCombox : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void TheClosedBoxShowsItsCurrentItem();
    void ChoosingMarksAndEmits();
    void AnUnknownItemCannotBeChosen_data();
    void AnUnknownItemCannotBeChosen();
    void ClearingIsSilent();
    void AChosenItemIsShown();
    void TheSizeFollowsTheShownTextAlone();
    void TheSizeHintHasTheHeightOfAnyBox();
    void AScreenReaderOpensTheMenu();
    void ANewMenuKeepsTheItemsOfTheBox();
    void ANewMenuKeepsAChoiceThatItHas();
    void ANewMenuDropsAChoiceThatItLacks();
    void ANewCatalogueKeepsTheChosenType_data();
    void ANewCatalogueKeepsTheChosenType();
    void ANewMenuClosesTheOldOne();
    void ANewMenuRenamesTheChoice();

    void TheBoxLooksOpenWhileItsMenuIs_data();
    void TheBoxLooksOpenWhileItsMenuIs();
    void OpeningShowsBothLevels();
    void TheTypesStandBesideTheCategories();
    void OpeningShowsTheChoice();
    void AnEmptyMenuDoesNotOpen_data();
    void AnEmptyMenuDoesNotOpen();
    void OnlyARowWhoseTextIsCutHasAToolTip_data();
    void OnlyARowWhoseTextIsCutHasAToolTip();
    void TheMousePicks();
    void TheBoxIsNotHoveredOnceTheMouseHasPicked();
    void HoveringShowsACategory();
    void CrossingCategoriesOnTheWayToTheTypes_data();
    void CrossingCategoriesOnTheWayToTheTypes();
    void RestingOnTheWayShowsThatCategory();
    void MovingDownShowsEachCategoryAtOnce();
    void ModifiedClicksLeaveTheCategoryMarked_data();
    void ModifiedClicksLeaveTheCategoryMarked();
    void KeysPick();
    void LeftLeadsBackAndEscapeCloses();
    void AClickedCategoryHasTheKeys();
    void TypingSearches();
    void TypingOnTheClosedBoxOpensTheMenu();
    void ArrowsOnTheClosedBoxOpenTheMenu_data();
    void ArrowsOnTheClosedBoxOpenTheMenu();
    void KeysThatAreNotTheBoxs_data();
    void KeysThatAreNotTheBoxs();
    void TheMenuStartsWhereTheBoxStarts_data();
    void TheMenuStartsWhereTheBoxStarts();
    void KeysAreMirrored();
    void TheMenuStaysOnTheScreen_data();
    void TheMenuStaysOnTheScreen();
    void PressingTheBoxAgainClosesTheMenu();
    void HidingThePopupClosesTheMenu();
    void TheWheelChangesNothing();
    void LongMenusScroll();
    void ARestingMouseLeavesTheKeysTheirType_data();
    void ARestingMouseLeavesTheKeysTheirType();
    void TheMouseMarksTheTypeUnderIt();
    void TenThousandTypesOpenQuickly();

private:
    QWidget* Menu() const { return m_pCombo->findChild<QWidget*>("alarmTypeMenu"); }
    QListView* Main() const { return Menu()->findChild<QListView*>("mainItems"); }
    QListView* Sub() const { return Menu()->findChild<QListView*>("subItems"); }
    static QStringList Texts(const QListView* pList)
    {
        QStringList listTexts;
        for (int n = 0; n < pList->model()->rowCount(); ++n)
        {
            listTexts += pList->model()->index(n, 0).data().toString();
        }
        return listTexts;
    }
    static QRect RowOf(const QListView* pList, int nRow) { return pList->visualRect(pList->model()->index(nRow, 0)); }
    static QString Current(const QListView* pList) { return pList->currentIndex().data().toString(); }
    static void Click(QListView* pList, int nRow)
    {
        QTest::mouseClick(pList->viewport(), Qt::LeftButton, {}, RowOf(pList, nRow).center());
    }
    QAccessibleInterface* Accessible() const { return QAccessible::queryAccessibleInterface(m_pCombo); }
    QString Value() const { return Accessible()->text(QAccessible::Value); }
    /// Where the menu is, without the frame that the off-screen platform gives every window.
    QRect Place() const { return Menu()->geometry(); }
    bool IsOpen() const { return Menu() && Menu()->isVisible(); }

    static QByteArray Type(int nId)
    {
        const QByteArray id = QByteArray::number(nId);
        return "<Type id='" + id + "' name='Type " + id + "'/>";
    }
    static QByteArray Category(int nId, const QByteArray& types)
    {
        const QByteArray id = QByteArray::number(nId);
        return "<Category id='" + id + "' name='Category " + id + "'><Group id='" + id + "' name='Group'>" + types +
               "</Group></Category>";
    }
    void UseCatalogue(const QByteArray& categories)
    {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("<AlarmTypes>" + categories + "</AlarmTypes>");
        file.flush();
        QCOMPARE(CAlarmType::Instance()->Load(file.fileName()), int(CErrorCode::Success));
        QMap<int, QString> mapMain;
        QMap<int, QMap<int, QString>> mapSub;
        CAlarmType::Instance()->GetAlarmCategory(mapMain, mapSub);
        m_pCombo->InitMenu(mapMain, mapSub);
    }

    void UseLongMenu(int nTypes);

    QScopedPointer<QWidget> m_pWindow;
    CAlarmTypeCombox* m_pCombo = nullptr;
    QScopedPointer<QSignalSpy> m_pSpy;
};

void tst_AlarmTypeCombox::init()
{
    CAlarmType::Instance()->Load();
    m_pWindow.reset(new QWidget);
    m_pWindow->resize(700, 500);
    m_pCombo = new CAlarmTypeCombox(m_pWindow.data());
    m_pCombo->setGeometry(10, 10, 240, 32);
    m_pCombo->addItems({"first of the record", "second"});
    m_pCombo->InitMenu(g_mapMain, g_mapSub);
    m_pSpy.reset(new QSignalSpy(m_pCombo, &CAlarmTypeCombox::SignalItemChange));
    m_pWindow->show();
    QApplication::setActiveWindow(m_pWindow.data());
    QVERIFY(QTest::qWaitForWindowActive(m_pWindow.data()));
    m_pCombo->setFocus();
}

void tst_AlarmTypeCombox::TheClosedBoxShowsItsCurrentItem()
{
    QCOMPARE(m_pCombo->currentText(), QString("first of the record"));
    QCOMPARE(Value(), QString("first of the record"));
    QCOMPARE(m_pCombo->GetCurrentChosenItem(), QList<int>());
    QVERIFY(!IsOpen());
}

void tst_AlarmTypeCombox::ChoosingMarksAndEmits()
{
    QVERIFY(m_pCombo->ChooseItem(3, 4));
    QCOMPARE(m_pCombo->GetCurrentChosenItem(), QList<int>{4});
    QCOMPARE(m_pSpy->size(), 1);
    QCOMPARE(m_pSpy->first(), (QVariantList{3, 4}));
    QCOMPARE(m_pCombo->currentIndex(), 0);
    QCOMPARE(Value(), QString("Tampering"));
}

void tst_AlarmTypeCombox::AnUnknownItemCannotBeChosen_data()
{
    QTest::addColumn<int>("nMain");
    QTest::addColumn<int>("nSub");
    QTest::newRow("unknown category") << 5 << 2;
    QTest::newRow("unknown type") << 3 << 99;
    QTest::newRow("type of another category") << 3 << 0;
    QTest::newRow("nothing") << -1 << -1;
}

void tst_AlarmTypeCombox::AnUnknownItemCannotBeChosen()
{
    QFETCH(int, nMain);
    QFETCH(int, nSub);
    QVERIFY(m_pCombo->ChooseItem(9, 7));
    QVERIFY(!m_pCombo->ChooseItem(nMain, nSub));
    QCOMPARE(m_pCombo->GetCurrentChosenItem(), QList<int>{7});
    QCOMPARE(m_pSpy->size(), 1);
}

void tst_AlarmTypeCombox::ClearingIsSilent()
{
    QVERIFY(m_pCombo->ChooseItem(3, 4));
    m_pCombo->ClearChosenItem();
    QCOMPARE(m_pCombo->GetCurrentChosenItem(), QList<int>());
    QCOMPARE(m_pSpy->size(), 1);
    QCOMPARE(Value(), QString("first of the record"));
}

void tst_AlarmTypeCombox::AChosenItemIsShown()
{
    const QImage before = m_pCombo->grab().toImage();
    m_pCombo->ChooseItem(3, 4);
    const QImage chosen = m_pCombo->grab().toImage();
    QVERIFY(chosen != before);
    CAlarmTypeCombox plain(m_pWindow.data());
    plain.setGeometry(10, 60, 240, 32);
    plain.addItem("Tampering");
    plain.show();
    m_pWindow->setFocus();
    QCOMPARE(m_pCombo->grab().toImage(), plain.grab().toImage());
    m_pCombo->ClearChosenItem();
    m_pCombo->setFocus();
    QCOMPARE(m_pCombo->grab().toImage(), before);
}

void tst_AlarmTypeCombox::TheSizeFollowsTheShownTextAlone()
{
    m_pCombo->clear();
    m_pCombo->addItem("a");
    const QSize before = m_pCombo->sizeHint();
    m_pCombo->addItem("an item that is far longer than the one that is shown");
    QCOMPARE(m_pCombo->sizeHint(), before);
    QCOMPARE(m_pCombo->minimumSizeHint(), before);
    m_pCombo->setCurrentIndex(1);
    QVERIFY(m_pCombo->sizeHint().width() > before.width());
}

void tst_AlarmTypeCombox::TheSizeHintHasTheHeightOfAnyBox()
{
    QComboBox box;
    box.addItem(m_pCombo->currentText());
    QCOMPARE(m_pCombo->sizeHint().height(), box.sizeHint().height());
}

void tst_AlarmTypeCombox::AScreenReaderOpensTheMenu()
{
    QCOMPARE(Accessible()->role(), QAccessible::ComboBox);
    QVERIFY(Accessible()->state().expandable);
    QVERIFY(!Accessible()->state().expanded);
    QAccessibleActionInterface* pActions = Accessible()->actionInterface();
    QVERIFY(pActions->actionNames().contains(QAccessibleActionInterface::showMenuAction()));
    pActions->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(IsOpen());
    QVERIFY(Accessible()->state().expanded);
    pActions->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(!IsOpen());
    m_pWindow->setFocus();
    pActions->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(m_pCombo->hasFocus());
}

void tst_AlarmTypeCombox::ANewMenuKeepsTheItemsOfTheBox()
{
    m_pCombo->setCurrentIndex(1);
    m_pCombo->InitMenu({{1, "Other"}}, {{1, {{0, "One"}}}});
    QCOMPARE(m_pCombo->count(), 2);
    QCOMPARE(m_pCombo->currentText(), QString("second"));
    m_pCombo->showPopup();
    QCOMPARE(Texts(Main()), QStringList{"Other"});
}

void tst_AlarmTypeCombox::ANewMenuKeepsAChoiceThatItHas()
{
    m_pCombo->ChooseItem(3, 4);
    m_pCombo->InitMenu(g_mapMain, g_mapSub);
    QCOMPARE(m_pCombo->GetCurrentChosenItem(), QList<int>{4});
    QCOMPARE(m_pSpy->size(), 1);
}

void tst_AlarmTypeCombox::ANewMenuDropsAChoiceThatItLacks()
{
    m_pCombo->ChooseItem(3, 4);
    m_pCombo->InitMenu({{3, "Video"}}, {{3, {{2, "Loss"}}}});
    QCOMPARE(m_pCombo->GetCurrentChosenItem(), QList<int>());
    QCOMPARE(Value(), QString("first of the record"));
}

void tst_AlarmTypeCombox::ANewCatalogueKeepsTheChosenType_data()
{
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QList<int>>("listChosen");
    QTest::addColumn<QString>("strShown");
    const QByteArray added = Category(1, Type(50)) + Category(2, Type(10) + Type(11) + Type(12));
    QTest::newRow("types before it") << added << QList<int>{2} << "Type 11";
    QTest::newRow("another category") << Category(2, Type(10)) + Category(3, Type(11)) << QList<int>{1} << "Type 11";
    QTest::newRow("gone") << Category(2, Type(10) + Type(12) + Type(13)) << QList<int>{} << "first of the record";
    QTest::newRow("everything gone") << QByteArray() << QList<int>{} << "first of the record";
}

void tst_AlarmTypeCombox::ANewCatalogueKeepsTheChosenType()
{
    QFETCH(QByteArray, after);
    QFETCH(QList<int>, listChosen);
    QFETCH(QString, strShown);
    UseCatalogue(Category(2, Type(10) + Type(11)));
    m_pCombo->showPopup();
    Click(Sub(), 1);
    QCOMPARE(Value(), QString("Type 11"));
    m_pSpy->clear();
    UseCatalogue(after);
    QCOMPARE(m_pCombo->GetCurrentChosenItem(), listChosen);
    QCOMPARE(Value(), strShown);
    QCOMPARE(m_pSpy->size(), 0);
    if (!listChosen.isEmpty())
    {
        m_pCombo->showPopup();
        QCOMPARE(Current(Sub()), strShown);
    }
}

void tst_AlarmTypeCombox::ANewMenuClosesTheOldOne()
{
    m_pCombo->showPopup();
    QVERIFY(IsOpen());
    m_pCombo->InitMenu({{4, "Storage"}}, {{4, {{5, "Disk full"}}}});
    QVERIFY(!IsOpen());
    m_pCombo->showPopup();
    QCOMPARE(Texts(Main()), QStringList{"Storage"});
    QCOMPARE(Texts(Sub()), QStringList{"Disk full"});
}

void tst_AlarmTypeCombox::ANewMenuRenamesTheChoice()
{
    m_pCombo->ChooseItem(3, 4);
    m_pCombo->InitMenu({{3, "Video"}}, {{3, {{4, "Covered"}}}});
    QCOMPARE(Value(), QString("Covered"));
}

void tst_AlarmTypeCombox::TheBoxLooksOpenWhileItsMenuIs_data()
{
    QTest::addColumn<bool>("bChosen");
    QTest::newRow("nothing chosen") << false;
    QTest::newRow("a type chosen") << true;
}

void tst_AlarmTypeCombox::TheBoxLooksOpenWhileItsMenuIs()
{
    QFETCH(bool, bChosen);
    m_pCombo->setStyleSheet(
        "QComboBox { border: none; background: #000000; } QComboBox:pressed { background: #0000ff; }"
        "QComboBox:on { background: #ff0000; }");
    if (bChosen)
    {
        m_pCombo->ChooseItem(3, 4);
    }
    const auto color = [this] { return m_pCombo->grab().toImage().pixelColor(m_pCombo->width() / 2, 4).name(); };
    QCOMPARE(color(), QString("#000000"));
    const QPoint arrow(m_pCombo->width() - 10, m_pCombo->height() / 2);
    QTest::mousePress(m_pCombo, Qt::LeftButton, {}, arrow);
    QVERIFY(IsOpen());
    QTest::mouseRelease(Menu(), Qt::LeftButton, {}, Menu()->mapFromGlobal(m_pCombo->mapToGlobal(arrow))); // grabs it
    QVERIFY(IsOpen());
    QCOMPARE(color(), QString("#ff0000"));
    QCoreApplication::processEvents();
    CPaintCounter paints(m_pCombo);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QVERIFY(!IsOpen());
    QTRY_VERIFY(paints.m_nPaints > 0);
    QCOMPARE(color(), QString("#000000"));
}

void tst_AlarmTypeCombox::OpeningShowsBothLevels()
{
    QTest::mousePress(m_pCombo, Qt::LeftButton);
    QVERIFY(IsOpen());
    QCOMPARE(Texts(Main()), (QStringList{"Device", "Video", "Vehicle"}));
    QCOMPARE(Current(Main()), QString("Device"));
    QCOMPARE(Texts(Sub()), (QStringList{"Offline", "Online"}));
    QVERIFY(!Sub()->currentIndex().isValid());
    QVERIFY(Menu()->geometry().top() > m_pCombo->mapToGlobal(QPoint()).y());
}

void tst_AlarmTypeCombox::TheTypesStandBesideTheCategories()
{
    m_pCombo->showPopup();
    QCOMPARE(Main()->accessibleName(), QString("Alarm categories"));
    QCOMPARE(Sub()->accessibleName(), QString("Alarm types"));
    QCOMPARE(Sub()->x(), Main()->geometry().right() + 1);
    QCOMPARE(Sub()->y(), Main()->y());
    QVERIFY(Menu()->rect().contains(Sub()->geometry()));
}

void tst_AlarmTypeCombox::OpeningShowsTheChoice()
{
    m_pCombo->ChooseItem(3, 3);
    m_pCombo->showPopup();
    QCOMPARE(Current(Main()), QString("Video"));
    QCOMPARE(Current(Sub()), QString("Motion"));
    QVERIFY(Sub()->hasFocus());
}

void tst_AlarmTypeCombox::AnEmptyMenuDoesNotOpen_data()
{
    QTest::addColumn<bool>("bMain");
    QTest::addColumn<bool>("bSub");
    QTest::newRow("nothing") << false << false;
    QTest::newRow("categories without types") << true << false;
    QTest::newRow("types without categories") << false << true;
}

void tst_AlarmTypeCombox::AnEmptyMenuDoesNotOpen()
{
    QFETCH(bool, bMain);
    QFETCH(bool, bSub);
    m_pCombo->InitMenu(bMain ? g_mapMain : QMap<int, QString>(), bSub ? g_mapSub : QMap<int, QMap<int, QString>>());
    m_pCombo->showPopup();
    QVERIFY(!IsOpen());
    QTest::keyClicks(m_pCombo, "x");
    QVERIFY(!IsOpen());
}

void tst_AlarmTypeCombox::TheBoxIsNotHoveredOnceTheMouseHasPicked()
{
    QCursor::setPos(0, 0);
    QTest::mouseMove(m_pCombo);
    QTRY_VERIFY(m_pCombo->underMouse());
    QTest::mouseClick(m_pCombo, Qt::LeftButton);
    QTest::mouseMove(Sub()->viewport(), RowOf(Sub(), 0).center());
    QTest::mouseClick(Sub()->viewport(), Qt::LeftButton, {}, RowOf(Sub(), 0).center());
    QVERIFY(!m_pCombo->IsOpen());
    QVERIFY(!m_pCombo->underMouse());
}

void tst_AlarmTypeCombox::OnlyARowWhoseTextIsCutHasAToolTip_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<bool>("bTip");
    QTest::newRow("short") << "Offline" << false;
    QTest::newRow("cut") << QString("Offline ").repeated(20) << true;
}

void tst_AlarmTypeCombox::OnlyARowWhoseTextIsCutHasAToolTip()
{
    QFETCH(QString, strText);
    QFETCH(bool, bTip);
    m_pCombo->InitMenu({{1, strText}}, {{1, {{0, strText}}}});
    m_pCombo->showPopup();
    for (QListView* pList : {Main(), Sub()})
    {
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        const QPoint place = RowOf(pList, 0).center();
        QHelpEvent event(QEvent::ToolTip, place, pList->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(pList->viewport(), &event);
        QCOMPARE(QToolTip::isVisible(), bTip);
        QCOMPARE(QToolTip::text(), bTip ? strText : QString());
    }
}

void tst_AlarmTypeCombox::TheMousePicks()
{
    m_pCombo->showPopup();
    Click(Main(), 1);
    QVERIFY(IsOpen());
    QCOMPARE(m_pSpy->size(), 0);
    Click(Sub(), 2);
    QVERIFY(!IsOpen());
    QCOMPARE(m_pSpy->size(), 1);
    QCOMPARE(m_pSpy->first(), (QVariantList{3, 4}));
    QCOMPARE(m_pCombo->GetCurrentChosenItem(), QList<int>{4});
}

void tst_AlarmTypeCombox::HoveringShowsACategory()
{
    m_pCombo->showPopup();
    QTest::mouseMove(Main()->viewport(), RowOf(Main(), 0).center());
    QTest::mouseMove(Main()->viewport(), RowOf(Main(), 2).center());
    QTRY_COMPARE(Texts(Sub()), QStringList{"Plate"});
    QCOMPARE(m_pSpy->size(), 0);
}

void tst_AlarmTypeCombox::CrossingCategoriesOnTheWayToTheTypes_data()
{
    QTest::addColumn<bool>("bMirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_AlarmTypeCombox::CrossingCategoriesOnTheWayToTheTypes()
{
    QFETCH(bool, bMirrored);
    m_pCombo->setLayoutDirection(bMirrored ? Qt::RightToLeft : Qt::LeftToRight);
    m_pCombo->showPopup();
    const QWidget* pMain = Main()->viewport();
    const QPoint start(pMain->width() / 2, RowOf(Main(), 0).center().y());
    const QPoint end(bMirrored ? 0 : pMain->width() - 1, RowOf(Main(), 2).center().y());
    QTest::mouseMove(Main()->viewport(), start);
    for (int n = 1; n <= 40; ++n)
    {
        QTest::mouseMove(Main()->viewport(), start + (end - start) * n / 40);
        QCOMPARE(Current(Main()), QString("Device"));
    }
    QTest::mouseMove(Sub()->viewport(), RowOf(Sub(), 1).center());
    QTest::qWait(400);
    QCOMPARE(Current(Main()), QString("Device"));
    Click(Sub(), 1);
    QCOMPARE(m_pSpy->value(0), (QVariantList{2, 1}));
}

void tst_AlarmTypeCombox::RestingOnTheWayShowsThatCategory()
{
    m_pCombo->showPopup();
    QTest::mouseMove(Main()->viewport(), RowOf(Main(), 0).center());
    QTest::mouseMove(Main()->viewport(), RowOf(Main(), 1).center() + QPoint(60, 0));
    QCOMPARE(Current(Main()), QString("Device"));
    QTRY_COMPARE(Current(Main()), QString("Video"));
    QCOMPARE(Texts(Sub()), (QStringList{"Loss", "Motion", "Tampering"}));
}

void tst_AlarmTypeCombox::MovingDownShowsEachCategoryAtOnce()
{
    m_pCombo->showPopup();
    QTest::mouseMove(Main()->viewport(), RowOf(Main(), 0).center());
    QTest::mouseMove(Main()->viewport(), RowOf(Main(), 1).center() + QPoint(2, 0));
    QCOMPARE(Current(Main()), QString("Video"));
    QTest::mouseMove(Main()->viewport(), RowOf(Main(), 2).center() - QPoint(60, 0));
    QCOMPARE(Current(Main()), QString("Vehicle"));
}

void tst_AlarmTypeCombox::ModifiedClicksLeaveTheCategoryMarked_data()
{
    QTest::addColumn<int>("nModifiers");
    QTest::newRow("Ctrl") << int(Qt::ControlModifier);
    QTest::newRow("Shift") << int(Qt::ShiftModifier);
}

void tst_AlarmTypeCombox::ModifiedClicksLeaveTheCategoryMarked()
{
    QFETCH(int, nModifiers);
    m_pCombo->showPopup();
    for (int nRow : {0, 1, 1})
    {
        QTest::mouseClick(Main()->viewport(), Qt::LeftButton, Qt::KeyboardModifiers(nModifiers),
                          RowOf(Main(), nRow).center());
        QCOMPARE(Main()->currentIndex().row(), nRow);
        QCOMPARE(Main()->selectionModel()->selectedIndexes(), QModelIndexList{Main()->currentIndex()});
    }
}

void tst_AlarmTypeCombox::KeysPick()
{
    QTest::keyClick(m_pCombo, Qt::Key_Down);
    QVERIFY(IsOpen());
    QTest::keyClick(Main(), Qt::Key_Down);
    QCOMPARE(Texts(Sub()), (QStringList{"Loss", "Motion", "Tampering"}));
    QTest::keyClick(Main(), Qt::Key_Right);
    QVERIFY(Sub()->hasFocus());
    QCOMPARE(Current(Sub()), QString("Loss"));
    QTest::keyClick(Sub(), Qt::Key_Down);
    QTest::keyClick(Sub(), Qt::Key_Return);
    QVERIFY(!IsOpen());
    QCOMPARE(m_pSpy->size(), 1);
    QCOMPARE(m_pSpy->first(), (QVariantList{3, 3}));
}

void tst_AlarmTypeCombox::LeftLeadsBackAndEscapeCloses()
{
    m_pCombo->showPopup();
    QTest::keyClick(Main(), Qt::Key_Return);
    QVERIFY(Sub()->hasFocus());
    QTest::keyClick(Sub(), Qt::Key_Left);
    QVERIFY(Main()->hasFocus());
    QTest::keyClick(Main(), Qt::Key_Escape);
    QVERIFY(!IsOpen());
    QCOMPARE(m_pSpy->size(), 0);
}

void tst_AlarmTypeCombox::AClickedCategoryHasTheKeys()
{
    m_pCombo->ChooseItem(3, 4);
    m_pCombo->showPopup();
    QVERIFY(Sub()->hasFocus());
    Click(Main(), 0);
    QVERIFY(Main()->hasFocus());
    QCOMPARE(Current(Main()), QString("Device"));
}

void tst_AlarmTypeCombox::TypingSearches()
{
    m_pCombo->showPopup();
    QTest::keyClicks(Main(), "veh");
    QCOMPARE(Current(Main()), QString("Vehicle"));
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClicks(Main(), "vid");
    QCOMPARE(Current(Main()), QString("Video"));
    QTest::keyClick(Main(), Qt::Key_Right);
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClicks(Sub(), "t");
    QCOMPARE(Current(Sub()), QString("Tampering"));
}

void tst_AlarmTypeCombox::TypingOnTheClosedBoxOpensTheMenu()
{
    QTest::keyClicks(m_pCombo, "v");
    QVERIFY(IsOpen());
    QCOMPARE(Current(Main()), QString("Video"));
    QCOMPARE(m_pCombo->currentIndex(), 0);
}

void tst_AlarmTypeCombox::ArrowsOnTheClosedBoxOpenTheMenu_data()
{
    QTest::addColumn<int>("nKey");
    for (int nKey : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_F4})
    {
        QTest::newRow(qPrintable(QKeySequence(nKey).toString())) << nKey;
    }
}

void tst_AlarmTypeCombox::ArrowsOnTheClosedBoxOpenTheMenu()
{
    QFETCH(int, nKey);
    QTest::keyClick(m_pCombo, Qt::Key(nKey));
    QVERIFY(IsOpen());
    QCOMPARE(m_pCombo->currentIndex(), 0);
}

void tst_AlarmTypeCombox::KeysThatAreNotTheBoxs_data()
{
    QTest::addColumn<int>("nKey");
    QTest::addColumn<int>("nModifiers");
    QTest::newRow("Alt+X") << int(Qt::Key_X) << int(Qt::AltModifier);
    QTest::newRow("Meta+X") << int(Qt::Key_X) << int(Qt::MetaModifier);
    QTest::newRow("Ctrl+X") << int(Qt::Key_X) << int(Qt::ControlModifier);
    QTest::newRow("Alt+F4") << int(Qt::Key_F4) << int(Qt::AltModifier);
    QTest::newRow("Alt+Space") << int(Qt::Key_Space) << int(Qt::AltModifier);
}

void tst_AlarmTypeCombox::KeysThatAreNotTheBoxs()
{
    QFETCH(int, nKey);
    QFETCH(int, nModifiers);
    QKeyEvent event(QEvent::KeyPress, nKey, Qt::KeyboardModifiers(nModifiers), nKey == Qt::Key_F4 ? "" : "x");
    QApplication::sendEvent(m_pCombo, &event);
    QVERIFY(!IsOpen());
    QVERIFY(!event.isAccepted());
}

void tst_AlarmTypeCombox::TheMenuStartsWhereTheBoxStarts_data()
{
    QTest::addColumn<bool>("bMirrored");
    QTest::newRow("left to right") << false;
    QTest::newRow("right to left") << true;
}

void tst_AlarmTypeCombox::TheMenuStartsWhereTheBoxStarts()
{
    QFETCH(bool, bMirrored);
    m_pCombo->setGeometry(bMirrored ? 420 : 200, 10, 240, 32);
    m_pCombo->setLayoutDirection(bMirrored ? Qt::RightToLeft : Qt::LeftToRight);
    m_pCombo->showPopup();
    const QRect box(m_pCombo->mapToGlobal(QPoint()), m_pCombo->size());
    QCOMPARE(bMirrored ? Place().right() : Place().left(), bMirrored ? box.right() : box.left());
    QCOMPARE(Main()->x() > Sub()->x(), bMirrored);
}

void tst_AlarmTypeCombox::KeysAreMirrored()
{
    m_pCombo->setLayoutDirection(Qt::RightToLeft);
    m_pCombo->showPopup();
    QTest::keyClick(Main(), Qt::Key_Right);
    QVERIFY(Main()->hasFocus());
    QTest::keyClick(Main(), Qt::Key_Left);
    QVERIFY(Sub()->hasFocus());
    QTest::keyClick(Sub(), Qt::Key_Right);
    QVERIFY(Main()->hasFocus());
}

void tst_AlarmTypeCombox::TheMenuStaysOnTheScreen_data()
{
    QTest::addColumn<bool>("bMirrored");
    QTest::addColumn<QPoint>("corner"); // 0 or 1: which edge of the screen the box stands at
    for (bool bMirrored : {false, true})
    {
        for (int n = 0; n < 4; ++n)
        {
            QTest::addRow("%s, corner %d", bMirrored ? "right to left" : "left to right", n)
                << bMirrored << QPoint(n % 2, n / 2);
        }
    }
}

void tst_AlarmTypeCombox::TheMenuStaysOnTheScreen()
{
    QFETCH(bool, bMirrored);
    QFETCH(QPoint, corner);
    const QRect screen = m_pWindow->screen()->availableGeometry();
    m_pWindow->resize(260, 60);
    m_pWindow->move(screen.left() + corner.x() * (screen.width() - 260),
                    screen.top() + corner.y() * (screen.height() - 60));
    m_pCombo->setLayoutDirection(bMirrored ? Qt::RightToLeft : Qt::LeftToRight);
    m_pCombo->showPopup();
    QVERIFY(screen.contains(Place()));
    QVERIFY(!Place().intersects(QRect(m_pCombo->mapToGlobal(QPoint()), m_pCombo->size())));
}

void tst_AlarmTypeCombox::PressingTheBoxAgainClosesTheMenu()
{
    m_pCombo->showPopup();
    const QPoint onBox = Menu()->mapFromGlobal(m_pCombo->mapToGlobal(m_pCombo->rect().center()));
    QTest::mousePress(Menu(), Qt::LeftButton, {}, onBox);
    QVERIFY(!IsOpen());
    QVERIFY(Menu()->testAttribute(Qt::WA_NoMouseReplay));
}

void tst_AlarmTypeCombox::HidingThePopupClosesTheMenu()
{
    m_pCombo->showPopup();
    QVERIFY(IsOpen());
    m_pCombo->hidePopup();
    QVERIFY(!IsOpen());
}

void tst_AlarmTypeCombox::TheWheelChangesNothing()
{
    QVERIFY(!TurnWheel(m_pCombo, QRectF(m_pCombo->rect()).center())); // what is around it may scroll
    QCOMPARE(m_pCombo->currentIndex(), 0);
    QCOMPARE(m_pSpy->size(), 0);
}

void tst_AlarmTypeCombox::UseLongMenu(int nTypes)
{
    QMap<int, QString> mapLong;
    for (int n = 0; n < nTypes; ++n)
    {
        mapLong.insert(n, QString("Type %1").arg(n));
    }
    m_pCombo->InitMenu({{1, "All"}}, {{1, mapLong}});
}

void tst_AlarmTypeCombox::LongMenusScroll()
{
    UseLongMenu(200);
    m_pCombo->ChooseItem(1, 150);
    m_pCombo->showPopup();
    QVERIFY(Menu()->height() < 500);
    QTRY_VERIFY(Sub()->verticalScrollBar()->maximum() > 0);
    QVERIFY(Sub()->viewport()->rect().contains(Sub()->visualRect(Sub()->currentIndex())));
    QTest::keyClick(Sub(), Qt::Key_End);
    QCOMPARE(Current(Sub()), QString("Type 199"));
    QVERIFY(Sub()->viewport()->rect().intersects(Sub()->visualRect(Sub()->currentIndex())));
}

void tst_AlarmTypeCombox::ARestingMouseLeavesTheKeysTheirType_data()
{
    QTest::addColumn<int>("nKey");
    QTest::addColumn<int>("nType");
    QTest::newRow("opened") << 0 << 100;
    QTest::newRow("down by more rows than there are in sight") << int(Qt::Key_Down) << 120;
    QTest::newRow("to the end") << int(Qt::Key_End) << 199;
}

void tst_AlarmTypeCombox::ARestingMouseLeavesTheKeysTheirType()
{
    QFETCH(int, nKey);
    QFETCH(int, nType);
    UseLongMenu(200);
    m_pCombo->showPopup();
    QCursor::setPos(Menu()->mapToGlobal(QPoint()));
    QCursor::setPos(Sub()->viewport()->mapToGlobal(RowOf(Sub(), 2).center()));
    QTRY_COMPARE(Current(Sub()), QString("Type 2")); // has moved there
    m_pCombo->hidePopup();
    m_pCombo->ChooseItem(1, 100);
    m_pCombo->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(Menu()));
    for (int n = 0; nKey != 0 && n < 20; ++n)
    {
        QTest::keyClick(Sub(), Qt::Key(nKey));
    }
    QCOMPARE(Current(Sub()), QString("Type %1").arg(nType));
}

void tst_AlarmTypeCombox::TheMouseMarksTheTypeUnderIt()
{
    m_pCombo->ChooseItem(3, 4);
    m_pCombo->showPopup();
    QTest::mouseMove(Sub()->viewport(), RowOf(Sub(), 0).center());
    QTest::mouseMove(Sub()->viewport(), RowOf(Sub(), 1).center());
    QTRY_COMPARE(Current(Sub()), QString("Motion"));
}

void tst_AlarmTypeCombox::TenThousandTypesOpenQuickly()
{
    QElapsedTimer clock;
    clock.start();
    UseLongMenu(10000);
    m_pCombo->showPopup();
    QCoreApplication::processEvents();
    QVERIFY2(clock.elapsed() < 1000, qPrintable(QString::number(clock.elapsed())));
}

QTEST_MAIN(tst_AlarmTypeCombox)

#include "tst_AlarmTypeCombox.moc"
