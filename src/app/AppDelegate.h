#pragma once

#include "platform/Application.h"

class ControllerRegistry;

/// Decides at launch whether the process only finishes a request to send an item by mail or is the settings
/// application. Main thread.
class AppDelegate : public NS::ApplicationDelegate {
public:
    /// The registry must outlive the delegate.
    explicit AppDelegate(ControllerRegistry& registry) : m_registry(registry) {}

    void connect(NS::Connections& connections) override;
    void applicationWillFinishLaunching() override;
    /// Deliberately does nothing.
    void applicationDidFinishLaunching() override {}
    /// Deliberately does nothing: every change is stored already.
    void applicationWillTerminate() override {}
    /// A second start may have been made for a request; this process is the one to handle it.
    void applicationShouldHandleReopen_hasVisibleWindows(bool flag) override;

    void QuitMainApp();
    /// Selects the About tab, whatever is on screen: nothing is shown or brought forward.
    void menuItem_aboutCLicked(NS::Control& sender);

private:
    ControllerRegistry& m_registry;
};
