#include "CCaptureConfig.h"
#include "ui_CCaptureConfig.h"

#include "PageHelpers.h"

#include <QEvent>

namespace LocalConfig
{

using LocalConfigLogical::SnapshotConfigInfo;

namespace
{

constexpr char g_szFolder[] = "Picture";
constexpr int g_nMaxPathBytes = 180; // in UTF-8
constexpr SRange g_count = {2, 10};
constexpr char g_szCountPattern[] = "(10|[2-9])";
constexpr SRange g_interval = {1, 9999999}; // seconds

constexpr int g_nJpeg = 1; // index and stored value

constexpr const char* g_arrNameFormats[] = {
    QT_TRANSLATE_NOOP("LocalConfig::CCaptureConfig", "Time_ChannelNo"),
    QT_TRANSLATE_NOOP("LocalConfig::CCaptureConfig", "Time_ChannelName"),
    QT_TRANSLATE_NOOP("LocalConfig::CCaptureConfig", "ChannelNo_Time"),
    QT_TRANSLATE_NOOP("LocalConfig::CCaptureConfig", "ChannelName_Time"),
};

} // namespace

CCaptureConfig::CCaptureConfig(QWidget* pParent)
    : QWidget(pParent)
    , m_pUi(std::make_unique<Ui::CCaptureConfig>())
{
    PassToolWindow(this);
    m_pUi->setupUi(this);
    InitControls();
    m_pUi->picNumEdit->installEventFilter(this);
}

CCaptureConfig::~CCaptureConfig() = default;

void CCaptureConfig::InitControls()
{
    AppendColon(tr(":"), {m_pUi->picFormatLabel, m_pUi->picPathLabel, m_pUi->picNameFormatLab, m_pUi->picTmLabel,
                          m_pUi->picNumLabel});
    Describe(m_pUi->picTmRgLabel, {m_pUi->picTmSpinBox});
    Describe(m_pUi->picNumRgLabel, {m_pUi->picNumEdit});
    SetPattern(this, m_pUi->picNumEdit, QString::fromLatin1(g_szCountPattern));
    m_pUi->picPathEdit->SetTipParentWidget(this);
    m_pUi->picPathEdit->SetMaxInputParam(g_nMaxPathBytes, tr("The Path length of Picture should not longer than 180"));
    m_pUi->picTmSpinBox->setRange(g_interval.nMin, g_interval.nMax);
    m_pUi->picTmSpinBox->SetKeepsTyped(true); // saving speaks of it
    m_pUi->picFormatComboBox->insertItem(0, QStringLiteral("BMP"));
    m_pUi->picFormatComboBox->insertItem(g_nJpeg, QStringLiteral("JPEG"));
    for (const char* pszNameFormat : g_arrNameFormats)
    {
        m_listNameFormats += tr(pszNameFormat);
    }
    m_pUi->picNameFormatCmbBox->insertItems(0, m_listNameFormats);
}

void CCaptureConfig::LoadConfig(bool bDefault)
{
    if (!m_pSection)
    {
        return;
    }
    SnapshotConfigInfo record = GetRecord(bDefault);
    const QString strDefaultFolder = GetDefaultFolder(g_szFolder);
    if (!bDefault && record.picturePath.empty())
    {
        // Stored at once, so that snapshots have their folder before anybody has saved this page.
        record.picturePath = strDefaultFolder.toStdString();
        m_pSection->SetConfig(record);
    }
    m_pUi->picFormatComboBox->setCurrentIndex(record.imageFormat != 0 ? g_nJpeg : 0);
    m_pUi->picNumEdit->setText(QString::number(record.continuousCount));
    ClearHint(m_pUi->picNumEdit);
    ShowNumber(m_pUi->picTmSpinBox, record.interval);
    ShowFolder(m_pUi->picPathEdit, record.picturePath, strDefaultFolder);
    m_pUi->picNameFormatCmbBox->setCurrentIndex(record.nameFormat);
}

int CCaptureConfig::SaveConfig()
{
    if (!m_pSection)
    {
        return -1;
    }
    SnapshotConfigInfo record = GetRecord();
    if (m_pUi->picFormatComboBox->currentIndex() >= 0)
    {
        record.imageFormat = m_pUi->picFormatComboBox->currentIndex();
    }
    const int nCount = m_pUi->picNumEdit->text().toInt();
    if (!g_count.Contains(nCount))
    {
        m_refusal = PointAtKept(m_pUi->picNumEdit);
        return -2;
    }
    record.continuousCount = nCount;

    // The text, since the value is still the last one while the field holds none; in the digits that the box writes.
    const int nInterval = m_pUi->picTmSpinBox->locale().toInt(m_pUi->picTmSpinBox->text());
    if (nInterval < g_interval.nMin)
    {
        m_refusal = PointAt(m_pUi->picTmSpinBox, tr("Continue snapshot time interval must be longer than 1s."));
        ShowNumber(m_pUi->picTmSpinBox, record.interval);
        return -1;
    }
    record.interval = nInterval;

    record.picturePath = m_pUi->picPathEdit->text().toStdString();
    if (record.picturePath.size() > g_nMaxPathBytes)
    {
        m_refusal = PointAt(m_pUi->picPathEdit, QString());
        return -1;
    }
    record.nameFormat = m_pUi->picNameFormatCmbBox->currentIndex();
    return m_pSection->SetConfig(record);
}

void CCaptureConfig::SetControlsEnabled(bool bEnable)
{
    // picNameFormatCmbBox stays usable.
    m_pUi->picFormatComboBox->setEnabled(bEnable);
    m_pUi->picNumEdit->setEnabled(bEnable);
    m_pUi->picTmSpinBox->setEnabled(bEnable);
    m_pUi->picPathEdit->setEnabled(bEnable);
}

bool CCaptureConfig::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    KVGUI::KvLineEdit* pEdit = m_pUi->picNumEdit;
    const bool bLeft = pWatched == pEdit && pEvent->type() == QEvent::FocusOut;
    if (bLeft && !g_count.Contains(pEdit->text().toInt()))
    {
        pEdit->showErrorHint(this, true, tr("Continuously snapshot 2-10 pic."));
    }
    else if (bLeft || (pWatched == pEdit && pEvent->type() == QEvent::FocusIn))
    {
        ClearHint(pEdit);
    }
    return QWidget::eventFilter(pWatched, pEvent);
}

} // namespace LocalConfig
