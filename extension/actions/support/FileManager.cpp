#include "extension/actions/support/FileManager.h"

#include "extension/bus/SessionBus.h"
#include "platform/URL.h"
#include "platform/linux/store/PropertyList.h"

#include <cstdlib>

namespace MenuExtension::FileManager {

namespace {

/// A file manager may have to be started first.
constexpr std::chrono::seconds patience{10};
/// Whoever asks does run. A script that waits for its answer, or a shell's command, answers nothing meanwhile.
constexpr std::chrono::seconds patienceWithCaller{1};
constexpr const char* interface = "org.freedesktop.FileManager1";

/// So that the window comes to the front.
const char* activationToken()
{
    const char* token = std::getenv("XDG_ACTIVATION_TOKEN");
    return token && !LinuxDesktop::PropertyList::unstorableReason(NS::Value(std::string(token))) ? token : "";
}

BusAnswer show(sd_bus& bus, const char* manager, const char* member, const std::string& address)
{
    const Message message = newCall(bus, {manager, "/org/freedesktop/FileManager1", interface, member});
    if (message)
        sd_bus_message_append(message.get(), "ass", 1, address.c_str(), activationToken());
    return call(bus, message, patience);
}

/// Whether the program answers at all. It shows nothing for that: another can still be asked to, without two windows.
bool answers(sd_bus& bus, const char* program)
{
    const Message question =
        newCall(bus, {program, "/org/freedesktop/FileManager1", "org.freedesktop.DBus.Peer", "Ping"});
    return !call(bus, question, patienceWithCaller).isLate();
}

Shown show(const char* member, const std::string& path, const std::string& caller)
{
    const Bus bus = openSessionBus();
    if (!bus)
        return Shown::Nobody;
    const std::string address = NS::URL::fileURLWithPath(path).absoluteString();
    BusAnswer answer;
    // Only a program can be asked that has asked; a name may be anybody's.
    const bool knowsCaller = caller.starts_with(':');
    if (knowsCaller && answers(*bus, caller.c_str()))
        answer = show(*bus, caller.c_str(), member, address);
    if (!answer.reply && !answer.isLate())
        answer = show(*bus, interface, member, address);
    if (answer.reply)
        return Shown::Yes;
    return answer.isLate() ? Shown::Late : Shown::Nobody;
}

} // namespace

Shown showFolder(const std::string& folder, const std::string& caller)
{
    return show("ShowFolders", folder, caller);
}

Shown showItem(const std::string& item, const std::string& caller)
{
    return show("ShowItems", item, caller);
}

} // namespace MenuExtension::FileManager
