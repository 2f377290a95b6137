#include "extension/actions/placing/OpenedFile.h"

#include "extension/actions/support/Picture.h"
#include "platform/linux/system/ParentFolder.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace MenuExtension {

using namespace LinuxDesktop;

bool OpenedFile::isUnchanged() const
{
    struct stat status = {};
    return ::fstatat(folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 && FileStamp::of(status) == stamp;
}

std::optional<OpenedFile> openWithFolder(const Request& request, const std::string& path)
{
    OpenedFile opened;
    opened.file = openFile(request, path);
    const auto stamp = opened.file ? FileStamp::of(opened.file.get()) : std::nullopt;
    if (!stamp)
        return std::nullopt;
    opened.stamp = *stamp;
    std::error_code failed;
    const std::filesystem::path real =
        std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(opened.file.get()), failed);
    opened.name = real.filename();
    opened.folder = FileDescriptor(::open(parentFolder(real.native()).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (failed || !opened.folder)
        return std::nullopt;
    // Whatever folder that was: it is the one where it holds the file that was opened.
    if (!opened.isUnchanged()) {
        errno = ENOENT;
        return std::nullopt;
    }
    return opened;
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

} // namespace MenuExtension
