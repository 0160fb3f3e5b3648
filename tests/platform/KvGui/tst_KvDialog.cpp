#include <KvGui/KvDialog.h>

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

using KVGUI::KvDialog;

namespace
{

/// A dialog with one field, which counts how often it was asked to close and may refuse.
class CDialog : public KvDialog
{
public:
    explicit CDialog(QWidget* pParent = nullptr)
        : KvDialog(pParent)
    {
        auto* pLayout = new QVBoxLayout(GetContentWidget());
        m_pField = new QLineEdit(GetContentWidget());
        pLayout->addWidget(m_pField);
    }

    void OnCloseBtmClicked() override
    {
        ++m_nAsked;
        if (!m_bRefuse)
        {
            KvDialog::OnCloseBtmClicked();
        }
    }

    void Close(const QString& strWay)
    {
        if (strWay == "button")
        {
            QTest::mouseClick(findChild<QToolButton*>("btnClose"), Qt::LeftButton);
        }
        else if (strWay == "Escape")
        {
            QTest::keyClick(this, Qt::Key_Escape);
        }
        else
        {
            close();
        }
    }

    QLineEdit* m_pField;
    int m_nAsked = 0;
    bool m_bRefuse = false;
};

void Ways()
{
    QTest::addColumn<QString>("strWay");
    for (const char* pszWay : {"button", "Escape", "window manager"})
    {
        QTest::newRow(pszWay) << pszWay;
    }
}

} // namespace

class tst_KvDialog : public QObject
{
    Q_OBJECT

private slots:
    void HasNoFrameOfTheSystem();
    void TitleStandsInBarAndTaskBar();
    void LongTitleIsElided();
    void EveryWayToCloseAsksOnce_data() { Ways(); }
    void EveryWayToCloseAsksOnce();
    void ARefusalKeepsItOpen_data() { Ways(); }
    void ARefusalKeepsItOpen();
    void ExecReturnsRejected();
    void AcceptDoesNotAsk();
    void TitleBarDrags();
    void ContentHasTheFocusFirst();
    void CloseButtonIsReachedByKeyboard();
    void CloseButtonHasAName();
    void StandsInTheMiddleOfItsParent();
    void HasItsPlaceBeforeItHasAWindow();
    void TakesTheSizeItsContentNeeds();
};

void tst_KvDialog::HasNoFrameOfTheSystem()
{
    const CDialog dialog;
    QVERIFY(dialog.windowFlags() & Qt::FramelessWindowHint);
    QCOMPARE(dialog.windowType(), Qt::Dialog);
}

void tst_KvDialog::TitleStandsInBarAndTaskBar()
{
    CDialog dialog;
    dialog.resize(400, 200);
    dialog.SetTitle("Some title");
    dialog.show();
    QCOMPARE(dialog.windowTitle(), QString("Some title"));
    QCOMPARE(dialog.findChild<QLabel*>("titleLabel")->text(), QString("Some title"));
}

void tst_KvDialog::LongTitleIsElided()
{
    CDialog dialog;
    dialog.SetTitle(QString(500, 'x'));
    dialog.resize(200, 100);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const auto* pLabel = dialog.findChild<QLabel*>("titleLabel");
    QVERIFY(pLabel->text().endsWith(QChar(0x2026)));
    QVERIFY(pLabel->fontMetrics().horizontalAdvance(pLabel->text()) <= pLabel->width());
    QCOMPARE(dialog.windowTitle().size(), 500);
    QCOMPARE(pLabel->toolTip(), dialog.windowTitle());
    QCOMPARE(dialog.width(), 200);
}

void tst_KvDialog::EveryWayToCloseAsksOnce()
{
    QFETCH(QString, strWay);
    CDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.Close(strWay);
    QCOMPARE(dialog.m_nAsked, 1);
    QVERIFY(!dialog.isVisible());
    QCOMPARE(rejected.size(), 1);
    QCOMPARE(finished.size(), 1);
}

void tst_KvDialog::ARefusalKeepsItOpen()
{
    QFETCH(QString, strWay);
    CDialog dialog;
    dialog.m_bRefuse = true;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.Close(strWay);
    QCOMPARE(dialog.m_nAsked, 1);
    QVERIFY(dialog.isVisible());
    QCOMPARE(finished.size(), 0);
}

void tst_KvDialog::ExecReturnsRejected()
{
    CDialog dialog;
    QTimer::singleShot(0, &dialog, [&dialog] { dialog.Close("button"); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

void tst_KvDialog::AcceptDoesNotAsk()
{
    CDialog dialog;
    QTimer::singleShot(0, &dialog, &QDialog::accept);
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.m_nAsked, 0);
}

void tst_KvDialog::TitleBarDrags()
{
    CDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const QPoint before = dialog.pos();
    auto* pBar = dialog.findChild<QWidget*>("titleBar");
    const QPoint grip(20, 10);
    QTest::mousePress(pBar, Qt::LeftButton, {}, grip);
    const QPoint target = pBar->mapToGlobal(grip) + QPoint(30, 40);
    QMouseEvent move(QEvent::MouseMove, grip + QPoint(30, 40), target, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(pBar, &move);
    QTest::mouseRelease(pBar, Qt::LeftButton);
    QCOMPARE(dialog.pos() - before, QPoint(30, 40));

    QMouseEvent later(QEvent::MouseMove, grip, target + QPoint(9, 9), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(pBar, &later);
    QCOMPARE(dialog.pos() - before, QPoint(30, 40));
}

void tst_KvDialog::ContentHasTheFocusFirst()
{
    CDialog dialog;
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCOMPARE(dialog.focusWidget(), dialog.m_pField);
}

void tst_KvDialog::CloseButtonIsReachedByKeyboard()
{
    CDialog dialog;
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(dialog.m_pField, Qt::Key_Tab);
    QCOMPARE(dialog.focusWidget()->objectName(), QString("btnClose"));
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
    QVERIFY(!dialog.isVisible());
}

void tst_KvDialog::CloseButtonHasAName()
{
    const CDialog dialog;
    const auto* pButton = dialog.findChild<QToolButton*>("btnClose");
    QCOMPARE(pButton->accessibleName(), QString("Close"));
    QCOMPARE(pButton->toolTip(), QString("Close"));
}

void tst_KvDialog::StandsInTheMiddleOfItsParent()
{
    QWidget parent;
    parent.setGeometry(100, 100, 600, 400);
    parent.show();
    CDialog dialog(&parent);
    dialog.resize(200, 100);
    dialog.show();
    const QPoint distance = dialog.geometry().center() - parent.geometry().center();
    QVERIFY(qAbs(distance.x()) <= 1 && qAbs(distance.y()) <= 1);
}

void tst_KvDialog::HasItsPlaceBeforeItHasAWindow()
{
    QWidget parent;
    parent.setGeometry(100, 100, 500, 400);
    parent.show();
    KvDialog dialog(&parent);
    class CPlaces : public QObject
    {
    public:
        QList<QPoint> m_listPlaces;

    protected:
        bool eventFilter(QObject* pWatched, QEvent* pEvent) override
        {
            const auto* pDialog = static_cast<QWidget*>(pWatched);
            if (pEvent->type() == QEvent::WinIdChange || (pEvent->type() == QEvent::Move && pDialog->windowHandle()))
            {
                m_listPlaces += pDialog->pos();
            }
            return false;
        }
    } places;
    dialog.installEventFilter(&places);
    dialog.resize(200, 100);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QVERIFY(!places.m_listPlaces.isEmpty());
    QCOMPARE(places.m_listPlaces.count(dialog.pos()), places.m_listPlaces.size());
}

void tst_KvDialog::TakesTheSizeItsContentNeeds()
{
    CDialog dialog;
    dialog.m_pField->setMinimumSize(780, 590); // most of this platform's screen
    dialog.show();
    QCOMPARE(dialog.size(), dialog.sizeHint());
}

QTEST_MAIN(tst_KvDialog)

#include "tst_KvDialog.moc"
