#include "CVideoConfig.h"
#include "ui_CVideoConfig.h"

#include "CSplitWndNumConfig.h"
#include "PageHelpers.h"

#include <UICommonModule/CLocalIniFile.h>
#include <UICommonModule/Pxa.h>

#include <QApplication>
#include <QKeyEvent>
#include <QRegExpValidator>

namespace LocalConfig
{

using LocalConfigLogical::VideoConfigInfo;

namespace
{

constexpr SRange g_bufferTime = {0, 1500}; // milliseconds
constexpr int g_nCustomPlayMode = 3;       // index
constexpr int g_nHardwareDecoding = 2;
constexpr int g_nSecondUnit = 2;
constexpr int g_nMinCustomSeconds = 10;
constexpr int g_nPickerDistance = 10; // pixels below the split button

// The empty alternative stands for a field that is still empty.
constexpr char g_szBufferPattern[] = "(0|1500|[1][0-4]\\d{0,2}||[1-9]\\d{0,2}|[1-9]\\d{0,1})";

// By unit: hour, minute, second.
constexpr const char* g_arrTimePatterns[] = {
    "(1|24|[2][0-4]{0,1}|[1]\\d{0,1})",
    "(1|1440|[1][0-3][0-3]\\d{0,1}|[1-9]\\d{0,2})",
    "(1|86400|[8][0-5][0-3]\\d{0,2}|[1-7]\\d{0,4}|[1-9]\\d{0,3})",
};

constexpr const char* g_arrSplits[] = {"1", "4", "6", "8", "9", "13", "16", "20", "25", "36"};

constexpr SItem g_arrScales[] = {
    {QT_TRANSLATE_NOOP("LocalConfig::CVideoConfig", "Original Scale"), 0},
    {QT_TRANSLATE_NOOP("LocalConfig::CVideoConfig", "Full Screen"), 1},
};

// By index; the record counts from 1.
constexpr const char* g_arrPlayModes[] = {
    QT_TRANSLATE_NOOP("LocalConfig::CVideoConfig", "Real-time Priority"),
    QT_TRANSLATE_NOOP("LocalConfig::CVideoConfig", "Fluency Priority"),
    QT_TRANSLATE_NOOP("LocalConfig::CVideoConfig", "Balance Priority"),
    QT_TRANSLATE_NOOP("LocalConfig::CVideoConfig", "Custom"),
};

constexpr int g_arrCpuThresholds[] = {50, 60, 70, 80, 90, 100}; // per cent

constexpr const char* g_arrTimeUnits[] = {
    QT_TRANSLATE_NOOP("LocalConfig::CVideoConfig", "Hour"),
    QT_TRANSLATE_NOOP("LocalConfig::CVideoConfig", "Minute"),
    QT_TRANSLATE_NOOP("LocalConfig::CVideoConfig", "Second"),
};

// A preset's number as it is shown, and its length in seconds.
struct SPreset
{
    int nShown;
    int nSeconds;
};

constexpr SPreset g_arrPresets[] = {{30, 30}, {1, 60}, {2, 120}, {5, 300}, {10, 600}};
constexpr int g_nCustomInstant = 5; // index behind the presets

} // namespace

CVideoConfig::CVideoConfig(QWidget* pParent)
    : QWidget(pParent)
    , m_pUi(std::make_unique<Ui::CVideoConfig>())
    , m_pSplitPicker(nullptr)
{
    m_pUi->setupUi(this);
    InitControls();
    ConnectSlots();
}

CVideoConfig::~CVideoConfig()
{
    disconnect(qApp, nullptr, this, nullptr); // the focus moves once more while the controls go
}

void CVideoConfig::InitControls()
{
    AppendColon(tr(":"), {m_pUi->splitLabel, m_pUi->VideoWndDisplayLabel, m_pUi->streamLabel, m_pUi->playmodelabel,
                          m_pUi->playmodelabel_2, m_pUi->label_3, m_pUi->label_2, m_pUi->silentTimeLabel});
    m_pUi->chkboxDblk2ChangeStream->setToolTip(m_pUi->chkboxDblk2ChangeStream->text());

    m_pSplitPicker = new CSplitWndNumConfig(this);
    m_pSplitPicker->hide();
    m_pSplitPicker->installEventFilter(this);

    for (const SItem& item : g_arrScales)
    {
        m_pUi->pCmbScale->addItem(tr(item.pszText), item.nData);
    }
    for (const char* pszSplit : g_arrSplits)
    {
        m_pUi->wndSplitCmbBox->addItem(QString::fromLatin1(pszSplit));
    }
    for (const char* pszPlayMode : g_arrPlayModes)
    {
        m_pUi->playmodeComboBox->addItem(tr(pszPlayMode));
    }
    for (int nThreshold : g_arrCpuThresholds)
    {
        m_pUi->cpuOccupycomboBox->addItem(QStringLiteral("%1%").arg(nThreshold));
    }
    for (const SPreset& preset : g_arrPresets)
    {
        m_listInstantTexts += GetPresetText(preset.nShown);
        m_listInstantKeys += GetPresetText(preset.nSeconds);
    }
    m_listInstantTexts += tr("Custom");
    m_pUi->instantComboBox->addItems(m_listInstantTexts);
    for (const char* pszUnit : g_arrTimeUnits)
    {
        m_pUi->timeUnitComboBox->addItem(tr(pszUnit));
    }

    m_pUi->videoLabel->setText(g_bufferTime.Fill(tr("%1-%2 ms")));
    Describe(m_pUi->videoLabel, {m_pUi->videoCushionEdit});
    Describe(m_pUi->label_5, {m_pUi->wndSplitCmbBox});
    Describe(m_pUi->label, {m_pUi->instantTimeEdit});
    Describe(m_pUi->silenceTimeRgLabel, {m_pUi->silenceTimeSpinBox});
    SetPattern(this, m_pUi->videoCushionEdit, QString::fromLatin1(g_szBufferPattern));
    m_pUi->videoCushionEdit->installEventFilter(this);
    for (std::size_t n = 0; n < m_arrTimeValidators.size(); ++n)
    {
        m_arrTimeValidators[n] = new QRegExpValidator(QRegExp(QString::fromLatin1(g_arrTimePatterns[n])), this);
    }
    m_pUi->timeUnitComboBox->setCurrentIndex(g_nSecondUnit);
    m_pUi->instantTimeEdit->setValidator(m_arrTimeValidators[g_nSecondUnit]);
    HoldToValidator(m_pUi->instantTimeEdit);
}

void CVideoConfig::ConnectSlots()
{
    const auto currentIndexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_pUi->playmodeComboBox, currentIndexChanged, this, &CVideoConfig::OnCurrentIndexChangedPlayModeType);
    connect(m_pUi->btnShowSplitWnd, &QPushButton::clicked, this, &CVideoConfig::OnShowSplitWndCfg);
    connect(m_pSplitPicker, &CSplitWndNumConfig::sgnSplitChanged, this, &CVideoConfig::OnSplitWndChange);
    connect(qApp, &QApplication::focusChanged, this, &CVideoConfig::OnFocusChanged);
    connect(m_pUi->instantComboBox, currentIndexChanged, this, &CVideoConfig::OnCurrentIndexChangedInstantType);
    connect(m_pUi->timeUnitComboBox, currentIndexChanged, this, &CVideoConfig::OnCurrentIndexChangedTimeUnit);
    connect(m_pUi->silenceChkBox, &QCheckBox::stateChanged, this, &CVideoConfig::OnSilentStateChanged);
}

/// "30s", or a number of minutes. The keys that seconds are looked up by are built with the same rule.
QString CVideoConfig::GetPresetText(int nNumber) const
{
    return QStringLiteral("%1%2").arg(nNumber).arg(nNumber == g_arrPresets[0].nShown ? tr("s") : tr("Min"));
}

// --- Load

void CVideoConfig::LoadConfig(bool bDefault)
{
    if (!m_pSection)
    {
        return;
    }
    const VideoConfigInfo stored = GetRecord();
    VideoConfigInfo record;
    record.bGpuDecodeSupported = stored.bGpuDecodeSupported; // a fact about the machine, not a setting
    Show(bDefault ? record : stored);
}

void CVideoConfig::Show(const VideoConfigInfo& record)
{
    const int nScale = m_pUi->pCmbScale->findData(record.nDisplayScale);
    if (nScale >= 0)
    {
        m_pUi->pCmbScale->setCurrentIndex(nScale);
    }
    if (record.nPlayMode > 0)
    {
        m_pUi->playmodeComboBox->setCurrentIndex(record.nPlayMode - 1);
        OnCurrentIndexChangedPlayModeType(record.nPlayMode - 1);
    }
    m_pUi->videoCushionEdit->setText(QString::number(record.nVideoBufferTime));
    m_pUi->chkboxDblk2ChangeStream->setChecked(record.bDblClickMainStream);
    m_pUi->chkboxGpuDecode->setChecked(record.bGpuDecodeSupported && record.nDecodeMode != 0);
    OnSplitWndChange(record.nDefaultSplit);
    SelectText(m_pUi->wndSplitCmbBox, QString::number(record.nSubStreamSplitThreshold));
    ShowInstantTime(record);

    const bool bSilent = record.nSilentTime > 0;
    m_pUi->silenceChkBox->setChecked(bSilent);
    ShowNumber(m_pUi->silenceTimeSpinBox, bSilent ? record.nSilentTime : 1);
    m_pUi->silenceWidget->setEnabled(bSilent);

    SelectText(m_pUi->cpuOccupycomboBox, QStringLiteral("%1%").arg(record.nCpuPromptThreshold));
    for (QWidget* pCheckBox :
         std::initializer_list<QWidget*>{m_pUi->chkboxGpuDecode, m_pUi->chkboxDblk2ChangeStream, m_pUi->silenceChkBox})
    {
        Pxa::QCommon::AddToolTipByControlWidth(pCheckBox);
    }
}

void CVideoConfig::ShowInstantTime(const VideoConfigInfo& record)
{
    m_pUi->wgtInstantTimeCustomize->setEnabled(record.bInstantCustom);
    if (record.bInstantCustom)
    {
        m_pUi->instantComboBox->setCurrentIndex(g_nCustomInstant);
        m_pUi->timeUnitComboBox->setCurrentIndex(record.nInstantTimeUnit);
        m_pUi->instantTimeEdit->setText(QString::number(record.nInstantPlaybackTime));
    }
    else
    {
        Empty(m_pUi->instantTimeEdit);
        m_pUi->timeUnitComboBox->setCurrentIndex(g_nSecondUnit);
        m_pUi->instantComboBox->setCurrentIndex(m_listInstantKeys.indexOf(GetPresetText(record.nInstantPlaybackTime)));
    }
    m_bCustomInstant = record.bInstantCustom;
}

// --- Save

int CVideoConfig::SaveConfig()
{
    if (!m_pSection)
    {
        return -1;
    }
    VideoConfigInfo record = GetRecord();
    record.nDisplayScale = m_pUi->pCmbScale->currentData().toInt();
    const int nPlayMode = m_pUi->playmodeComboBox->currentIndex();
    if (nPlayMode >= 0)
    {
        record.nPlayMode = nPlayMode + 1;
        OnCurrentIndexChangedPlayModeType(nPlayMode);
    }
    SaveBufferTime(record);
    record.bDblClickMainStream = m_pUi->chkboxDblk2ChangeStream->isChecked();
    record.nDecodeMode = m_pUi->chkboxGpuDecode->isChecked() ? g_nHardwareDecoding : 0;
    record.nDefaultSplit = m_nDefaultSplit;
    record.nSubStreamSplitThreshold = m_pUi->wndSplitCmbBox->currentText().toInt();
    if (!SaveInstantTime(record))
    {
        m_refusal = PointAt(m_pUi->instantTimeEdit, QString());
        return -1;
    }
    UICommonMdl::CLocalIniFile::WriteValue(QStringLiteral("ProcessDecode"), QStringLiteral("enable"),
                                           record.bProcessDecode, QStringLiteral("Localcfg.ini"));
    record.nSilentTime = m_pUi->silenceChkBox->isChecked() ? m_pUi->silenceTimeSpinBox->value() : 0;
    record.nCpuPromptThreshold = m_pUi->cpuOccupycomboBox->currentText().remove(QLatin1Char('%')).toInt();
    return m_pSection->SetConfig(record);
}

/// A time that is too large gives way to the stored one, and the save goes on.
void CVideoConfig::SaveBufferTime(VideoConfigInfo& record)
{
    const int nTime = m_pUi->videoCushionEdit->text().toInt();
    if (static_cast<unsigned>(nTime) > static_cast<unsigned>(g_bufferTime.nMax))
    {
        PointAt(m_pUi->videoCushionEdit, g_bufferTime.Fill(tr("Video buffer time range must be within %1-%2 ms.")));
        m_pUi->videoCushionEdit->setText(QString::number(record.nVideoBufferTime));
        return;
    }
    record.nVideoBufferTime = nTime;
}

bool CVideoConfig::SaveInstantTime(VideoConfigInfo& record) const
{
    record.bInstantCustom = m_bCustomInstant;
    if (!m_bCustomInstant)
    {
        const int nPreset = m_listInstantTexts.indexOf(m_pUi->instantComboBox->currentText());
        const bool bPreset = nPreset >= 0 && nPreset < int(std::size(g_arrPresets));
        record.nInstantPlaybackTime = bPreset ? g_arrPresets[nPreset].nSeconds : 0;
        return true;
    }
    record.nInstantTimeUnit = m_pUi->timeUnitComboBox->currentIndex();
    record.nInstantPlaybackTime = m_pUi->instantTimeEdit->text().toInt();
    return record.nInstantTimeUnit != g_nSecondUnit || record.nInstantPlaybackTime >= g_nMinCustomSeconds;
}

// --- Enable

void CVideoConfig::SetControlsEnabled(bool bEnable)
{
    const VideoConfigInfo record = GetRecord();
    const std::initializer_list<QWidget*> listControls = {m_pUi->playmodeComboBox, m_pUi->chkboxDblk2ChangeStream,
                                                          m_pUi->silenceChkBox, m_pUi->silenceTimeSpinBox};
    for (QWidget* pControl : listControls)
    {
        pControl->setEnabled(bEnable);
    }
    m_pUi->chkboxGpuDecode->setEnabled(bEnable && record.bGpuDecodeSupported);
    OnSplitWndChange(record.nDefaultSplit);
}

// --- Slots

void CVideoConfig::OnDefStreamClicked()
{}

void CVideoConfig::OnAdaptStreamClicked()
{}

void CVideoConfig::OnCurrentIndexChangedPlayModeType(int nIndex)
{
    m_pUi->wgtPlayModeCustomize->setEnabled(nIndex == g_nCustomPlayMode);
    m_pUi->playmodelabel_2->setEnabled(nIndex == g_nCustomPlayMode);
}

void CVideoConfig::OnShowSplitWndCfg()
{
    m_pSplitPicker->setVisible(!m_pSplitPicker->isVisible());
    const auto mirror = [this](const QRect& place) { return QStyle::visualRect(layoutDirection(), rect(), place); };
    const QRect button = mirror({m_pUi->btnShowSplitWnd->mapTo(this, QPoint(0, 0)), m_pUi->btnShowSplitWnd->size()});
    const QPoint place(button.x() - button.width(), button.y() + button.height() + g_nPickerDistance);
    m_pSplitPicker->move(mirror({place, m_pSplitPicker->size()}).topLeft());
    m_pSplitPicker->raise();
    if (m_pSplitPicker->isVisible())
    {
        // With the reason of a popup, the button that loses the focus would stay the one that Enter presses.
        m_pSplitPicker->setFocus(Qt::OtherFocusReason);
        ScrollTo(m_pSplitPicker);
    }
}

void CVideoConfig::OnSplitWndChange(int splitWndNum)
{
    const bool bByKey = m_pSplitPicker->HasKeyboardOn(splitWndNum);
    setFocus(Qt::OtherFocusReason);
    m_pSplitPicker->hide();
    if (bByKey)
    {
        m_pUi->btnShowSplitWnd->setFocus(Qt::OtherFocusReason); // nothing would show that the page has it
    }
    const QString strSheet =
        QStringLiteral("QPushButton#btnShowSplitWnd{image: url(:/LocalConfig/tip_%1-n.svg);border:none;} "
                       "\t\t\t\t\t\tQPushButton#btnShowSplitWnd:hover{image: url(:/LocalConfig/tip_%1-h.svg);} "
                       "\t\t\t\t\t\tQPushButton#btnShowSplitWnd:pressed{image: url(:/LocalConfig/tip_%1-p.svg);} "
                       "\t\t\t\t\t\tQPushButton#btnShowSplitWnd:disabled{image: url(:/LocalConfig/tip_%1-d.svg);}")
            .arg(splitWndNum);
    if (m_pUi->btnShowSplitWnd->styleSheet() != strSheet) // or it would be read and its pictures drawn again
    {
        m_pUi->btnShowSplitWnd->setStyleSheet(strSheet);
    }
    // The picture says it to the eye alone.
    m_pUi->btnShowSplitWnd->setToolTip(m_pSplitPicker->GetText(splitWndNum));
    m_nDefaultSplit = splitWndNum;
}

void CVideoConfig::ClosePicker()
{
    if (m_pSplitPicker->isAncestorOf(QApplication::focusWidget()))
    {
        m_pUi->btnShowSplitWnd->setFocus(Qt::OtherFocusReason);
    }
    m_pSplitPicker->hide();
}

void CVideoConfig::OnFocusChanged(QWidget* /*pOld*/, QWidget* pNow)
{
    // The button hides the picker itself.
    if (pNow && pNow != m_pUi->btnShowSplitWnd && !m_pSplitPicker->isAncestorOf(pNow))
    {
        m_pSplitPicker->hide();
    }
}

/// Tab leaves the picker as if the button that opened it had the focus.
bool CVideoConfig::focusNextPrevChild(bool bNext)
{
    if (!m_pSplitPicker->isAncestorOf(QApplication::focusWidget()))
    {
        return QWidget::focusNextPrevChild(bNext);
    }
    ClosePicker();
    return !bNext || QWidget::focusNextPrevChild(bNext);
}

void CVideoConfig::OnCurrentIndexChangedInstantType(int nIndex)
{
    m_bCustomInstant = nIndex == g_nCustomInstant;
    m_pUi->wgtInstantTimeCustomize->setEnabled(m_bCustomInstant);
}

void CVideoConfig::OnCurrentIndexChangedTimeUnit(int nUnit)
{
    Empty(m_pUi->instantTimeEdit);
    const bool bKnown = nUnit >= 0 && nUnit < int(m_arrTimeValidators.size());
    m_pUi->instantTimeEdit->setValidator(m_arrTimeValidators[bKnown ? std::size_t(nUnit) : g_nSecondUnit]);
}

void CVideoConfig::OnSilentStateChanged(int iCheckState)
{
    m_pUi->silenceWidget->setEnabled(iCheckState == Qt::Checked);
}

bool CVideoConfig::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pWatched == m_pUi->videoCushionEdit && pEvent->type() == QEvent::FocusOut &&
        m_pUi->videoCushionEdit->text().isEmpty())
    {
        m_pUi->videoCushionEdit->setText(QString::number(GetRecord().nVideoBufferTime));
    }
    else if (pEvent->type() == QEvent::Leave)
    {
        ClosePicker();
    }
    else if (pWatched == m_pSplitPicker && pEvent->type() == QEvent::KeyPress &&
             static_cast<QKeyEvent*>(pEvent)->key() == Qt::Key_Escape)
    {
        ClosePicker();
        return true; // it would close the dialog
    }
    return QWidget::eventFilter(pWatched, pEvent);
}

} // namespace LocalConfig
