#pragma once

#include "../HostFile.h"

#include <libcaja-extension/caja-menu-provider.h>

struct TestedHost {
    using Item = CajaMenuItem;
    static constexpr const char* toolkit = "libgtk-3.so.0";
    static constexpr const char* entryPrefix = "caja_module_";
    static constexpr bool isToldOfChanges = true;
    static constexpr const char* tip = "tip";

    static constexpr auto fileType = caja_file_info_get_type;
    static constexpr auto activate = caja_menu_item_activate;
    static constexpr auto itemsOf = caja_menu_get_items;
    using Submenu = CajaMenu;

    static void completeModule(GType) {}
    static void completeClass(GObjectClass&) {}

    static void implementFile(gpointer type, gpointer)
    {
        auto& interface = *static_cast<CajaFileInfoIface*>(type);
        interface.get_location = &HostFile::answerLocation<CajaFileInfo>;
        interface.is_directory = &HostFile::answerIsFolder<CajaFileInfo>;
        interface.get_mime_type = &HostFile::answerMimeType<CajaFileInfo>;
    }

    static GList* itemsForFiles(GObject* provider, GList* files)
    {
        return caja_menu_provider_get_file_items(reinterpret_cast<CajaMenuProvider*>(provider), nullptr, files);
    }

    static GList* itemsForBackground(GObject* provider, HostFile* folder)
    {
        return caja_menu_provider_get_background_items(reinterpret_cast<CajaMenuProvider*>(provider), nullptr,
                                                       reinterpret_cast<CajaFileInfo*>(folder));
    }
};
