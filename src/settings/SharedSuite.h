#pragma once

#include "platform/UserDefaults.h"

#include <memory>

/// A fresh handle on the settings shared with the extension; nothing when they cannot be read, and then the
/// caller reads nothing and writes nothing. Main thread.
[[nodiscard]] std::shared_ptr<NS::UserDefaults> openSharedSuite();
