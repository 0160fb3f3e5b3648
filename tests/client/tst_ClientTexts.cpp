#include "support/ClientDialog.h"
#include "support/DrawnTexts.h"
#include "support/SourceTexts.h"

#include <client/ClientTexts.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGlyphRun>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRawFont>
#include <QScreen>
#include <QTextLayout>
#include <QTranslator>
#include <QtTest>

#include <algorithm>
#include <memory>

using LocalConfigClient::ClientTexts;

namespace
{

/// Whether a font draws every letter of a text.
bool IsDrawn(const QString& strText, const QFont& font)
{
    QTextLayout layout(strText, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> listRuns = layout.glyphRuns();
    return !listRuns.isEmpty() && std::none_of(listRuns.begin(), listRuns.end(),
                                               [](const QGlyphRun& run) { return run.glyphIndexes().contains(0); });
}

/// The installed fonts among those that the client names; one that it does not name might be there by accident.
QList<QRawFont> NamedFonts(const QFont& font)
{
    QList<QRawFont> listFonts;
    const QStringList listInstalled = QFontDatabase().families();
    for (const QString& strFamily : font.families())
    {
        if (listInstalled.contains(strFamily))
        {
            listFonts += QRawFont::fromFont(QFont(strFamily));
        }
    }
    return listFonts;
}

/// The letters of a text that no font has.
QString Missing(const QString& strText, const QList<QRawFont>& listFonts)
{
    QString strMissing;
    for (const QChar ch : strText)
    {
        const bool bThere =
            !ch.isPrint() || std::any_of(listFonts.begin(), listFonts.end(),
                                         [ch](const QRawFont& font) { return font.supportsCharacter(ch); });
        strMissing += bThere ? QString() : QString(ch);
    }
    return strMissing;
}

/// Texts of Qt's own that an operator meets in the client.
QStringList QtTexts()
{
    QStringList listTexts;
    QLineEdit edit;
    const std::unique_ptr<QMenu> pMenu(edit.createStandardContextMenu());
    for (const QAction* pAction : pMenu->actions())
    {
        listTexts += pAction->text().section('\t', 0, 0);
    }
    QDialogButtonBox buttons(QDialogButtonBox::Save | QDialogButtonBox::Cancel | QDialogButtonBox::Close);
    for (const QAbstractButton* pButton : buttons.buttons())
    {
        listTexts += pButton->text();
    }
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    for (const char* pszName : {"lookInLabel", "fileTypeLabel"})
    {
        listTexts += dialog.findChild<QLabel*>(pszName)->text();
    }
    listTexts.removeAll(QString()); // separators
    return listTexts;
}

} // namespace

class tst_ClientTexts : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void TheNamedFontsHaveTheLettersOfEveryText_data();
    void TheNamedFontsHaveTheLettersOfEveryText();
    void TheNamedFontsHaveTheLettersOfEveryAlarm();
    void QtsOwnTextsAreTranslated_data() { Languages(); }
    void QtsOwnTextsAreTranslated();
    void TheDialogShowsNoEnglish_data() { Languages(); }
    void TheDialogShowsNoEnglish();
    void PluralsAreThoseOfTheLanguage_data();
    void PluralsAreThoseOfTheLanguage();
    void TheTextIsAsLargeAsTheSystems_data();
    void TheTextIsAsLargeAsTheSystems();

private:
    static void Languages();
};

void tst_ClientTexts::cleanup()
{
    Speak("en");
}

void tst_ClientTexts::TheNamedFontsHaveTheLettersOfEveryText_data()
{
    QTest::addColumn<QString>("strFile");
    for (const QString& strFile : SourceTexts::Files())
    {
        QTest::newRow(qPrintable(QFileInfo(strFile).fileName())) << strFile;
    }
}

void tst_ClientTexts::TheNamedFontsHaveTheLettersOfEveryText()
{
    QFETCH(QString, strFile);
    const QFont font = ClientTexts::MakeFont(QApplication::font());
    const QList<QRawFont> listNamed = NamedFonts(font);
    for (const SourceTexts::SMessage& message : SourceTexts::Read(strFile))
    {
        for (const QString& strText : message.listTranslations)
        {
            QCOMPARE(Missing(strText, listNamed), QString());
            QVERIFY2(IsDrawn(QString(strText).remove('\n'), font), qPrintable(strText));
        }
    }
}

void tst_ClientTexts::TheNamedFontsHaveTheLettersOfEveryAlarm()
{
    const QFont font = ClientTexts::MakeFont(QApplication::font());
    const QList<QRawFont> listNamed = NamedFonts(font);
    const QList<SourceTexts::Names> listNames = SourceTexts::ReadAlarmNames();
    QVERIFY(listNames.size() > 150);
    for (const SourceTexts::Names& names : listNames)
    {
        for (const QString& strName : names)
        {
            QCOMPARE(Missing(strName, listNamed), QString());
            QVERIFY2(IsDrawn(strName, font), qPrintable(strName));
        }
    }
}

void tst_ClientTexts::Languages()
{
    QTest::addColumn<QString>("strLanguage");
    for (const QString& strLanguage : SourceTexts::Languages())
    {
        QTest::newRow(qPrintable(strLanguage)) << strLanguage;
    }
}

void tst_ClientTexts::QtsOwnTextsAreTranslated()
{
    QFETCH(QString, strLanguage);
    const QStringList listEnglish = QtTexts();
    QVERIFY(listEnglish.contains("&Copy"));
    ClientTexts::Translate(strLanguage);
    const QStringList listTranslated = QtTexts();
    QCOMPARE(listTranslated.size(), listEnglish.size());
    for (int n = 0; n < listEnglish.size(); ++n)
    {
        QVERIFY2(listTranslated[n] != listEnglish[n], qPrintable(listEnglish[n]));
    }
}

void tst_ClientTexts::TheDialogShowsNoEnglish()
{
    QFETCH(QString, strLanguage);
    QSet<QString> setEnglish;
    for (const QString& strFile : SourceTexts::Files())
    {
        for (const SourceTexts::SMessage& message : SourceTexts::Read(strFile))
        {
            const bool bSame = message.listTranslations.contains(message.strSource); // as keys are called
            if (SourceTexts::Language(strFile) == strLanguage && !bSame)
            {
                setEnglish += {message.strSource, message.strSource + ':'};
            }
        }
    }
    Speak(strLanguage);
    SClientDialog d;
    d.Open();
    d.dialog.findChild<QAbstractButton*>("nkbRadioBtn")->click();
    QSet<QString> setShown;
    for (const auto* pModel : d.dialog.findChildren<QAbstractItemModel*>())
    {
        for (int nItem = 0; nItem < pModel->rowCount() * pModel->columnCount(); ++nItem)
        {
            setShown += pModel->index(nItem / pModel->columnCount(), nItem % pModel->columnCount()).data().toString();
        }
    }
    for (QWidget* pWidget : d.dialog.findChildren<QWidget*>())
    {
        const auto* pView = qobject_cast<const QAbstractItemView*>(pWidget->parentWidget());
        const bool bItems = pView && !qobject_cast<const QHeaderView*>(pView); // drawn in pieces, letters by letters
        for (const SDrawnText& text : bItems ? QList<SDrawnText>() : DrawnTexts(*pWidget))
        {
            setShown += text.strText;
        }
        const auto* pCombo = qobject_cast<const QComboBox*>(pWidget);
        for (int nItem = 0; pCombo && nItem < pCombo->count(); ++nItem)
        {
            setShown += pCombo->itemText(nItem);
        }
        setShown += {pWidget->toolTip(), pWidget->accessibleName()};
    }
    QVERIFY(setShown.size() > 100);
    QCOMPARE(QStringList(setShown.intersect(setEnglish).values()).join(", "), QString());
}

void tst_ClientTexts::PluralsAreThoseOfTheLanguage_data()
{
    QTest::addColumn<QString>("strLanguage");
    QTest::addColumn<int>("nCount");
    QTest::addColumn<QString>("strWords");
    const auto add = [](const char* pszLanguage, int nCount, const char* pszWords) {
        QTest::addRow("%s, %d", pszLanguage, nCount) << pszLanguage << nCount << QString::fromUtf8(pszWords);
    };
    add("en", 2, "2 pictures");
    add("zh_CN", 2, "2 张图片");
    add("es", 1, "1 imagen ");
    add("es", 2, "2 imágenes");
    add("ar", 1, "صورة واحدة");
    add("ar", 2, "صورتين");
    add("ar", 3, "3 صور ");
    add("ar", 10, "10 صور ");
    add("ar", 11, "11 صورةً");
    add("ar", 100, "100 صورة");
}

void tst_ClientTexts::PluralsAreThoseOfTheLanguage()
{
    QFETCH(QString, strLanguage);
    QFETCH(int, nCount);
    QFETCH(QString, strWords);
    ClientTexts::Translate(strLanguage);
    const QString strText =
        QCoreApplication::translate("LocalConfigClient::LiveActions", "%n pictures saved in %1", nullptr, nCount);
    QVERIFY2(strText.contains(strWords), qPrintable(strText));
}

void tst_ClientTexts::TheTextIsAsLargeAsTheSystems_data()
{
    QTest::addColumn<int>("nSystem");
    QTest::addColumn<int>("nChosen");
    QTest::newRow("smaller") << 9 << 13;
    QTest::newRow("the skin's") << 13 << 13;
    QTest::newRow("larger") << 16 << 16;
    QTest::newRow("half as large again") << 19 << 19;
    QTest::newRow("too large for the dialog") << 26 << 19;
}

void tst_ClientTexts::TheTextIsAsLargeAsTheSystems()
{
    QFETCH(int, nSystem);
    QFETCH(int, nChosen);
    QFont system;
    system.setPixelSize(nSystem);
    QCOMPARE(ClientTexts::MakeFont(system).pixelSize(), nChosen);
    system.setPointSizeF((nSystem + 0.75) * 72 / QGuiApplication::primaryScreen()->logicalDotsPerInch());
    QCOMPARE(ClientTexts::MakeFont(system).pixelSize(), nChosen);
}

QTEST_MAIN(tst_ClientTexts)

#include "tst_ClientTexts.moc"
