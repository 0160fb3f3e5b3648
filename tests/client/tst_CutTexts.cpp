#include "support/ClientDialog.h"
#include "support/DrawnTexts.h"

#include <KvGui/KvMessageNotify.h>
#include <client/MainWindow.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStyleOption>
#include <QToolTip>

namespace
{

const QChar g_chDots(0x2026);

/// Makes every text of the client two fifths longer.
class CLongTexts : public QTranslator
{
public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char* /*pszContext*/, const char* pszSource, const char* /*pszHint*/,
                      int /*nNumber*/) const override
    {
        const QString strSource = QString::fromUtf8(pszSource);
        const QString strWords = QStringLiteral(" mnop qrst").repeated(30);
        return strSource + strWords.left(strSource.size() * 2 / 5);
    }
};

QString Describe(const QWidget& widget, const SDrawnText& text)
{
    return QString("%1 of %2 (%3): %4, %5, %6, %7 on %8, %9")
        .arg(text.strText, widget.objectName(), widget.metaObject()->className())
        .arg(text.place.left())
        .arg(text.place.top())
        .arg(text.place.right())
        .arg(text.place.bottom())
        .arg(widget.width())
        .arg(widget.height());
}

/// Where a widget shows its text.
QRectF TextRoom(const QWidget& widget)
{
    if (const auto* pCombo = qobject_cast<const QComboBox*>(&widget))
    {
        QStyleOptionComboBox option;
        option.initFrom(pCombo);
        return pCombo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, pCombo);
    }
    return widget.rect();
}

/// What the operator gets to read who rests the mouse on a text.
QString ToolTipAt(QWidget& widget, const QPoint& place)
{
    QToolTip::hideText();
    QHelpEvent help(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &help);
    return QToolTip::text();
}

} // namespace

/// No text is cut, unless it ends in dots and a tool tip tells the whole of it.
class tst_CutTexts : public QObject
{
    Q_OBJECT

private slots:
    void cleanupTestCase() { Speak("en"); }

    void OfTheDialog_data() { Looks(); }
    void OfTheDialog();
    void OfTheMainWindow_data() { Looks(); }
    void OfTheMainWindow();

private:
    static void Looks();
    static void Dress();
    static void Check(QWidget& window);
    static void CheckWidget(QWidget& widget);
};

void tst_CutTexts::Looks()
{
    QTest::addColumn<QString>("strLanguage");
    QTest::addColumn<int>("nTextSize");
    QTest::addColumn<bool>("bLong");
    for (const int nTextSize : {13, 19})
    {
        for (const char* pszLanguage : {"en", "zh_CN", "es", "ar"})
        {
            QTest::addRow("%s, %d", pszLanguage, nTextSize) << pszLanguage << nTextSize << false;
        }
        QTest::addRow("long, %d", nTextSize) << "en" << nTextSize << true;
        QTest::addRow("long and mirrored, %d", nTextSize) << "ar" << nTextSize << true;
    }
}

void tst_CutTexts::Dress()
{
    QFETCH(QString, strLanguage);
    QFETCH(int, nTextSize);
    QFETCH(bool, bLong);
    Speak(strLanguage, "DustyBlue", nTextSize);
    if (bLong)
    {
        QCoreApplication::installTranslator(new CLongTexts(qApp));
        QGuiApplication::setLayoutDirection(QLocale(strLanguage).textDirection());
    }
}

void tst_CutTexts::CheckWidget(QWidget& widget)
{
    const QRectF room = TextRoom(widget).adjusted(-2, -2, 2, 2);
    for (const SDrawnText& text : DrawnTexts(widget))
    {
        const bool bSeen = text.place.width() > 0;
        QVERIFY2(!bSeen || room.contains(text.place), qPrintable(Describe(widget, text)));
        if (text.strText.contains(g_chDots))
        {
            const QString strTip = ToolTipAt(widget, text.place.center().toPoint());
            QVERIFY2(strTip.size() > text.strText.size(), qPrintable(Describe(widget, text)));
        }
    }
}

void tst_CutTexts::Check(QWidget& window)
{
    for (QWidget* pWidget : window.findChildren<QWidget*>())
    {
        const bool bScrolls = qobject_cast<QAbstractItemView*>(pWidget->parentWidget());
        if (!pWidget->isVisibleTo(&window) || bScrolls)
        {
            continue;
        }
        CheckWidget(*pWidget);
        if (auto* pCombo = qobject_cast<QComboBox*>(pWidget))
        {
            const QString strFirst = pCombo->currentText();
            for (int nItem = 0; nItem < pCombo->count() && !QTest::currentTestFailed(); ++nItem)
            {
                pCombo->setCurrentIndex(nItem);
                CheckWidget(*pCombo);
            }
        }
    }
    for (auto* pView : window.findChildren<QAbstractItemView*>())
    {
        // Rows that lie beyond the edge are not cut but scrolled.
        if (pView->isVisibleTo(&window) && !QTest::currentTestFailed())
        {
            CheckWidget(*pView->viewport());
        }
    }
}

void tst_CutTexts::OfTheDialog()
{
    Dress();
    SClientDialog d;
    d.Open();
    Check(d.dialog);
    for (auto* pRadio : d.dialog.findChildren<QRadioButton*>())
    {
        pRadio->click(); // shows the other table of keys
        if (pRadio->objectName() == "nkbRadioBtn" && !QTest::currentTestFailed())
        {
            Check(d.dialog);
        }
    }
}

void tst_CutTexts::OfTheMainWindow()
{
    Dress();
    CWorkFolder folder;
    LocalConfigClient::ConfigService service(folder.path(), LocalConfigClient::SettingsFile::ReadWrite);
    LocalConfigClient::UserManager users({}, nullptr);
    LocalConfigClient::MainWindow window(service, users);
    QSignalSpy seen(&window, &LocalConfigClient::MainWindow::SignalSeen);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_COMPARE(seen.size(), 1);
    window.resize(1440, 900); // what the screen of the tests has no room for
    Check(window);
}

QTEST_MAIN(tst_CutTexts)

#include "tst_CutTexts.moc"
