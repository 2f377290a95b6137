#include "extension/bus/SessionBus.h"

#include "platform/linux/bus/interfaces/DistributedNotificationCenter.h"
#include "settings/Deployment.h"

#include <cerrno>

namespace MenuExtension {

namespace {

/// An error of the bus, by its last part.
bool endsAs(const std::string& error, std::initializer_list<std::string_view> names)
{
    constexpr std::string_view prefix = "org.freedesktop.DBus.Error.";
    if (!error.starts_with(prefix))
        return false;
    for (const std::string_view name : names) {
        if (std::string_view(error).substr(prefix.size()) == name)
            return true;
    }
    return false;
}

} // namespace

Message newCall(sd_bus& bus, const BusMethod& method)
{
    sd_bus_message* made = nullptr;
    sd_bus_message_new_method_call(&bus, &made, method.destination, method.path, method.interface, method.member);
    return Message(made);
}

bool BusAnswer::isLate() const
{
    return endsAs(error, {"NoReply", "Timeout", "TimedOut"});
}

bool BusAnswer::isNobody() const
{
    return endsAs(error, {"ServiceUnknown", "NameHasNoOwner", "UnknownObject", "UnknownInterface", "UnknownMethod",
                          "Disconnected", "Spawn.ServiceNotFound"});
}

BusAnswer call(sd_bus& bus, const Message& call, std::chrono::microseconds patience)
{
    sd_bus_message* reply = nullptr;
    sd_bus_error error{};
    const auto time = static_cast<std::uint64_t>(patience.count());
    const int result = call ? sd_bus_call(&bus, call.get(), time, &error, &reply) : -EINVAL;
    BusAnswer answer{Message(reply), {}, {}};
    if (result < 0) {
        answer.error = error.name ? error.name : "org.freedesktop.DBus.Error.Failed";
        answer.words = error.message ? error.message : "";
    }
    sd_bus_error_free(&error);
    return answer;
}

bool isOnBus(sd_bus& bus, const char* name)
{
    return sd_bus_get_name_creds(&bus, name, 0, nullptr) >= 0;
}

void post(sd_bus& bus, std::string_view notification)
{
    using namespace BusInterface::DistributedNotificationCenter;
    const std::string name(notification);
    const std::string object(Deployment::extensionIdentifier);
    sd_bus_emit_signal(&bus, path, interface, Posted::name, Posted::type, name.c_str(), object.c_str());
    sd_bus_flush(&bus);
}

} // namespace MenuExtension
