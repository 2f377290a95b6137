#include "../bus/Waiting.h"
#include "CompanionProcess.h"
#include "NoMoreDescriptors.h"
#include "extension/companion/Companion.h"

#include <QByteArrayList>
#include <QDBusMetaType>
#include <QDBusPendingCall>
#include <QDBusPendingReply>
#include <QDBusVariant>

using namespace MenuExtension;

namespace {

/// A companion in this process, which had nothing to follow the settings with when it began.
struct MissingWatches : CompanionTest {
    MissingWatches()
    {
        sd_event* madeEvent = nullptr;
        sd_bus* madeBus = nullptr;
        EXPECT_GE(sd_event_new(&madeEvent), 0);
        EXPECT_GE(sd_bus_open_user(&madeBus), 0);
        m_event.reset(madeEvent);
        m_sdBus.reset(madeBus);
        const char* answered = nullptr;
        EXPECT_GE(sd_bus_get_unique_name(m_sdBus.get(), &answered), 0);
        store({{"showinSubMenu", true}});
        {
            const NoMoreDescriptors none;
            m_companion.emplace(*m_event, *m_sdBus, settingsFolder());
        }
        EXPECT_GE(m_companion->start(), 0);
        EXPECT_GE(sd_bus_attach_event(m_sdBus.get(), m_event.get(), SD_EVENT_PRIORITY_NORMAL), 0);
    }

    /// Runs the companion until it shows that.
    [[nodiscard]] bool showsInSubmenu(bool expected)
    {
        return waitUntil([&] {
            auto get = QDBusMessage::createMethodCall(
                busName(), QStringLiteral("/com/orvikstudio/orvikmenu/findersyncextension"),
                QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
            get << QStringLiteral("com.orvikstudio.FinderSyncExtension") << QStringLiteral("ShowInSubmenu");
            const QDBusPendingReply<QDBusVariant> answer = answered(connection().asyncCall(get));
            return answer.isValid() && answer.value().variant().toBool() == expected;
        });
    }

    /// Runs the companion until it has answered.
    QDBusPendingCall answered(QDBusPendingCall call)
    {
        while (!call.isFinished()) {
            constexpr std::uint64_t microseconds = 10'000;
            sd_event_run(m_event.get(), microseconds);
            runFor(std::chrono::milliseconds(1));
        }
        return call;
    }

    QString busName() const
    {
        const char* own = nullptr;
        sd_bus_get_unique_name(m_sdBus.get(), &own);
        return QString::fromLatin1(own);
    }

    Event m_event;
    Bus m_sdBus;
    std::optional<Companion> m_companion;
};

} // namespace

TEST_F(MissingWatches, AreAskedForAgainAndTheSettingsReadMeanwhile)
{
    testing::internal::CaptureStderr();
    EXPECT_TRUE(showsInSubmenu(true)) << "what could not be read at the start";
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              std::string(program_invocation_short_name) + ": changes of the settings are followed again\n");
    store({{"showinSubMenu", false}});
    EXPECT_TRUE(showsInSubmenu(false));
}

TEST_F(MissingWatches, LeaveEachCallToTheSettingsThatAreStored)
{
    qDBusRegisterMetaType<QByteArrayList>();
    testing::internal::CaptureStderr();
    store({{"menuArrayDic",
            NS::Value::Array{NS::Value::Dictionary{{"title", "Hide / Unhide item"}, {"state", true}}}}});
    auto run = QDBusMessage::createMethodCall(
        busName(), companionPath(), QStringLiteral("com.orvikstudio.FinderSyncExtension"), QStringLiteral("Run"));
    run << QStringLiteral("hide-unhide-item") << QVariant::fromValue(QByteArrayList{"/somewhere/a"}) << QVariantMap();
    EXPECT_EQ(answered(connection().asyncCall(run)).error().name().toStdString(),
              "com.orvikstudio.FinderSyncExtension.Error.OutOfScope");
    testing::internal::GetCapturedStderr();
}
