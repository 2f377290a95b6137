#include "registry/ControllerRegistry.h"

#include "support/FakePlatform.h"
#include "support/FatalLine.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

/// A screen that asks for a controller while it loads.
class AskingScreen : public NS::ViewController {
public:
    AskingScreen(ControllerRegistry& registry, std::string identifier)
        : m_registry(registry), m_identifier(std::move(identifier))
    {}

    void viewDidLoad() override { asked = m_registry.controller<NS::ViewController>(m_identifier); }

    std::shared_ptr<NS::ViewController> asked;

private:
    ControllerRegistry& m_registry;
    std::string m_identifier;
};

class Registry : public testing::Test {
protected:
    Registry()
    {
        for (const char* identifier : {"firstRunvc", "utilityKitvc"})
            platform.storyboard->addScene(identifier,
                                          [](FakeScene&) { return std::make_shared<NS::ViewController>(); });
    }

    void addAskingScene(std::string_view identifier, const std::string& asksFor)
    {
        platform.storyboard->addScene(
            identifier, [this, asksFor](FakeScene&) { return std::make_shared<AskingScreen>(registry, asksFor); });
    }

    FakePlatform platform;
    ControllerRegistry registry;
};

TEST_F(Registry, MakesNothingBeforeItIsAsked)
{
    EXPECT_TRUE(platform.calls.lines().empty());
}

TEST_F(Registry, MakesAControllerOnceAndThenHandsOutTheSame)
{
    const auto first = registry.controller<NS::ViewController>("firstRunvc");
    const auto second = registry.controller<NS::ViewController>("firstRunvc");

    EXPECT_EQ(first, second);
    EXPECT_EQ(platform.calls.startingWith("storyboard.instantiate").size(), 1U);
}

TEST_F(Registry, KeepsAControllerThatNobodyElseKeeps)
{
    const std::weak_ptr<NS::ViewController> made = registry.controller<NS::ViewController>("firstRunvc");

    EXPECT_FALSE(made.expired());
}

TEST_F(Registry, OpensTheMainStoryboardOfTheMainBundleOnce)
{
    static_cast<void>(registry.controller<NS::ViewController>("firstRunvc"));
    static_cast<void>(registry.controller<NS::ViewController>("utilityKitvc"));

    EXPECT_EQ(platform.calls.startingWith("platform."),
              (Lines{R"(platform.storyboardWithName_bundle("Main", "main bundle"))"}));
}

TEST_F(Registry, ASceneMayAskForAnotherWhileItIsMade)
{
    addAskingScene("asking", "firstRunvc");

    const auto asking = registry.controller<AskingScreen>("asking");

    EXPECT_EQ(asking->asked, registry.controller<NS::ViewController>("firstRunvc"));
}

TEST_F(Registry, KnowsTheFiveControllersByTheseIdentifiers)
{
    EXPECT_EQ(ControllerIdentifier::mainStartWindow, "mainStartWindow");
    EXPECT_EQ(ControllerIdentifier::firstRunvc, "firstRunvc");
    EXPECT_EQ(ControllerIdentifier::tabviewcontroller, "tabviewcontroller");
    EXPECT_EQ(ControllerIdentifier::UtilityKitWindow, "UtilityKitWindow");
    EXPECT_EQ(ControllerIdentifier::utilityKitvc, "utilityKitvc");
}

using RegistryDeathTest = Registry;

TEST_F(RegistryDeathTest, AMissingSceneIsFatal)
{
    EXPECT_DEATH(static_cast<void>(registry.controller<NS::ViewController>("nowhere")),
                 fatalLine(R"(the storyboard has no scene "nowhere")"));
}

TEST_F(RegistryDeathTest, ASceneOfTheWrongClassIsFatal)
{
    EXPECT_DEATH(static_cast<void>(registry.controller<AskingScreen>("firstRunvc")),
                 fatalLine(R"(the scene "firstRunvc" is of the wrong class)"));
}

TEST_F(RegistryDeathTest, AskingForAMadeControllerAsAnotherClassIsFatal)
{
    static_cast<void>(registry.controller<NS::ViewController>("firstRunvc"));

    EXPECT_DEATH(static_cast<void>(registry.controller<AskingScreen>("firstRunvc")),
                 fatalLine(R"(the scene "firstRunvc" is of the wrong class)"));
}

TEST_F(RegistryDeathTest, ASceneThatAsksForItselfWhileItIsMadeIsFatal)
{
    addAskingScene("loop", "loop");

    EXPECT_DEATH(static_cast<void>(registry.controller<NS::ViewController>("loop")),
                 fatalLine(R"(the scene "loop" asks for itself while it is made)"));
}

TEST_F(RegistryDeathTest, TwoScenesThatAskForEachOtherWhileTheyAreMadeAreFatal)
{
    addAskingScene("one", "two");
    addAskingScene("two", "one");

    EXPECT_DEATH(static_cast<void>(registry.controller<NS::ViewController>("one")),
                 fatalLine(R"(the scene "one" asks for itself while it is made)"));
}

} // namespace
