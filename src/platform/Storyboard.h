#pragma once

#include "platform/ViewController.h"

#include <memory>
#include <string_view>

namespace NS {

/// Scenes by identifier. Main thread.
class Storyboard {
public:
    virtual ~Storyboard() = default;

    /// A new controller with its scene loaded and connected; nothing when no scene has the identifier.
    [[nodiscard]] virtual std::shared_ptr<Controller>
    instantiateControllerWithIdentifier(std::string_view identifier) = 0;
};

} // namespace NS
