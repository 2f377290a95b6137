#include "extension/actions/support/Action.h"
#include "extension/actions/support/Answer.h"
#include "extension/actions/support/Picture.h"
#include "extension/actions/support/Programs.h"
#include "extension/companion/ExtensionSettings.h"
#include "extension/companion/SuiteReader.h"
#include "extension/menu/Menu.h"
#include "extension/protocol/Words.h"
#include "platform/LocalizedString.h"
#include "platform/linux/language/Catalogue.h"
#include "platform/linux/store/SettingsFolder.h"
#include "settings/AppliesTo.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace MenuExtension {

using NS::LocalizedString;
using NS::stringWithFormat;

namespace {

/// Everything; nothing where there is more than a request can have, or where it cannot be read.
std::optional<std::string> readInput()
{
    std::string input;
    std::array<char, std::size_t{64} << 10U> buffer{};
    for (;;) {
        const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0 || input.size() + static_cast<std::size_t>(count) > longestInput)
            return std::nullopt;
        if (count == 0)
            return input;
        input.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

std::optional<Scope> readScope()
{
    const auto folder = LinuxDesktop::settingsFolder();
    const auto values = folder ? SuiteReader(*folder).read() : std::nullopt;
    return values ? std::optional(Scope(settingsFromSuite(*values).folders)) : std::nullopt;
}

/// Fills the selection, whose kinds the action asks for. Gives why not where an item is gone.
std::optional<Outcome> look(const Request& request, bool atPictures, Selection& selection)
{
    selection.isBackground = request.background;
    for (const std::string& path : request.paths) {
        struct stat status = {};
        // A link that leads nowhere is an item too.
        if (::stat(path.c_str(), &status) != 0 && ::lstat(path.c_str(), &status) != 0)
            return Outcome::failed(stringWithFormat(LocalizedString("Action", "%1 cannot be found: %2."),
                                                    {Words::name(path), Words::reason(errno)}));
        selection.items.push_back({path, S_ISDIR(status.st_mode), atPictures && isPicture(request, path)});
    }
    return std::nullopt;
}

Outcome checkAndPerform(std::uint32_t appliesTo, Perform perform, const std::vector<std::string>& arguments)
{
    const auto input = readInput();
    auto asked = input ? requestFrom(arguments, *input) : std::nullopt;
    if (!asked)
        return Outcome::failed(
            LocalizedString("Action", "Orvik Menu was asked for something in a way that it does not understand."));
    auto scope = readScope();
    if (!scope)
        return Outcome::failed(LocalizedString("Action", "The settings of Orvik Menu cannot be read."));
    const Request request{*std::move(asked), *std::move(scope)};

    Selection selection;
    selection.isBackground = request.background;
    for (const std::string& path : request.paths)
        selection.items.push_back({.path = path});
    if (!isInScope(selection, request.scope))
        return Outcome::failed(Words::outOfScope(request.paths));
    selection.items.clear();
    if (auto gone = look(request, (appliesTo & AppliesTo::Pictures) != 0, selection))
        return *std::move(gone);
    if (!applies(appliesTo, selection) || (request.background && !selection.items.front().isFolder))
        return Outcome::doesNotApply(LocalizedString("Action", "This cannot be done with what is selected."));
    return perform(request);
}

} // namespace

int run(std::uint32_t appliesTo, Perform perform, int argc, char** argv)
{
    // That nobody reads the answer, or that a file grew too large, is said by the call that meets it.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    LinuxDesktop::useCatalogue(Programs::folder());
    const Outcome outcome = checkAndPerform(appliesTo, perform, {argv + (argc > 0 ? 1 : 0), argv + argc});
    answer(outcome);
    return outcome.kind == Outcome::Kind::Done ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace MenuExtension
