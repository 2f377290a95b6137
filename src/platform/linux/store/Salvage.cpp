#include "platform/linux/store/Salvage.h"

#include "platform/linux/store/ReplaceFile.h"
#include "platform/linux/system/ParentFolder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <unistd.h>
#include <vector>

namespace LinuxDesktop {

namespace {

constexpr std::string_view mark = ".corrupt-";

/// "20240229T235959.123456Z": sorts by time.
std::string timeStampOfNow()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(now);
    const std::time_t time = seconds.count();
    std::tm utc{};
    ::gmtime_r(&time, &utc);
    std::array<char, 32> date{};
    const std::size_t length = std::strftime(date.data(), date.size(), "%Y%m%dT%H%M%S", &utc);
    std::array<char, 32> fraction{};
    std::snprintf(
        fraction.data(), fraction.size(), ".%06lldZ",
        static_cast<long long>(std::chrono::duration_cast<std::chrono::microseconds>(now - seconds).count()));
    return std::string(date.data(), length) + fraction.data();
}

bool isTimeStamp(std::string_view text)
{
    constexpr std::string_view form = "00000000T000000.000000Z";
    return std::ranges::equal(text, form, [](char character, char expected) {
        return expected == '0' ? character >= '0' && character <= '9' : character == expected;
    });
}

/// The next that sorts behind it.
std::string following(std::string stamp)
{
    for (std::size_t at = stamp.size(); at-- > 0;) {
        char& character = stamp[at];
        if (character >= '0' && character < '9') {
            ++character;
            break;
        }
        if (character == '9')
            character = '0';
    }
    return stamp;
}

/// The stamps of those that are there, the oldest first.
std::vector<std::string> keptFiles(const std::string& settings)
{
    std::vector<std::string> found;
    const std::string prefix = std::filesystem::path(settings).filename().native() + std::string(mark);
    std::error_code error;
    for (std::filesystem::directory_iterator entry(parentFolder(settings), error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename().native();
        if (name.starts_with(prefix) && isTimeStamp(std::string_view(name).substr(prefix.size())))
            found.push_back(name.substr(prefix.size()));
    }
    std::ranges::sort(found);
    return found;
}

std::optional<Failure> copyFile(FileOperations& files, int from, const std::string& to)
{
    const FileDescriptor copy = files.open(to, O_WRONLY | O_CREAT | O_EXCL, 0600);
    if (!copy)
        return systemFailure("could not create", to);
    std::array<char, 65536> buffer{};
    off_t at = 0;
    for (;;) {
        const ssize_t count = ::pread(from, buffer.data(), buffer.size(), at);
        if (count < 0 && errno == EINTR)
            continue;
        if (count == 0 && files.syncFile(copy.get()) == 0)
            return std::nullopt;
        if (count <= 0 || !writeAll(files, copy.get(), {buffer.data(), static_cast<std::size_t>(count)})) {
            const Failure failure = systemFailure("could not copy to", to);
            files.unlink(to);
            return failure;
        }
        at += count;
    }
}

} // namespace

Result<std::string> keepFile(FileOperations& files, const std::string& settings, const std::string& target,
                             const Snapshot& found)
{
    constexpr std::size_t mostKept = 5;
    const std::string prefix = settings + std::string(mark);
    const std::vector<std::string> earlier = keptFiles(settings);
    // Whoever was killed half way through this has left a name behind.
    for (const std::string& stamp : earlier)
        if (found.isNamed(prefix + stamp))
            return prefix + stamp;
    // First, so that no kill leaves more than there may be.
    for (std::size_t i = 0; i + mostKept <= earlier.size(); ++i)
        files.unlink(prefix + earlier[i]);

    // Behind the earlier ones even when the clock was set back since.
    std::string stamp = timeStampOfNow();
    if (!earlier.empty())
        stamp = std::max(stamp, following(earlier.back()));
    std::string kept = prefix + stamp;
    while (files.link(target, kept) != 0) {
        if (errno == EEXIST) {
            stamp = following(stamp);
            kept = prefix + stamp;
            continue;
        }
        // On another file system than its link, or another user's.
        if (auto failure = copyFile(files, found.descriptor(), kept))
            return *failure;
        break;
    }
    if (!syncFolder(files, parentFolder(kept)))
        return systemFailure("could not flush", parentFolder(kept));
    return kept;
}

} // namespace LinuxDesktop
