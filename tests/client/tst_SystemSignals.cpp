// POSIX only: on Windows it is the console that tells a client to end.

#include "support/ClientWindow.h"

#include <client/Client.h>
#include <client/SystemSignals.h>

#include <KvGui/KvCustomDialog.h>

#include <QFileDialog>
#include <QSignalSpy>

#include <csignal>

using namespace LocalConfigClient;

namespace
{

using Handler = void (*)(int);

Handler GetHandler(int nSignal)
{
    struct sigaction action = {};
    ::sigaction(nSignal, nullptr, &action);
    return action.sa_handler;
}

/// What the session manager does to an application when the session ends.
void EndSession()
{
    const int nSignal = QGuiApplication::staticMetaObject.indexOfMethod("commitDataRequest(QSessionManager&)") -
                        QGuiApplication::staticMetaObject.methodOffset();
    void* arrArguments[] = {nullptr, nullptr}; // whoever wants the manager itself has not been looked for
    QMetaObject::activate(qApp, &QGuiApplication::staticMetaObject, nSignal, arrArguments);
}

} // namespace

class tst_SystemSignals : public CClientTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void ASignalIsPassedOn_data() { Signals(); }
    void ASignalIsPassedOn();
    void ASecondSignalDoesWhatItDoesByDefault_data() { Signals(); }
    void ASecondSignalDoesWhatItDoesByDefault();
    void WhatIsIgnoredStaysIgnored();
    void TheHandlerGoesWithTheObject();
    void TheEndOfTheSessionIsPassedOn();
    void TheClientEndsOverItsDialogs_data();
    void TheClientEndsOverItsDialogs();

private:
    static void Signals()
    {
        QTest::addColumn<int>("nSignal");
        QTest::newRow("terminate") << SIGTERM;
        QTest::newRow("interrupt") << SIGINT;
        QTest::newRow("hang up") << SIGHUP;
    }
};

void tst_SystemSignals::ASignalIsPassedOn()
{
    QFETCH(int, nSignal);
    const SystemSignals systemSignals;
    QSignalSpy spy(&systemSignals, &SystemSignals::SignalEnd);
    ::raise(nSignal);
    QCOMPARE(spy.count(), 0); // a handler is no place for anything
    QTRY_COMPARE(spy.count(), 1);
    QTest::qWait(20);
    QCOMPARE(spy.count(), 1);
}

void tst_SystemSignals::ASecondSignalDoesWhatItDoesByDefault()
{
    QFETCH(int, nSignal);
    const SystemSignals systemSignals;
    QVERIFY(GetHandler(nSignal) != SIG_DFL);
    ::raise(nSignal);
    QVERIFY(GetHandler(nSignal) == SIG_DFL);
}

void tst_SystemSignals::WhatIsIgnoredStaysIgnored()
{
    const Handler before = std::signal(SIGHUP, SIG_IGN); // as nohup does
    {
        const SystemSignals systemSignals;
        QSignalSpy spy(&systemSignals, &SystemSignals::SignalEnd);
        ::raise(SIGHUP);
        QTest::qWait(20);
        QCOMPARE(spy.count(), 0);
    }
    QVERIFY(std::signal(SIGHUP, before) == SIG_IGN);
}

void tst_SystemSignals::TheHandlerGoesWithTheObject()
{
    const Handler before = GetHandler(SIGTERM);
    {
        const SystemSignals systemSignals;
        QVERIFY(GetHandler(SIGTERM) != before);
    }
    QVERIFY(GetHandler(SIGTERM) == before);
}

void tst_SystemSignals::TheEndOfTheSessionIsPassedOn()
{
    const SystemSignals systemSignals;
    QSignalSpy spy(&systemSignals, &SystemSignals::SignalEnd);
    EndSession();
    QCOMPARE(spy.count(), 1);
}

void tst_SystemSignals::TheClientEndsOverItsDialogs_data()
{
    QTest::addColumn<QByteArray>("opener"); // a control of the settings dialog
    QTest::newRow("settings") << QByteArray();
    QTest::newRow("message box") << QByteArray("checkEncryption");
    QTest::newRow("file dialog") << QByteArray("btnBrowse");
}

void tst_SystemSignals::TheClientEndsOverItsDialogs()
{
    QFETCH(QByteArray, opener);
    CommandLine commandLine;
    commandLine.strDataFolder = m_pFolder->path();
    const QWidget* pSettings = nullptr;
    QTimer operatorsTurn;
    connect(&operatorsTurn, &QTimer::timeout, &operatorsTurn, [&] {
        QWidget* pModal = QApplication::activeModalWidget();
        if (!pModal)
        {
            return;
        }
        if (opener.isEmpty() || (pSettings && pModal != pSettings))
        {
            operatorsTurn.stop();
            ::raise(SIGTERM);
        }
        else if (!pSettings)
        {
            pSettings = pModal;
            auto* pOpener = pModal->findChild<QAbstractButton*>(QString::fromLatin1(opener));
            QVERIFY(pOpener);
            pOpener->setChecked(pOpener->isCheckable());
            QTimer::singleShot(0, pOpener, &QAbstractButton::click); // which returns when the client ends
        }
    });
    operatorsTurn.start(50);
    QCOMPARE(Client(commandLine).Run(*qApp), 0);
    QVERIFY(!operatorsTurn.isActive());
    QVERIFY(!QApplication::activeModalWidget());
}

QTEST_MAIN(tst_SystemSignals)

#include "tst_SystemSignals.moc"
