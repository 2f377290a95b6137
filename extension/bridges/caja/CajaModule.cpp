#include "extension/bridges/gtk/MenuProvider.h"

#include <libcaja-extension/caja-menu-provider.h>

namespace {

struct Caja {
    using File = CajaFileInfo;
    using Item = CajaMenuItem;
    using Submenu = CajaMenu;
    using Interface = CajaMenuProviderIface;

    static constexpr auto location = caja_file_info_get_location;
    static constexpr auto isFolder = caja_file_info_is_directory;
    static constexpr auto mimeType = caja_file_info_get_mime_type;
    static constexpr auto newItem = caja_menu_item_new;
    static constexpr auto newSubmenu = caja_menu_new;
    static constexpr auto append = caja_menu_append_item;
    static constexpr auto setSubmenu = caja_menu_item_set_submenu;
    static constexpr auto interfaceType = caja_menu_provider_get_type;

    static void itemsChanged(GObject& provider)
    {
        caja_menu_provider_emit_items_updated_signal(CAJA_MENU_PROVIDER(&provider));
    }
    static void implement(Interface& interface);
};

using Provider = MenuExtension::MenuProvider<Caja>;
GType providerType = 0;

void Caja::implement(Interface& interface)
{
    interface.get_file_items = [](CajaMenuProvider*, GtkWidget*, GList* files) {
        return Provider::itemsForFiles(files);
    };
    interface.get_background_items = [](CajaMenuProvider*, GtkWidget*, CajaFileInfo* folder) {
        return Provider::itemsForBackground(folder);
    };
}

} // namespace

extern "C" {

[[gnu::visibility("default")]] void caja_module_initialize(GTypeModule* module)
{
    providerType = Provider::registerIn(*module);
}

[[gnu::visibility("default")]] void caja_module_shutdown() {}

[[gnu::visibility("default")]] void caja_module_list_types(const GType** types, int* count)
{
    *types = &providerType;
    *count = 1;
}
}
