#include "extensions/ExtensionControl.h"

#include "../bus/PrivateBus.h"
#include "../bus/Waiting.h"
#include "Files.h"

#include <QDBusConnectionInterface>
#include <QDir>
#include <QFile>
#include <QProcess>

#include <csignal>
#include <gtest/gtest.h>
#include <optional>
#include <unistd.h>

using namespace ExtensionsTool;
using namespace std::chrono_literals;
using Activity = ExtensionStatus::Activity;

namespace {

/// The real companion on a bus of its own.
struct ExtensionControlTest : AutostartTestFolders, testing::Test {
    ExtensionControlTest() { qputenv("XDG_CONFIG_HOME", root.filePath(QStringLiteral("own")).toUtf8()); }
    ~ExtensionControlTest() override
    {
        const auto process = static_cast<pid_t>(companion());
        if (process != 0 && process != ::getpid())
            ::kill(process, SIGKILL);
    }

    ExtensionControl& control(std::chrono::milliseconds patience = 10s)
    {
        return m_control.emplace(m_bus, folders(), extension, patience);
    }

    /// The process that owns the companion's name; 0 for none.
    [[nodiscard]] uint companion()
    {
        const auto connection = m_bus.connection();
        return connection && connection->isConnected()
                   ? connection->interface()->servicePid(extension.identifier).value()
                   : 0;
    }

    /// A program in the companion's place.
    void installProgram(const QByteArray& script)
    {
        extension.program = root.filePath(QStringLiteral("program"));
        writeFile(extension.program, script);
        ASSERT_TRUE(QFile::setPermissions(extension.program, QFile::ReadOwner | QFile::ExeOwner));
    }

    [[nodiscard]] bool comesTo(const ExtensionStatus& status)
    {
        const bool did = waitUntil([&] { return m_control->status() == status; });
        EXPECT_TRUE(did) << inWords(m_control->status()).toStdString();
        return did;
    }

    const ExtensionStatus off{};
    const ExtensionStatus on{.startsAtLogIn = true, .runs = true};
    const ExtensionStatus onlyAtLogIn{.startsAtLogIn = true, .runs = false};
    const ExtensionStatus onlyNow{.startsAtLogIn = false, .runs = true};
    const QString path = own(file);

    PrivateBus m_daemon;
    LinuxDesktop::SessionBus m_bus{"no bus"};

private:
    std::optional<ExtensionControl> m_control;
};

ExtensionStatus withTrouble(ExtensionStatus status, const QString& trouble)
{
    status.trouble = trouble;
    return status;
}

} // namespace

using Control = ExtensionControlTest;

TEST_F(Control, SwitchesOnAndOffNowAndForTheLogInsToCome)
{
    auto& extensionControl = control();
    EXPECT_EQ(extensionControl.status(), off);
    for (int round = 0; round < 2; ++round) {
        extensionControl.switchOn();
        EXPECT_TRUE(QFile::exists(path));
        EXPECT_EQ(extensionControl.status().activity, Activity::Starting);
        EXPECT_FALSE(isOn(extensionControl.status())) << "it is on when it runs";
        ASSERT_TRUE(comesTo(on));
        EXPECT_NE(companion(), 0U);

        extensionControl.switchOff();
        EXPECT_FALSE(QFile::exists(path));
        ASSERT_TRUE(comesTo(off));
        EXPECT_EQ(companion(), 0U);
    }
}

TEST_F(Control, FindsWhatWasSwitchedOnBefore)
{
    control().switchOn();
    ASSERT_TRUE(comesTo(on));
    EXPECT_EQ(control().status(), on);
}

TEST_F(Control, FollowsWhatOthersDo)
{
    auto& extensionControl = control();
    extensionControl.switchOn();
    ASSERT_TRUE(comesTo(on));
    ASSERT_EQ(::kill(static_cast<pid_t>(companion()), SIGKILL), 0);
    ASSERT_TRUE(comesTo(onlyAtLogIn));
    extensionControl.switchOn();
    ASSERT_TRUE(comesTo(on));
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(comesTo(onlyNow));
    extensionControl.switchOn();
    EXPECT_EQ(extensionControl.status(), on) << "it ran already";
    writeFile(path, "[Desktop Entry]\nExec=a\nHidden=true\n");
    EXPECT_TRUE(comesTo(onlyNow));
}

TEST_F(Control, StartsNothingWhereTheEntryCannotBeWritten)
{
    writeFile(root.filePath(QStringLiteral("own")), "a file where the folder should be");
    auto& extensionControl = control();
    extensionControl.switchOn();
    EXPECT_EQ(extensionControl.status(),
              withTrouble(off, QStringLiteral("Could not make the folder %1: Not a directory.").arg(own())));
    runFor(300ms);
    EXPECT_EQ(companion(), 0U);
}

TEST_F(Control, EndsNothingWhereTheEntryCannotBeChanged)
{
    auto& extensionControl = control();
    extensionControl.switchOn();
    ASSERT_TRUE(comesTo(on));
    // A system-wide entry is hidden by a file, which this folder does not let be replaced.
    writeFile(systemWide(file), "[Desktop Entry]\nExec=something\n");
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QDir().mkpath(path + QStringLiteral("/something")));
    runFor(100ms);
    extensionControl.switchOff();
    EXPECT_TRUE(extensionControl.status().trouble.startsWith(QStringLiteral("Could not write ")))
        << inWords(extensionControl.status()).toStdString();
    runFor(300ms);
    EXPECT_NE(companion(), 0U);
}

TEST_F(Control, SaysThatTheProgramIsMissing)
{
    extension.program = QStringLiteral("/nowhere/program");
    auto& extensionControl = control();
    extensionControl.switchOn();
    EXPECT_EQ(extensionControl.status(),
              withTrouble(off, QStringLiteral("The program /nowhere/program is missing.")));
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(Control, SaysThatAProgramDoesNotAnswer)
{
    installProgram("#!/bin/sh\nexit 0\n");
    control(200ms).switchOn();
    EXPECT_TRUE(comesTo(withTrouble(onlyAtLogIn, QStringLiteral("It was started, but it does not answer."))));
}

TEST_F(Control, SaysThatAProgramDoesNotEnd)
{
    auto& extensionControl = control(2s);
    extensionControl.switchOn();
    ASSERT_TRUE(comesTo(on));
    const auto process = static_cast<pid_t>(companion());
    ASSERT_EQ(::kill(process, SIGSTOP), 0);
    extensionControl.switchOff();
    EXPECT_TRUE(comesTo(withTrouble(onlyNow, QStringLiteral("It was asked to end, but it does not."))));
    // Late is better than never, and then nothing is wrong any more.
    ASSERT_EQ(::kill(process, SIGCONT), 0);
    EXPECT_TRUE(comesTo(off));
}

TEST_F(Control, SaysThatAProgramRefusesToEnd)
{
    ASSERT_TRUE(m_bus.connection()->registerService(extension.identifier));
    auto& extensionControl = control();
    ASSERT_EQ(extensionControl.status(), onlyNow);
    extensionControl.switchOff();
    ASSERT_TRUE(waitUntil([&] { return extensionControl.status().activity == Activity::None; }));
    EXPECT_TRUE(extensionControl.status().trouble.startsWith(QStringLiteral("It could not be asked to end: ")))
        << inWords(extensionControl.status()).toStdString();
}

TEST_F(Control, SeesTheBusGo)
{
    auto& extensionControl = control();
    extensionControl.switchOn();
    ASSERT_TRUE(comesTo(on));
    m_daemon.kill();
    EXPECT_TRUE(comesTo({.hasBus = false, .startsAtLogIn = true}));
}

TEST_F(Control, KnowsThatThereIsNoBus)
{
    m_daemon.kill();
    LinuxDesktop::SessionBus none("");
    const ExtensionControl extensionControl(none, folders(), extension);
    EXPECT_EQ(extensionControl.status(), ExtensionStatus{.hasBus = false});
}
