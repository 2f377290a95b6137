#include "Photo.h"

#include "extension/actions/support/Picture.h"
#include "platform/linux/system/ParentFolder.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace MenuExtension::Exif {

using namespace LinuxDesktop;

bool Photo::isUnchanged() const
{
    struct stat status = {};
    return ::fstatat(folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 && FileStamp::of(status) == stamp;
}

std::optional<Photo> openPhoto(const Request& request, const std::string& path)
{
    Photo photo;
    photo.file = openFile(request, path);
    const auto stamp = photo.file ? FileStamp::of(photo.file.get()) : std::nullopt;
    if (!stamp)
        return std::nullopt;
    photo.stamp = *stamp;
    std::error_code failed;
    const std::filesystem::path real =
        std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(photo.file.get()), failed);
    photo.name = real.filename();
    photo.folder = FileDescriptor(::open(parentFolder(real.native()).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (failed || !photo.folder)
        return std::nullopt;
    // Whatever folder that was: it is the one where it holds the file that was opened.
    if (!photo.isUnchanged()) {
        errno = ENOENT;
        return std::nullopt;
    }
    return photo;
}

std::string extensionOf(std::string_view name)
{
    constexpr std::size_t longest = 8;
    const std::size_t dot = name.rfind('.');
    const std::string_view extension = dot == std::string_view::npos ? "" : name.substr(dot + 1);
    const bool isPlain = std::ranges::all_of(extension, [](char byte) {
        return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9');
    });
    return isPlain && extension.size() <= longest ? std::string(extension) : "";
}

} // namespace MenuExtension::Exif
