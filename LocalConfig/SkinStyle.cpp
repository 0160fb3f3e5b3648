#include "SkinStyle.h"

#include <UICommonModule/Pxa.h>

#include <QApplication>
#include <QFontInfo>
#include <QRegularExpression>
#include <QWidget>

namespace LocalConfig
{

namespace
{

constexpr int g_nTextSize = 13; // pixels; what the skins' other sizes go with

/// The sizes of a sheet grow with the client's text.
void ScaleFontSizes(QString& strStyleSheet)
{
    const QFont font = QApplication::font();
    const int nTextSize = font.pixelSize() > 0 ? font.pixelSize() : QFontInfo(font).pixelSize();
    if (nTextSize <= g_nTextSize)
    {
        return;
    }
    static const QRegularExpression fontSize(QStringLiteral("font-size: (\\d+)px"));
    QRegularExpressionMatchIterator it = fontSize.globalMatch(strStyleSheet);
    int nGrown = 0;
    while (it.hasNext())
    {
        const QRegularExpressionMatch match = it.next();
        const QString strSize = QString::number(qRound(match.capturedRef(1).toDouble() * nTextSize / g_nTextSize));
        strStyleSheet.replace(match.capturedStart(1) + nGrown, match.capturedLength(1), strSize);
        nGrown += strSize.size() - match.capturedLength(1);
    }
}

} // namespace

void ApplySkinStyle(QWidget* pWidget)
{
    const QString strPath =
        Pxa::GetSkinPath(QStringLiteral("LocalConfig"), pWidget->objectName() + QStringLiteral(".qss"));
    QString strStyleSheet;
    if (Pxa::loadStyleSheet(strPath, strStyleSheet))
    {
        ScaleFontSizes(strStyleSheet);
        pWidget->setStyleSheet(strStyleSheet);
    }
}

} // namespace LocalConfig
