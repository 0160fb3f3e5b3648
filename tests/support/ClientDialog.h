#pragma once

#include "Skin.h"
#include "WorkFolder.h"

#include <client/ClientStyle.h>
#include <client/ClientTexts.h>
#include <client/session/UserManager.h>
#include <client/store/ConfigService.h>

#include <LocalConfig/CLocalConfig.h>
#include <UICommonModule/CAlarmType.h>
#include <UICommonModule/CGlobalInfo.h>

#include <QApplication>
#include <QDesktopWidget>
#include <QEventLoop>
#include <QScrollArea>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

/// Speaks a language and dresses the application as the client does.
inline void Speak(const QString& strLanguage, const QString& strSkin = QStringLiteral("DustyBlue"), int nTextSize = 13)
{
    qDeleteAll(qApp->findChildren<QTranslator*>());
    UICommonMdl::CGlobalInfo::SetClientStrLanguage(strLanguage);
    LocalConfigClient::ClientTexts::Translate(strLanguage);
    UICommonMdl::CAlarmType::Instance()->Load();
    QApplication::setStyle(new LocalConfigClient::ClientStyle);
    UseSkin(strSkin);
    QFont font = QApplication::font();
    font.setPixelSize(nTextSize);
    QApplication::setFont(LocalConfigClient::ClientTexts::MakeFont(font));
}

/// Lays out and dresses anew from now on, whatever the language.
inline void Direct(Qt::LayoutDirection eDirection)
{
    QGuiApplication::setLayoutDirection(eDirection);
    UseSkin(Pxa::GetSkin());
}

/// The settings dialog over the reference client's store.
struct SClientDialog
{
    SClientDialog()
        : service(folder.path(), LocalConfigClient::SettingsFile::ReadWrite)
    {
        QApplication::desktop()->setGeometry(0, 0, 1920, 1080);
        service.SeedAlarms(*UICommonMdl::CAlarmType::Instance());
        dialog.Init(&service, &users);
    }

    ~SClientDialog()
    {
        dialog.hide();
        dialog.UnInitUI();
    }

    void Open()
    {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QApplication::setActiveWindow(&dialog);
        QEventLoop loop;
        QTimer::singleShot(80, &loop, &QEventLoop::quit); // past the last computation of the layout
        loop.exec();
    }

    template <class Control = QWidget>
    Control* Find(const char* pszName)
    {
        auto* pControl = dialog.findChild<Control*>(QString::fromLatin1(pszName));
        if (pControl)
        {
            dialog.findChild<QScrollArea*>("scrollArea")->ensureWidgetVisible(pControl);
        }
        return pControl;
    }

    CWorkFolder folder;
    LocalConfigClient::ConfigService service;
    LocalConfigClient::UserManager users{{}, nullptr};
    LocalConfig::CLocalConfig dialog{nullptr};
};
