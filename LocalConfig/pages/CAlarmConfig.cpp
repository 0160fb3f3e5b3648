#include "CAlarmConfig.h"
#include "ui_CAlarmConfig.h"

#include "AlarmLink.h"
#include "PageHelpers.h"

#include <KvGui/KvModal.h>
#include <LocalConfig/SkinStyle.h>
#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CAudioOutput.h>
#include <UICommonModule/CFileDialog.h>
#include <UICommonModule/CGlobalInfo.h>
#include <UICommonModule/CWaveFile.h>
#include <UICommonModule/Pxa.h>

#include <QDir>
#include <QFileInfo>
#include <QSound>
#include <QStringListModel>

#include <algorithm>
#include <optional>

namespace LocalConfig
{

using LocalConfigLogical::AlarmConfigInfo;
using LocalConfigLogical::AlarmSoundInfo;
using UICommonMdl::CAlarmType;

namespace
{

constexpr int g_nAllKey = -1;
constexpr int g_arrNeverFlashing[] = {1, 6}; // alarm categories that have no place on the map
constexpr int g_nCustomAlarm = 301;          // not in the menu of sounds

// Alarm types that share one entry of the sound map.
constexpr int g_nFaceGroup = 104;
constexpr int g_arrFaceTypesOfTheirOwn[] = {967, 17020, 17029};
constexpr int g_nFaceKey = 200000;
constexpr int g_nPlateGroup = 105;
constexpr int g_nPlateKey = 100000;
constexpr SRange g_linkedRules = {3101, 3130};
constexpr int g_nLinkedRulesKey = 2;

int g_nFirstShownType = -1; // alarm type of the first entry of the last sound list, of whichever page

template <std::size_t N>
bool IsOneOf(const int (&arrNumbers)[N], int nNumber)
{
    return std::find(std::begin(arrNumbers), std::end(arrNumbers), nNumber) != std::end(arrNumbers);
}

/// The key that a whole group of alarm types shares; nothing for a type with a key of its own.
std::optional<int> GetGroupSoundKey(int nAlarmType)
{
    const int nGroup = CAlarmType::Instance()->GetGroupInfoByAlarmId(nAlarmType).nGroupId;
    if (nGroup == g_nFaceGroup && !IsOneOf(g_arrFaceTypesOfTheirOwn, nAlarmType))
    {
        return g_nFaceKey;
    }
    if (nGroup == g_nPlateGroup)
    {
        return g_nPlateKey;
    }
    return std::nullopt;
}

int GetSoundKey(int nAlarmType)
{
    return GetGroupSoundKey(nAlarmType).value_or(g_linkedRules.Contains(nAlarmType) ? g_nLinkedRulesKey : nAlarmType);
}

/// A path as the client takes it: relative to the working folder where it begins with "./".
QString Resolve(const QString& strPath)
{
    const bool bRelative = strPath.startsWith(QLatin1String("./")) || strPath.startsWith(QLatin1String(".\\"));
    return bRelative ? QDir::currentPath() + QLatin1Char('/') + strPath.mid(2) : strPath;
}

} // namespace

CAlarmConfig::CAlarmConfig(QWidget* pParent)
    : QWidget(pParent)
    , m_pUi(std::make_unique<Ui::CAlarmConfig>())
{
    PassToolWindow(this);
    m_pUi->setupUi(this);
    InitControls();
    ConnectSlots();
    setObjectName(QStringLiteral("CAlarmConfig"));
    ApplySkinStyle(this);
}

CAlarmConfig::~CAlarmConfig() = default;

void CAlarmConfig::InitControls()
{
    Describe(m_pUi->label, {m_pUi->radioPreview});
    AppendColon(tr(":"), {m_pUi->labAlarmTypeForSound, m_pUi->labSoundPath, m_pUi->labAlarmTypeForFlash, m_pUi->label});
    InitMenu();
    m_pUi->cbxAlarmTypeForSound->setModel(new QStringListModel(this)); // there may be thousands
    const QString strFolder = QStringLiteral("LocalConfig/public");
    const QPixmap pixText(Pxa::GetSkinPath(strFolder, QStringLiteral("cmb_text.png")));
    const QPixmap pixState(Pxa::GetSkinPath(strFolder, QStringLiteral("cmb_dropdown.png")));
    m_pUi->cbxAlarmTypeForSound->SetTextPixmap(pixText);
    m_pUi->cbxAlarmTypeForSound->SetStatePixmap(pixState);
    m_pUi->cbxAlarmTypeForMap->SetTextPixmap(pixText);
    m_pUi->cbxAlarmTypeForMap->SetStatePixmap(pixState);
    m_pUi->editSoundPath->SetTipParentWidget(this);
}

void CAlarmConfig::InitMenu()
{
    const QSet<int> setLeftOut = {g_nCustomAlarm};
    QMap<int, QString> mapMain;
    QMap<int, QMap<int, QString>> mapSub;
    CAlarmType::Instance()->GetAlarmCategory(mapMain, mapSub, &setLeftOut, true);
    m_pUi->cbxAlarmTypeForSound->InitMenu(mapMain, mapSub);
}

void CAlarmConfig::ConnectSlots()
{
    connect(m_pUi->editSoundPath, &UICommonMdl::CPathEdit::sgnPathBtnClicked, this,
            &CAlarmConfig::OnSoundPathBtnClicked);
    connect(m_pUi->btnSoundPlay, &QPushButton::clicked, this, &CAlarmConfig::OnSoundPlayBtnClicked);
    for (QCheckBox* pCheckBox : {m_pUi->ckbAlarmSound, m_pUi->ckbMapFlash, m_pUi->ckbLinkVideo})
    {
        connect(pCheckBox, &QCheckBox::clicked, this, &CAlarmConfig::OnAlarmConfigEnableClicked);
    }
    connect(m_pUi->cbxAlarmTypeForSound, &UICommonMdl::CAlarmTypeCombox::SignalItemChange, this,
            &CAlarmConfig::OnAlarmTypeForSoundChanged);
    connect(m_pUi->cbxAlarmTypeForMap, &QCheckableComboBox::sgnItemChanged, this, &CAlarmConfig::OnItemChanged);
    connect(this, &CAlarmConfig::sgnAlarmCustomSoundEdited, this, &CAlarmConfig::OnAlarmCustomSoundEdited);
    connect(CAlarmType::Instance(), &CAlarmType::SignalUpdateCustomAlarmType, this,
            &CAlarmConfig::OnUpdateCustomAlarmType);
    connect(CAlarmType::Instance(), &CAlarmType::SignalUpdateAlarmType, this, &CAlarmConfig::OnReInitAlarmType);
}

int CAlarmConfig::SetConfigSection(LocalConfigLogical::IAlarmSection* pSection)
{
    const int nResult = CSectionPage::SetConfigSection(pSection);
    if (nResult == 0)
    {
        UpdateControlState(true);
    }
    return nResult;
}

int CAlarmConfig::SetSection(LocalConfigLogical::IConfigSection* pSection)
{
    return SetConfigSection(static_cast<LocalConfigLogical::IAlarmSection*>(pSection));
}

int CAlarmConfig::ApplyConfigXml()
{
    const std::optional<bool> forced = ReadForcedAlarmSound(QDir::currentPath() + QStringLiteral("/Config.xml"));
    if (!forced || !m_pSection)
    {
        return -1;
    }
    AlarmConfigInfo record = GetRecord();
    record.alarmSound = *forced;
    m_pSection->SetConfig(record, true);
    EnableSoundControls(*forced);
    LoadConfig(false);
    return 0;
}

// --- Load

void CAlarmConfig::ReloadConfig(bool bDefault)
{
    if (m_pSection)
    {
        m_pSection->ResetConfig(bDefault);
    }
    LoadConfig(bDefault);
}

void CAlarmConfig::LoadConfig(bool bDefault)
{
    if (!m_pSection)
    {
        return;
    }
    AlarmConfigInfo record = GetRecord();
    if (bDefault)
    {
        ResetTypeLists(record);
        const AlarmConfigInfo defaults;
        record.alarmSound = defaults.alarmSound;
        record.loopSound = defaults.loopSound;
        record.mapFlash = defaults.mapFlash;
        record.linkVideo = defaults.linkVideo;
        record.openVideoType = defaults.openVideoType;
        m_cachedRecord = record;
    }
    else
    {
        m_mapPending.clear();
        m_cachedRecord = AlarmConfigInfo();
    }
    m_bCachedRecordValid = bDefault;

    m_pUi->ckbAlarmSound->setChecked(record.alarmSound);
    m_pUi->ckbLoop->setChecked(record.loopSound);
    m_pUi->ckbMapFlash->setChecked(record.mapFlash);
    m_pUi->ckbLinkVideo->setChecked(record.linkVideo);
    (record.openVideoType == 0 ? m_pUi->radioPopUp : m_pUi->radioPreview)->setChecked(true);
    FillTypeLists(record);
    UpdateControlState(true);
}

void CAlarmConfig::FillTypeLists(const AlarmConfigInfo& record)
{
    QStringList listNames;
    for (const auto& sound : record.alarmSounds)
    {
        listNames += CAlarmType::Instance()->CovertAlarmNameByType(sound.second.alarmType);
    }
    auto* pTypes = static_cast<QStringListModel*>(m_pUi->cbxAlarmTypeForSound->model());
    if (pTypes->stringList() != listNames)
    {
        pTypes->setStringList(listNames);
    }
    m_pUi->cbxAlarmTypeForSound->ClearChosenItem();
    m_pUi->cbxAlarmTypeForSound->setCurrentIndex(0);
    if (record.alarmSounds.empty())
    {
        m_pUi->editSoundPath->clear();
    }
    else
    {
        const AlarmSoundInfo& first = record.alarmSounds.begin()->second;
        g_nFirstShownType = first.alarmType;
        ShowSound(first);
    }

    QMap<int, QString> mapItems = {{g_nAllKey, tr("All")}};
    QList<int> listChecked;
    for (const auto& category : record.flashCategories)
    {
        if (IsOneOf(g_arrNeverFlashing, category.first))
        {
            continue;
        }
        const QString strName = CAlarmType::Instance()->GetCategoryInfoByCategoryId(category.first).strName;
        if (!strName.isEmpty())
        {
            mapItems.insert(category.first, strName);
            if (category.second)
            {
                listChecked += category.first;
            }
        }
    }
    if (mapItems.size() - listChecked.size() == 1)
    {
        listChecked += g_nAllKey;
    }
    m_pUi->cbxAlarmTypeForMap->SetItems(mapItems);
    m_pUi->cbxAlarmTypeForMap->SetCheckedList(listChecked);
}

/// Which types and categories there are is the host's business, so defaults keep the maps' keys.
void CAlarmConfig::ResetTypeLists(AlarmConfigInfo& record)
{
    for (auto& sound : record.alarmSounds)
    {
        sound.second.customSound.clear();
        sound.second.soundChanged = true;
    }
    for (auto& category : record.flashCategories)
    {
        category.second = category.second || !IsOneOf(g_arrNeverFlashing, category.first);
    }
}

void CAlarmConfig::ShowSound(const AlarmSoundInfo& sound)
{
    m_pUi->editSoundPath->setText(
        sound.customSound.empty()
            ? QStringLiteral("./Sound/sound_%1/%2")
                  .arg(UICommonMdl::CGlobalInfo::GetClientStrLanguage(), QString::fromStdString(sound.defaultSound))
            : QDir::toNativeSeparators(QString::fromStdString(sound.customSound)));
}

// --- Save

int CAlarmConfig::SaveConfig()
{
    if (!m_pSection)
    {
        return -1;
    }
    m_pSection->PrepareSave();
    AlarmConfigInfo record = GetCurrentRecord();
    if (!m_bCachedRecordValid)
    {
        for (auto it = m_mapPending.cbegin(); it != m_mapPending.cend(); ++it)
        {
            const auto category = record.flashCategories.find(it.key());
            if (category != record.flashCategories.end())
            {
                category->second = it.value();
            }
        }
        m_mapPending.clear();
    }
    record.alarmSound = m_pUi->ckbAlarmSound->isChecked();
    record.loopSound = m_pUi->ckbLoop->isChecked();
    record.mapFlash = m_pUi->ckbMapFlash->isChecked();
    record.linkVideo = m_pUi->ckbLinkVideo->isChecked();
    record.openVideoType = m_pUi->radioPopUp->isChecked() ? 0 : 1;
    return m_pSection->SetConfig(record, true);
}

/// The cached record while there is one, else the section's.
AlarmConfigInfo CAlarmConfig::GetCurrentRecord() const
{
    return m_bCachedRecordValid ? m_cachedRecord : GetRecord();
}

/// Hands an edited record back to where GetCurrentRecord took it from; the section keeps it in memory only.
void CAlarmConfig::PutBack(const AlarmConfigInfo& record)
{
    if (m_bCachedRecordValid)
    {
        m_cachedRecord = record;
    }
    else if (m_pSection)
    {
        m_pSection->SetConfig(record, false);
    }
}

// --- Enable

void CAlarmConfig::UpdateControlState(bool bEnable)
{
    const AlarmConfigInfo stored = m_bCachedRecordValid ? AlarmConfigInfo() : GetRecord();
    const AlarmConfigInfo& record = m_bCachedRecordValid ? m_cachedRecord : stored;
    EnableSoundControls(bEnable && record.alarmSound);
    EnableFlashControls(bEnable && record.mapFlash);
    EnableVideoChoice(bEnable && record.linkVideo);
    m_pUi->label->setEnabled(bEnable && record.linkVideo);
}

void CAlarmConfig::EnableSoundControls(bool bEnable)
{
    const std::initializer_list<QWidget*> listControls = {m_pUi->cbxAlarmTypeForSound, m_pUi->editSoundPath,
                                                          m_pUi->btnSoundPlay,         m_pUi->ckbLoop,
                                                          m_pUi->labAlarmTypeForSound, m_pUi->labSoundPath};
    for (QWidget* pControl : listControls)
    {
        pControl->setEnabled(bEnable);
    }
}

void CAlarmConfig::EnableFlashControls(bool bEnable)
{
    m_pUi->cbxAlarmTypeForMap->setEnabled(bEnable);
    m_pUi->labAlarmTypeForFlash->setEnabled(bEnable);
}

void CAlarmConfig::EnableVideoChoice(bool bEnable)
{
    m_pUi->radioPopUp->setEnabled(bEnable);
    m_pUi->radioPreview->setEnabled(bEnable);
}

void CAlarmConfig::OnAlarmConfigEnableClicked()
{
    if (sender() == m_pUi->ckbAlarmSound)
    {
        EnableSoundControls(m_pUi->ckbAlarmSound->isChecked());
    }
    else if (sender() == m_pUi->ckbMapFlash)
    {
        EnableFlashControls(m_pUi->ckbMapFlash->isChecked());
    }
    else if (sender() == m_pUi->ckbLinkVideo)
    {
        EnableVideoChoice(m_pUi->ckbLinkVideo->isChecked());
    }
}

// --- Map flashing

void CAlarmConfig::OnItemChanged(int nId, bool bChecked)
{
    const AlarmConfigInfo record = GetCurrentRecord();
    if (nId != g_nAllKey)
    {
        m_mapPending.insert(nId, bChecked);
        return;
    }
    for (const auto& category : record.flashCategories)
    {
        if (!IsOneOf(g_arrNeverFlashing, category.first))
        {
            m_mapPending.insert(category.first, bChecked);
        }
    }
}

// --- Sounds

void CAlarmConfig::OnAlarmTypeForSoundChanged(int /*nMainItem*/, int nSubItem)
{
    m_nSoundTypeIndex = nSubItem;
    const AlarmConfigInfo record = GetCurrentRecord();
    const auto sound =
        record.alarmSounds.find(GetSoundKey(CAlarmType::Instance()->GetAlarmTypeIdByIndex(m_nSoundTypeIndex)));
    if (sound != record.alarmSounds.end())
    {
        ShowSound(sound->second);
    }
    PutBack(record); // hosts count on it, although nothing has changed
}

void CAlarmConfig::OnSoundPathBtnClicked()
{
    KVGUI::KvModal<UICommonMdl::CFileDialog> dialog(this, tr("Select a wav file"),
                                                    QFileInfo(Resolve(m_pUi->editSoundPath->text())).absolutePath(),
                                                    tr("WAVE Files (*.wav)"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    if (!dialog.Exec() || dialog->result() != QDialog::Accepted)
    {
        return;
    }
    const QString strPath = dialog->selectedFiles().value(0);
    m_pUi->editSoundPath->setText(QDir::toNativeSeparators(strPath));

    // The linked rules' common key is not used here.
    const CAlarmType* pCatalogue = CAlarmType::Instance();
    const QList<int> listChosen = m_pUi->cbxAlarmTypeForSound->GetCurrentChosenItem();
    const int nOwnKey =
        listChosen.isEmpty() ? g_nFirstShownType : pCatalogue->GetAlarmTypeIdByIndex(listChosen.first());
    const int nAlarmType = pCatalogue->GetAlarmTypeIdByIndex(m_nSoundTypeIndex);
    emit sgnAlarmCustomSoundEdited(GetGroupSoundKey(nAlarmType).value_or(nOwnKey), strPath);
}

void CAlarmConfig::OnAlarmCustomSoundEdited(int nAlarmId, const QString& strSoundPath)
{
    AlarmConfigInfo record = GetCurrentRecord();
    const auto sound = record.alarmSounds.find(nAlarmId);
    if (sound != record.alarmSounds.end())
    {
        sound->second.customSound = strSoundPath.toStdString();
        sound->second.soundChanged = true;
    }
    PutBack(record);
}

void CAlarmConfig::OnSoundPlayBtnClicked()
{
    if (m_pSound)
    {
        m_pSound->stop();
        m_pSound.reset();
    }
    const QString strPath = Resolve(m_pUi->editSoundPath->text());
    if (UICommonMdl::CWaveFile::IsPlayableFile(strPath) && UICommonMdl::CAudioOutput::IsAvailableOrTell())
    {
        m_pSound = std::make_unique<QSound>(strPath);
        m_pSound->play();
    }
}

// --- Catalogue

void CAlarmConfig::OnUpdateCustomAlarmType()
{
    InitMenu();
}

void CAlarmConfig::OnReInitAlarmType()
{
    InitMenu();
}

} // namespace LocalConfig
