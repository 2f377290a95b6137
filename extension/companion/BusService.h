#pragma once

#include "extension/bus/Handles.h"
#include "extension/companion/ExtensionSettings.h"
#include "extension/menu/Menu.h"

#include <functional>
#include <string>
#include <vector>

namespace MenuExtension {

/// What the companion holds.
struct CompanionState {
    ExtensionSettings settings;
    /// The watched directories, as `file:` addresses.
    std::vector<std::string> directoryURLs;
    /// Those that are on and can be done here.
    std::vector<MenuAction> actions;
};

/// The companion on the session bus: its name, and the object that shows what it holds.
class BusService {
public:
    /// `quit` is called from the event loop when somebody asks the companion to end. `bus` and `state` must outlive
    /// the service.
    BusService(sd_bus& bus, const CompanionState& state, std::function<void()> quit);
    BusService(const BusService&) = delete;
    BusService& operator=(const BusService&) = delete;

    /// Makes the object. A negative error number when that failed.
    [[nodiscard]] int publish();
    /// Takes the name, which the bus takes back when the connection ends. -EEXIST when another process has it;
    /// another negative error number when the bus did not answer well.
    [[nodiscard]] int claimName();
    /// Tells who listens which parts of the state are others than before.
    void announceChangesSince(const CompanionState& before);

private:
    struct Object;

    sd_bus& m_bus;
    const CompanionState& m_state;
    std::function<void()> m_quit;
    BusSlot m_object;
};

} // namespace MenuExtension
