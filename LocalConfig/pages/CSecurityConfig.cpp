#include "CSecurityConfig.h"
#include "ui_CSecurityConfig.h"

#include "PageHelpers.h"

#include <KvGui/KvCustomDialog.h>
#include <KvGui/KvMessageBox.h>
#include <LocalConfig/CScopedDisconnect.h>

#include <QPointer>

namespace LocalConfig
{

using LocalConfigLogical::SecurityConfigInfo;

CSecurityConfig::CSecurityConfig(QWidget* pParent)
    : QWidget(pParent)
    , m_pUi(std::make_unique<Ui::CSecurityConfig>())
{
    PassToolWindow(this);
    m_pUi->setupUi(this);
    m_pUi->checkEncryption->setChecked(SecurityConfigInfo().encryptTransmission);
    connect(m_pUi->checkEncryption, &QCheckBox::stateChanged, this, &CSecurityConfig::OnSecurityStateChanged);
}

CSecurityConfig::~CSecurityConfig() = default;

void CSecurityConfig::LoadConfig(bool bDefault)
{
    if (!m_pSection)
    {
        return;
    }
    const SecurityConfigInfo record = GetRecord(bDefault);
    QCheckBox* pCheckBox = m_pUi->checkEncryption;
    const CScopedDisconnect quiet(pCheckBox, &QCheckBox::stateChanged, this, &CSecurityConfig::OnSecurityStateChanged);
    pCheckBox->setChecked(record.encryptTransmission);
}

int CSecurityConfig::SaveConfig()
{
    if (!m_pSection)
    {
        return -1;
    }
    SecurityConfigInfo record = GetRecord();
    record.encryptTransmission = m_pUi->checkEncryption->isChecked();
    return m_pSection->SetConfig(record);
}

void CSecurityConfig::SetControlsEnabled(bool bEnable)
{
    m_pUi->checkEncryption->setEnabled(bEnable);
}

void CSecurityConfig::OnSecurityStateChanged(int state)
{
    if (state != Qt::Unchecked)
    {
        return;
    }
    const QPointer<CSecurityConfig> pThis(this); // the host may delete the dialog while the question stands
    const int nAnswer = KVGUI::KvMessageBox::ShowInformation(
        this, tr("Prompt"),
        tr("Audio and video encryption can ensure secure data transmission and prevent others from directly obtaining "
           "the audio and video for analysis. Are you sure to disable the function?"),
        KVGUI::KvCustomDialog::Ok | KVGUI::KvCustomDialog::Other);
    if (pThis && nAnswer != KVGUI::KvCustomDialog::Ok)
    {
        m_pUi->checkEncryption->setCheckState(Qt::Checked);
    }
}

} // namespace LocalConfig
