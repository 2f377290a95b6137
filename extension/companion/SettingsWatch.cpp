#include "extension/companion/SettingsWatch.h"

#include "platform/linux/system/Complaint.h"

#include <cerrno>
#include <deque>
#include <filesystem>
#include <optional>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <system_error>
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

SettingsWatch::SettingsWatch(std::string path) : m_path(std::move(path))
{
    follow();
}

void SettingsWatch::follow()
{
    for (const auto& [watch, counting] : m_watches)
        m_inotify.remove(watch);
    m_watches.clear();
    const bool wasWhole = isWhole();
    m_lack = 0;
    if (!m_inotify)
        m_inotify = {};
    if (!m_inotify)
        m_lack = errno;
    else
        watchTheWay();
    if (!isWhole() && wasWhole)
        LinuxDesktop::complain("changes of the settings cannot be followed: " +
                               std::generic_category().message(m_lack) + "; they are looked for now and then");
    else if (isWhole() && !wasWhole)
        LinuxDesktop::complain("changes of the settings are followed again");
}

/// Watches what the path leads through now. What changes after a step's watch was made is told by that watch, so the
/// order is: watch, then look.
void SettingsWatch::watchTheWay()
{
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
    const int watch = m_inotify.add(path, events | IN_MASK_ADD);
    if (watch < 0) {
        if (errno == ENOSPC || errno == ENOMEM)
            m_lack = errno;
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
    m_inotify.read([&](const LinuxDesktop::Inotify::Event& event) {
        changed = changed || concerns(event.watch, event.what, event.name);
    });
    if (changed)
        follow();
    return changed;
}

} // namespace MenuExtension
