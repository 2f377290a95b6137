#pragma once

#include "platform/Value.h"
#include "platform/linux/store/Result.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

/// XML property lists, version 1.0. Pure functions; any thread.
namespace LinuxDesktop::PropertyList {

/// Bounds on what is read, and therefore on what is written.
inline constexpr std::size_t maximumBytes = std::size_t{64} << 20U;
/// Dictionaries and arrays within each other; the outermost one is level 1.
inline constexpr std::size_t maximumDepth = 64;

/// Reads a property list of any root. Whatever declares an entity is refused and no other file is ever looked at.
/// Of a key that a dictionary has twice, the last value counts.
[[nodiscard]] Result<NS::Value> parse(std::string_view bytes);

/// Of values, as they stand in the root dictionary of a file, by their keys.
using Texts = std::map<std::string_view, std::string_view>;

/// The value as a file: UTF-8, Apple's document type, laid out as Python's plistlib does. Fails for what parse()
/// would refuse or read differently. Of a dictionary's values `known` saves writing those again. Quickest where it
/// comes out no longer than `expectedBytes`.
[[nodiscard]] Result<std::string> serialise(const NS::Value& value, const Texts& known = {},
                                            std::size_t expectedBytes = 0);

/// A value as it stands in the root dictionary of a file. Fails for one that cannot be stored there.
[[nodiscard]] Result<std::string> textInRoot(const NS::Value& value);
/// Why the value cannot be stored in a settings file, or nothing when it can.
[[nodiscard]] std::optional<std::string> unstorableReason(const NS::Value& value);
/// The same for a key.
[[nodiscard]] std::optional<std::string> unstorableKeyReason(std::string_view key);

/// Whether two values are the same to every reader of a file: reals by their bits (any not-a-number is the same).
[[nodiscard]] bool identical(const NS::Value& one, const NS::Value& other);

} // namespace LinuxDesktop::PropertyList
