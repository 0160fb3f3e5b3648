// A monkey at the real dialog: whatever keys, mouse, platform and host do, in whatever order, the dialog stays whole.

#include "support/RandomRecords.h"
#include "support/RealDialog.h"
#include "support/Wheel.h"

#include <UICommonModule/CAlarmType.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QPointer>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <memory>
#include <thread>

using namespace LocalConfigLogical;

namespace
{

constexpr int g_nTrail = 40;           // steps that a failure tells of
constexpr int g_nDoubleClickTime = 10; // milliseconds; for as long a box that has just opened does not take a pick

/// QObject::receivers, which is for heirs only.
class CReceivers : public QObject
{
public:
    static int Count(const QObject* pSender, const char* pszSignal)
    {
        return (pSender->*(&CReceivers::receivers))(pszSignal);
    }
};

QStringList g_listWarnings;

/// Qt's own complaints, except of what the platform plug-in for tests cannot do, of pictures for split counts that
/// there are not, and of paths that are none; a host's record may well hold such.
void TakeWarning(QtMsgType eType, const QMessageLogContext& /*context*/, const QString& strMessage)
{
    const bool bExpected = strMessage.startsWith("This plugin does not support") ||
                           strMessage.startsWith("PulseAudioService") ||
                           strMessage == "Broken filename passed to function";
    if (eType != QtDebugMsg && eType != QtInfoMsg && !bExpected)
    {
        g_listWarnings += strMessage;
    }
}

struct SModifier
{
    Qt::KeyboardModifier eModifier = Qt::NoModifier;
    Qt::Key eKey = Qt::Key_unknown;
};

constexpr SModifier g_arrModifiers[] = {
    {Qt::ShiftModifier, Qt::Key_Shift}, {Qt::ControlModifier, Qt::Key_Control}, {Qt::AltModifier, Qt::Key_Alt}};

constexpr Qt::Key g_arrKeys[] = {
    Qt::Key_Tab,   Qt::Key_Tab,   Qt::Key_Backtab,   Qt::Key_Return, Qt::Key_Enter,  Qt::Key_Escape, Qt::Key_Space,
    Qt::Key_Up,    Qt::Key_Down,  Qt::Key_Left,      Qt::Key_Right,  Qt::Key_PageUp, Qt::Key_Home,   Qt::Key_End,
    Qt::Key_F4,    Qt::Key_F1,    Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_A,      Qt::Key_C,      Qt::Key_V,
    Qt::Key_X,     Qt::Key_Z,     Qt::Key_0,         Qt::Key_1,      Qt::Key_5,      Qt::Key_9,      Qt::Key_PageDown,
    Qt::Key_Minus, Qt::Key_Slash, Qt::Key_Menu,      Qt::Key_M,      Qt::Key_S};

} // namespace

class tst_Monkey : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void NothingItDoesBreaksTheDialog();

private:
    struct SAct
    {
        const char* pszName;
        int nWeight;
        std::function<void()> act;
    };

    void OpenDialog();
    void CloseDialog();
    void Step();
    QString FindFault();

    void Click();
    void ClickNavigation();
    void ClickButton();
    void PressKey();
    void TypeText();
    void TurnTheWheel();
    void ChangeLogin();
    void HideOrShow();
    void UseControl();
    void LoseFocus();
    void ChangeHost();
    void AnswerLoop();
    void AnswerFileDialog(QFileDialog& dialog);
    void AnswerOther(QWidget& inFront);

    QWidget* Target() const;
    QPoint PlaceIn(QWidget* pTarget);
    Qt::KeyboardModifiers Modifiers();
    void ClickAt(QWidget* pTarget, const QPoint& place, Qt::MouseButton eButton, Qt::KeyboardModifiers eModifiers);
    static void Key(const QPointer<QWindow>& pWindow, QEvent::Type eType, Qt::Key eKey,
                    Qt::KeyboardModifiers eModifiers, const QString& strText);
    void Mouse(QWidget* pTarget, const QPoint& place, QEvent::Type eType, Qt::MouseButton eButton,
               Qt::KeyboardModifiers eModifiers);
    void Note(const QString& strWhat) { m_listTrail.last() += QLatin1Char(' ') + strWhat; }

    CChance m_chance;
    CRandomRecords m_records{m_chance};
    QTemporaryDir m_folder;
    std::unique_ptr<SRealHost> m_pHost;
    std::unique_ptr<SRealDialog> m_pDialog;
    QPointer<QWidget> m_pAlive;
    QPointer<QWidget> m_pPopupBefore;
    QPointer<QWidget> m_pBeingAnswered;
    int m_nScrollReceivers = 0;
    int m_nSaves = 0;
    int m_nTime = 0;
    int m_nLoops = 0;
    int m_nPopups = 0;
    int m_nStored = 0;
    QStringList m_listTrail;
};

void tst_Monkey::initTestCase()
{
    QLoggingCategory::setFilterRules("qt.svg=false"); // there are no pictures for most numbers of windows
    qputenv("PULSE_SERVER", "unix:/nonexistent");
    QVERIFY(QDir::setCurrent(m_folder.path()));
    for (const char* pszFile : {"one.wav", "two.txt"})
    {
        QFile file(m_folder.filePath(pszFile));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("RIFF") == 4);
    }
    QApplication::desktop()->setGeometry(0, 0, 1920, 1080);
    QApplication::setDoubleClickInterval(g_nDoubleClickTime);
}

void tst_Monkey::cleanupTestCase()
{
    QVERIFY(QDir::setCurrent("/"));
}

void tst_Monkey::NothingItDoesBreaksTheDialog()
{
    QTimer ticks; // for the loops that menus and modal dialogs run
    connect(&ticks, &QTimer::timeout, this, [this] { QTimer::singleShot(0, this, &tst_Monkey::AnswerLoop); });
    ticks.start(2);
    const QtMessageHandler pHandler = qInstallMessageHandler(&TakeWarning);
    QString strFault;
    OpenDialog();
    const int nSteps = Repetitions(2000, 100000);
    for (int nStep = 0; nStep < nSteps && strFault.isEmpty(); ++nStep)
    {
        m_listTrail += QString::number(nStep);
        m_listTrail = m_listTrail.mid(m_listTrail.size() - g_nTrail);
        m_nSaves = 0;
        m_pPopupBefore = QApplication::activePopupWidget();
        Step();
        strFault = FindFault();
    }
    CloseDialog();
    qInstallMessageHandler(pHandler);
    if (!strFault.isEmpty())
    {
        Tell("The last steps:\n" + m_listTrail.join('\n'));
        QFAIL(qPrintable(strFault));
    }
    Tell(QString("%1 steps, %2 menus and dialogs answered, %3 popups opened, %4 times stored")
             .arg(nSteps)
             .arg(m_nLoops)
             .arg(m_nPopups)
             .arg(m_nStored));
    QVERIFY(m_nLoops > 0);
    QVERIFY(m_nPopups > 0);
    QVERIFY(m_nStored > 0);
}

void tst_Monkey::OpenDialog()
{
    m_pHost = std::make_unique<SRealHost>();
    m_pHost->alarm.m_record.flashCategories = {{1, false}, {2, true}, {3, false}, {6, true}, {9, true}};
    for (int nType : {201, 302, 967, 3100, 3131})
    {
        m_pHost->alarm.m_record.alarmSounds[nType].alarmType = nType;
    }
    if (m_chance.OneIn(3))
    {
        m_pHost->userRight.m_setMissing = {26, 45};
    }
    m_pDialog = std::make_unique<SRealDialog>(*m_pHost);
    m_pAlive = &m_pDialog->dialog;
    m_pDialog->dialog.setModal(true);
    m_pDialog->Open();
    m_nScrollReceivers = CReceivers::Count(m_pDialog->ScrollBar(), SIGNAL(valueChanged(int)));
    connect(m_pDialog->Button("btnOk"), &QAbstractButton::clicked, this, [this] { ++m_nSaves; });
}

void tst_Monkey::CloseDialog()
{
    m_pDialog.reset();
    m_pHost.reset();
}

void tst_Monkey::Step()
{
    const SAct arrActs[] = {
        {"click", 30, [this] { Click(); }},        {"navigation", 8, [this] { ClickNavigation(); }},
        {"button", 4, [this] { ClickButton(); }},  {"key", 30, [this] { PressKey(); }},
        {"text", 10, [this] { TypeText(); }},      {"wheel", 8, [this] { TurnTheWheel(); }},
        {"login", 4, [this] { ChangeLogin(); }},   {"visibility", 2, [this] { HideOrShow(); }},
        {"control", 20, [this] { UseControl(); }}, {"other window", 1, [this] { LoseFocus(); }},
        {"host", 2, [this] { ChangeHost(); }},
    };
    int nWeights = 0;
    for (const SAct& act : arrActs)
    {
        nWeights += act.nWeight;
    }
    if (!m_pDialog->dialog.isVisible()) // it has been closed by its own buttons
    {
        m_pDialog->dialog.show();
        QApplication::setActiveWindow(&m_pDialog->dialog);
    }
    int nChosen = m_chance.Below(nWeights);
    const SAct* pAct = arrActs;
    while (nChosen >= pAct->nWeight)
    {
        nChosen -= pAct->nWeight;
        ++pAct;
    }
    Note(QString::fromLatin1(pAct->pszName));
    pAct->act();
    QCoreApplication::processEvents();
    if (m_pPopupBefore && QApplication::activePopupWidget() == m_pPopupBefore)
    {
        // A popup has one step to be used; then a click elsewhere takes it away.
        Note("close");
        Mouse(&m_pDialog->dialog, {2, 2}, QEvent::MouseButtonPress, Qt::LeftButton, {});
        Mouse(&m_pDialog->dialog, {2, 2}, QEvent::MouseButtonRelease, Qt::LeftButton, {});
    }
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// What is wrong after a step, for people; empty: nothing.
QString tst_Monkey::FindFault()
{
    if (!m_pAlive)
    {
        return "the dialog is gone";
    }
    const QList<int> listSelected = m_pDialog->SelectedBoxes();
    if (listSelected.size() != 1)
    {
        return QString("%1 sections are selected").arg(listSelected.size());
    }
    const bool bHiddenBox = !m_pDialog->Box(listSelected[0])->isVisibleTo(&m_pDialog->dialog);
    if (!bHiddenBox && m_pDialog->List()->GetCurrentIndex() != listSelected[0])
    {
        return QString("section %1 is selected, entry %2 is current")
            .arg(listSelected[0])
            .arg(m_pDialog->List()->GetCurrentIndex());
    }

    if (!g_listWarnings.isEmpty())
    {
        return "warned: " + g_listWarnings.join(", ");
    }

    const QStringList listCalls = m_pHost->journal.Take();
    m_nStored += listCalls.count("SaveAll");
    if (listCalls.count("SaveAll") > m_nSaves || (m_nSaves == 0 && listCalls.contains("SetConfig true")))
    {
        return QString("stored, after %1 presses of Save: %2").arg(m_nSaves).arg(listCalls.join(", "));
    }

    for (const SBox& box : g_arrBoxes)
    {
        if (CReceivers::Count(m_pDialog->Box(box.nIndex), SIGNAL(SignalGroupBoxClicked(int))) != 1)
        {
            return QString("the click into %1 is not connected once").arg(box.pszBox);
        }
    }
    if (CReceivers::Count(m_pDialog->List(), SIGNAL(SignalCurrentIndexChanged(int))) != 1 ||
        CReceivers::Count(m_pDialog->ScrollBar(), SIGNAL(valueChanged(int))) != m_nScrollReceivers)
    {
        return "a signal of the navigation is not connected once";
    }

    const QWidget* pModal = QApplication::activeModalWidget();
    if (pModal && pModal != m_pAlive)
    {
        return QString("left open: %1").arg(pModal->metaObject()->className());
    }
    const QWidget* pPopup = QApplication::activePopupWidget();
    if (pPopup && pPopup == m_pPopupBefore)
    {
        return QString("left open: the popup %1").arg(pPopup->metaObject()->className());
    }
    m_nPopups += pPopup ? 1 : 0;
    const QWidgetList listWindows = QApplication::topLevelWidgets();
    for (const QWidget* pWindow : listWindows)
    {
        if (pWindow->isVisible() && pWindow != m_pAlive && pWindow != pPopup && pWindow->windowType() != Qt::ToolTip)
        {
            return QString("left open: the window %1 %2")
                .arg(pWindow->metaObject()->className(), pWindow->objectName());
        }
    }
    return QString();
}

// --- What the monkey does

void tst_Monkey::Click()
{
    static constexpr Qt::MouseButton arrButtons[] = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton,  Qt::LeftButton,
                                                     Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    QWidget* pTarget = Target();
    const QPoint place = PlaceIn(pTarget);
    const QWidget* pChild = pTarget->childAt(place);
    Note(QString("%1 (%2, %3) %4")
             .arg(pTarget->objectName())
             .arg(place.x())
             .arg(place.y())
             .arg(pChild ? pChild->objectName() : QString()));
    ClickAt(pTarget, place, m_chance.OneOf(arrButtons), Modifiers());
}

void tst_Monkey::ClickNavigation()
{
    const QAbstractItemView* pList = m_pDialog->List();
    const QModelIndex index = pList->model()->index(m_chance.Below(pList->model()->rowCount()), 0);
    const QPoint place =
        pList->viewport()->mapTo(&m_pDialog->dialog, pList->visualRect(index).center() + QPoint(m_chance.Below(40), 0));
    ClickAt(&m_pDialog->dialog, place, Qt::LeftButton, Modifiers());
}

void tst_Monkey::ClickButton()
{
    static constexpr const char* arrNames[] = {"btnOk", "btnOk", "btnOther", "btnCancel", "btnClose"};
    const QAbstractButton* pButton = m_pDialog->Button(m_chance.OneOf(arrNames));
    Note(pButton->objectName());
    ClickAt(&m_pDialog->dialog, pButton->mapTo(&m_pDialog->dialog, pButton->rect().center()), Qt::LeftButton, {});
}

void tst_Monkey::PressKey()
{
    const QPointer<QWindow> pWindow = Target()->windowHandle();
    const Qt::Key eKey = m_chance.OneOf(g_arrKeys);
    const SModifier modifier = m_chance.OneIn(4) ? m_chance.OneOf(g_arrModifiers) : SModifier();
    Note(QKeySequence(int(eKey) | int(modifier.eModifier)).toString());
    const bool bText = eKey < Qt::Key_Escape && modifier.eModifier != Qt::ControlModifier;
    const QString strText = bText ? QString(QChar(eKey)).toLower() : QString();
    if (modifier.eModifier)
    {
        Key(pWindow, QEvent::KeyPress, modifier.eKey, {}, QString());
    }
    Key(pWindow, QEvent::KeyPress, eKey, modifier.eModifier, strText);
    Key(pWindow, QEvent::KeyRelease, eKey, modifier.eModifier, strText);
    if (modifier.eModifier)
    {
        Key(pWindow, QEvent::KeyRelease, modifier.eKey, modifier.eModifier, QString());
    }
}

void tst_Monkey::TypeText()
{
    static const QString strCharacters =
        QString::fromUtf8("0123456789013579 abcxyz/\\:.-+,;%&\"'<>\xc3\xa9\xe5\x9b\xbe");
    for (int n = 1 + m_chance.Below(m_chance.OneIn(20) ? 200 : 6); n > 0; --n)
    {
        const QString strCharacter(m_chance.OneOf(strCharacters));
        Note(strCharacter);
        const QPointer<QWindow> pWindow = Target()->windowHandle();
        Key(pWindow, QEvent::KeyPress, Qt::Key_unknown, {}, strCharacter);
        Key(pWindow, QEvent::KeyRelease, Qt::Key_unknown, {}, strCharacter);
    }
}

void tst_Monkey::TurnTheWheel()
{
    QWidget* pTarget = Target();
    const QPoint place = PlaceIn(pTarget);
    QWidget* pChild = pTarget->childAt(place);
    pChild = pChild ? pChild : pTarget;
    for (int n = 1 + m_chance.Below(5); n > 0; --n)
    {
        TurnWheel(pChild, pChild->mapFrom(pTarget, place), m_chance.OneIn(2) ? 120 : -120);
    }
}

void tst_Monkey::ChangeLogin()
{
    const int nState = 1 + m_chance.Below(4);
    const int nSubState = m_chance.OneIn(3) ? 1 : 0;
    Note(QString("%1 %2").arg(nState).arg(nSubState));
    std::thread platform([this, nState, nSubState] { m_pHost->loginManager.Notify(nState, nSubState); });
    QCoreApplication::processEvents();
    platform.join();
}

void tst_Monkey::HideOrShow()
{
    if (m_chance.OneIn(8))
    {
        Note("new");
        CloseDialog();
        OpenDialog();
        return;
    }
    m_pDialog->dialog.hide();
    QCoreApplication::processEvents();
    m_pDialog->dialog.show();
    QApplication::setActiveWindow(&m_pDialog->dialog);
}

/// A control that takes the focus, of whichever page.
void tst_Monkey::UseControl()
{
    QList<QWidget*> listControls = m_pDialog->Contents()->findChildren<QWidget*>();
    listControls.erase(std::remove_if(listControls.begin(), listControls.end(),
                                      [this](const QWidget* pWidget) {
                                          return pWidget->focusPolicy() == Qt::NoFocus || !pWidget->isVisible() ||
                                                 pWidget->window() != m_pAlive;
                                      }),
                       listControls.end());
    if (!listControls.isEmpty() && !QApplication::activePopupWidget())
    {
        QWidget* pControl = m_chance.OneOf(listControls);
        Note(pControl->objectName());
        m_pDialog->ScrollArea()->ensureWidgetVisible(pControl);
        const QPoint place(m_chance.Below(qMin(40, pControl->width())), pControl->height() / 2);
        ClickAt(&m_pDialog->dialog, pControl->mapTo(&m_pDialog->dialog, place), Qt::LeftButton, {});
    }
}

void tst_Monkey::LoseFocus()
{
    QApplication::setActiveWindow(nullptr);
    QTest::qWait(m_chance.Below(60));
    QApplication::setActiveWindow(&m_pDialog->dialog);
}

void tst_Monkey::ChangeHost()
{
    switch (m_chance.Below(4))
    {
    case 0:
        Note("catalogue");
        UICommonMdl::CAlarmType::Instance()->Load();
        break;
    case 1:
        Note("results");
        m_pHost->localConfig.m_nSaveResult = m_chance.OneIn(2) ? 1 : m_chance.Below(20) - 10;
        m_pHost->video.m_nResult = m_chance.OneIn(4) ? -1 : 0;
        m_pHost->snapshot.m_nResult = m_chance.OneIn(4) ? -2 : 0;
        break;
    case 2:
        Note("records");
        m_pHost->basic.m_record = m_records.Make<BasicConfigInfo>();
        m_pHost->video.m_record = m_records.Make<VideoConfigInfo>();
        m_pHost->playback.m_record = m_records.Make<PlaybackConfigInfo>();
        m_pHost->snapshot.m_record = m_records.Make<SnapshotConfigInfo>();
        m_pHost->record.m_record = m_records.Make<RecordConfigInfo>();
        m_pHost->alarm.m_record = m_records.Make<AlarmConfigInfo>();
        m_pHost->tvWall.m_record = m_records.Make<TvWallConfigInfo>();
        break;
    default:
        Note("good records");
        m_pHost->basic.m_record = {};
        m_pHost->video.m_record = {};
        m_pHost->snapshot.m_record = {};
        m_pHost->record.m_record = {};
        m_pHost->tvWall.m_record = {};
    }
}

/// Runs in the loop of a menu or a modal dialog that holds up the step, and brings that to an end sooner or later.
void tst_Monkey::AnswerLoop()
{
    if (QThread::currentThread()->loopLevel() == 0)
    {
        return;
    }
    QWidget* pPopup = QApplication::activePopupWidget();
    const QPointer<QWidget> pInFront = pPopup ? pPopup : QApplication::activeModalWidget();
    if (!pInFront || pInFront == m_pAlive || pInFront == m_pBeingAnswered)
    {
        return;
    }
    const QPointer<QWidget> pAround = m_pBeingAnswered;
    m_pBeingAnswered = pInFront;
    ++m_nLoops;
    Note(QString("answer %1").arg(pInFront->metaObject()->className()));
    if (m_chance.OneIn(4))
    {
        ChangeLogin();
    }
    if (auto* pFileDialog = qobject_cast<QFileDialog*>(pInFront.data()))
    {
        AnswerFileDialog(*pFileDialog);
    }
    else if (pInFront)
    {
        AnswerOther(*pInFront);
    }
    m_pBeingAnswered = pAround;
}

/// No loose keys here: this dialog can rename and remove files.
void tst_Monkey::AnswerFileDialog(QFileDialog& dialog)
{
    if (m_chance.OneIn(2))
    {
        Key(dialog.windowHandle(), QEvent::KeyPress, Qt::Key_Escape, {}, QString());
        return;
    }
    static const QString arrNames[] = {"one.wav", "two.txt", "none.wav", "."};
    dialog.setDirectory(m_folder.path());
    dialog.findChild<QLineEdit*>()->setText(m_chance.OneOf(arrNames));
    QMetaObject::invokeMethod(&dialog, "accept");
}

void tst_Monkey::AnswerOther(QWidget& inFront)
{
    static constexpr Qt::Key arrAnswers[] = {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space,
                                             Qt::Key_Tab,    Qt::Key_Left,   Qt::Key_Down};
    const QList<QAbstractButton*> listButtons = inFront.findChildren<QAbstractButton*>();
    const QAbstractButton* pButton = listButtons.isEmpty() ? nullptr : m_chance.OneOf(listButtons);
    if (pButton && pButton->isVisible() && m_chance.OneIn(2))
    {
        ClickAt(&inFront, pButton->mapTo(&inFront, pButton->rect().center()), Qt::LeftButton, {});
    }
    else
    {
        Key(inFront.windowHandle(), QEvent::KeyPress, m_chance.OneOf(arrAnswers), {}, QString());
    }
}

// --- How it does it

/// Where keys and mouse go: the popup while there is one, else the dialog.
QWidget* tst_Monkey::Target() const
{
    QWidget* pPopup = QApplication::activePopupWidget();
    return pPopup ? pPopup : &m_pDialog->dialog;
}

/// Mostly on a control that can be seen.
QPoint tst_Monkey::PlaceIn(QWidget* pTarget)
{
    const QList<QWidget*> listChildren = pTarget->findChildren<QWidget*>();
    for (int nAttempt = 0; nAttempt < 30 && !listChildren.isEmpty(); ++nAttempt)
    {
        const QWidget* pChild = m_chance.OneOf(listChildren);
        const QRect seen =
            pChild->window() == pTarget && pChild->isVisible() ? pChild->visibleRegion().boundingRect() : QRect();
        if (!seen.isEmpty())
        {
            return pChild->mapTo(pTarget, seen.topLeft() + QPoint(m_chance.Below(seen.width()), //
                                                                  m_chance.Below(seen.height())));
        }
    }
    return {m_chance.Below(pTarget->width()), m_chance.Below(pTarget->height())};
}

Qt::KeyboardModifiers tst_Monkey::Modifiers()
{
    return m_chance.OneIn(4) ? m_chance.OneOf(g_arrModifiers).eModifier : Qt::NoModifier;
}

void tst_Monkey::ClickAt(QWidget* pTarget, const QPoint& place, Qt::MouseButton eButton,
                         Qt::KeyboardModifiers eModifiers)
{
    const QPointer<QWidget> pKept = pTarget;
    m_nTime += 2 * g_nDoubleClickTime;
    for (int nClicks = m_chance.OneIn(8) ? 2 : 1; nClicks > 0; --nClicks)
    {
        Mouse(pKept, place, QEvent::MouseMove, Qt::NoButton, eModifiers);
        Mouse(pKept, place, QEvent::MouseButtonPress, eButton, eModifiers);
        if (m_chance.OneIn(8))
        {
            Mouse(pKept, place + QPoint(m_chance.Below(60) - 30, m_chance.Below(60) - 30), QEvent::MouseMove,
                  Qt::NoButton, eModifiers);
        }
        Mouse(pKept, place, QEvent::MouseButtonRelease, eButton, eModifiers);
    }
}

/// An event as the window system sends it; none for a window that has gone meanwhile.
void tst_Monkey::Key(const QPointer<QWindow>& pWindow, QEvent::Type eType, Qt::Key eKey,
                     Qt::KeyboardModifiers eModifiers, const QString& strText)
{
    if (pWindow)
    {
        qt_handleKeyEvent(pWindow, eType, eKey, eModifiers, strText);
        QCoreApplication::processEvents();
    }
}

/// An event as the window system sends it, so that popups, modality and overlaps have their say. What would go to a
/// window that has closed meanwhile goes to the dialog.
void tst_Monkey::Mouse(QWidget* pTarget, const QPoint& place, QEvent::Type eType, Qt::MouseButton eButton,
                       Qt::KeyboardModifiers eModifiers)
{
    QWidget* pWindow = pTarget && pTarget->isVisible() ? pTarget : static_cast<QWidget*>(&m_pDialog->dialog);
    if (!pWindow->isVisible() || !pWindow->windowHandle())
    {
        return;
    }
    const Qt::MouseButtons eDown = eType == QEvent::MouseButtonPress ? eButton : Qt::NoButton;
    qt_handleMouseEvent(pWindow->windowHandle(), place, pWindow->mapToGlobal(place), eDown, eButton, eType, eModifiers,
                        ++m_nTime);
    QCoreApplication::processEvents();
}

PROOF_MAIN(tst_Monkey)

#include "tst_Monkey.moc"
