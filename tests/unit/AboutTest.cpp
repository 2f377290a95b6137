#include "ui/aboutVc.h"

#include "settings/Deployment.h"
#include "support/FakeButton.h"
#include "support/FakePlatform.h"
#include "support/FakeTextField.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class About : public testing::Test {
protected:
    About()
    {
        platform.storyboard->addScene("aboutVc", [this](FakeScene& scene) {
            if (hasLabel)
                scene.add<FakeTextField>("lblAppversion");
            for (const char* selector : {"btnweb:", "btntwitter:", "btnfacebook:", "btnRateusClciked:"})
                scene.addSending<FakeButton>(selector, selector);
            return std::make_shared<aboutVc>();
        });
    }

    void open()
    {
        screen =
            std::dynamic_pointer_cast<aboutVc>(platform.storyboard->instantiateControllerWithIdentifier("aboutVc"));
    }

    /// What standard output gets of a click on the button of that action.
    std::string printedByClicking(std::string_view selector)
    {
        platform.calls.clear();
        testing::internal::CaptureStdout();
        sceneOf(*screen).view<FakeButton>(selector).click();
        return testing::internal::GetCapturedStdout();
    }
    void expectOpened(std::string_view address) const
    {
        EXPECT_EQ(platform.calls.lines(), (Lines{"workspace.openURL(\"" + std::string(address) + "\")"}));
    }

    FakePlatform platform;
    bool hasLabel = true;
    std::shared_ptr<aboutVc> screen;
};

TEST_F(About, MadeAloneHasItsOutletEmptyAndAsksNothing)
{
    const aboutVc made;

    EXPECT_FALSE(made.lblAppversion);
    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(About, ShowsTheVersion)
{
    platform.mainBundle().setVersion("3.1.4 beta");

    open();

    EXPECT_EQ(platform.calls.startingWithAnyOf({"bundle.", "aboutVc."}),
              (Lines{"bundle.infoDictionary", R"(aboutVc.lblAppversion.setStringValue("Version 3.1.4 beta"))"}));
}

TEST_F(About, OpensNothingByItself)
{
    open();
    EXPECT_TRUE(platform.calls.startingWith("workspace.").empty());
}

// Its links.

struct Link {
    const char* name;
    const char* selector;
    std::string_view address;
};

class ALink : public About, public testing::WithParamInterface<Link> {};

TEST_P(ALink, OpensItsAddressAndPrintsOneLine)
{
    open();

    EXPECT_EQ(printedByClicking(GetParam().selector), "default browser was successfully opened\n");
    expectOpened(GetParam().address);
}

TEST_P(ALink, SaysNothingWhenItCannotBeOpened)
{
    platform.sharedWorkspace().opens = false;
    open();

    EXPECT_EQ(printedByClicking(GetParam().selector), "");
    expectOpened(GetParam().address);
}

INSTANTIATE_TEST_SUITE_P(Each, ALink,
                         testing::Values(Link{"Web", "btnweb:", Deployment::webAddress},
                                         Link{"Twitter", "btntwitter:", Deployment::twitterAddress},
                                         Link{"Facebook", "btnfacebook:", Deployment::facebookAddress}),
                         [](const auto& tested) { return tested.param.name; });

TEST_F(About, TheRateUsButtonOpensTheStoreAndPrintsNothing)
{
    open();

    EXPECT_EQ(printedByClicking("btnRateusClciked:"), "");
    expectOpened(Deployment::storeAddress);
}

TEST_F(About, TheRateUsButtonPrintsNothingWhenTheStoreCannotBeOpened)
{
    platform.sharedWorkspace().opens = false;
    open();

    EXPECT_EQ(printedByClicking("btnRateusClciked:"), "");
    expectOpened(Deployment::storeAddress);
}

// What stops the program.

using AboutDeathTest = About;

TEST_F(AboutDeathTest, WithoutItsLabelItIsFatal)
{
    hasLabel = false;
    EXPECT_DEATH(open(), fatalLine(R"(the outlet "lblAppversion" is empty)"));
}

TEST_F(AboutDeathTest, WithoutAVersionItIsFatal)
{
    platform.mainBundle().information = NS::Value::Dictionary{{"CFBundleVersion", "2.0"}};
    EXPECT_DEATH(open(), fatalLine("the information dictionary has no CFBundleShortVersionString"));
}

TEST_F(AboutDeathTest, AVersionThatIsNoTextIsFatal)
{
    platform.mainBundle().information = NS::Value::Dictionary{{"CFBundleShortVersionString", 2}};
    EXPECT_DEATH(open(), fatalLine("the information dictionary has no CFBundleShortVersionString"));
}

} // namespace
