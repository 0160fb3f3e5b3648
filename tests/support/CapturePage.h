#pragma once

#include "PageFixture.h"

#include <LocalConfig/interfaces/ISnapshotSection.h>
#include <LocalConfig/pages/CCaptureConfig.h>
#include <LocalConfig/widgets/CCombobox.h>

#include <KvGui/KvSpinBox.h>
#include <UICommonModule/CPathEdit.h>

#include <QDir>

/// The base of the Snapshot page's tests.
class CCapturePageTest : public QObject
{
protected:
    using SFixture = SPageFixture<LocalConfig::CCaptureConfig, LocalConfigLogical::ISnapshotSection,
                                  LocalConfigLogical::SnapshotConfigInfo>;

    void Reset() { m_pFixture.reset(new SFixture); }
    static QString Native(const QString& strPath) { return QDir::toNativeSeparators(strPath); }
    static QString DefaultFolder() { return Native(QDir::currentPath() + "/Picture/"); }
    LocalConfig::CCombobox* Format() const { return m_pFixture->Find<LocalConfig::CCombobox>("picFormatComboBox"); }
    UICommonMdl::CPathEdit* Path() const { return m_pFixture->Find<UICommonMdl::CPathEdit>("picPathEdit"); }
    LocalConfig::CCombobox* Name() const { return m_pFixture->Find<LocalConfig::CCombobox>("picNameFormatCmbBox"); }
    KVGUI::KvSpinBox* Interval() const { return m_pFixture->Find<KVGUI::KvSpinBox>("picTmSpinBox"); }
    KVGUI::KvLineEdit* Count() const { return m_pFixture->Find<KVGUI::KvLineEdit>("picNumEdit"); }
    void TypeInterval(const QString& strText) const
    {
        Interval()->setFocus();
        QTest::keyClick(Interval(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(Interval(), Qt::Key_Delete);
        QTest::keyClicks(Interval(), strText);
    }
    void EmptyTheInterval() const
    {
        TypeInterval(QString());
        QCOMPARE(Interval()->text(), QString());
    }

    QScopedPointer<SFixture> m_pFixture;
};
