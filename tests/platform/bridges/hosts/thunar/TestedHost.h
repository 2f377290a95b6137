#pragma once

#include "../HostFile.h"

#include <gtk/gtk.h>
extern "C" {
#include <thunarx/thunarx.h>
}

struct TestedHost {
    using Item = ThunarxMenuItem;
    static constexpr const char* toolkit = "libgtk-3.so.0";
    static constexpr const char* entryPrefix = "thunar_extension_";
    static constexpr bool isToldOfChanges = false;
    static constexpr const char* tip = "tooltip";

    static constexpr auto fileType = thunarx_file_info_get_type;
    static constexpr auto itemsOf = thunarx_menu_get_items;
    using Submenu = ThunarxMenu;

    static void activate(Item* item) { static_cast<void>(thunarx_menu_item_activate(item)); }

    /// Its modules register their types by an interface.
    static void completeModule(GType type)
    {
        static const GInterfaceInfo info{&implementPlugin, nullptr, nullptr};
        g_type_add_interface_static(type, THUNARX_TYPE_PROVIDER_PLUGIN, &info);
    }

    static void completeClass(GObjectClass& type)
    {
        type.get_property = [](GObject*, guint, GValue*, GParamSpec*) {};
        type.set_property = [](GObject*, guint, const GValue*, GParamSpec*) {};
        g_object_class_override_property(&type, 1, "resident");
    }

    static void implementFile(gpointer type, gpointer)
    {
        auto& interface = *static_cast<ThunarxFileInfoIface*>(type);
        interface.get_location = &HostFile::answerLocation<ThunarxFileInfo>;
        interface.is_directory = &HostFile::answerIsFolder<ThunarxFileInfo>;
        interface.get_mime_type = &HostFile::answerMimeType<ThunarxFileInfo>;
    }

    // The library's own functions insist on a window.
    static GList* itemsForFiles(GObject* provider, GList* files)
    {
        auto* asked = THUNARX_MENU_PROVIDER(provider);
        return THUNARX_MENU_PROVIDER_GET_IFACE(asked)->get_file_menu_items(asked, nullptr, files);
    }

    static GList* itemsForBackground(GObject* provider, HostFile* folder)
    {
        auto* asked = THUNARX_MENU_PROVIDER(provider);
        return THUNARX_MENU_PROVIDER_GET_IFACE(asked)->get_folder_menu_items(
            asked, nullptr, reinterpret_cast<ThunarxFileInfo*>(folder));
    }

private:
    static void implementPlugin(gpointer type, gpointer)
    {
        auto& interface = *static_cast<ThunarxProviderPluginIface*>(type);
        interface.set_resident = [](ThunarxProviderPlugin*, gboolean) {};
        interface.register_type = [](ThunarxProviderPlugin* plugin, GType parent, const char* name,
                                     const GTypeInfo* info, GTypeFlags flags) {
            return g_type_module_register_type(G_TYPE_MODULE(plugin), parent, name, info, flags);
        };
        interface.add_interface = [](ThunarxProviderPlugin* plugin, GType instance, GType added,
                                     const GInterfaceInfo* info) {
            g_type_module_add_interface(G_TYPE_MODULE(plugin), instance, added, info);
        };
    }
};
