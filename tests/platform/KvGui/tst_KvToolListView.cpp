#include <KvGui/KvToolListView.h>

#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

#include <functional>

using KVGUI::KvToolListView;

Q_DECLARE_METATYPE(std::function<void(KvToolListView&, QPoint)>)

class tst_KvToolListView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void NothingIsCurrentAtFirst();
    void IndicesFollowTheOrderOfAdding();
    void RemovingKeepsTheOtherIndices();
    void RemovingAnUnknownIndexDoesNothing();
    void AnIndexIsNotGivenTwice();
    void AProgrammaticChangeEmitsOnce();
    void SettingTheCurrentIndexAgainIsSilent();
    void AnUnknownIndexChangesNothing_data();
    void AnUnknownIndexChangesNothing();
    void AClickEmitsOnce();
    void AClickOnTheCurrentEntryEmitsAgain();
    void AClickBesideTheEntriesIsSilent();
    void OtherButtonsPickNothing_data();
    void OtherButtonsPickNothing();
    void CtrlKeepsTheCurrentEntrySelected_data();
    void CtrlKeepsTheCurrentEntrySelected();
    void KeysMove();
    void KeysOnTheCurrentEntry_data();
    void KeysOnTheCurrentEntry();
    void EnterStaysInTheList();
    void TheCurrentEntryLooksDifferent();
    void FocusIsVisible();
    void AnErrorIsSeenAndTold();
    void AnErrorOfAnUnknownIndexChangesNothing();
    void AnEntryThatIsCutTellsItsText_data();
    void AnEntryThatIsCutTellsItsText();
    void HasAFrame();

private:
    void Click(int nRow)
    {
        const QRect row = m_pList->visualRect(m_pList->model()->index(nRow, 0));
        QTest::mouseClick(m_pList->viewport(), Qt::LeftButton, {}, row.center());
    }
    QList<int> Emitted()
    {
        QList<int> listIndices;
        while (!m_pSpy->isEmpty())
        {
            listIndices += m_pSpy->takeFirst().first().toInt();
        }
        return listIndices;
    }

    QList<int> Selected() const
    {
        QList<int> listRows;
        for (const QModelIndex& index : m_pList->selectionModel()->selectedIndexes())
        {
            listRows += index.row();
        }
        return listRows;
    }

    QScopedPointer<KvToolListView> m_pList;
    QScopedPointer<QSignalSpy> m_pSpy;
};

void tst_KvToolListView::init()
{
    m_pList.reset(new KvToolListView);
    for (int n = 0; n < 9; ++n)
    {
        m_pList->AddItem(QIcon(), QString("Entry %1").arg(n));
    }
    m_pList->resize(230, 500);
    m_pList->show();
    m_pSpy.reset(new QSignalSpy(m_pList.data(), &KvToolListView::SignalCurrentIndexChanged));
}

void tst_KvToolListView::cleanup()
{
    m_pSpy.reset();
    m_pList.reset();
}

void tst_KvToolListView::NothingIsCurrentAtFirst()
{
    QCOMPARE(m_pList->GetCurrentIndex(), -1);
}

void tst_KvToolListView::IndicesFollowTheOrderOfAdding()
{
    for (int n = 0; n < 9; ++n)
    {
        Click(n);
        QCOMPARE(m_pList->GetCurrentIndex(), n);
    }
    QCOMPARE(Emitted(), (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
}

void tst_KvToolListView::RemovingKeepsTheOtherIndices()
{
    m_pList->RemoveItem(6);
    Click(6);
    Click(7);
    QCOMPARE(Emitted(), (QList<int>{7, 8}));
    m_pList->SetCurrentIndex(5);
    m_pList->setFocus();
    QTest::keyClick(m_pList.data(), Qt::Key_Down);
    QCOMPARE(m_pList->GetCurrentIndex(), 7);
}

void tst_KvToolListView::RemovingAnUnknownIndexDoesNothing()
{
    m_pList->RemoveItem(6);
    m_pList->RemoveItem(6);
    m_pList->RemoveItem(-1);
    m_pList->RemoveItem(99);
    QCOMPARE(m_pList->model()->rowCount(), 8);
}

void tst_KvToolListView::AnIndexIsNotGivenTwice()
{
    m_pList->RemoveItem(8);
    m_pList->AddItem(QIcon(), "New");
    Click(8);
    QCOMPARE(m_pList->GetCurrentIndex(), 9);
}

void tst_KvToolListView::AProgrammaticChangeEmitsOnce()
{
    m_pList->SetCurrentIndex(3);
    QCOMPARE(m_pList->GetCurrentIndex(), 3);
    QCOMPARE(Emitted(), QList<int>{3});
}

void tst_KvToolListView::SettingTheCurrentIndexAgainIsSilent()
{
    m_pList->SetCurrentIndex(3);
    m_pList->SetCurrentIndex(3);
    QCOMPARE(Emitted(), QList<int>{3});
}

void tst_KvToolListView::AnUnknownIndexChangesNothing_data()
{
    QTest::addColumn<int>("nIndex");
    QTest::newRow("-1") << -1;
    QTest::newRow("9") << 9;
    QTest::newRow("removed") << 6;
}

void tst_KvToolListView::AnUnknownIndexChangesNothing()
{
    QFETCH(int, nIndex);
    m_pList->RemoveItem(6);
    m_pList->SetCurrentIndex(2);
    m_pList->SetCurrentIndex(nIndex);
    QCOMPARE(m_pList->GetCurrentIndex(), 2);
    QCOMPARE(Emitted(), QList<int>{2});
}

void tst_KvToolListView::AClickEmitsOnce()
{
    Click(4);
    QCOMPARE(Emitted(), QList<int>{4});
}

void tst_KvToolListView::AClickOnTheCurrentEntryEmitsAgain()
{
    Click(4);
    Click(4);
    QCOMPARE(Emitted(), (QList<int>{4, 4}));
}

void tst_KvToolListView::AClickBesideTheEntriesIsSilent()
{
    Click(4);
    Emitted();
    QTest::mouseClick(m_pList->viewport(), Qt::LeftButton, {}, QPoint(20, m_pList->viewport()->height() - 5));
    QCOMPARE(Emitted(), QList<int>());
    QCOMPARE(m_pList->GetCurrentIndex(), 4);
}

void tst_KvToolListView::OtherButtonsPickNothing_data()
{
    QTest::addColumn<int>("nButton");
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("back") << int(Qt::BackButton);
}

void tst_KvToolListView::OtherButtonsPickNothing()
{
    QFETCH(int, nButton);
    Click(4);
    Emitted();
    const QPoint other = m_pList->visualRect(m_pList->model()->index(2, 0)).center();
    QTest::mouseClick(m_pList->viewport(), Qt::MouseButton(nButton), {}, other);
    QTest::mouseDClick(m_pList->viewport(), Qt::MouseButton(nButton), {}, other);
    QCOMPARE(Emitted(), QList<int>());
    QCOMPARE(m_pList->GetCurrentIndex(), 4);
    QCOMPARE(Selected(), QList<int>{4});
}

void tst_KvToolListView::CtrlKeepsTheCurrentEntrySelected_data()
{
    using Use = std::function<void(KvToolListView&, QPoint)>;
    QTest::addColumn<Use>("use");
    const auto row = [](const char* pszName, const Use& use) { QTest::newRow(pszName) << use; };
    row("click", [](const KvToolListView& list, const QPoint& pos) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, pos);
    });
    row("Space",
        [](KvToolListView& list, const QPoint&) { QTest::keyClick(&list, Qt::Key_Space, Qt::ControlModifier); });
}

void tst_KvToolListView::CtrlKeepsTheCurrentEntrySelected()
{
    using Use = std::function<void(KvToolListView&, QPoint)>;
    QFETCH(Use, use);
    Click(4);
    const QPoint current = m_pList->visualRect(m_pList->model()->index(4, 0)).center();
    for (int n = 0; n < 2; ++n)
    {
        use(*m_pList, current);
        QCOMPARE(m_pList->GetCurrentIndex(), 4);
        QCOMPARE(Selected(), QList<int>{4});
    }
}

void tst_KvToolListView::KeysMove()
{
    m_pList->SetCurrentIndex(4);
    Emitted();
    for (Qt::Key eKey : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home})
    {
        QTest::keyClick(m_pList.data(), eKey);
    }
    QCOMPARE(Emitted(), (QList<int>{5, 4, 8, 0}));
}

void tst_KvToolListView::KeysOnTheCurrentEntry_data()
{
    QTest::addColumn<int>("nKey");
    QTest::addColumn<bool>("bEmits");
    QTest::newRow("Home") << int(Qt::Key_Home) << true;
    QTest::newRow("Enter") << int(Qt::Key_Return) << true;
    QTest::newRow("Space") << int(Qt::Key_Space) << true;
    QTest::newRow("Up") << int(Qt::Key_Up) << false;
    QTest::newRow("Shift") << int(Qt::Key_Shift) << false;
}

void tst_KvToolListView::KeysOnTheCurrentEntry()
{
    QFETCH(int, nKey);
    QFETCH(bool, bEmits);
    m_pList->SetCurrentIndex(0);
    Emitted();
    QTest::keyClick(m_pList.data(), Qt::Key(nKey));
    QCOMPARE(Emitted(), bEmits ? QList<int>{0} : QList<int>());
}

void tst_KvToolListView::EnterStaysInTheList()
{
    m_pList->SetCurrentIndex(0);
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(m_pList.data(), &event);
    QVERIFY(event.isAccepted());
}

void tst_KvToolListView::TheCurrentEntryLooksDifferent()
{
    m_pList->setProperty("accentColor", QColor(Qt::red));
    m_pList->SetCurrentIndex(0);
    const QImage before = m_pList->grab().toImage();
    m_pList->SetCurrentIndex(1);
    QVERIFY(m_pList->grab().toImage() != before);
    const QRect row = m_pList->visualRect(m_pList->model()->index(1, 0));
    const QImage viewport = m_pList->viewport()->grab().toImage();
    QCOMPARE(viewport.pixelColor(row.left() + 2, row.center().y()), QColor(Qt::red));
}

void tst_KvToolListView::FocusIsVisible()
{
    m_pList->SetCurrentIndex(0);
    QApplication::setActiveWindow(m_pList.data());
    QVERIFY(QTest::qWaitForWindowActive(m_pList.data()));
    m_pList->setFocus();
    const QImage focused = m_pList->grab().toImage();
    m_pList->clearFocus();
    QVERIFY(m_pList->grab().toImage() != focused);
}

void tst_KvToolListView::AnErrorIsSeenAndTold()
{
    const QImage before = m_pList->grab().toImage();
    m_pList->SetItemError(1, "Wrong");
    QCOMPARE(m_pList->GetItemError(0), QString());
    QCOMPARE(m_pList->GetItemError(1), QString("Wrong"));
    QVERIFY(m_pList->grab().toImage() != before);
    const QModelIndex index = m_pList->model()->index(1, 0);
    QCOMPARE(index.data(Qt::AccessibleDescriptionRole).toString(), QString("Wrong"));
    QCOMPARE(index.data(Qt::ToolTipRole).toString(), QString("Wrong"));
    m_pList->SetItemError(1, QString());
    QCOMPARE(m_pList->GetItemError(1), QString());
    QCOMPARE(m_pList->grab().toImage(), before);
    QVERIFY(m_pSpy->isEmpty());
}

void tst_KvToolListView::AnErrorOfAnUnknownIndexChangesNothing()
{
    const QImage before = m_pList->grab().toImage();
    m_pList->SetItemError(9, "Wrong");
    QCOMPARE(m_pList->GetItemError(9), QString());
    QCOMPARE(m_pList->grab().toImage(), before);
}

void tst_KvToolListView::AnEntryThatIsCutTellsItsText_data()
{
    QTest::addColumn<int>("nRoom");
    QTest::addColumn<QString>("strError");
    QTest::addColumn<QString>("strTip");
    QTest::newRow("wide enough") << 1 << QString() << QString();
    QTest::newRow("too narrow") << -1 << QString() << "An entry";
    QTest::newRow("too narrow and wrong") << -1 << "It is wrong"
                                          << "It is wrong";
}

void tst_KvToolListView::AnEntryThatIsCutTellsItsText()
{
    QFETCH(int, nRoom);
    QFETCH(QString, strError);
    QFETCH(QString, strTip);
    KvToolListView list;
    list.AddItem(QIcon(), "An entry");
    list.SetItemError(0, strError);
    constexpr int nBesideTheText = 56; // margins and icon
    const int nEdges = 2 * list.frameWidth();
    list.setFixedWidth(list.fontMetrics().horizontalAdvance("An entry") + nBesideTheText + nEdges + nRoom);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list));
    QToolTip::hideText();
    const QPoint place = list.visualRect(list.model()->index(0, 0)).center();
    QHelpEvent help(QEvent::ToolTip, place, list.viewport()->mapToGlobal(place));
    QApplication::sendEvent(list.viewport(), &help);
    QCOMPARE(QToolTip::text(), strTip);
}

void tst_KvToolListView::HasAFrame()
{
    m_pList->setFrameShape(QFrame::StyledPanel);
    m_pList->setFrameShadow(QFrame::Raised);
    QCOMPARE(m_pList->frameShape(), QFrame::StyledPanel);
}

QTEST_MAIN(tst_KvToolListView)

#include "tst_KvToolListView.moc"
