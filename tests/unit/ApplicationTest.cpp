#include "ApplicationTest.h"

#include "app/UtilityKitWindow.h"
#include "app/mainStartWindow.h"
#include "app/tabviewcontroller.h"
#include "onboarding/firstRunvc.h"
#include "settings/Deployment.h"
#include "showcase/utilityKitvc.h"
#include "support/FakeButton.h"
#include "support/FakeCollectionView.h"
#include "support/FakeScrollView.h"
#include "support/FakeTabView.h"
#include "support/FakeTextField.h"

#include <memory>
#include <string>

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
    platform.storyboard->addScene("firstRunvc", [this](FakeScene& scene) {
        scene.addSending<FakeButton>("btnsystemPrefrences:", "btnpreferences");
        scene.addSending<FakeButton>("btnselectfolder:", "btnuserfolder");
        return std::make_shared<firstRunvc>(registry);
    });
    platform.storyboard->addScene("utilityKitvc", [](FakeScene& scene) {
        scene.add<FakeTextField>("lblotherapps");
        scene.add<FakeScrollView>("scrollview");
        scene.add<FakeCollectionView>("collectionView");
        return std::make_shared<utilityKitvc>();
    });
}

void ApplicationTest::leaveMailRequest(double age, std::string_view path)
{
    platform.suite.insert_or_assign("mailAttachPath", path);
    platform.suite.insert_or_assign("AttachClickedDate", NS::Date{platform.clock.now().timeIntervalSince1970 - age});
}

void ApplicationTest::postFromExtension(std::string_view name)
{
    platform.defaultCenter().post(name, Deployment::extensionIdentifier);
}

bool ApplicationTest::mailRequestIsStored() const
{
    return platform.suite.contains("mailAttachPath") || platform.suite.contains("AttachClickedDate");
}

FakeWindow& ApplicationTest::windowOf(std::string_view identifier)
{
    return sceneOf(*registry.controller<NS::WindowController>(identifier)).view<FakeWindow>("window");
}
