#include <client/ScreenScale.h>

#include <QScreen>
#include <QtTest>

using LocalConfigClient::ScreenScale;

class tst_ScreenScale : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void ChoosesASharpFactorThatLeavesTheDialogItsHeight_data();
    void ChoosesASharpFactorThatLeavesTheDialogItsHeight();
    void TheApplicationDrawsWithTheChosenFactor_data();
    void TheApplicationDrawsWithTheChosenFactor();
};

void tst_ScreenScale::cleanup()
{
    qunsetenv("QT_SCALE_FACTOR");
    qunsetenv("QT_SCREEN_SCALE_FACTORS");
}

void tst_ScreenScale::ChoosesASharpFactorThatLeavesTheDialogItsHeight_data()
{
    QTest::addColumn<qreal>("fWanted");
    QTest::addColumn<int>("nHeight");
    QTest::addColumn<qreal>("fChosen");
    const auto add = [](qreal fWanted, int nHeight, qreal fChosen) {
        QTest::addRow("%g on %d lines", fWanted, nHeight) << fWanted << nHeight << fChosen;
    };
    add(1, 1080, 1);
    add(1, 600, 1);
    add(1.25, 1080, 1.25);
    add(1.5, 1080, 1.5);
    add(2, 1080, 1.5);
    add(2, 1440, 2);
    add(2, 1360, 2);
    add(2, 1359, 1.5);
    add(1.5, 1020, 1.5);
    add(1.5, 1019, 1.25);
    add(1.5, 850, 1.25);
    add(1.5, 849, 1);
    add(2, 768, 1);
    add(1.1, 2160, 1);
    add(1.4, 2160, 1.25);
    add(1.75, 2160, 1.5);
    add(3, 2160, 2);
    add(0.75, 1080, 1);
}

void tst_ScreenScale::ChoosesASharpFactorThatLeavesTheDialogItsHeight()
{
    QFETCH(qreal, fWanted);
    QFETCH(int, nHeight);
    QFETCH(qreal, fChosen);
    QCOMPARE(ScreenScale::Choose(fWanted, nHeight), fChosen);
}

void tst_ScreenScale::TheApplicationDrawsWithTheChosenFactor_data()
{
    QTest::addColumn<QByteArray>("variable");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("nothing asked for") << QByteArray() << QByteArray();
    QTest::newRow("one factor for all") << QByteArray("QT_SCALE_FACTOR") << QByteArray("1.5");
    QTest::newRow("a factor for each") << QByteArray("QT_SCREEN_SCALE_FACTORS") << QByteArray("2");
}

void tst_ScreenScale::TheApplicationDrawsWithTheChosenFactor()
{
    QFETCH(QByteArray, variable);
    QFETCH(QByteArray, value);
    if (!variable.isEmpty())
    {
        qputenv(variable.constData(), value);
    }
    int nArguments = 1;
    char szName[] = "client";
    char* arrArguments[] = {szName, nullptr};
    const std::unique_ptr<QApplication> pApplication = ScreenScale::MakeApplication(nArguments, arrArguments);
    QCOMPARE(pApplication->primaryScreen()->size(), QSize(800, 600)); // of the screen that head-less tests have
    QCOMPARE(pApplication->devicePixelRatio(), 1.0);
}

QTEST_APPLESS_MAIN(tst_ScreenScale)

#include "tst_ScreenScale.moc"
