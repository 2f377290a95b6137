#include "onboarding/firstRunvc.h"

#include "onboarding/ExtensionsPane.h"
#include "platform/LocalizedString.h"
#include "platform/Platform.h"
#include "platform/WindowController.h"
#include "registry/ControllerRegistry.h"
#include "settings/Reading.h"
#include "settings/Settings.h"
#include "settings/SharedSuite.h"
#include "ui/FolderPanel.h"

#include <algorithm>

namespace {

/// In seconds.
constexpr double alertDelay = 0.2;

constexpr std::int64_t active = 1;

} // namespace

firstRunvc::firstRunvc(ControllerRegistry& registry)
    : userdefaultskey(Settings::foldersArray.key), userdefaultsstate(Settings::foldersArraystate.key),
      probe([this] { showFirstStep(); }), m_registry(registry)
{}

void firstRunvc::connect(NS::Connections& connections)
{
    connections.outlet(btnuserfolder);
    connections.outlet(btnpreferences);
    connections.action("btnsystemPrefrences:", [this](NS::Control& sender) { btnsystemPrefrences(sender); });
    connections.action("btnselectfolder:", [this](NS::Control& sender) { btnselectfolder(sender); });
}

void firstRunvc::viewDidLoad()
{
    NS::ViewController::viewDidLoad();
    checkIsextensionrunning();
}

void firstRunvc::viewWillAppear()
{
    probe.startPolling(shared_from_this());
}

void firstRunvc::viewWillDisappear()
{
    probe.stopPolling();
}

void firstRunvc::checkIsextensionrunning()
{
    probe.schedule(shared_from_this());
}

void firstRunvc::btnsystemPrefrences(NS::Control&)
{
    openExtensionsPane();
}

void firstRunvc::btnselectfolder(NS::Control&)
{
    const std::shared_ptr<NS::OpenPanel> panel = makeFolderPanel(FolderSelection::Several);
    NS::Window& window = *m_registry.controller<NS::WindowController>(ControllerIdentifier::mainStartWindow)->window;
    panel->beginSheetModalForWindow_completionHandler(window, [self = shared_from_this(), panel](int response) {
        if (response == NS::ModalResponseOK)
            self->takeFolders(panel->URLs());
    });
}

void firstRunvc::alertdone()
{
    const auto alert = NS::platform().makeAlert();
    alert->setAlertStyle(NS::AlertStyle::Warning);
    alert->setMessageText(NS::LocalizedString(
        "firstRunvc", "You have succeessfully enabled Orvik Menu and can see the Orvik Menu items in the Context "
                      "Menu on right click for selected folders. You can change these settings in the app "
                      "anytime."));
    alert->addButtonWithTitle(NS::LocalizedString("firstRunvc", "OK"));
    alert->runModal();
    NS::platform().sharedApplication().terminate();
}

void firstRunvc::showFirstStep()
{
    firststepDone = probe.isextensionrunning;
    btnpreferences->setEnabled(!firststepDone);
    finishIfDone();
}

void firstRunvc::takeFolders(const std::vector<NS::URL>& urls)
{
    for (const NS::URL& url : urls) {
        const std::string& path = url.path();
        if (std::ranges::any_of(
                arrurl, [&](const std::string& other) { return NS::platform().canonicallyEqual(path, other); }))
            continue;
        arrurl.push_back(path);
        arrstate.push_back(active);
    }
    if (arrurl.empty())
        return;
    storeFolders();
    secondStepDone = true;
    btnuserfolder->setEnabled(false);
    finishIfDone();
}

void firstRunvc::storeFolders() const
{
    const auto suite = openSharedSuite();
    if (!suite)
        return;
    store(arrurl, *suite, userdefaultskey);
    store(arrstate, *suite, userdefaultsstate);
}

void firstRunvc::finishIfDone()
{
    if (!firststepDone || !secondStepDone)
        return;
    NS::platform().standardUserDefaults().setBool_forKey(true, Settings::firstRun.key);
    NS::platform().performAfterDelay([self = shared_from_this()] { self->alertdone(); }, alertDelay);
}
