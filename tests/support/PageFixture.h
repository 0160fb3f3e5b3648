#pragma once

#include "FakeSections.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QToolTip>
#include <QtTest>

/// A page in a window that is shown and active, with a section that notes its calls.
template <class Page, class Interface, class Record, class Section = CFakeSection<Interface, Record>>
struct SPageFixture
{
    SPageFixture()
        : section(journal)
        , page(&window)
    {
        window.resize(700, 800);
        page.resize(662, 780);
        window.show();
        QApplication::setActiveWindow(&window);
        QToolTip::hideText();
    }

    /// Hands the page the section with this record in it.
    void Load(const Record& record = Record())
    {
        section.m_record = record;
        QCOMPARE(page.SetConfigSection(&section), 0);
        journal.Take();
    }

    template <class Control>
    Control* Find(const char* pszName) const
    {
        return page.template findChild<Control*>(QString::fromLatin1(pszName));
    }

    CJournal journal;
    Section section;
    QWidget window;
    Page page;
};

/// Replaces a field's text as a user does.
inline void Type(QLineEdit* pEdit, const QString& strText)
{
    pEdit->setFocus();
    pEdit->selectAll();
    QTest::keyClick(pEdit, Qt::Key_Delete);
    QTest::keyClicks(pEdit, strText);
}

/// Likewise, for texts that no key types.
inline void Paste(QLineEdit* pEdit, const QString& strText)
{
    QApplication::clipboard()->setText(strText);
    pEdit->setFocus();
    pEdit->selectAll();
    QTest::keySequence(pEdit, QKeySequence::Paste);
}

/// Test rows "strPath", "bTooLong": paths of characters of one to four bytes, at a limit and one byte past it.
inline void PathsAroundALimit(int nMaxBytes)
{
    QTest::addColumn<QString>("strPath");
    QTest::addColumn<bool>("bTooLong");
    const QString arrCharacters[] = {"p", QString::fromUtf8("\xc3\xa9"), QString::fromUtf8("\xe5\x9b\xbe"),
                                     QString::fromUtf8("\xf0\x9f\x93\xb7")};
    for (const QString& strCharacter : arrCharacters)
    {
        const int nBytes = strCharacter.toUtf8().size();
        const QString strPath = QString(nMaxBytes % nBytes, 'a') + strCharacter.repeated(nMaxBytes / nBytes);
        QTest::addRow("%d-byte characters at the limit", nBytes) << strPath << false;
        QTest::addRow("%d-byte characters past the limit", nBytes) << strPath + 'a' << true;
    }
}
