#pragma once

#include "Contents.h"

#include "support/FakeHost.h"

#include <LocalConfig/CLocalConfig.h>
#include <client/store/ConfigService.h>

#include <QDialog>
#include <QTemporaryDir>

#include <memory>
#include <optional>

/// The dialog's host: the client's own service, with a stored document.
class CHost : public LocalConfigLogical::ILocalConfig
{
public:
    explicit CHost(const LocalConfigClient::Settings& settings);

    LocalConfigLogical::IConfigSection* GetSection(int nSectionType) override
    {
        return m_service.GetSection(nSectionType);
    }
    int SaveAll() override { return m_bToDisk ? m_service.SaveAll() : 1; }

    void SetToDisk(bool bToDisk) { m_bToDisk = bToDisk; }

    /// What the dialog shows with the stored settings.
    const CContents& GetContents();

    QString GetPath(const char* pszName) const { return m_folder.filePath(QString::fromLatin1(pszName)); }

    SFakeHost fakes;

private:
    QTemporaryDir m_folder;
    LocalConfigClient::ConfigService m_service;
    std::optional<CContents> m_contents;
    bool m_bToDisk = false;
};

/// What is measured: makes the dialog, ready to be shown.
using Subject = std::unique_ptr<QDialog> (*)(CHost& host);

/// The peer's module, where its packages were there when this was built. It is loaded at the first use.
struct SPeer
{
    static bool IsThere();
    static const SPeer& Instance();

    QDialog* (*pMake)(const CContents* pContents, const QString* pFile);
    void (*pReload)(QDialog* pDialog);
    void (*pSave)(QDialog* pDialog);
};

/// The peer with the contents that the dialog has with this host.
std::unique_ptr<QDialog> MakePeer(CHost& host);

/// The dialog as hosts get it.
std::unique_ptr<QDialog> MakeProduct(CHost& host);

/// The product's frame and forms, with its classes and sheets, but without sections, icons or records.
std::unique_ptr<QDialog> MakeBare(CHost& host);

/// The nine forms in Qt's own classes under one sheet, with the same contents.
std::unique_ptr<QDialog> MakePlain(CHost& host);
