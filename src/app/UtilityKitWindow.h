#pragma once

#include "platform/WindowController.h"

class ControllerRegistry;

/// The window that shows the maker's other applications. Main thread.
class UtilityKitWindow : public NS::WindowController {
public:
    /// The registry must outlive the window.
    explicit UtilityKitWindow(ControllerRegistry& registry) : m_registry(registry) {}

    void windowDidLoad() override;

private:
    ControllerRegistry& m_registry;
};
