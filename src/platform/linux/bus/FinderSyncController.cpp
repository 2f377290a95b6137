#include "platform/linux/bus/FinderSyncController.h"

#include "platform/linux/bus/FinderSyncInterface.h"

#include <QDBusMessage>
#include <QVariantMap>

#include <cstddef>
#include <cstdio>
#include <optional>
#include <string>
#include <utility>

namespace LinuxDesktop {

namespace {

const QString path = QStringLiteral("/com/orvikstudio/FinderSync");
const QString interfaceName = QStringLiteral("com.orvikstudio.FinderSync");

/// The bus drops the connection of whoever sends a longer array.
constexpr std::size_t longestArray = std::size_t{64} << 20U;

/// What a string of the length takes up in an array: its size, itself, its end, and the way to the next one's place.
constexpr std::size_t sizeInArray(std::size_t length)
{
    constexpr std::size_t alignment = 4;
    return sizeof(quint32) + (length + 1 + alignment - 1) / alignment * alignment;
}

/// Nothing when they are too long for the bus.
std::optional<QStringList> addressesOf(const std::set<NS::URL>& urls)
{
    QStringList addresses;
    addresses.reserve(static_cast<qsizetype>(urls.size()));
    std::size_t size = 0;
    for (const NS::URL& url : urls) {
        const std::string address = url.absoluteString();
        size += sizeInArray(address.size());
        if (size > longestArray)
            return std::nullopt;
        addresses.append(QString::fromLatin1(address.data(), static_cast<qsizetype>(address.size())));
    }
    return addresses;
}

} // namespace

FinderSyncController::FinderSyncController(SessionBus& bus) : m_bus(bus) {}

FinderSyncController::~FinderSyncController() = default;

void FinderSyncController::setDirectoryURLs(const std::set<NS::URL>& urls)
{
    auto connection = m_bus.connection();
    if (!connection)
        return;
    auto addresses = addressesOf(urls);
    if (!addresses) {
        std::fputs("orvik-menu: the watched folders are too many to be told to the file manager\n", stderr);
        return;
    }

    const bool first = !m_exported;
    if (first) {
        m_exported = std::make_unique<QObject>();
        m_interface = new FinderSyncInterface(*m_exported);
    }
    m_interface->setDirectoryURLs(std::move(*addresses));
    if (first)
        connection->registerObject(path, m_exported.get(), QDBusConnection::ExportAdaptors);

    emit m_interface->DirectoryURLs(m_interface->directoryURLs());
    auto changed = QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                              QStringLiteral("PropertiesChanged"));
    changed << interfaceName << QVariantMap() << QStringList{QStringLiteral("directoryURLs")};
    connection->send(changed);
}

} // namespace LinuxDesktop
