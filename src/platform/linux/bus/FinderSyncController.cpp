#include "platform/linux/bus/FinderSyncController.h"

#include "findersyncadaptor.h"
#include "platform/linux/bus/interfaces/FinderSync.h"
#include "platform/linux/system/Complaint.h"

#include <QDBusMessage>
#include <QVariantMap>

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

namespace LinuxDesktop {

namespace Published = BusInterface::FinderSync;

namespace {

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
        complain("the watched folders are too many to be told to the file manager");
        return;
    }

    const bool first = !m_exported;
    if (first) {
        m_exported = std::make_unique<QObject>();
        m_interface = new FinderSyncAdaptor(m_exported.get());
    }
    m_exported->setProperty(Published::directoryURLs::name, *addresses);
    if (first)
        connection->registerObject(Published::path, m_exported.get(), QDBusConnection::ExportAdaptors);

    emit m_interface->DirectoryURLs(*addresses);
    auto changed = QDBusMessage::createSignal(Published::path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                              QStringLiteral("PropertiesChanged"));
    changed << Published::interface << QVariantMap() << QStringList{Published::directoryURLs::name};
    connection->send(changed);
}

} // namespace LinuxDesktop
