#include "support/Patterns.h"
#include "support/VideoPage.h"

#include <QToolTip>

using namespace LocalConfig;
using LocalConfigLogical::VideoConfigInfo;

class tst_VideoBufferTime : public CVideoPageTest
{
    Q_OBJECT

private slots:
    void init() { Reset(); }

    void BufferPattern();
    void SaveBufferTime_data();
    void SaveBufferTime();
    void EmptyBufferIsRefilledOnFocusOut();
    void EmptyBufferThatHasTheFocusIsStoredAsZero();
};

void tst_VideoBufferTime::BufferPattern()
{
    CheckEveryNumber(Edit("videoCushionEdit"), [](int n) { return n <= 1500; });
    QCOMPARE(Validate(Edit("videoCushionEdit"), ""), QValidator::Acceptable);
    for (const char* pszText : {"01", "-1", "1501", "2000", "15000", "a"})
    {
        QCOMPARE(Validate(Edit("videoCushionEdit"), pszText), QValidator::Invalid);
    }
}

void tst_VideoBufferTime::SaveBufferTime_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<int>("nSaved");
    QTest::addColumn<bool>("bRefused");
    QTest::newRow("0") << "0" << 0 << false;
    QTest::newRow("1500") << "1500" << 1500 << false;
    QTest::newRow("1501") << "1501" << 777 << true;
    QTest::newRow("negative") << "-1" << 777 << true;
}

void tst_VideoBufferTime::SaveBufferTime()
{
    QFETCH(QString, strText);
    QFETCH(int, nSaved);
    QFETCH(bool, bRefused);
    VideoConfigInfo record;
    record.nPlayMode = 4;
    record.nVideoBufferTime = 777;
    Load(record);
    Show();
    QToolTip::hideText();
    Edit("videoCushionEdit")->setText(strText); // also what cannot be typed
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nVideoBufferTime, nSaved);
    QCOMPARE(Edit("videoCushionEdit")->text(), QString::number(nSaved));
    QCOMPARE(QToolTip::text(), bRefused ? QString("Video buffer time range must be within 0-1500 ms.") : QString());
    QCOMPARE(m_parent.focusWidget() == Edit("videoCushionEdit"), bRefused);
}

void tst_VideoBufferTime::EmptyBufferIsRefilledOnFocusOut()
{
    VideoConfigInfo record;
    record.nPlayMode = 4;
    record.nVideoBufferTime = 777;
    Load(record);
    Show();
    Edit("videoCushionEdit")->setFocus();
    Edit("videoCushionEdit")->selectAll();
    QTest::keyClick(Edit("videoCushionEdit"), Qt::Key_Delete);
    QVERIFY(Edit("videoCushionEdit")->text().isEmpty());
    Combo("pCmbScale")->setFocus();
    QCOMPARE(Edit("videoCushionEdit")->text(), QString("777"));

    m_pPage->UnInit();
    Edit("videoCushionEdit")->setFocus();
    Edit("videoCushionEdit")->clear();
    Combo("pCmbScale")->setFocus();
    QCOMPARE(Edit("videoCushionEdit")->text(), QString("1500"));
}

void tst_VideoBufferTime::EmptyBufferThatHasTheFocusIsStoredAsZero()
{
    VideoConfigInfo record;
    record.nPlayMode = 4;
    Load(record);
    Show();
    Edit("videoCushionEdit")->setFocus();
    Edit("videoCushionEdit")->clear();
    QCOMPARE(m_pPage->SaveConfig(), 0);
    QCOMPARE(m_pSection->m_record.nVideoBufferTime, 0);
}

QTEST_MAIN(tst_VideoBufferTime)

#include "tst_VideoBufferTime.moc"
