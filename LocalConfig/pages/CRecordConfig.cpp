#include "CRecordConfig.h"
#include "ui_CRecordConfig.h"

#include "PageHelpers.h"

#include <QEvent>

namespace LocalConfig
{

using LocalConfigLogical::RecordConfigInfo;

namespace
{

constexpr char g_szFolder[] = "Record";
constexpr int g_nMaxPathBytes = 168;      // in UTF-8
constexpr SRange g_fileSize = {10, 1500}; // megabytes

// The empty branch lets the field be left empty; saving catches that, as it does what lies below the range.
constexpr char g_szFileSizePattern[] = "(1500|[1][0-4]\\d{0,2}||[1-9]\\d{0,2}|[1-9]\\d{0,1})";

constexpr const char* g_arrNameFormats[] = {
    QT_TRANSLATE_NOOP("LocalConfig::CRecordConfig", "Time_ChannelNo"),
    QT_TRANSLATE_NOOP("LocalConfig::CRecordConfig", "Time_ChannelName"),
    QT_TRANSLATE_NOOP("LocalConfig::CRecordConfig", "ChannelNo_Time"),
    QT_TRANSLATE_NOOP("LocalConfig::CRecordConfig", "ChannelName_Time"),
};

} // namespace

CRecordConfig::CRecordConfig(QWidget* pParent)
    : QWidget(pParent)
    , m_pUi(std::make_unique<Ui::CRecordConfig>())
{
    PassToolWindow(this);
    m_pUi->setupUi(this);
    InitControls();
    m_pUi->maxRecSizeEdit->installEventFilter(this);
}

CRecordConfig::~CRecordConfig() = default;

void CRecordConfig::InitControls()
{
    AppendColon(tr(":"), {m_pUi->recPathLabel, m_pUi->label, m_pUi->maxRecSizeLabel});
    m_pUi->recPathEdit->SetTipParentWidget(this);
    m_pUi->recPathEdit->SetMaxInputParam(g_nMaxPathBytes, tr("The Path length of Record should not longer than 168"));
    m_pUi->maxRecSizeRgLabel->setText(g_fileSize.Fill(tr("(%1-%2M)")));
    Describe(m_pUi->maxRecSizeRgLabel, {m_pUi->maxRecSizeEdit});
    SetPattern(this, m_pUi->maxRecSizeEdit, QString::fromLatin1(g_szFileSizePattern));
    for (const char* pszNameFormat : g_arrNameFormats)
    {
        m_listNameFormats += tr(pszNameFormat);
    }
    m_pUi->nameFormatCmbBox->insertItems(0, m_listNameFormats);
}

void CRecordConfig::LoadConfig(bool bDefault)
{
    if (!m_pSection)
    {
        return;
    }
    const RecordConfigInfo record = GetRecord(bDefault);
    m_pUi->maxRecSizeEdit->setText(QString::number(record.maxFileSize));
    m_pUi->m_maxRecSizeLabel->clear();
    ClearHint(m_pUi->maxRecSizeEdit);
    // The default folder is only shown here; unlike a snapshot's it is stored when the user saves.
    ShowFolder(m_pUi->recPathEdit, record.recordPath, GetDefaultFolder(g_szFolder));
    m_pUi->nameFormatCmbBox->setCurrentIndex(record.nameFormat);
}

int CRecordConfig::SaveConfig()
{
    if (!m_pSection)
    {
        return -1;
    }
    RecordConfigInfo record = GetRecord();
    record.recordPath = m_pUi->recPathEdit->text().toStdString();
    if (record.recordPath.size() > g_nMaxPathBytes)
    {
        m_refusal = PointAt(m_pUi->recPathEdit, QString());
        return -1;
    }
    const int nFileSize = m_pUi->maxRecSizeEdit->text().toInt();
    if (!g_fileSize.Contains(nFileSize))
    {
        m_refusal = PointAtKept(m_pUi->maxRecSizeEdit);
        return -2;
    }
    record.maxFileSize = nFileSize;
    record.nameFormat = m_pUi->nameFormatCmbBox->currentIndex();
    return m_pSection->SetConfig(record);
}

void CRecordConfig::SetControlsEnabled(bool bEnable)
{
    // nameFormatCmbBox stays usable.
    m_pUi->recPathEdit->setEnabled(bEnable);
    m_pUi->maxRecSizeEdit->setEnabled(bEnable);
}

bool CRecordConfig::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    KVGUI::KvLineEdit* pEdit = m_pUi->maxRecSizeEdit;
    const bool bLeft = pWatched == pEdit && pEvent->type() == QEvent::FocusOut;
    if (bLeft && !g_fileSize.Contains(pEdit->text().toInt()))
    {
        pEdit->showErrorHint(this, true, g_fileSize.Fill(tr("Max size of a file must be within %1-%2.")));
    }
    else if (bLeft || (pWatched == pEdit && pEvent->type() == QEvent::FocusIn))
    {
        m_pUi->m_maxRecSizeLabel->clear();
        ClearHint(pEdit);
    }
    return QWidget::eventFilter(pWatched, pEvent);
}

} // namespace LocalConfig
