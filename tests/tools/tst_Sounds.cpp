// The alarm sounds that the client ships.

#include <UICommonModule/CGlobalInfo.h>

#include <QDir>
#include <QtEndian>
#include <QtTest>

using UICommonMdl::CGlobalInfo;

namespace
{

QDir Folder(const char* pszLanguage)
{
    return QDir(QString("%1/Sound/sound_%2").arg(CGlobalInfo::GetResourcePath(), pszLanguage));
}

QByteArray Read(const QString& strPath)
{
    QFile file(strPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

template <class Number>
Number At(const QByteArray& content, int nOffset)
{
    return qFromLittleEndian<Number>(content.constData() + nOffset);
}

} // namespace

class tst_Sounds : public QObject
{
    Q_OBJECT

private slots:
    void AllLanguagesHaveTheSameFiles();
    void EachIsAShortWaveFile_data() { Files(); }
    void EachIsAShortWaveFile();
    void EachIsHeardAndNotClipped_data() { Files(); }
    void EachIsHeardAndNotClipped();
    void NoTwoAreAlike();

private:
    static void Files()
    {
        QTest::addColumn<QString>("strPath");
        for (const QFileInfo& info : Folder("en").entryInfoList(QDir::Files))
        {
            QTest::newRow(qPrintable(info.fileName())) << info.filePath();
        }
    }
};

void tst_Sounds::AllLanguagesHaveTheSameFiles()
{
    const QStringList listFiles = Folder("en").entryList(QDir::Files);
    QVERIFY(listFiles.size() >= 10);
    for (const char* pszLanguage : {"zh_CN", "es", "ar"})
    {
        QCOMPARE(Folder(pszLanguage).entryList(QDir::Files), listFiles);
    }
}

void tst_Sounds::EachIsAShortWaveFile()
{
    QFETCH(QString, strPath);
    const QByteArray content = Read(strPath);
    QCOMPARE(content.left(4), QByteArray("RIFF"));
    QCOMPARE(content.mid(8, 8), QByteArray("WAVEfmt "));
    QCOMPARE(At<quint32>(content, 4), quint32(content.size() - 8));
    QCOMPARE(At<quint16>(content, 20), quint16(1)); // PCM
    QCOMPARE(At<quint16>(content, 34), quint16(16));
    QCOMPARE(At<quint32>(content, 40), quint32(content.size() - 44));
    const double dSeconds = double(At<quint32>(content, 40)) / At<quint32>(content, 28);
    QVERIFY2(dSeconds > 0.3 && dSeconds <= 3, qPrintable(QString::number(dSeconds)));
}

void tst_Sounds::EachIsHeardAndNotClipped()
{
    QFETCH(QString, strPath);
    const QByteArray content = Read(strPath);
    int nPeak = 0;
    for (int n = 44; n + 1 < content.size(); n += 2)
    {
        nPeak = qMax(nPeak, qAbs(int(At<qint16>(content, n))));
    }
    QVERIFY2(nPeak > 8000 && nPeak < 32000, qPrintable(QString::number(nPeak)));
    QVERIFY2(qAbs(int(At<qint16>(content, content.size() - 2))) < 500, "it ends with a click");
}

void tst_Sounds::NoTwoAreAlike()
{
    QSet<QByteArray> setContents;
    for (const QFileInfo& info : Folder("en").entryInfoList(QDir::Files))
    {
        setContents.insert(Read(info.filePath()));
    }
    QCOMPARE(setContents.size(), Folder("en").entryList(QDir::Files).size());
}

QTEST_GUILESS_MAIN(tst_Sounds)

#include "tst_Sounds.moc"
