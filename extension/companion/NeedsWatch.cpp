#include "extension/companion/NeedsWatch.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string>
#include <sys/epoll.h>
#include <sys/inotify.h>
#include <utility>

namespace MenuExtension {

namespace {

/// Where it is, or would come to.
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

std::vector<bool> areMet(const std::vector<ActionNeed>& needs)
{
    std::vector<bool> areMet;
    std::ranges::transform(needs, std::back_inserter(areMet), isMet);
    return areMet;
}

} // namespace

NeedsWatch::NeedsWatch(sd_event& event, std::function<void()> changed) : m_event(event), m_changed(std::move(changed))
{}

bool NeedsWatch::follow(std::vector<ActionNeed> needs)
{
    if (needs == m_needs)
        return false;
    m_needs = std::move(needs);
    m_events.reset();
    m_inotify.reset();
    m_areMet.clear();
    if (m_needs.empty())
        return true;
    m_inotify.emplace();
    for (const ActionNeed& need : m_needs) {
        for (const std::string& folder : foldersFor(need))
            m_inotify->add(folder, IN_CREATE | IN_MOVED_TO | IN_ATTRIB | IN_DELETE | IN_MOVED_FROM | IN_ONLYDIR);
    }
    sd_event_source* source = nullptr;
    const auto happened = [](sd_event_source*, int, std::uint32_t, void* watch) {
        static_cast<NeedsWatch*>(watch)->look();
        return 0;
    };
    // Without a queue, it is found at the next change of the settings.
    if (sd_event_add_io(&m_event, &source, m_inotify->descriptor(), EPOLLIN, happened, this) >= 0)
        m_events.reset(source);
    m_areMet = areMet(m_needs);
    return true;
}

void NeedsWatch::look()
{
    m_inotify->read([](const LinuxDesktop::Inotify::Event&) {});
    std::vector<bool> areMetNow = areMet(m_needs);
    if (areMetNow == m_areMet)
        return;
    m_areMet = std::move(areMetNow);
    m_changed();
}

} // namespace MenuExtension
