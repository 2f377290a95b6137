#include "Waiting.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

using namespace std::chrono_literals;

bool waitUntil(const std::function<bool()>& holds)
{
    const QDeadlineTimer deadline(10s);
    while (!holds()) {
        if (deadline.hasExpired())
            return false;
        runFor(5ms);
    }
    return true;
}

void runFor(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}
