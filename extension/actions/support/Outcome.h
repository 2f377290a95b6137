#pragma once

#include <string>
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

} // namespace MenuExtension
