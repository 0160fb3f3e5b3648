#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace LocalConfigLogical
{
class IConfigSection;
}

namespace LocalConfig
{

/// What the dialog knows of a page. All calls arrive on the GUI thread; a page is a widget and dies with its parent.
class IConfigPage
{
public:
    virtual ~IConfigPage() = default;

    /// The page itself.
    virtual QWidget* GetWidget() = 0;

    /// Called once, when the page has been created. Stores the host's section object and fills the controls from it.
    /// \return 0; -1 for a null section, which leaves the page as it is
    virtual int SetSection(LocalConfigLogical::IConfigSection* pSection) = 0;

    /// Fills the controls: from the section's current values, or with the built-in defaults, which writes nothing.
    /// Does nothing without a section.
    virtual void LoadConfig(bool bDefault) = 0;

    /// LoadConfig as the dialog asks for it, for a page that must tell its section first.
    virtual void ReloadConfig(bool bDefault) { LoadConfig(bDefault); }

    /// Checks the controls and writes them into the section. Called on every page, also when another has refused.
    /// \return 0 stored; -2 refused, and the user's input stays when the dialog reloads; any other value refused
    virtual int SaveConfig() = 0;

    /// Given once after a save that was refused because of a field: leads there and tells about it. The dialog asks for
    /// it when it has loaded the pages again. Empty when no field is to blame.
    virtual std::function<void()> TakeRefusal() { return {}; }

    /// Enables or disables the editable controls with the connection to the platform.
    virtual void SetControlsEnabled(bool bEnable) = 0;

    /// Forgets the section. May be called more than once.
    virtual void UnInit() = 0;

    /// Alarm page: the user lacks right 45. Called before SetSection.
    virtual void MarkNoRight45() {}

    /// Alarm page: lets Config.xml force the alarm sound on or off. Called after SetSection.
    /// \return 0 when a value was forced, -1 otherwise
    virtual int ApplyConfigXml() { return -1; }

protected:
    IConfigPage() = default;
    IConfigPage(const IConfigPage&) = delete;
    IConfigPage& operator=(const IConfigPage&) = delete;
};

} // namespace LocalConfig
