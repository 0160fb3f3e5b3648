#include "support/Marker.h"
#include "support/PageFixture.h"

#include <LocalConfig/interfaces/ISecuritySection.h>
#include <LocalConfig/pages/CSecurityConfig.h>

#include <KvGui/KvCheckBox.h>

#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

using namespace LocalConfig;
using LocalConfigLogical::ISecuritySection;
using LocalConfigLogical::SecurityConfigInfo;

class tst_SecurityConfig : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFixture.reset(new SPageFixture<CSecurityConfig, ISecuritySection, SecurityConfigInfo>); }

    void Form();
    void ANullSectionIsRefused();
    void LoadIsSilent_data();
    void LoadIsSilent();
    void DefaultsSwitchOffWithoutAPrompt();
    void TheBoxAsksAgainAfterLoading();
    void CheckingAsksNothing();
    void UncheckingAsks_data();
    void UncheckingAsks();
    void TheKeyboardAsksToo();
    void ThePrompt();
    void ThePromptIsTranslated();
    void ThePageMayGoWhileThePromptStands_data();
    void ThePageMayGoWhileThePromptStands();
    void NothingIsWrittenBeforeSaving();
    void SaveStoresTheBox();
    void SaveReturnsTheSectionsResult();
    void ConnectionState();
    void UnInitForgetsTheSection();

private:
    KVGUI::KvCheckBox* Box() const { return m_pFixture->Find<KVGUI::KvCheckBox>("checkEncryption"); }
    void Load(bool bEncrypt) const
    {
        SecurityConfigInfo record;
        record.encryptTransmission = bEncrypt;
        m_pFixture->Load(record);
    }

    /// Clicks the box as a user does and answers every prompt that comes up.
    /// \return how many came up
    int Click(const std::function<void(QDialog*)>& answer = [](QDialog* pPrompt) { pPrompt->reject(); })
    {
        return Switch([this] { QTest::mouseClick(Box(), Qt::LeftButton, {}, QPoint(8, Box()->height() / 2)); }, answer);
    }
    int Switch(const std::function<void()>& act, const std::function<void(QDialog*)>& answer)
    {
        int nPrompts = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (auto* pPrompt = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            {
                ++nPrompts;
                answer(pPrompt);
            }
        });
        timer.start(10);
        act();
        QTest::qWait(50); // for a second prompt, which must not come
        return nPrompts;
    }
    static std::function<void(QDialog*)> Press(const char* pszButton)
    {
        return [pszButton](QDialog* pPrompt) {
            QTest::mouseClick(pPrompt->findChild<QAbstractButton*>(pszButton), Qt::LeftButton);
        };
    }

    QScopedPointer<SPageFixture<CSecurityConfig, ISecuritySection, SecurityConfigInfo>> m_pFixture;
};

void tst_SecurityConfig::Form()
{
    QCOMPARE(Box()->text(), QString("Audio/Video Transmission Encryption (Takes effect after restart)"));
    QVERIFY(!Box()->isChecked());
    QCOMPARE(m_pFixture->page.windowTitle(), QString("CSecurityConfig"));
    QCOMPARE(m_pFixture->page.layout()->objectName(), QString("verticalLayout"));
    QCOMPARE(m_pFixture->page.findChildren<QWidget*>(), QList<QWidget*>{Box()});
    QVERIFY(!m_pFixture->page.isWindow());
}

void tst_SecurityConfig::ANullSectionIsRefused()
{
    QCOMPARE(m_pFixture->page.SetConfigSection(nullptr), -1);
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QCOMPARE(Click(), 0);
    m_pFixture->page.LoadConfig(true);
    QVERIFY(Box()->isChecked());
    QCOMPARE(Click(), 1); // the question does not wait for a section
}

void tst_SecurityConfig::LoadIsSilent_data()
{
    QTest::addColumn<bool>("bEncrypt");
    QTest::newRow("off") << false;
    QTest::newRow("on") << true;
}

void tst_SecurityConfig::LoadIsSilent()
{
    QFETCH(bool, bEncrypt);
    Load(!bEncrypt);
    bool bPrompt = false;
    QTimer::singleShot(0, this, [&bPrompt] {
        if (QWidget* pPrompt = QApplication::activeModalWidget())
        {
            bPrompt = true;
            pPrompt->close();
        }
    });
    m_pFixture->section.m_record.encryptTransmission = bEncrypt;
    m_pFixture->page.LoadConfig(false);
    QCoreApplication::processEvents();
    QVERIFY(!bPrompt);
    QCOMPARE(Box()->isChecked(), bEncrypt);
}

void tst_SecurityConfig::DefaultsSwitchOffWithoutAPrompt()
{
    Load(true);
    bool bPrompt = false;
    QTimer::singleShot(0, this, [&bPrompt] {
        if (QWidget* pPrompt = QApplication::activeModalWidget())
        {
            bPrompt = true;
            pPrompt->close();
        }
    });
    m_pFixture->page.LoadConfig(true);
    QCoreApplication::processEvents();
    QVERIFY(!bPrompt);
    QVERIFY(!Box()->isChecked());
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
    QVERIFY(m_pFixture->section.m_record.encryptTransmission);
}

void tst_SecurityConfig::TheBoxAsksAgainAfterLoading()
{
    Load(true);
    m_pFixture->page.LoadConfig(true);
    m_pFixture->page.LoadConfig(false);
    QCOMPARE(Click(), 1);
}

void tst_SecurityConfig::CheckingAsksNothing()
{
    Load(false);
    QCOMPARE(Click(), 0);
    QVERIFY(Box()->isChecked());
}

void tst_SecurityConfig::UncheckingAsks_data()
{
    QTest::addColumn<QString>("strAnswer");
    QTest::addColumn<bool>("bStaysOn");
    QTest::newRow("confirmed") << "btnOk" << false;
    QTest::newRow("refused") << "btnOther" << true;
    QTest::newRow("closed") << "btnClose" << true;
    QTest::newRow("escape") << "" << true;
}

void tst_SecurityConfig::UncheckingAsks()
{
    QFETCH(QString, strAnswer);
    QFETCH(bool, bStaysOn);
    Load(true);
    const int nPrompts = Click([&](QDialog* pPrompt) {
        if (strAnswer.isEmpty())
        {
            QTest::keyClick(pPrompt, Qt::Key_Escape);
            return;
        }
        QTest::mouseClick(pPrompt->findChild<QAbstractButton*>(strAnswer), Qt::LeftButton);
    });
    QCOMPARE(nPrompts, 1);
    QCOMPARE(Box()->isChecked(), bStaysOn);
}

void tst_SecurityConfig::TheKeyboardAsksToo()
{
    Load(true);
    Box()->setFocus();
    const auto pressSpace = [this] { QTest::keyClick(Box(), Qt::Key_Space); };
    QCOMPARE(Switch(pressSpace, Press("btnOther")), 1);
    QVERIFY(Box()->isChecked());
    QCOMPARE(Switch(pressSpace, Press("btnOk")), 1);
    QVERIFY(!Box()->isChecked());
    QCOMPARE(Switch(pressSpace, Press("btnOk")), 0);
    QVERIFY(Box()->isChecked());
}

void tst_SecurityConfig::ThePrompt()
{
    Load(true);
    QString strTitle;
    QString strText;
    QStringList listButtons;
    bool bConfirmsByDefault = true;
    QWidget* pParent = nullptr;
    Click([&](QDialog* pPrompt) {
        strTitle = pPrompt->accessibleName();
        strText = pPrompt->findChild<QLabel*>("messageText")->text();
        pParent = pPrompt->parentWidget();
        for (const QPushButton* pButton : pPrompt->findChildren<QPushButton*>())
        {
            listButtons += pButton->objectName();
        }
        bConfirmsByDefault = pPrompt->findChild<QPushButton*>("btnOk")->isDefault();
        pPrompt->reject();
    });
    listButtons.sort();
    QCOMPARE(strTitle, QString("Prompt"));
    QCOMPARE(strText, QString("Audio and video encryption can ensure secure data transmission and prevent others from "
                              "directly obtaining the audio and video for analysis. Are you sure to disable the "
                              "function?"));
    QCOMPARE(listButtons, (QStringList{"btnOk", "btnOther"}));
    QVERIFY(!bConfirmsByDefault);
    QCOMPARE(pParent, &m_pFixture->page);
}

void tst_SecurityConfig::ThePromptIsTranslated()
{
    Load(true);
    const CMarker marker;
    QString strTitle;
    QString strText;
    Click([&](QDialog* pPrompt) {
        strTitle = pPrompt->accessibleName();
        strText = pPrompt->findChild<QLabel*>("messageText")->text();
        pPrompt->reject();
    });
    QCOMPARE(strTitle, QString("LocalConfig::CSecurityConfig|Prompt"));
    QVERIFY(strText.startsWith("LocalConfig::CSecurityConfig|Audio and video encryption"));
    const CSecurityConfig page(nullptr);
    QVERIFY(page.findChild<QCheckBox*>("checkEncryption")->text().startsWith("CSecurityConfig|Audio/Video"));
}

void tst_SecurityConfig::ThePageMayGoWhileThePromptStands_data()
{
    QTest::addColumn<bool>("bByKey");
    QTest::newRow("click") << false;
    QTest::newRow("key") << true;
}

void tst_SecurityConfig::ThePageMayGoWhileThePromptStands()
{
    QFETCH(bool, bByKey);
    const QPointer<CSecurityConfig> pPage = new CSecurityConfig(&m_pFixture->window);
    QVERIFY(pPage);
    pPage->resize(600, 100);
    pPage->show();
    SecurityConfigInfo record;
    record.encryptTransmission = true;
    m_pFixture->section.m_record = record;
    QCOMPARE(pPage->SetConfigSection(&m_pFixture->section), 0);
    auto* pBox = pPage->findChild<QCheckBox*>("checkEncryption");
    bool bAsked = false;
    QTimer::singleShot(20, this, [&] {
        bAsked = QApplication::activeModalWidget();
        delete pPage;
    });
    if (bByKey)
    {
        pBox->setFocus();
        QTest::keyClick(pBox, Qt::Key_Space);
    }
    else
    {
        QTest::mouseClick(pBox, Qt::LeftButton, {}, QPoint(8, pBox->height() / 2));
    }
    QVERIFY(bAsked);
    QVERIFY(!pPage);
}

void tst_SecurityConfig::NothingIsWrittenBeforeSaving()
{
    Load(true);
    Click(Press("btnOk"));
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
    QVERIFY(m_pFixture->section.m_record.encryptTransmission);
}

void tst_SecurityConfig::SaveStoresTheBox()
{
    Load(false);
    Click();
    QCOMPARE(m_pFixture->page.SaveConfig(), 0);
    QCOMPARE(m_pFixture->journal.Take(), (QStringList{"GetConfig", "SetConfig"}));
    QVERIFY(m_pFixture->section.m_record.encryptTransmission);
}

void tst_SecurityConfig::SaveReturnsTheSectionsResult()
{
    Load(false);
    m_pFixture->section.m_nResult = 17;
    QCOMPARE(m_pFixture->page.SaveConfig(), 17);
}

void tst_SecurityConfig::ConnectionState()
{
    m_pFixture->page.SetControlsEnabled(false);
    QVERIFY(!Box()->isEnabled());
    m_pFixture->page.SetControlsEnabled(true);
    QVERIFY(Box()->isEnabled());
}

void tst_SecurityConfig::UnInitForgetsTheSection()
{
    Load(true);
    m_pFixture->page.UnInit();
    m_pFixture->page.LoadConfig(true);
    QVERIFY(Box()->isChecked());
    QCOMPARE(m_pFixture->page.SaveConfig(), -1);
    QCOMPARE(m_pFixture->journal.Take(), QStringList());
}

QTEST_MAIN(tst_SecurityConfig)

#include "tst_SecurityConfig.moc"
