#pragma once

#include "extension/bus/Handles.h"

#include <functional>
#include <string>
#include <vector>

namespace MenuExtension {

/// Follows the folders that the panel publishes on the bus. Only what the owner of the panel's name says counts.
class PanelLink {
public:
    using Published = std::function<void(std::vector<std::string> addresses)>;

    /// Calls `published` from the event loop whenever the panel names the folders to watch, also what it has named
    /// before it was found. The addresses are as it gave them. `bus` must outlive the link.
    PanelLink(sd_bus& bus, Published published);
    PanelLink(const PanelLink&) = delete;
    PanelLink& operator=(const PanelLink&) = delete;

    /// Begins; the answers come from the event loop. A negative error number when the bus did not take the questions.
    [[nodiscard]] int start();

private:
    template<int (PanelLink::*handle)(sd_bus_message&)>
    static int call(sd_bus_message* message, void* link, sd_bus_error*);

    int handleOwnerChange(sd_bus_message& message);
    int handleOwner(sd_bus_message& message);
    int handleSignal(sd_bus_message& message);
    int handleProperty(sd_bus_message& message);
    void setOwner(std::string owner);
    void publishFrom(sd_bus_message& message);

    sd_bus& m_bus;
    Published m_published;
    /// The panel's own name on the bus; empty while it does not run.
    std::string m_owner;
    BusSlot m_ownerChanges;
    BusSlot m_ownerQuestion;
    BusSlot m_signals;
    BusSlot m_propertyQuestion;
};

} // namespace MenuExtension
