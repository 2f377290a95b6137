#include "PrivateBus.h"
#include "Waiting.h"
#include "platform/linux/bus/DistributedNotificationCenter.h"
#include "settings/Deployment.h"

#include <QDBusMessage>
#include <QProcess>

#include <gtest/gtest.h>
#include <optional>
#include <string>

using namespace LinuxDesktop;

namespace {

struct Notify : testing::Test {
    /// Runs the program and keeps what it says. Its exit status.
    int run(const QStringList& arguments)
    {
        QProcess program;
        program.start(QStringLiteral(ORVIK_NOTIFY), arguments);
        EXPECT_TRUE(program.waitForFinished());
        m_output = program.readAllStandardOutput();
        m_errors = program.readAllStandardError();
        return program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
    }

    QByteArray m_output;
    QByteArray m_errors;
};

struct NotifyWithBus : Notify {
    void observe(std::string_view name, std::string_view object)
    {
        m_center.addObserver_name_object([this] { ++m_delivered; }, name, object);
        // The bus handles messages in order, so it knows the observer when it answers.
        (void)m_bus.connection()->call(QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")));
    }

    [[nodiscard]] bool delivered()
    {
        return waitUntil([this] { return m_delivered > 0; });
    }

    PrivateBus m_daemon;
    SessionBus m_bus{"none"};
    ModalState m_modal;
    DistributedNotificationCenter m_center{m_bus, m_modal};
    int m_delivered = 0;
};

} // namespace

TEST_F(NotifyWithBus, PostsOnBehalfOfTheExtensionUnlessToldOtherwise)
{
    observe("ReloadCustomFolders", Deployment::extensionIdentifier);
    EXPECT_EQ(run({QStringLiteral("ReloadCustomFolders")}), 0);
    EXPECT_TRUE(delivered());
    EXPECT_EQ(m_output + m_errors, "");
}

TEST_F(NotifyWithBus, PostsOnBehalfOfTheGivenObject)
{
    observe("Name", "an object with \"quotes\"; and $(signs)");
    EXPECT_EQ(run({QStringLiteral("Name"), QStringLiteral("an object with \"quotes\"; and $(signs)")}), 0);
    EXPECT_TRUE(delivered());
}

TEST_F(NotifyWithBus, TakesANameWithADashAfterTwoDashes)
{
    observe("--help", Deployment::extensionIdentifier);
    EXPECT_EQ(run({QStringLiteral("--"), QStringLiteral("--help")}), 0);
    EXPECT_TRUE(delivered());
}

TEST_F(Notify, SaysThatThereIsNoBus)
{
    const QTemporaryDir empty;
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", empty.path().toUtf8());
    EXPECT_EQ(run({QStringLiteral("Name")}), 1);
    EXPECT_EQ(m_output, "");
    EXPECT_EQ(m_errors, "orvik-notify: there is no session bus\n");
}

TEST_F(Notify, ExplainsItselfOnStandardOutputWhenAsked)
{
    EXPECT_EQ(run({QStringLiteral("--help")}), 0);
    EXPECT_TRUE(m_output.startsWith("Usage: orvik-notify NAME [OBJECT]\n"));
    EXPECT_EQ(m_errors, "");
    EXPECT_EQ(run({QStringLiteral("--version")}), 0);
    EXPECT_TRUE(m_output.startsWith("orvik-notify "));
    EXPECT_EQ(m_errors, "");
}

TEST_F(Notify, RefusesACommandLineThatItDoesNotUnderstand)
{
    for (const QStringList& arguments : {QStringList{},
                                         {QString()},
                                         {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")},
                                         {QStringLiteral("--loud"), QStringLiteral("a")}}) {
        EXPECT_EQ(run(arguments), 2) << arguments.join(u' ').toStdString();
        EXPECT_EQ(m_output, "");
        EXPECT_TRUE(m_errors.startsWith("orvik-notify: "));
    }
}
