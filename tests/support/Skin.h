#pragma once

#include <UICommonModule/Pxa.h>

#include <QApplication>
#include <QtTest>

/// Dresses the application as the client does.
inline void UseSkin(const QString& strSkin)
{
    Pxa::SetSkin(strSkin);
    QString strSheet;
    QVERIFY(Pxa::loadStyleSheet(Pxa::GetSkinPath("public", "KvGui.qss"), strSheet));
    QApplication::setPalette(Pxa::GetPalette());
    qApp->setStyleSheet(strSheet);
    QFont font = QApplication::font();
    font.setPixelSize(13);
    QApplication::setFont(font);
}
