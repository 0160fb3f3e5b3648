#pragma once

#include "Journal.h"

#include <LocalConfig/interfaces/IConfigSection.h>
#include <LocalConfig/interfaces/ILocalConfig.h>
#include <LocalConfig/interfaces/IUserManager.h>

#include <QMap>
#include <QSet>

/// A configuration service that notes its calls.
class CFakeLocalConfig : public LocalConfigLogical::ILocalConfig
{
public:
    explicit CFakeLocalConfig(CJournal& journal)
        : m_journal(journal)
    {}

    LocalConfigLogical::IConfigSection* GetSection(int nSectionType) override
    {
        m_journal.Note(QStringLiteral("GetSection %1").arg(nSectionType));
        return m_mapSections.value(nSectionType);
    }

    int SaveAll() override
    {
        m_journal.Note(QStringLiteral("SaveAll"));
        return m_nSaveResult;
    }

    QMap<int, LocalConfigLogical::IConfigSection*> m_mapSections;
    int m_nSaveResult = 1;

private:
    CJournal& m_journal;
};

/// The rights of a user who holds all but the missing ones.
class CFakeUserRight : public UserLogical::IUserRight
{
public:
    explicit CFakeUserRight(CJournal& journal)
        : m_journal(journal)
    {}

    bool HasRight(int nRight) override
    {
        m_journal.Note(QStringLiteral("HasRight %1").arg(nRight));
        return !m_setMissing.contains(nRight);
    }

    QSet<int> m_setMissing;

private:
    CJournal& m_journal;
};

class CFakeLoginManager : public UserLogical::ILoginManager
{
public:
    explicit CFakeLoginManager(CJournal& journal)
        : m_journal(journal)
    {}

    void AddObserver(KvPluginAPI::IObserver* pObserver) override
    {
        m_journal.Note(QStringLiteral("AddObserver"));
        m_listObservers += pObserver;
    }

    void RemoveObserver(KvPluginAPI::IObserver* pObserver) override
    {
        m_journal.Note(QStringLiteral("RemoveObserver"));
        m_listObservers.removeOne(pObserver);
    }

    void Notify(int nState, int nSubState) const
    {
        UserLogical::ILoginManagerObserver::Param param;
        param.nState = nState;
        param.nSubState = nSubState;
        for (KvPluginAPI::IObserver* pObserver : m_listObservers)
        {
            static_cast<UserLogical::ILoginManagerObserver*>(pObserver)->NotifyLoginState(param);
        }
    }

    QList<KvPluginAPI::IObserver*> m_listObservers;

private:
    CJournal& m_journal;
};

class CFakeUserManager : public UserLogical::IUserManager
{
public:
    explicit CFakeUserManager(CJournal& journal)
        : m_journal(journal)
    {}

    UserLogical::ILoginManager* GetLoginManager() override
    {
        m_journal.Note(QStringLiteral("GetLoginManager"));
        return m_pLoginManager;
    }

    UserLogical::IUserRight* GetUserRight() override
    {
        m_journal.Note(QStringLiteral("GetUserRight"));
        return m_pUserRight;
    }

    void ReleaseUserRight(UserLogical::IUserRight* pUserRight) override
    {
        m_journal.Note(QStringLiteral("ReleaseUserRight"));
        m_listReleased += pUserRight;
    }

    UserLogical::ILoginManager* m_pLoginManager = nullptr;
    UserLogical::IUserRight* m_pUserRight = nullptr;
    QList<UserLogical::IUserRight*> m_listReleased;

private:
    CJournal& m_journal;
};

/// A complete host: services that note their calls in one journal.
struct SFakeHost
{
    SFakeHost()
    {
        userManager.m_pLoginManager = &loginManager;
        userManager.m_pUserRight = &userRight;
    }

    CJournal journal;
    CFakeLocalConfig localConfig{journal};
    CFakeUserRight userRight{journal};
    CFakeLoginManager loginManager{journal};
    CFakeUserManager userManager{journal};
};
