#include "extension/protocol/Outcome.h"

namespace MenuExtension {

namespace {

/// The digits, in the order of the kinds.
constexpr std::string_view digits = "012";

} // namespace

std::string textOf(const Outcome& outcome)
{
    return digits[static_cast<std::size_t>(outcome.kind)] + outcome.words;
}

std::optional<Outcome> outcomeFrom(std::string_view text)
{
    const std::size_t kind = text.empty() ? std::string_view::npos : digits.find(text.front());
    if (kind == std::string_view::npos)
        return std::nullopt;
    return Outcome{static_cast<Outcome::Kind>(kind), std::string(text.substr(1))};
}

} // namespace MenuExtension
