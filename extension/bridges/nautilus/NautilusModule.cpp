#include "extension/bridges/gtk/MenuProvider.h"

// Its own headers lack this around the entry points.
extern "C" {
#include <nautilus-extension.h>
}

namespace {

struct Nautilus {
    using File = NautilusFileInfo;
    using Item = NautilusMenuItem;
    using Submenu = NautilusMenu;
    using Interface = NautilusMenuProviderInterface;

    static constexpr auto location = nautilus_file_info_get_location;
    static constexpr auto isFolder = nautilus_file_info_is_directory;
    static constexpr auto mimeType = nautilus_file_info_get_mime_type;
    static constexpr auto newItem = nautilus_menu_item_new;
    static constexpr auto newSubmenu = nautilus_menu_new;
    static constexpr auto append = nautilus_menu_append_item;
    static constexpr auto setSubmenu = nautilus_menu_item_set_submenu;
    static constexpr auto interfaceType = nautilus_menu_provider_get_type;

    static void itemsChanged(GObject& provider)
    {
        nautilus_menu_provider_emit_items_updated_signal(NAUTILUS_MENU_PROVIDER(&provider));
    }
    static void implement(Interface& interface);
};

using Provider = MenuExtension::MenuProvider<Nautilus>;
GType providerType = 0;

void Nautilus::implement(Interface& interface)
{
    interface.get_file_items = [](NautilusMenuProvider*, GList* files) { return Provider::itemsForFiles(files); };
    interface.get_background_items = [](NautilusMenuProvider*, NautilusFileInfo* folder) {
        return Provider::itemsForBackground(folder);
    };
}

} // namespace

extern "C" {

[[gnu::visibility("default")]] void nautilus_module_initialize(GTypeModule* module)
{
    providerType = Provider::registerIn(*module);
}

[[gnu::visibility("default")]] void nautilus_module_shutdown() {}

[[gnu::visibility("default")]] void nautilus_module_list_types(const GType** types, int* count)
{
    *types = &providerType;
    *count = 1;
}
}
