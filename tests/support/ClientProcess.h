#pragma once

#include "Documents.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

/// Text that the client writes where this program reads it.
inline QString DecodeOutput(const QByteArray& output)
{
#ifdef Q_OS_WIN
    const UINT nConsole = ::GetConsoleOutputCP();
    const UINT nEncoding = nConsole == 0 ? UINT(CP_UTF8) : nConsole;
    QString strText(output.size(), QLatin1Char(' '));
    strText.resize(::MultiByteToWideChar(nEncoding, 0, output.constData(), output.size(),
                                         reinterpret_cast<wchar_t*>(strText.data()), strText.size()));
    return strText.remove('\r');
#else
    return QString::fromLocal8Bit(output);
#endif
}

/// What came of one run of the client's program.
struct SRun
{
    int nExitCode = -1;
    QByteArray output;
    QStringList listErrors;
};

inline SRun Run(const QStringList& listArguments, const QProcessEnvironment& environment, const QString& strFolder = {})
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(strFolder.isEmpty() ? QDir::currentPath() : strFolder);
    process.start(QString::fromLocal8Bit(qgetenv("KV_CLIENT")), listArguments);
    SRun run;
    if (process.waitForFinished(100000) && process.exitStatus() == QProcess::NormalExit)
    {
        run.nExitCode = process.exitCode();
    }
    run.output = process.readAllStandardOutput();
    run.listErrors = DecodeOutput(process.readAllStandardError()).split('\n', Qt::SkipEmptyParts);
    return run;
}

/// Every file of a folder with its content.
inline QMap<QString, QByteArray> Snapshot(const QString& strFolder)
{
    QMap<QString, QByteArray> mapFiles;
    for (const QString& strName : QDir(strFolder).entryList(QDir::Files | QDir::Hidden))
    {
        QFile file(QDir(strFolder).filePath(strName));
        mapFiles.insert(strName, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)"));
    }
    return mapFiles;
}

/// The base of tests of the real client, started as an operator or a script starts it, on a real data folder.
class CClientProcessTest : public QObject
{
protected:
    void Reset()
    {
        m_environment = QProcessEnvironment::systemEnvironment();
        m_environment.insert("QT_LOGGING_RULES", "default.warning=false"); // the offscreen plug-in's own words
        m_environment.remove("QT_FORCE_STDERR_LOGGING");                   // which is for the test's own
        m_pFolder.reset(new QTemporaryDir);
        m_pOther.reset(new QTemporaryDir);
    }
    SRun Client(QStringList listArguments) const
    {
        return Run(listArguments << "--data-dir" << m_pFolder->path(), m_environment);
    }
    QString Path(const QString& strName) const { return m_pFolder->filePath(strName); }
    void Put(const QString& strPath, const QByteArray& content) const
    {
        QFile file(strPath);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QProcessEnvironment m_environment;
    QScopedPointer<QTemporaryDir> m_pFolder;
    QScopedPointer<QTemporaryDir> m_pOther; // for files that are not the client's own
};
