#include "support/Wheel.h"

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvComboBox.h>
#include <KvGui/KvDir.h>
#include <KvGui/KvHorScrollBar.h>
#include <KvGui/KvListWidget.h>
#include <KvGui/KvPushButton.h>
#include <KvGui/KvRadioButton.h>
#include <KvGui/KvSpinBox.h>
#include <KvGui/KvTableView.h>
#include <KvGui/KvVerScrollBar.h>

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QHeaderView>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>

#include <functional>

using namespace KVGUI;

namespace
{

template <class Control>
QWidget* Make(QWidget* pParent)
{
    return new Control(pParent);
}

struct SControl
{
    const char* pszClass;
    const char* pszBase;
    QWidget* (*pfnMake)(QWidget*);
};

constexpr SControl g_arrControls[] = {
    {"KVGUI::KvCheckBox", "QCheckBox", &Make<KvCheckBox>},
    {"KVGUI::KvRadioButton", "QRadioButton", &Make<KvRadioButton>},
    {"KVGUI::KvPushButton", "QPushButton", &Make<KvPushButton>},
    {"KVGUI::KvComboBox", "QComboBox", &Make<KvComboBox>},
    {"KVGUI::KvSpinBox", "QSpinBox", &Make<KvSpinBox>},
    {"KVGUI::KvListWidget", "QListWidget", &Make<KvListWidget>},
    {"KVGUI::KvTableView", "QTableView", &Make<KvTableView>},
    {"KVGUI::KvHorScrollBar", "QScrollBar", &Make<KvHorScrollBar>},
    {"KVGUI::KvVerScrollBar", "QScrollBar", &Make<KvVerScrollBar>},
};

/// A spin box from 1 to 9999 that shows 7, in an active window beside another control.
struct SSpinBox
{
    explicit SSpinBox(bool bKeepsTyped)
        : pSpinBox(new KvSpinBox(&window))
    {
        auto* pLayout = new QVBoxLayout(&window);
        pLayout->addWidget(pSpinBox);
        pLayout->addWidget(new KvPushButton("Other", &window));
        pSpinBox->SetKeepsTyped(bKeepsTyped);
        pSpinBox->setRange(1, 9999);
        pSpinBox->setValue(7);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    void Type(const QString& strText) const
    {
        pSpinBox->setFocus();
        pSpinBox->selectAll();
        QTest::keyClick(pSpinBox, Qt::Key_Delete);
        QTest::keyClicks(pSpinBox, strText);
    }

    QWidget window;
    KvSpinBox* pSpinBox;
};

/// A combo box with two entries in a window, away from the mouse.
struct SComboBox
{
    SComboBox()
        : pCombo(new KvComboBox(&window))
    {
        pCombo->addItems({"One", "Two"});
        pCombo->setGeometry(20, 20, 200, 32);
        QCursor::setPos(0, 0);
        window.setGeometry(100, 100, 400, 300);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    QWidget window;
    KvComboBox* pCombo;
};

} // namespace

Q_DECLARE_METATYPE(std::function<void(QStandardItemModel&)>)

Q_DECLARE_METATYPE(QAbstractButton*)
Q_DECLARE_METATYPE(QAccessible::Role)

class tst_KvControls : public QObject
{
    Q_OBJECT

private slots:
    void AScreenReaderPressesIt_data();
    void AScreenReaderPressesIt();
    void AScreenReaderPressesNothingThatIsLocked();
    void StyleSheetsReachEachClass_data();
    void StyleSheetsReachEachClass();
    void TextConstructors();
    void ComboBoxesBuildNoListBeforeTheyAreShown();
    void ComboBoxesFollowAStyleThatChangesLater();
    void AComboBoxWhoseListIsClosedFromElsewhereIsNotHovered();
    void AComboBoxWhoseListIsClosedFromTheBoxIsHovered();
    void SpinBoxesFollowTheWheelWithTheFocusOnly();
    void SpinBoxesHaveTheDigitsOfTheirRecords();
    void LeavingASpinBoxWithoutAValue_data();
    void LeavingASpinBoxWithoutAValue();
    void ASpinBoxThatKeepsWhatIsTypedTakesDigitsOnly_data();
    void ASpinBoxThatKeepsWhatIsTypedTakesDigitsOnly();
    void PrefixAndSuffixAreNotTyped();
    void ScrollBarsHaveTheirDirection();
    void TablesTakeColumnWidthsFromTheHeader();
    void TablesFollowLaterWidths();
    void OnlyTheColumnsConcernedGetTheirWidth_data();
    void OnlyTheColumnsConcernedGetTheirWidth();
    void TheWorkingFolder();
};

void tst_KvControls::StyleSheetsReachEachClass_data()
{
    QTest::addColumn<int>("nControl");
    for (int n = 0; n < int(std::size(g_arrControls)); ++n)
    {
        QTest::newRow(g_arrControls[n].pszClass) << n;
    }
}

void tst_KvControls::StyleSheetsReachEachClass()
{
    QFETCH(int, nControl);
    const SControl& expected = g_arrControls[nControl];
    QWidget parent;
    QWidget* pControl = expected.pfnMake(&parent);
    QCOMPARE(pControl->parentWidget(), &parent);
    QCOMPARE(pControl->metaObject()->className(), expected.pszClass);
    QVERIFY(pControl->inherits(expected.pszBase));
    parent.setStyleSheet(QString(expected.pszClass).replace("::", "--") + " { color: rgb(1, 2, 3); }");
    pControl->ensurePolished();
    QCOMPARE(pControl->palette().color(pControl->foregroundRole()), QColor(1, 2, 3));
}

void tst_KvControls::TextConstructors()
{
    QCOMPARE(KvCheckBox("One").text(), QString("One"));
    QCOMPARE(KvRadioButton("Two").text(), QString("Two"));
    QCOMPARE(KvPushButton("Three").text(), QString("Three"));
}

void tst_KvControls::ComboBoxesBuildNoListBeforeTheyAreShown()
{
    QWidget window;
    window.setStyleSheet("KVGUI--KvComboBox { font-size: 13px; }");
    auto* pPage = new QWidget(&window, Qt::Tool);
    KvComboBox combo(pPage);
    combo.addItem("text");

    pPage->setWindowFlags({}); // tells the page's children of a style change

    QVERIFY(combo.findChildren<QAbstractItemView*>().isEmpty());
    QVERIFY(combo.view());
}

void tst_KvControls::ComboBoxesFollowAStyleThatChangesLater()
{
    QWidget window;
    window.setStyleSheet("KVGUI--KvComboBox { font-size: 13px; }");
    KvComboBox combo(&window);
    combo.addItem("a text of some length");
    window.show();
    const int nWidth = combo.sizeHint().width();

    window.setStyleSheet("KVGUI--KvComboBox { font-size: 26px; }");

    QVERIFY(combo.sizeHint().width() > nWidth);
}

void tst_KvControls::AComboBoxWhoseListIsClosedFromElsewhereIsNotHovered()
{
    SComboBox box;
    QVERIFY(QTest::qWaitForWindowActive(&box.window));
    QTest::mouseMove(box.pCombo);
    QTRY_VERIFY(box.pCombo->underMouse());
    QTest::mouseClick(box.pCombo, Qt::LeftButton);
    const QAbstractItemView* pList = box.pCombo->view();
    QVERIFY(pList->isVisible());
    const QPoint row = pList->visualRect(pList->model()->index(1, 0)).center();
    QTest::mouseMove(pList->viewport(), row);
    QTest::mouseMove(pList->viewport(), row + QPoint(3, 0)); // the list wants to see the mouse move
    QTest::mouseClick(pList->viewport(), Qt::LeftButton, {}, row, QApplication::doubleClickInterval());
    QCOMPARE(box.pCombo->currentIndex(), 1);
    QVERIFY(!box.pCombo->underMouse());
}

void tst_KvControls::AComboBoxWhoseListIsClosedFromTheBoxIsHovered()
{
    SComboBox box;
    QVERIFY(QTest::qWaitForWindowActive(&box.window));
    QTest::mouseMove(box.pCombo);
    QTRY_VERIFY(box.pCombo->underMouse());
    box.pCombo->showPopup();
    QTest::keyClick(box.pCombo->view(), Qt::Key_Escape);
    QVERIFY(!box.pCombo->view()->isVisible());
    QVERIFY(box.pCombo->underMouse());
}

void tst_KvControls::SpinBoxesFollowTheWheelWithTheFocusOnly()
{
    QWidget window;
    auto* pLayout = new QVBoxLayout(&window);
    auto* pButton = new KvPushButton("Other", &window);
    auto* pSpinBox = new KvSpinBox(&window);
    pLayout->addWidget(pButton);
    pLayout->addWidget(pSpinBox);
    pSpinBox->setValue(7);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));

    pButton->setFocus();
    TurnWheel(pSpinBox, QRectF(pSpinBox->rect()).center());
    QCOMPARE(pSpinBox->value(), 7);
    QVERIFY(pButton->hasFocus());

    QTest::mouseClick(pSpinBox->findChild<QLineEdit*>(), Qt::LeftButton);
    QVERIFY(pSpinBox->hasFocus());
    TurnWheel(pSpinBox, QRectF(pSpinBox->rect()).center());
    QCOMPARE(pSpinBox->value(), 6);
}

void tst_KvControls::SpinBoxesHaveTheDigitsOfTheirRecords()
{
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    SSpinBox box(true);
    QLocale::setDefault(QLocale::c());
    QCOMPARE(box.pSpinBox->text(), QString("7"));
    box.Type("1200");
    QCOMPARE(box.pSpinBox->text(), QString("1200"));
    QCOMPARE(box.pSpinBox->value(), 1200);
}

void tst_KvControls::LeavingASpinBoxWithoutAValue_data()
{
    QTest::addColumn<QString>("strTyped");
    QTest::addColumn<int>("nKey");
    QTest::addColumn<bool>("bKeepsTyped");
    for (const char* pszTyped : {"", "0", "00"})
    {
        QTest::addRow("return keeps '%s'", pszTyped) << pszTyped << int(Qt::Key_Return) << true;
        QTest::addRow("enter keeps '%s'", pszTyped) << pszTyped << int(Qt::Key_Enter) << true;
        QTest::addRow("tab keeps '%s'", pszTyped) << pszTyped << int(Qt::Key_Tab) << true;
        QTest::addRow("return mends '%s'", pszTyped) << pszTyped << int(Qt::Key_Return) << false;
        QTest::addRow("tab mends '%s'", pszTyped) << pszTyped << int(Qt::Key_Tab) << false;
    }
}

void tst_KvControls::LeavingASpinBoxWithoutAValue()
{
    QFETCH(QString, strTyped);
    QFETCH(int, nKey);
    QFETCH(bool, bKeepsTyped);
    SSpinBox box(bKeepsTyped);
    box.Type(strTyped);
    QTest::keyClick(box.pSpinBox, Qt::Key(nKey));

    QCOMPARE(box.pSpinBox->text(), bKeepsTyped ? strTyped : QString("7"));
    QCOMPARE(box.pSpinBox->value(), 7);
    box.pSpinBox->setValue(7);
    QTest::keyClick(box.pSpinBox, Qt::Key(nKey));
    QCOMPARE(box.pSpinBox->text(), QString("7"));
}

void tst_KvControls::ASpinBoxThatKeepsWhatIsTypedTakesDigitsOnly_data()
{
    QTest::addColumn<QString>("strTyped");
    QTest::addColumn<QString>("strShown");
    QTest::newRow("digits") << "1234"
                            << "1234";
    QTest::newRow("group separator") << "1,234"
                                     << "1234";
    QTest::newRow("sign") << "+5"
                          << "5";
    QTest::newRow("blank") << " 5 "
                           << "5";
    QTest::newRow("letters") << "5s"
                             << "5";
}

void tst_KvControls::ASpinBoxThatKeepsWhatIsTypedTakesDigitsOnly()
{
    QFETCH(QString, strTyped);
    QFETCH(QString, strShown);
    SSpinBox box(true);
    box.Type(strTyped);
    QCOMPARE(box.pSpinBox->text(), strShown);
}

void tst_KvControls::PrefixAndSuffixAreNotTyped()
{
    SSpinBox box(true);
    box.pSpinBox->setPrefix("in ");
    box.pSpinBox->setSuffix(" s");
    box.Type("12");
    QCOMPARE(box.pSpinBox->text(), QString("in 12 s"));
    QCOMPARE(box.pSpinBox->value(), 12);
}

void tst_KvControls::ScrollBarsHaveTheirDirection()
{
    QCOMPARE(KvHorScrollBar().orientation(), Qt::Horizontal);
    QCOMPARE(KvVerScrollBar().orientation(), Qt::Vertical);
}

void tst_KvControls::TablesTakeColumnWidthsFromTheHeader()
{
    QCOMPARE(KvTableView::ColumnWidthRole, 366);
    QStandardItemModel model(2, 3);
    model.setHeaderData(0, Qt::Horizontal, 160, 366);
    model.setHeaderData(2, Qt::Horizontal, 90, 366);
    KvTableView view;
    const int nDefault = view.horizontalHeader()->defaultSectionSize();
    view.setModel(&model);
    QCOMPARE(view.columnWidth(0), 160);
    QCOMPARE(view.columnWidth(1), nDefault);
    QCOMPARE(view.columnWidth(2), 90);
}

void tst_KvControls::TablesFollowLaterWidths()
{
    QStandardItemModel model(2, 1);
    KvTableView view;
    view.setModel(&model);
    model.setHeaderData(0, Qt::Horizontal, 222, 366);
    QCOMPARE(view.columnWidth(0), 222);
    view.setModel(&model); // the same again changes nothing
    model.setHeaderData(0, Qt::Horizontal, 180, 366);
    QCOMPARE(view.columnWidth(0), 180);
    view.setModel(nullptr);
    model.setHeaderData(0, Qt::Horizontal, 111, 366);
    QVERIFY(!view.model());
}

void tst_KvControls::OnlyTheColumnsConcernedGetTheirWidth_data()
{
    using Change = std::function<void(QStandardItemModel&)>;
    QTest::addColumn<Change>("change");
    const auto row = [](const char* pszName, const Change& change) { QTest::newRow(pszName) << change; };
    row("a row's caption", [](QStandardItemModel& model) { model.setHeaderData(0, Qt::Vertical, "Row"); });
    row("another column", [](QStandardItemModel& model) { model.setHeaderData(1, Qt::Horizontal, "Column"); });
    row("another column's width", [](QStandardItemModel& model) { model.setHeaderData(1, Qt::Horizontal, 90, 366); });
    row("a new column", [](QStandardItemModel& model) { model.insertColumn(2); });
    row("a new row", [](QStandardItemModel& model) { model.insertRow(0); });
}

void tst_KvControls::OnlyTheColumnsConcernedGetTheirWidth()
{
    using Change = std::function<void(QStandardItemModel&)>;
    QFETCH(Change, change);
    QStandardItemModel model(2, 2);
    model.setHeaderData(0, Qt::Horizontal, 160, 366);
    KvTableView view;
    view.setModel(&model);
    view.resize(600, 200);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QHeaderView* pHeader = view.horizontalHeader();
    const QPoint edge(pHeader->sectionViewportPosition(1) - 1, pHeader->height() / 2);
    QTest::mousePress(pHeader->viewport(), Qt::LeftButton, {}, edge);
    QMouseEvent move(QEvent::MouseMove, edge + QPoint(40, 0), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(pHeader->viewport(), &move);
    QTest::mouseRelease(pHeader->viewport(), Qt::LeftButton, {}, edge + QPoint(40, 0));
    QCOMPARE(view.columnWidth(0), 200);

    change(model);
    QCOMPARE(view.columnWidth(0), 200);
}

void tst_KvControls::TheWorkingFolder()
{
    const QTemporaryDir folder;
    QVERIFY(QDir::setCurrent(folder.path()));
    QCOMPARE(QFileInfo(KvDir::GetCurrentPath()).canonicalFilePath(), QFileInfo(folder.path()).canonicalFilePath());
    QVERIFY(!KvDir::GetCurrentPath().endsWith('/'));
    QDir::setCurrent(QDir::rootPath());
}

void tst_KvControls::AScreenReaderPressesIt_data()
{
    QTest::addColumn<QAbstractButton*>("pButton");
    QTest::addColumn<QAccessible::Role>("eRole");
    QTest::newRow("check box") << static_cast<QAbstractButton*>(new KvCheckBox("&R&&D")) << QAccessible::CheckBox;
    QTest::newRow("radio button") << static_cast<QAbstractButton*>(new KvRadioButton("&R&&D"))
                                  << QAccessible::RadioButton;
}

void tst_KvControls::AScreenReaderPressesIt()
{
    QFETCH(QAbstractButton*, pButton);
    QFETCH(QAccessible::Role, eRole);
    const QScopedPointer<QAbstractButton> holder(pButton);
    const QSignalSpy clicked(pButton, &QAbstractButton::clicked);
    QAccessibleInterface* pInterface = QAccessible::queryAccessibleInterface(pButton);
    QCOMPARE(pInterface->role(), eRole);
    QCOMPARE(pInterface->text(QAccessible::Name), QString("R&D"));
    QVERIFY(pInterface->state().checkable);
    QVERIFY(!pInterface->state().checked);
    QVERIFY(pInterface->actionInterface()->actionNames().contains(QAccessibleActionInterface::toggleAction()));
    pInterface->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(pInterface->state().checked);
    QCOMPARE(clicked.count(), 1);
}

void tst_KvControls::AScreenReaderPressesNothingThatIsLocked()
{
    KvCheckBox box("Lock");
    box.setEnabled(false);
    QAccessibleInterface* pInterface = QAccessible::queryAccessibleInterface(&box);
    QCOMPARE(pInterface->actionInterface()->actionNames(), QStringList());
    pInterface->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(!box.isChecked());
}

QTEST_MAIN(tst_KvControls)

#include "tst_KvControls.moc"
