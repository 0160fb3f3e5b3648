#include <KvGui/KvLineEdit.h>

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QtTest>

#include <functional>

using KVGUI::KvLineEdit;

namespace
{

/// Counts what it sees of other widgets.
class CWatchingEdit : public KvLineEdit
{
public:
    using KvLineEdit::KvLineEdit;

    int m_nSeen = 0;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        ++m_nSeen;
        return KvLineEdit::eventFilter(pWatched, pEvent);
    }
};

/// A window with a pane, and in that a field whose tip stands in the window.
struct SForm
{
    SForm()
        : pTipParent(new QWidget(&window))
        , pPane(new QWidget(&window))
        , pEdit(new CWatchingEdit(pPane))
    {
        window.resize(400, 200);
        window.show();
        pEdit->setAccessibleDescription("The folder for pictures");
        pEdit->showErrorHint(pTipParent, true, "Too long");
    }

    QWidget window;
    QWidget other;
    QWidget* pTipParent;
    QWidget* pPane;
    CWatchingEdit* pEdit;
};

} // namespace

using Step = std::function<void(SForm&)>;
Q_DECLARE_METATYPE(Step)

class tst_KvLineEdit : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void IsNotMarkedAtFirst();
    void HintMarksAndTells();
    void MarkWithoutText();
    void MarkWithoutTipDropsTheTip();
    void ClearingTakesBothAway_data();
    void ClearingTakesBothAway();
    void ANewTextReplacesTheOld();
    void StyleSheetsSeeTheMark();
    void TheTipStandsBesideTheField_data();
    void TheTipStandsBesideTheField();
    void TheTipCoversNoNeighbour_data();
    void TheTipCoversNoNeighbour();
    void TheTipStaysWithinItsParent_data();
    void TheTipStaysWithinItsParent();
    void TheTipFollowsTheField();
    void TheTipHidesWithTheField();
    void TheTipTakesNoFocusAndNoClicks();
    void TheTipGoesWithTheField();
    void TheTipParentMayGoFirst();
    void ADescriptionStaysAsLongAsTheMark_data();
    void ADescriptionStaysAsLongAsTheMark();
    void AMarkWithoutTextIsDescribed_data();
    void AMarkWithoutTextIsDescribed();
    void TheMarkHasASign_data();
    void TheMarkHasASign();
    void TheTextKeepsClearOfTheSign_data() { TheMarkHasASign_data(); }
    void TheTextKeepsClearOfTheSign();
    void ATipThatGoesWatchesNothingAnyMore_data() { ADescriptionStaysAsLongAsTheMark_data(); }
    void ATipThatGoesWatchesNothingAnyMore();

private:
    QLabel* Tip() const { return m_pParent->findChild<QLabel*>("errorTip"); }

    QScopedPointer<QWidget> m_pParent;
    KvLineEdit* m_pEdit = nullptr;
};

void tst_KvLineEdit::init()
{
    m_pParent.reset(new QWidget);
    m_pParent->resize(400, 200);
    m_pEdit = new KvLineEdit(m_pParent.data());
    m_pEdit->setGeometry(50, 60, 120, 32);
    m_pParent->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pParent.data()));
}

void tst_KvLineEdit::IsNotMarkedAtFirst()
{
    QVERIFY(!m_pEdit->IsErrorHintShown());
    QVERIFY(m_pEdit->GetErrorHintText().isEmpty());
    QVERIFY(!m_pEdit->property("error").toBool());
}

void tst_KvLineEdit::HintMarksAndTells()
{
    m_pEdit->showErrorHint(m_pParent.data(), true, "Too long");
    QVERIFY(m_pEdit->IsErrorHintShown());
    QCOMPARE(m_pEdit->GetErrorHintText(), QString("Too long"));
    QCOMPARE(m_pEdit->property("error"), QVariant(true));
    QVERIFY(Tip()->isVisible());
    QCOMPARE(m_pEdit->accessibleDescription(), QString("Too long"));
}

void tst_KvLineEdit::MarkWithoutText()
{
    m_pEdit->showErrorHint(m_pParent.data(), true, QString());
    QVERIFY(m_pEdit->IsErrorHintShown());
    QVERIFY(!Tip());
}

void tst_KvLineEdit::MarkWithoutTipDropsTheTip()
{
    m_pEdit->showErrorHint(m_pParent.data(), true, "Too long");
    m_pEdit->showErrorHintNoTip(true);
    QVERIFY(m_pEdit->IsErrorHintShown());
    QVERIFY(m_pEdit->GetErrorHintText().isEmpty());
    QVERIFY(!Tip());
    m_pEdit->showErrorHintNoTip(false);
    QVERIFY(!m_pEdit->IsErrorHintShown());
}

void tst_KvLineEdit::ClearingTakesBothAway_data()
{
    QTest::addColumn<bool>("bParent");
    QTest::addColumn<bool>("bError");
    QTest::newRow("no parent") << false << true;
    QTest::newRow("no error") << true << false;
}

void tst_KvLineEdit::ClearingTakesBothAway()
{
    QFETCH(bool, bParent);
    QFETCH(bool, bError);
    m_pEdit->showErrorHint(m_pParent.data(), true, "Too long");
    m_pEdit->showErrorHint(bParent ? m_pParent.data() : nullptr, bError, QString());
    QVERIFY(!m_pEdit->IsErrorHintShown());
    QVERIFY(m_pEdit->GetErrorHintText().isEmpty());
    QCOMPARE(m_pEdit->property("error"), QVariant(false));
    QVERIFY(m_pEdit->accessibleDescription().isEmpty());
    QVERIFY(!Tip());
}

void tst_KvLineEdit::ANewTextReplacesTheOld()
{
    m_pEdit->showErrorHint(m_pParent.data(), true, "One");
    m_pEdit->showErrorHint(m_pParent.data(), true, "Two");
    QCOMPARE(m_pEdit->GetErrorHintText(), QString("Two"));
    QCOMPARE(m_pParent->findChildren<QLabel*>("errorTip").size(), 1);
}

void tst_KvLineEdit::StyleSheetsSeeTheMark()
{
    m_pEdit->setStyleSheet("QLineEdit { color: rgb(0, 0, 0); } QLineEdit[error=\"true\"] { color: rgb(1, 2, 3); }");
    m_pEdit->showErrorHintNoTip(true);
    QCOMPARE(m_pEdit->palette().color(QPalette::Text), QColor(1, 2, 3));
    m_pEdit->showErrorHintNoTip(false);
    QCOMPARE(m_pEdit->palette().color(QPalette::Text), QColor(0, 0, 0));
}

void tst_KvLineEdit::TheTipStandsBesideTheField_data()
{
    QTest::addColumn<Qt::LayoutDirection>("eDirection");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_KvLineEdit::TheTipStandsBesideTheField()
{
    QFETCH(Qt::LayoutDirection, eDirection);
    m_pEdit->setLayoutDirection(eDirection);
    m_pEdit->move(140, 60);
    m_pEdit->showErrorHint(m_pParent.data(), true, "Too long");
    const QRect field = m_pEdit->geometry();
    const QRect tip = Tip()->geometry();
    const int nDistance = eDirection == Qt::LeftToRight ? tip.left() - field.right() : field.left() - tip.right();
    QVERIFY2(nDistance > 0 && nDistance < 10, qPrintable(QString::number(nDistance)));
    QVERIFY(qAbs(tip.center().y() - field.center().y()) <= 1);
}

void tst_KvLineEdit::TheTipCoversNoNeighbour_data()
{
    QTest::addColumn<QRect>("field");
    QTest::addColumn<QList<QRect>>("listCaptions");
    QTest::addColumn<QPoint>("direction"); // from the field to the tip
    const QRect narrow(20, 60, 120, 32);
    const QRect wide(20, 60, 370, 32);
    const QRect above(20, 36, 60, 20);
    const QRect whole(20, 36, 370, 20);
    QTest::newRow("a hint behind the field") << narrow << QList<QRect>{above, {148, 66, 50, 20}} << QPoint(1, 0);
    QTest::newRow("a hint that ends the line") << narrow << QList<QRect>{above, {148, 66, 240, 20}} << QPoint(0, -1);
    QTest::newRow("no room but behind the caption") << wide << QList<QRect>{above} << QPoint(0, -1);
    QTest::newRow("no room but below") << wide << QList<QRect>{whole} << QPoint(0, 1);
    QTest::newRow("no room but behind the next caption")
        << wide << QList<QRect>{whole, {20, 98, 60, 20}} << QPoint(0, 1);
}

void tst_KvLineEdit::TheTipCoversNoNeighbour()
{
    QFETCH(QRect, field);
    QFETCH(QList<QRect>, listCaptions);
    QFETCH(QPoint, direction);
    for (const bool bMirrored : {false, true})
    {
        const auto place = [&](const QRect& rect) {
            return QStyle::visualRect(bMirrored ? Qt::RightToLeft : Qt::LeftToRight, m_pParent->rect(), rect);
        };
        m_pParent->setLayoutDirection(bMirrored ? Qt::RightToLeft : Qt::LeftToRight);
        m_pEdit->setGeometry(place(field));
        QWidget others(m_pParent.data());
        others.resize(m_pParent->size());
        for (const QRect& caption : listCaptions)
        {
            auto* pCaption = new QLabel("A long caption that fills its place, however wide", &others);
            pCaption->setGeometry(place(caption));
        }
        others.show();
        m_pEdit->showErrorHint(m_pParent.data(), true, "Too long");
        const QRect tip = Tip()->geometry();
        for (const QRect& caption : listCaptions)
        {
            QVERIFY(!tip.intersects(place(caption)));
        }
        QVERIFY(m_pParent->rect().contains(tip));
        QVERIFY(!tip.intersects(m_pEdit->geometry()));
        const int nAside = (tip.left() > m_pEdit->geometry().right()) - (tip.right() < m_pEdit->geometry().left());
        const int nBelow = (tip.top() > m_pEdit->geometry().bottom()) - (tip.bottom() < m_pEdit->geometry().top());
        QCOMPARE(QPoint(bMirrored ? -nAside : nAside, nBelow), direction);
        m_pEdit->showErrorHint(nullptr, true, QString());
    }
}

void tst_KvLineEdit::TheTipStaysWithinItsParent_data()
{
    QTest::addColumn<QPoint>("pos");
    QTest::addColumn<int>("nLength");
    QTest::newRow("at the bottom") << QPoint(50, 168) << 10;
    QTest::newRow("at the right") << QPoint(280, 60) << 40;
    QTest::newRow("wider than the parent") << QPoint(50, 20) << 200;
}

void tst_KvLineEdit::TheTipStaysWithinItsParent()
{
    QFETCH(QPoint, pos);
    QFETCH(int, nLength);
    m_pEdit->move(pos);
    QString strText;
    while (strText.size() < nLength)
    {
        strText += "word ";
    }
    m_pEdit->showErrorHint(m_pParent.data(), true, strText);
    QVERIFY(m_pParent->rect().contains(Tip()->geometry()));
    QVERIFY(!Tip()->geometry().intersects(m_pEdit->geometry()));
}

void tst_KvLineEdit::TheTipFollowsTheField()
{
    m_pEdit->showErrorHint(m_pParent.data(), true, "Too long");
    const QPoint before = Tip()->pos();
    m_pEdit->move(m_pEdit->pos() + QPoint(30, 40));
    QCOMPARE(Tip()->pos(), before + QPoint(30, 40));
}

void tst_KvLineEdit::TheTipHidesWithTheField()
{
    m_pEdit->showErrorHint(m_pParent.data(), true, "Too long");
    m_pEdit->hide();
    QVERIFY(!Tip()->isVisible());
    m_pEdit->show();
    QVERIFY(Tip()->isVisible());
}

void tst_KvLineEdit::TheTipTakesNoFocusAndNoClicks()
{
    m_pEdit->showErrorHint(m_pParent.data(), true, "Too long");
    QCOMPARE(Tip()->focusPolicy(), Qt::NoFocus);
    QVERIFY(Tip()->testAttribute(Qt::WA_TransparentForMouseEvents));
}

void tst_KvLineEdit::TheTipGoesWithTheField()
{
    m_pEdit->showErrorHint(m_pParent.data(), true, "Too long");
    delete m_pEdit;
    QVERIFY(!Tip());
}

void tst_KvLineEdit::TheTipParentMayGoFirst()
{
    QScopedPointer<QWidget> pOther(new QWidget);
    m_pEdit->showErrorHint(pOther.data(), true, "Too long");
    QCOMPARE(m_pEdit->GetErrorHintText(), QString("Too long"));
    pOther.reset();
    QVERIFY(m_pEdit->GetErrorHintText().isEmpty());
    m_pEdit->showErrorHint(nullptr, true, QString());
    QVERIFY(!m_pEdit->IsErrorHintShown());
}

void tst_KvLineEdit::ADescriptionStaysAsLongAsTheMark_data()
{
    QTest::addColumn<Step>("step");
    QTest::addColumn<QString>("strDescription");
    const auto row = [](const char* pszName, const char* pszDescription, const Step& step) {
        QTest::newRow(pszName) << step << pszDescription;
    };
    row("the tip's parent dies", "Too long", [](const SForm& form) { delete form.pTipParent; });
    row("cleared", "The folder for pictures",
        [](const SForm& form) { form.pEdit->showErrorHint(nullptr, true, QString()); });
    row("the mark alone", "Too long", [](const SForm& form) { form.pEdit->showErrorHintNoTip(true); });
    row("the mark alone, cleared", "The folder for pictures", [](const SForm& form) {
        form.pEdit->showErrorHintNoTip(true);
        form.pEdit->showErrorHintNoTip(false);
    });
    row("cleared elsewhere", "The folder for pictures", [](SForm& form) {
        form.pEdit->setParent(&form.other);
        form.pEdit->showErrorHint(nullptr, true, QString());
    });
    row("another parent, which dies", "Still too long", [](const SForm& form) {
        auto* pSecond = new QWidget(form.pPane);
        form.pEdit->showErrorHint(pSecond, true, "Still too long");
        delete pSecond;
    });
}

void tst_KvLineEdit::ADescriptionStaysAsLongAsTheMark()
{
    QFETCH(Step, step);
    QFETCH(QString, strDescription);
    SForm form;
    QCOMPARE(form.pEdit->accessibleDescription(), QString("Too long"));
    step(form);
    QCOMPARE(form.pEdit->accessibleDescription(), strDescription);
}

void tst_KvLineEdit::AMarkWithoutTextIsDescribed_data()
{
    QTest::addColumn<QString>("strOwn");
    QTest::addColumn<QString>("strDescription");
    QTest::newRow("field without a description") << QString() << "Illegal value";
    QTest::newRow("field with a range") << "(2-10)"
                                        << "Illegal value, (2-10)";
}

void tst_KvLineEdit::AMarkWithoutTextIsDescribed()
{
    QFETCH(QString, strOwn);
    QFETCH(QString, strDescription);
    m_pEdit->setAccessibleDescription(strOwn);
    m_pEdit->showErrorHintNoTip(true);
    QCOMPARE(m_pEdit->accessibleDescription(), strDescription);
    m_pEdit->showErrorHintNoTip(false);
    QCOMPARE(m_pEdit->accessibleDescription(), strOwn);
}

void tst_KvLineEdit::TheMarkHasASign_data()
{
    QTest::addColumn<Qt::LayoutDirection>("eDirection");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void tst_KvLineEdit::TheMarkHasASign()
{
    QFETCH(Qt::LayoutDirection, eDirection);
    m_pEdit->setLayoutDirection(eDirection);
    const QImage plain = m_pEdit->grab().toImage();
    m_pEdit->showErrorHintNoTip(true);
    const QImage marked = m_pEdit->grab().toImage();
    const QRect trailing = QStyle::visualRect(eDirection, m_pEdit->rect(), QRect(90, 6, 26, 20));
    QCOMPARE(plain.copy(QRect(40, 4, 40, 24)), marked.copy(QRect(40, 4, 40, 24)));
    QVERIFY(plain.copy(trailing) != marked.copy(trailing));
    m_pEdit->showErrorHintNoTip(false);
    QCOMPARE(m_pEdit->grab().toImage(), plain);
}

void tst_KvLineEdit::TheTextKeepsClearOfTheSign()
{
    QFETCH(Qt::LayoutDirection, eDirection);
    m_pEdit->showErrorHintNoTip(true);
    m_pEdit->setLayoutDirection(eDirection);
    const bool bMirrored = eDirection == Qt::RightToLeft;
    QVERIFY((bMirrored ? m_pEdit->textMargins().left() : m_pEdit->textMargins().right()) >= 20);
    QCOMPARE(bMirrored ? m_pEdit->textMargins().right() : m_pEdit->textMargins().left(), 0);
    m_pEdit->showErrorHintNoTip(false);
    QCOMPARE(m_pEdit->textMargins(), QMargins());
}

void tst_KvLineEdit::ATipThatGoesWatchesNothingAnyMore()
{
    QFETCH(Step, step);
    SForm form;
    form.pEdit->m_nSeen = 0;
    form.pPane->move(10, 0);
    QVERIFY(form.pEdit->m_nSeen > 0);
    step(form);
    form.pEdit->m_nSeen = 0;
    form.pPane->move(20, 0);
    form.pEdit->move(5, 5);
    form.window.resize(500, 200);
    QCOMPARE(form.pEdit->m_nSeen, 0);
}

QTEST_MAIN(tst_KvLineEdit)

#include "tst_KvLineEdit.moc"
