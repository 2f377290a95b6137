#include "support/AtAbort.h"

#include <csignal>
#include <cstdio>
#include <utility>

namespace {

std::function<std::string()> reportOfAbort;

} // namespace

void reportAtAbort(std::function<std::string()> report)
{
    reportOfAbort = std::move(report);
    // abort() raises the signal in the thread that calls it, at a place where everything may be called.
    std::signal(SIGABRT, [](int) { // NOLINT(bugprone-signal-handler)
        std::fprintf(stderr, "at abort: %s\n", reportOfAbort().c_str());
    });
}
