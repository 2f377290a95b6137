#pragma once

#include <memory>
#include <systemd/sd-bus.h>
#include <systemd/sd-event.h>

/// Owners of the event loop's and the bus's objects.
namespace MenuExtension {

template<auto release>
struct Release {
    template<class Object>
    void operator()(Object* object) const
    {
        release(object);
    }
};

using Event = std::unique_ptr<sd_event, Release<sd_event_unref>>;
using EventSource = std::unique_ptr<sd_event_source, Release<sd_event_source_disable_unref>>;
/// Its end sends what is not sent yet.
using Bus = std::unique_ptr<sd_bus, Release<sd_bus_flush_close_unref>>;
using BusSlot = std::unique_ptr<sd_bus_slot, Release<sd_bus_slot_unref>>;

} // namespace MenuExtension
