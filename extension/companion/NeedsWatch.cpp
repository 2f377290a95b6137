#include "extension/companion/NeedsWatch.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <string>
#include <sys/epoll.h>
#include <sys/inotify.h>
#include <utility>

namespace MenuExtension {

namespace {

/// Where it would come to.
std::vector<std::string> foldersFor(const ActionNeed& need)
{
    if (need.kind == ActionNeed::Kind::Library)
        return {std::filesystem::path(need.name).parent_path()};
    std::vector<std::string> folders;
    const char* variable = std::getenv("PATH");
    std::istringstream path(variable ? variable : "");
    for (std::string folder; std::getline(path, folder, ':');)
        folders.push_back(folder);
    return folders;
}

} // namespace

NeedsWatch::NeedsWatch(sd_event& event, std::function<void()> came) : m_event(event), m_came(std::move(came)) {}

void NeedsWatch::waitFor(std::vector<ActionNeed> missing)
{
    if (missing == m_missing)
        return;
    m_missing = std::move(missing);
    m_events.reset();
    m_inotify.reset();
    if (m_missing.empty())
        return;
    m_inotify.emplace();
    for (const ActionNeed& need : m_missing) {
        for (const std::string& folder : foldersFor(need))
            m_inotify->add(folder, IN_CREATE | IN_MOVED_TO | IN_ATTRIB | IN_ONLYDIR);
    }
    sd_event_source* source = nullptr;
    const auto happened = [](sd_event_source*, int, std::uint32_t, void* watch) {
        static_cast<NeedsWatch*>(watch)->look();
        return 0;
    };
    // Without a queue, it is found at the next change of the settings.
    if (sd_event_add_io(&m_event, &source, m_inotify->descriptor(), EPOLLIN, happened, this) >= 0)
        m_events.reset(source);
}

void NeedsWatch::look()
{
    m_inotify->read([](const LinuxDesktop::Inotify::Event&) {});
    if (std::ranges::any_of(m_missing, isMet))
        m_came();
}

} // namespace MenuExtension
