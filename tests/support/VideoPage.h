#pragma once

#include "HiddenPage.h"

#include <LocalConfig/interfaces/IVideoSection.h>
#include <LocalConfig/pages/CVideoConfig.h>

#include <KvGui/KvCheckBox.h>
#include <KvGui/KvLineEdit.h>

#include <QComboBox>

/// The base of the Video page's tests.
class CVideoPageTest
    : public CHiddenPageTest<LocalConfig::CVideoConfig,
                             CFakeSection<LocalConfigLogical::IVideoSection, LocalConfigLogical::VideoConfigInfo>>
{
protected:
    void Reset() { CHiddenPageTest::Reset(QSize(662, 841)); }
    QComboBox* Combo(const char* pszName) const { return Find<QComboBox>(pszName); }
    KVGUI::KvLineEdit* Edit(const char* pszName) const { return Find<KVGUI::KvLineEdit>(pszName); }
    KVGUI::KvCheckBox* Check(const char* pszName) const { return Find<KVGUI::KvCheckBox>(pszName); }
    bool Enabled(const char* pszName) const { return Find<QWidget>(pszName)->isEnabled(); }
    void Type(const char* pszName, const QString& strText) const
    {
        Edit(pszName)->clear();
        QTest::keyClicks(Edit(pszName), strText);
    }
};
