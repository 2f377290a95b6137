#include "settings/ApplicationVersion.h"

#include "support/FakePlatform.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

namespace {

class ApplicationVersion : public testing::Test {
protected:
    FakePlatform platform;
};

TEST_F(ApplicationVersion, IsTheShortVersionStringOfTheMainBundle)
{
    platform.mainBundle().information =
        NS::Value::Dictionary{{"CFBundleShortVersionString", "3.1.4"}, {"CFBundleVersion", "77"}};
    EXPECT_EQ(applicationVersion(), "3.1.4");
}

using ApplicationVersionDeathTest = ApplicationVersion;

TEST_F(ApplicationVersionDeathTest, ABundleWithoutAnInformationDictionaryIsFatal)
{
    platform.mainBundle().information = std::nullopt;
    EXPECT_DEATH(static_cast<void>(applicationVersion()), fatalLine("the application has no information dictionary"));
}

TEST_F(ApplicationVersionDeathTest, AnInformationDictionaryWithoutAVersionIsFatal)
{
    platform.mainBundle().information = NS::Value::Dictionary{{"CFBundleVersion", "77"}};
    EXPECT_DEATH(static_cast<void>(applicationVersion()),
                 fatalLine("the information dictionary has no CFBundleShortVersionString"));
}

TEST_F(ApplicationVersionDeathTest, AVersionThatIsNotAStringIsFatal)
{
    platform.mainBundle().information = NS::Value::Dictionary{{"CFBundleShortVersionString", 1.8}};
    EXPECT_DEATH(static_cast<void>(applicationVersion()),
                 fatalLine("the information dictionary has no CFBundleShortVersionString"));
}

} // namespace
