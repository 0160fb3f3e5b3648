#include "support/BasicPage.h"

#include <QSettings>

using namespace LocalConfig;
using KVGUI::KvCheckBox;
using LocalConfigLogical::BasicConfigInfo;

namespace
{

bool HostOwnedEqual(const BasicConfigInfo& left, const BasicConfigInfo& right)
{
    return left.hostOwned1 == right.hostOwned1 && left.hostOwned2 == right.hostOwned2 &&
           left.hostOwned3 == right.hostOwned3 && left.hostOwned5 == right.hostOwned5 &&
           left.hostOwned6 == right.hostOwned6 && left.hostOwned7 == right.hostOwned7 &&
           left.hostOwned9 == right.hostOwned9 && left.hostOwned10 == right.hostOwned10 &&
           left.hostOwned12 == right.hostOwned12 && left.hostOwned14 == right.hostOwned14 &&
           left.hostOwned15 == right.hostOwned15 && left.hostOwned17 == right.hostOwned17 &&
           left.hostOwned18 == right.hostOwned18 && left.hostOwned19 == right.hostOwned19 &&
           left.hostOwned20 == right.hostOwned20 && left.hostOwned22 == right.hostOwned22 &&
           left.hostOwned25 == right.hostOwned25 && left.hostOwned28 == right.hostOwned28;
}

} // namespace

class tst_BasicSave : public CBasicPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void SaveCopiesEachClickedBox_data();
    void SaveCopiesEachClickedBox();
    void SaveCarriesHostOwnedFields();
    void SaveWritesTheChosenClientSize();
    void SaveWithoutACurrentSizeWritesMinusOne();
    void SaveWithAnotherDeviceNodeWritesZero();
    void SaveReturnsTheSectionsResult();
    void SaveWritesTheSkinName_data();
    void SaveWritesTheSkinName();
    void TheSkinNameIsWrittenWhateverTheResult();
    void SkinAndLanguageKeys();

private:
    static QVariant Ini(const char* pszKey)
    {
        return QSettings(QDir::current().filePath("Localcfg.ini"), QSettings::IniFormat).value(pszKey);
    }
};

void tst_BasicSave::SaveCopiesEachClickedBox_data()
{
    QTest::addColumn<int>("nIndex");
    for (int n = 0; n < int(std::size(g_arrCheckBoxes)); ++n)
    {
        QTest::newRow(g_arrCheckBoxes[n].pszName) << n;
    }
}

void tst_BasicSave::SaveCopiesEachClickedBox()
{
    QFETCH(int, nIndex);
    Show();
    m_pPage->SetConfigSection(m_pSection.data());
    KvCheckBox* pCheckBox = Check(g_arrCheckBoxes[nIndex].pszName);
    QTest::mouseClick(pCheckBox, Qt::LeftButton, {}, QPoint(8, pCheckBox->height() / 2));
    QCOMPARE(m_pPage->SaveConfig(), 0);
    for (int n = 0; n < int(std::size(g_arrCheckBoxes)); ++n)
    {
        const bool bExpected = g_arrCheckBoxes[n].bDefault != (n == nIndex);
        if (g_arrCheckBoxes[n].pField)
        {
            QCOMPARE(m_pSection->m_record.*g_arrCheckBoxes[n].pField, bExpected);
        }
        else
        {
            QCOMPARE(m_pSection->m_record.showDeviceNode, bExpected ? 1 : 0);
        }
    }
}

void tst_BasicSave::SaveCarriesHostOwnedFields()
{
    m_pSection->m_record = Changed();
    m_pPage->SetConfigSection(m_pSection.data());
    m_pPage->LoadConfig(true); // defaults in the controls must not reach the fields behind them
    m_journal.Take();
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_journal.Take(), (QStringList{"GetConfig", "SetConfig"}));
    QVERIFY(HostOwnedEqual(m_pSection->m_record, Changed()));
    QCOMPARE(m_pSection->m_record.skin, 1);
    QCOMPARE(m_pSection->m_record.clientSize, 2);
}

void tst_BasicSave::SaveWritesTheChosenClientSize()
{
    Show();
    m_pPage->SetConfigSection(m_pSection.data());
    CCombobox* pCombo = Combo("screenRatioCmbBox");
    pCombo->setFocus();
    QTest::keyClick(pCombo, Qt::Key_Down);
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.clientSize, 3);
}

void tst_BasicSave::SaveWithoutACurrentSizeWritesMinusOne()
{
    m_pSection->m_record.clientSize = 17;
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.clientSize, -1);
}

void tst_BasicSave::SaveWithAnotherDeviceNodeWritesZero()
{
    m_pSection->m_record.showDeviceNode = 2;
    m_pPage->SetConfigSection(m_pSection.data());
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.showDeviceNode, 0);
}

void tst_BasicSave::SaveReturnsTheSectionsResult()
{
    m_pPage->SetConfigSection(m_pSection.data());
    for (int nResult : {0, -1, 5})
    {
        m_pSection->m_nResult = nResult;
        QCOMPARE(m_pPage->SaveConfig(), nResult);
    }
}

void tst_BasicSave::SaveWritesTheSkinName_data()
{
    QTest::addColumn<int>("nStored");
    QTest::addColumn<int>("nSaved");
    QTest::addColumn<QString>("strName");
    QTest::newRow("dark") << 1 << 1 << "DustyBlue";
    QTest::newRow("white") << 2 << 2 << "White";
    QTest::newRow("0") << 0 << 2 << "White";
    QTest::newRow("3") << 3 << 2 << "White";
}

void tst_BasicSave::SaveWritesTheSkinName()
{
    QFETCH(int, nStored);
    QFETCH(int, nSaved);
    QFETCH(QString, strName);
    m_pSection->m_record.skin = nStored;
    m_pPage->SetConfigSection(m_pSection.data());
    QVERIFY2(!QFile::exists("Localcfg.ini"), "loading writes nothing");
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.skin, nSaved);
    QCOMPARE(Ini("Skin/version").toString(), strName);
}

void tst_BasicSave::TheSkinNameIsWrittenWhateverTheResult()
{
    m_pPage->SetConfigSection(m_pSection.data());
    m_pSection->m_nResult = -1;
    QString strBefore;
    m_pSection->m_onSetConfig = [&strBefore] { strBefore = Ini("Skin/version").toString(); };
    QCOMPARE(m_pPage->SaveConfig(), -1);
    QCOMPARE(Ini("Skin/version").toString(), QString("DustyBlue"));
    QVERIFY2(strBefore == "DustyBlue", "written before the section is asked");
}

void tst_BasicSave::SkinAndLanguageKeys()
{
    CBasicConfig::WriteSkinName(7);
    QCOMPARE(Ini("Skin/version").toString(), QString("DustyBlue"));
    CBasicConfig::WriteSkinName(2);
    QCOMPARE(Ini("Skin/version").toString(), QString("White"));
    CBasicConfig::WriteLanguageType(1);
    QCOMPARE(Ini("Language/type").toInt(), 1);
    QCOMPARE(Ini("Skin/version").toString(), QString("White"));
}

QTEST_MAIN(tst_BasicSave)

#include "tst_BasicSave.moc"
