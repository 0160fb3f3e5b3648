#pragma once

#include <QColor>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <algorithm>
#include <cmath>

// For tests that are compiled with PALETTE_DIR, the folder of the palettes.

inline const char* const g_arrSkins[] = {"DustyBlue", "White"};

inline QByteArray Read(const QString& strPath)
{
    QFile file(strPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A colour of a skin, by its name in the palette.
inline QColor PaletteColor(const QString& strSkin, const QString& strToken)
{
    const QByteArray json = Read(QStringLiteral(PALETTE_DIR "/%1/palette.json").arg(strSkin));
    return QColor(QJsonDocument::fromJson(json).object().value(strToken).toString());
}

inline double Luminance(const QColor& color)
{
    const auto linear = [](double d) { return d <= 0.03928 ? d / 12.92 : std::pow((d + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// From 1 to 21.
inline double Contrast(const QColor& one, const QColor& other)
{
    const double dLight = std::max(Luminance(one), Luminance(other));
    const double dDark = std::min(Luminance(one), Luminance(other));
    return (dLight + 0.05) / (dDark + 0.05);
}

/// One row for each skin.
inline void SkinRows()
{
    QTest::addColumn<QString>("strSkin");
    for (const char* pszSkin : g_arrSkins)
    {
        QTest::newRow(pszSkin) << pszSkin;
    }
}
