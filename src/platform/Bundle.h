#pragma once

#include "platform/Value.h"

#include <optional>

namespace NS {

/// The program as installed.
class Bundle {
public:
    virtual ~Bundle() = default;

    /// What the program says of itself (its Info.plist); nothing when that is missing. Main thread.
    [[nodiscard]] virtual const std::optional<Value::Dictionary>& infoDictionary() = 0;
};

} // namespace NS
