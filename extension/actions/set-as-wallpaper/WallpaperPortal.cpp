#include "WallpaperPortal.h"

#include "extension/bus/SessionBus.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <unistd.h>

namespace MenuExtension::WallpaperPortal {

namespace {

constexpr const char* portal = "org.freedesktop.portal.Desktop";
/// The bus may start the portal first.
constexpr std::chrono::seconds patience{10};

/// What the portal has said, or that it is gone.
using Response = std::optional<std::uint32_t>;

constexpr std::uint32_t success = 0;
constexpr std::uint32_t cancelled = 1;
constexpr std::uint32_t failed = 2;

int takeResponse(sd_bus_message* message, void* response, sd_bus_error*)
{
    std::uint32_t code = failed;
    sd_bus_message_read(message, "u", &code);
    *static_cast<Response*>(response) = code;
    return 0;
}

int takeOwner(sd_bus_message* message, void* response, sd_bus_error*)
{
    const char* owner = nullptr;
    if (sd_bus_message_read(message, "sss", nullptr, nullptr, &owner) >= 0 && *owner == '\0')
        *static_cast<Response*>(response) = failed;
    return 0;
}

/// Where the portal will answer, as its documentation says.
std::string requestPath(sd_bus& bus, const std::string& token)
{
    const char* name = nullptr;
    sd_bus_get_unique_name(&bus, &name);
    std::string sender = name ? name + 1 : "";
    std::ranges::replace(sender, '.', '_');
    return "/org/freedesktop/portal/desktop/request/" + sender + '/' + token;
}

BusSlot awaitResponse(sd_bus& bus, const std::string& path, Response& response)
{
    sd_bus_slot* slot = nullptr;
    sd_bus_match_signal(&bus, &slot, portal, path.c_str(), "org.freedesktop.portal.Request", "Response", takeResponse,
                        &response);
    return BusSlot(slot);
}

BusSlot awaitEnd(sd_bus& bus, Response& response)
{
    sd_bus_slot* slot = nullptr;
    sd_bus_add_match(&bus, &slot,
                     "type='signal',sender='org.freedesktop.DBus',interface='org.freedesktop.DBus',"
                     "member='NameOwnerChanged',arg0='org.freedesktop.portal.Desktop'",
                     takeOwner, &response);
    return BusSlot(slot);
}

} // namespace

Answer set(const LinuxDesktop::FileDescriptor& picture)
{
    const Bus bus = openSessionBus();
    if (!bus)
        return Answer::Nobody;
    Response response;
    const std::string token = "orvik_menu_" + std::to_string(::getpid());
    const std::string path = requestPath(*bus, token);
    const BusSlot answered = awaitResponse(*bus, path, response);
    const BusSlot ended = awaitEnd(*bus, response);

    const Message message = newCall(
        *bus, {portal, "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Wallpaper", "SetWallpaperFile"});
    if (message)
        sd_bus_message_append(message.get(), "sha{sv}", "", picture.get(), 3, "handle_token", "s", token.c_str(),
                              "show-preview", "b", 0, "set-on", "s", "background");
    const BusAnswer accepted = call(*bus, message, patience);
    if (!accepted.reply)
        return accepted.isNobody() ? Answer::Nobody : Answer::Failed;
    // Older portals choose a path of their own.
    const char* handle = nullptr;
    BusSlot answeredElsewhere;
    if (sd_bus_message_read(accepted.reply.get(), "o", &handle) >= 0 && path != handle)
        answeredElsewhere = awaitResponse(*bus, handle, response);

    while (!response) {
        int result = sd_bus_process(bus.get(), nullptr);
        if (result == 0)
            result = sd_bus_wait(bus.get(), UINT64_MAX);
        if (result < 0 && result != -EINTR)
            return Answer::Failed;
    }
    if (*response == success)
        return Answer::Set;
    return *response == cancelled ? Answer::Cancelled : Answer::Failed;
}

} // namespace MenuExtension::WallpaperPortal
