#pragma once

#include "onboarding/ExtensionStatusProbe.h"
#include "platform/Button.h"
#include "platform/Outlet.h"
#include "platform/TextField.h"
#include "platform/UserDefaults.h"
#include "platform/ViewController.h"
#include "settings/Setting.h"

#include <memory>

/// The general settings: whether the extension runs, and two display options that the extension reads. Main thread.
class genraltabvc : public NS::ViewController, public std::enable_shared_from_this<genraltabvc> {
public:
    genraltabvc();

    void connect(NS::Connections& connections) override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewWillDisappear() override;

    void checkIsextensionrunning();
    void btnopenSystemPrefrences(NS::Control& sender);
    void showiconinmenu(NS::Control& sender);
    void showinSubmenu(NS::Control& sender);

    NS::Outlet<NS::TextField> lblextensionstate{"lblextensionstate"};
    NS::Outlet<NS::Button> checkboxShowicon{"checkboxShowicon"};
    NS::Outlet<NS::Button> checkbox_showinSubMenu{"checkbox_showinSubMenu"};
    /// Null when the suite cannot be read; the checkboxes then have no lasting effect.
    const std::shared_ptr<NS::UserDefaults> sharedDefaults;
    ExtensionStatusProbe probe;

private:
    void showExtensionState();
    void load(const NS::Outlet<NS::Button>& checkbox, const Switch& setting);
    void keep(const NS::Button& checkbox, const Switch& setting);
};
