// What the client writes into the registry is what the Basic page reads there.

#include "support/UserRegistry.h"

#include <LocalConfig/pages/AutoStartEntry.h>
#include <UICommonModule/CErrorCode.h>
#include <client/session/AutoStart.h>

#include <QtTest>

#include <sddl.h>

using LocalConfigClient::AutoStart;
using UICommonMdl::CErrorCode;

namespace
{

const QString g_strName = QStringLiteral("auto start test");
constexpr wchar_t g_szRunKey[] = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run";

/// What everybody may do with the key: "KA" all, "KR" read.
bool Permit(const wchar_t* pszList)
{
    PSECURITY_DESCRIPTOR pDescriptor = nullptr;
    HKEY hKey = nullptr;
    const bool bPermitted =
        ::ConvertStringSecurityDescriptorToSecurityDescriptorW(pszList, SDDL_REVISION_1, &pDescriptor, nullptr) != 0 &&
        ::RegOpenKeyExW(HKEY_CURRENT_USER, g_szRunKey, 0, WRITE_DAC, &hKey) == ERROR_SUCCESS &&
        ::RegSetKeySecurity(hKey, DACL_SECURITY_INFORMATION, pDescriptor) == ERROR_SUCCESS;
    ::RegCloseKey(hKey);
    ::LocalFree(pDescriptor);
    return bPermitted;
}

} // namespace

class tst_AutoStartRegistry : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pRegistry.reset(new CUserRegistry); }
    void cleanup() { m_pRegistry.reset(); }

    void ThePageReadsWhatWasWritten_data();
    void ThePageReadsWhatWasWritten();
    void TheValueIsTheQuotedNativePath();
    void SwitchingOffRemovesTheValue();
    void SwitchingOffTwiceIsNoError();
    void AnotherPathReplacesTheOld();
    void OtherValuesStay();
    void AReadOnlyKeyIsReported();

private:
    QScopedPointer<CUserRegistry> m_pRegistry;
};

void tst_AutoStartRegistry::ThePageReadsWhatWasWritten_data()
{
    QTest::addColumn<QString>("strPath");
    for (const QString& strPath : {QString("C:/Client/client.exe"), QString("C:/Program Files/client.exe"),
                                   QString("C:/%TEMP%/client.exe"), QString::fromUtf8("C:/客户端/client.exe"),
                                   QString("C:/a;b#c=d/client.exe"), QString("//server/share/client.exe")})
    {
        QTest::newRow(qPrintable(strPath)) << strPath;
    }
}

void tst_AutoStartRegistry::ThePageReadsWhatWasWritten()
{
    QFETCH(QString, strPath);
    QCOMPARE(AutoStart::Apply(true, g_strName, strPath), int(CErrorCode::Success));
    QCOMPARE(LocalConfig::ReadAutoStartCommand(g_strName), LocalConfig::GetAutoStartCommand(strPath));
}

void tst_AutoStartRegistry::TheValueIsTheQuotedNativePath()
{
    QCOMPARE(AutoStart::Apply(true, g_strName, "C:/my client/client.exe"), int(CErrorCode::Success));
    wchar_t value[100] = {};
    DWORD nSize = sizeof(value);
    QCOMPARE(::RegGetValueW(HKEY_CURRENT_USER, g_szRunKey, L"auto start test", RRF_RT_REG_SZ, nullptr, value, &nSize),
             LSTATUS(ERROR_SUCCESS));
    QCOMPARE(QString::fromWCharArray(value), QString("\"C:\\my client\\client.exe\""));
}

void tst_AutoStartRegistry::SwitchingOffRemovesTheValue()
{
    AutoStart::Apply(true, g_strName, "C:/client.exe");
    QCOMPARE(AutoStart::Apply(false, g_strName, "C:/client.exe"), int(CErrorCode::Success));
    QCOMPARE(LocalConfig::ReadAutoStartCommand(g_strName), QString());
}

void tst_AutoStartRegistry::SwitchingOffTwiceIsNoError()
{
    QCOMPARE(AutoStart::Apply(false, g_strName, "C:/client.exe"), int(CErrorCode::Success));
}

void tst_AutoStartRegistry::AnotherPathReplacesTheOld()
{
    AutoStart::Apply(true, g_strName, "C:/old.exe");
    AutoStart::Apply(true, g_strName, "C:/new.exe");
    QCOMPARE(LocalConfig::ReadAutoStartCommand(g_strName), QString("\"C:\\new.exe\""));
}

void tst_AutoStartRegistry::OtherValuesStay()
{
    AutoStart::Apply(true, "another client", "C:/another.exe");
    AutoStart::Apply(true, g_strName, "C:/client.exe");
    AutoStart::Apply(false, g_strName, "C:/client.exe");
    QCOMPARE(LocalConfig::ReadAutoStartCommand("another client"), QString("\"C:\\another.exe\""));
}

void tst_AutoStartRegistry::AReadOnlyKeyIsReported()
{
    AutoStart::Apply(true, g_strName, "C:/old.exe");
    QVERIFY(Permit(L"D:P(A;;KRWD;;;WD)"));
    const int nWritten = AutoStart::Apply(true, g_strName, "C:/new.exe");
    const int nRemoved = AutoStart::Apply(false, g_strName, "C:/new.exe");
    QVERIFY(Permit(L"D:P(A;;KA;;;WD)"));
    QCOMPARE(nWritten, int(CErrorCode::NoPermission));
    QCOMPARE(nRemoved, int(CErrorCode::NoPermission));
    QCOMPARE(LocalConfig::ReadAutoStartCommand(g_strName), QString("\"C:\\old.exe\""));
}

QTEST_GUILESS_MAIN(tst_AutoStartRegistry)

#include "tst_AutoStartRegistry.moc"
