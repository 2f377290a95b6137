#pragma once

#include "app/AppDelegate.h"
#include "registry/ControllerRegistry.h"
#include "support/FakePlatform.h"
#include "support/FakeWindow.h"

#include <gtest/gtest.h>

#include <string_view>

/// The application over a platform in memory, with every scene of its storyboard.
class ApplicationTest : public testing::Test {
protected:
    ApplicationTest();

    /// What the extension leaves in the suite when the user picks "Send via Mail"; `age` in seconds.
    void leaveMailRequest(double age, std::string_view path = "/home/user/report.txt");
    void postFromExtension(std::string_view name);
    [[nodiscard]] bool mailRequestIsStored() const;

    void launch() { delegate.applicationWillFinishLaunching(); }
    /// The window of a window controller that the registry has or makes.
    [[nodiscard]] FakeWindow& windowOf(std::string_view identifier);

    FakePlatform platform;
    ControllerRegistry registry;
    AppDelegate delegate{registry};

private:
    void addWindowScenes();
    void addViewScenes();
};
