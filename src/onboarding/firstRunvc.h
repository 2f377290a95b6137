#pragma once

#include "onboarding/ExtensionStatusProbe.h"
#include "platform/Button.h"
#include "platform/OpenPanel.h"
#include "platform/Outlet.h"
#include "platform/ViewController.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class ControllerRegistry;

/// The first-run screen: two steps, in either order, after which the program says so and ends. Main thread.
class firstRunvc : public NS::ViewController, public std::enable_shared_from_this<firstRunvc> {
public:
    /// The registry, whose start window the panel is attached to, must outlive the screen.
    explicit firstRunvc(ControllerRegistry& registry);

    void connect(NS::Connections& connections) override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewWillDisappear() override;

    void checkIsextensionrunning();
    void btnsystemPrefrences(NS::Control& sender);
    void btnselectfolder(NS::Control& sender);
    /// Tells of the success, then ends the program.
    void alertdone();

    NS::Outlet<NS::Button> btnuserfolder{"btnuserfolder"};
    NS::Outlet<NS::Button> btnpreferences{"btnpreferences"};
    std::vector<std::string> arrurl;
    /// Beside arrurl; 1 throughout.
    std::vector<std::int64_t> arrstate;
    std::string userdefaultskey;
    std::string userdefaultsstate;
    ExtensionStatusProbe probe;
    /// The extension runs, as far as the last probe saw.
    bool firststepDone = false;
    /// A folder was chosen.
    bool secondStepDone = false;

private:
    void showFirstStep();
    void takeFolders(const std::vector<NS::URL>& urls);
    void storeFolders() const;
    void finishIfDone();

    ControllerRegistry& m_registry;
};
