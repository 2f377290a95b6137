#include "extension/actions/support/Action.h"
#include "extension/actions/support/Desktop.h"
#include "extension/actions/support/Programs.h"
#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"

#include <array>
#include <cerrno>

namespace MenuExtension {

using NS::LocalizedString;
using NS::stringWithFormat;

namespace {

struct Terminal {
    /// That knows it; nothing for every desktop.
    const char* desktop;
    /// Where the desktop keeps the user's choice; nothing where it has no such place.
    const char* schema;
    Programs::CommandLine command;
};

const std::array terminals{
    Terminal{nullptr, nullptr, {"xdg-terminal-exec"}},
    Terminal{nullptr, nullptr, {"x-terminal-emulator"}},
    Terminal{"X-Cinnamon", "org.cinnamon.desktop.default-applications.terminal", {"gnome-terminal"}},
    Terminal{"MATE", "org.mate.applications-terminal", {"mate-terminal"}},
    Terminal{"XFCE", nullptr, {"exo-open", "--launch", "TerminalEmulator"}},
    Terminal{"KDE", nullptr, {"konsole"}},
    Terminal{"LXQt", nullptr, {"qterminal"}},
    Terminal{"GNOME", "org.gnome.desktop.default-applications.terminal", {"gnome-terminal"}},
};

/// The program that the user chose, from what gsettings prints: a text in quotes.
std::string chosenIn(const char* schema)
{
    const auto printed = Programs::outputOf({"gsettings", "get", schema, "exec"});
    if (!printed || printed->size() < 3 || printed->front() != '\'' || printed->back() != '\'')
        return {};
    const std::string program = printed->substr(1, printed->size() - 2);
    return program.find_first_of("\\ ") == std::string::npos ? program : std::string();
}

bool start(const Terminal& terminal, const OpenedFolder& folder)
{
    if (terminal.desktop && !isDesktop(terminal.desktop))
        return false;
    const std::string chosen = terminal.schema ? chosenIn(terminal.schema) : std::string();
    return (!chosen.empty() && Programs::startIn(folder, {chosen})) || Programs::startIn(folder, terminal.command);
}

} // namespace

Outcome perform(const Request& request)
{
    const OpenedFolder folder = openFolderOf(request);
    if (!folder.descriptor)
        return Outcome::failed(
            stringWithFormat(LocalizedString("OpenTerminal", "No terminal can be opened in %1: %2."),
                             {Words::name(folder.path), Words::reason(errno)}));
    for (const Terminal& terminal : terminals) {
        if (start(terminal, folder))
            return Outcome::done();
    }
    return Outcome::failed(LocalizedString(
        "OpenTerminal", "No terminal was found. Install one, or choose one in the settings of the desktop."));
}

} // namespace MenuExtension
