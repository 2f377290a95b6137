#pragma once

#include "platform/Storyboard.h"
#include "support/CallLog.h"
#include "support/FakeScene.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

/// A storyboard whose scenes the test gives.
class FakeStoryboard : public NS::Storyboard {
public:
    /// Puts the scene's views into `scene` and makes the controller that runs it.
    using Maker = std::function<std::shared_ptr<NS::Controller>(FakeScene& scene)>;

    explicit FakeStoryboard(CallLog& calls) : m_calls(calls) {}

    /// Takes the place of a scene that has the identifier already.
    void addScene(std::string_view identifier, Maker maker);
    void removeScene(std::string_view identifier);

    std::shared_ptr<NS::Controller> instantiateControllerWithIdentifier(std::string_view identifier) override;

private:
    CallLog& m_calls;
    std::map<std::string, Maker, std::less<>> m_makers;
};

/// The scene of a controller that a FakeStoryboard made.
[[nodiscard]] FakeScene& sceneOf(const NS::Controller& controller);
