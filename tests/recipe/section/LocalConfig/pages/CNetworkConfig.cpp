#include "CNetworkConfig.h"
#include "ui_CNetworkConfig.h"

namespace LocalConfig
{

using LocalConfigLogical::NetworkConfigInfo;

CNetworkConfig::CNetworkConfig(QWidget* pParent)
    : QWidget(pParent)
    , m_pUi(std::make_unique<Ui::CNetworkConfig>())
{
    setWindowFlags(Qt::Tool);
    m_pUi->setupUi(this);
    setWindowFlags({});
}

CNetworkConfig::~CNetworkConfig() = default;

void CNetworkConfig::LoadConfig(bool bDefault)
{
    if (m_pSection)
    {
        m_pUi->proxyChkBox->setChecked(GetRecord(bDefault).useProxy);
    }
}

int CNetworkConfig::SaveConfig()
{
    if (!m_pSection)
    {
        return -1;
    }
    NetworkConfigInfo record = GetRecord();
    record.useProxy = m_pUi->proxyChkBox->isChecked();
    return m_pSection->SetConfig(record);
}

void CNetworkConfig::SetControlsEnabled(bool bEnable)
{
    m_pUi->proxyChkBox->setEnabled(bEnable);
}

} // namespace LocalConfig
