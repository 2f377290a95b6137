#pragma once

#include <QDBusAbstractAdaptor>
#include <QStringList>

#include <utility>

namespace LinuxDesktop {

/// What the panel tells the file manager's companion: the addresses of the folders that it watches. Readers are told
/// of a change by the signal DirectoryURLs, which has the addresses, and those that cache properties by
/// PropertiesChanged without them.
class FinderSyncInterface final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.orvikstudio.FinderSync")
    Q_CLASSINFO(
        "D-Bus Introspection",
        "  <interface name=\"com.orvikstudio.FinderSync\">\n"
        "    <property name=\"directoryURLs\" type=\"as\" access=\"read\">\n"
        "      <annotation name=\"org.freedesktop.DBus.Property.EmitsChangedSignal\" value=\"invalidates\"/>\n"
        "    </property>\n"
        "    <signal name=\"DirectoryURLs\">\n"
        "      <arg name=\"directoryURLs\" type=\"as\"/>\n"
        "    </signal>\n"
        "  </interface>\n")
    Q_PROPERTY(QStringList directoryURLs READ directoryURLs)

public:
    /// Owned by `exported`.
    explicit FinderSyncInterface(QObject& exported) : QDBusAbstractAdaptor(&exported) {}

    [[nodiscard]] const QStringList& directoryURLs() const { return m_directoryURLs; }
    void setDirectoryURLs(QStringList urls) { m_directoryURLs = std::move(urls); }

    /// Goes out on the bus.
    Q_SIGNAL void DirectoryURLs(const QStringList& directoryURLs);

private:
    QStringList m_directoryURLs;
};

} // namespace LinuxDesktop
