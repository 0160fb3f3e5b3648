#include "support/PageFixture.h"
#include "support/RealDialog.h"

#include <KvGui/KvLineEdit.h>

#include <QToolTip>

using namespace LocalConfig;

namespace
{

struct SField
{
    const char* pszName;
    QString strRefused;
    int nIndex; ///< of its section
};

const SField g_arrFields[] = {
    {"instantTimeEdit", "9", 1},
    {"picNumEdit", "1", 3},
    {"picTmSpinBox", "0", 3},
    {"picPathEdit", QString(181, 'p'), 3},
    {"recPathEdit", QString(169, 'r'), 4},
    {"maxRecSizeEdit", "9", 4},
    {"lineeditStayTime", "14", 6},
};

} // namespace

/// Where a save that a page has refused leads the user.
class tst_RefusedFields : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void TheRefusedFieldHasTheFocusAndIsSeen_data() { Fields(); }
    void TheRefusedFieldHasTheFocusAndIsSeen();
    void TheNavigationFollows_data() { Fields(); }
    void TheNavigationFollows();
    void AHintLeadsNowhereElse_data() { Fields(); }
    void AHintLeadsNowhereElse();
    void AFieldInSightIsNotScrolledTo();
    void AFieldThatTheReloadLocksLeadsToItsChoice();
    void AMessageStaysWhenItComesUnderTheMouse_data() { Messages(); }
    void AMessageStaysWhenItComesUnderTheMouse();
    void AMessageGoesWhenTheUserGoesOn_data() { Messages(); }
    void AMessageGoesWhenTheUserGoesOn();
    void OfSeveralRefusedFieldsTheFirstHasTheFocus_data();
    void OfSeveralRefusedFieldsTheFirstHasTheFocus();
    void OfSeveralMessagesTheFirstIsShown();
    void EveryRefusedSectionIsMarkedUntilTheNextSave();
    void ClosingTakesTheMarksAway();
    void ASectionThatTheHostRefusesIsShownAndMarked();
    void AFieldThatWasRefusedBeforeIsNotShownAgain();
    void AKeptTextStaysMarkedUntilItIsGood_data();
    void AKeptTextStaysMarkedUntilItIsGood();

private:
    static void Fields();
    static void Messages();
    /// Types what the row refuses, goes to an end of the content, and saves.
    void Refuse(SRealDialog& d, int nKey = Qt::Key_Home);
    bool IsInSight(SRealDialog& d) const;
    static void Enter(SRealDialog& d, const SField& field);
    static QList<int> MarkedSections(SRealDialog& d);

    SRealHost m_host;
    QWidget* m_pField = nullptr;
};

void tst_RefusedFields::init()
{
    QApplication::desktop()->setGeometry(0, 0, 1920, 1080);
    LocalConfigLogical::VideoConfigInfo record;
    record.bInstantCustom = true;
    record.nPlayMode = 4;
    m_host.video.m_record = record;
    m_host.record.m_nResult = 0;
}

void tst_RefusedFields::Fields()
{
    QTest::addColumn<QString>("strField");
    QTest::addColumn<QString>("strRefused");
    QTest::addColumn<int>("nIndex");
    for (const SField& field : g_arrFields)
    {
        QTest::newRow(field.pszName) << field.pszName << field.strRefused << field.nIndex;
    }
}

void tst_RefusedFields::Refuse(SRealDialog& d, int nKey)
{
    QFETCH(QString, strField);
    QFETCH(QString, strRefused);
    d.Open();
    m_pField = d.dialog.findChild<QWidget*>(strField);
    auto* pEdit = qobject_cast<QLineEdit*>(m_pField);
    Type(pEdit ? pEdit : m_pField->findChild<QLineEdit*>(), strRefused);
    d.List()->setFocus();
    QTest::keyClick(d.List(), Qt::Key(nKey));
    d.Click("btnOk");
    QVERIFY(d.dialog.isVisible());
    QCoreApplication::processEvents();
}

bool tst_RefusedFields::IsInSight(SRealDialog& d) const
{
    const QWidget* pViewport = d.ScrollArea()->viewport();
    return pViewport->rect().contains(QRect(m_pField->mapTo(pViewport, QPoint()), m_pField->size()));
}

void tst_RefusedFields::TheRefusedFieldHasTheFocusAndIsSeen()
{
    SRealDialog d(m_host);
    Refuse(d);
    QVERIFY(m_pField->hasFocus());
    QVERIFY(IsInSight(d));
}

void tst_RefusedFields::TheNavigationFollows()
{
    QFETCH(int, nIndex);
    for (const int nKey : {Qt::Key_Home, Qt::Key_End})
    {
        SRealDialog d(m_host);
        Refuse(d, nKey);
        QCOMPARE(d.List()->GetCurrentIndex(), nIndex);
        QCOMPARE(d.SelectedBoxes(), QList<int>{nIndex});
    }
}

void tst_RefusedFields::AHintLeadsNowhereElse()
{
    m_host.video.m_record.nVideoBufferTime = 5000;
    SRealDialog d(m_host);
    Refuse(d);
    QVERIFY(m_pField->hasFocus());
    QVERIFY(IsInSight(d));
    QTRY_VERIFY(!QToolTip::text().startsWith("Video buffer time"));
}

void tst_RefusedFields::AFieldInSightIsNotScrolledTo()
{
    SRealDialog d(m_host);
    d.Open();
    m_pField = d.Find<QWidget>("lineeditStayTime");
    Type(qobject_cast<QLineEdit*>(m_pField), "14");
    const int nValue = d.ScrollBar()->value();
    d.Click("btnOk");
    QCoreApplication::processEvents();
    QVERIFY(m_pField->hasFocus());
    QCOMPARE(d.ScrollBar()->value(), nValue);
}

void tst_RefusedFields::AFieldThatTheReloadLocksLeadsToItsChoice()
{
    m_host.video.m_record.bInstantCustom = false;
    SRealDialog d(m_host);
    d.Open();
    auto* pChoice = d.Find<QWidget>("instantComboBox");
    pChoice->setFocus();
    QTest::keyClick(pChoice, Qt::Key_End);
    m_pField = d.Find<QWidget>("instantTimeEdit");
    Type(qobject_cast<QLineEdit*>(m_pField), "9");
    QTest::keyClick(m_pField, Qt::Key_Return);
    QVERIFY(d.dialog.isVisible());
    QCoreApplication::processEvents();
    QVERIFY(!m_pField->isEnabled());
    QCOMPARE(d.dialog.focusWidget(), pChoice);
}

void tst_RefusedFields::Messages()
{
    QTest::addColumn<QString>("strField");
    QTest::addColumn<QString>("strRefused");
    QTest::newRow("interval") << "picTmSpinBox"
                              << "0";
    QTest::newRow("stay time") << "lineeditStayTime"
                               << "14";
}

void tst_RefusedFields::AMessageStaysWhenItComesUnderTheMouse()
{
    SRealDialog d(m_host);
    Refuse(d);
    QVERIFY(QToolTip::isVisible());
    for (QWidget* pLeft : {m_pField, static_cast<QWidget*>(&d.dialog)})
    {
        QEvent leave(QEvent::Leave); // as the message's own window makes them
        QApplication::sendEvent(pLeft, &leave);
    }
    QTest::qWait(500); // a tip that has been left goes after 300 ms
    QVERIFY(QToolTip::isVisible());
}

void tst_RefusedFields::AMessageGoesWhenTheUserGoesOn()
{
    SRealDialog d(m_host);
    Refuse(d);
    QVERIFY(QToolTip::isVisible());
    QTest::keyClick(m_pField, Qt::Key_Tab);
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_RefusedFields::Enter(SRealDialog& d, const SField& field)
{
    auto* pField = d.dialog.findChild<QWidget*>(field.pszName);
    auto* pEdit = qobject_cast<QLineEdit*>(pField);
    Type(pEdit ? pEdit : pField->findChild<QLineEdit*>(), field.strRefused);
}

QList<int> tst_RefusedFields::MarkedSections(SRealDialog& d)
{
    QList<int> listMarked;
    for (const SBox& box : g_arrBoxes)
    {
        if (!d.List()->GetItemError(box.nIndex).isEmpty())
        {
            listMarked += box.nIndex;
        }
    }
    return listMarked;
}

void tst_RefusedFields::OfSeveralRefusedFieldsTheFirstHasTheFocus_data()
{
    QTest::addColumn<int>("nFirst");
    QTest::addColumn<int>("nSecond");
    for (int nFirst = 0; nFirst < int(std::size(g_arrFields)); ++nFirst)
    {
        for (int nSecond = nFirst + 1; nSecond < int(std::size(g_arrFields)); ++nSecond)
        {
            if (g_arrFields[nFirst].nIndex != g_arrFields[nSecond].nIndex) // else the page stops at its own order
            {
                QTest::addRow("%s, %s", g_arrFields[nFirst].pszName, g_arrFields[nSecond].pszName) << nFirst << nSecond;
            }
        }
    }
}

void tst_RefusedFields::OfSeveralRefusedFieldsTheFirstHasTheFocus()
{
    QFETCH(int, nFirst);
    QFETCH(int, nSecond);
    SRealDialog d(m_host);
    d.Open();
    Enter(d, g_arrFields[nFirst]);
    Enter(d, g_arrFields[nSecond]);
    d.Click("btnOk");
    QCoreApplication::processEvents();
    m_pField = d.dialog.findChild<QWidget*>(g_arrFields[nFirst].pszName);
    QVERIFY(m_pField->hasFocus());
    QVERIFY(IsInSight(d));
    QCOMPARE(d.SelectedBoxes(), QList<int>{g_arrFields[nFirst].nIndex});
    QCOMPARE(d.List()->GetCurrentIndex(), g_arrFields[nFirst].nIndex);
}

void tst_RefusedFields::OfSeveralMessagesTheFirstIsShown()
{
    SRealDialog d(m_host);
    d.Open();
    Enter(d, {"picTmSpinBox", "0", 3});
    Enter(d, {"lineeditStayTime", "14", 6});
    d.Click("btnOk");
    QCoreApplication::processEvents();
    QVERIFY(QToolTip::isVisible());
    QVERIFY2(QToolTip::text().startsWith("Continue snapshot time interval"), qPrintable(QToolTip::text()));
}

void tst_RefusedFields::EveryRefusedSectionIsMarkedUntilTheNextSave()
{
    SRealDialog d(m_host);
    d.Open();
    Enter(d, {"picTmSpinBox", "0", 3});
    Enter(d, {"lineeditStayTime", "14", 6});
    QCOMPARE(MarkedSections(d), QList<int>());
    d.Click("btnOk");
    QCOMPARE(MarkedSections(d), (QList<int>{3, 6}));
    d.Click("btnOther");
    QCOMPARE(MarkedSections(d), (QList<int>{3, 6}));
    Enter(d, {"maxRecSizeEdit", "9", 4});
    d.Click("btnOk");
    QCOMPARE(MarkedSections(d), QList<int>{4});
    Enter(d, {"maxRecSizeEdit", "10", 4});
    d.Click("btnOk");
    QCOMPARE(MarkedSections(d), QList<int>());
}

void tst_RefusedFields::ClosingTakesTheMarksAway()
{
    SRealDialog d(m_host);
    d.Open();
    Enter(d, {"lineeditStayTime", "14", 6});
    d.Click("btnOk");
    d.Click("btnCancel");
    QCOMPARE(MarkedSections(d), QList<int>());
}

void tst_RefusedFields::ASectionThatTheHostRefusesIsShownAndMarked()
{
    m_host.record.m_nResult = 5;
    SRealDialog d(m_host);
    d.Open();
    d.Button("btnOk")->setFocus();
    d.Click("btnOk");
    QCOMPARE(MarkedSections(d), QList<int>{4});
    QCOMPARE(d.SelectedBoxes(), QList<int>{4});
    QCOMPARE(d.List()->GetCurrentIndex(), 4);
    QCOMPARE(d.ScrollBar()->value(), d.Box(4)->y() - 20);
    QVERIFY(d.Button("btnOk")->hasFocus());
}

void tst_RefusedFields::AFieldThatWasRefusedBeforeIsNotShownAgain()
{
    SRealDialog d(m_host);
    d.Open();
    Enter(d, {"picTmSpinBox", "0", 3});
    Enter(d, {"maxRecSizeEdit", "9", 4});
    d.Click("btnOk");
    Enter(d, {"maxRecSizeEdit", "10", 4});
    m_host.record.m_nResult = 5;
    d.Click("btnOk");
    QCoreApplication::processEvents();
    QVERIFY(d.Button("btnOk")->hasFocus());
}

void tst_RefusedFields::AKeptTextStaysMarkedUntilItIsGood_data()
{
    QTest::addColumn<QString>("strField");
    QTest::addColumn<QString>("strRefused");
    QTest::newRow("count") << "picNumEdit"
                           << "1";
    QTest::newRow("file size") << "maxRecSizeEdit"
                               << "9";
}

void tst_RefusedFields::AKeptTextStaysMarkedUntilItIsGood()
{
    QFETCH(QString, strRefused);
    SRealDialog d(m_host);
    Refuse(d);
    auto* pEdit = qobject_cast<KVGUI::KvLineEdit*>(m_pField);
    QCOMPARE(pEdit->text(), strRefused);
    QVERIFY(pEdit->IsErrorHintShown());
    Type(pEdit, "10");
    QTest::keyClick(pEdit, Qt::Key_Tab);
    QVERIFY(!pEdit->hasFocus());
    QVERIFY(!pEdit->IsErrorHintShown());
}

QTEST_MAIN(tst_RefusedFields)

#include "tst_RefusedFields.moc"
