#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace MenuExtension {

/// What became of a request.
struct Outcome {
    enum class Kind { Done, Failed, DoesNotApply };

    Kind kind = Kind::Done;
    /// For a person: which item, what happened, what to do. UTF-8, one or two sentences; may be empty where it is
    /// done.
    std::string words;

    [[nodiscard]] static Outcome done() { return {}; }
    [[nodiscard]] static Outcome failed(std::string words) { return {Kind::Failed, std::move(words)}; }
    [[nodiscard]] static Outcome doesNotApply(std::string words) { return {Kind::DoesNotApply, std::move(words)}; }
};

/// The outcome as the program of an action tells it on its standard output, to its end: a digit, then the words.
[[nodiscard]] std::string textOf(const Outcome& outcome);
/// The outcome that the text tells; nothing where it is none.
[[nodiscard]] std::optional<Outcome> outcomeFrom(std::string_view text);

} // namespace MenuExtension
