#include "ui/buttoncursor.h"

#include "support/FakeButton.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class ButtonCursor : public testing::Test {
protected:
    ButtonCursor() { custom.setButton(button); }

    FakePlatform platform;
    buttoncursor custom;
    FakeButton button{platform.calls, "button"};
};

TEST_F(ButtonCursor, HasNoHoverAreaBeforeItsSceneHasLoaded)
{
    EXPECT_TRUE(button.trackingAreas().empty());
    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(ButtonCursor, AddsOneHoverAreaOverItsBoundsThatItOwns)
{
    custom.awakeFromNib();

    ASSERT_EQ(button.trackingAreas().size(), 1U);
    const NS::TrackingArea& area = button.trackingAreas().front();
    EXPECT_EQ(area.rect, button.bounds());
    EXPECT_EQ(area.options, 641U);
    EXPECT_EQ(area.owner, &custom);
}

TEST_F(ButtonCursor, TheHoverAreaIsAlwaysActiveAndFollowsTheButtonsSize)
{
    custom.awakeFromNib();

    const unsigned options = button.trackingAreas().at(0).options;
    EXPECT_TRUE(options & NS::TrackingActiveAlways);
    EXPECT_TRUE(options & NS::TrackingInVisibleRect);
}

TEST_F(ButtonCursor, ThePointerIsAHandWhileItIsOverTheButton)
{
    custom.awakeFromNib();
    platform.calls.clear();
    NS::Responder& owner = *button.trackingAreas().at(0).owner;

    owner.mouseEntered();
    EXPECT_EQ(platform.calls.lines(), (Lines{"platform.setCursor(1)"}));
    platform.calls.clear();

    owner.mouseExited();
    EXPECT_EQ(platform.calls.lines(), (Lines{"platform.setCursor(0)"}));
}

} // namespace
