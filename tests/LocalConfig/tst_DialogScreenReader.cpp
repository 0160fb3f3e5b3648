// What screen readers hear and find in the dialog with its real pages.

#include "support/AccessibleEvents.h"
#include "support/RealDialog.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QToolTip>

namespace
{

QAccessibleInterface* Accessible(QObject* pObject)
{
    return QAccessible::queryAccessibleInterface(pObject);
}

QString Description(QObject* pObject)
{
    return Accessible(pObject)->text(QAccessible::Description);
}

/// The controls below one, that are reached from it as a screen reader does.
QObjectList Walk(QAccessibleInterface* pTop)
{
    QObjectList listFound;
    for (int n = 0; n < pTop->childCount(); ++n)
    {
        QAccessibleInterface* pChild = pTop->child(n);
        if (pChild && pChild->object())
        {
            listFound += pChild->object();
            listFound += Walk(pChild);
        }
    }
    return listFound;
}

/// The alerts that are told while it lives, as far as they can be seen.
class CAlerts
{
public:
    CAlerts()
        : m_events([this](const QAccessibleEvent& event) {
            QAccessibleInterface* pInterface = event.accessibleInterface();
            if (event.type() == QAccessible::Alert && pInterface->role() == QAccessible::AlertMessage &&
                !pInterface->state().invisible)
            {
                m_listTexts += pInterface->text(QAccessible::Name);
            }
        })
    {}

    QStringList Take() { return std::exchange(m_listTexts, {}); }

private:
    QStringList m_listTexts;
    CAccessibleEvents m_events;
};

} // namespace

class tst_DialogScreenReader : public QObject
{
    Q_OBJECT

private slots:
    void init() { QApplication::desktop()->setGeometry(0, 0, 1920, 1080); }

    void ScrollingTellsOfNoFocus();
    void PickingASectionTellsOfItsEntry();
    void WhatStandsBesideAControlDescribesIt_data();
    void WhatStandsBesideAControlDescribesIt();
    void ACaptionLeadsToItsField_data();
    void ACaptionLeadsToItsField();
    void ABrowseButtonSaysOfWhat_data();
    void ABrowseButtonSaysOfWhat();
    void TheHiddenKeyTableIsNotExposed_data();
    void TheHiddenKeyTableIsNotExposed();
    void TheSplitButtonSaysWhatItShows();
    void AMessageAtAFieldThatIsLeftIsAnAlert_data();
    void AMessageAtAFieldThatIsLeftIsAnAlert();
    void AMessageAtAFieldThatIsLeftDescribesIt_data() { AMessageAtAFieldThatIsLeftIsAnAlert_data(); }
    void AMessageAtAFieldThatIsLeftDescribesIt();
    void TheTipOfARefusedSaveIsAnAlert();
    void AnOrdinaryTipIsNoAlert();
    void FindingNothingIsAnAlert();
    void TheFindFieldTellsItsMatch();

private:
    SRealHost m_host;
};

void tst_DialogScreenReader::ScrollingTellsOfNoFocus()
{
    SRealDialog d(m_host);
    d.Open();
    d.Button("btnOk")->setFocus();
    QStringList listFocused;
    const CAccessibleEvents events([&](const QAccessibleEvent& event) {
        if (event.type() == QAccessible::Focus)
        {
            listFocused += event.accessibleInterface()->text(QAccessible::Name);
        }
    });
    d.ScrollBar()->setValue(d.Box(5)->y());
    QCOMPARE(d.List()->GetCurrentIndex(), 5);
    QCOMPARE(listFocused, QStringList());
}

void tst_DialogScreenReader::PickingASectionTellsOfItsEntry()
{
    SRealDialog d(m_host);
    d.Open();
    d.List()->setFocus();
    QStringList listFocused;
    const CAccessibleEvents events([&](const QAccessibleEvent& event) {
        if (event.type() == QAccessible::Focus)
        {
            listFocused += event.accessibleInterface()->text(QAccessible::Name);
        }
    });
    QTest::keyClick(d.List(), Qt::Key_Down);
    QCOMPARE(listFocused, QStringList{"Video"});
}

void tst_DialogScreenReader::WhatStandsBesideAControlDescribesIt_data()
{
    QTest::addColumn<QString>("strText");
    const auto row = [](const char* pszControl, const char* pszText) { QTest::newRow(pszControl) << pszText; };
    row("videoCushionEdit", "0-1500 ms");
    row("instantTimeEdit", "10s-24h");
    row("timeUnitComboBox", "Time Unit");
    row("silenceTimeSpinBox", "(1-30 min)");
    row("wndSplitCmbBox", "When split exceeds threshold, sub stream is opened");
    row("picTmSpinBox", "(Not less than 1s)");
    row("picNumEdit", "(2-10)");
    row("maxRecSizeEdit", "(10-1500M)");
    row("cbxAlarmTypeForSound", "Alarm Type of the Sound");
    row("cbxAlarmTypeForMap", "Alarm Types that Flash");
    row("radioPreview", "Open Video Type");
    row("lineeditStayTime", "(15-65535s)");
    row("cmbTvWallWndSplitNum", "When split exceeds threshold, sub stream is opened");
    row("rdBtnTile", "Binding Mode");
    row("rdBtnInquiry", "Binding Mode");
    row("nkbRadioBtn", "Keyboard Type");
}

void tst_DialogScreenReader::WhatStandsBesideAControlDescribesIt()
{
    QFETCH(QString, strText);
    SRealDialog d(m_host);
    d.Open();
    QCOMPARE(Description(d.Find<QWidget>(QTest::currentDataTag())), strText);
}

void tst_DialogScreenReader::ACaptionLeadsToItsField_data()
{
    QTest::addColumn<QString>("strCaption");
    const auto row = [](const char* pszControl, const char* pszCaption) { QTest::newRow(pszControl) << pszCaption; };
    row("videoCushionEdit", "playmodelabel_2");
    row("instantComboBox", "label_2");
    row("silenceTimeSpinBox", "silentTimeLabel");
    row("maxRecSizeEdit", "maxRecSizeLabel");
    row("lineeditStayTime", "label_3");
}

void tst_DialogScreenReader::ACaptionLeadsToItsField()
{
    QFETCH(QString, strCaption);
    SRealDialog d(m_host);
    d.Open();
    auto* pControl = d.Find<QWidget>(QTest::currentDataTag());
    const QWidget* pPage = pControl;
    while (!qobject_cast<const LocalConfig::CGroupBox*>(pPage->parentWidget()))
    {
        pPage = pPage->parentWidget();
    }
    QObjectList listLabelled;
    for (const auto& relation : Accessible(pPage->findChild<QLabel*>(strCaption))->relations(QAccessible::Labelled))
    {
        listLabelled += relation.first->object();
    }
    QCOMPARE(listLabelled, QObjectList{pControl});
}

void tst_DialogScreenReader::ABrowseButtonSaysOfWhat_data()
{
    QTest::addColumn<QString>("strName");
    QTest::newRow("picPathEdit") << "Browse: Picture Path";
    QTest::newRow("recPathEdit") << "Browse: Record Path";
    QTest::newRow("editSoundPath") << "Browse: Sound Path";
}

void tst_DialogScreenReader::ABrowseButtonSaysOfWhat()
{
    QFETCH(QString, strName);
    SRealDialog d(m_host);
    d.Open();
    auto* pButton = d.Find<QWidget>(QTest::currentDataTag())->findChild<QWidget*>("btnBrowse");
    QCOMPARE(Accessible(pButton)->text(QAccessible::Name), strName);
}

void tst_DialogScreenReader::TheHiddenKeyTableIsNotExposed_data()
{
    QTest::addColumn<QString>("strButton");
    QTest::addColumn<QString>("strShown");
    QTest::addColumn<QString>("strHidden");
    QTest::newRow("keyboard") << "pcRadioBtn"
                              << "pckeyboardView"
                              << "nkbView";
    QTest::newRow("joystick") << "nkbRadioBtn"
                              << "nkbView"
                              << "pckeyboardView";
}

void tst_DialogScreenReader::TheHiddenKeyTableIsNotExposed()
{
    QFETCH(QString, strButton);
    QFETCH(QString, strShown);
    QFETCH(QString, strHidden);
    SRealDialog d(m_host);
    d.Open();
    QTest::mouseClick(d.Find<QWidget>(qPrintable(strButton)), Qt::LeftButton);
    auto* pShown = d.dialog.findChild<QAbstractItemView*>(strShown);
    const QObjectList listFound = Walk(Accessible(&d.dialog));
    QVERIFY(listFound.contains(pShown));
    QVERIFY(!listFound.contains(d.dialog.findChild<QAbstractItemView*>(strHidden)));
    QAccessibleInterface* pPage = Accessible(pShown->parentWidget());
    QCOMPARE(pPage->child(pPage->indexOfChild(Accessible(pShown)))->object(), pShown);
}

void tst_DialogScreenReader::TheSplitButtonSaysWhatItShows()
{
    SRealDialog d(m_host);
    d.Open();
    auto* pButton = d.Find<QAbstractButton>("btnShowSplitWnd");
    QCOMPARE(Description(pButton), QString("4 Windows"));
    QTest::mouseClick(pButton, Qt::LeftButton);
    QTest::mouseClick(d.Find<QAbstractButton>("btnDiv9"), Qt::LeftButton);
    QCOMPARE(Description(pButton), QString("9 Windows"));
}

void tst_DialogScreenReader::AMessageAtAFieldThatIsLeftIsAnAlert_data()
{
    QTest::addColumn<QString>("strText");
    QTest::newRow("picNumEdit") << "Continuously snapshot 2-10 pic.";
    QTest::newRow("maxRecSizeEdit") << "Max size of a file must be within 10-1500.";
    QTest::newRow("lineeditStayTime") << "Stay time must be within 15-65535s.";
}

void tst_DialogScreenReader::AMessageAtAFieldThatIsLeftIsAnAlert()
{
    QFETCH(QString, strText);
    SRealDialog d(m_host);
    d.Open();
    Walk(Accessible(&d.dialog)); // as a reader may have done before
    auto* pField = d.Find<QLineEdit>(QTest::currentDataTag());
    CAlerts alerts;
    for (int n = 0; n < 2; ++n) // each time it is left
    {
        pField->setFocus();
        pField->selectAll();
        QTest::keyClick(pField, Qt::Key_Delete);
        d.Button("btnOk")->setFocus();
        QCOMPARE(alerts.Take(), QStringList{strText});
    }
}

void tst_DialogScreenReader::AMessageAtAFieldThatIsLeftDescribesIt()
{
    QFETCH(QString, strText);
    SRealDialog d(m_host);
    d.Open();
    auto* pField = d.Find<QLineEdit>(QTest::currentDataTag());
    const QString strOwn = Description(pField);
    pField->setFocus();
    pField->selectAll();
    QTest::keyClick(pField, Qt::Key_Delete);
    d.Button("btnOk")->setFocus();
    QCOMPARE(Description(pField), strText);
    pField->setFocus();
    QCOMPARE(Description(pField), strOwn);
}

void tst_DialogScreenReader::TheTipOfARefusedSaveIsAnAlert()
{
    SRealDialog d(m_host);
    d.Open();
    auto* pField = d.Find<QLineEdit>("lineeditStayTime");
    pField->setFocus();
    pField->selectAll();
    QTest::keyClick(pField, Qt::Key_Delete);
    CAlerts alerts;
    d.Click("btnOk");
    QVERIFY(alerts.Take().contains("Stay time must be within 15-65535s."));
}

void tst_DialogScreenReader::AnOrdinaryTipIsNoAlert()
{
    SRealDialog d(m_host);
    d.Open();
    CAlerts alerts;
    QToolTip::showText(d.dialog.mapToGlobal(QPoint(10, 10)), "Tile", &d.dialog);
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(alerts.Take(), QStringList());
}

void tst_DialogScreenReader::FindingNothingIsAnAlert()
{
    SRealDialog d(m_host);
    d.Open();
    QTest::keyClick(d.dialog.windowHandle(), Qt::Key_F, Qt::ControlModifier);
    CAlerts alerts;
    QTest::keyClicks(d.dialog.focusWidget(), "xyz");
    QCOMPARE(alerts.Take().value(0), QString("No match"));
}

void tst_DialogScreenReader::TheFindFieldTellsItsMatch()
{
    SRealDialog d(m_host);
    d.Open();
    QTest::keyClick(d.dialog.windowHandle(), Qt::Key_F, Qt::ControlModifier);
    QWidget* pField = d.dialog.focusWidget();
    QCOMPARE(Accessible(pField)->text(QAccessible::Name), QString("Find"));
    QTest::keyClicks(pField, "auto login");
    QCOMPARE(Description(pField), QString("1 of 1: Auto Login"));
}

QTEST_MAIN(tst_DialogScreenReader)

#include "tst_DialogScreenReader.moc"
