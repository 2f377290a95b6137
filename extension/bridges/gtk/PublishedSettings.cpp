#include "extension/bridges/gtk/PublishedSettings.h"

#include "extension/bridges/gtk/Handles.h"
#include "platform/linux/bus/interfaces/FinderSyncMenu.h"

#include <algorithm>
#include <climits>
#include <optional>
#include <utility>

namespace MenuExtension {

namespace {

namespace Published = BusInterface::FinderSyncMenu;

constexpr std::size_t mostProperties = 100;
constexpr std::size_t mostActions = 100;
constexpr std::size_t longestName = 100;
constexpr std::size_t longestTitle = 1'000;

/// What makes sense in an icon theme and in the host's own names for what is in its menus.
bool isName(std::string_view text)
{
    return !text.empty() && text.size() <= longestName && std::ranges::all_of(text, [](char character) {
        return g_ascii_isalnum(character) || character == '-' || character == '_' || character == '.';
    });
}

bool isTitle(std::string_view text)
{
    return !text.empty() && text.size() <= longestTitle;
}

class Reader {
public:
    explicit Reader(GVariant& properties) : m_properties(properties) {}

    template<class Property>
    [[nodiscard]] bool flag(bool otherwise) const
    {
        const Variant value = find<Property>();
        return value ? g_variant_get_boolean(value.get()) != FALSE : otherwise;
    }

    [[nodiscard]] std::vector<MenuAction> actions() const
    {
        std::vector<MenuAction> actions;
        const Variant value = find<Published::Actions>();
        const std::size_t count = value ? g_variant_n_children(value.get()) : 0;
        for (std::size_t index = 0; index < count; ++index) {
            auto action = readAction(*Variant(g_variant_get_child_value(value.get(), index)));
            if (!action || count > mostActions)
                return {};
            if (std::ranges::find(actions, action->identifier, &MenuAction::identifier) == actions.end())
                actions.push_back(*std::move(action));
        }
        return actions;
    }

    [[nodiscard]] Scope scope() const
    {
        const Variant value = find<Published::Scope>();
        std::size_t count = 0;
        const void* bytes = value ? g_variant_get_fixed_array(value.get(), &count, 1) : nullptr;
        return Scope::fromBytes({static_cast<const char*>(bytes), count}).value_or(Scope());
    }

    /// Those that a menu may show.
    [[nodiscard]] std::vector<std::string> customFolders() const
    {
        const Variant value = find<Published::CustomFolders>();
        const std::size_t count = value ? g_variant_n_children(value.get()) : 0;
        std::vector<std::string> folders;
        for (std::size_t index = 0; index < std::min(count, mostTargets); ++index) {
            const Variant folder(g_variant_get_child_value(value.get(), index));
            std::size_t length = 0;
            const char* path = g_variant_get_string(folder.get(), &length);
            if (length < PATH_MAX)
                folders.emplace_back(path, length);
        }
        return folders;
    }

    [[nodiscard]] Target otherFolder(const Target& otherwise) const
    {
        const Variant value = find<Published::OtherFolder>();
        if (!value || g_variant_n_children(value.get()) != 2)
            return otherwise;
        const char* title = nullptr;
        const char* description = nullptr;
        g_variant_get_child(value.get(), 0, "&s", &title);
        g_variant_get_child(value.get(), 1, "&s", &description);
        return isTitle(title) && isTitle(description) ? Target{{}, title, description} : otherwise;
    }

private:
    template<class Property>
    [[nodiscard]] Variant find() const
    {
        return Variant(g_variant_lookup_value(&m_properties, Property::name, G_VARIANT_TYPE(Property::type)));
    }

    static std::optional<MenuAction> readAction(GVariant& element)
    {
        const char* identifier = nullptr;
        const char* title = nullptr;
        const char* icon = nullptr;
        guint32 appliesTo = 0;
        g_variant_get(&element, "(&s&s&su)", &identifier, &title, &icon, &appliesTo);
        if (!isName(identifier) || !isTitle(title) || !isName(icon))
            return std::nullopt;
        return MenuAction{identifier, title, icon, appliesTo};
    }

    GVariant& m_properties;
};

} // namespace

MenuSettings settingsFromProperties(GVariant& properties)
{
    MenuSettings settings;
    if (g_variant_n_children(&properties) > mostProperties)
        return settings;
    const Reader reader(properties);
    settings.actions = reader.actions();
    settings.scope = reader.scope();
    settings.targets = targetsOf(reader.customFolders());
    settings.otherFolder = reader.otherFolder(settings.otherFolder);
    settings.showIcons = reader.flag<Published::ShowMenuIcon>(settings.showIcons);
    settings.inSubmenu = reader.flag<Published::ShowInSubmenu>(settings.inSubmenu);
    return settings;
}

} // namespace MenuExtension
