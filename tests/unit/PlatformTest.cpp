#include "platform/Platform.h"

#include "platform/FatalError.h"
#include "support/FakePlatform.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

#include <csignal>

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

} // namespace
