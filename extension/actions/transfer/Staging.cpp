#include "extension/actions/transfer/Staging.h"

#include "extension/actions/transfer/RemoveTree.h"
#include "platform/linux/system/FolderStream.h"
#include "platform/linux/system/ParentFolder.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/random.h>
#include <unistd.h>

namespace MenuExtension::Transfers {

using LinuxDesktop::FileDescriptor;

namespace {

constexpr std::string_view stagingPrefix = ".orvik-menu-";
constexpr std::size_t randomLength = 16;
constexpr std::string_view recordPrefix = "transfer-";
constexpr std::size_t longestRecord = std::size_t{1} << 20U;

/// That nobody guesses.
std::string randomText()
{
    std::uint64_t number = 0;
    if (::getrandom(&number, sizeof(number), 0) != static_cast<ssize_t>(sizeof(number)))
        number = static_cast<std::uint64_t>(::getpid());
    std::array<char, randomLength + 1> text{};
    std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(number));
    return text.data();
}

std::string nameOf(std::string_view path)
{
    return std::string(path.substr(path.rfind('/') + 1));
}

/// With those above it.
void makeFolders(const std::string& path)
{
    if (path.size() > 1 && ::mkdir(path.c_str(), S_IRWXU) != 0 && errno == ENOENT) {
        makeFolders(LinuxDesktop::parentFolder(path));
        static_cast<void>(::mkdir(path.c_str(), S_IRWXU));
    }
}

/// Open and locked; nothing where another process has it, or where it is none of the user's own.
FileDescriptor lockFile(const std::string& path, int flags)
{
    FileDescriptor file(::open(path.c_str(), flags | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, S_IRUSR | S_IWUSR));
    struct stat status = {};
    if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != ::geteuid() ||
        ::flock(file.get(), LOCK_EX | LOCK_NB) != 0)
        return {};
    return file;
}

bool hasName(const FileDescriptor& file)
{
    struct stat status = {};
    return ::fstat(file.get(), &status) == 0 && status.st_nlink > 0;
}

std::string readAll(const FileDescriptor& file)
{
    std::string text;
    std::array<char, 4096> buffer{};
    ssize_t count = 0;
    while (text.size() < longestRecord &&
           (count = ::pread(file.get(), buffer.data(), buffer.size(), static_cast<off_t>(text.size()))) > 0)
        text.append(buffer.data(), static_cast<std::size_t>(count));
    return text;
}

} // namespace

bool isStagingName(std::string_view name)
{
    return name.starts_with(stagingPrefix) && name.size() == stagingPrefix.size() + randomLength &&
           name.find_first_not_of("0123456789abcdef", stagingPrefix.size()) == std::string_view::npos;
}

std::vector<std::string> recordPlaces()
{
    const auto absolute = [](const char* variable) {
        const char* value = std::getenv(variable);
        return std::string(value && *value == '/' ? value : "");
    };
    std::vector<std::string> places;
    const std::string home = absolute("HOME");
    const std::string state = absolute("XDG_STATE_HOME");
    const std::string runtime = absolute("XDG_RUNTIME_DIR");
    if (!state.empty())
        places.push_back(state + "/orvik-menu");
    else if (!home.empty())
        places.push_back(home + "/.local/state/orvik-menu");
    if (!runtime.empty())
        places.push_back(runtime + "/orvik-menu");
    return places;
}

StagingRecord::~StagingRecord()
{
    if (m_file && !m_isKept)
        ::unlink(m_path.c_str());
}

bool StagingRecord::open()
{
    if (m_file)
        return true;
    for (const std::string& place : m_places) {
        makeFolders(place);
        // Before it is locked another process may take it for a leftover.
        constexpr int attempts = 10;
        for (int attempt = 0; attempt < attempts && !m_file; ++attempt) {
            m_path = place + '/' + std::string(recordPrefix) + randomText();
            m_file = lockFile(m_path, O_RDWR | O_APPEND | O_CREAT | O_EXCL);
            if (!m_file && errno != EWOULDBLOCK)
                break;
            if (m_file && !hasName(m_file))
                m_file = {};
        }
        if (m_file)
            return true;
    }
    return false;
}

void StagingRecord::add(const std::string& path)
{
    if (!open())
        return;
    // With the NUL at its end.
    if (::write(m_file.get(), path.c_str(), path.size() + 1) > 0)
        static_cast<void>(m_calls.flush(m_file.get()));
}

void StagingRecord::removeLeftovers()
{
    for (const std::string& place : m_places) {
        const auto folder = LinuxDesktop::openFolder(place);
        while (const dirent* entry = folder ? ::readdir(folder.get()) : nullptr) {
            const std::string_view name = static_cast<const char*>(entry->d_name);
            const std::string path = place + '/' + std::string(name);
            if (!name.starts_with(recordPrefix) || path == m_path)
                continue;
            const FileDescriptor record = lockFile(path, O_RDONLY);
            if (record && hasName(record) && removeRecorded(record))
                ::unlink(path.c_str());
        }
    }
}

/// Whether nothing is left, so that the record may go. A disk that is not there may come again.
bool StagingRecord::removeRecorded(const FileDescriptor& record)
{
    const std::string text = readAll(record);
    bool isClean = true;
    for (std::string_view rest = text; !rest.empty();) {
        const std::size_t end = rest.find('\0');
        // Of a path that was not written whole nothing was made.
        if (end == std::string_view::npos)
            break;
        const std::string path(rest.substr(0, end));
        rest.remove_prefix(end + 1);
        const std::string name = nameOf(path);
        if (!path.starts_with('/') || !name.starts_with(stagingPrefix))
            continue;
        const FileDescriptor parent(
            ::open(LinuxDesktop::parentFolder(path).c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        struct stat status = {};
        if (!parent || m_calls.status(parent.get(), name.c_str(), status) != 0)
            isClean = isClean && parent && errno == ENOENT;
        else if (S_ISDIR(status.st_mode))
            isClean = removeTree(m_calls, parent.get(), name.c_str()) && isClean;
    }
    return isClean;
}

std::optional<Staging> Staging::make(SystemCalls& calls, const SharedFolder& target, StagingRecord& record)
{
    std::string name = std::string(stagingPrefix) + randomText();
    record.add(target->pathOf(name));
    if (calls.makeFolder(target->get(), name.c_str(), S_IRWXU) != 0)
        return std::nullopt;
    FileDescriptor folder = calls.open(target->get(), name.c_str(), O_RDONLY | O_DIRECTORY);
    if (!folder) {
        const int error = errno;
        if (calls.remove(target->get(), name.c_str(), AT_REMOVEDIR) != 0)
            record.keep();
        errno = error;
        return std::nullopt;
    }
    // Else copies would get rights from the target that their originals do not give.
    static_cast<void>(calls.removeAttribute(folder.get(), "system.posix_acl_default"));
    return Staging(calls, record, target, std::move(name), std::move(folder));
}

Staging::Staging(Staging&& other) noexcept
    : m_calls(other.m_calls), m_record(other.m_record), m_target(std::move(other.m_target)),
      m_name(std::move(other.m_name)), m_folder(std::move(other.m_folder)), m_names(other.m_names)
{}

Staging::~Staging()
{
    if (m_folder && !removeTree(m_calls, m_target->get(), m_name.c_str()))
        m_record.keep();
}

} // namespace MenuExtension::Transfers
