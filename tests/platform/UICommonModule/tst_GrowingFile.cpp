// Faults come from the preloaded library "FaultFs", see support/FaultFs.cpp.

#include "support/Permissions.h"

#include <UICommonModule/CErrorCode.h>
#include <UICommonModule/CGrowingFile.h>

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using UICommonMdl::CErrorCode;
using UICommonMdl::CGrowingFile;

class tst_GrowingFile : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFolder.reset(new QTemporaryDir); }
    void cleanup() { qunsetenv("KV_FAULT"); }

    void PiecesStandInARow();
    void AFileOfThatNameIsNotTouched();
    void WithoutAFileNothingIsAppended();
    void ANewFileStartsAnew();
    void FoldersAreMade();
    void AReadOnlyFolderIsReported();
    void AFileInPlaceOfTheFolderIsReported();
    void WhatWasWrittenSurvivesAFault_data();
    void WhatWasWrittenSurvivesAFault();

private:
    QString Path(const char* pszName = "file") const { return m_pFolder->filePath(pszName); }
    QByteArray Get(const char* pszName = "file") const
    {
        QFile file(Path(pszName));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    QScopedPointer<QTemporaryDir> m_pFolder;
};

void tst_GrowingFile::PiecesStandInARow()
{
    CGrowingFile file;
    QCOMPARE(file.Create(Path()), int(CErrorCode::Success));
    QCOMPARE(file.Append("one "), int(CErrorCode::Success));
    QCOMPARE(file.Append(""), int(CErrorCode::Success));
    QCOMPARE(file.Append("two"), int(CErrorCode::Success));
    QCOMPARE(file.GetSize(), qint64(7));
    QCOMPARE(file.GetPath(), Path());
    QCOMPARE(Get(), QByteArray("one two"));
}

void tst_GrowingFile::AFileOfThatNameIsNotTouched()
{
    CGrowingFile first;
    QCOMPARE(first.Create(Path()), int(CErrorCode::Success));
    QCOMPARE(first.Append("kept"), int(CErrorCode::Success));
    CGrowingFile second;
    QCOMPARE(second.Create(Path()), int(CErrorCode::FileExists));
    QCOMPARE(second.Append("lost"), int(CErrorCode::IoError));
    QCOMPARE(Get(), QByteArray("kept"));
}

void tst_GrowingFile::WithoutAFileNothingIsAppended()
{
    CGrowingFile file;
    QCOMPARE(file.Append("x"), int(CErrorCode::IoError));
    QCOMPARE(file.GetSize(), qint64(0));
    QCOMPARE(file.GetPath(), QString());
}

void tst_GrowingFile::ANewFileStartsAnew()
{
    CGrowingFile file;
    QCOMPARE(file.Create(Path("one")), int(CErrorCode::Success));
    QCOMPARE(file.Append("1"), int(CErrorCode::Success));
    QCOMPARE(file.Create(Path("two")), int(CErrorCode::Success));
    QCOMPARE(file.GetSize(), qint64(0));
    QCOMPARE(file.Append("22"), int(CErrorCode::Success));
    QCOMPARE(Get("one"), QByteArray("1"));
    QCOMPARE(Get("two"), QByteArray("22"));
}

void tst_GrowingFile::FoldersAreMade()
{
    QCOMPARE(CGrowingFile::MakeFolder(Path("a/b/c")), int(CErrorCode::Success));
    QVERIFY(QFileInfo(Path("a/b/c")).isDir());
    QCOMPARE(CGrowingFile::MakeFolder(Path("a/b/c")), int(CErrorCode::Success));
}

void tst_GrowingFile::AReadOnlyFolderIsReported()
{
    QVERIFY(SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::ExeOwner));
    CGrowingFile file;
    QCOMPARE(file.Create(Path()), int(CErrorCode::NoPermission));
    QCOMPARE(CGrowingFile::MakeFolder(Path("a")), int(CErrorCode::NoPermission));
    QVERIFY(SetPermissions(m_pFolder->path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

void tst_GrowingFile::AFileInPlaceOfTheFolderIsReported()
{
    CGrowingFile file;
    QCOMPARE(file.Create(Path()), int(CErrorCode::Success));
    QCOMPARE(CGrowingFile::MakeFolder(Path("file/a")), int(CErrorCode::FolderMissing));
}

void tst_GrowingFile::WhatWasWrittenSurvivesAFault_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<int>("nResult");
    QTest::newRow("full disk") << QByteArray("write:ENOSPC:") << int(CErrorCode::DiskFull);
    QTest::newRow("broken disk") << QByteArray("write:EIO:") << int(CErrorCode::IoError);
}

void tst_GrowingFile::WhatWasWrittenSurvivesAFault()
{
    QFETCH(QByteArray, fault);
    QFETCH(int, nResult);
    CGrowingFile file;
    QCOMPARE(file.Create(Path()), int(CErrorCode::Success));
    QCOMPARE(file.Append("kept"), int(CErrorCode::Success));
    qputenv("KV_FAULT", fault + m_pFolder->path().toLocal8Bit());
    QCOMPARE(file.Append("lost"), nResult);
    QCOMPARE(file.GetSize(), qint64(4));
    qunsetenv("KV_FAULT");
    QCOMPARE(Get(), QByteArray("kept"));
}

QTEST_GUILESS_MAIN(tst_GrowingFile)

#include "tst_GrowingFile.moc"
