#pragma once

#include "platform/Value.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A stored list that the panel cannot work with, and what mends it.
struct Mend {
    std::string_view key;
    /// What takes its place; nothing where the key goes.
    std::optional<NS::Value> value;
    /// What is wrong, and what becomes of it: sentences for people.
    std::string wrong;
    std::string remedy;
};

/// What has to change in the shared suite so that the panel can work with it; none where nothing has to. An element
/// of a wrong kind is dropped from a list of paths, with the flag of its place; a flag that is missing or of a wrong
/// kind becomes 1, one too many goes; what is no list at all goes; what the panel never reads is left alone. Any
/// thread.
[[nodiscard]] std::vector<Mend> mendsOf(const NS::Value::Dictionary& suite);
