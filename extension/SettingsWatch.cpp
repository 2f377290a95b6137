#include "extension/SettingsWatch.h"

#include "extension/Complaint.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <deque>
#include <filesystem>
#include <optional>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace MenuExtension {

namespace {

/// To a folder or link itself, whatever is in it.
constexpr std::uint32_t itself = IN_MOVE_SELF | IN_DELETE_SELF;
/// To names in a folder. A folder that somebody uses can be gone without having been told so itself.
constexpr std::uint32_t comingAndGoing = IN_CREATE | IN_MOVED_TO | IN_DELETE | IN_MOVED_FROM;
/// To a file and the right to read it.
constexpr std::uint32_t contents = comingAndGoing | IN_CLOSE_WRITE | IN_ATTRIB;

/// The names that a path is made of, in front of those that follow.
std::deque<std::string> names(const std::filesystem::path& path, std::deque<std::string> following = {})
{
    std::deque<std::string> all;
    for (const auto& name : path.relative_path()) {
        if (!name.empty() && name != ".")
            all.push_back(name.native());
    }
    all.insert(all.end(), std::move_iterator(following.begin()), std::move_iterator(following.end()));
    return all;
}

std::optional<mode_t> typeOf(const std::string& path)
{
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0)
        return std::nullopt;
    return status.st_mode & static_cast<mode_t>(S_IFMT);
}

} // namespace

SettingsWatch::SettingsWatch(std::string path)
    : m_path(std::move(path)), m_inotify(::inotify_init1(IN_CLOEXEC | IN_NONBLOCK))
{
    if (m_inotify)
        follow();
    else
        complainOnce();
}

void SettingsWatch::complainOnce()
{
    if (!std::exchange(m_complained, true))
        complain("changes of the settings cannot be followed: " + std::generic_category().message(errno));
}

/// Watches what the path leads through now. What changes after a step's watch was made is told by that watch, so the
/// order is: watch, then look.
void SettingsWatch::follow()
{
    for (const auto& [watch, counting] : m_watches)
        ::inotify_rm_watch(m_inotify.get(), watch);
    m_watches.clear();

    constexpr int mostLinks = 40;
    int links = 0;
    std::filesystem::path folder = "/";
    auto rest = names(m_path);
    while (!rest.empty()) {
        const std::string name = std::move(rest.front());
        rest.pop_front();
        if (name == "..") {
            folder = folder.parent_path();
            continue;
        }
        const auto path = folder / name;
        if (rest.empty())
            watch(folder, itself | contents, name);
        else if (rest.size() == 1)
            watch(folder, comingAndGoing, name);
        if (!rest.empty() && !watch(path, itself | IN_DONT_FOLLOW)) {
            watch(folder, comingAndGoing | IN_ATTRIB, name);
            watch(path, itself | IN_DONT_FOLLOW);
        }
        const auto type = typeOf(path);
        if (type == S_IFLNK && ++links <= mostLinks) {
            std::error_code error;
            const auto target = std::filesystem::read_symlink(path, error);
            if (error)
                return;
            rest = names(target, std::move(rest));
            if (target.is_absolute())
                folder = "/";
        } else if (type == S_IFDIR) {
            folder = path;
        } else {
            return;
        }
    }
}

/// Adds to what is watched at `path`. False where nothing is there, or nothing that may be watched.
bool SettingsWatch::watch(const std::string& path, std::uint32_t events, const std::string& name)
{
    const int watch = ::inotify_add_watch(m_inotify.get(), path.c_str(), events | IN_MASK_ADD);
    if (watch < 0) {
        if (errno == ENOSPC)
            complainOnce();
        return false;
    }
    auto& counting = m_watches[watch];
    if (!name.empty())
        counting.insert(name);
    return true;
}

bool SettingsWatch::concerns(int watch, std::uint32_t what, std::string_view name) const
{
    if ((what & IN_Q_OVERFLOW) != 0)
        return true;
    const auto found = m_watches.find(watch);
    return found != m_watches.end() && (name.empty() || found->second.contains(name));
}

bool SettingsWatch::takeEvents()
{
    bool changed = false;
    // Room for many at once; the system wants it for one of the longest name at least.
    alignas(inotify_event) std::array<char, 4096> events{};
    for (;;) {
        const ssize_t length = ::read(m_inotify.get(), events.data(), events.size());
        if (length < 0 && errno == EINTR)
            continue;
        if (length <= 0)
            break;
        for (const char* at = events.data(); at < events.data() + length;) {
            inotify_event event{};
            std::memcpy(&event, at, sizeof event);
            // The name is filled up with NUL.
            const std::string_view name = event.len > 0 ? at + sizeof event : "";
            changed = changed || concerns(event.wd, event.mask, name);
            at += sizeof event + event.len;
        }
    }
    if (changed)
        follow();
    return changed;
}

} // namespace MenuExtension
