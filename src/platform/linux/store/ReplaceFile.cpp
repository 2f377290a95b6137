#include "platform/linux/store/ReplaceFile.h"

#include "platform/linux/system/ParentFolder.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/random.h>
#include <system_error>
#include <utility>

namespace LinuxDesktop {

namespace {

constexpr std::size_t uniqueDigits = 16;
constexpr std::string_view hexadecimal = "0123456789abcdef";

std::string uniqueSuffix()
{
    // Where the system has no random numbers yet, a name that is taken already fails the write, and it is tried
    // again.
    std::uint64_t number = 0;
    static_cast<void>(::getrandom(&number, sizeof(number), GRND_NONBLOCK));
    std::array<char, uniqueDigits + 1> digits{};
    std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(number));
    return digits.data();
}

bool isTemporaryName(std::string_view name, std::string_view prefix)
{
    return name.starts_with(prefix) && name.size() == prefix.size() + uniqueDigits &&
           name.find_first_not_of(hexadecimal, prefix.size()) == std::string_view::npos;
}

} // namespace

Failure systemFailure(std::string_view what, const std::string& path)
{
    const std::string reason = std::generic_category().message(errno);
    return {std::string(what) + " " + path + ": " + reason};
}

bool syncFolder(FileOperations& files, const std::string& folder)
{
    const FileDescriptor opened = files.open(folder, O_RDONLY | O_DIRECTORY);
    return opened && files.syncFolder(opened.get()) == 0;
}

bool writeAll(FileOperations& files, int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = files.write(descriptor, bytes.data(), bytes.size());
        if (written <= 0) {
            if (written == 0)
                errno = ENOSPC;
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

NewFile::NewFile(FileOperations& files, std::string path, std::string temporary, FileDescriptor file)
    : m_files(files), m_path(std::move(path)), m_temporary(std::move(temporary)), m_file(std::move(file))
{}

NewFile::NewFile(NewFile&& other) noexcept
    : m_files(other.m_files), m_path(std::move(other.m_path)), m_temporary(std::exchange(other.m_temporary, {})),
      m_file(std::move(other.m_file))
{}

NewFile::~NewFile()
{
    if (!m_temporary.empty())
        m_files.unlink(m_temporary);
}

Result<NewFile> NewFile::make(FileOperations& files, const Replacement& replacement)
{
    constexpr mode_t ownerOnly = 0600;
    const std::string temporary = parentFolder(replacement.path) + "/" + replacement.temporaryPrefix + uniqueSuffix();
    FileDescriptor opened = files.open(temporary, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, ownerOnly);
    if (!opened)
        return systemFailure("could not create a file to replace", replacement.path);
    NewFile made(files, replacement.path, temporary, std::move(opened));
    // Which is how others know that its writer lives; where files cannot be locked, it is one that may be lost.
    static_cast<void>(::flock(made.m_file.get(), LOCK_EX | LOCK_NB));
    if (!writeAll(files, made.m_file.get(), replacement.bytes))
        return systemFailure("could not write", replacement.path);
    if (files.syncFile(made.m_file.get()) != 0)
        return systemFailure("could not flush", replacement.path);
    return made;
}

Result<FileDescriptor> NewFile::takePlace() &&
{
    if (m_files.rename(m_temporary, m_path) != 0)
        return systemFailure("could not replace", m_path);
    m_temporary.clear();
    ::flock(m_file.get(), LOCK_UN);
    return std::move(m_file);
}

Result<FileDescriptor> replaceFile(FileOperations& files, const Replacement& replacement)
{
    auto made = NewFile::make(files, replacement);
    if (!made)
        return Failure{made.error()};
    auto file = std::move(*made).takePlace();
    const std::string folder = parentFolder(replacement.path);
    if (file && !syncFolder(files, folder))
        return systemFailure("could not flush", folder);
    return file;
}

void removeStaleTemporaries(FileOperations& files, const std::string& path, std::string_view temporaryPrefix)
{
    std::error_code error;
    for (std::filesystem::directory_iterator entry(parentFolder(path), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string& found = entry->path().native();
        if (!isTemporaryName(entry->path().filename().native(), temporaryPrefix))
            continue;
        const FileDescriptor file = files.open(found, O_RDWR | O_NOFOLLOW);
        if (!file || ::flock(file.get(), LOCK_EX | LOCK_NB) == 0)
            files.unlink(found);
    }
}

Result<std::string> linkTarget(const std::string& path)
{
    constexpr int mostLinks = 40;
    std::filesystem::path target = path;
    for (int i = 0; i < mostLinks; ++i) {
        std::error_code error;
        const auto link = std::filesystem::read_symlink(target, error);
        // No link, or nothing at all.
        if (error == std::errc::invalid_argument || error == std::errc::no_such_file_or_directory)
            return target.native();
        if (error)
            return Failure{"could not follow " + target.native() + ": " + error.message()};
        target = target.parent_path() / link;
    }
    errno = ELOOP;
    return systemFailure("could not follow", path);
}

} // namespace LinuxDesktop
