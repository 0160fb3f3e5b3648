#include "CTvWallConfig.h"
#include "ui_CTvWallConfig.h"

#include "PageHelpers.h"

#include <KvGui/KvAlert.h>
#include <UICommonModule/Pxa.h>

#include <QEvent>
#include <QSignalBlocker>

namespace LocalConfig
{

using LocalConfigLogical::TvWallConfigInfo;

namespace
{

constexpr SRange g_stayTime = {15, 65535}; // seconds

// Has no branch for 15 and for 20 to 99, which can be typed all the same as beginnings of longer numbers; the range
// decides about them.
constexpr char g_szStayTimePattern[] = "1[6-9]|[1-9]\\d\\d|[1-9]\\d\\d\\d|[1-5]\\d\\d\\d\\d|6[0-5][0-5][0-3][0-5]";

constexpr const char* g_arrSplits[] = {"1", "4", "6", "8", "9", "13", "16", "20", "25", "36", "64", "128"};

constexpr SItem g_arrStreams[] = {
    {QT_TRANSLATE_NOOP("LocalConfig::CTvWallConfig", "Main Stream"), 1},
    {QT_TRANSLATE_NOOP("LocalConfig::CTvWallConfig", "Sub Stream 1"), 2},
    {QT_TRANSLATE_NOOP("LocalConfig::CTvWallConfig", "Sub Stream 2"), 3},
    {QT_TRANSLATE_NOOP("LocalConfig::CTvWallConfig", "Local Signal"), 5},
};

enum EBindMode
{
    BindNone,
    BindTour,
    BindTile,
    BindInquiry
};

} // namespace

CTvWallConfig::CTvWallConfig(QWidget* pParent)
    : QWidget(pParent)
    , m_pUi(std::make_unique<Ui::CTvWallConfig>())
{
    PassToolWindow(this);
    m_pUi->setupUi(this);
    InitControls();
}

CTvWallConfig::~CTvWallConfig() = default;

void CTvWallConfig::InitControls()
{
    m_pUi->chkboxChangeStreamType->setToolTip(m_pUi->chkboxChangeStreamType->text());
    Describe(m_pUi->maxRecSizeRgLabel_2, {m_pUi->lineeditStayTime});
    Describe(m_pUi->label_5, {m_pUi->cmbTvWallWndSplitNum});
    Describe(m_pUi->label, {m_pUi->rdBtnTile, m_pUi->rdBtnInquiry});
    AppendColon(tr(":"), {m_pUi->label_2, m_pUi->label_3, m_pUi->streamLabel, m_pUi->label});
    for (const char* pszSplit : g_arrSplits)
    {
        m_pUi->cmbTvWallWndSplitNum->addItem(QString::fromLatin1(pszSplit));
    }
    for (const SItem& item : g_arrStreams)
    {
        m_pUi->cmbDefaultStreamType->addItem(tr(item.pszText), item.nData);
    }
    SetPattern(this, m_pUi->lineeditStayTime, QString::fromLatin1(g_szStayTimePattern));
    m_pUi->lineeditStayTime->installEventFilter(this);
    Pxa::QCommon::AddToolTipByControlWidth(m_pUi->label_5);
    Pxa::QCommon::AddToolTipByControlWidth(m_pUi->chkboxChangeStreamType);
}

void CTvWallConfig::LoadConfig(bool bDefault)
{
    if (!m_pSection)
    {
        return;
    }
    const TvWallConfigInfo record = GetRecord(bDefault);
    SelectText(m_pUi->cmbTvWallWndSplitNum, QString::number(record.nSubStreamSplitThreshold));
    m_pUi->chkboxChangeStreamType->setChecked(record.bDblClickMainStream);
    m_pUi->cmbDefaultStreamType->setCurrentIndex(m_pUi->cmbDefaultStreamType->findData(record.nDefaultStreamType));
    m_pUi->lineeditStayTime->setText(QString::number(record.nStayTime));
    ClearStayTimeError();
    ShowBindMode(record.nBindMode);
}

void CTvWallConfig::ShowBindMode(int nBindMode)
{
    QRadioButton* pButton = nBindMode == BindTile      ? m_pUi->rdBtnTile
                            : nBindMode == BindInquiry ? m_pUi->rdBtnInquiry
                                                       : m_pUi->rdBtnTour;
    const QSignalBlocker blocker(pButton);
    pButton->setChecked(true);
}

int CTvWallConfig::GetBindMode() const
{
    return m_pUi->rdBtnTour->isChecked()      ? BindTour
           : m_pUi->rdBtnTile->isChecked()    ? BindTile
           : m_pUi->rdBtnInquiry->isChecked() ? BindInquiry
                                              : BindNone;
}

int CTvWallConfig::SaveConfig()
{
    if (!m_pSection)
    {
        return -1;
    }
    // Every field has its control, so the section is not read first.
    TvWallConfigInfo record;
    record.nSubStreamSplitThreshold = m_pUi->cmbTvWallWndSplitNum->currentText().toInt();
    record.nBindMode = GetBindMode();
    record.bDblClickMainStream = m_pUi->chkboxChangeStreamType->isChecked();
    record.nDefaultStreamType = m_pUi->cmbDefaultStreamType->currentData().toInt();
    const int nStayTime = m_pUi->lineeditStayTime->text().toInt();
    if (!g_stayTime.Contains(nStayTime))
    {
        m_refusal = PointAt(m_pUi->lineeditStayTime, GetStayTimeMessage());
        m_pUi->lineeditStayTime->setText(QString::number(TvWallConfigInfo().nStayTime));
        return -1;
    }
    record.nStayTime = nStayTime;
    return m_pSection->SetConfig(record);
}

void CTvWallConfig::SetControlsEnabled(bool bEnable)
{
    // The stream type and the stay time stay usable.
    const std::initializer_list<QWidget*> listControls = {m_pUi->cmbTvWallWndSplitNum, m_pUi->rdBtnTour,
                                                          m_pUi->rdBtnTile, m_pUi->rdBtnInquiry,
                                                          m_pUi->chkboxChangeStreamType};
    for (QWidget* pControl : listControls)
    {
        pControl->setEnabled(bEnable);
    }
}

QString CTvWallConfig::GetStayTimeMessage() const
{
    return g_stayTime.Fill(tr("Stay time must be within %1-%2s."));
}

void CTvWallConfig::ClearStayTimeError()
{
    m_pUi->labelError->clear();
    ClearHint(m_pUi->lineeditStayTime);
}

bool CTvWallConfig::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    KVGUI::KvLineEdit* pEdit = m_pUi->lineeditStayTime;
    if (pWatched == pEdit && pEvent->type() == QEvent::FocusIn)
    {
        ClearStayTimeError();
    }
    else if (pWatched == pEdit && pEvent->type() == QEvent::FocusOut && !g_stayTime.Contains(pEdit->text().toInt()))
    {
        m_pUi->labelError->setText(GetStayTimeMessage());
        pEdit->showErrorHint(this, true, QString());
        pEdit->setAccessibleDescription(GetStayTimeMessage());
        KVGUI::KvAlert::Show(m_pUi->labelError);
    }
    return QWidget::eventFilter(pWatched, pEvent);
}

} // namespace LocalConfig
