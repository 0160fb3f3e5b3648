#include "Pxa.h"

#include "CAtomicFile.h"
#include "CErrorCode.h"
#include "CGlobalInfo.h"
#include "CLocalIniFile.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOption>
#include <QVariant>

using UICommonMdl::CAtomicFile;
using UICommonMdl::CErrorCode;
using UICommonMdl::CGlobalInfo;
using UICommonMdl::CLocalIniFile;

namespace Pxa
{

namespace
{

const QLatin1String g_strDark("DustyBlue");
const QLatin1String g_strWhite("White");
constexpr char g_szGivenToolTip[] = "toolTipByWidth";

struct SSheet
{
    qint64 nSize = -1;
    QDateTime changed;
    QString strText;
};

QString g_strSkin;

QString SkinRoot()
{
    return QStringLiteral("%1/skin/%2").arg(CGlobalInfo::GetResourcePath(), GetSkin());
}

QString WithoutMnemonics(QString strText)
{
    const QString strBoth = QStringLiteral("&&");
    const QChar chMark(0xFFFF); // no character
    return strText.replace(strBoth, chMark).remove(QLatin1Char('&')).replace(chMark, QLatin1Char('&'));
}

/// The width that a line edit leaves to its text.
int GetTextRoom(const QLineEdit& edit)
{
    constexpr int nPadding = 2; // pixels that a line edit keeps on either side of its text
    QStyleOptionFrame option;
    option.initFrom(&edit);
    option.lineWidth = edit.hasFrame() ? edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit) : 0;
    const QRect contents = edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
    const QMargins margins = edit.textMargins();
    return contents.width() - margins.left() - margins.right() - 2 * nPadding;
}

/// The width that a combo box leaves to its text.
int GetTextRoom(const QComboBox& combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    option.frame = combo.hasFrame();
    return combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo).width();
}

} // namespace

QString GetSkinPath(const QString& strFolder, const QString& strFile)
{
    return QStringLiteral("%1/%2/%3").arg(SkinRoot(), strFolder, strFile);
}

bool loadStyleSheet(const QString& strPath, QString& strOut)
{
    static QHash<QString, SSheet> hashSheets;
    const QFileInfo info(strPath);
    SSheet& sheet = hashSheets[info.absoluteFilePath()];
    if (!info.isFile() || info.size() != sheet.nSize || info.lastModified() != sheet.changed)
    {
        QByteArray content;
        if (CAtomicFile::Read(strPath, content) != CErrorCode::Success)
        {
            sheet = SSheet();
            return false;
        }
        sheet.nSize = info.size();
        sheet.changed = info.lastModified();
        sheet.strText = QString::fromUtf8(content);
    }
    strOut = sheet.strText;
    return true;
}

QString GetSkin()
{
    if (g_strSkin.isEmpty())
    {
        SetSkin(CLocalIniFile::ReadValue(QStringLiteral("Skin"), QStringLiteral("version"), g_strDark,
                                         QStringLiteral("Localcfg.ini")));
    }
    return g_strSkin;
}

void SetSkin(const QString& strSkin)
{
    g_strSkin = strSkin == g_strWhite ? g_strWhite : g_strDark;
    QDir::setSearchPaths(QStringLiteral("skin"), {SkinRoot()});
}

void QCommon::AddToolTipByControlWidth(QWidget* pControl)
{
    if (!pControl)
    {
        return;
    }
    QString strText;
    bool bTooWide = false;
    if (const auto* pButton = qobject_cast<const QAbstractButton*>(pControl))
    {
        strText = WithoutMnemonics(pButton->text());
        bTooWide = pButton->sizeHint().width() > pButton->width();
    }
    else if (const auto* pLabel = qobject_cast<const QLabel*>(pControl))
    {
        strText = pLabel->buddy() ? WithoutMnemonics(pLabel->text()) : pLabel->text();
        bTooWide = pLabel->fontMetrics().horizontalAdvance(strText) > pLabel->contentsRect().width();
    }
    else if (const auto* pEdit = qobject_cast<const QLineEdit*>(pControl))
    {
        strText = pEdit->echoMode() == QLineEdit::Normal ? pEdit->text() : QString(); // a tip would tell a password
        bTooWide = pEdit->fontMetrics().horizontalAdvance(strText) > GetTextRoom(*pEdit);
    }
    else if (const auto* pCombo = qobject_cast<const QComboBox*>(pControl))
    {
        strText = pCombo->currentText();
        bTooWide = pCombo->fontMetrics().horizontalAdvance(strText) > GetTextRoom(*pCombo);
    }
    else if (const auto* pBox = qobject_cast<const QGroupBox*>(pControl))
    {
        strText = WithoutMnemonics(pBox->title());
        bTooWide = pBox->fontMetrics().horizontalAdvance(strText) > pBox->contentsRect().width();
    }

    // Only a tip that was given here is taken away again, whatever the text has become since; an owner's stays.
    const QString strGiven = pControl->property(g_szGivenToolTip).toString();
    if (bTooWide && !strText.isEmpty())
    {
        if (pControl->toolTip() != strText)
        {
            pControl->setToolTip(strText);
            pControl->setProperty(g_szGivenToolTip, strText);
        }
    }
    else if (!strGiven.isEmpty())
    {
        if (pControl->toolTip() == strGiven)
        {
            pControl->setToolTip(QString());
        }
        pControl->setProperty(g_szGivenToolTip, QVariant());
    }
}

} // namespace Pxa
