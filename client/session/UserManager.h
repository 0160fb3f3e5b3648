#pragma once

#include <LocalConfig/interfaces/IUserManager.h>
#include <client/store/MissingRights.h>

namespace LocalConfigClient
{

/// The rights of the user who is logged in: all but the missing ones.
class UserRight final : public UserLogical::IUserRight
{
public:
    explicit UserRight(const MissingRights& missing)
        : m_missing(missing)
    {}

    bool HasRight(int nRight) override { return !m_missing.Contains(nRight); }

private:
    MissingRights m_missing;
};

/// The client's user manager. One rights object serves everybody who asks, so handing it back does nothing.
class UserManager final : public UserLogical::IUserManager
{
public:
    /// \param pLoginManager  not owned; may be null
    UserManager(const MissingRights& missing, UserLogical::ILoginManager* pLoginManager)
        : m_right(missing)
        , m_pLoginManager(pLoginManager)
    {}

    UserLogical::ILoginManager* GetLoginManager() override { return m_pLoginManager; }
    UserLogical::IUserRight* GetUserRight() override { return &m_right; }
    void ReleaseUserRight(UserLogical::IUserRight* /*pUserRight*/) override {}

private:
    UserRight m_right;
    UserLogical::ILoginManager* m_pLoginManager;
};

} // namespace LocalConfigClient
