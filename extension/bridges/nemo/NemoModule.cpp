#include "extension/bridges/gtk/MenuProvider.h"

#include <libnemo-extension/nemo-menu-provider.h>

namespace {

struct Nemo {
    using File = NemoFileInfo;
    using Item = NemoMenuItem;
    using Submenu = NemoMenu;
    using Interface = NemoMenuProviderInterface;

    static constexpr auto location = nemo_file_info_get_location;
    static constexpr auto isFolder = nemo_file_info_is_directory;
    static constexpr auto mimeType = nemo_file_info_get_mime_type;
    static constexpr auto newItem = nemo_menu_item_new;
    static constexpr auto newSubmenu = nemo_menu_new;
    static constexpr auto append = nemo_menu_append_item;
    static constexpr auto setSubmenu = nemo_menu_item_set_submenu;
    static constexpr auto interfaceType = nemo_menu_provider_get_type;

    static void itemsChanged(GObject& provider)
    {
        nemo_menu_provider_emit_items_updated_signal(NEMO_MENU_PROVIDER(&provider));
    }
    static void implement(Interface& interface);
};

using Provider = MenuExtension::MenuProvider<Nemo>;
GType providerType = 0;

void Nemo::implement(Interface& interface)
{
    interface.get_file_items = [](NemoMenuProvider*, GtkWidget*, GList* files) {
        return Provider::itemsForFiles(files);
    };
    interface.get_background_items = [](NemoMenuProvider*, GtkWidget*, NemoFileInfo* folder) {
        return Provider::itemsForBackground(folder);
    };
}

} // namespace

extern "C" {

[[gnu::visibility("default")]] void nemo_module_initialize(GTypeModule* module)
{
    providerType = Provider::registerIn(*module);
}

[[gnu::visibility("default")]] void nemo_module_shutdown() {}

[[gnu::visibility("default")]] void nemo_module_list_types(const GType** types, int* count)
{
    *types = &providerType;
    *count = 1;
}
}
