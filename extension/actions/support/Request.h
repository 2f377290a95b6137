#pragma once

#include "extension/menu/Scope.h"
#include "extension/protocol/ActionRequest.h"
#include "platform/linux/system/FileDescriptor.h"

#include <string>
#include <string_view>

namespace MenuExtension {

/// What an action is asked to work on, and where the actions may work.
struct Request : ActionRequest {
    Scope scope;
};

/// Opens an item, or the folder whose background was clicked, for as long as it lies in the listed folder that
/// decides about it. A link is followed to what lies in a listed folder that is active, and nowhere else, whenever it
/// came there. Nothing, with errno, which is then EXDEV, ELOOP or, where a folder is wanted, ENOTDIR.
[[nodiscard]] LinuxDesktop::FileDescriptor openItem(const Request& request, std::string_view path, int flags);
/// The same for the folder that an item lies in.
[[nodiscard]] LinuxDesktop::FileDescriptor openFolderOfItem(const Request& request, std::string_view item, int flags);

/// A folder to work in, by its path and open, with no right but to reach what lies in it.
struct OpenedFolder {
    std::string path;
    LinuxDesktop::FileDescriptor descriptor;
};
/// The folder that the request's first path stands for: that folder itself, or the one that the file lies in, or the
/// link to no folder. As openItem().
[[nodiscard]] OpenedFolder openFolderOf(const Request& request);

} // namespace MenuExtension
