// Finding captions in the dialog with its real pages.

#include "support/RealDialog.h"
#include "support/Skin.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTranslator>

#include <cmath>

using namespace LocalConfig;

namespace
{

double Luminance(const QColor& color)
{
    const auto linear = [](double d) { return d <= 0.03928 ? d / 12.92 : std::pow((d + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other)
{
    const double a = Luminance(one) + 0.05;
    const double b = Luminance(other) + 0.05;
    return qMax(a, b) / qMin(a, b);
}

struct SFindDialog : SRealDialog
{
    using SRealDialog::SRealDialog;

    QLineEdit* Field() { return dialog.findChild<QLineEdit*>("findEdit"); }
    bool IsOpen() { return Field() && Field()->isVisible(); }
    QString Status() { return dialog.findChild<QLabel*>("findStatus")->text(); }
    QWidget* Ring() { return dialog.findChild<QWidget*>("findRing"); }

    /// Types into the field, which it opens first.
    void Type(const QString& strText)
    {
        QTest::keyClick(dialog.windowHandle(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(dialog.focusWidget(), Field());
        QTest::keyClicks(Field(), strText);
    }

    void Press(Qt::Key eKey, Qt::KeyboardModifiers eModifiers = {}) { QTest::keyClick(Field(), eKey, eModifiers); }

    /// The ring, on what scrolls.
    bool IsRinged(const QWidget* pWidget)
    {
        const QRect rect(pWidget->mapTo(Contents(), QPoint()), pWidget->size());
        return Ring() && Ring()->isVisible() && Ring()->geometry().contains(rect) &&
               Ring()->height() < rect.height() + 20;
    }

    bool IsInSight(const QWidget* pWidget)
    {
        const QWidget* pView = ScrollArea()->viewport();
        return pView->rect().contains(QRect(pWidget->mapTo(pView, QPoint()), pWidget->size()));
    }
};

} // namespace

class tst_FindField : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void NothingIsMadeBeforeItIsAskedFor();
    void OpensFromEverywhere_data();
    void OpensFromEverywhere();
    void KeepsClearOfAnOpenList();
    void LeavesTheKeyToAControlThatTakesIt();
    void TypingLeadsToTheMatch_data();
    void TypingLeadsToTheMatch();
    void CaseAccentsAndMnemonicsDoNotCount_data();
    void CaseAccentsAndMnemonicsDoNotCount();
    void EnterGoesRoundTheMatches();
    void EscapeLeavesTheFocusOnTheMatch_data();
    void EscapeLeavesTheFocusOnTheMatch();
    void WithoutAMatchItSaysSo();
    void WithoutAMatchTheFocusGoesBack();
    void AHiddenControlIsNotFound();
    void TheLockedDialogIsSearched();
    void AHolderThatIsLockedMeanwhileGivesWayToTheList();
    void StaysOpenWhileTheConnectionGoesAndComes();
    void AClickElsewhereClosesIt();
    void ASecondAskingSelectsTheText();
    void ClosingTheDialogClosesIt();
    void TheRingIsSeen_data();
    void TheRingIsSeen();
    void StandsOverTheTitleBar_data();
    void StandsOverTheTitleBar();
    void FindsInTheRunningLanguage();

private:
    SRealHost m_host;
};

void tst_FindField::init()
{
    QApplication::desktop()->setGeometry(0, 0, 1920, 1080);
    UseSkin("DustyBlue");
}

void tst_FindField::cleanup()
{
    qApp->setStyleSheet(QString());
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_FindField::NothingIsMadeBeforeItIsAskedFor()
{
    SFindDialog d(m_host);
    d.Open();
    QVERIFY(!d.Field());
    QTest::keyClick(d.dialog.windowHandle(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(d.IsOpen());
    QVERIFY(d.Field()->text().isEmpty());
    QVERIFY(!d.Ring());
}

void tst_FindField::OpensFromEverywhere_data()
{
    QTest::addColumn<QString>("strHolder");
    for (const char* pszHolder : {"m_pToolListView", "picNumEdit", "picTmSpinBox", "screenRatioCmbBox",
                                  "cbxAlarmTypeForMap", "cbxAlarmTypeForSound", "pckeyboardView", "btnOk"})
    {
        QTest::newRow(pszHolder) << pszHolder;
    }
}

void tst_FindField::OpensFromEverywhere()
{
    QFETCH(QString, strHolder);
    m_host.alarm.m_record.alarmSound = true;
    m_host.alarm.m_record.mapFlash = true;
    SFindDialog d(m_host);
    d.Open();
    auto* pHolder = d.Find<QWidget>(qPrintable(strHolder));
    pHolder->setEnabled(true);
    pHolder->setFocus();
    QCOMPARE(d.dialog.focusWidget(), pHolder);
    d.Type("auto login");
    QVERIFY(d.IsRinged(d.dialog.findChild<QWidget*>("autologinChkBox")));
}

void tst_FindField::KeepsClearOfAnOpenList()
{
    SFindDialog d(m_host);
    d.Open();
    auto* pBox = d.Find<QComboBox>("screenRatioCmbBox");
    pBox->showPopup();
    QTest::keyClick(pBox->view()->window()->windowHandle(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(!d.IsOpen());
    QVERIFY(pBox->view()->isVisible());
}

void tst_FindField::LeavesTheKeyToAControlThatTakesIt()
{
    class CKeyEdit : public QLineEdit
    {
    public:
        using QLineEdit::QLineEdit;
        int m_nTaken = 0;

    protected:
        bool event(QEvent* pEvent) override
        {
            const bool bKey = pEvent->type() == QEvent::ShortcutOverride || pEvent->type() == QEvent::KeyPress;
            if (bKey && static_cast<QKeyEvent*>(pEvent)->key() == Qt::Key_F)
            {
                m_nTaken += pEvent->type() == QEvent::KeyPress ? 1 : 0;
                pEvent->accept();
                return true;
            }
            return QLineEdit::event(pEvent);
        }
    };
    SFindDialog d(m_host);
    d.Open();
    auto* pEdit = new CKeyEdit(d.Box(8));
    pEdit->show();
    pEdit->setFocus();
    QTest::keyClick(d.dialog.windowHandle(), Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(pEdit->m_nTaken, 1);
    QVERIFY(!d.IsOpen());
}

void tst_FindField::TypingLeadsToTheMatch_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nSection");
    QTest::addColumn<QString>("strFound");
    const auto row = [](const char* pszName, const char* pszText, int nSection, const char* pszFound) {
        QTest::newRow(pszName) << pszText << nSection << pszFound;
    };
    row("check box", "thumbnail", 0, "previewSnapshotChkBox");
    row("caption of a box", "Play Mode", 1, "playmodeComboBox");
    row("caption of a field elsewhere", "buffer", 1, "videoCushionEdit");
    row("range", "2-10", 3, "picNumRgLabel");
    row("radio button", "Inquiry", 6, "rdBtnInquiry");
    row("tool tip", "Browse", 3, "btnBrowse");
    row("check box of a section below", "Play alarm", 5, "ckbAlarmSound");
    row("last control", "joystick", 8, "nkbRadioBtn");
}

void tst_FindField::TypingLeadsToTheMatch()
{
    QFETCH(QString, strText);
    QFETCH(int, nSection);
    QFETCH(QString, strFound);
    SFindDialog d(m_host);
    d.Open();
    d.Type(strText);
    auto* pFound = d.Box(nSection)->findChild<QWidget*>(strFound);
    QVERIFY(d.IsRinged(pFound));
    QVERIFY(d.IsInSight(pFound));
    QCOMPARE(d.List()->GetCurrentIndex(), nSection);
    QCOMPARE(d.SelectedBoxes(), QList<int>{nSection});
    QCOMPARE(d.dialog.focusWidget(), d.Field());
}

void tst_FindField::CaseAccentsAndMnemonicsDoNotCount_data()
{
    QTest::addColumn<QString>("strCaption");
    QTest::addColumn<QString>("strText");
    QTest::newRow("case") << "Zoom Ring"
                          << "zOOM rIng";
    QTest::newRow("accents") << QString::fromUtf8("Écran à côté") << "ecran a cote";
    QTest::newRow("accents that are typed") << "Ecran" << QString::fromUtf8("écran");
    QTest::newRow("mnemonic") << "Zoom &Ring"
                              << "zoom ring";
    QTest::newRow("ampersand") << "Zoom && Ring"
                               << "zoom & ring";
}

void tst_FindField::CaseAccentsAndMnemonicsDoNotCount()
{
    QFETCH(QString, strCaption);
    QFETCH(QString, strText);
    SFindDialog d(m_host);
    d.Open();
    auto* pBox = d.Find<QCheckBox>("checkEncryption");
    pBox->setText(strCaption);
    d.Type(QString());
    d.Field()->insert(strText);
    QVERIFY(d.IsRinged(pBox));
}

void tst_FindField::EnterGoesRoundTheMatches()
{
    SFindDialog d(m_host);
    d.Open();
    d.Type("stream type");
    QList<int> listSections;
    const auto step = [&](Qt::KeyboardModifiers eModifiers) {
        d.Press(Qt::Key_Return, eModifiers);
        listSections += d.List()->GetCurrentIndex();
    };
    QCOMPARE(d.List()->GetCurrentIndex(), 1);
    QCOMPARE(d.Status(), QString("1 of 3"));
    step({});
    QCOMPARE(d.Status(), QString("2 of 3"));
    step({});
    step({});
    step(Qt::ShiftModifier);
    QCOMPARE(d.Status(), QString("3 of 3"));
    QCOMPARE(listSections, (QList<int>{6, 6, 1, 6}));
    QVERIFY(d.dialog.isVisible());
    QCOMPARE(m_host.journal.Take(), QStringList());
}

void tst_FindField::EscapeLeavesTheFocusOnTheMatch_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<QString>("strHolder");
    QTest::newRow("control") << "auto login"
                             << "autologinChkBox";
    QTest::newRow("caption") << "image format"
                             << "picFormatComboBox";
    QTest::newRow("range") << "(2-10)"
                           << "picNumEdit";
    QTest::newRow("radio button that is not checked") << "inquiry"
                                                      << "rdBtnInquiry";
    QTest::newRow("section") << "shortcut keys"
                             << "pcRadioBtn";
}

void tst_FindField::EscapeLeavesTheFocusOnTheMatch()
{
    QFETCH(QString, strText);
    QFETCH(QString, strHolder);
    SFindDialog d(m_host);
    d.Open();
    d.Type(strText);
    d.Press(Qt::Key_Escape);
    QVERIFY(!d.IsOpen());
    QVERIFY(!d.Ring());
    QVERIFY(d.dialog.isVisible());
    QCOMPARE(d.dialog.focusWidget()->objectName(), strHolder);
    QVERIFY(d.IsInSight(d.dialog.focusWidget()));
}

void tst_FindField::WithoutAMatchItSaysSo()
{
    SFindDialog d(m_host);
    d.Open();
    d.Type("auto");
    QVERIFY(d.Ring());
    QTest::keyClicks(d.Field(), "mobile");
    QCOMPARE(d.Status(), QString("No match"));
    QVERIFY(!d.Ring());
    d.Field()->clear();
    QCOMPARE(d.Status(), QString());
}

void tst_FindField::WithoutAMatchTheFocusGoesBack()
{
    SFindDialog d(m_host);
    d.Open();
    auto* pHolder = d.Find<QWidget>("picNumEdit");
    pHolder->setFocus();
    d.Type("automobile");
    d.Press(Qt::Key_Escape);
    QCOMPARE(d.dialog.focusWidget(), pHolder);
}

void tst_FindField::AHiddenControlIsNotFound()
{
    SFindDialog d(m_host);
    d.Open();
    d.Type("Theme");
    QCOMPARE(d.Status(), QString("No match"));
}

void tst_FindField::TheLockedDialogIsSearched()
{
    SFindDialog d(m_host);
    d.Open();
    m_host.loginManager.Notify(3, 0);
    d.Type("encryption");
    QVERIFY(d.IsRinged(d.dialog.findChild<QWidget*>("checkEncryption")));
    d.Press(Qt::Key_Escape);
    QCOMPARE(d.dialog.focusWidget(), d.List()); // which had it: the section has nothing that is usable
    d.Type("client size");
    d.Press(Qt::Key_Escape);
    QCOMPARE(d.dialog.focusWidget()->objectName(), QString("screenRatioCmbBox"));
    m_host.loginManager.Notify(2, 0);
}

void tst_FindField::AHolderThatIsLockedMeanwhileGivesWayToTheList()
{
    SFindDialog d(m_host);
    d.Open();
    d.Find<QWidget>("autologinChkBox")->setFocus();
    d.Type("automobile");
    m_host.loginManager.Notify(3, 0);
    d.Press(Qt::Key_Escape);
    QCOMPARE(d.dialog.focusWidget(), d.List());
    m_host.loginManager.Notify(2, 0);
}

/// Or the Escape that is meant for it would close the dialog, and with it what the user has entered.
void tst_FindField::StaysOpenWhileTheConnectionGoesAndComes()
{
    SFindDialog d(m_host);
    d.Open();
    d.Type("client size");
    for (const int nState : {3, 2})
    {
        m_host.loginManager.Notify(nState, 0);
        QVERIFY(d.IsOpen());
        QCOMPARE(d.dialog.focusWidget(), d.Field());
        QVERIFY(d.IsRinged(d.dialog.findChild<QWidget*>("screenRatioCmbBox")));
    }
    QTest::keyClick(d.dialog.focusWidget(), Qt::Key_Escape);
    QVERIFY(!d.IsOpen());
    QVERIFY(d.dialog.isVisible());
}

void tst_FindField::AClickElsewhereClosesIt()
{
    SFindDialog d(m_host);
    d.Open();
    d.Type("auto login");
    auto* pBox = d.dialog.findChild<QCheckBox*>("timeChkBox");
    QTest::mouseClick(d.dialog.windowHandle(), Qt::LeftButton, {}, pBox->mapTo(&d.dialog, QPoint(10, 10)));
    QVERIFY(!d.IsOpen());
    QVERIFY(!d.Ring());
    QCOMPARE(d.dialog.focusWidget(), pBox);
}

void tst_FindField::ASecondAskingSelectsTheText()
{
    SFindDialog d(m_host);
    d.Open();
    d.Type("auto");
    d.Type("encryption");
    QCOMPARE(d.Field()->text(), QString("encryption"));
    d.Press(Qt::Key_Escape);
    d.Type("auto");
    QCOMPARE(d.Field()->text(), QString("auto"));
}

void tst_FindField::ClosingTheDialogClosesIt()
{
    SFindDialog d(m_host);
    d.Open();
    d.Type("auto login");
    d.Click("btnCancel");
    QVERIFY(!d.dialog.isVisible());
    d.dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&d.dialog));
    QVERIFY(!d.IsOpen());
    QVERIFY(!d.Ring());
}

void tst_FindField::TheRingIsSeen_data()
{
    QTest::addColumn<QString>("strSkin");
    QTest::newRow("DustyBlue") << "DustyBlue";
    QTest::newRow("White") << "White";
}

void tst_FindField::TheRingIsSeen()
{
    QFETCH(QString, strSkin);
    UseSkin(strSkin);
    SFindDialog d(m_host);
    d.Open();
    d.Type("auto login");
    const QRect ring(d.Ring()->mapTo(&d.dialog, QPoint()), d.Ring()->size());
    const QImage picture = d.dialog.grab().toImage();
    const QPoint onRing(ring.center().x(), ring.top() + 1);
    const QPoint beside(ring.center().x(), ring.top() - 3);
    QVERIFY(Contrast(picture.pixelColor(onRing), picture.pixelColor(beside)) >= 3.0);
}

void tst_FindField::StandsOverTheTitleBar_data()
{
    QTest::addColumn<Qt::LayoutDirection>("eDirection");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_FindField::StandsOverTheTitleBar()
{
    QFETCH(Qt::LayoutDirection, eDirection);
    QApplication::setLayoutDirection(eDirection);
    SFindDialog d(m_host);
    d.Open();
    d.Type("auto login");
    const auto place = [&](QWidget* pWidget) { return QRect(pWidget->mapTo(&d.dialog, QPoint()), pWidget->size()); };
    auto* pTitleBar = d.dialog.findChild<QWidget*>("titleBar");
    const QRect field = place(d.Field());
    QVERIFY(place(pTitleBar).contains(field));
    QVERIFY(!place(d.dialog.findChild<QWidget*>("btnClose")).intersects(field));
    QCOMPARE(field.center().x() < d.dialog.width() / 2, eDirection == Qt::RightToLeft);
    QVERIFY(d.IsRinged(d.dialog.findChild<QWidget*>("autologinChkBox")));
}

void tst_FindField::FindsInTheRunningLanguage()
{
    QTranslator translator;
    QVERIFY(
        translator.load("LocalConfig_zh_CN", QString::fromLocal8Bit(qgetenv("KV_CLIENT_RESOURCES")) + "/translations"));
    QCoreApplication::installTranslator(&translator);
    SFindDialog d(m_host);
    d.Open();
    auto* pBox = d.dialog.findChild<QCheckBox*>("autologinChkBox");
    d.Type(QString());
    d.Field()->insert(pBox->text());
    QVERIFY(pBox->text() != "Auto Login");
    QVERIFY(d.IsRinged(pBox));
    d.Field()->setText("Auto Login");
    QCOMPARE(d.Status(), translator.translate("LocalConfig::CFindField", "No match"));
    QCoreApplication::removeTranslator(&translator);
}

QTEST_MAIN(tst_FindField)

#include "tst_FindField.moc"
