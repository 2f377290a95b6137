#include "WholePlatform.h"

#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <semaphore>
#include <vector>

namespace {

using namespace std::chrono_literals;

class Queues : public WholePlatform {
protected:
    /// Runs the event loop until end() is called.
    void run()
    {
        QTimer::singleShot(30s, &m_loop, [this] { m_loop.exit(1); });
        ASSERT_EQ(m_loop.exec(), 0) << "it was waited for in vain";
    }
    void end() { m_loop.quit(); }

    const QThread* mainThread = QThread::currentThread();

private:
    QEventLoop m_loop;
};

TEST_F(Queues, WorkForTheGlobalQueueIsDoneOnAnotherThreadAndWorkForTheMainQueueOnTheMainOne)
{
    const QThread* background = nullptr;
    const QThread* foreground = nullptr;
    platform.dispatchToGlobalQueue([&] {
        background = QThread::currentThread();
        platform.dispatchToMainQueue([&] {
            foreground = QThread::currentThread();
            end();
        });
    });
    run();
    EXPECT_NE(background, nullptr);
    EXPECT_NE(background, mainThread);
    EXPECT_EQ(foreground, mainThread);
}

TEST_F(Queues, WorkForTheGlobalQueueNeedsNoEventLoop)
{
    std::binary_semaphore done(0);
    platform.dispatchToGlobalQueue([&] { done.release(); });
    EXPECT_TRUE(done.try_acquire_for(30s));
}

TEST_F(Queues, WorkForTheMainQueueWaitsForTheEventLoopAndKeepsItsOrder)
{
    std::vector<int> order;
    std::vector<int> expected;
    for (int number = 0; number < 100; ++number) {
        expected.push_back(number);
        platform.dispatchToMainQueue([&order, number] { order.push_back(number); });
    }
    platform.dispatchToMainQueue([this] { end(); });
    EXPECT_TRUE(order.empty());
    run();
    EXPECT_EQ(order, expected);
}

TEST_F(Queues, WorkThatAThreadHandsToTheMainQueueKeepsItsOrder)
{
    std::vector<int> order;
    std::vector<int> expected;
    for (int number = 0; number < 100; ++number)
        expected.push_back(number);
    platform.dispatchToGlobalQueue([&] {
        for (const int number : expected)
            platform.dispatchToMainQueue([&order, number] { order.push_back(number); });
        platform.dispatchToMainQueue([this] { end(); });
    });
    run();
    EXPECT_EQ(order, expected);
}

TEST(QueuesAtTheEnd, WorkThatHasBegunIsWaitedFor)
{
    std::atomic<bool> done = false;
    {
        NS::ClassTable classes;
        LinuxDesktop::SessionBus bus("");
        LinuxDesktop::ApplicationName name(bus, "org.example.Whole");
        LinuxDesktop::LinuxPlatform platform(classes, QStringLiteral("/nonexistent"), bus, name);
        std::binary_semaphore begun(0);
        platform.dispatchToGlobalQueue([&] {
            begun.release();
            QThread::msleep(50);
            done = true;
        });
        begun.acquire();
    }
    EXPECT_TRUE(done);
}

} // namespace
