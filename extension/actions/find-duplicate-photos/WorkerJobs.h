#pragma once

#include "Thumb.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// What this action and its worker say to each other.
namespace MenuExtension::SimilarPhotos {

/// Asks for a picture as it is shown, at most so many pixels each way; for its thumb where that is 0. The job's one
/// file is the picture's.
[[nodiscard]] std::string jobText(std::uint32_t pixels);
/// Nothing for what is no job.
[[nodiscard]] std::optional<std::uint32_t> pixelsFrom(std::string_view job);

struct Described {
    /// As the picture is shown.
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    Thumb thumb;
};
struct Shown {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    /// Red, green and blue of each pixel, row by row.
    std::string bytes;
};
/// Why a picture was not read: the end of a sentence that begins with its name, without a full stop.
struct Refused {
    std::string why;
};
using Result = std::variant<Refused, Described, Shown>;

[[nodiscard]] std::string resultText(const Result& result);
/// A refusal in its place for what is no result.
[[nodiscard]] Result resultFrom(std::string_view text);

} // namespace MenuExtension::SimilarPhotos
