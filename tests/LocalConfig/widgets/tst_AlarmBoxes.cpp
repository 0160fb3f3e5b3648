// The two alarm boxes where they are used: on the Alarm page in the dialog.

#include "support/RealDialog.h"

#include <KvGui/KvListWidget.h>
#include <LocalConfig/widgets/QCheckableComboBox.h>
#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CAlarmTypeCombox.h>

#include <QAccessible>
#include <QTemporaryFile>

#include <functional>

using KVGUI::KvListWidget;
using LocalConfig::QCheckableComboBox;
using UICommonMdl::CAlarmType;

namespace
{

/// The dialog with its map box, whose list is "All", category 2, category 3.
struct SMapBox : SRealDialog
{
    explicit SMapBox(SRealHost& realHost)
        : SRealDialog(realHost)
    {
        realHost.alarm.m_record.flashCategories = {{2, true}, {3, false}};
    }

    void Open()
    {
        SRealDialog::Open();
        pBox = Find<QCheckableComboBox>("cbxAlarmTypeForMap");
        strBefore = pBox->currentText();
    }

    KvListWidget* List() const { return qobject_cast<KvListWidget*>(pBox->view()); }

    /// A key as the window system delivers it: to the list while that is open.
    void Press(int nKey, Qt::KeyboardModifiers eModifiers = {})
    {
        QTest::keyClick((List()->isVisible() ? List()->window() : &dialog)->windowHandle(), Qt::Key(nKey), eModifiers);
    }

    void OpenList()
    {
        pBox->setFocus();
        Press(Qt::Key_Down, Qt::AltModifier);
        QVERIFY(List()->isVisible());
    }

    QCheckableComboBox* pBox = nullptr;
    QString strBefore;
};

using Close = std::function<void(SMapBox&)>;

} // namespace

Q_DECLARE_METATYPE(Close)

class tst_AlarmBoxes : public QObject
{
    Q_OBJECT

private slots:
    void TheMapBoxIsWorkedByKeyboard();
    void TheClosedMapBoxOpens_data();
    void TheClosedMapBoxOpens();
    void ClosingTheMapBoxsListDoesNoMore_data();
    void ClosingTheMapBoxsListDoesNoMore();
    void HidingTheDialogClosesTheMapBoxsList();
    void TheSoundBoxKeepsItsTypeOverANewCatalogue();
};

void tst_AlarmBoxes::TheMapBoxIsWorkedByKeyboard()
{
    SRealHost host;
    SMapBox d(host);
    d.Open();
    QVERIFY(!d.strBefore.isEmpty());
    d.OpenList();
    for (int nKey : {Qt::Key_Down, Qt::Key_Space, Qt::Key_Down, Qt::Key_Space, Qt::Key_Return})
    {
        d.Press(nKey);
    }
    QVERIFY(!d.List()->isVisible());
    QVERIFY(!d.pBox->currentText().isEmpty());
    QVERIFY(d.pBox->currentText() != d.strBefore);
    d.Click("btnOk");
    QCOMPARE(host.alarm.m_record.flashCategories, (std::map<std::int32_t, bool>{{2, false}, {3, true}}));
}

void tst_AlarmBoxes::TheClosedMapBoxOpens_data()
{
    QTest::addColumn<int>("nKey");
    QTest::newRow("Up") << int(Qt::Key_Up);
    QTest::newRow("Down") << int(Qt::Key_Down);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_AlarmBoxes::TheClosedMapBoxOpens()
{
    QFETCH(int, nKey);
    SRealHost host;
    SMapBox d(host);
    d.Open();
    d.pBox->setFocus();
    d.Press(nKey);
    QVERIFY(d.List()->isVisible());
    d.Press(Qt::Key_Escape);
    QVERIFY(!d.List()->isVisible());
    QVERIFY(d.dialog.isVisible());
    QCOMPARE(d.pBox->currentText(), d.strBefore);
}

void tst_AlarmBoxes::ClosingTheMapBoxsListDoesNoMore_data()
{
    QTest::addColumn<int>("nKey");
    QTest::addColumn<int>("nModifiers");
    QTest::newRow("Return") << int(Qt::Key_Return) << 0;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier);
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0;
    QTest::newRow("Alt+Up") << int(Qt::Key_Up) << int(Qt::AltModifier);
}

void tst_AlarmBoxes::ClosingTheMapBoxsListDoesNoMore()
{
    QFETCH(int, nKey);
    QFETCH(int, nModifiers);
    SRealHost host;
    SMapBox d(host);
    d.Open();
    d.OpenList();
    d.Press(nKey, Qt::KeyboardModifiers(nModifiers));
    QVERIFY(!d.List()->isVisible());
    QVERIFY(d.dialog.isVisible());
    QVERIFY(d.pBox->hasFocus());
    QCOMPARE(d.pBox->currentText(), d.strBefore);
    QVERIFY(!host.journal.Take().contains("SaveAll"));
}

void tst_AlarmBoxes::HidingTheDialogClosesTheMapBoxsList()
{
    SRealHost host;
    SMapBox d(host);
    d.Open();
    d.OpenList();
    d.dialog.hide();
    QVERIFY(!d.List()->isVisible());
    QCOMPARE(d.pBox->currentText(), d.strBefore);
}

void tst_AlarmBoxes::TheSoundBoxKeepsItsTypeOverANewCatalogue()
{
    SRealHost host;
    SRealDialog d(host);
    d.Open();
    auto* pBox = d.Find<UICommonMdl::CAlarmTypeCombox>("cbxAlarmTypeForSound");
    pBox->setFocus();
    QTest::keyClick(pBox, Qt::Key_Down);
    for (int nKey : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Return})
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(nKey));
    }
    CAlarmType* pCatalogue = CAlarmType::Instance();
    const int nType = pCatalogue->GetAlarmTypeIdByIndex(pBox->GetCurrentChosenItem().value(0));
    QVERIFY(nType > 0);

    QTemporaryFile file;
    QVERIFY(file.open());
    file.write(QString("<AlarmTypes><Category id='2' name='Other'><Group id='5' name='Other'>"
                       "<Type id='77' name='Other'/><Type id='78' name='Another'/><Type id='79' name='One more'/>"
                       "<Type id='%1' name='The same'/></Group></Category></AlarmTypes>")
                   .arg(nType)
                   .toUtf8());
    file.flush();
    pCatalogue->Load(file.fileName());

    QCOMPARE(pBox->GetCurrentChosenItem(), QList<int>{3});
    QCOMPARE(QAccessible::queryAccessibleInterface(pBox)->text(QAccessible::Value), QString("The same"));
    pCatalogue->Load();
}

QTEST_MAIN(tst_AlarmBoxes)

#include "tst_AlarmBoxes.moc"
