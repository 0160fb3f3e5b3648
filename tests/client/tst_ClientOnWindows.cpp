// What the client does with the consoles, windows, devices and paths of Windows.

#include "support/ChangedSettings.h"
#include "support/ClientProcess.h"

#include <QElapsedTimer>
#include <QImage>
#include <QtEndian>

#include <array>

using namespace LocalConfigClient;

namespace
{

constexpr int g_nHeaderOffset = 0x3c;
constexpr int g_nSubsystem = 4 + 20 + 68; // behind the signature and the first header
constexpr quint16 g_nWindows = 2;         // and no console

/// What stands in this program's console.
QString ReadConsole()
{
    const HANDLE hScreen = ::CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                         nullptr, OPEN_EXISTING, 0, nullptr);
    std::array<wchar_t, 4000> arrText{};
    DWORD nRead = 0;
    ::ReadConsoleOutputCharacterW(hScreen, arrText.data(), DWORD(arrText.size()), {0, 0}, &nRead);
    ::CloseHandle(hScreen);
    return QString::fromWCharArray(arrText.data(), int(nRead));
}

BOOL CALLBACK CountWindow(HWND hWindow, LPARAM pSearch)
{
    auto& search = *reinterpret_cast<QPair<DWORD, int>*>(pSearch);
    DWORD nProcess = 0;
    ::GetWindowThreadProcessId(hWindow, &nProcess);
    search.second += nProcess == search.first && ::IsWindowVisible(hWindow) ? 1 : 0;
    return TRUE;
}

int CountVisibleWindows(qint64 nProcess)
{
    QPair<DWORD, int> search(DWORD(nProcess), 0);
    ::EnumWindows(&CountWindow, reinterpret_cast<LPARAM>(&search));
    return search.second;
}

} // namespace

class tst_ClientOnWindows : public CClientProcessTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void ItOpensNoConsole();
    void WhatItSaysIsSeenInTheConsoleOfItsCaller();
    void AScreenshotOpensNoWindow();
    void AnExportToADeviceGoesThere();
    void Paths_data();
    void Paths();

private:
    QString Client() const { return QString::fromLocal8Bit(qgetenv("KV_CLIENT")); }
};

void tst_ClientOnWindows::ItOpensNoConsole()
{
    QFile file(Client());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.read(4096);
    const auto nHeader = qFromLittleEndian<qint32>(content.constData() + g_nHeaderOffset);
    QCOMPARE(content.mid(nHeader, 4), QByteArray("PE\0\0", 4));
    QCOMPARE(qFromLittleEndian<quint16>(content.constData() + nHeader + g_nSubsystem), g_nWindows);
}

void tst_ClientOnWindows::WhatItSaysIsSeenInTheConsoleOfItsCaller()
{
    ::FreeConsole();
    QVERIFY(::AllocConsole() != 0);
    std::wstring command = QStringLiteral("\"%1\" --version").arg(QDir::toNativeSeparators(Client())).toStdWString();
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process = {};
    QVERIFY(::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process));
    ::WaitForSingleObject(process.hProcess, 30000);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    const QString strText = ReadConsole();
    ::FreeConsole();
    QVERIFY2(strText.startsWith("local-config-client 1.0.0"), qPrintable(strText.simplified()));
}

void tst_ClientOnWindows::AScreenshotOpensNoWindow()
{
    m_environment.insert("QT_QPA_PLATFORM", "windows"); // that of an operator
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start(Client(), {"--screenshot", m_pOther->filePath("a.png"), "--data-dir", m_pFolder->path()});
    QVERIFY(process.waitForStarted());
    int nWindows = 0;
    QElapsedTimer timer;
    timer.start();
    while (!process.waitForFinished(10) && timer.elapsed() < 60000)
    {
        nWindows = qMax(nWindows, CountVisibleWindows(process.processId()));
    }
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(!QImage(m_pOther->filePath("a.png")).isNull());
    QCOMPARE(nWindows, 0);
}

void tst_ClientOnWindows::AnExportToADeviceGoesThere()
{
    Put(Path("settings.json"), Document(ChangedSettings()));
    const SRun run = CClientProcessTest::Client({"--export", "NUL"});
    QCOMPARE(run.listErrors, QStringList());
    QCOMPARE(run.nExitCode, 0);
    QVERIFY(!QFile::exists(Path("NUL")));
}

void tst_ClientOnWindows::Paths_data()
{
    QTest::addColumn<QString>("strFolder");
    QTest::newRow("other separators") << R"(one\two)";
    QTest::newRow("final separator") << R"(one\)";
    QTest::newRow("relative") << R"(.\one)";
    QTest::newRow("over 260 letters") << (QString(50, 'x') + '\\').repeated(8);
}

void tst_ClientOnWindows::Paths()
{
    QFETCH(QString, strFolder);
    const QByteArray document = Document(ChangedSettings());
    Put(m_pOther->filePath("in.json"), document);
    const auto run = [&](const QStringList& listArguments) {
        return Run(listArguments + QStringList{"--data-dir", strFolder}, m_environment, m_pOther->path());
    };
    const SRun import = run({"--import", "in.json"});
    QCOMPARE(import.listErrors, QStringList());
    QCOMPARE(import.nExitCode, 0);
    QCOMPARE(Snapshot(m_pOther->filePath(QDir::fromNativeSeparators(strFolder))).value("settings.json"), document);
    QCOMPARE(run({"--dump"}).output, document);
    QCOMPARE(run({"--export", strFolder + R"(\..\copy.json)"}).nExitCode, 0);
    QVERIFY(run({"--screenshot", "a.png"}).nExitCode == 0);
    QVERIFY(!QImage(m_pOther->filePath("a.png")).isNull());
}

QTEST_GUILESS_MAIN(tst_ClientOnWindows)

#include "tst_ClientOnWindows.moc"
