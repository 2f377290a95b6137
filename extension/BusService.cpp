#include "extension/BusService.h"

#include "extension/BusNames.h"

#include <array>
#include <cerrno>
#include <utility>

namespace MenuExtension {

namespace {

constexpr const char* directoryURLs = "DirectoryURLs";
constexpr const char* menuItems = "MenuItems";
constexpr const char* folders = "Folders";
constexpr const char* customFolders = "CustomFolders";
constexpr const char* showMenuIcon = "ShowMenuIcon";
constexpr const char* showInSubmenu = "ShowInSubmenu";

// Negative error numbers go to the library, which answers whoever asked with them.

int append(sd_bus_message& reply, bool flag)
{
    return sd_bus_message_append(&reply, "b", static_cast<int>(flag));
}

int append(sd_bus_message& reply, const std::string& text)
{
    return sd_bus_message_append(&reply, "s", text.c_str());
}

int append(sd_bus_message& reply, const MenuItem& item)
{
    return sd_bus_message_append(&reply, "(sb)", item.title.c_str(), static_cast<int>(item.state));
}

int append(sd_bus_message& reply, const Folder& folder)
{
    return sd_bus_message_append(&reply, "(sb)", folder.path.c_str(), static_cast<int>(folder.active));
}

template<class Element>
int appendArray(sd_bus_message& reply, const char* type, const std::vector<Element>& elements)
{
    int result = sd_bus_message_open_container(&reply, SD_BUS_TYPE_ARRAY, type);
    for (auto element = elements.begin(); result >= 0 && element != elements.end(); ++element)
        result = append(reply, *element);
    return result < 0 ? result : sd_bus_message_close_container(&reply);
}

} // namespace

/// What the library calls.
struct BusService::Object {
    static int quit(sd_bus_message* call, void* service, sd_bus_error*)
    {
        static_cast<BusService*>(service)->m_quit();
        return sd_bus_reply_method_return(call, "");
    }

    using Append = int (*)(sd_bus_message& reply, const CompanionState& state);

    template<Append append>
    static int get(sd_bus*, const char*, const char*, const char*, sd_bus_message* reply, void* service,
                   sd_bus_error*)
    {
        return append(*reply, static_cast<BusService*>(service)->m_state);
    }

    static int getDirectoryURLs(sd_bus_message& reply, const CompanionState& state)
    {
        return appendArray(reply, "s", state.directoryURLs);
    }
    static int getMenuItems(sd_bus_message& reply, const CompanionState& state)
    {
        return appendArray(reply, "(sb)", state.settings.menuItems);
    }
    static int getFolders(sd_bus_message& reply, const CompanionState& state)
    {
        return appendArray(reply, "(sb)", state.settings.folders);
    }
    static int getCustomFolders(sd_bus_message& reply, const CompanionState& state)
    {
        return appendArray(reply, "s", state.settings.customFolders);
    }
    static int getShowMenuIcon(sd_bus_message& reply, const CompanionState& state)
    {
        return append(reply, state.settings.showMenuIcon);
    }
    static int getShowInSubmenu(sd_bus_message& reply, const CompanionState& state)
    {
        return append(reply, state.settings.showInSubmenu);
    }

    static constexpr auto announced = SD_BUS_VTABLE_PROPERTY_EMITS_CHANGE;
    static const std::array<sd_bus_vtable, 9> table;
};

const std::array<sd_bus_vtable, 9> BusService::Object::table{{
    SD_BUS_VTABLE_START(0),
    SD_BUS_METHOD("Quit", "", "", &Object::quit, SD_BUS_VTABLE_UNPRIVILEGED),
    SD_BUS_PROPERTY(directoryURLs, "as", &Object::get<&Object::getDirectoryURLs>, 0, announced),
    SD_BUS_PROPERTY(menuItems, "a(sb)", &Object::get<&Object::getMenuItems>, 0, announced),
    SD_BUS_PROPERTY(folders, "a(sb)", &Object::get<&Object::getFolders>, 0, announced),
    SD_BUS_PROPERTY(customFolders, "as", &Object::get<&Object::getCustomFolders>, 0, announced),
    SD_BUS_PROPERTY(showMenuIcon, "b", &Object::get<&Object::getShowMenuIcon>, 0, announced),
    SD_BUS_PROPERTY(showInSubmenu, "b", &Object::get<&Object::getShowInSubmenu>, 0, announced),
    SD_BUS_VTABLE_END,
}};

BusService::BusService(sd_bus& bus, const CompanionState& state, std::function<void()> quit)
    : m_bus(bus), m_state(state), m_quit(std::move(quit))
{}

int BusService::publish()
{
    sd_bus_slot* object = nullptr;
    const int result = sd_bus_add_object_vtable(&m_bus, &object, BusNames::companionPath.c_str(),
                                                BusNames::companionInterface, Object::table.data(), this);
    m_object.reset(object);
    return result;
}

int BusService::claimName()
{
    return sd_bus_request_name(&m_bus, BusNames::companion.c_str(), 0);
}

void BusService::announceChangesSince(const CompanionState& before)
{
    const ExtensionSettings& now = m_state.settings;
    const ExtensionSettings& then = before.settings;
    std::vector<std::string> changed;
    const auto note = [&](bool same, const char* property) {
        if (!same)
            changed.emplace_back(property);
    };
    note(m_state.directoryURLs == before.directoryURLs, directoryURLs);
    note(now.menuItems == then.menuItems, menuItems);
    note(now.folders == then.folders, folders);
    note(now.customFolders == then.customFolders, customFolders);
    note(now.showMenuIcon == then.showMenuIcon, showMenuIcon);
    note(now.showInSubmenu == then.showInSubmenu, showInSubmenu);
    if (changed.empty())
        return;

    std::vector<char*> names;
    for (std::string& name : changed)
        names.push_back(name.data());
    names.push_back(nullptr);
    // Values that the bus cannot carry (it takes fewer characters than a settings file) are nobody's loss: who reads
    // them is told so.
    sd_bus_emit_properties_changed_strv(&m_bus, BusNames::companionPath.c_str(), BusNames::companionInterface,
                                        names.data());
}

} // namespace MenuExtension
