#include "onboarding/genraltabvc.h"

#include "onboarding/ExtensionsPane.h"
#include "platform/LocalizedString.h"
#include "settings/Reading.h"
#include "settings/Settings.h"
#include "settings/SharedSuite.h"

genraltabvc::genraltabvc() : sharedDefaults(openSharedSuite()), probe([this] { showExtensionState(); }) {}

void genraltabvc::connect(NS::Connections& connections)
{
    connections.outlet(lblextensionstate);
    connections.outlet(checkboxShowicon);
    connections.outlet(checkbox_showinSubMenu);
    connections.action("btnopenSystemPrefrences:", [this](NS::Control& sender) { btnopenSystemPrefrences(sender); });
    connections.action("showiconinmenu:", [this](NS::Control& sender) { showiconinmenu(sender); });
    connections.action("showinSubmenu:", [this](NS::Control& sender) { showinSubmenu(sender); });
}

void genraltabvc::viewDidLoad()
{
    NS::ViewController::viewDidLoad();
    checkIsextensionrunning();
    load(checkboxShowicon, Settings::showmenuicon);
    load(checkbox_showinSubMenu, Settings::showinSubMenu);
}

void genraltabvc::viewWillAppear()
{
    probe.startPolling(shared_from_this());
}

void genraltabvc::viewWillDisappear()
{
    probe.stopPolling();
}

void genraltabvc::checkIsextensionrunning()
{
    probe.schedule(shared_from_this());
}

void genraltabvc::btnopenSystemPrefrences(NS::Control&)
{
    openExtensionsPane();
}

void genraltabvc::showiconinmenu(NS::Control&)
{
    keep(*checkboxShowicon, Settings::showmenuicon);
}

void genraltabvc::showinSubmenu(NS::Control&)
{
    keep(*checkbox_showinSubMenu, Settings::showinSubMenu);
}

void genraltabvc::showExtensionState()
{
    lblextensionstate->setStringValue(
        probe.isextensionrunning
            ? NS::LocalizedString("genraltabvc", "Orvik Menu Extension is enabled")
            : NS::LocalizedString(
                  "genraltabvc",
                  "Enable \"Orvik Menu Extension\" in System Preferences > Extensions to make Orvik Menu work."));
}

/// Shows the stored value. Where none of the right kind is stored, the initial one takes its place.
void genraltabvc::load(const NS::Outlet<NS::Button>& checkbox, const Switch& setting)
{
    const auto stored = sharedDefaults ? read(setting, *sharedDefaults) : std::nullopt;
    if (!stored && sharedDefaults)
        sharedDefaults->setBool_forKey(setting.initially, setting.key);
    checkbox->setState(stored.value_or(setting.initially) ? NS::ControlState::On : NS::ControlState::Off);
}

void genraltabvc::keep(const NS::Button& checkbox, const Switch& setting)
{
    const bool on = checkbox.state() == NS::ControlState::On;
    if (sharedDefaults)
        sharedDefaults->setBool_forKey(on, setting.key);
}
