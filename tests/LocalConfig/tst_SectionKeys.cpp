// The keys that lead from section to section, and round the dialog.

#include "support/RealDialog.h"

using namespace LocalConfig;

class tst_SectionKeys : public QObject
{
    Q_OBJECT

private slots:
    void init() { QApplication::desktop()->setGeometry(0, 0, 1920, 1080); }

    void CtrlPageDownEntersTheNextSection_data() { Controls(); }
    void CtrlPageDownEntersTheNextSection();
    void CtrlPageUpEntersThePreviousSection_data() { Controls(); }
    void CtrlPageUpEntersThePreviousSection();
    void InTheNavigationTheyMoveItsEntry();
    void FromAButtonTheyLeadIntoASection();
    void ASectionWithoutAnyUsableControlIsShown();
    void TheyPassOverASectionThatTheUserHasNoRightTo();
    void TheyEndAtTheEnds();
    void F6GoesRoundListSectionAndButtons();
    void ShiftF6GoesRoundTheOtherWay();
    void F6FromAnyControlLeadsToTheButtons_data() { Controls(); }
    void F6FromAnyControlLeadsToTheButtons();
    void F6FindsTheCloseButtonWhereTheOthersAreLocked();

private:
    static void Controls();
    /// Opens the dialog with the focus on the row's control.
    QWidget* FocusControl(SRealDialog& d);
    /// The control that Tab would enter a section at.
    static QWidget* FirstStop(SRealDialog& d, int nIndex);
    static QWidget* Press(SRealDialog& d, int nKey, Qt::KeyboardModifiers eModifiers = Qt::NoModifier);

    SRealHost m_host;
};

void tst_SectionKeys::Controls()
{
    QTest::addColumn<QString>("strName");
    QTest::addColumn<int>("nIndex");
    const auto add = [](const char* pszName, int nIndex) { QTest::newRow(pszName) << pszName << nIndex; };
    add("timeChkBox", 0);
    add("playmodeComboBox", 1);
    add("devStreamCmbBox", 2);
    add("picTmSpinBox", 3);
    add("picNumEdit", 3);
    add("recPathEdit", 4);
    add("cbxAlarmTypeForSound", 5);
    add("cbxAlarmTypeForMap", 5);
    add("rdBtnTour", 6);
    add("checkEncryption", 7);
    add("pckeyboardView", 8);
}

QWidget* tst_SectionKeys::FocusControl(SRealDialog& d)
{
    QFETCH(QString, strName);
    d.Open();
    auto* pControl = d.dialog.findChild<QWidget*>(strName);
    pControl->setFocus();
    return pControl;
}

QWidget* tst_SectionKeys::FirstStop(SRealDialog& d, int nIndex)
{
    QWidget* pStop = d.List();
    do
    {
        pStop = pStop->nextInFocusChain();
    } while (!d.Box(nIndex)->isAncestorOf(pStop) || !(pStop->focusPolicy() & Qt::TabFocus) || !pStop->isVisible());
    return pStop;
}

QWidget* tst_SectionKeys::Press(SRealDialog& d, int nKey, Qt::KeyboardModifiers eModifiers)
{
    QTest::keyClick(d.dialog.focusWidget(), Qt::Key(nKey), eModifiers);
    return d.dialog.focusWidget();
}

void tst_SectionKeys::CtrlPageDownEntersTheNextSection()
{
    QFETCH(int, nIndex);
    SRealDialog d(m_host);
    QWidget* pControl = FocusControl(d);
    const int nNext = qMin(nIndex + 1, 8);
    QCOMPARE(Press(d, Qt::Key_PageDown, Qt::ControlModifier), nIndex < 8 ? FirstStop(d, nNext) : pControl);
    QCOMPARE(d.List()->GetCurrentIndex(), nNext);
    QCOMPARE(d.SelectedBoxes(), QList<int>{nNext});
}

void tst_SectionKeys::CtrlPageUpEntersThePreviousSection()
{
    QFETCH(int, nIndex);
    SRealDialog d(m_host);
    QWidget* pControl = FocusControl(d);
    const int nPrevious = qMax(nIndex - 1, 0);
    QCOMPARE(Press(d, Qt::Key_PageUp, Qt::ControlModifier), nIndex > 0 ? FirstStop(d, nPrevious) : pControl);
    QCOMPARE(d.List()->GetCurrentIndex(), nPrevious);
    QCOMPARE(d.SelectedBoxes(), QList<int>{nPrevious});
    QCOMPARE(d.ScrollBar()->value() == d.Box(nPrevious)->y() - 20, nIndex > 0 && nPrevious > 0);
}

void tst_SectionKeys::InTheNavigationTheyMoveItsEntry()
{
    SRealDialog d(m_host);
    d.Open();
    QCOMPARE(Press(d, Qt::Key_PageDown, Qt::ControlModifier), d.List());
    QCOMPARE(d.List()->GetCurrentIndex(), 1);
    QCOMPARE(d.SelectedBoxes(), QList<int>{1});
    QCOMPARE(d.ScrollBar()->value(), d.Box(1)->y() - 20);
    QCOMPARE(Press(d, Qt::Key_PageUp, Qt::ControlModifier), d.List());
    QCOMPARE(d.List()->GetCurrentIndex(), 0);
}

void tst_SectionKeys::FromAButtonTheyLeadIntoASection()
{
    SRealDialog d(m_host);
    d.Open();
    d.Button("btnOk")->setFocus();
    QCOMPARE(Press(d, Qt::Key_PageDown, Qt::ControlModifier), FirstStop(d, 1));
    QCOMPARE(d.SelectedBoxes(), QList<int>{1});
}

void tst_SectionKeys::ASectionWithoutAnyUsableControlIsShown()
{
    SRealDialog d(m_host);
    d.Open();
    m_host.loginManager.Notify(3, 0);
    d.dialog.findChild<QWidget*>("lineeditStayTime")->setFocus();
    QCOMPARE(Press(d, Qt::Key_PageDown, Qt::ControlModifier), d.List());
    QCOMPARE(d.SelectedBoxes(), QList<int>{7});
}

void tst_SectionKeys::TheyPassOverASectionThatTheUserHasNoRightTo()
{
    m_host.userRight.m_setMissing = {26};
    SRealDialog d(m_host);
    d.Open();
    d.dialog.findChild<QWidget*>("cbxAlarmTypeForMap")->setFocus();
    QCOMPARE(Press(d, Qt::Key_PageDown, Qt::ControlModifier)->objectName(), QString("checkEncryption"));
    QCOMPARE(d.SelectedBoxes(), QList<int>{7});
    m_host.userRight.m_setMissing.clear();
}

void tst_SectionKeys::TheyEndAtTheEnds()
{
    SRealDialog d(m_host);
    d.Open();
    QTest::keyClick(d.List(), Qt::Key_End);
    QCOMPARE(Press(d, Qt::Key_PageDown, Qt::ControlModifier), d.List());
    QCOMPARE(d.List()->GetCurrentIndex(), 8);
}

void tst_SectionKeys::F6GoesRoundListSectionAndButtons()
{
    SRealDialog d(m_host);
    d.Open();
    QTest::keyClick(d.List(), Qt::Key_Down);
    QCOMPARE(Press(d, Qt::Key_F6), FirstStop(d, 1));
    QCOMPARE(Press(d, Qt::Key_F6), d.Button("btnOther"));
    QCOMPARE(Press(d, Qt::Key_F6), d.List());
    QCOMPARE(d.List()->GetCurrentIndex(), 1);
}

void tst_SectionKeys::ShiftF6GoesRoundTheOtherWay()
{
    SRealDialog d(m_host);
    d.Open();
    QTest::keyClick(d.List(), Qt::Key_Down);
    QCOMPARE(Press(d, Qt::Key_F6, Qt::ShiftModifier), d.Button("btnOther"));
    QCOMPARE(Press(d, Qt::Key_F6, Qt::ShiftModifier), FirstStop(d, 1));
    QCOMPARE(Press(d, Qt::Key_F6, Qt::ShiftModifier), d.List());
}

void tst_SectionKeys::F6FromAnyControlLeadsToTheButtons()
{
    SRealDialog d(m_host);
    FocusControl(d);
    QCOMPARE(Press(d, Qt::Key_F6), d.Button("btnOther"));
}

void tst_SectionKeys::F6FindsTheCloseButtonWhereTheOthersAreLocked()
{
    SRealDialog d(m_host);
    d.Open();
    m_host.loginManager.Notify(3, 0);
    QCOMPARE(Press(d, Qt::Key_F6, Qt::ShiftModifier), d.Button("btnClose"));
}

QTEST_MAIN(tst_SectionKeys)

#include "tst_SectionKeys.moc"
