#include "extension/bridges/dolphin/CompanionCopy.h"

#include "Bus.h"
#include "CompanionStandIn.h"
#include "Waiting.h"

#include <QElapsedTimer>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using DolphinBridge::CompanionCopy;

namespace {

class CompanionCopyTest : public testing::Test {
protected:
    ~CompanionCopyTest() override
    {
        copy.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("host"));
    }

    void startCopy()
    {
        copy = std::make_unique<CompanionCopy>(QDBusConnection::connectToBus(bus.address(), QStringLiteral("host")));
    }

    /// The title of the one action; nothing without a copy.
    [[nodiscard]] std::string title() const
    {
        const auto settings = copy->settings();
        return settings && settings->actions.size() == 1 ? settings->actions.front().title : std::string();
    }

    [[nodiscard]] bool comesToBe(const std::string& expected) const
    {
        return waitUntil([&] { return title() == expected; });
    }

    static QVariantList titled(const char* title) { return {someProperties(QString::fromLatin1(title))}; }

    Bus bus;
    CompanionStandIn companion{bus.address()};
    std::unique_ptr<CompanionCopy> copy;
};

} // namespace

TEST_F(CompanionCopyTest, HoldsWhatACompanionSaidThatWasThereBefore)
{
    companion.appear();
    startCopy();
    EXPECT_TRUE(copy->isWaiting());
    EXPECT_TRUE(comesToBe("Open Terminal"));
    EXPECT_FALSE(copy->isWaiting());
}

TEST_F(CompanionCopyTest, HoldsWhatACompanionSaysThatComesLater)
{
    startCopy();
    ASSERT_TRUE(waitUntil([&] { return !copy->isWaiting(); }));
    EXPECT_EQ(copy->settings(), nullptr);
    companion.appear();
    EXPECT_TRUE(comesToBe("Open Terminal"));
}

TEST_F(CompanionCopyTest, SaysWhenItKnowsThatThereIsNoCompanion)
{
    startCopy();
    int settled = 0;
    QObject::connect(copy.get(), &CompanionCopy::settled, [&] { ++settled; });
    EXPECT_TRUE(waitUntil([&] { return settled == 1; }));
    EXPECT_EQ(copy->settings(), nullptr);
    EXPECT_FALSE(copy->isWaiting());
}

TEST_F(CompanionCopyTest, FollowsAChange)
{
    companion.appear();
    startCopy();
    ASSERT_TRUE(comesToBe("Open Terminal"));
    for (const char* const next : {"One", "Two", "Three"}) {
        companion.answers = titled(next);
        companion.announce();
        EXPECT_TRUE(comesToBe(next));
    }
}

TEST_F(CompanionCopyTest, IsEmptyWhileTheCompanionIsAway)
{
    companion.appear();
    startCopy();
    ASSERT_TRUE(comesToBe("Open Terminal"));
    companion.vanish();
    EXPECT_TRUE(waitUntil([&] { return copy->settings() == nullptr; }));
    companion.answers = titled("Back");
    companion.appear();
    EXPECT_TRUE(comesToBe("Back"));
}

TEST_F(CompanionCopyTest, TakesNothingFromAFormerOwner)
{
    companion.isSilent = true;
    companion.appear();
    startCopy();
    ASSERT_TRUE(waitUntil([&] { return companion.questions.size() == 1; }));
    companion.vanish();
    CompanionStandIn successor(bus.address());
    successor.isSilent = true;
    successor.appear();
    ASSERT_TRUE(waitUntil([&] { return successor.questions.size() == 1; }));

    std::vector<std::string> held;
    QObject::connect(copy.get(), &CompanionCopy::settled, [&] { held.push_back(title()); });
    companion.answers = titled("Former");
    companion.answer(companion.questions.first());
    companion.announce();
    successor.answers = titled("New");
    successor.announce();
    successor.answer(successor.questions.first());
    ASSERT_TRUE(waitUntil([&] { return copy->settings() != nullptr; }));
    EXPECT_EQ(held, std::vector<std::string>{"New"});
    EXPECT_EQ(companion.questions.size(), 1);
}

TEST_F(CompanionCopyTest, IsNotMovedByWhoIsNoOwner)
{
    companion.appear();
    startCopy();
    ASSERT_TRUE(comesToBe("Open Terminal"));
    CompanionStandIn other(bus.address());
    other.announce();
    companion.answers = titled("Next");
    companion.announce();
    ASSERT_TRUE(comesToBe("Next"));
    EXPECT_EQ(companion.questions.size(), 2);
    EXPECT_TRUE(other.questions.isEmpty());
}

TEST_F(CompanionCopyTest, IsEmptyAfterGarbageUntilThereIsSense)
{
    companion.appear();
    startCopy();
    ASSERT_TRUE(comesToBe("Open Terminal"));
    const QVariantList garbage{QStringLiteral("text"), 7, QVariantMap{{QStringLiteral("Actions"), 1}}};
    for (const QVariant& value : garbage) {
        companion.answers = {value};
        companion.announce();
        EXPECT_TRUE(waitUntil([&] { return copy->settings() == nullptr; }));
        companion.answers = titled("Sense");
        companion.announce();
        EXPECT_TRUE(comesToBe("Sense"));
    }
}

TEST_F(CompanionCopyTest, SurvivesAnAnswerAsLargeAsTheBusAllows)
{
    companion.answers = {someProperties(QString(60 << 20, QLatin1Char('x')))};
    companion.appear();
    startCopy();
    EXPECT_TRUE(waitUntil([&] { return !copy->isWaiting(); }));
    EXPECT_EQ(copy->settings(), nullptr);
    companion.answers = titled("Small");
    companion.announce();
    EXPECT_TRUE(comesToBe("Small"));
}

TEST_F(CompanionCopyTest, LeavesTheHostItsTimeWhateverManyChangesThereAre)
{
    companion.appear();
    startCopy();
    ASSERT_TRUE(comesToBe("Open Terminal"));
    companion.questions.clear();
    QElapsedTimer time;
    time.start();
    QTimer everyMillisecond;
    int changes = 0;
    QObject::connect(&everyMillisecond, &QTimer::timeout, [&] {
        companion.answers = {someProperties(QString::number(++changes))};
        companion.announce();
    });
    everyMillisecond.start(1);
    ASSERT_TRUE(waitUntil([&] { return changes >= 1'000; }));
    everyMillisecond.stop();
    EXPECT_TRUE(comesToBe(std::to_string(changes)));
    // Five milliseconds at least between two questions.
    EXPECT_LE(companion.questions.size(), time.elapsed() / 5 + 1);
}

TEST_F(CompanionCopyTest, KeepsTheLastAnswerOfACompanionThatIsStopped)
{
    companion.appear();
    startCopy();
    ASSERT_TRUE(comesToBe("Open Terminal"));
    companion.isSilent = true;
    companion.announce();
    ASSERT_TRUE(waitUntil([&] { return companion.questions.size() == 2; }));
    companion.announce();
    EXPECT_EQ(title(), "Open Terminal");
    // It goes on.
    companion.isSilent = false;
    companion.answers = titled("On");
    companion.answer(companion.questions.last());
    EXPECT_TRUE(comesToBe("On"));
}

TEST_F(CompanionCopyTest, IsEmptyWithoutTheBus)
{
    companion.appear();
    startCopy();
    ASSERT_TRUE(comesToBe("Open Terminal"));
    bus.kill();
    EXPECT_TRUE(waitUntil([&] { return copy->settings() == nullptr; }));
    EXPECT_FALSE(copy->isWaiting());
    startCopy();
    EXPECT_FALSE(copy->isWaiting());
}

TEST_F(CompanionCopyTest, WaitsForNobodyWhileTheBusIsStopped)
{
    companion.appear();
    const QDBusConnection host = QDBusConnection::connectToBus(bus.address(), QStringLiteral("host"));
    bus.stop();
    QElapsedTimer time;
    time.start();
    copy = std::make_unique<CompanionCopy>(host);
    EXPECT_TRUE(copy->isWaiting());
    // A call that waits does so for twenty-five seconds.
    EXPECT_LT(time.elapsed(), 20'000);
    bus.goOn();
    EXPECT_TRUE(comesToBe("Open Terminal"));
}
