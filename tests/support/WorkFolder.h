#pragma once

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

/// A folder that is the working folder while it lives, or until there is a newer one.
class CWorkFolder : public QTemporaryDir
{
public:
    CWorkFolder() { QVERIFY(QDir::setCurrent(path())); }
    ~CWorkFolder()
    {
        // Windows removes no folder that somebody works in.
        if (QDir::current() == QDir(path()))
        {
            QDir::setCurrent(QDir::rootPath());
        }
    }
};
