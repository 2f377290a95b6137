#include "extension/bridges/gtk/Clicked.h"

namespace MenuExtension {

std::string localPath(GFile* file)
{
    // Of a file that is somewhere else the path would be asked of the service that mounted it.
    if (!file || !g_file_is_native(file))
        return {};
    const char* path = g_file_peek_path(file);
    return path ? path : std::string();
}

std::string pathsAsText(const Clicked& clicked)
{
    std::string text;
    for (const std::string& path : clicked.paths) {
        if (!text.empty())
            text += '\n';
        text += Text(g_filename_display_name(path.c_str())).get();
    }
    return text;
}

} // namespace MenuExtension
