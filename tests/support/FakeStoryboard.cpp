#include "support/FakeStoryboard.h"

#include "platform/WindowController.h"

#include <utility>

void FakeStoryboard::addScene(std::string_view identifier, Maker maker)
{
    m_makers.insert_or_assign(std::string(identifier), std::move(maker));
}

void FakeStoryboard::removeScene(std::string_view identifier)
{
    m_makers.erase(std::string(identifier));
}

std::shared_ptr<NS::Controller> FakeStoryboard::instantiateControllerWithIdentifier(std::string_view identifier)
{
    m_calls.record("storyboard", "instantiateControllerWithIdentifier", identifier);
    const auto maker = m_makers.find(identifier);
    if (maker == m_makers.end())
        return nullptr;
    auto made = std::make_unique<FakeScene>(m_calls, std::string(identifier));
    FakeScene& scene = *made;
    auto controller = maker->second(scene);
    controller->setScene(std::move(made));
    scene.connectTo(*controller);
    if (auto* windowController = dynamic_cast<NS::WindowController*>(controller.get()))
        windowController->windowDidLoad();
    if (auto* viewController = dynamic_cast<NS::ViewController*>(controller.get()))
        viewController->viewDidLoad();
    scene.appear();
    return controller;
}

FakeScene& sceneOf(const NS::Controller& controller)
{
    auto* scene = dynamic_cast<FakeScene*>(controller.scene());
    if (!scene)
        NS::fatalError("the controller has no fake scene");
    return *scene;
}
