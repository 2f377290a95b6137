#include "Waiting.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

bool waitUntil(const std::function<bool()>& holds)
{
    QElapsedTimer waiting;
    for (waiting.start(); !holds() && waiting.elapsed() < 60'000;) {
        QEventLoop loop;
        QTimer::singleShot(1, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return holds();
}
