#pragma once

#include "Documents.h"
#include "Notifications.h"
#include "WorkFolder.h"

#include <client/MainWindow.h>
#include <client/session/UserManager.h>
#include <client/store/ConfigService.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>

/// Opens the settings dialog from the window and lets \a act loose on it.
inline void InDialog(LocalConfigClient::MainWindow& window, const std::function<void(QDialog&)>& act)
{
    bool bActed = false;
    QTimer::singleShot(100, &window, [&] {
        auto* pDialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (pDialog)
        {
            bActed = true;
            act(*pDialog);
            pDialog->done(0); // whatever came of it, the test goes on
        }
    });
    QTest::mouseClick(window.findChild<QAbstractButton*>("btnSettings"), Qt::LeftButton);
    QVERIFY(bActed);
}

template <class Control>
Control* Find(QDialog& dialog, const char* pszName)
{
    return dialog.findChild<Control*>(pszName);
}

inline void Click(QDialog& dialog, const char* pszName)
{
    QTest::mouseClick(Find<QAbstractButton>(dialog, pszName), Qt::LeftButton);
}

/// The base of tests of the client's window, with a data folder of its own as the working folder.
class CClientTest : public QObject
{
protected:
    void Reset() { m_pFolder.reset(new CWorkFolder); }
    /// Pictures and recordings, without what is being written under another name.
    QStringList Files(const QString& strFolder) const
    {
        return QDir(m_pFolder->filePath(strFolder)).entryList({"*.jpg", "*.bmp", "*.mjpeg"}, QDir::Files, QDir::Name);
    }
    /// The settings that the next client finds.
    static void Store(const LocalConfigClient::Settings& settings)
    {
        QFile file("settings.json");
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(Document(settings));
    }

    QScopedPointer<CWorkFolder> m_pFolder;
};

/// A client with a window "window" that is shown.
#define SHOWN_CLIENT                                                                                                   \
    LocalConfigClient::ConfigService service(m_pFolder->path(), LocalConfigClient::SettingsFile::ReadWrite);           \
    LocalConfigClient::UserManager users({}, nullptr);                                                                 \
    LocalConfigClient::MainWindow window(service, users);                                                              \
    window.show()

/// Likewise, and the window is active.
#define CLIENT                                                                                                         \
    SHOWN_CLIENT;                                                                                                      \
    QApplication::setActiveWindow(&window);                                                                            \
    QVERIFY(QTest::qWaitForWindowActive(&window))
