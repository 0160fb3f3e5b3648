#include "ScreenScale.h"

#include <QScreen>
#include <QStringList>

namespace LocalConfigClient
{

namespace
{

constexpr qreal g_arrSharpFactors[] = {2, 1.5, 1.25};
constexpr int g_nDialogHeight = 680; // of the settings dialog on a low screen

// Qt takes no notice of a screen's factor of 1, so it gets the double of each, and this one for all.
constexpr char g_szCommonFactor[] = "0.5";
constexpr qreal g_fUncommon = 2;

/// What Qt reads the factors from when an application starts, by screen; empty when all are as they should be.
QString GetBetterFactors()
{
    QStringList listFactors;
    bool bBetter = false;
    const QList<QScreen*> listScreens = QGuiApplication::screens();
    for (const QScreen* pScreen : listScreens)
    {
        const qreal fPresent = pScreen->devicePixelRatio();
        const qreal fChosen = ScreenScale::Choose(fPresent, qRound(pScreen->availableGeometry().height() * fPresent));
        bBetter = bBetter || !qFuzzyCompare(fPresent, fChosen);
        listFactors += QString::number(fChosen * g_fUncommon);
    }
    return bBetter ? listFactors.join(QLatin1Char(';')) : QString();
}

} // namespace

qreal ScreenScale::Choose(qreal fWanted, int nHeight)
{
    for (const qreal fFactor : g_arrSharpFactors)
    {
        if (fFactor <= fWanted && nHeight / fFactor >= g_nDialogHeight)
        {
            return fFactor;
        }
    }
    return 1;
}

std::unique_ptr<QApplication> ScreenScale::MakeApplication(int& nArguments, char** ppszArguments)
{
    // Else Qt makes 2 of 1.5.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    auto pApplication = std::make_unique<QApplication>(nArguments, ppszArguments);
    const QString strFactors = GetBetterFactors();
    if (!strFactors.isEmpty())
    {
        // Only an application tells the screens, and only a new one takes other factors.
        qputenv("QT_SCALE_FACTOR", g_szCommonFactor); // what it was before, the chosen ones count already
        qputenv("QT_SCREEN_SCALE_FACTORS", strFactors.toLatin1());
        pApplication.reset();
        pApplication = std::make_unique<QApplication>(nArguments, ppszArguments);
    }
    return pApplication;
}

} // namespace LocalConfigClient
