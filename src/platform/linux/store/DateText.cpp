#include "platform/linux/store/DateText.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>

namespace LinuxDesktop::DateText {

namespace {

constexpr std::int64_t secondsPerDay = 86400;
// The calendar repeats every 400 years, which brings any year into the range that std::chrono knows.
constexpr std::int64_t yearsPerEra = 400;
constexpr std::int64_t daysPerEra = 146097;
constexpr std::int64_t firstYear = 2000;
constexpr std::int64_t firstDay =
    std::chrono::sys_days(std::chrono::year(firstYear) / 1 / 1).time_since_epoch().count();
constexpr int fractionDigits = 9;
constexpr double fractionUnit = 1e9;

constexpr std::int64_t floorDivide(std::int64_t dividend, std::int64_t divisor)
{
    return dividend / divisor - (dividend % divisor < 0 ? 1 : 0);
}

std::optional<std::int64_t> dayNumber(std::int64_t year, unsigned month, unsigned day)
{
    const std::int64_t era = floorDivide(year - firstYear, yearsPerEra);
    const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(year - era * yearsPerEra)),
                                           std::chrono::month(month), std::chrono::day(day)};
    if (!date.ok())
        return std::nullopt;
    return std::chrono::sys_days(date).time_since_epoch().count() + era * daysPerEra;
}

double moment(std::int64_t seconds, std::int64_t nanoseconds)
{
    return static_cast<double>(seconds) + static_cast<double>(nanoseconds) / fractionUnit;
}

/// Takes the text apart from the left.
class Scanner {
public:
    explicit Scanner(std::string_view text) : m_rest(text) {}

    [[nodiscard]] bool atEnd() const { return m_rest.empty(); }

    bool take(char character)
    {
        if (!m_rest.starts_with(character))
            return false;
        m_rest.remove_prefix(1);
        return true;
    }

    std::string_view takeDigits(std::size_t atMost)
    {
        std::size_t count = 0;
        while (count < m_rest.size() && count < atMost && m_rest[count] >= '0' && m_rest[count] <= '9')
            ++count;
        const std::string_view digits = m_rest.substr(0, count);
        m_rest.remove_prefix(count);
        return digits;
    }

private:
    std::string_view m_rest;
};

std::int64_t number(std::string_view digits)
{
    std::int64_t value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

std::optional<std::int64_t> takeYear(Scanner& scanner)
{
    const bool negative = scanner.take('-');
    const std::string_view digits = scanner.takeDigits(10);
    if (digits.size() < (negative ? 1U : 4U))
        return std::nullopt;
    const std::int64_t year = negative ? -number(digits) : number(digits);
    if (year < std::numeric_limits<std::int32_t>::min() || year > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return year;
}

} // namespace

std::optional<NS::Date> parse(std::string_view text)
{
    struct Unit {
        char separator;
        std::int64_t value;
        std::int64_t limit;
    };
    // Month, day, hour, minute, second. The calendar bounds the first two.
    std::array<Unit, 5> units{{{'-', 1, 99}, {'-', 1, 99}, {'T', 0, 23}, {':', 0, 59}, {':', 0, 59}}};

    Scanner scanner(text);
    const auto year = takeYear(scanner);
    if (!year)
        return std::nullopt;
    bool complete = true;
    for (Unit& unit : units) {
        if (!scanner.take(unit.separator)) {
            complete = false;
            break;
        }
        const std::string_view digits = scanner.takeDigits(2);
        unit.value = number(digits);
        if (digits.size() != 2 || unit.value > unit.limit)
            return std::nullopt;
    }
    std::string fraction;
    if (complete && scanner.take('.')) {
        fraction = scanner.takeDigits(std::string_view::npos);
        if (fraction.empty())
            return std::nullopt;
    }
    if (!scanner.take('Z') || !scanner.atEnd())
        return std::nullopt;

    const auto& [month, day, hour, minute, second] = units;
    const auto days = dayNumber(*year, static_cast<unsigned>(month.value), static_cast<unsigned>(day.value));
    if (!days)
        return std::nullopt;
    fraction.resize(fractionDigits, '0');
    return NS::Date{
        moment(*days * secondsPerDay + hour.value * 3600 + minute.value * 60 + second.value, number(fraction))};
}

namespace {

/// ".25" for a quarter of a second; empty for a whole one.
std::string fractionText(std::int64_t seconds, double date)
{
    const double fraction = date - static_cast<double>(seconds);
    double scale = 1.0;
    for (int digits = 1; digits <= fractionDigits && fraction > 0.0; ++digits) {
        scale *= 10.0;
        const auto tenths = static_cast<std::int64_t>(std::llround(fraction * scale));
        if (moment(seconds, tenths * static_cast<std::int64_t>(fractionUnit / scale)) != date)
            continue;
        std::array<char, 32> text{};
        std::snprintf(text.data(), text.size(), ".%0*lld", digits, static_cast<long long>(tenths));
        return text.data();
    }
    return {};
}

} // namespace

std::optional<std::string> format(NS::Date date)
{
    // 2^31 years and a little; beyond it the arithmetic below would overflow.
    constexpr double farthest = 7e16;
    const double whole = std::floor(date.timeIntervalSince1970);
    if (!(std::abs(whole) < farthest))
        return std::nullopt;

    const auto seconds = static_cast<std::int64_t>(whole);
    const std::int64_t days = floorDivide(seconds, secondsPerDay);
    const std::int64_t era = floorDivide(days - firstDay, daysPerEra);
    const std::chrono::year_month_day calendar{
        std::chrono::sys_days(std::chrono::days(static_cast<int>(days - era * daysPerEra)))};
    const std::int64_t year = static_cast<int>(calendar.year()) + era * yearsPerEra;
    if (year < std::numeric_limits<std::int32_t>::min() || year > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    const auto secondOfDay = static_cast<unsigned>(seconds - days * secondsPerDay);

    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%s%04lld-%02u-%02uT%02u:%02u:%02u", year < 0 ? "-" : "",
                  static_cast<long long>(std::abs(year)), static_cast<unsigned>(calendar.month()),
                  static_cast<unsigned>(calendar.day()), secondOfDay / 3600, secondOfDay / 60 % 60, secondOfDay % 60);
    return text.data() + fractionText(seconds, date.timeIntervalSince1970) + "Z";
}

} // namespace LinuxDesktop::DateText
