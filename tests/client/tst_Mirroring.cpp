#include "support/ClientDialog.h"
#include "support/DrawnTexts.h"

#include <KvGui/KvLineEdit.h>
#include <KvGui/KvToolListView.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QTableView>

/// The settings dialog where a language is read from right to left.
class tst_Mirroring : public QObject
{
    Q_OBJECT

private slots:
    void init() { Speak("en"); }
    void cleanupTestCase() { Speak("en"); }

    void TheLanguageDecides_data();
    void TheLanguageDecides();
    void EveryControlIsMirrored();
    void TheSplitPickerIsMirrored();
    void AccentBarsAreAtTheLeadingEdge_data();
    void AccentBarsAreAtTheLeadingEdge();
    void NumbersKeepTheirOrder();
    void PathsKeepTheirOrder();
    void NumbersStandWhereTextsStart_data();
    void NumbersStandWhereTextsStart();

private:
    static QMap<QString, QRect> Places(const QWidget& window);
    static void CompareMirrored(const QMap<QString, QRect>& mapLeft, const QMap<QString, QRect>& mapRight, int nWidth);
};

/// Of everything that is to be seen, by its name and the names of what it lies in.
QMap<QString, QRect> tst_Mirroring::Places(const QWidget& window)
{
    QMap<QString, QRect> mapPlaces;
    QHash<QString, int> hashCount;
    for (const QWidget* pWidget : window.findChildren<QWidget*>())
    {
        if (!pWidget->isVisibleTo(&window))
        {
            continue;
        }
        QString strPath;
        for (const QWidget* pPart = pWidget; pPart != &window; pPart = pPart->parentWidget())
        {
            strPath = QString("/%1 %2").arg(pPart->metaObject()->className(), pPart->objectName()) + strPath;
        }
        const int nNumber = hashCount[strPath]++;
        mapPlaces.insert(QString("%1 %2").arg(strPath).arg(nNumber),
                         {pWidget->mapTo(&window, QPoint()), pWidget->size()});
    }
    return mapPlaces;
}

void tst_Mirroring::CompareMirrored(const QMap<QString, QRect>& mapLeft, const QMap<QString, QRect>& mapRight,
                                    int nWidth)
{
    QCOMPARE(mapRight.keys(), mapLeft.keys());
    QString strWrong;
    for (auto it = mapLeft.begin(); it != mapLeft.end(); ++it)
    {
        QRect mirrored = it.value();
        mirrored.moveLeft(nWidth - it->left() - it->width());
        if (mapRight[it.key()] != mirrored)
        {
            QDebug(&strWrong) << it.key() << mapRight[it.key()] << "and not" << mirrored << '\n';
        }
    }
    QVERIFY2(strWrong.isEmpty(), qPrintable(strWrong));
}

void tst_Mirroring::TheLanguageDecides_data()
{
    QTest::addColumn<Qt::LayoutDirection>("eDirection");
    QTest::newRow("en") << Qt::LeftToRight;
    QTest::newRow("zh_CN") << Qt::LeftToRight;
    QTest::newRow("es") << Qt::LeftToRight;
    QTest::newRow("ar") << Qt::RightToLeft;
}

void tst_Mirroring::TheLanguageDecides()
{
    QFETCH(Qt::LayoutDirection, eDirection);
    Speak(QTest::currentDataTag());
    QCOMPARE(QGuiApplication::layoutDirection(), eDirection);
    SClientDialog d;
    d.Open();
    QCOMPARE(d.dialog.layoutDirection(), eDirection);
}

void tst_Mirroring::EveryControlIsMirrored()
{
    // With the same texts either way, so that nothing is as wide as another language needs it.
    QMap<QString, QRect> mapLeft;
    int nWidth = 0;
    {
        SClientDialog d;
        d.Open();
        mapLeft = Places(d.dialog);
        nWidth = d.dialog.width();
    }
    QVERIFY(mapLeft.size() > 100);
    Direct(Qt::RightToLeft);
    SClientDialog d;
    d.Open();
    QCOMPARE(d.dialog.width(), nWidth);
    CompareMirrored(mapLeft, Places(d.dialog), nWidth);
}

void tst_Mirroring::TheSplitPickerIsMirrored()
{
    const auto open = [](SClientDialog& d) {
        d.Open();
        QTest::mouseClick(d.Find("btnShowSplitWnd"), Qt::LeftButton);
        const auto* pPicker = d.dialog.findChild<QWidget*>("CSplitWndNumConfig");
        QVERIFY(pPicker->isVisible());
    };
    QMap<QString, QRect> mapLeft;
    int nWidth = 0;
    {
        SClientDialog d;
        open(d);
        const auto* pPage = d.dialog.findChild<QWidget*>("m_pVideo");
        mapLeft = Places(*pPage);
        nWidth = pPage->width();
    }
    Direct(Qt::RightToLeft);
    SClientDialog d;
    open(d);
    CompareMirrored(mapLeft, Places(*d.dialog.findChild<QWidget*>("m_pVideo")), nWidth);
}

void tst_Mirroring::AccentBarsAreAtTheLeadingEdge_data()
{
    QTest::addColumn<Qt::LayoutDirection>("eDirection");
    QTest::addColumn<QString>("strSkin");
    for (const char* pszSkin : {"DustyBlue", "White"})
    {
        QTest::addRow("%s, from the left", pszSkin) << Qt::LeftToRight << pszSkin;
        QTest::addRow("%s, from the right", pszSkin) << Qt::RightToLeft << pszSkin;
    }
}

void tst_Mirroring::AccentBarsAreAtTheLeadingEdge()
{
    QFETCH(Qt::LayoutDirection, eDirection);
    QFETCH(QString, strSkin);
    Speak("en", strSkin);
    Direct(eDirection);
    SClientDialog d;
    d.Open();
    auto* pList = d.dialog.findChild<KVGUI::KvToolListView*>();
    const QColor accent = pList->property("accentColor").value<QColor>();
    for (QWidget* pWidget : {static_cast<QWidget*>(d.dialog.findChild<QWidget*>("m_gBBasic")), pList->viewport()})
    {
        const QImage picture = pWidget->grab().toImage();
        // Where no icon of the list is, which has that colour, too.
        const int nLine = qobject_cast<QAbstractItemView*>(pWidget->parentWidget()) ? 10 : picture.height() / 2;
        QList<int> listColumns;
        for (int nColumn = 0; nColumn < picture.width(); ++nColumn)
        {
            if (picture.pixelColor(nColumn, nLine) == accent)
            {
                listColumns += nColumn;
            }
        }
        const int nFirst = listColumns.value(0, -100);
        const int nFromEdge = eDirection == Qt::LeftToRight
                                  ? nFirst
                                  : picture.width() - 1 - listColumns.value(listColumns.size() - 1, -100);
        QVERIFY2(nFromEdge >= 0 && nFromEdge <= 3, qPrintable(QString::number(nFromEdge)));
        QVERIFY2(listColumns.size() <= 4, qPrintable(QString::number(listColumns.size())));
    }
}

void tst_Mirroring::NumbersKeepTheirOrder()
{
    Speak("ar");
    SClientDialog d;
    d.Open();
    // Between two numbers, "*" and "+" would go with the line, from right to left, but for a mark before them.
    QCOMPARE(d.Find<QComboBox>("screenRatioCmbBox")->itemText(2), QString::fromUtf8("\u200e1440*900"));
    const QAbstractItemModel* pModel = d.Find<QTableView>("nkbView")->model();
    QStringList listTexts;
    for (int n = 0; n < pModel->rowCount() * pModel->columnCount(); ++n)
    {
        listTexts += pModel->index(n / 4, n % 4).data().toString();
    }
    for (const char* pszText : {"\u200e0+FN", "\u200e1+AUX", "\u200e1+SETUP"})
    {
        QVERIFY2(listTexts.contains(QString::fromUtf8(pszText)), pszText);
    }
}

void tst_Mirroring::PathsKeepTheirOrder()
{
    Speak("ar");
    SClientDialog d;
    d.Open();
    for (const char* pszName : {"picPathEdit", "recPathEdit", "editSoundPath"})
    {
        auto* pEdit = d.Find<KVGUI::KvLineEdit>(pszName);
        pEdit->setText("/a/");
        QTest::qWait(1);
        pEdit->setCursorPosition(0);
        const int nStart = pEdit->inputMethodQuery(Qt::ImCursorRectangle).toRect().left();
        pEdit->setCursorPosition(3);
        const int nEnd = pEdit->inputMethodQuery(Qt::ImCursorRectangle).toRect().left();
        QVERIFY2(nStart < nEnd, pszName);
    }
}

void tst_Mirroring::NumbersStandWhereTextsStart_data()
{
    QTest::addColumn<QString>("strLanguage");
    QTest::newRow("from the left") << "en";
    QTest::newRow("from the right") << "ar";
}

void tst_Mirroring::NumbersStandWhereTextsStart()
{
    QFETCH(QString, strLanguage);
    Speak(strLanguage);
    SClientDialog d;
    d.Open();
    for (const char* pszName :
         {"videoCushionEdit", "silenceTimeSpinBox", "picTmSpinBox", "picNumEdit", "maxRecSizeEdit", "lineeditStayTime"})
    {
        auto* pField = d.Find(pszName);
        QVERIFY2(pField, pszName);
        auto* pEdit = qobject_cast<QLineEdit*>(pField);
        pEdit = pEdit ? pEdit : pField->findChild<QLineEdit*>();
        const QList<SDrawnText> listTexts = DrawnTexts(*pEdit);
        QCOMPARE(listTexts.size(), 1);
        const QRect place = listTexts.first().place.toRect();
        const int nGap = strLanguage == "en" ? place.left() : pEdit->width() - place.right() - 1;
        QVERIFY2(nGap >= 0 && nGap < 20, qPrintable(QString("%1: %2").arg(pszName).arg(nGap)));
    }
}

QTEST_MAIN(tst_Mirroring)

#include "tst_Mirroring.moc"
