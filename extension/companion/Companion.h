#pragma once

#include "extension/bus/Handles.h"
#include "extension/companion/ActionRunner.h"
#include "extension/companion/BusService.h"
#include "extension/companion/FailureNotices.h"
#include "extension/companion/NeedsWatch.h"
#include "extension/companion/PanelLink.h"
#include "extension/companion/SettingsWatch.h"
#include "extension/companion/SuiteReader.h"

#include <optional>
#include <string>
#include <vector>

namespace MenuExtension {

/// The program: it holds the settings of the shared suite and the directories to watch, keeps both fresh, shows
/// them on the bus, and has actions done that are asked for there.
class Companion final : private BusRequests {
public:
    /// Reads the settings. `event` and `bus` must outlive the companion.
    Companion(sd_event& event, sd_bus& bus, std::string settingsFolder);
    Companion(const Companion&) = delete;
    Companion& operator=(const Companion&) = delete;

    /// Takes its place on the bus; everything else happens in the event loop, which ends with status 0 when the
    /// companion is asked to quit or the bus goes. -EEXIST when another companion runs; another negative error number
    /// when the bus did not answer well.
    [[nodiscard]] int start();

private:
    void takeSettings(const std::optional<NS::Value::Dictionary>& values);
    void offerActions();
    void offerActionsAnew();
    [[nodiscard]] int listen();
    void followEvents();
    void lookAgain();
    void look();
    void waitToLookAgain();
    void watchDirectories(const std::vector<std::string>& addresses);
    void quit() override;
    void run(const RunCall& call, const std::optional<Refusal>& wrong, Finished answer) override;

    sd_event& m_event;
    sd_bus& m_bus;
    SuiteReader m_suite;
    SettingsWatch m_watch;
    CompanionState m_state;
    BusService m_service;
    PanelLink m_panel;
    Scope m_scope;
    FailureNotices m_notices;
    ActionRunner m_runner;
    NeedsWatch m_needs;
    EventSource m_settingsChanges;
    EventSource m_nextLook;
    /// Once, when there is nothing else to do: at the beginning, and after a large request.
    EventSource m_memoryReturn;
    /// Whether what was found last counts only if it is still so at the next look.
    bool m_inDoubt = false;
    BusSlot m_busEnd;
};

} // namespace MenuExtension
