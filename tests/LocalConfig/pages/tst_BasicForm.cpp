#include "support/BasicPage.h"
#include "support/Marker.h"

#include <QLabel>
#include <QLayout>

using namespace LocalConfig;
using KVGUI::KvCheckBox;

class tst_BasicForm : public CBasicPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void FormLayout();
    void Controls();
    void HiddenControls();
    void CaptionHasAColon();
    void ThemeItems();
    void ClientSizeItems();
    void TextsAreTranslated();
    void IsAToolWindowOnlyWhileItIsBuilt();
    void IsAPlainChildAfterConstruction();
    void TabOrderFollowsTheForm();
    void TimeSyncToolTipShowsTheWholeText();

    void ConnectionState();
};

void tst_BasicForm::FormLayout()
{
    auto* pGrid = qobject_cast<QGridLayout*>(m_pPage->layout());
    QVERIFY(pGrid);
    QCOMPARE(pGrid->verticalSpacing(), 20);
    QCOMPARE(pGrid->contentsMargins(), QMargins(48, 32, 12, 32));
    QCOMPARE(pGrid->columnCount(), 1);
    QCOMPARE(m_pPage->windowTitle(), QString("Basic Config"));

    Show();
    auto* pLabel = m_pPage->findChild<QLabel*>("label");
    QCOMPARE(pLabel->geometry().top(), 32); // nothing is left of the hidden row above
    QVERIFY(pLabel->geometry().bottom() < Combo("screenRatioCmbBox")->geometry().top());
    int nTop = Combo("screenRatioCmbBox")->geometry().bottom();
    for (const SCheckBox& expected : g_arrCheckBoxes)
    {
        const QRect geometry = Check(expected.pszName)->geometry();
        QCOMPARE(geometry.left(), 48);
        QCOMPARE(geometry.top() - nTop - 1, 20);
        nTop = geometry.bottom();
    }
    QVERIFY2(nTop + 32 < m_pPage->height(), "the page fits its box");
}

void tst_BasicForm::Controls()
{
    for (const SCheckBox& expected : g_arrCheckBoxes)
    {
        KvCheckBox* pCheckBox = Check(expected.pszName);
        QVERIFY2(pCheckBox, expected.pszName);
        QCOMPARE(pCheckBox->text(), QString(expected.pszText));
        QVERIFY(!pCheckBox->isHidden());
    }
    QVERIFY(Combo("cmbSkinSet"));
    QVERIFY(Combo("screenRatioCmbBox"));
    QCOMPARE(m_pPage->findChild<QLabel*>("lblSkinSet")->text(), QString("Theme"));
    QCOMPARE(m_pPage->findChild<QLabel*>("lblSkinNotify")->text(), QString("(Takes effect after restart)"));
    QCOMPARE(Check("AutohidetaskbarChkBox")->text(), QString("Auto hide task bar"));
}

void tst_BasicForm::HiddenControls()
{
    Show();
    for (const char* pszName : {"lblSkinSet", "cmbSkinSet", "lblSkinNotify", "AutohidetaskbarChkBox"})
    {
        QVERIFY2(m_pPage->findChild<QWidget*>(pszName)->isHidden(), pszName);
    }
}

void tst_BasicForm::CaptionHasAColon()
{
    QCOMPARE(m_pPage->findChild<QLabel*>("label")->text(), QString("Client Size:"));
}

void tst_BasicForm::ThemeItems()
{
    CCombobox* pCombo = Combo("cmbSkinSet");
    QCOMPARE(pCombo->count(), 2);
    QCOMPARE(pCombo->itemText(0), QString("Dark"));
    QCOMPARE(pCombo->itemText(1), QString("White"));
    QVERIFY(pCombo->itemIcon(0).isNull() && pCombo->itemIcon(1).isNull());
    QVERIFY(!pCombo->itemData(0).isValid() && !pCombo->itemData(1).isValid());
}

void tst_BasicForm::ClientSizeItems()
{
    CCombobox* pCombo = Combo("screenRatioCmbBox");
    QStringList listTexts;
    for (int n = 0; n < pCombo->count(); ++n)
    {
        listTexts += pCombo->itemText(n);
    }
    QCOMPARE(listTexts, (QStringList{"1280*800", "1280*1024", "1440*900", "1680*1050"}));
}

void tst_BasicForm::TextsAreTranslated()
{
    const CContextMarker marker("CBasicConfig");
    const CBasicConfig page(nullptr);
    for (const SCheckBox& expected : g_arrCheckBoxes)
    {
        QCOMPARE(page.findChild<KvCheckBox*>(expected.pszName)->text(), QStringLiteral("<%1>").arg(expected.pszText));
    }
    QCOMPARE(page.findChild<QLabel*>("label")->text(), QString("<Client Size><:>"));
    QCOMPARE(page.findChild<CCombobox*>("cmbSkinSet")->itemText(0), QString("<Dark>"));
    QCOMPARE(page.findChild<CCombobox*>("screenRatioCmbBox")->itemText(0), QString("1280*800"));
    QCOMPARE(page.windowTitle(), QString("<Basic Config>"));
}

void tst_BasicForm::IsAToolWindowOnlyWhileItIsBuilt()
{
    // Each change of the flags gives the page its parent anew.
    class CWatcher : public QObject
    {
    public:
        bool eventFilter(QObject* pWatched, QEvent* pEvent) override
        {
            if (pEvent->type() == QEvent::ParentChange && pWatched->inherits("LocalConfig::CBasicConfig"))
            {
                m_listTypes += static_cast<QWidget*>(pWatched)->windowType();
            }
            return false;
        }
        QList<Qt::WindowType> m_listTypes;
    } watcher;
    qApp->installEventFilter(&watcher);
    const CBasicConfig page(&m_parent);
    qApp->removeEventFilter(&watcher);
    QCOMPARE(watcher.m_listTypes.first(), Qt::Tool);
    QCOMPARE(watcher.m_listTypes.last(), Qt::Widget);
    QCOMPARE(watcher.m_listTypes.count(Qt::Tool), 1);
}

void tst_BasicForm::IsAPlainChildAfterConstruction()
{
    QCOMPARE(m_pPage->windowType(), Qt::Widget);
    QCOMPARE(m_pPage->windowFlags(), QWidget(&m_parent).windowFlags());
    QVERIFY(!m_pPage->isWindow());
    QCOMPARE(m_pPage->parentWidget(), &m_parent);
}

void tst_BasicForm::TabOrderFollowsTheForm()
{
    Show();
    m_parent.activateWindow();
    Combo("screenRatioCmbBox")->setFocus();
    for (const SCheckBox& expected : g_arrCheckBoxes)
    {
        QTest::keyClick(m_parent.focusWidget(), Qt::Key_Tab);
        QCOMPARE(m_parent.focusWidget()->objectName(), QString(expected.pszName));
    }
}

void tst_BasicForm::TimeSyncToolTipShowsTheWholeText()
{
    // Judged while the page is built, when the control is narrower than its text.
    QCOMPARE(Check("timeChkBox")->toolTip(), QString("Enable time sync with platform server"));
}

void tst_BasicForm::ConnectionState()
{
    for (bool bEnable : {false, true})
    {
        m_pPage->SetControlsEnabled(bEnable);
        for (const SCheckBox& expected : g_arrCheckBoxes)
        {
            QCOMPARE(Check(expected.pszName)->isEnabled(), bEnable);
        }
        QCOMPARE(Combo("cmbSkinSet")->isEnabled(), bEnable);
        QVERIFY(Combo("screenRatioCmbBox")->isEnabled());
        QVERIFY(Check("AutohidetaskbarChkBox")->isEnabled());
    }
}

QTEST_MAIN(tst_BasicForm)

#include "tst_BasicForm.moc"
