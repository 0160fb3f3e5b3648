#include "CPathEdit.h"

#include "CFileDialog.h"

#include <KvGui/KvModal.h>

#include <QAbstractItemView>
#include <QCompleter>
#include <QDir>
#include <QEvent>
#include <QFileSystemModel>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QToolButton>

namespace UICommonMdl
{

namespace
{

constexpr int g_nButtonSize = 24;
constexpr int g_nButtonMargin = 4;
constexpr int g_nIconSize = 16; // of the folders that complete a path

} // namespace

CPathEdit::CPathEdit(QWidget* pParent)
    : KvLineEdit(pParent)
    , m_pBrowseButton(new QToolButton(this))
{
    m_pBrowseButton->setObjectName(QStringLiteral("btnBrowse"));
    m_pBrowseButton->setAccessibleName(tr("Browse"));
    m_pBrowseButton->setToolTip(tr("Browse"));
    m_pBrowseButton->setCursor(Qt::ArrowCursor);
    m_pBrowseButton->setFocusPolicy(Qt::TabFocus);
    KeepTextClearOfButton();
    connect(m_pBrowseButton, &QToolButton::clicked, this, &CPathEdit::OnBrowse);
    connect(this, &CPathEdit::textChanged, this, &CPathEdit::CheckLength);
}

CPathEdit::BrowseMode CPathEdit::GetBrowseMode() const
{
    return m_eBrowseMode;
}

void CPathEdit::SetBrowseMode(BrowseMode eMode)
{
    m_eBrowseMode = eMode;
    if (eMode == BrowseByOwner)
    {
        setCompleter(nullptr);
        m_pFolders = nullptr;
    }
}

void CPathEdit::SetTipParentWidget(QWidget* pTipParent)
{
    m_pTipParent = pTipParent;
}

void CPathEdit::SetMaxInputParam(int nMaxBytes, const QString& strMessage)
{
    m_nMaxBytes = nMaxBytes;
    m_strMessage = strMessage;
    CheckLength();
}

void CPathEdit::CheckLength()
{
    const bool bTooLong = m_nMaxBytes > 0 && text().toUtf8().size() > m_nMaxBytes;
    if (bTooLong)
    {
        showErrorHint(m_pTipParent ? m_pTipParent.data() : window(), true, m_strMessage);
    }
    else if (m_bTooLong)
    {
        showErrorHint(nullptr, true, QString());
    }
    m_bTooLong = bTooLong;
}

void CPathEdit::OnBrowse()
{
    if (m_eBrowseMode == BrowseFolder)
    {
        KVGUI::KvModal<CFileDialog> dialog(this, tr("Select a folder"), QDir::fromNativeSeparators(text()));
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        if (!dialog.Exec())
        {
            return;
        }
        const QString strFolder = dialog->selectedFiles().value(0);
        if (dialog->result() == QDialog::Accepted && !strFolder.isEmpty())
        {
            setText(QDir::toNativeSeparators(strFolder));
        }
    }
    emit sgnPathBtnClicked();
}

void CPathEdit::keyPressEvent(QKeyEvent* pEvent)
{
    if (m_eBrowseMode == BrowseFolder && !completer())
    {
        AddCompleter(); // the model starts a thread of its own, which a page that is only looked at does not need
    }
    KvLineEdit::keyPressEvent(pEvent);
    if (m_pFolders)
    {
        // Reads the folder that is typed in, in the background; the completer hears of it.
        m_pFolders->setRootPath(QFileInfo(QDir::fromNativeSeparators(text())).path());
    }
}

void CPathEdit::AddCompleter()
{
    auto* pCompleter = new QCompleter(this);
    m_pFolders = new QFileSystemModel(pCompleter);
    m_pFolders->setFilter(QDir::AllDirs | QDir::Drives | QDir::NoDotAndDotDot);
    pCompleter->setModel(m_pFolders);
    QAbstractItemView* pList = pCompleter->popup();
    pList->setObjectName(QStringLiteral("pathList"));
    pList->setIconSize({g_nIconSize, g_nIconSize});
    pList->setItemDelegate(new QStyledItemDelegate(pList)); // the completer's own knows no style sheet
    setCompleter(pCompleter);
}

void CPathEdit::changeEvent(QEvent* pEvent)
{
    KvLineEdit::changeEvent(pEvent);
    if (pEvent->type() == QEvent::LayoutDirectionChange)
    {
        PlaceButton();
    }
}

void CPathEdit::resizeEvent(QResizeEvent* pEvent)
{
    KvLineEdit::resizeEvent(pEvent);
    PlaceButton();
}

void CPathEdit::showEvent(QShowEvent* pEvent)
{
    KvLineEdit::showEvent(pEvent);
    // A form orders and names its fields after they are made, and leaves the button behind.
    setTabOrder(this, m_pBrowseButton);
    m_pBrowseButton->setAccessibleName(accessibleName().isEmpty() ? tr("Browse")
                                                                  : tr("Browse: %1").arg(accessibleName()));
}

void CPathEdit::KeepTextClearOfButton()
{
    AddTrailingMargin(g_nButtonSize + g_nButtonMargin);
}

void CPathEdit::PlaceButton()
{
    const QRect button(width() - g_nButtonSize - g_nButtonMargin, (height() - g_nButtonSize) / 2, g_nButtonSize,
                       g_nButtonSize);
    m_pBrowseButton->setGeometry(QStyle::visualRect(layoutDirection(), rect(), button));
}

} // namespace UICommonMdl
