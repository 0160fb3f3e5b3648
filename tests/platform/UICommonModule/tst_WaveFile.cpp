#include "support/SoundServer.h"

#include <UICommonModule/CWaveFile.h>

using UICommonMdl::CWaveFile;

class tst_WaveFile : public QObject
{
    Q_OBJECT

private slots:
    void ACompleteSoundIsPlayable_data();
    void ACompleteSoundIsPlayable();
    void AnythingElseIsNot_data();
    void AnythingElseIsNot();
    void ASoundCutAnywhereIsNot();
    void OnlyARegularFileIsRead();
    void AFileTooLargeForTheMemoryIsNotRead();

private:
    /// What MakeWav makes, with other bytes at a place.
    static QByteArray With(int nOffset, const QByteArray& bytes)
    {
        return MakeWav(Tone(1000, 0.01)).replace(nOffset, bytes.size(), bytes);
    }
    /// Likewise, with a chunk more.
    static QByteArray WithChunk(int nOffset, const QByteArray& chunk)
    {
        return MakeWav(Tone(1000, 0.01)).insert(nOffset, chunk);
    }
};

namespace
{

constexpr int g_nFormat = 12; // offsets into what MakeWav makes
constexpr int g_nFormatSize = 16;
constexpr int g_nCodec = 20;
constexpr int g_nChannels = 22;
constexpr int g_nRate = 24;
constexpr int g_nBits = 34;
constexpr int g_nData = 36;
constexpr int g_nDataSize = 40;

} // namespace

void tst_WaveFile::ACompleteSoundIsPlayable_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("plain") << MakeWav(Tone(1000, 0.01));
    QTest::newRow("eight bits") << With(g_nBits, QByteArray("\x08\0", 2));
    QTest::newRow("stereo") << With(g_nChannels, QByteArray("\x02\0", 2));
    QTest::newRow("other chunks in front") << WithChunk(g_nFormat, QByteArray("LIST\x04\0\0\0abcd", 12));
    QTest::newRow("other chunks between") << WithChunk(g_nData, QByteArray("fact\x04\0\0\0abcd", 12));
    QTest::newRow("more behind the samples") << MakeWav(Tone(1000, 0.01)) + "LIST";
    QTest::newRow("samples to the end") << With(g_nDataSize, QByteArray(4, '\0'));
}

void tst_WaveFile::ACompleteSoundIsPlayable()
{
    QFETCH(QByteArray, content);
    QVERIFY(CWaveFile::IsPlayable(content));
}

void tst_WaveFile::AnythingElseIsNot_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("no sound at all");
    QTest::newRow("another kind of file") << With(8, "AVI ");
    QTest::newRow("no format") << With(g_nFormat, "none");
    QTest::newRow("no samples") << MakeWav({});
    QTest::newRow("samples before the format") << QByteArray("RIFF\0\0\0\0WAVEdata\x02\0\0\0ab", 22);
    QTest::newRow("compressed") << With(g_nCodec, QByteArray("\x02\0", 2));
    QTest::newRow("no channels") << With(g_nChannels, QByteArray(2, '\0'));
    QTest::newRow("too many channels") << With(g_nChannels, QByteArray(2, '\xff'));
    QTest::newRow("no rate") << With(g_nRate, QByteArray(4, '\0'));
    QTest::newRow("absurd rate") << With(g_nRate, QByteArray(4, '\xff'));
    QTest::newRow("no bits") << With(g_nBits, QByteArray(2, '\0'));
    QTest::newRow("seven bits") << With(g_nBits, QByteArray("\x07\0", 2));
    QTest::newRow("format too small") << With(g_nFormatSize, QByteArray("\x0e\0\0\0", 4));
    QTest::newRow("absurd size of the format") << With(g_nFormatSize, QByteArray(4, '\xff'));
    QTest::newRow("absurd size of the samples") << With(g_nDataSize, QByteArray("\xf0\xff\xff\x7f", 4));
    QTest::newRow("negative size of the samples") << With(g_nDataSize, QByteArray(4, '\xff'));
    QTest::newRow("absurd size of another chunk") << WithChunk(g_nData, QByteArray("LIST\xff\xff\xff\xff", 8));
    // The reader behind QSound goes on right behind the three bytes, and would find a chunk of its own there.
    QTest::newRow("a filled-up chunk") << WithChunk(g_nData, QByteArray("LIST\x03\0\0\0abcd", 12));
}

void tst_WaveFile::AnythingElseIsNot()
{
    QFETCH(QByteArray, content);
    QVERIFY(!CWaveFile::IsPlayable(content));
}

void tst_WaveFile::ASoundCutAnywhereIsNot()
{
    const QByteArray content = MakeWav(Tone(1000, 0.01));
    for (int nSize = 0; nSize < content.size(); ++nSize)
    {
        QVERIFY2(!CWaveFile::IsPlayable(content.left(nSize)), qPrintable(QString::number(nSize)));
    }
}

void tst_WaveFile::OnlyARegularFileIsRead()
{
    const QTemporaryDir folder;
    const QString strFile = folder.filePath("tone.wav");
    QVERIFY(!CWaveFile::IsPlayableFile(strFile));
    QVERIFY(!CWaveFile::IsPlayableFile(folder.path()));
    QFile file(strFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(MakeWav(Tone(1000, 0.01)));
    file.close();
    QVERIFY(CWaveFile::IsPlayableFile(strFile));
}

void tst_WaveFile::AFileTooLargeForTheMemoryIsNotRead()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("long.wav"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(With(g_nDataSize, QByteArray(4, '\0')));
    QVERIFY(file.resize(64 * 1024 * 1024));
    QVERIFY(CWaveFile::IsPlayableFile(file.fileName()));
    QVERIFY(file.resize(file.size() + 1));
    QVERIFY(!CWaveFile::IsPlayableFile(file.fileName()));
}

QTEST_GUILESS_MAIN(tst_WaveFile)

#include "tst_WaveFile.moc"
