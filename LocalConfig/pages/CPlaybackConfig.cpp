#include "CPlaybackConfig.h"
#include "ui_CPlaybackConfig.h"

#include "PageHelpers.h"

namespace LocalConfig
{

using LocalConfigLogical::PlaybackConfigInfo;

namespace
{

constexpr SItem g_arrStreams[] = {
    {QT_TRANSLATE_NOOP("LocalConfig::CPlaybackConfig", "All"), 0},
    {QT_TRANSLATE_NOOP("LocalConfig::CPlaybackConfig", "Main Stream"), 1},
    {QT_TRANSLATE_NOOP("LocalConfig::CPlaybackConfig", "Sub Stream 1"), 2},
    {QT_TRANSLATE_NOOP("LocalConfig::CPlaybackConfig", "Sub Stream 2"), 3},
};

} // namespace

CPlaybackConfig::CPlaybackConfig(QWidget* pParent)
    : QWidget(pParent)
    , m_pUi(std::make_unique<Ui::CPlaybackConfig>())
{
    PassToolWindow(this);
    m_pUi->setupUi(this);
    installEventFilter(this);
    InitControls();
}

CPlaybackConfig::~CPlaybackConfig() = default;

void CPlaybackConfig::InitControls()
{
    AppendColon(tr(":"), {m_pUi->label_3});
    m_pUi->devStreamCmbBox->clear();
    for (const SItem& item : g_arrStreams)
    {
        m_pUi->devStreamCmbBox->addItem(tr(item.pszText), item.nData);
    }
}

void CPlaybackConfig::LoadConfig(bool bDefault)
{
    if (!m_pSection)
    {
        return;
    }
    const PlaybackConfigInfo record = GetRecord(bDefault);
    m_pUi->enableLargePicAdjustment->setChecked(record.bLargePicAdjustment);
    const int nIndex = m_pUi->devStreamCmbBox->findData(record.nDevRecordStream);
    if (nIndex >= 0)
    {
        m_pUi->devStreamCmbBox->setCurrentIndex(nIndex);
    }
}

int CPlaybackConfig::SaveConfig()
{
    if (!m_pSection)
    {
        return -1;
    }
    PlaybackConfigInfo record = GetRecord();
    record.bLargePicAdjustment = m_pUi->enableLargePicAdjustment->isChecked();
    record.nDevRecordStream = m_pUi->devStreamCmbBox->currentData().toInt();
    return m_pSection->SetConfig(record);
}

void CPlaybackConfig::SetControlsEnabled(bool bEnable)
{
    m_pUi->enableLargePicAdjustment->setEnabled(bEnable);
    m_pUi->devStreamCmbBox->setEnabled(bEnable);
}

void CPlaybackConfig::OnPlaybackClicked()
{}

} // namespace LocalConfig
