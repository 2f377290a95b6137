#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace NS {

/// The text in the user's language, as the table of a catalogue has it; the text itself in English, and where no
/// catalogue has it. Both are literals where a text is not marked by LocalizableString(), since the catalogues are
/// made of what the source says. Leaves errno alone. Any thread.
[[nodiscard]] std::string LocalizedString(std::string_view table, std::string_view text);

/// Marks a text that stays English where it is kept, and is given to LocalizedString() where it is shown.
constexpr std::string_view LocalizableString(std::string_view /*table*/, std::string_view text)
{
    return text;
}

/// The format with each %1 to %9 replaced by the argument of that number; what an argument holds is not looked at.
[[nodiscard]] std::string stringWithFormat(std::string_view format,
                                           std::initializer_list<std::string_view> arguments);

using Localizer = std::string (*)(std::string_view table, std::string_view text);
/// Has LocalizedString() ask `localizer`, on any thread; null makes it answer in English again.
void setLocalizer(Localizer localizer);

} // namespace NS
