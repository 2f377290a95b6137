#include "platform/linux/bus/FinderSyncController.h"

#include "PrivateBus.h"
#include "Waiting.h"

#include <QDBusArgument>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <cerrno>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

using namespace LinuxDesktop;

namespace {

const QString path = QStringLiteral("/com/orvikstudio/FinderSync");
const QString interfaceName = QStringLiteral("com.orvikstudio.FinderSync");

std::set<NS::URL> folders(const std::vector<std::string>& paths)
{
    std::set<NS::URL> urls;
    for (const std::string& folder : paths)
        urls.insert(NS::URL::fileURLWithPath(folder));
    return urls;
}

/// What everybody hears on the bus, as the bus's own tool says it.
class BusMonitor {
public:
    explicit BusMonitor(const QString& rule)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral("dbus-monitor"), {QStringLiteral("--session"), rule});
        // A monitor loses its name when it becomes one; from then on it hears everything.
        EXPECT_TRUE(waitUntil([&] { return heard().contains("member=NameLost"); }));
        m_heard.clear();
    }
    ~BusMonitor()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    BusMonitor(const BusMonitor&) = delete;
    BusMonitor& operator=(const BusMonitor&) = delete;

    /// Everything up to and with the next `end`; empty when that does not come.
    std::string nextUpTo(const QByteArray& end)
    {
        if (!waitUntil([&] { return heard().contains(end); }))
            return {};
        const qsizetype length = m_heard.indexOf(end) + end.size();
        std::string message = m_heard.left(length).toStdString();
        m_heard.remove(0, length);
        return message;
    }

private:
    const QByteArray& heard()
    {
        m_heard += m_process.readAllStandardOutput();
        return m_heard;
    }

    QProcess m_process;
    QByteArray m_heard;
};

struct FinderSync : testing::Test {
    /// What another program gets for an answer, while this one's event loop runs.
    QDBusMessage ask(const QString& interface, const QString& method, const QVariantList& arguments = {})
    {
        auto call = QDBusMessage::createMethodCall(m_bus.connection()->baseService(), path, interface, method);
        call.setArguments(arguments);
        const QDBusPendingCall pending = m_reader.connection()->asyncCall(call);
        EXPECT_TRUE(waitUntil([&] { return pending.isFinished(); }));
        return pending.reply();
    }

    QDBusMessage askProperty()
    {
        return ask(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"),
                   {interfaceName, QStringLiteral("directoryURLs")});
    }

    QStringList property()
    {
        const QDBusMessage answer = askProperty();
        EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
        const QVariant value = answer.arguments().value(0).value<QDBusVariant>().variant();
        EXPECT_EQ(value.metaType(), QMetaType::fromType<QStringList>());
        return value.toStringList();
    }

    PrivateBus m_daemon;
    SessionBus m_bus{"none"};
    SessionBus m_reader{"none"};
    FinderSyncController m_controller{m_bus};
};

} // namespace

TEST_F(FinderSync, BroadcastsTheAddressesInTheOrderOfTheSet)
{
    BusMonitor monitor(QStringLiteral("type='signal',interface='com.orvikstudio.FinderSync'"));
    m_controller.setDirectoryURLs(
        folders({"/home/b", "/home/a", "/", "/home/a b\"c'd\ne\\", "/home/B\xc3\xbc", "/\xff"}));
    const std::string message = monitor.nextUpTo("   ]\n");
    EXPECT_NE(message.find("path=/com/orvikstudio/FinderSync; interface=com.orvikstudio.FinderSync; "
                           "member=DirectoryURLs\n"
                           "   array [\n"
                           "      string \"file:///\"\n"
                           "      string \"file:///home/B%C3%BC\"\n"
                           "      string \"file:///home/a\"\n"
                           "      string \"file:///home/a%20b%22c%27d%0Ae%5C\"\n"
                           "      string \"file:///home/b\"\n"
                           "      string \"file:///%FF\"\n"
                           "   ]\n"),
              std::string::npos)
        << message;
}

TEST_F(FinderSync, BroadcastsTheWholeSetEachTimeAlsoAnEmptyAndAnUnchangedOne)
{
    BusMonitor monitor(QStringLiteral("type='signal',interface='com.orvikstudio.FinderSync'"));
    const auto addressesNext = [&] {
        const std::string message = monitor.nextUpTo("   ]\n");
        return message.substr(std::min(message.size(), message.find("   array [")));
    };
    m_controller.setDirectoryURLs({});
    EXPECT_EQ(addressesNext(), "   array [\n   ]\n");
    m_controller.setDirectoryURLs(folders({"/a", "/b"}));
    EXPECT_EQ(addressesNext(), "   array [\n      string \"file:///a\"\n      string \"file:///b\"\n   ]\n");
    m_controller.setDirectoryURLs(folders({"/b"}));
    EXPECT_EQ(addressesNext(), "   array [\n      string \"file:///b\"\n   ]\n");
    m_controller.setDirectoryURLs(folders({"/b"}));
    EXPECT_EQ(addressesNext(), "   array [\n      string \"file:///b\"\n   ]\n");
}

TEST_F(FinderSync, TellsThoseWhoKeepPropertiesThatTheirsIsOld)
{
    BusMonitor monitor(QStringLiteral("type='signal',member='PropertiesChanged'"));
    m_controller.setDirectoryURLs(folders({"/a"}));
    const std::string message = monitor.nextUpTo("      string \"directoryURLs\"\n   ]\n");
    EXPECT_NE(message.find("path=/com/orvikstudio/FinderSync; interface=org.freedesktop.DBus.Properties; "
                           "member=PropertiesChanged\n"
                           "   string \"com.orvikstudio.FinderSync\"\n"
                           "   array [\n"
                           "   ]\n"
                           "   array [\n"),
              std::string::npos)
        << message;
}

TEST_F(FinderSync, HasTheLastSetForALateReader)
{
    m_controller.setDirectoryURLs(folders({"/a"}));
    m_controller.setDirectoryURLs(folders({"/b", "/c d"}));
    EXPECT_EQ(property(), (QStringList{QStringLiteral("file:///b"), QStringLiteral("file:///c%20d")}));

    const QDBusMessage all =
        ask(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("GetAll"), {interfaceName});
    QVariantMap properties;
    all.arguments().value(0).value<QDBusArgument>() >> properties;
    EXPECT_EQ(properties.keys(), QStringList{QStringLiteral("directoryURLs")});
    EXPECT_EQ(properties.first().toStringList().size(), 2);
}

TEST_F(FinderSync, TellsAnEmptySetFromNoneYet)
{
    const QDBusMessage before = askProperty();
    EXPECT_EQ(before.errorName(), QStringLiteral("org.freedesktop.DBus.Error.UnknownObject"));
    m_controller.setDirectoryURLs({});
    EXPECT_EQ(property(), QStringList());
}

TEST_F(FinderSync, LetsNobodyElseChangeTheSet)
{
    m_controller.setDirectoryURLs(folders({"/a"}));
    const QDBusMessage answer =
        ask(QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Set"),
            {interfaceName, QStringLiteral("directoryURLs"), QVariant::fromValue(QDBusVariant(QStringList()))});
    EXPECT_EQ(answer.type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(property(), QStringList{QStringLiteral("file:///a")});
}

TEST_F(FinderSync, DescribesItselfToAStandardTool)
{
    m_controller.setDirectoryURLs({});
    QProcess gdbus;
    gdbus.start(QStringLiteral("gdbus"),
                {QStringLiteral("introspect"), QStringLiteral("--session"), QStringLiteral("--dest"),
                 m_bus.connection()->baseService(), QStringLiteral("--object-path"), path});
    ASSERT_TRUE(waitUntil([&] { return gdbus.state() == QProcess::NotRunning; }));
    const std::string description = gdbus.readAllStandardOutput().toStdString();
    EXPECT_NE(description.find("interface com.orvikstudio.FinderSync {\n"
                               "    methods:\n"
                               "    signals:\n"
                               "      DirectoryURLs(as directoryURLs);\n"
                               "    properties:\n"
                               "      @org.freedesktop.DBus.Property.EmitsChangedSignal(\"invalidates\")\n"
                               "      readonly as directoryURLs = [];\n"
                               "  };\n"),
              std::string::npos)
        << description;
}

TEST_F(FinderSync, IsGoneWithTheController)
{
    {
        FinderSyncController brief(m_bus);
        brief.setDirectoryURLs({});
        EXPECT_EQ(property(), QStringList());
    }
    EXPECT_EQ(askProperty().type(), QDBusMessage::ErrorMessage);
}

TEST_F(FinderSync, CarriesAHundredThousandAddresses)
{
    std::set<NS::URL> urls;
    for (int index = 0; index < 100'000; ++index)
        urls.insert(NS::URL::fileURLWithPath("/home/someone/Documents/Projects/folder " + std::to_string(index)));
    QElapsedTimer timer;
    timer.start();
    m_controller.setDirectoryURLs(urls);
    RecordProperty("milliseconds of the main thread", std::to_string(timer.elapsed()));
    EXPECT_EQ(property().size(), 100'000);
}

TEST_F(FinderSync, KeepsTheConnectionWhenTheAddressesAreTooLongForTheBus)
{
    m_controller.setDirectoryURLs(folders({"/a"}));
    std::set<NS::URL> urls;
    for (int index = 0; index < 5'600; ++index)
        urls.insert(NS::URL::fileURLWithPath("/" + std::string(4'000, '\xff') + std::to_string(index)));
    testing::internal::CaptureStderr();
    m_controller.setDirectoryURLs(urls);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              program_invocation_short_name +
                  std::string(": the watched folders are too many to be told to the file manager\n"));
    EXPECT_EQ(property(), QStringList{QStringLiteral("file:///a")});
    m_controller.setDirectoryURLs({});
    EXPECT_EQ(property(), QStringList());
}

TEST(FinderSyncWithoutBus, DoesNothing)
{
    const QTemporaryDir empty;
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", empty.path().toUtf8());
    SessionBus bus("working without the bus");
    FinderSyncController controller(bus);
    testing::internal::CaptureStderr();
    controller.setDirectoryURLs(folders({"/a"}));
    controller.setDirectoryURLs({});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "working without the bus\n");
}
