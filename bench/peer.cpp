// The peer that the dialog is measured against: KDE Frameworks' KConfigDialog with the plain forms as pages and a
// KConfigSkeleton of the same fields. A module of its own, so that nobody else pays for loading it.

#include "Contents.h"

#include "plain_CAlarmConfig.h"
#include "plain_CBasicConfig.h"
#include "plain_CCaptureConfig.h"
#include "plain_CPlaybackConfig.h"
#include "plain_CRecordConfig.h"
#include "plain_CSecurityConfig.h"
#include "plain_CShortcutKeyConfig.h"
#include "plain_CTvWallConfig.h"
#include "plain_CVideoConfig.h"

#include <KConfigDialog>
#include <KConfigDialogManager>
#include <KConfigSkeleton>

#include <QFile>
#include <QRegularExpression>

#include <deque>

namespace
{

/// Adds a field for each control that has a value, and gives the control the name that leads to the field.
class CFields : public KConfigSkeleton
{
public:
    CFields(const QString& strFile, QObject* pParent)
        : KConfigSkeleton(KSharedConfig::openConfig(strFile, KConfig::SimpleConfig), pParent)
    {
        setCurrentGroup("Settings");
    }

    void Add(const QWidget& page)
    {
        for (auto* pWidget : page.findChildren<QWidget*>(QRegularExpression("^[^q]")))
        {
            const QString strName = pWidget->objectName();
            if (auto* pButton = qobject_cast<QAbstractButton*>(pWidget); pButton && pButton->isCheckable())
            {
                AddItem<ItemBool>(strName, m_listBools.emplace_back(), pButton->isChecked(), !pButton->isChecked());
            }
            else if (auto* pCombo = qobject_cast<QComboBox*>(pWidget))
            {
                AddItem<ItemInt>(strName, m_listInts.emplace_back(), pCombo->currentIndex(), 0);
            }
            else if (auto* pEdit = qobject_cast<QLineEdit*>(pWidget))
            {
                AddItem<ItemString>(strName, m_listTexts.emplace_back(), pEdit->text(), QString());
            }
            else
            {
                continue;
            }
            pWidget->setObjectName("kcfg_" + strName);
        }
    }

    /// What the alarms need has no control of its own.
    void AddSounds(int nSounds)
    {
        for (int n = 0; n < nSounds; ++n)
        {
            const QString strName = QString("sound%1").arg(n);
            AddItem<ItemString>(strName, m_listTexts.emplace_back(), "/srv/sounds/" + strName + ".wav", QString());
        }
    }

private:
    template <class Item, class Value>
    void AddItem(const QString& strName, Value& value, const Value& shown, const Value& standard)
    {
        auto* pItem = new Item(currentGroup(), strName, value, standard);
        pItem->setValue(shown);
        addItem(pItem, strName);
    }

    std::deque<bool> m_listBools;
    std::deque<int> m_listInts;
    std::deque<QString> m_listTexts;
};

class CPeer : public KConfigDialog
{
public:
    CPeer(const CContents& contents, CFields* pFields, const QString& strFile)
        : KConfigDialog(nullptr, QString(), pFields)
        , m_contents(contents)
        , m_pFields(pFields)
    {
        pFields->setParent(this);
        AddForm<Plain::Ui::CBasicConfig>("Basic");
        AddForm<Plain::Ui::CVideoConfig>("Video");
        AddForm<Plain::Ui::CPlaybackConfig>("Record Playback");
        AddForm<Plain::Ui::CCaptureConfig>("Snapshot");
        AddForm<Plain::Ui::CRecordConfig>("Recording");
        AddForm<Plain::Ui::CAlarmConfig>("Alarm");
        AddForm<Plain::Ui::CTvWallConfig>("Video Wall");
        AddForm<Plain::Ui::CSecurityConfig>("Security");
        AddForm<Plain::Ui::CShortcutKeyConfig>("Shortcut Keys");
        pFields->AddSounds(178);
        if (QFile::exists(strFile))
        {
            pFields->load();
        }
        else
        {
            pFields->save();
        }
    }

private:
    template <class Form>
    void AddForm(const char* pszTitle)
    {
        auto* pPage = new QWidget;
        Form form;
        form.setupUi(pPage);
        m_contents.Fill(*pPage);
        m_pFields->Add(*pPage);
        addPage(pPage, QString::fromLatin1(pszTitle));
    }

    const CContents& m_contents;
    CFields* m_pFields;
};

} // namespace

extern "C" Q_DECL_EXPORT QDialog* MakePeer(const CContents* pContents, const QString* pFile)
{
    return new CPeer(*pContents, new CFields(*pFile, nullptr), *pFile);
}

extern "C" Q_DECL_EXPORT void ReloadPeer(QDialog* pDialog)
{
    pDialog->findChild<KConfigDialogManager*>()->updateWidgets();
}

extern "C" Q_DECL_EXPORT void SavePeer(QDialog* pDialog)
{
    pDialog->findChild<KConfigDialogManager*>()->updateSettings();
}
