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
        strText = pEdit->text();
        bTooWide = pEdit->fontMetrics().horizontalAdvance(strText) > pEdit->contentsRect().width();
    }
    else if (const auto* pCombo = qobject_cast<const QComboBox*>(pControl))
    {
        strText = pCombo->currentText();
        bTooWide = pCombo->fontMetrics().horizontalAdvance(strText) > pCombo->contentsRect().width();
    }
    else if (const auto* pBox = qobject_cast<const QGroupBox*>(pControl))
    {
        strText = WithoutMnemonics(pBox->title());
        bTooWide = pBox->fontMetrics().horizontalAdvance(strText) > pBox->contentsRect().width();
    }

    if (bTooWide)
    {
        pControl->setToolTip(strText);
    }
    else if (pControl->toolTip() == strText)
    {
        pControl->setToolTip(QString());
    }
}

} // namespace Pxa
