#include "onboarding/genraltabvc.h"

#include "onboarding/ExtensionsPane.h"
#include "settings/SettingsKeys.h"
#include "settings/SharedSuite.h"

genraltabvc::genraltabvc() : sharedDefaults(openSharedSuite()), probe([this] { showExtensionState(); }) {}

void genraltabvc::connect(NS::Connections& connections)
{
    connections.outlet("lblextensionstate", lblextensionstate);
    connections.outlet("checkboxShowicon", checkboxShowicon);
    connections.outlet("checkbox_showinSubMenu", checkbox_showinSubMenu);
    connections.action("btnopenSystemPrefrences:", [this](NS::Control& sender) { btnopenSystemPrefrences(sender); });
    connections.action("showiconinmenu:", [this](NS::Control& sender) { showiconinmenu(sender); });
    connections.action("showinSubmenu:", [this](NS::Control& sender) { showinSubmenu(sender); });
}

void genraltabvc::viewDidLoad()
{
    NS::ViewController::viewDidLoad();
    checkIsextensionrunning();
    load(checkboxShowicon, SettingsKey::showmenuicon, true);
    load(checkbox_showinSubMenu, SettingsKey::showinSubMenu, false);
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
    store(*checkboxShowicon, SettingsKey::showmenuicon);
}

void genraltabvc::showinSubmenu(NS::Control&)
{
    store(*checkbox_showinSubMenu, SettingsKey::showinSubMenu);
}

void genraltabvc::showExtensionState()
{
    lblextensionstate->setStringValue(
        probe.isextensionrunning
            ? "Orvik Menu Extension is enabled"
            : "Enable \"Orvik Menu Extension\" in System Preferences > Extensions to make Orvik Menu work.");
}

/// Shows the stored value. Where none of the right kind is stored, `initially` takes its place.
void genraltabvc::load(const NS::Outlet<NS::Button>& checkbox, std::string_view key, bool initially)
{
    const auto stored = sharedDefaults ? sharedDefaults->objectForKey(key) : std::nullopt;
    const auto flag = stored ? stored->boolean() : std::nullopt;
    if (!flag && sharedDefaults)
        sharedDefaults->setBool_forKey(initially, key);
    checkbox->setState(flag.value_or(initially) ? NS::ControlState::On : NS::ControlState::Off);
}

void genraltabvc::store(const NS::Button& checkbox, std::string_view key)
{
    const bool on = checkbox.state() == NS::ControlState::On;
    if (sharedDefaults)
        sharedDefaults->setBool_forKey(on, key);
}
