#include "support/PageFixture.h"
#include "support/RealDialog.h"

#include <functional>

using namespace LocalConfig;

/// What the dialog does to all its pages leaves the keyboard where it was, although the Video page takes it meanwhile.
class tst_FocusKept : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void DefaultsLeaveTheFocus_data() { Controls(); }
    void DefaultsLeaveTheFocus();
    void DefaultLeavesTheFocusOnItsButton();
    void WhatTheDialogDoesLeavesTheView_data();
    void WhatTheDialogDoesLeavesTheView();
    void ASaveRefusedByTheHostLeavesTheFocus_data() { Controls(); }
    void ASaveRefusedByTheHostLeavesTheFocus();
    void ASaveRefusedByAFieldFocusesTheField();
    void CancelLeavesTheFocusForTheNextShow_data() { Controls(); }
    void CancelLeavesTheFocusForTheNextShow();
    void AConnectionThatGoesAndComesLeavesTheFocus_data() { Controls(); }
    void AConnectionThatGoesAndComesLeavesTheFocus();
    void AControlThatStaysUsableKeepsTheFocus_data();
    void AControlThatStaysUsableKeepsTheFocus();
    void ALockedControlHandsTheFocusToTheNavigation_data();
    void ALockedControlHandsTheFocusToTheNavigation();
    void AFocusThatTheUserMovedMeanwhileStays();
    void AUserWhoNavigatesMeanwhileStaysInTheNavigation();
    void DefaultsThatLockAFieldHandTheFocusToTheNavigation();

private:
    static void Controls();
    static void Names(std::initializer_list<const char*> listNames);
    /// Opens the dialog with the focus on the row's control.
    QWidget* FocusControl(SRealDialog& d);
    void Connect(bool bConnected);

    SRealHost m_host;
};

void tst_FocusKept::init()
{
    QApplication::desktop()->setGeometry(0, 0, 1920, 1080);
    m_host.video.m_record = LocalConfigLogical::VideoConfigInfo();
    m_host.record.m_nResult = 0;
}

void tst_FocusKept::Names(std::initializer_list<const char*> listNames)
{
    QTest::addColumn<QString>("strName");
    for (const char* pszName : listNames)
    {
        QTest::newRow(pszName) << pszName;
    }
}

void tst_FocusKept::Controls()
{
    Names({"m_pToolListView", "chkboxDblk2ChangeStream", "playmodeComboBox", "picNumEdit", "recPathEdit", "radioPopUp",
           "lineeditStayTime", "checkEncryption", "pckeyboardView", "btnOk", "btnCancel"});
}

QWidget* tst_FocusKept::FocusControl(SRealDialog& d)
{
    QFETCH(QString, strName);
    d.Open();
    auto* pControl = d.dialog.findChild<QWidget*>(strName);
    pControl->setFocus();
    return d.dialog.focusWidget();
}

void tst_FocusKept::Connect(bool bConnected)
{
    m_host.loginManager.Notify(bConnected ? 2 : 3, 0);
}

void tst_FocusKept::DefaultsLeaveTheFocus()
{
    SRealDialog d(m_host);
    const QWidget* pControl = FocusControl(d);
    emit d.dialog.SignalOtherButtonClicked();
    QCOMPARE(d.dialog.focusWidget(), pControl);
}

void tst_FocusKept::DefaultLeavesTheFocusOnItsButton()
{
    SRealDialog d(m_host);
    d.Open();
    d.Click("btnOther");
    QCOMPARE(d.dialog.focusWidget(), d.Button("btnOther"));
}

void tst_FocusKept::WhatTheDialogDoesLeavesTheView_data()
{
    QTest::addColumn<QString>("strName");
    QTest::addColumn<QString>("strWhat");
    for (const char* pszWhat : {"defaults", "disconnect", "disconnect and reconnect"})
    {
        for (const char* pszName : {"btnOther", "picNumEdit", "checkEncryption", "m_pToolListView"})
        {
            QTest::addRow("%s, %s", pszWhat, pszName) << pszName << pszWhat;
        }
    }
}

void tst_FocusKept::WhatTheDialogDoesLeavesTheView()
{
    QFETCH(QString, strWhat);
    SRealDialog d(m_host);
    FocusControl(d);
    const int nValue = d.ScrollBar()->value();
    const int nIndex = d.List()->GetCurrentIndex();
    if (strWhat == "defaults")
    {
        emit d.dialog.SignalOtherButtonClicked();
    }
    else
    {
        Connect(false);
        if (strWhat == "disconnect and reconnect")
        {
            Connect(true);
        }
    }
    QCOMPARE(d.ScrollBar()->value(), nValue);
    QCOMPARE(d.List()->GetCurrentIndex(), nIndex);
    QCOMPARE(d.SelectedBoxes(), QList<int>{nIndex});
}

void tst_FocusKept::ASaveRefusedByTheHostLeavesTheFocus()
{
    m_host.record.m_nResult = 5;
    SRealDialog d(m_host);
    const QWidget* pControl = FocusControl(d);
    emit d.dialog.SignalOkButtonClicked();
    QVERIFY(d.dialog.isVisible());
    QCoreApplication::processEvents();
    QCOMPARE(d.dialog.focusWidget(), pControl);
}

void tst_FocusKept::ASaveRefusedByAFieldFocusesTheField()
{
    SRealDialog d(m_host);
    d.Open();
    auto* pField = d.dialog.findChild<QLineEdit*>("lineeditStayTime");
    Type(pField, "14");
    d.List()->setFocus();
    d.Click("btnOk");
    QVERIFY(pField->hasFocus());
    QCoreApplication::processEvents();
    QVERIFY(pField->hasFocus());
}

void tst_FocusKept::CancelLeavesTheFocusForTheNextShow()
{
    SRealDialog d(m_host);
    const QWidget* pControl = FocusControl(d);
    QTest::keyClick(&d.dialog, Qt::Key_Escape);
    QVERIFY(!d.dialog.isVisible());
    d.dialog.show();
    QApplication::setActiveWindow(&d.dialog);
    QVERIFY(QTest::qWaitForWindowActive(&d.dialog));
    QCOMPARE(QApplication::focusWidget(), pControl);
}

void tst_FocusKept::AConnectionThatGoesAndComesLeavesTheFocus()
{
    SRealDialog d(m_host);
    const QWidget* pControl = FocusControl(d);
    Connect(false);
    Connect(true);
    QCOMPARE(d.dialog.focusWidget(), pControl);
}

void tst_FocusKept::AControlThatStaysUsableKeepsTheFocus_data()
{
    Names(
        {"m_pToolListView", "wndSplitCmbBox", "picNameFormatCmbBox", "lineeditStayTime", "pckeyboardView", "btnClose"});
}

void tst_FocusKept::AControlThatStaysUsableKeepsTheFocus()
{
    SRealDialog d(m_host);
    const QWidget* pControl = FocusControl(d);
    Connect(false);
    QCOMPARE(d.dialog.focusWidget(), pControl);
    Connect(true);
    QCOMPARE(d.dialog.focusWidget(), pControl);
}

void tst_FocusKept::ALockedControlHandsTheFocusToTheNavigation_data()
{
    Names({"playmodeComboBox", "picNumEdit", "recPathEdit", "checkEncryption", "btnOther", "btnOk", "btnCancel"});
}

void tst_FocusKept::ALockedControlHandsTheFocusToTheNavigation()
{
    SRealDialog d(m_host);
    FocusControl(d);
    Connect(false);
    QVERIFY(d.List()->hasFocus() || d.List()->isAncestorOf(d.dialog.focusWidget()));
}

void tst_FocusKept::AFocusThatTheUserMovedMeanwhileStays()
{
    SRealDialog d(m_host);
    d.Open();
    d.Find<QWidget>("picNumEdit")->setFocus();
    Connect(false);
    auto* pField = d.Find<QWidget>("picNameFormatCmbBox");
    pField->setFocus();
    Connect(true);
    QCOMPARE(d.dialog.focusWidget(), pField);
}

void tst_FocusKept::AUserWhoNavigatesMeanwhileStaysInTheNavigation()
{
    SRealDialog d(m_host);
    d.Open();
    d.Find<QWidget>("picNumEdit")->setFocus();
    Connect(false);
    QTest::keyClick(d.dialog.focusWidget(), Qt::Key_Down);
    Connect(true);
    QVERIFY(d.List()->hasFocus());
}

void tst_FocusKept::DefaultsThatLockAFieldHandTheFocusToTheNavigation()
{
    m_host.video.m_record.nPlayMode = 4;
    SRealDialog d(m_host);
    d.Open();
    d.Find<QWidget>("videoCushionEdit")->setFocus();
    emit d.dialog.SignalOtherButtonClicked();
    QVERIFY(d.List()->hasFocus());
}

QTEST_MAIN(tst_FocusKept)

#include "tst_FocusKept.moc"
