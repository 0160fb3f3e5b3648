#include <KvGui/KvCustomDialog.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

using KVGUI::KvCustomDialog;

namespace
{

const KvCustomDialog::StandardButtons g_allButtons =
    KvCustomDialog::Ok | KvCustomDialog::Other | KvCustomDialog::Cancel;

QAbstractButton* Button(const QWidget& dialog, const char* pszName)
{
    return dialog.findChild<QAbstractButton*>(pszName);
}

QRect Place(const QWidget& dialog, const QWidget* pWidget)
{
    return {pWidget->mapTo(&dialog, QPoint()), pWidget->size()};
}

/// A form of the size that the settings dialog has.
void BuildForm(const KvCustomDialog& dialog)
{
    dialog.GetCentralWidget()->setFixedSize(943, 607);
}

} // namespace

class tst_KvCustomDialog : public QObject
{
    Q_OBJECT

private slots:
    void ButtonValues();
    void HasTheButtonsAskedFor_data();
    void HasTheButtonsAskedFor();
    void CentralWidgetIsBlank();
    void ButtonsEmitTheirSignal_data();
    void ButtonsEmitTheirSignal();
    void TextsAreSet();
    void SetsOfButtonsAreEnabled();
    void MissingButtonsAreIgnored();
    void ACloseButtonByFlag_data();
    void ACloseButtonByFlag();
    void EnterPressesOk();
    void NaturalSizeHasRoomForAll();
    void FixedTo680TheButtonRowGivesWay_data();
    void FixedTo680TheButtonRowGivesWay();
    void TabVisitsContentThenRowThenTitleBar();
};

void tst_KvCustomDialog::ButtonValues()
{
    QCOMPARE(int(KvCustomDialog::Ok), 0x400);
    QCOMPARE(int(KvCustomDialog::Other), 0x2000);
    QCOMPARE(int(KvCustomDialog::Cancel), 0x400000);
    QCOMPARE(int(g_allButtons), 0x402400);
}

void tst_KvCustomDialog::HasTheButtonsAskedFor_data()
{
    QTest::addColumn<int>("nButtons");
    for (int nButtons : {0, 0x400, 0x2000, 0x400000, 0x2400, 0x402400})
    {
        QTest::addRow("%x", nButtons) << nButtons;
    }
}

void tst_KvCustomDialog::HasTheButtonsAskedFor()
{
    QFETCH(int, nButtons);
    const KvCustomDialog dialog(KvCustomDialog::StandardButtons(nButtons), nullptr, 1);
    QCOMPARE(Button(dialog, "btnOk") != nullptr, bool(nButtons & 0x400));
    QCOMPARE(Button(dialog, "btnOther") != nullptr, bool(nButtons & 0x2000));
    QCOMPARE(Button(dialog, "btnCancel") != nullptr, bool(nButtons & 0x400000));
}

void tst_KvCustomDialog::CentralWidgetIsBlank()
{
    const KvCustomDialog dialog(g_allButtons, nullptr, 1);
    QVERIFY(dialog.GetCentralWidget()->objectName().isEmpty());
    QVERIFY(!dialog.GetCentralWidget()->layout());
}

void tst_KvCustomDialog::ButtonsEmitTheirSignal_data()
{
    QTest::addColumn<QString>("strButton");
    QTest::addColumn<int>("nOk");
    QTest::addColumn<int>("nOther");
    QTest::addColumn<int>("nCancel");
    QTest::newRow("ok") << "btnOk" << 1 << 0 << 0;
    QTest::newRow("other") << "btnOther" << 0 << 1 << 0;
    QTest::newRow("cancel") << "btnCancel" << 0 << 0 << 1;
}

void tst_KvCustomDialog::ButtonsEmitTheirSignal()
{
    QFETCH(QString, strButton);
    QFETCH(int, nOk);
    QFETCH(int, nOther);
    QFETCH(int, nCancel);
    KvCustomDialog dialog(g_allButtons, nullptr, 1);
    QSignalSpy ok(&dialog, &KvCustomDialog::SignalOkButtonClicked);
    QSignalSpy other(&dialog, &KvCustomDialog::SignalOtherButtonClicked);
    QSignalSpy cancel(&dialog, &KvCustomDialog::SignalCancelButtonClicked);
    dialog.show();
    QTest::mouseClick(Button(dialog, qPrintable(strButton)), Qt::LeftButton);
    QCOMPARE(ok.size(), nOk);
    QCOMPARE(other.size(), nOther);
    QCOMPARE(cancel.size(), nCancel);
    QVERIFY2(dialog.isVisible(), "the owner decides what a button does");
}

void tst_KvCustomDialog::TextsAreSet()
{
    KvCustomDialog dialog(g_allButtons, nullptr, 1);
    dialog.SetButtonText(KvCustomDialog::Ok, "Save");
    dialog.SetButtonText(KvCustomDialog::Other, "Default");
    QCOMPARE(Button(dialog, "btnOk")->text(), QString("Save"));
    QCOMPARE(Button(dialog, "btnOther")->text(), QString("Default"));
}

void tst_KvCustomDialog::SetsOfButtonsAreEnabled()
{
    KvCustomDialog dialog(g_allButtons, nullptr, 1);
    dialog.SetButtonEnable(KvCustomDialog::Ok | KvCustomDialog::Other, false);
    QVERIFY(!Button(dialog, "btnOk")->isEnabled());
    QVERIFY(!Button(dialog, "btnOther")->isEnabled());
    QVERIFY(Button(dialog, "btnCancel")->isEnabled());
    dialog.SetButtonEnable(KvCustomDialog::Ok, true);
    QVERIFY(Button(dialog, "btnOk")->isEnabled());
    QVERIFY(!Button(dialog, "btnOther")->isEnabled());
}

void tst_KvCustomDialog::MissingButtonsAreIgnored()
{
    KvCustomDialog dialog(KvCustomDialog::Ok, nullptr, 1);
    dialog.SetButtonText(KvCustomDialog::Cancel, "Cancel");
    dialog.SetButtonEnable(KvCustomDialog::Cancel, false);
    QVERIFY(Button(dialog, "btnOk")->isEnabled());
}

void tst_KvCustomDialog::ACloseButtonByFlag_data()
{
    QTest::addColumn<int>("nFlags");
    QTest::addColumn<bool>("bButton");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << true;
    QTest::newRow("3") << 3 << true;
}

void tst_KvCustomDialog::ACloseButtonByFlag()
{
    QFETCH(int, nFlags);
    QFETCH(bool, bButton);
    KvCustomDialog dialog(g_allButtons, nullptr, nFlags);
    dialog.show();
    QCOMPARE(Button(dialog, "btnClose")->isVisible(), bButton);
}

void tst_KvCustomDialog::EnterPressesOk()
{
    KvCustomDialog dialog(g_allButtons, nullptr, 1);
    auto* pEdit = new QLineEdit(dialog.GetCentralWidget());
    QSignalSpy ok(&dialog, &KvCustomDialog::SignalOkButtonClicked);
    dialog.show();
    pEdit->setFocus();
    QTest::keyClick(pEdit, Qt::Key_Return);
    QCOMPARE(ok.size(), 1);
}

void tst_KvCustomDialog::NaturalSizeHasRoomForAll()
{
    KvCustomDialog dialog(g_allButtons, nullptr, 1);
    BuildForm(dialog);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(dialog.height() > 680);
    const QRect title = Place(dialog, dialog.findChild<QWidget*>("titleBar"));
    const QRect central = Place(dialog, dialog.GetCentralWidget());
    const QRect row = Place(dialog, dialog.findChild<QWidget*>("buttonRow"));
    QCOMPARE(central.size(), QSize(943, 607));
    QVERIFY(title.bottom() < central.top() && central.bottom() < row.top());
    QVERIFY(dialog.rect().contains(title) && dialog.rect().contains(central) && dialog.rect().contains(row));
}

void tst_KvCustomDialog::FixedTo680TheButtonRowGivesWay_data()
{
    QTest::addColumn<bool>("bWhileShown");
    QTest::newRow("before the show") << false;
    QTest::newRow("while shown") << true;
}

void tst_KvCustomDialog::FixedTo680TheButtonRowGivesWay()
{
    QFETCH(bool, bWhileShown);
    KvCustomDialog dialog(g_allButtons, nullptr, 1);
    BuildForm(dialog);
    if (bWhileShown)
    {
        dialog.show();
    }
    dialog.setFixedHeight(680);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(dialog.height(), 680);
    const QRect title = Place(dialog, dialog.findChild<QWidget*>("titleBar"));
    const QRect central = Place(dialog, dialog.GetCentralWidget());
    const QRect row = Place(dialog, dialog.findChild<QWidget*>("buttonRow"));
    QCOMPARE(title.height(), 36);
    QCOMPARE(central.size(), QSize(943, 607));
    QVERIFY(title.bottom() < central.top() && central.bottom() < row.top());
    QVERIFY(dialog.rect().contains(row));
    for (const char* pszName : {"btnOk", "btnOther", "btnCancel"})
    {
        const QRect button = Place(dialog, Button(dialog, pszName));
        QVERIFY(row.contains(button));
        QCOMPARE(button.height(), 32);
    }
}

void tst_KvCustomDialog::TabVisitsContentThenRowThenTitleBar()
{
    KvCustomDialog dialog(g_allButtons, nullptr, 1);
    auto* pFirst = new QLineEdit(dialog.GetCentralWidget());
    pFirst->setObjectName("first");
    dialog.show();
    auto* pLate = new QLineEdit(dialog.GetCentralWidget()); // as a page that is created at the first show
    pLate->setObjectName("late");
    pLate->show();
    QApplication::setActiveWindow(&dialog);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::qWait(10);
    QCOMPARE(dialog.focusWidget(), pFirst);
    for (const char* pszName : {"late", "btnOther", "btnOk", "btnCancel", "btnClose", "first"})
    {
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        QCOMPARE(dialog.focusWidget()->objectName(), QString(pszName));
    }
}

QTEST_MAIN(tst_KvCustomDialog)

#include "tst_KvCustomDialog.moc"
