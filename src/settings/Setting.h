#pragma once

#include "platform/Value.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A stored value: its key, and how it is read.
template<class T>
struct Setting {
    std::string_view key;
    /// Nothing for a value of another kind.
    std::optional<T> (*decode)(const NS::Value& stored);
};

/// A stored boolean, and what counts where none is stored.
struct Switch : Setting<bool> {
    bool initially;
};

/// A stored array: its key, and how one of its elements is read.
template<class Element>
struct ListSetting {
    std::string_view key;
    /// Nothing for an element of another kind.
    std::optional<Element> (*decode)(const NS::Value& element);
};

/// What a value says where it is of one kind; nothing for every other. Any thread.
namespace Decode {

[[nodiscard]] std::optional<bool> boolean(const NS::Value& stored);
[[nodiscard]] std::optional<std::string> text(const NS::Value& stored);
[[nodiscard]] std::optional<NS::Date> date(const NS::Value& stored);
[[nodiscard]] std::optional<NS::Data> data(const NS::Value& stored);
[[nodiscard]] std::optional<NS::Value::Dictionary> dictionary(const NS::Value& stored);
/// Of any number: 1 means on. One that no flag can hold is not 1, and that is all that counts.
[[nodiscard]] std::optional<std::int64_t> flag(const NS::Value& stored);

} // namespace Decode
