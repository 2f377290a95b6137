#include "SavePhoto.h"

#include "ImageData.h"
#include "extension/actions/placing/Attributes.h"
#include "platform/linux/system/FolderStream.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <string_view>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace MenuExtension::Exif {

using LinuxDesktop::FileDescriptor;

namespace {

constexpr std::string_view temporaryPrefix = ".orvik-exif-";
constexpr std::string_view originalSuffix = "_original";

/// A name that goes away with this object, unless it has become another.
class TemporaryName {
public:
    TemporaryName(const FileDescriptor& folder, const std::string& extension) : m_folder(folder)
    {
        std::uint64_t number = 0;
        static_cast<void>(::getrandom(&number, sizeof(number), 0));
        std::array<char, 17> digits{};
        std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(number));
        m_name = std::string(temporaryPrefix) + digits.data() + (extension.empty() ? "" : '.' + extension);
    }
    ~TemporaryName() { ::unlinkat(m_folder.get(), m_name.c_str(), 0); }
    TemporaryName(const TemporaryName&) = delete;
    TemporaryName& operator=(const TemporaryName&) = delete;

    [[nodiscard]] const std::string& name() const { return m_name; }
    /// The same for another process, whatever the folder's path has in it.
    [[nodiscard]] std::string path() const
    {
        return "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(m_folder.get()) + '/' + m_name;
    }

private:
    const FileDescriptor& m_folder;
    std::string m_name;
};

Trouble cannotBeSaved()
{
    return {.kind = Trouble::Kind::CannotBeSaved, .error = errno};
}

/// A copy of a file's bytes under a new name in the folder.
bool copyTo(int from, const FileDescriptor& folder, const std::string& name, const struct stat& status)
{
    const FileDescriptor copy(
        ::openat(folder.get(), name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!copy)
        return false;
    off_t place = 0;
    std::array<char, std::size_t{64} << 10U> buffer{};
    for (;;) {
        const ssize_t count = ::pread(from, buffer.data(), buffer.size(), place);
        if (count == 0)
            break;
        if (count < 0 || ::write(copy.get(), buffer.data(), static_cast<std::size_t>(count)) != count)
            return false;
        place += count;
    }
    const std::array<timespec, 2> times{status.st_atim, status.st_mtim};
    return copyAttributes(from, copy.get(), status) && ::futimens(copy.get(), times.data()) == 0 &&
           ::fsync(copy.get()) == 0;
}

/// False, with errno.
bool keepOriginal(const OpenedFile& photo, const struct stat& status)
{
    const std::string original = photo.name + std::string(originalSuffix);
    if (::linkat(photo.folder.get(), photo.name.c_str(), photo.folder.get(), original.c_str(), 0) == 0 ||
        errno == EEXIST)
        return true;
    if (errno != EPERM && errno != EMLINK && !isUnsupported())
        return false;
    // A file has one name there.
    const TemporaryName temporary(photo.folder, {});
    return copyTo(photo.file.get(), photo.folder, temporary.name(), status) &&
           (::renameat2(photo.folder.get(), temporary.name().c_str(), photo.folder.get(), original.c_str(),
                        RENAME_NOREPLACE) == 0 ||
            errno == EEXIST);
}

/// Whether the new file may take the photo's place.
Trouble check(TagReader& exifTool, const OpenedFile& photo, int made, const Edits& edits, const Tags& before,
              const std::stop_token& stop)
{
    ByteSource ofPhoto(photo.file.get());
    ByteSource ofMade(made);
    const auto isSame = haveSameImage(ofPhoto, ofMade);
    if (!isSame.value_or(false))
        return {.kind = isSame ? Trouble::Kind::PictureDiffers : Trouble::Kind::CannotBeChecked};
    const Reading after = exifTool.read(made, photo.name, stop);
    if (after.trouble)
        return after.trouble;
    if (!areMade(edits, before, after.tags))
        return {.kind = Trouble::Kind::EditsNotKept};
    return {};
}

/// What can be known before anything is written.
Trouble obstacle(const OpenedFile& photo, const Edits& edits, const Tags& tags)
{
    if (edits.shift.count() != 0 && !photoTime(textOf(Field::Date, tags)))
        return {.kind = Trouble::Kind::NoDate};
    const std::string* const type = tags.find("File:FileType");
    if (edits.orientation && type && (*type == "HEIC" || *type == "HEIF" || *type == "AVIF"))
        return {.kind = Trouble::Kind::OrientationInPicture};
    ByteSource bytes(photo.file.get());
    if (!imageData(bytes))
        return {.kind = Trouble::Kind::CannotBeChecked};
    return {};
}

} // namespace

Trouble savePhoto(TagReader& exifTool, const OpenedFile& photo, const Edits& edits, const SaveOptions& options,
                  const std::stop_token& stop)
{
    const Reading before = exifTool.read(photo.file.get(), photo.name, stop);
    if (before.trouble)
        return before.trouble;
    std::vector<std::string> arguments = argumentsFor(edits, before.tags);
    if (Trouble trouble = obstacle(photo, edits, before.tags); trouble && !edits.empty())
        return trouble;
    if (arguments.empty())
        return {};

    // The file's own name may say that it is of another kind.
    const std::string* const kind = before.tags.find("File:FileTypeExtension");
    const TemporaryName temporary(photo.folder, kind ? extensionOf('.' + *kind) : extensionOf(photo.name));
    // What ExifTool would say of it is no word for a person.
    if (::faccessat(photo.folder.get(), ".", W_OK, AT_EACCESS) != 0)
        return cannotBeSaved();
    if (Trouble trouble =
            exifTool.write(photo.file.get(), temporary.name(), temporary.path(), std::move(arguments), stop))
        return trouble;
    const FileDescriptor made(
        ::openat(photo.folder.get(), temporary.name().c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC));
    if (!made)
        return cannotBeSaved();
    if (Trouble trouble = check(exifTool, photo, made.get(), edits, before.tags, stop))
        return trouble;

    struct stat status = {};
    if (::fstat(photo.file.get(), &status) != 0 || !copyAttributes(photo.file.get(), made.get(), status))
        return cannotBeSaved();
    const std::array<timespec, 2> times{status.st_atim, status.st_mtim};
    if (options.keepsTime && ::futimens(made.get(), times.data()) != 0)
        return cannotBeSaved();
    if (::fsync(made.get()) != 0)
        return cannotBeSaved();
    if (stop.stop_requested())
        return {.kind = Trouble::Kind::Cancelled};
    if (!photo.isUnchanged())
        return {.kind = Trouble::Kind::Changed};
    if (options.keepsOriginal && !keepOriginal(photo, status))
        return {.kind = Trouble::Kind::OriginalCannotBeKept, .error = errno};
    if (::renameat(photo.folder.get(), temporary.name().c_str(), photo.folder.get(), photo.name.c_str()) != 0 ||
        !syncFolder(photo.folder))
        return cannotBeSaved();
    return {};
}

void removeLeftovers(const FileDescriptor& folder)
{
    // Longer than anything is written.
    constexpr std::time_t minutes = 60;
    constexpr std::time_t longAgo = 15 * minutes;
    const int opened = ::openat(folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const LinuxDesktop::FolderStream stream(opened < 0 ? nullptr : ::fdopendir(opened));
    const std::time_t now = std::time(nullptr);
    while (const dirent* entry = stream ? ::readdir(stream.get()) : nullptr) {
        struct stat status = {};
        const bool isLeftover =
            std::string_view(static_cast<const char*>(entry->d_name)).starts_with(temporaryPrefix) &&
            ::fstatat(folder.get(), static_cast<const char*>(entry->d_name), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
            S_ISREG(status.st_mode) && now - status.st_mtime > longAgo;
        if (isLeftover)
            ::unlinkat(folder.get(), static_cast<const char*>(entry->d_name), 0);
    }
}

} // namespace MenuExtension::Exif
