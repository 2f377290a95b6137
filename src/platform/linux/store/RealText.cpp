#include "platform/linux/store/RealText.h"

#include <array>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <system_error>

namespace LinuxDesktop::RealText {

namespace {

/// Zero or infinity for a well-formed number that a double cannot hold.
double outOfRange(std::string_view text)
{
    // The process's own locale may have another decimal point.
    const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    const double real = strtod_l(std::string(text).c_str(), nullptr, plain);
    freelocale(plain);
    return real;
}

} // namespace

std::optional<double> parse(std::string_view text)
{
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-'))
            return std::nullopt;
    }
    double real = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), real);
    // A word in brackets after "nan" is C's own form.
    if (end != text.data() + text.size() || text.ends_with(')'))
        return std::nullopt;
    if (error == std::errc::result_out_of_range)
        return outOfRange(text);
    if (error != std::errc())
        return std::nullopt;
    return real;
}

std::string format(double real)
{
    if (std::isnan(real))
        return "nan";
    if (std::isinf(real))
        return real > 0.0 ? "+infinity" : "-infinity";
    std::array<char, 32> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), real).ptr};
}

} // namespace LinuxDesktop::RealText
