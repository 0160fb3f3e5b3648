// Arrows go one way: who may include whom, read from the sources themselves.

#include <QDirIterator>
#include <QRegularExpression>
#include <QtTest>

namespace
{

struct SLayer
{
    const char* pszFolder;
    QStringList listMayUse; ///< other folders of the tree; its own always
};

// The longest folder that a file lies in counts.
const SLayer g_arrLayers[] = {
    {"platform/KvGui", {}},
    {"platform/UICommonModule", {"platform/KvGui"}},
    {"LocalConfig/interfaces", {}},
    {"LocalConfig/widgets", {"platform/KvGui"}},
    {"LocalConfig/pages",
     {"LocalConfig", "LocalConfig/interfaces", "LocalConfig/widgets", "platform/KvGui", "platform/UICommonModule"}},
    {"LocalConfig",
     {"LocalConfig/pages", "LocalConfig/interfaces", "LocalConfig/widgets", "platform/KvGui",
      "platform/UICommonModule"}},
    {"client/store", {"LocalConfig/interfaces", "platform/KvGui", "platform/UICommonModule"}},
    {"client/session", {"client/store", "LocalConfig/interfaces", "platform/KvGui", "platform/UICommonModule"}},
    {"client/live", {"client/store", "LocalConfig/interfaces", "platform/KvGui", "platform/UICommonModule"}},
    {"client/alarm",
     {"client/live", "client/store", "LocalConfig/interfaces", "platform/KvGui", "platform/UICommonModule"}},
    {"client",
     {"client/alarm", "client/live", "client/session", "client/store", "LocalConfig", "LocalConfig/interfaces",
      "platform/KvGui", "platform/UICommonModule"}},
};

const SLayer* LayerOf(const QString& strPath)
{
    const SLayer* pFound = nullptr;
    for (const SLayer& layer : g_arrLayers)
    {
        const QString strFolder = QString::fromLatin1(layer.pszFolder);
        if (strPath.startsWith(strFolder + '/') && (!pFound || strFolder.size() > int(qstrlen(pFound->pszFolder))))
        {
            pFound = &layer;
        }
    }
    return pFound;
}

/// The included file of the tree, relative to its top; empty for a header from elsewhere.
QString Resolve(const QString& strSource, const QString& strIncluded)
{
    const QDir top(QStringLiteral(SOURCE_DIR));
    const QString strFolder = QFileInfo(strSource).path();
    for (const QString& strRoot : {strFolder, QString("."), QString("platform")})
    {
        const QString strPath = QDir::cleanPath(strRoot + '/' + strIncluded);
        if (QFileInfo::exists(top.filePath(strPath)))
        {
            return strPath;
        }
    }
    return QString();
}

QStringList IncludesOf(const QString& strSource)
{
    QFile file(QDir(QStringLiteral(SOURCE_DIR)).filePath(strSource));
    QStringList listIncludes;
    if (file.open(QIODevice::ReadOnly))
    {
        static const QRegularExpression include("^#include [<\"]([^>\"]+)[>\"]", QRegularExpression::MultilineOption);
        auto it = include.globalMatch(QString::fromUtf8(file.readAll()));
        while (it.hasNext())
        {
            listIncludes += it.next().captured(1);
        }
    }
    return listIncludes;
}

} // namespace

class tst_Layers : public QObject
{
    Q_OBJECT

private slots:
    void NobodyIncludesWhatStandsAbove_data() { Layers(); }
    void NobodyIncludesWhatStandsAbove();
    void InterfacesNeedTheStandardLibraryAlone();
    void APageKnowsNoOtherPageAndNotTheDialog();

private:
    static void Layers();
    static QStringList SourcesIn(const SLayer& layer);
};

void tst_Layers::Layers()
{
    QTest::addColumn<QString>("strFolder");
    for (const SLayer& layer : g_arrLayers)
    {
        QTest::newRow(layer.pszFolder) << QString::fromLatin1(layer.pszFolder);
    }
}

QStringList tst_Layers::SourcesIn(const SLayer& layer)
{
    const QDir top(QStringLiteral(SOURCE_DIR));
    QStringList listSources;
    QDirIterator it(top.filePath(layer.pszFolder), {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
    {
        const QString strPath = top.relativeFilePath(it.next());
        if (LayerOf(strPath) == &layer)
        {
            listSources += strPath;
        }
    }
    return listSources;
}

void tst_Layers::NobodyIncludesWhatStandsAbove()
{
    QFETCH(QString, strFolder);
    const SLayer* pLayer = LayerOf(strFolder + "/any");
    const QStringList listSources = SourcesIn(*pLayer);
    QVERIFY(!listSources.isEmpty());
    for (const QString& strSource : listSources)
    {
        for (const QString& strIncluded : IncludesOf(strSource))
        {
            const SLayer* pUsed = LayerOf(Resolve(strSource, strIncluded));
            QVERIFY2(!pUsed || pUsed == pLayer || pLayer->listMayUse.contains(pUsed->pszFolder),
                     qPrintable(strSource + " includes " + strIncluded));
        }
    }
}

void tst_Layers::InterfacesNeedTheStandardLibraryAlone()
{
    const SLayer* pLayer = LayerOf("LocalConfig/interfaces/any");
    for (const QString& strSource : SourcesIn(*pLayer))
    {
        for (const QString& strIncluded : IncludesOf(strSource))
        {
            QVERIFY2(!strIncluded.startsWith('Q'), qPrintable(strSource + " includes " + strIncluded));
        }
    }
}

void tst_Layers::APageKnowsNoOtherPageAndNotTheDialog()
{
    const SLayer* pLayer = LayerOf("LocalConfig/pages/any");
    static const QRegularExpression page("^C\\w+Config$");
    for (const QString& strSource : SourcesIn(*pLayer))
    {
        const QString strOwn = QFileInfo(strSource).completeBaseName();
        if (!page.match(strOwn).hasMatch())
        {
            continue; // the one place that knows them all is no page
        }
        for (const QString& strIncluded : IncludesOf(strSource))
        {
            const QString strName = QFileInfo(strIncluded).completeBaseName();
            const bool bOwnPicker = strOwn == "CVideoConfig" && strName == "CSplitWndNumConfig";
            QVERIFY2(strName == strOwn || bOwnPicker || !page.match(strName).hasMatch(),
                     qPrintable(strSource + " includes " + strIncluded));
        }
    }
}

QTEST_GUILESS_MAIN(tst_Layers)

#include "tst_Layers.moc"
