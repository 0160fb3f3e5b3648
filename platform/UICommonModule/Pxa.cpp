#include "Pxa.h"

#include "CAlarmTypeCombox.h"
#include "CAtomicFile.h"
#include "CErrorCode.h"
#include "CGlobalInfo.h"
#include "CLocalIniFile.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QFontInfo>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOption>
#include <QVariant>

using UICommonMdl::CAlarmTypeCombox;
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
constexpr int g_nTextSize = 13; // pixels; what the sizes in the sheets go with
constexpr char g_szGivenToolTip[] = "toolTipByWidth";

struct SSheet
{
    Qt::LayoutDirection eDirection = Qt::LeftToRight;
    int nTextSize = 0;
    qint64 nSize = -1;
    QDateTime changed;
    QString strText;
};

struct SRole
{
    QPalette::ColorGroup eGroup;
    QPalette::ColorRole eRole;
    const char* pszColor; // its name in the skin
};

constexpr SRole g_arrRoles[] = {
    {QPalette::All, QPalette::Window, "background"},
    {QPalette::All, QPalette::WindowText, "text"},
    {QPalette::All, QPalette::Base, "field"},
    {QPalette::All, QPalette::AlternateBase, "background"},
    {QPalette::All, QPalette::Text, "text"},
    {QPalette::All, QPalette::PlaceholderText, "secondaryText"},
    {QPalette::All, QPalette::Button, "card"},
    {QPalette::All, QPalette::ButtonText, "text"},
    {QPalette::All, QPalette::BrightText, "error"},
    {QPalette::All, QPalette::Highlight, "accent"},
    {QPalette::All, QPalette::HighlightedText, "accentText"},
    {QPalette::All, QPalette::Link, "accent"},
    {QPalette::All, QPalette::LinkVisited, "secondaryText"},
    {QPalette::All, QPalette::ToolTipBase, "notification"},
    {QPalette::All, QPalette::ToolTipText, "notificationText"},
    {QPalette::All, QPalette::Light, "hover"},
    {QPalette::All, QPalette::Midlight, "border"},
    {QPalette::All, QPalette::Mid, "border"},
    {QPalette::All, QPalette::Dark, "outline"},
    {QPalette::All, QPalette::Shadow, "titleBar"},
    {QPalette::Disabled, QPalette::WindowText, "disabledText"},
    {QPalette::Disabled, QPalette::Text, "disabledText"},
    {QPalette::Disabled, QPalette::ButtonText, "disabledText"},
    {QPalette::Disabled, QPalette::Base, "disabledField"},
};

QString g_strSkin;

QString SkinRoot()
{
    return QStringLiteral("%1/skin/%2").arg(CGlobalInfo::GetResourcePath(), GetSkin());
}

/// Of the application's font, in pixels.
int GetTextSize()
{
    const QFont font = QApplication::font();
    return font.pixelSize() > 0 ? font.pixelSize() : QFontInfo(font).pixelSize();
}

void ScaleFontSizes(QString& strSheet, int nTextSize)
{
    static const QRegularExpression fontSize(QStringLiteral("font-size: (\\d+)px"));
    QRegularExpressionMatchIterator it = fontSize.globalMatch(strSheet);
    int nGrown = 0;
    while (nTextSize > g_nTextSize && it.hasNext())
    {
        const QRegularExpressionMatch match = it.next();
        const QString strSize = QString::number(qRound(match.capturedRef(1).toDouble() * nTextSize / g_nTextSize));
        strSheet.replace(match.capturedStart(1) + nGrown, match.capturedLength(1), strSize);
        nGrown += strSize.size() - match.capturedLength(1);
    }
}

/// Exchanges left and right in a sheet, but for the places of subcontrols and texts, which Qt mirrors itself.
QString Mirrored(QString strSheet)
{
    static const QRegularExpression side(QStringLiteral("\\b(border|margin|padding)-(left|right)\\b"));
    static const QRegularExpression sides(
        QStringLiteral("\\b((?:margin|padding|border-width) *: *[^ ;]+ +)([^ ;]+)( +[^ ;]+ +)([^ ;]+)(?= *;)"));
    static const QRegularExpression gradient(
        QStringLiteral("(qlineargradient\\(\\s*x1\\s*:\\s*)([\\d.]+)(.*?x2\\s*:\\s*)([\\d.]+)"),
        QRegularExpression::DotMatchesEverythingOption);
    strSheet.replace(sides, QStringLiteral("\\1\\4\\3\\2")).replace(gradient, QStringLiteral("\\1\\4\\3\\2"));
    QRegularExpressionMatchIterator it = side.globalMatch(strSheet);
    QString strMirrored;
    int nCopied = 0;
    while (it.hasNext())
    {
        const QRegularExpressionMatch match = it.next();
        const bool bLeft = match.capturedRef(2) == QLatin1String("left");
        strMirrored += strSheet.midRef(nCopied, match.capturedStart(2) - nCopied);
        strMirrored += bLeft ? QLatin1String("right") : QLatin1String("left");
        nCopied = match.capturedEnd(2);
    }
    return strMirrored + strSheet.midRef(nCopied);
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
    constexpr int nPadding = 1; // pixels that a style keeps on either side of the text
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    option.frame = combo.hasFrame();
    const QRect field =
        combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
    return field.width() - 2 * nPadding;
}

struct SControlText
{
    QString strText;
    bool bTooWide = false;
};

/// What a control shows; nothing for a control of another kind.
SControlText GetText(const QWidget& control)
{
    if (const auto* pButton = qobject_cast<const QAbstractButton*>(&control))
    {
        return {WithoutMnemonics(pButton->text()), pButton->sizeHint().width() > pButton->width()};
    }
    const auto text = [&control](const QString& strText, int nRoom) {
        return SControlText{strText, control.fontMetrics().horizontalAdvance(strText) > nRoom};
    };
    if (const auto* pLabel = qobject_cast<const QLabel*>(&control))
    {
        if (pLabel->wordWrap())
        {
            return {}; // it goes on in the next line
        }
        return text(pLabel->buddy() ? WithoutMnemonics(pLabel->text()) : pLabel->text(),
                    pLabel->contentsRect().width());
    }
    if (const auto* pEdit = qobject_cast<const QLineEdit*>(&control))
    {
        // A tip would tell a password.
        return text(pEdit->echoMode() == QLineEdit::Normal ? pEdit->text() : QString(), GetTextRoom(*pEdit));
    }
    if (const auto* pCombo = qobject_cast<const CAlarmTypeCombox*>(&control))
    {
        return text(pCombo->GetShownText(), GetTextRoom(*pCombo));
    }
    if (const auto* pCombo = qobject_cast<const QComboBox*>(&control))
    {
        return text(pCombo->currentText(), GetTextRoom(*pCombo));
    }
    if (const auto* pBox = qobject_cast<const QGroupBox*>(&control))
    {
        return text(WithoutMnemonics(pBox->title()), pBox->contentsRect().width());
    }
    return {};
}

void GiveToolTip(QWidget& control, const QString& strText)
{
    if (control.toolTip() != strText)
    {
        control.setToolTip(strText);
        control.setProperty(g_szGivenToolTip, strText);
    }
}

/// Only a tip that was given here is taken away again, whatever the text has become since; an owner's stays.
void TakeToolTip(QWidget& control)
{
    const QString strGiven = control.property(g_szGivenToolTip).toString();
    if (strGiven.isEmpty())
    {
        return;
    }
    if (control.toolTip() == strGiven)
    {
        control.setToolTip(QString());
    }
    control.setProperty(g_szGivenToolTip, QVariant());
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
    const Qt::LayoutDirection eDirection = QGuiApplication::layoutDirection();
    const int nTextSize = GetTextSize();
    if (!info.isFile() || info.size() != sheet.nSize || info.lastModified() != sheet.changed ||
        nTextSize != sheet.nTextSize || eDirection != sheet.eDirection)
    {
        QByteArray content;
        if (CAtomicFile::Read(strPath, content) != CErrorCode::Success)
        {
            sheet = SSheet();
            return false;
        }
        sheet.nSize = info.size();
        sheet.changed = info.lastModified();
        sheet.eDirection = eDirection;
        sheet.nTextSize = nTextSize;
        sheet.strText = QString::fromUtf8(content);
        ScaleFontSizes(sheet.strText, nTextSize);
        if (eDirection == Qt::RightToLeft)
        {
            sheet.strText = Mirrored(sheet.strText);
        }
    }
    strOut = sheet.strText;
    return true;
}

QPalette GetPalette()
{
    QPalette palette;
    QByteArray content;
    if (CAtomicFile::Read(GetSkinPath(QStringLiteral("public"), QStringLiteral("palette.json")), content) !=
        CErrorCode::Success)
    {
        return palette;
    }
    const QJsonObject colors = QJsonDocument::fromJson(content).object();
    for (const SRole& role : g_arrRoles)
    {
        const QColor color(colors.value(QLatin1String(role.pszColor)).toString());
        if (color.isValid())
        {
            palette.setColor(role.eGroup, role.eRole, color);
        }
    }
    return palette;
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
    const SControlText text = GetText(*pControl);
    if (text.bTooWide && !text.strText.isEmpty())
    {
        GiveToolTip(*pControl, text.strText);
    }
    else
    {
        TakeToolTip(*pControl);
    }
}

} // namespace Pxa
