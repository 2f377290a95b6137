#include "extension/Companion.h"

#include "extension/DirectoryAddress.h"

#include <cstdint>
#include <cstdlib>
#include <sys/epoll.h>
#include <utility>

namespace MenuExtension {

Companion::Companion(sd_event& event, sd_bus& bus, std::string settingsFolder)
    : m_event(event), m_bus(bus), m_suite(std::move(settingsFolder)), m_watch(m_suite.path()),
      m_service(bus, m_state, [this] { end(); }),
      m_panel(bus, [this](const std::vector<std::string>& addresses) { watchDirectories(addresses); })
{
    takeSettings();
}

int Companion::start()
{
    if (m_watch.descriptor() >= 0) {
        sd_event_source* source = nullptr;
        const auto changed = [](sd_event_source*, int, std::uint32_t, void* companion) {
            auto& self = *static_cast<Companion*>(companion);
            if (self.m_watch.takeEvents())
                self.followSettings();
            return 0;
        };
        const int result = sd_event_add_io(&m_event, &source, m_watch.descriptor(), EPOLLIN, changed, this);
        m_settingsChanges.reset(source);
        if (result < 0)
            return result;
    }

    sd_bus_slot* slot = nullptr;
    const auto disconnected = [](sd_bus_message*, void* companion, sd_bus_error*) {
        static_cast<Companion*>(companion)->end();
        return 0;
    };
    int result = sd_bus_match_signal(&m_bus, &slot, nullptr, "/org/freedesktop/DBus/Local",
                                     "org.freedesktop.DBus.Local", "Disconnected", disconnected, this);
    m_busEnd.reset(slot);
    if (result >= 0)
        result = m_service.publish();
    // The name comes after all that those who see it may ask for or tell.
    if (result >= 0)
        result = m_panel.start();
    if (result >= 0)
        result = m_service.claimName();
    return result;
}

void Companion::takeSettings()
{
    const auto values = m_suite.read();
    // What is known still holds while the file cannot be read.
    if (!values)
        return;
    ExtensionSettings settings = settingsFromSuite(*values);
    if (settings.folders != m_state.settings.folders)
        m_state.directoryURLs = addressesOf(settings.folders);
    m_state.settings = std::move(settings);
}

void Companion::followSettings()
{
    const CompanionState before = m_state;
    takeSettings();
    m_service.announceChangesSince(before);
}

void Companion::watchDirectories(const std::vector<std::string>& addresses)
{
    const CompanionState before = m_state;
    m_state.directoryURLs.clear();
    for (const std::string& address : addresses) {
        if (isFileAddress(address))
            m_state.directoryURLs.push_back(address);
    }
    m_service.announceChangesSince(before);
}

void Companion::end()
{
    sd_event_exit(&m_event, EXIT_SUCCESS);
}

} // namespace MenuExtension
