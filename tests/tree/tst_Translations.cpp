// Every text of every library has its translation, and the dialog shows them.

#include <QDirIterator>
#include <QFile>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>

namespace
{

QStringList SourceFiles()
{
    QStringList listFiles;
    for (const char* pszFolder : {"LocalConfig", "platform/KvGui", "platform/UICommonModule", "client"})
    {
        QDirIterator it(QStringLiteral(SOURCE_DIR "/%1/translations").arg(pszFolder), {"*.ts"}, QDir::Files);
        while (it.hasNext())
        {
            listFiles += it.next();
        }
    }
    return listFiles;
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private slots:
    void FilesAreComplete_data() { Files(); }
    void FilesAreComplete();
    void PlaceholdersSurvive_data() { Files(); }
    void PlaceholdersSurvive();
    void FilesNameEveryTextOfTheSources_data();
    void FilesNameEveryTextOfTheSources();
    void CompiledFilesAreInstalled_data() { Files(); }
    void CompiledFilesAreInstalled();

private:
    static void Files()
    {
        QTest::addColumn<QString>("strFile");
        for (const QString& strFile : SourceFiles())
        {
            QTest::newRow(qPrintable(QFileInfo(strFile).fileName())) << strFile;
        }
    }

    struct SMessage
    {
        QString strContext;
        QString strSource;
        QString strTranslation;
        bool bFinished = false;
    };

    static QList<SMessage> Messages(const QString& strFile)
    {
        QList<SMessage> listMessages;
        QFile file(strFile);
        if (!file.open(QIODevice::ReadOnly))
        {
            return listMessages;
        }
        QXmlStreamReader xml(&file);
        SMessage message;
        while (!xml.atEnd())
        {
            xml.readNext();
            if (!xml.isStartElement())
            {
                continue;
            }
            if (xml.name() == QLatin1String("name"))
            {
                message.strContext = xml.readElementText();
            }
            else if (xml.name() == QLatin1String("source"))
            {
                message.strSource = xml.readElementText();
            }
            else if (xml.name() == QLatin1String("translation"))
            {
                message.bFinished = !xml.attributes().hasAttribute("type");
                message.strTranslation = xml.readElementText();
                listMessages += message;
            }
        }
        return listMessages;
    }
};

void tst_Translations::FilesAreComplete()
{
    QFETCH(QString, strFile);
    const QList<SMessage> listMessages = Messages(strFile);
    QVERIFY(!listMessages.isEmpty());
    for (const SMessage& message : listMessages)
    {
        QVERIFY2(message.bFinished && !message.strTranslation.isEmpty(), qPrintable(message.strSource));
    }
}

void tst_Translations::PlaceholdersSurvive()
{
    QFETCH(QString, strFile);
    for (const SMessage& message : Messages(strFile))
    {
        for (const char* pszPlace : {"%1", "%2", "%3"})
        {
            QVERIFY2(message.strSource.contains(pszPlace) == message.strTranslation.contains(pszPlace),
                     qPrintable(message.strSource));
        }
    }
}

void tst_Translations::FilesNameEveryTextOfTheSources_data()
{
    QTest::addColumn<QString>("strFolder");
    QTest::addColumn<QString>("strFile");
    QTest::newRow("LocalConfig") << "LocalConfig"
                                 << "LocalConfig/translations/LocalConfig_zh_CN.ts";
    QTest::newRow("KvGui") << "platform/KvGui"
                           << "platform/KvGui/translations/KvGui_zh_CN.ts";
    QTest::newRow("UICommonModule") << "platform/UICommonModule"
                                    << "platform/UICommonModule/translations/UICommonModule_zh_CN.ts";
    QTest::newRow("client") << "client"
                            << "client/translations/local-config-client_zh_CN.ts";
}

void tst_Translations::FilesNameEveryTextOfTheSources()
{
    QFETCH(QString, strFolder);
    QFETCH(QString, strFile);
    // A fresh extraction into an empty file finds nothing that the file in the tree lacks, and the other way round. A
    // text in another context would not be found when the program runs.
    const QString strFresh = QDir::current().filePath("fresh.ts");
    QFile::remove(strFresh);
    QProcess process;
    process.start(QStringLiteral(LUPDATE),
                  {"-silent", "-no-obsolete", "-locations", "none", "-recursive",
                   QStringLiteral(SOURCE_DIR "/%1").arg(strFolder), "-target-language", "zh_CN", "-ts", strFresh});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    const auto texts = [](const QString& strPath) {
        QStringList listTexts;
        for (const SMessage& message : Messages(strPath))
        {
            listTexts += message.strContext + QLatin1String(": ") + message.strSource;
        }
        listTexts.sort();
        return listTexts;
    };
    QCOMPARE(texts(QStringLiteral(SOURCE_DIR "/%1").arg(strFile)), texts(strFresh));
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
