#pragma once

#include "extension/bridges/gtk/Clicked.h"
#include "extension/bridges/gtk/CompanionCopy.h"
#include "extension/bridges/gtk/Quietly.h"
#include "extension/bridges/gtk/RunCall.h"
#include "extension/bridges/gtk/Toolkit.h"

#include <algorithm>
#include <memory>
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
        std::vector<Reference<Item>> items;
        for (const MenuAction* action : menu.actions) {
            Item& item = *items.emplace_back(newItem(name + '-' + action->identifier, action->title,
                                                     menu.showIcons ? action->icon.c_str() : nullptr));
            g_signal_connect_data(&item, "activate", G_CALLBACK(&activate), new Choice{action->identifier, clicked},
                                  &forget, GConnectFlags(0));
        }
        if (menu.inSubmenu && !items.empty()) {
            const Reference<typename Host::Submenu> submenu(Host::newSubmenu());
            for (const auto& item : items)
                Host::append(submenu.get(), item.get());
            if (submenusKeepItems())
                g_object_weak_ref(G_OBJECT(submenu.get()), &release,
                                  new std::vector<Reference<Item>>(std::move(items)));
            items.clear();
            items.emplace_back(newItem(name, submenuTitle, nullptr));
            Host::setSubmenu(items.front().get(), submenu.get());
        }
        GList* list = nullptr;
        while (!items.empty()) {
            list = g_list_prepend(list, items.back().release());
            items.pop_back();
        }
        return list;
    }

    /// Whether the items of a submenu that is gone are still there: some libraries forget to let go of them.
    static bool submenusKeepItems()
    {
        static const bool keep = [] {
            const Reference<Item> item(newItem("OrvikMenu", submenuTitle, nullptr));
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
        const std::unique_ptr<std::vector<Reference<Item>>> items(static_cast<std::vector<Reference<Item>>*>(data));
        for (const auto& item : *items)
            g_object_unref(item.get());
    }

    static Item* newItem(const std::string& name, const std::string& title, const char* icon)
    {
        return Host::newItem(name.c_str(), asLabel(title).c_str(), "", icon);
    }

    /// To each of the hosts an underscore marks a key, unless there are two.
    static std::string asLabel(std::string_view title)
    {
        std::string label;
        for (const char character : title)
            label.append(character == '_' ? 2 : 1, character);
        return label;
    }

    /// What an item does.
    struct Choice {
        std::string action;
        std::shared_ptr<const Clicked> clicked;
    };

    static void activate(Item*, gpointer data) noexcept
    {
        quietly([&] {
            const auto& [action, clicked] = *static_cast<const Choice*>(data);
            if (action == actionOfFileManager)
                Toolkit::copyText(pathsAsText(*clicked));
            else if (GDBusConnection* companion = shared().copy.connection())
                callRun(*companion, action, *clicked, Toolkit::activationToken());
        });
    }

    static void forget(gpointer choice, GClosure*) { delete static_cast<Choice*>(choice); }
};

} // namespace MenuExtension
