#include "platform/Platform.h"

#include "platform/FatalError.h"
#include "support/FakePlatform.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <string_view>

namespace {

TEST(Platform, IsTheOneInstalledLast)
{
    const FakePlatform first;
    const FakePlatform second;
    EXPECT_EQ(&NS::platform(), &second);
}

TEST(PlatformDeathTest, AskingBeforeOneIsInstalledIsFatal)
{
    EXPECT_DEATH(static_cast<void>(NS::platform()), fatalLine("no platform is installed"));
}

TEST(FatalErrorDeathTest, PrintsOneLineAndAborts)
{
    EXPECT_EXIT(NS::fatalError("it cannot be"), testing::KilledBySignal(SIGABRT), fatalLine("it cannot be"));
}

TEST(FatalErrorDeathTest, HasTheLastWordsSaidAfterItsLine)
{
    const auto speak = [] {
        NS::setLastWords([](std::string_view what) {
            std::fprintf(stderr, "about: %.*s\n", static_cast<int>(what.size()), what.data());
        });
        NS::fatalError("it cannot be");
    };
    EXPECT_EXIT(speak(), testing::KilledBySignal(SIGABRT), ": fatal error: it cannot be\nabout: it cannot be\n$");
}

TEST(FatalErrorDeathTest, EndsTheProcessWhereTheLastWordsAreFatalThemselves)
{
    const auto speak = [] {
        NS::setLastWords([](std::string_view) { NS::fatalError("nor can this"); });
        NS::fatalError("it cannot be");
    };
    EXPECT_EXIT(speak(), testing::KilledBySignal(SIGABRT),
                ": fatal error: it cannot be\n.*: fatal error: nor can this\n$");
}

} // namespace
