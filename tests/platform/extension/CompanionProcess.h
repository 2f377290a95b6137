#pragma once

#include "../bus/PrivateBus.h"
#include "platform/Value.h"
#include "platform/linux/bus/SessionBus.h"

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariantMap>

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// Of the companion's object on the bus: the path that the companion's name makes.
[[nodiscard]] QString companionPath();

/// A bus and a settings folder of its own, and companions that run there.
class CompanionTest : public testing::Test {
protected:
    using Items = std::vector<std::pair<std::string, bool>>;

    ~CompanionTest() override;

    /// Starts another companion, and gives it.
    QProcess& start(const QStringList& arguments = {});
    /// The same, and waits for it to own its name.
    QProcess& startAndWait();
    /// Waits for the end of the process. Its exit status; -1 where a signal ended it.
    static int statusOf(QProcess& process);

    [[nodiscard]] bool nameIsOwned();
    /// How the companion describes its object.
    [[nodiscard]] QByteArray introspect();
    void quit();

    // What the companion says that it holds.
    [[nodiscard]] bool flag(const char* property);
    [[nodiscard]] QStringList strings(const char* property);
    [[nodiscard]] Items items(const char* property);
    /// What it says for menus.
    [[nodiscard]] QVariantMap menuProperties();
    /// Waits for the watched directories to be these.
    [[nodiscard]] bool watches(const QStringList& addresses);

    [[nodiscard]] std::string settingsFolder() const;
    [[nodiscard]] std::string suiteFile() const;
    /// Replaces the suite's values as the panel would, this process having opened the file afresh.
    void store(const NS::Value::Dictionary& values) const;

    [[nodiscard]] QDBusConnection connection() { return *m_bus->connection(); }

    /// The companion's file.
    QString m_program = QStringLiteral(ORVIK_EXTENSION_PROGRAM);
    PrivateBus m_daemon;
    QTemporaryDir m_configuration;

private:
    [[nodiscard]] QVariant property(const char* name);

    std::unique_ptr<LinuxDesktop::SessionBus> m_bus = std::make_unique<LinuxDesktop::SessionBus>("no bus");
    std::vector<std::unique_ptr<QProcess>> m_processes;
};
