// What a keyboard or screen reader user needs of every form: captions lead to their controls, controls have names, and
// Tab visits them in the order in which they stand.

#include <LocalConfig/pages/CBasicConfig.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

#include <functional>

namespace
{

struct SForm
{
    const char* pszName;
    std::function<QWidget*(QWidget*)> create;
    QStringList listCaptions; ///< labels that name the control after them
};

const SForm g_arrForms[] = {
    {"CBasicConfig",
     [](QWidget* pParent) -> QWidget* { return new LocalConfig::CBasicConfig(pParent); },
     {"label", "lblSkinSet"}},
};

bool IsInput(const QWidget* pWidget)
{
    return (qobject_cast<const QAbstractButton*>(pWidget) || qobject_cast<const QComboBox*>(pWidget) ||
            qobject_cast<const QLineEdit*>(pWidget) || qobject_cast<const QAbstractSpinBox*>(pWidget) ||
            qobject_cast<const QAbstractItemView*>(pWidget)) &&
           pWidget->focusPolicy() != Qt::NoFocus && !pWidget->isHidden();
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
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    const QList<QWidget*> listInputs = Inputs(pPage);
    QList<QWidget*> listVisited;
    listInputs.first()->setFocus(Qt::TabFocusReason);
    for (int n = 0; n < listInputs.size(); ++n)
    {
        listVisited += parent.focusWidget();
        QTest::keyClick(parent.focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(QSet<QWidget*>(listVisited.begin(), listVisited.end()),
             QSet<QWidget*>(listInputs.begin(), listInputs.end()));
    int nLast = -1;
    for (QWidget* pInput : qAsConst(listVisited))
    {
        const int nTop = pInput->mapTo(pPage, QPoint()).y();
        QVERIFY2(nTop >= nLast, qPrintable(pInput->objectName()));
        nLast = nTop;
    }
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
        if ((IsInput(pWidget) || qobject_cast<QLabel*>(pWidget)) && !pWidget->isHidden())
        {
            const QRect geometry(pWidget->mapTo(pPage, QPoint()), pWidget->size());
            QVERIFY2(pPage->rect().contains(geometry), qPrintable(pWidget->objectName()));
            QVERIFY2(pWidget->height() >= pWidget->minimumSizeHint().height(), qPrintable(pWidget->objectName()));
        }
    }
}

QTEST_MAIN(tst_Forms)

#include "tst_Forms.moc"
