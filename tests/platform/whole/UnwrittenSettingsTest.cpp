#include "WholePlatform.h"

namespace {

class UnwrittenSettings : public WholePlatform {};

TEST_F(UnwrittenSettings, AreInTheFileBeforeTheUserIsAskedForAFile)
{
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
