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
    m_last = told;

    const std::string application(Deployment::applicationIdentifier);
    const Message call = newCall(m_bus, notify);
    Telling& telling = m_tellings.emplace_back(Telling{this, std::move(told), {}});
    const auto answered = [](sd_bus_message* reply, void* data, sd_bus_error*) {
        auto& answeredOne = *static_cast<Telling*>(data);
        FailureNotices& notices = *answeredOne.notices;
        notices.takeReply(answeredOne, *reply);
        notices.m_tellings.remove_if([&](const Telling& other) { return &other == &answeredOne; });
        return 0;
    };
    sd_bus_slot* slot = nullptr;
    int result = call ? sd_bus_message_append(call.get(), "susssasa{sv}i", "Orvik Menu", m_number,
                                              application.c_str(), title.c_str(), escaped(words).c_str(), 0, 1,
                                              "desktop-entry", "s", application.c_str(), desktopsOwnTime)
                      : -ENOMEM;
    if (result >= 0)
        result = sd_bus_call_async(&m_bus, &slot, call.get(), answered, &telling, 0);
    telling.call.reset(slot);
    if (result < 0) {
        m_tellings.pop_back();
        LinuxDesktop::complain(m_last);
    }
}

void FailureNotices::takeReply(const Telling& telling, sd_bus_message& reply)
{
    if (sd_bus_message_is_method_error(&reply, nullptr) != 0)
        LinuxDesktop::complain(telling.told);
    else if (telling.told == m_last)
        sd_bus_message_read_basic(&reply, SD_BUS_TYPE_UINT32, &m_number);
}

} // namespace MenuExtension
