#pragma once

#include "Documents.h"

#include <client/store/ConfigService.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

template <class Section, class Record>
Record Get(LocalConfigClient::ConfigService& service, int nType)
{
    Record record;
    static_cast<Section*>(service.GetSection(nType))->GetConfig(record);
    return record;
}

template <class Section, class Record>
int Set(LocalConfigClient::ConfigService& service, int nType, const Record& record)
{
    return static_cast<Section*>(service.GetSection(nType))->SetConfig(record);
}

inline LocalConfigLogical::BasicConfigInfo GetBasic(LocalConfigClient::ConfigService& service)
{
    return Get<LocalConfigLogical::IBasicSection, LocalConfigLogical::BasicConfigInfo>(
        service, LocalConfigLogical::SectionBasic);
}

inline void SetClientSize(LocalConfigClient::ConfigService& service, int nClientSize)
{
    LocalConfigLogical::BasicConfigInfo record = GetBasic(service);
    record.clientSize = nClientSize;
    QCOMPARE((Set<LocalConfigLogical::IBasicSection>(service, LocalConfigLogical::SectionBasic, record)), 0);
}

/// The settings document of a client of this size, all else being as by default.
inline QByteArray Document(int nClientSize)
{
    LocalConfigClient::Settings settings;
    settings.basic.clientSize = nClientSize;
    return Document(settings);
}

/// The base of tests of the client's settings in a data folder of their own.
class CStoreTest : public QObject
{
protected:
    void Reset() { m_pFolder.reset(new QTemporaryDir); }
    QString Path(const QString& strName) const { return m_pFolder->filePath(strName); }
    void Put(const QByteArray& content, const QString& strName = "settings.json") const
    {
        QFile file(Path(strName));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    QByteArray GetFile(const QString& strName = "settings.json") const
    {
        QFile file(Path(strName));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    QStringList Names() const { return QDir(m_pFolder->path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    QStringList SetAside() const { return QDir(m_pFolder->path()).entryList({"settings.json.damaged-*"}, QDir::Files); }
    int SavedClientSize() const
    {
        LocalConfigClient::ConfigService service(m_pFolder->path(), LocalConfigClient::SettingsFile::ReadOnly);
        return GetBasic(service).clientSize;
    }

    QScopedPointer<QTemporaryDir> m_pFolder;
};
