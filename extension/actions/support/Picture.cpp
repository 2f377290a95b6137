#include "extension/actions/support/Picture.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>

namespace MenuExtension {

using LinuxDesktop::FileDescriptor;
using namespace std::string_view_literals;

namespace {

/// Bytes at a place in a file that only one format has there.
struct Signature {
    std::size_t place;
    std::string_view bytes;
};

constexpr std::array signatures{
    Signature{0, "\x89PNG\r\n\x1a\n"sv},
    Signature{0, "\xff\xd8\xff"sv},
    Signature{0, "GIF87a"sv},
    Signature{0, "GIF89a"sv},
    Signature{8, "WEBP"sv},
    // TIFF, and what cameras write on its ground.
    Signature{0, "II*\0"sv},
    Signature{0, "MM\0*"sv},
    Signature{0, "II+\0"sv},
    Signature{0, "MM\0+"sv},
    Signature{0, "IIRO"sv},
    Signature{0, "IIU\0"sv},
    Signature{0, "FUJIFILMCCD-RAW"sv},
    Signature{4, "ftypheic"sv},
    Signature{4, "ftypheix"sv},
    Signature{4, "ftypheim"sv},
    Signature{4, "ftyphevc"sv},
    Signature{4, "ftypmif1"sv},
    Signature{4, "ftypmsf1"sv},
    Signature{4, "ftypavif"sv},
    Signature{4, "ftypavis"sv},
    Signature{4, "ftypcrx "sv},
    Signature{0, "\xff\x0a"sv},
    Signature{4, "JXL \r\n\x87\n"sv},
    Signature{4, "jP  \r\n\x87\n"sv},
    Signature{0, "\xff\x4f\xff\x51"sv},
    Signature{0, "\0\0\1\0"sv},
    Signature{0, "\0\0\2\0"sv},
    Signature{0, "8BPS"sv},
    Signature{0, "gimp xcf"sv},
    Signature{0, "qoif"sv},
    Signature{0, "\x76\x2f\x31\x01"sv},
    Signature{0, "DDS "sv},
    Signature{0, "#?RADIANCE"sv},
    Signature{0, "/* XPM */"sv},
};

constexpr std::size_t lookedAt = 4096;

/// A letter and a digit that other files may begin with too.
bool isPortableAnymap(std::string_view bytes)
{
    return bytes.size() > 2 && bytes[0] == 'P' && bytes[1] >= '1' && bytes[1] <= '7' &&
           "\n\r\t "sv.find(bytes[2]) != std::string_view::npos;
}

bool isBitmap(std::string_view bytes)
{
    // The length of the header that follows the file's own.
    constexpr std::size_t place = 14;
    return bytes.starts_with("BM") && bytes.size() > place + 4 && bytes[place] >= 12 && bytes[place + 1] == 0 &&
           bytes[place + 2] == 0 && bytes[place + 3] == 0;
}

bool isVectorGraphic(std::string_view bytes)
{
    if (bytes.starts_with("\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    const std::size_t begin = std::min(bytes.find_first_not_of(" \t\r\n"), bytes.size());
    return begin < bytes.size() && bytes[begin] == '<' && bytes.find("<svg") != std::string_view::npos &&
           bytes.find("<html") == std::string_view::npos;
}

} // namespace

bool beginsAsPicture(std::string_view beginning)
{
    const auto matches = [&](const Signature& signature) {
        return beginning.size() > signature.place && beginning.substr(signature.place).starts_with(signature.bytes);
    };
    return std::ranges::any_of(signatures, matches) || isPortableAnymap(beginning) || isBitmap(beginning) ||
           isVectorGraphic(beginning);
}

FileDescriptor openFile(const Request& request, std::string_view path)
{
    // Opening a pipe or a device for reading would already do something to it.
    const FileDescriptor found = openItem(request, path, O_PATH);
    struct stat status = {};
    if (!found || ::fstat(found.get(), &status) != 0)
        return {};
    if (!S_ISREG(status.st_mode)) {
        errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
        return {};
    }
    const std::string itself = "/proc/self/fd/" + std::to_string(found.get());
    return FileDescriptor(::open(itself.c_str(), O_RDONLY | O_CLOEXEC));
}

bool isPicture(const Request& request, std::string_view path)
{
    const FileDescriptor file = openFile(request, path);
    std::array<char, lookedAt> beginning{};
    const ssize_t count = file ? ::pread(file.get(), beginning.data(), beginning.size(), 0) : 0;
    return count > 0 && beginsAsPicture({beginning.data(), static_cast<std::size_t>(count)});
}

} // namespace MenuExtension
