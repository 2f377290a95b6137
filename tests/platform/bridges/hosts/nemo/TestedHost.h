#pragma once

#include "../HostFile.h"

#include <libnemo-extension/nemo-menu-provider.h>

struct TestedHost {
    using Item = NemoMenuItem;
    static constexpr const char* toolkit = "libgtk-3.so.0";
    static constexpr const char* entryPrefix = "nemo_module_";
    static constexpr bool isToldOfChanges = true;
    static constexpr const char* tip = "tip";

    static constexpr auto fileType = nemo_file_info_get_type;
    static constexpr auto activate = nemo_menu_item_activate;
    static constexpr auto itemsOf = nemo_menu_get_items;
    using Submenu = NemoMenu;

    static void completeModule(GType) {}
    static void completeClass(GObjectClass&) {}

    static void implementFile(gpointer type, gpointer)
    {
        auto& interface = *static_cast<NemoFileInfoInterface*>(type);
        interface.get_location = &HostFile::answerLocation<NemoFileInfo>;
        interface.is_directory = &HostFile::answerIsFolder<NemoFileInfo>;
        interface.get_mime_type = &HostFile::answerMimeType<NemoFileInfo>;
    }

    static GList* itemsForFiles(GObject* provider, GList* files)
    {
        return nemo_menu_provider_get_file_items(reinterpret_cast<NemoMenuProvider*>(provider), nullptr, files);
    }

    static GList* itemsForBackground(GObject* provider, HostFile* folder)
    {
        return nemo_menu_provider_get_background_items(reinterpret_cast<NemoMenuProvider*>(provider), nullptr,
                                                       reinterpret_cast<NemoFileInfo*>(folder));
    }
};
