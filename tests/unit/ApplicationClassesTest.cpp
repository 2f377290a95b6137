#include "app/ApplicationClasses.h"

#include "app/AppDelegate.h"
#include "app/mainStartWindow.h"
#include "app/tabviewcontroller.h"
#include "menu/ViewController.h"
#include "registry/ControllerRegistry.h"
#include "support/FakePlatform.h"
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

    FakePlatform platform;
    ControllerRegistry registry;
    NS::ClassTable classes = applicationClasses(registry);
};

TEST_F(ApplicationClasses, MakesTheControllersThatScenesName)
{
    EXPECT_TRUE(makesController<mainStartWindow>("mainStartWindow"));
    EXPECT_TRUE(makesController<tabviewcontroller>("tabviewcontroller"));
    EXPECT_TRUE(makesController<ViewController>("ViewController"));
}

TEST_F(ApplicationClasses, MakesTheDelegateAndTheRow)
{
    EXPECT_TRUE(std::dynamic_pointer_cast<AppDelegate>(classes.delegates.at("AppDelegate")()));
    EXPECT_TRUE(dynamic_cast<tblcell*>(classes.cells.at("tblcell")().get()));
}

TEST_F(ApplicationClasses, MakesANewObjectEachTime)
{
    EXPECT_NE(classes.controllers.at("tabviewcontroller")(), classes.controllers.at("tabviewcontroller")());
}

} // namespace
