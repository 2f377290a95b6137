#pragma once

#include "extension/bus/Handles.h"
#include "extension/companion/ExtensionSettings.h"
#include "extension/companion/RunCall.h"
#include "extension/menu/Menu.h"

#include <functional>
#include <optional>
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

/// What others may ask of the companion. Called from the event loop.
class BusRequests {
public:
    using Finished = std::function<void(const std::optional<Refusal>&)>;

    /// To end.
    virtual void quit() = 0;
    /// To do an action. `wrong` is what is wrong with the paths and options of the call. `finished` is called once,
    /// now or later.
    virtual void run(const RunCall& call, const std::optional<Refusal>& wrong, Finished finished) = 0;

protected:
    ~BusRequests() = default;
};

/// The companion on the session bus: its name, and the object that shows what it holds.
class BusService {
public:
    /// `bus`, `state` and `requests` must outlive the service.
    BusService(sd_bus& bus, const CompanionState& state, BusRequests& requests);
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

    [[nodiscard]] bool trusts(const std::string& caller);

    sd_bus& m_bus;
    const CompanionState& m_state;
    BusRequests& m_requests;
    BusSlot m_object;
    BusSlot m_objectForMenu;
    /// The last caller that was seen to be the same user.
    std::string m_trusted;
};

} // namespace MenuExtension
