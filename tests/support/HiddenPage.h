#pragma once

#include "FakeSections.h"
#include "WorkFolder.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QWidget>
#include <QtTest>

/// The base of tests of a page that stays hidden until a test shows it. It has a section that notes its calls and a
/// working folder of its own.
template <class Page, class Section>
class CHiddenPageTest : public QObject
{
protected:
    using Record = decltype(Section::m_record);

    /// A new page, of the size that it has in the dialog.
    void Reset(const QSize& size)
    {
        QFile::remove("Localcfg.ini");
        m_pPage.reset();
        m_parent.resize(size);
        m_pSection.reset(new Section(m_journal));
        m_pPage.reset(new Page(&m_parent));
        m_pPage->resize(size);
        m_journal.Take();
    }

    /// Hands the page the section with this record in it, which the page reads once.
    void Load(const Record& record)
    {
        m_pSection->m_record = record;
        m_journal.Take();
        QCOMPARE(m_pPage->SetConfigSection(m_pSection.data()), 0);
        QCOMPARE(m_journal.Take(), QStringList{"GetConfig"});
    }

    void Show()
    {
        m_parent.show();
        m_pPage->show();
        QApplication::setActiveWindow(&m_parent);
        QVERIFY(QTest::qWaitForWindowActive(&m_parent));
    }

    template <class Control>
    Control* Find(const char* pszName) const
    {
        return m_pPage->template findChild<Control*>(QString::fromLatin1(pszName));
    }

    CWorkFolder m_folder;
    CJournal m_journal;
    QScopedPointer<Section> m_pSection;
    QWidget m_parent;
    QScopedPointer<Page> m_pPage;
};
