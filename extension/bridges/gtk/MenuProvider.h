#pragma once

#include "extension/bridges/gtk/Clicked.h"
#include "extension/bridges/gtk/CompanionCopy.h"
#include "extension/bridges/gtk/Quietly.h"
#include "extension/bridges/gtk/RunCall.h"
#include "extension/bridges/gtk/Toolkit.h"

#include <algorithm>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace MenuExtension {

/// What a file manager asks for items of its menu. `Host` has its names for what all of them have:
///   File, Item, Submenu                     types: what it shows, an item of a menu, a menu below an item
///   location, isFolder, mimeType            of a file
///   newItem, newSubmenu, append, setSubmenu
///   interfaceType, Interface                what a provider implements
///   implement(Interface&)                   puts the entry points in
///   itemsChanged(GObject*)                  tells the host that what this provider has given is outdated
template<class Host>
class MenuProvider {
public:
    static constexpr const char* typeName = "OrvikMenuProvider";

    static const GTypeInfo& typeInfo()
    {
        static constexpr GTypeInfo info{sizeof(GObjectClass), nullptr, nullptr, nullptr, nullptr, nullptr,
                                        sizeof(GObject),      0,       &begin,  nullptr};
        return info;
    }

    static const GInterfaceInfo& interfaceInfo()
    {
        static constexpr GInterfaceInfo info{&implement, nullptr, nullptr};
        return info;
    }

    static GType registerIn(GTypeModule& module)
    {
        const GType type = g_type_module_register_type(&module, G_TYPE_OBJECT, typeName, &typeInfo(), GTypeFlags(0));
        g_type_module_add_interface(&module, type, Host::interfaceType(), &interfaceInfo());
        return type;
    }

    /// The items for selected files, a list of Host::File.
    static GList* itemsForFiles(GList* files) noexcept
    {
        GList* items = nullptr;
        quietly([&] { items = itemsFor(files, false); });
        return items;
    }

    /// The items for the background of a folder.
    static GList* itemsForBackground(typename Host::File* folder) noexcept
    {
        GList* items = nullptr;
        GList files{folder, nullptr, nullptr};
        quietly([&] { items = itemsFor(folder ? &files : nullptr, true); });
        return items;
    }

private:
    using Item = typename Host::Item;
    using Items = std::vector<Reference<Item>>;

    struct Look {
        std::string name;
        std::string_view title;
        const char* tip = "";
        /// In the icon theme; nothing for none.
        const char* icon = nullptr;
    };

    /// What an item does.
    struct Choice {
        std::string action;
        /// The folder to move or copy to; empty where the action does not need one or asks for it.
        std::string target;
        std::shared_ptr<const Clicked> clicked;
    };

    /// What all providers of the process share, for as long as it runs.
    struct Shared {
        std::vector<GObject*> providers;
        CompanionCopy copy{[this] { tellHost(); }};
        unsigned changes = 0;

        void tellHost()
        {
            ++changes;
            std::vector<Reference<GObject>> all;
            for (GObject* provider : providers)
                all.emplace_back(static_cast<GObject*>(g_object_ref(provider)));
            for (const auto& provider : all)
                Host::itemsChanged(*provider);
        }
    };

    static Shared& shared()
    {
        static Shared& one = *new Shared;
        return one;
    }

    static void begin(GTypeInstance* instance, gpointer) noexcept
    {
        quietly([&] {
            auto* provider = reinterpret_cast<GObject*>(instance);
            shared().providers.push_back(provider);
            g_object_weak_ref(provider, &end, nullptr);
        });
    }

    static void end(gpointer, GObject* provider) noexcept { std::erase(shared().providers, provider); }

    static void implement(gpointer interface, gpointer)
    {
        Host::implement(*static_cast<typename Host::Interface*>(interface));
    }

    static GList* itemsFor(const GList* files, bool isBackground)
    {
        const MenuSettings& settings = shared().copy.settings();
        if (settings.actions.empty())
            return nullptr;
        const auto clicked = std::make_shared<Clicked>();
        clicked->isBackground = isBackground;
        Selection selection{.items = {}, .isBackground = isBackground};
        bool arePictures = !isBackground;
        std::size_t bytes = 0;
        for (; files; files = files->next) {
            auto* file = static_cast<typename Host::File*>(files->data);
            const std::string& path =
                clicked->paths.emplace_back(localPath(Reference<GFile>(Host::location(file)).get()));
            bytes += path.size();
            if (bytes > mostPathBytes ||
                !(isBackground ? settings.scope.containsBackground(path) : settings.scope.containsItem(path)))
                return nullptr;
            // What is in a file is asked only as long as the answer makes a difference.
            const bool isFolder = Host::isFolder(file) != FALSE;
            arePictures = arePictures && !isFolder && isPicture(Text(Host::mimeType(file)).get());
            selection.items.push_back({.path = {}, .isFolder = isFolder, .isPicture = arePictures});
        }
        for (std::size_t index = 0; index < selection.items.size(); ++index)
            selection.items[index].path = clicked->paths[index];
        return itemsOf(makeMenu(settings, selection), clicked);
    }

    static bool isPicture(const char* mimeType)
    {
        return mimeType && std::string_view(mimeType).starts_with("image/");
    }

    static GList* itemsOf(const Menu& menu, const std::shared_ptr<const Clicked>& clicked)
    {
        // Hosts tell items by their names, those of files from those of backgrounds too, and leave an item that they
        // know where it was, whatever its place has become.
        const std::string name = (clicked->isBackground ? "OrvikMenu::background-" : "OrvikMenu::item-") +
                                 std::to_string(shared().changes);
        Items items;
        for (const auto& [action, targets] : menu.entries) {
            const Look look{.name = name + '-' + action->identifier,
                            .title = action->title,
                            .icon = menu.showIcons ? action->icon.c_str() : nullptr};
            const Choice choice{.action = action->identifier, .target = {}, .clicked = clicked};
            items.push_back(targets.empty() ? newItem(look, choice)
                                            : newSubmenu(look, itemsOf(targets, look, choice, menu)));
        }
        if (menu.inSubmenu && !items.empty()) {
            Items one;
            one.push_back(newSubmenu({.name = name, .title = submenuTitle}, std::move(items)));
            items = std::move(one);
        }
        GList* list = nullptr;
        while (!items.empty()) {
            list = g_list_prepend(list, items.back().release());
            items.pop_back();
        }
        return list;
    }

    /// For each target an item that does the choice with it, and one that leaves it to be asked for.
    static Items itemsOf(std::span<const Target> targets, const Look& parent, const Choice& choice, const Menu& menu)
    {
        Items items;
        const auto add = [&](std::string_view title, const std::string& path, const char* tip, const char* icon) {
            const std::string name = parent.name + '-' + std::to_string(items.size());
            items.push_back(newItem({.name = name, .title = title, .tip = tip, .icon = icon},
                                    {.action = choice.action, .target = path, .clicked = choice.clicked}));
        };
        for (const Target& target : targets)
            add(target.title, target.path, target.description.c_str(), menu.showIcons ? targetIcon : nullptr);
        add(menu.otherFolder->title, {}, menu.otherFolder->description.c_str(), nullptr);
        return items;
    }

    static Reference<Item> newSubmenu(const Look& look, Items items)
    {
        const Reference<typename Host::Submenu> submenu(Host::newSubmenu());
        for (const auto& item : items)
            Host::append(submenu.get(), item.get());
        if (submenusKeepItems())
            g_object_weak_ref(G_OBJECT(submenu.get()), &release, new Items(std::move(items)));
        Reference<Item> item = newItem(look);
        Host::setSubmenu(item.get(), submenu.get());
        return item;
    }

    /// Whether the items of a submenu that is gone are still there: some libraries forget to let go of them.
    static bool submenusKeepItems()
    {
        static const bool keep = [] {
            const Reference<Item> item = newItem({.name = "OrvikMenu", .title = submenuTitle});
            Host::append(Reference<typename Host::Submenu>(Host::newSubmenu()).get(), item.get());
            const bool kept = G_OBJECT(item.get())->ref_count > 1;
            if (kept)
                g_object_unref(item.get());
            return kept;
        }();
        return keep;
    }

    /// Lets go of the items of a submenu that is about to be gone, in its place.
    static void release(gpointer data, GObject*) noexcept
    {
        const std::unique_ptr<Items> items(static_cast<Items*>(data));
        for (const auto& item : *items)
            g_object_unref(item.get());
    }

    static Reference<Item> newItem(const Look& look)
    {
        return Reference<Item>(Host::newItem(look.name.c_str(), asLabel(look.title).c_str(), look.tip, look.icon));
    }

    static Reference<Item> newItem(const Look& look, const Choice& choice)
    {
        Reference<Item> item = newItem(look);
        g_signal_connect_data(item.get(), "activate", G_CALLBACK(&activate), new Choice(choice), &forget,
                              GConnectFlags(0));
        return item;
    }

    /// To each of the hosts an underscore marks a key, unless there are two.
    static std::string asLabel(std::string_view title)
    {
        std::string label;
        for (const char character : title)
            label.append(character == '_' ? 2 : 1, character);
        return label;
    }

    static void activate(Item*, gpointer data) noexcept
    {
        quietly([&] {
            const auto& [action, target, clicked] = *static_cast<const Choice*>(data);
            if (action == actionOfFileManager)
                Toolkit::copyText(pathsAsText(*clicked));
            else if (GDBusConnection* companion = shared().copy.connection())
                callRun(*companion, action, *clicked, target, Toolkit::activationToken());
        });
    }

    static void forget(gpointer choice, GClosure*) { delete static_cast<Choice*>(choice); }
};

} // namespace MenuExtension
