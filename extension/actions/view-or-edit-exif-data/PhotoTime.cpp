#include "PhotoTime.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace MenuExtension::Exif {

namespace {

/// Takes a number of so many digits from the beginning.
std::optional<int> takeNumber(std::string_view& text, std::size_t digits)
{
    int number = 0;
    if (text.size() < digits || text.find_first_not_of("0123456789") < digits)
        return std::nullopt;
    std::from_chars(text.data(), text.data() + digits, number);
    text.remove_prefix(digits);
    return number;
}

bool takeOneOf(std::string_view& text, std::string_view characters)
{
    if (text.empty() || characters.find(text.front()) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    return true;
}

/// Takes a date, and the time if there is one, from the beginning.
std::optional<PhotoTime> takeTime(std::string_view& text)
{
    using namespace std::chrono;
    const auto yearNumber = takeNumber(text, 4);
    const auto monthNumber = yearNumber && takeOneOf(text, ":-") ? takeNumber(text, 2) : std::nullopt;
    const auto dayNumber = monthNumber && takeOneOf(text, ":-") ? takeNumber(text, 2) : std::nullopt;
    if (!dayNumber)
        return std::nullopt;
    const year_month_day date{year(*yearNumber), month(static_cast<unsigned>(*monthNumber)),
                              day(static_cast<unsigned>(*dayNumber))};
    if (!date.ok())
        return std::nullopt;
    const PhotoTime midnight{local_days(date)};
    if (text.empty())
        return midnight;
    const auto hour = takeOneOf(text, " T") ? takeNumber(text, 2) : std::nullopt;
    const auto minute = hour && takeOneOf(text, ":") ? takeNumber(text, 2) : std::nullopt;
    // Some say no more than hours and minutes.
    const auto second = minute && takeOneOf(text, ":") ? takeNumber(text, 2)
                        : minute                       ? std::optional(0)
                                                       : std::nullopt;
    if (!second || *hour > 23 || *minute > 59 || *second > 59)
        return std::nullopt;
    return midnight + hours(*hour) + minutes(*minute) + seconds(*second);
}

} // namespace

std::optional<PhotoTime> photoTime(std::string_view text)
{
    const auto time = takeTime(text);
    const bool isWhole = text.empty() || text.find_first_of(".+-Z ") == 0;
    return isWhole ? time : std::nullopt;
}

std::optional<PhotoTime> typedTime(std::string_view text)
{
    const auto time = takeTime(text);
    return text.empty() ? time : std::nullopt;
}

std::string textOf(PhotoTime time)
{
    using namespace std::chrono;
    const auto days = floor<std::chrono::days>(time);
    const year_month_day date(days);
    const hh_mm_ss clock(time - days);
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%04d:%02u:%02u %02d:%02d:%02d", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()));
    return text.data();
}

} // namespace MenuExtension::Exif
