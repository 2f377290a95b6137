#include "app/ApplicationClasses.h"

#include "app/AppDelegate.h"
#include "app/UtilityKitWindow.h"
#include "app/mainStartWindow.h"
#include "app/tabviewcontroller.h"
#include "folders/customFoldersVc.h"
#include "folders/foldersArrvc.h"
#include "menu/ViewController.h"
#include "onboarding/firstRunvc.h"
#include "onboarding/genraltabvc.h"
#include "registry/ControllerRegistry.h"
#include "showcase/collectionView_cell.h"
#include "showcase/utilityKitvc.h"
#include "support/FakePlatform.h"
#include "ui/aboutVc.h"
#include "ui/buttoncursor.h"
#include "ui/tblcell.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

class ApplicationClasses : public testing::Test {
protected:
    template<class T>
    [[nodiscard]] bool makesController(std::string_view name) const
    {
        const auto maker = classes.controllers.find(name);
        return maker != classes.controllers.end() && std::dynamic_pointer_cast<T>(maker->second());
    }

    static void addOnNewScreen(const NS::ClassTable& table, const char* path)
    {
        const auto screen = std::dynamic_pointer_cast<foldersArrvc>(table.controllers.at("foldersArrvc")());
        screen->folders.add(NS::URL::fileURLWithPath(path));
    }

    FakePlatform platform;
    ControllerRegistry registry;
    NS::ClassTable classes = applicationClasses(registry);
};

TEST_F(ApplicationClasses, MakesTheControllersThatScenesName)
{
    EXPECT_TRUE(makesController<mainStartWindow>("mainStartWindow"));
    EXPECT_TRUE(makesController<tabviewcontroller>("tabviewcontroller"));
    EXPECT_TRUE(makesController<ViewController>("ViewController"));
    EXPECT_TRUE(makesController<foldersArrvc>("foldersArrvc"));
    EXPECT_TRUE(makesController<customFoldersVc>("customFoldersVc"));
    EXPECT_TRUE(makesController<genraltabvc>("genraltabvc"));
    EXPECT_TRUE(makesController<aboutVc>("aboutVc"));
    EXPECT_TRUE(makesController<firstRunvc>("firstRunvc"));
    EXPECT_TRUE(makesController<UtilityKitWindow>("UtilityKitWindow"));
    EXPECT_TRUE(makesController<utilityKitvc>("utilityKitvc"));
    EXPECT_TRUE(makesController<collectionView_cell>("collectionView_cell"));
}

TEST_F(ApplicationClasses, MakesTheDelegateTheRowAndTheButton)
{
    EXPECT_TRUE(std::dynamic_pointer_cast<AppDelegate>(classes.delegates.at("AppDelegate")()));
    EXPECT_TRUE(dynamic_cast<tblcell*>(classes.cells.at("tblcell")().get()));
    EXPECT_TRUE(dynamic_cast<buttoncursor*>(classes.buttons.at("buttoncursor")().get()));
}

TEST_F(ApplicationClasses, MakesANewObjectEachTime)
{
    EXPECT_NE(classes.controllers.at("tabviewcontroller")(), classes.controllers.at("tabviewcontroller")());
}

TEST_F(ApplicationClasses, TheFoldersScreensOfOneRunShareItsBookmarks)
{
    addOnNewScreen(classes, "/a");
    addOnNewScreen(classes, "/b");

    EXPECT_EQ(platform.suite.at("allBookmark"), (NS::Value::Array{NS::Data{'/', 'a'}, NS::Data{'/', 'b'}}));
}

TEST_F(ApplicationClasses, AnotherRunHasNoBookmarksOfTheOneBefore)
{
    addOnNewScreen(classes, "/a");

    addOnNewScreen(applicationClasses(registry), "/b");

    EXPECT_EQ(platform.suite.at("allBookmark"), (NS::Value::Array{NS::Data{'/', 'b'}}));
}

} // namespace
