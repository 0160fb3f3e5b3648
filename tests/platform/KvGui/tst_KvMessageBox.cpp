#include <KvGui/KvMessageBox.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTimer>
#include <QtTest>

#include <functional>

using KVGUI::KvMessageBox;

namespace
{

/// Shows a box and lets \a act loose on it once it is up.
int Show(int nButtons, int nDefault, const std::function<void(QDialog*)>& act, const QString& strText = "Sure?")
{
    bool bActed = false;
    QTimer::singleShot(20, qApp, [&] {
        auto* pBox = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!pBox)
        {
            return;
        }
        bActed = true;
        QApplication::setActiveWindow(pBox);
        act(pBox);
        pBox->hide(); // whatever came of it, the test goes on
    });
    const int nResult = KvMessageBox::ShowInformation(nullptr, "Prompt", strText, nButtons, nDefault);
    return bActed ? nResult : -1;
}

QAbstractButton* Button(const QDialog* pBox, const char* pszName)
{
    return pBox->findChild<QAbstractButton*>(pszName);
}

} // namespace

class tst_KvMessageBox : public QObject
{
    Q_OBJECT

private slots:
    void ReturnsThePressedButton_data();
    void ReturnsThePressedButton();
    void ClosingReturnsZero_data();
    void ClosingReturnsZero();
    void ShowsTitleAndText();
    void LongTextsWrap();
    void ButtonTexts();
    void WithoutADefaultEnterDoesNotConfirm();
    void EnterPressesTheDefaultButton();
    void EnterPressesTheButtonThatHasTheFocus();
    void TheConfirmingButtonStandsBeforeTheCancellingOne_data();
    void TheConfirmingButtonStandsBeforeTheCancellingOne();
};

void tst_KvMessageBox::ReturnsThePressedButton_data()
{
    QTest::addColumn<QString>("strButton");
    QTest::addColumn<int>("nResult");
    QTest::newRow("ok") << "btnOk" << 0x400;
    QTest::newRow("other") << "btnOther" << 0x2000;
    QTest::newRow("cancel") << "btnCancel" << 0x400000;
}

void tst_KvMessageBox::ReturnsThePressedButton()
{
    QFETCH(QString, strButton);
    QFETCH(int, nResult);
    QCOMPARE(Show(0x402400, 0,
                  [&](QDialog* pBox) { QTest::mouseClick(Button(pBox, qPrintable(strButton)), Qt::LeftButton); }),
             nResult);
}

void tst_KvMessageBox::ClosingReturnsZero_data()
{
    QTest::addColumn<QString>("strWay");
    QTest::newRow("Escape") << "Escape";
    QTest::newRow("title bar") << "title bar";
    QTest::newRow("window manager") << "window manager";
}

void tst_KvMessageBox::ClosingReturnsZero()
{
    QFETCH(QString, strWay);
    const int nResult = Show(0x2400, 0, [&](QDialog* pBox) {
        if (strWay == "Escape")
        {
            QTest::keyClick(pBox, Qt::Key_Escape);
        }
        else if (strWay == "title bar")
        {
            QTest::mouseClick(Button(pBox, "btnClose"), Qt::LeftButton);
        }
        else
        {
            pBox->close();
        }
    });
    QCOMPARE(nResult, 0);
}

void tst_KvMessageBox::ShowsTitleAndText()
{
    QString strTitle;
    QString strText;
    Show(0x400, 0, [&](QDialog* pBox) {
        strTitle = pBox->windowTitle();
        strText = pBox->findChild<QLabel*>("messageText")->text();
        QTest::mouseClick(Button(pBox, "btnOk"), Qt::LeftButton);
    });
    QCOMPARE(strTitle, QString("Prompt"));
    QCOMPARE(strText, QString("Sure?"));
}

void tst_KvMessageBox::LongTextsWrap()
{
    QString strText;
    for (int n = 0; n < 60; ++n)
    {
        strText += "encryption ";
    }
    Show(
        0x2400, 0,
        [&](QDialog* pBox) {
            auto* pLabel = pBox->findChild<QLabel*>("messageText");
            QVERIFY(pBox->width() < 600);
            QVERIFY(pLabel->height() >= pLabel->heightForWidth(pLabel->width()));
            QVERIFY(pBox->rect().contains(QRect(pLabel->mapTo(pBox, QPoint()), pLabel->size())));
            auto* pOk = Button(pBox, "btnOk");
            QVERIFY(pBox->rect().contains(QRect(pOk->mapTo(pBox, QPoint()), pOk->size())));
        },
        strText);
}

void tst_KvMessageBox::ButtonTexts()
{
    QStringList listTexts;
    Show(0x2400, 0, [&](QDialog* pBox) {
        listTexts = QStringList{Button(pBox, "btnOk")->text(), Button(pBox, "btnOther")->text()};
        QVERIFY(!Button(pBox, "btnCancel"));
    });
    QCOMPARE(listTexts, (QStringList{"OK", "Cancel"}));
    Show(0x402400, 0, [&](QDialog* pBox) {
        listTexts = QStringList{Button(pBox, "btnOther")->text(), Button(pBox, "btnCancel")->text()};
    });
    QCOMPARE(listTexts, (QStringList{"Other", "Cancel"}));
}

void tst_KvMessageBox::WithoutADefaultEnterDoesNotConfirm()
{
    QCOMPARE(Show(0x2400, 0, [](QDialog* pBox) { QTest::keyClick(pBox->focusWidget(), Qt::Key_Return); }), 0x2000);
}

void tst_KvMessageBox::EnterPressesTheDefaultButton()
{
    QCOMPARE(Show(0x2400, 0x400, [](QDialog* pBox) { QTest::keyClick(pBox->focusWidget(), Qt::Key_Return); }), 0x400);
}

void tst_KvMessageBox::EnterPressesTheButtonThatHasTheFocus()
{
    const QMap<QString, int> mapButtons = {{"btnOk", 0x400}, {"btnOther", 0x2000}, {"btnCancel", 0x400000}};
    for (auto it = mapButtons.begin(); it != mapButtons.end(); ++it)
    {
        const int nPressed = Show(0x402400, 0x400, [&it](QDialog* pBox) {
            pBox->findChild<QAbstractButton*>(it.key())->setFocus();
            QTest::keyClick(pBox->focusWidget(), Qt::Key_Return);
        });
        QCOMPARE(nPressed, it.value());
    }
}

void tst_KvMessageBox::TheConfirmingButtonStandsBeforeTheCancellingOne_data()
{
    QTest::addColumn<int>("nButtons");
    QTest::addColumn<QStringList>("listOrder");
    QTest::newRow("two") << 0x2400 << QStringList{"OK", "Cancel"};
    QTest::newRow("the other two") << 0x400400 << QStringList{"OK", "Cancel"};
    QTest::newRow("three") << 0x402400 << QStringList{"Other", "OK", "Cancel"};
}

void tst_KvMessageBox::TheConfirmingButtonStandsBeforeTheCancellingOne()
{
    QFETCH(int, nButtons);
    QFETCH(QStringList, listOrder);
    QMap<int, QString> mapTexts; // by place
    QStringList listTabs;
    Show(nButtons, 0, [&](QDialog* pBox) {
        for (const char* pszName : {"btnOther", "btnOk", "btnCancel"})
        {
            if (const QAbstractButton* pButton = Button(pBox, pszName))
            {
                mapTexts.insert(pButton->x(), pButton->text());
            }
        }
        Button(pBox, "btnClose")->setFocus();
        for (int n = 0; n < listOrder.size(); ++n)
        {
            QTest::keyClick(pBox->focusWidget(), Qt::Key_Tab);
            listTabs += qobject_cast<QAbstractButton*>(pBox->focusWidget())->text();
        }
    });
    QCOMPARE(QStringList(mapTexts.values()), listOrder);
    QCOMPARE(listTabs, listOrder);
}

QTEST_MAIN(tst_KvMessageBox)

#include "tst_KvMessageBox.moc"
