#include "AlarmCenter.h"

#include "AlarmSounds.h"
#include "MapView.h"
#include <client/live/SplitView.h>
#include <client/store/ConfigService.h>

#include <KvGui/KvCustomDialog.h>
#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CAudioOutput.h>
#include <UICommonModule/CWaveFile.h>

#include <QLabel>
#include <QSound>
#include <QTimer>
#include <QVBoxLayout>

using LocalConfigLogical::AlarmConfigInfo;
using UICommonMdl::CAlarmType;

namespace LocalConfigClient
{

namespace
{

constexpr int g_nAsPopUp = 0;
constexpr int g_nFrameInterval = 200; // milliseconds

} // namespace

AlarmCenter::AlarmCenter(const ConfigService& configService, MapView& mapView, SplitView& splitView, QWidget* pWindow)
    : QObject(pWindow)
    , m_configService(configService)
    , m_mapView(mapView)
    , m_splitView(splitView)
    , m_pWindow(pWindow)
{}

AlarmCenter::~AlarmCenter() = default;

int AlarmCenter::GetLinkedPane(int nAlarmType) const
{
    return qMax(0, CAlarmType::Instance()->GetIndexByAlarmTypeId(nAlarmType)) % m_splitView.GetSplit();
}

void AlarmCenter::Raise(int nAlarmType)
{
    Acknowledge();
    const CAlarmType* pCatalogue = CAlarmType::Instance();
    const AlarmConfigInfo& settings = m_configService.GetStored().alarm;
    const int nCategory = pCatalogue->GetGroupInfoByAlarmId(nAlarmType).nCategoryId;
    m_bActive = true;
    m_strName = pCatalogue->CovertAlarmNameByType(nAlarmType);
    if (m_strName.isEmpty())
    {
        m_strName = tr("Alarm %1").arg(nAlarmType);
    }
    if (settings.alarmSound)
    {
        Play(nAlarmType, settings.loopSound);
    }
    const auto flash = settings.flashCategories.find(nCategory);
    if (settings.mapFlash && flash != settings.flashCategories.end() && flash->second)
    {
        m_mapView.Flash(nCategory);
    }
    if (settings.linkVideo)
    {
        const int nPane = GetLinkedPane(nAlarmType);
        if (settings.openVideoType == g_nAsPopUp)
        {
            OpenPopUp(nPane);
        }
        else
        {
            ShowInLiveView(nPane);
        }
    }
    emit SignalChanged();
}

void AlarmCenter::Acknowledge()
{
    if (!m_bActive)
    {
        return;
    }
    m_bActive = false;
    m_strName.clear();
    if (m_pSound)
    {
        m_pSound->stop();
        m_pSound.reset();
    }
    m_strPlayedFile.clear();
    m_mapView.StopFlash();
    if (m_pPopUp)
    {
        m_pPopUp->hide();
        m_pPopUp->deleteLater(); // its own button may be what brought us here
        m_pPopUp = nullptr;
    }
    if (m_bOpenedSingleWindow && m_splitView.IsSingleWindow())
    {
        m_splitView.ToggleSingleWindow();
    }
    m_bOpenedSingleWindow = false;
    emit SignalChanged();
}

void AlarmCenter::Play(int nAlarmType, bool bLoop)
{
    const QString strFile = GetSoundFile(*CAlarmType::Instance(), m_configService.GetStored().alarm, nAlarmType);
    if (!UICommonMdl::CWaveFile::IsPlayableFile(strFile) || !UICommonMdl::CAudioOutput::IsAvailableOrTell())
    {
        return;
    }
    m_pSound = std::make_unique<QSound>(strFile);
    m_pSound->setLoops(bLoop ? int(QSound::Infinite) : 1);
    m_pSound->play();
    m_strPlayedFile = strFile;
    m_bLooped = bLoop;
}

QString AlarmCenter::GetPlayedFile() const
{
    return m_pSound && !m_pSound->isFinished() ? m_strPlayedFile : QString();
}

bool AlarmCenter::IsLooped() const
{
    return m_pSound && m_bLooped;
}

void AlarmCenter::OpenPopUp(int nPane)
{
    auto* pPopUp = new KVGUI::KvCustomDialog(KVGUI::KvCustomDialog::Ok, m_pWindow, 1);
    pPopUp->setObjectName(QStringLiteral("alarmPopUp"));
    pPopUp->SetButtonText(KVGUI::KvCustomDialog::Ok, tr("Acknowledge"));
    connect(pPopUp, &KVGUI::KvCustomDialog::SignalOkButtonClicked, this, &AlarmCenter::Acknowledge);
    pPopUp->SetTitle(tr("%1: %2").arg(m_strName, SplitView::GetChannelName(nPane)));
    auto* pPicture = new QLabel(pPopUp->GetCentralWidget());
    pPicture->setObjectName(QStringLiteral("alarmPicture"));
    auto* pLayout = new QVBoxLayout(pPopUp->GetCentralWidget());
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(pPicture);
    const auto showFrame = [this, pPicture, nPane] {
        pPicture->setPixmap(QPixmap::fromImage(m_splitView.GetPicture(nPane)));
    };
    auto* pTimer = new QTimer(pPopUp);
    connect(pTimer, &QTimer::timeout, pPicture, showFrame);
    pTimer->start(g_nFrameInterval);
    showFrame();
    m_pPopUp = pPopUp;
    pPopUp->show();
}

void AlarmCenter::ShowInLiveView(int nPane)
{
    m_splitView.Select(nPane);
    if (!m_splitView.IsSingleWindow())
    {
        m_splitView.ToggleSingleWindow();
        m_bOpenedSingleWindow = true;
    }
}

} // namespace LocalConfigClient
