#include "platform/Outlet.h"

#include "support/FakeButton.h"
#include "support/FakeScene.h"
#include "support/FakeTextField.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

namespace {

class Outlet : public testing::Test {
protected:
    CallLog calls;
    FakeScene scene{calls, "scene"};
    NS::Outlet<NS::TextField> outlet{"title"};
};

TEST_F(Outlet, IsEmptyAtFirst)
{
    EXPECT_FALSE(outlet);
}

TEST_F(Outlet, IsFilledWithTheViewOfItsName)
{
    auto& title = scene.add<FakeTextField>("title");

    static_cast<NS::Connections&>(scene).outlet(outlet);

    ASSERT_TRUE(outlet);
    EXPECT_EQ(&*outlet, &title);
}

TEST_F(Outlet, StaysEmptyWhereTheSceneHasNoSuchView)
{
    scene.add<FakeTextField>("subtitle");

    static_cast<NS::Connections&>(scene).outlet(outlet);

    EXPECT_FALSE(outlet);
}

TEST_F(Outlet, IsEmptyAgainWhenItsViewIsGone)
{
    outlet.connect(scene.add<FakeTextField>("title"));

    scene.remove("title");

    EXPECT_FALSE(outlet);
}

using OutletDeathTest = Outlet;

TEST_F(OutletDeathTest, UsingAnEmptyOneIsFatalAndNamesIt)
{
    EXPECT_DEATH(outlet->setStringValue(""), fatalLine(R"(the outlet "title" is empty)"));
}

TEST_F(OutletDeathTest, UsingOneWhoseViewIsGoneIsFatal)
{
    outlet.connect(scene.add<FakeTextField>("title"));
    scene.remove("title");
    EXPECT_DEATH(outlet->setStringValue(""), fatalLine(R"(the outlet "title" is empty)"));
}

TEST_F(OutletDeathTest, AViewOfAnotherClassIsFatal)
{
    scene.add<FakeButton>("title");
    EXPECT_DEATH(static_cast<NS::Connections&>(scene).outlet(outlet),
                 fatalLine(R"(the view "title" is of another class than its outlet)"));
}

} // namespace
