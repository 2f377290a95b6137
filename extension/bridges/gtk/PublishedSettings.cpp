#include "extension/bridges/gtk/PublishedSettings.h"

#include "extension/bridges/gtk/Handles.h"
#include "platform/linux/bus/interfaces/FinderSyncExtension.h"

#include <algorithm>
#include <climits>
#include <optional>
#include <utility>

namespace MenuExtension {

namespace {

namespace Published = BusInterface::FinderSyncExtension;

constexpr std::size_t mostProperties = 100;
constexpr std::size_t mostActions = 100;
constexpr std::size_t mostFolders = 100'000;
constexpr std::size_t longestName = 100;
constexpr std::size_t longestTitle = 1'000;
/// Of all texts together.
constexpr std::size_t mostBytes = std::size_t(16) << 20U;

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

    [[nodiscard]] std::vector<MenuAction> actions()
    {
        std::vector<MenuAction> actions;
        const bool sound = forEach<Published::Actions>(mostActions, [&](GVariant& element) {
            auto action = readAction(element);
            if (!action)
                return false;
            if (std::ranges::find(actions, action->identifier, &MenuAction::identifier) == actions.end())
                actions.push_back(*std::move(action));
            return true;
        });
        return sound ? std::move(actions) : std::vector<MenuAction>();
    }

    [[nodiscard]] std::vector<Folder> folders()
    {
        std::vector<Folder> folders;
        const bool sound = forEach<Published::Folders>(mostFolders, [&](GVariant& element) {
            const char* path = nullptr;
            gboolean active = FALSE;
            g_variant_get(&element, "(&sb)", &path, &active);
            folders.push_back({path, active != FALSE});
            return take(folders.back().path);
        });
        return sound ? std::move(folders) : std::vector<Folder>();
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

private:
    template<class Property>
    [[nodiscard]] Variant find() const
    {
        return Variant(g_variant_lookup_value(&m_properties, Property::name, G_VARIANT_TYPE(Property::type)));
    }

    /// Whether there are no more elements than that, and all are sound to `read`.
    template<class Property, class Read>
    [[nodiscard]] bool forEach(std::size_t most, Read read) const
    {
        const Variant value = find<Property>();
        const std::size_t count = value ? g_variant_n_children(value.get()) : 0;
        bool sound = count <= most;
        for (std::size_t index = 0; sound && index < count; ++index) {
            const Variant element(g_variant_get_child_value(value.get(), index));
            sound = read(*element);
        }
        return sound;
    }

    [[nodiscard]] std::optional<MenuAction> readAction(GVariant& element)
    {
        const char* identifier = nullptr;
        const char* title = nullptr;
        const char* icon = nullptr;
        guint32 appliesTo = 0;
        g_variant_get(&element, "(&s&s&su)", &identifier, &title, &icon, &appliesTo);
        if (!isName(identifier) || !isTitle(title) || !isName(icon) || !take(title))
            return std::nullopt;
        return MenuAction{identifier, title, icon, appliesTo};
    }

    /// False when that is more text than there may be.
    [[nodiscard]] bool take(std::string_view text)
    {
        const bool enough = text.size() <= m_bytesLeft;
        m_bytesLeft -= enough ? text.size() : 0;
        return enough;
    }

    GVariant& m_properties;
    std::size_t m_bytesLeft = mostBytes;
};

} // namespace

MenuSettings settingsFromProperties(GVariant& properties)
{
    MenuSettings settings;
    if (g_variant_n_children(&properties) > mostProperties)
        return settings;
    Reader reader(properties);
    settings.actions = reader.actions();
    settings.scope = Scope(reader.folders());
    settings.targets = targetsOf(reader.customFolders());
    settings.showIcons = reader.flag<Published::ShowMenuIcon>(settings.showIcons);
    settings.inSubmenu = reader.flag<Published::ShowInSubmenu>(settings.inSubmenu);
    return settings;
}

} // namespace MenuExtension
