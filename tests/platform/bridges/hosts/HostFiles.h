#pragma once

#include "HostFile.h"
#include "TestedHost.h"

#include <string>
#include <vector>

inline GType hostFileType()
{
    static const GType type = [] {
        static const GTypeInfo info{sizeof(GObjectClass), nullptr, nullptr, nullptr, nullptr, nullptr,
                                    sizeof(HostFile),     0,       nullptr, nullptr};
        static const GInterfaceInfo interface {
            &TestedHost::implementFile, nullptr, nullptr
        };
        const GType made = g_type_register_static(G_TYPE_OBJECT, "HostFile", &info, GTypeFlags(0));
        g_type_add_interface_static(made, TestedHost::fileType(), &interface);
        return made;
    }();
    return type;
}

/// What a test clicks on.
struct File {
    std::string address;
    bool isFolder = false;
    const char* mimeType = "text/plain";
};

class Files {
public:
    explicit Files(const std::vector<File>& files)
    {
        for (auto file = files.rbegin(); file != files.rend(); ++file) {
            auto* made = static_cast<HostFile*>(g_object_new(hostFileType(), nullptr));
            made->location = g_file_new_for_uri(file->address.c_str());
            made->isFolder = file->isFolder;
            made->mimeType = file->mimeType;
            m_list = g_list_prepend(m_list, made);
        }
    }
    ~Files()
    {
        for (const GList* node = m_list; node; node = node->next)
            g_object_unref(static_cast<HostFile*>(node->data)->location);
        g_list_free_full(m_list, &g_object_unref);
    }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    [[nodiscard]] GList* list() const { return m_list; }
    [[nodiscard]] HostFile* first() const { return static_cast<HostFile*>(m_list->data); }

private:
    GList* m_list = nullptr;
};
