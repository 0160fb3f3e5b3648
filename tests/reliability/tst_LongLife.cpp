// The dialog is opened and closed again and again, as over weeks at a workstation, and leaves nothing behind.

#include "support/Chance.h"
#include "support/RealDialog.h"

#include <KvGui/KvRadioButton.h>
#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CPathEdit.h>

#include <QComboBox>
#include <QPixmapCache>
#include <QTemporaryDir>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // GCC comes without the header that declares it
#else
#include <malloc.h>
#endif

namespace
{

constexpr int g_nWarmUp = 20; // rounds until all that is kept on purpose has been made
constexpr qint64 g_nMaxGrowth = 64 * 1024;

qint64 HeapInUse()
{
#ifdef __SANITIZE_ADDRESS__
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
#endif
}

} // namespace

class tst_LongLife : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void NoWidgetOutlivesTheDialog();
    void TheHeapDoesNotGrow();

private:
    void Round();
    static void OpenAndClose(QComboBox* pBox);

    QTemporaryDir m_folder;
};

void tst_LongLife::initTestCase()
{
    qputenv("PULSE_SERVER", "unix:/nonexistent");
    QVERIFY(QDir::setCurrent(m_folder.path()));
    QPixmapCache::setCacheLimit(0); // else Qt keeps pictures up to a limit that only some hundred dialogs reach
    QApplication::desktop()->setGeometry(0, 0, 1920, 1080);
    KVGUI::KvSingleton<KVGUI::KvMessageNotify>::Instance()->SetDuration(1);
}

void tst_LongLife::cleanupTestCase()
{
    QVERIFY(QDir::setCurrent("/"));
}

void tst_LongLife::OpenAndClose(QComboBox* pBox)
{
    pBox->showPopup();
    QCoreApplication::processEvents();
    pBox->hidePopup();
}

/// The whole of what an operator does with the dialog, on every page.
void tst_LongLife::Round()
{
    SRealHost host;
    host.alarm.m_record.flashCategories = {{1, false}, {2, true}, {3, false}};
    for (int nType : {201, 302, 967})
    {
        host.alarm.m_record.alarmSounds[nType].alarmType = nType;
    }
    SRealDialog d(host);
    d.Open();
    for (const SBox& box : g_arrBoxes)
    {
        d.List()->SetCurrentIndex(box.nIndex);
        QCoreApplication::processEvents();
    }
    for (QComboBox* pBox : d.dialog.findChildren<QComboBox*>())
    {
        OpenAndClose(pBox);
    }
    d.Click("btnShowSplitWnd");
    d.Click("btnShowSplitWnd");
    QTest::keyClicks(d.Find<UICommonMdl::CPathEdit>("picPathEdit"), "x");
    host.loginManager.Notify(3, 0);
    host.loginManager.Notify(2, 0);

    host.video.m_nResult = -1;
    d.Click("btnOk"); // refused, which is said in the notification bar
    QVERIFY(d.dialog.isVisible());
    host.video.m_nResult = 0;
    d.Click("btnOther");
    d.Click("btnOk");
    QVERIFY(!d.dialog.isVisible());
    QTest::qWait(2); // for the notification to go
}

void tst_LongLife::NoWidgetOutlivesTheDialog()
{
    Round();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const int nWidgets = QApplication::allWidgets().size();
    const int nRounds = Repetitions(4, 199);
    for (int nRound = 0; nRound < nRounds && !QTest::currentTestFailed(); ++nRound)
    {
        Round();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(QApplication::allWidgets().size(), nWidgets);
    }
}

void tst_LongLife::TheHeapDoesNotGrow()
{
    const int nRounds = Repetitions(50, 200);
    qint64 nWarm = 0;
    for (int nRound = 1; nRound <= nRounds && !QTest::currentTestFailed(); ++nRound)
    {
        Round();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (nRound == g_nWarmUp)
        {
            nWarm = HeapInUse();
        }
    }
    const qint64 nGrowth = HeapInUse() - nWarm;
    Tell(QString("%1 bytes in use after %2 rounds, %3 bytes more after %4")
             .arg(nWarm)
             .arg(g_nWarmUp)
             .arg(nGrowth)
             .arg(nRounds));
    QVERIFY(nGrowth < g_nMaxGrowth);
}

PROOF_MAIN(tst_LongLife)

#include "tst_LongLife.moc"
