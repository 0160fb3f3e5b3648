// What a keyboard or screen reader user needs of every form: captions lead to their controls, controls have names, and
// Tab visits them in the order in which they stand.

#include <LocalConfig/pages/CAlarmConfig.h>
#include <LocalConfig/pages/CBasicConfig.h>
#include <LocalConfig/pages/CCaptureConfig.h>
#include <LocalConfig/pages/CPlaybackConfig.h>
#include <LocalConfig/pages/CRecordConfig.h>
#include <LocalConfig/pages/CSecurityConfig.h>
#include <LocalConfig/pages/CShortcutKeyConfig.h>
#include <LocalConfig/pages/CTvWallConfig.h>
#include <LocalConfig/pages/CVideoConfig.h>

#include <UICommonModule/Pxa.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSet>
#include <QtTest>

#include <functional>

namespace
{

struct SForm
{
    const char* pszName;
    std::function<QWidget*(QWidget*)> create;
    QStringList listCaptions; ///< labels that name the control after them
    int nRoom;                ///< pixels that the card leaves the page in its height
};

template <class Page>
QWidget* Make(QWidget* pParent)
{
    return new Page(pParent);
}

const SForm g_arrForms[] = {
    {"CBasicConfig", &Make<LocalConfig::CBasicConfig>, {"label", "lblSkinSet"}, 442},
    {"CVideoConfig",
     &Make<LocalConfig::CVideoConfig>,
     {"splitLabel", "VideoWndDisplayLabel", "streamLabel", "playmodelabel", "playmodelabel_2", "label_3", "label_2",
      "silentTimeLabel"},
     821},
    {"CPlaybackConfig", &Make<LocalConfig::CPlaybackConfig>, {"label_3"}, 148},
    {"CAlarmConfig",
     &Make<LocalConfig::CAlarmConfig>,
     {"labAlarmTypeForSound", "labSoundPath", "labAlarmTypeForFlash", "label"},
     502},
    {"CCaptureConfig",
     &Make<LocalConfig::CCaptureConfig>,
     {"picFormatLabel", "picPathLabel", "picNameFormatLab", "picTmLabel", "picNumLabel"},
     426},
    {"CRecordConfig", &Make<LocalConfig::CRecordConfig>, {"recPathLabel", "label", "maxRecSizeLabel"}, 266},
    {"CSecurityConfig", &Make<LocalConfig::CSecurityConfig>, {}, 64},
    {"CShortcutKeyConfig", &Make<LocalConfig::CShortcutKeyConfig>, {"label"}, 770},
    {"CTvWallConfig", &Make<LocalConfig::CTvWallConfig>, {"label_2", "label_3", "streamLabel", "label"}, 370},
};

bool IsInput(const QWidget* pWidget)
{
    return (qobject_cast<const QAbstractButton*>(pWidget) || qobject_cast<const QComboBox*>(pWidget) ||
            qobject_cast<const QLineEdit*>(pWidget) || qobject_cast<const QAbstractSpinBox*>(pWidget) ||
            qobject_cast<const QAbstractItemView*>(pWidget)) &&
           pWidget->focusPolicy() != Qt::NoFocus && pWidget->isEnabled() && !pWidget->isHidden();
}

} // namespace

class tst_Forms : public QObject
{
    Q_OBJECT

private slots:
    void CaptionsHaveBuddies_data() { Forms(); }
    void CaptionsHaveBuddies();
    void InputsHaveAccessibleNames_data() { Forms(); }
    void InputsHaveAccessibleNames();
    void TabVisitsInputsTopToBottom_data() { Forms(); }
    void TabVisitsInputsTopToBottom();
    void NothingIsClipped_data() { Forms(); }
    void NothingIsClipped();
    void FitsItsCard_data() { Forms(); }
    void FitsItsCard();

private:
    static void Forms()
    {
        QTest::addColumn<int>("nForm");
        for (int n = 0; n < int(std::size(g_arrForms)); ++n)
        {
            QTest::newRow(g_arrForms[n].pszName) << n;
        }
    }

    static QList<QWidget*> Inputs(QWidget* pPage)
    {
        QList<QWidget*> listInputs;
        for (QWidget* pWidget : pPage->findChildren<QWidget*>())
        {
            if (IsInput(pWidget) && !pWidget->objectName().isEmpty() && !pWidget->objectName().startsWith("qt_"))
            {
                listInputs += pWidget;
            }
        }
        return listInputs;
    }
};

void tst_Forms::CaptionsHaveBuddies()
{
    QFETCH(int, nForm);
    QWidget parent;
    QWidget* pPage = g_arrForms[nForm].create(&parent);
    for (const QString& strCaption : g_arrForms[nForm].listCaptions)
    {
        auto* pLabel = pPage->findChild<QLabel*>(strCaption);
        QVERIFY2(pLabel, qPrintable(strCaption));
        QVERIFY2(pLabel->buddy(), qPrintable(strCaption));
    }
}

void tst_Forms::InputsHaveAccessibleNames()
{
    QFETCH(int, nForm);
    QWidget parent;
    QWidget* pPage = g_arrForms[nForm].create(&parent);
    const QList<QWidget*> listInputs = Inputs(pPage);
    QVERIFY(!listInputs.isEmpty());
    for (QWidget* pInput : listInputs)
    {
        QAccessibleInterface* pInterface = QAccessible::queryAccessibleInterface(pInput);
        QVERIFY2(pInterface && !pInterface->text(QAccessible::Name).isEmpty(), qPrintable(pInput->objectName()));
    }
}

void tst_Forms::TabVisitsInputsTopToBottom()
{
    QFETCH(int, nForm);
    QWidget parent;
    parent.resize(662, 900);
    QWidget* pPage = g_arrForms[nForm].create(&parent);
    pPage->resize(662, pPage->sizeHint().height());
    parent.show();
    QApplication::setActiveWindow(&parent);
    QVERIFY(QTest::qWaitForWindowActive(&parent));
    QSet<QWidget*> setExpected;
    QWidget* pFirst = nullptr;
    for (QWidget* pInput : Inputs(pPage))
    {
        const auto* pRadio = qobject_cast<const QRadioButton*>(pInput); // arrow keys move within a group of those
        if (pInput->isVisible() && !pRadio)
        {
            setExpected.insert(pInput);
        }
        if (pInput->isVisible() && (!pRadio || pRadio->isChecked()))
        {
            const bool bHigher = pFirst && pInput->mapTo(pPage, QPoint()).y() > pFirst->mapTo(pPage, QPoint()).y();
            pFirst = bHigher ? pFirst : pInput;
        }
    }
    QSet<QWidget*> setVisited;
    int nLast = -1;
    pFirst->setFocus(Qt::TabFocusReason);
    do
    {
        QWidget* pInput = parent.focusWidget();
        if (!qobject_cast<QRadioButton*>(pInput))
        {
            setVisited.insert(pInput);
        }
        // Controls of one row are centred on one line, whatever their heights.
        const int nMiddle = pInput->mapTo(pPage, pInput->rect().center()).y();
        QVERIFY2(nMiddle >= nLast - 2, qPrintable(pInput->objectName()));
        nLast = nMiddle;
        QTest::keyClick(pInput, Qt::Key_Tab);
    } while (parent.focusWidget() != pFirst);
    QCOMPARE(setVisited, setExpected);
}

void tst_Forms::NothingIsClipped()
{
    QFETCH(int, nForm);
    QWidget parent;
    parent.resize(662, 900);
    QWidget* pPage = g_arrForms[nForm].create(&parent);
    pPage->resize(662, pPage->sizeHint().height());
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    for (QWidget* pWidget : pPage->findChildren<QWidget*>())
    {
        if ((IsInput(pWidget) || qobject_cast<QLabel*>(pWidget)) && pWidget->isVisible() &&
            !pWidget->objectName().startsWith("qt_"))
        {
            const QRect geometry(pWidget->mapTo(pPage, QPoint()), pWidget->size());
            QVERIFY2(pPage->rect().contains(geometry), qPrintable(pWidget->objectName()));
            const bool bFixed = pWidget->minimumHeight() == pWidget->maximumHeight(); // as a picture wants it
            QVERIFY2(bFixed || pWidget->height() >= pWidget->minimumSizeHint().height(),
                     qPrintable(pWidget->objectName()));
        }
    }
}

void tst_Forms::FitsItsCard()
{
    QFETCH(int, nForm);
    QString strSheet;
    QVERIFY(Pxa::loadStyleSheet(Pxa::GetSkinPath("public", "KvGui.qss"), strSheet));
    qApp->setStyleSheet(strSheet);
    QFont font;
    font.setPixelSize(13);
    QApplication::setFont(font);
    QWidget parent;
    QWidget* pPage = g_arrForms[nForm].create(&parent);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QVERIFY2(pPage->minimumSizeHint().height() <= g_arrForms[nForm].nRoom,
             qPrintable(QString::number(pPage->minimumSizeHint().height())));
    QVERIFY2(pPage->minimumSizeHint().width() <= 660, qPrintable(QString::number(pPage->minimumSizeHint().width())));
}

QTEST_MAIN(tst_Forms)

#include "tst_Forms.moc"
