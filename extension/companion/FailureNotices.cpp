#include "extension/companion/FailureNotices.h"

#include "extension/bus/SessionBus.h"
#include "platform/linux/system/Complaint.h"
#include "settings/Deployment.h"

#include <cerrno>
#include <utility>

namespace MenuExtension {

namespace {

constexpr BusMethod notify{"org.freedesktop.Notifications", "/org/freedesktop/Notifications",
                           "org.freedesktop.Notifications", "Notify"};
constexpr std::int32_t desktopsOwnTime = -1;

/// The words of a notification may be marked up.
std::string escaped(const std::string& words)
{
    std::string text;
    for (const char character : words) {
        if (character == '&')
            text += "&amp;";
        else if (character == '<')
            text += "&lt;";
        else if (character == '>')
            text += "&gt;";
        else
            text += character;
    }
    return text;
}

} // namespace

FailureNotices::FailureNotices(sd_bus& bus) : m_bus(bus) {}

void FailureNotices::tell(const std::string& title, const std::string& words)
{
    std::string told = title + ": " + words;
    if (told != m_last)
        m_number = 0;
    m_last = std::move(told);

    const std::string application(Deployment::applicationIdentifier);
    const Message call = newCall(m_bus, notify);
    const auto answered = [](sd_bus_message* reply, void* notices, sd_bus_error*) {
        return static_cast<FailureNotices*>(notices)->takeReply(*reply);
    };
    sd_bus_slot* slot = nullptr;
    int result = call ? sd_bus_message_append(call.get(), "susssasa{sv}i", "Orvik Menu", m_number,
                                              application.c_str(), title.c_str(), escaped(words).c_str(), 0, 1,
                                              "desktop-entry", "s", application.c_str(), desktopsOwnTime)
                      : -ENOMEM;
    if (result >= 0)
        result = sd_bus_call_async(&m_bus, &slot, call.get(), answered, this, 0);
    m_call.reset(slot);
    if (result < 0)
        LinuxDesktop::complain(m_last);
}

int FailureNotices::takeReply(sd_bus_message& reply)
{
    if (sd_bus_message_is_method_error(&reply, nullptr) != 0)
        LinuxDesktop::complain(m_last);
    else
        sd_bus_message_read_basic(&reply, SD_BUS_TYPE_UINT32, &m_number);
    return 0;
}

} // namespace MenuExtension
