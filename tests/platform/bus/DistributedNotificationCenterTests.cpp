#include "platform/linux/bus/DistributedNotificationCenter.h"

#include "PrivateBus.h"
#include "Waiting.h"
#include "platform/linux/bus/interfaces/DistributedNotificationCenter.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QThread>

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace LinuxDesktop;
using namespace std::chrono_literals;

namespace {

using Names = std::vector<std::string>;

struct NotificationCenter : testing::Test {
    /// Notes the name each time that it is delivered.
    void observe(const std::string& name, const std::string& object = "sender")
    {
        m_center.addObserver_name_object([this, name] { m_delivered.push_back(name); }, name, object);
    }

    /// Posts from another connection, once the bus knows what is observed.
    void post(const char* name, const char* object = "sender")
    {
        ask(m_bus, QStringLiteral("GetId"), {});
        using namespace BusInterface::DistributedNotificationCenter;
        m_poster.connection()->send(QDBusMessage::createSignal(path, interface, Posted::name)
                                    << QString::fromUtf8(name) << QString::fromUtf8(object));
        ask(m_poster, QStringLiteral("GetId"), {});
    }

    static QDBusMessage ask(SessionBus& bus, const QString& method, const QVariantList& arguments,
                            const QString& interface = QStringLiteral("org.freedesktop.DBus"))
    {
        auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                                                   QStringLiteral("/org/freedesktop/DBus"), interface, method);
        call.setArguments(arguments);
        return bus.connection()->call(call);
    }

    [[nodiscard]] bool waitForDeliveries(std::size_t count)
    {
        return waitUntil([&] { return m_delivered.size() >= count; });
    }

    PrivateBus m_daemon;
    SessionBus m_bus{"none"};
    SessionBus m_poster{"none"};
    ModalState m_modal;
    DistributedNotificationCenter m_center{m_bus, m_modal};
    Names m_delivered;
};

} // namespace

TEST_F(NotificationCenter, DeliversAPostingOnceOnTheMainThread)
{
    QThread* thread = nullptr;
    m_center.addObserver_name_object([&] { thread = QThread::currentThread(); }, "A", "sender");
    observe("A");
    post("A");
    ASSERT_TRUE(waitForDeliveries(1));
    runFor(100ms);
    EXPECT_EQ(m_delivered, Names{"A"});
    EXPECT_EQ(thread, QCoreApplication::instance()->thread());
}

TEST_F(NotificationCenter, IgnoresOtherNamesAndOtherObjects)
{
    observe("A");
    observe("B", "another sender");
    post("A", "another sender");
    post("B");
    post("a");
    post("A", "Sender");
    post("A", "");
    post("A");
    ASSERT_TRUE(waitForDeliveries(1));
    runFor(100ms);
    EXPECT_EQ(m_delivered, Names{"A"});
}

TEST_F(NotificationCenter, AsksTheBusForNothingButTheObservedPostings)
{
    observe("A");
    post("A");
    ASSERT_TRUE(waitForDeliveries(1));
    const auto answer =
        ask(m_bus, QStringLiteral("GetAllMatchRules"), {}, QStringLiteral("org.freedesktop.DBus.Debug.Stats"));
    ASSERT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
    QMap<QString, QStringList> rules;
    answer.arguments().at(0).value<QDBusArgument>() >> rules;

    QStringList signalRules;
    for (const QString& rule : rules.value(m_bus.connection()->baseService()))
        if (rule.contains(BusInterface::DistributedNotificationCenter::interface))
            signalRules.append(rule);
    ASSERT_EQ(signalRules.size(), 1);
    EXPECT_TRUE(signalRules.front().contains(QStringLiteral("arg0='A'"))) << signalRules.front().toStdString();
    EXPECT_TRUE(signalRules.front().contains(QStringLiteral("arg1='sender'"))) << signalRules.front().toStdString();
}

TEST_F(NotificationCenter, DeliversWhatAStandardToolPosts)
{
    observe("ReloadCustomFolders", "com.orvikstudio.orvikmenu.findersyncextension");
    ask(m_bus, QStringLiteral("GetId"), {});
    ASSERT_EQ(QProcess::execute(QStringLiteral("gdbus"),
                                {QStringLiteral("emit"), QStringLiteral("--session"), QStringLiteral("--object-path"),
                                 QStringLiteral("/com/orvikstudio/DistributedNotificationCenter"),
                                 QStringLiteral("--signal"),
                                 QStringLiteral("com.orvikstudio.DistributedNotificationCenter.Posted"),
                                 QStringLiteral("ReloadCustomFolders"),
                                 QStringLiteral("com.orvikstudio.orvikmenu.findersyncextension")}),
              0);
    EXPECT_TRUE(waitForDeliveries(1));
}

TEST_F(NotificationCenter, CallsTheObserversOfAPostingInTheirOrder)
{
    Names called;
    m_center.addObserver_name_object([&] { called.emplace_back("first"); }, "A", "sender");
    m_center.addObserver_name_object([&] { called.emplace_back("second"); }, "A", "sender");
    m_center.addObserver_name_object([&] { called.emplace_back("third"); }, "A", "sender");
    post("A");
    ASSERT_TRUE(waitUntil([&] { return called.size() >= 3; }));
    EXPECT_EQ(called, (Names{"first", "second", "third"}));
}

TEST_F(NotificationCenter, AnObserverAddedByAHandlerHearsTheNextPosting)
{
    m_center.addObserver_name_object(
        [&] {
            m_delivered.emplace_back("A");
            observe("B");
        },
        "A", "sender");
    post("A");
    ASSERT_TRUE(waitForDeliveries(1));
    post("B");
    ASSERT_TRUE(waitForDeliveries(2));
    EXPECT_EQ(m_delivered, (Names{"A", "B"}));
}

TEST_F(NotificationCenter, HoldsBackWhatArrivesDuringAModalSessionAndDeliversItInOrderAfterwards)
{
    observe("A");
    observe("B");
    {
        const ModalState::Session outer(m_modal);
        post("A");
        {
            const ModalState::Session inner(m_modal);
            post("B");
            runFor(200ms);
        }
        post("A");
        runFor(200ms);
        EXPECT_EQ(m_delivered, Names{});
    }
    EXPECT_EQ(m_delivered, Names{}) << "the session's end must return to the event loop first";
    ASSERT_TRUE(waitForDeliveries(3));
    EXPECT_EQ(m_delivered, (Names{"A", "B", "A"}));
}

TEST_F(NotificationCenter, HoldsBackTheRestWhileAHandlerRunsAPanel)
{
    m_center.addObserver_name_object(
        [this] {
            const ModalState::Session panel(m_modal);
            m_delivered.emplace_back("panel opens");
            runFor(200ms);
            m_delivered.emplace_back("panel closes");
        },
        "Panel", "sender");
    observe("A");
    {
        const ModalState::Session session(m_modal);
        post("Panel");
        post("A");
        post("Panel");
        post("A");
        runFor(200ms);
    }
    ASSERT_TRUE(waitForDeliveries(6));
    EXPECT_EQ(m_delivered, (Names{"panel opens", "panel closes", "A", "panel opens", "panel closes", "A"}));
}
