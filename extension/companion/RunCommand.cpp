#include "extension/companion/RunCommand.h"

#include "extension/bus/SessionBus.h"
#include "platform/linux/bus/interfaces/FinderSyncExtension.h"
#include "platform/linux/bus/interfaces/ObjectPath.h"
#include "platform/linux/system/Complaint.h"
#include "settings/Deployment.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace MenuExtension {

using LinuxDesktop::complain;

namespace {

using namespace BusInterface::FinderSyncExtension;

/// A link on the way is not resolved: the menu goes by the text of a path. What is no path, or begins in a folder
/// that is gone, becomes nothing, which the companion refuses.
std::string absolutePath(const std::string& path)
{
    std::error_code error;
    std::filesystem::path plain;
    for (const auto& name : std::filesystem::absolute(path, error)) {
        if (name != ".")
            plain /= name;
    }
    return plain.string();
}

bool append(sd_bus_message& call, const std::string& action, const std::vector<std::string>& paths)
{
    bool good = sd_bus_message_append_basic(&call, SD_BUS_TYPE_STRING, action.c_str()) >= 0 &&
                sd_bus_message_open_container(&call, SD_BUS_TYPE_ARRAY, "ay") >= 0;
    for (const std::string& path : paths) {
        const std::string absolute = absolutePath(path);
        good = good && sd_bus_message_append_array(&call, SD_BUS_TYPE_BYTE, absolute.data(), absolute.size()) >= 0;
    }
    return good && sd_bus_message_close_container(&call) >= 0 && sd_bus_message_append(&call, "a{sv}", 0) >= 0;
}

} // namespace

int runAction(const std::string& action, const std::vector<std::string>& paths)
{
    const Bus bus = openSessionBus();
    if (!bus) {
        complain("there is no session bus");
        return EXIT_FAILURE;
    }
    const std::string name(Deployment::extensionIdentifier);
    const std::string path = BusInterface::objectPath(name);
    const Message message = newCall(*bus, {name.c_str(), path.c_str(), interface, Run::name});
    // Only its switch starts the companion.
    if (!message || sd_bus_message_set_auto_start(message.get(), 0) < 0 || !append(*message, action, paths)) {
        complain("the request cannot be made of that");
        return EXIT_FAILURE;
    }
    const BusAnswer answer = call(*bus, message, std::chrono::microseconds::max());
    if (answer.reply)
        return EXIT_SUCCESS;
    complain(answer.isNobody() ? "the companion does not run; switch it on in Orvik Menu" : answer.words);
    return EXIT_FAILURE;
}

} // namespace MenuExtension
