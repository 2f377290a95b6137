#include "extension/bus/OpenBus.h"

#include <cstdlib>

namespace MenuExtension {

Bus openSessionBus()
{
    // To the library an empty address is a wrong one; to everyone else it is none.
    if (const char* address = std::getenv("DBUS_SESSION_BUS_ADDRESS"); address && *address == '\0')
        ::unsetenv("DBUS_SESSION_BUS_ADDRESS");
    sd_bus* opened = nullptr;
    sd_bus_open_user(&opened);
    Bus bus(opened);
    // That there is somebody at the address is known when the bus has answered.
    const char* name = nullptr;
    if (bus && sd_bus_get_unique_name(bus.get(), &name) < 0)
        bus.reset();
    return bus;
}

} // namespace MenuExtension
