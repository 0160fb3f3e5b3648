#include <UICommonModule/CPathEdit.h>

#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QFileDialog>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

using UICommonMdl::CPathEdit;

class tst_PathEdit : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void LimitCountsBytes_data();
    void LimitCountsBytes();
    void TheMessageComesWhileTyping();
    void TheMessageComesForASetPath();
    void AnOverlongPathIsNotCut();
    void WithoutALimitNothingIsSaid();
    void SettingTheLimitChecksThePathShown();
    void AnotherHintSurvivesAShortPath();
    void TheBrowseButtonStandsInside();
    void TheTextStaysClearOfTheButton();
    void TheButtonChangesSidesWithTheLayoutDirection();
    void TheBrowseButtonIsReachedByKeyboard();
    void BrowseByOwnerOnlyEmits();
    void BrowseFolderOpensTheDialog();
    void ThePickedFolderIsShownBeforeTheSignal();
    void APickedFolderThatIsTooLongGetsTheMessage();
    void AFieldMayGoWhileItsDialogIsOpen();
    void TheTipParentMayGoFirst();
    void TheModeIsADesignerProperty();
    void FolderNamesAreCompleted();
    void NothingIsCompletedForTheOwner();

private:
    /// Presses the browse button and takes the folder in the dialog that opens.
    void Pick(const QString& strFolder)
    {
        bool bPicked = false;
        QTimer::singleShot(50, this, [&] {
            auto* pDialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(pDialog);
            auto* pName = pDialog->findChild<QLineEdit*>("fileNameEdit");
            if (!pName)
            {
                pDialog->reject();
                return;
            }
            pName->setText(strFolder);
            QTest::keyClick(pName, Qt::Key_Enter);
            bPicked = true;
        });
        QTest::mouseClick(Browse(), Qt::LeftButton);
        QVERIFY(bPicked);
    }
    QToolButton* Browse() const { return m_pEdit->findChild<QToolButton*>("btnBrowse"); }

    QScopedPointer<QWidget> m_pParent;
    CPathEdit* m_pEdit = nullptr;
};

void tst_PathEdit::init()
{
    m_pParent.reset(new QWidget);
    m_pParent->resize(500, 200);
    m_pEdit = new CPathEdit(m_pParent.data());
    m_pEdit->setGeometry(20, 20, 300, 32);
    m_pEdit->SetTipParentWidget(m_pParent.data());
    m_pParent->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pParent.data()));
}

void tst_PathEdit::LimitCountsBytes_data()
{
    QTest::addColumn<QString>("strCharacter");
    QTest::newRow("1 byte") << "a";
    QTest::newRow("2 bytes") << QString::fromUtf8("é");
    QTest::newRow("3 bytes") << QString::fromUtf8("客");
    QTest::newRow("4 bytes") << QString::fromUtf8("\xf0\x9f\x8e\xa5");
}

void tst_PathEdit::LimitCountsBytes()
{
    QFETCH(QString, strCharacter);
    const int nMax = 180; // a multiple of all four
    m_pEdit->SetMaxInputParam(nMax, "Too long");
    m_pEdit->setText(strCharacter.repeated(nMax / strCharacter.toUtf8().size()));
    QCOMPARE(m_pEdit->text().toUtf8().size(), nMax);
    QVERIFY(!m_pEdit->IsErrorHintShown());
    m_pEdit->setText(m_pEdit->text() + 'a');
    QVERIFY(m_pEdit->IsErrorHintShown());
    QCOMPARE(m_pEdit->GetErrorHintText(), QString("Too long"));
}

void tst_PathEdit::TheMessageComesWhileTyping()
{
    m_pEdit->SetMaxInputParam(3, "Too long");
    QTest::keyClicks(m_pEdit, "/ab");
    QVERIFY(!m_pEdit->IsErrorHintShown());
    QTest::keyClicks(m_pEdit, "c");
    QCOMPARE(m_pEdit->GetErrorHintText(), QString("Too long"));
    QTest::keyClick(m_pEdit, Qt::Key_Backspace);
    QVERIFY(!m_pEdit->IsErrorHintShown());
}

void tst_PathEdit::TheMessageComesForASetPath()
{
    m_pEdit->SetMaxInputParam(3, "Too long");
    m_pEdit->setText("/abc");
    QVERIFY(m_pEdit->IsErrorHintShown());
}

void tst_PathEdit::AnOverlongPathIsNotCut()
{
    m_pEdit->SetMaxInputParam(3, "Too long");
    QTest::keyClicks(m_pEdit, "/abcdef");
    QCOMPARE(m_pEdit->text(), QString("/abcdef"));
}

void tst_PathEdit::WithoutALimitNothingIsSaid()
{
    m_pEdit->setText(QString(5000, 'a'));
    QVERIFY(!m_pEdit->IsErrorHintShown());
}

void tst_PathEdit::SettingTheLimitChecksThePathShown()
{
    m_pEdit->setText("/abc");
    m_pEdit->SetMaxInputParam(3, "Too long");
    QVERIFY(m_pEdit->IsErrorHintShown());
}

void tst_PathEdit::AnotherHintSurvivesAShortPath()
{
    m_pEdit->SetMaxInputParam(10, "Too long");
    m_pEdit->showErrorHint(m_pParent.data(), true, "No such folder");
    m_pEdit->setText("/ab");
    QCOMPARE(m_pEdit->GetErrorHintText(), QString("No such folder"));
}

void tst_PathEdit::TheBrowseButtonStandsInside()
{
    QVERIFY(m_pEdit->rect().contains(Browse()->geometry()));
    QVERIFY(Browse()->geometry().left() > m_pEdit->width() / 2);
    QCOMPARE(Browse()->accessibleName(), QString("Browse"));
    m_pEdit->setLayoutDirection(Qt::RightToLeft);
    m_pEdit->resize(310, 32);
    QVERIFY(Browse()->geometry().right() < m_pEdit->width() / 2);
}

void tst_PathEdit::TheTextStaysClearOfTheButton()
{
    QVERIFY(m_pEdit->textMargins().right() >= Browse()->width());
}

void tst_PathEdit::TheButtonChangesSidesWithTheLayoutDirection()
{
    m_pParent->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(Browse()->geometry().right() < m_pEdit->width() / 2);
    QVERIFY(m_pEdit->textMargins().left() >= Browse()->width());
    QCOMPARE(m_pEdit->textMargins().right(), 0);
    m_pParent->setLayoutDirection(Qt::LeftToRight);
    QVERIFY(Browse()->geometry().left() > m_pEdit->width() / 2);
    QVERIFY(m_pEdit->textMargins().right() >= Browse()->width());
    QCOMPARE(m_pEdit->textMargins().left(), 0);
}

void tst_PathEdit::TheBrowseButtonIsReachedByKeyboard()
{
    m_pEdit->SetBrowseMode(CPathEdit::BrowseByOwner);
    QSignalSpy spy(m_pEdit, &CPathEdit::sgnPathBtnClicked);
    QApplication::setActiveWindow(m_pParent.data());
    m_pEdit->setFocus();
    QTest::keyClick(m_pEdit, Qt::Key_Tab);
    QCOMPARE(m_pParent->focusWidget(), Browse());
    QTest::keyClick(Browse(), Qt::Key_Space);
    QCOMPARE(spy.size(), 1);
}

void tst_PathEdit::BrowseByOwnerOnlyEmits()
{
    m_pEdit->SetBrowseMode(CPathEdit::BrowseByOwner);
    QSignalSpy spy(m_pEdit, &CPathEdit::sgnPathBtnClicked);
    QTest::mouseClick(Browse(), Qt::LeftButton);
    QCOMPARE(spy.size(), 1);
    QVERIFY(!QApplication::activeModalWidget());
}

void tst_PathEdit::BrowseFolderOpensTheDialog()
{
    const QTemporaryDir folder;
    m_pEdit->setText(folder.path());
    QSignalSpy spy(m_pEdit, &CPathEdit::sgnPathBtnClicked);
    bool bOpened = false;
    QString strStart;
    QTimer::singleShot(50, this, [&] {
        auto* pDialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        bOpened = pDialog != nullptr;
        if (pDialog)
        {
            strStart = pDialog->directory().path();
            pDialog->reject();
        }
    });
    QTest::mouseClick(Browse(), Qt::LeftButton);
    QVERIFY(bOpened);
    QCOMPARE(strStart, folder.path());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(m_pEdit->text(), folder.path());
}

void tst_PathEdit::ThePickedFolderIsShownBeforeTheSignal()
{
    const QTemporaryDir folder;
    QString strAtSignal;
    connect(m_pEdit, &CPathEdit::sgnPathBtnClicked, this, [&] { strAtSignal = m_pEdit->text(); });
    Pick(folder.path());
    QCOMPARE(m_pEdit->text(), QDir::toNativeSeparators(folder.path()));
    QCOMPARE(strAtSignal, m_pEdit->text());
}

void tst_PathEdit::APickedFolderThatIsTooLongGetsTheMessage()
{
    const QTemporaryDir folder;
    m_pEdit->SetMaxInputParam(folder.path().toUtf8().size() - 1, "Too long");
    Pick(folder.path());
    QCOMPARE(m_pEdit->text(), QDir::toNativeSeparators(folder.path()));
    QCOMPARE(m_pEdit->GetErrorHintText(), QString("Too long"));
}

void tst_PathEdit::AFieldMayGoWhileItsDialogIsOpen()
{
    auto* pEdit = new CPathEdit(m_pParent.data());
    pEdit->setGeometry(20, 80, 300, 32);
    pEdit->show();
    bool bOpened = false;
    QTimer::singleShot(50, this, [&] {
        bOpened = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr;
        delete pEdit;
    });
    QSignalSpy spy(pEdit, &CPathEdit::sgnPathBtnClicked);
    pEdit->findChild<QToolButton*>("btnBrowse")->click();
    QVERIFY(bOpened);
    QCOMPARE(spy.size(), 0);
}

void tst_PathEdit::TheTipParentMayGoFirst()
{
    auto* pTipParent = new QWidget;
    m_pEdit->SetTipParentWidget(pTipParent);
    m_pEdit->SetMaxInputParam(3, "Too long");
    delete pTipParent;
    QTest::keyClicks(m_pEdit, "/abc");
    QCOMPARE(m_pEdit->GetErrorHintText(), QString("Too long"));
}

void tst_PathEdit::TheModeIsADesignerProperty()
{
    QCOMPARE(m_pEdit->property("browseMode").toInt(), int(CPathEdit::BrowseFolder));
    QVERIFY(m_pEdit->setProperty("browseMode", "BrowseByOwner"));
    QCOMPARE(m_pEdit->GetBrowseMode(), CPathEdit::BrowseByOwner);
}

void tst_PathEdit::FolderNamesAreCompleted()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("snapshots"));
    QFile file(folder.filePath("snapfile"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY2(!m_pEdit->completer(), "a field that nobody types into needs no file system model");
    QApplication::setActiveWindow(m_pParent.data());
    m_pEdit->setFocus();
    QTest::keyClicks(m_pEdit, folder.path() + "/sna");
    QVERIFY(m_pEdit->completer());
    // Folders are read in the background; typing on finds them.
    const auto typeOn = [this] {
        QTest::keyClick(m_pEdit, Qt::Key_Backspace);
        QTest::keyClick(m_pEdit, 'a');
        return m_pEdit->completer()->completionCount();
    };
    QTRY_COMPARE(typeOn(), 1);
    QCOMPARE(m_pEdit->completer()->currentCompletion(), QDir::toNativeSeparators(folder.filePath("snapshots")));

    m_pEdit->SetBrowseMode(CPathEdit::BrowseByOwner);
    QVERIFY(!m_pEdit->completer());
    QTest::keyClick(m_pEdit, 'p'); // no folder is read any more
    QVERIFY(!m_pEdit->completer());
}

void tst_PathEdit::NothingIsCompletedForTheOwner()
{
    m_pEdit->SetBrowseMode(CPathEdit::BrowseByOwner);
    QTest::keyClicks(m_pEdit, "/t");
    QVERIFY(!m_pEdit->completer());
}

QTEST_MAIN(tst_PathEdit)

#include "tst_PathEdit.moc"
