#include "platform/linux/processes/RunningApplications.h"

#include <QDBusMessage>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <string>
#include <utility>

namespace LinuxDesktop {

namespace {

using namespace std::chrono_literals;

/// Long for a bus, and as long as it may hold up the program's end.
constexpr std::chrono::milliseconds timeout = 2s;

/// The well-known names on the bus. The bus takes none that is not in reverse-domain form.
std::vector<std::string> ownedNames(const QDBusConnection& connection)
{
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    const auto call = QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                                     QStringLiteral("ListNames"));
    const QDBusMessage answer = connection.call(call, QDBus::Block, static_cast<int>(timeout.count()));
    std::vector<std::string> names;
    // The argument of an error is a text, which is no list of names.
    if (answer.type() != QDBusMessage::ReplyMessage)
        return names;
    for (const QString& name : answer.arguments().value(0).toStringList())
        if (!name.startsWith(u':') && name != bus)
            names.push_back(name.toStdString());
    return names;
}

} // namespace

RunningApplications::RunningApplications(SessionBus& bus) : m_connection(bus.connection()) {}

std::vector<NS::RunningApplication> RunningApplications::list()
{
    if (!m_connection)
        return {};
    auto names = ownedNames(*m_connection);
    std::ranges::sort(names);
    const auto policies = m_entries.policiesOf(names);
    std::vector<NS::RunningApplication> running;
    running.reserve(names.size());
    for (std::size_t index = 0; index < names.size(); ++index)
        running.push_back({policies[index], std::move(names[index])});
    return running;
}

} // namespace LinuxDesktop
