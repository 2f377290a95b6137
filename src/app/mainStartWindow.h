#pragma once

#include "platform/Window.h"
#include "platform/WindowController.h"

class ControllerRegistry;

/// The one main window: the first-run screen or the tabs. It listens for the extension's requests, and closing
/// it ends the program. Main thread.
class mainStartWindow : public NS::WindowController, public NS::WindowDelegate {
public:
    /// The registry must outlive the window.
    explicit mainStartWindow(ControllerRegistry& registry) : m_registry(registry) {}

    void windowDidLoad() override;
    void windowWillClose() override;

    void showUtilityKit();
    void AttachFileToMail();

private:
    std::shared_ptr<NS::ViewController> contentViewController();

    ControllerRegistry& m_registry;
};
