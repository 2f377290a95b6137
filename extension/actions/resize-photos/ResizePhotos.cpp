#include "ResizePhoto.h"
#include "ResizeWindow.h"
#include "extension/actions/support/Action.h"
#include "extension/actions/window/PerformInWindow.h"

#include <memory>

namespace MenuExtension {

Outcome perform(const Request& request)
{
    return performInWindow([&request] { return std::make_unique<Resizing::ResizeWindow>(request); });
}

} // namespace MenuExtension
