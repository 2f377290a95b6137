#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

/// What this action and its worker say to each other.
namespace MenuExtension::Resizing {

/// How large a photo is to become. It never becomes larger than it is.
struct Goal {
    enum class Kind {
        /// At most so many pixels each way.
        Length,
        /// So many hundredths of its width and height.
        Percent,
        /// At most so many bytes.
        Bytes,
    };
    Kind kind = Kind::Length;
    std::uint64_t value = 1920;
    /// Of formats that lose something: from 1 to 100.
    int quality = 85;
    /// Of Bytes: at most so many pixels each way as well, or 0.
    std::uint32_t longest = 0;
    friend bool operator==(const Goal&, const Goal&) = default;
};

/// What is to be done with the job's first file.
struct Job {
    Goal goal;
    /// Whether it is to be shown before and after, in at most so many pixels each way; else 0, and the result is
    /// written to the job's second file.
    std::uint32_t shownPixels = 0;
    friend bool operator==(const Job&, const Job&) = default;
};

[[nodiscard]] std::string textOf(const Job& job);
/// Nothing for what is no job.
[[nodiscard]] std::optional<Job> jobFrom(std::string_view text);

struct Size {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint64_t bytes = 0;
    friend bool operator==(const Size&, const Size&) = default;
};
/// Red, green and blue of each pixel, row by row.
struct Pixels {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::string bytes = {};
    friend bool operator==(const Pixels&, const Pixels&) = default;
};
/// What is said of a photo.
enum class Data {
    Kept,
    /// The new file has less of it.
    Lost,
};
/// Of a photo that is that small already, and whose file stays as it is, both sizes are the same.
struct Resized {
    Size before;
    Size after;
    /// Where they were asked for.
    Pixels shownBefore = {};
    Pixels shownAfter = {};
    Data data = Data::Kept;
    friend bool operator==(const Resized&, const Resized&) = default;
};
/// Why it was not resized: the end of a sentence that begins with its name, without a full stop.
struct Refused {
    std::string why;
    friend bool operator==(const Refused&, const Refused&) = default;
};
using Result = std::variant<Refused, Resized>;

[[nodiscard]] std::string textOf(const Result& result);
/// A refusal in its place for what is no result.
[[nodiscard]] Result resultFrom(std::string_view text);

/// The sizes in pixels that the goal asks for, of a photo of a size; those of Bytes are at most.
[[nodiscard]] Size sizeFor(const Goal& goal, const Size& photo);

} // namespace MenuExtension::Resizing
