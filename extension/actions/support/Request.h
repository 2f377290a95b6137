#pragma once

#include "extension/menu/Scope.h"
#include "platform/linux/system/FileDescriptor.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace MenuExtension {

/// What an action is asked to work on.
struct Request {
    /// The items, or the one folder whose background was clicked: absolute, as bytes, without a slash at the end and
    /// without the names "." and "..".
    std::vector<std::string> paths;
    bool background = false;
    /// The folder to move or copy to, in the same form; empty where none was given.
    std::string target;
    /// Who asks, by its unique name on the bus; empty where that is not known.
    std::string caller;
    /// Where the actions may work.
    Scope scope;
};

/// A request from a program's arguments, the name left out, and its standard input, where each path is ended by a
/// NUL. Nothing where they are no request; without a scope.
[[nodiscard]] std::optional<Request> parseRequest(const std::vector<std::string>& arguments, std::string_view input);

/// Opens an item, or the folder whose background was clicked, for as long as it lies in the listed folder that
/// decides about it: a link that leads out of that is not followed. Nothing, with errno, which is then EXDEV or
/// ELOOP.
[[nodiscard]] LinuxDesktop::FileDescriptor openItem(const Request& request, std::string_view path, int flags);
/// The same for the folder that an item lies in.
[[nodiscard]] LinuxDesktop::FileDescriptor openFolderOfItem(const Request& request, std::string_view item, int flags);

/// A folder to work in, by its path and open, with no right but to reach what lies in it.
struct OpenedFolder {
    std::string path;
    LinuxDesktop::FileDescriptor descriptor;
};
/// The folder that the request's first path stands for: that folder itself, or the one that the file lies in. As
/// openItem().
[[nodiscard]] OpenedFolder openFolderOf(const Request& request);

} // namespace MenuExtension
