#include "platform/linux/LinuxPlatform.h"

#include <gtest/gtest.h>

namespace {

TEST(UnwrittenSettings, AreInTheFileBeforeTheUserIsAskedForAFile)
{
    const NS::ClassTable classes;
    LinuxDesktop::LinuxPlatform platform(classes, QStringLiteral("/nonexistent"));
    const auto suite = platform.userDefaultsWithSuiteName("org.example.suite");
    const auto stored = [] { return LinuxDesktop::Store().open("org.example.suite")->objectForKey("request"); };
    for (int i = 0; i < 20; ++i) {
        suite->setObject_forKey(i, "request");
        ASSERT_TRUE(suite->synchronize());
        ASSERT_TRUE(suite->objectForKey("request"));

        suite->removeObjectForKey("request");
        const auto panel = platform.makeOpenPanel(NS::ChosenPaths::Any);

        EXPECT_FALSE(stored());
    }
}

} // namespace
