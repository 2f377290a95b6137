#include "extension/companion/PanelLink.h"

#include "platform/linux/bus/interfaces/FinderSync.h"
#include "settings/Deployment.h"

#include <optional>
#include <string_view>
#include <utility>

namespace MenuExtension {

namespace Panel = BusInterface::FinderSync;

namespace {

const std::string panel{Deployment::applicationIdentifier};

constexpr const char* busName = "org.freedesktop.DBus";
constexpr const char* busPath = "/org/freedesktop/DBus";

/// The library reports this for a message handler that lets others see the message.
constexpr int handled = 0;

template<class Ask>
int keep(BusSlot& slot, Ask ask)
{
    sd_bus_slot* made = nullptr;
    const int result = ask(&made);
    slot.reset(made);
    return result;
}

bool isFrom(sd_bus_message& message, std::string_view sender)
{
    const char* actual = sd_bus_message_get_sender(&message);
    return actual && actual == sender;
}

/// The next argument, an array of strings.
std::optional<std::vector<std::string>> readStrings(sd_bus_message& message)
{
    if (sd_bus_message_enter_container(&message, SD_BUS_TYPE_ARRAY, "s") < 0)
        return std::nullopt;
    std::vector<std::string> strings;
    const char* text = nullptr;
    int result = 0;
    while ((result = sd_bus_message_read_basic(&message, SD_BUS_TYPE_STRING, &text)) > 0)
        strings.emplace_back(text);
    return result < 0 ? std::nullopt : std::optional(std::move(strings));
}

} // namespace

PanelLink::PanelLink(sd_bus& bus, Published published) : m_bus(bus), m_published(std::move(published)) {}

template<int (PanelLink::*handle)(sd_bus_message&)>
int PanelLink::call(sd_bus_message* message, void* link, sd_bus_error*)
{
    return (static_cast<PanelLink*>(link)->*handle)(*message);
}

/// The bus handles the questions in their order, so no change of the owner falls between them.
int PanelLink::start()
{
    const std::string rule = std::string("type='signal',sender='") + busName + "',path='" + busPath +
                             "',interface='" + busName + "',member='NameOwnerChanged',arg0='" + panel + "'";
    int result = keep(m_ownerChanges, [&](sd_bus_slot** slot) {
        return sd_bus_add_match_async(&m_bus, slot, rule.c_str(), call<&PanelLink::handleOwnerChange>, nullptr, this);
    });
    if (result < 0)
        return result;
    result = keep(m_signals, [&](sd_bus_slot** slot) {
        return sd_bus_match_signal_async(&m_bus, slot, panel.c_str(), Panel::path, Panel::interface,
                                         Panel::DirectoryURLs::name, call<&PanelLink::handleSignal>, nullptr, this);
    });
    if (result < 0)
        return result;
    return keep(m_ownerQuestion, [&](sd_bus_slot** slot) {
        return sd_bus_call_method_async(&m_bus, slot, busName, busPath, busName, "GetNameOwner",
                                        call<&PanelLink::handleOwner>, this, "s", panel.c_str());
    });
}

int PanelLink::handleOwner(sd_bus_message& message)
{
    const char* owner = nullptr;
    if (!sd_bus_message_is_method_error(&message, nullptr) && sd_bus_message_read(&message, "s", &owner) > 0)
        setOwner(owner);
    return handled;
}

int PanelLink::handleOwnerChange(sd_bus_message& message)
{
    const char* name = nullptr;
    const char* before = nullptr;
    const char* now = nullptr;
    // Anyone can send a message of this form to this process alone.
    if (isFrom(message, busName) && sd_bus_message_read(&message, "sss", &name, &before, &now) > 0)
        setOwner(now);
    return handled;
}

void PanelLink::setOwner(std::string owner)
{
    if (owner == m_owner)
        return;
    m_owner = std::move(owner);
    m_propertyQuestion.reset();
    if (m_owner.empty())
        return;
    // Without an answer the signals will do; the panel may not have published anything yet.
    keep(m_propertyQuestion, [&](sd_bus_slot** slot) {
        return sd_bus_call_method_async(&m_bus, slot, m_owner.c_str(), Panel::path, "org.freedesktop.DBus.Properties",
                                        "Get", call<&PanelLink::handleProperty>, this, "ss", Panel::interface,
                                        Panel::directoryURLs::name);
    });
}

int PanelLink::handleProperty(sd_bus_message& message)
{
    if (!sd_bus_message_is_method_error(&message, nullptr) &&
        sd_bus_message_enter_container(&message, SD_BUS_TYPE_VARIANT, Panel::directoryURLs::type) > 0)
        publishFrom(message);
    return handled;
}

int PanelLink::handleSignal(sd_bus_message& message)
{
    if (isFrom(message, m_owner))
        publishFrom(message);
    return handled;
}

void PanelLink::publishFrom(sd_bus_message& message)
{
    if (auto addresses = readStrings(message))
        m_published(std::move(*addresses));
}

} // namespace MenuExtension
