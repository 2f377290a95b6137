#pragma once

#include "../HostFile.h"

#include <nautilus-extension.h>

struct TestedHost {
    using Item = NautilusMenuItem;
    static constexpr const char* toolkit = "libgtk-4.so.1";
    static constexpr const char* entryPrefix = "nautilus_module_";
    static constexpr bool isToldOfChanges = true;
    static constexpr const char* tip = "tip";

    static constexpr auto fileType = nautilus_file_info_get_type;
    static constexpr auto activate = nautilus_menu_item_activate;
    static constexpr auto itemsOf = nautilus_menu_get_items;
    using Submenu = NautilusMenu;

    static void completeModule(GType) {}
    static void completeClass(GObjectClass&) {}

    static void implementFile(gpointer type, gpointer)
    {
        auto& interface = *static_cast<NautilusFileInfoInterface*>(type);
        interface.get_location = &HostFile::answerLocation<NautilusFileInfo>;
        interface.is_directory = &HostFile::answerIsFolder<NautilusFileInfo>;
        interface.get_mime_type = &HostFile::answerMimeType<NautilusFileInfo>;
    }

    static GList* itemsForFiles(GObject* provider, GList* files)
    {
        return nautilus_menu_provider_get_file_items(reinterpret_cast<NautilusMenuProvider*>(provider), files);
    }

    static GList* itemsForBackground(GObject* provider, HostFile* folder)
    {
        return nautilus_menu_provider_get_background_items(reinterpret_cast<NautilusMenuProvider*>(provider),
                                                           reinterpret_cast<NautilusFileInfo*>(folder));
    }
};
