#include "platform/linux/bookmarks/FolderBookmark.h"

#include "platform/linux/bookmarks/BookmarkRecord.h"
#include "platform/linux/bookmarks/FolderByHandle.h"
#include "platform/linux/bookmarks/FolderIdentity.h"
#include "platform/linux/bookmarks/FolderSearch.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace LinuxDesktop {

namespace {

/// On one line, whatever the path.
NS::Error refusal(std::string path, int error)
{
    std::ranges::replace(path, '\n', ' ');
    return {"could not make a bookmark of " + path + ": " + std::generic_category().message(error)};
}

} // namespace

NS::BookmarkData makeFolderBookmark(const std::string& path)
{
    // Neither means the same to every process that may resolve the bookmark.
    if (!path.starts_with('/') || path.find('\0') != std::string::npos)
        return refusal(path, path.empty() ? ENOENT : EINVAL);
    const FileDescriptor folder = openFolderToIdentify(path);
    if (!folder)
        return refusal(path, errno);
    auto identity = FolderIdentity::of(folder);
    if (!identity)
        return refusal(path, errno);
    return encodeBookmark({path, std::move(*identity)});
}

std::optional<std::string> resolveFolderBookmark(const NS::Data& bookmark)
{
    const auto record = decodeBookmark(bookmark);
    if (!record)
        return std::nullopt;
    if (isFolderAt(record->folder, record->path))
        return record->path;
    if (auto moved = folderByHandle(record->path, record->folder))
        return moved;
    if (auto moved = searchFolderAround(record->path, record->folder))
        return moved;
    if (openFolderToIdentify(record->path))
        return record->path;
    return std::nullopt;
}

} // namespace LinuxDesktop
