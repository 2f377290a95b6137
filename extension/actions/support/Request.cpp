#include "extension/actions/support/Request.h"

#include "extension/actions/support/Beneath.h"
#include "platform/linux/system/ParentFolder.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>

namespace MenuExtension {

using LinuxDesktop::FileDescriptor;
using LinuxDesktop::parentFolder;

namespace {

/// The path as a request holds it; nothing for one that could lead elsewhere than its text says.
std::optional<std::string> plainPath(std::string_view path)
{
    if (!path.starts_with('/') || path.find('\0') != std::string_view::npos)
        return std::nullopt;
    for (std::size_t begin = 0; begin < path.size();) {
        const std::size_t end = std::min(path.find('/', begin), path.size());
        const std::string_view name = path.substr(begin, end - begin);
        if (name == "." || name == "..")
            return std::nullopt;
        begin = end + 1;
    }
    const std::size_t length = path.find_last_not_of('/') + 1;
    return length == 0 ? "/" : std::string(path.substr(0, length));
}

const std::string* listedFolderOf(const Request& request, std::string_view path)
{
    return request.background ? request.scope.folderOfBackground(path) : request.scope.folderOfItem(path);
}

FileDescriptor openIn(const std::string* listed, std::string_view path, int flags)
{
    if (!listed) {
        errno = EXDEV;
        return {};
    }
    return openBeneath(*listed, path, flags);
}

} // namespace

std::optional<Request> parseRequest(const std::vector<std::string>& arguments, std::string_view input)
{
    Request request;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (*argument == "--background") {
            request.background = true;
            continue;
        }
        const bool isTarget = *argument == "--target";
        if ((!isTarget && *argument != "--caller") || ++argument == arguments.end())
            return std::nullopt;
        if (!isTarget) {
            request.caller = *argument;
        } else if (auto target = plainPath(*argument)) {
            request.target = *std::move(target);
        } else {
            return std::nullopt;
        }
    }
    while (!input.empty()) {
        const std::size_t end = input.find('\0');
        // What has no end may be the beginning of another path.
        auto path = end == std::string_view::npos ? std::nullopt : plainPath(input.substr(0, end));
        if (!path)
            return std::nullopt;
        request.paths.push_back(*std::move(path));
        input.remove_prefix(end + 1);
    }
    if (request.paths.empty() || (request.background && request.paths.size() != 1))
        return std::nullopt;
    return request;
}

FileDescriptor openItem(const Request& request, std::string_view path, int flags)
{
    return openIn(listedFolderOf(request, path), path, flags);
}

FileDescriptor openFolderOfItem(const Request& request, std::string_view item, int flags)
{
    return openIn(request.scope.folderOfItem(item), parentFolder(item), flags | O_DIRECTORY);
}

OpenedFolder openFolderOf(const Request& request)
{
    const std::string& path = request.paths.front();
    OpenedFolder folder{path, openItem(request, path, O_PATH | O_DIRECTORY)};
    // A file, or a link that leads to none.
    if (!folder.descriptor && !request.background && (errno == ENOTDIR || errno == ENOENT))
        folder = {parentFolder(path), openFolderOfItem(request, path, O_PATH)};
    return folder;
}

} // namespace MenuExtension
