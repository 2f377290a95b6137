#include "extension/actions/support/Action.h"
#include "extension/actions/support/Desktop.h"
#include "extension/actions/support/Programs.h"
#include "platform/LocalizedString.h"

#include <algorithm>
#include <array>

namespace MenuExtension {

namespace {

struct Preferences {
    const char* desktop;
    const char* program;
};

constexpr std::array known{
    Preferences{"GNOME", "gnome-control-center"}, Preferences{"KDE", "systemsettings"},
    Preferences{"KDE", "systemsettings5"},        Preferences{"X-Cinnamon", "cinnamon-settings"},
    Preferences{"MATE", "mate-control-center"},   Preferences{"XFCE", "xfce4-settings-manager"},
    Preferences{"LXQt", "lxqt-config"},
};

} // namespace

Outcome perform(const Request&)
{
    auto preferences = known;
    std::stable_partition(preferences.begin(), preferences.end(),
                          [](const Preferences& one) { return isDesktop(one.desktop); });
    for (const Preferences& one : preferences) {
        if (Programs::start({one.program}))
            return Outcome::done();
    }
    return Outcome::failed(NS::LocalizedString(
        "OpenSystemPreferences",
        "No program for the settings of the desktop was found. Install the one of your desktop."));
}

} // namespace MenuExtension
