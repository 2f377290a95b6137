#include "WholePlatform.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

namespace {

using namespace std::chrono_literals;
using Milliseconds = std::chrono::milliseconds;

/// What happened, in its order.
using Happened = std::vector<std::string>;

/// Timers that are due at once come in the order in which they fell due, however busy the machine is. So a timer's
/// length shows between one that was started before it and is a little shorter, and one that was started after it and
/// is a little longer.
class Timers : public WholePlatform {
protected:
    Timers()
    {
        QObject::connect(&m_givesUp, &QTimer::timeout, &m_loop, &QEventLoop::quit);
        m_givesUp.setSingleShot(true);
    }

    void reference(const std::string& what, Milliseconds delay)
    {
        QTimer::singleShot(delay, Qt::PreciseTimer, &m_loop, [this, what] { note(what); });
    }
    void note(const std::string& what)
    {
        happened.push_back(what);
        if (happened.size() == m_enough)
            m_loop.quit();
    }
    /// Runs the event loop until that much has happened.
    void runUntil(std::size_t enough)
    {
        m_enough = enough;
        m_givesUp.start(30s);
        m_loop.exec();
        ASSERT_GE(happened.size(), enough);
    }

    /// Runs an alert that is up until `dismissWhen`.
    void runAlert(const std::function<bool()>& dismissWhen)
    {
        const auto alert = platform.makeAlert();
        alert->addButtonWithTitle("OK");
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            auto* panel = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (panel && dismissWhen())
                panel->reject();
        });
        look.start(1ms);
        alert->runModal();
    }

    /// Delivers what is queued, and lets no time pass for timers.
    static void deliverQueued() { QCoreApplication::sendPostedEvents(); }

    Happened happened;

private:
    QEventLoop m_loop;
    QTimer m_givesUp;
    std::size_t m_enough = 0;
};

// A coarse timer comes up to a twentieth of its interval early or late, by where it falls in the second, so several
// are tried.
const std::vector intervals = {0.061, 0.087, 0.113, 0.139, 0.171};

TEST_F(Timers, ARepeatingTimerTakesItsIntervalToTheMillisecond)
{
    for (const double interval : intervals) {
        happened.clear();
        const Milliseconds exact(std::lround(interval * 1000));
        reference("before", exact - 1ms);
        std::shared_ptr<NS::Timer> timer = platform.scheduledTimerWithTimeInterval(interval, [&] {
            timer->invalidate();
            note("tick");
        });
        reference("after", exact + 1ms);
        runUntil(3);
        EXPECT_EQ(happened, (Happened{"before", "tick", "after"})) << interval;
    }
}

TEST_F(Timers, ARepeatingTimerComesAgainAfterEachInterval)
{
    int intervalsOver = 0;
    for (const Milliseconds nearly : {59ms, 119ms, 179ms})
        QTimer::singleShot(nearly, Qt::PreciseTimer, qApp, [&] { ++intervalsOver; });
    int ticks = 0;
    const auto timer = platform.scheduledTimerWithTimeInterval(0.06, [&] {
        EXPECT_GE(intervalsOver, std::min(++ticks, 3));
        note("tick");
    });
    runUntil(4);
    timer->invalidate();
}

TEST_F(Timers, ADelayedPerformTakesItsDelayToTheMillisecond)
{
    for (const double delay : intervals) {
        happened.clear();
        const Milliseconds exact(std::lround(delay * 1000));
        reference("before", exact - 1ms);
        platform.performAfterDelay([this] { note("perform"); }, delay);
        reference("after", exact + 1ms);
        runUntil(3);
        EXPECT_EQ(happened, (Happened{"before", "perform", "after"})) << delay;
    }
}

TEST_F(Timers, ARepeatingTimerStopsForGoodOnceItIsInvalidated)
{
    const auto timer = platform.scheduledTimerWithTimeInterval(0.02, [this] { note("tick"); });
    timer->invalidate();
    timer->invalidate();
    reference("later", 60ms);
    runUntil(1);
    EXPECT_EQ(happened, Happened{"later"});
}

TEST_F(Timers, ARepeatingTimerMayBeInvalidatedByItsOwnTick)
{
    std::shared_ptr<NS::Timer> timer = platform.scheduledTimerWithTimeInterval(0.02, [&] {
        timer->invalidate();
        note("tick");
    });
    reference("later", 60ms);
    runUntil(2);
    EXPECT_EQ(happened, (Happened{"tick", "later"}));
}

TEST_F(Timers, ARepeatingTimerRunsOnWhenItsMakerLetsGoOfIt)
{
    static_cast<void>(platform.scheduledTimerWithTimeInterval(0.02, [this] { note("tick"); }));
    runUntil(2);
    EXPECT_EQ(happened, (Happened{"tick", "tick"}));
}

TEST_F(Timers, TicksThatFallDueDuringAModalPanelComeOnceAfterIt)
{
    int ticks = 0;
    const auto timer = platform.scheduledTimerWithTimeInterval(0.02, [&] { ++ticks; });
    QTimer reference;
    int due = 0;
    QObject::connect(&reference, &QTimer::timeout, &reference, [&] { ++due; });
    reference.setTimerType(Qt::PreciseTimer);
    reference.start(20ms);

    runAlert([&] { return due >= 3; });
    EXPECT_EQ(ticks, 0);

    deliverQueued();
    EXPECT_EQ(ticks, 1);
    deliverQueued();
    EXPECT_EQ(ticks, 1);
    timer->invalidate();
}

TEST_F(Timers, AfterTheLateTickTheTimerGoesOn)
{
    const auto timer = platform.scheduledTimerWithTimeInterval(0.02, [this] { note("tick"); });
    bool due = false;
    QTimer::singleShot(30ms, [&] { due = true; });
    runAlert([&] { return due; });
    runUntil(3);
    timer->invalidate();
}

TEST_F(Timers, ATimerThatIsInvalidatedBeforeItsLateTickStaysSilent)
{
    int ticks = 0;
    const auto timer = platform.scheduledTimerWithTimeInterval(0.02, [&] { ++ticks; });
    bool due = false;
    QTimer::singleShot(30ms, [&] { due = true; });
    runAlert([&] { return due; });
    timer->invalidate();
    deliverQueued();
    EXPECT_EQ(ticks, 0);
}

TEST_F(Timers, WhatFallsDueDuringAModalPanelComesAfterItInTheOrderInWhichItFellDue)
{
    platform.performAfterDelay([this] { note("early"); }, 0.02);
    const auto timer = platform.scheduledTimerWithTimeInterval(0.04, [this] { note("tick"); });
    platform.performAfterDelay([this] { note("late"); }, 0.06);
    bool due = false;
    QTimer::singleShot(70ms, Qt::PreciseTimer, qApp, [&] { due = true; });

    runAlert([&] { return due; });
    EXPECT_EQ(happened, Happened{});

    deliverQueued();
    timer->invalidate();
    EXPECT_EQ(happened, (Happened{"early", "tick", "late"}));
}

TEST_F(Timers, WhatWaitsForAModalPanelWaitsForOneThatFollowsItToo)
{
    bool due = false;
    platform.performAfterDelay(
        [&] {
            note("first");
            runAlert([&] { return !happened.empty(); });
            note("first ends");
        },
        0.02);
    platform.performAfterDelay([this] { note("second"); }, 0.03);
    QTimer::singleShot(40ms, Qt::PreciseTimer, qApp, [&] { due = true; });
    runAlert([&] { return due; });

    runUntil(3);
    EXPECT_EQ(happened, (Happened{"first", "first ends", "second"}));
}

} // namespace
