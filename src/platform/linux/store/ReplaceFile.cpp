#include "platform/linux/store/ReplaceFile.h"

#include "platform/linux/system/ParentFolder.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/random.h>
#include <system_error>

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

Result<FileDescriptor> replaceFile(FileOperations& files, const Replacement& replacement)
{
    const bool durable = replacement.durability == Durability::Synchronous;
    const std::string folder = parentFolder(replacement.path);
    const std::string temporary = folder + "/" + replacement.temporaryPrefix + uniqueSuffix();

    constexpr mode_t ownerOnly = 0600;
    FileDescriptor file = files.open(temporary, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, ownerOnly);
    if (!file)
        return systemFailure("could not create a file to replace", replacement.path);
    const auto abandon = [&](std::string_view what) {
        Failure failure = systemFailure(what, replacement.path);
        files.unlink(temporary);
        return failure;
    };
    if (!writeAll(files, file.get(), replacement.bytes))
        return abandon("could not write");
    if (durable && files.syncFile(file.get()) != 0)
        return abandon("could not flush");
    // Some file systems write a file out at once when it replaces another, which is a high price where nobody waits
    // for the disk. They do not when the two change places.
    if (!durable && files.exchange(temporary, replacement.path) == 0) {
        files.unlink(temporary);
        return file;
    }
    if (files.rename(temporary, replacement.path) != 0)
        return abandon("could not replace");
    if (durable && !syncFolder(files, folder))
        return systemFailure("could not flush", folder);
    return file;
}

void removeStaleTemporaries(FileOperations& files, const std::string& path, std::string_view temporaryPrefix)
{
    std::error_code error;
    for (std::filesystem::directory_iterator entry(parentFolder(path), error), end; !error && entry != end;
         entry.increment(error)) {
        if (isTemporaryName(entry->path().filename().native(), temporaryPrefix))
            files.unlink(entry->path().native());
    }
}

} // namespace LinuxDesktop
