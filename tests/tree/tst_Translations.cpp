// Every text of every library has its translation, and the dialog shows them.

#include "support/SourceTexts.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTranslator>
#include <QtTest>

using SourceTexts::SMessage;

namespace
{

struct SLanguage
{
    const char* pszName;
    int nPluralForms;
};

constexpr SLanguage g_arrLanguages[] = {{"zh_CN", 1}, {"es", 2}, {"ar", 6}};

/// Sorted; those of numbers only where \a bCount.
QStringList Placeholders(const QString& strText, bool bCount)
{
    static const QRegularExpression place(QStringLiteral("%L?(\\d\\d?|n)"));
    QStringList listPlaces;
    QRegularExpressionMatchIterator it = place.globalMatch(strText);
    while (it.hasNext())
    {
        const QString strPlace = it.next().captured();
        if (bCount || !strPlace.endsWith(QLatin1Char('n')))
        {
            listPlaces += strPlace;
        }
    }
    listPlaces.sort();
    return listPlaces;
}

/// The letters after "&".
QString Mnemonics(const QString& strText)
{
    static const QRegularExpression mark(QStringLiteral("(?:&&)*&([^&\\s])"));
    QString strLetters;
    QRegularExpressionMatchIterator it = mark.globalMatch(strText);
    while (it.hasNext())
    {
        strLetters += it.next().captured(1).toLower();
    }
    return strLetters;
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void EveryLibraryIsInEveryLanguage();
    void FilesAreComplete_data() { Files(); }
    void FilesAreComplete();
    void PlaceholdersSurvive_data() { Files(); }
    void PlaceholdersSurvive();
    void MnemonicsSurviveAndDiffer_data() { Files(); }
    void MnemonicsSurviveAndDiffer();
    void FilesNameEveryTextOfTheSources_data() { Files(); }
    void FilesNameEveryTextOfTheSources();
    void AlarmsHaveANameInEveryLanguage();
    void CompiledFilesAreInstalled_data() { Files(); }
    void CompiledFilesAreInstalled();

private:
    static void Files()
    {
        QTest::addColumn<QString>("strFile");
        for (const QString& strFile : SourceTexts::Files())
        {
            QTest::newRow(qPrintable(QFileInfo(strFile).fileName())) << strFile;
        }
    }
};

void tst_Translations::EveryLibraryIsInEveryLanguage()
{
    QStringList listLanguages;
    for (const SLanguage& language : g_arrLanguages)
    {
        listLanguages += language.pszName;
    }
    listLanguages.sort();
    for (const QString& strFolder : SourceTexts::Folders())
    {
        QStringList listFound;
        for (const QString& strFile : SourceTexts::Files())
        {
            if (QFileInfo(strFile).path() == QStringLiteral(SOURCE_DIR "/%1/translations").arg(strFolder))
            {
                listFound += SourceTexts::Language(strFile);
            }
        }
        listFound.sort();
        QCOMPARE(listFound, listLanguages);
    }
}

void tst_Translations::FilesAreComplete()
{
    QFETCH(QString, strFile);
    const QString strLanguage = SourceTexts::Language(strFile);
    const auto pLanguage =
        std::find_if(std::begin(g_arrLanguages), std::end(g_arrLanguages),
                     [&strLanguage](const SLanguage& language) { return strLanguage == language.pszName; });
    QVERIFY(pLanguage != std::end(g_arrLanguages));
    const QList<SMessage> listMessages = SourceTexts::Read(strFile);
    QVERIFY(!listMessages.isEmpty());
    for (const SMessage& message : listMessages)
    {
        QVERIFY2(message.bFinished && !message.listTranslations.contains(QString()), qPrintable(message.strSource));
        QCOMPARE(message.listTranslations.size(), message.bNumerus ? pLanguage->nPluralForms : 1);
    }
}

void tst_Translations::PlaceholdersSurvive()
{
    QFETCH(QString, strFile);
    for (const SMessage& message : SourceTexts::Read(strFile))
    {
        for (const QString& strText : message.listTranslations)
        {
            QCOMPARE(Placeholders(strText, false), Placeholders(message.strSource, false)); // "one" may be a word
        }
        QCOMPARE(Placeholders(message.listTranslations.last(), true), Placeholders(message.strSource, true));
    }
}

void tst_Translations::MnemonicsSurviveAndDiffer()
{
    QFETCH(QString, strFile);
    QHash<QString, QString> hashTaken; // letters by context
    for (const SMessage& message : SourceTexts::Read(strFile))
    {
        for (const QString& strText : message.listTranslations)
        {
            QCOMPARE(Mnemonics(strText).size(), Mnemonics(message.strSource).size());
            for (const QChar ch : Mnemonics(strText))
            {
                QVERIFY2(!hashTaken[message.strContext].contains(ch), qPrintable(strText));
            }
        }
        hashTaken[message.strContext] += Mnemonics(message.listTranslations.last());
    }
}

void tst_Translations::FilesNameEveryTextOfTheSources()
{
    QFETCH(QString, strFile);
    // A fresh extraction into an empty file finds nothing that the file in the tree lacks, and the other way round. A
    // text in another context would not be found when the program runs.
    const QString strFresh = QDir::current().filePath("fresh.ts");
    QFile::remove(strFresh);
    QProcess process;
    process.start(QStringLiteral(LUPDATE), {"-silent", "-no-obsolete", "-locations", "none", "-recursive",
                                            QDir::cleanPath(QFileInfo(strFile).path() + "/.."), "-target-language",
                                            SourceTexts::Language(strFile), "-ts", strFresh});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    const auto texts = [](const QString& strPath) {
        QStringList listTexts;
        for (const SMessage& message : SourceTexts::Read(strPath))
        {
            listTexts += QStringLiteral("%1: %2%3")
                             .arg(message.strContext, message.strSource, message.bNumerus ? " (counted)" : "");
        }
        listTexts.sort();
        return listTexts;
    };
    QCOMPARE(texts(strFile), texts(strFresh));
}

void tst_Translations::AlarmsHaveANameInEveryLanguage()
{
    const QList<SourceTexts::Names> listNames = SourceTexts::ReadAlarmNames();
    QVERIFY(listNames.size() > 150);
    for (const SourceTexts::Names& names : listNames)
    {
        for (const SLanguage& language : g_arrLanguages)
        {
            const QString strAttribute = QStringLiteral("name-%1").arg(language.pszName);
            QVERIFY2(!names.value(strAttribute).isEmpty(), qPrintable(names.value("name") + ": " + strAttribute));
        }
        QCOMPARE(names.size(), 1 + int(std::size(g_arrLanguages)));
    }
}

void tst_Translations::CompiledFilesAreInstalled()
{
    QFETCH(QString, strFile);
    QTranslator translator;
    const QString strFolder = QString::fromLocal8Bit(qgetenv("KV_CLIENT_RESOURCES")) + "/translations";
    QVERIFY(translator.load(QFileInfo(strFile).completeBaseName(), strFolder));
}

QTEST_GUILESS_MAIN(tst_Translations)

#include "tst_Translations.moc"
