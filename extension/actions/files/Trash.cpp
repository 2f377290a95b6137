#include "extension/actions/files/Trash.h"

#include <gio/gio.h>

#include <memory>

namespace MenuExtension {

std::optional<std::string> moveToTrash(const std::string& path)
{
    const std::unique_ptr<GFile, decltype(&g_object_unref)> file(g_file_new_for_path(path.c_str()), g_object_unref);
    GError* error = nullptr;
    if (g_file_trash(file.get(), nullptr, &error) != FALSE)
        return std::nullopt;
    const std::unique_ptr<GError, decltype(&g_error_free)> freed(error, g_error_free);
    return error->message;
}

} // namespace MenuExtension
