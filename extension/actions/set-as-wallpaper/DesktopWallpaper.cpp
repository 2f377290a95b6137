#include "DesktopWallpaper.h"

#include "extension/actions/support/Desktop.h"
#include "extension/actions/support/Programs.h"
#include "platform/URL.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace MenuExtension::DesktopWallpaper {

namespace {

/// A text as gsettings reads one.
std::string literalOf(std::string_view text)
{
    std::string result = "'";
    for (const char character : text) {
        if (character == '\'' || character == '\\')
            result += '\\';
        result += character;
    }
    return result + '\'';
}

bool setKey(const char* schema, const char* key, const std::string& value)
{
    return Programs::run({"gsettings", "set", schema, key, literalOf(value)});
}

std::string addressOf(const std::string& path)
{
    return NS::URL::fileURLWithPath(path).absoluteString();
}

bool setInGnome(const std::string& path)
{
    constexpr const char* schema = "org.gnome.desktop.background";
    // The dark look has a picture of its own since GNOME 42.
    const bool set = setKey(schema, "picture-uri", addressOf(path));
    static_cast<void>(set && setKey(schema, "picture-uri-dark", addressOf(path)));
    return set;
}

bool setInCinnamon(const std::string& path)
{
    return setKey("org.cinnamon.desktop.background", "picture-uri", addressOf(path));
}

bool setInMate(const std::string& path)
{
    return setKey("org.mate.background", "picture-filename", path);
}

/// Each screen and each workspace has a picture there.
bool setInXfce(const std::string& path)
{
    const auto listed = Programs::outputOf({"xfconf-query", "-c", "xfce4-desktop", "-l"});
    std::string_view rest = listed ? *listed : std::string_view();
    bool set = false;
    while (!rest.empty()) {
        const std::string_view property = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(property.size() + 1, rest.size()));
        if (property.ends_with("/last-image"))
            set |= Programs::run({"xfconf-query", "-c", "xfce4-desktop", "-p", std::string(property), "-s", path});
    }
    return set;
}

bool setInPlasma(const std::string& path)
{
    return Programs::run({"plasma-apply-wallpaperimage", path});
}

bool setInLxqt(const std::string& path)
{
    return Programs::run({"pcmanfm-qt", "--set-wallpaper", path});
}

struct Setting {
    const char* desktop;
    bool (*set)(const std::string& path);
};

constexpr std::array settings{
    Setting{"X-Cinnamon", setInCinnamon}, Setting{"MATE", setInMate}, Setting{"XFCE", setInXfce},
    Setting{"KDE", setInPlasma},          Setting{"LXQt", setInLxqt}, Setting{"GNOME", setInGnome},
};

} // namespace

bool set(const std::string& path)
{
    return std::ranges::any_of(settings, [&](const Setting& one) { return isDesktop(one.desktop) && one.set(path); });
}

} // namespace MenuExtension::DesktopWallpaper
