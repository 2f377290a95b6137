#include "platform/linux/processes/DesktopEntry.h"

namespace LinuxDesktop {

namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Takes the text up to the separator off the front of `rest`, and the separator.
std::string_view takeUpTo(char separator, std::string_view& rest)
{
    const std::size_t end = rest.find(separator);
    const std::string_view taken = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return taken;
}

/// Entries from before the format's version 1.0 have numbers.
bool isTrue(std::string_view value)
{
    return value == "true" || value == "1";
}

bool listHas(std::string_view list, std::string_view wanted)
{
    while (!list.empty())
        if (takeUpTo(';', list) == wanted)
            return true;
    return false;
}

/// The keys that decide, as they stand in the file.
struct Keys {
    std::string_view type = "Application";
    std::string_view hidden;
    std::string_view noDisplay;
    std::optional<std::string_view> onlyShowIn;
    std::string_view notShowIn;

    void set(std::string_view key, std::string_view value)
    {
        if (key == "Type")
            type = value;
        else if (key == "Hidden")
            hidden = value;
        else if (key == "NoDisplay")
            noDisplay = value;
        else if (key == "OnlyShowIn")
            onlyShowIn = value;
        else if (key == "NotShowIn")
            notShowIn = value;
    }

    /// The first of the desktop's names that either list has decides.
    [[nodiscard]] bool shownIn(std::span<const std::string> desktops) const
    {
        for (const std::string& desktop : desktops) {
            if (onlyShowIn && listHas(*onlyShowIn, desktop))
                return true;
            if (listHas(notShowIn, desktop))
                return false;
        }
        return !onlyShowIn;
    }
};

std::optional<Keys> keysOf(std::string_view text)
{
    std::optional<Keys> keys;
    bool inside = false;
    while (!text.empty()) {
        std::string_view line = trimmed(takeUpTo('\n', text));
        if (line.starts_with('#'))
            continue;
        if (line.starts_with('[')) {
            inside = line == "[Desktop Entry]";
            if (inside && !keys)
                keys.emplace();
        } else if (inside && line.find('=') != std::string_view::npos) {
            const std::string_view key = trimmed(takeUpTo('=', line));
            keys->set(key, trimmed(line));
        }
    }
    return keys;
}

} // namespace

std::optional<NS::ActivationPolicy> policyOfDesktopEntry(std::string_view text,
                                                         std::span<const std::string> currentDesktops)
{
    const auto keys = keysOf(text);
    if (!keys)
        return std::nullopt;
    if (isTrue(keys->hidden))
        return NS::ActivationPolicy::Prohibited;
    if (isTrue(keys->noDisplay) || keys->type != "Application" || !keys->shownIn(currentDesktops))
        return NS::ActivationPolicy::Accessory;
    return NS::ActivationPolicy::Regular;
}

} // namespace LinuxDesktop
