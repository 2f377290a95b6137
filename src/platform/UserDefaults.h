#pragma once

#include "platform/Value.h"

#include <optional>
#include <string_view>

namespace NS {

/// A handle on one domain of stored settings. Every handle of a domain in a process sees the same values: a
/// write is visible through all of them at once, and reaches other processes no later than the next
/// synchronize(), within a second, or at a normal exit, whichever comes first.
///
/// Values handed in must be storable in a property list (text in UTF-8 without control characters other than
/// tab and line ends, at most 64 levels deep); handing in another is a programming error and fatal.
/// Any thread.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// The stored value, or nothing.
    [[nodiscard]] virtual std::optional<Value> objectForKey(std::string_view key) = 0;
    virtual void setObject_forKey(Value value, std::string_view key) = 0;
    virtual void removeObjectForKey(std::string_view key) = 0;
    /// Returns once all writes so far are on disk; false when that failed (the values stay in memory and are
    /// tried again at the next write or synchronize()).
    virtual bool synchronize() = 0;

    void setBool_forKey(bool value, std::string_view key) { setObject_forKey(value, key); }
    /// The key path is a plain key.
    void setValue_forKeyPath(Value value, std::string_view keyPath) { setObject_forKey(std::move(value), keyPath); }

    /// The stored array; nothing when there is no value or it is not an array.
    [[nodiscard]] std::optional<Value::Array> arrayForKey(std::string_view key);
};

} // namespace NS
