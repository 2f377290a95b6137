#include "ApplicationTest.h"

#include "app/UtilityKitWindow.h"
#include "app/mainStartWindow.h"
#include "app/tabviewcontroller.h"
#include "support/FakeTabView.h"

#include <memory>
#include <string>

namespace {

constexpr std::string_view extension = "com.orvikstudio.orvikmenu.findersyncextension";

} // namespace

ApplicationTest::ApplicationTest()
{
    addWindowScenes();
    addViewScenes();
}

void ApplicationTest::addWindowScenes()
{
    platform.storyboard->addScene("mainStartWindow", [this](FakeScene& scene) {
        scene.add<FakeWindow>("window");
        return std::make_shared<mainStartWindow>(registry);
    });
    platform.storyboard->addScene("UtilityKitWindow", [this](FakeScene& scene) {
        scene.add<FakeWindow>("window");
        return std::make_shared<UtilityKitWindow>(registry);
    });
}

void ApplicationTest::addViewScenes()
{
    platform.storyboard->addScene("tabviewcontroller", [](FakeScene& scene) {
        scene.add<FakeTabView>("tabView");
        return std::make_shared<tabviewcontroller>();
    });
    for (const char* identifier : {"firstRunvc", "utilityKitvc"})
        platform.storyboard->addScene(identifier, [](FakeScene&) { return std::make_shared<NS::ViewController>(); });
}

void ApplicationTest::leaveMailRequest(double age, std::string_view path)
{
    platform.suite.insert_or_assign("mailAttachPath", path);
    platform.suite.insert_or_assign("AttachClickedDate", NS::Date{platform.clock.now().timeIntervalSince1970 - age});
}

void ApplicationTest::postFromExtension(std::string_view name)
{
    platform.defaultCenter().post(name, extension);
}

bool ApplicationTest::mailRequestIsStored() const
{
    return platform.suite.contains("mailAttachPath") || platform.suite.contains("AttachClickedDate");
}

FakeWindow& ApplicationTest::windowOf(std::string_view identifier)
{
    return sceneOf(*registry.controller<NS::WindowController>(identifier)).view<FakeWindow>("window");
}
