#include "extension/bridges/gtk/MenuProvider.h"

#include <gtk/gtk.h>

// Its own headers lack this around some of what they declare.
extern "C" {
#include <thunarx/thunarx.h>
}

namespace {

struct Thunar {
    using File = ThunarxFileInfo;
    using Item = ThunarxMenuItem;
    using Submenu = ThunarxMenu;
    using Interface = ThunarxMenuProviderIface;

    static constexpr auto location = thunarx_file_info_get_location;
    static constexpr auto isFolder = thunarx_file_info_is_directory;
    static constexpr auto mimeType = thunarx_file_info_get_mime_type;
    static constexpr auto newItem = thunarx_menu_item_new;
    static constexpr auto newSubmenu = thunarx_menu_new;
    static constexpr auto append = thunarx_menu_append_item;
    static constexpr auto setSubmenu = thunarx_menu_item_set_menu;
    static constexpr auto interfaceType = thunarx_menu_provider_get_type;

    /// It asks each time.
    static void itemsChanged(GObject&) {}
    static void implement(Interface& interface);
};

using Provider = MenuExtension::MenuProvider<Thunar>;
GType providerType = 0;

void Thunar::implement(Interface& interface)
{
    interface.get_file_menu_items = [](ThunarxMenuProvider*, GtkWidget*, GList* files) {
        return Provider::itemsForFiles(files);
    };
    interface.get_folder_menu_items = [](ThunarxMenuProvider*, GtkWidget*, ThunarxFileInfo* folder) {
        return Provider::itemsForBackground(folder);
    };
}

} // namespace

extern "C" {

[[gnu::visibility("default")]] void thunar_extension_initialize(ThunarxProviderPlugin* plugin)
{
    // What the provider starts goes on.
    thunarx_provider_plugin_set_resident(plugin, TRUE);
    providerType = thunarx_provider_plugin_register_type(plugin, G_TYPE_OBJECT, Provider::typeName,
                                                         &Provider::typeInfo(), GTypeFlags(0));
    thunarx_provider_plugin_add_interface(plugin, providerType, Thunar::interfaceType(), &Provider::interfaceInfo());
}

[[gnu::visibility("default")]] void thunar_extension_shutdown() {}

[[gnu::visibility("default")]] void thunar_extension_list_types(const GType** types, int* count)
{
    *types = &providerType;
    *count = 1;
}
}
