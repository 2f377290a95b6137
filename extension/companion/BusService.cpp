#include "extension/companion/BusService.h"

#include "extension/bus/BusText.h"
#include "extension/menu/Targets.h"
#include "platform/LocalizedString.h"
#include "platform/linux/bus/interfaces/FinderSyncExtension.h"
#include "platform/linux/bus/interfaces/FinderSyncMenu.h"
#include "platform/linux/bus/interfaces/ObjectPath.h"
#include "settings/Deployment.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string_view>
#include <tuple>
#include <unistd.h>

namespace MenuExtension {

namespace {

namespace Extension = BusInterface::FinderSyncExtension;
namespace ForMenu = BusInterface::FinderSyncMenu;

const std::string name{Deployment::extensionIdentifier};
const std::string path = BusInterface::objectPath(name);

/// The property of that name and type, in whichever interface.
template<class Property, class Named>
concept Is = std::string_view(Property::name)
== Named::name&& std::string_view(Property::type) == Named::type;

/// What each property shows.
struct Shown {
    using State = CompanionState;
    static const auto& as(Is<Extension::DirectoryURLs> auto, const State& state) { return state.directoryURLs; }
    static const auto& as(Is<Extension::Actions> auto, const State& state) { return state.actions; }
    static const auto& as(Is<Extension::MenuItems> auto, const State& state) { return state.settings.menuItems; }
    static const auto& as(Is<Extension::Folders> auto, const State& state) { return state.settings.folders; }
    static const auto& as(Is<Extension::CustomFolders> auto, const State& state)
    {
        return state.settings.customFolders;
    }
    static bool as(Is<Extension::ShowMenuIcon> auto, const State& state) { return state.settings.showMenuIcon; }
    static bool as(Is<Extension::ShowInSubmenu> auto, const State& state) { return state.settings.showInSubmenu; }
    static const auto& as(Is<ForMenu::Scope> auto, const State& state) { return state.settings.folders; }
    static std::vector<std::string> as(Is<ForMenu::OtherFolder> auto, const State&)
    {
        return {NS::LocalizedString("Menu", otherFolderTitle), NS::LocalizedString("Menu", otherFolderDescription)};
    }
};

// Negative error numbers go to the library, which answers whoever asked with them. An element whose text is not for
// the bus is left out, so that it takes no others with it.

int append(sd_bus_message& reply, const std::string& text)
{
    return isForBus(text) ? sd_bus_message_append(&reply, "s", text.c_str()) : 0;
}

int appendPair(sd_bus_message& reply, const std::string& text, bool flag)
{
    return isForBus(text) ? sd_bus_message_append(&reply, "(sb)", text.c_str(), static_cast<int>(flag)) : 0;
}

int append(sd_bus_message& reply, const MenuItem& item)
{
    return appendPair(reply, item.title, item.state);
}

int append(sd_bus_message& reply, const Folder& folder)
{
    return appendPair(reply, folder.path, folder.active);
}

int append(sd_bus_message& reply, const MenuAction& action)
{
    return sd_bus_message_append(&reply, "(sssu)", action.identifier.c_str(), action.title.c_str(),
                                 action.icon.c_str(), action.appliesTo);
}

template<class Property>
int appendValue(sd_bus_message& reply, Property, bool flag)
{
    return sd_bus_message_append(&reply, Property::type, static_cast<int>(flag));
}

int appendValue(sd_bus_message& reply, ForMenu::Scope, const std::vector<Folder>& folders)
{
    const std::string bytes = bytesOf(folders);
    return sd_bus_message_append_array(&reply, SD_BUS_TYPE_BYTE, bytes.data(), bytes.size());
}

template<class Property, class Element>
int appendValue(sd_bus_message& reply, Property, const std::vector<Element>& elements)
{
    int result = sd_bus_message_open_container(&reply, SD_BUS_TYPE_ARRAY, Property::type + 1);
    for (auto element = elements.begin(); result >= 0 && element != elements.end(); ++element)
        result = append(reply, *element);
    return result < 0 ? result : sd_bus_message_close_container(&reply);
}

/// Asks the bus, and waits for what it says.
bool isOfSameUser(sd_bus& bus, const std::string& caller)
{
    sd_bus_creds* found = nullptr;
    const int result = sd_bus_get_name_creds(&bus, caller.c_str(), SD_BUS_CREDS_EUID, &found);
    const std::unique_ptr<sd_bus_creds, Release<sd_bus_creds_unref>> credentials(found);
    uid_t user = 0;
    return result >= 0 && sd_bus_creds_get_euid(credentials.get(), &user) >= 0 && user == ::geteuid();
}

template<class... Property>
std::vector<const char*> changedProperties(std::tuple<Property...>, const CompanionState& before,
                                           const CompanionState& now)
{
    std::vector<const char*> names;
    const auto note = [&](const char* property, bool same) {
        if (!same)
            names.push_back(property);
    };
    (note(Property::name, Shown::as(Property(), before) == Shown::as(Property(), now)), ...);
    return names;
}

} // namespace

/// What the library calls.
struct BusService::Object {
    static bool isTrusted(sd_bus_message* call, BusService& service)
    {
        const char* caller = sd_bus_message_get_sender(call);
        return caller && service.trusts(caller);
    }

    static int refuse(sd_bus_message* call)
    {
        return sd_bus_reply_method_errorf(call, SD_BUS_ERROR_ACCESS_DENIED, "Only its own user may ask for this.");
    }

    static int answer(Extension::Quit, sd_bus_message* call, BusService& service)
    {
        if (!isTrusted(call, service))
            return refuse(call);
        service.m_requests.quit();
        return sd_bus_reply_method_return(call, Extension::Quit::gives);
    }

    static int answer(Extension::Run, sd_bus_message* call, BusService& service)
    {
        if (!isTrusted(call, service))
            return refuse(call);
        RunCall asked;
        const auto wrong = parse(*call, asked);
        service.m_requests.run(
            asked, wrong,
            [kept = std::shared_ptr<sd_bus_message>(sd_bus_message_ref(call), sd_bus_message_unref)](
                const std::optional<Refusal>& refusal) { reply(kept.get(), refusal); });
        return 1;
    }

    static void reply(sd_bus_message* call, const std::optional<Refusal>& refusal)
    {
        if (!refusal)
            sd_bus_reply_method_return(call, Extension::Run::gives);
        else if (sd_bus_reply_method_errorf(call, errorName(refusal->kind).c_str(), "%s", refusal->words.c_str()) < 0)
            // Words that are not for the bus.
            sd_bus_reply_method_errorf(call, errorName(refusal->kind).c_str(), "It could not be done.");
    }

    template<class Method>
    static int handle(sd_bus_message* call, void* service, sd_bus_error*)
    {
        return answer(Method(), call, *static_cast<BusService*>(service));
    }

    template<class Property>
    static int get(sd_bus*, const char*, const char*, const char*, sd_bus_message* reply, void* service,
                   sd_bus_error*)
    {
        return appendValue(*reply, Property(), Shown::as(Property(), static_cast<BusService*>(service)->m_state));
    }

    /// `emits` says how changes of the properties are told.
    template<std::uint64_t emits, class... Method, class... Property>
    static constexpr auto table(std::tuple<Method...>, std::tuple<Property...>)
    {
        return std::array<sd_bus_vtable, sizeof...(Method) + sizeof...(Property) + 2>{{
            SD_BUS_VTABLE_START(0),
            SD_BUS_METHOD_WITH_NAMES(Method::name, Method::takes, Method::argumentNames, Method::gives, ,
                                     &handle<Method>, SD_BUS_VTABLE_UNPRIVILEGED)...,
            SD_BUS_PROPERTY(Property::name, Property::type, &get<Property>, 0, emits)...,
            SD_BUS_VTABLE_END,
        }};
    }
};

BusService::BusService(sd_bus& bus, const CompanionState& state, BusRequests& requests)
    : m_bus(bus), m_state(state), m_requests(requests)
{}

int BusService::publish()
{
    static const auto extension =
        Object::table<SD_BUS_VTABLE_PROPERTY_EMITS_CHANGE>(Extension::Methods(), Extension::Properties());
    static const auto forMenu =
        Object::table<SD_BUS_VTABLE_PROPERTY_EMITS_INVALIDATION>(ForMenu::Methods(), ForMenu::Properties());
    const auto add = [this](const char* interface, const sd_bus_vtable* table, BusSlot& kept) {
        sd_bus_slot* slot = nullptr;
        const int result = sd_bus_add_object_vtable(&m_bus, &slot, path.c_str(), interface, table, this);
        kept.reset(slot);
        return result;
    };
    const int result = add(Extension::interface, extension.data(), m_object);
    return result < 0 ? result : add(ForMenu::interface, forMenu.data(), m_objectForMenu);
}

int BusService::claimName()
{
    return sd_bus_request_name(&m_bus, name.c_str(), 0);
}

/// A unique name stays with its owner for as long as there is the bus.
bool BusService::trusts(const std::string& caller)
{
    if (caller != m_trusted && isOfSameUser(m_bus, caller))
        m_trusted = caller;
    return caller == m_trusted;
}

void BusService::announceChangesSince(const CompanionState& before)
{
    const auto announce = [this](const char* interface, std::vector<const char*> names) {
        if (names.empty())
            return;
        names.push_back(nullptr);
        // The library changes no name.
        sd_bus_emit_properties_changed_strv(&m_bus, path.c_str(), interface, const_cast<char**>(names.data()));
    };
    announce(ForMenu::interface, changedProperties(ForMenu::Properties(), before, m_state));
    announce(Extension::interface, changedProperties(Extension::Properties(), before, m_state));
}

} // namespace MenuExtension
