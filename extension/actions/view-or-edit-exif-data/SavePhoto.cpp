#include "SavePhoto.h"

#include "extension/actions/photos/ImageData.h"
#include "extension/actions/placing/Attributes.h"
#include "platform/linux/system/FolderStream.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <deque>
#include <fcntl.h>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace MenuExtension::Exif {

using LinuxDesktop::FileDescriptor;

namespace {

constexpr std::string_view temporaryPrefix = ".orvik-exif-";
constexpr std::string_view originalSuffix = "_original";

using FolderIdentity = std::pair<dev_t, ino_t>;

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

/// Gives it the first name that is free, and says which. Nothing, with errno.
std::optional<std::string> nameOriginal(const OpenedFile& photo, const std::function<bool(const char*)>& give)
{
    const std::string original = photo.name + std::string(originalSuffix);
    if (give(original.c_str()))
        return original;
    for (int number = 2; errno == EEXIST; ++number) {
        std::string name = original + ' ' + std::to_string(number);
        if (give(name.c_str()))
            return name;
    }
    return std::nullopt;
}

struct Original {
    std::string name;
    /// From an earlier save.
    bool wasThere = false;
};

/// Keeps it. Nothing, with errno.
std::optional<Original> keepOriginal(const OpenedFile& photo, const struct stat& status)
{
    const int folder = photo.folder.get();
    const auto isPhoto = [&](const char* name) {
        struct stat there = {};
        return ::fstatat(folder, name, &there, AT_SYMLINK_NOFOLLOW) == 0 && there.st_dev == status.st_dev &&
               there.st_ino == status.st_ino;
    };
    // A save that did not come to its end may have kept it.
    bool wasThere = false;
    const auto link = nameOriginal(photo, [&](const char* given) {
        if (::linkat(folder, photo.name.c_str(), folder, given, 0) == 0)
            return true;
        wasThere = errno == EEXIST && isPhoto(given);
        return wasThere;
    });
    if (link)
        return Original{*link, wasThere};
    if (errno != EPERM && errno != EMLINK && !isUnsupported())
        return std::nullopt;
    // A file has one name there.
    const TemporaryName temporary(photo.folder, {});
    if (!copyTo(photo.file.get(), photo.folder, temporary.name(), status))
        return std::nullopt;
    const auto copy = nameOriginal(photo, [&](const char* given) {
        return ::renameat2(folder, temporary.name().c_str(), folder, given, RENAME_NOREPLACE) == 0;
    });
    return copy ? std::optional(Original{*copy}) : std::nullopt;
}

/// Whether it is another's in a folder where only its owner may replace it, or remove another name of it.
bool isGuarded(const struct stat& photo, const struct stat& folder)
{
    const uid_t person = ::geteuid();
    return (folder.st_mode & S_ISVTX) != 0 && person != 0 && person != folder.st_uid && person != photo.st_uid;
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

/// A photo on its way: what is to take its place, until it has.
class Save {
public:
    Save(const OpenedFile& photo, Reading before)
        : m_photo(photo), m_before(std::move(before.tags)), m_trouble(std::move(before.trouble))
    {}

    [[nodiscard]] const OpenedFile& photo() const { return m_photo; }
    [[nodiscard]] const Trouble& trouble() const { return m_trouble; }
    [[nodiscard]] int made() const { return m_made.get(); }
    /// Whether there is something to go on with.
    [[nodiscard]] bool isOnItsWay() const { return m_made && !m_trouble; }

    /// What ExifTool is told; nothing where there is nothing to write.
    [[nodiscard]] std::vector<std::string> prepare(const Edits& edits)
    {
        if (m_trouble)
            return {};
        std::vector<std::string> arguments = argumentsFor(edits, m_before);
        if (!edits.empty())
            m_trouble = obstacle(m_photo, edits, m_before);
        // What is there and cannot be removed is no less there.
        if (!m_trouble && arguments.empty() && !areMade(edits, m_before, m_before))
            m_trouble = {.kind = Trouble::Kind::EditsNotKept};
        // What ExifTool would say of it is no word for a person.
        if (!m_trouble && !arguments.empty() &&
            (::fstat(m_photo.folder.get(), &m_folder) != 0 ||
             ::faccessat(m_photo.folder.get(), ".", W_OK, AT_EACCESS) != 0))
            m_trouble = cannotBeSaved();
        return m_trouble ? std::vector<std::string>{} : arguments;
    }

    [[nodiscard]] FolderIdentity folder() const { return {m_folder.st_dev, m_folder.st_ino}; }

    /// A new name beside the photo.
    [[nodiscard]] TagReader::Copy copy()
    {
        // The file's own name may say that it is of another kind.
        const std::string* const kind = m_before.find("File:FileTypeExtension");
        m_temporary.emplace(m_photo.folder, kind ? extensionOf('.' + *kind) : extensionOf(m_photo.name));
        return {m_photo.file.get(), m_temporary->name()};
    }

    void wasWritten(Trouble trouble)
    {
        m_trouble = std::move(trouble);
        if (m_trouble)
            return;
        m_made = FileDescriptor(
            ::openat(m_photo.folder.get(), m_temporary->name().c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC));
        if (!m_made)
            m_trouble = cannotBeSaved();
    }

    /// Whether it may take the photo's place: `after` is what it says.
    void check(const Edits& edits, const Reading& after)
    {
        ByteSource ofPhoto(m_photo.file.get());
        ByteSource ofMade(m_made.get());
        const auto isSame = haveSameImage(ofPhoto, ofMade);
        if (!isSame.value_or(false))
            m_trouble = {.kind = isSame ? Trouble::Kind::PictureDiffers : Trouble::Kind::CannotBeChecked};
        else if (after.trouble)
            m_trouble = after.trouble;
        else if (!areMade(edits, m_before, after.tags))
            m_trouble = {.kind = Trouble::Kind::EditsNotKept};
    }

    /// Gives it what the photo has besides its content, and has the disk begin with it.
    void finish(const SaveOptions& options)
    {
        if (::fstat(m_photo.file.get(), &m_status) != 0 ||
            !copyAttributes(m_photo.file.get(), m_made.get(), m_status)) {
            m_trouble = cannotBeSaved();
            return;
        }
        const std::array<timespec, 2> times{m_status.st_atim, m_status.st_mtim};
        if (options.keepsTime && ::futimens(m_made.get(), times.data()) != 0)
            m_trouble = cannotBeSaved();
        static_cast<void>(::sync_file_range(m_made.get(), 0, 0, SYNC_FILE_RANGE_WRITE));
    }

    void flush()
    {
        if (::fsync(m_made.get()) != 0)
            m_trouble = cannotBeSaved();
    }

    void place(const SaveOptions& options, const std::stop_token& stop)
    {
        if (stop.stop_requested()) {
            m_trouble = {.kind = Trouble::Kind::Cancelled};
            return;
        }
        if (!m_photo.isUnchanged()) {
            m_trouble = {.kind = Trouble::Kind::Changed};
            return;
        }
        if (options.keepsOriginal && isGuarded(m_status, m_folder)) {
            m_trouble = {.kind = Trouble::Kind::CannotBeSaved, .error = EPERM};
            return;
        }
        const int folder = m_photo.folder.get();
        const auto original = options.keepsOriginal ? keepOriginal(m_photo, m_status) : std::nullopt;
        if (options.keepsOriginal && !original) {
            m_trouble = {.kind = Trouble::Kind::OriginalCannotBeKept, .error = errno};
        } else if (::renameat(folder, m_temporary->name().c_str(), folder, m_photo.name.c_str()) != 0) {
            m_trouble = cannotBeSaved();
            if (original && !original->wasThere)
                ::unlinkat(folder, original->name.c_str(), 0);
        }
    }

    /// Makes the new name durable; `flushed` are the folders of which that has been done.
    void keep(std::set<FolderIdentity>& flushed)
    {
        if (flushed.contains(folder()))
            return;
        if (syncFolder(m_photo.folder))
            flushed.insert(folder());
        else
            m_trouble = cannotBeSaved();
    }

    /// What the removal of personal data did not come to.
    void tellOfMore()
    {
        ByteSource bytes(m_photo.file.get());
        if (!m_trouble && holdsMore(bytes))
            m_trouble = {.kind = Trouble::Kind::HoldsMore};
    }

private:
    const OpenedFile& m_photo;
    Tags m_before;
    Trouble m_trouble;
    std::optional<TemporaryName> m_temporary;
    FileDescriptor m_made;
    struct stat m_status = {};
    struct stat m_folder = {};
};

/// Makes the new files beside the photos: those that lie in one folder and are to be changed alike, at once.
void write(TagReader& exifTool, std::deque<Save>& saves, const Edits& edits, const std::stop_token& stop)
{
    std::map<std::pair<FolderIdentity, std::vector<std::string>>, std::vector<Save*>> alike;
    for (Save& save : saves) {
        std::vector<std::string> arguments = save.prepare(edits);
        if (!arguments.empty())
            alike[{save.folder(), std::move(arguments)}].push_back(&save);
    }
    for (const auto& [key, those] : alike) {
        std::vector<TagReader::Copy> copies;
        for (Save* save : those)
            copies.push_back(save->copy());
        // For another process, whatever the folder's path has in it.
        const std::string folder =
            "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(those.front()->photo().folder.get());
        auto troubles = exifTool.write(copies, folder, key.second, stop);
        for (std::size_t index = 0; index < those.size(); ++index)
            those[index]->wasWritten(std::move(troubles[index]));
    }
}

} // namespace

std::vector<Trouble> savePhotos(TagReader& exifTool, std::span<const OpenedFile> photos, const Edits& edits,
                                const SaveOptions& options, const std::stop_token& stop)
{
    const std::vector<std::string> keys = keysFor(edits);
    std::vector<Reading> readings = exifTool.read(photos, stop, keys);
    std::deque<Save> saves;
    for (std::size_t index = 0; index < photos.size(); ++index)
        saves.emplace_back(photos[index], std::move(readings[index]));
    write(exifTool, saves, edits, stop);

    const auto onTheirWay = [&] {
        std::vector<Save*> those;
        for (Save& save : saves) {
            if (save.isOnItsWay())
                those.push_back(&save);
        }
        return those;
    };
    const auto written = onTheirWay();
    std::vector<TagReader::Source> copies;
    copies.reserve(written.size());
    for (const Save* save : written)
        copies.push_back({save->made(), save->photo().name});
    readings = exifTool.read(copies, stop, keys);
    for (std::size_t index = 0; index < written.size(); ++index) {
        written[index]->check(edits, readings[index]);
        if (written[index]->isOnItsWay())
            written[index]->finish(options);
    }
    // One after the other: what the disk does for the first serves the others.
    for (Save* save : onTheirWay())
        save->flush();
    for (Save* save : onTheirWay())
        save->place(options, stop);
    std::set<FolderIdentity> flushed;
    std::vector<Trouble> troubles;
    for (Save& save : saves) {
        if (save.isOnItsWay())
            save.keep(flushed);
        if (edits.removesPersonalData)
            save.tellOfMore();
        troubles.push_back(save.trouble());
    }
    return troubles;
}

void removeLeftovers(const FileDescriptor& folder)
{
    // Longer than anything is written.
    constexpr std::time_t hours = 3600;
    constexpr std::time_t longAgo = 2 * hours;
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
