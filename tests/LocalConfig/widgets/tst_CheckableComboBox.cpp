#include <LocalConfig/widgets/QCheckableComboBox.h>

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvListWidget.h>

#include <QAccessible>
#include <QApplication>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <utility>

using KVGUI::KvCheckBox;
using KVGUI::KvListWidget;
using LocalConfig::QCheckableComboBox;

class tst_CheckableComboBox;
Q_DECLARE_METATYPE(std::function<void(tst_CheckableComboBox&)>)

class tst_CheckableComboBox : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void TheMetaObjectsOrder();
    void ItStartsWithNone();
    void SettingItemsDropsThePicks();
    void ShownText_data();
    void ShownText();
    void WithoutAnAllItem();

    void FewerThanTwoItemsNeverOpen_data();
    void FewerThanTwoItemsNeverOpen();
    void TheListHasABoxForEachItem();
    void AnAmpersandIsNoMnemonic();
    void NamesThatAreCutHaveAToolTip();
    void OpeningTwiceRebuildsTheList();
    void EveryClickIsStoredAtOnce();
    void TheSignalComesFirst();
    void AllPicksEverything();
    void UncheckingOneDropsTheAllMark();
    void PickingTheLastByHandDoesNotCheckAll();
    void ThePopupStaysOpenWhilePicking();
    void TheKeyboardPicks();
    void EscapeClosesTheList();
    void TheSummaryStandsHoweverTheListCloses_data();
    void TheSummaryStandsHoweverTheListCloses();
    void TheKeyboardStartsAtTheFirstRow();
    void SpaceTogglesTheCurrentRow();
    void KeysMoveFromRowToRow();
    void KeysGoOnWhereTheMouseClicked();
    void TheCurrentRowIsInSight();
    void BeginAndFinishOper();
    void AClickFromElsewhereIsIgnored();

private:
    static QMap<int, QString> Items() { return {{-1, "All"}, {2, "Two"}, {3, "Three"}, {5, "Five"}}; }
    KvListWidget* List() const { return qobject_cast<KvListWidget*>(m_pCombo->view()); }
    KvCheckBox* Box(int nRow) const { return qobject_cast<KvCheckBox*>(List()->itemWidget(List()->item(nRow))); }
    void Click(int nRow) const { QTest::mouseClick(Box(nRow), Qt::LeftButton, {}, QPoint(8, Box(nRow)->height() / 2)); }
    QList<int> CheckedRows() const
    {
        QList<int> listRows;
        for (int nRow = 0; nRow < List()->count(); ++nRow)
        {
            if (Box(nRow)->isChecked())
            {
                listRows += nRow;
            }
        }
        return listRows;
    }
    /// A key as the window system delivers it: to the list while that is open, for it grabs the keyboard.
    void Press(int nKey, Qt::KeyboardModifiers eModifiers = {}) const
    {
        const QWidget* pWindow = List()->isVisible() ? List()->window() : m_pWindow.data();
        QTest::keyClick(pWindow->windowHandle(), Qt::Key(nKey), eModifiers);
    }
    void OpenByKeyboard() const
    {
        m_pCombo->setFocus();
        Press(Qt::Key_Down, Qt::AltModifier);
        QVERIFY(List()->isVisible());
    }
    int FocusedRow() const
    {
        for (int nRow = 0; nRow < List()->count(); ++nRow)
        {
            if (Box(nRow) && Box(nRow)->hasFocus())
            {
                return nRow;
            }
        }
        return -1;
    }
    QString Text() const
    {
        return m_pCombo->count() == 1 && !m_pCombo->itemData(0).isValid() ? m_pCombo->currentText() : "(not one item)";
    }

    QScopedPointer<QWidget> m_pWindow;
    QCheckableComboBox* m_pCombo = nullptr;
};

void tst_CheckableComboBox::init()
{
    m_pWindow.reset(new QWidget);
    m_pWindow->resize(400, 300);
    m_pCombo = new QCheckableComboBox(m_pWindow.data());
    m_pCombo->setGeometry(10, 10, 200, 30);
    m_pWindow->show();
    QApplication::setActiveWindow(m_pWindow.data());
    QVERIFY(QTest::qWaitForWindowActive(m_pWindow.data()));
}

void tst_CheckableComboBox::TheMetaObjectsOrder()
{
    const QMetaObject& meta = QCheckableComboBox::staticMetaObject;
    QStringList listMethods;
    for (int n = meta.methodOffset(); n < meta.methodCount(); ++n)
    {
        listMethods += QString::fromLatin1(meta.method(n).methodSignature());
    }
    QCOMPARE(listMethods, (QStringList{"sgnItemChanged(int,bool)", "OnChecked(bool)", "OnBeginOper()", "OnFinishOper()",
                                       "OnListViewHide()"}));
    QVERIFY(m_pCombo->inherits("LocalConfig::QSkinCombox"));
}

void tst_CheckableComboBox::ItStartsWithNone()
{
    QCOMPARE(Text(), QString("None"));
    QVERIFY(List());
    QCOMPARE(m_pCombo->model(), List()->model());
}

void tst_CheckableComboBox::SettingItemsDropsThePicks()
{
    m_pCombo->SetItems(Items());
    m_pCombo->SetCheckedList({3});
    QCOMPARE(Text(), QString("Three"));
    m_pCombo->SetItems(Items());
    QCOMPARE(Text(), QString("None"));
    m_pCombo->showPopup();
    QCOMPARE(CheckedRows(), QList<int>());
}

void tst_CheckableComboBox::ShownText_data()
{
    QTest::addColumn<QList<int>>("listChecked");
    QTest::addColumn<QString>("strText");
    QTest::newRow("none") << QList<int>{} << "None";
    QTest::newRow("one") << QList<int>{5} << "Five";
    QTest::newRow("two, in picking order") << QList<int>{5, 2} << "Five ...";
    QTest::newRow("a key that is no item") << QList<int>{77} << "";
    QTest::newRow("such a key and another") << QList<int>{77, 2} << " ...";
    QTest::newRow("three of four") << QList<int>{3, 2, 5} << "Three ...";
    QTest::newRow("as many as there are") << QList<int>{3, 2, 5, -1} << "All";
}

void tst_CheckableComboBox::ShownText()
{
    QFETCH(QList<int>, listChecked);
    QFETCH(QString, strText);
    m_pCombo->SetItems(Items());
    m_pCombo->SetCheckedList(listChecked);
    QCOMPARE(Text(), strText);
    m_pCombo->SetCheckedList(listChecked);
    QCOMPARE(Text(), strText);
}

void tst_CheckableComboBox::WithoutAnAllItem()
{
    m_pCombo->SetItems({{1, "One"}, {2, "Two"}});
    m_pCombo->SetCheckedList({2, 1});
    QCOMPARE(Text(), QString("All"));
}

void tst_CheckableComboBox::FewerThanTwoItemsNeverOpen_data()
{
    QTest::addColumn<int>("nItems");
    QTest::addColumn<bool>("bOpens");
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << false;
    QTest::newRow("2") << 2 << true;
}

void tst_CheckableComboBox::FewerThanTwoItemsNeverOpen()
{
    QFETCH(int, nItems);
    QFETCH(bool, bOpens);
    QMap<int, QString> mapItems;
    for (int n = 0; n < nItems; ++n)
    {
        mapItems.insert(n, QString::number(n));
    }
    m_pCombo->SetItems(mapItems);
    QTest::mousePress(m_pCombo, Qt::LeftButton);
    QCOMPARE(List()->isVisible(), bOpens);
    m_pCombo->hidePopup();
    QVERIFY(!List()->isVisible());
    QCOMPARE(Text(), QString("None"));
}

void tst_CheckableComboBox::TheListHasABoxForEachItem()
{
    m_pCombo->SetItems(Items());
    m_pCombo->SetCheckedList({3});
    m_pCombo->showPopup();
    const QList<int> listKeys = {-1, 2, 3, 5};
    QCOMPARE(List()->count(), 4);
    for (int nRow = 0; nRow < 4; ++nRow)
    {
        QCOMPARE(Box(nRow)->text(), Items().value(listKeys[nRow]));
        QCOMPARE(List()->item(nRow)->data(Qt::UserRole).toInt(), listKeys[nRow]);
        QCOMPARE(List()->item(nRow)->flags(), Qt::ItemFlags(Qt::ItemIsEnabled));
    }
    QCOMPARE(CheckedRows(), QList<int>{2});
}

void tst_CheckableComboBox::AnAmpersandIsNoMnemonic()
{
    m_pCombo->SetItems({{1, "Doors & Gates"}, {2, "R&D"}});
    OpenByKeyboard();
    QVERIFY(Box(0)->shortcut().isEmpty());
    QVERIFY(Box(1)->shortcut().isEmpty());
    QCOMPARE(QAccessible::queryAccessibleInterface(Box(1))->text(QAccessible::Name), QString("R&D"));
    Press(Qt::Key_D, Qt::AltModifier);
    QCOMPARE(CheckedRows(), QList<int>());
    KvCheckBox wanted("R&&D", m_pWindow.data());
    QCOMPARE(Box(1)->sizeHint(), wanted.sizeHint());
    Click(1);
    m_pCombo->hidePopup();
    QCOMPARE(Text(), QString("R&D"));
}

void tst_CheckableComboBox::NamesThatAreCutHaveAToolTip()
{
    const QString strLong = QString("a & name that is much longer than the box ").repeated(3);
    m_pCombo->SetItems({{1, "Short"}, {2, strLong}});
    OpenByKeyboard();
    QVERIFY(Box(1)->width() < Box(1)->sizeHint().width());
    QCOMPARE(Box(0)->toolTip(), QString());
    QCOMPARE(Box(1)->toolTip(), strLong);
}

void tst_CheckableComboBox::OpeningTwiceRebuildsTheList()
{
    m_pCombo->SetItems(Items());
    m_pCombo->showPopup();
    Click(1);
    m_pCombo->hidePopup();
    QCOMPARE(Text(), QString("Two"));
    m_pCombo->showPopup();
    QCOMPARE(List()->count(), 4);
    QCOMPARE(CheckedRows(), QList<int>{1});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(m_pCombo->view()->findChildren<KvCheckBox*>().size(), 4);
}

void tst_CheckableComboBox::EveryClickIsStoredAtOnce()
{
    m_pCombo->SetItems(Items());
    m_pCombo->showPopup();
    QSignalSpy spy(m_pCombo, &QCheckableComboBox::sgnItemChanged);
    Click(3);
    Click(2);
    Click(3);
    QCOMPARE(spy.size(), 3);
    QCOMPARE(spy[0], (QVariantList{5, true}));
    QCOMPARE(spy[1], (QVariantList{3, true}));
    QCOMPARE(spy[2], (QVariantList{5, false}));
    m_pCombo->hidePopup();
    QCOMPARE(Text(), QString("Three"));
}

void tst_CheckableComboBox::TheSignalComesFirst()
{
    m_pCombo->SetItems(Items());
    m_pCombo->showPopup();
    QList<int> listRows;
    connect(m_pCombo, &QCheckableComboBox::sgnItemChanged, this, [&] { listRows = CheckedRows(); });
    Click(0);
    QCOMPARE(listRows, QList<int>{0});
    QCOMPARE(CheckedRows(), (QList<int>{0, 1, 2, 3}));
}

void tst_CheckableComboBox::AllPicksEverything()
{
    m_pCombo->SetItems(Items());
    m_pCombo->SetCheckedList({5});
    m_pCombo->showPopup();
    QSignalSpy spy(m_pCombo, &QCheckableComboBox::sgnItemChanged);
    Click(0);
    QCOMPARE(CheckedRows(), (QList<int>{0, 1, 2, 3}));
    Click(0);
    QCOMPARE(CheckedRows(), QList<int>());
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy[0], (QVariantList{-1, true}));
    QCOMPARE(spy[1], (QVariantList{-1, false}));
    m_pCombo->hidePopup();
    QCOMPARE(Text(), QString("None"));
}

void tst_CheckableComboBox::UncheckingOneDropsTheAllMark()
{
    m_pCombo->SetItems(Items());
    m_pCombo->showPopup();
    Click(0);
    Click(2);
    QCOMPARE(CheckedRows(), (QList<int>{1, 3}));
    m_pCombo->hidePopup();
    QCOMPARE(Text(), QString("Two ..."));
}

void tst_CheckableComboBox::PickingTheLastByHandDoesNotCheckAll()
{
    m_pCombo->SetItems(Items());
    m_pCombo->showPopup();
    for (int nRow : {1, 2, 3})
    {
        Click(nRow);
    }
    QCOMPARE(CheckedRows(), (QList<int>{1, 2, 3}));
    m_pCombo->hidePopup();
    QCOMPARE(Text(), QString("Two ..."));
}

void tst_CheckableComboBox::ThePopupStaysOpenWhilePicking()
{
    m_pCombo->SetItems(Items());
    QTest::mousePress(m_pCombo, Qt::LeftButton);
    QTest::mouseRelease(m_pCombo, Qt::LeftButton);
    QVERIFY(List()->isVisible());
    QTest::qWait(QApplication::doubleClickInterval() + 50); // after which a release in the list may close it
    Click(1);
    QVERIFY(List()->isVisible());
    const QPoint beside(Box(2)->width() - 2, Box(2)->height() / 2);
    QTest::mouseClick(Box(2), Qt::LeftButton, {}, beside);
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, List()->visualItemRect(List()->item(3)).center());
    QVERIFY(List()->isVisible());
    m_pCombo->hidePopup();
    QVERIFY(!List()->isVisible());
}

void tst_CheckableComboBox::TheKeyboardPicks()
{
    m_pCombo->SetItems(Items());
    m_pCombo->setFocus();
    QTest::keyClick(m_pCombo, Qt::Key_Down, Qt::AltModifier);
    QVERIFY(List()->isVisible());
    QApplication::setActiveWindow(List()->window());
    QTest::keyClick(List(), Qt::Key_Tab);
    QVERIFY(qobject_cast<KvCheckBox*>(QApplication::focusWidget()));
    Box(1)->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QVERIFY(Box(2)->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(CheckedRows(), (QList<int>{1, 2}));
    QVERIFY(List()->isVisible());
}

void tst_CheckableComboBox::EscapeClosesTheList()
{
    m_pCombo->SetItems(Items());
    m_pCombo->showPopup();
    Click(1);
    QTest::keyClick(List(), Qt::Key_Escape);
    QVERIFY(!List()->isVisible());
    QCOMPARE(Text(), QString("Two"));
}

void tst_CheckableComboBox::TheSummaryStandsHoweverTheListCloses_data()
{
    QTest::addColumn<std::function<void(tst_CheckableComboBox&)>>("close");
    const auto key = [](int nKey,
                        Qt::KeyboardModifiers eModifiers = {}) -> std::function<void(tst_CheckableComboBox&)> {
        return [=](const tst_CheckableComboBox& test) { test.Press(nKey, eModifiers); };
    };
    using Test = tst_CheckableComboBox;
    QTest::newRow("Return") << key(Qt::Key_Return);
    QTest::newRow("Enter") << key(Qt::Key_Enter, Qt::KeypadModifier);
    QTest::newRow("Escape") << key(Qt::Key_Escape);
    QTest::newRow("Alt+Down") << key(Qt::Key_Down, Qt::AltModifier);
    QTest::newRow("Alt+Up") << key(Qt::Key_Up, Qt::AltModifier);
    QTest::newRow("F4") << key(Qt::Key_F4);
    const auto row = [](const char* pszName, const std::function<void(Test&)>& close) {
        QTest::newRow(pszName) << close;
    };
    row("Return to the list itself", [](const Test& test) { QTest::keyClick(test.List(), Qt::Key_Return); });
    row("a click outside", [](const Test& test) {
        QWidget* pPopup = test.List()->window();
        QTest::mouseClick(pPopup, Qt::LeftButton, {}, pPopup->rect().bottomRight() + QPoint(30, 30));
    });
    row("the window system", [](const Test& test) { test.List()->window()->close(); });
    row("the window hides", [](const Test& test) { test.m_pWindow->hide(); });
    row("the box hides", [](const Test& test) { test.m_pCombo->hide(); });
    row("the box is disabled", [](const Test& test) { test.m_pCombo->setEnabled(false); });
}

void tst_CheckableComboBox::TheSummaryStandsHoweverTheListCloses()
{
    using Close = std::function<void(tst_CheckableComboBox&)>;
    QFETCH(Close, close);
    m_pCombo->SetItems(Items());
    m_pCombo->SetCheckedList({5});
    OpenByKeyboard();
    Click(2);
    close(*this);
    QVERIFY(!List()->isVisible());
    QCOMPARE(m_pCombo->currentIndex(), 0);
    QCOMPARE(Text(), QString("Five ..."));
}

void tst_CheckableComboBox::TheKeyboardStartsAtTheFirstRow()
{
    m_pCombo->SetItems(Items());
    OpenByKeyboard();
    QCOMPARE(FocusedRow(), 0);
    QCOMPARE(List()->currentRow(), 0);
    Press(Qt::Key_Escape);
    QVERIFY(m_pCombo->hasFocus());
}

void tst_CheckableComboBox::SpaceTogglesTheCurrentRow()
{
    m_pCombo->SetItems(Items());
    OpenByKeyboard();
    QSignalSpy spy(m_pCombo, &QCheckableComboBox::sgnItemChanged);
    Press(Qt::Key_Down);
    Press(Qt::Key_Space);
    Press(Qt::Key_Down);
    Press(Qt::Key_Space);
    Press(Qt::Key_Space);
    QCOMPARE(CheckedRows(), QList<int>{1});
    QCOMPARE(spy.size(), 3);
    QCOMPARE(spy[2], (QVariantList{3, false}));
    QVERIFY(List()->isVisible());
    Press(Qt::Key_Return);
    QCOMPARE(Text(), QString("Two"));
}

void tst_CheckableComboBox::KeysMoveFromRowToRow()
{
    m_pCombo->SetItems(Items());
    OpenByKeyboard();
    const std::pair<int, int> arrSteps[] = {{Qt::Key_Down, 1}, {Qt::Key_Tab, 2},     {Qt::Key_End, 3},
                                            {Qt::Key_Down, 3}, {Qt::Key_Up, 2},      {Qt::Key_Home, 0},
                                            {Qt::Key_Up, 0},   {Qt::Key_PageDown, 3}};
    for (const auto& step : arrSteps)
    {
        Press(step.first);
        QCOMPARE(FocusedRow(), step.second);
        QCOMPARE(List()->currentRow(), step.second);
    }
}

void tst_CheckableComboBox::KeysGoOnWhereTheMouseClicked()
{
    m_pCombo->SetItems(Items());
    OpenByKeyboard();
    Click(2);
    Press(Qt::Key_Down);
    QCOMPARE(FocusedRow(), 3);
    QCOMPARE(List()->currentRow(), 3);
}

void tst_CheckableComboBox::TheCurrentRowIsInSight()
{
    QMap<int, QString> mapItems;
    for (int n = 0; n < 40; ++n)
    {
        mapItems.insert(n, QString::number(n));
    }
    m_pCombo->SetItems(mapItems);
    OpenByKeyboard();
    const auto inSight = [this] {
        const QRect box(Box(FocusedRow())->mapTo(List()->viewport(), QPoint()), Box(FocusedRow())->size());
        return List()->viewport()->rect().contains(box.center());
    };
    for (int n = 0; n < 25; ++n)
    {
        Press(Qt::Key_Down);
    }
    QCOMPARE(FocusedRow(), 25);
    QVERIFY(inSight());
    Press(Qt::Key_End);
    QCOMPARE(FocusedRow(), 39);
    QVERIFY(inSight());
    Press(Qt::Key_Home);
    QVERIFY(inSight());
}

void tst_CheckableComboBox::BeginAndFinishOper()
{
    m_pCombo->SetItems(Items());
    m_pCombo->SetCheckedList({2});
    m_pCombo->OnBeginOper();
    QVERIFY(!List()->isVisible());
    QCOMPARE(List()->count(), 4);
    QCOMPARE(CheckedRows(), QList<int>{1});
    m_pCombo->OnFinishOper();
    QCOMPARE(Text(), QString("Two"));
    m_pCombo->OnBeginOper();
    m_pCombo->OnListViewHide();
    QCOMPARE(Text(), QString("Two"));
}

void tst_CheckableComboBox::AClickFromElsewhereIsIgnored()
{
    m_pCombo->SetItems(Items());
    m_pCombo->showPopup();
    QSignalSpy spy(m_pCombo, &QCheckableComboBox::sgnItemChanged);
    m_pCombo->OnChecked(true);
    QCOMPARE(spy.size(), 0);
    QCOMPARE(CheckedRows(), QList<int>());
}

QTEST_MAIN(tst_CheckableComboBox)

#include "tst_CheckableComboBox.moc"
