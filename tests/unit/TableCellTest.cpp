#include "ui/tblcell.h"

#include "support/FakeButton.h"
#include "support/FakeImageView.h"
#include "support/FakeScene.h"
#include "support/FakeTextField.h"

#include <gtest/gtest.h>

namespace {

TEST(TableCell, MadeAloneHasItsFourOutletsEmpty)
{
    const tblcell cell;

    EXPECT_FALSE(cell.lbltitle);
    EXPECT_FALSE(cell.imgview);
    EXPECT_FALSE(cell.checkbox);
    EXPECT_FALSE(cell.btnDelete);
}

TEST(TableCell, MadeFromItsSceneHasItsFourOutletsConnected)
{
    CallLog calls;
    FakeScene scene(calls, "tblcell");
    auto& title = scene.add<FakeTextField>("lbltitle");
    auto& image = scene.add<FakeImageView>("imgview");
    auto& checkbox = scene.add<FakeButton>("checkbox");
    auto& deleteButton = scene.add<FakeButton>("btnDelete");
    tblcell cell;

    scene.connectTo(cell);

    EXPECT_EQ(&*cell.lbltitle, &title);
    EXPECT_EQ(&*cell.imgview, &image);
    EXPECT_EQ(&*cell.checkbox, &checkbox);
    EXPECT_EQ(&*cell.btnDelete, &deleteButton);
    EXPECT_TRUE(calls.lines().empty());
}

} // namespace
